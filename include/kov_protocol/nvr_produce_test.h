/**
 * @file nvr_produce_test.h
 * @brief NVR_PRODUCE_TEST_MESSAGE: a test station on the production line drives a recorder through its checks.
 *
 * Msg_code is a decimal number from 4002 to 4011; 4009 is known and has no body. In every record an integer of -1 and
 * an empty text are unset. Every message is one element, in which the fields travel as attributes of their own name.
 * What a verdict means is the station's business: the library carries the numbers.
 */
#ifndef KOV_PROTOCOL_NVR_PRODUCE_TEST_H
#define KOV_PROTOCOL_NVR_PRODUCE_TEST_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

#define NVR_PRODUCE_TEST_MESSAGE_TYPE "NVR_PRODUCE_TEST_MESSAGE"

/** 4002 LedControl: the indicator lamp. Request: LedControl. */
typedef struct NVR_PRODUCE_TEST_4002_PARAM {
  int32_t Switch KOV_DEFAULT(-1);
  int32_t Color KOV_DEFAULT(-1);
} NVR_PRODUCE_TEST_4002_PARAM;

/** 4003 AudioTest. AudioControl, with Soundtrack in a request and the rest in a response. */
typedef struct NVR_PRODUCE_TEST_4003_PARAM {
  int32_t Soundtrack KOV_DEFAULT(-1);
  int32_t frequency KOV_DEFAULT(-1);
  int32_t method KOV_DEFAULT(-1);
  char format[32] KOV_EMPTY;
} NVR_PRODUCE_TEST_4003_PARAM;

/** 4004, 4005 VGA_HMDI_Test: picture outputs. Request: ScreenControl with Screen; response: VideoControl. */
typedef struct NVR_PRODUCE_TEST_4004_PARAM {
  int32_t Screen KOV_DEFAULT(-1);
  int32_t channel KOV_DEFAULT(-1);
  int32_t view_layout KOV_DEFAULT(-1);
  uint64_t decode_status KOV_DEFAULT(UINT64_MAX); /**< A bit a channel; hexadecimal on the wire. */
} NVR_PRODUCE_TEST_4004_PARAM;

/** The verdicts of 4006 and 4008. */
typedef struct NVR_PRODUCE_TEST_RESULTS {
  int32_t DevTypeResult KOV_DEFAULT(-1);
  int32_t DevVerResult KOV_DEFAULT(-1);
  int32_t SnResult KOV_DEFAULT(-1);
  int32_t RtcTimeResult KOV_DEFAULT(-1);      /**< 4008, written but not read. */
  uint32_t AgingTime KOV_DEFAULT(UINT32_MAX); /**< Written signed. */
  int32_t AgingTimeResult KOV_DEFAULT(-1);
  int32_t UsbResult KOV_DEFAULT(-1);
  int32_t DiskResult KOV_DEFAULT(-1);
  int32_t VGAResult KOV_DEFAULT(-1);         /**< 4008. */
  int32_t HDMIResult KOV_DEFAULT(-1);        /**< 4008. */
  int32_t VideoDecodeResult KOV_DEFAULT(-1); /**< 4008. */
  int32_t PilotLampResult KOV_DEFAULT(-1);   /**< 4008. */
  int32_t AudioDecodeResult KOV_DEFAULT(-1); /**< 4008. */
  int32_t AgingAvgTemp KOV_DEFAULT(-1);
  int32_t AgingAvgTempResult KOV_DEFAULT(-1);
  uint32_t AgingAvgDuration KOV_DEFAULT(UINT32_MAX); /**< Written signed. */
  int32_t AgingAvgDurationResult KOV_DEFAULT(-1);
  int32_t DevCurrent KOV_DEFAULT(-1);       /**< 4008. */
  int32_t DevCurrentResult KOV_DEFAULT(-1); /**< 4008. */
  int32_t DevStartUpResult KOV_DEFAULT(-1); /**< 4008. */
  int32_t EthPortResult KOV_DEFAULT(-1);    /**< 4008. */
  int32_t AlarmInputResult KOV_DEFAULT(-1);
  int32_t AlarmOutputResult KOV_DEFAULT(-1);
  int32_t RS232Result KOV_DEFAULT(-1); /**< 4008. */
  int32_t RS485Result KOV_DEFAULT(-1); /**< 4008. */
  int32_t PanelUsbResult KOV_DEFAULT(-1);
  int32_t EsataResult KOV_DEFAULT(-1);
  int32_t FanResult KOV_DEFAULT(-1);        /**< 4008. */
  int32_t CheckTotalResult KOV_DEFAULT(-1); /**< 4008. */
} NVR_PRODUCE_TEST_RESULTS;

/** 4006 ReportResult: what the recorder's self test found. Response: SelfTestResult. */
typedef struct NVR_PRODUCE_TEST_4006_PARAM {
  char DevType[32] KOV_EMPTY;
  char SerialNum[32] KOV_EMPTY;
  char RtcTime[24] KOV_EMPTY; /**< Not carried by 4006. */
  char DevVer[64] KOV_EMPTY;
  NVR_PRODUCE_TEST_RESULTS Results;
} NVR_PRODUCE_TEST_4006_PARAM;

/** 4007 GetNvrSystemTime. Response: RtcTime. */
typedef struct NVR_PRODUCE_TEST_4007_PARAM {
  uint32_t seconds KOV_DEFAULT(UINT32_MAX);
} NVR_PRODUCE_TEST_4007_PARAM;

/** 4008 SendTestReuslt: the station's verdicts, for the recorder to keep. Request: TestResult. */
typedef struct NVR_PRODUCE_TEST_4008_PARAM {
  char TesterName[36] KOV_EMPTY;
  char DevType[32] KOV_EMPTY;
  char SerialNum[32] KOV_EMPTY;
  char RtcTime[24] KOV_EMPTY;
  char DevVer[64] KOV_EMPTY;
  NVR_PRODUCE_TEST_RESULTS Results;
} NVR_PRODUCE_TEST_4008_PARAM;

/** 4010 GetNvrTestAbality: which tests the recorder has. Response: ProductAbility. */
typedef struct NVR_PRODUCE_TEST_4010_PARAM {
  char PilotLampList[32] KOV_EMPTY;
  char DevType[32] KOV_EMPTY;
  int32_t DevTypeTest KOV_DEFAULT(-1);
  int32_t DevVerTest KOV_DEFAULT(-1);
  int32_t SnTest KOV_DEFAULT(-1);
  int32_t RtcTimeTest KOV_DEFAULT(-1);
  int32_t USBTest KOV_DEFAULT(-1);
  int32_t DiskTest KOV_DEFAULT(-1);
  int32_t AgingTest KOV_DEFAULT(-1);
  int32_t VGATest KOV_DEFAULT(-1);
  int32_t HDMITest KOV_DEFAULT(-1);
  int32_t VideoDecodeTest KOV_DEFAULT(-1);
  int32_t AudioDecodeTest KOV_DEFAULT(-1);
  int32_t PilotLampTest KOV_DEFAULT(-1);
  int32_t PilotLampNum KOV_DEFAULT(-1);
  int32_t DevCurrentTest KOV_DEFAULT(-1);
  int32_t DevStartUpTest KOV_DEFAULT(-1);
  int32_t EthPortTest KOV_DEFAULT(-1);
  int32_t AlarmInputTest KOV_DEFAULT(-1);
  int32_t AlarmOutputTest KOV_DEFAULT(-1);
  int32_t RS232Test KOV_DEFAULT(-1);
  int32_t RS485Test KOV_DEFAULT(-1);
  int32_t IPConflictEnable KOV_DEFAULT(-1);
  int32_t PanelUsbTest KOV_DEFAULT(-1);
  int32_t FanTest KOV_DEFAULT(-1);
  int32_t EsataTest KOV_DEFAULT(-1);
} NVR_PRODUCE_TEST_4010_PARAM;

/** 4011 GetOtherParam. Response: MiscInfo. */
typedef struct NVR_PRODUCE_TEST_4011_PARAM {
  char SerialNumber[32] KOV_EMPTY;
} NVR_PRODUCE_TEST_4011_PARAM;

/** @name Default fillers
 * Each sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record.
 * @{ */
KOV_API int NVR_PRODUCE_TEST_4002_PARAM_init(NVR_PRODUCE_TEST_4002_PARAM *record);
KOV_API int NVR_PRODUCE_TEST_4003_PARAM_init(NVR_PRODUCE_TEST_4003_PARAM *record);
KOV_API int NVR_PRODUCE_TEST_4004_PARAM_init(NVR_PRODUCE_TEST_4004_PARAM *record);
KOV_API int NVR_PRODUCE_TEST_4005_PARAM_init(NVR_PRODUCE_TEST_4004_PARAM *record);
KOV_API int NVR_PRODUCE_TEST_4006_PARAM_init(NVR_PRODUCE_TEST_4006_PARAM *record);
KOV_API int NVR_PRODUCE_TEST_4007_PARAM_init(NVR_PRODUCE_TEST_4007_PARAM *record);
KOV_API int NVR_PRODUCE_TEST_4008_PARAM_init(NVR_PRODUCE_TEST_4008_PARAM *record);
KOV_API int NVR_PRODUCE_TEST_4010_PARAM_init(NVR_PRODUCE_TEST_4010_PARAM *record);
KOV_API int NVR_PRODUCE_TEST_4011_PARAM_init(NVR_PRODUCE_TEST_4011_PARAM *record);
/** @} */

/**
 * Composes the body text of one message of the family.
 * @param param    the record of the message, null composes nothing, whatever the code
 * @param body     receives NUL-terminated text, cut to `bodySize`; untouched when the message has no text
 * @param bodySize bytes of `body`
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "NVR_PRODUCE_TEST_MESSAGE put a empty Param\n", KOV_ERROR_UNKNOWN_MESSAGE
 *   "NVR_PRODUCE_TEST_MESSAGE deal a unknow msg_code:%d\n"
 */
KOV_API int NvrProduceTestMessageCompose(const void *param, int direction, const char *msgCode, char *body,
                                         int bodySize);

/**
 * Reads the record of one message of the family out of a NUL-terminated document.
 * @param result receives a record that the caller owns and hands to KovProtocolMSGAnalysisStop(); untouched on failure,
 *   but null when the allocation failed
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "NvrProduceTestMessageAnalysis put a empty Param\n",
 *   KOV_ERROR_UNKNOWN_MESSAGE as above, or the codes of the message's own function
 */
KOV_API int NvrProduceTestMessageAnalysis(const char *xml, const char *msgCode, void **result);

/** @name Analysis of one message
 * Each reads its element into a new record; VGA_HMDI_Test reads both of its elements and needs one. Returns 0, or, with
 * a line that begins with the function's name: KOV_ERROR_EMPTY_ARGUMENT " put a empty Param\n"; KOV_ERROR_BAD_DOCUMENT
 * " Parse MsgBuf error\n", " get RootElement error\n" or " get MESSAGE_BODY error\n"; KOV_ERROR_NO_TEST_ELEMENT
 * " get <element> error\n". For the element, VGA_HMDI_Test names ScreenControl, GetNvrSystemTime TestResult and
 * GetOtherParam ProductAbility. KOV_ERROR_NO_MEMORY goes with "Malloc Memory failed!\n".
 * @{ */
KOV_API int NvrProduceTest_LedControl_MessageAnalysis(const char *xml, void **result);
KOV_API int NvrProduceTest_AudioTest_MessageAnalysis(const char *xml, void **result);
KOV_API int NvrProduceTest_VGA_HMDI_Test_MessageAnalysis(const char *xml, void **result);
KOV_API int NvrProduceTest_ReportResult_MessageAnalysis(const char *xml, void **result);
KOV_API int NvrProduceTest_GetNvrSystemTime_MessageAnalysis(const char *xml, void **result);
KOV_API int NvrProduceTest_SendTestReuslt_MessageAnalysis(const char *xml, void **result);
KOV_API int NvrProduceTest_GetNvrTestAbality_MessageAnalysis(const char *xml, void **result);
KOV_API int NvrProduceTest_GetOtherParam_MessageAnalysis(const char *xml, void **result);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
