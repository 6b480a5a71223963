#include "kov_protocol/system_config_network.h"

#include <algorithm>
#include <climits>
#include <set>

#include "config/network.h"
#include "every_message.h"
#include "wire.h"

namespace kov::test {
namespace {

const std::string kType = "SYSTEM_CONFIG_GET_MESSAGE";
constexpr int kAsk = 0;
constexpr int kAnswer = 1;

class SystemConfigNetworkTest : public WireTest {};

// Reads a body, and expects the record to give the same text again.
template <class Record>
Record bothWays(const std::string& code, int direction, const std::string& body) {
  const auto record = analysed<Record>(kType, code, body);
  EXPECT_EQ(bodyOf(kType, code, direction, &record), body);
  return record;
}

TEST_F(SystemConfigNetworkTest, EverySettingTravelsOnItsSideOnly) {
  const std::set<int> read = {300, 315, 2000, 2005, 2010, 2015};
  for (const CodeRow& row : kNetworkCodes) {
    const TestedMessage message = {kType, std::to_string(row.code), row.message->record()};
    const RecordBlock record = defaultRecord(message);
    for (const int direction : {-1, 0, 1, 2, 3, 4}) {
      const bool asks = direction == 0 || direction == 2;
      const bool empty = bodyOf(kType, message.code, direction, record.get()).empty();
      EXPECT_EQ(empty, asks == (read.count(row.code) == 1)) << message.code << " " << direction;
    }
  }
}

TEST_F(SystemConfigNetworkTest, MissingElementsAreNamed) {
  const std::pair<const char*, const char*> missing[] = {
      {"300", "getIpcNetconfig_MessageAnalysis get NetworkConfig"},
      {"315", "getIpcP2Pconfig_MessageAnalysis get P2PConfig"},
      {"325", "setIpcLanconfig_MessageAnalysis get LANConfig"},
      {"335", "setIpcP2Pconfig_MessageAnalysis get P2PConfig"},
      {"2000", "getNetconfig_MessageAnalysis get NetworkConfig"},
      {"2020", "setNetconfig_MessageAnalysis get NetworkConfig"},
      {"2005", "getNetLanconfig_MessageAnalysis get LANConfig"},
      {"2025", "setNetLanconfig_MessageAnalysis get LANConfig"},
      {"2010", "getNetServerconfig_MessageAnalysis get NetworkServerConfig"},
      {"2030", "setNetServerconfig_MessageAnalysis get NetworkServerConfig"},
      {"2015", "getNetGB28181Config_MessageAnalysis get GB28181Config"},
      {"2035", "setNetGB28181Config_MessageAnalysis get GB28181Config"},
  };
  for (const auto& [code, text] : missing) {
    resetPlatform();
    EXPECT_EQ(analysisCode(kType, code, "<REQUEST_PARAM/>"), KOV_ERROR_NO_ELEMENT);
    EXPECT_EQ(failures(), std::vector<std::string>{std::string("E SystemConfig_") + text + " error\n"});
  }
}

TEST_F(SystemConfigNetworkTest, CameraNetworkIsWrittenInFull) {
  const std::string body =
      "<NetworkConfig>\n<LANConfig\nAllNetConnectEnable=\"1\"\nMacAddress=\"m\"\nDHCP=\"2\"\nIPAddress=\"\"\n"
      "Netmask=\"n\"\nGateway=\"g\"\nDNS1=\"d\"\nDNS2=\"e\"\nMTU=\"3\"\n/>\n"
      "<WireConfig\nAllNetConnectEnable=\"4\"\nMacAddress=\"M\"\nDHCP=\"5\"\nIPAddress=\"\"\nNetmask=\"N\"\n"
      "Gateway=\"G\"\nDNS1=\"D\"\nDNS2=\"E\"\nMTU=\"6\"\n/>\n"
      "<PPTPConfig\nEnable=\"7\"\nServer=\"s\"\nUsername=\"u\"\nPassword=\"p\"\nMTU=\"8\"\nMPPE=\"9\"\n/>\n"
      "<P2PConfig\nEnable=\"-1\"\nSyncTime=\"10\"\nUser=\"\"\nPasswd=\"P\"\n/>\n"
      "<GB28181\nEnable=\"11\"\nDevPort=\"12\"\nServerID=\"i\"\nServerName=\"S\"\nServerIP=\"I\"\nServerPort=\"13\"\n"
      "DevName=\"v\"\nDevID=\"w\"\nPasswd=\"x\"\nExpires=\"14\"\nKeepAlive=\"15\"\nKeepAliveNum=\"16\"\n"
      "StreamIdx=\"17\"\nAlarmID=\"a\"\n/>\n</NetworkConfig>\n";
  const auto record = bothWays<SYSTEM_CONFIG_GET_300_PARAM>("300", kAnswer, body);
  EXPECT_EQ(record.AllNetConnectEnable, 1);
  EXPECT_EQ(record.LAN.MTU, 3);
  EXPECT_EQ(record.Wire.Address.DHCP, 5);
  EXPECT_EQ(record.P2P.SyncTime, 10);
  EXPECT_STREQ(record.GB28181.DevID, "w");

  const auto lanOnly = analysed<SYSTEM_CONFIG_GET_300_PARAM>(
      kType, "300", "<NetworkConfig><LANConfig DHCP=\"1\"/></NetworkConfig><P2PConfig Enable=\"1\"/>");
  EXPECT_EQ(lanOnly.LAN.DHCP, 1);
  EXPECT_EQ(lanOnly.Wire.Address.DHCP, -1);
  EXPECT_EQ(lanOnly.P2P.Enable, -1);
}

TEST_F(SystemConfigNetworkTest, PeerToPeerLeavesOutWhatIsUnsetWhenItAnswers) {
  SYSTEM_CONFIG_GET_315_PARAM record;
  EXPECT_EQ(bodyOf(kType, "315", kAnswer, &record), "<P2PConfig\n/>\n");
  EXPECT_EQ(bodyOf(kType, "335", kAsk, &record),
            "<P2PConfig\nEnable=\"-1\"\nSyncTime=\"-1\"\nUser=\"\"\nPasswd=\"\"\n/>\n");
  record.User[4] = 'x';
  EXPECT_EQ(bodyOf(kType, "315", kAnswer, &record), "<P2PConfig\n/>\n");
  record.User[3] = 'x';
  EXPECT_EQ(bodyOf(kType, "315", kAnswer, &record), "<P2PConfig\nUser=\"\"\n/>\n");
  const std::string all = "<P2PConfig\nEnable=\"0\"\nSyncTime=\"1\"\nUser=\"u\"\nPasswd=\"p\"\n/>\n";
  bothWays<SYSTEM_CONFIG_GET_315_PARAM>("315", kAnswer, all);
  bothWays<SYSTEM_CONFIG_GET_315_PARAM>("335", kAsk, all);
}

TEST_F(SystemConfigNetworkTest, CameraLanNeedsAnAddress) {
  SYSTEM_CONFIG_SET_325_PARAM record;
  record.Address.DHCP = 1;
  EXPECT_EQ(bodyOf(kType, "325", kAsk, &record), "<LANConfig\nAllNetConnectEnable=\"-1\"\n/>\n");
  EXPECT_EQ(analysed<SYSTEM_CONFIG_SET_325_PARAM>(kType, "325", "<LANConfig MTU=\"9\"/>").Address.MTU, 9);
  bothWays<SYSTEM_CONFIG_SET_325_PARAM>(
      "325", kAsk,
      "<LANConfig\nAllNetConnectEnable=\"1\"\nMacAddress=\"\"\nDHCP=\"-1\"\nIPAddress=\"i\"\nNetmask=\"\"\n"
      "Gateway=\"\"\nDNS1=\"\"\nDNS2=\"\"\nMTU=\"-1\"\n/>\n");

  resetPlatform();
  const auto row = std::find_if(kNetworkCodes.begin(), kNetworkCodes.end(), [](auto& r) { return r.code == 325; });
  char buffer[8];
  BodyWriter body(buffer, sizeof buffer);
  row->message->compose(nullptr, 0, body);
  EXPECT_EQ(logLines(), std::vector<std::string>{"I SystemConfig_setIpcNetconfig_MessageCompose put a empty Param\n"});
}

const std::string kLan =
    "<LANConfig\nDHCP=\"1\"\nIPAddress=\"i\"\nNetmask=\"n\"\nGateway=\"g\"\nMacAddress=\"m\"\nDNS1=\"d\"\nDNS2=\"e\"\n"
    "Login=\"2\"\nCloundID=\"c\"\nMTU=\"3\"\nConflictSelfAda=\"4\"\n/>\n";
const std::string kServer = "<NetworkServerConfig\nEnable=\"5\"\n/>\n";
const std::string kSecondLan =
    "<NetworkLanMode\nMode=\"6\"\nDefaultGateWayIndex=\"7\"\n/>\n<LAN1Config\nDHCP=\"8\"\nIPAddress=\"I\"\n"
    "Netmask=\"N\"\nGateway=\"G\"\nMacAddress=\"M\"\nConflictSelfAda=\"9\"\n/>\n";

TEST_F(SystemConfigNetworkTest, RecorderNetworkHasUnbalancedTags) {
  for (const auto& [code, direction] : {std::pair("2000", kAnswer), std::pair("2020", kAsk)}) {
    const std::string one = "<NetworkConfig\n" + kLan + kServer;
    const auto single = bothWays<SYSTEM_CONFIG_GET_2000_PARAM>(code, direction, one);
    EXPECT_EQ(single.ConflictSelfAda, 4);
    EXPECT_EQ(single.Enable, 5);
    EXPECT_EQ(single.LAN1_DHCP, -1);
    const auto both = bothWays<SYSTEM_CONFIG_GET_2000_PARAM>(code, direction, one + kSecondLan + "/NetworkConfig>\n");
    EXPECT_STREQ(both.MacAddress, "m");
    EXPECT_STREQ(both.LAN1_MacAddress, "M");
    EXPECT_EQ(both.LAN1_ConflictSelfAda, 9);
    EXPECT_EQ(both.DefaultGateWayIndex, 7);
  }
}

TEST_F(SystemConfigNetworkTest, RecorderLansStandAlone) {
  for (const auto& [code, direction] : {std::pair("2005", kAnswer), std::pair("2025", kAsk)}) {
    bothWays<SYSTEM_CONFIG_GET_2000_PARAM>(code, direction, kLan);
    EXPECT_EQ(bothWays<SYSTEM_CONFIG_GET_2000_PARAM>(code, direction, kLan + kSecondLan).LAN1_DHCP, 8);
    EXPECT_EQ(analysed<SYSTEM_CONFIG_GET_2000_PARAM>(kType, code, kLan + kServer).Enable, -1);
  }
  EXPECT_EQ(bothWays<SYSTEM_CONFIG_GET_2010_PARAM>("2030", kAsk, kServer).Enable, 5);
}

std::string sipText(const std::string& options, const std::string& channels, const std::string& inputs) {
  return "<GB28181Config\nEnable=\"1\"\n" + options +
         "LocalPort=\"5060\"\nSipServerID=\"a\"\nSipServerDomain=\"b\"\nSipServerIP=\"c\"\nSipServerPort=\"d\"\n"
         "SipUserID=\"e\"\nSipUserPassword=\"f\"\nSipRegExpires=\"g\"\nSipHeartBeatCycle=\"h\"\n"
         "SipHeartBeatTimeOutNum=\"i\"\n" +
         channels + "/>\n<AlarmInputID\n" + inputs + "/>\n";
}

TEST_F(SystemConfigNetworkTest, SipAccessNumbersItsDevices) {
  const std::string inputs =
      "AlarmInputIDNum=\"2\"\nAlarmIn_1=\"x\"\nAlarmIn_2=\"y\"\nAlarmIn_SipDeviceReport=\"01\"\n";
  const std::string body = sipText("ProtoCol=\"2\"\nStreamType=\"3\"\nDefaultLanIndex=\"4\"\n",
                                   "ch1_SipDeviceID=\"p\"\nch2_SipDeviceID=\"q\"\nch_SipDeviceReport=\"10\"\n", inputs);
  auto record = analysed<SYSTEM_CONFIG_GET_2015_PARAM>(kType, "2015", body);
  EXPECT_EQ(record.ChannelCount, -1);
  EXPECT_STREQ(record.Channels[1].SipDeviceID, "q");
  EXPECT_EQ(record.Channels[0].SipDeviceReport, 1);
  EXPECT_EQ(record.Channels[1].SipDeviceReport, 0);
  EXPECT_EQ(record.AlarmInputs[0].SipDeviceReport, 0);
  EXPECT_EQ(record.AlarmInputs[1].SipDeviceReport, 1);
  EXPECT_EQ(record.AlarmInputs[63].SipDeviceReport, 0);
  record.ChannelCount = 2;
  EXPECT_EQ(bodyOf(kType, "2015", kAnswer, &record), body);
  EXPECT_EQ(bodyOf(kType, "2035", kAsk, &record), body);

  record.ProtoCol = -1;
  record.DefaultLanIndex = -1;
  record.ChannelCount = 0;
  EXPECT_EQ(bodyOf(kType, "2035", kAsk, &record), sipText("StreamType=\"3\"\n", "ch_SipDeviceReport=\"\"\n", inputs));
}

TEST_F(SystemConfigNetworkTest, SipTablesAreNeverLeft) {
  SYSTEM_CONFIG_GET_2015_PARAM record;
  record.ChannelCount = INT_MAX;
  record.AlarmInputIDNum = INT_MIN;
  record.Channels[63].SipDeviceReport = 0x1F;
  const std::string body = bodyOf(kType, "2015", kAnswer, &record);
  std::string flags;
  for (int i = 0; i < 63; ++i) flags += "ffffffff";
  EXPECT_NE(body.find("ch64_SipDeviceID=\"\"\nch_SipDeviceReport=\"" + flags + "1f\"\n/>\n"), std::string::npos);
  EXPECT_NE(body.find("AlarmInputIDNum=\"-2147483648\"\nAlarmIn_SipDeviceReport=\"\"\n"), std::string::npos);

  const std::string ones(100, '1');
  const auto full = analysed<SYSTEM_CONFIG_GET_2015_PARAM>(
      kType, "2035",
      "<GB28181Config ch64_SipDeviceID=\"z\" ch65_SipDeviceID=\"o\" ch_SipDeviceReport=\"" + ones + "\"/>");
  EXPECT_STREQ(full.Channels[63].SipDeviceID, "z");
  EXPECT_EQ(full.Channels[63].SipDeviceReport, 1);
  EXPECT_STREQ(full.AlarmInputs[0].SipDeviceID, "");
  EXPECT_EQ(full.AlarmInputs[0].SipDeviceReport, -1);
  EXPECT_EQ(full.AlarmInputIDNum, -1);
}

TEST_F(SystemConfigNetworkTest, FillersServeTheCodesOfTheirRecord) {
  EXPECT_EQ(SYSTEM_CONFIG_SET_320_PARAM_init(nullptr), KOV_ERROR_NULL);
  SYSTEM_CONFIG_GET_300_PARAM camera;
  camera.AllNetConnectEnable = 1;
  set(camera.GB28181.AlarmID, "a");
  EXPECT_EQ(SYSTEM_CONFIG_SET_320_PARAM_init(&camera), 0);
  EXPECT_EQ(camera.AllNetConnectEnable, -1);
  EXPECT_STREQ(camera.GB28181.AlarmID, "");
  SYSTEM_CONFIG_GET_2015_PARAM sip;
  sip.AlarmInputs[63].SipDeviceReport = 1;
  EXPECT_EQ(SYSTEM_CONFIG_SET_2035_PARAM_init(&sip), 0);
  EXPECT_EQ(sip.AlarmInputs[63].SipDeviceReport, -1);
}

}  // namespace
}  // namespace kov::test
