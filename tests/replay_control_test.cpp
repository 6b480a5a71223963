#include "kov_protocol/replay_control.h"

#include "every_message.h"
#include "wire.h"

namespace kov::test {
namespace {

const std::string kType = REPLAY_CONTROL_MESSAGE_TYPE;

class ReplayControlTest : public WireTest {};

TEST_F(ReplayControlTest, AllCodesAndDirectionsShareOneBody) {
  REPLAY_CONTROL_PARAM record;
  set(record.FileName, "f");
  record.StartPos = 5;
  const std::string body = "<REQUEST_PARAM\nFileName=\"f\"\nStartPos=\"5\"\nPlayParam=\"-1\"\n/>\n";
  for (const char* code : {"0", "12", "abc"}) {
    for (const int direction : {0, 1}) EXPECT_EQ(bodyOf(kType, code, direction, &record), body);
    EXPECT_EQ(analysed<REPLAY_CONTROL_PARAM>(kType, code, body).StartPos, 5);
  }
  EXPECT_EQ(analysisCode(kType, "1", "<RESPONSE_PARAM/>"), KOV_ERROR_NO_ELEMENT);
  EXPECT_EQ(failures(), std::vector<std::string>{"E ReplayControlMessageAnalysis get HardwareConfig error\n"});
}

TEST_F(ReplayControlTest, UnknownCodesAreToldUnderTwoNames) {
  REPLAY_CONTROL_PARAM record;
  char body[8] = "?";
  void* result = nullptr;
  std::vector<std::string> expected;
  for (const std::string code : {"13", "-1"}) {
    EXPECT_EQ(ReplayControlMessageCompose(&record, 0, code.c_str(), body, 8), KOV_ERROR_UNKNOWN_MESSAGE);
    EXPECT_EQ(analysisCode(kType, code, ""), KOV_ERROR_UNKNOWN_MESSAGE);
    expected.push_back("E REPLAY_CONTROL_MESSAGE deal a unknow msg_cdoe : " + code + "\n");
    expected.push_back("E SYSTEM_HWCFG_MESSAGE deal a unknow msg_cdoe : " + code + "\n");
  }
  EXPECT_EQ(ReplayControlMessageAnalysis("<a/>", "13", &result), KOV_ERROR_BAD_DOCUMENT);
  EXPECT_EQ(ReplayControlMessageAnalysis("<a/>", nullptr, &result), KOV_ERROR_EMPTY_ARGUMENT);
  expected.push_back("E ReplayControlMessageAnalysis get MESSAGE_BODY error\n");
  expected.push_back("E ReplayControlMessageAnalysis put a empty Param\n");
  EXPECT_EQ(failures(), expected);
}

}  // namespace
}  // namespace kov::test
