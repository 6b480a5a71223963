#include "kov_protocol/replay_control.h"

#include "trials.h"

namespace kov::test {
namespace {

const std::string kType = REPLAY_CONTROL_MESSAGE_TYPE;

class ReplayControlTest : public WireTest {};

TEST_F(ReplayControlTest, UnknownCodesAreToldUnderTwoNames) {
  EXPECT_EQ(analysed<REPLAY_CONTROL_PARAM>(kType, "0", golden("playback/control.txt")).StartPos, 5);
  REPLAY_CONTROL_PARAM record;
  char body[8] = "?";
  void* result = nullptr;
  const std::string composed = "E REPLAY_CONTROL_MESSAGE deal a unknow msg_cdoe : ";
  const std::string analysed = "E SYSTEM_HWCFG_MESSAGE deal a unknow msg_cdoe : ";
  const std::string told = "E ReplayControlMessageAnalysis ";
  constexpr int kUnknown = KOV_ERROR_UNKNOWN_MESSAGE;
  expectTold(
      {{ReplayControlMessageCompose(&record, 0, "13", body, 8), kUnknown, composed + "13\n"},
       {ReplayControlMessageCompose(&record, 0, "-1", body, 8), kUnknown, composed + "-1\n"},
       {analysisCode(kType, "13", ""), kUnknown, analysed + "13\n"},
       {analysisCode(kType, "-1", ""), kUnknown, analysed + "-1\n"},
       {analysisCode(kType, "1", "<RESPONSE_PARAM/>"), KOV_ERROR_NO_ELEMENT, told + "get HardwareConfig error\n"},
       {ReplayControlMessageAnalysis("<a/>", "13", &result), KOV_ERROR_BAD_DOCUMENT, told + "get MESSAGE_BODY error\n"},
       {ReplayControlMessageAnalysis("<a/>", nullptr, &result), KOV_ERROR_EMPTY_ARGUMENT,
        told + "put a empty Param\n"}});
}

}  // namespace
}  // namespace kov::test
