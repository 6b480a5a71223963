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

// A NUL-terminated copy of a text field, for comparing and logging.
template <std::size_t Capacity>
class FieldText {
 public:
  explicit FieldText(const char (&field)[Capacity]) : length_(fieldLength(field)) {
    std::memcpy(text_, field, length_);
    text_[length_] = '\0';
  }
  const char* text() const { return text_; }
  std::size_t length() const { return length_; }

 private:
  std::size_t length_;
  char text_[Capacity + 1];
};

inline bool sameText(const char* left, const char* right) { return std::strcmp(left, right) == 0; }

}  // namespace kov
