#include "core/body_writer.h"

namespace kov {
namespace {

constexpr char kDigitPairs[] =
    "000102030405060708091011121314151617181920212223242526272829303132333435363738394041424344454647484950515253545556"
    "57"
    "5859606162636465666768697071727374757677787980818283848586878889909192939495969798990";

// Writes the digits of a number backwards, so that they end at `end`, and returns where they begin.
template <class Unsigned>
char* digitsBefore(char* end, Unsigned value) {
  while (value >= 100) {
    end -= 2;
    std::memcpy(end, &kDigitPairs[2 * static_cast<unsigned>(value % 100)], 2);
    value /= 100;
  }
  if (value >= 10) {
    end -= 2;
    std::memcpy(end, &kDigitPairs[2 * static_cast<unsigned>(value)], 2);
    return end;
  }
  *--end = static_cast<char>('0' + static_cast<unsigned>(value));
  return end;
}

// 64-bit division is a library call on 32-bit machines, so small numbers stay away from it.
char* decimalBefore(char* end, std::uint64_t value) {
  return value <= UINT32_MAX ? digitsBefore(end, static_cast<std::uint32_t>(value)) : digitsBefore(end, value);
}

// Ten to the power of the index; a number below it has at most that many digits.
constexpr std::uint32_t kPowersOfTen[] = {1,       10,        100,        1'000,       10'000,
                                          100'000, 1'000'000, 10'000'000, 100'000'000, 1'000'000'000};

// The number of digits of a number above zero. A bit is worth 0.301 digits, which is 1233 / 4096.
unsigned digitCountOf(std::uint32_t value) {
  const unsigned bits = 32 - static_cast<unsigned>(__builtin_clz(value));
  const unsigned digits = bits * 1233 / 4096;
  return digits + (value >= kPowersOfTen[digits] ? 1 : 0);
}

std::size_t digitCount(std::uint64_t value) {
  std::size_t count = 0;
  for (; value > UINT32_MAX; value /= 10) ++count;
  return count + digitCountOf(static_cast<std::uint32_t>(value) | 1);
}

constexpr unsigned kMantissaBits = 23;
constexpr int kExponentBias = 127 + static_cast<int>(kMantissaBits);
constexpr std::uint32_t kMillion = 1000000;

// The exact decimal digits of mantissa * 2^exponent, which may need 128 bits: repeated division by ten.
char* putLargeInteger(char* to, std::uint32_t mantissa, unsigned exponent) {
  char digits[40];
  char* const end = digits + sizeof digits;
  char* begin = end;
  std::uint32_t words[5] = {};
  const std::uint64_t shifted = static_cast<std::uint64_t>(mantissa) << (exponent % 32);
  words[exponent / 32] = static_cast<std::uint32_t>(shifted);
  words[exponent / 32 + 1] = static_cast<std::uint32_t>(shifted >> 32);
  bool more = true;
  while (more) {
    std::uint64_t rest = 0;
    more = false;
    for (int i = 4; i >= 0; --i) {
      rest = (rest << 32) | words[i];
      words[i] = static_cast<std::uint32_t>(rest / 10);
      more = more || words[i] != 0;
      rest %= 10;
    }
    *--begin = static_cast<char>('0' + static_cast<unsigned>(rest));
  }
  const std::size_t length = static_cast<std::size_t>(end - begin);
  std::memcpy(to, begin, length);
  return to + length;
}

// Millionths of mantissa / 2^shift, rounded half to even as printf does.
std::uint64_t millionths(std::uint32_t mantissa, unsigned shift) {
  if (shift >= 64) return 0;
  const std::uint64_t scaled = static_cast<std::uint64_t>(mantissa) * kMillion;
  const std::uint64_t whole = scaled >> shift;
  const std::uint64_t rest = scaled & ((std::uint64_t{1} << shift) - 1);
  const std::uint64_t half = std::uint64_t{1} << (shift - 1);
  return whole + ((rest > half || (rest == half && whole % 2 == 1)) ? 1 : 0);
}

}  // namespace

void BodyWriter::text(const char* text, std::size_t length) {
  if (length <= room()) {
    cursor_ = putText(cursor_, text, length);
  } else {
    cut(text, length);
  }
}

// What does not fit is cut, and counted.
void BodyWriter::cut(const char* text, std::size_t length) {
  const std::size_t fits = room();
  std::memcpy(cursor_, text, fits);
  cursor_ += fits;
  cut_ += length - fits;
}

char* BodyWriter::putDigits(char* to, std::uint64_t value) {
  char* const end = to + digitCount(value);
  decimalBefore(end, value);
  return end;
}

char* BodyWriter::putNegative(char* to, std::int64_t value) {
  *to = '-';
  return putUnsigned(to + 1, 0 - static_cast<std::uint64_t>(value));
}

char* BodyWriter::putHexadecimal(char* to, std::uint64_t value) {
  std::size_t digits = 1;
  while (digits < 16 && (value >> (4 * digits)) != 0) ++digits;
  char* const end = to + digits;
  for (char* digit = end; digit > to; value >>= 4) *--digit = "0123456789abcdef"[value & 15];
  return end;
}

// The sign stands before padding zeros and behind padding blanks.
char* BodyWriter::putPadded(char* to, std::int32_t value, unsigned width, char padding) {
  if (width == 2 && padding == '0' && value >= 0 && value < 100) {
    std::memcpy(to, &kDigitPairs[2 * value], 2);
    return to + 2;
  }
  const bool negative = value < 0;
  const std::uint32_t magnitude = negative ? 0 - static_cast<std::uint32_t>(value) : static_cast<std::uint32_t>(value);
  const std::size_t length = digitCount(magnitude) + (negative ? 1 : 0);
  const std::size_t pads = length < width ? width - length : 0;
  if (negative && padding == '0') *to++ = '-';
  for (std::size_t i = 0; i < pads; ++i) *to++ = padding;
  if (negative && padding != '0') *to++ = '-';
  return putUnsigned(to, magnitude);
}

void BodyWriter::padded(std::int32_t value, unsigned width, char padding) {
  char digits[2 * kMostPadded];
  text(digits, static_cast<std::size_t>(putPadded(digits, value, width, padding) - digits));
}

char* BodyWriter::putFixed(char* to, float value) {
  std::uint32_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  const int biased = static_cast<int>((bits >> kMantissaBits) & 0xFF);
  std::uint32_t mantissa = bits & ((1U << kMantissaBits) - 1);
  if ((bits >> 31) != 0) *to++ = '-';
  if (biased == 0xFF) {
    std::memcpy(to, mantissa == 0 ? "inf" : "nan", 3);
    return to + 3;
  }
  if (biased != 0) mantissa |= 1U << kMantissaBits;
  const int exponent = (biased == 0 ? 1 : biased) - kExponentBias;
  std::uint64_t fraction = 0;
  if (exponent >= 0) {
    to = putLargeInteger(to, mantissa, static_cast<unsigned>(exponent));
  } else {
    const std::uint64_t all = millionths(mantissa, static_cast<unsigned>(-exponent));
    fraction = all % kMillion;
    to = putUnsigned(to, all / kMillion);
  }
  *to++ = '.';
  return putPadded(to, static_cast<std::int32_t>(fraction), 6, '0');
}

}  // namespace kov
