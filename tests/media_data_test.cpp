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
  return body.data() + ("+" + std::to_string(extraLen) + "\n");
}

// A message that has all elements of codes 1, 2, 4 and 5.
template <class Record>
Record arrived(const char* code) {
  return analysed<Record>(kType, code, golden("live/pieces_received.txt"));
}

TEST_F(MediaDataTest, PiecesAreCountedWhereTheyFollow) {
  const MEDIA_DATA_1_PARAM unset;
  std::string told = compose("1", 0, &unset) + compose("1", 1, &unset);
  const auto upload = arrived<MEDIA_DATA_1_PARAM>("1");
  told += compose("1", 2, &upload) + compose("1", 5, &upload);
  const auto download = arrived<MEDIA_DATA_2_PARAM>("2");
  told += compose("2", 0, &download) + compose("2", 1, &download);
  auto picture = arrived<MEDIA_DATA_4_PARAM>("4");
  told += compose("4", 0, &picture) + compose("4", 1, &picture);
  for (const int channel : {255, -1}) {  // the first is never told, the other asks for a description
    picture.ChannelId = channel;
    told += compose("4", 1, &picture);
  }
  auto exported = arrived<MEDIA_DATA_5_PARAM>("5");
  told += compose("5", 0, &exported) + compose("5", 1, &exported);
  exported.DataLen = -1;
  told += compose("5", 1, &exported);
  EXPECT_EQ(told, golden("live/pieces.txt"));
}

// Code 6 asks with a list, code 7 answers with one.
TEST_F(MediaDataTest, FaceListEndsAtItsCountItsTableAndTheFirstGap) {
  const std::string face = "<HumanFaceInfo\nSerialNum=\"4\"\nAlias=\"a\"\n/>\n";
  const std::string told = "<DataInfo\nTotalData=\"8\"\nDataNum=\"102\"\nListType=\"1\"\n/>\n";
  const std::string asked = "<DataInfo\nDataNum=\"5\"\nListType=\"1\"\n/>\n";
  auto list = analysed<MEDIA_DATA_7_PARAM>(kType, "7", "<POS/>" + told + repeated(face, 102));
  EXPECT_EQ(compose("7", 1, &list), told + repeated(face, 100) + "+0\n");
  EXPECT_EQ(compose("7", 0, &list), told + "+0\n");
  EXPECT_EQ(compose("6", 1, &list), "+0\n");
  list.DataNum = 5;
  EXPECT_EQ(compose("6", 0, &list), asked + repeated(face, 5) + "+0\n");
  list.Faces[2].SerialNum = UINT32_MAX;
  EXPECT_EQ(compose("6", 0, &list), asked + repeated(face, 2) + "+0\n");
}

TEST_F(MediaDataTest, ThumbnailTimesAreSeparatedByCommas) {
  const auto asking = [](const std::string& times) {
    return analysed<MEDIA_DATA_8_PARAM>(kType, "8", "<POS/><REQUEST_PARAM TimeList=\"" + times + "\"/>");
  };
  const auto times = [](const MEDIA_DATA_8_PARAM& record) {
    const std::string body = compose("8", 0, &record);
    return body.substr(25, body.find('"', 25) - 25);
  };
  MEDIA_DATA_8_PARAM record;
  EXPECT_EQ(compose("8", 0, &record), "<REQUEST_PARAM\nTimeList=\"\"\n/>\n+0\n");
  std::memset(record.TimeList, 'T', sizeof record.TimeList);
  const std::string full = repeated("TTTTTTTTTTTTTTTT,", 20);
  EXPECT_EQ(times(record), full);
  EXPECT_STREQ(asking(full + "U").TimeList[19], "TTTTTTTTTTTTTTT");
  EXPECT_STREQ(asking(std::string(400, 'T')).TimeList[1], "");  // no comma as far as the list is read
  record = asking("TTTTTTTTTTTTTTTT,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21");
  EXPECT_EQ((Texts{record.TimeList[0], record.TimeList[19], record.reserved2}), (Texts{"TTTTTTTTTTTTTTT", "19", ""}));
  EXPECT_EQ(times(asking("A,,B")), "A,B,");
  const std::string answer =
      "<RESPONSE_PARAM\nTime=\"C\"\n/>\n<ImageInfo\nTotalLen=\"9\"\nStartPos=\"8\"\nDataLen=\"7\"\n/>\n";
  record = analysed<MEDIA_DATA_8_PARAM>(kType, "8", answer + kPos);
  EXPECT_EQ(compose("8", 1, &record), answer + "+11\n");
}

TEST_F(MediaDataTest, IntercomPieceMustFillTheMessage) {
  const std::string body = "<POS\nStartPos=\"-1\"\nDataLen=\"1000\"\nXmlLen=\"6\"\n/>\n";
  const Analysis whole = analysePayload(received(kType, "3", body) + std::string(1004, 'x'));
  ASSERT_EQ(whole.code, 0);
  auto& record = *static_cast<MEDIA_DATA_3_PARAM*>(whole.result.get());
  EXPECT_EQ(compose("3", 0, &record), body + "+1004\n");
  EXPECT_EQ(compose("3", 1, &record), "+0\n");
  record.XmlLen = -1;
  EXPECT_EQ(compose("3", 0, &record), "<POS\nStartPos=\"-1\"\nDataLen=\"1000\"\n/>\n+1004\n");
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
  Untouched out;
  std::uint32_t extraLen = 5;
  const MEDIA_DATA_1_PARAM record;
  expectTold("live/media_data_calls",
             {MediaDataMessageCompose(&record, 0, "9", out.body, 8, &extraLen),
              MediaDataMessageAnalysis("", "0", 0, &out.result), analysisCode(kType, "9", kPos),
              MediaDataMessageCompose(&record, 0, "6", out.body, 8, nullptr),
              MediaDataMessageAnalysis("", nullptr, 0, &out.result), MediaDataMessageAnalysis("", "3", 0, nullptr),
              analysisCode(kType, "7", "<DataInfo/>"), analysisCode(kType, "6", kPos),
              MediaDataMessageCompose(nullptr, 0, "1", out.body, 8, &extraLen)});
  EXPECT_EQ(extraLen, 5);
}

}  // namespace
}  // namespace kov::test
