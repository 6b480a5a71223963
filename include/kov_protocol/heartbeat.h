/**
 * @file heartbeat.h
 * @brief KOV_HEARTBEAT_MESSAGE and AUXPTZ_HEARTBEAT_MESSAGE: keeps a session alive and tells the sender's state.
 *
 * The state travels as extra attributes of MESSAGE_HEADER; MESSAGE_BODY is empty in both directions. The record,
 * KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM, its fillers and its reader, GetMessageHeaderEx(), stand in kov_protocol.h. The
 * recorder's production test, NVR_PRODUCE_TEST_MESSAGE, sends the same heartbeat under its own type.
 */
#ifndef KOV_PROTOCOL_HEARTBEAT_H
#define KOV_PROTOCOL_HEARTBEAT_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

#define KOV_HEARTBEAT_MESSAGE_TYPE "KOV_HEARTBEAT_MESSAGE"
#define AUXPTZ_HEARTBEAT_MESSAGE_TYPE "AUXPTZ_HEARTBEAT_MESSAGE"
#define HEARTBEAT_MESSAGE_CODE "CMD_HEARTBEAT" /**< The only Msg_code; any other is unknown. */

/**
 * Appends a heartbeat's lines to the header extras: one line for each text that is not empty.
 *
 * A line that does not fit as a whole is left out, because a cut one would end the document.
 *
 * @param header       the message's header; must not be null
 * @param param        the record, read only; null appends nothing
 * @param headerExtras holds `extrasLen` bytes of text already; NUL-terminated again behind each line that is appended
 * @param extrasSize   bytes of `headerExtras`
 * @param extrasLen    where to append, from 0 to below `extrasSize`
 * @return 0, or KOV_ERROR_BAD_HEADER "HeartbeatMessageCompose put a empty msghead\n": `header` or `headerExtras` null,
 *   `extrasSize` < 1, or `extrasLen` outside the buffer
 */
KOV_API int HeartbeatMessageCompose(const KOV_PROTOCOL_HEADER *header, const KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM *param,
                                    char *headerExtras, int extrasSize, int extrasLen);

#ifdef __cplusplus
}
#endif

#endif
