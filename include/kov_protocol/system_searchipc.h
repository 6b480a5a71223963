/**
 * @file system_searchipc.h
 * @brief SYSTEM_SEARCHIPC_MESSAGE: cameras are found on the local network and addressed by serial number.
 *
 * Msg_code is a decimal number. The elements stand directly in MESSAGE_BODY, and the direction is ignored. In every
 * record an integer of -1 and an empty text are unset, and the fields travel as attributes of their own name unless
 * said otherwise. Documents of this family leave the compose entry bare, without a frame header.
 */
#ifndef KOV_PROTOCOL_SYSTEM_SEARCHIPC_H
#define KOV_PROTOCOL_SYSTEM_SEARCHIPC_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

#define SYSTEM_SEARCHIPC_MESSAGE_TYPE "SYSTEM_SEARCHIPC_MESSAGE"

/** One network interface. */
typedef struct SEARCHIPC_LAN_CONFIG {
  int32_t DHCP KOV_DEFAULT(-1);
  int32_t MTU KOV_DEFAULT(-1);
  char MacAddress[32] KOV_EMPTY;
  char IPAddress[32] KOV_EMPTY;
  char Netmask[32] KOV_EMPTY;
  char Gateway[32] KOV_EMPTY;
  char DNS1[256] KOV_EMPTY;
  char DNS2[256] KOV_EMPTY;
  char DEV[32] KOV_EMPTY; /**< Name of the interface. Code 3 writes it, nothing reads it. */
} SEARCHIPC_LAN_CONFIG;

/** Access to the streams of a device: element StreamAccess in MediaStreamConfig, left out while Auth is unset. */
typedef struct SEARCHIPC_STREAM_ACCESS {
  int32_t Auth KOV_DEFAULT(-1);
  int32_t VideoPort KOV_DEFAULT(-1);
  int32_t RTPOverRTSP KOV_DEFAULT(-1);
  int32_t PTZPort KOV_DEFAULT(-1);
  int32_t WEBPort KOV_DEFAULT(-1);
  int32_t RTSPClientNumber KOV_DEFAULT(-1); /**< Code 3 only, left out while unset. */
  int32_t RTPPacketSize KOV_DEFAULT(-1);    /**< Code 3 only, left out while unset. */
  int32_t reserved KOV_DEFAULT(0);
} SEARCHIPC_STREAM_ACCESS;

/** Connection slots of a device. */
#define SEARCHIPC_CONNECTION_SLOTS 12

/** Identity of a device. */
typedef struct SEARCHIPC_DEVICE_INFO {
  char SerialNumber[32] KOV_EMPTY;         /**< IPC_SERIALNUMBER. */
  char DeviceType[32] KOV_EMPTY;           /**< DEVICE_TYPE. */
  char DeviceModule[32] KOV_EMPTY;         /**< DEVICE_TYPE, left out while empty. */
  char DevID[32] KOV_EMPTY;                /**< IPC_SERIALNUMBER. */
  char OsdStr[256] KOV_EMPTY;              /**< OSD, an element left out while this is empty. */
  char FileSystemVersion[128] KOV_EMPTY;   /**< VERSION, an element left out while this is empty. */
  char Name[128] KOV_EMPTY;                /**< Manufacturer, an element left out while this is empty. */
  int32_t ConnectionCount KOV_DEFAULT(-1); /**< Not carried: -1 leaves Count out; 1 when the element came. */
  int16_t Count[SEARCHIPC_CONNECTION_SLOTS] KOV_EMPTY; /**< ConnectionCount: connections in each slot, 0 by default. */
  uint64_t Feature KOV_DEFAULT(UINT64_MAX); /**< DEVICE_TYPE, left out while all bits are set; written signed. */
  char SalesArea[8] KOV_EMPTY;              /**< DEVICE_TYPE, left out while empty. */
  int32_t DevSubType KOV_DEFAULT(-1);       /**< DEVICE_TYPE, left out while unset. */
  int32_t BindMode KOV_DEFAULT(-1);         /**< DEVICE_TYPE, left out while unset. */
} SEARCHIPC_DEVICE_INFO;

/** One account of a device: element Account in UserConfig. */
typedef struct SEARCHIPC_ACCOUNT {
  char Username[40] KOV_EMPTY; /**< Left out while empty. */
  char Password[40] KOV_EMPTY; /**< Left out while Username is empty. */
  char Group[32] KOV_EMPTY;
  char Status[8] KOV_EMPTY;
} SEARCHIPC_ACCOUNT;

/** Accounts that a search response has room for. */
#define SEARCHIPC_ACCOUNTS 40

/** 1 SearchRequest: asks who is there. */
typedef struct SYSTEM_SEARCHIPC_1_PARAM {
  char VendorId[40] KOV_EMPTY; /**< VENDOR_PARAM, an element left out while this is empty. */
} SYSTEM_SEARCHIPC_1_PARAM;

/** 2, 5 ModifyIpBySn: gives the camera of a serial number another address. */
typedef struct SYSTEM_SEARCHIPC_2_PARAM {
  int32_t AllNetConnectEnable KOV_DEFAULT(-1); /**< LANConfig, left out while unset. */
  int32_t reserved KOV_DEFAULT(-1);
  char SerialNumber[32] KOV_EMPTY; /**< IPC_SERIALNUMBER. */
  char DevID[32] KOV_EMPTY;        /**< IPC_SERIALNUMBER, left out while empty. */
  char VendorId[40] KOV_EMPTY;     /**< VENDOR_PARAM, an element left out while this is empty. */
  SEARCHIPC_STREAM_ACCESS StreamAccess KOV_EMPTY;
  SEARCHIPC_LAN_CONFIG LANConfig KOV_EMPTY; /**< LANConfig without MTU and DEV, left out while IPAddress is empty. */
} SYSTEM_SEARCHIPC_2_PARAM;

/** 3 SearchResponse: what a camera tells about itself. */
typedef struct SYSTEM_SEARCHIPC_3_PARAM {
  char VendorId[40] KOV_EMPTY;                 /**< VENDOR_PARAM, an element left out while this is empty. */
  char IPAddressVirtual[32] KOV_EMPTY;         /**< LANConfig, left out while empty. */
  int32_t AllNetConnectEnable KOV_DEFAULT(-1); /**< LANConfig, left out while unset. */
  SEARCHIPC_DEVICE_INFO DeviceInfo KOV_EMPTY;
  int32_t AccountCount KOV_DEFAULT(-1); /**< Not carried: -1 leaves UserConfig out; else the accounts in use. */
  int32_t reserved KOV_DEFAULT(-1);
  SEARCHIPC_ACCOUNT Account[SEARCHIPC_ACCOUNTS] KOV_EMPTY;
  SEARCHIPC_STREAM_ACCESS StreamAccess KOV_EMPTY;
  SEARCHIPC_LAN_CONFIG LANConfig KOV_EMPTY; /**< LANConfig; MTU and DEV left out while unset. */
  /** LAN1Config without DNS, MTU and DEV, left out while IPAddress is empty. */
  SEARCHIPC_LAN_CONFIG LAN1Config KOV_EMPTY;
} SYSTEM_SEARCHIPC_3_PARAM;

/** 4, 6, 8 RestoreConfig: the camera of a serial number goes back to its initial configuration. */
typedef struct SYSTEM_SEARCHIPC_4_PARAM {
  char SerialNumber[32] KOV_EMPTY; /**< IPC_SERIALNUMBER. */
} SYSTEM_SEARCHIPC_4_PARAM;

/** 7 BroadcastDeviceInfo: a camera makes itself known. All in IPC_DEVINFO, in this order. */
typedef struct SYSTEM_SEARCHIPC_7_PARAM {
  char SerialNumber[32] KOV_EMPTY;
  char ipaddr[32] KOV_EMPTY;
  char randStr[32] KOV_EMPTY;
  char IPList[256] KOV_EMPTY;             /**< Left out while empty. */
  char SerialNumberBrother[32] KOV_EMPTY; /**< Left out while empty. */
  char ipaddrBrother[32] KOV_EMPTY;       /**< Left out while empty. */
  char randStrBrother[32] KOV_EMPTY;      /**< Left out while empty. */
} SYSTEM_SEARCHIPC_7_PARAM;

/**
 * 21 SearchIotResponse: what an IoT device tells about itself. Its two directions use different names: a composed body
 * loses DevType, BindNetType and SerialNumber when this library reads it.
 */
typedef struct SYSTEM_SEARCHIPC_21_PARAM {
  int32_t DevType KOV_DEFAULT(-1);     /**< IOTInfo, written as DeviceType, read from DevType. */
  int32_t BindStatus KOV_DEFAULT(-1);  /**< IOTInfo, left out while unset. */
  int32_t BindNetType KOV_DEFAULT(-1); /**< IOTInfo, left out while unset; written as DevSubType. */
  int32_t RegStatus KOV_DEFAULT(-1);   /**< IOTInfo, left out while unset. */
  char DeviceModule[32] KOV_EMPTY;     /**< IOTInfo, left out while empty. */
  /** IPC_SERIALNUMBER: only SerialNumber, which is read from DeviceModule, and DevID. */
  SEARCHIPC_DEVICE_INFO DeviceInfo KOV_EMPTY;
  SEARCHIPC_LAN_CONFIG LANConfig KOV_EMPTY; /**< LANConfig without DEV. */
} SYSTEM_SEARCHIPC_21_PARAM;

/** 101 UDPSendTime: sets the time over the search channel. All in TimeConfig. */
typedef struct SYSTEM_SEARCHIPC_101_PARAM {
  int32_t Enable KOV_DEFAULT(-1);
  int32_t Timezone KOV_DEFAULT(-1);
  char Format[256] KOV_EMPTY;
  char Time[256] KOV_EMPTY;
} SYSTEM_SEARCHIPC_101_PARAM;

/** @name Default fillers
 * Each sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record.
 * @{ */
KOV_API int SYSTEM_SEARCHIPC_1_PARAM_init(SYSTEM_SEARCHIPC_1_PARAM *record);
KOV_API int SYSTEM_SEARCHIPC_2_PARAM_init(SYSTEM_SEARCHIPC_2_PARAM *record);
KOV_API int SYSTEM_SEARCHIPC_3_PARAM_init(SYSTEM_SEARCHIPC_3_PARAM *record);
KOV_API int SYSTEM_SEARCHIPC_4_PARAM_init(SYSTEM_SEARCHIPC_4_PARAM *record);
KOV_API int SYSTEM_SEARCHIPC_5_PARAM_init(SYSTEM_SEARCHIPC_2_PARAM *record);
KOV_API int SYSTEM_SEARCHIPC_6_PARAM_init(SYSTEM_SEARCHIPC_4_PARAM *record);
KOV_API int SYSTEM_SEARCHIPC_7_PARAM_init(SYSTEM_SEARCHIPC_7_PARAM *record);
KOV_API int SYSTEM_SEARCHIPC_8_PARAM_init(SYSTEM_SEARCHIPC_4_PARAM *record);
KOV_API int SYSTEM_SEARCHIPC_21_PARAM_init(SYSTEM_SEARCHIPC_21_PARAM *record);
KOV_API int SYSTEM_SEARCHIPC_101_PARAM_init(SYSTEM_SEARCHIPC_101_PARAM *record);
/** @} */

/**
 * Composes the body text of one message of the family. Codes 9, 10, 11 and 20 have no text.
 * @param param     the record of the message, null composes nothing
 * @param direction ignored
 * @param body      receives NUL-terminated text, cut to `bodySize`; untouched when the message has no text
 * @param bodySize  bytes of `body`
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "SYSTEM_SEARCHIPC_MESSAGE put a empty Param\n", KOV_ERROR_UNKNOWN_MESSAGE
 *   "SYSTEM_SEARCHIPC_MESSAGE deal a unknow msg_code:%d \n"
 */
KOV_API int SystemSearchipcMessageCompose(const void *param, int direction, const char *msgCode, char *body,
                                          int bodySize);

/**
 * Reads the record of one message of the family out of a NUL-terminated document.
 * @param result receives a record that the caller owns and hands to KovProtocolMSGAnalysisStop(); untouched by codes 9,
 *   10, 11 and 20 and on failure, but null when the allocation failed
 * @return 0, the two codes of SystemSearchipcMessageCompose(), or those of the message's own function
 */
KOV_API int SystemSearchipcMessageAnalysis(const char *xml, const char *msgCode, void **result);

/** @name Analysis of one message
 * Each reads the elements that are there into a new record; none is required. Returns 0, or, with a line that begins
 * with the function's name: KOV_ERROR_EMPTY_ARGUMENT " put a empty Param\n"; KOV_ERROR_BAD_DOCUMENT " Parse MsgBuf
 * error\n", " get RootElement error\n" or " get MESSAGE_BODY error\n". KOV_ERROR_NO_MEMORY goes with "Malloc Memory
 * failed!\n".
 * @{ */
KOV_API int SystemSearchipc_SearchRequest_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemSearchipc_ModifyIpBySn_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemSearchipc_SearchResponse_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemSearchipc_RestoreConfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemSearchipc_BroadcastDeviceInfo_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemSearchipc_SearchIotResponse_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemSearchipc_UDPSendTime_MessageAnalysis(const char *xml, void **result);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
