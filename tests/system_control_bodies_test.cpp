// Bodies of the system control family that are not one element with all attributes of the record.
#include "kov_protocol/system_config.h"
#include "kov_protocol/system_control.h"
#include "trials.h"

namespace kov::test {
namespace {

const std::string kType = SYSTEM_CONTROL_MESSAGE_TYPE;

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

TEST_F(SystemControlBodies, AbilitiesAreServedUnderThreeTypes) {
  for (const char* type :
       {SYSTEM_CONTROL_MESSAGE_TYPE, SYSTEM_CONFIG_GET_MESSAGE_TYPE, SYSTEM_CONFIG_SET_MESSAGE_TYPE}) {
    const auto read = analysed<SYSTEM_CONTROL_1020_PARAM>(type, "1020", textOf("abilities"));
    EXPECT_EQ(read.NoRemoteAuthority, 0);
    EXPECT_STREQ(read.PTZControl, "p");
    EXPECT_EQ(bodyOf(type, "1020", 1, &read), textOf("abilities"));
    EXPECT_EQ(bodyOf(type, "1020", 0, &read), "");
    EXPECT_EQ(analysed<SYSTEM_CONTROL_1020_PARAM>(type, "1020", textOf("abilities_plain")).NoRemoteAuthority, -1);
  }
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
