// Bounded text: the fields of a record are never trusted to end in a NUL.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "kov_platform/byte_block.h"

namespace kov {

// The length of a text in at most `capacity` bytes.
inline std::size_t boundedLength(const char* text, std::size_t capacity) {
  const void* end = std::memchr(text, '\0', capacity);
  return end == nullptr ? capacity : static_cast<std::size_t>(static_cast<const char*>(end) - text);
}

template <std::size_t Capacity>
std::size_t fieldLength(const char (&field)[Capacity]) {
  constexpr std::size_t kBlock = ByteBlock::kSize;
  if constexpr (Capacity % kBlock != 0) return boundedLength(field, Capacity);
  std::size_t length = 0;
  for (; length < Capacity; length += kBlock) {
    const std::size_t end = ByteBlock(field + length).find('\0');
    if (end != kBlock) return length + end;
  }
  return length;
}

// A text field as NUL-terminated text, for comparing and logging: the field itself, or a copy when it has no NUL.
template <std::size_t Capacity>
class FieldText {
 public:
  explicit FieldText(const char (&field)[Capacity]) : text_(field), length_(fieldLength(field)) {
    if (length_ == Capacity) terminate();
  }
  FieldText(const FieldText&) = delete;
  FieldText& operator=(const FieldText&) = delete;

  const char* text() const { return text_; }
  std::size_t length() const { return length_; }

 private:
  void terminate() {
    std::memcpy(copy_, text_, Capacity);
    copy_[Capacity] = '\0';
    text_ = copy_;
  }

  const char* text_;
  std::size_t length_;
  char copy_[Capacity + 1];
};

// Copies up to 32 bytes without a call and returns the end of the copy. Two halves that overlap serve every length
// between a power of two and the next.
inline char* putShort(char* to, const char* from, std::size_t length) {
  const auto putHalves = [=](auto half) {
    auto first = half;
    auto last = half;
    std::memcpy(&first, from, sizeof half);
    std::memcpy(&last, from + length - sizeof half, sizeof half);
    std::memcpy(to, &first, sizeof half);
    std::memcpy(to + length - sizeof half, &last, sizeof half);
  };
  struct SixteenBytes {
    std::uint64_t words[2];
  };
  if (length >= 16) {
    putHalves(SixteenBytes{});
  } else if (length >= 8) {
    putHalves(std::uint64_t{});
  } else if (length >= 4) {
    putHalves(std::uint32_t{});
  } else {
    for (std::size_t i = 0; i < length; ++i) to[i] = from[i];
  }
  return to + length;
}

// The same for a text of any length, which is mostly short.
inline char* putText(char* to, const char* from, std::size_t length) {
  if (length <= 32) return putShort(to, from, length);
  std::memcpy(to, from, length);
  return to + length;
}

// Copies the text of a field, which ends at its NUL or at its capacity, and returns the end of the copy. It goes block
// by block and so writes up to `capacity` bytes, however short the text is.
inline char* putField(char* to, const char* field, std::size_t capacity) {
  constexpr std::size_t kBlock = ByteBlock::kSize;
  if (capacity < kBlock) {
    while (capacity-- != 0 && *field != '\0') *to++ = *field++;
    return to;
  }
  for (std::size_t at = 0;; at += kBlock) {
    if (at > capacity - kBlock) at = capacity - kBlock;  // the last block overlaps the one before
    const ByteBlock block(field + at);
    block.store(to + at);
    const std::size_t end = block.find('\0');
    if (end != kBlock || at == capacity - kBlock) return to + at + end;
  }
}

inline bool sameText(const char* left, const char* right) { return std::strcmp(left, right) == 0; }

}  // namespace kov
