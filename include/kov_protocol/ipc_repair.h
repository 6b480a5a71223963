/**
 * @file ipc_repair.h
 * @brief IPC_REPAIR_MESSAGE: a camera asks a server where to fetch its firmware or its algorithm from.
 *
 * Msg_code is not looked at: compose chooses the message by the record, analysis by the element it finds. Firmware
 * travels in the element IPC_REPAIR, the algorithm in IPC_ALG_REPAIR. Documents of this family leave the compose entry
 * bare, without a frame header.
 */
#ifndef KOV_PROTOCOL_IPC_REPAIR_H
#define KOV_PROTOCOL_IPC_REPAIR_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

#define IPC_REPAIR_MESSAGE_TYPE "IPC_REPAIR_MESSAGE"

/** All four forms. The fields travel as attributes of their own name unless said otherwise. */
typedef struct IPC_REPAIR_PARAM {
  char Mac[32] KOV_EMPTY;             /**< Algorithm request; firmware request as IPCMac. */
  char ReqAddr[256] KOV_EMPTY;        /**< Algorithm request. */
  char DomainName[256] KOV_EMPTY;     /**< Algorithm request. */
  char ServerMac[32] KOV_EMPTY;       /**< Responses. */
  char ServerIP[32] KOV_EMPTY;        /**< Responses. */
  int32_t ServerPort KOV_DEFAULT(-1); /**< Responses. */
  char Ipaddr[32] KOV_EMPTY;          /**< Firmware response; algorithm response as ClientIP, while IPCMac is empty. */
  char IPCMac[32] KOV_EMPTY;          /**< Firmware response; algorithm response as ClientMac, while it is empty. */
  char FilePath[128] KOV_EMPTY;       /**< Algorithm response. */
  char RepairVer[128] KOV_EMPTY;      /**< Firmware response; its request as IpcIdentify, the algorithm as BuildVer. */
  char SN[32] KOV_EMPTY;              /**< Algorithm. */
  char Alm[32] KOV_EMPTY;             /**< Algorithm. While it is empty the firmware forms are composed. */
} IPC_REPAIR_PARAM;

/** Sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record. */
KOV_API int IPC_REPAIR_PARAM_init(IPC_REPAIR_PARAM *record);

/**
 * Composes the body text of one message.
 * @param param     the IPC_REPAIR_PARAM, null composes nothing
 * @param direction 0 and 2 compose the request, any other value the response
 * @param body      receives NUL-terminated text, cut to `bodySize`
 * @param bodySize  bytes of `body`
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "IPC_REPAIR_MESSAGE put a empty Param\n"
 */
KOV_API int IpcRepairMessageCompose(const void *param, int direction, char *body, int bodySize);

/**
 * Reads a new IPC_REPAIR_PARAM out of a NUL-terminated document: from IPC_REPAIR, or else from IPC_ALG_REPAIR. A
 * firmware message without IpcIdentify is a response; its IPCMac arrives in Mac as well.
 * @param result receives a record that the caller owns and hands to KovProtocolMSGAnalysisStop(); untouched on failure,
 *   but null when the allocation failed
 * @return 0, or, with a line that begins with "IpcRepairMessageAnalysis": KOV_ERROR_EMPTY_ARGUMENT " put a empty
 *   Param\n"; KOV_ERROR_BAD_DOCUMENT " Parse MsgBuf error\n", " get RootElement error\n" or " get MESSAGE_BODY
 *   error\n"; KOV_ERROR_NO_ELEMENT " get IPC_REPAIR error\n". KOV_ERROR_NO_MEMORY goes with "Malloc Memory failed!\n".
 */
KOV_API int IpcRepairMessageAnalysis(const char *xml, void **result);

#ifdef __cplusplus
}
#endif

#endif
