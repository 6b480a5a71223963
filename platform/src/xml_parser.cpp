/**
 * @file xml_parser.cpp
 * @brief The parser object: a shared, counted document, and neutral answers where there is none.
 */
#include "kov_platform/xml_parser.h"

#include "xml_document.h"

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
