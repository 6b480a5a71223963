/**
 * @file nvr_replay.h
 * @brief NVR_REPLAY_MESSAGE: recordings are queried on a recorder, and their playback is started, steered and stopped.
 *
 * Msg_code is a decimal number from 3001 to 3017. In every record an integer of -1 and an empty text are unset, and
 * the fields travel as attributes of their own name in REQUEST_PARAM or RESPONSE_PARAM unless said otherwise.
 */
#ifndef KOV_PROTOCOL_NVR_REPLAY_H
#define KOV_PROTOCOL_NVR_REPLAY_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

#define NVR_REPLAY_MESSAGE_TYPE "NVR_REPLAY_MESSAGE"

/** 3001 RecQuery: which times of a day are recorded. */
typedef struct NVR_REPLAY_3001_PARAM {
  int32_t ChannelId KOV_DEFAULT(-1);
  int32_t reserved KOV_DEFAULT(-1);
  char Time[32] KOV_EMPTY;     /**< The day asked for. */
  char Stream[1441] KOV_EMPTY; /**< Response: one character a minute of the day. */
} NVR_REPLAY_3001_PARAM;

/** 3002, 3013 StreamStart: starts the playback of a channel. */
typedef struct NVR_REPLAY_3002_PARAM {
  int32_t ChannelId KOV_DEFAULT(-1);
  int32_t reserved KOV_DEFAULT(-1);
  char Time[32] KOV_EMPTY;             /**< Request. */
  int32_t RecType KOV_DEFAULT(-1);     /**< Request, left out while unset; hexadecimal on the wire. */
  int32_t AudioEnable KOV_DEFAULT(-1); /**< Request, left out while unset. */
} NVR_REPLAY_3002_PARAM;

/** 3003, 3005, 3006, 3009, 3011, 3014, 3015 StreamControl: the code is the command. */
typedef struct NVR_REPLAY_3003_PARAM {
  int32_t ChannelId KOV_DEFAULT(-1);
  int32_t reserved KOV_DEFAULT(-1);
} NVR_REPLAY_3003_PARAM;

/** 3004, 3007, 3008 SpeedControl. */
typedef struct NVR_REPLAY_3004_PARAM {
  int32_t ChannelId KOV_DEFAULT(-1);
  int32_t Speed KOV_DEFAULT(-1);     /**< Left out while unset. */
  int32_t FrameType KOV_DEFAULT(-1); /**< Request, left out while unset. */
  int32_t reserved KOV_DEFAULT(-1);
} NVR_REPLAY_3004_PARAM;

/** 3010 PlayJump: goes to another time. */
typedef struct NVR_REPLAY_3010_PARAM {
  int32_t ChannelId KOV_DEFAULT(-1);
  int32_t reserved KOV_DEFAULT(-1);
  char Time[32] KOV_EMPTY; /**< Request. */
} NVR_REPLAY_3010_PARAM;

/** 3012 VedioParam: the coding of the stream that follows. It has no request body. */
typedef struct NVR_REPLAY_3012_PARAM {
  int32_t ChannelId KOV_DEFAULT(-1);     /**< Left out while unset. */
  int32_t HasVideoParam KOV_DEFAULT(-1); /**< Not carried: compose writes VideoParam unless this is 0 or unset. */
  int32_t HasAudioParam KOV_DEFAULT(-1); /**< Not carried: compose writes AudioParam unless this is 0 or unset. */
  int32_t VideoSeconds KOV_DEFAULT(-1);
  char VideoParam[1024] KOV_EMPTY;
  char AudioParam[1024] KOV_EMPTY;
} NVR_REPLAY_3012_PARAM;

/** 3016 QueryByMonth: which days of a month are recorded. */
typedef struct NVR_REPLAY_3016_PARAM {
  int32_t ChannelId KOV_DEFAULT(-1);
  int32_t reserved KOV_DEFAULT(-1);
  char Time[32] KOV_EMPTY;
  char RecordData[64] KOV_EMPTY; /**< Response: one character a day of the month. */
} NVR_REPLAY_3016_PARAM;

/** 3017 QueryBySencond: the recorded time slices of a day, in packets. */
typedef struct NVR_REPLAY_3017_PARAM {
  char Time[32] KOV_EMPTY;
  int32_t ChannelId KOV_DEFAULT(-1);
  int32_t TotalPacketNum KOV_DEFAULT(-1); /**< Response. */
  int32_t CurrentPacket KOV_DEFAULT(-1);  /**< Response. */
  uint32_t SequenceNumber KOV_DEFAULT(UINT32_MAX);
  char TimeSliceInfo[2048] KOV_EMPTY; /**< Response, attribute of TIMECLICE_PARAM. */
} NVR_REPLAY_3017_PARAM;

/** @name Default fillers
 * Each sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record.
 * @{ */
KOV_API int NVR_REPLAY_3001_PARAM_init(NVR_REPLAY_3001_PARAM *record);
KOV_API int NVR_REPLAY_3002_PARAM_init(NVR_REPLAY_3002_PARAM *record);
KOV_API int NVR_REPLAY_3003_PARAM_init(NVR_REPLAY_3003_PARAM *record);
KOV_API int NVR_REPLAY_3004_PARAM_init(NVR_REPLAY_3004_PARAM *record);
KOV_API int NVR_REPLAY_3005_PARAM_init(NVR_REPLAY_3003_PARAM *record);
KOV_API int NVR_REPLAY_3006_PARAM_init(NVR_REPLAY_3003_PARAM *record);
KOV_API int NVR_REPLAY_3007_PARAM_init(NVR_REPLAY_3004_PARAM *record);
KOV_API int NVR_REPLAY_3008_PARAM_init(NVR_REPLAY_3004_PARAM *record);
KOV_API int NVR_REPLAY_3009_PARAM_init(NVR_REPLAY_3003_PARAM *record);
KOV_API int NVR_REPLAY_3010_PARAM_init(NVR_REPLAY_3010_PARAM *record);
KOV_API int NVR_REPLAY_3011_PARAM_init(NVR_REPLAY_3003_PARAM *record);
KOV_API int NVR_REPLAY_3012_PARAM_init(NVR_REPLAY_3012_PARAM *record);
KOV_API int NVR_REPLAY_3013_PARAM_init(NVR_REPLAY_3002_PARAM *record);
KOV_API int NVR_REPLAY_3014_PARAM_init(NVR_REPLAY_3003_PARAM *record);
KOV_API int NVR_REPLAY_3015_PARAM_init(NVR_REPLAY_3003_PARAM *record);
KOV_API int NVR_REPLAY_3016_PARAM_init(NVR_REPLAY_3016_PARAM *record);
KOV_API int NVR_REPLAY_3017_PARAM_init(NVR_REPLAY_3017_PARAM *record);
/** @} */

/**
 * Composes the body text of one message of the family.
 * @param param    the record of the message, null composes nothing
 * @param body     receives NUL-terminated text, cut to `bodySize`; untouched when the message has no text
 * @param bodySize bytes of `body`
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "NVR_REPLAY_MESSAGE put a empty Param\n", KOV_ERROR_UNKNOWN_MESSAGE
 *   "LIVE_STREAM_MESSAGE deal a unknow Msg_code:%s !!!\n" (this family speaks under that name)
 */
KOV_API int NvrReplayMessageCompose(const void *param, int direction, const char *msgCode, char *body, int bodySize);

/**
 * Reads the record of one message of the family out of a NUL-terminated document.
 * @param result receives a record that the caller owns and hands to KovProtocolMSGAnalysisStop(); untouched on failure,
 *   but null when the allocation failed
 * @return 0, the two codes of NvrReplayMessageCompose(), or those of the message's own function
 */
KOV_API int NvrReplayMessageAnalysis(const char *xml, const char *msgCode, void **result);

/** @name Analysis of one message
 * Each reads RESPONSE_PARAM, or else REQUEST_PARAM (QueryBySencond the other way round, VedioParam RESPONSE_PARAM
 * only), into a new record. Returns 0, or, with a line that begins with the function's name:
 * KOV_ERROR_EMPTY_ARGUMENT " put a empty Param\n"; KOV_ERROR_BAD_DOCUMENT " Parse MsgBuf error\n",
 * " get RootElement error\n" or " get MESSAGE_BODY error\n"; KOV_ERROR_NO_ELEMENT " get RESPONSE_PARAM error\n".
 * KOV_ERROR_NO_MEMORY goes with "Malloc Memory failed!\n".
 * @{ */
KOV_API int NvrReplay_RecQuery_MessageAnalysis(const char *xml, void **result);
KOV_API int NvrReplay_StreamStart_MessageAnalysis(const char *xml, void **result);
KOV_API int NvrReplay_StreamControl_MessageAnalysis(const char *xml, void **result);
KOV_API int NvrReplay_SpeedControl_MessageAnalysis(const char *xml, void **result);
KOV_API int NvrReplay_PlayJump_MessageAnalysis(const char *xml, void **result);
KOV_API int NvrReplay_VedioParam_MessageAnalysis(const char *xml, void **result);
KOV_API int NvrReplay_QueryByMonth_MessageAnalysis(const char *xml, void **result);
KOV_API int NvrReplay_QueryBySencond_MessageAnalysis(const char *xml, void **result);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
