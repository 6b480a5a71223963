// Numbers as printf writes them, straight into memory that has room for them: each function returns the end of what it
// wrote, which is at most as long as the constant before it says.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace kov {

// 00 to 99.
inline constexpr char kDigitPairs[] =
    "0001020304050607080910111213141516171819202122232425262728293031323334353637383940414243444546474849"
    "5051525354555657585960616263646566676869707172737475767778798081828384858687888990919293949596979899";

// A number below 100, as one digit or two. It writes two bytes either way: a single digit is the second of its pair.
inline char* putSmall(char* to, std::uint32_t value) {
  const std::uint32_t skipped = value < 10 ? 1 : 0;
  std::memcpy(to, &kDigitPairs[2 * value + skipped], 2);
  return to + 2 - skipped;
}

constexpr std::size_t kMostDigits = 20;
char* putLarge(char* to, std::uint32_t value);  // a number of three digits or more
char* putUnsigned(char* to, std::uint64_t value);
char* putDecimal(char* to, std::int64_t value);

// "%u"
inline char* putUnsigned(char* to, std::uint32_t value) {
  return value < 100 ? putSmall(to, value) : putLarge(to, value);
}

// "%d"
inline char* putDecimal(char* to, std::int32_t value) {
  const auto magnitude = static_cast<std::uint32_t>(value);
  *to = '-';
  return value < 0 ? putUnsigned(to + 1, 0 - magnitude) : putUnsigned(to, magnitude);
}

// "%x"
char* putHexadecimal(char* to, std::uint64_t value);

// "%02d" or "%2d", by the padding; "%d" without one.
constexpr std::size_t kMostTwoPlaces = 11;
inline char* putTwoPlaces(char* to, std::int32_t value, char padding) {
  if (static_cast<std::uint32_t>(value) >= 10 || padding == '\0') return putDecimal(to, value);
  to[0] = padding;
  to[1] = static_cast<char>('0' + value);
  return to + 2;
}

// "%f"
constexpr std::size_t kMostFixed = 48;
char* putFixed(char* to, float value);

}  // namespace kov
