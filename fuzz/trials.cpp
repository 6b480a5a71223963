#include "trials.h"

#include <kov_protocol/alarm_report.h>
#include <kov_protocol/heartbeat.h>
#include <kov_protocol/ipc_repair.h>
#include <kov_protocol/live_stream.h>
#include <kov_protocol/ptz_control.h>
#include <kov_protocol/reverse_audio.h>
#include <kov_protocol/system_control.h>
#include <kov_protocol/system_encrypt.h>
#include <kov_protocol/system_log.h>
#include <kov_protocol/user_auth.h>
#include <malloc.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <iterator>

#if defined(__has_feature)
#if __has_feature(memory_sanitizer)
#include <sanitizer/msan_interface.h>
#define KOV_MEMORY_SANITIZER
#endif
#endif

namespace kov::fuzz {
namespace {

// One of each PTZ analysis.
constexpr const char* kSubCommands[] = {
    "getCurPos",       "setCurPos",     "GetLocateCfg", "SetLocateCfg", "ManualLocate", "callpreset", "GetPresetList",
    "GetPresetListEx", "GetWatchGuard", "StopLocus",    "GetOrbitList", "AutoOrbit",    "AddOrbit",   "ClearOrbit",
    "SetPresetListEx", "GetLocusList",  "SetLocus",     "trans",        "StartLocus",   "ptz_reset"};

// The storage query has functions in place of a message.
RecordType recordOf(const CodeRow& row) {
  if (row.message != nullptr) return row.message->record();
  return row.code == 1014 ? kRecordType<SYSTEM_CONTROL_1014_PARAM> : RecordType{0, nullptr};
}

void addCodes(const FamilyRow& family, std::vector<Trial>& trials) {
  const CodeTable& table = *family.family->codes;
  for (std::size_t i = 0; i < table.groupCount(); ++i) {
    for (const CodeRow& row : table.group(i)) {
      Trial trial = {family.msgType, {}, recordOf(row), nullptr, &table};
      std::to_chars(trial.code, std::end(trial.code) - 1, row.code);
      trials.push_back(trial);
    }
  }
}

// The families that choose their messages themselves.
void addOthers(std::vector<Trial>& trials) {
  using Heartbeat = KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM;
  using Start = LIVE_STREAM_CMD_STREAM_START_PARAM;
  using Stop = LIVE_STREAM_CMD_STREAM_STOP_PARAM;
  const std::vector<Trial> others = {
      {"KOV_HEARTBEAT_MESSAGE", "CMD_HEARTBEAT", kRecordType<Heartbeat>},
      {"AUXPTZ_HEARTBEAT_MESSAGE", "CMD_HEARTBEAT", kRecordType<Heartbeat>},
      {"NVR_PRODUCE_TEST_MESSAGE", "CMD_HEARTBEAT", kRecordType<Heartbeat>},
      {"USER_AUTH_MESSAGE", "CMD_USER_AUTH", kRecordType<USER_AUTH_CMD_USER_AUTH_PARAM>},
      {"SYSTEM_ENCRYPT_MESSAGE", "150", kRecordType<SYSTEM_ENCRYPT_150_PARAM>},
      {"LIVE_STREAM_MESSAGE", "CMD_STREAM_START", kRecordType<Start>},
      {"LIVE_STREAM_MESSAGE", "1062", kRecordType<Start>},
      {"LIVE_STREAM_MESSAGE", "CMD_STREAM_STOP", kRecordType<Stop>},
      {"LIVE_STREAM_MESSAGE", "CMD_STREAM_QUALITY", kRecordType<Stop>},
      {"REVERSE_AUDIO_MESSAGE", "544", kRecordType<REVERSE_AUDIO_CMD_RA_START_PARAM>},
      {"REVERSE_AUDIO_MESSAGE", "CMD_RA_STOP", kRecordType<REVERSE_AUDIO_CMD_RA_STOP_PARAM>},
      {"ALARM_REPORT_MESSAGE", ALARM_REPORT_MESSAGE_CODE, kRecordType<ALARM_REPORT_CMD_RPEORT_ALARM_PARAM>},
      {"IPC_REPAIR_MESSAGE", "1", kRecordType<IPC_REPAIR_PARAM>},
      {"DBG_CMD_MESSAGE", "1", kRecordType<DBG_CMD_PARAM>},
      {"SYSTEM_LOG_MESSAGE", "1", kRecordType<SYSTEM_LOG_PARAM>},
      {"SYSTEM_LOG_DATA", "1", kRecordType<SYSTEM_LOG_PARAM>},
      {"OPEN_DBG_MESSAGE", "1"},
      {"TRANSPARENT_CHANNEL_MSG", "1", kRecordType<TRANSPARENT_HEADER>}};
  trials.insert(trials.end(), others.begin(), others.end());
  for (const char* cmd : kSubCommands) {
    trials.push_back({"PTZ_CONTROL_MESSAGE", PTZ_CONTROL_MESSAGE_CODE, kRecordType<PTZ_CONTROL_PTZ_CMD_PARAM>, cmd});
  }
}

std::vector<Trial> collect() {
  std::vector<Trial> trials;
  for (const FamilyRow& family : families()) {
    if (family.family->codes != nullptr) addCodes(family, trials);
  }
  addOthers(trials);
  // A family that is forgotten above would never be tried.
  for (const FamilyRow& family : families()) {
    const auto isOf = [&](const Trial& trial) {
      const FamilyRow* const row = findFamily(trial.type, std::strlen(trial.type), trial.code);
      return row != nullptr && row->family == family.family;
    };
    if (std::none_of(trials.begin(), trials.end(), isOf)) std::abort();
  }
  return trials;
}

}  // namespace

const std::vector<Trial>& everyTrial() {
  static const std::vector<Trial> trials = collect();
  return trials;
}

KOV_PROTOCOL_HEADER headerOf(const Trial& trial) {
  KOV_PROTOCOL_HEADER header;
  std::memcpy(header.Msg_type, trial.type, std::strlen(trial.type));
  std::memcpy(header.Msg_code, trial.code, sizeof trial.code);
  return header;
}

void checkInitialised([[maybe_unused]] const void* memory, [[maybe_unused]] std::size_t size) {
#ifdef KOV_MEMORY_SANITIZER
  __msan_check_mem_is_initialized(memory, size);
#endif
}

void checkBlock(const void* block) {
  checkInitialised(block, malloc_usable_size(const_cast<void*>(block)));  // what was asked for, with a sanitizer
}

Text compose(const KOV_PROTOCOL_HEADER& header, const void* record, int direction, Coding coding, int size) {
  const std::unique_ptr<char[]> out(new char[static_cast<std::size_t>(size)]);
  const int length = KovProtocolXMLCompose(&header, record, direction, coding.mode, coding.key, out.get(), size);
  if (length <= 0) return {};
  const FamilyRow* const row = findFamily(header.Msg_type, std::strlen(header.Msg_type), header.Msg_code);
  const bool bare = row != nullptr && row->framing == Framing::Bare;
  if (length > size && !bare) std::abort();  // a bare document tells its whole length, whatever fits
  const std::size_t written = static_cast<std::size_t>(std::min(length, size));
  checkInitialised(out.get(), written);
  const std::size_t skip = bare ? 0 : KOV_FRAME_HEADER_SIZE;
  return {out.get() + std::min(skip, written), out.get() + written};
}

Result analyse(const Text& payload, Coding coding, KOV_PROTOCOL_HEADER& header) {
  if (payload.empty()) return nullptr;
  const std::unique_ptr<char[]> exact(new char[payload.size()]);
  std::memcpy(exact.get(), payload.data(), payload.size());
  void* result = nullptr;
  const int code = KovProtocolMSGAnalysisStart(exact.get(), static_cast<int>(payload.size()), coding.mode, coding.key,
                                               &header, &result);
  // A transparent message brings its length, and the type of what it embeds.
  if (code > 0) std::memcpy(header.Msg_type, TRANSPARENT_CHANNEL_MSG_TYPE, sizeof TRANSPARENT_CHANNEL_MSG_TYPE);
  checkInitialised(&header, sizeof header);
  if (result != nullptr) checkBlock(result);
  return Result(result);
}

void relay(const KOV_PROTOCOL_HEADER& header, const void* record) {
  constexpr int kRoom = 1 << 15;
  for (const int direction : {0, 1}) {
    KOV_PROTOCOL_HEADER again;
    const Result result = analyse(compose(header, record, direction, {}, kRoom), {}, again);
    if (result != nullptr) compose(again, result.get(), direction, {}, kRoom);
  }
}

}  // namespace kov::fuzz
