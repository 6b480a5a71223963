/**
 * @file alarm_report.h
 * @brief ALARM_REPORT_MESSAGE: a device reports one alarm, with a face or an animal when it saw one.
 *
 * The only Msg_code is CMD_REPORT_ALARM, and there are only requests. The face's feature data travels raw behind the
 * document: the application sends four bytes and the data behind the composed frame, whose length counts both.
 */
#ifndef KOV_PROTOCOL_ALARM_REPORT_H
#define KOV_PROTOCOL_ALARM_REPORT_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ALARM_REPORT_MESSAGE_TYPE "ALARM_REPORT_MESSAGE"
#define ALARM_REPORT_MESSAGE_CODE "CMD_REPORT_ALARM"

/** Bytes of feature data behind the document: these when AlgVer is 1, else the whole field. */
#define ALARM_REPORT_SHORT_FEATURE_SIZE 512
#define ALARM_REPORT_FEATURE_SIZE 1024

/**
 * A face, the extra record of the alarms 38 and 39: attributes of HumanFaceInfo. Unset are 255 in 8 bits, all ones in
 * 32 bits, -1.0 and the empty text.
 */
typedef struct ALARM_REPORT_HUMAN_FACE_INFO {
  uint8_t Age KOV_DEFAULT(255);
  uint8_t Gender KOV_DEFAULT(255);
  uint8_t IsGlasses KOV_DEFAULT(255);
  uint8_t IsHat KOV_DEFAULT(255);
  uint8_t IsMask KOV_DEFAULT(255);
  uint8_t AlgVer KOV_DEFAULT(255); /**< Which algorithm made the feature data. */
  uint32_t SerialNum KOV_DEFAULT(UINT32_MAX);
  uint32_t SimilarityThreshold KOV_DEFAULT(UINT32_MAX);
  uint32_t DataLen KOV_DEFAULT(UINT32_MAX); /**< What the peer says; the field `feature` has its own fixed size. */
  int32_t ErrorCode KOV_DEFAULT(-1);
  int32_t absTime KOV_DEFAULT(-1); /**< Read modulo 2^32. */
  float faceQualityScore KOV_DEFAULT(-1.0F);
  float HsvAreaScore KOV_DEFAULT(-1.0F);
  float BlurSMD KOV_DEFAULT(-1.0F);
  uint8_t
      feature[ALARM_REPORT_FEATURE_SIZE] KOV_EMPTY; /**< No attribute: the raw data. Zero where none was received. */
  char uniqueIndex[128] KOV_EMPTY;
} ALARM_REPORT_HUMAN_FACE_INFO;

/** An animal, the extra record of the alarms 44 and 45: attribute of ANIMAL_INFO. */
typedef struct ALARM_REPORT_ANIMAL_INFO {
  uint8_t Animal_type KOV_DEFAULT(255);
} ALARM_REPORT_ANIMAL_INFO;

/** People crossing a line: attributes of CROSSBORDER_INFO, which is read, but never composed. */
typedef struct ALARM_REPORT_CROSSBORDER_INFO {
  uint8_t CrowdFlowStatEnable KOV_DEFAULT(255);
  uint8_t reserved[3] KOV_EMPTY;
  int32_t CrowdFlowNum KOV_DEFAULT(-1);
} ALARM_REPORT_CROSSBORDER_INFO;

/** An alarm. An integer of -1 and an empty text are unset. */
typedef struct ALARM_REPORT_CMD_RPEORT_ALARM_PARAM {
  int32_t reserved1 KOV_DEFAULT(-1);
  int32_t reserved2 KOV_DEFAULT(-1);
  int32_t Year KOV_DEFAULT(-1); /**< ALARM_TIME, which is left out while this is unset. */
  int32_t Month KOV_DEFAULT(-1);
  int32_t Day KOV_DEFAULT(-1);
  int32_t WDay KOV_DEFAULT(-1);
  int32_t Hour KOV_DEFAULT(-1);
  int32_t Minute KOV_DEFAULT(-1);
  int32_t Second KOV_DEFAULT(-1);                 /**< Up to here ALARM_TIME. */
  int32_t Alarm_code KOV_DEFAULT(-1);             /**< ALARM_INFO. When composing, it says what `pExData` is. */
  int32_t Alarm_flag KOV_DEFAULT(-1);             /**< ALARM_INFO. */
  int32_t Alarm_level KOV_DEFAULT(-1);            /**< ALARM_INFO. */
  uint32_t Alarm_absTime KOV_DEFAULT(UINT32_MAX); /**< ALARM_INFO, left out while unset; signed on the wire. */
  int32_t Src KOV_DEFAULT(-1);                    /**< SRC_INFO, which is left out while this is unset. */
  int32_t ChannelId KOV_DEFAULT(-1);              /**< SRC_INFO. */
  char Alarm_data[128] KOV_EMPTY;                 /**< ALARM_INFO. */
  /**
   * The extra record, or null. Compose takes an ALARM_REPORT_HUMAN_FACE_INFO for the alarms 38 and 39 and an
   * ALARM_REPORT_ANIMAL_INFO for 44 and 45, and leaves it alone otherwise. In a received record the element that was
   * there says which it is, whatever Alarm_code says: it stands in the same block as the record, in memory that is
   * large enough for a face in any case, with zeros behind a smaller one.
   */
  void *pExData KOV_DEFAULT(nullptr);
} ALARM_REPORT_CMD_RPEORT_ALARM_PARAM;

/** Sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record. */
KOV_API int ALARM_REPORT_CMD_RPEORT_ALARM_PARAM_init(ALARM_REPORT_CMD_RPEORT_ALARM_PARAM *record);

/**
 * Composes the body text of an alarm. KovProtocolXMLCompose() calls it for CMD_REPORT_ALARM only and refuses any other
 * code with KOV_ERROR_UNKNOWN_MESSAGE, "PTZ_CONTROL_MESSAGE deal a unknow Msg_code:%s !!!\n".
 * @param param       an ALARM_REPORT_CMD_RPEORT_ALARM_PARAM, null composes nothing
 * @param direction   1 and 3 compose nothing and tell at information level "ALARM_REPORT_MESSAGE response message Not
 *                    have Body, please check msgtype\n"
 * @param out         receives NUL-terminated text, cut to `outSize`
 * @param extraLength raised for a face: by 516 when AlgVer is 1, else by 1028
 * @return 0, also for an alarm whose extra record has no element, told at debug level by "ALARM_REPORT_MESSAGE message
 *   deal alarm_code:%d , code has pExData, but unknow type to use\n"; or KOV_ERROR_EMPTY_ARGUMENT
 *   "ALARM_REPORT_MESSAGE put a empty Param\n"
 */
KOV_API int AlarmReportMessageCompose(const void *param, int direction, char *out, int outSize, uint32_t *extraLength);

/**
 * Reads an alarm out of a NUL-terminated document.
 *
 * This function cannot know how much was received. When the document has HumanFaceInfo it reads the feature data in the
 * bytes from the document's NUL on: 4 + 1024 of them, or 4 + 512 when AlgVer is 1, must be readable there.
 * KovProtocolMSGAnalysisStart() knows, and takes no more than was received.
 *
 * @param result receives one block, the record with its extra record, that the caller owns and hands to
 *   KovProtocolMSGAnalysisStop(); untouched on failure, but null when the allocation failed
 * @return 0, or, with a line that begins with the function's name: KOV_ERROR_EMPTY_ARGUMENT " put a empty Param\n";
 *   KOV_ERROR_BAD_DOCUMENT " Parse MsgBuf error\n", " get RootElement error\n" or " get MESSAGE_BODY error\n";
 *   KOV_ERROR_NO_ELEMENT " get ALARM_REPORT_PARAM error\n" or " get ALARM_ITEM error\n". KOV_ERROR_NO_MEMORY goes with
 *   "Malloc Memory failed!\n".
 */
KOV_API int AlarmReportMessageAnalysis(const char *xml, void **result);

#ifdef __cplusplus
}
#endif

#endif
