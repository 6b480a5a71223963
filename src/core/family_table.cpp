#include "core/family_table.h"

#include <iterator>

#include "config/system_config.h"
#include "discovery/system_searchipc.h"
#include "kov_protocol_system_other_msg/nvr_internal.h"
#include "playback/nvr_replay.h"
#include "reports/device_report.h"
#include "reports/ipc_repair.h"

namespace kov {
namespace {

constexpr FamilyRow kFamilies[] = {
    {"SYSTEM_SEARCHIPC_MESSAGE", kSystemSearchipc, Framing::Bare},
    {"NVR_REPLAY_MESSAGE", kNvrReplay},
    {"SYSTEM_CONFIG_GET_MESSAGE", kSystemConfig},
    {"SYSTEM_CONFIG_SET_MESSAGE", kSystemConfig},
    {"IPC_REPAIR_MESSAGE", kIpcRepair, Framing::Bare},
    {"NVR_INTERNAL_MESSAGES", kNvrInternal},
    {"DEVICE_REPORT_MESSAGE", kDeviceReport},
};

}  // namespace

FamilyRows families() { return {std::begin(kFamilies), std::end(kFamilies)}; }

const FamilyRow* findFamily(const char* msgType, std::size_t typeLength, const char* msgCode) {
  for (const FamilyRow& row : families()) {
    if (row.typeLength != typeLength || std::memcmp(row.msgType, msgType, typeLength) != 0) continue;
    if (row.onlyCode == nullptr || sameText(row.onlyCode, msgCode)) return &row;
  }
  return nullptr;
}

}  // namespace kov
