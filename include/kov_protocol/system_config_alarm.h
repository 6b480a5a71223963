/**
 * @file system_config_alarm.h
 * @brief Settings of alarms, motion detection and lights, of cameras and recorders.
 *
 * In every record an integer of -1 and an empty text are unset, and the fields travel as attributes of their own name
 * in the element that the record names, unless said otherwise. A GET message has a body in its answer only, a SET
 * message in its request only; the other side is empty.
 */
#ifndef KOV_PROTOCOL_SYSTEM_CONFIG_ALARM_H
#define KOV_PROTOCOL_SYSTEM_CONFIG_ALARM_H

#include "kov_protocol/system_config_detection.h"

#ifdef __cplusplus
extern "C" {
#endif

#define SYSTEM_CONFIG_WORKDAYS 8

/** A day of the motion-detection schedule: element Workday, with the times in TimeSpan, "8:0:0". */
typedef struct SYSTEM_CONFIG_WORKDAY {
  int32_t Day KOV_DEFAULT(-1); /**< Attribute of Workday; when read, one of TimeSpan goes before it. */
  int32_t reserved KOV_DEFAULT(-1);
  KOV_TIME StartTime;
  KOV_TIME EndTime;
} SYSTEM_CONFIG_WORKDAY;

/** 802 and 822: element MotionDetectAlarm. */
typedef struct SYSTEM_CONFIG_GET_802_PARAM {
  int32_t Enable KOV_DEFAULT(-1);
  int32_t BlockCount KOV_DEFAULT(-1);
  char BlockConfig[256] KOV_EMPTY; /**< The grid. */
  int32_t Sensitivity KOV_DEFAULT(-1);
  int32_t AlarmThreshold KOV_DEFAULT(-1);
  int32_t NightSensitivity KOV_DEFAULT(-1);
  int32_t NightAlarmThreshold KOV_DEFAULT(-1);
  KOV_TIME NightStartTime; /**< "06:00:00", but "6:0:0" inside code 820; both are read everywhere. */
  KOV_TIME NightEndTime;
  int32_t DayNightSwitch KOV_DEFAULT(-1);
  int32_t WorkdayCount KOV_DEFAULT(-1); /**< Not carried: the number of Workday elements, at most 8. */
  int32_t OutputEnable KOV_DEFAULT(-1); /**< Attribute Enable of AlarmOutputAction, as the four that follow. */
  int32_t PortIndex KOV_DEFAULT(-1);
  char ChannelType[32] KOV_EMPTY;
  char TriggerType[32] KOV_EMPTY;
  int32_t Duration KOV_DEFAULT(-1);
  int32_t Alarmtime KOV_DEFAULT(-1);
  int32_t SoundAlarm KOV_DEFAULT(-1);
  int32_t LightAlarm KOV_DEFAULT(-1);
  SYSTEM_CONFIG_WORKDAY Workday[SYSTEM_CONFIG_WORKDAYS];
} SYSTEM_CONFIG_GET_802_PARAM;

/** 820: element AlarmConfig, with an element a group. */
typedef struct SYSTEM_CONFIG_SET_820_PARAM {
  int32_t OfflinePushEnable KOV_DEFAULT(-1); /**< Attribute Enable of OFFLINE_MSG_PUSH. */
  int32_t IotAlarmTime KOV_DEFAULT(-1);      /**< Element IotDriveAway, as the three that follow. */
  int32_t IotAlarmLightEnable KOV_DEFAULT(-1);
  int32_t IotAlarmSoundEnable KOV_DEFAULT(-1);
  int32_t IotAlarmStart KOV_DEFAULT(-1);
  int32_t DefenseSet KOV_DEFAULT(-1); /**< Element IotDefense. */
  SYSTEM_CONFIG_GET_802_PARAM motion; /**< Element MotionDetectAlarm. */
  char SMTPServer[64] KOV_EMPTY;      /**< Element EmailConfig, as all that follow. */
  int32_t Port KOV_DEFAULT(-1);
  char Username[64] KOV_EMPTY;
  char Password[64] KOV_EMPTY;
  char Sender[64] KOV_EMPTY;
  int32_t Authentication KOV_DEFAULT(-1);
  char Title[128] KOV_EMPTY;
  int32_t Interval KOV_DEFAULT(-1);
  char Receiver[256] KOV_EMPTY;
} SYSTEM_CONFIG_SET_820_PARAM;

/** 1300 and 1301: element LightConfig. 1301 carries the first three fields only. */
typedef struct SYSTEM_CONFIG_GET_1300_PARAM {
  int32_t LightMode KOV_DEFAULT(-1);
  int32_t LightCtrl KOV_DEFAULT(-1);
  int32_t LightVal KOV_DEFAULT(-1);
  int32_t DefLightMode KOV_DEFAULT(-1);
  int32_t LightModeRange[3] KOV_DEFAULTS(-1, -1, -1); /**< "0,1,2" */
} SYSTEM_CONFIG_GET_1300_PARAM;

/** 1492 and 1493: element LightAudioAlarm. */
typedef struct SYSTEM_CONFIG_GET_1492_PARAM {
  int32_t LightAudioAlarmEnable KOV_DEFAULT(-1);
} SYSTEM_CONFIG_GET_1492_PARAM;

/** 1494 to 1497: element HumanAlarmConfig, with an element a group. Both period lists are cut to 255 bytes. */
typedef struct SYSTEM_CONFIG_GET_1494_PARAM {
  int32_t Enable KOV_DEFAULT(-1); /**< Element HumanAlarm, as the two that follow. */
  int32_t DetectionSens KOV_DEFAULT(-1);
  int32_t DefDetectionSensRange[2] KOV_DEFAULTS(-1, -1); /**< "1,100" */

  int32_t LightAlarmEnable KOV_DEFAULT(-1);                     /**< Attribute Enable of LightAlarm. */
  int32_t duration KOV_DEFAULT(-1);                             /**< Element LightAlarm. */
  int32_t DefLightdurationRange[2] KOV_DEFAULTS(-1, -1);        /**< Element LightAlarm. */
  int32_t LightScheduleMode KOV_DEFAULT(-1);                    /**< Attribute ScheduleMode of LightAlarm. */
  int32_t LightAlarmPeriodNum KOV_DEFAULT(-1);                  /**< Attribute AlarmPeriodNum of LightAlarm. */
  SYSTEM_CONFIG_PERIOD LightAlarmPeriod[SYSTEM_CONFIG_PERIODS]; /**< Attribute AlarmPeriod of LightAlarm. */

  int32_t AudioAlarmEnable KOV_DEFAULT(-1); /**< Attribute Enable of AudioAlarm. */
  int32_t AlarmTimes KOV_DEFAULT(-1);       /**< Element AudioAlarm. */
  int32_t AlarmTimesRange[2] KOV_DEFAULTS(-1,
                                          -1); /**< Attribute DefLightdurationRange of AudioAlarm, as the light's. */
  int32_t AudioScheduleMode KOV_DEFAULT(-1);   /**< Attribute ScheduleMode of AudioAlarm. */
  int32_t AudioAlarmPeriodNum KOV_DEFAULT(-1); /**< Attribute AlarmPeriodNum of AudioAlarm. */
  SYSTEM_CONFIG_PERIOD AudioAlarmPeriod[SYSTEM_CONFIG_PERIODS]; /**< Attribute AlarmPeriod of AudioAlarm. */

  SYSTEM_CONFIG_DRAWING drawing; /**< Element DrawLine. */
} SYSTEM_CONFIG_GET_1494_PARAM;

/** The two switches of 1498. */
typedef struct SYSTEM_CONFIG_SMART_DETECTION {
  int32_t RegionDetectionEnable KOV_DEFAULT(-1);
  int32_t CrossBoundaryDetectionEnable KOV_DEFAULT(-1);
} SYSTEM_CONFIG_SMART_DETECTION;

/** 1498 and 1499: elements SmartDetection and SmartDetection1; the second may be missing. */
typedef struct SYSTEM_CONFIG_GET_1498_PARAM {
  SYSTEM_CONFIG_SMART_DETECTION SmartDetection;
  SYSTEM_CONFIG_SMART_DETECTION SmartDetection1;
} SYSTEM_CONFIG_GET_1498_PARAM;

/** 2511 and 2531: element PushOffline. The request of 2511 is ChannelId in REQUEST_PARAM. */
typedef struct SYSTEM_CONFIG_GET_2511_PARAM {
  int32_t ChannelId KOV_DEFAULT(-1);
  int32_t PushOfflineEnable KOV_DEFAULT(-1);
} SYSTEM_CONFIG_GET_2511_PARAM;

/** 3820 and 3821: element AdvancedSetCfg, the recorder's switch over all smart changes. */
typedef struct SYSTEM_CONFIG_GET_3820_PARAM {
  int32_t OffAllSmartModify KOV_DEFAULT(-1);
} SYSTEM_CONFIG_GET_3820_PARAM;

/** 3822 and 3823: element AlarmSetCfg, the recorder's switch over all alarms. */
typedef struct SYSTEM_CONFIG_GET_3822_PARAM {
  int32_t OffAllAlarm KOV_DEFAULT(-1);
} SYSTEM_CONFIG_GET_3822_PARAM;

/** @name Default fillers
 * Each sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record.
 * @{ */
KOV_API int SYSTEM_CONFIG_GET_802_PARAM_init(SYSTEM_CONFIG_GET_802_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_820_PARAM_init(SYSTEM_CONFIG_SET_820_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_822_PARAM_init(SYSTEM_CONFIG_GET_802_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_1300_PARAM_init(SYSTEM_CONFIG_GET_1300_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_1301_PARAM_init(SYSTEM_CONFIG_GET_1300_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_1492_PARAM_init(SYSTEM_CONFIG_GET_1492_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_1493_PARAM_init(SYSTEM_CONFIG_GET_1492_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_1494_PARAM_init(SYSTEM_CONFIG_GET_1494_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_1495_PARAM_init(SYSTEM_CONFIG_GET_1494_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_1496_PARAM_init(SYSTEM_CONFIG_GET_1494_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_1497_PARAM_init(SYSTEM_CONFIG_GET_1494_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_1498_PARAM_init(SYSTEM_CONFIG_GET_1498_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_1499_PARAM_init(SYSTEM_CONFIG_GET_1498_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_2511_PARAM_init(SYSTEM_CONFIG_GET_2511_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_2531_PARAM_init(SYSTEM_CONFIG_GET_2511_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_3820_PARAM_init(SYSTEM_CONFIG_GET_3820_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_3821_PARAM_init(SYSTEM_CONFIG_GET_3820_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_3822_PARAM_init(SYSTEM_CONFIG_GET_3822_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_3823_PARAM_init(SYSTEM_CONFIG_GET_3822_PARAM *record);
/** @} */

/** @name Analysis of one message
 * Each reads the element named at the record, which must be there, into a new record; elements inside it may be
 * missing. 2511 reads PushOffline, or else REQUEST_PARAM. Returns 0, or, with a line that begins with the function's
 * name: KOV_ERROR_EMPTY_ARGUMENT " put a empty Param\n"; KOV_ERROR_BAD_DOCUMENT " Parse MsgBuf error\n",
 * " get RootElement error\n" or " get MESSAGE_BODY error\n"; KOV_ERROR_NO_ELEMENT " get <element> error\n".
 * KOV_ERROR_NO_MEMORY goes with "Malloc Memory failed!\n".
 * @{ */
KOV_API int SystemConfig_getMotiondetectAlarm_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setMotiondetectAlarm_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setIpcAlarmConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getLightConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setLightConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getLightAudioAlarmConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setLightAudioAlarmConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getHumanAlarmConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setHumanAlarmConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getSmartDetectionConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setSmartDetectionConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getPushOfflineConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setPushOfflineConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_NvrGetOffAllSmartChanges_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_NvrSetOffAllSmartChanges_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_NvrGetOffAllAlarm_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_NvrSetOffAllAlarm_MessageAnalysis(const char *xml, void **result);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
