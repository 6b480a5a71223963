/**
 * @file ptz_control.h
 * @brief PTZ_CONTROL_MESSAGE: pan, tilt, zoom, focus and iris of one channel, its presets, watch guard, orbits and
 * loci.
 *
 * Msg_code is always PTZ_CONTROL_MESSAGE_CODE. The message is chosen by a sub-command: a text in the record, and on the
 * wire the text of the element `cmd` in the element `xml`. Most values are texts of elements beside `cmd`, named as
 * their field. The records below are the parameter blocks that `pExData` points at. An integer of -1 (255 in 8 bits,
 * all ones unsigned) and an empty text are unset.
 *
 *  Sub-commands                                             | Parameter block                           | Direction
 *  ---------------------------------------------------------|-------------------------------------------|----------
 *  getCurPos                                                | PTZ_CONTROL_PTZ_CMD_GETCURPOS_PARAM       | response
 *  setCurPos                                                | PTZ_CONTROL_PTZ_CMD_GETCURPOS_PARAM       | request
 *  GetLocateCfg                                             | PTZ_CONTROL_PTZ_CMD_GETLOCATECFG_PARAM    | response
 *  SetLocateCfg                                             | PTZ_CONTROL_PTZ_CMD_GETLOCATECFG_PARAM    | request
 *  ManualLocate                                             | PTZ_CONTROL_PTZ_CMD_MANUALLOCATE_PARAM    | request
 *  setpreset, clearpreset, callpreset                       | PTZ_CONTROL_PTZ_CMD_SETPRESET_PARAM       | request
 *  GetPresetList, GetPresetListEx                           | PTZ_CONTROL_PTZ_CMD_GETPRESETLIST_PARAM   | response
 *  SetPresetListEx, SetWatchGuard, GetWatchGuard            | PTZ_CONTROL_PTZ_CMD_SETWATCHGUARD_PARAM   | request
 *  DeleteWatchGuard, CallWatchGuard, StopOrbit, StopLocus   | none                                      |
 *  ScanBegin, ScanEnd, ScanOn, ScanOff                      | none                                      |
 *  GetOrbitList                                             | PTZ_CONTROL_PTZ_CMD_GETORBITLIST_PARAM    | response
 *  AutoOrbit                                                | PTZ_CONTROL_PTZ_CMD_AUTOORBIT_PARAM       | request
 *  AddOrbit, ClearOrbit                                     | PTZ_CONTROL_PTZ_CMD_ADDORBIT_PARAM        | request
 *  GetLocusList                                             | PTZ_CONTROL_PTZ_CMD_GETLOCUSLIST_PARAM    | response
 *  SetLocus                                                 | PTZ_CONTROL_PTZ_CMD_SETLOCUS_PARAM        | request
 *  trans                                                    | PTZ_CONTROL_PTZ_CMD_TRANS_PARAM           | request
 *  RecordLocus, StopRecordLocus, StartLocus                 | PTZ_CONTROL_PTZ_CMD_RECORDLOCUS_PARAM     | request
 *  movement, zoom, focus and iris                           | PTZ_CONTROL_PTZ_CMD_SPEED_PARAM, optional | both
 *
 * The named direction is the one that carries the block, and compose needs `pExData` only there. The request of a
 * sub-command whose response carries the block is `cmd` alone; the response of one whose request carries it is empty.
 */
#ifndef KOV_PROTOCOL_PTZ_CONTROL_H
#define KOV_PROTOCOL_PTZ_CONTROL_H

#include "kov_protocol/kov_protocol.h"

#ifdef __cplusplus
extern "C" {
#endif

#define PTZ_CONTROL_MESSAGE_TYPE "PTZ_CONTROL_MESSAGE"
#define PTZ_CONTROL_MESSAGE_CODE "PTZ_CMD" /**< The only Msg_code of the family. */

/**
 * The command record.
 *
 * For compose, `pExData` points at the block of the sub-command and stays the caller's. In a record that analysis hands
 * out, the block lies directly behind the record in the same allocation, or `pExData` is null when the sub-command has
 * none.
 *
 * Which block analysis fills is decided by the name found in the document, see PtzControlMessageAnalysis(). Where `cmd`
 * names another sub-command, the memory behind the record is large enough for the block of that one too, and zero
 * behind the filled one.
 */
typedef struct PTZ_CONTROL_PTZ_CMD_PARAM {
  int32_t channelid KOV_DEFAULT(-1); /**< Element before `xml`, in the texts that carry it; left out while unset. */
  int32_t reserved KOV_DEFAULT(0);
  char cmd[32] KOV_EMPTY; /**< The sub-command, compared exactly. */
  void *pExData KOV_DEFAULT(nullptr);
} PTZ_CONTROL_PTZ_CMD_PARAM;

/** getCurPos, setCurPos: an absolute position. */
typedef struct PTZ_CONTROL_PTZ_CMD_GETCURPOS_PARAM {
  int32_t x KOV_DEFAULT(-1);
  int32_t y KOV_DEFAULT(-1);
  int32_t mul KOV_DEFAULT(-1);
  int32_t maxMul KOV_DEFAULT(-1); /**< getCurPos only. */
} PTZ_CONTROL_PTZ_CMD_GETCURPOS_PARAM;

/**
 * GetLocateCfg, SetLocateCfg: attributes of the element that is named as the sub-command. GetLocateCfg answers with
 * that element alone, without `xml`; SetLocateCfg has it in place of `cmd` and carries only `status` and `time_now`.
 */
typedef struct PTZ_CONTROL_PTZ_CMD_GETLOCATECFG_PARAM {
  uint8_t status KOV_DEFAULT(255);
  uint8_t track_time_enable KOV_DEFAULT(255);
  int32_t time_min KOV_DEFAULT(-1);
  int32_t time_max KOV_DEFAULT(-1);
  int32_t time_step KOV_DEFAULT(-1);
  int32_t time_now KOV_DEFAULT(-1);
} PTZ_CONTROL_PTZ_CMD_GETLOCATECFG_PARAM;

/** ManualLocate: a rectangle in a picture, attributes of the element ManualLocate in place of `cmd`. */
typedef struct PTZ_CONTROL_PTZ_CMD_MANUALLOCATE_PARAM {
  uint8_t status KOV_DEFAULT(255);
  uint32_t left_top_x KOV_DEFAULT(UINT32_MAX);
  uint32_t left_top_y KOV_DEFAULT(UINT32_MAX);
  uint32_t right_down_x KOV_DEFAULT(UINT32_MAX);
  uint32_t right_down_y KOV_DEFAULT(UINT32_MAX);
  uint32_t width KOV_DEFAULT(UINT32_MAX);  /**< Of the picture. */
  uint32_t height KOV_DEFAULT(UINT32_MAX); /**< Of the picture. */
} PTZ_CONTROL_PTZ_CMD_MANUALLOCATE_PARAM;

/** setpreset, clearpreset, callpreset. */
typedef struct PTZ_CONTROL_PTZ_CMD_SETPRESET_PARAM {
  int32_t preset KOV_DEFAULT(-1);
  int32_t flag KOV_DEFAULT(-1);
} PTZ_CONTROL_PTZ_CMD_SETPRESET_PARAM;

/** SetPresetListEx: names a preset. SetWatchGuard, GetWatchGuard: the guard's text. Also one entry of a preset list. */
typedef struct PTZ_CONTROL_PTZ_CMD_SETWATCHGUARD_PARAM {
  char name[32] KOV_EMPTY;      /**< Not carried by the watch guard. */
  char preset_id[64] KOV_EMPTY; /**< The watch guard's text: element `guard`. */
} PTZ_CONTROL_PTZ_CMD_SETWATCHGUARD_PARAM;

#define PTZ_CONTROL_PRESETS 256 /**< Entries of a preset list. */

/**
 * GetPresetList, GetPresetListEx.
 *
 * GetPresetList answers with plain text, the number of presets and their ids, a caret behind each: "3^1^2^5^".
 * Analysis keeps that text in `list` (its first 1023 bytes) and takes the number in front as the count, up to 256. Text
 * without a number in front leaves `count` unset. Compose writes `count` and the ids, or, while `count` is unset,
 * `list` as it stands; when that is empty too, it tells "PTZ_CONTROL_MESSAGE deal cmd : %s get the pExData is NULL\n"
 * and composes an empty body.
 *
 * GetPresetListEx answers with the elements `preset_id` and `name`, each a text with a caret behind each item, and
 * `guard`; `list` stays out of it.
 */
typedef struct PTZ_CONTROL_PTZ_CMD_GETPRESETLIST_PARAM {
  int32_t guard KOV_DEFAULT(-1); /**< GetPresetListEx only. */
  int32_t count KOV_DEFAULT(-1); /**< Entries of `preset`. Compose takes more than 256 as 256. */
  PTZ_CONTROL_PTZ_CMD_SETWATCHGUARD_PARAM preset[PTZ_CONTROL_PRESETS] KOV_EMPTY;
  char list[1024] KOV_EMPTY; /**< GetPresetList only. */
} PTZ_CONTROL_PTZ_CMD_GETPRESETLIST_PARAM;

/**
 * up, down, left, right, left_up, right_up, left_down, right_down, auto, stop, ptz_reset, zoomtele, zoomwide,
 * FocusNearAutoOff, FocusFarAutoOff, IrisOpenAutoOff, IrisCloseAutoOff: one text for both directions, which carries
 * both speeds when there is a block. Analysis always hands one out.
 */
typedef struct PTZ_CONTROL_PTZ_CMD_SPEED_PARAM {
  int32_t panspeed KOV_DEFAULT(-1);
  int32_t tiltspeed KOV_DEFAULT(-1);
} PTZ_CONTROL_PTZ_CMD_SPEED_PARAM;

/** AutoOrbit: runs an orbit. */
typedef struct PTZ_CONTROL_PTZ_CMD_AUTOORBIT_PARAM {
  int32_t orbit_id KOV_DEFAULT(-1);
  int32_t orbit_type KOV_DEFAULT(-1);
} PTZ_CONTROL_PTZ_CMD_AUTOORBIT_PARAM;

/** AddOrbit, ClearOrbit: adds a point to an orbit, or takes one away. */
typedef struct PTZ_CONTROL_PTZ_CMD_ADDORBIT_PARAM {
  int32_t orbit_id KOV_DEFAULT(-1);
  int32_t orbit_type KOV_DEFAULT(-1);
  int32_t preset_id KOV_DEFAULT(-1);     /**< AddOrbit only. */
  int32_t preset_index KOV_DEFAULT(-1);  /**< ClearOrbit only. */
  uint32_t time KOV_DEFAULT(UINT32_MAX); /**< AddOrbit only. */
} PTZ_CONTROL_PTZ_CMD_ADDORBIT_PARAM;

#define PTZ_CONTROL_ORBIT_POINTS 32 /**< Points of one line of an orbit list. */
#define PTZ_CONTROL_ORBIT_LINES 8   /**< Lines of each of its two tables. */

/** A point of an orbit: one item "[preset:time]," of a line. */
typedef struct PTZ_CONTROL_ORBIT_POINT {
  char preset[32] KOV_EMPTY;
  int32_t time KOV_DEFAULT(-1);
} PTZ_CONTROL_ORBIT_POINT;

/** A line of an orbit list. A line whose `count` is unset is left out; it does not move the numbers of the others. */
typedef struct PTZ_CONTROL_ORBIT_LINE {
  int32_t count KOV_DEFAULT(-1);
  PTZ_CONTROL_ORBIT_POINT point[PTZ_CONTROL_ORBIT_POINTS] KOV_EMPTY;
} PTZ_CONTROL_ORBIT_LINE;

/**
 * GetOrbitList: the first eight fields are attributes of the element GetOrbitList. The lines are attributes of
 * `normal_line_data`, named "lind_%d", and of `track_line_data`, named "line_%d", numbered from 1.
 *
 * Compose writes as many lines as a count says and its table holds. Analysis sets a count to the highest number it
 * found; items that are not "[text:number]" and what goes beyond the tables are left out.
 */
typedef struct PTZ_CONTROL_PTZ_CMD_GETORBITLIST_PARAM {
  int32_t time_min KOV_DEFAULT(-1);
  int32_t time_max KOV_DEFAULT(-1);
  int32_t preset_max KOV_DEFAULT(-1);
  int32_t normal_line_max KOV_DEFAULT(-1);
  int32_t track_time_min KOV_DEFAULT(-1);
  int32_t track_time_max KOV_DEFAULT(-1);
  int32_t tarck_time_step KOV_DEFAULT(-1); /**< Spelt so on the wire. */
  int32_t track_line_max KOV_DEFAULT(-1);
  int32_t normal_line_count KOV_DEFAULT(-1);
  int32_t track_line_count KOV_DEFAULT(-1);
  PTZ_CONTROL_ORBIT_LINE normal_line[PTZ_CONTROL_ORBIT_LINES] KOV_EMPTY;
  PTZ_CONTROL_ORBIT_LINE track_line[PTZ_CONTROL_ORBIT_LINES] KOV_EMPTY;
} PTZ_CONTROL_PTZ_CMD_GETORBITLIST_PARAM;

/** SetLocus. */
typedef struct PTZ_CONTROL_PTZ_CMD_SETLOCUS_PARAM {
  int32_t locus_id KOV_DEFAULT(-1);
  int32_t locus_type KOV_DEFAULT(-1);
} PTZ_CONTROL_PTZ_CMD_SETLOCUS_PARAM;

/** RecordLocus, StopRecordLocus, StartLocus. */
typedef struct PTZ_CONTROL_PTZ_CMD_RECORDLOCUS_PARAM {
  int32_t locus_id KOV_DEFAULT(-1);
} PTZ_CONTROL_PTZ_CMD_RECORDLOCUS_PARAM;

#define PTZ_CONTROL_LOCI 32 /**< Lines of a locus list. */

/** A locus: its three numbers are a convention of the device. It is left out while all three are unset. */
typedef struct PTZ_CONTROL_LOCUS_LINE {
  int32_t first KOV_DEFAULT(-1);
  int32_t second KOV_DEFAULT(-1);
  int32_t third KOV_DEFAULT(-1);
} PTZ_CONTROL_LOCUS_LINE;

/**
 * GetLocusList: `line_max` is an attribute of the element GetLocusList; the lines are attributes of `line_data`, named
 * "line_%d" and numbered from 1. The count goes as in an orbit list.
 */
typedef struct PTZ_CONTROL_PTZ_CMD_GETLOCUSLIST_PARAM {
  int32_t line_max KOV_DEFAULT(-1);
  int32_t line_count KOV_DEFAULT(-1);
  PTZ_CONTROL_LOCUS_LINE line[PTZ_CONTROL_LOCI] KOV_EMPTY;
} PTZ_CONTROL_PTZ_CMD_GETLOCUSLIST_PARAM;

/** trans: a text for the device behind the channel, carried unread. Compose also takes any NUL-terminated
 * text, of which at most 1024 bytes travel. */
typedef struct PTZ_CONTROL_PTZ_CMD_TRANS_PARAM {
  char data[1024] KOV_EMPTY;
} PTZ_CONTROL_PTZ_CMD_TRANS_PARAM;

/** @name Default fillers
 * Each sets every field to its default and returns 0, or returns KOV_ERROR_NULL for a null record.
 * @{ */
/** Sets `pExData` to null. */
KOV_API int PTZ_CONTROL_PTZ_CMD_PARAM_init(PTZ_CONTROL_PTZ_CMD_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_GETCURPOS_PARAM_init(PTZ_CONTROL_PTZ_CMD_GETCURPOS_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_SETCURPOS_PARAM_init(PTZ_CONTROL_PTZ_CMD_GETCURPOS_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_GETLOCATECFG_PARAM_init(PTZ_CONTROL_PTZ_CMD_GETLOCATECFG_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_SETLOCATECFG_PARAM_init(PTZ_CONTROL_PTZ_CMD_GETLOCATECFG_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_MANUALLOCATE_PARAM_init(PTZ_CONTROL_PTZ_CMD_MANUALLOCATE_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_SETPRESET_PARAM_init(PTZ_CONTROL_PTZ_CMD_SETPRESET_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_CLEARPRESET_PARAM_init(PTZ_CONTROL_PTZ_CMD_SETPRESET_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_CALLPRESET_PARAM_init(PTZ_CONTROL_PTZ_CMD_SETPRESET_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_GETPRESETLIST_PARAM_init(PTZ_CONTROL_PTZ_CMD_GETPRESETLIST_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_GETPRESETLISTEX_PARAM_init(PTZ_CONTROL_PTZ_CMD_GETPRESETLIST_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_SETWATCHGUARD_PARAM_init(PTZ_CONTROL_PTZ_CMD_SETWATCHGUARD_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_GETWATCHGUARD_PARAM_init(PTZ_CONTROL_PTZ_CMD_SETWATCHGUARD_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_SETPRESETLISTEX_PARAM_init(PTZ_CONTROL_PTZ_CMD_SETWATCHGUARD_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_GETORBITLIST_PARAM_init(PTZ_CONTROL_PTZ_CMD_GETORBITLIST_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_AUTOORBIT_PARAM_init(PTZ_CONTROL_PTZ_CMD_AUTOORBIT_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_ADDORBIT_PARAM_init(PTZ_CONTROL_PTZ_CMD_ADDORBIT_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_CLEARORBIT_PARAM_init(PTZ_CONTROL_PTZ_CMD_ADDORBIT_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_GETLOCUSLIST_PARAM_init(PTZ_CONTROL_PTZ_CMD_GETLOCUSLIST_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_SETLOCUS_PARAM_init(PTZ_CONTROL_PTZ_CMD_SETLOCUS_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_TRANS_PARAM_init(PTZ_CONTROL_PTZ_CMD_TRANS_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_RECORDLOCUS_PARAM_init(PTZ_CONTROL_PTZ_CMD_RECORDLOCUS_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_STOPRECORDLOCUS_PARAM_init(PTZ_CONTROL_PTZ_CMD_RECORDLOCUS_PARAM *record);
KOV_API int PTZ_CONTROL_PTZ_CMD_STARTLOCUS_PARAM_init(PTZ_CONTROL_PTZ_CMD_RECORDLOCUS_PARAM *record);
/** @} */

/**
 * Composes the body text of the sub-command in `cmd`.
 * @param param    a PTZ_CONTROL_PTZ_CMD_PARAM, null composes nothing
 * @param body     receives NUL-terminated text, cut to `bodySize`; untouched when the message has no text
 * @param bodySize bytes of `body`
 * @return 0, or
 *   - KOV_ERROR_EMPTY_ARGUMENT: "PTZ_CONTROL_MESSAGE put a empty Param\n"; "PTZ_CONTROL_MESSAGE put a empty cmd,
 * Error\n"; "PTZ_CONTROL_MESSAGE deal cmd : %s get the pExData is NULL\n" when the block is needed
 *   - KOV_ERROR_UNKNOWN_MESSAGE: "PTZ_CONTROL_MESSAGE deal a unknow cmd : %s\n". The compose entry gives it, too, for
 * any Msg_code but PTZ_CONTROL_MESSAGE_CODE: "PTZ_CONTROL_MESSAGE deal a unknow Msg_code:%s !!!\n"
 */
KOV_API int PtzControlMessageCompose(const void *param, int direction, char *body, int bodySize);

/**
 * Reads a command record and its block out of a NUL-terminated document, whatever its Msg_code.
 *
 * The sub-command is the first, in the order of the table above (names from left to right), whose name occurs anywhere
 * in the document, header included; the scan commands are not looked for. A document without any of the names, but with
 * a caret, is a preset list.
 *
 * @param result receives a record that the caller owns and hands to KovProtocolMSGAnalysisStop(); untouched on failure,
 *   but null when the allocation failed
 * @return 0, or KOV_ERROR_EMPTY_ARGUMENT "PTZ_CONTROL_MESSAGE put a empty Param\n", KOV_ERROR_UNKNOWN_MESSAGE
 *   "PTZ_CONTROL_MESSAGE deal a unknow cmd \n", or the codes of the sub-command's own function
 */
KOV_API int PtzControlMessageAnalysis(const char *xml, void **result);

/** @name Analysis of one sub-command
 * Each reads `channelid`, `cmd` and the values into a new record with its block behind it. The replies of GetLocateCfg,
 * GetOrbitList and GetLocusList, and SetLocateCfg and ManualLocate, carry no `cmd`; the record then gets that name.
 * GetPresetList sets its name always. Returns 0, or, with a line that begins with the function's name:
 * KOV_ERROR_EMPTY_ARGUMENT " put a empty Param\n"; KOV_ERROR_BAD_DOCUMENT " Parse MsgBuf error\n",
 * " get RootElement error\n" or " get MESSAGE_BODY error\n"; KOV_ERROR_NO_ELEMENT " get xml error\n", but not from
 * GetLocateCfg, GetPresetList, GetOrbitList and GetLocusList, whose replies have no `xml`. KOV_ERROR_NO_MEMORY goes
 * with "Malloc Memory failed!\n".
 * @{ */
KOV_API int PtzControlgetCurPos_MessageAnalysis(const char *xml, void **result);
KOV_API int PtzControlsetCurPos_MessageAnalysis(const char *xml, void **result);
KOV_API int PtzControlGetLocateCfg_MessageAnalysis(const char *xml, void **result);
KOV_API int PtzControlSetLocateCfg_MessageAnalysis(const char *xml, void **result);
KOV_API int PtzControlManualLocate_MessageAnalysis(const char *xml, void **result);
/** setpreset, clearpreset, callpreset. */
KOV_API int PtzControlpresetCmd_MessageAnalysis(const char *xml, void **result);
KOV_API int PtzControlGetPresetList_MessageAnalysis(const char *xml, void **result);
KOV_API int PtzControlGetPresetListEx_MessageAnalysis(const char *xml, void **result);
KOV_API int PtzControlSetPresetListEx_MessageAnalysis(const char *xml, void **result);
/** SetWatchGuard, GetWatchGuard. */
KOV_API int PtzControlWatchGuard_MessageAnalysis(const char *xml, void **result);
/** The sub-commands without a block. */
KOV_API int PtzControlptzCmd_MessageAnalysis(const char *xml, void **result);
KOV_API int PtzControlGetOrbitList_MessageAnalysis(const char *xml, void **result);
KOV_API int PtzControlAutoOrbit_MessageAnalysis(const char *xml, void **result);
KOV_API int PtzControlAddOrbit_MessageAnalysis(const char *xml, void **result);
KOV_API int PtzControlClearOrbit_MessageAnalysis(const char *xml, void **result);
KOV_API int PtzControlGetLocusList_MessageAnalysis(const char *xml, void **result);
KOV_API int PtzControlSetLocus_MessageAnalysis(const char *xml, void **result);
KOV_API int PtzControlTrans_MessageAnalysis(const char *xml, void **result);
/** RecordLocus, StopRecordLocus, StartLocus. */
KOV_API int PtzControlLocusCmd_MessageAnalysis(const char *xml, void **result);
/** Movement, zoom, focus and iris. */
KOV_API int PtzControlptzControl_MessageAnalysis(const char *xml, void **result);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
