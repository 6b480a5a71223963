// Numbers out of text, at and beyond the limits of their types.
#include "kov_platform/value_text.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cstdlib>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace {

TEST(NumberText, IntegersStopSaturateAndSkipBlanks) {
  const std::pair<std::int32_t, std::vector<const char*>> cases[] = {
      {0, {"0", "0x10", "", "-", "+-1", "- 1", "x1", "\xB2\xE2"}},
      {12, {" \t\n\v\f\r+12", "12 34"}},
      {-12, {"-12abc"}},
      {7, {"0000000000000000000000000007"}},
      {INT32_MAX, {"2147483647", "2147483648", "99999999999999999999999999"}},
      {INT32_MIN, {"-2147483648", "-2147483649", "-99999999999999999999999999"}},
  };
  for (const auto& [expected, texts] : cases) {
    for (const char* text : texts) EXPECT_EQ(kov::intOf(text), expected) << text;
  }
  EXPECT_EQ(kov::intOf(nullptr), 0);
}

TEST(NumberText, ScannersMoveBehindTheNumberOrNotAtAll) {
  bool negative = false;
  std::uint64_t magnitude = 0;
  const char* at = " -18446744073709551615,";
  ASSERT_TRUE(kov::scanDecimal(at, negative, magnitude));
  EXPECT_TRUE(negative);
  EXPECT_EQ(magnitude, UINT64_MAX);
  EXPECT_STREQ(at, ",");

  const std::tuple<const char*, std::uint64_t, const char*> cases[] = {{"0xFFg", 255, "g"},
                                                                       {" +1aB", 0x1AB, ""},
                                                                       {"0x", 0, "x"},
                                                                       {"0xg", 0, "xg"},
                                                                       {"ffffffffffffffff0", UINT64_MAX, ""}};
  for (const auto& [text, expected, rest] : cases) {
    at = text;
    ASSERT_TRUE(kov::scanHexadecimal(at, negative, magnitude)) << text;
    EXPECT_EQ(magnitude, expected) << text;
    EXPECT_STREQ(at, rest) << text;
  }
  std::int32_t value = 7;
  for (const char* text : {"", "  ", " -", "g", ".5"}) {
    at = text;
    EXPECT_FALSE(kov::scanDecimal(at, negative, magnitude)) << text;
    EXPECT_FALSE(kov::scanHexadecimal(at, negative, magnitude)) << text;
    EXPECT_FALSE(kov::scanInt(at, value)) << text;
    EXPECT_EQ(at, text);
  }
  EXPECT_EQ(value, 7);
}

TEST(NumberText, FloatsAgreeWithTheCLibrary) {
  const auto expectSame = [](const std::string& text) {
    float value = 7;
    ASSERT_TRUE(kov::readFloat(text.c_str(), value)) << text;
    EXPECT_EQ(value, std::strtof(text.c_str(), nullptr)) << text;
  };
  std::istringstream words(
      "0 -0.0 1 +3.5 .5 5. 0.1 1e3 1E-3 16777217 3.14159274 123456789.125 0.000123 1e38 3.4028235e38 -3.4028235e38 "
      "1.17549435e-38 1e-45 1e-60 0e999999999999 98765432109876543210123456789 "
      "0.00000000000000000000000000000000000001234567");
  for (std::string text; words >> text;) expectSame(text);
  expectSame(" 7.25 ");
  for (int i = -5000; i < 5000; ++i) expectSame(std::to_string(i / 7.0));
}

TEST(NumberText, FloatsRefuseWhatIsNoFiniteNumber) {
  float value = 7;
  for (const char* text : {"", " ", "-", ".", "e5", "1e", "1e+", "1.5x", "1,5", "nan", "inf", "-Infinity", "0x10",
                           "3.5e38", "-1e39", "1e4294967296", "1e999999999999999999999", "1 2"}) {
    EXPECT_FALSE(kov::readFloat(text, value)) << text;
  }
  EXPECT_FALSE(kov::readFloat((std::string(400, '9')).c_str(), value));
  EXPECT_FALSE(kov::readFloat(nullptr, value));
  EXPECT_EQ(value, 7);
  EXPECT_TRUE(kov::readFloat(("0." + std::string(100'000, '0') + "1e100001").c_str(), value));
  EXPECT_EQ(value, 1);
}

}  // namespace
