#include "core/family_table.h"

#include "playback/nvr_replay.h"

namespace kov {
namespace {

constexpr FamilyRow kFamilies[] = {
    {"NVR_REPLAY_MESSAGE", kNvrReplay},
};

}  // namespace

const FamilyRow* findFamily(const char* msgType, std::size_t typeLength, const char* msgCode) {
  for (const FamilyRow& row : kFamilies) {
    if (row.typeLength != typeLength || std::memcmp(row.msgType, msgType, typeLength) != 0) continue;
    if (row.onlyCode == nullptr || sameText(row.onlyCode, msgCode)) return &row;
  }
  return nullptr;
}

}  // namespace kov
