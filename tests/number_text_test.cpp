#include "core/number_text.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <string>

namespace kov {
namespace {

std::string formatted(const char* format, ...) {
  char text[100];
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(text, sizeof text, format, arguments);
  va_end(arguments);
  return text;
}

template <class Put, class... Arguments>
std::string written(Put put, Arguments... arguments) {
  char text[100];
  return std::string(text, static_cast<std::size_t>(put(text, arguments...) - text));
}

void checkInt(int value) {
  EXPECT_EQ(written([](char* to, int v) { return putDecimal(to, v); }, value), formatted("%d", value));
  EXPECT_EQ(written(putTwoPlaces, value, '0'), formatted("%02d", value));
  EXPECT_EQ(written(putTwoPlaces, value, ' '), formatted("%2d", value));
  EXPECT_EQ(written(putTwoPlaces, value, '\0'), formatted("%d", value));
}

void checkWide(unsigned long long value) {
  EXPECT_EQ(written([](char* to, std::uint64_t v) { return putUnsigned(to, v); }, value), formatted("%llu", value));
  EXPECT_EQ(written([](char* to, std::int64_t v) { return putDecimal(to, v); }, static_cast<long long>(value)),
            formatted("%lld", value));
  EXPECT_EQ(written(putHexadecimal, value), formatted("%llx", value));
}

TEST(NumberTextTest, IntegersReadAsPrintfWritesThem) {
  for (const int value : {0, 9, 10, 99, 100, 101, -1, -10, 12345, INT_MAX, INT_MIN}) checkInt(value);
  for (const unsigned long long value : {0ULL, 255ULL, 4294967296ULL, ULLONG_MAX}) checkWide(value);
  for (unsigned long long power = 10; power <= ULLONG_MAX / 10; power *= 10) {
    checkWide(power - 1);
    checkWide(power);
  }
  for (std::uint32_t value = 1; value < UINT32_MAX / 3; value = value * 3 + 1) {
    checkInt(static_cast<int>(value));
    checkInt(-static_cast<int>(value));
    checkWide(std::uint64_t{value} * value);
  }
}

TEST(NumberTextTest, FloatsReadAsPrintfWritesThem) {
  const auto check = [](float value) {
    char buffer[100];
    *putFixed(buffer, value) = '\0';
    EXPECT_EQ(std::string(buffer), formatted("%f", static_cast<double>(value)));
  };
  for (const float value : {0.0F,        -0.0F,       1.0F,    -1.0F,      0.5F,        0.1F,     97.25F,    1e-6F,
                            5e-7F,       4.9e-7F,     1.5e-6F, 2.5e-6F,    1e-30F,      FLT_MIN,  FLT_MAX,   -FLT_MAX,
                            16777216.0F, 33554434.0F, 1e10F,   0.9999999F, 0.99999994F, INFINITY, -INFINITY, NAN}) {
    check(value);
  }
  std::uint32_t bits = 12345;
  for (int i = 0; i < 20000; ++i) {
    bits = bits * 1664525 + 1013904223;
    float value = 0;
    std::memcpy(&value, &bits, sizeof value);
    if (!std::isnan(value)) check(value);
  }
}

}  // namespace
}  // namespace kov
