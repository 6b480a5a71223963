/**
 * @file xml_scanner.h
 * @brief The grammar: one pass over a document's private text that terminates its parts and writes its records.
 */
#ifndef KOV_PLATFORM_XML_SCANNER_H
#define KOV_PLATFORM_XML_SCANNER_H

#include <cstddef>
#include <cstdint>

#include "xml_document.h"
#include "xml_grammar.h"
#include "xml_name_set.h"

namespace kov::xml {

/**
 * Scans a text with kNameBlock NULs behind it once, without recursion. Each step takes the position of its first byte
 * and returns the one behind its last, or null when the text is not well-formed. A NUL is written only over bytes
 * already read.
 */
class Scanner {
 public:
  /** `words` has room for `room` words of records. */
  Scanner(char* text, std::size_t length, Word* words, std::size_t room) noexcept
      : text_(text), end_(text + length), words_(words), room_(room), names_(text, words) {}

  bool run() noexcept;

  /** Whether run() failed only because the records need more room. */
  bool outOfRoom() const noexcept { return outOfRoom_; }

 private:
  /** An open element. */
  struct Level {
    Word element;
    Word lastChild;
    std::uint64_t childNames[2];  ///< one bit per hash of a child's name; see ElementRecord::kFirstOfName
  };

  Word offsetOf(const char* at) const noexcept { return static_cast<Word>(at - text_); }
  ElementRecord& elementAt(Word index) noexcept { return *reinterpret_cast<ElementRecord*>(words_ + index); }
  Level& innermost() noexcept { return levels_[depth_ - 1]; }
  const char* openName(Word depth) noexcept { return text_ + elementAt(levels_[depth - 1].element).name; }
  bool isLoneAngle(const char* angle) const noexcept;

  char* needRoom() noexcept;
  char* xmlDeclaration(char* at) noexcept;
  char* pseudoAttribute(char* at, const char* name) noexcept;
  char* characterData(char* at) noexcept;
  void setText(char* first, char* last) noexcept;
  char* markup(char* at) noexcept;
  char* startTag(char* at) noexcept;
  ElementRecord& appendElement(char* name, std::size_t length) noexcept;
  char* attributes(char* at, ElementRecord& element) noexcept;
  char* endTag(char* at) noexcept;
  char* unusualEndTag(char* at) noexcept;
  bool closeAs(const char* name) noexcept;
  char* processingInstruction(char* at) noexcept;
  char* exclamation(char* at) noexcept;
  char* comment(char* at) noexcept;
  char* cdata(char* at) noexcept;

  char* text_;
  char* end_;
  Word* words_;
  std::size_t room_;
  Word used_ = 0;   ///< words written
  Word depth_ = 0;  ///< open elements
  bool outOfRoom_ = false;
  Level levels_[kMaxDepth];
  NameSet names_;
};

}  // namespace kov::xml

#endif
