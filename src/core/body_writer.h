// The only place that writes message text: bounded appends with the meaning of one printf conversion each.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/number_text.h"
#include "core/text.h"

namespace kov {

// Appends to a buffer of a fixed size. What does not fit is cut, so that the buffer always holds a prefix of the whole
// text; length() goes on counting. The owner calls terminate() when it is done.
class BodyWriter {
 public:
  // `size` is at least 1: one byte is kept for the NUL.
  BodyWriter(char* buffer, std::size_t size) : begin_(buffer), cursor_(buffer), end_(buffer + size - 1) {}

  void text(const char* text, std::size_t length);
  void text(const char* text) { this->text(text, std::strlen(text)); }

  template <std::size_t Size>
  void literal(const char (&text)[Size]) {
    constexpr std::size_t kLength = Size - 1;
    if (kLength <= room()) {
      std::memcpy(cursor_, text, kLength);
      cursor_ += kLength;
    } else {
      cut(text, kLength);
    }
  }

  template <std::size_t Capacity>
  void field(const char (&field)[Capacity]) {
    text(field, fieldLength(field));
  }

  void character(char c) {
    const char text[] = {c, '\0'};
    literal(text);
  }

  void decimal(std::int32_t value) { number(value, &putDecimal); }            // "%d"
  void unsignedDecimal(std::uint32_t value) { number(value, &putUnsigned); }  // "%u"
  void hexadecimal(std::uint64_t value) { number(value, &putHexadecimal); }   // "%llx"

  // The length of the whole text, cut or not.
  std::size_t length() const { return written() + cut_; }
  // The length of what the buffer holds.
  std::size_t written() const { return static_cast<std::size_t>(cursor_ - begin_); }
  bool empty() const { return length() == 0; }
  const char* begin() const { return begin_; }

  void terminate() { *cursor_ = '\0'; }

  // For a caller that writes what certainly fits itself: where it begins, where the room ends, and where the text
  // ended.
  char* cursor() { return cursor_; }
  std::size_t room() const { return static_cast<std::size_t>(end_ - cursor_); }
  void advanceTo(char* end) { cursor_ = end; }

 private:
  void cut(const char* text, std::size_t length);
  template <class Value>
  void number(Value value, char* (*put)(char*, Value)) {
    char digits[kMostDigits];
    text(digits, static_cast<std::size_t>(put(digits, value) - digits));
  }

  char* begin_;
  char* cursor_;
  char* end_;
  std::size_t cut_ = 0;
};

}  // namespace kov
