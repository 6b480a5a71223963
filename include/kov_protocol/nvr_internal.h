/**
 * @file nvr_internal.h
 * @brief NVR_INTERNAL_MESSAGES: recorders and cameras lock stream configurations and ask each other for channels.
 *
 * Msg_code is the decimal number 4001 or 4002. The fields travel as attributes of their own name.
 */
#ifndef KOV_PROTOCOL_NVR_INTERNAL_H
#define KOV_PROTOCOL_NVR_INTERNAL_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

#define NVR_INTERNAL_MESSAGES_TYPE "NVR_INTERNAL_MESSAGES"

/** Configuration of one stream: element StreamConfig in LockParamInfo. */
typedef struct NVR_INTERNAL_STREAM_CONFIG {
  char Resolution[32] KOV_EMPTY;
  uint8_t FrameRate KOV_DEFAULT(255);
  uint8_t Initquant KOV_DEFAULT(255);
  uint8_t Stream KOV_DEFAULT(255); /**< 1 or 2. */
  uint32_t BitRate KOV_DEFAULT(UINT32_MAX);
  char BitRateControl[16] KOV_EMPTY;
  char EncodeFormat[16] KOV_EMPTY;
} NVR_INTERNAL_STREAM_CONFIG;

/** 4001: locks the identity of a camera and its two stream configurations. In LockParamInfo, whatever the direction. */
typedef struct NVR_INTERNAL_4001_PARAM {
  char SN[32] KOV_EMPTY;                 /**< IPCInfo. */
  char IPAddress[16] KOV_EMPTY;          /**< IPCInfo. */
  int32_t MulticularChn KOV_DEFAULT(-1); /**< IPCInfo. */
  /** Both are always written, in this order. A received one goes where its Stream says: 1 the first, 2 the second. */
  NVR_INTERNAL_STREAM_CONFIG StreamConfig[2] KOV_EMPTY;
} NVR_INTERNAL_4001_PARAM;

/** One channel of a peer: element ChannelInfo in MESSAGE_BODY, left out while IpAddr is empty. */
typedef struct NVR_INTERNAL_CHANNEL_INFO {
  char IpAddr[32] KOV_EMPTY;
} NVR_INTERNAL_CHANNEL_INFO;

/** Channels that a list has room for. */
#define NVR_INTERNAL_CHANNELS 64

/** 4002: asks a peer for its channels. Element REQUEST_PARAM or RESPONSE_PARAM, unless said otherwise. */
typedef struct NVR_INTERNAL_4002_PARAM {
  int32_t ChannelCount KOV_DEFAULT(-1); /**< Response, required. As received it may exceed the table. */
  char SrcIp[32] KOV_EMPTY;             /**< The peer's address, required. */
  char SN[32] KOV_EMPTY;                /**< Response. */
  /** Response: the first ChannelCount entries. Empty ones are not written, so those behind them move up. */
  NVR_INTERNAL_CHANNEL_INFO ChannelInfo[NVR_INTERNAL_CHANNELS] KOV_EMPTY;
} NVR_INTERNAL_4002_PARAM;

/** @name Default fillers
 * Each sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record.
 * @{ */
KOV_API int NVR_INTERNAL_4001_PARAM_init(NVR_INTERNAL_4001_PARAM *record);
KOV_API int NVR_INTERNAL_4002_PARAM_init(NVR_INTERNAL_4002_PARAM *record);
/** @} */

/**
 * Composes the body text of one message of the family.
 * @param param     the record of the message, null composes nothing
 * @param direction 4002: 0 and 2 compose the request, any other value the response
 * @param body      receives NUL-terminated text, cut to `bodySize`; untouched when the message has no text
 * @param bodySize  bytes of `body`
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "NVR_INTERNAL_MESSAGES put a empty Param\n" or, when 4002 lacks a required
 *   field, "NVR_INTERNAL_MESSAGES put a error Param acSrcIp: %s\n" (request), "NVR_INTERNAL_MESSAGES put a error Param
 *   iChannelCount: %d acSrcIp: %s\n" (response); KOV_ERROR_UNKNOWN_MESSAGE "NVR_INTERNAL_MESSAGES deal a unknow
 *   msg_cdoe : %d\n"
 */
KOV_API int NvrInternalMessageCompose(const void *param, int direction, const char *msgCode, char *body, int bodySize);

/**
 * Reads the record of one message of the family out of a NUL-terminated document. The document is parsed before the
 * code is looked at.
 * @param result receives a record that the caller owns and hands to KovProtocolMSGAnalysisStop(); untouched on failure,
 *   but null when the allocation failed
 * @return 0, or, with a line that begins with "NvrInternalMessageAnalysis": KOV_ERROR_EMPTY_ARGUMENT " put a empty
 *   Param\n"; KOV_ERROR_BAD_DOCUMENT " Parse MsgBuf error\n", " get RootElement error\n", " get MESSAGE_BODY error\n",
 *   or for 4001 " get StreamConfig:%d error\n" (fewer than two), " get stream\n" (no number from 0 to 255), " get Error
 *   stream :%d\n" (neither 1 nor 2); KOV_ERROR_UNKNOWN_MESSAGE " deal a unknow msg_cdoe : %d\n"; KOV_ERROR_NO_ELEMENT
 *   " get LockParamInfo error\n" or " get RESPONSE_PARAM error\n". KOV_ERROR_NO_MEMORY goes with "Malloc Memory
 *   failed!\n".
 */
KOV_API int NvrInternalMessageAnalysis(const char *xml, const char *msgCode, void **result);

#ifdef __cplusplus
}
#endif

#endif
