#include "kov_protocol/media_data.h"

#include "every_message.h"
#include "trials.h"

namespace kov::test {
namespace {

const std::string kType = MEDIA_DATA_MESSAGE_TYPE;

const NoRoundTrip kIntercom(kType, "3", "the piece behind the document is the application's, and is missing here");
const NoRoundTrip kFaceList(kType, "7", "analysis demands POS, which no body of it has");
const NoRoundTrip kThumbnail(kType, "8", "analysis demands POS, which no body of it has");

const std::string kPos = "<POS\nStartPos=\"10\"\nDataLen=\"1000\"\n/>\n";
const std::string kLongPos = "<POS\nXmlLen=\"-1\"\nStartPos=\"10\"\nDataLen=\"1000\"\n/>\n";

class MediaDataTest : public WireTest {};

// The body, and behind it the bytes that the frame counts for the application.
std::string compose(const char* code, int direction, const void* record) {
  std::vector<char> body(1 << 16);
  std::uint32_t extraLen = 0;
  EXPECT_EQ(MediaDataMessageCompose(record, direction, code, body.data(), 1 << 16, &extraLen), 0);
  std::vector<char> frame(1 << 16);
  const KOV_PROTOCOL_HEADER header = headerOf(kType, code);
  const int length = KovProtocolXMLCompose(&header, record, direction, KOV_PLAIN, nullptr, frame.data(), 1 << 16);
  std::uint32_t field = 0;
  std::memcpy(&field, &frame[4], sizeof field);
  EXPECT_EQ(field - static_cast<std::uint32_t>(length - KOV_FRAME_HEADER_SIZE), extraLen);
  return body.data() + ("+" + std::to_string(extraLen));
}

TEST_F(MediaDataTest, PiecesOfFilesAreCounted) {
  MEDIA_DATA_1_PARAM upload;
  EXPECT_EQ(compose("1", 0, &upload), "<POS\nStartPos=\"-1\"\nDataLen=\"-1\"\n/>\n+3");
  EXPECT_EQ(compose("1", 1, &upload), "+0");
  const std::string type = "<RESPONSE_PARAM\nType=\"0\"\n/>\n";
  upload = analysed<MEDIA_DATA_1_PARAM>(kType, "1", kPos + type);
  EXPECT_EQ(compose("1", 2, &upload), kPos + "+1004");
  EXPECT_EQ(compose("1", 5, &upload), type + "+0");

  const std::string names =
      "<RESPONSE_PARAM\nRemoteFileName=\"r\"\nLocalFileName=\"l\"\nStartPos=\"10\"\nErrorCode=\"3\"\n/>\n";
  const auto download = analysed<MEDIA_DATA_2_PARAM>(kType, "2", kPos + names);
  EXPECT_EQ(compose("2", 0, &download), kPos + "+1004");
  EXPECT_EQ(compose("2", 1, &download), names + "+0");
}

TEST_F(MediaDataTest, PictureIsAnsweredForAChannelOrDescribed) {
  const std::string info =
      "<DataInfo\nDataType=\"1\"\nDataTotalLen=\"2\"\nDataName=\"n\"\nTimestamp=\"4294967294\"\nSerialNum=\"3\"\n/>\n";
  const std::string channel = "<RESPONSE_PARAM\nChannelId=\"0\"\n/>\n";
  auto picture = analysed<MEDIA_DATA_4_PARAM>(kType, "4", channel + kLongPos + info);
  EXPECT_EQ(compose("4", 0, &picture), kPos + info + "+1004");
  EXPECT_EQ(compose("4", 1, &picture), channel + kLongPos + "+1004");
  picture.ChannelId = 255;
  EXPECT_EQ(compose("4", 1, &picture), kLongPos + "+1004");
  picture.ChannelId = -1;
  EXPECT_EQ(compose("4", 1, &picture), info + "+0");

  const std::string face = "<DataInfo\nSerialNum=\"7\"\nAlias=\"a\"\nListType=\"1\"\nDataNum=\"2\"\n/>\n";
  auto exported = analysed<MEDIA_DATA_5_PARAM>(kType, "5", channel + face + kLongPos);
  EXPECT_EQ(compose("5", 0, &exported), face + kPos + "+1004");
  EXPECT_EQ(compose("5", 1, &exported), channel + kLongPos + "+1004");
  exported.DataLen = -1;
  EXPECT_EQ(compose("5", 1, &exported), channel + "+0");
}

// Code 6 asks with a list, code 7 answers with one.
TEST_F(MediaDataTest, FaceListEndsAtItsCountItsTableAndTheFirstGap) {
  std::string faces;
  const auto facesOf = [&faces](int count) {
    faces.clear();
    for (int i = 0; i < count; ++i)
      faces += "<HumanFaceInfo\nSerialNum=\"" + std::to_string(i) + "\"\nAlias=\"a\"\n/>\n";
    return faces;
  };
  const std::string info = "<DataInfo\nTotalData=\"8\"\nDataNum=\"102\"\nListType=\"1\"\n/>\n";
  auto list = analysed<MEDIA_DATA_7_PARAM>(kType, "7", "<POS/>" + info + facesOf(102));
  EXPECT_EQ(compose("7", 1, &list), info + facesOf(100) + "+0");
  EXPECT_EQ(compose("7", 0, &list), info + "+0");
  EXPECT_EQ(compose("6", 1, &list), "+0");
  list.DataNum = 5;
  EXPECT_EQ(compose("6", 0, &list), "<DataInfo\nDataNum=\"5\"\nListType=\"1\"\n/>\n" + facesOf(5) + "+0");
  list.Faces[2].SerialNum = UINT32_MAX;
  EXPECT_EQ(compose("6", 0, &list), "<DataInfo\nDataNum=\"5\"\nListType=\"1\"\n/>\n" + facesOf(2) + "+0");
}

TEST_F(MediaDataTest, ThumbnailTimesAreSeparatedByCommas) {
  MEDIA_DATA_8_PARAM record;
  EXPECT_EQ(compose("8", 0, &record), "<REQUEST_PARAM\nTimeList=\"\"\n/>\n+0");
  std::memset(record.TimeList, 'T', sizeof record.TimeList);
  std::string times;
  for (int i = 0; i < 20; ++i) times += "TTTTTTTTTTTTTTTT,";
  EXPECT_EQ(compose("8", 0, &record), "<REQUEST_PARAM\nTimeList=\"" + times + "\"\n/>\n+0");
  record = analysed<MEDIA_DATA_8_PARAM>(kType, "8", "<POS/><REQUEST_PARAM TimeList=\"" + times + "U\"/>");
  EXPECT_STREQ(record.TimeList[19], "TTTTTTTTTTTTTTT");
  record = analysed<MEDIA_DATA_8_PARAM>(kType, "8",
                                        "<POS/><REQUEST_PARAM TimeList=\"" + times.substr(0, 17) +
                                            "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21\"/>");
  EXPECT_EQ((Texts{record.TimeList[19], record.reserved2}), (Texts{"19", ""}));
  record = analysed<MEDIA_DATA_8_PARAM>(kType, "8", "<POS/><REQUEST_PARAM TimeList=\"A,,B\"/>");
  EXPECT_EQ(compose("8", 0, &record), "<REQUEST_PARAM\nTimeList=\"A,B,\"\n/>\n+0");

  const std::string answer =
      "<RESPONSE_PARAM\nTime=\"C\"\n/>\n<ImageInfo\nTotalLen=\"9\"\nStartPos=\"8\"\nDataLen=\"7\"\n/>\n";
  record = analysed<MEDIA_DATA_8_PARAM>(kType, "8", answer + kPos);
  EXPECT_EQ(compose("8", 1, &record), answer + "+11");
}

TEST_F(MediaDataTest, IntercomPieceMustFillTheMessage) {
  const std::string body = "<POS\nStartPos=\"-1\"\nDataLen=\"1000\"\nXmlLen=\"6\"\n/>\n";
  const Analysis whole = analysePayload(received(kType, "3", body) + std::string(1004, 'x'));
  ASSERT_EQ(whole.code, 0);
  auto& record = *static_cast<MEDIA_DATA_3_PARAM*>(whole.result.get());
  EXPECT_EQ(compose("3", 0, &record), body + "+1004");
  EXPECT_EQ(compose("3", 1, &record), "+0");
  record.XmlLen = -1;
  EXPECT_EQ(compose("3", 0, &record), "<POS\nStartPos=\"-1\"\nDataLen=\"1000\"\n/>\n+1004");
  EXPECT_EQ(analysePayload(received(kType, "3", body) + std::string(1003, 'x')).code, KOV_ERROR_SIZE);

  void* result = nullptr;
  const auto direct = [&result](const std::string& pos, int beyond) {
    const std::string text = received(kType, "3", pos);
    return MediaDataMessageAnalysis(text.c_str(), "3", static_cast<int>(text.size()) + beyond, &result);
  };
  EXPECT_EQ(direct("<POS StartPos=\"1\"/>", 3), KOV_ERROR_SIZE);
  EXPECT_EQ(direct("<POS DataLen=\"2147483647\"/>", INT32_MIN + 3), KOV_ERROR_SIZE);  // the same in 32 bits
  EXPECT_EQ(direct("", 4), KOV_ERROR_NO_ELEMENT);
  EXPECT_EQ(result, nullptr);
  EXPECT_EQ(direct("<POS DataLen=\"0\"/>", 4), 0);
  KovProtocolMSGAnalysisStop(&result);
  resetPlatform();
  const char* const xml = "<A><MESSAGE_BODY><POS DataLen=\"5\"/></MESSAGE_BODY></A>";
  expectTold("live/intercom_calls", {MediaData_IntercomData_MessageAnalysis(xml, 66, &result)});
}

TEST_F(MediaDataTest, TellsUnknownCodesEmptyArgumentsAndMissingElements) {
  char body[8] = "?";
  void* result = nullptr;
  std::uint32_t extraLen = 5;
  const MEDIA_DATA_1_PARAM record;
  expectTold(
      "live/media_data_calls",
      {MediaDataMessageCompose(&record, 0, "9", body, 8, &extraLen), MediaDataMessageAnalysis("", "0", 0, &result),
       analysisCode(kType, "9", kPos), MediaDataMessageCompose(&record, 0, "6", body, 8, nullptr),
       MediaDataMessageAnalysis("", nullptr, 0, &result), MediaDataMessageAnalysis("", "3", 0, nullptr),
       analysisCode(kType, "7", "<DataInfo/>"), analysisCode(kType, "6", kPos),
       MediaDataMessageCompose(nullptr, 0, "1", body, 8, &extraLen)});
  EXPECT_EQ(extraLen, 5);
  EXPECT_STREQ(body, "?");
}

}  // namespace
}  // namespace kov::test
