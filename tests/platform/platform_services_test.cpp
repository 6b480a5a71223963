// The build platform's encoders and logger.
#include <gtest/gtest.h>

#include <string>

// The test program may link a logger of its own, so the build platform's is compiled here under other names.
#define KovProtocolLogInfo platformLogInfo
#define KovProtocolLogError platformLogError
#define KovProtocolLogDebug platformLogDebug
#include "../platform/src/log.cpp"

namespace {

TEST(PlatformEncoders, ReverseWhateverTheKeyPointerIs) {
  const std::string text("<A b='1'/>\0\xFF\x80 tail", 18);
  int key = 0;
  int other = 0;
  for (int mode : {0, 1, 7, 2147483647}) {
    std::string wire(18, '\0');
    std::string back(18, '\0');
    EXPECT_EQ(KovProtocolEncode(mode, text.data(), 18, wire.data(), 18, &key), 18);
    EXPECT_EQ(KovProtocolDecode(mode, wire.data(), 18, back.data(), 18, &other), 18);
    EXPECT_EQ(back, text);
    EXPECT_NE(wire, text);
    EXPECT_EQ(P2pProtocolEncode(mode, text.data(), 18, wire.data(), 18), 18);
    EXPECT_EQ(P2pProtocolDecode(0, wire.data(), 18, back.data(), 18), 18);
    EXPECT_EQ(back, text);
    EXPECT_NE(wire, text);
  }
}

TEST(PlatformEncoders, RefuseWhatTheyCannotDo) {
  char out[4] = "abc";
  EXPECT_LT(KovProtocolEncode(1, nullptr, 1, out, 4, nullptr), 0);
  EXPECT_LT(KovProtocolDecode(1, "x", 1, nullptr, 4, nullptr), 0);
  EXPECT_LT(P2pProtocolEncode(0, "x", -1, out, 4), 0);
  EXPECT_LT(P2pProtocolDecode(0, "12345", 5, out, 4), 0);
  EXPECT_LT(KovProtocolEncode(1, "x", 1, out, -1, nullptr), 0);
  EXPECT_STREQ(out, "abc");
  EXPECT_EQ(KovProtocolEncode(1, "1234", 4, out, 4, nullptr), 4);
  EXPECT_EQ(P2pProtocolEncode(0, "", 0, out, 0), 0);
}

std::string logged(const std::string& text) {
  testing::internal::CaptureStderr();
  platformLogError("%s\n", text.c_str());
  return testing::internal::GetCapturedStderr();
}

TEST(PlatformLog, WritesOneBoundedLineWithoutControlBytes) {
  EXPECT_EQ(logged("plain \xD6\xD0"), "plain \xD6\xD0\n");
  EXPECT_EQ(logged("a\nb\r\x1B[31m\x7F"), "a\\x0Ab\\x0D\\x1B[31m\\x7F\n");
  EXPECT_EQ(logged(""), "\n");
  for (std::size_t length = 480; length < 540; ++length) {
    const std::string whole(length, 'x');
    const std::string line = logged(whole);
    EXPECT_LE(line.size(), 512u);
    const bool cut = line.find('.') != std::string::npos;
    const std::string expected = cut ? whole.substr(0, line.size() - 4) + "...\n" : whole + "\n";
    EXPECT_EQ(line, expected);
  }
  EXPECT_EQ(logged(std::string(490, 'x')), std::string(490, 'x') + "\n");
  const std::string escaped = logged(std::string(5000, '\n'));
  EXPECT_LE(escaped.size(), 512u);
  EXPECT_EQ(escaped.substr(escaped.size() - 8), "\\x0A...\n");
}

TEST(PlatformLog, KeepsInformationAndDebuggingToItself) {
  testing::internal::CaptureStderr();
  platformLogInfo("%s\n", "secret");
  platformLogDebug("%s\n", "secret");
  platformLogError(nullptr);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
