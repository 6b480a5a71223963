/**
 * @file system_log.h
 * @brief SYSTEM_LOG_MESSAGE, SYSTEM_LOG_DATA and the debug messages: log files, log commands and free debug text.
 *
 * Each of these types is one message: every Msg_code serves. SYSTEM_LOG_MESSAGE and SYSTEM_LOG_DATA share everything.
 * OPEN_DBG_MESSAGE and CLOSE_DBG_MESSAGE are a header only: compose writes an empty body for any record, and analysis
 * returns 0 and hands out no record.
 *
 * A log message may be followed, in the same frame, by four zero bytes and raw data. Compose counts them in the frame's
 * length field but writes the document only: the application sends the rest behind it.
 */
#ifndef KOV_PROTOCOL_SYSTEM_LOG_H
#define KOV_PROTOCOL_SYSTEM_LOG_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

#define SYSTEM_LOG_MESSAGE_TYPE "SYSTEM_LOG_MESSAGE"
#define SYSTEM_LOG_DATA_TYPE "SYSTEM_LOG_DATA"
#define DBG_CMD_MESSAGE_TYPE "DBG_CMD_MESSAGE"
#define OPEN_DBG_MESSAGE_TYPE "OPEN_DBG_MESSAGE"
#define CLOSE_DBG_MESSAGE_TYPE "CLOSE_DBG_MESSAGE"

/** One message about logs: a part of a file, a command, or text. -1 and an empty text are unset. */
typedef struct SYSTEM_LOG_PARAM {
  int32_t XmlLen KOV_DEFAULT(-1);      /**< Request: attribute of POS. */
  int32_t StartPos KOV_DEFAULT(-1);    /**< Request: attribute of POS. */
  int32_t DataLen KOV_DEFAULT(-1);     /**< Request: attribute of POS, the raw bytes that follow the document. */
  int32_t RespDataLen KOV_DEFAULT(-1); /**< Response: text of RESPONSE_DATA_LEN, the raw bytes that follow. */
  char Filename[256] KOV_EMPTY;        /**< Request: attribute of POS, and what selects it. */
  char Cmd[256] KOV_EMPTY;             /**< Request: text of cmd. Response: text of RESPONSE_PARAM. */
  char RespStr[256] KOV_EMPTY;         /**< Response: told in the text of RESPONSE_PARAM, composed only. */
  char Data[40960] KOV_EMPTY;          /**< Response: the body itself. Received: any other text, or the raw data. */
} SYSTEM_LOG_PARAM;

/** Free text: the body of DBG_CMD_MESSAGE. */
typedef struct DBG_CMD_PARAM {
  char Text[8192] KOV_EMPTY;
} DBG_CMD_PARAM;

/** @name Default fillers
 * Each sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record.
 * @{ */
KOV_API int SYSTEM_LOG_PARAM_init(SYSTEM_LOG_PARAM *record);
KOV_API int DBG_CMD_PARAM_init(DBG_CMD_PARAM *record);
/** @} */

/**
 * Composes the body text of a log message.
 *
 * A request is POS with Filename, or else cmd, or else empty. A response is RESPONSE_PARAM with Cmd and
 * RESPONSE_DATA_LEN while RespDataLen is set, or else Data as it stands, or RespStr when that is not empty.
 *
 * @param param    read only; null composes nothing
 * @param body     receives NUL-terminated text, cut to `bodySize`; untouched when the message has no text
 * @param bodySize bytes of `body`
 * @param extraLen raised, modulo 2^32, by 4 and DataLen for POS, by 4 and RespDataLen for RESPONSE_DATA_LEN, even when
 *   those are negative
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "SYSTEM_LOG_PARAM put a empty Param\n"
 */
KOV_API int SystemLogMessageCompose(const SYSTEM_LOG_PARAM *param, int direction, char *body, int bodySize,
                                    int *extraLen);

/**
 * Reads a log message into a new SYSTEM_LOG_PARAM: POS, or else RESPONSE_PARAM (its text goes to Data) with
 * RESPONSE_DATA_LEN, or else cmd, or else the text of MESSAGE_BODY, which goes to Data.
 *
 * DataLen bytes of raw data go to Data, at most as many as it holds; DataLen keeps the number that came. They start
 * behind the document's NUL and three more zero bytes. Where those three are not zero, the data starts with
 * the document itself: this function takes the document only, the entry goes on with what was received behind it.
 *
 * @param xml    a NUL-terminated document. One whose POS names a DataLen above 0 must be followed in memory by three
 *   bytes and, when these are zero, by DataLen or 40960 bytes, whichever is less: this function gets no length to check
 *   it by. Received messages go to KovProtocolMSGAnalysisStart(), which never reads more than was received, takes what
 *   is missing for zero bytes, and succeeds.
 * @param result receives a record that the caller owns and hands to KovProtocolMSGAnalysisStop(); untouched on failure,
 *   but null when the allocation failed
 * @return 0, or, with a line that begins with the function's name, KOV_ERROR_EMPTY_ARGUMENT " put a empty Param\n";
 *   KOV_ERROR_BAD_DOCUMENT " Parse MsgBuf error\n", " get RootElement error\n" or " get MESSAGE_BODY error\n";
 *   KOV_ERROR_NO_ELEMENT " get LockParamInfo error\n": an empty body. KOV_ERROR_NO_MEMORY goes with "Malloc Memory
 *   failed!\n".
 */
KOV_API int SystemLogMessageAnalysis(const char *xml, void **result);

/**
 * Copies what stands between the tags of MESSAGE_BODY, markup and line breaks included, into a new DBG_CMD_PARAM.
 *
 * Composing a DBG_CMD_MESSAGE needs no function of its own: the entry takes any NUL-terminated text as its record. In
 * both directions a text of 8192 bytes or more is refused with KOV_ERROR_SIZE and the line below.
 *
 * @param xml     NUL-terminated text
 * @param textLen length of `xml`
 * @param result  receives a record that the caller owns and hands to KovProtocolMSGAnalysisStop(); untouched on
 *   failure, but null when the allocation failed
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "DebugLogMessageAnalysis put a empty Param\n"; KOV_ERROR_BAD_DOCUMENT silent:
 * a tag is missing; KOV_ERROR_SIZE "Error: iBufLen(%d) small than len(%d)\n": the text is longer than `textLen` says,
 * or than the record holds; KOV_ERROR_NO_MEMORY "Malloc Memory failed!\n"
 */
KOV_API int DebugLogMessageAnalysis(const char *xml, int textLen, void **result);

#ifdef __cplusplus
}
#endif

#endif
