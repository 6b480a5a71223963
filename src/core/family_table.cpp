#include "core/family_table.h"

#include <iterator>

#include "config/system_config.h"
#include "control/system_control.h"
#include "discovery/system_searchipc.h"
#include "kov_platform/services.h"
#include "kov_protocol_system_other_msg/nvr_internal.h"
#include "live/live_stream.h"
#include "live/media_data.h"
#include "live/reverse_audio.h"
#include "playback/nvr_replay.h"
#include "playback/replay_control.h"
#include "production/nvr_produce_test.h"
#include "ptz/ptz_control.h"
#include "reports/alarm_report.h"
#include "reports/device_report.h"
#include "reports/ipc_repair.h"
#include "session/debug.h"
#include "session/heartbeat.h"
#include "session/system_encrypt.h"
#include "session/system_log.h"
#include "session/user_auth.h"

namespace kov {
namespace {

constexpr const char* kHeartbeatCode = "CMD_HEARTBEAT";

// The heartbeat goes before the families that share its types.
constexpr FamilyRow kFamilies[] = {
    {"KOV_HEARTBEAT_MESSAGE", kHeartbeat, Framing::Framed, kHeartbeatCode},
    {"AUXPTZ_HEARTBEAT_MESSAGE", kHeartbeat, Framing::Framed, kHeartbeatCode},
    {"NVR_PRODUCE_TEST_MESSAGE", kHeartbeat, Framing::Framed, kHeartbeatCode},
    {"USER_AUTH_MESSAGE", kUserAuth},
    {"SYSTEM_ENCRYPT_MESSAGE", kSystemEncrypt},
    {"SYSTEM_SEARCHIPC_MESSAGE", kSystemSearchipc, Framing::Bare},
    {"LIVE_STREAM_MESSAGE", kLiveStream},
    {"MEDIA_DATA_MESSAGE", kMediaData},
    {"NVR_REPLAY_MESSAGE", kNvrReplay},
    {"REVERSE_AUDIO_MESSAGE", kReverseAudio},
    FamilyRow("PTZ_CONTROL_MESSAGE", kPtzControl).composedAs("PTZ_CMD"),
    FamilyRow("ALARM_REPORT_MESSAGE", kAlarmReport).composedAs("CMD_REPORT_ALARM"),
    {"SYSTEM_CONTROL_MESSAGE", kSystemControl},
    {"SYSTEM_CONFIG_GET_MESSAGE", kSystemConfig},
    {"SYSTEM_CONFIG_SET_MESSAGE", kSystemConfig},
    {"REPLAY_CONTROL_MESSAGE", kReplayControl},
    {"IPC_REPAIR_MESSAGE", kIpcRepair, Framing::Bare},
    {"NVR_INTERNAL_MESSAGES", kNvrInternal},
    {"NVR_PRODUCE_TEST_MESSAGE", kNvrProduceTest},
    {"DEVICE_REPORT_MESSAGE", kDeviceReport},
    {"DBG_CMD_MESSAGE", kDebugText},
    {"SYSTEM_LOG_MESSAGE", kSystemLog},
    {"SYSTEM_LOG_DATA", kSystemLog},
    {"OPEN_DBG_MESSAGE", kDebugSwitch},
    {"CLOSE_DBG_MESSAGE", kDebugSwitch},
};

}  // namespace

FamilyRows families() { return {std::begin(kFamilies), std::end(kFamilies)}; }

// All such families speak under the name of the first.
bool isComposed(const FamilyRow& row, const char* msgCode) {
  if (row.composedCode == nullptr || sameText(row.composedCode, msgCode)) return true;
  KovProtocolLogError("PTZ_CONTROL_MESSAGE deal a unknow Msg_code:%s !!!\n", msgCode);
  return false;
}

const FamilyRow* findFamily(const char* msgType, std::size_t typeLength, const char* msgCode) {
  for (const FamilyRow& row : families()) {
    if (row.typeLength != typeLength || std::memcmp(row.msgType, msgType, typeLength) != 0) continue;
    if (row.onlyCode == nullptr || sameText(row.onlyCode, msgCode)) return &row;
  }
  return nullptr;
}

}  // namespace kov
