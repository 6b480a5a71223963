// Settings of alarms, motion detection and lights.
#include "config/alarm.h"

#include "config/list_text.h"
#include "kov_protocol/system_config_alarm.h"

namespace kov {
namespace {

static_assert(sizeof(SYSTEM_CONFIG_GET_802_PARAM) == 656, "the layout that applications are built with");

void workday(BodyIo& io, SYSTEM_CONFIG_WORKDAY& r) {
  BodyIo day = io.enter("Workday", "<Workday ");
  day.attributes({attr("Day", r.Day).thenNothing()});
  day.text(">\n");
  day.element("TimeSpan", "<TimeSpan ",
              {attr("Day", r.Day).readOnly(), attr("StartTime", r.StartTime).unpadded().thenBlank(),
               attr("EndTime", r.EndTime).unpadded().thenNothing()});
  day.text("</Workday>\n");
}

void workdays(BodyIo& io, SYSTEM_CONFIG_GET_802_PARAM& r) {
  BodyIo days = io.enter("EnableTimeList");
  if (!days) return;
  days.list<workday>("Workday", r.Workday, r.WorkdayCount);
  days.text("</EnableTimeList>\n");
}

// The same block travels alone and inside the camera's alarm settings, where the night times are not padded.
enum class NightTimes : unsigned char { Padded, Unpadded };

void motionBlock(BodyIo& io, SYSTEM_CONFIG_GET_802_PARAM& r, NightTimes written) {
  const char padding = written == NightTimes::Padded ? '0' : '\0';
  BodyIo motion = io.enter("MotionDetectAlarm", "<MotionDetectAlarm\n");
  motion.attributes({{"Enable", r.Enable},
                     {"Alarmtime", r.Alarmtime},
                     {"SoundAlarm", r.SoundAlarm},
                     {"LightAlarm", r.LightAlarm},
                     {"BlockCount", r.BlockCount},
                     {"BlockConfig", r.BlockConfig},
                     {"Sensitivity", r.Sensitivity},
                     {"AlarmThreshold", r.AlarmThreshold},
                     {"NightSensitivity", r.NightSensitivity},
                     {"NightAlarmThreshold", r.NightAlarmThreshold},
                     attr("NightStartTime", r.NightStartTime).padded(padding),
                     attr("NightEndTime", r.NightEndTime).padded(padding),
                     {"DayNightSwitch", r.DayNightSwitch}});
  motion.text(">\n");
  workdays(motion, r);
  BodyIo action = motion.enter("AlarmAction");
  action.element("AlarmOutputAction", {{"Enable", r.OutputEnable},
                                       {"PortIndex", r.PortIndex},
                                       {"ChannelType", r.ChannelType},
                                       {"TriggerType", r.TriggerType},
                                       {"Duration", r.Duration}});
  motion.text("</AlarmAction>\n</MotionDetectAlarm>\n");
}

void motionDetectAlarm(BodyIo& io, SYSTEM_CONFIG_GET_802_PARAM& r) { motionBlock(io, r, NightTimes::Padded); }

constexpr auto kMotionForm = form<motionDetectAlarm>("MotionDetectAlarm");
constexpr Message kGetMotiondetectAlarm = {"SystemConfig_getMotiondetectAlarm_Message", nullptr, kMotionForm};
constexpr Message kSetMotiondetectAlarm = {"SystemConfig_setMotiondetectAlarm_Message", kMotionForm, nullptr};

void ipcAlarmConfig(BodyIo& io, SYSTEM_CONFIG_SET_820_PARAM& r) {
  BodyIo config = io.enter("AlarmConfig");
  config.element("OFFLINE_MSG_PUSH", {{"Enable", r.OfflinePushEnable}});
  config.element("IotDriveAway", {{"IotAlarmTime", r.IotAlarmTime},
                                  {"IotAlarmLightEnable", r.IotAlarmLightEnable},
                                  {"IotAlarmSoundEnable", r.IotAlarmSoundEnable},
                                  {"IotAlarmStart", r.IotAlarmStart}});
  config.element("IotDefense", {{"DefenseSet", r.DefenseSet}});
  motionBlock(config, r.motion, NightTimes::Unpadded);
  config.element("EmailConfig", {{"SMTPServer", r.SMTPServer},
                                 {"Port", r.Port},
                                 {"Username", r.Username},
                                 {"Password", r.Password},
                                 {"Sender", r.Sender},
                                 {"Authentication", r.Authentication},
                                 {"Title", r.Title},
                                 {"Interval", r.Interval},
                                 {"Receiver", r.Receiver}});
  config.text("</AlarmConfig>\n");
}

constexpr Message kSetIpcAlarmConfig = {"SystemConfig_setIpcAlarmConfig_Message", form<ipcAlarmConfig>("AlarmConfig"),
                                        nullptr};

// The element ends in an end tag, although it holds attributes only.
constexpr char kLightConfigEnd[] = ">\n</LightConfig>\n";

void lightConfigAnswer(BodyIo& io, SYSTEM_CONFIG_GET_1300_PARAM& r) {
  io.element("LightConfig",
             {{"LightMode", r.LightMode},
              {"LightCtrl", r.LightCtrl},
              {"LightVal", r.LightVal},
              {"LightModeRange", r.LightModeRange},
              attr("DefLightMode", r.DefLightMode).thenNothing()},
             kLightConfigEnd);
}

void lightConfigRequest(BodyIo& io, SYSTEM_CONFIG_GET_1300_PARAM& r) {
  io.element("LightConfig",
             {{"LightMode", r.LightMode}, {"LightCtrl", r.LightCtrl}, attr("LightVal", r.LightVal).thenNothing()},
             kLightConfigEnd);
}

constexpr Message kGetLightConfig = {"SystemConfig_getLightConfig_Message", nullptr,
                                     form<lightConfigAnswer>("LightConfig"), Direction::ResponseIs13};
constexpr Message kSetLightConfig = {"SystemConfig_setLightConfig_Message", form<lightConfigRequest>("LightConfig"),
                                     nullptr};

void lightAudioAlarm(BodyIo& io, SYSTEM_CONFIG_GET_1492_PARAM& r) {
  io.element("LightAudioAlarm", {{"LightAudioAlarmEnable", r.LightAudioAlarmEnable}});
}

constexpr auto kLightAudioForm = form<lightAudioAlarm>("LightAudioAlarm");
constexpr Message kGetLightAudioAlarm = {"SystemConfig_getLightAudioAlarmConfig_Message", nullptr, kLightAudioForm};
constexpr Message kSetLightAudioAlarm = {"SystemConfig_setLightAudioAlarmConfig_Message", kLightAudioForm, nullptr};

void humanLightAlarm(BodyIo& io, SYSTEM_CONFIG_GET_1494_PARAM& r) {
  BodyIo light = io.enter("LightAlarm", "<LightAlarm\n");
  light.attributes({{"Enable", r.LightAlarmEnable},
                    {"duration", r.duration},
                    {"DefLightdurationRange", r.DefLightdurationRange},
                    {"ScheduleMode", r.LightScheduleMode},
                    {"AlarmPeriodNum", r.LightAlarmPeriodNum}});
  periodList(light, "AlarmPeriod", r.LightAlarmPeriod, r.LightAlarmPeriodNum, ListText::Cut);
  light.text("/>\n");
}

// The range of the audio alarm bears the name of the light's.
void humanAudioAlarm(BodyIo& io, SYSTEM_CONFIG_GET_1494_PARAM& r) {
  BodyIo audio = io.enter("AudioAlarm", "<AudioAlarm\n");
  audio.attributes({{"Enable", r.AudioAlarmEnable},
                    {"AlarmTimes", r.AlarmTimes},
                    {"DefLightdurationRange", r.AlarmTimesRange},
                    {"ScheduleMode", r.AudioScheduleMode},
                    {"AlarmPeriodNum", r.AudioAlarmPeriodNum}});
  periodList(audio, "AlarmPeriod", r.AudioAlarmPeriod, r.AudioAlarmPeriodNum, ListText::Cut);
  audio.text("/>\n");
}

void humanAlarmConfig(BodyIo& io, SYSTEM_CONFIG_GET_1494_PARAM& r) {
  BodyIo config = io.enter("HumanAlarmConfig");
  config.element(
      "HumanAlarm",
      {{"Enable", r.Enable}, {"DetectionSens", r.DetectionSens}, {"DefDetectionSensRange", r.DefDetectionSensRange}});
  humanLightAlarm(config, r);
  humanAudioAlarm(config, r);
  BodyIo drawing = config.enter("DrawLine", "<DrawLine\n");
  drawingAttributes(drawing, r.drawing);
  config.text("/>\n</HumanAlarmConfig>\n");
}

constexpr auto kHumanAlarmForm = form<humanAlarmConfig>("HumanAlarmConfig");
constexpr Message kGetHumanAlarmConfig = {"SystemConfig_getHumanAlarmConfig_Message", nullptr, kHumanAlarmForm};
constexpr Message kSetHumanAlarmConfig = {"SystemConfig_setHumanAlarmConfig_Message", kHumanAlarmForm, nullptr};

void smartDetection(BodyIo& io, SYSTEM_CONFIG_GET_1498_PARAM& r) {
  io.element("SmartDetection", {{"RegionDetectionEnable", r.SmartDetection.RegionDetectionEnable},
                                {"CrossBoundaryDetectionEnable", r.SmartDetection.CrossBoundaryDetectionEnable}});
  io.element("SmartDetection1", {{"RegionDetectionEnable", r.SmartDetection1.RegionDetectionEnable},
                                 {"CrossBoundaryDetectionEnable", r.SmartDetection1.CrossBoundaryDetectionEnable}});
}

constexpr auto kSmartForm = form<smartDetection>("SmartDetection");
constexpr Message kGetSmartDetection = {"SystemConfig_getSmartDetectionConfig_Message", nullptr, kSmartForm};
constexpr Message kSetSmartDetection = {"SystemConfig_setSmartDetectionConfig_Message", kSmartForm, nullptr};

void pushOfflineQuery(BodyIo& io, SYSTEM_CONFIG_GET_2511_PARAM& r) {
  io.element("REQUEST_PARAM", {{"ChannelId", r.ChannelId}});
}

void pushOffline(BodyIo& io, SYSTEM_CONFIG_GET_2511_PARAM& r) {
  io.element("PushOffline", {{"ChannelId", r.ChannelId}, {"PushOfflineEnable", r.PushOfflineEnable}});
}

constexpr auto kPushOfflineForm = form<pushOffline>("PushOffline");
constexpr Message kGetPushOffline = {"SystemConfig_getPushOfflineConfig_Message", request<pushOfflineQuery>,
                                     kPushOfflineForm};
constexpr Message kSetPushOffline = {"SystemConfig_setPushOfflineConfig_Message", kPushOfflineForm, nullptr};

void offAllSmartChanges(BodyIo& io, SYSTEM_CONFIG_GET_3820_PARAM& r) {
  io.element("AdvancedSetCfg", {{"OffAllSmartModify", r.OffAllSmartModify}});
}

constexpr auto kOffSmartForm = form<offAllSmartChanges>("AdvancedSetCfg");
constexpr Message kGetOffAllSmart = {"SystemConfig_NvrGetOffAllSmartChanges_Message", nullptr, kOffSmartForm,
                                     Direction::ResponseIs13};
constexpr Message kSetOffAllSmart = {"SystemConfig_NvrSetOffAllSmartChanges_Message", kOffSmartForm, nullptr};

void offAllAlarm(BodyIo& io, SYSTEM_CONFIG_GET_3822_PARAM& r) {
  io.element("AlarmSetCfg", {{"OffAllAlarm", r.OffAllAlarm}});
}

constexpr auto kOffAlarmForm = form<offAllAlarm>("AlarmSetCfg");
constexpr Message kGetOffAllAlarm = {"SystemConfig_NvrGetOffAllAlarm_Message", nullptr, kOffAlarmForm,
                                     Direction::ResponseIs13};
constexpr Message kSetOffAllAlarm = {"SystemConfig_NvrSetOffAllAlarm_Message", kOffAlarmForm, nullptr};

constexpr CodeRow kRows[] = {
    {802, &kGetMotiondetectAlarm}, {822, &kSetMotiondetectAlarm}, {820, &kSetIpcAlarmConfig},
    {1300, &kGetLightConfig},      {1301, &kSetLightConfig},      {1492, &kGetLightAudioAlarm},
    {1493, &kSetLightAudioAlarm},  {1494, &kGetHumanAlarmConfig}, {1496, &kGetHumanAlarmConfig},
    {1495, &kSetHumanAlarmConfig}, {1497, &kSetHumanAlarmConfig}, {1498, &kGetSmartDetection},
    {1499, &kSetSmartDetection},   {2511, &kGetPushOffline},      {2531, &kSetPushOffline},
    {3820, &kGetOffAllSmart},      {3821, &kSetOffAllSmart},      {3822, &kGetOffAllAlarm},
    {3823, &kSetOffAllAlarm},
};

}  // namespace

constexpr CodeGroup kAlarmCodes = kRows;

}  // namespace kov

int SYSTEM_CONFIG_GET_802_PARAM_init(SYSTEM_CONFIG_GET_802_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_820_PARAM_init(SYSTEM_CONFIG_SET_820_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_822_PARAM_init(SYSTEM_CONFIG_GET_802_PARAM* record) {
  return SYSTEM_CONFIG_GET_802_PARAM_init(record);
}
int SYSTEM_CONFIG_GET_1300_PARAM_init(SYSTEM_CONFIG_GET_1300_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_1301_PARAM_init(SYSTEM_CONFIG_GET_1300_PARAM* record) {
  return SYSTEM_CONFIG_GET_1300_PARAM_init(record);
}
int SYSTEM_CONFIG_GET_1492_PARAM_init(SYSTEM_CONFIG_GET_1492_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_1493_PARAM_init(SYSTEM_CONFIG_GET_1492_PARAM* record) {
  return SYSTEM_CONFIG_GET_1492_PARAM_init(record);
}
int SYSTEM_CONFIG_GET_1494_PARAM_init(SYSTEM_CONFIG_GET_1494_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_1495_PARAM_init(SYSTEM_CONFIG_GET_1494_PARAM* record) {
  return SYSTEM_CONFIG_GET_1494_PARAM_init(record);
}
int SYSTEM_CONFIG_GET_1496_PARAM_init(SYSTEM_CONFIG_GET_1494_PARAM* record) {
  return SYSTEM_CONFIG_GET_1494_PARAM_init(record);
}
int SYSTEM_CONFIG_SET_1497_PARAM_init(SYSTEM_CONFIG_GET_1494_PARAM* record) {
  return SYSTEM_CONFIG_GET_1494_PARAM_init(record);
}
int SYSTEM_CONFIG_GET_1498_PARAM_init(SYSTEM_CONFIG_GET_1498_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_1499_PARAM_init(SYSTEM_CONFIG_GET_1498_PARAM* record) {
  return SYSTEM_CONFIG_GET_1498_PARAM_init(record);
}
int SYSTEM_CONFIG_GET_2511_PARAM_init(SYSTEM_CONFIG_GET_2511_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_2531_PARAM_init(SYSTEM_CONFIG_GET_2511_PARAM* record) {
  return SYSTEM_CONFIG_GET_2511_PARAM_init(record);
}
int SYSTEM_CONFIG_GET_3820_PARAM_init(SYSTEM_CONFIG_GET_3820_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_3821_PARAM_init(SYSTEM_CONFIG_GET_3820_PARAM* record) {
  return SYSTEM_CONFIG_GET_3820_PARAM_init(record);
}
int SYSTEM_CONFIG_GET_3822_PARAM_init(SYSTEM_CONFIG_GET_3822_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_3823_PARAM_init(SYSTEM_CONFIG_GET_3822_PARAM* record) {
  return SYSTEM_CONFIG_GET_3822_PARAM_init(record);
}

int SystemConfig_getMotiondetectAlarm_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetMotiondetectAlarm.analyse(xml, result);
}
int SystemConfig_setMotiondetectAlarm_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetMotiondetectAlarm.analyse(xml, result);
}
int SystemConfig_setIpcAlarmConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetIpcAlarmConfig.analyse(xml, result);
}
int SystemConfig_getLightConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetLightConfig.analyse(xml, result);
}
int SystemConfig_setLightConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetLightConfig.analyse(xml, result);
}
int SystemConfig_getLightAudioAlarmConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetLightAudioAlarm.analyse(xml, result);
}
int SystemConfig_setLightAudioAlarmConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetLightAudioAlarm.analyse(xml, result);
}
int SystemConfig_getHumanAlarmConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetHumanAlarmConfig.analyse(xml, result);
}
int SystemConfig_setHumanAlarmConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetHumanAlarmConfig.analyse(xml, result);
}
int SystemConfig_getSmartDetectionConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetSmartDetection.analyse(xml, result);
}
int SystemConfig_setSmartDetectionConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetSmartDetection.analyse(xml, result);
}
int SystemConfig_getPushOfflineConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetPushOffline.analyse(xml, result);
}
int SystemConfig_setPushOfflineConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetPushOffline.analyse(xml, result);
}
int SystemConfig_NvrGetOffAllSmartChanges_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetOffAllSmart.analyse(xml, result);
}
int SystemConfig_NvrSetOffAllSmartChanges_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetOffAllSmart.analyse(xml, result);
}
int SystemConfig_NvrGetOffAllAlarm_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetOffAllAlarm.analyse(xml, result);
}
int SystemConfig_NvrSetOffAllAlarm_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetOffAllAlarm.analyse(xml, result);
}
