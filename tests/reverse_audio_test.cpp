#include "kov_protocol/reverse_audio.h"

#include <cstring>

#include "every_message.h"
#include "wire.h"

namespace kov::test {
namespace {

using Start = REVERSE_AUDIO_CMD_RA_START_PARAM;
using Stop = REVERSE_AUDIO_CMD_RA_STOP_PARAM;

const std::string kType = REVERSE_AUDIO_MESSAGE_TYPE;
const AlsoTested kStart({kType, "544", kRecordType<Start>});
const AlsoTested kStop({kType, "CMD_RA_STOP", kRecordType<Stop>});

class ReverseAudioTest : public WireTest {};

TEST_F(ReverseAudioTest, StartNamesTheFormatDifferentlyInTheAnswer) {
  Start record = {1, 2, 8000, 0, "G711", "", 16, 5004};
  const std::string answer =
      "<RA_START_RESPONSE\nRTPRecvPort=\"5004\"\nAudioCodec=\"G711\"\nSamplerate=\"8000\"\nBitsPerSample=\"16\"\n"
      "Channels=\"1\"\nConnectionType=\"2\"/>\n";
  for (const int direction : {1, -1}) EXPECT_EQ(bodyOf(kType, "544", direction, &record), answer);
  set(record.Sessionid, "s");
  const std::string request =
      "<RA_START_PARAM\nSessionid=\"s\"\nAudioForamt=\"G711\"\nChannels=\"1\"\nSampleRate=\"8000\"\nBitrate=\"16\"\n"
      "RTPSendPort=\"5004\"\nConnectType=\"2\"\n/>\n";
  EXPECT_EQ(bodyOf(kType, "CMD_RA_START", 2, &record), request);
  auto read = analysed<Start>(kType, "CMD_RA_START", answer + request);
  EXPECT_EQ(std::memcmp(&read, &record, sizeof read), 0);

  read = analysed<Start>(kType, "544", answer);
  record.Sessionid[0] = '\0';
  record.SampleRate = -1;  // lost: it is read under another spelling than it is written
  EXPECT_EQ(std::memcmp(&read, &record, sizeof read), 0);
  EXPECT_EQ(analysed<Start>(kType, "544", "<RA_START_RESPONSE SampleRate=\"7\"/>").SampleRate, 7);
}

TEST_F(ReverseAudioTest, StopNamesItsSession) {
  Stop record;
  EXPECT_EQ(bodyOf(kType, "545", 0, &record), "");
  std::memset(record.Sessionid, 's', sizeof record.Sessionid);
  const std::string session(64, 's');
  EXPECT_EQ(bodyOf(kType, "CMD_RA_STOP", 2, &record), "<RA_STOP_PARAM\nSessionid=\"" + session + "\"\n/>\n");
  for (const int direction : {1, 4}) EXPECT_EQ(bodyOf(kType, "545", direction, &record), "");
  const auto read = analysed<Stop>(kType, "545", "<RA_STOP_PARAM Sessionid=\"" + session + "more\"/>");
  EXPECT_EQ(std::memcmp(&read, &record, sizeof read), 0);
}

TEST_F(ReverseAudioTest, AnalysisTellsTheDocumentBeforeTheCode) {
  void* result = nullptr;
  EXPECT_EQ(ReverseAudioMessageAnalysis("<a>", "no", &result), KOV_ERROR_BAD_DOCUMENT);  // silent
  EXPECT_EQ(ReverseAudioMessageAnalysis("<a/>", "no", &result), KOV_ERROR_NO_ELEMENT);
  EXPECT_EQ(ReverseAudioMessageAnalysis("<a><MESSAGE_BODY/></a>", "546", &result), KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(ReverseAudioMessageAnalysis("<a><MESSAGE_BODY/></a>", "545", &result), KOV_ERROR_NO_ELEMENT);
  EXPECT_EQ(ReverseAudioMessageAnalysis("<a><MESSAGE_BODY/></a>", "544", &result), KOV_ERROR_NO_ELEMENT);
  EXPECT_EQ(ReverseAudioMessageAnalysis("<a/>", nullptr, &result), KOV_ERROR_EMPTY_ARGUMENT);
  const std::string missing = "E LiveStreamCmdStartMessageAnalysis get STREAM_START_PARAM error\n";
  EXPECT_EQ(logLines(),
            (std::vector<std::string>{"E ReverseAudioMessageAnalysis get MESSAGE_BODY error\n",
                                      "E ReverseAudioMessageAnalysis deal a unknow Msg_code:546 !!!\n", missing,
                                      missing, "E ReverseAudioMessageAnalysis put a empty Param\n"}));
}

TEST_F(ReverseAudioTest, ComposeTellsUnknownCodesUnderTheLiveStreamsName) {
  Stop record;
  char body[8] = "?";
  EXPECT_EQ(ReverseAudioMessageCompose(nullptr, 0, "no", body, 8), 0);
  EXPECT_EQ(ReverseAudioMessageCompose(&record, 0, "no", body, 8), KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(ReverseAudioMessageCompose(&record, 0, "545", body, 8), 0);
  EXPECT_EQ(ReverseAudioMessageCompose(&record, 0, nullptr, body, 8), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(logLines(), (std::vector<std::string>{"E LIVE_STREAM_MESSAGE deal a unknow Msg_code:no !!!\n",
                                                  "E REVERSE_AUDIO_MESSAGE put a empty Param\n"}));
  EXPECT_STREQ(body, "?");
  set(record.Sessionid, "s");
  EXPECT_EQ(ReverseAudioMessageCompose(&record, 0, "545", body, 8), 0);
  EXPECT_STREQ(body, "<RA_STO");
}

}  // namespace
}  // namespace kov::test
