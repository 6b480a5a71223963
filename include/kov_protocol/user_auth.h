/**
 * @file user_auth.h
 * @brief USER_AUTH_MESSAGE: a user logs in and gets a session; both sides tell which keys they know.
 *
 * The family is one message: every Msg_code serves. Directions 1 and 3 compose the response, all others the request.
 */
#ifndef KOV_PROTOCOL_USER_AUTH_H
#define KOV_PROTOCOL_USER_AUTH_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

#define USER_AUTH_MESSAGE_TYPE "USER_AUTH_MESSAGE"

/**
 * A login and its answer. An integer of -1 and an empty text are unset.
 *
 * The request holds USER_AUTH_PARAM, VENDOR_PARAM (left out while VendorId is empty) and ENCRYPT. The response holds
 * USER_AUTH_RESPONSE and ENCRYPT, each left out while all its fields are unset, and in them what is set.
 *
 * The record holds the password as it travels: clear it when it has served.
 */
typedef struct USER_AUTH_CMD_USER_AUTH_PARAM {
  int32_t AuthMethod KOV_DEFAULT(-1);  /**< USER_AUTH_PARAM, left out while unset. */
  int32_t KeyTypeVer KOV_DEFAULT(-1);  /**< ENCRYPT, left out while unset; 0 when a received message has no body. */
  int32_t Version KOV_DEFAULT(-1);     /**< ENCRYPT. */
  int32_t MAXChannels KOV_DEFAULT(-1); /**< USER_AUTH_RESPONSE. */
  char Username[32] KOV_EMPTY;         /**< USER_AUTH_PARAM. */
  char Password[48] KOV_EMPTY;         /**< USER_AUTH_PARAM. */
  char VendorId[48] KOV_EMPTY;         /**< VENDOR_PARAM; composed, but never read. */
  char Capbility[32] KOV_EMPTY;        /**< ENCRYPT. */
  char Sessionid[128] KOV_EMPTY;       /**< USER_AUTH_RESPONSE. */
  char Group[32] KOV_EMPTY;            /**< USER_AUTH_RESPONSE. */
} USER_AUTH_CMD_USER_AUTH_PARAM;

/** Sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record. */
KOV_API int USER_AUTH_CMD_USER_AUTH_PARAM_init(USER_AUTH_CMD_USER_AUTH_PARAM *record);

/**
 * Composes the body text of a login or of its answer.
 * @param param    read only; null composes nothing
 * @param body     receives NUL-terminated text, cut to `bodySize`; untouched when the message has no text
 * @param bodySize bytes of `body`
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "USER_AUTH_MESSAGE put a empty Param\n"
 */
KOV_API int UserAuthMessageCompose(const USER_AUTH_CMD_USER_AUTH_PARAM *param, int direction, char *body, int bodySize);

/**
 * Reads whatever elements of a login and of its answer a NUL-terminated document has.
 *
 * A document without MESSAGE_BODY succeeds: the record then holds KeyTypeVer 0 beside its defaults, and the log tells
 * "USER_AUTH_MESSAGE UserAuthMessageAnalysis get MESSAGE_BODY error or No MessageBody\n".
 *
 * @param result receives a record that the caller owns and hands to KovProtocolMSGAnalysisStop(); untouched on failure,
 *   but null when the allocation failed
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "USER_AUTH_MESSAGE put a empty Param\n"; KOV_ERROR_BAD_DOCUMENT silent when
 * the text is not well formed, or "USER_AUTH_MESSAGE UserAuthMessageAnalysis get RootElement error\n";
 *   KOV_ERROR_NO_MEMORY "Malloc Memory failed!\n"
 */
KOV_API int UserAuthMessageAnalysis(const char *xml, void **result);

#ifdef __cplusplus
}
#endif

#endif
