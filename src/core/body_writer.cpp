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

constexpr unsigned kMantissaBits = 23;
constexpr int kExponentBias = 127 + static_cast<int>(kMantissaBits);
constexpr std::uint32_t kMillion = 1000000;

// The exact decimal digits of mantissa * 2^exponent, which may need 128 bits: repeated division by ten.
char* largeIntegerBefore(char* end, std::uint32_t mantissa, unsigned exponent) {
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
    *--end = static_cast<char>('0' + static_cast<unsigned>(rest));
  }
  return end;
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

// What does not fit is cut, and counted.
void BodyWriter::cut(const char* text, std::size_t length) {
  const std::size_t fits = room();
  std::memcpy(cursor_, text, fits);
  cursor_ += fits;
  cut_ += length - fits;
}

char* BodyWriter::putUnsigned(char* to, std::uint64_t value) {
  if (value < 10) {
    *to = static_cast<char>('0' + value);
    return to + 1;
  }
  char digits[kMostDigits];
  char* const end = digits + sizeof digits;
  const char* const begin = decimalBefore(end, value);
  const std::size_t length = static_cast<std::size_t>(end - begin);
  copyShort(to, begin, length);
  return to + length;
}

char* BodyWriter::putDecimal(char* to, std::int64_t value) {
  if (value >= 0) return putUnsigned(to, static_cast<std::uint64_t>(value));
  *to = '-';
  return putUnsigned(to + 1, 0 - static_cast<std::uint64_t>(value));
}

void BodyWriter::decimal(std::int64_t value) {
  char digits[kMostDigits];
  text(digits, static_cast<std::size_t>(putDecimal(digits, value) - digits));
}

void BodyWriter::unsignedDecimal(std::uint64_t value) {
  char digits[kMostDigits];
  text(digits, static_cast<std::size_t>(putUnsigned(digits, value) - digits));
}

void BodyWriter::hexadecimal(std::uint64_t value) {
  char digits[16];
  char* const end = digits + sizeof digits;
  char* begin = end;
  do {
    *--begin = "0123456789abcdef"[value & 15];
    value >>= 4;
  } while (value != 0);
  text(begin, static_cast<std::size_t>(end - begin));
}

void BodyWriter::padded(std::int32_t value, unsigned width, char padding) {
  char digits[12];
  char* const end = digits + sizeof digits;
  const bool negative = value < 0;
  const std::uint32_t magnitude = negative ? 0 - static_cast<std::uint32_t>(value) : static_cast<std::uint32_t>(value);
  char* begin = digitsBefore(end, magnitude);
  // The sign stands before padding zeros and behind padding blanks.
  if (negative && padding != '0') *--begin = '-';
  const unsigned sign = negative && padding == '0' ? 1 : 0;
  while (static_cast<unsigned>(end - begin) + sign < width) *--begin = padding;
  if (sign != 0) *--begin = '-';
  text(begin, static_cast<std::size_t>(end - begin));
}

void BodyWriter::fixed(float value) {
  std::uint32_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  const int biased = static_cast<int>((bits >> kMantissaBits) & 0xFF);
  std::uint32_t mantissa = bits & ((1U << kMantissaBits) - 1);
  if ((bits >> 31) != 0) character('-');
  if (biased == 0xFF) {
    text(mantissa == 0 ? "inf" : "nan", 3);
    return;
  }
  if (biased != 0) mantissa |= 1U << kMantissaBits;
  const int exponent = (biased == 0 ? 1 : biased) - kExponentBias;
  char digits[48];
  char* const end = digits + sizeof digits;
  char* begin = nullptr;
  std::uint64_t fraction = 0;
  if (exponent >= 0) {
    begin = largeIntegerBefore(end, mantissa, static_cast<unsigned>(exponent));
  } else {
    const std::uint64_t all = millionths(mantissa, static_cast<unsigned>(-exponent));
    fraction = all % kMillion;
    begin = digitsBefore(end, all / kMillion);
  }
  text(begin, static_cast<std::size_t>(end - begin));
  character('.');
  padded(static_cast<std::int32_t>(fraction), 6, '0');
}

}  // namespace kov
