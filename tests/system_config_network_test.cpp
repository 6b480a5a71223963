#include "kov_protocol/system_config_network.h"

#include "system_config_wire.h"

namespace kov::test {
namespace {

class SystemConfigNetworkTest : public WireTest {};

TEST_F(SystemConfigNetworkTest, FieldsStandUnderTheirNames) {
  const auto camera = stored<SYSTEM_CONFIG_GET_300_PARAM>("300", "camera_network");
  EXPECT_EQ((Numbers{camera->AllNetConnectEnable, camera->Wire.Address.DHCP}), (Numbers{1, 5}));
  EXPECT_STREQ(camera->GB28181.DevID, "w");
  for (const char* code : {"2000", "2020"}) {
    EXPECT_EQ(stored<SYSTEM_CONFIG_GET_2000_PARAM>(code, "recorder_network")->Enable, 5);
    const auto both = stored<SYSTEM_CONFIG_GET_2000_PARAM>(code, "recorder_network_two_lans");
    EXPECT_EQ(both->LAN1_ConflictSelfAda, 9);
    EXPECT_STREQ(both->LAN1_MacAddress, "M");
  }
}

TEST_F(SystemConfigNetworkTest, OnlyTheElementsOfAMessageAreRead) {
  const auto lanOnly = readBody<SYSTEM_CONFIG_GET_300_PARAM>(
      "300", "<NetworkConfig><LANConfig DHCP=\"1\"/></NetworkConfig><P2PConfig Enable=\"1\"/>");
  EXPECT_EQ((Numbers{lanOnly->Wire.Address.DHCP, lanOnly->P2P.Enable}), (Numbers{-1, -1}));
  for (const char* code : {"2005", "2025"}) {
    const std::string body = "<LANConfig DHCP=\"1\"/><NetworkServerConfig Enable=\"5\"/>";
    EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_2000_PARAM>(code, body)->Enable, -1);
  }
}

TEST_F(SystemConfigNetworkTest, PeerToPeerLeavesOutWhatIsUnsetWhenItAnswers) {
  SYSTEM_CONFIG_GET_315_PARAM record;
  EXPECT_EQ(written("335", kAsk, record), "<P2PConfig\nEnable=\"-1\"\nSyncTime=\"-1\"\nUser=\"\"\nPasswd=\"\"\n/>\n");
  record.User[4] = 'x';
  EXPECT_EQ(written("315", kAnswer, record), "<P2PConfig\n/>\n");
  record.User[3] = 'x';
  EXPECT_EQ(written("315", kAnswer, record), "<P2PConfig\nUser=\"\"\n/>\n");
}

TEST_F(SystemConfigNetworkTest, CameraLanNeedsAnAddressToBeWritten) {
  const auto lan = readBody<SYSTEM_CONFIG_SET_325_PARAM>("325", "<LANConfig MTU=\"9\"/>");
  EXPECT_EQ(lan->Address.MTU, 9);
  EXPECT_EQ(written("325", kAsk, *lan), "<LANConfig\nAllNetConnectEnable=\"-1\"\n/>\n");
}

TEST_F(SystemConfigNetworkTest, SipAccessNumbersItsDevices) {
  const auto record = stored<SYSTEM_CONFIG_GET_2015_PARAM>("2015", "sip_access");
  EXPECT_EQ(
      (Numbers{record->ChannelCount, record->Channels[0].SipDeviceReport, record->AlarmInputs[63].SipDeviceReport}),
      (Numbers{-1, 1, 0}));
  EXPECT_STREQ(record->Channels[1].SipDeviceID, "q");
  record->ChannelCount = 2;
  EXPECT_EQ(written("2015", kAnswer, *record), golden("system_config/sip_access.txt"));
  EXPECT_EQ(written("2035", kAsk, *record), golden("system_config/sip_access.txt"));
  record->ProtoCol = -1;
  record->DefaultLanIndex = -1;
  record->ChannelCount = 0;
  EXPECT_EQ(written("2035", kAsk, *record), golden("system_config/sip_access_unset.txt"));
}

TEST_F(SystemConfigNetworkTest, SipTablesAreNeverLeft) {
  SYSTEM_CONFIG_GET_2015_PARAM record;
  record.ChannelCount = INT32_MAX;
  record.AlarmInputIDNum = INT32_MIN;
  record.Channels[63].SipDeviceReport = 0x1F;
  const std::string body = written("2015", kAnswer, record);
  const std::string last = "ch64_SipDeviceID=\"\"\nch_SipDeviceReport=\"" + repeated("ffffffff", 63) + "1f\"\n/>\n";
  EXPECT_NE(body.find(last), std::string::npos);
  EXPECT_NE(body.find("AlarmInputIDNum=\"-2147483648\"\nAlarmIn_SipDeviceReport=\"\"\n"), std::string::npos);

  const std::string ones(100, '1');
  const auto full = readBody<SYSTEM_CONFIG_GET_2015_PARAM>(
      "2035", "<GB28181Config ch64_SipDeviceID=\"z\" ch65_SipDeviceID=\"o\" ch_SipDeviceReport=\"" + ones + "\"/>");
  EXPECT_EQ((Numbers{full->Channels[63].SipDeviceReport, full->AlarmInputs[0].SipDeviceReport, full->AlarmInputIDNum}),
            (Numbers{1, -1, -1}));
  EXPECT_STREQ(full->Channels[63].SipDeviceID, "z");
  const auto brief = readBody<SYSTEM_CONFIG_GET_2015_PARAM>(
      "2035", "<GB28181Config ch_SipDeviceReport=\"1\" other=\"" + ones + "\"/>");
  for (int i = 0; i < 64; ++i) EXPECT_EQ(brief->Channels[i].SipDeviceReport, i == 0 ? 1 : 0);
}

}  // namespace
}  // namespace kov::test
