/**
 * @file system_control_recorder.h
 * @brief SYSTEM_CONTROL_MESSAGE, codes from 3000: a recorder's description, small settings, network check and disks.
 *
 * Part of system_control.h, which tells what holds for all records.
 */
#ifndef KOV_PROTOCOL_SYSTEM_CONTROL_RECORDER_H
#define KOV_PROTOCOL_SYSTEM_CONTROL_RECORDER_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

/** 3000 GetNvrSystemConfig. Response: SystemInfo. */
typedef struct SYSTEM_CONTROL_3000_PARAM {
  int32_t ChannelNum KOV_DEFAULT(-1);
  int32_t HdNum KOV_DEFAULT(-1);
  int32_t AlarmIn KOV_DEFAULT(-1);
  int32_t AlarmOut KOV_DEFAULT(-1);
  char ProductModel[32] KOV_EMPTY;
  char TelnetPort[32] KOV_EMPTY;
  char CloudID[32] KOV_EMPTY;
  char SerialNumber[32] KOV_EMPTY;
  char SoftwareVersion[32] KOV_EMPTY;
  char HardwareVersion[32] KOV_EMPTY;
  char ReleaseTime[32] KOV_EMPTY;
} SYSTEM_CONTROL_3000_PARAM;

/** 3020 GetNvrTimedRestartConfig, response, and 3025 SetNvrTimedRestartConfig, request: both REQUEST_PARAM. */
typedef struct SYSTEM_CONTROL_3020_PARAM {
  int32_t Enable KOV_DEFAULT(-1);
  int32_t Day KOV_DEFAULT(-1);
  char Time[32] KOV_EMPTY;
} SYSTEM_CONTROL_3020_PARAM;

/** 3023 SetNvrSalesarea. Request: SalesArea, whose attribute has the same name. */
typedef struct SYSTEM_CONTROL_3023_PARAM {
  char SalesArea[32] KOV_EMPTY;
} SYSTEM_CONTROL_3023_PARAM;

/** 3026 SetNvrSimpleCustomConfig. Request: REQUEST_PARAM, from which every unset field is left out. */
typedef struct SYSTEM_CONTROL_3026_PARAM {
  int32_t CtrlBuzzerEnable KOV_DEFAULT(-1);
  int32_t Language KOV_DEFAULT(-1);
  int32_t AsDefLanguage KOV_DEFAULT(-1);
  int32_t LanguageNum KOV_DEFAULT(-1);
  char InProjectPwd[32] KOV_EMPTY; /**< A password, which travels as plain text. */
} SYSTEM_CONTROL_3026_PARAM;

/**
 * 3027 SetNvrStartNetworkCheck. Request: REQUEST_PARAM with DiagnosticType, TotalPackets, DomainName and ChannelId;
 * response: RESPONSE_PARAM with the rest. Analysis reads both when both are there.
 */
typedef struct SYSTEM_CONTROL_3027_PARAM {
  int32_t DiagnosticType KOV_DEFAULT(-1);
  int32_t TotalPackets KOV_DEFAULT(-1);
  int32_t ChannelId KOV_DEFAULT(-1);
  int32_t Result KOV_DEFAULT(-1);
  int32_t SumPacket KOV_DEFAULT(-1);
  int32_t SkipPacket KOV_DEFAULT(-1);
  float SkipPacketRatio KOV_DEFAULT(-1.0F); /**< Six decimals on the wire, as the times. */
  float MinTime KOV_DEFAULT(-1.0F);
  float AveTime KOV_DEFAULT(-1.0F);
  float MaxTime KOV_DEFAULT(-1.0F);
  char DomainName[32] KOV_EMPTY;
  char IPAddress[32] KOV_EMPTY;
} SYSTEM_CONTROL_3027_PARAM;

/** 3300 GetNvrDisplayConfig, response, and 3320 SetNvrDisplayConfig, request: DisplayConfig. */
typedef struct SYSTEM_CONTROL_3300_PARAM {
  int32_t Brightness KOV_DEFAULT(-1);
  int32_t Contrast KOV_DEFAULT(-1);
  int32_t Saturation KOV_DEFAULT(-1);
  int32_t Chroma KOV_DEFAULT(-1);
} SYSTEM_CONTROL_3300_PARAM;

/** One disk of a 3500 answer: element DeviceInfo. */
typedef struct SYSTEM_CONTROL_3500_DISK {
  uint32_t DevIndex KOV_DEFAULT(UINT32_MAX);
  uint32_t VerifyMark KOV_DEFAULT(UINT32_MAX);
  char DevName[32] KOV_EMPTY;
  uint32_t Total KOV_DEFAULT(UINT32_MAX);
  uint32_t Used KOV_DEFAULT(UINT32_MAX);
  int32_t Status KOV_DEFAULT(-1);
  int32_t Mounted KOV_DEFAULT(-1);
} SYSTEM_CONTROL_3500_DISK;

/**
 * 3500 GetNvrDiskInfo. Response: DeviceInfo elements in RESPONSE_PARAM.
 *
 * DiskNum and RecordDays are composed as text behind the start tag of RESPONSE_PARAM and read as its attributes, so
 * they stay unset when the library reads its own text; the disks themselves come back.
 */
typedef struct SYSTEM_CONTROL_3500_PARAM {
  int32_t DiskNum KOV_DEFAULT(-1); /**< Written as it is; at most 11 disks follow. */
  int32_t RecordDays KOV_DEFAULT(-1);
  SYSTEM_CONTROL_3500_DISK Disks[11];
} SYSTEM_CONTROL_3500_PARAM;

/** 3501 SetNvrDiskFormat. Request: FORMAT_PARAM. */
typedef struct SYSTEM_CONTROL_3501_PARAM {
  uint32_t DevIndex KOV_DEFAULT(UINT32_MAX);
  uint32_t VerifyMark KOV_DEFAULT(UINT32_MAX);
} SYSTEM_CONTROL_3501_PARAM;

/** @name Default fillers
 * Each sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record.
 * @{ */
KOV_API int SYSTEM_CONTROL_3000_PARAM_init(SYSTEM_CONTROL_3000_PARAM *record);
KOV_API int SYSTEM_CONTROL_3020_PARAM_init(SYSTEM_CONTROL_3020_PARAM *record);
KOV_API int SYSTEM_CONTROL_3023_PARAM_init(SYSTEM_CONTROL_3023_PARAM *record);
KOV_API int SYSTEM_CONTROL_3025_PARAM_init(SYSTEM_CONTROL_3020_PARAM *record);
KOV_API int SYSTEM_CONTROL_3026_PARAM_init(SYSTEM_CONTROL_3026_PARAM *record);
KOV_API int SYSTEM_CONTROL_3027_PARAM_init(SYSTEM_CONTROL_3027_PARAM *record);
KOV_API int SYSTEM_CONTROL_3300_PARAM_init(SYSTEM_CONTROL_3300_PARAM *record);
KOV_API int SYSTEM_CONTROL_3320_PARAM_init(SYSTEM_CONTROL_3300_PARAM *record);
KOV_API int SYSTEM_CONTROL_3500_PARAM_init(SYSTEM_CONTROL_3500_PARAM *record);
KOV_API int SYSTEM_CONTROL_3501_PARAM_init(SYSTEM_CONTROL_3501_PARAM *record);
/** @} */

/** @name Analysis of one message
 * As in system_control_device.h. But a missing element is told by " get SalesArea error\n", whatever its name, except
 * by StartNetworkCheck and GetNvrDiskInfo, which tell " get RESPONSE_PARAM error\n".
 * @{ */
KOV_API int SystemControl_GetNvrSystemConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_GetNvrTimedRestartConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_SetNvrSalesarea_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_SetNvrTimedRestartConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_SetNvrSimpleCustomConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_SetNvrStartNetworkCheck_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_GetNvrDisplayConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_SetNvrDisplayConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_GetNvrDiskInfo_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_SetNvrDiskFormat_MessageAnalysis(const char *xml, void **result);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
