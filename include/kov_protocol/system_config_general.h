/**
 * @file system_config_general.h
 * @brief Time and users of cameras (202 to 223, 5007), and a recorder's general settings, time, users, cloud password,
 *   on-screen display, encoding, log, storage and recording (2500 to 3601).
 *
 * In every record an integer of -1 and an empty text are unset; nothing has a default user or password. The fields
 * travel as attributes of their own name unless said otherwise. A code that reads a setting carries it in the response
 * and asks with an empty body unless a request is named; one that writes it carries it in the request and is answered
 * with an empty body. An empty body has no record to analyse (KOV_ERROR_NO_ELEMENT).
 *
 * A count is the number that travelled, or else the number of elements that were read, and may be larger than its
 * table: compose writes the whole table then, and analysis does not read elements beyond it.
 */
#ifndef KOV_PROTOCOL_SYSTEM_CONFIG_GENERAL_H
#define KOV_PROTOCOL_SYSTEM_CONFIG_GENERAL_H

#include "kov_protocol/kov_protocol.h"
#include "kov_protocol/system_config_channel.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Most accounts of a camera or recorder. */
#define SYSTEM_CONFIG_ACCOUNTS 64
/** Numbers of a week time. */
#define SYSTEM_CONFIG_WEEK_NUMBERS 5
#define SYSTEM_CONFIG_WEEK_UNSET \
  { -1, -1, -1, -1, -1 }
/** In a query: all channels. */
#define SYSTEM_CONFIG_ALL_CHANNELS 255
/** Streams of a channel. */
#define SYSTEM_CONFIG_CHANNEL_STREAMS 2
/** Most log entries of one response, whatever the page size that was asked for. */
#define SYSTEM_CONFIG_LOGS 128
/** Most storage policies that a recorder knows. */
#define SYSTEM_CONFIG_STORAGE_POLICIES 32

/** 202, 5007 getIpcTimeset, 222 setIpcTimeset: a camera's clock, element TimeConfig. */
typedef struct SYSTEM_CONFIG_GET_202_PARAM {
  char TimeMode[32] KOV_EMPTY;
  char TimeZone[32] KOV_EMPTY;
  char Time[32] KOV_EMPTY;                 /**< Left out while empty. */
  char ServerIP[256] KOV_EMPTY;            /**< Attribute of NTPConfig. */
  int32_t ServerPort KOV_DEFAULT(-1);      /**< Attribute of NTPConfig. */
  int32_t RefreshInterval KOV_DEFAULT(-1); /**< Attribute of NTPConfig. */
  int32_t Enable KOV_DEFAULT(-1);          /**< Attribute of DST, as all that follow. */
  int32_t Delta KOV_DEFAULT(-1);
  char StartTime[64] KOV_EMPTY;
  char EndTime[64] KOV_EMPTY;
} SYSTEM_CONFIG_GET_202_PARAM;

/** An account of a camera, element Account. */
typedef struct SYSTEM_CONFIG_IPC_ACCOUNT {
  char Username[64] KOV_EMPTY;
  char Password[64] KOV_EMPTY;
  char Group[32] KOV_EMPTY;
  char Status[32] KOV_EMPTY;
} SYSTEM_CONFIG_IPC_ACCOUNT;

/** 203 getIpcUserCfg, 223 setIpcUserCfg: a camera's accounts, within UserConfig. */
typedef struct SYSTEM_CONFIG_GET_203_PARAM {
  int32_t AccountCount KOV_DEFAULT(-1); /**< Not carried: analysis counts the elements. */
  SYSTEM_CONFIG_IPC_ACCOUNT Accounts[SYSTEM_CONFIG_ACCOUNTS];
} SYSTEM_CONFIG_GET_203_PARAM;

/** 2500 getGeneralConfig, 2520 setGeneralConfig: element GeneralConfig. */
typedef struct SYSTEM_CONFIG_GET_2500_PARAM {
  int32_t Language KOV_DEFAULT(-1);
  int32_t Transparency KOV_DEFAULT(-1);
  int32_t GuideEnable KOV_DEFAULT(-1);
  char LanguageList[512] KOV_EMPTY; /**< 2500 only. */
  char DevID[32] KOV_EMPTY;
  char Resolution[32] KOV_EMPTY;
  char ResolutionList[512] KOV_EMPTY; /**< 2500 only. */
} SYSTEM_CONFIG_GET_2500_PARAM;

/**
 * 2505 getTimeConfig, 2525 setTimeConfig: a recorder's clock, element TimeConfig. A week time is one attribute of five
 * numbers, each padded with blanks to two places: " 3: 2: 0:12: 0".
 */
typedef struct SYSTEM_CONFIG_GET_2505_PARAM {
  int32_t Enable KOV_DEFAULT(-1);
  int32_t Timezone KOV_DEFAULT(-1);
  int32_t Format KOV_DEFAULT(-1);
  int32_t SummerEnable KOV_DEFAULT(-1); /**< Attribute Enable of SummerTime, which has all that follow but Time. */
  int32_t OffSet KOV_DEFAULT(-1);
  int32_t WeekStartTime[SYSTEM_CONFIG_WEEK_NUMBERS] KOV_DEFAULT(SYSTEM_CONFIG_WEEK_UNSET);
  int32_t WeekEndTime[SYSTEM_CONFIG_WEEK_NUMBERS] KOV_DEFAULT(SYSTEM_CONFIG_WEEK_UNSET);
  char Time[32] KOV_EMPTY; /**< Attribute of TimeConfig. */
} SYSTEM_CONFIG_GET_2505_PARAM;

/** An account of a recorder, element Account. */
typedef struct SYSTEM_CONFIG_NVR_ACCOUNT {
  int32_t OperationType KOV_DEFAULT(-1); /**< 2530 only: what is to be done to the account. */
  int32_t LoginStat KOV_DEFAULT(-1);
  char Username[64] KOV_EMPTY;
  char Password[64] KOV_EMPTY;
  char Status[32] KOV_EMPTY;
  char Email[128] KOV_EMPTY;
  char LocalAuthority[256] KOV_EMPTY;
  char RemoteAuthority[256] KOV_EMPTY;
} SYSTEM_CONFIG_NVR_ACCOUNT;

/** 2510 getUserConfig, 2530 setUserConfig: a recorder's accounts, within UserConfig. */
typedef struct SYSTEM_CONFIG_GET_2510_PARAM {
  int32_t MaxUserNum KOV_DEFAULT(-1); /**< 2510 only. */
  int32_t UserNum KOV_DEFAULT(-1);    /**< Accounts in use. 2530 does not carry it: analysis counts the elements. */
  SYSTEM_CONFIG_NVR_ACCOUNT Accounts[SYSTEM_CONFIG_ACCOUNTS];
} SYSTEM_CONFIG_GET_2510_PARAM;

/** 2515 getCloudConfig, 2535 setCloudConfig: the password of the cloud service, element CloudConfig. */
typedef struct SYSTEM_CONFIG_GET_2515_PARAM {
  /** Not carried. 2515 writes FactoryResetNotify and CloudPasswd when it is 1, and Passwd otherwise. Analysis of 2515
   * sets it to 1 when CloudPasswd is there. */
  int32_t Mode KOV_DEFAULT(-1);
  int32_t FactoryResetNotify KOV_DEFAULT(-1);
  int32_t PasswdEncode KOV_DEFAULT(-1); /**< 2515 only. */
  char CloudPasswd[128] KOV_EMPTY;
  char Passwd[128] KOV_EMPTY; /**< All that 2535 carries. */
} SYSTEM_CONFIG_GET_2515_PARAM;

/** What stands on the picture of one channel, element Overlay. */
typedef struct SYSTEM_CONFIG_CHANNEL_OVERLAY {
  int32_t ChannelId KOV_DEFAULT(-1);
  int32_t Enable KOV_DEFAULT(-1);
  int32_t Transparency KOV_DEFAULT(-1);
  int32_t TimePosX KOV_DEFAULT(-1);      /**< Attribute PosX of TimeOverlay. */
  int32_t TimePosY KOV_DEFAULT(-1);      /**< Attribute PosY of TimeOverlay. */
  int32_t WeekDisplayEn KOV_DEFAULT(-1); /**< Attribute of TimeOverlay. */
  int32_t TitlePosX KOV_DEFAULT(-1);     /**< Attribute PosX of TitleOverlay. */
  int32_t TitlePosY KOV_DEFAULT(-1);     /**< Attribute PosY of TitleOverlay. */
  char Format[32] KOV_EMPTY;             /**< Attribute of TimeOverlay. */
  char OsdTitle[256] KOV_EMPTY;          /**< Attribute of TitleOverlay. */
  char DefaultOsdTitle[256] KOV_EMPTY;   /**< Attribute of TitleOverlay, 2550 only. */
} SYSTEM_CONFIG_CHANNEL_OVERLAY;

/**
 * 2550 getVideoOsdConfig, 2555 setVideoOsdConfig: elements Overlay. A response ends before the first entry whose
 * ChannelId is -1; a request that writes has the first ChannelCount entries.
 */
typedef struct SYSTEM_CONFIG_GET_2550_PARAM {
  int32_t ChannelId KOV_DEFAULT(-1);    /**< Request of 2550; SYSTEM_CONFIG_ALL_CHANNELS travels as "0xff". */
  int32_t ChannelCount KOV_DEFAULT(-1); /**< Carried by 2555 only. */
  SYSTEM_CONFIG_CHANNEL_OVERLAY Overlays[SYSTEM_CONFIG_CHANNELS];
} SYSTEM_CONFIG_GET_2550_PARAM;

/** How one stream is encoded, element EncodeConfig. */
typedef struct SYSTEM_CONFIG_CHANNEL_STREAM {
  int32_t Stream KOV_DEFAULT(-1);
  int32_t Initquant KOV_DEFAULT(-1);
  int32_t BitRate KOV_DEFAULT(-1);
  int32_t FrameRate KOV_DEFAULT(-1);
  char Resolution[32] KOV_EMPTY;
  char EncodeFormat[32] KOV_EMPTY;
  char BitRateControl[32] KOV_EMPTY;
} SYSTEM_CONFIG_CHANNEL_STREAM;

/** 2560 getMediaVideoConfig, 2565 setMediaVideoConfig: the encoding of one channel, always two streams in Encode. */
typedef struct SYSTEM_CONFIG_GET_2560_PARAM {
  int32_t ChannelId KOV_DEFAULT(-1); /**< Also the request of 2560; SYSTEM_CONFIG_ALL_CHANNELS travels as "0xff". */
  int32_t LockPara KOV_DEFAULT(-1);
  SYSTEM_CONFIG_CHANNEL_STREAM Streams[SYSTEM_CONFIG_CHANNEL_STREAMS];
} SYSTEM_CONFIG_GET_2560_PARAM;

/** 2561 getMediaCapability: what the encoder of one channel can do, within ChannelInfo. */
typedef struct SYSTEM_CONFIG_GET_2561_PARAM {
  int32_t ChannelId KOV_DEFAULT(-1);      /**< Also the request; SYSTEM_CONFIG_ALL_CHANNELS travels as "0xff". */
  char VideoCap[2048] KOV_EMPTY;          /**< Attribute CapList of VideoCap. */
  char VideoBestParameter[512] KOV_EMPTY; /**< Attribute CapList of VideoBestParameter. */
} SYSTEM_CONFIG_GET_2561_PARAM;

/** An entry of the recorder's log, element LogInfo. */
typedef struct SYSTEM_CONFIG_LOG {
  uint32_t LogMode KOV_DEFAULT(UINT32_MAX);
  uint32_t LogId KOV_DEFAULT(UINT32_MAX);
  uint32_t UserType KOV_DEFAULT(UINT32_MAX);
  char RecordTimeStamp[32] KOV_EMPTY;
  char UserName[64] KOV_EMPTY;
  char Detail[256] KOV_EMPTY;
} SYSTEM_CONFIG_LOG;

/** 3028 getNvrSystemLog: a page of the recorder's log. The response's entries stand within LogList. */
typedef struct SYSTEM_CONFIG_GET_3028_PARAM {
  int32_t LogMode KOV_DEFAULT(-1);  /**< Request. */
  int32_t UserType KOV_DEFAULT(-1); /**< Request. */
  int32_t LogId KOV_DEFAULT(-1);    /**< Request: where the page begins. */
  int32_t PageSize KOV_DEFAULT(-1); /**< Request. */
  char QueryDate[32] KOV_EMPTY;     /**< Request. */
  int32_t LogCount KOV_DEFAULT(-1); /**< Response. */
  SYSTEM_CONFIG_LOG Logs[SYSTEM_CONFIG_LOGS];
} SYSTEM_CONFIG_GET_3028_PARAM;

/** One storage policy. */
typedef struct SYSTEM_CONFIG_STORAGE_POLICY {
  int32_t Policy KOV_DEFAULT(-1); /**< -1 ends the list. */
} SYSTEM_CONFIG_STORAGE_POLICY;

/** 3502 getStrategyConfig, 3503 setStrategyConfig: what a recorder does with full disks, element StrategyConfig. */
typedef struct SYSTEM_CONFIG_GET_3502_PARAM {
  /** 3502 only: the policies that the recorder knows, one attribute "0,1,2," with a comma behind each. */
  SYSTEM_CONFIG_STORAGE_POLICY StorageCapSet[SYSTEM_CONFIG_STORAGE_POLICIES];
  int32_t StoragePolicy KOV_DEFAULT(-1);
} SYSTEM_CONFIG_GET_3502_PARAM;

/** When a channel records, element ChannelDetail. */
typedef struct SYSTEM_CONFIG_RECORD_CHANNEL {
  int32_t ID KOV_DEFAULT(-1);
  char Schedule[1024] KOV_EMPTY;
} SYSTEM_CONFIG_RECORD_CHANNEL;

/** 3600 getRecoedConfig, 3601 setRecoedConfig: the schedules of the first ChannelNum channels, within RecordConfig. */
typedef struct SYSTEM_CONFIG_GET_3600_PARAM {
  int32_t ChannelNum KOV_DEFAULT(-1);
  SYSTEM_CONFIG_RECORD_CHANNEL Channels[SYSTEM_CONFIG_CHANNELS];
} SYSTEM_CONFIG_GET_3600_PARAM;

/** @name Default fillers
 * Each sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record. 5007, 3503 and 3601
 * have no filler of their own: take that of 202, 3502 and 3600.
 * @{ */
KOV_API int SYSTEM_CONFIG_GET_202_PARAM_init(SYSTEM_CONFIG_GET_202_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_203_PARAM_init(SYSTEM_CONFIG_GET_203_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_222_PARAM_init(SYSTEM_CONFIG_GET_202_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_223_PARAM_init(SYSTEM_CONFIG_GET_203_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_2500_PARAM_init(SYSTEM_CONFIG_GET_2500_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_2505_PARAM_init(SYSTEM_CONFIG_GET_2505_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_2510_PARAM_init(SYSTEM_CONFIG_GET_2510_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_2515_PARAM_init(SYSTEM_CONFIG_GET_2515_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_2520_PARAM_init(SYSTEM_CONFIG_GET_2500_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_2525_PARAM_init(SYSTEM_CONFIG_GET_2505_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_2530_PARAM_init(SYSTEM_CONFIG_GET_2510_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_2535_PARAM_init(SYSTEM_CONFIG_GET_2515_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_2550_PARAM_init(SYSTEM_CONFIG_GET_2550_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_2555_PARAM_init(SYSTEM_CONFIG_GET_2550_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_2560_PARAM_init(SYSTEM_CONFIG_GET_2560_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_2561_PARAM_init(SYSTEM_CONFIG_GET_2561_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_2565_PARAM_init(SYSTEM_CONFIG_GET_2560_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_3028_PARAM_init(SYSTEM_CONFIG_GET_3028_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_3502_PARAM_init(SYSTEM_CONFIG_GET_3502_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_3600_PARAM_init(SYSTEM_CONFIG_GET_3600_PARAM *record);
/** @} */

/** @name Analysis of one message
 * Each reads the setting's element, or else the REQUEST_PARAM of a query, into a new record. Returns 0, or, with a line
 * that begins with the function's name: KOV_ERROR_EMPTY_ARGUMENT " put a empty Param\n"; KOV_ERROR_BAD_DOCUMENT
 * " Parse MsgBuf error\n", " get RootElement error\n" or " get MESSAGE_BODY error\n"; KOV_ERROR_NO_ELEMENT
 * " get TimeConfig error\n" with the setting's element (getNvrSystemLog: RESPONSE_PARAM). KOV_ERROR_NO_MEMORY goes with
 * "Malloc Memory failed!\n".
 * @{ */
KOV_API int SystemConfig_getIpcTimeset_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setIpcTimeset_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getIpcUserCfg_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setIpcUserCfg_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getGeneralConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setGeneralConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getTimeConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setTimeConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getUserConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setUserConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getCloudConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setCloudConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getVideoOsdConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setVideoOsdConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getMediaVideoConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setMediaVideoConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getMediaCapability_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getNvrSystemLog_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getStrategyConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setStrategyConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getRecoedConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setRecoedConfig_MessageAnalysis(const char *xml, void **result);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
