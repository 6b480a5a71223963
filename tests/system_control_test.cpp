// Dispatch of the system control family, and the codes that run more than one message.
#include "kov_protocol/system_control.h"

#include <cstring>

#include "control/control_messages.h"
#include "every_message.h"
#include "trials.h"

namespace kov::test {
namespace {

const std::string kType = SYSTEM_CONTROL_MESSAGE_TYPE;

const NoRoundTrip kIrcut(kType, "1046", "its code is unknown to analysis");
const NoRoundTrip kKeyFrame(kType, "1032", "a record of equal bytes names neither spelling");

using Lines = std::vector<std::string>;

class SystemControlTest : public WireTest {
 protected:
  // What the exported dispatcher makes of a body, as against the entry.
  Analysis dispatched(const std::string& code, const std::string& body) {
    Analysis analysis;
    void* result = nullptr;
    analysis.code = SystemControlMessageAnalysis(received(kType, code, body).c_str(), code.c_str(), &result);
    analysis.result.reset(result);
    return analysis;
  }
};

TEST_F(SystemControlTest, IrcutIsComposedAndReadByItsOwnFunctionOnly) {
  const std::string body = "<REQUEST_PARAM\nMode=\"night\"\n/>\n";
  void* result = nullptr;
  ASSERT_EQ(SystemControl_SetIpcIrcut_MessageAnalysis(received(kType, "1046", body).c_str(), &result), 0);
  EXPECT_EQ(bodyOf(kType, "1046", 0, result), body);
  KovProtocolMSGAnalysisStop(&result);
  EXPECT_EQ(analysisCode(kType, "1046", body), KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(dispatched("1046", body).code, KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(failures(), Lines(2, "E SYSTEM_CONTROL_MESSAGE deal a unknow msg_cdoe : 1046\n"));
}

// ---- 1014: the serial number's body over the storage body

SYSTEM_CONTROL_1014_PARAM threeDevices() {
  SYSTEM_CONTROL_1014_PARAM record;
  std::memset(record.Devices[0].DevName, 'n', sizeof record.Devices[0].DevName);  // without a NUL
  set(record.Devices[1].DevName, "sdb");
  record.Devices[1].Mounted = 1;
  record.Devices[1].Percent = 50;
  return record;
}

TEST_F(SystemControlTest, StorageAnswerLeavesAsTheFirstDevicesName) {
  const SYSTEM_CONTROL_1014_PARAM record = threeDevices();
  const std::string expected = "<RESPONSE_PARAM\nSerialNumber=\"" + std::string(64, 'n') + "\"\n/>\n";
  char body[2048];
  for (const int direction : {1, 3, 4, -1}) {
    EXPECT_EQ(bodyOf(kType, "1014", direction, &record), expected);
    ASSERT_EQ(SystemControlMessageCompose(&record, direction, "1014", body, sizeof body), 0);
    EXPECT_EQ(body, expected);
  }
  for (int size = 1; size <= 100; size += 11) {
    const std::unique_ptr<char[]> exact(new char[static_cast<std::size_t>(size)]);
    ASSERT_EQ(SystemControlMessageCompose(&record, 1, "1014", exact.get(), size), 0);
    EXPECT_EQ(exact.get(), expected.substr(0, static_cast<std::size_t>(size) - 1));
  }
  set(body, "?");
  EXPECT_EQ(bodyOf(kType, "1014", 0, &record), "");
  EXPECT_EQ(SystemControlMessageCompose(&record, 2, "1014", body, sizeof body), 0);
  EXPECT_STREQ(body, "?");
}

TEST_F(SystemControlTest, StorageBodyRunsItsElementIntoTheFirstAttribute) {
  const SYSTEM_CONTROL_1014_PARAM record = threeDevices();
  char text[2048];
  BodyWriter body(text, sizeof text);
  ASSERT_EQ(kGetIpcStorageCfg.compose(&record, 1, body), 0);
  body.terminate();
  EXPECT_EQ(text, golden("control/storage.txt"));
}

const std::string kStorage =
    "<RESPONSE_PARAM><DeviceInfo DevName=\"a\" Total=\"1\"/><DeviceInfo DevName=\"b\" Total=\"2\"/>"
    "<DeviceInfo DevName=\"c\" Used=\"3\"/></RESPONSE_PARAM>";
const std::string kNoRequest = "E SystemControl_StorageDeviceFormat_MessageAnalysis get REQUEST_PARAM error\n";

TEST_F(SystemControlTest, StorageAnswerFailsAndLeavesItsRecordWithTheLastDeviceInFront) {
  for (const bool byEntry : {true, false}) {
    resetPlatform();
    const Analysis read = byEntry ? analysePayload(received(kType, "1014", kStorage)) : dispatched("1014", kStorage);
    EXPECT_EQ(read.code, KOV_ERROR_NO_ELEMENT);
    EXPECT_EQ(failures(), Lines{kNoRequest});
    ASSERT_NE(read.result, nullptr);
    const auto& devices = static_cast<SYSTEM_CONTROL_1014_PARAM*>(read.result.get())->Devices;
    EXPECT_STREQ(devices[0].DevName, "c");
    EXPECT_EQ(devices[0].Total, 2);
    EXPECT_EQ(devices[0].Used, 3);
    EXPECT_EQ(devices[0].Percent, -1);
    EXPECT_STREQ(devices[1].DevName, "");
    EXPECT_EQ(devices[2].Total, -1);
  }
}

// The leak checker sees whether the record that is replaced was released. The new one may be composed under the code
// that it came with.
TEST_F(SystemControlTest, StorageFormatReplacesTheStorageRecord) {
  for (const std::string& body :
       {kStorage + "<REQUEST_PARAM DevName=\"sda\"/>", "<REQUEST_PARAM DevName=\"sda\"/>" + kStorage}) {
    for (const bool byEntry : {true, false}) {
      const Analysis read = byEntry ? analysePayload(received(kType, "1014", body)) : dispatched("1014", body);
      EXPECT_EQ(read.code, 0);
      ASSERT_NE(read.result, nullptr);
      EXPECT_STREQ(static_cast<SYSTEM_CONTROL_1017_PARAM*>(read.result.get())->DevName, "sda");
      EXPECT_EQ(bodyOf(kType, "1014", 1, read.result.get()), "<RESPONSE_PARAM\nSerialNumber=\"sda\"\n/>\n");
    }
  }
  EXPECT_EQ(failures(), Lines());
}

TEST_F(SystemControlTest, StorageTellsTheFailuresOfBothMessages) {
  int untouched = 0;
  void* result = &untouched;
  expectTold("control/storage_calls",
             {SystemControlMessageAnalysis("<XML_ZANTIR>", "1014", &result),
              SystemControlMessageAnalysis("<XML_ZANTIR/>", "1014", &result),
              SystemControlMessageAnalysis("<XML_ZANTIR><MESSAGE_BODY/></XML_ZANTIR>", "1014", &result)});
  EXPECT_EQ(result, &untouched);
}

TEST_F(SystemControlTest, StorageWithoutMemoryForEitherRecord) {
  const std::string both = received(kType, "1014", kStorage + "<REQUEST_PARAM DevName=\"sda\"/>");
  failAllocation(1);
  EXPECT_EQ(analysePayload(received(kType, "1014", kStorage)).result, nullptr);
  EXPECT_EQ(failures(), (Lines{"E Malloc Memory failed!\n", kNoRequest}));
  resetPlatform();
  failAllocation(2);
  const Analysis second = analysePayload(both);
  EXPECT_EQ(second.code, KOV_ERROR_NO_MEMORY);
  EXPECT_EQ(second.result, nullptr);
}

TEST_F(SystemControlTest, VersionsAreToldUnderTheNameOfTheTime) {
  void* result = nullptr;
  expectTold("control/versions_calls", {SystemControl_GetIpcSysVersion_MessageAnalysis(nullptr, &result),
                                        SystemControl_GetIpcSysVersion_MessageAnalysis("", nullptr),
                                        SystemControl_GetIpcSysVersion_MessageAnalysis("<XML_ZANTIR>", &result),
                                        SystemControl_GetIpcSysVersion_MessageAnalysis("<XML_ZANTIR/>", &result)});
  const Analysis byText = dispatched("1012", "<SystemInfo ChannelNum=\"16\"/>");
  ASSERT_EQ(byText.code, 0);
  EXPECT_EQ(static_cast<SYSTEM_CONTROL_1012_PARAM*>(byText.result.get())->SystemInfo.ChannelNum, 16);
}

TEST_F(SystemControlTest, AbilitiesHaveAComposeFunctionOfTheirOwn) {
  SYSTEM_CONTROL_1020_PARAM record;
  char body[16] = "?";
  EXPECT_EQ(SystemControl_GetSysAbality_MessageCompose(&record, 2, body, 16), 0);
  EXPECT_STREQ(body, "?");
  EXPECT_EQ(SystemControl_GetSysAbality_MessageCompose(nullptr, 1, body, 16), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(SystemControl_GetSysAbality_MessageCompose(&record, 1, nullptr, 16), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(SystemControl_GetSysAbality_MessageCompose(&record, 1, body, 0), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(logLines(), Lines(3, "I SystemControl_GetSysAbality_MessageCompose put a empty Param\n"));
  EXPECT_EQ(SystemControl_GetSysAbality_MessageCompose(&record, 1, body, 16), 0);
  EXPECT_STREQ(body, "<RESPONSE_PARAM");
}

}  // namespace
}  // namespace kov::test
