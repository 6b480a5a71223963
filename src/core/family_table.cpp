#include "core/family_table.h"

#include <iterator>

#include "config/system_config.h"
#include "live/live_stream.h"
#include "live/media_data.h"
#include "playback/nvr_replay.h"
#include "reports/alarm_report.h"

namespace kov {
namespace {

constexpr FamilyRow kFamilies[] = {
    {"LIVE_STREAM_MESSAGE", kLiveStream},
    {"MEDIA_DATA_MESSAGE", kMediaData},
    {"NVR_REPLAY_MESSAGE", kNvrReplay},
    {"ALARM_REPORT_MESSAGE", kAlarmReport},
    {"SYSTEM_CONFIG_GET_MESSAGE", kSystemConfig},
    {"SYSTEM_CONFIG_SET_MESSAGE", kSystemConfig},
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
