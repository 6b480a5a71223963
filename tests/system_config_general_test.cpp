#include "kov_protocol/system_config_general.h"

#include "system_config_wire.h"

namespace kov::test {
namespace {

class SystemConfigGeneralTest : public WireTest {};

TEST_F(SystemConfigGeneralTest, FieldsStandUnderTheirNames) {
  EXPECT_EQ((Numbers{stored<SYSTEM_CONFIG_GET_202_PARAM>("202", "camera_time")->Delta,
                     stored<SYSTEM_CONFIG_GET_2510_PARAM>("2510", "recorder_users_told")->Accounts[1].LoginStat,
                     stored<SYSTEM_CONFIG_GET_2510_PARAM>("2530", "recorder_users_set")->Accounts[0].OperationType,
                     stored<SYSTEM_CONFIG_GET_2560_PARAM>("2565", "encode_set")->LockPara,
                     stored<SYSTEM_CONFIG_GET_2560_PARAM>("2565", "encode_set")->Streams[1].FrameRate,
                     stored<SYSTEM_CONFIG_GET_2561_PARAM>("2561", "capability")->ChannelId,
                     stored<SYSTEM_CONFIG_GET_3028_PARAM>("3028", "log_page")->Logs[1].LogId}),
            (Numbers{4, 1, 5, 6, 4, 3, 2147483648}));
  EXPECT_EQ((Texts{stored<SYSTEM_CONFIG_GET_202_PARAM>("202", "camera_time")->Time,
                   stored<SYSTEM_CONFIG_GET_2500_PARAM>("2520", "general_told")->LanguageList,
                   stored<SYSTEM_CONFIG_GET_2561_PARAM>("2561", "capability")->VideoCap,
                   stored<SYSTEM_CONFIG_GET_3600_PARAM>("3600", "schedule")->Channels[1].Schedule}),
            (Texts{"t", "", "c", "s"}));
}

TEST_F(SystemConfigGeneralTest, ListsAreCountedAndBounded) {
  expectBoundedList("203", kAnswer, 64, "camera_users", "<Account", &SYSTEM_CONFIG_GET_203_PARAM::AccountCount);
  expectBoundedList("223", kAsk, 64, "camera_users", "<Account", &SYSTEM_CONFIG_GET_203_PARAM::AccountCount);
  expectBoundedList("2510", kAnswer, 64, "recorder_users_told", "<Account", &SYSTEM_CONFIG_GET_2510_PARAM::UserNum);
  expectBoundedList("2530", kAsk, 64, "recorder_users_set", "<Account", &SYSTEM_CONFIG_GET_2510_PARAM::UserNum);
  expectBoundedList("2555", kAsk, 64, "overlays_set", "<Overlay\n", &SYSTEM_CONFIG_GET_2550_PARAM::ChannelCount);
  expectBoundedList("3028", kAnswer, 128, "log_page", "<LogInfo", &SYSTEM_CONFIG_GET_3028_PARAM::LogCount);
  expectBoundedList("3600", kAnswer, 64, "schedule", "<ChannelDetail", &SYSTEM_CONFIG_GET_3600_PARAM::ChannelNum);
  expectBoundedList("3601", kAsk, 64, "schedule", "<ChannelDetail", &SYSTEM_CONFIG_GET_3600_PARAM::ChannelNum);
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_2510_PARAM>("2510", "<UserConfig UserNum=\"3\"/>")->UserNum, 3);
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_2510_PARAM>("2510", "<UserConfig><Account/></UserConfig>")->UserNum, 1);
  const std::string uncounted = "<RESPONSE_PARAM/><LogList>" + repeated("<LogInfo/>", 3) + "</LogList>";
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_3028_PARAM>("3028", uncounted)->LogCount, 3);
  const std::string closed = "<RecordConfig><ChannelDetail/></RecordConfig>";
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_3600_PARAM>("3601", closed)->ChannelNum, 1);
}

TEST_F(SystemConfigGeneralTest, WeekTimesArePaddedWithBlanks) {
  const auto time = stored<SYSTEM_CONFIG_GET_2505_PARAM>("2505", "recorder_time");
  EXPECT_EQ((Numbers{time->Enable, time->SummerEnable, time->WeekStartTime[3], time->WeekEndTime[3]}),
            (Numbers{1, 0, 12, INT32_MIN}));
  const auto cut = readBody<SYSTEM_CONFIG_GET_2505_PARAM>(
      "2505", "<TimeConfig><SummerTime WeekStartTime=\"03:2x\" WeekEndTime=\"1:2:3:4:5:6:7\"/></TimeConfig>");
  EXPECT_EQ((Numbers{cut->WeekStartTime[1], cut->WeekStartTime[2], cut->WeekEndTime[4]}), (Numbers{2, -1, 5}));
  EXPECT_STREQ(cut->Time, "");
}

TEST_F(SystemConfigGeneralTest, CloudAnswerNotifiesInOneModeOnly) {
  const auto record = stored<SYSTEM_CONFIG_GET_2515_PARAM>("2515", "cloud_notifying");
  set(record->Passwd, "p");
  for (const int mode : {-1, 0, 2}) {
    record->Mode = mode;
    EXPECT_EQ(written("2515", kAnswer, *record), golden("system_config/cloud_plain.txt"));
  }
  EXPECT_EQ(stored<SYSTEM_CONFIG_GET_2515_PARAM>("2515", "cloud_plain")->Mode, -1);
}

TEST_F(SystemConfigGeneralTest, QueriesOfAllChannelsAreHexadecimal) {
  for (const auto& [code, closing] :
       {std::pair("2550", "/>\n"), std::pair("2560", "\n/>\n"), std::pair("2561", "\n/>\n")}) {
    // The channel stands first in all three records.
    for (const auto& [text, number] : {std::pair("\"7\"", 7), {"\"0xff\"", 255}}) {
      const std::string query = std::string("<REQUEST_PARAM\nChannelId=") + text + closing;
      EXPECT_EQ(*bothWays<std::int32_t>(code, kAsk, query), number);
    }
    for (const auto& [text, number] : {std::pair("0X1f", 31), {"010", 10}, {"ff", -1}}) {
      const std::string query = std::string("<REQUEST_PARAM ChannelId=\"") + text + "\"/>";
      EXPECT_EQ(*readBody<std::int32_t>(code, query), number);
    }
    EXPECT_EQ(*readBody<std::int32_t>(code, "<REQUEST_PARAM/>"), -1);
  }
  for (const char* spelt : {"0xff", "\" 0XFF\""}) {
    EXPECT_EQ(*readBody<std::int32_t>("2560", std::string("<REQUEST_PARAM\nChannelId=") + spelt + "/>"), 255);
  }
}

TEST_F(SystemConfigGeneralTest, OverlayAnswerEndsAtTheFirstUnusedEntry) {
  const auto two = stored<SYSTEM_CONFIG_GET_2550_PARAM>("2550", "overlays_told");
  EXPECT_EQ((Numbers{two->ChannelCount, two->ChannelId, two->Overlays[1].TimePosX, two->Overlays[1].TitlePosX}),
            (Numbers{2, -1, 4, 7}));
  two->Overlays[3].ChannelId = 3;
  two->Overlays[1].ChannelId = -1;
  const std::string one = written("2550", kAnswer, *two);
  EXPECT_EQ(golden("system_config/overlays_told.txt").find(one + "<Overlay\nChannelId=\"0\""), 0U);
  const auto many = readBody<SYSTEM_CONFIG_GET_2550_PARAM>("2550", repeated(one, 70));
  EXPECT_EQ(many->ChannelCount, 64);
  EXPECT_EQ(written("2550", kAnswer, *many), repeated(one, 64));
}

TEST_F(SystemConfigGeneralTest, BareNumbersStandBeforeTheirList) {
  const std::string stored = golden("system_config/overlays_set.txt");
  const std::string one = stored.substr(stored.rfind("<Overlay\n"));
  for (const std::string bare : {"", "Channels = \"5\"", "ChannelCounts=\"5\"", "ChannelCount=\"\"", "ChannelCount"}) {
    EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_2550_PARAM>("2555", bare + one + one + one)->ChannelCount, 3) << bare;
  }
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_2550_PARAM>("2555", "ChannelCount = '5' " + one)->ChannelCount, 5);
  const std::string attribute = "<ChannelInfo ChannelId=\"4\">ChannelId=\"3\"</ChannelInfo>";
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_2561_PARAM>("2561", attribute)->ChannelId, 4);
}

TEST_F(SystemConfigGeneralTest, TablesOfFixedSizeAreNeverLeft) {
  readBody<SYSTEM_CONFIG_GET_2560_PARAM>("2560",
                                         "<Encode>" + repeated("<EncodeConfig Stream=\"1\"/>", 3) + "</Encode>");
  const auto policies = [](const std::string& list) {
    return readBody<SYSTEM_CONFIG_GET_3502_PARAM>("3502", "<StrategyConfig StorageCapSet=\"" + list + "\"/>");
  };
  EXPECT_EQ((Numbers{policies(repeated("7,", 40))->StoragePolicy, policies("")->StorageCapSet[0].Policy,
                     policies("4;5")->StorageCapSet[1].Policy}),
            (Numbers{-1, -1, -1}));
}

}  // namespace
}  // namespace kov::test
