/**
 * @file system_config_media.h
 * @brief Media settings of cameras (500 to 542): image, encoding, privacy masks, on-screen display and audio.
 *
 * Unset are an 8-bit field of 255, a 32-bit field of all ones and an empty text. The fields travel as attributes of
 * their own name unless said otherwise, in the element that their block names. A code that reads a setting carries it
 * in the response and asks with an empty body (501 names a channel); one that writes it carries it in the request and
 * is answered with an empty body, which has no record to analyse (KOV_ERROR_NO_ELEMENT). A section that a message
 * lacks stays unset.
 */
#ifndef KOV_PROTOCOL_SYSTEM_CONFIG_MEDIA_H
#define KOV_PROTOCOL_SYSTEM_CONFIG_MEDIA_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Streams of a camera: the main stream, then the sub stream. */
#define SYSTEM_CONFIG_MEDIA_STREAMS 2

/** Privacy mask areas of a stream. */
#define SYSTEM_CONFIG_MEDIA_MASK_AREAS 4

/** @name Sections
 * What several messages carry, an element each.
 * @{ */

/** Element LightConfig. */
typedef struct SYSTEM_CONFIG_MEDIA_LIGHT {
  uint8_t LightMode KOV_DEFAULT(255);
  uint8_t LightCtrl KOV_DEFAULT(255);
  uint8_t LightVal KOV_DEFAULT(255);
  int32_t LightModeRange[3] KOV_DEFAULTS(-1, -1, -1); /**< "0,1,2"; not read back. */
} SYSTEM_CONFIG_MEDIA_LIGHT;

/** Element Capture. 500 and 520 do not read the times back; the other messages name them auiIRcutNight... */
typedef struct SYSTEM_CONFIG_MEDIA_CAPTURE {
  uint8_t LightBoardBrigh KOV_DEFAULT(255);
  uint8_t LightBoardMode KOV_DEFAULT(255);
  int32_t Brightness KOV_DEFAULT(-1);
  int32_t Contrast KOV_DEFAULT(-1);
  int32_t Saturation KOV_DEFAULT(-1);
  int32_t Sharpness KOV_DEFAULT(-1);
  int32_t BackLight KOV_DEFAULT(-1);
  uint8_t DayNight KOV_DEFAULT(255);
  uint8_t WhiteBalance KOV_DEFAULT(255);
  uint8_t Switch2A KOV_DEFAULT(255);
  uint8_t BinningSkip KOV_DEFAULT(255);
  uint8_t TVSystem KOV_DEFAULT(255);
  uint8_t HFlip KOV_DEFAULT(255);
  uint8_t VFlip KOV_DEFAULT(255);
  uint8_t TNF KOV_DEFAULT(255);
  uint8_t SNF KOV_DEFAULT(255);
  uint8_t VSTAB KOV_DEFAULT(255);
  uint8_t LDC KOV_DEFAULT(255);
  uint8_t FD KOV_DEFAULT(255);
  uint8_t Rotation KOV_DEFAULT(255);
  uint8_t PreventOverexposure KOV_DEFAULT(255);
  uint8_t IrcutMode KOV_DEFAULT(255);
  uint8_t SoftPhotoresistanceSensitivity KOV_DEFAULT(255);
  uint8_t soft_pr_luma_day_to_night KOV_DEFAULT(255);
  uint8_t IrcutDelayValue KOV_DEFAULT(255);
  uint8_t IrcutSensitivity KOV_DEFAULT(255);
  uint8_t IrcutLuma KOV_DEFAULT(255);
  uint8_t IrcutKeepColor KOV_DEFAULT(255);
  KOV_TIME8 IrcutNightStartTime;
  KOV_TIME8 IrcutNightEndTime;
  char IrcutLumaList[128] KOV_EMPTY;
} SYSTEM_CONFIG_MEDIA_CAPTURE;

/** One stream, element EncodeConfig inside Encode. */
typedef struct SYSTEM_CONFIG_MEDIA_STREAM {
  int32_t Stream KOV_DEFAULT(-1);
  int32_t Initquant KOV_DEFAULT(-1);
  int32_t BitRate KOV_DEFAULT(-1);
  int32_t FrameRate KOV_DEFAULT(-1);
  char Resolution[32] KOV_EMPTY;
  char EncodeFormat[16] KOV_EMPTY;
  char BitRateControl[16] KOV_EMPTY;
} SYSTEM_CONFIG_MEDIA_STREAM;

/** Element AdvanceEncodeConfig inside Encode. 500 and 520 do not read the times back. */
typedef struct SYSTEM_CONFIG_MEDIA_ADVANCE_ENCODE {
  uint8_t EncodeProfile KOV_DEFAULT(255);
  uint8_t WDRMode KOV_DEFAULT(255);
  KOV_TIME8 WDRStartTime;
  KOV_TIME8 WDREndTime;
  uint8_t DisablePrivateData KOV_DEFAULT(255);
  uint8_t DefaultDPrivateData KOV_DEFAULT(255);
  uint8_t H265plus KOV_DEFAULT(255);
  uint8_t DefaultH265plus KOV_DEFAULT(255);
  uint8_t H265subplus KOV_DEFAULT(255);
  uint8_t DefaultH265subplus KOV_DEFAULT(255);
  uint8_t IvpLowBitrate KOV_DEFAULT(255);
  uint8_t IvpAdvanceIsp KOV_DEFAULT(255);
  int32_t IvpAdvanceIspNew KOV_DEFAULT(-1);
} SYSTEM_CONFIG_MEDIA_ADVANCE_ENCODE;

/** Element Encode. */
typedef struct SYSTEM_CONFIG_MEDIA_ENCODE {
  SYSTEM_CONFIG_MEDIA_STREAM EncodeConfig[SYSTEM_CONFIG_MEDIA_STREAMS];
  SYSTEM_CONFIG_MEDIA_ADVANCE_ENCODE AdvanceEncodeConfig;
} SYSTEM_CONFIG_MEDIA_ENCODE;

/** Element AEConfig inside AdvacedMediaConfig. */
typedef struct SYSTEM_CONFIG_MEDIA_AE {
  int32_t AEStep KOV_DEFAULT(-1);
  int32_t AETolerance KOV_DEFAULT(-1);
} SYSTEM_CONFIG_MEDIA_AE;

/** Element ExposureConfig inside AdvacedMediaConfig. */
typedef struct SYSTEM_CONFIG_MEDIA_EXPOSURE {
  uint8_t ExposureMode KOV_DEFAULT(255);
  uint8_t SemiautoMode KOV_DEFAULT(255);
  uint8_t ExposureTime KOV_DEFAULT(255);
  uint8_t DaySystemGain KOV_DEFAULT(255);
  uint8_t NightSystemGain KOV_DEFAULT(255);
} SYSTEM_CONFIG_MEDIA_EXPOSURE;

/** Element AWBConfig inside AdvacedMediaConfig. */
typedef struct SYSTEM_CONFIG_MEDIA_AWB {
  uint8_t AWBMode KOV_DEFAULT(255);
  uint8_t AWBRGain KOV_DEFAULT(255);
  uint8_t AWBBGain KOV_DEFAULT(255);
} SYSTEM_CONFIG_MEDIA_AWB;

/** Element DRCConfig inside AdvacedMediaConfig. 500 and 520 pad the times ("07:05:09") and do not read them back; the
 * other messages do not pad them ("7:5:9"). */
typedef struct SYSTEM_CONFIG_MEDIA_DRC {
  uint8_t Mode KOV_DEFAULT(255);
  uint8_t StrenthTarget KOV_DEFAULT(255);
  KOV_TIME8 DRCStartTime;
  KOV_TIME8 DRCEndTime;
} SYSTEM_CONFIG_MEDIA_DRC;

/** Element DenoiseConfig inside AdvacedMediaConfig. */
typedef struct SYSTEM_CONFIG_MEDIA_DENOISE {
  uint8_t DenoiseMode KOV_DEFAULT(255);
  uint8_t DenoiseDayStrenth KOV_DEFAULT(255);
  uint8_t DenoiseNightStrenth KOV_DEFAULT(255);
} SYSTEM_CONFIG_MEDIA_DENOISE;

/** Element LDCConfig inside AdvacedMediaConfig. */
typedef struct SYSTEM_CONFIG_MEDIA_LDC {
  uint8_t enable KOV_DEFAULT(255);
  uint8_t centorX KOV_DEFAULT(255);
  uint8_t centorY KOV_DEFAULT(255);
  uint8_t ratio KOV_DEFAULT(255);
} SYSTEM_CONFIG_MEDIA_LDC;

/** Element AdvacedMediaConfig, as far as all messages carry it. */
typedef struct SYSTEM_CONFIG_MEDIA_IMAGE {
  SYSTEM_CONFIG_MEDIA_AE AEConfig;
  SYSTEM_CONFIG_MEDIA_EXPOSURE ExposureConfig;
  SYSTEM_CONFIG_MEDIA_AWB AWBConfig;
  SYSTEM_CONFIG_MEDIA_DRC DRCConfig;
  SYSTEM_CONFIG_MEDIA_DENOISE DenoiseConfig;
  uint8_t ColorStyleMode KOV_DEFAULT(255); /**< Element ColorStyle. */
  SYSTEM_CONFIG_MEDIA_LDC LDCConfig;
  uint8_t StarlightEnable KOV_DEFAULT(255); /**< Attribute enable of StarlightConfig. */
} SYSTEM_CONFIG_MEDIA_IMAGE;

/** Element DefogConfig inside AdvacedMediaConfig. */
typedef struct SYSTEM_CONFIG_MEDIA_DEFOG {
  uint8_t DefogMode KOV_DEFAULT(255);
  uint8_t DefogValue KOV_DEFAULT(255);
} SYSTEM_CONFIG_MEDIA_DEFOG;

/** Element JpegConfig. */
typedef struct SYSTEM_CONFIG_MEDIA_JPEG {
  uint8_t Enable KOV_DEFAULT(255);
  uint8_t Stream KOV_DEFAULT(255);
  uint8_t Quality KOV_DEFAULT(255);
  uint8_t Framerate KOV_DEFAULT(255);
} SYSTEM_CONFIG_MEDIA_JPEG;

/** Element Overlay. */
typedef struct SYSTEM_CONFIG_MEDIA_OVERLAY {
  uint8_t Enable KOV_DEFAULT(255);
  uint8_t Transparency KOV_DEFAULT(255);
} SYSTEM_CONFIG_MEDIA_OVERLAY;

/** Element TimeOverlay. */
typedef struct SYSTEM_CONFIG_MEDIA_TIME_OVERLAY {
  uint8_t PosX KOV_DEFAULT(255);
  uint8_t PosY KOV_DEFAULT(255);
  uint8_t WeekDisplayEn KOV_DEFAULT(255); /**< 525 leaves it out while unset. */
  char Format[32] KOV_EMPTY;
} SYSTEM_CONFIG_MEDIA_TIME_OVERLAY;

/** Element TitleOverlay. */
typedef struct SYSTEM_CONFIG_MEDIA_TITLE_OVERLAY {
  uint8_t PosX KOV_DEFAULT(255);
  uint8_t PosY KOV_DEFAULT(255);
  char Title[256] KOV_EMPTY;
} SYSTEM_CONFIG_MEDIA_TITLE_OVERLAY;

/** One privacy mask area: attributes Area1PosX to Area4Height. */
typedef struct SYSTEM_CONFIG_MEDIA_MASK_AREA {
  uint8_t PosX KOV_DEFAULT(255);
  uint8_t PosY KOV_DEFAULT(255);
  uint32_t Width KOV_DEFAULT(UINT32_MAX);  /**< Signed on the wire. */
  uint32_t Height KOV_DEFAULT(UINT32_MAX); /**< Signed on the wire. */
} SYSTEM_CONFIG_MEDIA_MASK_AREA;

/** Elements MainStream and SubStream inside Mask. */
typedef struct SYSTEM_CONFIG_MEDIA_MASK {
  SYSTEM_CONFIG_MEDIA_MASK_AREA Area[SYSTEM_CONFIG_MEDIA_MASK_AREAS];
} SYSTEM_CONFIG_MEDIA_MASK;

/** Element Encode inside Audio. */
typedef struct SYSTEM_CONFIG_MEDIA_AUDIO_ENCODE {
  uint8_t Enable KOV_DEFAULT(255);
  uint32_t SampleRate KOV_DEFAULT(UINT32_MAX); /**< Signed on the wire. */
  uint32_t BitRate KOV_DEFAULT(UINT32_MAX);    /**< Signed on the wire. */
  char EncodeType[32] KOV_EMPTY;
} SYSTEM_CONFIG_MEDIA_AUDIO_ENCODE;
/** @} */

/**
 * 500, 520: all media settings at once, element MediaConfig with Video and Audio. Its text is not well formed (an
 * "</Overlay>" too many, Audio ends in "</Aideo>"); cameras send and expect it so, and the XML reader knows it.
 */
typedef struct SYSTEM_CONFIG_GET_500_PARAM {
  SYSTEM_CONFIG_MEDIA_LIGHT LightConfig;
  SYSTEM_CONFIG_MEDIA_CAPTURE Capture;
  SYSTEM_CONFIG_MEDIA_ENCODE Encode;
  SYSTEM_CONFIG_MEDIA_IMAGE Image;
  SYSTEM_CONFIG_MEDIA_DEFOG DefogConfig;
  uint8_t WeightCoefficient KOV_DEFAULT(255); /**< Element DoubleLight. */
  SYSTEM_CONFIG_MEDIA_JPEG JpegConfig;
  SYSTEM_CONFIG_MEDIA_OVERLAY Overlay;
  SYSTEM_CONFIG_MEDIA_TIME_OVERLAY TimeOverlay;
  SYSTEM_CONFIG_MEDIA_TITLE_OVERLAY TitleOverlay;
  SYSTEM_CONFIG_MEDIA_MASK Mask[SYSTEM_CONFIG_MEDIA_STREAMS];
  uint8_t CaptureVolume KOV_DEFAULT(255); /**< Attribute Volume of Capture inside Audio. */
  SYSTEM_CONFIG_MEDIA_AUDIO_ENCODE AudioEncode;
  uint8_t PlayVolume KOV_DEFAULT(255); /**< Attribute Volume of Play inside Audio. */
} SYSTEM_CONFIG_GET_500_PARAM;

/** 501, 521: the video settings of one channel, element Video. */
typedef struct SYSTEM_CONFIG_GET_501_PARAM {
  SYSTEM_CONFIG_MEDIA_CAPTURE Capture;
  SYSTEM_CONFIG_MEDIA_ENCODE Encode;
  SYSTEM_CONFIG_MEDIA_IMAGE Image;
  uint8_t WeightCoefficient KOV_DEFAULT(255); /**< Element DoubleLight. */
  SYSTEM_CONFIG_MEDIA_JPEG JpegConfig;
  SYSTEM_CONFIG_MEDIA_MASK Mask[SYSTEM_CONFIG_MEDIA_STREAMS];
  SYSTEM_CONFIG_MEDIA_OVERLAY Overlay; /**< Left out with its two children while ChannelId is unset. */
  SYSTEM_CONFIG_MEDIA_TIME_OVERLAY TimeOverlay;
  SYSTEM_CONFIG_MEDIA_TITLE_OVERLAY TitleOverlay;
  char DefaultTitle[256] KOV_EMPTY;  /**< Element TitleOverlay. */
  int32_t ChannelId KOV_DEFAULT(-1); /**< Element Video, or REQUEST_PARAM of 501; also attribute ChanID of Overlay. */
  int32_t Status KOV_DEFAULT(-1);    /**< Not carried: once set, compose writes Capture, Encode and JpegConfig with
                                          empty values instead of the settings. */
} SYSTEM_CONFIG_GET_501_PARAM;

/** 502, 522, 527: the audio settings, element Audio. */
typedef struct SYSTEM_CONFIG_GET_502_PARAM {
  uint8_t CaptureVolume KOV_DEFAULT(255);      /**< Attribute Volume of Capture. */
  uint8_t CaptureDefVolume KOV_DEFAULT(255);   /**< 502: attribute DefVolume of Capture. */
  uint8_t Channels KOV_DEFAULT(255);           /**< 522, 527: element Capture, left out while unset. */
  uint8_t BitsPerSample KOV_DEFAULT(255);      /**< 522, 527: element Capture, left out while unset. */
  uint32_t SampleRate KOV_DEFAULT(UINT32_MAX); /**< 522, 527: element Capture, left out while unset. */
  SYSTEM_CONFIG_MEDIA_AUDIO_ENCODE Encode;
  uint8_t PlayVolume KOV_DEFAULT(255);    /**< Attribute Volume of Play. */
  uint8_t PlayDefVolume KOV_DEFAULT(255); /**< 502: attribute DefVolume of Play. */
} SYSTEM_CONFIG_GET_502_PARAM;

/** One stream of 523, element EncodeConfig. */
typedef struct SYSTEM_CONFIG_SET_523_STREAM {
  SYSTEM_CONFIG_MEDIA_STREAM Basic;
  uint8_t ImageQuality KOV_DEFAULT(255);
  uint8_t MotionLevel KOV_DEFAULT(255);
  uint8_t NoiseLevel KOV_DEFAULT(255);
  uint8_t Mode KOV_DEFAULT(255);
} SYSTEM_CONFIG_SET_523_STREAM;

/** 523: the encoding, element Encode. Each field of AdvanceEncodeConfig is left out while unset, the two times with
 * WDRMode; the three Default... fields are not carried. */
typedef struct SYSTEM_CONFIG_SET_523_PARAM {
  SYSTEM_CONFIG_SET_523_STREAM EncodeConfig[SYSTEM_CONFIG_MEDIA_STREAMS];
  SYSTEM_CONFIG_MEDIA_ADVANCE_ENCODE AdvanceEncodeConfig;
} SYSTEM_CONFIG_SET_523_PARAM;

/** 524: the image settings, element Video with Capture and AdvacedMediaConfig. */
typedef struct SYSTEM_CONFIG_SET_524_PARAM {
  SYSTEM_CONFIG_MEDIA_CAPTURE Capture;
  uint8_t XOffset KOV_DEFAULT(255);           /**< Element Capture. */
  uint8_t YOffset KOV_DEFAULT(255);           /**< Element Capture. */
  uint8_t SoftResDelayValue KOV_DEFAULT(255); /**< Element Capture. */
  SYSTEM_CONFIG_MEDIA_IMAGE Image;
  SYSTEM_CONFIG_MEDIA_DEFOG DefogConfig;
  uint8_t WeightCoefficient KOV_DEFAULT(255); /**< Element DoubleLight. */
} SYSTEM_CONFIG_SET_524_PARAM;

/** 525: the on-screen display, element Overlay with TimeOverlay and TitleOverlay. */
typedef struct SYSTEM_CONFIG_SET_525_PARAM {
  SYSTEM_CONFIG_MEDIA_OVERLAY Overlay;
  int32_t ChanID KOV_DEFAULT(-1); /**< Element Overlay, left out while unset. */
  SYSTEM_CONFIG_MEDIA_TIME_OVERLAY TimeOverlay;
  SYSTEM_CONFIG_MEDIA_TITLE_OVERLAY TitleOverlay;
} SYSTEM_CONFIG_SET_525_PARAM;

/** 542: dropping of frames, element DropFrameSwitch inside Encode. */
typedef struct SYSTEM_CONFIG_SET_542_PARAM {
  char Switch[32] KOV_EMPTY;
} SYSTEM_CONFIG_SET_542_PARAM;

/** @name Default fillers
 * Each sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record.
 * @{ */
KOV_API int SYSTEM_CONFIG_GET_500_PARAM_init(SYSTEM_CONFIG_GET_500_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_501_PARAM_init(SYSTEM_CONFIG_GET_501_PARAM *record);
KOV_API int SYSTEM_CONFIG_GET_502_PARAM_init(SYSTEM_CONFIG_GET_502_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_520_PARAM_init(SYSTEM_CONFIG_GET_500_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_521_PARAM_init(SYSTEM_CONFIG_GET_501_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_522_PARAM_init(SYSTEM_CONFIG_GET_502_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_523_PARAM_init(SYSTEM_CONFIG_SET_523_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_524_PARAM_init(SYSTEM_CONFIG_SET_524_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_525_PARAM_init(SYSTEM_CONFIG_SET_525_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_527_PARAM_init(SYSTEM_CONFIG_GET_502_PARAM *record);
KOV_API int SYSTEM_CONFIG_SET_542_PARAM_init(SYSTEM_CONFIG_SET_542_PARAM *record);
/** @} */

/** @name Analysis of one message
 * Each reads the setting's element (501 also REQUEST_PARAM) into a new record. Returns 0, or, with a line that begins
 * with the function's name: KOV_ERROR_EMPTY_ARGUMENT " put a empty Param\n"; KOV_ERROR_BAD_DOCUMENT
 * " Parse MsgBuf error\n", " get RootElement error\n" or " get MESSAGE_BODY error\n"; KOV_ERROR_NO_ELEMENT
 * " get Video error\n" with the element that is missing, but " get RESPONSE_PARAM error\n" where that is MediaConfig.
 * KOV_ERROR_NO_MEMORY goes with "Malloc Memory failed!\n".
 * @{ */
KOV_API int SystemConfig_getMediaconfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setMediaconfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getMediaVideoconfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setMediaVideoconfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_getMediaAudioconfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setMediaAudioconfig_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setMediaVideoencode_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setMediaCapture_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setMediaVideoOsd_MessageAnalysis(const char *xml, void **result);
KOV_API int SystemConfig_setMediaDrop_MessageAnalysis(const char *xml, void **result);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
