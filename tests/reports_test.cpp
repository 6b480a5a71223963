// Alarms, reports of devices and repairs of cameras.
#include <algorithm>

#include "every_message.h"
#include "kov_protocol/alarm_report.h"
#include "kov_protocol/device_report.h"
#include "kov_protocol/ipc_repair.h"
#include "trials.h"

namespace kov::test {
namespace {

using Alarm = ALARM_REPORT_CMD_RPEORT_ALARM_PARAM;
using Face = ALARM_REPORT_HUMAN_FACE_INFO;

const std::string kDevice = DEVICE_REPORT_MESSAGE_TYPE;
const std::string kIpcRepair = IPC_REPAIR_MESSAGE_TYPE;
const std::string kAlarmType = ALARM_REPORT_MESSAGE_TYPE;
const std::string kAlarmCode = ALARM_REPORT_MESSAGE_CODE;

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

const AlsoTested kAlarm({kAlarmType, kAlarmCode, kRecordType<Alarm>, fillAlarm});
const AlsoTested kFaceAlarm({kAlarmType, kAlarmCode, kRecordType<Alarm>, fillFaceAlarm});

const std::string kOpening = "<ALARM_REPORT_PARAM>\n<ALARM_ITEM>\n<ALARM_INFO\n";
const std::string kEnding = "</ALARM_ITEM>\n</ALARM_REPORT_PARAM>\n";

// An alarm as it arrives, with what stands behind the document.
class Arrived {
 public:
  explicit Arrived(const std::string& extra, const std::string& tail = "")
      : analysis_(analysePayload(received(kAlarmType, kAlarmCode, kOpening + "/>\n" + extra + kEnding) + tail)) {
    EXPECT_EQ(analysis_.code, 0);
  }
  Alarm& alarm() const { return *static_cast<Alarm*>(analysis_.result.get()); }
  // The memory behind the record has room for a face, whatever arrived.
  Face& extra() const {
    EXPECT_EQ(alarm().pExData, static_cast<char*>(analysis_.result.get()) + sizeof(Alarm));
    return *static_cast<Face*>(alarm().pExData);
  }
  std::string bodyAs(std::int32_t code) const {
    alarm().Alarm_code = code;
    return bodyOf(kAlarmType, kAlarmCode, 0, &alarm());
  }

 private:
  Analysis analysis_;
};

std::uint32_t extraLengthOf(const Alarm& alarm, int direction = 0) {
  char out[2048];
  std::uint32_t extraLength = 7;
  EXPECT_EQ(AlarmReportMessageCompose(&alarm, direction, out, sizeof out, &extraLength), 0);
  return extraLength - 7;
}

class AlarmReportTest : public WireTest {};

TEST_F(AlarmReportTest, FaceCountsItsFeatureData) {
  EXPECT_EQ(analysed<Alarm>(kAlarmType, kAlarmCode, golden("reports/alarm.txt")).pExData, nullptr);
  const Arrived face("<HumanFaceInfo AlgVer=\"2\"/><ANIMAL_INFO/>");
  face.alarm().Alarm_code = 39;
  EXPECT_EQ((Numbers{extraLengthOf(face.alarm()), extraLengthOf(face.alarm(), 3)}), (Numbers{1028, 0}));
  face.extra().AlgVer = 1;
  EXPECT_EQ((Numbers{extraLengthOf(face.alarm()), Arrived("<HumanFaceInfo absTime=\"4294967294\"/>").extra().absTime}),
            (Numbers{516, -2}));
}

TEST_F(AlarmReportTest, FeatureDataIsTakenAsFarAsItWasReceived) {
  const auto taken = [](const std::string& element, const std::string& tail) {
    const Face face = Arrived(element, tail).extra();
    EXPECT_STREQ(face.uniqueIndex, "");
    return std::string(face.feature, std::find(face.feature, std::end(face.feature), 0));
  };
  const std::string data = "abcd" + std::string(2000, 'F');
  EXPECT_EQ(taken("<HumanFaceInfo AlgVer=\"2\"/>", data), std::string(1024, 'F'));
  EXPECT_EQ(taken("<HumanFaceInfo AlgVer=\"1\"/>", data), std::string(512, 'F'));
  for (const std::size_t length : {0U, 3U, 4U}) EXPECT_EQ(taken("<HumanFaceInfo/>", data.substr(0, length)), "");
  EXPECT_EQ(taken("<HumanFaceInfo/>", data.substr(0, 1000)), std::string(996, 'F'));

  // The caller of the function vouches for what a face needs, and no more is read.
  std::string text = received(kAlarmType, kAlarmCode, kOpening + "/><HumanFaceInfo AlgVer=\"1\"/>" + kEnding);
  text += std::string(4, '\0') + std::string(512, 'F');
  void* result = nullptr;
  ASSERT_EQ(AlarmReportMessageAnalysis(std::vector<char>(text.begin(), text.end()).data(), &result), 0);
  EXPECT_EQ(static_cast<Face*>(static_cast<Alarm*>(result)->pExData)->feature[511], 'F');
  KovProtocolMSGAnalysisStop(&result);
}

TEST_F(AlarmReportTest, SmallerExtrasHaveRoomForAFace) {
  const std::string tail(2000, 'F');
  const Arrived animal("<CROSSBORDER_INFO/><ANIMAL_INFO Animal_type=\"9\"/>", tail);
  EXPECT_NE(animal.bodyAs(45).find("<ANIMAL_INFO\nAnimal_type=\"9\"\n/>\n" + kEnding), std::string::npos);
  EXPECT_EQ(extraLengthOf(animal.alarm()), 0U);
  EXPECT_NE(animal.bodyAs(38).find("<HumanFaceInfo\nAge=\"9\"\nGender=\"0\"\n"), std::string::npos);
  EXPECT_EQ(animal.extra().feature[0], 0);

  const Arrived crossing("<CROSSBORDER_INFO CrowdFlowStatEnable=\"1\" CrowdFlowNum=\"7\"/>", tail);
  const auto& read = *static_cast<ALARM_REPORT_CROSSBORDER_INFO*>(crossing.alarm().pExData);
  EXPECT_EQ((Numbers{read.CrowdFlowStatEnable, read.CrowdFlowNum}), (Numbers{1, 7}));
  resetPlatform();
  EXPECT_EQ(crossing.bodyAs(40).find("CROSSBORDER"), std::string::npos);
  EXPECT_EQ(failures(),
            std::vector<std::string>{"D ALARM_REPORT_MESSAGE message deal alarm_code:40 , code has pExData, "
                                     "but unknow type to use\n"});
}

TEST_F(AlarmReportTest, TellsWhatItRefuses) {
  const Alarm alarm;
  Untouched out;
  std::uint32_t extraLength = 0;
  EXPECT_EQ(AlarmReportMessageCompose(&alarm, 1, out.body, 8, &extraLength), 0);
  EXPECT_EQ(logLines().back(), "I ALARM_REPORT_MESSAGE response message Not have Body, please check msgtype\n");
  expectTold("reports/alarm_calls",
             {AlarmReportMessageCompose(nullptr, 0, out.body, 8, &extraLength),
              AlarmReportMessageCompose(&alarm, 0, out.body, 8, nullptr), AlarmReportMessageAnalysis("", nullptr),
              analysisCode(kAlarmType, "CMD_OTHER", "<ALARM_REPORT_PARAM/>"),
              analysisCode(kAlarmType, kAlarmCode, "<ALARM_ITEM/>"), AlarmReportMessageAnalysis("<a/>", &out.result)});
  EXPECT_EQ(documentOf(kAlarmType, "CMD_OTHER", 0, &alarm), "code -1000");
  EXPECT_EQ(failures()[0], "E PTZ_CONTROL_MESSAGE deal a unknow Msg_code:CMD_OTHER !!!\n");
}

class DeviceReportTest : public WireTest {};

TEST_F(DeviceReportTest, PositionEndsBeforeTheReservedWord) {
  EXPECT_STREQ(analysed<DEVICE_REPORT_3900_PARAM>(kDevice, "3900", golden("reports/status.txt")).streamstat,
               "1,0 & more");
  auto record = analysed<DEVICE_REPORT_3901_PARAM>(kDevice, "3901", golden("reports/position.txt"));
  EXPECT_EQ((Numbers{record.y, record.linkage, record.reserved,
                     analysed<DEVICE_REPORT_3901_PARAM>(kDevice, "3901", "<xml><x>5</x></xml>").mul}),
            (Numbers{-2, 0, 0, -1}));
  record.reserved = 77;
  EXPECT_EQ(DEVICE_REPORT_3901_PARAM_init(&record), 0);
  for (const std::int32_t value : {record.x, record.y, record.mul, record.maxMul, record.linkage}) EXPECT_EQ(value, -1);
  EXPECT_EQ(record.reserved, 77);
  EXPECT_EQ(DEVICE_REPORT_3901_PARAM_init(nullptr), KOV_ERROR_NULL);
}

const AlsoTested kRepair({kIpcRepair, "any", kRecordType<IPC_REPAIR_PARAM>});

class IpcRepairTest : public WireTest {
 protected:
  static IPC_REPAIR_PARAM read(const std::string& body) { return analysed<IPC_REPAIR_PARAM>(kIpcRepair, "any", body); }
};

TEST_F(IpcRepairTest, RequestsAndResponsesShareElementsAndFields) {
  const auto asked = read(golden("reports/firmware.txt"));
  EXPECT_EQ(documentOf(kIpcRepair, "", 2, &asked).substr(0, 5), "<?xml");
  EXPECT_STREQ(read("<IPC_REPAIR IPCMac=\"mac\" IpcIdentify=\"\" RepairVer=\"2\"/>").RepairVer, "");
  const std::string response = golden("reports/firmware_answer.txt");
  const auto both = read("<IPC_ALG_REPAIR Alm=\"a\"/>" + response);
  EXPECT_EQ(bodyOf(kIpcRepair, "", 1, &both), response);
  EXPECT_EQ((Texts{both.Mac, both.IPCMac}), (Texts{"ipc", "ipc"}));

  auto answered = read(golden("reports/algorithm_answer.txt"));
  EXPECT_STREQ(answered.Ipaddr, "10.0.0.2");
  set(answered.IPCMac, "ipc");  // the client is told only without its MAC
  EXPECT_EQ(bodyOf(kIpcRepair, "", 1, &answered).find("Client"), std::string::npos);
  EXPECT_STREQ(read("<IPC_ALG_REPAIR ClientMac=\"c\"/>").IPCMac, "c");
}

TEST_F(IpcRepairTest, TellsEmptyArgumentsAndMissingElements) {
  Untouched out;
  const IPC_REPAIR_PARAM record;
  expectTold("reports/repair_calls",
             {IpcRepairMessageCompose(&record, 0, nullptr, 8), IpcRepairMessageCompose(&record, 0, out.body, 0),
              IpcRepairMessageCompose(nullptr, 0, out.body, 8), IpcRepairMessageAnalysis(nullptr, &out.result),
              IpcRepairMessageAnalysis("<a>", &out.result), IpcRepairMessageAnalysis("<a/>", &out.result),
              analysisCode(kIpcRepair, "", "")});
  char cut[8];
  EXPECT_EQ(IpcRepairMessageCompose(&record, 0, cut, 8), 0);
  EXPECT_STREQ(cut, "<IPC_RE");
}

}  // namespace
}  // namespace kov::test
