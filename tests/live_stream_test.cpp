#include "kov_protocol/live_stream.h"

#include "every_message.h"
#include "wire.h"

namespace kov::test {
namespace {

using Start = LIVE_STREAM_CMD_STREAM_START_PARAM;
using Stop = LIVE_STREAM_CMD_STREAM_STOP_PARAM;

const std::string kType = LIVE_STREAM_MESSAGE_TYPE;
const std::string kStartCode = "CMD_STREAM_START";

const AlsoTested kStartMessage({kType, kStartCode, kRecordType<Start>});
const AlsoTested kStartNumber({kType, "1062", kRecordType<Start>});
const AlsoTested kStopMessage({kType, "CMD_STREAM_STOP", kRecordType<Stop>});
const AlsoTested kQualityMessage({kType, "CMD_STREAM_QUALITY", kRecordType<Stop>});

class LiveStreamTest : public WireTest {};

const std::string kVideo =
    "<VIDEO_PARAM\nEncoder=\"v\"\nWidth=\"1\"\nHeight=\"2\"\nFramerate=\"3\"\nBitrate=\"4\"\n"
    "Config=\"c\"\n/>\n";

// A stream that is granted without sound.
Start granted() {
  Start record;
  record.ChannelId = 3;
  record.StreamID = 7;
  record.VideoStream = 1;
  set(record.video.Encoder, "v");
  record.video.Width = 1;
  record.video.Height = 2;
  record.video.Framerate = 3;
  record.video.Bitrate = 4;
  set(record.video.Config, "c");
  return record;
}

TEST_F(LiveStreamTest, ResponseTellsTheTransport) {
  Start record = granted();
  const std::string opening = "<TRANS_PARAM\nChannelId=\"3\"\nStreamID=\"7\"\nVideoStream=\"1\"\n";
  EXPECT_EQ(bodyOf(kType, kStartCode, 1, &record), opening + "AudioEnable=\"0\"\nVideoPort=\"-1\"\n/>\n" + kVideo);
  record.AudioPort = 6;
  record.UseTcp = 0;
  record.Multicast = 0;
  set(record.MulticastAddress, "m");
  record.EnableChangeStream = 0;
  const std::string group = "Multicast=\"0\"\nMulticastAddress=\"m\"\nVideoPort=\"-1\"\n";
  const std::string ending = "EnableChangeStream=\"0\"\n/>\n" + kVideo;
  EXPECT_EQ(bodyOf(kType, kStartCode, 3, &record), opening + "AudioEnable=\"0\"\n" + group + ending);
  record.AudioEnable = 2;
  set(record.audio.Encoder, "a");
  const std::string audio =
      "<AUDIO_PARAM\nEncoder=\"a\"\nSampleRate=\"-1\"\nSampleWidth=\"-1\"\nChannels=\"-1\"\nBitrate=\"-1\"\n/>\n";
  EXPECT_EQ(bodyOf(kType, kStartCode, 4, &record),
            opening + "AudioEnable=\"1\"\n" + group + "AudioPort=\"6\"\n" + ending + audio);
  record.UseTcp = 1;
  EXPECT_EQ(bodyOf(kType, kStartCode, -1, &record), opening + "AudioEnable=\"1\"\nUseTcp=\"1\"\n" + ending + audio);
}

TEST_F(LiveStreamTest, ResponseNumbersStandInTheHeader) {
  Start record;
  record.ConnectNum = 5;
  record.StreamID = 7;
  EXPECT_NE(documentOf(kType, "1062x", 1, &record)
                .find("Msg_flag=\"\"\nChannelId=\"-1\"\nStreamID=\"7\"\nConnectNum=\"5\"\nStreamNum=\"-1\"\n\n"
                      "/>\n<MESSAGE_BODY>\n</MESSAGE_BODY>\n"),
            std::string::npos);
  EXPECT_EQ(documentOf(kType, "1062", 0, &record).find("ConnectNum"), std::string::npos);
  record.ConnectNum = -1;
  EXPECT_EQ(documentOf(kType, "1062", 1, &record).find("StreamNum"), std::string::npos);
}

TEST_F(LiveStreamTest, HeaderNumbersAreReadFirstAndStreamIdBecomesVideoStream) {
  const auto read = [](const std::string& body) {
    const std::string header = "ChannelId=\"2\"\nStreamID=\"7\"\nConnectNum=\"5\"\nStreamNum=\"6\"\n";
    const Analysis analysis = analysePayload(received(kType, kStartCode, body, header));
    EXPECT_NE(analysis.result, nullptr);
    return analysis.result == nullptr ? Start{} : *static_cast<Start*>(analysis.result.get());
  };
  const Start response = read("<TRANS_PARAM ChannelId=\"8\" StreamID=\"9\" AudioEnable=\"1\"/>" + kVideo);
  EXPECT_EQ(response.ChannelId, 2);  // the body's does not count
  EXPECT_EQ(response.VideoStream, 7);
  EXPECT_EQ(response.StreamID, 9);
  EXPECT_EQ(response.ConnectNum, 5);
  EXPECT_EQ(response.AudioEnable, 1);
  EXPECT_STREQ(response.video.Config, "c");
  EXPECT_EQ(read("<TRANS_PARAM VideoStream=\"0\"/>").VideoStream, 0);
  const Start request = read("<STREAM_START_PARAM ChannelId=\"4\"/><TRANS_PARAM StreamID=\"9\"/>");
  EXPECT_EQ(request.ChannelId, 4);
  EXPECT_EQ(request.StreamID, -1);
}

TEST_F(LiveStreamTest, StopAndQualityReadAnyTextAsANumber) {
  Stop record;
  EXPECT_EQ(bodyOf(kType, "CMD_STREAM_STOP", 1, &record), "<STREAM_STOP_PARAM\n/>\n");
  const std::string attributes = " ChannelId=\"x\" StreamID=\"\" FrameType=\"8\" UseTcp=\"9y\"/>";
  record = analysed<Stop>(kType, "CMD_STREAM_STOP", "<STREAM_STOP_PARAM" + attributes);
  EXPECT_EQ(bodyOf(kType, "CMD_STREAM_STOP", 0, &record),
            "<STREAM_STOP_PARAM\nChannelId=\"0\"\nStreamID=\"0\"\nUseTcp=\"9\"\n/>\n");
  EXPECT_EQ(record.FrameType, -1);
  record = analysed<Stop>(kType, "CMD_STREAM_QUALITY", "<STREAM_QUALITY_PARAM" + attributes);
  EXPECT_EQ(bodyOf(kType, "CMD_STREAM_QUALITY", 1, &record),
            "<STREAM_QUALITY_PARAM\nChannelId=\"0\"\nStreamID=\"0\"\nFrameType=\"8\"\n/>\n");
  EXPECT_EQ(record.UseTcp, -1);
}

TEST_F(LiveStreamTest, AnalysisTellsWhatIsMissingButNotBadText) {
  const auto lines = [](int (*analyse)(const char*, void**)) {
    resetPlatform();
    void* result = nullptr;
    EXPECT_EQ(analyse(nullptr, &result), KOV_ERROR_EMPTY_ARGUMENT);
    EXPECT_EQ(analyse("<XML_ZANTIR>", &result), KOV_ERROR_BAD_DOCUMENT);
    EXPECT_EQ(analyse(received(kType, "", "<VIDEO_PARAM/>").c_str(), &result), KOV_ERROR_NO_ELEMENT);
    EXPECT_EQ(result, nullptr);
    return logLines();
  };
  EXPECT_EQ(lines(LiveStreamCmdStartMessageAnalysis),
            (std::vector<std::string>{"E LiveStreamCmdStartMessageAnalysis put a empty Param\n",
                                      "E LiveStreamCmdStartMessageAnalysis get STREAM_START_PARAM error\n"}));
  EXPECT_EQ(lines(LiveStreamCmdStopMessageAnalysis)[1],
            "E LiveStreamCmdStopMessageAnalysis get STREAM_STOP_PARAM error\n");
  EXPECT_EQ(lines(LiveStreamCmdQualityMessageAnalysis)[1],
            "E LiveStreamCmdQualityMessageAnalysis get STREAM_QUALITY_PARAM error\n");
}

TEST_F(LiveStreamTest, DispatchersRefuseEmptyArgumentsAndUnknownCodes) {
  char body[8] = "?";
  void* result = nullptr;
  const auto compose = [](char* into, int size, const char* code) {
    return LiveStreamMessageCompose(nullptr, 0, code, into, size, nullptr, 0, 0);
  };
  EXPECT_EQ(compose(nullptr, 8, "1062"), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(compose(body, 0, "1062"), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(compose(body, 8, nullptr), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(LiveStreamMessageAnalysis(nullptr, "1062", &result), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(LiveStreamMessageAnalysis("", nullptr, &result), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(logLines(), std::vector<std::string>(5, "E LIVE_STREAM_MESSAGE put a empty Param\n"));
  resetPlatform();
  EXPECT_EQ(LiveStreamMessageAnalysis("", "CMD_STREAM_STOP", nullptr), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(failures(), std::vector<std::string>{"E LiveStreamCmdStopMessageAnalysis put a empty Param\n"});

  resetPlatform();
  EXPECT_EQ(compose(body, 8, "1062"), 0);
  EXPECT_EQ(compose(body, 8, "CMD_STREAM"), KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(LiveStreamMessageAnalysis("", "CMD_STREAM", &result), KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(analysisCode(kType, "CMD_STREAM", ""), KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(failures(), std::vector<std::string>(3, "E LIVE_STREAM_MESSAGE deal a unknow Msg_code:CMD_STREAM !!!\n"));
  EXPECT_STREQ(body, "?");
  Stop record;
  EXPECT_EQ(documentOf(kType, "CMD_STREAM", 1, &record), "code -1000");
}

TEST_F(LiveStreamTest, HeaderAttributesStayInTheirBuffer) {
  Start record = granted();
  record.ConnectNum = 5;
  const std::string all = "x\nChannelId=\"3\"\nStreamID=\"7\"\nConnectNum=\"5\"\nStreamNum=\"-1\"\n";
  const auto extras = [&record](int size, int length, int room) {
    const std::unique_ptr<char[]> buffer(new char[static_cast<std::size_t>(room)]);
    std::memcpy(buffer.get(), "x\n", 3);
    char body[512] = "";
    EXPECT_EQ(LiveStreamMessageCompose(&record, 1, "1062", body, sizeof body, buffer.get(), size, length), 0);
    EXPECT_EQ(std::string(body).substr(0, 12), "<TRANS_PARAM");
    return std::string(buffer.get());
  };
  const int exact = static_cast<int>(all.size()) + 1;
  EXPECT_EQ(extras(exact, 2, exact), all);
  EXPECT_EQ(extras(exact - 1, 2, exact - 1), all.substr(0, all.find("StreamNum")));
  for (const int length : {-1, 3, INT32_MAX}) EXPECT_EQ(extras(3, length, 3), "x\n");
  EXPECT_EQ(extras(-1, 2, 3), "x\n");
  char body[512];
  EXPECT_EQ(LiveStreamMessageCompose(&record, 1, "1062", body, sizeof body, nullptr, 256, 0), 0);
}

}  // namespace
}  // namespace kov::test
