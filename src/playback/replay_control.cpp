// REPLAY_CONTROL_MESSAGE: the commands of playing a file, which differ by their code only.
#include "kov_protocol/replay_control.h"

#include <iterator>

#include "kov_platform/services.h"
#include "kov_platform/value_text.h"
#include "playback/replay_control.h"

namespace kov {
namespace {

static_assert(sizeof(REPLAY_CONTROL_PARAM) == 264);

void control(BodyIo& io, REPLAY_CONTROL_PARAM& r) {
  io.element("REQUEST_PARAM", {{"FileName", r.FileName}, {"StartPos", r.StartPos}, {"PlayParam", r.PlayParam}});
}

constexpr Message kControl =
    Message("ReplayControlMessage", request<control>, nullptr, Direction::Ignored).reportsMissing("HardwareConfig");

constexpr CodeRow kCodes[] = {
    {0, &kControl}, {1, &kControl}, {2, &kControl}, {3, &kControl},  {4, &kControl},  {5, &kControl},  {6, &kControl},
    {7, &kControl}, {8, &kControl}, {9, &kControl}, {10, &kControl}, {11, &kControl}, {12, &kControl},
};

void logUnknown(const char*, int code) {
  KovProtocolLogError("REPLAY_CONTROL_MESSAGE deal a unknow msg_cdoe : %d\n", code);
}

constexpr CodeTable kTable("REPLAY_CONTROL_MESSAGE", kCodes, logUnknown);

// The codes count from 0 without a gap.
bool isKnown(int code) { return code >= 0 && code < static_cast<int>(std::size(kCodes)); }

// A document that cannot be read is told before a code that is unknown, and the latter under another family's name.
int analyse(const KovXMLParser& document, const char* msgCode, void** result) {
  ElementReader body;
  const int found = findBody(kControl.name(), document, body);
  if (found != KOV_OK) return found;
  const int code = intOf(msgCode);
  if (!isKnown(code)) {
    KovProtocolLogError("SYSTEM_HWCFG_MESSAGE deal a unknow msg_cdoe : %d\n", code);
    return KOV_ERROR_UNKNOWN_MESSAGE;
  }
  return kControl.analyse(document, result);
}

int analyseEntry(const AnalysisCall& call) { return analyse(call.document, call.msgCode, call.result); }

}  // namespace

constexpr Family kReplayControl = {&kTable, nullptr, analyseEntry};

}  // namespace kov

int REPLAY_CONTROL_PARAM_init(REPLAY_CONTROL_PARAM* record) { return kov::fillDefaults(record); }

int ReplayControlMessageCompose(const REPLAY_CONTROL_PARAM* param, int direction, const char* msgCode, char* body,
                                int bodySize) {
  return kov::kTable.compose(param, direction, msgCode, body, bodySize);
}

int ReplayControlMessageAnalysis(const char* xml, const char* msgCode, void** result) {
  if (xml == nullptr || msgCode == nullptr || result == nullptr) {
    KovProtocolLogError("ReplayControlMessageAnalysis put a empty Param\n");
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  KovXMLParser document;
  const int parsed = kov::parseDocument(kov::kControl.name(), xml, document);
  return parsed != KOV_OK ? parsed : kov::analyse(document, msgCode, result);
}
