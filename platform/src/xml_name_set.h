/**
 * @file xml_name_set.h
 * @brief Finds an attribute name that an element bears twice, in linear time even when the names are chosen to collide.
 */
#ifndef KOV_PLATFORM_XML_NAME_SET_H
#define KOV_PLATFORM_XML_NAME_SET_H

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "xml_document.h"

namespace kov::xml {

/** A hash of `length` bytes, taken in overlapping words so that most names cost two loads. */
inline std::uint32_t hashName(const char* name, std::size_t length) {
  constexpr std::uint64_t kOddFactor = 0x9E3779B97F4A7C15u;
  std::uint64_t head = 0;
  std::uint64_t tail = 0;
  if (length >= 8) {
    for (std::size_t at = 0; at + 8 < length; at += 8) {
      std::memcpy(&head, name + at, 8);
      tail = ((tail ^ head) * kOddFactor) ^ (tail >> 29);
    }
    std::memcpy(&head, name + length - 8, 8);
  } else if (length >= 4) {
    std::uint32_t part = 0;
    std::memcpy(&part, name, 4);
    head = part;
    std::memcpy(&part, name + length - 4, 4);
    head |= static_cast<std::uint64_t>(part) << 32;
  } else {
    for (std::size_t at = 0; at < length; ++at) head = head << 8 | static_cast<unsigned char>(name[at]);
  }
  return static_cast<std::uint32_t>(((head ^ tail ^ length) * kOddFactor) >> 32);
}

/** The attribute names of one element at a time, as word indices of their records. */
class NameSet {
 public:
  /** Elements with more attributes are checked as a whole when their tag ends, see allDistinct(). */
  static constexpr Word kCapacity = 96;

  NameSet(const char* text, const Word* words) noexcept : text_(text), words_(words) {}

  /**
   * Adds the name of the attribute record at word `index` for the element whose first attribute is at `first`. Slots
   * that hold an index before `first` belong to an earlier element, so nothing is cleared between elements. False when
   * the element has an attribute of that name.
   */
  bool add(Word index, Word first, std::size_t length) noexcept {
    const char* name = text_ + words_[index];
    Word slot = hashName(name, length) % kSlots;
    for (; slots_[slot] >= first; slot = (slot + 1) % kSlots) {
      if (std::strcmp(text_ + words_[slots_[slot]], name) == 0) return false;
    }
    slots_[slot] = index;
    return true;
  }

 private:
  static constexpr Word kSlots = 256;

  const char* text_;
  const Word* words_;
  Word slots_[kSlots] = {};
};

/**
 * Whether `count` attribute records from word `first` on bear distinct names, told in the `room` words behind them.
 * False, too, when the search takes more steps than chance explains: such names were made to cost quadratic time.
 */
bool allDistinct(const char* text, Word* words, Word first, Word count, std::size_t room) noexcept;

}  // namespace kov::xml

#endif
