// SYSTEM_CONFIG_GET_MESSAGE and SYSTEM_CONFIG_SET_MESSAGE: one table of codes, whose rows stand beside their messages.
#include "config/system_config.h"

#include "config/alarm.h"
#include "config/analytics.h"
#include "config/channel.h"
#include "config/general.h"
#include "config/media.h"
#include "config/network.h"
#include "config/recorder.h"
#include "control/system_control.h"
#include "core/family.h"
#include "kov_platform/services.h"
#include "kov_protocol/system_config.h"

namespace kov {
namespace {

// Known, but no message: both directions succeed and do nothing.
constexpr CodeRow kReservedRows[] = {{3802, nullptr}};
constexpr CodeGroup kReservedCodes = kReservedRows;

// The abilities of a device are asked for under the control type and under these.
constexpr CodeRow kSharedRows[] = {{1020, &kGetSysAbality}};
constexpr CodeGroup kSharedWithControl = kSharedRows;

constexpr const CodeGroup* kGroups[] = {
    &kReservedCodes, &kSharedWithControl, &kNetworkCodes, &kMediaCodes, &kAlarmCodes,   &kChannelCodes,
    &kRuleCodes,     &kAlgorithmCodes,    &kFaceCodes,    &kSceneCodes, &kGeneralCodes, &kRecorderSettingCodes,
};

void logUnknown(const char*, int code) {
  KovProtocolLogError("SYSTEM_CONFIG_MESSAGE deal a unknow msg_cdoe : %d\n", code);
}

constexpr CodeTable kTable("SYSTEM_CONFIG_MESSAGE", kGroups, logUnknown);

int refuse(const char* dispatcher, const char* msgCode) {
  KovProtocolLogError("%s deal Msg_code:%s, put a empty Param\n", dispatcher, msgCode == nullptr ? "(null)" : msgCode);
  return KOV_ERROR_EMPTY_ARGUMENT;
}

}  // namespace

constexpr Family kSystemConfig = {&kTable};

}  // namespace kov

int SystemConfigMessageCompose(const void* record, int direction, const char* msgCode, char* body, int bodySize) {
  if (body == nullptr || bodySize < 1 || msgCode == nullptr) return kov::refuse("SystemConfigMessageCompose", msgCode);
  return kov::kTable.compose(record, direction, msgCode, body, bodySize);
}

int SystemConfigMessageAnalysis(const char* xml, const char* msgCode, void** result) {
  if (xml == nullptr || msgCode == nullptr || result == nullptr) {
    return kov::refuse("SystemConfigMessageAnalysis", msgCode);
  }
  return kov::kTable.analyse(xml, msgCode, result);
}
