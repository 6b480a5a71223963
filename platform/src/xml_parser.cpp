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

/** The first element of that name from `from` along the siblings up to `end`; 0 stands behind the last sibling. */
ElementRecord* KovXMLParser::Document::find(Word from, Word end, const char* name) const noexcept {
  while (from != end) {
    auto* element = reinterpret_cast<Element*>(words_ + from);
    if (sameName(text_ + element->name, name)) return element;
    from = element->next;
  }
  return nullptr;
}

void* KovXMLParser::Document::firstChild(const void* parent, const char* name) noexcept {
  const auto* owner = static_cast<const Element*>(parent);
  if ((owner->shape & Element::kHasChildren) == 0) return nullptr;
  const auto first = static_cast<Word>(reinterpret_cast<const Word*>(owner->attributesEnd()) - words_);
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
  const AttributeRecord* next = owner == attributeOwner_ ? attributeStart_ : owner->attributes();
  if (next == owner->attributesEnd() || !sameName(text_ + next->name, name)) return attributeElsewhere(owner, name);
  attributeOwner_ = owner;
  attributeStart_ = next + 1;
  return text_ + next->value;
}

/** Searches the attributes from the start on and then from the first. */
const char* KovXMLParser::Document::attributeElsewhere(const Element* owner, const char* name) noexcept {
  const AttributeRecord* const first = owner->attributes();
  const AttributeRecord* const end = owner->attributesEnd();
  const AttributeRecord* const start = owner == attributeOwner_ ? attributeStart_ : first;
  const AttributeRecord* found = find(start, end, name);
  if (found == nullptr) found = find(first, start, name);
  if (found == nullptr) return nullptr;
  attributeOwner_ = owner;
  attributeStart_ = found + 1;
  return text_ + found->value;
}

const AttributeRecord* KovXMLParser::Document::find(const AttributeRecord* from, const AttributeRecord* end,
                                                    const char* name) const noexcept {
  for (; from != end; ++from) {
    if (sameName(text_ + from->name, name)) return from;
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
