#include "kov_protocol/system_config_general.h"

#include "system_config_wire.h"

namespace kov::test {
namespace {

class SystemConfigGeneralTest : public WireTest {};

TEST_F(SystemConfigGeneralTest, FieldsStandUnderTheirNames) {
  EXPECT_EQ(stored<SYSTEM_CONFIG_GET_202_PARAM>("202", "camera_time")->Delta, 4);
  EXPECT_STREQ(stored<SYSTEM_CONFIG_GET_202_PARAM>("202", "camera_time")->Time, "t");
  EXPECT_STREQ(stored<SYSTEM_CONFIG_GET_2500_PARAM>("2520", "general_told")->LanguageList, "");
  EXPECT_EQ(stored<SYSTEM_CONFIG_GET_2510_PARAM>("2510", "recorder_users_told")->Accounts[1].LoginStat, 1);
  EXPECT_EQ(stored<SYSTEM_CONFIG_GET_2510_PARAM>("2530", "recorder_users_set")->Accounts[0].OperationType, 5);
  EXPECT_EQ(stored<SYSTEM_CONFIG_GET_2560_PARAM>("2565", "encode_set")->LockPara, 6);
  EXPECT_EQ(stored<SYSTEM_CONFIG_GET_2560_PARAM>("2565", "encode_set")->Streams[1].FrameRate, 4);
  EXPECT_EQ(stored<SYSTEM_CONFIG_GET_2561_PARAM>("2561", "capability")->ChannelId, 3);
  EXPECT_STREQ(stored<SYSTEM_CONFIG_GET_2561_PARAM>("2561", "capability")->VideoCap, "c");
  EXPECT_EQ(stored<SYSTEM_CONFIG_GET_3028_PARAM>("3028", "log_page")->Logs[1].LogId, 2147483648U);
  EXPECT_STREQ(stored<SYSTEM_CONFIG_GET_3600_PARAM>("3600", "schedule")->Channels[1].Schedule, "s");
}

TEST_F(SystemConfigGeneralTest, ListsAreCountedAndBounded) {
  const std::string account = "<Account \nUsername=\"u\"\nPassword=\"p\"\nGroup=\"g\"\nStatus=\"s\"\n/>\n";
  for (const auto& [code, direction] : {std::pair("203", kAnswer), std::pair("223", kAsk)}) {
    expectBounded({kConfigType, code, direction, 64, "<UserConfig>\n", account, "</UserConfig>\n"},
                  &SYSTEM_CONFIG_GET_203_PARAM::AccountCount);
  }
  const std::string fields =
      "Username=\"u\"\nPassword=\"p\"\nStatus=\"s\"\nLoginStat=\"1\"\nEmail=\"e\"\nLocalAuthority=\"l\"\n"
      "RemoteAuthority=\"r\"\n/>\n";
  expectBounded({kConfigType, "2510", kAnswer, 64, "<UserConfig MaxUserNum=\"-1\" UserNum=\"#\" >\n",
                 "<Account \n" + fields, "</UserConfig>\n"},
                &SYSTEM_CONFIG_GET_2510_PARAM::UserNum);
  expectBounded(
      {kConfigType, "2530", kAsk, 64, "<UserConfig>\n", "<Account \nOperationType=\"5\"\n" + fields, "</UserConfig>\n"},
      &SYSTEM_CONFIG_GET_2510_PARAM::UserNum);
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_2510_PARAM>("2510", "<UserConfig><Account/></UserConfig>")->UserNum, 1);
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_2510_PARAM>("2510", "<UserConfig UserNum=\"3\"/>")->UserNum, 3);

  const std::string entry =
      "<LogInfo\nLogMode=\"4294967295\"\nRecordTimeStamp=\"t\"\nLogId=\"2147483648\"\nUserName=\"u\"\nUserType=\"0\"\n"
      "Detail=\"d\"\n/>\n";
  expectBounded(
      {kConfigType, "3028", kAnswer, 128, "<RESPONSE_PARAM \nLogCount=\"#\"\n/>\n<LogList>\n", entry, "</LogList>\n"},
      &SYSTEM_CONFIG_GET_3028_PARAM::LogCount);
  const std::string uncounted = "<RESPONSE_PARAM/><LogList>" + repeated("<LogInfo/>", 3) + "</LogList>";
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_3028_PARAM>("3028", uncounted)->LogCount, 3);

  for (const auto& [code, direction] : {std::pair("3600", kAnswer), std::pair("3601", kAsk)}) {
    expectBounded({kConfigType, code, direction, 64, "<RecordConfig>\nChannelNum=\"#\"\n",
                   "<ChannelDetail\nID=\"1\"\nSchedule=\"s\"\n/>\n", ""},
                  &SYSTEM_CONFIG_GET_3600_PARAM::ChannelNum);
    const std::string closed = "<RecordConfig><ChannelDetail/></RecordConfig>";
    EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_3600_PARAM>(code, closed)->ChannelNum, 1);
  }
}

TEST_F(SystemConfigGeneralTest, WeekTimesArePaddedWithBlanks) {
  const auto time = stored<SYSTEM_CONFIG_GET_2505_PARAM>("2505", "recorder_time");
  EXPECT_EQ(time->Enable, 1);
  EXPECT_EQ(time->SummerEnable, 0);
  EXPECT_EQ(time->WeekStartTime[3], 12);
  EXPECT_EQ(time->WeekEndTime[3], INT32_MIN);
  const auto cut = readBody<SYSTEM_CONFIG_GET_2505_PARAM>(
      "2505", "<TimeConfig><SummerTime WeekStartTime=\"03:2x\" WeekEndTime=\"1:2:3:4:5:6:7\"/></TimeConfig>");
  EXPECT_EQ(cut->WeekStartTime[1], 2);
  EXPECT_EQ(cut->WeekStartTime[2], -1);
  EXPECT_EQ(cut->WeekEndTime[4], 5);
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
  }
  EXPECT_EQ(*readBody<std::int32_t>("2560", "<REQUEST_PARAM\nChannelId=0xff/>"), 255);
}

TEST_F(SystemConfigGeneralTest, OverlayAnswerEndsAtTheFirstUnusedEntry) {
  const auto two = stored<SYSTEM_CONFIG_GET_2550_PARAM>("2550", "overlays_told");
  EXPECT_EQ(two->ChannelCount, 2);
  EXPECT_EQ(two->ChannelId, -1);
  EXPECT_EQ(two->Overlays[1].TimePosX, 4);
  EXPECT_EQ(two->Overlays[1].TitlePosX, 7);
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
  expectBounded({kConfigType, "2555", kAsk, 64, "ChannelCount=\"#\"\n", one, ""},
                &SYSTEM_CONFIG_GET_2550_PARAM::ChannelCount);
  for (const std::string bare : {"", "Channel=\"5\"", "ChannelCounts=\"5\"", "ChannelCount=\"\"", "ChannelCount"}) {
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
    return readBody<SYSTEM_CONFIG_GET_3502_PARAM>(
        "3502", "<StrategyConfig StorageCapSet=\"" + list + "\" StoragePolicy=\"2\"/>");
  };
  EXPECT_EQ(policies(repeated("7,", 40))->StoragePolicy, 2);
  EXPECT_EQ(policies("")->StorageCapSet[0].Policy, -1);
  EXPECT_EQ(policies("4;5")->StorageCapSet[1].Policy, -1);
}

}  // namespace
}  // namespace kov::test
