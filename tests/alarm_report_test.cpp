#include "kov_protocol/alarm_report.h"

#include "every_message.h"
#include "wire.h"

namespace kov::test {
namespace {

using Alarm = ALARM_REPORT_CMD_RPEORT_ALARM_PARAM;
using Face = ALARM_REPORT_HUMAN_FACE_INFO;

const std::string kType = ALARM_REPORT_MESSAGE_TYPE;
const std::string kCode = ALARM_REPORT_MESSAGE_CODE;

void fillAlarm(void* record, unsigned char value) {
  std::memset(record, value, sizeof(Alarm));
  static_cast<Alarm*>(record)->pExData = nullptr;
}

void fillFaceAlarm(void* record, unsigned char value) {
  static Face face;
  std::memset(static_cast<void*>(&face), value, sizeof face);
  fillAlarm(record, value);
  static_cast<Alarm*>(record)->Alarm_code = 38;
  static_cast<Alarm*>(record)->pExData = &face;
}

const AlsoTested kAlarm({kType, kCode, kRecordType<Alarm>, fillAlarm});
const AlsoTested kFaceAlarm({kType, kCode, kRecordType<Alarm>, fillFaceAlarm});

const std::string kOpening = "<ALARM_REPORT_PARAM>\n<ALARM_ITEM>\n<ALARM_INFO\n";
const std::string kEnding = "</ALARM_ITEM>\n</ALARM_REPORT_PARAM>\n";

std::string bodyWith(const std::string& extra) { return kOpening + "/>\n" + extra + kEnding; }

struct Received {
  Analysis analysis;
  const Alarm& alarm() const { return *static_cast<Alarm*>(analysis.result.get()); }
  // The memory behind the record has room for a face, whatever is in it.
  Face extra() const {
    EXPECT_EQ(alarm().pExData, static_cast<char*>(analysis.result.get()) + sizeof(Alarm));
    return *static_cast<Face*>(alarm().pExData);
  }
};

Received receive(const std::string& body, const std::string& tail = "") {
  Received received = {analysePayload(test::received(kType, kCode, body) + tail)};
  EXPECT_EQ(received.analysis.code, 0);
  return received;
}

std::uint32_t extraLengthOf(const Alarm& alarm, int direction = 0) {
  char out[2048];
  std::uint32_t extraLength = 7;
  EXPECT_EQ(AlarmReportMessageCompose(&alarm, direction, out, sizeof out, &extraLength), 0);
  return extraLength - 7;
}

class AlarmReportTest : public WireTest {};

TEST_F(AlarmReportTest, ElementsAreLeftOutWhileUnset) {
  Alarm alarm;
  const std::string info = "Alarm_code=\"-1\"\nAlarm_flag=\"-1\"\nAlarm_level=\"-1\"\nAlarm_data=\"\"\n";
  EXPECT_EQ(bodyOf(kType, kCode, 0, &alarm), kOpening + info + "/>\n" + kEnding);
  const std::string full =
      "<ALARM_REPORT_PARAM>\n<SRC_INFO\nSrc=\"1\"\nChannelId=\"2\"\n/>\n<ALARM_ITEM>\n<ALARM_INFO\n" + info +
      "Alarm_absTime=\"-2\"\n/"
      ">\n<ALARM_TIME\nYear=\"3\"\nMonth=\"4\"\nDay=\"5\"\nWDay=\"6\"\nHour=\"7\"\nMinute=\"8\"\n"
      "Second=\"9\"\n/>\n" +
      kEnding;
  const Received received = receive(full);
  EXPECT_EQ(received.alarm().Alarm_absTime, UINT32_MAX - 1);
  EXPECT_EQ(received.alarm().pExData, nullptr);
  EXPECT_EQ(bodyOf(kType, kCode, 4, &received.alarm()), full);
}

TEST_F(AlarmReportTest, FaceGoesWithItsFeatureData) {
  const std::string element =
      "<HumanFaceInfo\nAge=\"1\"\nGender=\"2\"\nIsGlasses=\"3\"\nIsMask=\"4\"\nIsHat=\"5\"\nDataLen=\"6\"\n"
      "SimilarityThreshold=\"7\"\nSerialNum=\"4294967295\"\nAlgVer=\"2\"\nuniqueIndex=\"u\"\nabsTime=\"-9\"\n"
      "faceQualityScore=\"0.500000\"\nHsvAreaScore=\"-1.000000\"\nBlurSMD=\"2.250000\"\nErrorCode=\"-3\"\n/>\n";
  const Received received = receive(bodyWith(element + "<ANIMAL_INFO Animal_type=\"1\"/>"));
  EXPECT_EQ(received.extra().IsMask, 4);
  EXPECT_EQ(received.extra().IsHat, 5);
  Alarm alarm = received.alarm();
  for (const int code : {38, 39}) {
    alarm.Alarm_code = code;
    EXPECT_NE(bodyOf(kType, kCode, 0, &alarm).find("/>\n" + element + kEnding), std::string::npos);
  }
  EXPECT_EQ(extraLengthOf(alarm), 1028U);
  EXPECT_EQ(extraLengthOf(alarm, 3), 0U);
  static_cast<Face*>(alarm.pExData)->AlgVer = 1;
  EXPECT_EQ(extraLengthOf(alarm), 516U);
  EXPECT_EQ(receive(bodyWith("<HumanFaceInfo absTime=\"4294967294\"/>")).extra().absTime, -2);
}

TEST_F(AlarmReportTest, FeatureDataIsTakenAsFarAsItWasReceived) {
  const auto feature = [](const std::string& algVer, std::size_t tail) {
    const Face face =
        receive(bodyWith("<HumanFaceInfo AlgVer=\"" + algVer + "\"/>"), "abcd" + std::string(tail, 'F')).extra();
    const std::string bytes(face.feature, face.feature + sizeof face.feature);
    EXPECT_EQ(bytes.find_last_not_of(std::string("F\0", 2)), std::string::npos);
    EXPECT_STREQ(face.uniqueIndex, "");
    return bytes.find('\0') == std::string::npos ? bytes.size() : bytes.find('\0');
  };
  EXPECT_EQ(feature("2", 2000), 1024U);
  EXPECT_EQ(feature("1", 2000), 512U);
  EXPECT_EQ(feature("2", 1000), 1000U);
  EXPECT_EQ(feature("2", 0), 0U);
  EXPECT_EQ(receive(bodyWith("<HumanFaceInfo/>"), "abc").extra().feature[0], 0);

  const std::string text = received(kType, kCode, bodyWith("<HumanFaceInfo AlgVer=\"1\"/>"));
  const std::string exact = text + std::string(1, '\0') + "bcd" + std::string(512, 'F');
  void* result = nullptr;
  ASSERT_EQ(AlarmReportMessageAnalysis(std::vector<char>(exact.begin(), exact.end()).data(), &result), 0);
  EXPECT_EQ(static_cast<Face*>(static_cast<Alarm*>(result)->pExData)->feature[511], 'F');
  KovProtocolMSGAnalysisStop(&result);
}

TEST_F(AlarmReportTest, SmallerExtrasHaveRoomForAFace) {
  const std::string tail(2000, 'F');
  const Received animal = receive(bodyWith("<CROSSBORDER_INFO/><ANIMAL_INFO Animal_type=\"9\"/>"), tail);
  Alarm alarm = animal.alarm();
  alarm.Alarm_code = 44;
  EXPECT_NE(bodyOf(kType, kCode, 0, &alarm).find("<ANIMAL_INFO\nAnimal_type=\"9\"\n/>\n" + kEnding), std::string::npos);
  EXPECT_EQ(extraLengthOf(alarm), 0U);
  alarm.Alarm_code = 38;
  EXPECT_NE(bodyOf(kType, kCode, 0, &alarm).find("<HumanFaceInfo\nAge=\"9\"\nGender=\"0\"\n"), std::string::npos);

  const Received crossing = receive(bodyWith("<CROSSBORDER_INFO CrowdFlowStatEnable=\"1\" CrowdFlowNum=\"7\"/>"), tail);
  const Face behind = crossing.extra();
  std::int32_t words[3] = {};
  std::memcpy(words, &behind, sizeof words);
  EXPECT_EQ(words[0], 1);
  EXPECT_EQ(words[1], 7);
  EXPECT_EQ(words[2], 0);
  alarm = crossing.alarm();
  alarm.Alarm_code = 40;
  resetPlatform();
  EXPECT_EQ(bodyOf(kType, kCode, 0, &alarm).find("CROSSBORDER"), std::string::npos);
  EXPECT_EQ(failures(),
            std::vector<std::string>{"D ALARM_REPORT_MESSAGE message deal alarm_code:40 , code has pExData, "
                                     "but unknow type to use\n"});
}

TEST_F(AlarmReportTest, TellsWhatItRefuses) {
  Alarm alarm;
  char out[8] = "?";
  std::uint32_t extraLength = 0;
  void* result = nullptr;
  EXPECT_EQ(AlarmReportMessageCompose(&alarm, 1, out, 8, &extraLength), 0);
  EXPECT_EQ(AlarmReportMessageCompose(nullptr, 0, out, 8, &extraLength), 0);
  EXPECT_EQ(AlarmReportMessageCompose(&alarm, 0, nullptr, 8, &extraLength), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(AlarmReportMessageCompose(&alarm, 0, out, 0, &extraLength), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(AlarmReportMessageCompose(&alarm, 0, out, 8, nullptr), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(AlarmReportMessageAnalysis(nullptr, &result), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(AlarmReportMessageAnalysis("", nullptr), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(AlarmReportMessageAnalysis("<XML_ZANTIR>", &result), KOV_ERROR_BAD_DOCUMENT);
  EXPECT_EQ(AlarmReportMessageAnalysis("<XML_ZANTIR/>", &result), KOV_ERROR_BAD_DOCUMENT);
  const std::string empty = "E ALARM_REPORT_MESSAGE put a empty Param\n";
  const std::string name = "E AlarmReportMessageAnalysis ";
  EXPECT_EQ(logLines(),
            (std::vector<std::string>{"I ALARM_REPORT_MESSAGE response message Not have Body, please check msgtype\n",
                                      empty, empty, empty, name + "put a empty Param\n", name + "put a empty Param\n",
                                      name + "Parse MsgBuf error\n", name + "get MESSAGE_BODY error\n"}));
  EXPECT_STREQ(out, "?");

  resetPlatform();
  EXPECT_EQ(documentOf(kType, "CMD_OTHER", 0, &alarm), "code -1000");
  EXPECT_EQ(analysisCode(kType, "CMD_OTHER", "<ALARM_REPORT_PARAM/>"), KOV_ERROR_NO_ELEMENT);
  EXPECT_EQ(analysisCode(kType, kCode, "<ALARM_ITEM/>"), KOV_ERROR_NO_ELEMENT);
  const std::vector<std::string> lines = failures();
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(lines[0], "E PTZ_CONTROL_MESSAGE deal a unknow Msg_code:CMD_OTHER !!!\n");
  EXPECT_EQ(lines[2], name + "get ALARM_ITEM error\n");
  EXPECT_EQ(lines[3], name + "get ALARM_REPORT_PARAM error\n");
}

}  // namespace
}  // namespace kov::test
