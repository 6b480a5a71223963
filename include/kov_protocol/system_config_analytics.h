/**
 * @file system_config_analytics.h
 * @brief Settings of a camera's video analytics: detection rules, plates, faces, scenes and algorithms.
 *
 * The records follow system_config_detection.h: unset values, lists, and a rule's Def fields, which SET messages leave
 * out here too. Attributes bear the name of their field and stand in the record's order, with lists behind all others
 * of a rule, unless said otherwise. A GET message has a body in its answer only, a SET message in its request only.
 * Counts of elements are not carried: analysis counts the elements it stored, and stops when a table is full.
 */
#ifndef KOV_PROTOCOL_SYSTEM_CONFIG_ANALYTICS_H
#define KOV_PROTOCOL_SYSTEM_CONFIG_ANALYTICS_H

#include "kov_protocol/system_config_detection.h"

#ifdef __cplusplus
extern "C" {
#endif

#define SYSTEM_CONFIG_SCENES 8
#define SYSTEM_CONFIG_SCENE_TAGS 16
#define SYSTEM_CONFIG_ALARM_TYPES 16
#define SYSTEM_CONFIG_ALARM_AUDIOS 16
#define SYSTEM_CONFIG_FACE_DATABASES 8
#define SYSTEM_CONFIG_ALGORITHMS 32

/** When detections are pushed: attributes of the element that a record names. */
typedef struct SYSTEM_CONFIG_PUSH_TIME {
  int32_t OfflinePush KOV_DEFAULT(-1);
  int32_t ScheduleMode KOV_DEFAULT(-1);
  KOV_TIME AlarmStartTime; /**< "08:00:00" */
  KOV_TIME AlarmEndTime;
} SYSTEM_CONFIG_PUSH_TIME;

/** 1402 and 1403: SmartConfig with a rule element each. */
typedef struct SYSTEM_CONFIG_GET_1402_PARAM {
  SYSTEM_CONFIG_DETECTION_RULE RegionDetection;
  SYSTEM_CONFIG_DETECTION_RULE CrossBoundaryDetection;
} SYSTEM_CONFIG_GET_1402_PARAM;

/** 1404 and 1405: VehicleAnalysis, a rule that goes on with the attributes below. */
typedef struct SYSTEM_CONFIG_GET_1404_PARAM {
  SYSTEM_CONFIG_DETECTION_RULE rule;
  int32_t VirtualLoopEnable KOV_DEFAULT(-1);
  int32_t DefVirtualLoopEnable KOV_DEFAULT(-1);
  int32_t AnalysisPeriodNum KOV_DEFAULT(-1);
  SYSTEM_CONFIG_PERIOD AnalysisPeriod[SYSTEM_CONFIG_PERIODS];
  int32_t StrongLightSupprSens KOV_DEFAULT(-1);
  int32_t DefStrongLightSupprSens KOV_DEFAULT(-1);
  int32_t strongLightDebug KOV_DEFAULT(-1);
} SYSTEM_CONFIG_GET_1404_PARAM;

/** 1406: LicensePlatePicture, in the answer. */
typedef struct SYSTEM_CONFIG_SET_1406_PARAM {
  int32_t MaxBytesPerPacket KOV_DEFAULT(-1);
  uint32_t Timestamp KOV_DEFAULT(UINT32_MAX);
  char LicensePlate[64] KOV_EMPTY;
} SYSTEM_CONFIG_SET_1406_PARAM;

/** 1407 and 1408: HumanFaceRecognition, a rule that goes on with the attributes below. */
typedef struct SYSTEM_CONFIG_GET_1407_PARAM {
  SYSTEM_CONFIG_DETECTION_RULE rule;
  int32_t ShowFaceBox KOV_DEFAULT(-1);
  int32_t AnalysisPeriodNum KOV_DEFAULT(-1); /**< 1408 writes this name, but reads "AnalysisriodNum" only. */
  SYSTEM_CONFIG_PERIOD AnalysisPeriod[SYSTEM_CONFIG_PERIODS];
} SYSTEM_CONFIG_GET_1407_PARAM;

/** 1409: HumanFacePicture, in the answer. */
typedef struct SYSTEM_CONFIG_SET_1409_PARAM {
  int32_t MaxBytesPerPacket KOV_DEFAULT(-1);
  uint32_t Timestamp KOV_DEFAULT(UINT32_MAX);
  uint32_t SerialNum KOV_DEFAULT(UINT32_MAX);
  char HumanFace[64] KOV_EMPTY;
} SYSTEM_CONFIG_SET_1409_PARAM;

/** 1410 and 1411: HumanFaceAdvancedSet. Both carry all three. */
typedef struct SYSTEM_CONFIG_GET_1410_PARAM {
  int32_t SimilarityThreshold KOV_DEFAULT(-1);
  int32_t DefaultThreshold KOV_DEFAULT(-1);
  int32_t SimilarityRange[2] KOV_DEFAULTS(-1, -1); /**< "low,high" */
} SYSTEM_CONFIG_GET_1410_PARAM;

/** 1412 and 1413: SmartConfig with two rule elements and the push times. */
typedef struct SYSTEM_CONFIG_GET_1412_PARAM {
  SYSTEM_CONFIG_DETECTION_RULE VehicleRegion;
  SYSTEM_CONFIG_DETECTION_RULE VehicleCrossBoundary;
  SYSTEM_CONFIG_PUSH_TIME VehicleShapeAlarmPushTime;
} SYSTEM_CONFIG_GET_1412_PARAM;

/** 1415 and 1414: SmartConfig with a rule element and the push times. */
typedef struct SYSTEM_CONFIG_SET_1414_PARAM {
  SYSTEM_CONFIG_DETECTION_RULE VehicleDetection;
  SYSTEM_CONFIG_PUSH_TIME VehicleShapeAlarmPushTime;
} SYSTEM_CONFIG_SET_1414_PARAM;

/** 1417 and 1416: SmartConfig with a rule element and the push times. */
typedef struct SYSTEM_CONFIG_SET_1416_PARAM {
  SYSTEM_CONFIG_DETECTION_RULE HumanFormDetection;
  SYSTEM_CONFIG_PUSH_TIME HumanDetectAlarmPushTime;
} SYSTEM_CONFIG_SET_1416_PARAM;

/** A scene that faces raise: element SceneAlarmTag. */
typedef struct SYSTEM_CONFIG_SCENE_TAG {
  int32_t SceneIndex KOV_DEFAULT(-1);
  int32_t SceneEnable KOV_DEFAULT(-1);
  char SceneAlias[64] KOV_EMPTY;
} SYSTEM_CONFIG_SCENE_TAG;

/** 1418 and 1419: HumanFaceParam with HumanFaceRecognition, as 1407 but for the one spelling, and SceneAlarmTag. */
typedef struct SYSTEM_CONFIG_GET_1418_PARAM {
  SYSTEM_CONFIG_GET_1407_PARAM HumanFaceRecognition;
  int32_t SceneAlarmTagCount KOV_DEFAULT(-1); /**< Not carried. */
  SYSTEM_CONFIG_SCENE_TAG SceneAlarmTag[SYSTEM_CONFIG_SCENE_TAGS];
} SYSTEM_CONFIG_GET_1418_PARAM;

/** A sound that a scene may play: element AlarmAudio. */
typedef struct SYSTEM_CONFIG_ALARM_AUDIO {
  int32_t AlarmAudioIndex KOV_DEFAULT(-1);
  int32_t AlarmAudioEnable KOV_DEFAULT(-1);
  char AlarmAudioName[64] KOV_EMPTY;
} SYSTEM_CONFIG_ALARM_AUDIO;

/** 1420: SceneAudio with AlarmAudio elements. */
typedef struct SYSTEM_CONFIG_GET_1420_PARAM {
  int32_t AlarmAudioCount KOV_DEFAULT(-1); /**< Not carried. */
  SYSTEM_CONFIG_ALARM_AUDIO AlarmAudio[SYSTEM_CONFIG_ALARM_AUDIOS];
} SYSTEM_CONFIG_GET_1420_PARAM;

/** 1421: AlarmAudioCfg. */
typedef struct SYSTEM_CONFIG_SET_1421_PARAM {
  int32_t AlarmAudioIndex KOV_DEFAULT(-1);
  int32_t AlarmAudioOperation KOV_DEFAULT(-1);
} SYSTEM_CONFIG_SET_1421_PARAM;

/** What may raise a scene: element AlarmType. */
typedef struct SYSTEM_CONFIG_ALARM_TYPE {
  int32_t AlarmTypeIndex KOV_DEFAULT(-1);
  int32_t AlarmTypeEnable KOV_DEFAULT(-1);
  char AlarmTypeName[64] KOV_EMPTY;
} SYSTEM_CONFIG_ALARM_TYPE;

/**
 * A scene: element SceneAlarmInfo. The scene's schedule, and its light, audio and IO alarms with a schedule each; the
 * four period lists stand at the end, in this order.
 */
typedef struct SYSTEM_CONFIG_SCENE {
  int32_t SceneIndex KOV_DEFAULT(-1);
  int32_t SceneEnable KOV_DEFAULT(-1);
  char SceneAlias[64] KOV_EMPTY;
  int32_t ScheduleMode KOV_DEFAULT(-1);
  int32_t AlarmPeriodNum KOV_DEFAULT(-1);
  SYSTEM_CONFIG_PERIOD AlarmPeriod[SYSTEM_CONFIG_PERIODS];

  int32_t LightAlarmEnable KOV_DEFAULT(-1);
  int32_t Lightduration KOV_DEFAULT(-1);
  int32_t LightScheduleMode KOV_DEFAULT(-1);
  int32_t LightAlarmPeriodNum KOV_DEFAULT(-1);
  SYSTEM_CONFIG_PERIOD LightAlarmPeriod[SYSTEM_CONFIG_PERIODS];

  int32_t AudioAlarmEnable KOV_DEFAULT(-1);
  int32_t AlarmAudioIndex KOV_DEFAULT(-1);
  int32_t AudioAlarmTimes KOV_DEFAULT(-1);
  int32_t AudioScheduleMode KOV_DEFAULT(-1);
  int32_t AudioAlarmPeriodNum KOV_DEFAULT(-1);
  SYSTEM_CONFIG_PERIOD AudioAlarmPeriod[SYSTEM_CONFIG_PERIODS];

  int32_t IOAlarmEnable KOV_DEFAULT(-1);
  int32_t IOduration KOV_DEFAULT(-1);
  int32_t IOScheduleMode KOV_DEFAULT(-1);
  int32_t IOAlarmPeriodNum KOV_DEFAULT(-1);
  SYSTEM_CONFIG_PERIOD IOAlarmPeriod[SYSTEM_CONFIG_PERIODS];
} SYSTEM_CONFIG_SCENE;

/** 1422 and 1423: SceneAlarm with SceneAlarmParam, AlarmType elements and SceneAlarmInfo elements. */
typedef struct SYSTEM_CONFIG_SET_1423_PARAM {
  int32_t SceneTotal KOV_DEFAULT(-1); /**< Element SceneAlarmParam, as the two that follow. */
  int32_t SceneTotalMax KOV_DEFAULT(-1);
  int32_t NextSceneIndex KOV_DEFAULT(-1);
  int32_t AlarmTypeCount KOV_DEFAULT(-1);      /**< Not carried. */
  int32_t SceneAlarmInfoCount KOV_DEFAULT(-1); /**< Not carried. */
  SYSTEM_CONFIG_ALARM_TYPE AlarmType[SYSTEM_CONFIG_ALARM_TYPES];
  SYSTEM_CONFIG_SCENE SceneAlarmInfo[SYSTEM_CONFIG_SCENES];
} SYSTEM_CONFIG_SET_1423_PARAM;

/** A list of faces and how full it is: element faceDatabase. */
typedef struct SYSTEM_CONFIG_FACE_DATABASE {
  int32_t ListType KOV_DEFAULT(-1);
  int32_t Amount KOV_DEFAULT(-1);
  int32_t Capacity KOV_DEFAULT(-1);
  int32_t addAllow KOV_DEFAULT(-1);
} SYSTEM_CONFIG_FACE_DATABASE;

/** 1424: faceDatabase elements; compose writes nothing while the count is unset. */
typedef struct SYSTEM_CONFIG_GET_1424_PARAM {
  int32_t faceDatabaseCount KOV_DEFAULT(-1); /**< Not carried. */
  SYSTEM_CONFIG_FACE_DATABASE faceDatabase[SYSTEM_CONFIG_FACE_DATABASES];
} SYSTEM_CONFIG_GET_1424_PARAM;

/** 1425: what became of an imported face. FACE_FEATURE_RESULT must be there, the other two elements may be missing. */
typedef struct SYSTEM_CONFIG_GET_1425_PARAM {
  char uniqueIndex[128] KOV_EMPTY; /**< Element FACE_FEATURE_RESULT, down to ErrorMsg. */
  uint32_t absTime KOV_DEFAULT(UINT32_MAX);
  uint8_t Age KOV_DEFAULT(255);
  uint8_t Gender KOV_DEFAULT(255);
  uint8_t IsMask KOV_DEFAULT(255);
  uint8_t IsGlasses KOV_DEFAULT(255);
  uint8_t IsHat KOV_DEFAULT(255);
  uint32_t DataLen KOV_DEFAULT(UINT32_MAX); /**< Told by the peer: it bounds nothing that was received here. */
  uint8_t AlgVer KOV_DEFAULT(255);
  float faceQualityScore KOV_DEFAULT(-1.0F);
  float HsvAreaScore KOV_DEFAULT(-1.0F);
  float BlurSMD KOV_DEFAULT(-1.0F);
  int32_t ErrorCode KOV_DEFAULT(-1);
  char ErrorMsg[128] KOV_EMPTY;
  char Alias[128] KOV_EMPTY; /**< Element LOAD_FACE_YUV_PARAM, down to SerialNum. */
  int32_t BatchChanel KOV_DEFAULT(-1);
  int32_t ListType KOV_DEFAULT(-1);
  uint32_t SerialNum KOV_DEFAULT(UINT32_MAX);
  char Trans_Type[32] KOV_EMPTY; /**< Element TRANSPARENT_HEADER of the body, as all that follow. */
  char Channel_ID[32] KOV_EMPTY;
  char Source_Type[32] KOV_EMPTY;
  char Session_ID[32] KOV_EMPTY;
  char Trans_Result[32] KOV_EMPTY;
} SYSTEM_CONFIG_GET_1425_PARAM;

/** 1426 and 1427: SmartConfig with a rule element each. */
typedef struct SYSTEM_CONFIG_GET_1426_PARAM {
  SYSTEM_CONFIG_DETECTION_RULE AnimalRegion;
  SYSTEM_CONFIG_DETECTION_RULE AnimalCrossBoundary;
} SYSTEM_CONFIG_GET_1426_PARAM;

/** An algorithm that the device knows: element Algorithms. */
typedef struct SYSTEM_CONFIG_ALGORITHM {
  char algorithmId[64] KOV_EMPTY;
  int32_t install KOV_DEFAULT(-1);
  int32_t useStatus KOV_DEFAULT(-1);
  char version[32] KOV_EMPTY;
  int32_t isBuildIn KOV_DEFAULT(-1);
} SYSTEM_CONFIG_ALGORITHM;

/** 1428: facts of the device in RESPONSE_PARAM, and the Algorithms elements behind it. */
typedef struct SYSTEM_CONFIG_GET_1428_PARAM {
  char DevSn[64] KOV_EMPTY;
  char FirmwareVersion[64] KOV_EMPTY;
  int32_t AvailableSize KOV_DEFAULT(-1);
  int32_t AlgorithmsCount KOV_DEFAULT(-1); /**< Not carried. */
  SYSTEM_CONFIG_ALGORITHM Algorithms[SYSTEM_CONFIG_ALGORITHMS];
} SYSTEM_CONFIG_GET_1428_PARAM;

/** Which settings a record of 1429 holds. */
enum { SYSTEM_CONFIG_HIGH_ALTITUDE_PARABOLIC = 1, SYSTEM_CONFIG_LICENSE_PLATE_RECOGNITION = 2 };

/**
 * 1429 and 1430: config with algorithmId, and in it highAltitudeParabolic or licensePlateRecognition. The request of
 * 1429 is algorithmId in REQUEST_PARAM.
 */
typedef struct SYSTEM_CONFIG_GET_1429_PARAM {
  char algorithmId[64] KOV_EMPTY;
  int32_t settings KOV_DEFAULT(-1); /**< Not carried: which of the two is there; any other value is neither. */
  SYSTEM_CONFIG_DETECTION_RULE highAltitudeParabolic;
  int32_t ShowTrackLine KOV_DEFAULT(-1);                     /**< Attribute of highAltitudeParabolic, its last. */
  SYSTEM_CONFIG_GET_1404_PARAM licensePlateRecognition;      /**< As VehicleAnalysis. */
  int32_t StrongLightSupprSensRange[2] KOV_DEFAULTS(-1, -1); /**< Attribute of licensePlateRecognition, its last. */
} SYSTEM_CONFIG_GET_1429_PARAM;

/** @name Default fillers
 * Each sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record.
 * @{ */
KOV_API int SYSTEM_CONFIG_GET_1402_PARAM_init(SYSTEM_CONFIG_GET_1402_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_1403_PARAM_init(SYSTEM_CONFIG_GET_1402_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_1404_PARAM_init(SYSTEM_CONFIG_GET_1404_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_1405_PARAM_init(SYSTEM_CONFIG_GET_1404_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_1406_PARAM_init(SYSTEM_CONFIG_SET_1406_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_1407_PARAM_init(SYSTEM_CONFIG_GET_1407_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_1408_PARAM_init(SYSTEM_CONFIG_GET_1407_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_1409_PARAM_init(SYSTEM_CONFIG_SET_1409_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_1410_PARAM_init(SYSTEM_CONFIG_GET_1410_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_1411_PARAM_init(SYSTEM_CONFIG_GET_1410_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_1412_PARAM_init(SYSTEM_CONFIG_GET_1412_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_1413_PARAM_init(SYSTEM_CONFIG_GET_1412_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_1414_PARAM_init(SYSTEM_CONFIG_SET_1414_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_1415_PARAM_init(SYSTEM_CONFIG_SET_1414_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_1416_PARAM_init(SYSTEM_CONFIG_SET_1416_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_1417_PARAM_init(SYSTEM_CONFIG_SET_1416_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_1418_PARAM_init(SYSTEM_CONFIG_GET_1418_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_1419_PARAM_init(SYSTEM_CONFIG_GET_1418_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_1420_PARAM_init(SYSTEM_CONFIG_GET_1420_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_1421_PARAM_init(SYSTEM_CONFIG_SET_1421_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_1423_PARAM_init(SYSTEM_CONFIG_SET_1423_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_1424_PARAM_init(SYSTEM_CONFIG_GET_1424_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_1425_PARAM_init(SYSTEM_CONFIG_GET_1425_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_1426_PARAM_init(SYSTEM_CONFIG_GET_1426_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_1427_PARAM_init(SYSTEM_CONFIG_GET_1426_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_1428_PARAM_init(SYSTEM_CONFIG_GET_1428_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_1429_PARAM_init(SYSTEM_CONFIG_GET_1429_PARAM *record);
/** @} */

/** @name Analysis of one message
 * Each reads the first element named at the record, which must be there, into a new record; elements inside it may be
 * missing. getAlgorithmicConfig reads config, or else REQUEST_PARAM. Returns 0, or, with a line that begins with the
 * function's name: KOV_ERROR_EMPTY_ARGUMENT " put a empty Param\n"; KOV_ERROR_BAD_DOCUMENT " Parse MsgBuf error\n",
 * " get RootElement error\n" or " get MESSAGE_BODY error\n"; KOV_ERROR_NO_ELEMENT " get <element> error\n".
 * KOV_ERROR_NO_MEMORY goes with "Malloc Memory failed!\n".
 * @{ */
KOV_API int SystemConfig_getIntelligentEvent_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setIntelligentEvent_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getLicensePlateEvent_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setLicensePlateEvent_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getLicensePlateImage_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getHumanFaceEvent_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setHumanFaceEvent_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getHumanFaceImage_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getHumanFaceAdvanced_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setHumanFaceAdvanced_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getVehicleFormIntelligent_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setVehicleFormIntelligent_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getVehicleDetection_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setVehicleDetection_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getHumanDetection_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setHumanDetection_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getHumanFaceV2_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setHumanFaceV2_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getHumanAlarmsceneAudio_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setHumanAlarmsceneAudio_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getHumanAlarmscene_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setHumanAlarmscene_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getHumanFaceCapacity_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_FaceYuvImportResult_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getAnimaldetecIntelligent_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setAnimaldetecIntelligent_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getAlgorithmicList_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getAlgorithmicConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setAlgorithmicConfig_MessageAnalysis(const char *xml, void **result);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
