#include "kov_protocol/system_config_channel.h"

#include "system_config_wire.h"

namespace kov::test {
namespace {

class SystemConfigChannelTest : public WireTest {};

TEST_F(SystemConfigChannelTest, FieldsStandUnderTheirNames) {
  EXPECT_STREQ(stored<SYSTEM_CONFIG_GET_2532_PARAM>("2532", "channel_states")->Ipcs_stat, "11");
  EXPECT_STREQ(stored<SYSTEM_CONFIG_GET_2532_PARAM>("2532", "channel_states")->ChnDevbind, "b");
  EXPECT_EQ(stored<SYSTEM_CONFIG_SET_3804_PARAM>("3804", "adding_result")->Channels[2].Status, 7);
  EXPECT_EQ(stored<SYSTEM_CONFIG_SET_3809_PARAM>("3809", "address_changed")->IsChangIP, 1);
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
  EXPECT_EQ(read->ChannelCount, -1);
  EXPECT_EQ(read->Channels[63].CtrlPort, 4);
  EXPECT_STREQ(read->Channels[63].RtspMainResPath, "a?b&c");
  read->ChannelCount = 1;
  EXPECT_EQ(written("3803", kAnswer, *read), body);
  const auto counted = readBody<SYSTEM_CONFIG_GET_3803_PARAM>(
      "3803", "<REQUEST_PARAM DivideResponse=\"8\" ChannelCount=\"9\" EndPackage=\"1\"/>" + entry);
  EXPECT_EQ(counted->DivideResponse, 8);
  EXPECT_EQ(counted->ChannelCount, 9);
  EXPECT_EQ(counted->EndPackage, 1);
  EXPECT_EQ(counted->Channels[0].Status, 3);
  EXPECT_EQ(counted->Channels[1].ChannelId, -1);
}

// Batches of two, cut into head, entry and count.
template <class Record>
void expectBatch(const std::string& code, int direction, const std::string& file, const std::string& element) {
  const std::string body = golden("system_config/" + file + ".txt");
  const std::size_t first = body.find(element);
  const std::size_t second = body.find(element, first + 1);
  const std::string entry = body.substr(first, second - first);
  expectBounded({kConfigType, code, direction, 64, body.substr(0, first), entry, ""}, &Record::ChannelCount);
}

TEST_F(SystemConfigChannelTest, BatchesEndWithTheirTables) {
  expectBatch<SYSTEM_CONFIG_SET_3804_PARAM>("3804", kAsk, "adding", "<ChannelInfo");
  expectBatch<SYSTEM_CONFIG_SET_3804_PARAM>("3804", kAnswer, "adding_result", "<ChannelInfo");
  expectBatch<SYSTEM_CONFIG_SET_3810_PARAM>("3810", kAsk, "address_changes", "<ChannelInfo");
  expectBatch<SYSTEM_CONFIG_SET_3810_PARAM>("3810", kAnswer, "addresses_changed", "<REQUEST_PARAM");
  expectBatch<SYSTEM_CONFIG_SET_3812_PARAM>("3812", kAsk, "second_batch", "<ChannelInfo");
}

TEST_F(SystemConfigChannelTest, DeletedChannelsAreCountedInABareLine) {
  const std::string entry = "<ChannelInfo\nChannelId=\"4\"\n/>\n";
  expectBounded({kConfigType, "3811", kAsk, 64, "ChannelCount=\"#\"\n", entry, ""},
                &SYSTEM_CONFIG_SET_3811_PARAM::ChannelCount);
  EXPECT_EQ(readBody<SYSTEM_CONFIG_SET_3811_PARAM>("3811", "ChannelCount=\"2\"\n" + entry)->ChannelCount, -1);
  EXPECT_EQ(readBody<SYSTEM_CONFIG_SET_3811_PARAM>("3811", "<REQUEST_PARAM ChannelCount=\"7\"/>")->ChannelCount, 7);
}

TEST_F(SystemConfigChannelTest, AddModesAreAList) {
  const auto modes = [](const std::string& list) {
    return readBody<SYSTEM_CONFIG_GET_3813_PARAM>("3813",
                                                  "<SearchIPCCfg SearchModeList=\"" + list + "\" SearchMode=\"2\"/>");
  };
  EXPECT_EQ(modes("0,1,2")->SearchModeList[2].Mode, 2);
  EXPECT_EQ(modes("0,1,2")->SearchModeList[3].Mode, -1);
  EXPECT_EQ(modes(repeated("5,", 15) + "6")->SearchModeList[14].Mode, 5);
  EXPECT_EQ(modes(repeated("5,", 15) + "6")->SearchMode, 2);
  EXPECT_EQ(modes("1;2")->SearchModeList[1].Mode, -1);
}

}  // namespace
}  // namespace kov::test
