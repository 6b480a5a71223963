/**
 * @file system_control_device.h
 * @brief SYSTEM_CONTROL_MESSAGE, codes below 3000: operations and queries of a device, most of them cameras.
 *
 * Part of system_control.h, which tells what holds for all records.
 */
#ifndef KOV_PROTOCOL_SYSTEM_CONTROL_DEVICE_H
#define KOV_PROTOCOL_SYSTEM_CONTROL_DEVICE_H

#include "kov_protocol/system_control_recorder.h"

#ifdef __cplusplus
extern "C" {
#endif

/** 1004 SetRefleshCHBKG. Request: REQUEST_PARAM. */
typedef struct SYSTEM_CONTROL_1004_PARAM {
  int32_t FileType KOV_DEFAULT(-1);
} SYSTEM_CONTROL_1004_PARAM;

/** 1005 SetIpcTime. Request: REQUEST_PARAM. */
typedef struct SYSTEM_CONTROL_1005_PARAM {
  char Time[32] KOV_EMPTY;
  char TimeZone[32] KOV_EMPTY;
} SYSTEM_CONTROL_1005_PARAM;

/** 1006 SetNvrChannelAdd. Request: REQUEST_PARAM. */
typedef struct SYSTEM_CONTROL_1006_PARAM {
  int32_t CrtlEnable KOV_DEFAULT(-1);
  int32_t ChnAddCfg KOV_DEFAULT(-1);
} SYSTEM_CONTROL_1006_PARAM;

/**
 * 1012 GetIpcSysVersion. Response: RESPONSE_PARAM with the versions, or a recorder's SystemInfo instead.
 * Analysis accepts REQUEST_PARAM with the versions too.
 */
typedef struct SYSTEM_CONTROL_1012_PARAM {
  char KernelVersion[64] KOV_EMPTY;
  char FileSystemVersion[256] KOV_EMPTY;
  char DeviceIdentify[64] KOV_EMPTY;
  char FileSystemIdentify[64] KOV_EMPTY;  /**< Left out while empty. */
  char HardVersion[32] KOV_EMPTY;         /**< Left out while empty. */
  int32_t ChannelId KOV_DEFAULT(-1);      /**< Left out while unset. */
  int32_t EmptyChannelId KOV_DEFAULT(-1); /**< Not carried: when set, an unset ChannelId is written as "". */
  int32_t HasSystemInfo KOV_DEFAULT(-1);  /**< Not carried: when set, SystemInfo is the whole body. Analysis sets it. */
  SYSTEM_CONTROL_3000_PARAM SystemInfo;
} SYSTEM_CONTROL_1012_PARAM;

/** One storage device of a 1014 answer: element DeviceInfo. */
typedef struct SYSTEM_CONTROL_1014_DEVICE {
  char DevName[64] KOV_EMPTY;
  int32_t Mounted KOV_DEFAULT(-1);
  int32_t Total KOV_DEFAULT(-1);
  int32_t Used KOV_DEFAULT(-1);
  int32_t Free KOV_DEFAULT(-1);
  int32_t Percent KOV_DEFAULT(-1);
} SYSTEM_CONTROL_1014_DEVICE;

/**
 * 1014 GetIpcStorageCfg. Response: DeviceInfo elements in RESPONSE_PARAM.
 *
 * What leaves is another body: the dispatcher writes RESPONSE_PARAM with SerialNumber over the storage body, and the
 * value is the DevName of the first device. Analysis reads every DeviceInfo into the first entry, so that the last one
 * stays; the other entries keep their defaults.
 */
typedef struct SYSTEM_CONTROL_1014_PARAM {
  SYSTEM_CONTROL_1014_DEVICE Devices[3];
} SYSTEM_CONTROL_1014_PARAM;

/** 1017 StorageDeviceFormat. Request: REQUEST_PARAM. */
typedef struct SYSTEM_CONTROL_1017_PARAM {
  char DevName[64] KOV_EMPTY;
} SYSTEM_CONTROL_1017_PARAM;

/** 1019 GetIpcSN. Response: RESPONSE_PARAM. */
typedef struct SYSTEM_CONTROL_1019_PARAM {
  char SerialNumber[32] KOV_EMPTY;
} SYSTEM_CONTROL_1019_PARAM;

/**
 * 1020 GetSysAbality, which the configuration types serve as well. Response: RESPONSE_PARAM with SystemConfigString,
 * the rights in REMOTE_AUTHORITY, and the two identifiers in elements of their own.
 */
typedef struct SYSTEM_CONTROL_1020_PARAM {
  int32_t NoRemoteAuthority KOV_DEFAULT(-1); /**< Not carried: REMOTE_AUTHORITY is written when 0. Analysis sets 0. */
  int32_t vaSeviceId KOV_DEFAULT(-1);        /**< Attribute of va_service, left out while unset. */
  char SystemConfigString[4096] KOV_EMPTY;
  char RemotePreview[72] KOV_EMPTY;
  char PTZControl[72] KOV_EMPTY;
  char RemotePlayback[72] KOV_EMPTY;
  int32_t SystemSettings KOV_DEFAULT(-1);
  int32_t RemoteUpgrade KOV_DEFAULT(-1);
  int32_t TalkingEnble KOV_DEFAULT(-1);
  int32_t ShutDownSystem KOV_DEFAULT(-1);
  char algorithmId[128] KOV_EMPTY; /**< Attribute of AvailableAlId, left out while empty. */
} SYSTEM_CONTROL_1020_PARAM;

/**
 * 1022 UploadFile and 1009, 1023, 1024 DownloadFile: a file is announced, and the port to fetch or send it is answered.
 *
 * UploadFile: REQUEST_PARAM carries FileType, FilePath, StartPos, FileLength and AlarmAudioName, RESPONSE_PARAM Port
 * and Type. DownloadFile: REQUEST_PARAM carries FileName and StartPos, and is not written without a FileName;
 * RESPONSE_PARAM carries Port, Type and FileLength, and is not written without the first two.
 */
typedef struct SYSTEM_CONTROL_1022_PARAM {
  int32_t FileType KOV_DEFAULT(-1);            /**< In a response attribute Type. */
  int32_t StartPos KOV_DEFAULT(-1);            /**< DownloadFile: left out while unset. */
  uint32_t FileLength KOV_DEFAULT(UINT32_MAX); /**< DownloadFile: response, left out while unset. */
  int32_t Port KOV_DEFAULT(-1);
  char FilePath[256] KOV_EMPTY;       /**< DownloadFile: attribute FileName. */
  char AlarmAudioName[256] KOV_EMPTY; /**< UploadFile, left out while empty. */
} SYSTEM_CONTROL_1022_PARAM;

/** Element WIRE_NETWORK of a 1026 answer, but for its MTU. */
typedef struct SYSTEM_CONTROL_1026_WIRE {
  char MacAddress[256] KOV_EMPTY;
  char IPType[256] KOV_EMPTY;
  char IPAddress[256] KOV_EMPTY;
  char Gateway[256] KOV_EMPTY;
  char Netmask[256] KOV_EMPTY;
  char Dns1[256] KOV_EMPTY;
  char Dns2[256] KOV_EMPTY;
} SYSTEM_CONTROL_1026_WIRE;

/** Element WIRELESS_NETWORK of a 1026 answer, but for its numbers. */
typedef struct SYSTEM_CONTROL_1026_WIRELESS {
  char IPAddress[256] KOV_EMPTY; /**< The element is left out while this is empty. */
  char Gateway[256] KOV_EMPTY;
  char Netmask[256] KOV_EMPTY;
  char MacAddress[256] KOV_EMPTY;
  char ESSID[256] KOV_EMPTY;
  char OperationMode[256] KOV_EMPTY;
  char Bitrate[256] KOV_EMPTY;
  char Frequency[256] KOV_EMPTY;
  char AccessPoint[256] KOV_EMPTY;
  char EncrptType[256] KOV_EMPTY;
} SYSTEM_CONTROL_1026_WIRELESS;

/** 1026 GetNetStatus. Response: elements in RESPONSE_PARAM. Analysis takes those that are there. */
typedef struct SYSTEM_CONTROL_1026_PARAM {
  int32_t reserved1 KOV_DEFAULT(-1);
  int32_t reserved2 KOV_DEFAULT(-1);
  SYSTEM_CONTROL_1026_WIRE Wire;
  int32_t MTU KOV_DEFAULT(-1);          /**< WIRE_NETWORK. */
  int32_t SignalLevel KOV_DEFAULT(-1);  /**< WIRELESS_NETWORK. */
  int32_t Noise KOV_DEFAULT(-1);        /**< WIRELESS_NETWORK. */
  int32_t LoginStatus KOV_DEFAULT(-1);  /**< CLOUD. */
  uint8_t LinkQuality KOV_DEFAULT(255); /**< WIRELESS_NETWORK. */
  SYSTEM_CONTROL_1026_WIRELESS Wireless;
  char ID[128] KOV_EMPTY;  /**< CLOUD. */
  char Url[256] KOV_EMPTY; /**< QRCODE_URL. */
} SYSTEM_CONTROL_1026_PARAM;

/** 1030 GetDeviceType. Response: RESPONSE_PARAM. */
typedef struct SYSTEM_CONTROL_1030_PARAM {
  int32_t IPC_Type KOV_DEFAULT(-1);
  int32_t DevMType KOV_DEFAULT(-1);
  int32_t DevType KOV_DEFAULT(-1);
  int32_t SdkType KOV_DEFAULT(-1);
  uint64_t Feature KOV_DEFAULT(UINT32_MAX); /**< Only the low word is all ones by default. */
} SYSTEM_CONTROL_1030_PARAM;

/** 1031 GetMediaAbality. Response: elements in RESPONSE_PARAM, each with its lists. */
typedef struct SYSTEM_CONTROL_1031_PARAM {
  struct {
    char CapList[4096] KOV_EMPTY;
    char CapListV2[4096] KOV_EMPTY; /**< Left out while empty. */
  } VideoCap;
  struct {
    char CapList[256] KOV_EMPTY;
  } AudioCap;
  struct {
    char CapList[256] KOV_EMPTY;
  } VideoBestParameter;
} SYSTEM_CONTROL_1031_PARAM;

/**
 * 1032 GetIpcKeyFrame: asks a stream for a key frame. Request: REQUEST_PARAM in one of two spellings.
 *
 * Any other bSendIpc composes nothing, returns 0 and tells "SystemControl_GetIpcKeyFrame_MessageCompose unknow
 * bSendIpc:%d\n". Analysis accepts both spellings and sets bSendIpc to the one it found; Camera and Stream win.
 */
typedef struct SYSTEM_CONTROL_1032_PARAM {
  int32_t bSendIpc KOV_DEFAULT(-1);    /**< Not carried: 0 writes ChannelId and StreamIndex, 1 Camera and Stream. */
  int32_t ChannelId KOV_DEFAULT(-1);   /**< Attribute ChannelId or Camera. */
  int32_t StreamIndex KOV_DEFAULT(-1); /**< Attribute StreamIndex or Stream. */
} SYSTEM_CONTROL_1032_PARAM;

/** 1033 SetIpcUserdevdata, request, and 1034 GetIpcUserdevdata, response: REQUEST_PARAM or RESPONSE_PARAM. */
typedef struct SYSTEM_CONTROL_1033_PARAM {
  char UserDevData[256] KOV_EMPTY;
} SYSTEM_CONTROL_1033_PARAM;

/** 1046 SetIpcIrcut. Request: REQUEST_PARAM. */
typedef struct SYSTEM_CONTROL_1046_PARAM {
  char Mode[256] KOV_EMPTY;
} SYSTEM_CONTROL_1046_PARAM;

/**
 * 1090 SendUpdateCmd: lets a device update itself. Request: REQUEST_PARAM with url, md5 and ChannelId; response:
 * RESPONSE_PARAM with ChannelId.
 *
 * The request closes its element in front of ChannelId, so that the channel does not come back from its own text.
 */
typedef struct SYSTEM_CONTROL_1090_PARAM {
  int32_t ChannelId KOV_DEFAULT(-1);      /**< Left out while unset. */
  int32_t EmptyChannelId KOV_DEFAULT(-1); /**< Not carried: when set, an unset ChannelId is written as "". */
  char url[512] KOV_EMPTY;
  char md5[64] KOV_EMPTY;
} SYSTEM_CONTROL_1090_PARAM;

/** 1092 GetUpdateStatus and 1093 CancelUpdate: REQUEST_PARAM or RESPONSE_PARAM with ChannelId. */
typedef struct SYSTEM_CONTROL_1092_PARAM {
  int32_t ChannelId KOV_DEFAULT(-1);      /**< 1092: left out while unset. */
  int32_t State KOV_DEFAULT(-1);          /**< Response of 1092. */
  int32_t Progress KOV_DEFAULT(-1);       /**< Response of 1092. */
  int32_t EmptyChannelId KOV_DEFAULT(-1); /**< Not carried: when set, 1092 writes an unset ChannelId as "". */
} SYSTEM_CONTROL_1092_PARAM;

/** @name Default fillers
 * Each sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record.
 * @{ */
KOV_API int SYSTEM_CONTROL_1004_PARAM_init(SYSTEM_CONTROL_1004_PARAM *record);
KOV_API int SYSTEM_CONTROL_1005_PARAM_init(SYSTEM_CONTROL_1005_PARAM *record);
KOV_API int SYSTEM_CONTROL_1006_PARAM_init(SYSTEM_CONTROL_1006_PARAM *record);
KOV_API int SYSTEM_CONTROL_1009_PARAM_init(SYSTEM_CONTROL_1022_PARAM *record);
KOV_API int SYSTEM_CONTROL_1012_PARAM_init(SYSTEM_CONTROL_1012_PARAM *record);
KOV_API int SYSTEM_CONTROL_1014_PARAM_init(SYSTEM_CONTROL_1014_PARAM *record);
KOV_API int SYSTEM_CONTROL_1017_PARAM_init(SYSTEM_CONTROL_1017_PARAM *record);
KOV_API int SYSTEM_CONTROL_1019_PARAM_init(SYSTEM_CONTROL_1019_PARAM *record);
KOV_API int SYSTEM_CONTROL_1020_PARAM_init(SYSTEM_CONTROL_1020_PARAM *record);
KOV_API int SYSTEM_CONTROL_1022_PARAM_init(SYSTEM_CONTROL_1022_PARAM *record);
KOV_API int SYSTEM_CONTROL_1023_PARAM_init(SYSTEM_CONTROL_1022_PARAM *record);
KOV_API int SYSTEM_CONTROL_1024_PARAM_init(SYSTEM_CONTROL_1022_PARAM *record);
KOV_API int SYSTEM_CONTROL_1026_PARAM_init(SYSTEM_CONTROL_1026_PARAM *record);
KOV_API int SYSTEM_CONTROL_1030_PARAM_init(SYSTEM_CONTROL_1030_PARAM *record);
KOV_API int SYSTEM_CONTROL_1031_PARAM_init(SYSTEM_CONTROL_1031_PARAM *record);
KOV_API int SYSTEM_CONTROL_1032_PARAM_init(SYSTEM_CONTROL_1032_PARAM *record);
KOV_API int SYSTEM_CONTROL_1033_PARAM_init(SYSTEM_CONTROL_1033_PARAM *record);
KOV_API int SYSTEM_CONTROL_1034_PARAM_init(SYSTEM_CONTROL_1033_PARAM *record);
KOV_API int SYSTEM_CONTROL_1046_PARAM_init(SYSTEM_CONTROL_1046_PARAM *record);
KOV_API int SYSTEM_CONTROL_1090_PARAM_init(SYSTEM_CONTROL_1090_PARAM *record);
KOV_API int SYSTEM_CONTROL_1092_PARAM_init(SYSTEM_CONTROL_1092_PARAM *record);
KOV_API int SYSTEM_CONTROL_1093_PARAM_init(SYSTEM_CONTROL_1092_PARAM *record);
/** @} */

/**
 * Composes the body text of 1020 alone: for a response its elements, otherwise nothing.
 * @param body receives NUL-terminated text, cut to `bodySize`; untouched when there is no text
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT for a null pointer or an empty buffer, told at information level by
 *   "SystemControl_GetSysAbality_MessageCompose put a empty Param\n"
 */
KOV_API int SystemControl_GetSysAbality_MessageCompose(const SYSTEM_CONTROL_1020_PARAM *param, int direction,
                                                       char *body, int bodySize);

/** @name Analysis of one message
 * Each reads the element that its record names into a new record; where there are two, RESPONSE_PARAM goes first.
 * Returns 0, or, with a line that begins with the function's name: KOV_ERROR_EMPTY_ARGUMENT " put a empty Param\n";
 * KOV_ERROR_BAD_DOCUMENT " Parse MsgBuf error\n", " get RootElement error\n" or " get MESSAGE_BODY error\n";
 * KOV_ERROR_NO_ELEMENT " get RESPONSE_PARAM error\n", or for a message that is a request only " get REQUEST_PARAM
 * error\n". KOV_ERROR_NO_MEMORY goes with "Malloc Memory failed!\n".
 *
 * SetIpcTime tells " get STREAM_START_PARAM error\n". GetIpcSysVersion tells everything under the name
 * SystemControl_SetIpcTime_MessageAnalysis, GetMediaAbality under SystemControl_GetDeviceType_MessageAnalysis.
 * @{ */
KOV_API int SystemControl_SetRefleshCHBKG_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_SetIpcTime_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_SetNvrChannelAdd_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_DownloadFile_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_GetIpcSysVersion_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_GetIpcStorageCfg_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_StorageDeviceFormat_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_GetIpcSN_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_GetSysAbality_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_UploadFile_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_GetNetStatus_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_GetDeviceType_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_GetMediaAbality_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_GetIpcKeyFrame_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_SetIpcUserdevdata_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_GetIpcUserdevdata_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_SetIpcIrcut_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_SendUpdateCmd_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_GetUpdateStatus_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemControl_CancelUpdate_MessageAnalysis(const char *xml, void **result);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
