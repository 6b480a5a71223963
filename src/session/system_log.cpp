// SYSTEM_LOG_MESSAGE and SYSTEM_LOG_DATA: log files, in pieces that travel raw behind the document, and log commands.
#include "kov_protocol/system_log.h"

#include <algorithm>

#include "core/exported.h"
#include "core/message.h"
#include "kov_platform/services.h"
#include "kov_platform/value_text.h"
#include "session/system_log.h"

namespace kov {
namespace {

static_assert(sizeof(SYSTEM_LOG_PARAM) == 41744 && offsetof(SYSTEM_LOG_PARAM, Data) == 784);

// Zero bytes between the document and its raw data.
constexpr std::uint32_t kSeparator = 4;

void position(BodyIo& io, SYSTEM_LOG_PARAM& r) {
  io.element("POS", "<POS \n",
             {{"Filename", r.Filename}, {"XmlLen", r.XmlLen}, {"StartPos", r.StartPos}, {"DataLen", r.DataLen}});
}

void command(BodyIo& io, SYSTEM_LOG_PARAM& r) { io.texts({attr("cmd", r.Cmd).ifSet().thenNothing()}); }

void writeRequest(BodyIo& io, SYSTEM_LOG_PARAM& r) {
  if (isSet(r.Filename)) {
    position(io, r);
  } else {
    command(io, r);
  }
}

// What the receiver reads as Data goes out as Cmd, as RespStr spelt like an attribute, or without any element.
void writeResponse(BodyIo& io, SYSTEM_LOG_PARAM& r) {
  BodyWriter& body = io.writer();
  if (isSet(r.RespDataLen)) {
    io.texts({attr("RESPONSE_PARAM", r.Cmd)});
    body.literal("<RESPONSE_DATA_LEN>\n");
    body.decimal(r.RespDataLen);
    body.literal("\n</RESPONSE_DATA_LEN>\n");
  } else if (isSet(r.RespStr)) {
    body.literal("<RESPONSE_PARAM>\nRespStr=\"");
    body.field(r.RespStr);
    body.literal("\"\n</RESPONSE_PARAM>\n");
  } else {
    body.field(r.Data);
  }
}

// Its forms write only; analysis has its own steps.
constexpr Message kLog = {"SystemLogMessage", form<writeRequest>(nullptr), form<writeResponse>(nullptr)};

// The bytes that the application sends behind the document. An unset length counts as the number it is.
std::uint32_t bytesBehind(const SYSTEM_LOG_PARAM& r, int direction) {
  if (isRequest(direction)) return isSet(r.Filename) ? kSeparator + static_cast<std::uint32_t>(r.DataLen) : 0;
  return isSet(r.RespDataLen) ? kSeparator + static_cast<std::uint32_t>(r.RespDataLen) : 0;
}

// A document and what follows it in memory. The first byte of the tail is where the document was cut.
struct Received {
  const char* text;
  std::size_t textLength;
  const char* tail;
  std::size_t tailLength;
  bool tailKnown;  // false: nobody said how long it is
};

bool isSeparated(const Received& received) {
  const std::size_t end = std::min<std::size_t>(kSeparator, received.tailLength);
  for (std::size_t i = 1; i < end; ++i) {
    if (received.tail[i] != '\0') return false;
  }
  return true;  // bytes that were not received count as zero
}

// A request for a part of a file names the length too, without carrying data, so that missing data is no failure.
void copyRawData(const Received& received, SYSTEM_LOG_PARAM& record) {
  if (record.DataLen <= 0) return;
  const char* from = received.text;
  std::size_t length = received.textLength;
  if (isSeparated(received)) {
    const std::size_t separator = std::min<std::size_t>(kSeparator, received.tailLength);
    from = received.tail + separator;
    length = received.tailLength - separator;
  } else if (received.tailKnown && from + length == received.tail) {
    length += received.tailLength;
  }
  length = std::min({length, static_cast<std::size_t>(record.DataLen), sizeof record.Data});
  std::memcpy(record.Data, from, length);
}

void readResponse(BodyIo& io, SYSTEM_LOG_PARAM& r) {
  io.texts({attr("RESPONSE_PARAM", r.Data)});
  const ElementReader length = io.reader().child("RESPONSE_DATA_LEN");
  if (length && length.text()[0] != '\0') r.RespDataLen = intOf(length.text());
}

void readText(BodyIo& io, SYSTEM_LOG_PARAM& r) { kov::readText(io.reader().text(), r.Data, sizeof r.Data); }

using Reader = void (*)(BodyIo& io, SYSTEM_LOG_PARAM& r);

// What reads the body, null when there is nothing in it.
Reader readerOf(const ElementReader& body) {
  if (body.child("POS")) return position;
  if (body.child("RESPONSE_PARAM")) return readResponse;
  if (body.child("cmd")) return command;
  return body.text()[0] == '\0' ? nullptr : readText;
}

int analyse(const KovXMLParser& document, const Received& received, void** result) {
  ElementReader body;
  const int found = findBody(kLog.name(), document, body);
  if (found != KOV_OK) return found;
  const Reader reader = readerOf(body);
  if (reader == nullptr) {
    KovProtocolLogError("SystemLogMessageAnalysis get LockParamInfo error\n");
    return KOV_ERROR_NO_ELEMENT;
  }
  auto* const record = newRecord<SYSTEM_LOG_PARAM>(result);
  if (record == nullptr) return KOV_ERROR_NO_MEMORY;
  BodyIo io(body);
  reader(io, *record);
  copyRawData(received, *record);
  return KOV_OK;
}

int composeEntry(ComposeCall& call, BodyWriter& body) {
  call.extraLen += bytesBehind(*static_cast<const SYSTEM_LOG_PARAM*>(call.param), call.direction);
  return kLog.compose(call.param, call.direction, body);
}

int analyseEntry(const AnalysisCall& call) {
  return analyse(call.document, {call.text, call.textLength, call.tail, call.tailLength, true}, call.result);
}

}  // namespace

constexpr Family kSystemLog = {nullptr, composeEntry, analyseEntry};

}  // namespace kov

int SYSTEM_LOG_PARAM_init(SYSTEM_LOG_PARAM* record) { return kov::fillDefaults(record); }

int SystemLogMessageCompose(const SYSTEM_LOG_PARAM* param, int direction, char* body, int bodySize, int* extraLen) {
  return kov::composeExported("SYSTEM_LOG_PARAM", param, body, bodySize, extraLen, [=](kov::BodyWriter& writer) {
    *extraLen = static_cast<int>(static_cast<std::uint32_t>(*extraLen) + kov::bytesBehind(*param, direction));
    return kov::kLog.compose(param, direction, writer);
  });
}

int SystemLogMessageAnalysis(const char* xml, void** result) {
  if (xml == nullptr || result == nullptr) return kov::kLog.analyse(xml, result);  // tells the empty argument
  KovXMLParser document;
  const int parsed = kov::parseDocument(kov::kLog.name(), xml, document);
  if (parsed != KOV_OK) return parsed;
  const std::size_t length = std::strlen(xml);
  return kov::analyse(document, {xml, length, xml + length, SIZE_MAX, false}, result);
}
