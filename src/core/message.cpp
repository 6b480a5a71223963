#include "core/message.h"

#include "kov_platform/services.h"

namespace kov {

void* newBlock(std::size_t size, void** result) {
  void* const block = KovProtocolMalloc(size);
  *result = block;
  if (block == nullptr) KovProtocolLogError("Malloc Memory failed!\n");
  return block;
}

int parseDocument(const char* name, const char* xml, KovXMLParser& document) {
  if (document.Parse(xml) == 0) return KOV_OK;
  KovProtocolLogError("%sAnalysis Parse MsgBuf error\n", name);
  return KOV_ERROR_BAD_DOCUMENT;
}

int findBody(const char* name, const KovXMLParser& document, ElementReader& body) {
  void* const root = document.RootElement();
  if (root == nullptr) {
    KovProtocolLogError("%sAnalysis get RootElement error\n", name);
    return KOV_ERROR_BAD_DOCUMENT;
  }
  body = ElementReader(document, root).child("MESSAGE_BODY");
  if (body) return KOV_OK;
  KovProtocolLogError("%sAnalysis get MESSAGE_BODY error\n", name);
  return KOV_ERROR_BAD_DOCUMENT;
}

const Form& Message::formFor(int direction) const {
  switch (direction_) {
    case Direction::RequestIs02:
      return isRequest(direction) ? request_ : response_;
    case Direction::ResponseIs13:
      return isResponse(direction) ? response_ : request_;
    case Direction::Ignored:
      break;
  }
  return request_;
}

int Message::compose(const void* record, int direction, BodyWriter& body) const {
  if (record == nullptr) {
    KovProtocolLogInfo("%sCompose put a empty Param\n", composeName_);
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  const Form& chosen = formFor(direction);
  if (chosen.run == nullptr) return KOV_OK;
  BodyIo io(body);
  chosen.run(io, const_cast<void*>(record));  // a form that writes leaves the record alone
  return KOV_OK;
}

int Message::analyse(const char* xml, void** result) const {
  if (xml == nullptr || result == nullptr) {
    KovProtocolLogError("%sAnalysis put a empty Param\n", name_);
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  KovXMLParser document;
  const int parsed = parseDocument(name_, xml, document);
  return parsed != KOV_OK ? parsed : analyse(document, result);
}

int Message::analyse(const KovXMLParser& document, void** result) const {
  ElementReader body;
  const int found = findBody(name_, document, body);
  if (found != KOV_OK) return found;
  const Form* const chosen = formOf(body);
  if (chosen == nullptr) {
    KovProtocolLogError("%sAnalysis get %s error\n", reportName_, missing_);
    return KOV_ERROR_NO_ELEMENT;
  }
  void* const record = newBlock(record_.size, result);
  if (record == nullptr) return KOV_ERROR_NO_MEMORY;
  record_.setDefaults(record);
  BodyIo io(body);
  chosen->run(io, record);
  return KOV_OK;
}

// The form whose element the body has; null when it has neither.
const Form* Message::formOf(const ElementReader& body) const {
  const Form* const order[] = {requestFirst_ ? &request_ : &response_, requestFirst_ ? &response_ : &request_};
  for (const Form* candidate : order) {
    if (candidate->run == nullptr) continue;
    if (candidate->element == nullptr || body.child(candidate->element)) return candidate;
  }
  return nullptr;
}

}  // namespace kov
