/**
 * @file device_report.h
 * @brief DEVICE_REPORT_MESSAGE: a device tells its state, or where its camera points, without being asked.
 *
 * Msg_code is the decimal number 3900 or 3901. The fields travel as elements of their own name that hold them as text.
 * The direction is ignored.
 */
#ifndef KOV_PROTOCOL_DEVICE_REPORT_H
#define KOV_PROTOCOL_DEVICE_REPORT_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

#define DEVICE_REPORT_MESSAGE_TYPE "DEVICE_REPORT_MESSAGE"

/**
 * 3900: state of all channels. Every text is free, but must not hold "<"; an empty one leaves its element out.
 */
typedef struct DEVICE_REPORT_3900_PARAM {
  char Ipcs_stat[256] KOV_EMPTY;
  char streamstat[256] KOV_EMPTY;
  char IpcAbility1[256] KOV_EMPTY;
  char IpcProtoCol[256] KOV_EMPTY;
  char ChnFeature[2048] KOV_EMPTY;
  char ChnDevbind[2048] KOV_EMPTY;
} DEVICE_REPORT_3900_PARAM;

/** 3901: position of a camera, in the element xml. */
typedef struct DEVICE_REPORT_3901_PARAM {
  int32_t x KOV_DEFAULT(-1);
  int32_t y KOV_DEFAULT(-1);
  int32_t mul KOV_DEFAULT(-1);
  int32_t maxMul KOV_DEFAULT(-1);
  int32_t linkage KOV_DEFAULT(-1);
  int32_t reserved KOV_DEFAULT(0); /**< The filler leaves it alone; compose does not look at it. */
} DEVICE_REPORT_3901_PARAM;

/** @name Default fillers
 * Each sets every field that is carried to its default and returns 0, or returns KOV_ERROR_NULL for a null record.
 * @{ */
KOV_API int DEVICE_REPORT_3900_PARAM_init(DEVICE_REPORT_3900_PARAM *record);
KOV_API int DEVICE_REPORT_3901_PARAM_init(DEVICE_REPORT_3901_PARAM *record);
/** @} */

/**
 * Composes the body text of one message of the family.
 * @param param     the record of the message, null composes nothing
 * @param direction ignored
 * @param body      receives NUL-terminated text, cut to `bodySize`; untouched when the message has no text
 * @param bodySize  bytes of `body`
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "DEVICE_REPORT_MESSAGE put a empty Param\n", KOV_ERROR_UNKNOWN_MESSAGE
 *   "DEVICE_REPORT_MESSAGE deal a unknow msg_cdoe : %d\n"
 */
KOV_API int DeviceReportMessageCompose(const void *param, int direction, const char *msgCode, char *body, int bodySize);

/**
 * Reads the record of one message of the family out of a NUL-terminated document. The document is parsed before the
 * code is looked at. An element that is missing leaves its field at the default.
 * @param result receives a record that the caller owns and hands to KovProtocolMSGAnalysisStop(); untouched on failure,
 *   but null when the allocation failed
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "DeviceReportMessageAnalysis put a empty Param\n"; KOV_ERROR_BAD_DOCUMENT
 *   "DeviceReportMessageAnalysis Parse MsgBuf error\n", "... get RootElement error\n" or "... get MESSAGE_BODY
 *   error\n"; KOV_ERROR_UNKNOWN_MESSAGE "SYSTEM_HWCFG_MESSAGE deal a unknow msg_cdoe : %d\n" (under another family's
 *   name); KOV_ERROR_NO_ELEMENT "DeviceReportMessageAnalysis get HardwareConfig error\n" when 3901 lacks xml;
 *   KOV_ERROR_NO_MEMORY "Malloc Memory failed!\n"
 */
KOV_API int DeviceReportMessageAnalysis(const char *xml, const char *msgCode, void **result);

#ifdef __cplusplus
}
#endif

#endif
