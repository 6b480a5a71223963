/**
 * @file xml_document.cpp
 * @brief The making and the end of a parsed document.
 */
#include "xml_document.h"

#include <cstring>
#include <new>

#include "xml_scanner.h"

namespace kov::xml {
namespace {

/** Bytes of the text area: the text and the NULs behind it, in whole words. */
std::size_t textArea(std::size_t length) {
  return (length + kNameBlock + sizeof(Word) - 1) / sizeof(Word) * sizeof(Word);
}

/** Record words that suffice for messages: they take less than one and a half bytes of records per byte of text. */
std::size_t usualWords(std::size_t length) { return length / 2 + 4 * kElementWords; }

/**
 * Record words that suffice for any text of that length that is well-formed: the shortest element, `<a/>`, takes four
 * bytes of text and four words, an attribute takes four bytes, two words and two more for telling it from the others.
 */
std::size_t mostWords(std::size_t length) { return length; }

}  // namespace
}  // namespace kov::xml

KovXMLParser::Document::Document(const char* text, std::size_t length) noexcept
    : text_(reinterpret_cast<char*>(this + 1)), words_(reinterpret_cast<Word*>(text_ + kov::xml::textArea(length))) {
  std::memcpy(text_, text, length);
  std::memset(text_ + length, '\0', kov::xml::kNameBlock);
}

KovXMLParser::Document* KovXMLParser::Document::parse(const char* text) noexcept {
  const std::size_t length = text == nullptr ? 0 : std::strlen(text);
  if (length == 0 || length > kov::xml::kMaxDocumentLength) return nullptr;
  for (const std::size_t room : {kov::xml::usualWords(length), kov::xml::mostWords(length)}) {
    Document* document = make(text, length, room);
    if (document == nullptr) return nullptr;
    kov::xml::Scanner scanner(document->text_, length, document->words_, room);
    if (scanner.run()) return document;
    document->removeUser();
    if (!scanner.outOfRoom()) return nullptr;
  }
  return nullptr;
}

KovXMLParser::Document* KovXMLParser::Document::make(const char* text, std::size_t length, std::size_t room) noexcept {
  const std::size_t size = sizeof(Document) + kov::xml::textArea(length) + room * sizeof(Word);
  void* block = ::operator new(size, std::nothrow);
  return block != nullptr ? new (block) Document(text, length) : nullptr;
}

void KovXMLParser::Document::removeUser() noexcept {
  if (--users_ == 0) ::operator delete(static_cast<void*>(this));
}
