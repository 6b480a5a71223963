/**
 * @file media_data.h
 * @brief MEDIA_DATA_MESSAGE: pieces of binary data that travel behind the document, and what asks for them.
 *
 * Msg_code is a decimal number from 1 to 8. The application sends the piece itself, DataLen bytes and an end code of 4
 * bytes, behind the composed frame, whose length counts both. In every record an integer of -1 and an empty text are
 * unset, and the fields travel as attributes of their own name.
 *
 * Analysis needs the element POS (DeleteFaceData: DataInfo) and reads every other element of the code that is there,
 * in both directions. Bodies without POS are therefore composed, but not read back: all of codes 7 and 8, and the
 * responses of 1, 2, 4 without ChannelId and 5 without DataLen. Received lengths and positions are what the peer says:
 * check them against what was received before using them.
 */
#ifndef KOV_PROTOCOL_MEDIA_DATA_H
#define KOV_PROTOCOL_MEDIA_DATA_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

#define MEDIA_DATA_MESSAGE_TYPE "MEDIA_DATA_MESSAGE"

#define MEDIA_DATA_MAX_FACES 100 /**< Entries of a face list. */
#define MEDIA_DATA_MAX_TIMES 20  /**< Entries of a time list. */

/** 1 UploadData: a piece of a file. */
typedef struct MEDIA_DATA_1_PARAM {
  int32_t StartPos KOV_DEFAULT(-1); /**< Request, POS. */
  int32_t DataLen KOV_DEFAULT(-1);  /**< Request, POS. */
  int32_t Type KOV_DEFAULT(-1);     /**< Response, RESPONSE_PARAM, which is left out while this is unset. */
} MEDIA_DATA_1_PARAM;

/** 2 DownloadData: a piece of a file, and the answer that it arrived. */
typedef struct MEDIA_DATA_2_PARAM {
  int32_t StartPos KOV_DEFAULT(-1);  /**< Request: POS; response: RESPONSE_PARAM. */
  int32_t DataLen KOV_DEFAULT(-1);   /**< Request, POS. */
  int32_t ErrorCode KOV_DEFAULT(-1); /**< Response, RESPONSE_PARAM. */
  int32_t reserved KOV_DEFAULT(-1);
  char RemoteFileName[256] KOV_EMPTY; /**< Response, RESPONSE_PARAM. */
  char LocalFileName[256] KOV_EMPTY;  /**< Response, RESPONSE_PARAM. */
} MEDIA_DATA_2_PARAM;

/** 3 IntercomData: a piece of talk-back sound. It has no response body. */
typedef struct MEDIA_DATA_3_PARAM {
  int32_t StartPos KOV_DEFAULT(-1); /**< POS. */
  int32_t DataLen KOV_DEFAULT(-1);  /**< POS. */
  int32_t XmlLen KOV_DEFAULT(-1);   /**< POS, left out while unset. */
} MEDIA_DATA_3_PARAM;

/**
 * 4 IntelligentPicData: a picture of the analytics. A request has POS and DataInfo; a response with ChannelId has
 * RESPONSE_PARAM and POS, any other DataInfo alone.
 */
typedef struct MEDIA_DATA_4_PARAM {
  int32_t ChannelId KOV_DEFAULT(-1);          /**< Response, RESPONSE_PARAM, which 255 leaves out. */
  int32_t DataType KOV_DEFAULT(-1);           /**< DataInfo. */
  int32_t DataTotalLen KOV_DEFAULT(-1);       /**< DataInfo. */
  int32_t StartPos KOV_DEFAULT(-1);           /**< POS. */
  int32_t DataLen KOV_DEFAULT(-1);            /**< POS. */
  int32_t XmlLen KOV_DEFAULT(-1);             /**< Response, POS. */
  uint32_t Timestamp KOV_DEFAULT(UINT32_MAX); /**< DataInfo. */
  uint32_t SerialNum KOV_DEFAULT(UINT32_MAX); /**< DataInfo. */
  char DataName[1024] KOV_EMPTY;              /**< DataInfo. */
} MEDIA_DATA_4_PARAM;

/** 5 ExportFaceListData: one face of an exported list. */
typedef struct MEDIA_DATA_5_PARAM {
  int32_t ChannelId KOV_DEFAULT(-1);          /**< Response, RESPONSE_PARAM, which is left out while this is unset. */
  int32_t StartPos KOV_DEFAULT(-1);           /**< POS. */
  int32_t DataLen KOV_DEFAULT(-1);            /**< POS, which a response leaves out while this is unset. */
  int32_t XmlLen KOV_DEFAULT(-1);             /**< Response, POS. */
  uint32_t SerialNum KOV_DEFAULT(UINT32_MAX); /**< Request, DataInfo. */
  int32_t reserved KOV_DEFAULT(-1);
  char Alias[128] KOV_EMPTY;        /**< Request, DataInfo. */
  int32_t DataNum KOV_DEFAULT(-1);  /**< Request, DataInfo. */
  int32_t ListType KOV_DEFAULT(-1); /**< Request, DataInfo. */
} MEDIA_DATA_5_PARAM;

/** A face of a list: HumanFaceInfo. */
typedef struct MEDIA_DATA_FACE {
  uint32_t SerialNum KOV_DEFAULT(UINT32_MAX); /**< While unset the list ends before this entry. */
  int32_t reserved KOV_DEFAULT(-1);
  char Alias[128] KOV_EMPTY;
} MEDIA_DATA_FACE;

/** 6 DeleteFaceData, 7 GetFaceListData: a face list; request of the former, response of the latter. */
typedef struct MEDIA_DATA_6_PARAM {
  int32_t TotalData KOV_DEFAULT(-1); /**< 7 only, DataInfo. */
  int32_t DataNum KOV_DEFAULT(-1);   /**< DataInfo; composes at most so many of `Faces`. */
  int32_t reserved KOV_DEFAULT(-1);
  int32_t ListType KOV_DEFAULT(-1); /**< DataInfo. */
  MEDIA_DATA_FACE Faces[MEDIA_DATA_MAX_FACES];
} MEDIA_DATA_6_PARAM;

typedef MEDIA_DATA_6_PARAM MEDIA_DATA_7_PARAM;

/** 8 GetAlarmThumbail: asks for the pictures of some times, and sends one. */
typedef struct MEDIA_DATA_8_PARAM {
  int32_t TotalLen KOV_DEFAULT(-1); /**< Response, ImageInfo. */
  int32_t StartPos KOV_DEFAULT(-1); /**< Response, ImageInfo; also read from POS. */
  int32_t DataLen KOV_DEFAULT(-1);  /**< Response, ImageInfo; also read from POS. */
  int32_t reserved1 KOV_DEFAULT(0);
  char TimeList[MEDIA_DATA_MAX_TIMES][16] KOV_EMPTY; /**< Request: REQUEST_PARAM TimeList, up to the first empty entry,
                                                          a comma behind each. Response: the first entry is
                                                          RESPONSE_PARAM Time. */
  char reserved2[320] KOV_EMPTY;
  char reserved3[320] KOV_EMPTY;
  int32_t reserved4 KOV_DEFAULT(0);
} MEDIA_DATA_8_PARAM;

/** @name Default fillers
 * Each sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record.
 * @{ */
KOV_API int MEDIA_DATA_1_PARAM_init(MEDIA_DATA_1_PARAM *record);
KOV_API int MEDIA_DATA_2_PARAM_init(MEDIA_DATA_2_PARAM *record);
KOV_API int MEDIA_DATA_3_PARAM_init(MEDIA_DATA_3_PARAM *record);
KOV_API int MEDIA_DATA_4_PARAM_init(MEDIA_DATA_4_PARAM *record);
KOV_API int MEDIA_DATA_5_PARAM_init(MEDIA_DATA_5_PARAM *record);
KOV_API int MEDIA_DATA_6_PARAM_init(MEDIA_DATA_6_PARAM *record);
KOV_API int MEDIA_DATA_7_PARAM_init(MEDIA_DATA_7_PARAM *record);
KOV_API int MEDIA_DATA_8_PARAM_init(MEDIA_DATA_8_PARAM *record);
/** @} */

/**
 * Composes the body text of one message of the family.
 * @param param    the record of the message, null composes nothing
 * @param body     receives NUL-terminated text, cut to `bodySize`; untouched when the message has no text
 * @param bodySize bytes of `body`
 * @param extraLen raised by 4 + DataLen (modulo 2^32) for a body with POS or ImageInfo: the bytes that the application
 *                 sends behind the document
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "MEDIA_DATA_MESSAGE put a empty Param\n" (also for a null `extraLen`),
 *   KOV_ERROR_UNKNOWN_MESSAGE "MEDIA_DATA_MESSAGE deal a unknow msg_cdoe : %d\n"
 */
KOV_API int MediaDataMessageCompose(const void *param, int direction, const char *msgCode, char *body, int bodySize,
                                    uint32_t *extraLen);

/**
 * Reads the record of one message of the family out of a NUL-terminated document.
 * @param totalLen length of the whole received message, document and piece
 * @param result   receives a record that the caller owns and hands to KovProtocolMSGAnalysisStop(); untouched on
 *   failure, but null when the allocation failed
 * @return 0, the two codes of MediaDataMessageCompose(), or those of the message's own function
 */
KOV_API int MediaDataMessageAnalysis(const char *xml, const char *msgCode, int totalLen, void **result);

/** @name Analysis of one message
 * Each reads a new record. Returns 0, or, with a line that begins with the function's name: KOV_ERROR_EMPTY_ARGUMENT
 * " put a empty Param\n"; KOV_ERROR_BAD_DOCUMENT " Parse MsgBuf error\n", " get RootElement error\n" or
 * " get MESSAGE_BODY error\n"; KOV_ERROR_NO_ELEMENT " get POS error\n" (DeleteFaceData " get DataInfo error\n").
 * KOV_ERROR_NO_MEMORY goes with "Malloc Memory failed!\n".
 * @{ */
KOV_API int MediaData_UploadData_MessageAnalysis(const char *xml, void **result);
KOV_API int MediaData_DownloadData_MessageAnalysis(const char *xml, void **result);
/**
 * Besides the above KOV_ERROR_SIZE " date size error : xmllen(%d) datalen(%d) endcode(%d) all(%d)\n" unless the
 * document, DataLen bytes and the end code make up exactly `totalLen`. DataLen must be there and not negative.
 */
KOV_API int MediaData_IntercomData_MessageAnalysis(const char *xml, int totalLen, void **result);
KOV_API int MediaData_IntelligentPicData_MessageAnalysis(const char *xml, void **result);
KOV_API int MediaData_ExportFaceListData_MessageAnalysis(const char *xml, void **result);
KOV_API int MediaData_DeleteFaceData_MessageAnalysis(const char *xml, void **result);
KOV_API int MediaData_GetFaceListData_MessageAnalysis(const char *xml, void **result);
KOV_API int MediaData_GetAlarmThumbail_MessageAnalysis(const char *xml, void **result);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
