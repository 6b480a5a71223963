/**
 * @file live_stream.h
 * @brief LIVE_STREAM_MESSAGE: a live audio/video stream of a channel is started, stopped and re-tuned.
 *
 * Msg_code is text; the number 1062 is a second name of CMD_STREAM_START. In every record an integer of -1 and an empty
 * text are unset, and the fields travel as attributes of their own name unless said otherwise.
 */
#ifndef KOV_PROTOCOL_LIVE_STREAM_H
#define KOV_PROTOCOL_LIVE_STREAM_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

#define LIVE_STREAM_MESSAGE_TYPE "LIVE_STREAM_MESSAGE"

/** Coding of the pictures: VIDEO_PARAM of a start response. */
typedef struct LIVE_STREAM_VIDEO_PARAM {
  int32_t reserved1 KOV_DEFAULT(-1);
  int32_t Width KOV_DEFAULT(-1);
  int32_t Height KOV_DEFAULT(-1);
  int32_t Framerate KOV_DEFAULT(-1);
  int32_t Bitrate KOV_DEFAULT(-1);
  int32_t reserved2 KOV_DEFAULT(0);
  char Encoder[16] KOV_EMPTY;
  char Config[512] KOV_EMPTY; /**< What the decoder needs to know. */
} LIVE_STREAM_VIDEO_PARAM;

/** Coding of the sound: AUDIO_PARAM of a start response. */
typedef struct LIVE_STREAM_AUDIO_PARAM {
  int32_t reserved1 KOV_DEFAULT(-1);
  int32_t SampleRate KOV_DEFAULT(-1);
  int32_t SampleWidth KOV_DEFAULT(-1);
  int32_t Channels KOV_DEFAULT(-1);
  int32_t Bitrate KOV_DEFAULT(-1);
  int32_t reserved2 KOV_DEFAULT(0);
  char Encoder[16] KOV_EMPTY;
} LIVE_STREAM_AUDIO_PARAM;

/**
 * CMD_STREAM_START, 1062: asks for a stream with STREAM_START_PARAM, and grants it with TRANS_PARAM, VIDEO_PARAM and
 * AUDIO_PARAM. A response with ConnectNum also carries ChannelId, StreamID, ConnectNum and StreamNum in MESSAGE_HEADER;
 * without VideoStream it carries nothing else. On receipt the header's StreamID goes into VideoStream, and a response's
 * ChannelId comes from the header only.
 */
typedef struct LIVE_STREAM_CMD_STREAM_START_PARAM {
  int32_t ChannelId KOV_DEFAULT(-1);
  int32_t VideoStream KOV_DEFAULT(-1);
  int32_t ConnectNum KOV_DEFAULT(-1);  /**< Response, header. */
  int32_t AudioEnable KOV_DEFAULT(-1); /**< Request: left out while unset. Response: 1 when above 0, else 0. */
  int32_t StreamNum KOV_DEFAULT(-1);   /**< Response, header. */
  int32_t VideoPort KOV_DEFAULT(-1);   /**< Request: left out while unset. Response: left out with UseTcp. */
  int32_t AudioPort KOV_DEFAULT(-1); /**< Request: left out while unset. Response: only with sound, not with UseTcp. */
  int32_t Multicast KOV_DEFAULT(-1); /**< Left out while unset; response: also with UseTcp. */
  int32_t UseTcp KOV_DEFAULT(-1);    /**< Left out while unset; response: also when 0. */
  int32_t FrameType KOV_DEFAULT(-1); /**< Request, left out while unset. */
  int32_t reserved1 KOV_DEFAULT(-1);
  int32_t StreamID KOV_DEFAULT(-1);           /**< Response. */
  int32_t EnableChangeStream KOV_DEFAULT(-1); /**< Response, left out while unset. */
  int32_t reserved2 KOV_DEFAULT(0);
  char MulticastAddress[32] KOV_EMPTY; /**< Response, left out while empty and with UseTcp. */
  LIVE_STREAM_VIDEO_PARAM video;       /**< Response. */
  LIVE_STREAM_AUDIO_PARAM audio;       /**< Response, only with sound. */
} LIVE_STREAM_CMD_STREAM_START_PARAM;

/**
 * CMD_STREAM_STOP, CMD_STREAM_QUALITY: attributes of STREAM_STOP_PARAM or STREAM_QUALITY_PARAM, the same in both
 * directions, each left out while unset. An attribute that is no number is read as 0.
 */
typedef struct LIVE_STREAM_CMD_STREAM_STOP_PARAM {
  int32_t ChannelId KOV_DEFAULT(-1);
  int32_t StreamID KOV_DEFAULT(-1);
  int32_t FrameType KOV_DEFAULT(-1); /**< Quality only. */
  int32_t UseTcp KOV_DEFAULT(-1);    /**< Stop only. */
} LIVE_STREAM_CMD_STREAM_STOP_PARAM;

/** @name Default fillers
 * Each sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record.
 * @{ */
KOV_API int LIVE_STREAM_CMD_STREAM_START_PARAM_init(LIVE_STREAM_CMD_STREAM_START_PARAM *record);
KOV_API int LIVE_STREAM_1062_PARAM_init(LIVE_STREAM_CMD_STREAM_START_PARAM *record);
KOV_API int LIVE_STREAM_CMD_STREAM_STOP_PARAM_init(LIVE_STREAM_CMD_STREAM_STOP_PARAM *record);
KOV_API int LIVE_STREAM_CMD_STREAM_QUALITY_PARAM_init(LIVE_STREAM_CMD_STREAM_STOP_PARAM *record);
/** @} */

/**
 * Composes the body text of one message of the family, and the header attributes of a start response.
 * @param param            the record of the message; null composes nothing, for known codes
 * @param body             receives NUL-terminated text, cut to `bodySize`; untouched when the message has no text
 * @param bodySize         bytes of `body`
 * @param headerExtras     NUL-terminated text that header attributes are appended to, a line each; lines that do not
 *                         fit are left out whole. Null: no header attributes.
 * @param headerExtrasSize bytes of `headerExtras`
 * @param headerExtrasLen  length of the text in `headerExtras`, from 0 and below the size
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "LIVE_STREAM_MESSAGE put a empty Param\n", KOV_ERROR_UNKNOWN_MESSAGE
 *   "LIVE_STREAM_MESSAGE deal a unknow Msg_code:%s !!!\n", the latter for a null record too
 */
KOV_API int LiveStreamMessageCompose(const void *param, int direction, const char *msgCode, char *body, int bodySize,
                                     char *headerExtras, int headerExtrasSize, int headerExtrasLen);

/**
 * Reads the record of one message of the family out of a NUL-terminated document.
 * @param result receives a record that the caller owns and hands to KovProtocolMSGAnalysisStop(); untouched on failure,
 *   but null when the allocation failed
 * @return 0, the two codes of LiveStreamMessageCompose(), or those of the message's own function
 */
KOV_API int LiveStreamMessageAnalysis(const char *xml, const char *msgCode, void **result);

/** @name Analysis of one message
 * Each reads a new record. Returns 0, or, with a line that begins with the function's name: KOV_ERROR_EMPTY_ARGUMENT
 * " put a empty Param\n"; KOV_ERROR_BAD_DOCUMENT silent when the text is not well formed, " get RootElement error\n" or
 * " get MESSAGE_BODY error\n"; KOV_ERROR_NO_ELEMENT " get STREAM_START_PARAM error\n" (also when a response lacks
 * TRANS_PARAM), " get STREAM_STOP_PARAM error\n", " get STREAM_QUALITY_PARAM error\n". KOV_ERROR_NO_MEMORY goes with
 * "Malloc Memory failed!\n".
 * @{ */
KOV_API int LiveStreamCmdStartMessageAnalysis(const char *xml, void **result);
KOV_API int LiveStreamCmdStopMessageAnalysis(const char *xml, void **result);
KOV_API int LiveStreamCmdQualityMessageAnalysis(const char *xml, void **result);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
