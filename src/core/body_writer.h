// The only place that writes message text: bounded appends with the meaning of one printf conversion each.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/text.h"

namespace kov {

// Appends to a buffer of a fixed size. What does not fit is cut, so that the buffer always holds a prefix of the whole
// text; length() goes on counting. The owner calls terminate() when it is done.
class BodyWriter {
 public:
  // `size` is at least 1: one byte is kept for the NUL.
  BodyWriter(char* buffer, std::size_t size) : begin_(buffer), cursor_(buffer), end_(buffer + size - 1) {}

  void text(const char* text, std::size_t length) {
    const std::size_t room = static_cast<std::size_t>(end_ - cursor_);
    if (length > room) {
      cut_ += length - room;
      length = room;
    }
    std::memcpy(cursor_, text, length);
    cursor_ += length;
  }
  void text(const char* text) { this->text(text, std::strlen(text)); }

  template <std::size_t Size>
  void literal(const char (&text)[Size]) {
    this->text(text, Size - 1);
  }

  template <std::size_t Capacity>
  void field(const char (&field)[Capacity]) {
    text(field, fieldLength(field));
  }

  void character(char c) { text(&c, 1); }

  void decimal(std::int64_t value);                               // "%d", "%lld"
  void unsignedDecimal(std::uint64_t value);                      // "%u", "%llu"
  void hexadecimal(std::uint64_t value);                          // "%x", "%llx"
  void padded(std::int32_t value, unsigned width, char padding);  // "%02d", "%2d"
  void fixed(float value);                                        // "%f"

  // The length of the whole text, cut or not.
  std::size_t length() const { return written() + cut_; }
  // The length of what the buffer holds.
  std::size_t written() const { return static_cast<std::size_t>(cursor_ - begin_); }
  bool empty() const { return length() == 0; }
  const char* begin() const { return begin_; }

  void terminate() { *cursor_ = '\0'; }

 private:
  char* begin_;
  char* cursor_;
  char* end_;
  std::size_t cut_ = 0;
};

}  // namespace kov
