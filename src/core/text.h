// Bounded text: the fields of a record are never trusted to end in a NUL.
#pragma once

#include <cstddef>
#include <cstring>

namespace kov {

// The length of a text in at most `capacity` bytes.
inline std::size_t boundedLength(const char* text, std::size_t capacity) {
  const void* end = std::memchr(text, '\0', capacity);
  return end == nullptr ? capacity : static_cast<std::size_t>(static_cast<const char*>(end) - text);
}

template <std::size_t Capacity>
std::size_t fieldLength(const char (&field)[Capacity]) {
  return boundedLength(field, Capacity);
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

// memcpy for the few bytes of names and values: no call for up to 16 of them.
inline void copyShort(char* to, const char* from, std::size_t length) {
  if (length > 16) {
    std::memcpy(to, from, length);
  } else if (length >= 8) {
    char last[8];
    std::memcpy(last, from + length - 8, 8);
    std::memcpy(to, from, 8);
    std::memcpy(to + length - 8, last, 8);
  } else if (length >= 4) {
    char last[4];
    std::memcpy(last, from + length - 4, 4);
    std::memcpy(to, from, 4);
    std::memcpy(to + length - 4, last, 4);
  } else {
    for (std::size_t i = 0; i < length; ++i) to[i] = from[i];
  }
}

inline bool sameText(const char* left, const char* right) { return std::strcmp(left, right) == 0; }

}  // namespace kov
