// Scenes: what raises them, when, and what they light, play and switch.
#include "config/analytics.h"
#include "config/detection_rule.h"
#include "config/list_text.h"
#include "kov_protocol/system_config_analytics.h"

namespace kov {
namespace {

void alarmAudio(BodyIo& io, SYSTEM_CONFIG_ALARM_AUDIO& r) {
  io.element("AlarmAudio", {{"AlarmAudioIndex", r.AlarmAudioIndex},
                            {"AlarmAudioEnable", r.AlarmAudioEnable},
                            {"AlarmAudioName", r.AlarmAudioName}});
}

void sceneAudio(BodyIo& io, SYSTEM_CONFIG_GET_1420_PARAM& r) {
  BodyIo audio = io.enter("SceneAudio");
  audio.list<alarmAudio>("AlarmAudio", r.AlarmAudio, r.AlarmAudioCount);
  audio.text("</SceneAudio>\n");
}

constexpr Message kGetSceneAudio = {"SystemConfig_getHumanAlarmsceneAudio_Message", nullptr,
                                    form<sceneAudio>("SceneAudio")};

// The request is no list: it orders one operation on one sound.
void alarmAudioCfg(BodyIo& io, SYSTEM_CONFIG_SET_1421_PARAM& r) {
  io.element("AlarmAudioCfg", {{"AlarmAudioIndex", r.AlarmAudioIndex}, {"AlarmAudioOperation", r.AlarmAudioOperation}});
}

constexpr Message kSetSceneAudio = {"SystemConfig_setHumanAlarmsceneAudio_Message",
                                    form<alarmAudioCfg>("AlarmAudioCfg"), nullptr};

void alarmType(BodyIo& io, SYSTEM_CONFIG_ALARM_TYPE& r) {
  io.element("AlarmType", {{"AlarmTypeIndex", r.AlarmTypeIndex},
                           {"AlarmTypeEnable", r.AlarmTypeEnable},
                           {"AlarmTypeName", r.AlarmTypeName}});
}

void sceneAlarmInfo(BodyIo& io, SYSTEM_CONFIG_SCENE& r) {
  BodyIo scene = openAttributes(io, "SceneAlarmInfo");
  scene.attributes({{"SceneIndex", r.SceneIndex},
                    {"SceneEnable", r.SceneEnable},
                    {"SceneAlias", r.SceneAlias},
                    {"ScheduleMode", r.ScheduleMode},
                    {"AlarmPeriodNum", r.AlarmPeriodNum},
                    {"LightAlarmEnable", r.LightAlarmEnable},
                    {"Lightduration", r.Lightduration},
                    {"LightScheduleMode", r.LightScheduleMode},
                    {"LightAlarmPeriodNum", r.LightAlarmPeriodNum},
                    {"AudioAlarmEnable", r.AudioAlarmEnable},
                    {"AlarmAudioIndex", r.AlarmAudioIndex},
                    {"AudioAlarmTimes", r.AudioAlarmTimes},
                    {"AudioScheduleMode", r.AudioScheduleMode},
                    {"AudioAlarmPeriodNum", r.AudioAlarmPeriodNum},
                    {"IOAlarmEnable", r.IOAlarmEnable},
                    {"IOduration", r.IOduration},
                    {"IOScheduleMode", r.IOScheduleMode},
                    {"IOAlarmPeriodNum", r.IOAlarmPeriodNum}});
  periodList(scene, "AlarmPeriod", r.AlarmPeriod, r.AlarmPeriodNum);
  periodList(scene, "LightAlarmPeriod", r.LightAlarmPeriod, r.LightAlarmPeriodNum);
  periodList(scene, "AudioAlarmPeriod", r.AudioAlarmPeriod, r.AudioAlarmPeriodNum);
  periodList(scene, "IOAlarmPeriod", r.IOAlarmPeriod, r.IOAlarmPeriodNum);
  closeAttributes(scene);
}

void sceneAlarm(BodyIo& io, SYSTEM_CONFIG_SET_1423_PARAM& r) {
  BodyIo alarm = io.enter("SceneAlarm");
  alarm.element(
      "SceneAlarmParam",
      {{"SceneTotal", r.SceneTotal}, {"SceneTotalMax", r.SceneTotalMax}, {"NextSceneIndex", r.NextSceneIndex}});
  alarm.list<alarmType>("AlarmType", r.AlarmType, r.AlarmTypeCount);
  alarm.list<sceneAlarmInfo>("SceneAlarmInfo", r.SceneAlarmInfo, r.SceneAlarmInfoCount);
  alarm.text("</SceneAlarm>\n");
}

constexpr auto kSceneAlarmForm = form<sceneAlarm>("SceneAlarm");
constexpr Message kGetSceneAlarm = {"SystemConfig_getHumanAlarmscene_Message", nullptr, kSceneAlarmForm};
constexpr Message kSetSceneAlarm = {"SystemConfig_setHumanAlarmscene_Message", kSceneAlarmForm, nullptr};

constexpr CodeRow kRows[] = {
    {1420, &kGetSceneAudio},
    {1421, &kSetSceneAudio},
    {1422, &kGetSceneAlarm},
    {1423, &kSetSceneAlarm},
};

}  // namespace

constexpr CodeGroup kSceneCodes = kRows;

}  // namespace kov

int SYSTEM_CONFIG_GET_1420_PARAM_init(SYSTEM_CONFIG_GET_1420_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_1421_PARAM_init(SYSTEM_CONFIG_SET_1421_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_1423_PARAM_init(SYSTEM_CONFIG_SET_1423_PARAM* record) { return kov::fillDefaults(record); }

int SystemConfig_getHumanAlarmsceneAudio_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetSceneAudio.analyse(xml, result);
}
int SystemConfig_setHumanAlarmsceneAudio_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetSceneAudio.analyse(xml, result);
}
int SystemConfig_getHumanAlarmscene_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetSceneAlarm.analyse(xml, result);
}
int SystemConfig_setHumanAlarmscene_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetSceneAlarm.analyse(xml, result);
}
