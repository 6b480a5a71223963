// A sub-command of the family: its forms, and the parameter block behind the command record.
#pragma once

#include "core/message.h"
#include "kov_protocol/ptz_control.h"

namespace kov {

// What one direction of a sub-command says: what stands around its values, and the values of its parameter block.
struct PtzForm {
  enum Frame : unsigned {
    kBare = 0,      // the values alone; with none, nothing
    kChannel = 1,   // channelid in front, when it is set
    kXml = 2,       // the element xml around the values
    kCmd = 4,       // the element cmd before them
    kOneLine = 8,   // no line breaks
    kOptional = 16  // the values may lack their block
  };

  unsigned frame = kBare;
  void (*values)(BodyIo& io, void* block) = nullptr;

  bool has(Frame part) const { return (frame & part) != 0; }
  // Values that stand directly in the body.
  bool isBare() const { return values != nullptr && !has(kXml); }
};

constexpr PtzForm kNoText = {};
constexpr PtzForm kCmdAlone = {PtzForm::kChannel | PtzForm::kXml | PtzForm::kCmd};

template <auto Values, class Block>
constexpr PtzForm ptzForm(unsigned frame) {
  return {frame, &runForm<Values, Block>};
}

// Where the cmd of an analysed record comes from.
enum class CmdFrom : unsigned char { Text, TextOrName, Name };

// One analysis function and what compose does for its sub-commands.
struct PtzMessage {
  const char* name;  // begins all log lines, with "Analysis" behind it
  RecordType block;  // of size 0 when there is none
  PtzForm request;
  PtzForm response;
  CmdFrom cmdFrom = CmdFrom::Text;
  const char* cmd = nullptr;

  int compose(const PTZ_CONTROL_PTZ_CMD_PARAM& record, int direction, BodyWriter& body) const;
  int analyse(const char* xml, void** result) const;
  int analyse(const KovXMLParser& document, void** result) const;

 private:
  bool needsXml() const { return !request.isBare() && !response.isBare(); }
  void readCmd(const ElementReader& xml, char (&text)[sizeof PTZ_CONTROL_PTZ_CMD_PARAM::cmd]) const;
  void read(const ElementReader& body, const ElementReader& xml, void* block) const;
};

constexpr RecordType kNoBlock = {0, nullptr};

// The block of a sub-command. It stands directly behind the record, so the record's end must suit it.
template <class Block>
constexpr RecordType ptzBlock() {
  static_assert(alignof(Block) <= alignof(PTZ_CONTROL_PTZ_CMD_PARAM));
  return kRecordType<Block>;
}

// The message of a sub-command, null when the name is none.
const PtzMessage* findSubCommand(const char* cmd);

extern const PtzMessage kGetCurPos, kSetCurPos, kGetLocateCfg, kSetLocateCfg, kManualLocate, kPresetCmd, kGetPresetList,
    kGetPresetListEx, kSetPresetListEx, kWatchGuard, kPtzCmd, kGetOrbitList, kAutoOrbit, kAddOrbit, kClearOrbit,
    kGetLocusList, kSetLocus, kTrans, kLocusCmd, kPtzMove;

}  // namespace kov
