/**
 * @file value_text.cpp
 * @brief Values out of received text.
 */
#include "kov_platform/value_text.h"

#include <cfloat>
#include <cstring>
#include <limits>

#include "kov_platform/bytes.h"

namespace kov {
namespace {

constexpr std::uint64_t kMaxMagnitude = std::numeric_limits<std::uint64_t>::max();

bool isDigit(char c) { return static_cast<unsigned char>(c) - unsigned{'0'} < 10; }

/** The value of a digit of that base, or a larger number. */
template <unsigned kBase>
unsigned digitOf(char c) {
  const unsigned decimal = static_cast<unsigned char>(c) - unsigned{'0'};
  if (kBase == 10 || decimal < 10) return decimal;
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
  const char* const first = at;
  std::uint64_t sum = 0;
  for (unsigned digit; (digit = digitOf<kBase>(*at)) < kBase; ++at) {
    const bool fits = sum < kLastSafe || (sum == kLastSafe && digit <= kLastDigit);
    sum = fits ? sum * kBase + digit : kMaxMagnitude;
  }
  magnitude = sum;
  return at != first;
}

/**
 * Reads one to nine digits, perhaps behind a minus sign, as nearly all numbers are. Null, and nothing read, for a
 * number that takes the general scan.
 */
inline const char* scanShort(const char* text, std::int32_t& value) {
  constexpr int kMostDigits = 9;
  const bool negative = *text == '-';
  if (negative) ++text;
  std::uint32_t digit = digitOf<10>(*text);
  if (digit > 9) return nullptr;
  std::uint32_t sum = 0;
  const char* const end = text + kMostDigits;
  do {
    if (text == end) return nullptr;
    sum = sum * 10 + digit;
    digit = digitOf<10>(*++text);
  } while (digit <= 9);
  value = static_cast<std::int32_t>(negative ? 0 - sum : sum);
  return text;
}

template <typename Unsigned>
bool readModulo(const char* text, Unsigned& value) {
  constexpr std::uint64_t kLargest = std::numeric_limits<Unsigned>::max();
  if (text == nullptr) return false;
  std::int32_t little = 0;
  if (scanShort(text, little) != nullptr) {
    value = static_cast<Unsigned>(little);
    return true;
  }
  bool negative = false;
  std::uint64_t magnitude = 0;
  if (!scanDecimal(text, negative, magnitude)) return false;
  const auto saturated = static_cast<Unsigned>(magnitude < kLargest ? magnitude : kLargest);
  value = negative ? static_cast<Unsigned>(0 - saturated) : saturated;
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
  const bool prefixed = at[0] == '0' && (at[1] == 'x' || at[1] == 'X') && digitOf<16>(at[2]) < 16;
  if (prefixed) at += 2;
  if (!scanDigits<16>(at, magnitude)) return false;
  negative = minus;
  text = at;
  return true;
}

bool scanInt(const char*& text, std::int32_t& value) noexcept {
  constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();
  if (text == nullptr) return false;
  if (const char* const behind = scanShort(text, value)) {
    text = behind;
    return true;
  }
  bool negative = false;
  std::uint64_t magnitude = 0;
  if (!scanDecimal(text, negative, magnitude)) return false;
  if (magnitude > static_cast<std::uint64_t>(kLargest)) {
    value = negative ? kSmallest : kLargest;
  } else {
    value = static_cast<std::int32_t>(magnitude);
    if (negative) value = -value;
  }
  return true;
}

std::int32_t intOf(const char* text) noexcept {
  std::int32_t value = 0;
  scanInt(text, value);
  return value;
}

bool readInt(const char* text, std::int32_t& value) noexcept { return scanInt(text, value); }

bool readUnsigned(const char* text, std::uint32_t& value) noexcept { return readModulo(text, value); }
bool readUnsigned(const char* text, std::uint64_t& value) noexcept { return readModulo(text, value); }

bool readByte(const char* text, std::uint8_t& value) noexcept {
  std::int32_t read = 0;
  if (!readInt(text, read) || read < 0 || read > UINT8_MAX) return false;
  value = static_cast<std::uint8_t>(read);
  return true;
}

bool readFloat(const char* text, float& value) noexcept {
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

bool readText(const char* text, char* field, std::size_t size) noexcept {
  if (text == nullptr) return false;
  *putText(field, text, boundedLength(text, size - 1)) = '\0';
  return true;
}

}  // namespace kov
