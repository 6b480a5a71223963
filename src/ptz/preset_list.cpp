// The preset lists: texts with a caret behind each item.
#include <algorithm>

#include "kov_platform/services.h"
#include "kov_platform/value_text.h"
#include "ptz/sub_command.h"

namespace kov {
namespace {

using PresetList = PTZ_CONTROL_PTZ_CMD_GETPRESETLIST_PARAM;
using PresetEntry = PTZ_CONTROL_PTZ_CMD_SETWATCHGUARD_PARAM;

static_assert(sizeof(PresetList) == 25608);
static_assert(offsetof(PresetList, list) == 24584);

constexpr std::int32_t kMost = PTZ_CONTROL_PRESETS;

// Writes a field of the first `count` entries.
template <std::size_t Capacity>
void writeItems(BodyWriter& body, const PresetList& r, std::int32_t count, char (PresetEntry::*field)[Capacity]) {
  for (std::int32_t i = 0; i < std::min(count, kMost); ++i) {
    body.field(r.preset[i].*field);
    body.character('^');
  }
}

// Walks over the items of a caret list. Blanks behind an item do not belong to it, and the last one may lack its caret.
class CaretList {
 public:
  explicit CaretList(const char* text) : at_(text) {}

  // False at the end.
  bool next() {
    item_ = at_;
    while (*at_ != '\0' && *at_ != '^') ++at_;
    length_ = static_cast<std::size_t>(at_ - item_);
    while (length_ > 0 && isBlank(item_[length_ - 1])) --length_;
    if (*at_ == '\0') return length_ > 0;
    ++at_;
    return true;
  }

  const char* item() const { return item_; }
  template <std::size_t Capacity>
  void copy(char (&field)[Capacity]) const {
    BodyWriter writer(field, Capacity);
    writer.text(item_, length_);
    writer.terminate();
  }

 private:
  const char* at_;
  const char* item_ = nullptr;
  std::size_t length_ = 0;
};

// Reads the rest of a list into a field of the entries. Returns their number.
template <std::size_t Capacity>
std::int32_t readItems(CaretList items, PresetList& r, char (PresetEntry::*field)[Capacity]) {
  std::int32_t count = 0;
  while (count < kMost && items.next()) items.copy(r.preset[count++].*field);
  return count;
}

void writePresetIds(BodyWriter& body, const PresetList& r) {
  if (isSet(r.count)) {
    body.decimal(std::min(r.count, kMost));
    body.character('^');
    writeItems(body, r, r.count, &PresetEntry::preset_id);
  } else if (isSet(r.list)) {
    body.field(r.list);
  } else {
    KovProtocolLogError("PTZ_CONTROL_MESSAGE deal cmd : %s get the pExData is NULL\n", "GetPresetList");
  }
}

// The number in front counts, as far as the table goes; ids that did not come stay empty.
void readPresetIds(const char* text, PresetList& r) {
  if (*text == '\0') return;
  BodyWriter list(r.list, sizeof r.list);
  list.text(text);
  list.terminate();
  CaretList items(text);
  std::int32_t told = 0;
  const char* number = text;
  if (!items.next() || !scanInt(number, told)) return;
  readItems(items, r, &PresetEntry::preset_id);
  r.count = std::clamp(told, 0, kMost);
}

// The whole body is the list; it is no XML.
void presetIds(BodyIo& io, PresetList& r) {
  if (io.writing()) {
    writePresetIds(io.writer(), r);
  } else {
    readPresetIds(io.reader().text(), r);
  }
}

void writePresetNames(BodyWriter& body, const PresetList& r) {
  body.literal("<preset_id>");
  writeItems(body, r, r.count, &PresetEntry::preset_id);
  body.literal("</preset_id>\n<name>");
  writeItems(body, r, r.count, &PresetEntry::name);
  body.literal("</name>\n");
}

// The two lists run in parallel, and the ids say how many presets there are.
void readPresetNames(const ElementReader& xml, PresetList& r) {
  const ElementReader ids = xml.child("preset_id");
  if (!ids) return;
  r.count = readItems(CaretList(ids.text()), r, &PresetEntry::preset_id);
  CaretList names(xml.child("name").text());
  for (std::int32_t i = 0; i < r.count && names.next(); ++i) names.copy(r.preset[i].name);
}

void presetNames(BodyIo& io, PresetList& r) {
  if (io.writing()) {
    writePresetNames(io.writer(), r);
  } else {
    readPresetNames(io.reader(), r);
  }
  io.texts({{"guard", r.guard}});
}

}  // namespace

// A caret list does not say which sub-command it answers.
constexpr PtzMessage kGetPresetList = {"PtzControlGetPresetList_Message",
                                       ptzBlock<PresetList>(),
                                       kCmdAlone,
                                       ptzForm<presetIds, PresetList>(PtzForm::kBare),
                                       CmdFrom::Name,
                                       "GetPresetList"};
constexpr PtzMessage kGetPresetListEx = {"PtzControlGetPresetListEx_Message", ptzBlock<PresetList>(), kCmdAlone,
                                         ptzForm<presetNames, PresetList>(PtzForm::kXml | PtzForm::kCmd)};

}  // namespace kov

int PTZ_CONTROL_PTZ_CMD_GETPRESETLIST_PARAM_init(PTZ_CONTROL_PTZ_CMD_GETPRESETLIST_PARAM* record) {
  return kov::fillDefaults(record);
}
int PTZ_CONTROL_PTZ_CMD_GETPRESETLISTEX_PARAM_init(PTZ_CONTROL_PTZ_CMD_GETPRESETLIST_PARAM* record) {
  return PTZ_CONTROL_PTZ_CMD_GETPRESETLIST_PARAM_init(record);
}
int PtzControlGetPresetList_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetPresetList.analyse(xml, result);
}
int PtzControlGetPresetListEx_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetPresetListEx.analyse(xml, result);
}
