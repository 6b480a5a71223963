#include "core/family.h"

#include "core/exported.h"
#include "kov_platform/services.h"
#include "kov_platform/value_text.h"

namespace kov {

void HeaderExtras::append(const char* name, std::size_t nameLength, const char* text, std::size_t length) {
  constexpr std::size_t kPunctuation = 4;  // ="" and the newline
  if (nameLength + length + kPunctuation >= size_ - length_) return;
  BodyWriter line(buffer_ + length_, size_ - length_);
  line.text(name, nameLength);
  line.literal("=\"");
  line.text(text, length);
  line.literal("\"\n");
  line.terminate();
  length_ += line.written();
}

void HeaderExtras::append(const char* name, std::size_t nameLength, std::int32_t number) {
  char digits[BodyWriter::kMostDigits];
  append(name, nameLength, digits, static_cast<std::size_t>(BodyWriter::putDecimal(digits, number) - digits));
}

const CodeRow* CodeTable::lookUp(int code) const {
  for (std::size_t i = 0; i < groupCount(); ++i) {
    for (const CodeRow& row : group(i)) {
      if (row.code == code) return &row;
    }
  }
  return nullptr;
}

const CodeRow* CodeTable::find(const char* msgCode) const {
  const int code = intOf(msgCode);
  const CodeRow* const row = lookUp(code);
  if (row == nullptr) logUnknown_(msgCode, code);
  return row;
}

int CodeTable::compose(const void* param, int direction, const char* msgCode, BodyWriter& body) const {
  const CodeRow* const row = find(msgCode);
  if (row == nullptr) return KOV_ERROR_UNKNOWN_MESSAGE;
  return row->message == nullptr ? KOV_OK : row->message->compose(param, direction, body);
}

int CodeTable::analyse(const KovXMLParser& document, const char* msgCode, void** result) const {
  const CodeRow* const row = find(msgCode);
  if (row == nullptr) return KOV_ERROR_UNKNOWN_MESSAGE;
  return row->message == nullptr ? KOV_OK : row->message->analyse(document, result);
}

int CodeTable::compose(const void* param, int direction, const char* msgCode, char* body, int bodySize) const {
  return composeExported(name_, param, body, bodySize, msgCode,
                         [&](BodyWriter& writer) { return compose(param, direction, msgCode, writer); });
}

int CodeTable::analyse(const char* xml, const char* msgCode, void** result) const {
  if (xml == nullptr || msgCode == nullptr || result == nullptr) {
    KovProtocolLogError("%s put a empty Param\n", name_);
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  const CodeRow* const row = find(msgCode);
  if (row == nullptr) return KOV_ERROR_UNKNOWN_MESSAGE;
  return row->message == nullptr ? KOV_OK : row->message->analyse(xml, result);
}

}  // namespace kov
