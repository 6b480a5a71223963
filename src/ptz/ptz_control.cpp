// PTZ_CONTROL_MESSAGE: the sub-commands, and how compose and analysis choose among them.
#include "ptz/ptz_control.h"

#include "core/exported.h"
#include "kov_platform/services.h"
#include "ptz/sub_command.h"

namespace kov {
namespace {

enum class Received : unsigned char { Searched, Unknown };

struct SubCommand {
  template <std::size_t Size>
  constexpr SubCommand(const char (&text)[Size], const PtzMessage& chosen, Received way = Received::Searched)
      : name(text), length(Size - 1), message(&chosen), received(way) {}

  const char* name;
  std::size_t length;
  const PtzMessage* message;
  Received received;
};

// Analysis searches the document for these names, and the first that it finds decides. A scan is composed, but not
// recognised.
constexpr SubCommand kSubCommands[] = {
    {"getCurPos", kGetCurPos},
    {"setCurPos", kSetCurPos},
    {"GetLocateCfg", kGetLocateCfg},
    {"SetLocateCfg", kSetLocateCfg},
    {"ManualLocate", kManualLocate},
    {"setpreset", kPresetCmd},
    {"clearpreset", kPresetCmd},
    {"callpreset", kPresetCmd},
    {"GetPresetList", kGetPresetList},
    {"GetPresetListEx", kGetPresetListEx},
    {"SetPresetListEx", kSetPresetListEx},
    {"SetWatchGuard", kWatchGuard},
    {"GetWatchGuard", kWatchGuard},
    {"DeleteWatchGuard", kPtzCmd},
    {"CallWatchGuard", kPtzCmd},
    {"ScanBegin", kPtzCmd, Received::Unknown},
    {"ScanEnd", kPtzCmd, Received::Unknown},
    {"ScanOn", kPtzCmd, Received::Unknown},
    {"ScanOff", kPtzCmd, Received::Unknown},
    {"StopOrbit", kPtzCmd},
    {"StopLocus", kPtzCmd},
    {"GetOrbitList", kGetOrbitList},
    {"AutoOrbit", kAutoOrbit},
    {"AddOrbit", kAddOrbit},
    {"ClearOrbit", kClearOrbit},
    {"GetLocusList", kGetLocusList},
    {"SetLocus", kSetLocus},
    {"trans", kTrans},
    {"RecordLocus", kLocusCmd},
    {"StopRecordLocus", kLocusCmd},
    {"StartLocus", kLocusCmd},
    {"zoomtele", kPtzMove},
    {"zoomwide", kPtzMove},
    {"FocusNearAutoOff", kPtzMove},
    {"FocusFarAutoOff", kPtzMove},
    {"IrisOpenAutoOff", kPtzMove},
    {"IrisCloseAutoOff", kPtzMove},
    {"up", kPtzMove},
    {"down", kPtzMove},
    {"left", kPtzMove},
    {"right", kPtzMove},
    {"left_up", kPtzMove},
    {"right_up", kPtzMove},
    {"left_down", kPtzMove},
    {"right_down", kPtzMove},
    {"auto", kPtzMove},
    {"stop", kPtzMove},
    {"ptz_reset", kPtzMove},
};

struct DocumentText {
  const char* text;
  std::size_t length;

  bool contains(const char* name, std::size_t nameLength) const {
    return memmem(text, length, name, nameLength) != nullptr;
  }
};

const PtzMessage* searchSubCommand(const DocumentText& document) {
  for (const SubCommand& row : kSubCommands) {
    if (row.received == Received::Unknown || !document.contains(row.name, row.length)) continue;
    // The shorter of the two list names is a part of the longer one.
    constexpr char kLonger[] = "GetPresetListEx";
    const bool longer = row.message == &kGetPresetList && document.contains(kLonger, sizeof kLonger - 1);
    return longer ? &kGetPresetListEx : row.message;
  }
  return std::memchr(document.text, '^', document.length) != nullptr ? &kGetPresetList : nullptr;
}

// The message of a received document; null, and told, when there is none.
const PtzMessage* recognise(const DocumentText& document) {
  const PtzMessage* const message = searchSubCommand(document);
  if (message == nullptr) KovProtocolLogError("PTZ_CONTROL_MESSAGE deal a unknow cmd \n");
  return message;
}

int composeCommand(const PTZ_CONTROL_PTZ_CMD_PARAM& record, int direction, BodyWriter& body) {
  const FieldText cmd(record.cmd);
  if (cmd.length() == 0) {
    KovProtocolLogError("PTZ_CONTROL_MESSAGE put a empty cmd, Error\n");
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  const PtzMessage* const message = findSubCommand(cmd.text());
  if (message == nullptr) {
    KovProtocolLogError("PTZ_CONTROL_MESSAGE deal a unknow cmd : %s\n", cmd.text());
    return KOV_ERROR_UNKNOWN_MESSAGE;
  }
  return message->compose(record, direction, body);
}

int composeFromEntry(ComposeCall& call, BodyWriter& body) {
  return composeCommand(*static_cast<const PTZ_CONTROL_PTZ_CMD_PARAM*>(call.param), call.direction, body);
}

// What is received has its sub-command in the text, so Msg_code is not looked at.
int analyseFromEntry(const AnalysisCall& call) {
  const PtzMessage* const message = recognise({call.text, call.textLength});
  return message == nullptr ? KOV_ERROR_UNKNOWN_MESSAGE : message->analyse(call.document, call.result);
}

}  // namespace

const PtzMessage* findSubCommand(const char* cmd) {
  for (const SubCommand& row : kSubCommands) {
    if (sameText(row.name, cmd)) return row.message;
  }
  return nullptr;
}

constexpr Family kPtzControl = {nullptr, composeFromEntry, analyseFromEntry};

}  // namespace kov

int PtzControlMessageCompose(const void* param, int direction, char* body, int bodySize) {
  return kov::composeExported("PTZ_CONTROL_MESSAGE", param, body, bodySize, body, [=](kov::BodyWriter& writer) {
    return kov::composeCommand(*static_cast<const PTZ_CONTROL_PTZ_CMD_PARAM*>(param), direction, writer);
  });
}

int PtzControlMessageAnalysis(const char* xml, void** result) {
  if (xml == nullptr || result == nullptr) {
    KovProtocolLogError("PTZ_CONTROL_MESSAGE put a empty Param\n");
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  const kov::PtzMessage* const message = kov::recognise({xml, std::strlen(xml)});
  return message == nullptr ? KOV_ERROR_UNKNOWN_MESSAGE : message->analyse(xml, result);
}
