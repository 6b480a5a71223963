/**
 * @file system_config_detection.h
 * @brief What alarm and analytics settings share: schedules, drawn lines and the detection rule.
 *
 * In every record an integer of -1, an 8-bit field of 255 and an empty text are unset, and the fields travel as
 * attributes of their own name unless said otherwise.
 */
#ifndef KOV_PROTOCOL_SYSTEM_CONFIG_DETECTION_H
#define KOV_PROTOCOL_SYSTEM_CONFIG_DETECTION_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

#define SYSTEM_CONFIG_PERIODS 12 /**< Entries of every table of periods. */
#define SYSTEM_CONFIG_POINTS 32  /**< Entries of every table of points. */

/**
 * An entry of a period list: "[08:00:00-17:30:00]," each, in one attribute. The number of entries travels as an
 * attribute of its own and keeps what was received, even when it exceeds the table; compose writes the number as it is,
 * and as many entries as the table has. Analysis fills the table from the front and skips entries that are not whole.
 */
typedef struct SYSTEM_CONFIG_PERIOD {
  KOV_TIME start;
  KOV_TIME end;
} SYSTEM_CONFIG_PERIOD;

/** An entry of a point list, "[x,y]," each; as for periods otherwise. A composed list is cut to 255 bytes. */
typedef struct SYSTEM_CONFIG_POINT {
  int32_t x KOV_DEFAULT(-1);
  int32_t y KOV_DEFAULT(-1);
} SYSTEM_CONFIG_POINT;

/** The lines drawn into the picture. */
typedef struct SYSTEM_CONFIG_DRAWING {
  int32_t ShowAlarmCount KOV_DEFAULT(-1);
  int32_t ShowAlarmLine KOV_DEFAULT(-1);
  int32_t VideoResolution[2] KOV_DEFAULTS(-1, -1); /**< Width and height, "1920*1080". */
  int32_t MaxCoordinateCapability KOV_DEFAULT(-1);
  int32_t LineCoordinatesNum KOV_DEFAULT(-1);
  SYSTEM_CONFIG_POINT LineCoordinates[SYSTEM_CONFIG_POINTS];
} SYSTEM_CONFIG_DRAWING;

/**
 * A detection rule: what is detected, what is drawn, and the light, e-mail and audio alarms with a schedule each.
 *
 * Fields that begin with Def are the device's own defaults and limits: answers to GET messages tell them, SET messages
 * neither write nor read them, except that DefTrackEnable is read. Ranges travel as "low,high". On the wire the
 * attributes stand in the record's order, but the three period lists stand at the end: light, audio, e-mail.
 */
typedef struct SYSTEM_CONFIG_DETECTION_RULE {
  int32_t Enable KOV_DEFAULT(-1);
  int32_t DefEnable KOV_DEFAULT(-1);
  int32_t DetectionAttr KOV_DEFAULT(-1);
  int32_t DetectionSens KOV_DEFAULT(-1);
  int32_t DefDetectionSens KOV_DEFAULT(-1);
  int32_t DefDetectionSensRange[2] KOV_DEFAULTS(-1, -1);
  SYSTEM_CONFIG_DRAWING drawing;

  int32_t LightAlarmEnable KOV_DEFAULT(-1);
  int32_t DefLightAlarmEnable KOV_DEFAULT(-1);
  int32_t Lightduration KOV_DEFAULT(-1);
  int32_t DefLightduration KOV_DEFAULT(-1);
  int32_t DefLightdurationRange[2] KOV_DEFAULTS(-1, -1);
  int32_t LightScheduleMode KOV_DEFAULT(-1);
  int32_t DefLightScheduleMode KOV_DEFAULT(-1);
  int32_t LightAlarmPeriodNum KOV_DEFAULT(-1);
  SYSTEM_CONFIG_PERIOD LightAlarmPeriod[SYSTEM_CONFIG_PERIODS];

  int32_t EmailAlarmEnable KOV_DEFAULT(-1);
  int32_t Emailduration KOV_DEFAULT(-1);
  int32_t DefEmaildurationRange[2] KOV_DEFAULTS(-1, -1);
  int32_t EmailScheduleMode KOV_DEFAULT(-1);
  int32_t EmailAlarmPeriodNum KOV_DEFAULT(-1);
  SYSTEM_CONFIG_PERIOD EmailAlarmPeriod[SYSTEM_CONFIG_PERIODS];

  int32_t AudioAlarmEnable KOV_DEFAULT(-1);
  int32_t DefAudioAlarmEnable KOV_DEFAULT(-1);
  int32_t AudioAlarmTimes KOV_DEFAULT(-1);
  int32_t DefAudioAlarmTimes KOV_DEFAULT(-1);
  int32_t DefAudioAlarmTimesRange[2] KOV_DEFAULTS(-1, -1);
  int32_t AudioScheduleMode KOV_DEFAULT(-1);
  int32_t DefAudioScheduleMode KOV_DEFAULT(-1);
  int32_t AudioAlarmPeriodNum KOV_DEFAULT(-1);
  SYSTEM_CONFIG_PERIOD AudioAlarmPeriod[SYSTEM_CONFIG_PERIODS];

  KOV_TIME LightAudioAlarmStartTime;
  KOV_TIME LightAudioAlarmEndTime;
  int32_t AlarmTime KOV_DEFAULT(-1);
  int32_t TrackEnable KOV_DEFAULT(-1);
  int32_t DefTrackEnable KOV_DEFAULT(-1);
  uint8_t CrowdFlowStatEnable KOV_DEFAULT(255);    /**< While unset, both crowd-flow attributes are left out. */
  uint8_t DefCrowdFlowStatEnable KOV_DEFAULT(255); /**< Left out while unset. */
} SYSTEM_CONFIG_DETECTION_RULE;

#ifdef __cplusplus
}
#endif

#endif
