// The system control family: the code that runs two messages, and the bodies that are not one element with all
// attributes of the record.
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
  Untouched out;
  expectTold("control/storage_calls",
             {SystemControlMessageAnalysis("<XML_ZANTIR>", "1014", &out.result),
              SystemControlMessageAnalysis("<XML_ZANTIR/>", "1014", &out.result),
              SystemControlMessageAnalysis("<XML_ZANTIR><MESSAGE_BODY/></XML_ZANTIR>", "1014", &out.result)});
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

// ---- Bodies

std::string textOf(const std::string& file) { return golden("control/" + file + ".txt"); }

template <class Record>
Record readFile(const std::string& code, const std::string& file) {
  return analysed<Record>(kType, code, textOf(file));
}

class SystemControlBodies : public WireTest {};

TEST_F(SystemControlBodies, AreReadIntoTheirFields) {
  EXPECT_EQ(readFile<SYSTEM_CONTROL_1022_PARAM>("1022", "upload_response").FileType, 2);
  EXPECT_STREQ(readFile<SYSTEM_CONTROL_1022_PARAM>("1009", "download_request").FilePath, "/f");
  EXPECT_EQ(readFile<SYSTEM_CONTROL_1022_PARAM>("1024", "download_response").FileLength, 5U);
  EXPECT_STREQ(readFile<SYSTEM_CONTROL_1012_PARAM>("1012", "versions_of_channel").HardVersion, "h");
  EXPECT_STREQ(readFile<SYSTEM_CONTROL_1012_PARAM>("1012", "system_info").SystemInfo.TelnetPort, "23");
  EXPECT_STREQ(readFile<SYSTEM_CONTROL_1031_PARAM>("1031", "media_abilities_v2").VideoBestParameter.CapList, "b");
  EXPECT_EQ(readFile<SYSTEM_CONTROL_3020_PARAM>("3020", "restart").Day, 6);
  EXPECT_STREQ(readFile<SYSTEM_CONTROL_3026_PARAM>("3026", "custom").InProjectPwd, "p");
  EXPECT_EQ(readFile<SYSTEM_CONTROL_3300_PARAM>("3300", "display").Chroma, 4);
  auto network = readFile<SYSTEM_CONTROL_1026_PARAM>("1026", "network_both");
  EXPECT_STREQ(network.Wire.Gateway, "g");
  EXPECT_STREQ(network.Wireless.AccessPoint, "a");
  EXPECT_STREQ(network.Url, "q");
  set(network.Wireless.IPAddress, "");  // without it there is no wireless part, whatever else is set
  EXPECT_EQ(bodyOf(kType, "1026", 1, &network), textOf("network_wired"));
  const SYSTEM_CONTROL_1030_PARAM device;  // starts with the low word of its features only
  EXPECT_NE(bodyOf(kType, "1030", 1, &device).find("\nFeature=\"4294967295\"\n"), std::string::npos);
}

TEST_F(SystemControlBodies, DownloadIsWrittenOnlyWithWhatItNeeds) {
  SYSTEM_CONTROL_1022_PARAM record;
  record.FileLength = 5;
  record.Port = 80;
  for (const char* code : {"1009", "1023", "1024"}) {
    for (const int direction : {0, 1}) EXPECT_EQ(bodyOf(kType, code, direction, &record), "");
  }
}

TEST_F(SystemControlBodies, UpdateNamesItsChannelBehindTheClosedElement) {
  SYSTEM_CONTROL_1090_PARAM record;
  set(record.url, "u?a&b");
  set(record.md5, "m");
  EXPECT_EQ(bodyOf(kType, "1090", 0, &record), textOf("update"));
  EXPECT_EQ(bodyOf(kType, "1090", 1, &record), "<RESPONSE_PARAM\n/>\n");
  record.EmptyChannelId = 1;
  EXPECT_EQ(bodyOf(kType, "1090", 0, &record), textOf("update_empty_channel"));
  record.ChannelId = 3;
  EXPECT_EQ(bodyOf(kType, "1090", 0, &record), textOf("update_channel"));
  EXPECT_EQ(readFile<SYSTEM_CONTROL_1090_PARAM>("1090", "update_channel").ChannelId, -1);
  EXPECT_EQ(analysed<SYSTEM_CONTROL_1090_PARAM>(kType, "1090", "<RESPONSE_PARAM ChannelId=\"3\"/>").ChannelId, 3);
}

TEST_F(SystemControlBodies, UpdateStatusMayLeaveTheChannelOutAndCancelMayNot) {
  SYSTEM_CONTROL_1092_PARAM record;
  EXPECT_EQ(bodyOf(kType, "1092", 0, &record), "<REQUEST_PARAM\n/>\n");
  record.EmptyChannelId = 1;
  EXPECT_EQ(bodyOf(kType, "1092", 1, &record), "<RESPONSE_PARAM\nProgress=\"-1\"\nState=\"-1\"\nChannelId=\"\"\n/>\n");
  EXPECT_EQ(bodyOf(kType, "1093", 0, &record), "<REQUEST_PARAM\nChannelId=\"-1\"\n/>\n");
}

TEST_F(SystemControlBodies, VersionsArePreferredToTheSystemInfoAndMayHaveAnEmptyChannel) {
  auto record = readFile<SYSTEM_CONTROL_1012_PARAM>("1012", "versions");
  record.EmptyChannelId = 0;
  EXPECT_EQ(bodyOf(kType, "1012", 3, &record), textOf("versions_empty_channel"));
  record.HasSystemInfo = 0;
  record.SystemInfo = analysed<SYSTEM_CONTROL_3000_PARAM>(kType, "3000", textOf("system_info"));
  EXPECT_EQ(bodyOf(kType, "1012", 1, &record), textOf("system_info"));
  const std::string both = "<SystemInfo HdNum=\"9\"/>" + textOf("versions_of_channel");
  const auto read = analysed<SYSTEM_CONTROL_1012_PARAM>(kType, "1012", both);
  EXPECT_EQ(read.ChannelId, 4);
  EXPECT_EQ(read.HasSystemInfo, -1);
  EXPECT_EQ(read.SystemInfo.HdNum, -1);
  EXPECT_EQ(analysed<SYSTEM_CONTROL_1012_PARAM>(kType, "1012", "<REQUEST_PARAM ChannelId=\"5\"/>").ChannelId, 5);
}

TEST_F(SystemControlBodies, AbilitiesMayLeaveTheRemoteAuthorityOut) {
  const auto read = readFile<SYSTEM_CONTROL_1020_PARAM>("1020", "abilities");
  EXPECT_EQ(read.NoRemoteAuthority, 0);
  EXPECT_STREQ(read.PTZControl, "p");
  EXPECT_EQ(readFile<SYSTEM_CONTROL_1020_PARAM>("1020", "abilities_plain").NoRemoteAuthority, -1);
}

TEST_F(SystemControlBodies, KeyFrameIsSpeltInTwoWays) {
  for (const int form : {0, 1}) {
    auto read = readFile<SYSTEM_CONTROL_1032_PARAM>("1032", form == 0 ? "key_frame_channel" : "key_frame_camera");
    EXPECT_EQ(read.bSendIpc, form);
    EXPECT_EQ(read.ChannelId, 2);
    EXPECT_EQ(read.StreamIndex, 1);
  }
  const std::pair<const char*, int> partly[] = {
      {"", -1}, {"ChannelId=\"5\"", 0}, {"StreamIndex=\"5\"", 0}, {"Camera=\"5\"", 1}, {"Stream=\"5\"", 1}};
  SYSTEM_CONTROL_1032_PARAM record;
  for (const auto& [attribute, form] : partly) {
    record = analysed<SYSTEM_CONTROL_1032_PARAM>(kType, "1032", "<REQUEST_PARAM " + std::string(attribute) + "/>");
    EXPECT_EQ(record.bSendIpc, form) << attribute;
  }
  record.bSendIpc = 2;
  EXPECT_EQ(bodyOf(kType, "1032", 1, &record), "");
  EXPECT_TRUE(failures().empty());
  EXPECT_EQ(bodyOf(kType, "1032", 0, &record), "");
  EXPECT_EQ(failures(), std::vector<std::string>{"E SystemControl_GetIpcKeyFrame_MessageCompose unknow bSendIpc:2\n"});
}

TEST_F(SystemControlBodies, NetworkCheckReadsQuestionAndAnswerTogether) {
  const std::string request = textOf("network_check");
  const std::string response = textOf("network_check_result");
  for (const std::string& body : {request + response, response + request}) {
    const auto read = analysed<SYSTEM_CONTROL_3027_PARAM>(kType, "3027", body);
    EXPECT_EQ(read.TotalPackets, 10);
    EXPECT_EQ(read.SkipPacketRatio, 0.25F);
  }
}

TEST_F(SystemControlBodies, DisksFollowTheirNumberAsFarAsTheTableGoes) {
  const auto record = readFile<SYSTEM_CONTROL_3500_PARAM>("3500", "disks");
  EXPECT_EQ((Numbers{record.DiskNum, record.Disks[0].Status}), (Numbers{-1, 2}));
  expectBounded(kType, "3500", 1, WireList("control/disks", "<DeviceInfo"), 11, &SYSTEM_CONTROL_3500_PARAM::DiskNum);
  const std::string many = "<RESPONSE_PARAM DiskNum=\"40\">" + repeated("<DeviceInfo DevIndex=\"9\"/>", 40);
  const auto cut = analysed<SYSTEM_CONTROL_3500_PARAM>(kType, "3500", many + "</RESPONSE_PARAM>");
  EXPECT_EQ((Numbers{cut.DiskNum, cut.Disks[10].DevIndex}), (Numbers{40, 9}));
}

}  // namespace
}  // namespace kov::test
