/**
 * @file system_control.h
 * @brief SYSTEM_CONTROL_MESSAGE: one-shot operations and queries of cameras and recorders.
 *
 * Msg_code is a decimal number. The records and the analysis functions of single messages stand in
 * system_control_device.h (what cameras and recorders answer, codes below 3000) and system_control_recorder.h (settings
 * of a recorder, codes from 3000). In every record an integer of -1 and an empty text are unset, and the fields travel
 * as attributes of their own name unless said otherwise.
 *
 * These codes are known and have no body: 828, 1001, 1002, 1007, 1025, 1027, 1096, 1097, 1100, 3010, 3021, 3022, 5010,
 * 5011. Both dispatchers return 0 for them and touch nothing.
 */
#ifndef KOV_PROTOCOL_SYSTEM_CONTROL_H
#define KOV_PROTOCOL_SYSTEM_CONTROL_H

#include "kov_protocol/system_control_device.h"
#include "kov_protocol/system_control_recorder.h"

#ifdef __cplusplus
extern "C" {
#endif

#define SYSTEM_CONTROL_MESSAGE_TYPE "SYSTEM_CONTROL_MESSAGE"

/**
 * Composes the body text of one message of the family. A message that has one form only writes nothing in the other
 * direction and still returns 0.
 * @param param    the record of the message, null composes nothing, whatever the code
 * @param body     receives NUL-terminated text, cut to `bodySize`; untouched when the message has no text
 * @param bodySize bytes of `body`
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "SYSTEM_CONTROL_MESSAGE put a empty Param\n", KOV_ERROR_UNKNOWN_MESSAGE
 *   "SYSTEM_CONTROL_MESSAGE deal a unknow msg_cdoe : %d\n"
 */
KOV_API int SystemControlMessageCompose(const void *param, int direction, const char *msgCode, char *body,
                                        int bodySize);

/**
 * Reads the record of one message of the family out of a NUL-terminated document. 1046 is unknown here, although
 * SystemControl_SetIpcIrcut_MessageAnalysis() reads it.
 *
 * 1014 runs SystemControl_GetIpcStorageCfg_MessageAnalysis() and then
 * SystemControl_StorageDeviceFormat_MessageAnalysis() on the same `result`, and returns what the second one says. The
 * answer to a storage query therefore yields KOV_ERROR_NO_ELEMENT and leaves its SYSTEM_CONTROL_1014_PARAM in `result`;
 * a body with REQUEST_PARAM yields 0 and a SYSTEM_CONTROL_1017_PARAM, in a block with room for the other record.
 * @param result receives a record that the caller owns and hands to KovProtocolMSGAnalysisStop(), for 1014 after a
 *   failure too; otherwise untouched on failure, but null when the allocation failed
 * @return 0, the two codes of SystemControlMessageCompose(), or those of the message's own function
 */
KOV_API int SystemControlMessageAnalysis(const char *xml, const char *msgCode, void **result);

#ifdef __cplusplus
}
#endif

#endif
