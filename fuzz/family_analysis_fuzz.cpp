// The analysis of every message by family and code, on a text that is the body or the whole document. By the exported
// dispatcher of the family, on a block that ends with the text's NUL; or by the entry, with bytes behind the document.
#include <fuzzer/FuzzedDataProvider.h>
#include <kov_protocol/device_report.h>
#include <kov_protocol/ipc_repair.h>
#include <kov_protocol/live_stream.h>
#include <kov_protocol/media_data.h>
#include <kov_protocol/nvr_internal.h>
#include <kov_protocol/nvr_produce_test.h>
#include <kov_protocol/nvr_replay.h>
#include <kov_protocol/ptz_control.h>
#include <kov_protocol/replay_control.h>
#include <kov_protocol/reverse_audio.h>
#include <kov_protocol/system_config.h>
#include <kov_protocol/system_control.h>
#include <kov_protocol/system_encrypt.h>
#include <kov_protocol/system_log.h>
#include <kov_protocol/system_searchipc.h>
#include <kov_protocol/user_auth.h>

#include <algorithm>
#include <cstring>

#include "trials.h"

namespace {

using namespace kov::fuzz;

struct Dispatcher {
  const char* type;
  int (*byCode)(const char* xml, const char* msgCode, void** result);
  int (*byText)(const char* xml, void** result) = nullptr;
  int (*byLength)(const char* xml, int length, void** result) = nullptr;
};

// All but those of the alarm report and the system log, which are told nothing of the length and read behind the NUL by
// contract, and those of the families without any.
constexpr Dispatcher kDispatchers[] = {
    {"USER_AUTH_MESSAGE", nullptr, UserAuthMessageAnalysis},
    {"SYSTEM_ENCRYPT_MESSAGE", nullptr, SystemEncryptMessageAnalysis},
    {"SYSTEM_SEARCHIPC_MESSAGE", SystemSearchipcMessageAnalysis},
    {"LIVE_STREAM_MESSAGE", LiveStreamMessageAnalysis},
    {"NVR_REPLAY_MESSAGE", NvrReplayMessageAnalysis},
    {"REVERSE_AUDIO_MESSAGE", ReverseAudioMessageAnalysis},
    {"PTZ_CONTROL_MESSAGE", nullptr, PtzControlMessageAnalysis},
    {"SYSTEM_CONTROL_MESSAGE", SystemControlMessageAnalysis},
    {"SYSTEM_CONFIG_GET_MESSAGE", SystemConfigMessageAnalysis},
    {"SYSTEM_CONFIG_SET_MESSAGE", SystemConfigMessageAnalysis},
    {"REPLAY_CONTROL_MESSAGE", ReplayControlMessageAnalysis},
    {"IPC_REPAIR_MESSAGE", nullptr, IpcRepairMessageAnalysis},
    {"NVR_INTERNAL_MESSAGES", NvrInternalMessageAnalysis},
    {"NVR_PRODUCE_TEST_MESSAGE", NvrProduceTestMessageAnalysis},
    {"DEVICE_REPORT_MESSAGE", DeviceReportMessageAnalysis},
    {"DBG_CMD_MESSAGE", nullptr, nullptr, DebugLogMessageAnalysis},
};

const Dispatcher* dispatcherOf(const Trial& trial) {
  for (const Dispatcher& dispatcher : kDispatchers) {
    if (std::strcmp(dispatcher.type, trial.type) == 0) return &dispatcher;
  }
  return nullptr;
}

// What stands between the tags of a whole document, so that documents serve as bodies, too.
std::string_view bodyIn(std::string_view text) {
  constexpr std::string_view kOpening = "<MESSAGE_BODY>";
  const std::size_t begin = text.find(kOpening);
  const std::size_t end = text.rfind("</MESSAGE_BODY>");
  if (begin == text.npos || end == text.npos || end < begin + kOpening.size()) return text;
  return text.substr(begin + kOpening.size(), end - begin - kOpening.size());
}

Text enveloped(const Trial& trial, std::string_view body) {
  Text document;
  append(document, "<XML_ZANTIR>\n<MESSAGE_HEADER Msg_type=\"");
  append(document, trial.type);
  append(document, "\" Msg_code=\"");
  append(document, trial.code);
  append(document, "\" />\n<MESSAGE_BODY>");
  if (trial.cmd != nullptr) {  // its family looks for the name anywhere
    append(document, "<!--");
    append(document, trial.cmd);
    append(document, "-->");
  }
  append(document, body);
  append(document, "</MESSAGE_BODY>\n</XML_ZANTIR>");
  return document;
}

void analyseByDispatcher(const Trial& trial, const Text& document, int lengthError) {
  const std::unique_ptr<char[]> exact(new char[document.size() + 1]);
  std::copy(document.begin(), document.end(), exact.get());
  exact[document.size()] = '\0';
  const char* const xml = exact.get();
  const int length = static_cast<int>(std::strlen(xml)) + lengthError;
  void* result = nullptr;
  if (const Dispatcher* const dispatcher = dispatcherOf(trial)) {
    if (dispatcher->byCode != nullptr) dispatcher->byCode(xml, trial.code, &result);
    if (dispatcher->byText != nullptr) dispatcher->byText(xml, &result);
    if (dispatcher->byLength != nullptr) dispatcher->byLength(xml, length, &result);
  } else if (std::strcmp(trial.type, "MEDIA_DATA_MESSAGE") == 0) {
    MediaDataMessageAnalysis(xml, trial.code, length, &result);
  }
  const Result owner(result);
  if (result == nullptr) return;
  checkBlock(result);
  relay(headerOf(trial), result);
}

void analyseByEntry(const Trial& trial, std::string_view body, std::string_view tail) {
  Text payload = enveloped(trial, body);
  append(payload, tail);
  KOV_PROTOCOL_HEADER header;
  const Result result = analyse(payload, {}, header);
  if (result != nullptr) relay(header, result.get());
}

enum class Way : unsigned char {
  BodyByEntry,
  BodyByDispatcher,
  DocumentByDispatcher,
  kMaxValue = DocumentByDispatcher
};

}  // namespace

// The choices stand at the end of the input, so that any document may begin it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t size) {
  FuzzedDataProvider choices(input, size);
  const Trial& trial = everyTrial()[choices.ConsumeIntegralInRange<std::size_t>(0, everyTrial().size() - 1)];
  const Way way = choices.ConsumeEnum<Way>();
  const std::size_t tailLength = choices.ConsumeIntegralInRange<std::size_t>(0, 1100);
  const int lengthError = choices.ConsumeIntegralInRange<int>(-2, 1);
  const Text rest = choices.ConsumeRemainingBytes<char>();
  const std::string_view text = view(rest);
  if (way == Way::BodyByEntry) {
    const std::size_t tail = text.size() - std::min(tailLength, text.size());
    analyseByEntry(trial, bodyIn(text.substr(0, tail)), text.substr(tail));
  } else if (way == Way::BodyByDispatcher) {
    analyseByDispatcher(trial, enveloped(trial, bodyIn(text)), lengthError);
  } else {
    analyseByDispatcher(trial, rest, lengthError);
  }
  return 0;
}
