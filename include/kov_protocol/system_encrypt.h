/**
 * @file system_encrypt.h
 * @brief SYSTEM_ENCRYPT_MESSAGE: hands over the key of a session.
 *
 * The family is one message: every Msg_code serves, and both directions look the same.
 */
#ifndef KOV_PROTOCOL_SYSTEM_ENCRYPT_H
#define KOV_PROTOCOL_SYSTEM_ENCRYPT_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

#define SYSTEM_ENCRYPT_MESSAGE_TYPE "SYSTEM_ENCRYPT_MESSAGE"

/** Attributes of KeyConfig. The library keeps no copy of the key: clear the record when it has served. */
typedef struct SYSTEM_ENCRYPT_150_PARAM {
  int32_t KeyLen KOV_DEFAULT(-1);
  int32_t reserved KOV_DEFAULT(-1);
  char KeyValue[256] KOV_EMPTY;
} SYSTEM_ENCRYPT_150_PARAM;

/** Sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record. */
KOV_API int SYSTEM_ENCRYPT_150_PARAM_init(SYSTEM_ENCRYPT_150_PARAM *record);

/**
 * Composes the body text, whatever `direction`.
 * @param param    read only; null composes nothing
 * @param body     receives NUL-terminated text, cut to `bodySize`; untouched for a null record
 * @param bodySize bytes of `body`
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "SYSTEM_ENCRYPT_MESSAGE put a empty Param\n"
 */
KOV_API int SystemEncryptMessageCompose(const SYSTEM_ENCRYPT_150_PARAM *param, int direction, char *body, int bodySize);

/**
 * Reads KeyConfig of a NUL-terminated document; without it the record holds its defaults.
 * @param result receives a record that the caller owns and hands to KovProtocolMSGAnalysisStop(); untouched on failure,
 *   but null when the allocation failed
 * @return 0, or, with a line that begins with the function's name, KOV_ERROR_EMPTY_ARGUMENT " put a empty Param\n",
 *   KOV_ERROR_BAD_DOCUMENT silent when the text is not well formed, or " get RootElement error\n" or
 *   " get MESSAGE_BODY error\n"; KOV_ERROR_NO_MEMORY "Malloc Memory failed!\n"
 */
KOV_API int SystemEncryptMessageAnalysis(const char *xml, void **result);

#ifdef __cplusplus
}
#endif

#endif
