#include "core/number_text.h"

namespace kov {
namespace {

// A number is turned into a fixed-point fraction whose whole part is its first pair of digits; each multiplication of
// the rest by 100 brings the next pair up. With this many bits no 32-bit number gets a wrong digit.
constexpr unsigned kFractionBits = 57;
constexpr std::uint64_t kOne = std::uint64_t{1} << kFractionBits;

// One in the place of the last pair, for numbers of one pair, two, and so on; rounded up.
constexpr std::uint64_t kPairUnits[] = {kOne, kOne / 100 + 1, kOne / 10'000 + 1, kOne / 1'000'000 + 1,
                                        kOne / 100'000'000 + 1};

constexpr unsigned kMantissaBits = 23;
constexpr int kExponentBias = 127 + static_cast<int>(kMantissaBits);
constexpr std::uint32_t kMillion = 1'000'000;
constexpr std::uint32_t kBillion = 1'000'000'000;

// A number below a billion, with all of its nine digits. The byte before them is written and put back.
char* putNineDigits(char* to, std::uint32_t value) {
  const char before = to[-1];
  char* const end = putLarge(to - 1, kBillion + value);
  to[-1] = before;
  return end;
}

// The exact decimal digits of mantissa * 2^exponent, which may need 128 bits: repeated division by a billion.
char* putLargeInteger(char* to, std::uint32_t mantissa, unsigned exponent) {
  std::uint32_t words[5] = {};
  const std::uint64_t shifted = static_cast<std::uint64_t>(mantissa) << (exponent % 32);
  words[exponent / 32] = static_cast<std::uint32_t>(shifted);
  words[exponent / 32 + 1] = static_cast<std::uint32_t>(shifted >> 32);
  std::uint32_t parts[5] = {};  // of nine digits, the last one first
  unsigned count = 0;
  for (bool more = true; more; ++count) {
    std::uint64_t rest = 0;
    more = false;
    for (int i = 4; i >= 0; --i) {
      rest = (rest << 32) | words[i];
      words[i] = static_cast<std::uint32_t>(rest / kBillion);
      more = more || words[i] != 0;
      rest %= kBillion;
    }
    parts[count] = static_cast<std::uint32_t>(rest);
  }
  to = putUnsigned(to, parts[--count]);
  while (count > 0) to = putNineDigits(to, parts[--count]);
  return to;
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

char* putLarge(char* to, std::uint32_t value) {
  const unsigned morePairs =
      1U + (value >= 10'000 ? 1 : 0) + (value >= 1'000'000 ? 1 : 0) + (value >= 100'000'000 ? 1 : 0);
  std::uint64_t number = value * kPairUnits[morePairs];
  to = putSmall(to, static_cast<std::uint32_t>(number >> kFractionBits));
  for (unsigned i = 0; i < morePairs; ++i, to += 2) {
    number = (number & (kOne - 1)) * 100;
    std::memcpy(to, &kDigitPairs[2 * (number >> kFractionBits)], 2);
  }
  return to;
}

char* putUnsigned(char* to, std::uint64_t value) {
  const auto belowBillion = [](std::uint64_t part) { return static_cast<std::uint32_t>(part % kBillion); };
  if (value <= UINT32_MAX) return putUnsigned(to, static_cast<std::uint32_t>(value));
  const std::uint64_t upper = value / kBillion;
  if (upper < kBillion) return putNineDigits(putUnsigned(to, belowBillion(upper)), belowBillion(value));
  to = putUnsigned(to, static_cast<std::uint32_t>(upper / kBillion));
  return putNineDigits(putNineDigits(to, belowBillion(upper)), belowBillion(value));
}

char* putDecimal(char* to, std::int64_t value) {
  const auto magnitude = static_cast<std::uint64_t>(value);
  *to = '-';
  return value < 0 ? putUnsigned(to + 1, 0 - magnitude) : putUnsigned(to, magnitude);
}

char* putHexadecimal(char* to, std::uint64_t value) {
  std::size_t digits = 1;
  while (digits < 16 && (value >> (4 * digits)) != 0) ++digits;
  char* const end = to + digits;
  for (char* digit = end; digit > to; value >>= 4) *--digit = "0123456789abcdef"[value & 15];
  return end;
}

char* putFixed(char* to, float value) {
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
  std::uint32_t fraction = 0;
  if (exponent >= 0) {
    to = putLargeInteger(to, mantissa, static_cast<unsigned>(exponent));
  } else {
    const std::uint64_t all = millionths(mantissa, static_cast<unsigned>(-exponent));
    fraction = static_cast<std::uint32_t>(all % kMillion);
    to = putUnsigned(to, all / kMillion);
  }
  // Six digits, and before them a one in the place of the point.
  char* const end = putLarge(to, kMillion + fraction);
  *to = '.';
  return end;
}

}  // namespace kov
