/**
 * @file xml_document.cpp
 * @brief Life and look-ups of a parsed document.
 */
#include "xml_document.h"

#include <cstring>
#include <new>

#include "xml_grammar.h"
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

using kov::xml::AttributeRecord;
using kov::xml::ElementRecord;

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

bool KovXMLParser::Document::named(Word nameOffset, const char* name) const noexcept {
  const char* own = text_ + nameOffset;
  return *own == *name && std::strcmp(own, name) == 0;
}

/** The first element of that name from `from` along the siblings up to `end`; 0 stands behind the last sibling. */
ElementRecord* KovXMLParser::Document::find(Word from, Word end, const char* name) const noexcept {
  while (from != end) {
    auto* element = reinterpret_cast<Element*>(words_ + from);
    if (named(element->name, name)) return element;
    from = element->next;
  }
  return nullptr;
}

void* KovXMLParser::Document::firstChild(const void* parent, const char* name) noexcept {
  const auto* owner = static_cast<const Element*>(parent);
  if ((owner->shape & Element::kHasChildren) == 0) return nullptr;
  const auto ownerIndex = static_cast<Word>(reinterpret_cast<const Word*>(owner) - words_);
  const Word first = ownerIndex + kov::xml::kElementWords + owner->attributeCount() * kov::xml::kAttributeWords;
  const Word start = owner == childOwner_ ? childStart_ : 0;

  Element* found = find(start, 0, name);
  if (found == nullptr) {
    found = find(first, start, name);
  } else if ((found->shape & Element::kFirstOfName) == 0) {
    found = find(first, 0, name);  // a sibling before the start may bear the same name
  }
  if (found == nullptr) return nullptr;
  childOwner_ = owner;
  childStart_ = found->next;
  return found;
}

void* KovXMLParser::Document::nextSibling(const void* element, const char* name) const noexcept {
  return find(static_cast<const Element*>(element)->next, 0, name);
}

const char* KovXMLParser::Document::attribute(const void* element, const char* name) noexcept {
  const auto* owner = static_cast<const Element*>(element);
  const auto* attributes = reinterpret_cast<const AttributeRecord*>(owner + 1);
  const Word count = owner->attributeCount();
  Word at = owner == attributeOwner_ ? attributeStart_ : 0;
  for (Word tried = 0; tried < count; ++tried, ++at) {
    if (at >= count) at = 0;
    if (!named(attributes[at].name, name)) continue;
    attributeOwner_ = owner;
    attributeStart_ = at + 1;
    return text_ + attributes[at].value;
  }
  return nullptr;
}

const char* KovXMLParser::Document::text(const void* element) const noexcept {
  const Word offset = static_cast<const Element*>(element)->text;
  return offset == 0 ? "" : text_ + offset;
}
