#include "kov_protocol/system_config_network.h"

#include <algorithm>
#include <climits>

#include "config/network.h"
#include "system_config_wire.h"

namespace kov::test {
namespace {

class SystemConfigNetworkTest : public WireTest {};

TEST_F(SystemConfigNetworkTest, EverySettingTravelsOnItsSideOnly) {
  EXPECT_EQ(sidesOf(kNetworkCodes),
            "300:134 315:134 325:02 335:02 2000:134 2020:02 2005:134 2025:02 2010:134 2030:02 2015:134 2035:02 ");
}

TEST_F(SystemConfigNetworkTest, MissingElementsAreNamed) {
  EXPECT_EQ(missingOf(kNetworkCodes),
            "getIpcNetconfig NetworkConfig; getIpcP2Pconfig P2PConfig; setIpcLanconfig LANConfig; "
            "setIpcP2Pconfig P2PConfig; getNetconfig NetworkConfig; setNetconfig NetworkConfig; "
            "getNetLanconfig LANConfig; setNetLanconfig LANConfig; getNetServerconfig NetworkServerConfig; "
            "setNetServerconfig NetworkServerConfig; getNetGB28181Config GB28181Config; "
            "setNetGB28181Config GB28181Config; ");
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
  const auto camera = bothWays<SYSTEM_CONFIG_GET_300_PARAM>("300", kAnswer, body);
  EXPECT_EQ(camera->AllNetConnectEnable, 1);
  EXPECT_EQ(camera->Wire.Address.DHCP, 5);
  EXPECT_STREQ(camera->GB28181.DevID, "w");

  const auto lanOnly = analysed<SYSTEM_CONFIG_GET_300_PARAM>(
      kConfigType, "300", "<NetworkConfig><LANConfig DHCP=\"1\"/></NetworkConfig><P2PConfig Enable=\"1\"/>");
  EXPECT_EQ(lanOnly.Wire.Address.DHCP, -1);
  EXPECT_EQ(lanOnly.P2P.Enable, -1);
}

TEST_F(SystemConfigNetworkTest, PeerToPeerLeavesOutWhatIsUnsetWhenItAnswers) {
  SYSTEM_CONFIG_GET_315_PARAM record;
  EXPECT_EQ(written("315", kAnswer, record), "<P2PConfig\n/>\n");
  EXPECT_EQ(written("335", kAsk, record), "<P2PConfig\nEnable=\"-1\"\nSyncTime=\"-1\"\nUser=\"\"\nPasswd=\"\"\n/>\n");
  record.User[4] = 'x';
  EXPECT_EQ(written("315", kAnswer, record), "<P2PConfig\n/>\n");
  record.User[3] = 'x';
  EXPECT_EQ(written("315", kAnswer, record), "<P2PConfig\nUser=\"\"\n/>\n");
  const std::string all = "<P2PConfig\nEnable=\"0\"\nSyncTime=\"1\"\nUser=\"u\"\nPasswd=\"p\"\n/>\n";
  bothWays<SYSTEM_CONFIG_GET_315_PARAM>("315", kAnswer, all);
  bothWays<SYSTEM_CONFIG_GET_315_PARAM>("335", kAsk, all);
}

TEST_F(SystemConfigNetworkTest, CameraLanNeedsAnAddress) {
  SYSTEM_CONFIG_SET_325_PARAM record;
  record.Address.DHCP = 1;
  EXPECT_EQ(written("325", kAsk, record), "<LANConfig\nAllNetConnectEnable=\"-1\"\n/>\n");
  EXPECT_EQ(analysed<SYSTEM_CONFIG_SET_325_PARAM>(kConfigType, "325", "<LANConfig MTU=\"9\"/>").Address.MTU, 9);
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
    EXPECT_EQ(single->Enable, 5);
    EXPECT_EQ(single->LAN1_DHCP, -1);
    const auto both = bothWays<SYSTEM_CONFIG_GET_2000_PARAM>(code, direction, one + kSecondLan + "/NetworkConfig>\n");
    EXPECT_STREQ(both->LAN1_MacAddress, "M");
    EXPECT_EQ(both->LAN1_ConflictSelfAda, 9);
  }
}

TEST_F(SystemConfigNetworkTest, RecorderLansStandAlone) {
  for (const auto& [code, direction] : {std::pair("2005", kAnswer), std::pair("2025", kAsk)}) {
    bothWays<SYSTEM_CONFIG_GET_2000_PARAM>(code, direction, kLan);
    EXPECT_EQ(bothWays<SYSTEM_CONFIG_GET_2000_PARAM>(code, direction, kLan + kSecondLan)->LAN1_DHCP, 8);
    EXPECT_EQ(analysed<SYSTEM_CONFIG_GET_2000_PARAM>(kConfigType, code, kLan + kServer).Enable, -1);
  }
  EXPECT_EQ(bothWays<SYSTEM_CONFIG_GET_2010_PARAM>("2030", kAsk, kServer)->Enable, 5);
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
  auto record = analysed<SYSTEM_CONFIG_GET_2015_PARAM>(kConfigType, "2015", body);
  EXPECT_EQ(record.ChannelCount, -1);
  EXPECT_STREQ(record.Channels[1].SipDeviceID, "q");
  EXPECT_EQ(record.Channels[0].SipDeviceReport, 1);
  EXPECT_EQ(record.Channels[1].SipDeviceReport, 0);
  EXPECT_EQ(record.AlarmInputs[1].SipDeviceReport, 1);
  EXPECT_EQ(record.AlarmInputs[63].SipDeviceReport, 0);
  record.ChannelCount = 2;
  EXPECT_EQ(written("2015", kAnswer, record), body);
  EXPECT_EQ(written("2035", kAsk, record), body);

  record.ProtoCol = -1;
  record.DefaultLanIndex = -1;
  record.ChannelCount = 0;
  EXPECT_EQ(written("2035", kAsk, record), sipText("StreamType=\"3\"\n", "ch_SipDeviceReport=\"\"\n", inputs));
}

TEST_F(SystemConfigNetworkTest, SipTablesAreNeverLeft) {
  SYSTEM_CONFIG_GET_2015_PARAM record;
  record.ChannelCount = INT_MAX;
  record.AlarmInputIDNum = INT_MIN;
  record.Channels[63].SipDeviceReport = 0x1F;
  const std::string body = written("2015", kAnswer, record);
  std::string flags;
  for (int i = 0; i < 63; ++i) flags += "ffffffff";
  EXPECT_NE(body.find("ch64_SipDeviceID=\"\"\nch_SipDeviceReport=\"" + flags + "1f\"\n/>\n"), std::string::npos);
  EXPECT_NE(body.find("AlarmInputIDNum=\"-2147483648\"\nAlarmIn_SipDeviceReport=\"\"\n"), std::string::npos);

  const std::string ones(100, '1');
  const auto full = analysed<SYSTEM_CONFIG_GET_2015_PARAM>(
      kConfigType, "2035",
      "<GB28181Config ch64_SipDeviceID=\"z\" ch65_SipDeviceID=\"o\" ch_SipDeviceReport=\"" + ones + "\"/>");
  EXPECT_STREQ(full.Channels[63].SipDeviceID, "z");
  EXPECT_EQ(full.Channels[63].SipDeviceReport, 1);
  EXPECT_EQ(full.AlarmInputs[0].SipDeviceReport, -1);
  EXPECT_EQ(full.AlarmInputIDNum, -1);
  const auto brief = analysed<SYSTEM_CONFIG_GET_2015_PARAM>(
      kConfigType, "2035", "<GB28181Config ch_SipDeviceReport=\"1\" other=\"" + ones + "\"/>");
  for (int i = 0; i < 64; ++i) EXPECT_EQ(brief.Channels[i].SipDeviceReport, i == 0 ? 1 : 0);
}

}  // namespace
}  // namespace kov::test
