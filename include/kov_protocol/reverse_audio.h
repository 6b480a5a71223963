/**
 * @file reverse_audio.h
 * @brief REVERSE_AUDIO_MESSAGE: starts and stops talk-back, audio that a client sends to a device.
 *
 * Msg_code is "CMD_RA_START" or 544, "CMD_RA_STOP" or 545.
 */
#ifndef KOV_PROTOCOL_REVERSE_AUDIO_H
#define KOV_PROTOCOL_REVERSE_AUDIO_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

#define REVERSE_AUDIO_MESSAGE_TYPE "REVERSE_AUDIO_MESSAGE"
#define REVERSE_AUDIO_START_CODE "CMD_RA_START"
#define REVERSE_AUDIO_STOP_CODE "CMD_RA_STOP"

/**
 * Start of talk-back: the request offers a format, in RA_START_PARAM, and the answer accepts one, in RA_START_RESPONSE.
 * Several attributes go by other names in the answer. -1 and an empty text are unset, and written too.
 */
typedef struct REVERSE_AUDIO_CMD_RA_START_PARAM {
  int32_t Channels KOV_DEFAULT(-1);
  int32_t ConnectType KOV_DEFAULT(-1); /**< Response: attribute ConnectionType. */
  /** Response: written as attribute Samplerate, but read from SampleRate, so an answer of this library loses it. */
  int32_t SampleRate KOV_DEFAULT(-1);
  int32_t reserved KOV_DEFAULT(0);
  char AudioForamt[32] KOV_EMPTY;  /**< Response: attribute AudioCodec. */
  char Sessionid[64] KOV_EMPTY;    /**< Left out while empty. */
  int32_t Bitrate KOV_DEFAULT(-1); /**< Response: attribute BitsPerSample. */
  int32_t RTPPort KOV_DEFAULT(-1); /**< Request: attribute RTPSendPort. Response: attribute RTPRecvPort. */
} REVERSE_AUDIO_CMD_RA_START_PARAM;

/** Stop of talk-back: RA_STOP_PARAM, composed as a request only, and only for a session. */
typedef struct REVERSE_AUDIO_CMD_RA_STOP_PARAM {
  char Sessionid[64] KOV_EMPTY; /**< A received session of 64 bytes or more fills the field without a NUL. */
} REVERSE_AUDIO_CMD_RA_STOP_PARAM;

/** @name Default fillers
 * Each sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record.
 * @{ */
KOV_API int REVERSE_AUDIO_CMD_RA_START_PARAM_init(REVERSE_AUDIO_CMD_RA_START_PARAM *record);
KOV_API int REVERSE_AUDIO_CMD_RA_STOP_PARAM_init(REVERSE_AUDIO_CMD_RA_STOP_PARAM *record);
/** @} */

/**
 * Composes the body text of one of the two messages.
 * @param param    the record of the message; null composes nothing, whatever the code
 * @param body     receives NUL-terminated text, cut to `bodySize`; untouched when the message has no text
 * @param bodySize bytes of `body`
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "REVERSE_AUDIO_MESSAGE put a empty Param\n", KOV_ERROR_UNKNOWN_MESSAGE
 *   "LIVE_STREAM_MESSAGE deal a unknow Msg_code:%s !!!\n" (this family speaks under that name)
 */
KOV_API int ReverseAudioMessageCompose(const void *param, int direction, const char *msgCode, char *body, int bodySize);

/**
 * Reads the record of one of the two messages out of a NUL-terminated document. The document is looked at before the
 * code.
 * @param result receives a record that the caller owns and hands to KovProtocolMSGAnalysisStop(); untouched on failure,
 *   but null when the allocation failed
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "ReverseAudioMessageAnalysis put a empty Param\n"; KOV_ERROR_BAD_DOCUMENT
 *   silent when the text is not well formed, or "ReverseAudioMessageAnalysis get RootElement error\n";
 *   KOV_ERROR_NO_ELEMENT "ReverseAudioMessageAnalysis get MESSAGE_BODY error\n", or, for the message's own element,
 *   "LiveStreamCmdStartMessageAnalysis get STREAM_START_PARAM error\n" (the live stream's name again);
 *   KOV_ERROR_UNKNOWN_MESSAGE "ReverseAudioMessageAnalysis deal a unknow Msg_code:%s !!!\n"; KOV_ERROR_NO_MEMORY
 *   "Malloc Memory failed!\n"
 */
KOV_API int ReverseAudioMessageAnalysis(const char *xml, const char *msgCode, void **result);

#ifdef __cplusplus
}
#endif

#endif
