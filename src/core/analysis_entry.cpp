// KovProtocolMSGAnalysisStart and Stop: decode, cut out the document, parse it once, hand it to its family.
#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <memory>

#include "core/family_table.h"
#include "core/header.h"
#include "core/received_text.h"
#include "kov_platform/services.h"

namespace kov {
namespace {

// The channel number of these configuration queries may come without quotes.
constexpr const char* kUnquotedChannelCodes[] = {"501", "2511", "2560", "2561"};

bool namesSuchACode(const ReceivedText& text) {
  return std::any_of(std::begin(kUnquotedChannelCodes), std::end(kUnquotedChannelCodes),
                     [&text](const char* code) { return text.contains(code); });
}

// ChannelId=3/> becomes ChannelId="3"/> in those queries. Type, code and attribute are looked for anywhere in the text,
// as peers rely on; the type first, by its F, because it spares nearly all texts the rest.
int quoteChannel(ReceivedText& text) {
  constexpr std::size_t kNameLength = sizeof "ChannelId=" - 1;
  if (!text.contains("SYSTEM_CONFIG_GET_MESSAGE", 10)) return KOV_OK;
  const std::size_t name = text.find("ChannelId=");
  if (name == ReceivedText::kNowhere) return KOV_OK;
  const std::size_t value = name + kNameLength;
  if (text[value] == '"' || !namesSuchACode(text)) return KOV_OK;
  const std::size_t end = text.find("/", 0, value);  // the closing root tag has one at the latest
  return text.quote(value, end) ? KOV_OK : KOV_ERROR_NO_MEMORY;
}

// Hands out the message embedded in a transparent document. Its own type stands in for the header's.
int analyseTransparent(const ElementReader& element, ReceivedText& text, KOV_PROTOCOL_HEADER& header, void** result) {
  std::memset(header.Msg_type, 0, sizeof header.Msg_type);
  BodyIo(element).attributes({{"Trans_Type", header.Msg_type}});
  text.restore();
  const std::size_t embedded = text.find("<MESSAGE_HEADER");
  if (embedded == ReceivedText::kNowhere) return KOV_ERROR_INCOMPLETE;
  const std::size_t length = text.length() - embedded;
  constexpr std::size_t kCapacity = sizeof TRANSPARENT_HEADER::Payload;
  if (length >= kCapacity) {
    KovProtocolLogError("Error: iBufLen(%d) small than len(%d)\n", static_cast<int>(kCapacity),
                        static_cast<int>(length));
    return KOV_ERROR_SIZE;
  }
  auto* const record = newRecord<TRANSPARENT_HEADER>(result);
  if (record == nullptr) return KOV_ERROR_NO_MEMORY;
  readTransparentHeader(element, *record);
  std::memcpy(record->Payload, text.text() + embedded, length);
  record->PayloadLength = static_cast<std::int32_t>(length);
  return record->PayloadLength;
}

int dispatch(const KovXMLParser& document, const ReceivedText& text, int received, const KOV_PROTOCOL_HEADER& header,
             void** result) {
  const FieldText type(header.Msg_type);
  const FieldText code(header.Msg_code);
  const FamilyRow* const row = findFamily(type.text(), type.length(), code.text());
  if (row == nullptr) {
    KovProtocolLogError("KovProtocolMSGAnalysisStart deal a unknow Msg_type:%s Msg_code:%s !!!\n", type.text(),
                        code.text());
    return KOV_ERROR_UNKNOWN_MESSAGE;
  }
  const Family& family = *row->family;
  if (family.analyse == nullptr) return family.codes->analyse(document, code.text(), result);
  return family.analyse(
      {document, text.text(), text.documentLength(), text.tail(), text.tailLength(), received, code.text(), result});
}

int readHeaderAndDispatch(const KovXMLParser& document, const ReceivedText& text, int received,
                          KOV_PROTOCOL_HEADER& header, void** result) {
  const int read = readMessageHeader(document, header);
  if (read < 0) {
    KovProtocolLogError("GetMessageHeader failed! nRet:%d \n", read);
    return KOV_ERROR_BAD_HEADER;
  }
  return dispatch(document, text, received, header, result);
}

int parseAndAnalyse(ReceivedText& text, int received, KOV_PROTOCOL_HEADER& header, void** result) {
  KovXMLParser document;
  if (document.Parse(text.text()) != 0) {
    KovProtocolLogError("GetMessageHeader Parse xml error\n");
    KovProtocolLogError("GetMessageHeader failed! nRet:%d \n", KOV_ERROR_BAD_DOCUMENT);
    return KOV_ERROR_BAD_HEADER;
  }
  ElementReader transparent;
  if (findTransparentHeader(document, transparent) == KOV_OK) {
    return analyseTransparent(transparent, text, header, result);
  }
  return readHeaderAndDispatch(document, text, received, header, result);
}

int analyseText(ReceivedText& text, int received, KOV_PROTOCOL_HEADER& header, void** result) {
  if (quoteChannel(text) != KOV_OK || !text.terminate()) {
    KovProtocolLogError("KovProtocolMalloc faile!!\n");
    return KOV_ERROR_NO_MEMORY;
  }
  const int analysed = parseAndAnalyse(text, received, header, result);
  text.restore();
  return analysed;
}

// The payload as it was received.
int analysePlain(char* payload, int len, KOV_PROTOCOL_HEADER& header, void** result) {
  const std::size_t received = static_cast<std::size_t>(len);
  ReceivedText text(payload, received, received);
  return text.cutAtRootEnd() ? analyseText(text, len, header, result) : KOV_ERROR_INCOMPLETE;
}

struct Decoding {
  int mode;
  void* key;
};

// Decodes into `work`, which holds one byte more than the decoder is told, for the NUL.
int analyseDecoded(const char* payload, int len, const Decoding& decoding, char* work, int capacity,
                   KOV_PROTOCOL_HEADER& header, void** result) {
  const std::size_t workSize = static_cast<std::size_t>(capacity) + 1;
  std::memset(work, 0, workSize);
  const int decoded = decoding.mode == 0 ? P2pProtocolDecode(0, payload, len, work, capacity)
                                         : KovProtocolDecode(decoding.mode, payload, len, work, capacity, decoding.key);
  if (decoded < 0 || decoded > capacity) {
    KovProtocolLogError("KovProtocolEncode faile!!, ret:%d\n", decoded);
    return KOV_ERROR_CODING;
  }
  ReceivedText text(work, static_cast<std::size_t>(decoded), workSize);
  return text.cutAtRootEnd() ? analyseText(text, len, header, result) : KOV_ERROR_INCOMPLETE;
}

constexpr int kSmallWork = 8192;

int analyseDecodedSmall(const char* payload, int len, const Decoding& decoding, KOV_PROTOCOL_HEADER& header,
                        void** result) {
  char work[kSmallWork + 1];
  return analyseDecoded(payload, len, decoding, work, kSmallWork, header, result);
}

int analyseEncoded(const char* payload, int len, const Decoding& decoding, KOV_PROTOCOL_HEADER& header, void** result) {
  const std::int64_t capacity = 2 * static_cast<std::int64_t>(len);
  if (capacity <= kSmallWork) return analyseDecodedSmall(payload, len, decoding, header, result);
  char* const work =
      capacity < INT32_MAX ? static_cast<char*>(KovProtocolMalloc(static_cast<std::size_t>(capacity) + 1)) : nullptr;
  if (work == nullptr) {
    KovProtocolLogError("KovProtocolMalloc faile!!\n");
    return KOV_ERROR_NO_MEMORY;
  }
  const int analysed = analyseDecoded(payload, len, decoding, work, static_cast<int>(capacity), header, result);
  KovProtocolFree(work);
  return analysed;
}

}  // namespace
}  // namespace kov

int KovProtocolMSGAnalysisStart(char* payload, int len, int decodeMode, void* key, KOV_PROTOCOL_HEADER* header,
                                void** result) {
  if (payload == nullptr || header == nullptr || result == nullptr || len < 1) {
    KovProtocolLogError("KovProtocolXMLAnalysis Invaild Input Param\n");
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  if (decodeMode < 0) return kov::analysePlain(payload, len, *header, result);
  return kov::analyseEncoded(payload, len, {decodeMode, key}, *header, result);
}

int KovProtocolMSGAnalysisStop(void** result) {
  if (result == nullptr) return KOV_OK;
  std::free(*result);
  *result = nullptr;
  return KOV_OK;
}
