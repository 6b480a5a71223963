/**
 * @file kov_protocol.h
 * @brief Core of kov_protocol: header records, return codes, the compose and analysis entries.
 *
 * The library turns records into messages of one XML control protocol and received messages back into records. It keeps
 * no state, does no networking, and may be called from any thread. The message families have a header each; this one
 * is what they share.
 */
#ifndef KOV_PROTOCOL_KOV_PROTOCOL_H
#define KOV_PROTOCOL_KOV_PROTOCOL_H

#include <stdint.h>

#if defined(__GNUC__)
#define KOV_API __attribute__((visibility("default")))
#else
#define KOV_API
#endif

/* A field's default, beside the field: an initialiser in C++; in C the record's _init function sets it. */
#ifdef __cplusplus
#define KOV_DEFAULT(value) = value
#define KOV_DEFAULTS(...) = {__VA_ARGS__}
#define KOV_EMPTY = {}
#else
#define KOV_DEFAULT(value)
#define KOV_DEFAULTS(...)
#define KOV_EMPTY
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** @name Frame
 * Every document but discovery and camera repair travels behind an 8-byte frame header: four magic bytes and the
 * 32-bit length of what follows, in the machine's byte order. The receiver reads it itself and hands the rest on.
 * @{ */
#define KOV_FRAME_HEADER_SIZE 8
#define KOV_FRAME_PLAIN_MAGIC 0x51589158u    /**< Plain frame: this word in the machine's byte order. */
#define KOV_FRAME_ENCODED_MAGIC "\x57\x81YR" /**< Encoded frame: these four bytes. */
/** @} */

/** @name Directions
 * 0 and 2 compose the request form of a message, 1 and 3 the response form.
 * @{ */
#define KOV_REQUEST 0
#define KOV_RESPONSE 1
/** @} */

/** Encode or decode mode of a plain frame; 0 and above name an encoding. */
#define KOV_PLAIN (-1)

/** What every function returns: 0 or a length when it succeeds, one of these when it fails. */
enum {
  KOV_OK = 0,
  KOV_ERROR_NULL = -1,               /**< A default filler or GetMessageHeader() was given null. */
  KOV_ERROR_UNKNOWN_MESSAGE = -1000, /**< Unknown Msg_type or Msg_code. */
  KOV_ERROR_EMPTY_ARGUMENT = -1001,  /**< A null pointer, an empty buffer or an unset required field. */
  KOV_ERROR_NO_MEMORY = -1002,       /**< An allocation failed. */
  KOV_ERROR_BAD_DOCUMENT = -1003,    /**< Not well-formed XML, or without root or MESSAGE_BODY. */
  KOV_ERROR_NO_ELEMENT = -1004,      /**< The message's parameter element is missing. */
  KOV_ERROR_BAD_HEADER = -1005,      /**< The header of a received message cannot be read. */
  KOV_ERROR_NO_TEST_ELEMENT = -1006, /**< A production-test message lacks its element. */
  KOV_ERROR_SIZE = -1007,            /**< A buffer is too small, or a length is impossible. */
  KOV_ERROR_CODING = -1009,          /**< The platform's encoder or decoder failed. */
  KOV_ERROR_INCOMPLETE = -1011       /**< No closing root tag, or a transparent document without a message in it. */
};

/** Hour, minute and second, -1 each while unset. */
typedef struct KOV_TIME {
  int32_t hour KOV_DEFAULT(-1);
  int32_t minute KOV_DEFAULT(-1);
  int32_t second KOV_DEFAULT(-1);
} KOV_TIME;

/** Hour, minute and second of 8 bits each, 255 while unset. */
typedef struct KOV_TIME8 {
  uint8_t hour KOV_DEFAULT(255);
  uint8_t minute KOV_DEFAULT(255);
  uint8_t second KOV_DEFAULT(255);
} KOV_TIME8;

/** The header of every ordinary message: attributes of MESSAGE_HEADER. All texts empty by default. */
typedef struct KOV_PROTOCOL_HEADER {
  char Msg_type[32] KOV_EMPTY; /**< Attribute Msg_type: the family. */
  char Msg_code[32] KOV_EMPTY; /**< Attribute Msg_code: the message of the family. */
  char Msg_flag[32] KOV_EMPTY; /**< Attribute Msg_flag: the sender's mark, returned in answers. */
  char Msg_uuid[64] KOV_EMPTY; /**< Attribute Msg_uuid, optional. */
  char Msg_chn[32] KOV_EMPTY;  /**< Attribute Msg_chn, optional. */
} KOV_PROTOCOL_HEADER;

#define TRANSPARENT_CHANNEL_MSG_TYPE "TRANSPARENT_CHANNEL_MSG"

/**
 * A message carried unread through a channel: attributes of TRANSPARENT_HEADER and the embedded text behind it.
 * For compose it is the parameter record of the type TRANSPARENT_CHANNEL_MSG; analysis hands one out.
 */
typedef struct TRANSPARENT_HEADER {
  char Trans_Type[32] KOV_EMPTY;
  char Channel_ID[32] KOV_EMPTY;
  char Source_Type[32] KOV_EMPTY;
  char Session_ID[32] KOV_EMPTY;
  char Trans_Result[32] KOV_EMPTY;
  char Payload[8192] KOV_EMPTY;          /**< The embedded text. It brings the closing root tag itself. */
  int32_t PayloadLength KOV_DEFAULT(-1); /**< Bytes of Payload in use. */
  int32_t reserved KOV_DEFAULT(0);
} TRANSPARENT_HEADER;

/** A heartbeat's extra attributes of MESSAGE_HEADER. All texts empty by default, and left out while empty. */
typedef struct KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM {
  char Ipcs_stat[65] KOV_EMPTY;
  char streamstat[65] KOV_EMPTY;
  char IpcAbility1[65] KOV_EMPTY;
  char IpcProtoCol[65] KOV_EMPTY;
} KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM;

/** @name Default fillers
 * Each sets every field of its record to the default and returns 0, or returns KOV_ERROR_NULL for a null record.
 * @{ */
KOV_API int KOV_PROTOCOL_HEADER_init(KOV_PROTOCOL_HEADER *header);
/** Leaves the bytes of Payload and the reserved word alone. */
KOV_API int TRANSPARENT_HEADER_init(TRANSPARENT_HEADER *record);
KOV_API int KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM_init(KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM *record);
KOV_API int AUXPTZ_HEARTBEAT_CMD_HEARTBEAT_PARAM_init(KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM *record);
/** @} */

/**
 * Turns a header and a parameter record into a frame that is ready to send.
 *
 * Discovery and camera repair leave as a bare document: as much of it as fits is copied, without a NUL at the end, and
 * the length of the whole document is returned, so compare the result with `outSize`.
 *
 * Values are written as they stand: a text in an attribute must not hold a double quote, a text in an element no "<".
 * Header lines that do not fit the 256 bytes kept for Msg_uuid, Msg_chn and the family's extras are left out whole.
 *
 * @param header     read only; Msg_type and Msg_code select the message
 * @param param      the message's record, read only; null composes an empty body
 * @param direction  0 or 2 request, 1 or 3 response
 * @param encodeMode below 0 a plain frame, else the mode handed to the encoder
 * @param key        handed to KovProtocolEncode(); null selects P2pProtocolEncode()
 * @param out        receives the frame; holds nothing of use after a failure
 * @param outSize    bytes of `out`. A plain frame needs more than the document's length + 8, an encoded one more than
 *                   twice the document's length + 8.
 * @return bytes written, frame header included, or:
 *   - KOV_ERROR_EMPTY_ARGUMENT, "KovProtocolXMLAnalysis Invaild Input Param\n": `out` or `header` null, `outSize` < 1
 *   - KOV_ERROR_UNKNOWN_MESSAGE, "KovProtocolXMLCompose deal a unknow Msg_type:%s Msg_code:%s !!!\n" or the family's
 *     text and "Msgtype:%s Msg_code:%s Msg_flag:%s Compose failed, nRet : %d\n"
 *   - KOV_ERROR_SIZE, no line of its own: the frame does not fit, or the payload length is impossible
 *   - KOV_ERROR_CODING, "KovProtocolEncode faile!!, ret:%d\n": the encoder failed
 *   - KOV_ERROR_NO_MEMORY: no scratch for an encoded frame of more than 8 KiB
 *   - a family's own code, with the family's text and "... Compose failed ..." as above
 *   A failed frame is also told by "KovProtocolMessageEncryption failed , ret : %d\n".
 */
KOV_API int KovProtocolXMLCompose(const KOV_PROTOCOL_HEADER *header, const void *param, int direction, int encodeMode,
                                  void *key, void *out, int outSize);

/**
 * Reads a received message: what followed the frame header, or a bare document.
 *
 * @param payload    `len` bytes that may be rewritten in place; nothing outside them is read or written
 * @param len        bytes received
 * @param decodeMode below 0 the payload is plain, 0 calls P2pProtocolDecode(), any other KovProtocolDecode()
 * @param key        handed to KovProtocolDecode()
 * @param header     receives the header; an attribute that is missing leaves its field alone, so clear it first
 * @param result     receives a record allocated by KovProtocolMalloc(), which the caller owns and hands to
 *                   KovProtocolMSGAnalysisStop(), after a failure too. Start it with null: messages without a record
 *                   leave it alone.
 * @return 0, for a transparent message (then a TRANSPARENT_HEADER in `result`) the length of its payload, or:
 *   - KOV_ERROR_EMPTY_ARGUMENT, "KovProtocolXMLAnalysis Invaild Input Param\n": a null pointer, or `len` < 1
 *   - KOV_ERROR_NO_MEMORY, "KovProtocolMalloc faile!!\n" (work block or copy) or "Malloc Memory failed!\n" (record)
 *   - KOV_ERROR_CODING, "KovProtocolEncode faile!!, ret:%d\n": the decoder failed
 *   - KOV_ERROR_INCOMPLETE, silent: no closing root tag, or no message inside a transparent document
 *   - KOV_ERROR_SIZE, "Error: iBufLen(%d) small than len(%d)\n": embedded text of 8192 bytes or more
 *   - KOV_ERROR_BAD_HEADER, "GetMessageHeader failed! nRet:%d \n": the document or its header cannot be read, be it
 *     that the XML reader lacks memory
 *   - KOV_ERROR_UNKNOWN_MESSAGE, "KovProtocolMSGAnalysisStart deal a unknow Msg_type:%s Msg_code:%s !!!\n" or the
 *     family's text
 *   - a family's own code and text
 */
KOV_API int KovProtocolMSGAnalysisStart(char *payload, int len, int decodeMode, void *key, KOV_PROTOCOL_HEADER *header,
                                        void **result);

/** Releases what analysis handed out and sets `*result` to null. Null is ignored. Returns 0. */
KOV_API int KovProtocolMSGAnalysisStop(void **result);

/**
 * Reads MESSAGE_HEADER of a NUL-terminated document. A missing attribute leaves its field alone.
 * @return 0, or KOV_ERROR_NULL "Invalid input data %p %p\n", KOV_ERROR_BAD_DOCUMENT "GetMessageHeader Parse xml
 *   error\n" or "GetMessageHeader get RootElement error\n", KOV_ERROR_NO_ELEMENT "GetMessageHeader get MESSAGE_HEADER
 *   error\n"
 */
KOV_API int GetMessageHeader(const char *xml, KOV_PROTOCOL_HEADER *header);

/**
 * Reads a heartbeat's extra attributes of MESSAGE_HEADER into a new KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM.
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "GetMessageHeaderEx put a empty Param\n", KOV_ERROR_BAD_DOCUMENT silent or
 *   "GetMessageHeaderEx get RootElement error\n", KOV_ERROR_NO_ELEMENT "GetMessageHeaderEx get MESSAGE_HEADER error\n",
 *   KOV_ERROR_NO_MEMORY "Malloc Memory failed!\n"
 */
KOV_API int GetMessageHeaderEx(const char *xml, void **result);

/**
 * Reads the five attributes of TRANSPARENT_HEADER; payload and length are left alone.
 * @return 0, or KOV_ERROR_BAD_DOCUMENT "Invalid input data %p %p\n" for a null pointer, silent when the text is not
 *   well formed, "GetTransparentHeader get RootElement error\n"; KOV_ERROR_NO_ELEMENT silent: an ordinary message
 */
KOV_API int GetTransparentHeader(const char *xml, TRANSPARENT_HEADER *record);

#ifdef __cplusplus
}
#endif

#endif
