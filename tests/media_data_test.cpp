#include "kov_protocol/media_data.h"

#include "every_message.h"
#include "wire.h"

namespace kov::test {
namespace {

const std::string kType = MEDIA_DATA_MESSAGE_TYPE;

const NoRoundTrip kIntercom(kType, "3", "the piece behind the document is the application's, and is missing here");
const NoRoundTrip kFaceList(kType, "7", "analysis demands POS, which no body of it has");
const NoRoundTrip kThumbnail(kType, "8", "analysis demands POS, which no body of it has");

const std::string kPos = "<POS\nStartPos=\"10\"\nDataLen=\"1000\"\n/>\n";
const std::string kLongPos = "<POS\nXmlLen=\"-1\"\nStartPos=\"10\"\nDataLen=\"1000\"\n/>\n";

class MediaDataTest : public WireTest {};

struct Composed {
  std::string body;
  std::uint32_t extraLen;
};
bool operator==(const Composed& left, const Composed& right) {
  return left.body == right.body && left.extraLen == right.extraLen;
}

// The exported dispatcher and the frame of the entry must say the same.
Composed compose(const char* code, int direction, const void* record) {
  std::vector<char> body(1 << 16);
  std::uint32_t extraLen = 0;
  EXPECT_EQ(MediaDataMessageCompose(record, direction, code, body.data(), 1 << 16, &extraLen), 0);
  EXPECT_EQ(bodyOf(kType, code, direction, record), body.data());
  std::vector<char> frame(1 << 16);
  const KOV_PROTOCOL_HEADER header = headerOf(kType, code);
  const int length = KovProtocolXMLCompose(&header, record, direction, KOV_PLAIN, nullptr, frame.data(), 1 << 16);
  std::uint32_t field = 0;
  std::memcpy(&field, &frame[4], sizeof field);
  EXPECT_EQ(field, static_cast<std::uint32_t>(length - KOV_FRAME_HEADER_SIZE) + extraLen);
  return {body.data(), extraLen};
}

TEST_F(MediaDataTest, PiecesOfFilesAreCounted) {
  MEDIA_DATA_1_PARAM upload;
  EXPECT_EQ(compose("1", 0, &upload), (Composed{"<POS\nStartPos=\"-1\"\nDataLen=\"-1\"\n/>\n", 3}));
  EXPECT_EQ(compose("1", 1, &upload), (Composed{"", 0}));
  upload.StartPos = 10;
  upload.DataLen = 1000;
  upload.Type = 0;
  EXPECT_EQ(compose("1", 2, &upload), (Composed{kPos, 1004}));
  const std::string type = "<RESPONSE_PARAM\nType=\"0\"\n/>\n";
  EXPECT_EQ(compose("1", 5, &upload), (Composed{type, 0}));
  EXPECT_EQ(analysed<MEDIA_DATA_1_PARAM>(kType, "1", kPos + type).Type, 0);

  auto download = analysed<MEDIA_DATA_2_PARAM>(
      kType, "2", kPos + "<RESPONSE_PARAM RemoteFileName=\"r\" LocalFileName=\"l\" ErrorCode=\"3\"/>");
  EXPECT_EQ(compose("2", 0, &download), (Composed{kPos, 1004}));
  EXPECT_EQ(
      compose("2", 1, &download),
      (Composed{"<RESPONSE_PARAM\nRemoteFileName=\"r\"\nLocalFileName=\"l\"\nStartPos=\"10\"\nErrorCode=\"3\"\n/>\n",
                0}));
}

TEST_F(MediaDataTest, PictureIsAnsweredForAChannelOrDescribed) {
  const std::string info =
      "<DataInfo\nDataType=\"1\"\nDataTotalLen=\"2\"\nDataName=\"n\"\nTimestamp=\"4294967294\"\nSerialNum=\"3\"\n/>\n";
  auto picture = analysed<MEDIA_DATA_4_PARAM>(kType, "4", kPos + info);
  EXPECT_EQ(compose("4", 0, &picture), (Composed{kPos + info, 1004}));
  EXPECT_EQ(compose("4", 1, &picture), (Composed{info, 0}));
  picture.ChannelId = 255;
  EXPECT_EQ(compose("4", 1, &picture), (Composed{kLongPos, 1004}));
  picture.ChannelId = 0;
  const std::string channel = "<RESPONSE_PARAM\nChannelId=\"0\"\n/>\n";
  EXPECT_EQ(compose("4", 1, &picture), (Composed{channel + kLongPos, 1004}));
  EXPECT_EQ(analysed<MEDIA_DATA_4_PARAM>(kType, "4", channel + "<POS XmlLen=\"5\"/>").XmlLen, 5);

  const std::string face = "<DataInfo\nSerialNum=\"7\"\nAlias=\"a\"\nListType=\"1\"\nDataNum=\"2\"\n/>\n";
  auto exported = analysed<MEDIA_DATA_5_PARAM>(kType, "5", channel + face + kPos);
  EXPECT_EQ(compose("5", 0, &exported), (Composed{face + kPos, 1004}));
  EXPECT_EQ(compose("5", 1, &exported), (Composed{channel + kLongPos, 1004}));
  exported.DataLen = -1;
  EXPECT_EQ(compose("5", 1, &exported), (Composed{channel, 0}));
}

TEST_F(MediaDataTest, FaceListEndsAtItsCountItsTableAndTheFirstGap) {
  const auto entries = [](const std::string& body) {
    std::size_t count = 0;
    for (std::size_t at = body.find("<Human"); at != std::string::npos; at = body.find("<Human", at + 1)) ++count;
    return count;
  };
  std::string body = "<POS/><DataInfo\nTotalData=\"8\"\nDataNum=\"102\"\nListType=\"1\"\n/>\n";
  for (int i = 0; i < 102; ++i) body += "<HumanFaceInfo\nSerialNum=\"" + std::to_string(i) + "\"\nAlias=\"a\"\n/>\n";
  auto list = analysed<MEDIA_DATA_7_PARAM>(kType, "7", body);
  EXPECT_EQ(list.DataNum, 102);
  const Composed answer = compose("7", 1, &list);
  EXPECT_EQ("<POS/>" + answer.body, body.substr(0, body.find("<HumanFaceInfo\nSerialNum=\"100\"")));
  EXPECT_EQ(answer.extraLen, 0U);
  EXPECT_EQ(entries(compose("7", 0, &list).body), 0U);
  EXPECT_EQ(compose("6", 0, &list).body.substr(0, 42), "<DataInfo\nDataNum=\"102\"\nListType=\"1\"\n/>\n<H");
  EXPECT_EQ(compose("6", 1, &list).body, "");
  EXPECT_EQ(entries(compose("6", 0, &list).body), 100U);
  list.DataNum = 5;
  EXPECT_EQ(entries(compose("6", 0, &list).body), 5U);
  list.Faces[2].SerialNum = UINT32_MAX;
  EXPECT_EQ(entries(compose("6", 0, &list).body), 2U);
  EXPECT_EQ(analysed<MEDIA_DATA_6_PARAM>(kType, "6", body).Faces[99].SerialNum, 99U);
}

TEST_F(MediaDataTest, ThumbnailTimesAreSeparatedByCommas) {
  MEDIA_DATA_8_PARAM record;
  EXPECT_EQ(compose("8", 0, &record).body, "<REQUEST_PARAM\nTimeList=\"\"\n/>\n");
  std::memset(record.TimeList, 'T', sizeof record.TimeList);
  std::string times;
  for (int i = 0; i < 20; ++i) times += "TTTTTTTTTTTTTTTT,";
  const std::string full = "<REQUEST_PARAM\nTimeList=\"" + times + "\"\n/>\n";
  EXPECT_EQ(compose("8", 0, &record), (Composed{full, 0}));
  EXPECT_STREQ(analysed<MEDIA_DATA_8_PARAM>(kType, "8", "<POS/>" + full).TimeList[19], "TTTTTTTTTTTTTTT");

  record = analysed<MEDIA_DATA_8_PARAM>(kType, "8", "<POS/><REQUEST_PARAM TimeList=\"A,,B\"/>");
  EXPECT_EQ(compose("8", 0, &record).body, "<REQUEST_PARAM\nTimeList=\"A,B,\"\n/>\n");
  const std::string answer =
      "<RESPONSE_PARAM\nTime=\"C\"\n/>\n<ImageInfo\nTotalLen=\"9\"\nStartPos=\"8\"\nDataLen=\"7\"\n/>\n";
  record = analysed<MEDIA_DATA_8_PARAM>(kType, "8", answer + kPos);
  EXPECT_EQ(compose("8", 1, &record), (Composed{answer, 11}));
}

TEST_F(MediaDataTest, IntercomPieceMustFillTheMessage) {
  MEDIA_DATA_3_PARAM record;
  record.DataLen = 1000;
  EXPECT_EQ(compose("3", 0, &record), (Composed{"<POS\nStartPos=\"-1\"\nDataLen=\"1000\"\n/>\n", 1004}));
  record.XmlLen = 6;
  const std::string body = "<POS\nStartPos=\"-1\"\nDataLen=\"1000\"\nXmlLen=\"6\"\n/>\n";
  EXPECT_EQ(compose("3", 0, &record), (Composed{body, 1004}));
  EXPECT_EQ(compose("3", 1, &record), (Composed{"", 0}));

  const std::string document = received(kType, "3", body);
  const int length = static_cast<int>(document.size());
  EXPECT_EQ(analysePayload(document + std::string(1004, 'x')).code, 0);
  EXPECT_EQ(analysePayload(document + std::string(1003, 'x')).code, KOV_ERROR_SIZE);
  resetPlatform();
  void* result = nullptr;
  EXPECT_EQ(MediaData_IntercomData_MessageAnalysis(document.c_str(), length + 1005, &result), KOV_ERROR_SIZE);
  EXPECT_EQ(logLines(), std::vector<std::string>{"E MediaData_IntercomData_MessageAnalysis date size error : xmllen(" +
                                                 std::to_string(length) + ") datalen(1000) endcode(4) all(" +
                                                 std::to_string(length + 1005) + ")\n"});
  const auto direct = [&result](const std::string& pos, std::int64_t beyond) {
    const std::string text = received(kType, "3", pos);
    const int total = static_cast<int>(static_cast<std::int64_t>(text.size()) + beyond);
    return MediaDataMessageAnalysis(text.c_str(), "3", total, &result);
  };
  EXPECT_EQ(direct("<POS StartPos=\"1\"/>", 3), KOV_ERROR_SIZE);
  EXPECT_EQ(direct("<POS DataLen=\"-5\"/>", -1), KOV_ERROR_SIZE);
  EXPECT_EQ(direct("<POS DataLen=\"2147483647\"/>", 2147483651 - 4294967296), KOV_ERROR_SIZE);
  EXPECT_EQ(direct("", 4), KOV_ERROR_NO_ELEMENT);
  EXPECT_EQ(result, nullptr);
  EXPECT_EQ(direct("<POS DataLen=\"0\"/>", 4), 0);
  KovProtocolMSGAnalysisStop(&result);
}

TEST_F(MediaDataTest, TellsUnknownCodesEmptyArgumentsAndMissingElements) {
  char body[8] = "?";
  void* result = nullptr;
  std::uint32_t extraLen = 5;
  MEDIA_DATA_1_PARAM record;
  EXPECT_EQ(MediaDataMessageCompose(&record, 0, "9", body, 8, &extraLen), KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(MediaDataMessageAnalysis("", "0", 0, &result), KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(analysisCode(kType, "9", kPos), KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(MediaDataMessageCompose(&record, 0, "6", body, 8, nullptr), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(MediaDataMessageAnalysis("", nullptr, 0, &result), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(MediaDataMessageAnalysis("", "3", 0, nullptr), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(analysisCode(kType, "7", "<DataInfo/>"), KOV_ERROR_NO_ELEMENT);
  EXPECT_EQ(analysisCode(kType, "6", kPos), KOV_ERROR_NO_ELEMENT);
  const std::string unknown = "E MEDIA_DATA_MESSAGE deal a unknow msg_cdoe : ";
  const std::string empty = "E MEDIA_DATA_MESSAGE put a empty Param\n";
  EXPECT_EQ(failures(), (std::vector<std::string>{unknown + "9\n", unknown + "0\n", unknown + "9\n", empty, empty,
                                                  "E MediaData_IntercomData_MessageAnalysis put a empty Param\n",
                                                  "E MediaData_GetFaceListData_MessageAnalysis get POS error\n",
                                                  "E MediaData_DeleteFaceData_MessageAnalysis get DataInfo error\n"}));
  EXPECT_EQ(MediaDataMessageCompose(nullptr, 0, "1", body, 8, &extraLen), 0);
  EXPECT_STREQ(body, "?");
  EXPECT_EQ(extraLen, 5U);
}

}  // namespace
}  // namespace kov::test
