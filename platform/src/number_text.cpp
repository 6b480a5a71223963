/**
 * @file number_text.cpp
 * @brief Numbers out of received text.
 */
#include "kov_platform/number_text.h"

#include <cfloat>
#include <limits>

namespace kov {
namespace {

constexpr std::uint64_t kMaxMagnitude = std::numeric_limits<std::uint64_t>::max();

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/** The value of a digit of any base up to 16, or 16. */
unsigned digitOf(char c) {
  if (isDigit(c)) return static_cast<unsigned>(c - '0');
  if (c >= 'a' && c <= 'f') return static_cast<unsigned>(c - 'a') + 10;
  if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A') + 10;
  return 16;
}

/** Skips blanks and one sign; true for a minus. */
bool skipSign(const char*& at) {
  while (isBlank(*at)) ++at;
  const bool negative = *at == '-';
  if (negative || *at == '+') ++at;
  return negative;
}

/** Reads the digits at `at`, saturating; false when there is none. */
template <unsigned kBase>
bool scanDigits(const char*& at, std::uint64_t& magnitude) {
  constexpr std::uint64_t kLastSafe = kMaxMagnitude / kBase;
  constexpr unsigned kLastDigit = kMaxMagnitude % kBase;
  unsigned digit = digitOf(*at);
  if (digit >= kBase) return false;
  std::uint64_t sum = 0;
  for (; digit < kBase; digit = digitOf(*++at)) {
    const bool fits = sum < kLastSafe || (sum == kLastSafe && digit <= kLastDigit);
    sum = fits ? sum * kBase + digit : kMaxMagnitude;
  }
  magnitude = sum;
  return true;
}

/** The decimal digits of a number without its sign, before the conversion. */
struct Decimal {
  std::uint64_t digits = 0;  ///< at most 19 significant ones; more cannot change a float
  int exponent = 0;          ///< power of ten of the last of them
  bool any = false;

  void append(char c, bool behindPoint) {
    constexpr std::uint64_t kNineteenDigits = 1'000'000'000'000'000'000u;
    any = true;
    if (digits < kNineteenDigits) {
      digits = digits * 10 + static_cast<unsigned>(c - '0');
      if (behindPoint) --exponent;
    } else if (!behindPoint) {
      ++exponent;
    }
  }
};

/** Reads an exponent part, saturated; false when it has no digit. Without one nothing is read. */
bool scanExponent(const char*& at, int& exponent) {
  constexpr std::uint64_t kLimit = 100'000'000;
  if (*at != 'e' && *at != 'E') return true;
  ++at;
  const bool negative = *at == '-';
  if (negative || *at == '+') ++at;
  std::uint64_t magnitude = 0;
  if (!scanDigits<10>(at, magnitude)) return false;
  const int power = static_cast<int>(magnitude < kLimit ? magnitude : kLimit);
  exponent += negative ? -power : power;
  return true;
}

/** digits x 10^exponent, for exponents that leave a float finite and not zero. */
double scaled(std::uint64_t digits, int exponent) {
  constexpr double kPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  constexpr int kTop = 22;  // the largest power of ten that a double holds exactly
  auto value = static_cast<double>(digits);
  for (; exponent > kTop; exponent -= kTop) value *= kPowers[kTop];
  for (; exponent < -kTop; exponent += kTop) value /= kPowers[kTop];
  return exponent < 0 ? value / kPowers[-exponent] : value * kPowers[exponent];
}

/** Converts without its sign; false when the number is beyond the range of a float. */
bool toFloat(const Decimal& decimal, float& value) {
  constexpr int kVanishes = -100;  // below any float, whatever the digits
  constexpr int kOverflows = 39;
  constexpr double kRoundsUp = 3.4028235677973366e38;  // halfway from the largest float to where the next would be
  value = 0;
  if (decimal.digits == 0 || decimal.exponent < kVanishes) return true;
  if (decimal.exponent > kOverflows) return false;
  const double wide = scaled(decimal.digits, decimal.exponent);
  if (wide >= kRoundsUp) return false;
  value = wide > static_cast<double>(FLT_MAX) ? FLT_MAX : static_cast<float>(wide);
  return true;
}

}  // namespace

bool scanDecimal(const char*& text, bool& negative, std::uint64_t& magnitude) noexcept {
  if (text == nullptr) return false;
  const char* at = text;
  const bool minus = skipSign(at);
  if (!scanDigits<10>(at, magnitude)) return false;
  negative = minus;
  text = at;
  return true;
}

bool scanHexadecimal(const char*& text, bool& negative, std::uint64_t& magnitude) noexcept {
  if (text == nullptr) return false;
  const char* at = text;
  const bool minus = skipSign(at);
  const bool prefixed = at[0] == '0' && (at[1] == 'x' || at[1] == 'X') && digitOf(at[2]) < 16;
  if (prefixed) at += 2;
  if (!scanDigits<16>(at, magnitude)) return false;
  negative = minus;
  text = at;
  return true;
}

bool scanInt(const char*& text, std::int32_t& value) noexcept {
  constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();
  constexpr auto kLimit = static_cast<std::uint64_t>(kLargest);
  bool negative = false;
  std::uint64_t magnitude = 0;
  if (!scanDecimal(text, negative, magnitude)) return false;
  if (magnitude > kLimit) {
    value = negative ? kSmallest : kLargest;
  } else {
    value = static_cast<std::int32_t>(magnitude);
    if (negative) value = -value;
  }
  return true;
}

std::int32_t intOf(const char* text) noexcept {
  std::int32_t value = 0;
  return scanInt(text, value) ? value : 0;
}

bool floatOf(const char* text, float& value) noexcept {
  if (text == nullptr) return false;
  const bool negative = skipSign(text);
  Decimal decimal;
  for (; isDigit(*text); ++text) decimal.append(*text, false);
  if (*text == '.') {
    for (++text; isDigit(*text); ++text) decimal.append(*text, true);
  }
  if (!decimal.any || !scanExponent(text, decimal.exponent)) return false;
  while (isBlank(*text)) ++text;
  float read = 0;
  if (*text != '\0' || !toFloat(decimal, read)) return false;
  value = negative ? -read : read;
  return true;
}

}  // namespace kov
