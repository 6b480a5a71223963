#include "kov_protocol/system_config_channel.h"

#include <climits>

#include "config/channel.h"
#include "every_message.h"
#include "wire.h"

namespace kov::test {
namespace {

const std::string kType = "SYSTEM_CONFIG_SET_MESSAGE";
constexpr int kAsk = 0;
constexpr int kAnswer = 1;

class SystemConfigChannelTest : public WireTest {};

// Lists of channels are large, so results stay in their heap block.
template <class Record>
struct Result {
  explicit Result(Analysis made) : analysis(std::move(made)) {}
  Record* operator->() const { return static_cast<Record*>(analysis.result.get()); }
  Analysis analysis;
};

template <class Record>
Result<Record> readBody(const std::string& code, const std::string& body) {
  Result<Record> result(analysePayload(received(kType, code, body)));
  EXPECT_EQ(result.analysis.code, 0) << code << "\n" << body;
  if (result.analysis.result == nullptr) throw std::runtime_error("no record");
  return result;
}

// Reads a body, and expects the record to give the same text again.
template <class Record>
Result<Record> bothWays(const std::string& code, int direction, const std::string& body) {
  Result<Record> result = readBody<Record>(code, body);
  EXPECT_EQ(bodyOf(kType, code, direction, result.analysis.result.get()), body);
  return result;
}

std::string repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

int countOf(const std::string& needle, const std::string& text) {
  int found = 0;
  for (std::size_t at = text.find(needle); at != std::string::npos; at = text.find(needle, at + 1)) ++found;
  return found;
}

TEST_F(SystemConfigChannelTest, SidesThatCarryNothing) {
  for (const CodeRow& row : kChannelCodes) {
    const TestedMessage message = {kType, std::to_string(row.code), row.message->record()};
    const RecordBlock record = filledRecord(message, 1);
    const bool bothSides =
        row.code == 3801 || row.code == 3803 || row.code == 3804 || row.code == 3809 || row.code == 3810;
    const bool answers = bothSides || row.code == 2532 || row.code == 3813;
    const bool asks = bothSides || !answers;
    for (const int direction : {0, 2}) EXPECT_EQ(bodyOf(kType, message.code, direction, record.get()).empty(), !asks);
    for (const int direction : {1, 3}) {
      EXPECT_EQ(bodyOf(kType, message.code, direction, record.get()).empty(), !answers) << message.code;
    }
    EXPECT_EQ(bodyOf(kType, message.code, 4, record.get()).empty(), !answers || row.code == 3813) << message.code;
  }
}

TEST_F(SystemConfigChannelTest, MissingElementsAreNamed) {
  const std::pair<const char*, const char*> missing[] = {
      {"3801", "StartSearchipc_MessageAnalysis get IPCINFO"},
      {"3804", "AddChannel_MessageAnalysis get ChannelInfo"},
      {"3805", "DelChannel_MessageAnalysis get REQUEST_PARAM"},
      {"3806", "SwitchChannel_MessageAnalysis get REQUEST_PARAM"},
      {"3807", "PicsSelect_MessageAnalysis get REQUEST_PARAM"},
      {"3808", "PicsPageChange_MessageAnalysis get REQUEST_PARAM"},
      {"3809", "ModifyIpcIp_MessageAnalysis get REQUEST_PARAM"},
      {"3810", "BatchModifyIpcIp_MessageAnalysis get ChannelInfo"},
      {"3812", "BatchModifyIpcIpV2_MessageAnalysis get REQUEST_PARAM"},
      {"3813", "GetAddMode_MessageAnalysis get SearchIPCCfg"},
      {"3814", "SetAddMode_MessageAnalysis get SearchIPCCfg"},
  };
  for (const auto& [code, text] : missing) {
    resetPlatform();
    EXPECT_EQ(analysisCode(kType, code, ""), KOV_ERROR_NO_ELEMENT);
    EXPECT_EQ(failures(), std::vector<std::string>{std::string("E SystemConfig_NvrChannel") + text + " error\n"});
  }
  for (const std::string code : {"2532", "3803", "3811"}) EXPECT_EQ(analysisCode(kType, code, ""), 0);
}

TEST_F(SystemConfigChannelTest, StateOfAllChannelsWritesEmptyTextsToo) {
  const std::string body =
      "<Ipcs_stat>11</Ipcs_stat>\n<streamstat></streamstat>\n<IpcAbility1>a</IpcAbility1>\n"
      "<IpcProtoCol>p</IpcProtoCol>\n<ChnFeature>f</ChnFeature>\n<ChnDevbind>b</ChnDevbind>\n";
  const auto read = bothWays<SYSTEM_CONFIG_GET_2532_PARAM>("2532", kAnswer, body);
  EXPECT_STREQ(read->Ipcs_stat, "11");
  EXPECT_STREQ(read->ChnDevbind, "b");
}

TEST_F(SystemConfigChannelTest, SearchAnswersWithOneCamera) {
  bothWays<SYSTEM_CONFIG_GET_3801_PARAM>("3801", kAsk, "<REQUEST_PARAM\nSearchDuration=\"5\"\n/>\n");
  const std::string found =
      "<IPCINFO\nProtocol=\"P\"\nIPAddress=\"i\"\nUsername=\"u\"\nPassword=\"p\"\nCtrlPort=\"80\"\nSN=\"s\"\n"
      "OsdName=\"o\"\nIpcVer=\"v\"\nMacAddress=\"m\"\nNetmask=\"n\"\nGateway=\"g\"\n/>\n";
  EXPECT_EQ(bothWays<SYSTEM_CONFIG_GET_3801_PARAM>("3801", kAnswer, found)->SearchDuration, -1);
}

std::string idsWritten(const SYSTEM_CONFIG_GET_3803_PARAM& list) {
  const std::string body = bodyOf(kType, "3803", kAnswer, &list);
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
  EXPECT_EQ(bodyOf(kType, "3803", kAsk, list.get()), "");
  EXPECT_EQ(bodyOf(kType, "3803", kAnswer, list.get()), "ChannelCount=\"-1\"\n");
  for (const int slot : {3, 4, 5, 7}) list->Channels[slot].ChannelId = slot;
  EXPECT_EQ(idsWritten(*list), "");
  list->ChannelCount = 2;
  EXPECT_EQ(idsWritten(*list), "3 4 ");
  list->ChannelCount = INT_MAX;
  EXPECT_EQ(idsWritten(*list), "3 4 5 ");
  list->DivideResponse = 0;
  EXPECT_EQ(idsWritten(*list), "3 4 5 ");
  EXPECT_EQ(bodyOf(kType, "3803", kAnswer, list.get()).find("EndPackage"), std::string::npos);
  list->DivideResponse = 1;
  list->EndPackage = 0;
  EXPECT_EQ(idsWritten(*list), "3 ");
  EXPECT_EQ(bodyOf(kType, "3803", kAnswer, list.get()).find("ChannelCount=\"2147483647\"\nEndPackage=\"0\"\n<Chann"),
            0U);
  EXPECT_EQ(bodyOf(kType, "3803", kAsk, list.get()), "<REQUEST_PARAM\nDivideResponse=\"1\"\n/>\n");
}

TEST_F(SystemConfigChannelTest, ChannelListEndsWithItsTable) {
  const auto list = std::make_unique<SYSTEM_CONFIG_GET_3803_PARAM>();
  list->ChannelCount = INT_MAX;
  list->Channels[63].ChannelId = 63;
  EXPECT_EQ(idsWritten(*list), "63 ");
  for (SYSTEM_CONFIG_CHANNEL_INFO& slot : list->Channels) slot.ChannelId = 1;
  EXPECT_EQ(idsWritten(*list), repeated("1 ", 64));
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
  EXPECT_EQ(bodyOf(kType, "3803", kAnswer, read.operator->()), "ChannelCount=\"1\"\n" + entry);

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

TEST_F(SystemConfigChannelTest, BatchesEndWithTheirTables) {
  const std::string many = repeated("<ChannelInfo SN=\"s\"/>", 65);
  for (const std::string code : {"3804", "3810", "3812"}) {
    const auto read = readBody<SYSTEM_CONFIG_SET_3804_PARAM>(code, "<REQUEST_PARAM/>" + (code == "3810" ? "" : many));
    EXPECT_EQ(read->ChannelCount, code == "3810" ? 1 : 64);
    read->ChannelCount = INT_MAX;
    EXPECT_EQ(countOf("<ChannelInfo\n", bodyOf(kType, code, kAsk, read.operator->())), 64);
  }
  EXPECT_EQ(readBody<SYSTEM_CONFIG_SET_3810_PARAM>("3810", many)->ChannelCount, 64);
}

TEST_F(SystemConfigChannelTest, DeletedChannelsAreCountedInABareLine) {
  SYSTEM_CONFIG_SET_3811_PARAM record;
  record.ChannelCount = 0;
  EXPECT_EQ(bodyOf(kType, "3811", kAsk, &record), "ChannelCount=\"0\"\n");
  record.ChannelCount = 2;
  record.Channels[0].ChannelId = 4;
  const std::string body =
      "ChannelCount=\"2\"\n<ChannelInfo\nChannelId=\"4\"\n/>\n<ChannelInfo\nChannelId=\"-1\"\n/>\n";
  EXPECT_EQ(bodyOf(kType, "3811", kAsk, &record), body);
  const auto read = readBody<SYSTEM_CONFIG_SET_3811_PARAM>("3811", body);
  EXPECT_EQ(read->ChannelCount, -1);
  EXPECT_EQ(read->Channels[0].ChannelId, 4);
  record.ChannelCount = 70;
  EXPECT_EQ(countOf("<ChannelInfo\n", bodyOf(kType, "3811", kAsk, &record)), 64);
  EXPECT_EQ(readBody<SYSTEM_CONFIG_SET_3811_PARAM>("3811", "<REQUEST_PARAM ChannelCount=\"7\"/>")->ChannelCount, 7);
}

TEST_F(SystemConfigChannelTest, AddModesAreAList) {
  const auto cfg = [](const std::string& list) {
    return "<SearchIPCCfg\nSearchModeList=\"" + list + "\"\nSearchMode=\"2\"\n/>\n";
  };
  const auto three = bothWays<SYSTEM_CONFIG_GET_3813_PARAM>("3813", 3, cfg("0,1,2"));
  EXPECT_EQ(three->SearchModeList[2].Mode, 2);
  EXPECT_EQ(three->SearchModeList[3].Mode, -1);
  EXPECT_EQ(bodyOf(kType, "3814", kAsk, three.operator->()), "<SearchIPCCfg\nSearchMode=\"2\"\n/>\n");
  bothWays<SYSTEM_CONFIG_GET_3813_PARAM>("3813", 1, cfg(""));
  bothWays<SYSTEM_CONFIG_GET_3813_PARAM>("3813", 1, cfg(repeated("-2147483648,", 14) + "7"));
  const auto sixteen = readBody<SYSTEM_CONFIG_GET_3813_PARAM>("3813", cfg(repeated("5,", 15) + "6"));
  EXPECT_EQ(sixteen->SearchModeList[14].Mode, 5);
  EXPECT_EQ(sixteen->SearchMode, 2);
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_3813_PARAM>("3813", cfg("1;2"))->SearchModeList[1].Mode, -1);
}

TEST_F(SystemConfigChannelTest, FillersEmptyEverySlot) {
  EXPECT_EQ(SYSTEM_CONFIG_SET_3814_PARAM_init(nullptr), KOV_ERROR_NULL);
  const auto list = std::make_unique<SYSTEM_CONFIG_GET_3803_PARAM>();
  list->Channels[63].ChannelId = 3;
  set(list->Channels[63].ChannnelName, "n");
  EXPECT_EQ(SYSTEM_CONFIG_GET_3803_PARAM_init(list.get()), 0);
  EXPECT_EQ(list->Channels[63].ChannelId, -1);
  EXPECT_STREQ(list->Channels[63].ChannnelName, "");
}

}  // namespace
}  // namespace kov::test
