/**
 * @file xml_scanner.cpp
 * @brief The grammar of elements, attributes, texts, comments, processing instructions and CDATA sections.
 */
#include "xml_scanner.h"

#include <cstring>

namespace kov::xml {
namespace {

char* skipBlanks(char* at) {
  while (isXmlBlank(*at)) ++at;
  return at;
}

/** The first `wanted` in [at, end), or null. */
char* findByte(char* at, char wanted, const char* end) {
  return static_cast<char*>(std::memchr(at, wanted, static_cast<std::size_t>(end - at)));
}

/** findByte() for values, which are mostly so short that a call costs more than the search. */
[[gnu::always_inline]] inline char* findQuote(char* at, char quote, const char* end) {
  constexpr std::ptrdiff_t kShortValue = 16;
  if (end - at > kShortValue) {
    for (const char* stop = at + kShortValue; at < stop; at += 4) {
      if (at[0] == quote) return at;
      if (at[1] == quote) return at + 1;
      if (at[2] == quote) return at + 2;
      if (at[3] == quote) return at + 3;
    }
  }
  return findByte(at, quote, end);
}

/** Where the parts of `name = "value"` lie; a null quote when it is malformed. */
struct AttributeText {
  char* nameEnd;
  char* value;
  char* quote;
};

[[gnu::always_inline]] inline AttributeText scanAttribute(char* name, const char* end) {
  char* nameEnd = skipName(name);
  char* at = nameEnd;
  if (*at != '=') at = skipBlanks(at);
  if (*at != '=') return {};
  ++at;
  if (*at != '"') at = skipBlanks(at);
  if (*at != '"' && *at != '\'') return {};
  char* quote = findQuote(at + 1, *at, end);
  if constexpr (!toleratedEverywhere(Tolerance::MarkupInValue)) {
    if (quote != nullptr && findByte(at + 1, '<', quote) != nullptr) return {};
  }
  return {nameEnd, at + 1, quote};
}

/** The first "]]>" in [at, end), or null. */
char* findSectionEnd(char* at, const char* end) {
  for (char* angle = at; (angle = findByte(angle, '>', end)) != nullptr; ++angle) {
    if (angle - at >= 2 && angle[-1] == ']' && angle[-2] == ']') return angle - 2;
  }
  return nullptr;
}

/** Whether the name [name, end) is "xml" in any case, which no ordinary processing instruction may bear. */
bool isReservedTarget(const char* name, const char* end) {
  return end - name == 3 && (name[0] | 0x20) == 'x' && (name[1] | 0x20) == 'm' && (name[2] | 0x20) == 'l';
}

constexpr char kUsualDeclaration[] = "<?xml version=\"1.0\" encoding=\"GB2312\" ?>";
constexpr std::ptrdiff_t kUsualDeclarationLength = sizeof kUsualDeclaration - 1;

/** Compares word by word, which a copy that was made just now lets through without a delay. */
bool isUsualDeclaration(const char* at) {
  constexpr std::ptrdiff_t kWord = sizeof(std::uint64_t);
  static_assert(kUsualDeclarationLength % kWord == 0, "compared in whole words");
  for (std::ptrdiff_t i = 0; i < kUsualDeclarationLength; i += kWord) {
    if (std::memcmp(at + i, kUsualDeclaration + i, kWord) != 0) return false;
  }
  return true;
}

}  // namespace

bool Scanner::run() noexcept {
  char* at = xmlDeclaration(text_);
  while (at != nullptr) {
    at = characterData(at);
    if (at == end_) return depth_ == 0 && used_ != 0;
    if (at != nullptr) at = markup(at + 1);
  }
  return false;
}

char* Scanner::needRoom() noexcept {
  outOfRoom_ = true;
  return nullptr;
}

/** Whether the '<' at `angle` may stand in element text. */
bool Scanner::isLoneAngle(const char* angle) const noexcept {
  if constexpr (!toleratedEverywhere(Tolerance::LoneAngleIsText)) return false;
  const char next = angle[1];
  return !isNameChar(next) && next != '/' && next != '!' && next != '?';
}

/** `<?xml version=".." encoding=".." standalone=".." ?>`, the last two optional; the encoding is nobody's concern. */
char* Scanner::xmlDeclaration(char* at) noexcept {
  if (end_ - at > kUsualDeclarationLength && isUsualDeclaration(at)) return at + kUsualDeclarationLength;
  if (std::strncmp(at, "<?xml", 5) != 0 || !isXmlBlank(at[5])) return at;
  char* next = pseudoAttribute(at + 5, "version");
  if (next == nullptr) return nullptr;
  for (const char* name : {"encoding", "standalone"}) {
    if (char* behind = pseudoAttribute(next, name)) next = behind;
  }
  next = skipBlanks(next);
  return next[0] == '?' && next[1] == '>' ? next + 2 : nullptr;
}

char* Scanner::pseudoAttribute(char* at, const char* name) noexcept {
  char* own = skipBlanks(at);
  const std::size_t length = std::strlen(name);
  if (own == at || std::strncmp(own, name, length) != 0) return nullptr;
  at = skipBlanks(own + length);
  if (*at != '=') return nullptr;
  at = skipBlanks(at + 1);
  if (*at != '"' && *at != '\'') return nullptr;
  char* valueEnd = skipName(at + 1);
  return valueEnd != at + 1 && *valueEnd == *at ? valueEnd + 1 : nullptr;
}

/** Blanks or text up to the next markup, or up to the end of the document. */
char* Scanner::characterData(char* at) noexcept {
  at = skipBlanks(at);
  if (*at == '<' && !isLoneAngle(at)) return at;
  if (at == end_) return at;
  if (depth_ == 0) return nullptr;
  char* angle = at;
  while ((angle = findByte(angle, '<', end_)) != nullptr && isLoneAngle(angle)) ++angle;
  if (angle == nullptr || findSectionEnd(at, angle) != nullptr) return nullptr;
  setText(at, angle);
  return angle;
}

/** Gives [first, last) without its blanks to the innermost element, unless that has a text or nothing is left. */
void Scanner::setText(char* first, char* last) noexcept {
  while (first < last && isXmlBlank(*first)) ++first;
  ElementRecord& element = elementAt(innermost().element);
  if (first == last || element.text != 0) return;
  while (isXmlBlank(last[-1])) --last;
  *last = '\0';
  element.text = offsetOf(first);
}

/** What begins with the '<' before `at`. */
char* Scanner::markup(char* at) noexcept {
  if (isNameStart(*at)) return startTag(at);
  switch (*at) {
    case '/':
      return endTag(at + 1);
    case '?':
      return processingInstruction(at + 1);
    case '!':
      return exclamation(at + 1);
    default:
      return nullptr;
  }
}

char* Scanner::startTag(char* at) noexcept {
  const bool secondRoot = depth_ == 0 && used_ != 0;
  if (secondRoot || depth_ == kMaxDepth) return nullptr;
  if (room_ - used_ < kElementWords) return needRoom();
  char* behind = skipName(at);
  const bool blank = isXmlBlank(*behind);
  char next = *behind;
  ElementRecord& element = appendElement(at, static_cast<std::size_t>(behind - at));
  *behind = '\0';
  if (blank) {
    behind = attributes(behind + 1, element);
    if (behind == nullptr) return nullptr;
    next = *behind;
  }
  if (next == '/') return behind[1] == '>' ? behind + 2 : nullptr;
  const bool ended = next == '<' && blank && element.attributeCount() == 0 &&
                     tolerated(Tolerance::AngleEndsStartTag, text_ + element.name);
  if (next != '>' && !ended) return nullptr;
  const auto index = static_cast<Word>(reinterpret_cast<Word*>(&element) - words_);
  levels_[depth_++] = {index, 0, {0, 0}};
  return ended ? behind : behind + 1;
}

/** Writes the record of an element without attributes and links it to its parent and to its last sibling. */
ElementRecord& Scanner::appendElement(char* name, std::size_t length) noexcept {
  const Word index = used_;
  used_ += kElementWords;
  ElementRecord& element = elementAt(index);
  element = {offsetOf(name), 0, 0, 0};
  if (depth_ == 0) return element;

  Level& parent = innermost();
  const std::uint32_t hash = hashEnds(name, length);
  std::uint64_t& seen = parent.childNames[hash >> 31];
  const std::uint64_t bit = std::uint64_t{1} << (hash >> 25 & 63);
  if ((seen & bit) == 0) element.shape = ElementRecord::kFirstOfName;
  seen |= bit;
  if (parent.lastChild != 0) {
    elementAt(parent.lastChild).next = index;
  } else {
    elementAt(parent.element).shape |= ElementRecord::kHasChildren;
  }
  parent.lastChild = index;
  return element;
}

/**
 * The attributes of a start tag, from behind the first blank; returns the byte that no attribute begins with. Most of a
 * document passes through this loop, so it keeps to locals, which the stores into the text cannot alter.
 */
char* Scanner::attributes(char* at, ElementRecord& element) noexcept {
  char* const text = text_;
  const char* const end = end_;
  const Word first = used_;
  const std::size_t most = (room_ - first) / kAttributeWords;
  auto* const records = reinterpret_cast<AttributeRecord*>(words_ + first);
  Word count = 0;
  for (;; ++count) {
    char* name = skipBlanks(at);
    if (!isNameStart(*name)) {
      at = name;
      break;
    }
    if (name == at && count != 0 && !tolerated(Tolerance::AttributeAtQuote, text + element.name)) return nullptr;
    const AttributeText found = scanAttribute(name, end);
    if (found.quote == nullptr) return nullptr;
    if (count == most) return needRoom();
    // Hashed before the stores that the hash's loads would have to wait for.
    const std::uint32_t hash = hashEnds(name, static_cast<std::size_t>(found.nameEnd - name));
    *found.nameEnd = '\0';
    *found.quote = '\0';
    records[count] = {static_cast<Word>(name - text), static_cast<Word>(found.value - text)};
    if (count < NameSet::kCapacity && !names_.add(name, first + count * kAttributeWords, first, hash)) return nullptr;
    at = found.quote + 1;
  }
  used_ = first + count * kAttributeWords;
  element.shape += count * ElementRecord::kOneAttribute;
  if (count <= NameSet::kCapacity) return at;
  if (room_ - used_ < std::size_t{kSlotsPerName} * count) return needRoom();
  return allDistinct(text, words_, first, count) ? at : nullptr;
}

char* Scanner::endTag(char* at) noexcept {
  if (depth_ == 0) return nullptr;
  const char* open = openName(depth_);
  char* own = at;
  for (; *open != '\0' && *own == *open; ++own) ++open;
  if (*own == '>' && *open == '\0') {
    --depth_;
    return own + 1;
  }
  return unusualEndTag(at);
}

/** An end tag with blanks behind its name, or of another element than the innermost. */
char* Scanner::unusualEndTag(char* at) noexcept {
  char* nameEnd = skipName(at);
  char* angle = skipBlanks(nameEnd);
  if (*angle != '>') return nullptr;
  *nameEnd = '\0';
  return closeAs(at) ? angle + 1 : nullptr;
}

/** Closes what the end tag of that name closes. */
bool Scanner::closeAs(const char* name) noexcept {
  const char* open = openName(depth_);
  if (std::strcmp(open, name) == 0 || tolerated(Tolerance::EndTagCloses, open, name)) {
    --depth_;
    return true;
  }
  if (tolerated(Tolerance::EndTagIgnored, open, name)) return true;
  if (depth_ < 2 || !tolerated(Tolerance::ParentEndCloses, open, name)) return false;
  if (std::strcmp(openName(depth_ - 1), name) != 0) return false;
  depth_ -= 2;
  return true;
}

char* Scanner::processingInstruction(char* at) noexcept {
  if (!isNameStart(*at)) return nullptr;
  char* nameEnd = skipName(at);
  if (isReservedTarget(at, nameEnd)) return nullptr;
  if (!isXmlBlank(*nameEnd) && *nameEnd != '?') return nullptr;
  char* angle = nameEnd;
  while ((angle = findByte(angle, '>', end_)) != nullptr && angle[-1] != '?') ++angle;
  // A target that a '?' follows directly has no data.
  if (angle == nullptr || (*nameEnd == '?' && angle != nameEnd + 1)) return nullptr;
  return angle + 1;
}

/** What begins with "<!". A DOCTYPE is refused with all that could come with it. */
char* Scanner::exclamation(char* at) noexcept {
  if (std::strncmp(at, "--", 2) == 0) return comment(at + 2);
  if (depth_ != 0 && std::strncmp(at, "[CDATA[", 7) == 0) return cdata(at + 7);
  return nullptr;
}

/** The rest of a comment, in which "--" stands nowhere but at its end. */
char* Scanner::comment(char* at) noexcept {
  while ((at = findByte(at, '-', end_)) != nullptr && at[1] != '-') ++at;
  return at != nullptr && at[2] == '>' ? at + 3 : nullptr;
}

char* Scanner::cdata(char* at) noexcept {
  char* sectionEnd = findSectionEnd(at, end_);
  if (sectionEnd == nullptr) return nullptr;
  setText(at, sectionEnd);
  return sectionEnd + 3;
}

}  // namespace kov::xml
