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

  void decimal(std::int64_t value) { number(&putDecimal, value); }            // "%d", "%lld"
  void unsignedDecimal(std::uint64_t value) { number(&putUnsigned, value); }  // "%u", "%llu"
  void hexadecimal(std::uint64_t value) { number(&putHexadecimal, value); }   // "%x", "%llx"
  void padded(std::int32_t value, unsigned width, char padding);              // "%02d", "%2d"

  // The length of the whole text, cut or not.
  std::size_t length() const { return written() + cut_; }
  // The length of what the buffer holds.
  std::size_t written() const { return static_cast<std::size_t>(cursor_ - begin_); }
  bool empty() const { return length() == 0; }
  const char* begin() const { return begin_; }

  void terminate() { *cursor_ = '\0'; }

  // For a caller that writes what certainly fits itself: where it begins, the room from there on, and where it ended.
  char* cursor() { return cursor_; }
  std::size_t roomFrom(const char* at) const { return static_cast<std::size_t>(end_ - at); }
  void advanceTo(char* end) { cursor_ = end; }

  // The same conversions for that place: each returns the end of what it wrote, which is at most as long as named here.
  static constexpr std::size_t kMostDigits = 20;
  static char* putDecimal(char* to, std::int64_t value) {
    return value >= 0 ? putUnsigned(to, static_cast<std::uint64_t>(value)) : putNegative(to, value);
  }
  static char* putUnsigned(char* to, std::uint64_t value) {
    *to = static_cast<char>('0' + (value & 15));
    return value < 10 ? to + 1 : putDigits(to, value);
  }
  static char* putHexadecimal(char* to, std::uint64_t value);
  static constexpr std::size_t kMostPadded = 12;  // for a width up to that
  static char* putPadded(char* to, std::int32_t value, unsigned width, char padding);
  static constexpr std::size_t kMostFixed = 48;
  static char* putFixed(char* to, float value);  // "%f"

 private:
  std::size_t room() const { return roomFrom(cursor_); }
  void cut(const char* text, std::size_t length);
  static char* putNegative(char* to, std::int64_t value);
  static char* putDigits(char* to, std::uint64_t value);
  template <class Value>
  void number(char* (*put)(char*, Value), Value value) {
    char digits[kMostDigits];
    text(digits, static_cast<std::size_t>(put(digits, value) - digits));
  }

  char* begin_;
  char* cursor_;
  char* end_;
  std::size_t cut_ = 0;
};

}  // namespace kov
