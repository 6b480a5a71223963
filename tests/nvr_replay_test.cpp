#include "kov_protocol/nvr_replay.h"

#include "every_message.h"
#include "wire.h"

namespace kov::test {
namespace {

const std::string kType = NVR_REPLAY_MESSAGE_TYPE;

const NoRoundTrip kVedioParam(kType, "3012", "the flags that say which texts are there do not travel");

class NvrReplayTest : public WireTest {};

TEST_F(NvrReplayTest, RecordingQueryAsksAndAnswersByDay) {
  NVR_REPLAY_3001_PARAM record;
  record.ChannelId = 3;
  set(record.Time, "2026-11-21");
  set(record.Stream, "110");
  const std::string request = "<REQUEST_PARAM\nChannelId=\"3\"\nTime=\"2026-11-21\"\n/>\n";
  const std::string response = "<RESPONSE_PARAM\nStream=\"110\"\nChannelId=\"3\"\nTime=\"2026-11-21\"\n/>\n";
  EXPECT_EQ(bodyOf(kType, "3001", 1, &record), response);
  EXPECT_EQ(bodyOf(kType, "3001", 3, &record), response);
  for (const int direction : {0, 2, -1, 4}) EXPECT_EQ(bodyOf(kType, "3001", direction, &record), request);

  const auto asked = analysed<NVR_REPLAY_3001_PARAM>(kType, "3001", request);
  EXPECT_EQ(asked.ChannelId, 3);
  EXPECT_STREQ(asked.Time, "2026-11-21");
  EXPECT_STREQ(asked.Stream, "");
  EXPECT_STREQ(analysed<NVR_REPLAY_3001_PARAM>(kType, "3001", request + response).Stream, "110");
}

TEST_F(NvrReplayTest, StreamStartCarriesTheRecordTypeInHexadecimal) {
  NVR_REPLAY_3002_PARAM record;
  record.ChannelId = 1;
  set(record.Time, "t");
  EXPECT_EQ(bodyOf(kType, "3002", 0, &record), "<REQUEST_PARAM\nChannelId=\"1\"\nTime=\"t\"\n/>\n");
  record.RecType = 255;
  record.AudioEnable = 0;
  const std::string body = "<REQUEST_PARAM\nChannelId=\"1\"\nTime=\"t\"\nRecType=\"ff\"\nAudioEnable=\"0\"\n/>\n";
  EXPECT_EQ(bodyOf(kType, "3013", 2, &record), body);
  EXPECT_EQ(bodyOf(kType, "3002", 7, &record), "<RESPONSE_PARAM\nChannelId=\"1\"\n/>\n");
  const auto read = analysed<NVR_REPLAY_3002_PARAM>(kType, "3002", body);
  EXPECT_EQ(read.RecType, 255);
  EXPECT_EQ(read.AudioEnable, 0);
  for (const char* odd : {"zz", "1ffffff00"}) {  // no number, and one beyond 32 bits
    const std::string asked = std::string("<REQUEST_PARAM RecType=\"") + odd + "\"/>";
    EXPECT_EQ(analysed<NVR_REPLAY_3002_PARAM>(kType, "3002", asked).RecType, -1);
  }
}

TEST_F(NvrReplayTest, ControlSpeedAndJump) {
  NVR_REPLAY_3004_PARAM speed;
  speed.ChannelId = 2;
  EXPECT_EQ(bodyOf(kType, "3007", 0, &speed), "<REQUEST_PARAM\nChannelId=\"2\"\n/>\n");
  speed.Speed = 4;
  speed.FrameType = 1;
  EXPECT_EQ(bodyOf(kType, "3004", 0, &speed), "<REQUEST_PARAM\nFrameType=\"1\"\nChannelId=\"2\"\nSpeed=\"4\"\n/>\n");
  EXPECT_EQ(bodyOf(kType, "3008", 1, &speed), "<RESPONSE_PARAM\nChannelId=\"2\"\nSpeed=\"4\"\n/>\n");

  NVR_REPLAY_3010_PARAM jump;
  jump.ChannelId = 2;
  set(jump.Time, "t");
  EXPECT_EQ(bodyOf(kType, "3010", 9, &jump), "<REQUEST_PARAM\nTime=\"t\"\nChannelId=\"2\"\n/>\n");
  EXPECT_EQ(bodyOf(kType, "3010", 1, &jump), "<RESPONSE_PARAM\nChannelId=\"2\"\n/>\n");
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

TEST_F(NvrReplayTest, QueryBySecondTellsPacketsAndReadsTheRequestFirst) {
  NVR_REPLAY_3017_PARAM record;
  set(record.Time, "t");
  record.ChannelId = 1;
  record.TotalPacketNum = 2;
  record.CurrentPacket = 0;
  set(record.TimeSliceInfo, "s");
  EXPECT_EQ(bodyOf(kType, "3017", 2, &record),
            "<REQUEST_PARAM\nChannelId=\"1\"\nTime=\"t\"\nSequenceNumber=\"-1\"\n/>\n");
  record.SequenceNumber = 9;
  const std::string body =
      "<RESPONSE_PARAM\nChannelId=\"1\"\nTime=\"t\"\nTotalPacketNum=\"2\"\nCurrentPacket=\"0\"\nSequenceNumber=\"9\"\n"
      "/>\n<TIMECLICE_PARAM\nTimeSliceInfo=\"s\"\n/>\n";
  EXPECT_EQ(bodyOf(kType, "3017", 4, &record), body);
  const auto read = analysed<NVR_REPLAY_3017_PARAM>(kType, "3017", body);
  EXPECT_STREQ(read.TimeSliceInfo, "s");
  EXPECT_EQ(read.SequenceNumber, 9U);
  const std::string both = body + "<REQUEST_PARAM SequenceNumber=\"-1\"/>";
  EXPECT_EQ(analysed<NVR_REPLAY_3017_PARAM>(kType, "3017", both).SequenceNumber, UINT32_MAX);
}

TEST_F(NvrReplayTest, UnknownCodesAreToldUnderTheLiveStreamsName) {
  char body[8] = "?";
  void* result = nullptr;
  const std::string xml = received(kType, "3018", "");
  for (const char* code : {"3018", "3000", "abc", "4294970297"}) {
    resetPlatform();
    EXPECT_EQ(NvrReplayMessageCompose("", 0, code, body, sizeof body), KOV_ERROR_UNKNOWN_MESSAGE);
    EXPECT_EQ(NvrReplayMessageAnalysis(xml.c_str(), code, &result), KOV_ERROR_UNKNOWN_MESSAGE);
    const std::string line = std::string("E LIVE_STREAM_MESSAGE deal a unknow Msg_code:") + code + " !!!\n";
    EXPECT_EQ(logLines(), (std::vector<std::string>{line, line}));
  }
  EXPECT_STREQ(body, "?");
  EXPECT_EQ(result, nullptr);
}

TEST_F(NvrReplayTest, DispatchersRefuseEmptyArguments) {
  char body[8] = "?";
  void* result = nullptr;
  NVR_REPLAY_3001_PARAM record;
  const std::string line = "E NVR_REPLAY_MESSAGE put a empty Param\n";
  EXPECT_EQ(NvrReplayMessageCompose(&record, 0, "3001", nullptr, 8), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(NvrReplayMessageCompose(&record, 0, "3001", body, 0), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(NvrReplayMessageCompose(&record, 0, nullptr, body, 8), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(NvrReplayMessageAnalysis(nullptr, "3001", &result), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(NvrReplayMessageAnalysis("", nullptr, &result), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(NvrReplayMessageAnalysis("", "3001", nullptr), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(logLines(), std::vector<std::string>(6, line));
  EXPECT_EQ(NvrReplayMessageCompose(nullptr, 0, "9999", body, 8), 0);
  EXPECT_STREQ(body, "?");
}

}  // namespace
}  // namespace kov::test
