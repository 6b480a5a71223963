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

/** Bytes of the text area: the text and at least one NUL, in whole words. */
std::size_t textArea(std::size_t length) { return (length + sizeof(Word)) / sizeof(Word) * sizeof(Word); }

/**
 * Record words that suffice for any text of that length: the shortest closed element, `<a/>`, takes four bytes of text
 * and four words, an attribute takes four bytes and two words. Only the open ancestors may have taken fewer bytes, two
 * at least. So the block never grows, and the part of it that is not needed is never touched.
 */
std::size_t recordWords(std::size_t length) { return length + 2 * kMaxDepth; }

}  // namespace
}  // namespace kov::xml

KovXMLParser::Document::Document(const char* text, std::size_t length) noexcept
    : text_(reinterpret_cast<char*>(this + 1)), words_(reinterpret_cast<Word*>(text_ + kov::xml::textArea(length))) {
  std::memcpy(text_, text, length);
  text_[length] = '\0';
}

KovXMLParser::Document* KovXMLParser::Document::parse(const char* text) noexcept {
  const std::size_t length = text == nullptr ? 0 : std::strlen(text);
  if (length == 0 || length > kov::xml::kMaxDocumentLength) return nullptr;
  const std::size_t room = kov::xml::recordWords(length);
  const std::size_t size = sizeof(Document) + kov::xml::textArea(length) + room * sizeof(Word);
  void* block = ::operator new(size, std::nothrow);
  if (block == nullptr) return nullptr;
  auto* document = new (block) Document(text, length);
  kov::xml::Scanner scanner(document->text_, length, document->words_, room);
  if (scanner.run()) return document;
  document->removeUser();
  return nullptr;
}

void KovXMLParser::Document::removeUser() noexcept {
  if (--users_ == 0) ::operator delete(static_cast<void*>(this));
}
