#include "kov_protocol/system_searchipc.h"

#include "wire.h"

namespace kov::test {
namespace {

const std::string kType = SYSTEM_SEARCHIPC_MESSAGE_TYPE;

class SystemSearchipcTest : public WireTest {};

constexpr const char* kFullResponse =
    "<VENDOR_PARAM VendorId=\"v\"/>\n"
    "<DEVICE_TYPE\nDeviceType=\"t\"\nSalesArea=\"area\"\nDeviceModule=\"m\"\nBindMode=\"2\"\nDevSubType=\"3\"\n"
    "Feature=\"-2\"\n/>\n"
    "<IPC_SERIALNUMBER\nSerialNumber=\"sn\"\nDevID=\"id\"\n/>\n"
    "<LANConfig\nMacAddress=\"aa\"\nDHCP=\"1\"\nIPAddress=\"10.0.0.2\"\nNetmask=\"n\"\nGateway=\"g\"\nDNS1=\"d1\"\n"
    "DNS2=\"d2\"\nAllNetConnectEnable=\"1\"\nIPAddressVirtual=\"10.0.0.3\"\nMTU=\"1500\"\nDEV=\"eth0\"\n/>\n"
    "<LAN1Config\nMacAddress=\"bb\"\nDHCP=\"-1\"\nIPAddress=\"10.1.0.2\"\nNetmask=\"\"\nGateway=\"\"\n/>\n"
    "<UserConfig>\n<Account\nGroup=\"admin\"\nStatus=\"on\"\nUsername=\"u\"\nPassword=\"p\"\n/>\n"
    "<Account\nGroup=\"guest\"\nStatus=\"\"\n/>\n</UserConfig>\n"
    "<MediaStreamConfig>\n<StreamAccess\r\nAuth=\"0\"\nVideoPort=\"554\"\nRTPOverRTSP=\"-1\"\nPTZPort=\"-1\"\n"
    "WEBPort=\"80\"\nRTSPClientNumber=\"4\"\n/>\n</MediaStreamConfig>\n"
    "<OSD\nOsdStr=\"o\"\n/>\n<VERSION\nFileSystemVersion=\"1.0\"\n/>\n<Manufacturer\nName=\"n\"\n/>\n"
    "<ConnectionCount\nCount=\"1,-1,0,0,0,0,0,0,0,0,0,12,\"\n/>\n";

TEST_F(SystemSearchipcTest, SearchResponseTellsAllButTheInterfaceNameBack) {
  auto record = analysed<SYSTEM_SEARCHIPC_3_PARAM>(kType, "3", kFullResponse);
  EXPECT_STREQ(record.IPAddressVirtual, "10.0.0.3");
  EXPECT_EQ(record.DeviceInfo.ConnectionCount, 1);
  EXPECT_EQ(record.DeviceInfo.Count[1], -1);
  EXPECT_EQ(record.DeviceInfo.Feature, UINT64_MAX - 1);
  EXPECT_EQ(record.AccountCount, 2);
  EXPECT_STREQ(record.Account[0].Password, "p");
  EXPECT_STREQ(record.LANConfig.DNS2, "d2");
  EXPECT_STREQ(record.LANConfig.DEV, "");
  EXPECT_STREQ(record.LAN1Config.IPAddress, "10.1.0.2");
  const auto longArea = analysed<SYSTEM_SEARCHIPC_3_PARAM>(kType, "3", "<DEVICE_TYPE SalesArea=\"12345678\"/>");
  EXPECT_STREQ(longArea.DeviceInfo.SalesArea, "1234567");
  set(record.LANConfig.DEV, "eth0");
  set(record.LAN1Config.DNS1, "not on the wire");
  set(record.Account[1].Password, "nobody's");
  for (const int direction : {0, 1, 9}) EXPECT_EQ(bodyOf(kType, "3", direction, &record), kFullResponse);
}

TEST_F(SystemSearchipcTest, SearchResponseOfADefaultRecordKeepsThreeElements) {
  const SYSTEM_SEARCHIPC_3_PARAM record;
  const std::string body =
      "<DEVICE_TYPE\nDeviceType=\"\"\n/>\n<IPC_SERIALNUMBER\nSerialNumber=\"\"\nDevID=\"\"\n/>\n<LANConfig\n"
      "MacAddress=\"\"\nDHCP=\"-1\"\nIPAddress=\"\"\nNetmask=\"\"\nGateway=\"\"\nDNS1=\"\"\nDNS2=\"\"\n/>\n";
  EXPECT_EQ(bodyOf(kType, "3", 1, &record), body);
  const auto read = analysed<SYSTEM_SEARCHIPC_3_PARAM>(kType, "3", "");
  EXPECT_EQ(bodyOf(kType, "3", 1, &read), body);
}

TEST_F(SystemSearchipcTest, AccountsStopAtTheTable) {
  SYSTEM_SEARCHIPC_3_PARAM record;
  const std::string none = bodyOf(kType, "3", 1, &record);
  const std::string account = "<Account\nGroup=\"\"\nStatus=\"\"\n/>\n";
  for (const auto& [count, length] : {std::pair{-2, 0}, {INT32_MIN, 0}, {1, 1}, {41, 40}, {INT32_MAX, 40}}) {
    record.AccountCount = count;
    std::string accounts = "<UserConfig>\n";
    for (int i = 0; i < length; ++i) accounts += account;
    EXPECT_EQ(bodyOf(kType, "3", 1, &record), none + accounts + "</UserConfig>\n") << count;
  }
  std::string accounts;
  for (int i = 0; i < 41; ++i) accounts += "<Account Username=\"" + std::to_string(i) + "\"/>";
  const auto read = analysed<SYSTEM_SEARCHIPC_3_PARAM>(kType, "3", "<UserConfig>" + accounts + "</UserConfig>");
  EXPECT_EQ(read.AccountCount, 40);
  EXPECT_STREQ(read.Account[39].Username, "39");
  EXPECT_EQ(analysed<SYSTEM_SEARCHIPC_3_PARAM>(kType, "3", "<UserConfig/>").AccountCount, 0);
}

TEST_F(SystemSearchipcTest, ConnectionCountsEndInACommaEach) {
  const auto counts = [](const std::string& list) {
    const auto read = analysed<SYSTEM_SEARCHIPC_3_PARAM>(kType, "3", "<ConnectionCount Count=\"" + list + "\"/>");
    EXPECT_EQ(read.DeviceInfo.ConnectionCount, 1);
    std::string slots;
    for (const int count : read.DeviceInfo.Count) slots += std::to_string(count) + " ";
    return slots;
  };
  EXPECT_EQ(counts("5,6"), "5 0 0 0 0 0 0 0 0 0 0 0 ");
  EXPECT_EQ(counts("5,6,"), "5 6 0 0 0 0 0 0 0 0 0 0 ");
  EXPECT_EQ(counts(",x, 7,65537,"), "0 0 7 1 0 0 0 0 0 0 0 0 ");
  EXPECT_EQ(counts("1,2,3,4,5,6,7,8,9,10,11,12,13,"), "1 2 3 4 5 6 7 8 9 10 11 12 ");
  EXPECT_EQ(counts(std::string(30, '0') + "12,3,"), "1 3 0 0 0 0 0 0 0 0 0 0 ");
  EXPECT_EQ(counts("4," + std::string(1020, '0') + ",9,"), "4 0 0 0 0 0 0 0 0 0 0 0 ");
  EXPECT_EQ(analysed<SYSTEM_SEARCHIPC_3_PARAM>(kType, "3", "<ConnectionCount/>").DeviceInfo.ConnectionCount, 1);
}

TEST_F(SystemSearchipcTest, ModifyIpBySnLeavesOutWhatIsNotChanged) {
  const std::string body =
      "<VENDOR_PARAM VendorId=\"v\"/>\n<IPC_SERIALNUMBER\nSerialNumber=\"sn\"\nDevID=\"id\"\n/>\n"
      "<LANConfig\nMacAddress=\"aa\"\nDHCP=\"-1\"\nIPAddress=\"10.0.0.2\"\nNetmask=\"\"\nGateway=\"\"\nDNS1=\"\"\n"
      "DNS2=\"\"\nAllNetConnectEnable=\"0\"\n/>\n"
      "<MediaStreamConfig>\n<StreamAccess\r\nAuth=\"1\"\nVideoPort=\"554\"\nRTPOverRTSP=\"-1\"\nPTZPort=\"-1\"\n"
      "WEBPort=\"-1\"\n/>\n</MediaStreamConfig>\n";
  auto record = analysed<SYSTEM_SEARCHIPC_2_PARAM>(kType, "5", body);
  record.LANConfig.MTU = 1500;
  record.StreamAccess.RTPPacketSize = 1400;
  EXPECT_EQ(bodyOf(kType, "2", 1, &record), body);
  for (char* unset : {record.VendorId, record.DevID, record.LANConfig.IPAddress}) *unset = '\0';
  record.StreamAccess.Auth = -1;
  EXPECT_EQ(bodyOf(kType, "5", 0, &record), "<IPC_SERIALNUMBER\nSerialNumber=\"sn\"\n/>\n");
}

TEST_F(SystemSearchipcTest, IotResponseIsReadUnderOtherNamesThanItIsWritten) {
  const auto read = analysed<SYSTEM_SEARCHIPC_21_PARAM>(
      kType, "21",
      "<IOTInfo DevType=\"7\" BindNetType=\"8\" RegStatus=\"1\"/><IPC_SERIALNUMBER DeviceModule=\"sn\" DevID=\"id\"/>");
  const std::string body =
      "<IOTInfo\nDeviceType=\"7\"\nDevSubType=\"8\"\nRegStatus=\"1\"\n/>\n"
      "<IPC_SERIALNUMBER\nSerialNumber=\"sn\"\nDevID=\"id\"\n/>\n"
      "<LANConfig\nMacAddress=\"\"\nDHCP=\"-1\"\nIPAddress=\"\"\nNetmask=\"\"\nGateway=\"\"\nDNS1=\"\"\nDNS2=\"\"\n"
      "MTU=\"-1\"\n/>\n";
  EXPECT_EQ(bodyOf(kType, "21", 1, &read), body);
  const auto lost = analysed<SYSTEM_SEARCHIPC_21_PARAM>(kType, "21", body);
  EXPECT_EQ(lost.DevType, -1);
  EXPECT_EQ(lost.BindNetType, -1);
  EXPECT_STREQ(lost.DeviceInfo.SerialNumber, "");
  EXPECT_STREQ(lost.DeviceInfo.DevID, "id");
}

TEST_F(SystemSearchipcTest, SmallMessages) {
  SYSTEM_SEARCHIPC_1_PARAM request;
  EXPECT_EQ(bodyOf(kType, "1", 0, &request), "");
  set(request.VendorId, "v");
  EXPECT_EQ(bodyOf(kType, "1", 1, &request), "<VENDOR_PARAM VendorId=\"v\"/>\n");
  EXPECT_STREQ(analysed<SYSTEM_SEARCHIPC_1_PARAM>(kType, "1", "<VENDOR_PARAM VendorId=\"v\"/>").VendorId, "v");

  EXPECT_EQ(documentOf(kType, "1", 0, &request).substr(0, 5), "<?xml");

  const SYSTEM_SEARCHIPC_4_PARAM restore;
  EXPECT_EQ(bodyOf(kType, "8", 0, &restore), "<IPC_SERIALNUMBER\nSerialNumber=\"\"\n/>\n");

  SYSTEM_SEARCHIPC_7_PARAM broadcast;
  set(broadcast.randStrBrother, "r");
  EXPECT_EQ(bodyOf(kType, "7", 0, &broadcast),
            "<IPC_DEVINFO\nSerialNumber=\"\"\nipaddr=\"\"\nrandStr=\"\"\nrandStrBrother=\"r\"\n/>\n");

  SYSTEM_SEARCHIPC_101_PARAM time;
  set(time.Time, "t");
  EXPECT_EQ(bodyOf(kType, "101", 0, &time),
            "<TimeConfig\nEnable=\"-1\"\nTimezone=\"-1\"\nFormat=\"\"\nTime=\"t\"\n>\n</TimeConfig>\n");
}

TEST_F(SystemSearchipcTest, CodesWithoutBodyAndUnknownCodes) {
  char body[8] = "?";
  void* result = nullptr;
  const std::string xml = received(kType, "9", "");
  for (const char* code : {"9", "10", "11", "20"}) {
    EXPECT_EQ(SystemSearchipcMessageCompose("", 0, code, body, sizeof body), 0);
    EXPECT_EQ(SystemSearchipcMessageAnalysis(xml.c_str(), code, &result), 0);
  }
  EXPECT_EQ(logLines(), std::vector<std::string>{});
  for (const int code : {0, 12, 102, -1}) {
    resetPlatform();
    const std::string text = std::to_string(code);
    EXPECT_EQ(SystemSearchipcMessageCompose("", 0, text.c_str(), body, sizeof body), KOV_ERROR_UNKNOWN_MESSAGE);
    EXPECT_EQ(SystemSearchipcMessageAnalysis("", text.c_str(), &result), KOV_ERROR_UNKNOWN_MESSAGE);
    const std::string line = "E SYSTEM_SEARCHIPC_MESSAGE deal a unknow msg_code:" + text + " \n";
    EXPECT_EQ(logLines(), (std::vector<std::string>{line, line}));
  }
  EXPECT_STREQ(body, "?");
  EXPECT_EQ(result, nullptr);
}

}  // namespace
}  // namespace kov::test
