// Live streams and the audio of the other direction.
#include "kov_protocol/live_stream.h"

#include <cstring>

#include "every_message.h"
#include "kov_protocol/reverse_audio.h"
#include "trials.h"

namespace kov::test {
namespace {

using Start = LIVE_STREAM_CMD_STREAM_START_PARAM;
using Stop = LIVE_STREAM_CMD_STREAM_STOP_PARAM;

const std::string kType = LIVE_STREAM_MESSAGE_TYPE;

const AlsoTested kStart({kType, "CMD_STREAM_START", kRecordType<Start>});
const AlsoTested kStartNumber({kType, "1062", kRecordType<Start>});
const AlsoTested kStop({kType, "CMD_STREAM_STOP", kRecordType<Stop>});
const AlsoTested kQuality({kType, "CMD_STREAM_QUALITY", kRecordType<Stop>});

const std::string kNumbers = "ChannelId=\"2\"\nStreamID=\"7\"\nConnectNum=\"5\"\nStreamNum=\"-1\"\n";

// What arrives with numbers in the header.
Start arrived(const std::string& body) {
  const Analysis analysis = analysePayload(received(kType, "CMD_STREAM_START", body, kNumbers));
  EXPECT_EQ(analysis.code, 0);
  return analysis.result == nullptr ? Start{} : *static_cast<Start*>(analysis.result.get());
}

std::string answer(Start& record) { return bodyOf(kType, "1062x", 3, &record); }

class LiveStreamTest : public WireTest {};

// The channel comes from the header only, and the header's stream fills in for a missing VideoStream.
TEST_F(LiveStreamTest, ResponseTellsTheTransport) {
  Start record = arrived("<TRANS_PARAM ChannelId=\"8\" StreamID=\"9\"/>" + golden("live/formats.txt"));
  std::string told = answer(record);
  record.AudioPort = 6;
  record.UseTcp = 0;
  record.Multicast = 0;
  set(record.MulticastAddress, "m");
  record.EnableChangeStream = 0;
  told += answer(record);
  record.AudioEnable = 2;
  told += answer(record);
  record.UseTcp = 1;
  told += answer(record);
  EXPECT_EQ(told, golden("live/transport.txt"));
}

TEST_F(LiveStreamTest, ResponseNumbersStandInTheHeader) {
  Start record = arrived("<TRANS_PARAM StreamID=\"7\" VideoStream=\"0\" AudioEnable=\"1\"/>");
  EXPECT_EQ((Numbers{record.VideoStream, record.AudioEnable}), (Numbers{0, 1}));
  record.VideoStream = -1;
  const auto position = [&record](int direction, const std::string& text) {
    return documentOf(kType, "CMD_STREAM_START", direction, &record).find(text);
  };
  EXPECT_NE(position(1, "Msg_flag=\"\"\n" + kNumbers + "\n/>\n<MESSAGE_BODY>\n</MESSAGE_BODY>\n"), std::string::npos);
  EXPECT_EQ(position(0, "ConnectNum"), std::string::npos);
  record.ConnectNum = -1;
  EXPECT_EQ(position(1, "StreamNum"), std::string::npos);
}

TEST_F(LiveStreamTest, RequestGoesBeforeTheElementsOfAResponse) {
  Start record = arrived("<STREAM_START_PARAM ChannelId=\"4\"/><TRANS_PARAM StreamID=\"9\"/>");
  EXPECT_EQ(record.StreamID, -1);
  EXPECT_EQ(bodyOf(kType, "1062", 2, &record), "<STREAM_START_PARAM\nChannelId=\"4\"\nVideoStream=\"7\"\n/>\n");
}

TEST_F(LiveStreamTest, StopAndQualityReadAnyTextAsANumber) {
  const auto again = [](const std::string& code, const std::string& element) {
    const std::string attributes = " ChannelId=\"x\" StreamID=\"\" FrameType=\"8\" UseTcp=\"9y\"/>";
    const auto record = analysed<Stop>(kType, code, "<" + element + attributes);
    return bodyOf(kType, code, 1, &record);
  };
  EXPECT_EQ(again("CMD_STREAM_STOP", "STREAM_STOP_PARAM"),
            "<STREAM_STOP_PARAM\nChannelId=\"0\"\nStreamID=\"0\"\nUseTcp=\"9\"\n/>\n");
  EXPECT_EQ(again("CMD_STREAM_QUALITY", "STREAM_QUALITY_PARAM"),
            "<STREAM_QUALITY_PARAM\nChannelId=\"0\"\nStreamID=\"0\"\nFrameType=\"8\"\n/>\n");
}

TEST_F(LiveStreamTest, TellsWhatItRefusesButNotBadText) {
  Untouched out;
  expectTold("live/stream_calls",
             {LiveStreamMessageCompose("", 0, nullptr, out.body, 8, nullptr, 0, 0),
              LiveStreamMessageAnalysis(nullptr, "1062", &out.result),
              LiveStreamMessageAnalysis("", "CMD_STREAM_STOP", nullptr),
              LiveStreamMessageCompose(nullptr, 0, "1062", out.body, 8, nullptr, 0, 0),
              LiveStreamMessageCompose(nullptr, 0, "CMD", out.body, 8, nullptr, 0, 0),
              LiveStreamMessageAnalysis("", "CMD", &out.result), analysisCode(kType, "CMD", ""),
              LiveStreamMessageAnalysis("<a>", "1062", &out.result),
              LiveStreamCmdStartMessageAnalysis("<a/>", &out.result), analysisCode(kType, "1062", "<VIDEO_PARAM/>"),
              analysisCode(kType, "CMD_STREAM_QUALITY", "<STREAM_STOP_PARAM/>")});
}

TEST_F(LiveStreamTest, HeaderAttributesStayInTheirBuffer) {
  const Start record = arrived("<TRANS_PARAM StreamID=\"7\"/>");
  const auto extras = [&record](int size, int length, std::size_t room, int expected = 0) {
    const std::unique_ptr<char[]> buffer(new char[room]);
    std::memcpy(buffer.get(), "x\n", 3);
    char body[64] = "";
    EXPECT_EQ(LiveStreamMessageCompose(&record, 1, "1062", body, sizeof body, buffer.get(), size, length), expected);
    EXPECT_EQ(std::string(body).substr(0, 12), expected == 0 ? "<TRANS_PARAM" : "");
    return std::string(buffer.get());
  };
  const std::size_t exact = kNumbers.size() + 3;
  const int size = static_cast<int>(exact);
  EXPECT_EQ(extras(size, 2, exact), "x\n" + kNumbers);
  EXPECT_EQ(extras(size - 1, 2, exact - 1), "x\n" + kNumbers.substr(0, kNumbers.find("StreamNum")));
  for (const int length : {-1, 3, INT32_MAX}) EXPECT_EQ(extras(3, length, 3, KOV_ERROR_EMPTY_ARGUMENT), "x\n");
  EXPECT_EQ(extras(-1, 2, 3, KOV_ERROR_EMPTY_ARGUMENT), "x\n");
  char body[8];
  EXPECT_EQ(LiveStreamMessageCompose(&record, 1, "1062", body, sizeof body, nullptr, 256, 0), 0);
}

using TalkStart = REVERSE_AUDIO_CMD_RA_START_PARAM;
using TalkStop = REVERSE_AUDIO_CMD_RA_STOP_PARAM;

const std::string kTalk = REVERSE_AUDIO_MESSAGE_TYPE;
const AlsoTested kTalkStart({kTalk, "544", kRecordType<TalkStart>});
const AlsoTested kTalkStop({kTalk, "CMD_RA_STOP", kRecordType<TalkStop>});

class ReverseAudioTest : public WireTest {};

TEST_F(ReverseAudioTest, StartNamesTheFormatDifferentlyInTheAnswer) {
  TalkStart record = {1, 2, 8000, 0, "G711", "", 16, 5004};
  const std::string answer =
      "<RA_START_RESPONSE\nRTPRecvPort=\"5004\"\nAudioCodec=\"G711\"\nSamplerate=\"8000\"\nBitsPerSample=\"16\"\n"
      "Channels=\"1\"\nConnectionType=\"2\"/>\n";
  for (const int direction : {1, -1}) EXPECT_EQ(bodyOf(kTalk, "544", direction, &record), answer);
  auto read = analysed<TalkStart>(kTalk, "544", answer);
  EXPECT_EQ(read.SampleRate, -1);  // lost: it is read under another spelling than it is written
  read.SampleRate = 8000;
  EXPECT_EQ(std::memcmp(&read, &record, sizeof read), 0);
  EXPECT_EQ(analysed<TalkStart>(kTalk, "544", "<RA_START_RESPONSE SampleRate=\"7\"/>").SampleRate, 7);
  set(record.Sessionid, "s");
  read = analysed<TalkStart>(kTalk, "CMD_RA_START", answer + golden("live/talk.txt"));
  EXPECT_EQ(std::memcmp(&read, &record, sizeof read), 0);
}

TEST_F(ReverseAudioTest, StopNamesItsSession) {
  TalkStop record;
  EXPECT_EQ(bodyOf(kTalk, "545", 0, &record), "");
  std::memset(record.Sessionid, 's', sizeof record.Sessionid);
  for (const int direction : {1, 4}) EXPECT_EQ(bodyOf(kTalk, "545", direction, &record), "");
  const auto read = analysed<TalkStop>(kTalk, "545", "<RA_STOP_PARAM Sessionid=\"" + std::string(68, 's') + "\"/>");
  EXPECT_EQ(std::memcmp(&read, &record, sizeof read), 0);
}

}  // namespace
}  // namespace kov::test
