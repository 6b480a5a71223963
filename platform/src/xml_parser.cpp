/**
 * @file xml_parser.cpp
 * @brief Look-ups in a document, and the object that shares and counts it and answers neutrally where there is none.
 */
#include "kov_platform/xml_parser.h"

#include <cstring>

#include "xml_document.h"

using kov::xml::AttributeRecord;
using kov::xml::ElementRecord;
using kov::xml::sameName;
using kov::xml::WantedName;

/** The first element of that name from `from` along the siblings up to `end`; 0 stands behind the last sibling. */
ElementRecord* KovXMLParser::Document::find(Word from, Word end, const char* name) const noexcept {
  if (from == end) return nullptr;
  auto* element = reinterpret_cast<Element*>(words_ + from);
  if (sameName(text_ + element->name, name)) return element;
  if (element->next == end) return nullptr;
  for (const WantedName wanted(name); element->next != end;) {
    element = reinterpret_cast<Element*>(words_ + element->next);
    if (wanted.is(text_ + element->name)) return element;
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
  if (owner != attributeOwner_) {
    attributeOwner_ = owner;
    attributeStart_ = 0;
  }
  const Word start = attributeStart_;
  if (start < count && sameName(text_ + attributes[start].name, name)) {
    attributeStart_ = start + 1;
    return text_ + attributes[start].value;
  }
  return attributeElsewhere(attributes, count, name);
}

/** Searches the attributes from behind the start on and then from the first. */
const char* KovXMLParser::Document::attributeElsewhere(const AttributeRecord* attributes, Word count,
                                                       const char* name) noexcept {
  const WantedName wanted(name);
  Word at = attributeStart_;
  for (Word tried = 0; tried < count; ++tried, ++at) {
    if (at >= count) at = 0;
    if (!wanted.is(text_ + attributes[at].name)) continue;
    attributeStart_ = at + 1;
    return text_ + attributes[at].value;
  }
  return nullptr;
}

const char* KovXMLParser::Document::text(const void* element) const noexcept {
  const Word offset = static_cast<const Element*>(element)->text;
  return offset == 0 ? "" : text_ + offset;
}

KovXMLParser::KovXMLParser(const KovXMLParser& other) noexcept : document_(other.document_) {
  if (document_ != nullptr) document_->addUser();
}

KovXMLParser& KovXMLParser::operator=(const KovXMLParser& other) noexcept {
  if (other.document_ != nullptr) other.document_->addUser();
  if (document_ != nullptr) document_->removeUser();
  document_ = other.document_;
  return *this;
}

KovXMLParser::~KovXMLParser() {
  if (document_ != nullptr) document_->removeUser();
}

int KovXMLParser::Parse(const char* document) noexcept {
  // The old document goes last: the text to parse may lie inside it.
  Document* parsed = Document::parse(document);
  if (document_ != nullptr) document_->removeUser();
  document_ = parsed;
  return parsed != nullptr ? 0 : -1;
}

void* KovXMLParser::RootElement() const noexcept { return document_ != nullptr ? document_->root() : nullptr; }

void* KovXMLParser::FirstChildElement(void* parent, const char* name) const noexcept {
  if (document_ == nullptr || parent == nullptr || name == nullptr) return nullptr;
  return document_->firstChild(parent, name);
}

void* KovXMLParser::NextSiblingElement(void* element, const char* name) const noexcept {
  if (document_ == nullptr || element == nullptr || name == nullptr) return nullptr;
  return document_->nextSibling(element, name);
}

const char* KovXMLParser::Attribute(void* element, const char* name) const noexcept {
  if (document_ == nullptr || element == nullptr || name == nullptr) return nullptr;
  return document_->attribute(element, name);
}

const char* KovXMLParser::GetText(void* element) const noexcept {
  return document_ != nullptr && element != nullptr ? document_->text(element) : "";
}
