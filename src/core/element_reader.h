// A received element: the imported reader's operations, bound to one handle. A missing element answers neutrally.
#pragma once

#include "kov_platform/xml_parser.h"

namespace kov {

class ElementReader {
 public:
  ElementReader() = default;
  ElementReader(const KovXMLParser& document, void* element) : document_(&document), element_(element) {}

  explicit operator bool() const { return element_ != nullptr; }

  ElementReader child(const char* name) const { return {*document_, document_->FirstChildElement(element_, name)}; }
  ElementReader next(const char* name) const { return {*document_, document_->NextSiblingElement(element_, name)}; }

  // The attribute's raw text, null when it is missing.
  const char* attribute(const char* name) const { return document_->Attribute(element_, name); }
  // The element's text, never null.
  const char* text() const { return document_->GetText(element_); }

  const KovXMLParser& document() const { return *document_; }
  void* handle() const { return element_; }

 private:
  const KovXMLParser* document_ = nullptr;
  void* element_ = nullptr;
};

}  // namespace kov
