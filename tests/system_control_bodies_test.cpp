// Bodies of the system control family that are not one element with all attributes of the record.
#include "kov_protocol/system_control.h"
#include "wire.h"

namespace kov::test {
namespace {

const std::string kType = SYSTEM_CONTROL_MESSAGE_TYPE;

class SystemControlBodies : public WireTest {};

TEST_F(SystemControlBodies, UploadTellsTheFileTypeAsTypeInItsAnswer) {
  SYSTEM_CONTROL_1022_PARAM record;
  record.FileType = 2;
  record.Port = 80;
  set(record.FilePath, "/f");
  const std::string request =
      "<REQUEST_PARAM\nFileType=\"2\"\nFilePath=\"/f\"\nStartPos=\"-1\"\nFileLength=\"4294967295\"\n";
  EXPECT_EQ(bodyOf(kType, "1022", 0, &record), request + "/>\n");
  set(record.AlarmAudioName, "a");
  EXPECT_EQ(bodyOf(kType, "1022", 2, &record), request + "AlarmAudioName=\"a\"\n/>\n");
  const std::string response = "<RESPONSE_PARAM\nPort=\"80\"\nType=\"2\"\n/>";
  EXPECT_EQ(bodyOf(kType, "1022", 1, &record), response);
  EXPECT_EQ(analysed<SYSTEM_CONTROL_1022_PARAM>(kType, "1022", response).FileType, 2);
}

TEST_F(SystemControlBodies, DownloadIsWrittenOnlyWithWhatItNeeds) {
  for (const char* code : {"1009", "1023", "1024"}) {
    SYSTEM_CONTROL_1022_PARAM record;
    record.FileLength = 5;
    record.Port = 80;
    EXPECT_EQ(bodyOf(kType, code, 0, &record), "");
    EXPECT_EQ(bodyOf(kType, code, 1, &record), "");
    record.FileType = 0;
    set(record.FilePath, "/f");
    EXPECT_EQ(bodyOf(kType, code, 0, &record), "<REQUEST_PARAM\nFileName=\"/f\"\n/>\n");
    record.StartPos = 1;
    const std::string request = "<REQUEST_PARAM\nFileName=\"/f\"\nStartPos=\"1\"\n/>\n";
    const std::string response = "<RESPONSE_PARAM\nPort=\"80\"\nType=\"0\"\nFileLength=\"5\"\n/>\n";
    EXPECT_EQ(bodyOf(kType, code, 2, &record), request);
    EXPECT_EQ(bodyOf(kType, code, 1, &record), response);
    EXPECT_STREQ(analysed<SYSTEM_CONTROL_1022_PARAM>(kType, code, request).FilePath, "/f");
    EXPECT_EQ(analysed<SYSTEM_CONTROL_1022_PARAM>(kType, code, request + response).FileLength, 5U);
    record.FileLength = UINT32_MAX;
    EXPECT_EQ(bodyOf(kType, code, 1, &record), "<RESPONSE_PARAM\nPort=\"80\"\nType=\"0\"\n/>\n");
  }
}

TEST_F(SystemControlBodies, UpdateNamesItsChannelBehindTheClosedElement) {
  SYSTEM_CONTROL_1090_PARAM record;
  set(record.url, "u?a&b");
  set(record.md5, "m");
  const std::string head = "<REQUEST_PARAM\nurl=\"u?a&b\"\nmd5=\"m\"\n/>\n";
  EXPECT_EQ(bodyOf(kType, "1090", 0, &record), head + "/>\n");
  EXPECT_EQ(bodyOf(kType, "1090", 1, &record), "<RESPONSE_PARAM\n/>\n");
  record.EmptyChannelId = 1;
  EXPECT_EQ(bodyOf(kType, "1090", 0, &record), head + "ChannelId=\"\"\n/>\n");
  record.ChannelId = 3;
  const std::string body = head + "ChannelId=\"3\"\n/>\n";
  EXPECT_EQ(bodyOf(kType, "1090", 0, &record), body);
  const auto read = analysed<SYSTEM_CONTROL_1090_PARAM>(kType, "1090", body);
  EXPECT_STREQ(read.url, "u?a&b");
  EXPECT_EQ(read.ChannelId, -1);
  EXPECT_EQ(analysed<SYSTEM_CONTROL_1090_PARAM>(kType, "1090", "<RESPONSE_PARAM ChannelId=\"3\"/>").ChannelId, 3);
}

TEST_F(SystemControlBodies, UpdateStatusMayLeaveTheChannelOutAndCancelMayNot) {
  SYSTEM_CONTROL_1092_PARAM record;
  EXPECT_EQ(bodyOf(kType, "1092", 0, &record), "<REQUEST_PARAM\n/>\n");
  record.EmptyChannelId = 1;
  EXPECT_EQ(bodyOf(kType, "1092", 1, &record), "<RESPONSE_PARAM\nProgress=\"-1\"\nState=\"-1\"\nChannelId=\"\"\n/>\n");
  EXPECT_EQ(bodyOf(kType, "1093", 0, &record), "<REQUEST_PARAM\nChannelId=\"-1\"\n/>\n");
}

TEST_F(SystemControlBodies, NetworkStatusHasAWirelessPartOnlyWithItsAddress) {
  SYSTEM_CONTROL_1026_PARAM record;
  ASSERT_EQ(SYSTEM_CONTROL_1026_PARAM_init(&record), 0);
  const std::string wire =
      "<RESPONSE_PARAM>\n<WIRE_NETWORK\nMacAddress=\"\"\nIPType=\"\"\nIPAddress=\"\"\nNetmask=\"m\"\nGateway=\"g\"\n"
      "Dns1=\"\"\nDns2=\"\"\nMTU=\"-1\"\n/>\n";
  const std::string cloud = "<CLOUD\nLoginStatus=\"-1\"\nID=\"\"\n/>\n<QRCODE_URL\nUrl=\"q\"\n/>\n</RESPONSE_PARAM>\n";
  set(record.Wire.Netmask, "m");
  set(record.Wire.Gateway, "g");
  set(record.Wireless.ESSID, "e");
  set(record.Url, "q");
  EXPECT_EQ(bodyOf(kType, "1026", 1, &record), wire + cloud);
  set(record.Wireless.IPAddress, "i");
  set(record.Wireless.AccessPoint, "a");
  const std::string wireless =
      "<WIRELESS_NETWORK\nMacAddress=\"\"\nIPAddress=\"i\"\nNetmask=\"\"\nGateway=\"\"\nESSID=\"e\"\n"
      "OperationMode=\"\"\nAccessPoint=\"a\"\nBitrate=\"\"\nFrequency=\"\"\nEncrptType=\"\"\nLinkQuality=\"255\"\n"
      "SignalLevel=\"-1\"\nNoise=\"-1\"\n/>\n";
  EXPECT_EQ(bodyOf(kType, "1026", 1, &record), wire + wireless + cloud);
  const auto read = analysed<SYSTEM_CONTROL_1026_PARAM>(kType, "1026", wire + wireless + cloud);
  EXPECT_STREQ(read.Wire.Gateway, "g");
  EXPECT_STREQ(read.Wireless.AccessPoint, "a");
  EXPECT_STREQ(read.Url, "q");
}

TEST_F(SystemControlBodies, DeviceTypeStartsWithTheLowWordOfItsFeatures) {
  SYSTEM_CONTROL_1030_PARAM record;
  EXPECT_NE(bodyOf(kType, "1030", 1, &record).find("\nFeature=\"4294967295\"\n"), std::string::npos);
}

TEST_F(SystemControlBodies, MediaAbilitiesCloseTwoElementsOnTheirLine) {
  SYSTEM_CONTROL_1031_PARAM record;
  set(record.VideoCap.CapList, "v");
  set(record.AudioCap.CapList, "a");
  set(record.VideoBestParameter.CapList, "b");
  const std::string rest = "/>\n<AudioCap\nCapList=\"a\"/>\n<VideoBestParameter\nCapList=\"b\"/>\n</RESPONSE_PARAM>\n";
  EXPECT_EQ(bodyOf(kType, "1031", 1, &record), "<RESPONSE_PARAM>\n<VideoCap\nCapList=\"v\"\n" + rest);
  set(record.VideoCap.CapListV2, "w");
  const std::string body = "<RESPONSE_PARAM>\n<VideoCap\nCapList=\"v\"\nCapListV2=\"w\"\n" + rest;
  EXPECT_EQ(bodyOf(kType, "1031", 1, &record), body);
  EXPECT_STREQ(analysed<SYSTEM_CONTROL_1031_PARAM>(kType, "1031", body).VideoBestParameter.CapList, "b");
  EXPECT_EQ(analysisCode(kType, "1031", ""), KOV_ERROR_NO_ELEMENT);
  EXPECT_EQ(failures(),
            std::vector<std::string>{"E SystemControl_GetDeviceType_MessageAnalysis get RESPONSE_PARAM error\n"});
}

TEST_F(SystemControlBodies, KeyFrameIsSpeltInTwoWays) {
  SYSTEM_CONTROL_1032_PARAM record;
  record.ChannelId = 2;
  record.StreamIndex = 1;
  const std::string spellings[] = {"<REQUEST_PARAM\nChannelId=\"2\"\nStreamIndex=\"1\"\n/>\n",
                                   "<REQUEST_PARAM\nCamera=\"2\"\nStream=\"1\"\n/>\n"};
  for (const int form : {0, 1}) {
    record.bSendIpc = form;
    EXPECT_EQ(bodyOf(kType, "1032", 0, &record), spellings[form]);
    const auto read = analysed<SYSTEM_CONTROL_1032_PARAM>(kType, "1032", spellings[form]);
    EXPECT_EQ(read.bSendIpc, form);
    EXPECT_EQ(read.ChannelId, 2);
    EXPECT_EQ(read.StreamIndex, 1);
  }
  const std::pair<const char*, int> partly[] = {
      {"", -1}, {"ChannelId", 0}, {"StreamIndex", 0}, {"Camera", 1}, {"Stream", 1}};
  for (const auto& [name, form] : partly) {
    const std::string attribute = *name == '\0' ? "" : std::string(name) + "=\"5\"";
    const auto read = analysed<SYSTEM_CONTROL_1032_PARAM>(kType, "1032", "<REQUEST_PARAM " + attribute + "/>");
    EXPECT_EQ(read.bSendIpc, form) << name;
  }
  record.bSendIpc = 2;
  EXPECT_EQ(bodyOf(kType, "1032", 1, &record), "");
  EXPECT_TRUE(failures().empty());
  EXPECT_EQ(bodyOf(kType, "1032", 0, &record), "");
  EXPECT_EQ(failures(), std::vector<std::string>{"E SystemControl_GetIpcKeyFrame_MessageCompose unknow bSendIpc:2\n"});
}

TEST_F(SystemControlBodies, RecorderSettingsOpenWithABlank) {
  SYSTEM_CONTROL_3020_PARAM restart;
  restart.Day = 6;
  const std::string body = "<REQUEST_PARAM Enable=\"-1\"\nDay=\"6\"\nTime=\"\"\n/>\n";
  EXPECT_EQ(bodyOf(kType, "3020", 1, &restart), body);
  EXPECT_EQ(bodyOf(kType, "3020", 0, &restart), "");
  EXPECT_EQ(bodyOf(kType, "3025", 2, &restart), body);
  EXPECT_EQ(bodyOf(kType, "3025", 3, &restart), "");
  EXPECT_EQ(analysed<SYSTEM_CONTROL_3020_PARAM>(kType, "3020", body).Day, 6);

  SYSTEM_CONTROL_3026_PARAM custom;
  EXPECT_EQ(bodyOf(kType, "3026", 0, &custom), "<REQUEST_PARAM />\n");
  custom.Language = 0;
  set(custom.InProjectPwd, "p");
  EXPECT_EQ(bodyOf(kType, "3026", 2, &custom), "<REQUEST_PARAM Language=\"0\"\nInProjectPwd=\"p\"\n/>\n");

  SYSTEM_CONTROL_3300_PARAM display;
  const std::string colours =
      "<DisplayConfig Brightness=\"-1\"\nContrast=\"-1\"\nSaturation=\"-1\"\nChroma=\"-1\"\n/>\n";
  EXPECT_EQ(bodyOf(kType, "3300", 1, &display), colours);
  EXPECT_EQ(bodyOf(kType, "3320", 0, &display), colours);
  SYSTEM_CONTROL_3501_PARAM disk;
  EXPECT_EQ(bodyOf(kType, "3501", 0, &disk), "<FORMAT_PARAM DevIndex=\"4294967295\"\nVerifyMark=\"4294967295\"\n/>\n");
}

TEST_F(SystemControlBodies, RecorderSettingsAreMissedUnderTheNameOfTheSalesArea) {
  const std::pair<const char*, const char*> names[] = {
      {"3000", "GetNvrSystemConfig"},       {"3020", "GetNvrTimedRestartConfig"}, {"3023", "SetNvrSalesarea"},
      {"3025", "SetNvrTimedRestartConfig"}, {"3026", "SetNvrSimpleCustomConfig"}, {"3300", "GetNvrDisplayConfig"},
      {"3320", "SetNvrDisplayConfig"},      {"3501", "SetNvrDiskFormat"}};
  for (const auto& [code, name] : names) {
    resetPlatform();
    EXPECT_EQ(analysisCode(kType, code, "<RESPONSE_PARAM/>"), KOV_ERROR_NO_ELEMENT);
    const std::string line = std::string("E SystemControl_") + name + "_MessageAnalysis get SalesArea error\n";
    EXPECT_EQ(failures(), std::vector<std::string>{line});
  }
}

TEST_F(SystemControlBodies, NetworkCheckReadsQuestionAndAnswerTogether) {
  SYSTEM_CONTROL_3027_PARAM record;
  ASSERT_EQ(SYSTEM_CONTROL_3027_PARAM_init(&record), 0);
  record.TotalPackets = 10;
  record.SkipPacketRatio = 0.25F;
  const std::string request =
      "<REQUEST_PARAM DiagnosticType=\"-1\"\nTotalPackets=\"10\"\nDomainName=\"\"\nChannelId=\"-1\"\n/>\n";
  const std::string response =
      "<RESPONSE_PARAM Result=\"-1\"\nIPAddress=\"\"\nSumPacket=\"-1\"\nSkipPacket=\"-1\"\n"
      "SkipPacketRatio=\"0.250000\"\nMinTime=\"-1.000000\"\nAveTime=\"-1.000000\"\nMaxTime=\"-1.000000\"\n/>\n";
  EXPECT_EQ(bodyOf(kType, "3027", 0, &record), request);
  EXPECT_EQ(bodyOf(kType, "3027", 1, &record), response);
  for (const std::string& body : {request + response, response + request}) {
    const auto read = analysed<SYSTEM_CONTROL_3027_PARAM>(kType, "3027", body);
    EXPECT_EQ(read.TotalPackets, 10);
    EXPECT_EQ(read.SkipPacketRatio, 0.25F);
  }
  EXPECT_EQ(analysed<SYSTEM_CONTROL_3027_PARAM>(kType, "3027", request).TotalPackets, 10);
  EXPECT_EQ(analysisCode(kType, "3027", ""), KOV_ERROR_NO_ELEMENT);
  EXPECT_EQ(failures(), std::vector<std::string>{
                            "E SystemControl_SetNvrStartNetworkCheck_MessageAnalysis get RESPONSE_PARAM error\n"});
}

std::size_t occurrences(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

TEST_F(SystemControlBodies, DisksFollowTheirNumberAsFarAsTheTableGoes) {
  SYSTEM_CONTROL_3500_PARAM record;
  record.DiskNum = 1;
  set(record.Disks[0].DevName, "sda");
  record.Disks[0].Status = 2;
  const std::string disk =
      "<DeviceInfo\nDevIndex=\"4294967295\"\nVerifyMark=\"4294967295\"\nDevName=\"sda\"\nMounted=\"-1\"\n"
      "Total=\"4294967295\"\nUsed=\"4294967295\"\nStatus=\"2\"\n/>\n";
  const std::string body = "<RESPONSE_PARAM>\nDiskNum=\"1\"\nRecordDays=\"-1\"\n" + disk + "</RESPONSE_PARAM>\n";
  EXPECT_EQ(bodyOf(kType, "3500", 1, &record), body);
  const auto read = analysed<SYSTEM_CONTROL_3500_PARAM>(kType, "3500", body);
  EXPECT_EQ(read.DiskNum, -1);
  EXPECT_EQ(read.Disks[0].Status, 2);

  const std::pair<int, unsigned> written[] = {{-2, 0}, {0, 0}, {11, 11}, {12, 11}, {INT32_MAX, 11}};
  for (const auto& [number, disks] : written) {
    record.DiskNum = number;
    const std::string text = bodyOf(kType, "3500", 1, &record);
    EXPECT_NE(text.find("\nDiskNum=\"" + std::to_string(number) + "\"\n"), std::string::npos);
    EXPECT_EQ(occurrences(text, "<DeviceInfo\n"), disks);
  }
  std::string many;
  for (int i = 0; i < 40; ++i) many += "<DeviceInfo DevIndex=\"" + std::to_string(i) + "\"/>";
  const auto cut = analysed<SYSTEM_CONTROL_3500_PARAM>(kType, "3500",
                                                       "<RESPONSE_PARAM DiskNum=\"40\">" + many + "</RESPONSE_PARAM>");
  EXPECT_EQ(cut.DiskNum, 40);
  EXPECT_EQ(cut.Disks[10].DevIndex, 10U);
}

}  // namespace
}  // namespace kov::test
