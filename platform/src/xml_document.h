/**
 * @file xml_document.h
 * @brief One parsed document: a private copy of its text and, behind that, its records, in a single heap block.
 *
 *     Document | text, NUL, padding | records in document order ...
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
};

/** Compares two names; they are short, so that a call would cost more. */
inline bool sameName(const char* own, const char* name) {
  while (*own == *name) {
    if (*own == '\0') return true;
    ++own;
    ++name;
  }
  return false;
}

/**
 * A name to look for among many. Its first eight bytes, the NUL of a shorter name included, are compared at once. The
 * bytes behind a shorter name of the document are loaded and masked out; the document's block goes on there.
 */
class WantedName {
 public:
  explicit WantedName(const char* name) noexcept {
    unsigned char bytes[kAtOnce] = {};
    unsigned char kept[kAtOnce] = {};
    std::size_t length = 0;
    while (length < kAtOnce) {
      kept[length] = 0xFF;
      bytes[length] = static_cast<unsigned char>(name[length]);
      if (bytes[length++] == 0) break;
    }
    std::memcpy(&word_, bytes, kAtOnce);
    std::memcpy(&mask_, kept, kAtOnce);
    rest_ = bytes[kAtOnce - 1] != 0 ? name + kAtOnce : nullptr;
  }

  bool is(const char* own) const noexcept {
    std::uint64_t word = 0;
    std::memcpy(&word, own, kAtOnce);
    return (word & mask_) == word_ && (rest_ == nullptr || sameName(own + kAtOnce, rest_));
  }

 private:
  static constexpr std::size_t kAtOnce = 8;

  std::uint64_t word_;
  std::uint64_t mask_;
  const char* rest_;  ///< what follows the first eight bytes; null: the name ends within them
};

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

  const char* attributeElsewhere(const kov::xml::AttributeRecord* attributes, Word count, const char* name) noexcept;
  Element* find(Word from, Word end, const char* name) const noexcept;

  char* text_;
  Word* words_;
  Word users_ = 1;

  // Callers look up in the order of the wire: each search starts behind the last hit and wraps round.
  const Element* attributeOwner_ = nullptr;
  Word attributeStart_ = 0;
  const Element* childOwner_ = nullptr;
  Word childStart_ = 0;
};

#endif
