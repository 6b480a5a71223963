// The sub-commands with a value or two: positions, location, presets, watch guard, movement.
#include "ptz/sub_command.h"

namespace kov {
namespace {

constexpr unsigned kCommand = PtzForm::kXml | PtzForm::kCmd;
constexpr unsigned kChannelCommand = PtzForm::kChannel | kCommand;

using Position = PTZ_CONTROL_PTZ_CMD_GETCURPOS_PARAM;
using LocateCfg = PTZ_CONTROL_PTZ_CMD_GETLOCATECFG_PARAM;
using ManualLocate = PTZ_CONTROL_PTZ_CMD_MANUALLOCATE_PARAM;
using Preset = PTZ_CONTROL_PTZ_CMD_SETPRESET_PARAM;
using PresetEntry = PTZ_CONTROL_PTZ_CMD_SETWATCHGUARD_PARAM;
using Speed = PTZ_CONTROL_PTZ_CMD_SPEED_PARAM;
using Trans = PTZ_CONTROL_PTZ_CMD_TRANS_PARAM;

static_assert(sizeof(Position) == 16);
static_assert(sizeof(LocateCfg) == 20);
static_assert(sizeof(ManualLocate) == 28);
static_assert(sizeof(Preset) == 8);
static_assert(sizeof(PresetEntry) == 96);
static_assert(sizeof(PTZ_CONTROL_PTZ_CMD_PARAM) == 40 + sizeof(void*));

void position(BodyIo& io, Position& r) { io.texts({{"x", r.x}, {"y", r.y}, {"mul", r.mul}, {"maxMul", r.maxMul}}); }

void newPosition(BodyIo& io, Position& r) { io.texts({{"x", r.x}, {"y", r.y}, {"mul", r.mul}}); }

// The times of the location are written signed, but read unsigned.
template <std::size_t Size>
Attribute time(const char (&name)[Size], std::int32_t& field) {
  return attr(name, reinterpret_cast<std::uint32_t&>(field)).asSigned();
}

void locateCfg(BodyIo& io, LocateCfg& r) {
  io.element("GetLocateCfg", {{"status", r.status},
                              {"track_time_enable", r.track_time_enable},
                              time("time_min", r.time_min),
                              time("time_max", r.time_max),
                              time("time_step", r.time_step),
                              time("time_now", r.time_now)});
}

void newLocateCfg(BodyIo& io, LocateCfg& r) {
  io.element("SetLocateCfg", {{"status", r.status}, time("time_now", r.time_now)});
}

void manualLocate(BodyIo& io, ManualLocate& r) {
  io.element("ManualLocate", {{"status", r.status},
                              {"left_top_x", r.left_top_x},
                              {"left_top_y", r.left_top_y},
                              {"right_down_x", r.right_down_x},
                              {"right_down_y", r.right_down_y},
                              {"width", r.width},
                              {"height", r.height}});
}

void preset(BodyIo& io, Preset& r) { io.texts({{"preset", r.preset}, {"flag", r.flag}}); }

void presetName(BodyIo& io, PresetEntry& r) { io.texts({{"preset_id", r.preset_id}, {"name", r.name}}); }

// The guard's text travels in the field that names a preset elsewhere.
void watchGuard(BodyIo& io, PresetEntry& r) { io.texts({{"guard", r.preset_id}}); }

void speed(BodyIo& io, Speed& r) {
  io.texts({attr("panspeed", r.panspeed).thenNothing(), attr("tiltspeed", r.tiltspeed).thenNothing()});
}

void trans(BodyIo& io, Trans& r) { io.texts({{"data", r.data}}); }

constexpr PtzForm kMove = ptzForm<speed, Speed>(kChannelCommand | PtzForm::kOneLine | PtzForm::kOptional);

}  // namespace

constexpr PtzMessage kGetCurPos = {"PtzControlgetCurPos_Message", ptzBlock<Position>(), kCmdAlone,
                                   ptzForm<position, Position>(kCommand)};
constexpr PtzMessage kSetCurPos = {"PtzControlsetCurPos_Message", ptzBlock<Position>(),
                                   ptzForm<newPosition, Position>(kCommand), kNoText};
constexpr PtzMessage kGetLocateCfg = {"PtzControlGetLocateCfg_Message",
                                      ptzBlock<LocateCfg>(),
                                      kCmdAlone,
                                      ptzForm<locateCfg, LocateCfg>(PtzForm::kBare),
                                      CmdFrom::TextOrName,
                                      "GetLocateCfg"};
constexpr PtzMessage kSetLocateCfg = {"PtzControlSetLocateCfg_Message",
                                      ptzBlock<LocateCfg>(),
                                      ptzForm<newLocateCfg, LocateCfg>(PtzForm::kXml),
                                      kNoText,
                                      CmdFrom::TextOrName,
                                      "SetLocateCfg"};
constexpr PtzMessage kManualLocate = {"PtzControlManualLocate_Message",
                                      ptzBlock<ManualLocate>(),
                                      ptzForm<manualLocate, ManualLocate>(PtzForm::kXml),
                                      kNoText,
                                      CmdFrom::TextOrName,
                                      "ManualLocate"};
constexpr PtzMessage kPresetCmd = {"PtzControlpresetCmd_Message", ptzBlock<Preset>(),
                                   ptzForm<preset, Preset>(kChannelCommand), kNoText};
constexpr PtzMessage kSetPresetListEx = {"PtzControlSetPresetListEx_Message", ptzBlock<PresetEntry>(),
                                         ptzForm<presetName, PresetEntry>(kCommand), kNoText};
constexpr PtzMessage kWatchGuard = {"PtzControlWatchGuard_Message", ptzBlock<PresetEntry>(),
                                    ptzForm<watchGuard, PresetEntry>(kChannelCommand), kNoText};
constexpr PtzMessage kPtzCmd = {"PtzControlptzCmd_Message", kNoBlock, kCmdAlone, kNoText};
constexpr PtzMessage kTrans = {"PtzControlTrans_Message", ptzBlock<Trans>(), ptzForm<trans, Trans>(kCommand), kNoText};
// One text for both directions.
constexpr PtzMessage kPtzMove = {"PtzControlptzControl_Message", ptzBlock<Speed>(), kMove, kMove};

}  // namespace kov

int PTZ_CONTROL_PTZ_CMD_PARAM_init(PTZ_CONTROL_PTZ_CMD_PARAM* record) { return kov::fillDefaults(record); }
int PTZ_CONTROL_PTZ_CMD_GETCURPOS_PARAM_init(PTZ_CONTROL_PTZ_CMD_GETCURPOS_PARAM* record) {
  return kov::fillDefaults(record);
}
int PTZ_CONTROL_PTZ_CMD_SETCURPOS_PARAM_init(PTZ_CONTROL_PTZ_CMD_GETCURPOS_PARAM* record) {
  return PTZ_CONTROL_PTZ_CMD_GETCURPOS_PARAM_init(record);
}
int PTZ_CONTROL_PTZ_CMD_GETLOCATECFG_PARAM_init(PTZ_CONTROL_PTZ_CMD_GETLOCATECFG_PARAM* record) {
  return kov::fillDefaults(record);
}
int PTZ_CONTROL_PTZ_CMD_SETLOCATECFG_PARAM_init(PTZ_CONTROL_PTZ_CMD_GETLOCATECFG_PARAM* record) {
  return PTZ_CONTROL_PTZ_CMD_GETLOCATECFG_PARAM_init(record);
}
int PTZ_CONTROL_PTZ_CMD_MANUALLOCATE_PARAM_init(PTZ_CONTROL_PTZ_CMD_MANUALLOCATE_PARAM* record) {
  return kov::fillDefaults(record);
}
int PTZ_CONTROL_PTZ_CMD_SETPRESET_PARAM_init(PTZ_CONTROL_PTZ_CMD_SETPRESET_PARAM* record) {
  return kov::fillDefaults(record);
}
int PTZ_CONTROL_PTZ_CMD_CLEARPRESET_PARAM_init(PTZ_CONTROL_PTZ_CMD_SETPRESET_PARAM* record) {
  return PTZ_CONTROL_PTZ_CMD_SETPRESET_PARAM_init(record);
}
int PTZ_CONTROL_PTZ_CMD_CALLPRESET_PARAM_init(PTZ_CONTROL_PTZ_CMD_SETPRESET_PARAM* record) {
  return PTZ_CONTROL_PTZ_CMD_SETPRESET_PARAM_init(record);
}
int PTZ_CONTROL_PTZ_CMD_SETWATCHGUARD_PARAM_init(PTZ_CONTROL_PTZ_CMD_SETWATCHGUARD_PARAM* record) {
  return kov::fillDefaults(record);
}
int PTZ_CONTROL_PTZ_CMD_GETWATCHGUARD_PARAM_init(PTZ_CONTROL_PTZ_CMD_SETWATCHGUARD_PARAM* record) {
  return PTZ_CONTROL_PTZ_CMD_SETWATCHGUARD_PARAM_init(record);
}
int PTZ_CONTROL_PTZ_CMD_SETPRESETLISTEX_PARAM_init(PTZ_CONTROL_PTZ_CMD_SETWATCHGUARD_PARAM* record) {
  return PTZ_CONTROL_PTZ_CMD_SETWATCHGUARD_PARAM_init(record);
}
int PTZ_CONTROL_PTZ_CMD_TRANS_PARAM_init(PTZ_CONTROL_PTZ_CMD_TRANS_PARAM* record) { return kov::fillDefaults(record); }

int PtzControlgetCurPos_MessageAnalysis(const char* xml, void** result) { return kov::kGetCurPos.analyse(xml, result); }
int PtzControlsetCurPos_MessageAnalysis(const char* xml, void** result) { return kov::kSetCurPos.analyse(xml, result); }
int PtzControlGetLocateCfg_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetLocateCfg.analyse(xml, result);
}
int PtzControlSetLocateCfg_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetLocateCfg.analyse(xml, result);
}
int PtzControlManualLocate_MessageAnalysis(const char* xml, void** result) {
  return kov::kManualLocate.analyse(xml, result);
}
int PtzControlpresetCmd_MessageAnalysis(const char* xml, void** result) { return kov::kPresetCmd.analyse(xml, result); }
int PtzControlSetPresetListEx_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetPresetListEx.analyse(xml, result);
}
int PtzControlWatchGuard_MessageAnalysis(const char* xml, void** result) {
  return kov::kWatchGuard.analyse(xml, result);
}
int PtzControlptzCmd_MessageAnalysis(const char* xml, void** result) { return kov::kPtzCmd.analyse(xml, result); }
int PtzControlTrans_MessageAnalysis(const char* xml, void** result) { return kov::kTrans.analyse(xml, result); }
int PtzControlptzControl_MessageAnalysis(const char* xml, void** result) { return kov::kPtzMove.analyse(xml, result); }
