#include "kov_protocol/system_config_alarm.h"

#include <climits>

#include "config/alarm.h"
#include "system_config_wire.h"

namespace kov::test {
namespace {

class SystemConfigAlarmTest : public WireTest {};

using Motion = SYSTEM_CONFIG_GET_802_PARAM;

Motion motion() {
  Motion record;
  record.Enable = 1;
  record.BlockCount = 2;
  set(record.BlockConfig, "0110");
  record.NightStartTime = {6, 0, 0};
  record.NightEndTime = {18, 30, 5};
  record.WorkdayCount = 1;
  record.Workday[0].Day = 7;
  record.Workday[0].StartTime = {8, 0, 0};
  record.Workday[0].EndTime = {17, 30, 0};
  record.OutputEnable = 1;
  record.PortIndex = 3;
  set(record.ChannelType, "c");
  set(record.TriggerType, "t");
  record.Duration = 10;
  return record;
}

std::string motionText(const std::string& nightStart, const std::string& nightEnd) {
  return "<MotionDetectAlarm\nEnable=\"1\"\nAlarmtime=\"-1\"\nSoundAlarm=\"-1\"\nLightAlarm=\"-1\"\nBlockCount=\"2\"\n"
         "BlockConfig=\"0110\"\nSensitivity=\"-1\"\nAlarmThreshold=\"-1\"\nNightSensitivity=\"-1\"\n"
         "NightAlarmThreshold=\"-1\"\nNightStartTime=\"" +
         nightStart + "\"\nNightEndTime=\"" + nightEnd +
         "\"\nDayNightSwitch=\"-1\"\n>\n<EnableTimeList>\n<Workday Day=\"7\">\n"
         "<TimeSpan StartTime=\"8:0:0\" EndTime=\"17:30:0\"/>\n</Workday>\n</EnableTimeList>\n"
         "<AlarmAction>\n<AlarmOutputAction\nEnable=\"1\"\nPortIndex=\"3\"\nChannelType=\"c\"\nTriggerType=\"t\"\n"
         "Duration=\"10\"\n/>\n</AlarmAction>\n</MotionDetectAlarm>\n";
}

void expectMotion(const Motion& read) {
  EXPECT_STREQ(read.BlockConfig, "0110");
  EXPECT_EQ(read.NightStartTime.hour, 6);
  EXPECT_EQ(read.NightEndTime.second, 5);
  EXPECT_EQ(read.WorkdayCount, 1);
  EXPECT_EQ(read.Workday[0].Day, 7);
  EXPECT_EQ(read.Workday[0].EndTime.minute, 30);
  EXPECT_EQ(read.Workday[1].Day, -1);
  EXPECT_EQ(read.Duration, 10);
}

TEST_F(SystemConfigAlarmTest, MotionPadsNightTimesAloneButNotInsideTheCameraSettings) {
  const Motion record = motion();
  const std::string alone = motionText("06:00:00", "18:30:05");
  EXPECT_EQ(written("802", kAnswer, record), alone);
  EXPECT_EQ(written("822", 2, record), alone);
  expectMotion(*readBody<Motion>("802", alone));
  expectMotion(*readBody<Motion>("822", motionText("6:0:0", "18:30:5")));

  SYSTEM_CONFIG_SET_820_PARAM camera;
  camera.IotAlarmStart = 4;
  camera.motion = record;
  set(camera.SMTPServer, "mail");
  camera.Port = 25;
  const std::string body =
      "<AlarmConfig>\n<OFFLINE_MSG_PUSH\nEnable=\"-1\"\n/>\n<IotDriveAway\nIotAlarmTime=\"-1\"\n"
      "IotAlarmLightEnable=\"-1\"\nIotAlarmSoundEnable=\"-1\"\nIotAlarmStart=\"4\"\n/>\n"
      "<IotDefense\nDefenseSet=\"-1\"\n/>\n" +
      motionText("6:0:0", "18:30:5") +
      "<EmailConfig\nSMTPServer=\"mail\"\nPort=\"25\"\nUsername=\"\"\nPassword=\"\"\nSender=\"\"\n"
      "Authentication=\"-1\"\nTitle=\"\"\nInterval=\"-1\"\nReceiver=\"\"\n/>\n</AlarmConfig>\n";
  EXPECT_EQ(written("820", kAsk, camera), body);
  const auto read = *readBody<SYSTEM_CONFIG_SET_820_PARAM>("820", body);
  expectMotion(read.motion);
  EXPECT_EQ(read.IotAlarmStart, 4);
  EXPECT_STREQ(read.SMTPServer, "mail");
}

TEST_F(SystemConfigAlarmTest, WorkdaysStayInTheirTable) {
  std::string days;
  for (int day = 0; day < 10; ++day) days += "<Workday Day=\"" + std::to_string(day) + "\"/>";
  auto read =
      *readBody<Motion>("822", "<MotionDetectAlarm><EnableTimeList>" + days + "</EnableTimeList></MotionDetectAlarm>");
  EXPECT_EQ(read.WorkdayCount, 8);
  EXPECT_EQ(read.Workday[7].Day, 7);
  EXPECT_EQ(read.Workday[7].StartTime.hour, -1);
  EXPECT_EQ(read.Alarmtime, -1);

  for (const auto& [count, expected] : {std::pair(INT_MAX, 8), {8, 8}, {0, 0}, {INT_MIN, 0}}) {
    read.WorkdayCount = count;
    const std::string body = written("822", kAsk, read);
    int elements = 0;
    for (std::size_t at = 0; (at = body.find("<Workday ", at)) != std::string::npos; ++at) ++elements;
    EXPECT_EQ(elements, expected);
  }
}

TEST_F(SystemConfigAlarmTest, MotionReadsWhatIsThere) {
  const auto bare = *readBody<Motion>("802", "<MotionDetectAlarm NightStartTime=\"7:5\"/>");
  EXPECT_EQ(bare.WorkdayCount, -1);
  EXPECT_EQ(bare.OutputEnable, -1);
  EXPECT_EQ(bare.NightStartTime.minute, 5);
  EXPECT_EQ(bare.NightStartTime.second, -1);
  const auto moved = *readBody<Motion>("802",
                                       "<MotionDetectAlarm><EnableTimeList><Workday Day=\"1\"><TimeSpan Day=\"5\"/>"
                                       "</Workday></EnableTimeList></MotionDetectAlarm>");
  EXPECT_EQ(moved.Workday[0].Day, 5);
}

TEST_F(SystemConfigAlarmTest, LightAnswersMoreThanItIsSet) {
  SYSTEM_CONFIG_GET_1300_PARAM record;
  record.LightMode = 1;
  record.LightCtrl = 2;
  record.LightVal = 3;
  record.DefLightMode = 4;
  record.LightModeRange[0] = 0;
  record.LightModeRange[2] = 9;
  const std::string answer =
      "<LightConfig\nLightMode=\"1\"\nLightCtrl=\"2\"\nLightVal=\"3\"\nLightModeRange=\"0,-1,9\"\nDefLightMode=\"4\">\n"
      "</LightConfig>\n";
  EXPECT_EQ(written("1300", kAnswer, record), answer);
  EXPECT_EQ(written("1301", kAsk, record),
            "<LightConfig\nLightMode=\"1\"\nLightCtrl=\"2\"\nLightVal=\"3\">\n</LightConfig>\n");
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_1300_PARAM>("1300", answer)->LightModeRange[2], 9);
  const auto request = *readBody<SYSTEM_CONFIG_GET_1300_PARAM>("1301", answer);
  EXPECT_EQ(request.LightVal, 3);
  EXPECT_EQ(request.DefLightMode, -1);
  EXPECT_EQ(request.LightModeRange[2], -1);
}

// Three answers want a direction of 1 or 3; the others take any that is no request.
TEST_F(SystemConfigAlarmTest, EachMessageHasItsSide) {
  EXPECT_EQ(sidesOf(kAlarmCodes),
            "802:134 822:02 820:02 1300:13 1301:02 1492:134 1493:02 1494:134 1496:134 1495:02 1497:02 1498:134 "
            "1499:02 2511:01234 2531:02 3820:13 3821:02 3822:13 3823:02 ");
  EXPECT_EQ(missingOf(kAlarmCodes),
            "getMotiondetectAlarm MotionDetectAlarm; setMotiondetectAlarm MotionDetectAlarm; "
            "setIpcAlarmConfig AlarmConfig; getLightConfig LightConfig; setLightConfig LightConfig; "
            "getLightAudioAlarmConfig LightAudioAlarm; setLightAudioAlarmConfig LightAudioAlarm; "
            "getHumanAlarmConfig HumanAlarmConfig; getHumanAlarmConfig HumanAlarmConfig; "
            "setHumanAlarmConfig HumanAlarmConfig; setHumanAlarmConfig HumanAlarmConfig; "
            "getSmartDetectionConfig SmartDetection; setSmartDetectionConfig SmartDetection; "
            "getPushOfflineConfig PushOffline; setPushOfflineConfig PushOffline; "
            "NvrGetOffAllSmartChanges AdvancedSetCfg; NvrSetOffAllSmartChanges AdvancedSetCfg; "
            "NvrGetOffAllAlarm AlarmSetCfg; NvrSetOffAllAlarm AlarmSetCfg; ");
}

TEST_F(SystemConfigAlarmTest, Switches) {
  bothWays<SYSTEM_CONFIG_GET_1492_PARAM>("1493", kAsk, "<LightAudioAlarm\nLightAudioAlarmEnable=\"1\"\n/>\n");
  const auto smart = bothWays<SYSTEM_CONFIG_GET_1498_PARAM>(
      "1498", kAnswer,
      "<SmartDetection\nRegionDetectionEnable=\"1\"\nCrossBoundaryDetectionEnable=\"2\"\n/>\n"
      "<SmartDetection1\nRegionDetectionEnable=\"3\"\nCrossBoundaryDetectionEnable=\"4\"\n/>\n");
  EXPECT_EQ(smart->SmartDetection1.RegionDetectionEnable, 3);
  bothWays<SYSTEM_CONFIG_GET_3820_PARAM>("3821", kAsk, "<AdvancedSetCfg\nOffAllSmartModify=\"1\"\n/>\n");
  bothWays<SYSTEM_CONFIG_GET_3822_PARAM>("3822", kAnswer, "<AlarmSetCfg\nOffAllAlarm=\"1\"\n/>\n");
}

TEST_F(SystemConfigAlarmTest, OfflinePushIsAskedByChannel) {
  SYSTEM_CONFIG_GET_2511_PARAM record;
  record.ChannelId = 3;
  record.PushOfflineEnable = 1;
  const std::string query = "<REQUEST_PARAM\nChannelId=\"3\"\n/>\n";
  const std::string answer = "<PushOffline\nChannelId=\"3\"\nPushOfflineEnable=\"1\"\n/>\n";
  EXPECT_EQ(written("2511", 2, record), query);
  EXPECT_EQ(written("2511", 4, record), answer);
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_2511_PARAM>("2511", "<REQUEST_PARAM\nChannelId=5\n/>")->ChannelId, 5);
  const auto both = *readBody<SYSTEM_CONFIG_GET_2511_PARAM>("2511", "<REQUEST_PARAM ChannelId=\"9\"/>" + answer);
  EXPECT_EQ(both.ChannelId, 3);
  EXPECT_EQ(both.PushOfflineEnable, 1);
}

using Human = SYSTEM_CONFIG_GET_1494_PARAM;

TEST_F(SystemConfigAlarmTest, HumanAlarmNamesBothRangesAlike) {
  Human record;
  record.Enable = 1;
  record.DefDetectionSensRange[0] = 1;
  record.DefDetectionSensRange[1] = 100;
  record.LightAlarmPeriodNum = 2;
  record.LightAlarmPeriod[0] = {{0, 0, 0}, {8, 5, 0}};
  record.LightAlarmPeriod[1] = {{20, 0, 0}, {23, 59, 59}};
  record.AudioAlarmPeriodNum = 0;
  record.AlarmTimesRange[1] = 9;
  record.drawing.VideoResolution[0] = 1920;
  record.drawing.VideoResolution[1] = 1080;
  record.drawing.LineCoordinatesNum = 1;
  record.drawing.LineCoordinates[0] = {640, -360};
  const std::string body =
      "<HumanAlarmConfig>\n<HumanAlarm\nEnable=\"1\"\nDetectionSens=\"-1\"\nDefDetectionSensRange=\"1,100\"\n/>\n"
      "<LightAlarm\nEnable=\"-1\"\nduration=\"-1\"\nDefLightdurationRange=\"-1,-1\"\nScheduleMode=\"-1\"\n"
      "AlarmPeriodNum=\"2\"\nAlarmPeriod=\"[00:00:00-08:05:00],[20:00:00-23:59:59],\"\n/>\n"
      "<AudioAlarm\nEnable=\"-1\"\nAlarmTimes=\"-1\"\nDefLightdurationRange=\"-1,9\"\nScheduleMode=\"-1\"\n"
      "AlarmPeriodNum=\"0\"\nAlarmPeriod=\"\"\n/>\n"
      "<DrawLine\nShowAlarmCount=\"-1\"\nShowAlarmLine=\"-1\"\nVideoResolution=\"1920*1080\"\n"
      "MaxCoordinateCapability=\"-1\"\nLineCoordinatesNum=\"1\"\nLineCoordinates=\"[640,-360],\"\n/>\n"
      "</HumanAlarmConfig>\n";
  for (const char* code : {"1494", "1496"}) EXPECT_EQ(written(code, kAnswer, record), body);
  for (const char* code : {"1495", "1497"}) EXPECT_EQ(written(code, kAsk, record), body);
  const Human read = *readBody<Human>("1497", body);
  EXPECT_EQ(read.LightAlarmPeriod[1].end.second, 59);
  EXPECT_EQ(read.AlarmTimesRange[1], 9);
  EXPECT_EQ(read.DefLightdurationRange[1], -1);
  EXPECT_EQ(read.drawing.VideoResolution[1], 1080);
  EXPECT_EQ(read.drawing.LineCoordinates[0].y, -360);
}

// The value of an attribute in a composed body.
std::string valueOf(const std::string& body, const std::string& name) {
  const std::size_t from = body.find("\n" + name + "=\"") + name.size() + 3;
  return body.substr(from, body.find('"', from) - from);
}

TEST_F(SystemConfigAlarmTest, ListsAreCutToTheirBuffer) {
  Human record;
  record.LightAlarmPeriodNum = INT_MAX;
  for (SYSTEM_CONFIG_PERIOD& period : record.LightAlarmPeriod) period = {{100, 100, 100}, {100, 100, 100}};
  record.drawing.LineCoordinatesNum = INT_MAX;
  for (SYSTEM_CONFIG_POINT& point : record.drawing.LineCoordinates) point = {1920, 1080};
  const std::string body = written("1494", kAnswer, record);
  EXPECT_EQ(valueOf(body, "AlarmPeriodNum"), "2147483647");
  const std::string periods = valueOf(body, "AlarmPeriod");
  const std::string points = valueOf(body, "LineCoordinates");
  EXPECT_EQ(periods.size(), 255U);
  EXPECT_EQ(periods.substr(234), "[100:100:100-100:100:");
  EXPECT_EQ(points.size(), 255U);
  EXPECT_EQ(points.substr(252), "[19");

  const Human read = *readBody<Human>("1494", body);
  EXPECT_EQ(read.LightAlarmPeriodNum, INT_MAX);
  EXPECT_EQ(read.LightAlarmPeriod[8].end.second, 100);
  EXPECT_EQ(read.LightAlarmPeriod[9].start.hour, -1) << "the entry that was cut";
  EXPECT_EQ(read.drawing.LineCoordinates[20].y, 1080);
  EXPECT_EQ(read.drawing.LineCoordinates[21].x, -1);

  record.drawing.LineCoordinatesNum = INT_MIN;
  EXPECT_EQ(valueOf(written("1494", kAnswer, record), "LineCoordinates"), "");
}

TEST_F(SystemConfigAlarmTest, ListsAreReadUpToTheirTableWhateverTheyHold) {
  std::string periods, points;
  for (int i = 0; i < 40; ++i) {
    periods += "[1:2:3-4:5:" + std::to_string(i) + "],";
    points += "[" + std::to_string(i) + ",1],";
  }
  const Human full =
      *readBody<Human>("1495", "<HumanAlarmConfig><LightAlarm AlarmPeriodNum=\"40\" AlarmPeriod=\"" + periods +
                                   "\"/><DrawLine LineCoordinates=\"" + points + "\"/></HumanAlarmConfig>");
  EXPECT_EQ(full.LightAlarmPeriodNum, 40);
  EXPECT_EQ(full.LightAlarmPeriod[11].end.second, 11);
  EXPECT_EQ(full.AudioAlarmEnable, -1);
  EXPECT_EQ(full.drawing.LineCoordinates[31].x, 31);
  EXPECT_EQ(full.drawing.ShowAlarmCount, -1);

  for (const char* broken : {"[[[[3,4", "[,],[a,b],[3],[5,6", "[3;4],", "3,4", "[]", ""}) {
    const std::string body = std::string("<HumanAlarmConfig><DrawLine LineCoordinates=\"") + broken;
    EXPECT_EQ(readBody<Human>("1495", body + "\"/></HumanAlarmConfig>")->drawing.LineCoordinates[0].x, -1);
    const auto next = *readBody<Human>("1495", body + " [ 7,-8]\"/></HumanAlarmConfig>");
    EXPECT_EQ(next.drawing.LineCoordinates[0].x, 7) << broken;
    EXPECT_EQ(next.drawing.LineCoordinates[0].y, -8);
  }
}

}  // namespace
}  // namespace kov::test
