/**
 * @file system_config.h
 * @brief SYSTEM_CONFIG_GET_MESSAGE and SYSTEM_CONFIG_SET_MESSAGE: every setting of cameras and recorders.
 *
 * Both types share one space of decimal codes: the code alone selects the message. A GET message asks with nothing or
 * with REQUEST_PARAM and is answered with the setting's elements; a SET message carries them in its request and is
 * answered without a body, but for 3804, 3809 and 3810. The records stand in one header per group, which this one
 * gathers.
 */
#ifndef KOV_PROTOCOL_SYSTEM_CONFIG_H
#define KOV_PROTOCOL_SYSTEM_CONFIG_H

#include "kov_protocol/kov_protocol.h"
#include "kov_protocol/system_config_alarm.h"
#include "kov_protocol/system_config_analytics.h"
#include "kov_protocol/system_config_channel.h"
#include "kov_protocol/system_config_general.h"
#include "kov_protocol/system_config_media.h"
#include "kov_protocol/system_config_network.h"

#ifdef __cplusplus
extern "C" {
#endif

#define SYSTEM_CONFIG_GET_MESSAGE_TYPE "SYSTEM_CONFIG_GET_MESSAGE"
#define SYSTEM_CONFIG_SET_MESSAGE_TYPE "SYSTEM_CONFIG_SET_MESSAGE"

/**
 * Composes the body text of one setting.
 * @param record   the record of the message; null composes nothing, whatever the code
 * @param body     receives NUL-terminated text, cut to `bodySize`; untouched when the message has no text
 * @return 0, also for the reserved code 3802, or KOV_ERROR_EMPTY_ARGUMENT "SystemConfigMessageCompose deal Msg_code:%s,
 *   put a empty Param\n", KOV_ERROR_UNKNOWN_MESSAGE "SYSTEM_CONFIG_MESSAGE deal a unknow msg_cdoe : %d\n"
 */
KOV_API int SystemConfigMessageCompose(const void *record, int direction, const char *msgCode, char *body,
                                       int bodySize);

/**
 * Reads the record of one setting out of a NUL-terminated document.
 * @param result receives a record that the caller owns and hands to KovProtocolMSGAnalysisStop()
 * @return 0, also for the reserved code 3802, which leaves `result` alone; KOV_ERROR_EMPTY_ARGUMENT
 *   "SystemConfigMessageAnalysis deal Msg_code:%s, put a empty Param\n"; KOV_ERROR_UNKNOWN_MESSAGE as above; or the
 *   codes of the message's own function
 */
KOV_API int SystemConfigMessageAnalysis(const char *xml, const char *msgCode, void **result);

#ifdef __cplusplus
}
#endif

#endif
