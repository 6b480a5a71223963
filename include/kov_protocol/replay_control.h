/**
 * @file replay_control.h
 * @brief REPLAY_CONTROL_MESSAGE: steers the playback of one recorded file.
 *
 * Msg_code is a decimal number from 0 to 12 and is the command; a code that is no number counts as 0. All codes share
 * one record and one body, which is REQUEST_PARAM in both directions.
 */
#ifndef KOV_PROTOCOL_REPLAY_CONTROL_H
#define KOV_PROTOCOL_REPLAY_CONTROL_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

#define REPLAY_CONTROL_MESSAGE_TYPE "REPLAY_CONTROL_MESSAGE"

/** Attributes of REQUEST_PARAM; -1 and an empty text are unset, and written too. */
typedef struct REPLAY_CONTROL_PARAM {
  char FileName[256] KOV_EMPTY;
  int32_t StartPos KOV_DEFAULT(-1);
  int32_t PlayParam KOV_DEFAULT(-1);
} REPLAY_CONTROL_PARAM;

/** Sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record. */
KOV_API int REPLAY_CONTROL_PARAM_init(REPLAY_CONTROL_PARAM *record);

/**
 * Composes the body text, whatever `direction`.
 * @param param    read only; null composes nothing, whatever the code
 * @param body     receives NUL-terminated text, cut to `bodySize`; untouched when nothing is composed
 * @param bodySize bytes of `body`
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "REPLAY_CONTROL_MESSAGE put a empty Param\n", KOV_ERROR_UNKNOWN_MESSAGE
 *   "REPLAY_CONTROL_MESSAGE deal a unknow msg_cdoe : %d\n"
 */
KOV_API int ReplayControlMessageCompose(const REPLAY_CONTROL_PARAM *param, int direction, const char *msgCode,
                                        char *body, int bodySize);

/**
 * Reads REQUEST_PARAM of a NUL-terminated document. The document is looked at before the code.
 * @param result receives a record that the caller owns and hands to KovProtocolMSGAnalysisStop(); untouched on failure,
 *   but null when the allocation failed
 * @return 0, or, with a line that begins with the function's name: KOV_ERROR_EMPTY_ARGUMENT " put a empty Param\n";
 *   KOV_ERROR_BAD_DOCUMENT " Parse MsgBuf error\n", " get RootElement error\n" or " get MESSAGE_BODY error\n";
 *   KOV_ERROR_NO_ELEMENT " get HardwareConfig error\n". KOV_ERROR_UNKNOWN_MESSAGE goes with "SYSTEM_HWCFG_MESSAGE deal
 * a unknow msg_cdoe : %d\n" (this family speaks under that name), KOV_ERROR_NO_MEMORY with "Malloc Memory failed!\n".
 */
KOV_API int ReplayControlMessageAnalysis(const char *xml, const char *msgCode, void **result);

#ifdef __cplusplus
}
#endif

#endif
