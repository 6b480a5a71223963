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
  expectTold(
      "playback/control_calls",
      {ReplayControlMessageCompose(&record, 0, "13", body, 8), ReplayControlMessageCompose(&record, 0, "-1", body, 8),
       analysisCode(kType, "13", ""), analysisCode(kType, "-1", ""), analysisCode(kType, "1", "<RESPONSE_PARAM/>"),
       ReplayControlMessageAnalysis("<a/>", "13", &result), ReplayControlMessageAnalysis("<a/>", nullptr, &result)});
}

}  // namespace
}  // namespace kov::test
