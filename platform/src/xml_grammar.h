/**
 * @file xml_grammar.h
 * @brief The character classes of XML and the departures from its grammar that this wire needs.
 */
#ifndef KOV_PLATFORM_XML_GRAMMAR_H
#define KOV_PLATFORM_XML_GRAMMAR_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace kov::xml {

/** Elements may be nested this deep; the protocol itself needs seven levels. */
constexpr std::uint32_t kMaxDepth = 64;

/** Longer documents are refused before anything is allocated for them. */
constexpr std::uint32_t kMaxDocumentLength = 16u << 20;

constexpr std::uint8_t kBlankClass = 1;
constexpr std::uint8_t kNameStartClass = 2;
constexpr std::uint8_t kNameClass = 4;

/** Bytes from 0x80 on belong to multi-byte characters of an encoding that the reader does not look into. */
constexpr std::uint8_t classOf(unsigned c) {
  const bool letter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
  const bool digit = c >= '0' && c <= '9';
  if (c == ' ' || c == '\t' || c == '\n' || c == '\r') return kBlankClass;
  if (letter || c == '_' || c == ':' || c >= 0x80) return kNameStartClass | kNameClass;
  return digit || c == '-' || c == '.' ? kNameClass : 0;
}

constexpr std::array<std::uint8_t, 256> classTable() {
  std::array<std::uint8_t, 256> table{};
  for (unsigned c = 0; c < 256; ++c) table[c] = classOf(c);
  return table;
}

inline constexpr std::array<std::uint8_t, 256> kClasses = classTable();

inline bool hasClass(char c, std::uint8_t wanted) { return (kClasses[static_cast<unsigned char>(c)] & wanted) != 0; }
inline bool isXmlBlank(char c) { return hasClass(c, kBlankClass); }
inline bool isNameStart(char c) { return hasClass(c, kNameStartClass); }
inline bool isNameChar(char c) { return hasClass(c, kNameClass); }

/** skipName() may look at so many bytes from any place before the end of a name. */
#ifdef __SSE2__
constexpr std::size_t kNameBlock = 16;
#else
constexpr std::size_t kNameBlock = 1;
#endif

/** Behind the name characters that begin at `at`. */
#ifdef __SSE2__

// The classes by arithmetic, for a block at once: to guess where each name ends costs more than to compute it.
inline char* skipName(char* at) {
  const auto all = [](int c) { return _mm_set1_epi8(static_cast<char>(c)); };
  const auto isUpTo = [=](__m128i c, int most) { return _mm_cmpeq_epi8(_mm_subs_epu8(c, all(most)), all(0)); };
  for (;; at += kNameBlock) {
    const __m128i c = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    const __m128i letter = isUpTo(_mm_sub_epi8(_mm_or_si128(c, all('a' ^ 'A')), all('a')), 'z' - 'a');
    const __m128i dashToColon = isUpTo(_mm_sub_epi8(c, all('-')), ':' - '-');  // and a slash among them
    const __m128i other =
        _mm_or_si128(_mm_andnot_si128(_mm_cmpeq_epi8(c, all('/')), dashToColon), _mm_cmpeq_epi8(c, all('_')));
    // The mask takes the top bit of each byte, so that bytes from 0x80 on count by themselves.
    const int mask = _mm_movemask_epi8(_mm_or_si128(_mm_or_si128(letter, other), c));
    const auto length = static_cast<unsigned>(__builtin_ctz(~static_cast<unsigned>(mask)));
    if (length < kNameBlock) return at + length;
  }
}

#else

inline char* skipName(char* at) {
  while (isNameChar(*at)) ++at;
  return at;
}

#endif

enum class Tolerance {
  AngleEndsStartTag,  ///< '<' where the first attribute of `element` is due ends its start tag as '>' would
  EndTagIgnored,      ///< the end tag of `other` is ignored while `element` is the innermost open element
  EndTagCloses,       ///< the end tag of `other` closes an innermost open `element`
  ParentEndCloses,    ///< the end tag of its parent `other` closes an innermost open `element` as well
  AttributeAtQuote,   ///< in `element` an attribute may follow the closing quote of another without a blank
  MarkupInValue,      ///< '<' in a quoted value, like '&' anywhere, is a plain character
  LoneAngleIsText,    ///< '<' in element text that no name character, '/', '!' or '?' follows is text
};

struct ToleranceRule {
  Tolerance kind;
  const char* element;  ///< null: every element
  const char* other;
};

/**
 * All that the reader forgives. Devices in the field send exactly these texts, so they are part of the wire format;
 * anything else that is not well-formed stays an error.
 */
inline constexpr ToleranceRule kTolerances[] = {
    {Tolerance::AngleEndsStartTag, "NetworkConfig", nullptr},
    {Tolerance::EndTagIgnored, "Video", "Overlay"},
    {Tolerance::EndTagCloses, "Audio", "Aideo"},
    {Tolerance::ParentEndCloses, "NetworkConfig", "MESSAGE_BODY"},
    {Tolerance::ParentEndCloses, "RecordConfig", "MESSAGE_BODY"},
    {Tolerance::AttributeAtQuote, "Encode", nullptr},
    {Tolerance::MarkupInValue, nullptr, nullptr},
    {Tolerance::LoneAngleIsText, nullptr, nullptr},
};

/** Whether the tolerance holds in every element. */
constexpr bool toleratedEverywhere(Tolerance kind) {
  for (const ToleranceRule& rule : kTolerances) {
    if (rule.kind == kind && rule.element == nullptr) return true;
  }
  return false;
}

/** Whether the tolerance holds in `element`, against the element name `other` where the kind involves one. */
inline bool tolerated(Tolerance kind, const char* element, const char* other = nullptr) {
  for (const ToleranceRule& rule : kTolerances) {
    if (rule.kind != kind || rule.element == nullptr || std::strcmp(rule.element, element) != 0) continue;
    if (rule.other == nullptr || (other != nullptr && std::strcmp(rule.other, other) == 0)) return true;
  }
  return false;
}

}  // namespace kov::xml

#endif
