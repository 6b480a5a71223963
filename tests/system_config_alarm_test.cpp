#include "kov_protocol/system_config_alarm.h"

#include "system_config_wire.h"

namespace kov::test {
namespace {

class SystemConfigAlarmTest : public WireTest {};

using Motion = SYSTEM_CONFIG_GET_802_PARAM;
using Human = SYSTEM_CONFIG_GET_1494_PARAM;

TEST_F(SystemConfigAlarmTest, FieldsStandUnderTheirNames) {
  const auto light = stored<SYSTEM_CONFIG_GET_1300_PARAM>("1301", "light_told");
  EXPECT_EQ((Numbers{light->LightVal, light->DefLightMode, light->LightModeRange[2],
                     stored<SYSTEM_CONFIG_GET_1300_PARAM>("1300", "light_told")->LightModeRange[2]}),
            (Numbers{3, -1, -1, 9}));
  const auto smart = stored<SYSTEM_CONFIG_GET_1498_PARAM>("1498", "smart_detection");
  EXPECT_EQ(smart->SmartDetection1.RegionDetectionEnable, 3);
  const std::string both = "<REQUEST_PARAM ChannelId=\"9\"/>" + golden("system_config/push_offline.txt");
  EXPECT_EQ((Numbers{readBody<SYSTEM_CONFIG_GET_2511_PARAM>("2511", both)->ChannelId,
                     readBody<SYSTEM_CONFIG_GET_2511_PARAM>("2511", both)->PushOfflineEnable}),
            (Numbers{3, 1}));

  const Human human = *stored<Human>("1497", "human_alarm");
  EXPECT_EQ((Numbers{human.LightAlarmPeriod[1].end.second, human.AlarmTimesRange[1], human.DefLightdurationRange[1],
                     human.drawing.VideoResolution[1], human.drawing.LineCoordinates[0].y}),
            (Numbers{59, 9, -1, 1080, -360}));
}

// The camera's settings hold a motion block too.
TEST_F(SystemConfigAlarmTest, MotionReadsWhatIsThere) {
  const auto camera = stored<SYSTEM_CONFIG_SET_820_PARAM>("820", "camera_alarm");
  EXPECT_EQ(camera->IotAlarmStart, 4);
  EXPECT_STREQ(camera->SMTPServer, "mail");
  for (const Motion& read : {*stored<Motion>("802", "motion"), camera->motion}) {
    EXPECT_EQ((Numbers{read.NightStartTime.hour, read.NightEndTime.second, read.WorkdayCount, read.Workday[0].Day,
                       read.Workday[0].EndTime.minute, read.Workday[1].Day, read.Duration}),
              (Numbers{6, 5, 1, 7, 30, -1, 10}));
    EXPECT_STREQ(read.BlockConfig, "0110");
  }
  const auto bare = *readBody<Motion>("802", "<MotionDetectAlarm NightStartTime=\"7:5\"/>");
  EXPECT_EQ((Numbers{bare.WorkdayCount, bare.OutputEnable, bare.NightStartTime.minute, bare.NightStartTime.second}),
            (Numbers{-1, -1, 5, -1}));
  const std::string moved = "<Workday Day=\"1\"><TimeSpan Day=\"5\"/></Workday>";
  const std::string days = "<MotionDetectAlarm><EnableTimeList>" + moved + "</EnableTimeList></MotionDetectAlarm>";
  EXPECT_EQ(readBody<Motion>("802", days)->Workday[0].Day, 5);
}

TEST_F(SystemConfigAlarmTest, WorkdaysStayInTheirTable) {
  expectBoundedList("822", kAsk, 8, "motion_two_days", "<Workday ", &Motion::WorkdayCount);
}

TEST_F(SystemConfigAlarmTest, ListsAreCutToTheirBuffer) {
  Human record;
  record.LightAlarmPeriodNum = INT32_MAX;
  for (SYSTEM_CONFIG_PERIOD& period : record.LightAlarmPeriod) period = {{100, 100, 100}, {100, 100, 100}};
  record.drawing.LineCoordinatesNum = INT32_MAX;
  for (SYSTEM_CONFIG_POINT& point : record.drawing.LineCoordinates) point = {1920, 1080};
  EXPECT_EQ(written("1494", kAnswer, record), golden("system_config/human_alarm_cut.txt"));
  const Human read = *stored<Human>("1494", "human_alarm_cut");
  EXPECT_EQ((Numbers{read.LightAlarmPeriodNum, read.LightAlarmPeriod[8].end.second}), (Numbers{INT32_MAX, 100}));
  EXPECT_EQ(read.LightAlarmPeriod[9].start.hour, -1) << "the entry that was cut";
  EXPECT_EQ((Numbers{read.drawing.LineCoordinates[20].y, read.drawing.LineCoordinates[21].x}), (Numbers{1080, -1}));
  record.drawing.LineCoordinatesNum = INT32_MIN;
  EXPECT_NE(written("1494", kAnswer, record).find("\nLineCoordinates=\"\"\n"), std::string::npos);
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
  EXPECT_EQ((Numbers{full.LightAlarmPeriodNum, full.LightAlarmPeriod[11].end.second, full.AudioAlarmEnable,
                     full.drawing.LineCoordinates[31].x, full.drawing.ShowAlarmCount}),
            (Numbers{40, 11, -1, 31, -1}));

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
