/**
 * @file system_config_network.h
 * @brief Network settings of cameras (300 to 335) and recorders (2000 to 2035).
 *
 * In every record an integer of -1 and an empty text are unset; nothing has a default address, user or password. The
 * fields travel as attributes of their own name unless said otherwise. A code that reads a setting carries it in the
 * response and asks with an empty body; one that writes it carries it in the request and is answered with an empty
 * body, which has no record to analyse (KOV_ERROR_NO_ELEMENT).
 */
#ifndef KOV_PROTOCOL_SYSTEM_CONFIG_NETWORK_H
#define KOV_PROTOCOL_SYSTEM_CONFIG_NETWORK_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Channels, and alarm inputs, of a recorder's GB28181 access. */
#define SYSTEM_CONFIG_SIP_DEVICES 64

/** 315, 335: a camera's login to the peer-to-peer service, element P2PConfig. */
typedef struct SYSTEM_CONFIG_GET_315_PARAM {
  int32_t Enable KOV_DEFAULT(-1);   /**< 315 leaves it out while unset. */
  int32_t SyncTime KOV_DEFAULT(-1); /**< 315 leaves it out while unset. */
  char User[32] KOV_EMPTY;          /**< 315 leaves it out while its first four bytes are zero. */
  char Passwd[48] KOV_EMPTY;        /**< 315 leaves it out while empty. */
} SYSTEM_CONFIG_GET_315_PARAM;

/** Addresses of one network interface of a camera. */
typedef struct SYSTEM_CONFIG_IPC_ADDRESS {
  int32_t DHCP KOV_DEFAULT(-1);
  int32_t MTU KOV_DEFAULT(-1);
  char MacAddress[32] KOV_EMPTY;
  char IPAddress[32] KOV_EMPTY;
  char Netmask[32] KOV_EMPTY;
  char Gateway[32] KOV_EMPTY;
  char DNS1[256] KOV_EMPTY;
  char DNS2[256] KOV_EMPTY;
} SYSTEM_CONFIG_IPC_ADDRESS;

/** 325: a camera's network interface, element LANConfig. Without an IPAddress only AllNetConnectEnable is written. */
typedef struct SYSTEM_CONFIG_SET_325_PARAM {
  int32_t AllNetConnectEnable KOV_DEFAULT(-1);
  SYSTEM_CONFIG_IPC_ADDRESS Address;
} SYSTEM_CONFIG_SET_325_PARAM;

/** A camera's tunnel, element PPTPConfig. */
typedef struct SYSTEM_CONFIG_IPC_PPTP {
  int32_t Enable KOV_DEFAULT(-1);
  int32_t MTU KOV_DEFAULT(-1);
  int32_t MPPE KOV_DEFAULT(-1);
  char Server[256] KOV_EMPTY;
  char Username[32] KOV_EMPTY;
  char Password[48] KOV_EMPTY;
} SYSTEM_CONFIG_IPC_PPTP;

/** A camera's access to a GB28181 platform, element GB28181. */
typedef struct SYSTEM_CONFIG_IPC_GB28181 {
  int32_t Enable KOV_DEFAULT(-1);
  int32_t DevPort KOV_DEFAULT(-1);
  int32_t ServerPort KOV_DEFAULT(-1);
  int32_t Expires KOV_DEFAULT(-1);
  int32_t KeepAlive KOV_DEFAULT(-1);
  int32_t KeepAliveNum KOV_DEFAULT(-1);
  int32_t StreamIdx KOV_DEFAULT(-1);
  char ServerID[256] KOV_EMPTY;
  char ServerName[32] KOV_EMPTY;
  char ServerIP[256] KOV_EMPTY;
  char DevID[256] KOV_EMPTY;
  char DevName[32] KOV_EMPTY;
  char Passwd[48] KOV_EMPTY;
  char AlarmID[256] KOV_EMPTY;
} SYSTEM_CONFIG_IPC_GB28181;

/** 300: all network settings of a camera, elements within NetworkConfig. An element that is missing stays unset. */
typedef struct SYSTEM_CONFIG_GET_300_PARAM {
  int32_t AllNetConnectEnable KOV_DEFAULT(-1); /**< Attribute of LANConfig. */
  SYSTEM_CONFIG_GET_315_PARAM P2P;             /**< Element P2PConfig, all four attributes. */
  SYSTEM_CONFIG_IPC_ADDRESS LAN;               /**< Element LANConfig. */
  SYSTEM_CONFIG_SET_325_PARAM Wire;            /**< Element WireConfig, all attributes. */
  SYSTEM_CONFIG_IPC_PPTP PPTP;
  SYSTEM_CONFIG_IPC_GB28181 GB28181;
} SYSTEM_CONFIG_GET_300_PARAM;

/**
 * 2000, 2020, 2005, 2025: a recorder's network interfaces, attributes of LANConfig unless said otherwise.
 * NetworkLanMode and LAN1Config are left out while LAN1_IPAddress is empty. 2000 and 2020 hold the elements in
 * NetworkConfig, whose tags are unbalanced on the wire, and have NetworkServerConfig; 2005 and 2025 hold them in
 * MESSAGE_BODY.
 */
typedef struct SYSTEM_CONFIG_GET_2000_PARAM {
  char MacAddress[32] KOV_EMPTY;
  char IPAddress[32] KOV_EMPTY;
  char Netmask[32] KOV_EMPTY;
  char Gateway[32] KOV_EMPTY;
  char DNS1[256] KOV_EMPTY;
  char DNS2[256] KOV_EMPTY;
  char CloundID[256] KOV_EMPTY;
  int32_t Login KOV_DEFAULT(-1);
  int32_t DHCP KOV_DEFAULT(-1);
  int32_t Enable KOV_DEFAULT(-1); /**< Attribute of NetworkServerConfig: the network service. */
  int32_t MTU KOV_DEFAULT(-1);
  int32_t ConflictSelfAda KOV_DEFAULT(-1);
  int32_t LAN1_ConflictSelfAda KOV_DEFAULT(-1); /**< Attribute ConflictSelfAda of LAN1Config. */
  int32_t DefaultGateWayIndex KOV_DEFAULT(-1);  /**< Attribute of NetworkLanMode. */
  int32_t Mode KOV_DEFAULT(-1);                 /**< Attribute of NetworkLanMode. */
  int32_t LAN1_DHCP KOV_DEFAULT(-1);            /**< Attribute DHCP of LAN1Config. */
  char LAN1_IPAddress[32] KOV_EMPTY;            /**< Attribute IPAddress of LAN1Config. */
  char LAN1_Netmask[32] KOV_EMPTY;              /**< Attribute Netmask of LAN1Config. */
  char LAN1_Gateway[32] KOV_EMPTY;              /**< Attribute Gateway of LAN1Config. */
  char LAN1_MacAddress[32] KOV_EMPTY;           /**< Attribute MacAddress of LAN1Config. */
} SYSTEM_CONFIG_GET_2000_PARAM;

/** 2010, 2030: the recorder's network service, element NetworkServerConfig. */
typedef struct SYSTEM_CONFIG_GET_2010_PARAM {
  int32_t Enable KOV_DEFAULT(-1);
} SYSTEM_CONFIG_GET_2010_PARAM;

/** A channel or an alarm input as the GB28181 platform knows it. */
typedef struct SYSTEM_CONFIG_SIP_DEVICE {
  char SipDeviceID[32] KOV_EMPTY;
  int32_t SipDeviceReport KOV_DEFAULT(-1); /**< 1: it is reported. Written in hexadecimal; -1 if none was received. */
} SYSTEM_CONFIG_SIP_DEVICE;

/**
 * 2015, 2035: a recorder's access to a GB28181 platform, element GB28181Config. Ports, cycles and counts of the access
 * are texts. Counts beyond the tables write the whole table.
 */
typedef struct SYSTEM_CONFIG_GET_2015_PARAM {
  int32_t Enable KOV_DEFAULT(-1);
  int32_t DefaultLanIndex KOV_DEFAULT(-1); /**< Left out while unset. */
  int32_t ProtoCol KOV_DEFAULT(-1);        /**< Left out while unset. */
  int32_t StreamType KOV_DEFAULT(-1);
  int32_t ChannelCount KOV_DEFAULT(-1);    /**< Entries of Channels to write. Not carried: analysis leaves -1. */
  int32_t AlarmInputIDNum KOV_DEFAULT(-1); /**< Attribute of AlarmInputID: entries of AlarmInputs to write. */
  char SipServerPort[8] KOV_EMPTY;
  char SipServerID[32] KOV_EMPTY;
  char SipServerDomain[128] KOV_EMPTY;
  char SipServerIP[16] KOV_EMPTY;
  char LocalPort[8] KOV_EMPTY;
  char SipUserID[32] KOV_EMPTY;
  char SipHeartBeatCycle[8] KOV_EMPTY;
  char SipHeartBeatTimeOutNum[8] KOV_EMPTY;
  char SipRegExpires[8] KOV_EMPTY;
  char SipUserPassword[32] KOV_EMPTY;
  /** Attributes ch1_SipDeviceID and so on; ch_SipDeviceReport has all flags, a character each. */
  SYSTEM_CONFIG_SIP_DEVICE Channels[SYSTEM_CONFIG_SIP_DEVICES];
  /** Attributes AlarmIn_1 and so on of AlarmInputID; AlarmIn_SipDeviceReport has all flags. */
  SYSTEM_CONFIG_SIP_DEVICE AlarmInputs[SYSTEM_CONFIG_SIP_DEVICES];
} SYSTEM_CONFIG_GET_2015_PARAM;

/** @name Default fillers
 * Each sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record. No message has the
 * code 320; its filler stands for a writer of what 300 reads.
 * @{ */
KOV_API int SYSTEM_CONFIG_GET_300_PARAM_init(SYSTEM_CONFIG_GET_300_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_315_PARAM_init(SYSTEM_CONFIG_GET_315_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_320_PARAM_init(SYSTEM_CONFIG_GET_300_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_325_PARAM_init(SYSTEM_CONFIG_SET_325_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_335_PARAM_init(SYSTEM_CONFIG_GET_315_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_2000_PARAM_init(SYSTEM_CONFIG_GET_2000_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_2005_PARAM_init(SYSTEM_CONFIG_GET_2000_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_2010_PARAM_init(SYSTEM_CONFIG_GET_2010_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_2015_PARAM_init(SYSTEM_CONFIG_GET_2015_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_2020_PARAM_init(SYSTEM_CONFIG_GET_2000_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_2025_PARAM_init(SYSTEM_CONFIG_GET_2000_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_2030_PARAM_init(SYSTEM_CONFIG_GET_2010_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_2035_PARAM_init(SYSTEM_CONFIG_GET_2015_PARAM *record);
/** @} */

/** @name Analysis of one message
 * Each reads the setting's element into a new record. Returns 0, or, with a line that begins with the function's name:
 * KOV_ERROR_EMPTY_ARGUMENT " put a empty Param\n"; KOV_ERROR_BAD_DOCUMENT " Parse MsgBuf error\n",
 * " get RootElement error\n" or " get MESSAGE_BODY error\n"; KOV_ERROR_NO_ELEMENT " get NetworkConfig error\n" with the
 * element that is missing. KOV_ERROR_NO_MEMORY goes with "Malloc Memory failed!\n".
 * @{ */
KOV_API int SystemConfig_getIpcNetconfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getIpcP2Pconfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setIpcLanconfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setIpcP2Pconfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getNetconfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setNetconfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getNetLanconfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setNetLanconfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getNetServerconfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setNetServerconfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getNetGB28181Config_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setNetGB28181Config_MessageAnalysis(const char *xml, void **result);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
