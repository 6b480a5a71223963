// DBG_CMD_MESSAGE, whose body is free text, and OPEN_DBG_MESSAGE and CLOSE_DBG_MESSAGE, which have none.
#include "session/debug.h"

#include <algorithm>

#include "kov_platform/services.h"
#include "kov_protocol/system_log.h"

namespace kov {
namespace {

static_assert(sizeof(DBG_CMD_PARAM) == 8192);

constexpr std::size_t kCapacity = sizeof DBG_CMD_PARAM::Text;

int refuse(std::size_t capacity, std::size_t length) {
  KovProtocolLogError("Error: iBufLen(%d) small than len(%d)\n", static_cast<int>(capacity),
                      static_cast<int>(std::min<std::size_t>(length, INT32_MAX)));
  return KOV_ERROR_SIZE;
}

// The text is the caller's own, often shorter than the record, and never read beyond the record's size. A longer one
// would be refused by every receiver.
int composeText(ComposeCall& call, BodyWriter& body) {
  const char* const text = static_cast<const char*>(call.param);
  const std::size_t length = boundedLength(text, kCapacity);
  if (length == kCapacity) return refuse(kCapacity, length);
  body.text(text, length);
  return KOV_OK;
}

// The body as it was received: the text is cut out of the document, not read from its elements.
int analyseText(const char* xml, std::size_t textLength, void** result) {
  constexpr char kOpening[] = "<MESSAGE_BODY>";
  const char* const opening = std::strstr(xml, kOpening);
  if (opening == nullptr) return KOV_ERROR_BAD_DOCUMENT;
  const char* const begin = opening + sizeof kOpening - 1;
  const char* const end = std::strstr(begin, "</MESSAGE_BODY>");
  if (end == nullptr) return KOV_ERROR_BAD_DOCUMENT;
  const std::size_t length = static_cast<std::size_t>(end - begin);
  if (textLength < length) return refuse(textLength, length);
  if (length >= kCapacity) return refuse(kCapacity, length);
  auto* const record = newRecord<DBG_CMD_PARAM>(result);
  if (record == nullptr) return KOV_ERROR_NO_MEMORY;
  std::memcpy(record->Text, begin, length);
  return KOV_OK;
}

int analyseTextEntry(const AnalysisCall& call) { return analyseText(call.text, call.textLength, call.result); }

int composeNothing(ComposeCall&, BodyWriter&) { return KOV_OK; }
int analyseNothing(const AnalysisCall&) { return KOV_OK; }

}  // namespace

constexpr Family kDebugText = {nullptr, composeText, analyseTextEntry};
constexpr Family kDebugSwitch = {nullptr, composeNothing, analyseNothing};

}  // namespace kov

int DBG_CMD_PARAM_init(DBG_CMD_PARAM* record) { return kov::fillDefaults(record); }

int DebugLogMessageAnalysis(const char* xml, int textLen, void** result) {
  if (xml == nullptr || result == nullptr) {
    KovProtocolLogError("DebugLogMessageAnalysis put a empty Param\n");
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  return kov::analyseText(xml, textLen < 0 ? 0 : static_cast<std::size_t>(textLen), result);
}
