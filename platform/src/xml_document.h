/**
 * @file xml_document.h
 * @brief One parsed document: a private copy of its text and, behind that, its records, in a single heap block.
 *
 *     Document | text, NULs, padding | records in document order ...
 *
 * An element's attributes stand directly behind its record and its first child directly behind those, so neither needs
 * a link. Records hold offsets into the text, where every name, value and trimmed text has been terminated in place.
 */
#ifndef KOV_PLATFORM_XML_DOCUMENT_H
#define KOV_PLATFORM_XML_DOCUMENT_H

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "kov_platform/xml_parser.h"

namespace kov::xml {

using Word = std::uint32_t;

struct AttributeRecord {
  Word name;
  Word value;
};

struct ElementRecord {
  Word name;
  Word text;   ///< 0: no text; the text of an element never stands at the start of the document
  Word next;   ///< word index of the next sibling; 0: none, since word 0 is the root
  Word shape;  ///< number of attributes and the two flags below

  static constexpr Word kHasChildren = 1;
  static constexpr Word kFirstOfName = 2;  ///< certainly no earlier sibling has this name; unset: possibly one has
  static constexpr Word kOneAttribute = 4;

  Word attributeCount() const { return shape / kOneAttribute; }
  const AttributeRecord* attributes() const { return reinterpret_cast<const AttributeRecord*>(this + 1); }
  const AttributeRecord* attributesEnd() const { return attributes() + attributeCount(); }
};

/** Most names that differ do so in their first byte, which spares the call. */
inline bool sameName(const char* own, const char* name) { return *own == *name && std::strcmp(own, name) == 0; }

constexpr Word kElementWords = sizeof(ElementRecord) / sizeof(Word);
constexpr Word kAttributeWords = sizeof(AttributeRecord) / sizeof(Word);
static_assert(kElementWords == 4 && kAttributeWords == 2, "records are whole words");

}  // namespace kov::xml

struct KovXMLParser::Document {
 public:
  /** Copies and parses `text`. Null when it is not well formed, too long, or the block is not to be had. */
  static Document* parse(const char* text) noexcept;

  void addUser() noexcept { ++users_; }
  void removeUser() noexcept;

  void* root() noexcept { return words_; }
  void* firstChild(const void* parent, const char* name) noexcept;
  void* nextSibling(const void* element, const char* name) const noexcept;
  const char* attribute(const void* element, const char* name) noexcept;
  const char* text(const void* element) const noexcept;

 private:
  using Word = kov::xml::Word;
  using Element = kov::xml::ElementRecord;

  Document(const char* text, std::size_t length) noexcept;

  /** A document with `room` words for records. Null when the block is not to be had. */
  static Document* make(const char* text, std::size_t length, std::size_t room) noexcept;

  const char* attributeElsewhere(const Element* owner, const char* name) noexcept;
  const kov::xml::AttributeRecord* find(const kov::xml::AttributeRecord* from, const kov::xml::AttributeRecord* end,
                                        const char* name) const noexcept;
  Element* find(Word from, Word end, const char* name) const noexcept;

  char* text_;
  Word* words_;
  Word users_ = 1;

  // Callers look up in the order of the wire: each search starts behind the last hit and wraps round.
  const Element* attributeOwner_ = nullptr;
  const kov::xml::AttributeRecord* attributeStart_ = nullptr;
  const Element* childOwner_ = nullptr;
  Word childStart_ = 0;
};

#endif
