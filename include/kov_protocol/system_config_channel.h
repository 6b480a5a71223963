/**
 * @file system_config_channel.h
 * @brief The cameras on a recorder's channels (3801 to 3814), and the state of all channels (2532).
 *
 * In every record an integer of -1 and an empty text are unset, and the fields travel as attributes of their own name
 * in REQUEST_PARAM unless said otherwise. Most responses have no body, and so no record to analyse
 * (KOV_ERROR_NO_ELEMENT). Counts beyond a table write the whole table; elements beyond it are not read.
 */
#ifndef KOV_PROTOCOL_SYSTEM_CONFIG_CHANNEL_H
#define KOV_PROTOCOL_SYSTEM_CONFIG_CHANNEL_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Slots of a recorder's channel table, and most cameras of one batch. */
#define SYSTEM_CONFIG_CHANNELS 64
/** Most ways of adding cameras that a recorder knows. */
#define SYSTEM_CONFIG_SEARCH_MODES 15

/** 2532 getAllChannelInfo, response: child elements of MESSAGE_BODY that hold a text each. All may be missing. */
typedef struct SYSTEM_CONFIG_GET_2532_PARAM {
  char Ipcs_stat[256] KOV_EMPTY;
  char streamstat[256] KOV_EMPTY;
  char IpcAbility1[256] KOV_EMPTY;
  char IpcProtoCol[256] KOV_EMPTY;
  char ChnFeature[2048] KOV_EMPTY;
  char ChnDevbind[2048] KOV_EMPTY;
} SYSTEM_CONFIG_GET_2532_PARAM;

/** 3801 StartSearchipc: looks for cameras. Every response tells of one, attributes of IPCINFO. */
typedef struct SYSTEM_CONFIG_GET_3801_PARAM {
  int32_t SearchDuration KOV_DEFAULT(-1); /**< Request. */
  int32_t CtrlPort KOV_DEFAULT(-1);
  char Protocol[16] KOV_EMPTY;
  char IPAddress[32] KOV_EMPTY;
  char Username[32] KOV_EMPTY;
  char Password[32] KOV_EMPTY;
  char SN[32] KOV_EMPTY;
  char OsdName[512] KOV_EMPTY;
  char IpcVer[128] KOV_EMPTY;
  char MacAddress[32] KOV_EMPTY;
  char Netmask[32] KOV_EMPTY;
  char Gateway[32] KOV_EMPTY;
} SYSTEM_CONFIG_GET_3801_PARAM;

/** One channel, element ChannelInfo. 3804 does not carry ChannnelName. */
typedef struct SYSTEM_CONFIG_CHANNEL_INFO {
  int32_t ChannelId KOV_DEFAULT(-1); /**< -1: an empty slot. */
  int32_t CtrlPort KOV_DEFAULT(-1);
  int32_t DevMode KOV_DEFAULT(-1);
  int32_t Status KOV_DEFAULT(-1); /**< In 3804 the attribute Result of the response. */
  char Protocol[16] KOV_EMPTY;
  char IpAddr[32] KOV_EMPTY; /**< In 3804 the attribute IPAddress. */
  char Username[32] KOV_EMPTY;
  char Password[32] KOV_EMPTY;
  char ChannnelName[256] KOV_EMPTY;
  int32_t RtspMainResPort KOV_DEFAULT(-1);
  int32_t RtspSubResPort KOV_DEFAULT(-1);
  char RtspMainResPath[128] KOV_EMPTY;
  char RtspSubResPath[128] KOV_EMPTY;
  char RtspDomain[128] KOV_EMPTY;
} SYSTEM_CONFIG_CHANNEL_INFO;

/**
 * 3803 GetChannelList: the channel table, as a whole or in pages. The response begins at the first used slot, ends at
 * the next empty one, and holds ChannelCount channels at most, or DivideResponse in a page. Its counts stand outside
 * any element, so analysis leaves them at -1 unless a REQUEST_PARAM has them; count the slots in use. Nothing in the
 * body is required.
 */
typedef struct SYSTEM_CONFIG_GET_3803_PARAM {
  int32_t DivideResponse KOV_DEFAULT(-1); /**< Request: channels of a page. Without it the request is empty. */
  int32_t ChannelCount KOV_DEFAULT(-1);
  int32_t EndPackage KOV_DEFAULT(-1); /**< Written in pages only. */
  SYSTEM_CONFIG_CHANNEL_INFO Channels[SYSTEM_CONFIG_CHANNELS];
} SYSTEM_CONFIG_GET_3803_PARAM;

/** 3804 AddChannel: elements ChannelInfo both ways; a response has ChannelId, IPAddress and Result. */
typedef struct SYSTEM_CONFIG_SET_3804_PARAM {
  int32_t ChannelCount KOV_DEFAULT(-1); /**< Not carried: analysis counts the elements. */
  SYSTEM_CONFIG_CHANNEL_INFO Channels[SYSTEM_CONFIG_CHANNELS];
} SYSTEM_CONFIG_SET_3804_PARAM;

/** 3805 DelChannel. */
typedef struct SYSTEM_CONFIG_SET_3805_PARAM {
  int32_t ChannelId KOV_DEFAULT(-1);
} SYSTEM_CONFIG_SET_3805_PARAM;

/** 3806 SwitchChannel: two channels change places. */
typedef struct SYSTEM_CONFIG_SET_3806_PARAM {
  int32_t ChannelId1 KOV_DEFAULT(-1);
  int32_t ChannelId2 KOV_DEFAULT(-1);
} SYSTEM_CONFIG_SET_3806_PARAM;

/** 3807 PicsSelect: how many pictures the live view shows. */
typedef struct SYSTEM_CONFIG_SET_3807_PARAM {
  int32_t PicNum KOV_DEFAULT(-1);
} SYSTEM_CONFIG_SET_3807_PARAM;

/** 3808 PicsPageChange: turns the pages of the live view. */
typedef struct SYSTEM_CONFIG_SET_3808_PARAM {
  int32_t PrevOrNext KOV_DEFAULT(-1);
} SYSTEM_CONFIG_SET_3808_PARAM;

/** 3809 ModifyIpcIp: gives one camera another address. The response, too, is a REQUEST_PARAM. */
typedef struct SYSTEM_CONFIG_SET_3809_PARAM {
  int32_t IsChangIP KOV_DEFAULT(-1); /**< Response, which has the two addresses, Netmask and Gateway beside it. */
  int32_t CtrlPort KOV_DEFAULT(-1);
  char Protocol[32] KOV_EMPTY;
  char IPAddressOld[32] KOV_EMPTY;
  char IPAddressNew[32] KOV_EMPTY;
  char Username[32] KOV_EMPTY;
  char Password[32] KOV_EMPTY;
  char SN[32] KOV_EMPTY;
  char MacAddress[32] KOV_EMPTY;
  char Netmask[32] KOV_EMPTY;
  char Gateway[32] KOV_EMPTY;
  char DNS1[256] KOV_EMPTY;
  char DNS2[256] KOV_EMPTY;
} SYSTEM_CONFIG_SET_3809_PARAM;

/** 3810 BatchModifyIpcIp: as 3809 for many cameras, a ChannelInfo each, answered by a REQUEST_PARAM each. */
typedef struct SYSTEM_CONFIG_SET_3810_PARAM {
  int32_t ChannelCount KOV_DEFAULT(-1); /**< Not carried: analysis counts the elements. */
  SYSTEM_CONFIG_SET_3809_PARAM Cameras[SYSTEM_CONFIG_CHANNELS];
} SYSTEM_CONFIG_SET_3810_PARAM;

/** A channel to delete, element ChannelInfo. */
typedef struct SYSTEM_CONFIG_CHANNEL_ID {
  int32_t ChannelId KOV_DEFAULT(-1);
} SYSTEM_CONFIG_CHANNEL_ID;

/** 3811 BatchDelIpc: elements ChannelInfo. The count stands outside any element, as in 3803; nothing is required. */
typedef struct SYSTEM_CONFIG_SET_3811_PARAM {
  int32_t ChannelCount KOV_DEFAULT(-1);
  SYSTEM_CONFIG_CHANNEL_ID Channels[SYSTEM_CONFIG_CHANNELS];
} SYSTEM_CONFIG_SET_3811_PARAM;

/** A camera of 3812, element ChannelInfo. */
typedef struct SYSTEM_CONFIG_CAMERA_ADDRESS {
  int32_t CtrlPort KOV_DEFAULT(-1);
  char Protocol[32] KOV_EMPTY;
  char IPAddress[32] KOV_EMPTY;
  char SN[32] KOV_EMPTY;
  char Netmask[32] KOV_EMPTY;
  char Gateway[32] KOV_EMPTY;
} SYSTEM_CONFIG_CAMERA_ADDRESS;

/** 3812 BatchModifyIpcIpV2: cameras get addresses from IPAddressStart on. */
typedef struct SYSTEM_CONFIG_SET_3812_PARAM {
  int32_t ChannelCount KOV_DEFAULT(-1); /**< Not carried: analysis counts the elements. */
  char Username[32] KOV_EMPTY;
  char Password[32] KOV_EMPTY;
  char IPAddressStart[32] KOV_EMPTY;
  char Netmask[32] KOV_EMPTY;
  char Gateway[32] KOV_EMPTY;
  SYSTEM_CONFIG_CAMERA_ADDRESS Cameras[SYSTEM_CONFIG_CHANNELS];
} SYSTEM_CONFIG_SET_3812_PARAM;

/** A way of adding cameras that the recorder knows; -1 ends the list. */
typedef struct SYSTEM_CONFIG_SEARCH_MODE {
  int32_t Mode KOV_DEFAULT(-1);
} SYSTEM_CONFIG_SEARCH_MODE;

/** 3813, 3814: how the recorder adds cameras, attributes of SearchIPCCfg. */
typedef struct SYSTEM_CONFIG_GET_3813_PARAM {
  int32_t SearchMode KOV_DEFAULT(-1);
  SYSTEM_CONFIG_SEARCH_MODE SearchModeList[SYSTEM_CONFIG_SEARCH_MODES]; /**< 3813 only: "0,1,2". */
} SYSTEM_CONFIG_GET_3813_PARAM;

/** @name Default fillers
 * Each sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record.
 * @{ */
KOV_API int SYSTEM_CONFIG_GET_2532_PARAM_init(SYSTEM_CONFIG_GET_2532_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_3801_PARAM_init(SYSTEM_CONFIG_GET_3801_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_3803_PARAM_init(SYSTEM_CONFIG_GET_3803_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_3804_PARAM_init(SYSTEM_CONFIG_SET_3804_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_3805_PARAM_init(SYSTEM_CONFIG_SET_3805_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_3806_PARAM_init(SYSTEM_CONFIG_SET_3806_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_3807_PARAM_init(SYSTEM_CONFIG_SET_3807_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_3808_PARAM_init(SYSTEM_CONFIG_SET_3808_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_3809_PARAM_init(SYSTEM_CONFIG_SET_3809_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_3810_PARAM_init(SYSTEM_CONFIG_SET_3810_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_3811_PARAM_init(SYSTEM_CONFIG_SET_3811_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_3812_PARAM_init(SYSTEM_CONFIG_SET_3812_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_3813_PARAM_init(SYSTEM_CONFIG_GET_3813_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_3814_PARAM_init(SYSTEM_CONFIG_GET_3813_PARAM *record);
/** @} */

/** @name Analysis of one message
 * Each reads a body into a new record. Returns 0, or, with a line that begins with the function's name:
 * KOV_ERROR_EMPTY_ARGUMENT " put a empty Param\n"; KOV_ERROR_BAD_DOCUMENT " Parse MsgBuf error\n",
 * " get RootElement error\n" or " get MESSAGE_BODY error\n"; KOV_ERROR_NO_ELEMENT " get REQUEST_PARAM error\n", or
 * IPCINFO (3801), ChannelInfo (3804, 3810) and SearchIPCCfg (3813, 3814) in its place. 2532, 3803 and 3811 read every
 * body. KOV_ERROR_NO_MEMORY goes with "Malloc Memory failed!\n".
 * @{ */
KOV_API int SystemConfig_getAllChannelInfo_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_NvrChannelStartSearchipc_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_NvrChannelGetChannelList_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_NvrChannelAddChannel_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_NvrChannelDelChannel_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_NvrChannelSwitchChannel_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_NvrChannelPicsSelect_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_NvrChannelPicsPageChange_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_NvrChannelModifyIpcIp_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_NvrChannelBatchModifyIpcIp_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_NvrChannelBatchModifyIpcIpV2_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_NvrChannelBatchDelIpc_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_NvrChannelGetAddMode_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_NvrChannelSetAddMode_MessageAnalysis(const char *xml, void **result);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
