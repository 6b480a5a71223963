#include "kov_protocol/system_config_channel.h"

#include <climits>

#include "config/channel.h"
#include "system_config_wire.h"

namespace kov::test {
namespace {

class SystemConfigChannelTest : public WireTest {};

std::string repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

TEST_F(SystemConfigChannelTest, MostMessagesTravelOnOneSideOnly) {
  EXPECT_EQ(sidesOf(kChannelCodes),
            "2532:134 3801:01234 3803:01234 3804:01234 3805:02 3806:02 3807:02 3808:02 3809:01234 3810:01234 3811:02 "
            "3812:02 3813:13 3814:02 ");
}

TEST_F(SystemConfigChannelTest, MissingElementsAreNamed) {
  EXPECT_EQ(missingOf(kChannelCodes),
            "NvrChannelStartSearchipc IPCINFO; NvrChannelAddChannel ChannelInfo; NvrChannelDelChannel REQUEST_PARAM; "
            "NvrChannelSwitchChannel REQUEST_PARAM; NvrChannelPicsSelect REQUEST_PARAM; "
            "NvrChannelPicsPageChange REQUEST_PARAM; NvrChannelModifyIpcIp REQUEST_PARAM; "
            "NvrChannelBatchModifyIpcIp ChannelInfo; NvrChannelBatchModifyIpcIpV2 REQUEST_PARAM; "
            "NvrChannelGetAddMode SearchIPCCfg; NvrChannelSetAddMode SearchIPCCfg; ");
}

TEST_F(SystemConfigChannelTest, StateOfAllChannelsWritesEmptyTextsToo) {
  const std::string body =
      "<Ipcs_stat>11</Ipcs_stat>\n<streamstat></streamstat>\n<IpcAbility1>a</IpcAbility1>\n"
      "<IpcProtoCol>p</IpcProtoCol>\n<ChnFeature>f</ChnFeature>\n<ChnDevbind>b</ChnDevbind>\n";
  const auto read = bothWays<SYSTEM_CONFIG_GET_2532_PARAM>("2532", kAnswer, body);
  EXPECT_STREQ(read->Ipcs_stat, "11");
  EXPECT_STREQ(read->ChnDevbind, "b");
}

std::string idsWritten(const SYSTEM_CONFIG_GET_3803_PARAM& list) {
  const std::string body = written("3803", kAnswer, list);
  const std::string start = "<ChannelInfo\nChannelId=\"";
  std::string ids;
  for (std::size_t at = body.find(start); at != std::string::npos; at = body.find(start, at + 1)) {
    const std::size_t id = at + start.size();
    ids += body.substr(id, body.find('"', id) - id) + " ";
  }
  return ids;
}

TEST_F(SystemConfigChannelTest, ChannelListIsOneRunOfUsedSlots) {
  const auto list = std::make_unique<SYSTEM_CONFIG_GET_3803_PARAM>();
  EXPECT_EQ(written("3803", kAsk, *list), "");
  EXPECT_EQ(written("3803", kAnswer, *list), "ChannelCount=\"-1\"\n");
  for (const int slot : {3, 4, 5, 7}) list->Channels[slot].ChannelId = slot;
  EXPECT_EQ(idsWritten(*list), "");
  list->ChannelCount = 2;
  EXPECT_EQ(idsWritten(*list), "3 4 ");
  list->ChannelCount = INT_MAX;
  EXPECT_EQ(idsWritten(*list), "3 4 5 ");
  list->DivideResponse = 0;
  EXPECT_EQ(idsWritten(*list), "3 4 5 ");
  EXPECT_EQ(written("3803", kAnswer, *list).find("EndPackage"), std::string::npos);
  list->DivideResponse = 1;
  list->EndPackage = 0;
  EXPECT_EQ(idsWritten(*list), "3 ");
  EXPECT_EQ(written("3803", kAnswer, *list).find("ChannelCount=\"2147483647\"\nEndPackage=\"0\"\n<Chann"), 0U);
  EXPECT_EQ(written("3803", kAsk, *list), "<REQUEST_PARAM\nDivideResponse=\"1\"\n/>\n");
  list->DivideResponse = INT_MAX;
  for (SYSTEM_CONFIG_CHANNEL_INFO& slot : list->Channels) slot.ChannelId = 1;
  list->Channels[0].ChannelId = -1;
  EXPECT_EQ(idsWritten(*list), repeated("1 ", 63));
}

TEST_F(SystemConfigChannelTest, ChannelListReadsElementsButNotBareCounts) {
  const std::string entry =
      "<ChannelInfo\nChannelId=\"1\"\nIpAddr=\"i\"\nDevMode=\"2\"\nProtocol=\"P\"\nChannnelName=\"c\"\nStatus=\"3\"\n"
      "CtrlPort =\"4\"\nUsername=\"u\"\nPassword=\"p\"\nRtspDomain=\"d\"\nRtspMainResPath=\"a?b&c\"\n"
      "RtspMainResPort=\"5\"\nRtspSubResPath=\"s\"\nRtspSubResPort=\"6\"\n/>\n";
  const auto read = readBody<SYSTEM_CONFIG_GET_3803_PARAM>("3803", "ChannelCount=\"66\"\n" + repeated(entry, 66));
  EXPECT_EQ(read->ChannelCount, -1);
  EXPECT_EQ(read->Channels[63].CtrlPort, 4);
  EXPECT_STREQ(read->Channels[63].RtspMainResPath, "a?b&c");
  read->ChannelCount = 1;
  EXPECT_EQ(written("3803", kAnswer, *read), "ChannelCount=\"1\"\n" + entry);

  const auto counted = readBody<SYSTEM_CONFIG_GET_3803_PARAM>(
      "3803", "<REQUEST_PARAM DivideResponse=\"8\" ChannelCount=\"9\" EndPackage=\"1\"/>" + entry);
  EXPECT_EQ(counted->DivideResponse, 8);
  EXPECT_EQ(counted->ChannelCount, 9);
  EXPECT_EQ(counted->EndPackage, 1);
  EXPECT_EQ(counted->Channels[0].Status, 3);
  EXPECT_EQ(counted->Channels[1].ChannelId, -1);
}

TEST_F(SystemConfigChannelTest, AddedChannelsAreAnsweredWithResults) {
  const std::string asked =
      "<ChannelInfo\nChannelId=\"1\"\nIPAddress=\"i\"\nDevMode=\"2\"\nProtocol=\"P\"\nCtrlPort =\"4\"\nUsername=\"u\"\n"
      "Password=\"p\"\nRtspDomain=\"d\"\nRtspMainResPath=\"m\"\nRtspMainResPort=\"5\"\nRtspSubResPath=\"s\"\n"
      "RtspSubResPort=\"6\"\n/>\n";
  const std::string answered = "<ChannelInfo\nChannelId=\"1\"\nIPAddress=\"i\"\nResult=\"7\"\n/>\n";
  EXPECT_EQ(bothWays<SYSTEM_CONFIG_SET_3804_PARAM>("3804", kAsk, repeated(asked, 2))->ChannelCount, 2);
  EXPECT_EQ(bothWays<SYSTEM_CONFIG_SET_3804_PARAM>("3804", kAnswer, repeated(answered, 3))->Channels[2].Status, 7);
}

TEST_F(SystemConfigChannelTest, AddressChangesAreAnsweredUnderTheRequestsName) {
  const std::string asked =
      "Protocol=\"P\"\nIPAddressOld=\"o\"\nIPAddressNew=\"w\"\nUsername=\"u\"\nPassword=\"p\"\nSN=\"s\"\n"
      "MacAddress=\"m\"\nNetmask=\"n\"\nGateway=\"g\"\nDNS1=\"d\"\nDNS2=\"e\"\nCtrlPort=\"80\"\n/>\n";
  const std::string answered =
      "<REQUEST_PARAM\nIsChangIP=\"1\"\nIPAddressOld=\"o\"\nIPAddressNew=\"w\"\nNetmask=\"n\"\nGateway=\"g\"\n/>\n";
  bothWays<SYSTEM_CONFIG_SET_3809_PARAM>("3809", kAsk, "<REQUEST_PARAM\n" + asked);
  EXPECT_EQ(bothWays<SYSTEM_CONFIG_SET_3809_PARAM>("3809", kAnswer, answered)->IsChangIP, 1);
  const std::string batch = repeated("<ChannelInfo\n" + asked, 2);
  EXPECT_EQ(bothWays<SYSTEM_CONFIG_SET_3810_PARAM>("3810", kAsk, batch)->ChannelCount, 2);
  EXPECT_EQ(bothWays<SYSTEM_CONFIG_SET_3810_PARAM>("3810", kAnswer, repeated(answered, 2))->ChannelCount, 2);
}

TEST_F(SystemConfigChannelTest, SecondBatchSharesOneLogin) {
  const std::string head =
      "<REQUEST_PARAM\nUsername=\"u\"\nPassword=\"p\"\nIPAddressStart=\"a\"\nNetmask=\"n\"\nGateway=\"g\"\n/>\n";
  const std::string camera =
      "<ChannelInfo\nProtocol=\"P\"\nIPAddress=\"i\"\nSN=\"s\"\nNetmask=\"N\"\nGateway=\"G\"\nCtrlPort=\"80\"\n/>\n";
  EXPECT_EQ(bothWays<SYSTEM_CONFIG_SET_3812_PARAM>("3812", kAsk, head + camera + camera)->ChannelCount, 2);
  EXPECT_EQ(bothWays<SYSTEM_CONFIG_SET_3812_PARAM>("3812", kAsk, head)->ChannelCount, 0);
}

template <class Record>
void expectFullTable(const std::string& code, const std::string& head) {
  const auto read = readBody<Record>(code, head + repeated("<ChannelInfo SN=\"s\"/>", 65));
  EXPECT_EQ(read->ChannelCount, 64) << code;
  const std::string whole = written(code, kAsk, *read);
  read->ChannelCount = INT_MAX;
  EXPECT_EQ(written(code, kAsk, *read), whole) << code;
}

TEST_F(SystemConfigChannelTest, BatchesEndWithTheirTables) {
  expectFullTable<SYSTEM_CONFIG_SET_3804_PARAM>("3804", "");
  expectFullTable<SYSTEM_CONFIG_SET_3810_PARAM>("3810", "");
  expectFullTable<SYSTEM_CONFIG_SET_3812_PARAM>("3812", "<REQUEST_PARAM/>");
}

TEST_F(SystemConfigChannelTest, DeletedChannelsAreCountedInABareLine) {
  SYSTEM_CONFIG_SET_3811_PARAM record;
  record.ChannelCount = 0;
  EXPECT_EQ(written("3811", kAsk, record), "ChannelCount=\"0\"\n");
  record.ChannelCount = 2;
  record.Channels[0].ChannelId = 4;
  const std::string body =
      "ChannelCount=\"2\"\n<ChannelInfo\nChannelId=\"4\"\n/>\n<ChannelInfo\nChannelId=\"-1\"\n/>\n";
  EXPECT_EQ(written("3811", kAsk, record), body);
  const auto read = readBody<SYSTEM_CONFIG_SET_3811_PARAM>("3811", body);
  EXPECT_EQ(read->ChannelCount, -1);
  EXPECT_EQ(read->Channels[0].ChannelId, 4);
  record.ChannelCount = 64;
  const std::string whole = written("3811", kAsk, record);
  record.ChannelCount = 65;
  EXPECT_EQ(written("3811", kAsk, record).size(), whole.size());
  EXPECT_EQ(readBody<SYSTEM_CONFIG_SET_3811_PARAM>("3811", "<REQUEST_PARAM ChannelCount=\"7\"/>")->ChannelCount, 7);
}

TEST_F(SystemConfigChannelTest, AddModesAreAList) {
  const auto cfg = [](const std::string& list) {
    return "<SearchIPCCfg\nSearchModeList=\"" + list + "\"\nSearchMode=\"2\"\n/>\n";
  };
  const auto three = bothWays<SYSTEM_CONFIG_GET_3813_PARAM>("3813", 3, cfg("0,1,2"));
  EXPECT_EQ(three->SearchModeList[2].Mode, 2);
  EXPECT_EQ(three->SearchModeList[3].Mode, -1);
  EXPECT_EQ(written("3814", kAsk, *three), "<SearchIPCCfg\nSearchMode=\"2\"\n/>\n");
  bothWays<SYSTEM_CONFIG_GET_3813_PARAM>("3813", 1, cfg(""));
  bothWays<SYSTEM_CONFIG_GET_3813_PARAM>("3813", 1, cfg(repeated("-2147483648,", 14) + "7"));
  const auto sixteen = readBody<SYSTEM_CONFIG_GET_3813_PARAM>("3813", cfg(repeated("5,", 15) + "6"));
  EXPECT_EQ(sixteen->SearchModeList[14].Mode, 5);
  EXPECT_EQ(sixteen->SearchMode, 2);
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_3813_PARAM>("3813", cfg("1;2"))->SearchModeList[1].Mode, -1);
}

}  // namespace
}  // namespace kov::test
