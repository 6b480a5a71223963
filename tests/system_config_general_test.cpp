#include "kov_protocol/system_config_general.h"

#include <algorithm>
#include <climits>

#include "config/general.h"
#include "config/recorder.h"
#include "system_config_wire.h"

namespace kov::test {
namespace {

class SystemConfigGeneralTest : public WireTest {};

std::string repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

TEST_F(SystemConfigGeneralTest, SettingsTravelOnOneSideAndQueriesOnBoth) {
  EXPECT_EQ(sidesOf(kGeneralCodes),
            "202:134 5007:134 222:02 203:134 223:02 2500:134 2520:02 2505:134 2525:02 2510:134 2530:02 2515:134 "
            "2535:02 ");
  EXPECT_EQ(sidesOf(kRecorderSettingCodes),
            "2550:01234 2555:02 2560:01234 2565:02 2561:01234 3028:01234 3502:134 3503:02 3600:134 3601:02 ");
}

TEST_F(SystemConfigGeneralTest, MissingElementsAreNamed) {
  EXPECT_EQ(missingOf(kGeneralCodes),
            "getIpcTimeset TimeConfig; getIpcTimeset TimeConfig; setIpcTimeset TimeConfig; getIpcUserCfg UserConfig; "
            "setIpcUserCfg UserConfig; getGeneralConfig GeneralConfig; setGeneralConfig GeneralConfig; "
            "getTimeConfig TimeConfig; setTimeConfig TimeConfig; getUserConfig UserConfig; setUserConfig UserConfig; "
            "getCloudConfig CloudConfig; setCloudConfig CloudConfig; ");
  EXPECT_EQ(missingOf(kRecorderSettingCodes),
            "getVideoOsdConfig Overlay; setVideoOsdConfig Overlay; getMediaVideoConfig Encode; "
            "setMediaVideoConfig Encode; getMediaCapability ChannelInfo; getNvrSystemLog RESPONSE_PARAM; "
            "getStrategyConfig StrategyConfig; setStrategyConfig StrategyConfig; getRecoedConfig RecordConfig; "
            "setRecoedConfig RecordConfig; ");
}

TEST_F(SystemConfigGeneralTest, CameraTimeLeavesOutAnEmptyTime) {
  const std::string rest =
      ">\n<NTPConfig\nServerIP=\"s\"\nServerPort=\"1\"\nRefreshInterval=\"2\"\n/>\n"
      "<DST\nEnable=\"3\"\nStartTime=\"a\"\nEndTime=\"b\"\nDelta=\"4\"\n/>\n</TimeConfig>\n";
  const std::string without = "<TimeConfig\nTimeMode=\"m\"\nTimeZone=\"z\"\n" + rest;
  const std::string with = "<TimeConfig\nTimeMode=\"m\"\nTimeZone=\"z\"\nTime=\"t\"\n" + rest;
  for (const std::string code : {"202", "5007"}) {
    EXPECT_EQ(bothWays<SYSTEM_CONFIG_GET_202_PARAM>(code, kAnswer, without)->Delta, 4);
    EXPECT_STREQ(bothWays<SYSTEM_CONFIG_GET_202_PARAM>(code, kAnswer, with)->Time, "t");
  }
  bothWays<SYSTEM_CONFIG_GET_202_PARAM>("222", kAsk, with);
}

TEST_F(SystemConfigGeneralTest, CameraAccountsAreCountedAndBounded) {
  const std::string account = "<Account \nUsername=\"u\"\nPassword=\"p\"\nGroup=\"g\"\nStatus=\"s\"\n/>\n";
  const std::string full = "<UserConfig>\n" + repeated(account, 64) + "</UserConfig>\n";
  for (const auto& [code, direction] : {std::pair("203", kAnswer), std::pair("223", kAsk)}) {
    const auto two = bothWays<SYSTEM_CONFIG_GET_203_PARAM>(code, direction,
                                                           "<UserConfig>\n" + account + account + "</UserConfig>\n");
    EXPECT_EQ(two->AccountCount, 2);
    EXPECT_EQ(bothWays<SYSTEM_CONFIG_GET_203_PARAM>(code, direction, "<UserConfig>\n</UserConfig>\n")->AccountCount, 0);
    const auto many =
        readBody<SYSTEM_CONFIG_GET_203_PARAM>(code, "<UserConfig>" + repeated(account, 70) + "</UserConfig>");
    EXPECT_EQ(many->AccountCount, 64);
    many->AccountCount = INT_MAX;
    EXPECT_EQ(written(code, direction, *many), full);
  }
}

TEST_F(SystemConfigGeneralTest, GeneralSettingsTellChoicesInTheAnswerOnly) {
  const std::string answer =
      "<GeneralConfig\nLanguage=\"1\"\nLanguageList=\"l\"\nTransparency=\"2\"\nDevID=\"d\"\nResolution=\"r\"\n"
      "ResolutionList=\"R\"\nGuideEnable=\"3\"\n/>\n";
  const auto general = bothWays<SYSTEM_CONFIG_GET_2500_PARAM>("2500", kAnswer, answer);
  EXPECT_EQ(
      written("2520", kAsk, *general),
      "<GeneralConfig\nLanguage=\"1\"\nTransparency=\"2\"\nDevID=\"d\"\nResolution=\"r\"\nGuideEnable=\"3\"\n/>\n");
  EXPECT_STREQ(readBody<SYSTEM_CONFIG_GET_2500_PARAM>("2520", answer)->LanguageList, "");
}

TEST_F(SystemConfigGeneralTest, WeekTimesArePaddedWithBlanks) {
  const std::string body =
      "<TimeConfig \nEnable=\"1\"\nTimezone=\"-8\"\nFormat=\"2\"\nTime=\"t\"\n>\n<SummerTime \nEnable=\"0\"\n"
      "OffSet=\"60\"\nWeekStartTime=\" 3: 2: 0:12: 0\"\nWeekEndTime=\"-1:10: 5:-2147483648:2147483647\"\n/>\n"
      "</TimeConfig>\n";
  const auto time = bothWays<SYSTEM_CONFIG_GET_2505_PARAM>("2505", kAnswer, body);
  EXPECT_EQ(time->Enable, 1);
  EXPECT_EQ(time->SummerEnable, 0);
  EXPECT_EQ(time->WeekStartTime[3], 12);
  EXPECT_EQ(time->WeekEndTime[3], INT_MIN);
  bothWays<SYSTEM_CONFIG_GET_2505_PARAM>("2525", kAsk, body);
  const auto cut = readBody<SYSTEM_CONFIG_GET_2505_PARAM>(
      "2505", "<TimeConfig><SummerTime WeekStartTime=\"03:2x\" WeekEndTime=\"1:2:3:4:5:6:7\"/></TimeConfig>");
  EXPECT_EQ(cut->WeekStartTime[1], 2);
  EXPECT_EQ(cut->WeekStartTime[2], -1);
  EXPECT_EQ(cut->WeekEndTime[4], 5);
  EXPECT_STREQ(cut->Time, "");
}

TEST_F(SystemConfigGeneralTest, RecorderAccountsStartWithTheOperationWhenSet) {
  const std::string fields =
      "Username=\"u\"\nPassword=\"p\"\nStatus=\"s\"\nLoginStat=\"1\"\nEmail=\"e\"\nLocalAuthority=\"l\"\n"
      "RemoteAuthority=\"r\"\n/>\n";
  const std::string account = "<Account \n" + fields;
  const auto users = bothWays<SYSTEM_CONFIG_GET_2510_PARAM>(
      "2510", kAnswer, "<UserConfig MaxUserNum=\"9\" UserNum=\"2\" >\n" + account + account + "</UserConfig>\n");
  EXPECT_EQ(users->Accounts[1].LoginStat, 1);
  const auto changes = bothWays<SYSTEM_CONFIG_GET_2510_PARAM>(
      "2530", kAsk, "<UserConfig>\n<Account \nOperationType=\"5\"\n" + fields + "</UserConfig>\n");
  EXPECT_EQ(changes->UserNum, 1);
  EXPECT_EQ(changes->Accounts[0].OperationType, 5);

  const auto many =
      readBody<SYSTEM_CONFIG_GET_2510_PARAM>("2510", "<UserConfig>" + repeated(account, 70) + "</UserConfig>");
  EXPECT_EQ(many->UserNum, 64);
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_2510_PARAM>("2510", "<UserConfig UserNum=\"3\"/>")->UserNum, 3);
  many->UserNum = INT_MAX;
  EXPECT_EQ(written("2510", kAnswer, *many),
            "<UserConfig MaxUserNum=\"-1\" UserNum=\"2147483647\" >\n" + repeated(account, 64) + "</UserConfig>\n");
  many->UserNum = INT_MIN;
  EXPECT_EQ(written("2530", kAsk, *many), "<UserConfig>\n</UserConfig>\n");
}

TEST_F(SystemConfigGeneralTest, CloudAnswerHasTwoFormsAndTheSettingOneLine) {
  SYSTEM_CONFIG_GET_2515_PARAM record;
  set(record.CloudPasswd, "c");
  set(record.Passwd, "p");
  record.FactoryResetNotify = 1;
  record.PasswdEncode = 2;
  const std::string plain = "<CloudConfig\nPasswdEncode=\"2\"\nPasswd=\"p\"\n/>\n";
  for (const int mode : {-1, 0, 2}) {
    record.Mode = mode;
    EXPECT_EQ(written("2515", kAnswer, record), plain);
  }
  record.Mode = 1;
  const std::string notifying = "<CloudConfig\nFactoryResetNotify=\"1\"\nPasswdEncode=\"2\"\nCloudPasswd=\"c\"\n/>\n";
  EXPECT_EQ(written("2515", kAnswer, record), notifying);
  bothWays<SYSTEM_CONFIG_GET_2515_PARAM>("2515", kAnswer, notifying);
  EXPECT_EQ(bothWays<SYSTEM_CONFIG_GET_2515_PARAM>("2515", kAnswer, plain)->Mode, -1);
  bothWays<SYSTEM_CONFIG_GET_2515_PARAM>("2535", kAsk, "<CloudConfig\nPasswd=\"p\"/>\n");
}

TEST_F(SystemConfigGeneralTest, QueriesOfAllChannelsAreHexadecimal) {
  for (const auto& [code, closing] :
       {std::pair("2550", "/>\n"), std::pair("2560", "\n/>\n"), std::pair("2561", "\n/>\n")}) {
    const std::string start = "<REQUEST_PARAM\nChannelId=\"";

    const auto channel = [code = code](const std::string& body) { return *readBody<std::int32_t>(code, body); };
    SYSTEM_CONFIG_GET_2550_PARAM record;  // the channel stands first in all three
    record.ChannelId = 7;
    EXPECT_EQ(written(code, kAsk, record), start + "7\"" + closing);
    EXPECT_EQ(channel(written(code, kAsk, record)), 7);
    record.ChannelId = 255;
    EXPECT_EQ(written(code, kAsk, record), start + "0xff\"" + closing);
    EXPECT_EQ(channel(written(code, kAsk, record)), 255);
    EXPECT_EQ(channel("<REQUEST_PARAM ChannelId=\"0X1f\"/>"), 31);
    EXPECT_EQ(channel("<REQUEST_PARAM ChannelId=\"010\"/>"), 10);
    EXPECT_EQ(channel("<REQUEST_PARAM ChannelId=\"ff\"/>"), -1);
  }
  EXPECT_EQ(*readBody<std::int32_t>("2560", "<REQUEST_PARAM\nChannelId=0xff/>"), 255);
}

const std::string kOverlayStart =
    "Enable=\"2\"\nTransparency=\"3\"\n>\n<TimeOverlay\nPosX=\"4\"\nPosY=\"5\"\nFormat=\"f\"\nWeekDisplayEn=\"6\"\n"
    "/>\n<TitleOverlay\nPosX=\"7\"\nPosY=\"8\"\nOsdTitle=\"o\"\n";

TEST_F(SystemConfigGeneralTest, OverlayAnswerEndsAtTheFirstUnusedEntry) {
  const std::string rest = kOverlayStart + "DefaultOsdTitle=\"d\"\n/>\n</Overlay>\n";
  const std::string one = "<Overlay\nChannelId=\"1\"\n" + rest;
  const auto two = bothWays<SYSTEM_CONFIG_GET_2550_PARAM>("2550", kAnswer, one + "<Overlay\nChannelId=\"0\"\n" + rest);
  EXPECT_EQ(two->ChannelCount, 2);
  EXPECT_EQ(two->ChannelId, -1);
  EXPECT_EQ(two->Overlays[1].TimePosX, 4);
  EXPECT_EQ(two->Overlays[1].TitlePosX, 7);
  two->Overlays[3].ChannelId = 3;
  two->Overlays[1].ChannelId = -1;
  EXPECT_EQ(written("2550", kAnswer, *two), one);
  const auto many = readBody<SYSTEM_CONFIG_GET_2550_PARAM>("2550", repeated(one, 70));
  EXPECT_EQ(many->ChannelCount, 64);
  EXPECT_EQ(written("2550", kAnswer, *many), repeated(one, 64));
}

TEST_F(SystemConfigGeneralTest, OverlaySettingBeginsWithABareCount) {
  const std::string one = "<Overlay\nChannelId=\"-1\"\n" + kOverlayStart + "/>\n</Overlay>\n";
  const auto counted = bothWays<SYSTEM_CONFIG_GET_2550_PARAM>("2555", kAsk, "ChannelCount=\"2\"\n" + one + one);
  EXPECT_EQ(counted->ChannelCount, 2);
  const auto many = readBody<SYSTEM_CONFIG_GET_2550_PARAM>("2555", "ChannelCount=\"99\"\n" + repeated(one, 70));
  EXPECT_EQ(written("2555", kAsk, *many), "ChannelCount=\"99\"\n" + repeated(one, 64));
  for (const std::string bare : {"", "Channel=\"5\"", "ChannelCounts=\"5\"", "ChannelCount=\"\"", "ChannelCount"}) {
    EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_2550_PARAM>("2555", bare + one + one + one)->ChannelCount, 3) << bare;
  }
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_2550_PARAM>("2555", "ChannelCount = '5' " + one)->ChannelCount, 5);
}

TEST_F(SystemConfigGeneralTest, EncodingSettingRunsItsAttributesTogether) {
  const std::string stream =
      "<EncodeConfig\nStream=\"1\"\nResolution=\"r\"\nEncodeFormat=\"f\"\nBitRateControl=\"b\"\nInitquant=\"2\"\n"
      "BitRate=\"3\"\nFrameRate=\"4\"\n/>\n";
  const std::string rest = stream + stream + "</Encode>\n";
  bothWays<SYSTEM_CONFIG_GET_2560_PARAM>("2560", kAnswer, "<Encode\nChannelId=\"5\"\nLockPara=\"6\"\n>\n" + rest);
  const auto encode =
      bothWays<SYSTEM_CONFIG_GET_2560_PARAM>("2565", kAsk, "<Encode\nChannelId=\"5\"LockPara=\"6\">\n" + rest);
  EXPECT_EQ(encode->LockPara, 6);
  EXPECT_EQ(encode->Streams[1].FrameRate, 4);
  readBody<SYSTEM_CONFIG_GET_2560_PARAM>("2560", "<Encode>" + repeated(stream, 3) + "</Encode>");
}

TEST_F(SystemConfigGeneralTest, CapabilityHasABareChannel) {
  const std::string rest = "<VideoCap\nCapList=\"c\"/>\n<VideoBestParameter CapList=\"b\"/>\n</ChannelInfo>\n";
  const auto read = bothWays<SYSTEM_CONFIG_GET_2561_PARAM>("2561", kAnswer, "<ChannelInfo>\nChannelId=\"3\"\n" + rest);
  EXPECT_EQ(read->ChannelId, 3);
  EXPECT_STREQ(read->VideoCap, "c");
  const std::string attribute = "<ChannelInfo ChannelId=\"4\">ChannelId=\"3\"" + rest;
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_2561_PARAM>("2561", attribute)->ChannelId, 4);
}

TEST_F(SystemConfigGeneralTest, LogIsAskedForAndAnsweredInPages) {
  SYSTEM_CONFIG_GET_3028_PARAM query;
  const std::string ask =
      "<REQUEST_PARAM \nLogMode=\"1\"\nUserType=\"2\"\nQueryDate=\"q\"\nLogId=\"3\"\nPageSize=\"4\"\n/>\n";
  bothWays<SYSTEM_CONFIG_GET_3028_PARAM>("3028", kAsk, ask);
  EXPECT_EQ(written("3028", 4, query).find("<REQUEST_PARAM"), 0U);
  const std::string entry =
      "<LogInfo\nLogMode=\"4294967295\"\nRecordTimeStamp=\"t\"\nLogId=\"2147483648\"\nUserName=\"u\"\nUserType=\"0\"\n"
      "Detail=\"d\"\n/>\n";
  const auto page = [&entry](const std::string& head, int entries) {
    return "<RESPONSE_PARAM \n" + head + "/>\n<LogList>\n" + repeated(entry, entries) + "</LogList>\n";
  };
  const auto read = bothWays<SYSTEM_CONFIG_GET_3028_PARAM>("3028", kAnswer, page("LogCount=\"2\"\n", 2));
  EXPECT_EQ(read->Logs[1].LogId, 2147483648U);
  const auto many = readBody<SYSTEM_CONFIG_GET_3028_PARAM>("3028", page("LogCount=\"500\"\n", 200));
  EXPECT_EQ(written("3028", kAnswer, *many), page("LogCount=\"500\"\n", 128));
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_3028_PARAM>("3028", page("", 3))->LogCount, 3);
}

TEST_F(SystemConfigGeneralTest, StoragePoliciesEndWithACommaEach) {
  const auto both = [](const std::string& list) {
    return bothWays<SYSTEM_CONFIG_GET_3502_PARAM>(
        "3502", kAnswer, "<StrategyConfig\nStorageCapSet=\"" + list + "\"\nStoragePolicy=\"1\"\n/>\n");
  };
  EXPECT_EQ(both("")->StorageCapSet[0].Policy, -1);
  EXPECT_EQ(both("0,10,")->StorageCapSet[1].Policy, 10);
  const auto full = both(repeated("7,", 32));
  EXPECT_EQ(full->StoragePolicy, 1);
  EXPECT_EQ(written("3503", kAsk, *full), "<StrategyConfig\nStoragePolicy=\"1\"\n/>\n");
  const auto odd = readBody<SYSTEM_CONFIG_GET_3502_PARAM>(
      "3502", "<StrategyConfig StorageCapSet=\"" + repeated("7,", 40) + "\" StoragePolicy=\"2\"/>");
  EXPECT_EQ(odd->StoragePolicy, 2);
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_3502_PARAM>("3502", "<StrategyConfig StorageCapSet=\"4;5\"/>")
                ->StorageCapSet[1]
                .Policy,
            -1);
}

TEST_F(SystemConfigGeneralTest, RecordScheduleEndsWithItsLastChannel) {
  const std::string detail = "<ChannelDetail\nID=\"1\"\nSchedule=\"s\"\n/>\n";
  for (const auto& [code, direction] : {std::pair("3600", kAnswer), std::pair("3601", kAsk)}) {
    bothWays<SYSTEM_CONFIG_GET_3600_PARAM>(code, direction, "<RecordConfig>\nChannelNum=\"0\"\n");
    const auto two =
        bothWays<SYSTEM_CONFIG_GET_3600_PARAM>(code, direction, "<RecordConfig>\nChannelNum=\"2\"\n" + detail + detail);
    EXPECT_STREQ(two->Channels[1].Schedule, "s");
    const std::string over = "<RecordConfig>\nChannelNum=\"65\"\n";
    const auto many = readBody<SYSTEM_CONFIG_GET_3600_PARAM>(code, over + repeated(detail, 70));
    EXPECT_EQ(written(code, direction, *many), over + repeated(detail, 64));
    const auto closed = readBody<SYSTEM_CONFIG_GET_3600_PARAM>(code, "<RecordConfig>" + detail + "</RecordConfig>");
    EXPECT_EQ(closed->ChannelNum, 1);
  }
  resetPlatform();
  const auto setting = std::find_if(kRecorderSettingCodes.begin(), kRecorderSettingCodes.end(),
                                    [](const CodeRow& row) { return row.code == 3601; });
  char buffer[8];
  BodyWriter body(buffer, sizeof buffer);
  setting->message->compose(nullptr, 0, body);
  EXPECT_EQ(logLines(), std::vector<std::string>{"I SystemConfig_getRecoedConfig_MessageCompose put a empty Param\n"});
}

}  // namespace
}  // namespace kov::test
