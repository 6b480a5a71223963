// SYSTEM_CONTROL_MESSAGE: the table of codes, whose rows stand beside their messages, and the codes that need more.
#include "control/system_control.h"

#include "control/control_messages.h"
#include "core/exported.h"
#include "kov_platform/services.h"
#include "kov_platform/value_text.h"

namespace kov {
namespace {

// Known, but without a body in either direction.
constexpr CodeRow kBodilessRows[] = {{828, nullptr},  {1001, nullptr}, {1002, nullptr}, {1007, nullptr},
                                     {1025, nullptr}, {1027, nullptr}, {1096, nullptr}, {1097, nullptr},
                                     {1100, nullptr}, {3010, nullptr}, {3021, nullptr}, {3022, nullptr},
                                     {5010, nullptr}, {5011, nullptr}};
constexpr CodeGroup kBodilessCodes = kBodilessRows;

constexpr const CodeGroup* kGroups[] = {&kDeviceCodes,   &kFileCodes,          &kSystemInfoCodes, &kStorageCodes,
                                        &kRecorderCodes, &kNetworkStatusCodes, &kBodilessCodes};

void logUnknown(const char*, int code) {
  KovProtocolLogError("SYSTEM_CONTROL_MESSAGE deal a unknow msg_cdoe : %d\n", code);
}

constexpr CodeTable kTable("SYSTEM_CONTROL_MESSAGE", kGroups, logUnknown);

// The codes that do not follow the table.
constexpr int kGetIpcSysVersionCode = 1012;
constexpr int kGetIpcStorageCfgCode = 1014;
constexpr int kSetIpcIrcutCode = 1046;

int compose(ComposeCall& call, BodyWriter& body) {
  if (intOf(call.msgCode) == kGetIpcStorageCfgCode) return composeStorageCfg(call.param, call.direction, body);
  return kTable.compose(call.param, call.direction, call.msgCode, body);
}

// A document is a text or a parsed one; it goes to the message as it came.
template <class Document>
int analyseByCode(const Document& document, const char* msgCode, void** result) {
  switch (const int code = intOf(msgCode)) {
    case kGetIpcSysVersionCode:
      return analyseSysVersion(document, result);
    case kGetIpcStorageCfgCode:
      return analyseStorageCfg(document, result);
    case kSetIpcIrcutCode:  // composed, and read by its own function, but never dispatched to it
      logUnknown(msgCode, code);
      return KOV_ERROR_UNKNOWN_MESSAGE;
    default:
      return kTable.analyse(document, msgCode, result);
  }
}

int analyse(const AnalysisCall& call) { return analyseByCode(call.document, call.msgCode, call.result); }

}  // namespace

constexpr Family kSystemControl = {&kTable, compose, analyse};

void optionalChannel(BodyIo& io, std::int32_t& channel, std::int32_t emptyChannel) {
  io.attributes({attr("ChannelId", channel).ifSet()});
  if (!isSet(channel) && isSet(emptyChannel)) io.text("ChannelId=\"\"\n");
}

}  // namespace kov

int SystemControlMessageCompose(const void* param, int direction, const char* msgCode, char* body, int bodySize) {
  const bool usable = param != nullptr && msgCode != nullptr && body != nullptr && bodySize >= 1;
  if (!usable || kov::intOf(msgCode) != kov::kGetIpcStorageCfgCode) {
    return kov::kTable.compose(param, direction, msgCode, body, bodySize);
  }
  return kov::composeInto(body, bodySize,
                          [=](kov::BodyWriter& writer) { return kov::composeStorageCfg(param, direction, writer); });
}

int SystemControlMessageAnalysis(const char* xml, const char* msgCode, void** result) {
  const bool usable = xml != nullptr && msgCode != nullptr && result != nullptr;
  return usable ? kov::analyseByCode(xml, msgCode, result) : kov::kTable.analyse(xml, msgCode, result);
}
