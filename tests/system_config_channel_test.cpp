#include "kov_protocol/system_config_channel.h"

#include "system_config_wire.h"

namespace kov::test {
namespace {

class SystemConfigChannelTest : public WireTest {};

TEST_F(SystemConfigChannelTest, FieldsStandUnderTheirNames) {
  EXPECT_EQ((Numbers{stored<SYSTEM_CONFIG_SET_3804_PARAM>("3804", "adding_result")->Channels[1].Status,
                     stored<SYSTEM_CONFIG_SET_3809_PARAM>("3809", "address_changed")->IsChangIP}),
            (Numbers{7, 1}));
  EXPECT_EQ((Texts{stored<SYSTEM_CONFIG_GET_2532_PARAM>("2532", "channel_states")->Ipcs_stat,
                   stored<SYSTEM_CONFIG_GET_2532_PARAM>("2532", "channel_states")->ChnDevbind}),
            (Texts{"11", "b"}));
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
  list->ChannelCount = INT32_MAX;
  EXPECT_EQ(idsWritten(*list), "3 4 5 ");
  list->DivideResponse = 0;
  EXPECT_EQ(idsWritten(*list), "3 4 5 ");
  EXPECT_EQ(written("3803", kAnswer, *list).find("EndPackage"), std::string::npos);
  list->DivideResponse = 1;
  list->EndPackage = 0;
  EXPECT_EQ(idsWritten(*list), "3 ");
  EXPECT_EQ(written("3803", kAnswer, *list).find("ChannelCount=\"2147483647\"\nEndPackage=\"0\"\n<Chann"), 0U);
  EXPECT_EQ(written("3803", kAsk, *list), "<REQUEST_PARAM\nDivideResponse=\"1\"\n/>\n");
  list->DivideResponse = INT32_MAX;
  for (SYSTEM_CONFIG_CHANNEL_INFO& slot : list->Channels) slot.ChannelId = 1;
  list->Channels[0].ChannelId = -1;
  EXPECT_EQ(idsWritten(*list), repeated("1 ", 63));
}

TEST_F(SystemConfigChannelTest, ChannelListReadsElementsButNotBareCounts) {
  const std::string body = golden("system_config/channel_list.txt");
  const std::string entry = body.substr(body.find('<'));
  const auto read = readBody<SYSTEM_CONFIG_GET_3803_PARAM>("3803", "ChannelCount=\"66\"\n" + repeated(entry, 66));
  EXPECT_EQ((Numbers{read->ChannelCount, read->Channels[63].CtrlPort}), (Numbers{-1, 4}));
  EXPECT_STREQ(read->Channels[63].RtspMainResPath, "a?b&c");
  read->ChannelCount = 1;
  EXPECT_EQ(written("3803", kAnswer, *read), body);
  const auto counted = readBody<SYSTEM_CONFIG_GET_3803_PARAM>(
      "3803", "<REQUEST_PARAM DivideResponse=\"8\" ChannelCount=\"9\" EndPackage=\"1\"/>" + entry);
  EXPECT_EQ((Numbers{counted->DivideResponse, counted->ChannelCount, counted->EndPackage, counted->Channels[0].Status,
                     counted->Channels[1].ChannelId}),
            (Numbers{8, 9, 1, 3, -1}));
}

TEST_F(SystemConfigChannelTest, BatchesEndWithTheirTables) {
  expectBoundedList("3804", kAsk, 64, "adding", "<ChannelInfo", &SYSTEM_CONFIG_SET_3804_PARAM::ChannelCount);
  expectBoundedList("3804", kAnswer, 64, "adding_result", "<ChannelInfo", &SYSTEM_CONFIG_SET_3804_PARAM::ChannelCount);
  expectBoundedList("3810", kAsk, 64, "address_changes", "<Chan", &SYSTEM_CONFIG_SET_3810_PARAM::ChannelCount);
  expectBoundedList("3810", kAnswer, 64, "addresses_changed", "<REQ", &SYSTEM_CONFIG_SET_3810_PARAM::ChannelCount);
  expectBoundedList("3812", kAsk, 64, "second_batch", "<ChannelInfo", &SYSTEM_CONFIG_SET_3812_PARAM::ChannelCount);
  expectBoundedList("3811", kAsk, 64, "batch_deletion", "<Chan", &SYSTEM_CONFIG_SET_3811_PARAM::ChannelCount);
  EXPECT_EQ(stored<SYSTEM_CONFIG_SET_3811_PARAM>("3811", "batch_deletion")->ChannelCount, -1);
  EXPECT_EQ(readBody<SYSTEM_CONFIG_SET_3811_PARAM>("3811", "<REQUEST_PARAM ChannelCount=\"7\"/>")->ChannelCount, 7);
}

TEST_F(SystemConfigChannelTest, AddModesAreAList) {
  const auto modes = [](const std::string& list) {
    return readBody<SYSTEM_CONFIG_GET_3813_PARAM>("3813",
                                                  "<SearchIPCCfg SearchModeList=\"" + list + "\" SearchMode=\"2\"/>");
  };
  EXPECT_EQ((Numbers{modes("0,1,2")->SearchModeList[2].Mode, modes("0,1,2")->SearchModeList[3].Mode,
                     modes(repeated("5,", 15) + "6")->SearchModeList[14].Mode,
                     modes(repeated("5,", 15) + "6")->SearchMode, modes("1;2")->SearchModeList[1].Mode}),
            (Numbers{2, -1, 5, 2, -1}));
}

}  // namespace
}  // namespace kov::test
