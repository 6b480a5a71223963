#include "kov_protocol/nvr_replay.h"

#include "every_message.h"
#include "kov_protocol/replay_control.h"
#include "trials.h"

namespace kov::test {
namespace {

const std::string kType = NVR_REPLAY_MESSAGE_TYPE;

const NoRoundTrip kVedioParam(kType, "3012", "the flags that say which texts are there do not travel");

class NvrReplayTest : public WireTest {};

TEST_F(NvrReplayTest, ControlIsReadIntoItsFields) {
  const std::string control = golden("playback/control.txt");
  EXPECT_EQ(analysed<REPLAY_CONTROL_PARAM>(REPLAY_CONTROL_MESSAGE_TYPE, "0", control).StartPos, 5);
}

TEST_F(NvrReplayTest, AnswersAreReadBeforeQuestions) {
  const std::string both = golden("playback/recordings_query.txt") + golden("playback/recordings.txt");
  EXPECT_STREQ(analysed<NVR_REPLAY_3001_PARAM>(kType, "3001", both).Stream, "110");
}

TEST_F(NvrReplayTest, StreamStartCarriesTheRecordTypeInHexadecimal) {
  EXPECT_EQ(analysed<NVR_REPLAY_3002_PARAM>(kType, "3002", golden("playback/start.txt")).RecType, 255);
  for (const char* odd : {"zz", "1ffffff00"}) {  // no number, and one beyond 32 bits
    const std::string asked = std::string("<REQUEST_PARAM RecType=\"") + odd + "\"/>";
    EXPECT_EQ(analysed<NVR_REPLAY_3002_PARAM>(kType, "3002", asked).RecType, -1);
  }
}

TEST_F(NvrReplayTest, VedioParamWritesTheTextsThatItsFlagsName) {
  NVR_REPLAY_3012_PARAM record;
  set(record.VideoParam, "v");
  set(record.AudioParam, "a");
  EXPECT_EQ(bodyOf(kType, "3012", 0, &record), "");
  EXPECT_EQ(bodyOf(kType, "3012", 1, &record), "<RESPONSE_PARAM\nVideoSeconds=\"-1\"\n/>\n");
  record.ChannelId = 5;
  record.HasVideoParam = 1;
  record.HasAudioParam = 0;
  record.VideoSeconds = 60;
  const std::string body = "<RESPONSE_PARAM\nChannelId=\"5\"\nVideoParam=\"v\"\nVideoSeconds=\"60\"\n/>\n";
  EXPECT_EQ(bodyOf(kType, "3012", 3, &record), body);
  const auto read = analysed<NVR_REPLAY_3012_PARAM>(kType, "3012", body);
  EXPECT_STREQ(read.VideoParam, "v");
  EXPECT_EQ(read.HasVideoParam, -1);
  EXPECT_EQ(analysisCode(kType, "3012", "<REQUEST_PARAM ChannelId=\"5\"/>"), KOV_ERROR_NO_ELEMENT);
}

TEST_F(NvrReplayTest, QueryBySecondReadsTheRequestFirst) {
  const std::string response = golden("playback/seconds.txt");
  const auto read = analysed<NVR_REPLAY_3017_PARAM>(kType, "3017", response);
  EXPECT_STREQ(read.TimeSliceInfo, "s");
  EXPECT_EQ(read.SequenceNumber, 9U);
  const std::string both = response + "<REQUEST_PARAM SequenceNumber=\"-1\"/>";
  EXPECT_EQ(analysed<NVR_REPLAY_3017_PARAM>(kType, "3017", both).SequenceNumber, UINT32_MAX);
}

}  // namespace
}  // namespace kov::test
