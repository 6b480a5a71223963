// Bounded text: the fields of a record are never trusted to end in a NUL.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "kov_platform/bytes.h"

namespace kov {

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
