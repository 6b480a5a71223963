// KovProtocolXMLCompose: envelope, body and frame of one message, composed in place wherever the buffer allows.
#include <algorithm>

#include "core/family_table.h"
#include "core/frame.h"
#include "core/header.h"
#include "kov_platform/services.h"

namespace kov {
namespace {

constexpr std::size_t kExtrasSize = 256;

// However small the output is, a document is composed in at least this many bytes: the log shows it whole.
constexpr std::size_t kLeastDocument = 8192;

// What one call hands down to its steps.
struct Request {
  Request(const KOV_PROTOCOL_HEADER& from, const void* record, int way)
      : header(from), type(from.Msg_type), code(from.Msg_code), param(record), direction(way) {}

  const KOV_PROTOCOL_HEADER& header;
  const FieldText<sizeof KOV_PROTOCOL_HEADER::Msg_type> type;
  const FieldText<sizeof KOV_PROTOCOL_HEADER::Msg_code> code;
  const void* param;
  int direction;
  const Family* family = nullptr;  // null: nothing to ask for a body
  std::uint32_t extraLen = 0;
};

// What a family adds to the header goes behind the two optional attributes and shares their 256 bytes, for which every
// document has room.
int composeExtras(const Request& request, ComposeCall& call, BodyWriter& document, std::size_t used) {
  if (request.family == nullptr || request.family->headerExtras == nullptr) return KOV_OK;
  HeaderExtras extras(document.cursor() - used, kExtrasSize, used);
  const int result = request.family->headerExtras(call, extras);
  document.advanceTo(document.cursor() - used + extras.length());
  return result;
}

int openEnvelope(const Request& request, ComposeCall& call, BodyWriter& document) {
  document.literal("<?xml version=\"1.0\" encoding=\"GB2312\" ?>\n<XML_ZANTIR>\n<MESSAGE_HEADER\n");
  KOV_PROTOCOL_HEADER& header = const_cast<KOV_PROTOCOL_HEADER&>(request.header);  // left alone: this writes
  BodyIo io(document);
  headerAttributes(io, header);
  const std::size_t lengthBeforeExtras = document.length();
  optionalHeaderAttributes(io, header);
  const int result = composeExtras(request, call, document, document.length() - lengthBeforeExtras);
  if (document.length() != lengthBeforeExtras) document.character('\n');  // behind the newline of the last extra
  document.literal("/>\n<MESSAGE_BODY>\n");
  return result;
}

void closeEnvelope(BodyWriter& document, std::size_t lengthBeforeBody) {
  if (document.length() != lengthBeforeBody) document.character('\n');
  document.literal("</MESSAGE_BODY>\n</XML_ZANTIR>");
  document.terminate();
}

int composeBody(const Family* family, ComposeCall& call, BodyWriter& document) {
  if (family == nullptr) return KOV_OK;
  if (family->compose != nullptr) return family->compose(call, document);
  return family->codes->compose(call.param, call.direction, call.msgCode, document);
}

// Composes the whole document into `size` bytes. Returns its length, which is `size` or more when it was cut, or the
// family's code. No record makes a text that an int cannot count.
int composeDocument(Request& request, char* buffer, std::size_t size) {
  ComposeCall call = {request.header, request.code.text(), request.param, request.direction, request.extraLen};
  BodyWriter document(buffer, size);
  int result = openEnvelope(request, call, document);
  if (result == KOV_OK) {
    const std::size_t lengthBeforeBody = document.length();
    result = composeBody(request.family, call, document);
    if (result == KOV_OK) {
      closeEnvelope(document, lengthBeforeBody);
      return static_cast<int>(document.length());
    }
  }
  const FieldText flag(request.header.Msg_flag);
  KovProtocolLogError("Msgtype:%s Msg_code:%s Msg_flag:%s Compose failed, nRet : %d\n", request.type.text(),
                      request.code.text(), flag.text(), result);
  return result;
}

// Composes at `place`, which lies in `out`, and tells it. A document that was cut never leaves: it is longer than out.
int composeInPlace(Request& request, char* place, std::size_t size, int outSize) {
  const int length = composeDocument(request, place, size);
  if (length < 0) return length;
  KovProtocolLogInfo("KovProtocolMessageBufCompose put msglen:%d msgbuf:%s \n", length, place);
  KovProtocolLogInfo("KovProtocolMessageBufCompose done, msglen:%d DataLen:%d\n", length, outSize);
  return length;
}

// For an output below the least document size, and so a room below it: composes elsewhere and takes what fits.
int composeAside(Request& request, char* place, std::size_t room, int outSize) {
  char document[kLeastDocument];
  const int length = composeInPlace(request, document, sizeof document, outSize);
  if (length < 0) return length;
  std::memcpy(place, document, std::min(static_cast<std::size_t>(length), room));
  return length;
}

int composeAt(Request& request, char* place, std::size_t room, int outSize) {
  if (static_cast<std::size_t>(outSize) < kLeastDocument) return composeAside(request, place, room, outSize);
  return composeInPlace(request, place, room, outSize);
}

int composeFramed(Request& request, const Encoding& encoding, char* out, int outSize) {
  constexpr int kFrameHeader = KOV_FRAME_HEADER_SIZE;
  const std::size_t room = outSize > kFrameHeader ? static_cast<std::size_t>(outSize - kFrameHeader) : 0;
  const int length = composeAt(request, room == 0 ? out : out + kFrameHeader, room, outSize);
  if (length < 0) return length;
  if (length >= outSize - kFrameHeader) return KOV_ERROR_SIZE;
  return frameDocument(out, outSize, length, encoding, request.extraLen);
}

void writeTransparentHeader(BodyWriter& document, const TRANSPARENT_HEADER& record) {
  document.literal("<?xml version=\"1.0\" encoding=\"GB2312\" ?>\n<XML_ZANTIR>\n<TRANSPARENT_HEADER\nTrans_Type=\"");
  document.field(record.Trans_Type);
  document.literal("\"\nChannel_ID=\"");
  document.field(record.Channel_ID);
  document.literal("\"\nSource_Type=\"");
  document.field(record.Source_Type);
  document.literal("\"\nSession_ID=\"");
  document.field(record.Session_ID);
  document.literal("\"\nTrans_Result=\"");
  document.field(record.Trans_Result);
  document.literal("\"\n/>\n");
}

// The embedded text goes out as it is and brings the closing root tag itself.
int composeTransparent(const TRANSPARENT_HEADER& record, const Encoding& encoding, char* out, int outSize) {
  char opening[512];  // 139 bytes of text and five fields of 32
  BodyWriter writer(opening, sizeof opening);
  writeTransparentHeader(writer, record);
  const int openingLength = static_cast<int>(writer.length());
  const int payload = record.PayloadLength;
  if (payload < 0 || static_cast<std::size_t>(payload) > sizeof record.Payload) return KOV_ERROR_SIZE;
  if (payload >= outSize - openingLength - KOV_FRAME_HEADER_SIZE) return KOV_ERROR_SIZE;
  char* const document = out + KOV_FRAME_HEADER_SIZE;
  std::memcpy(document, opening, static_cast<std::size_t>(openingLength));
  std::memcpy(document + openingLength, record.Payload, static_cast<std::size_t>(payload));
  return frameDocument(out, outSize, static_cast<std::int64_t>(openingLength) + payload, encoding, 0);
}

// A bare document may fill the output to its last byte, which then belongs to the closing tag and not to a NUL.
int composeBare(Request& request, char* out, int outSize) {
  const int length = composeAt(request, out, static_cast<std::size_t>(outSize), outSize);
  if (length == outSize) out[outSize - 1] = '>';
  return length;
}

int composeMessage(Request& request, const Encoding& encoding, char* out, int outSize) {
  const FamilyRow* const row = findFamily(request.type.text(), request.type.length(), request.code.text());
  if (request.param != nullptr) {
    if (row == nullptr && sameText(request.type.text(), TRANSPARENT_CHANNEL_MSG_TYPE)) {
      return composeTransparent(*static_cast<const TRANSPARENT_HEADER*>(request.param), encoding, out, outSize);
    }
    if (row == nullptr) {
      KovProtocolLogError("KovProtocolXMLCompose deal a unknow Msg_type:%s Msg_code:%s !!!\n", request.type.text(),
                          request.code.text());
      return KOV_ERROR_UNKNOWN_MESSAGE;
    }
    if (!isComposed(*row, request.code.text())) return KOV_ERROR_UNKNOWN_MESSAGE;
    request.family = row->family;
  }
  if (row != nullptr && row->framing == Framing::Bare) return composeBare(request, out, outSize);
  return composeFramed(request, encoding, out, outSize);
}

}  // namespace
}  // namespace kov

int KovProtocolXMLCompose(const KOV_PROTOCOL_HEADER* header, const void* param, int direction, int encodeMode,
                          void* key, void* out, int outSize) {
  if (out == nullptr || header == nullptr || outSize < 1) {
    KovProtocolLogError("KovProtocolXMLAnalysis Invaild Input Param\n");
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  const kov::Encoding encoding = {encodeMode, key};
  kov::Request request(*header, param, direction);
  return kov::composeMessage(request, encoding, static_cast<char*>(out), outSize);
}
