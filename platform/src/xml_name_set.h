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

constexpr std::uint64_t kHashFactor = 0x9E3779B97F4A7C15u;

/**
 * A hash of the first and the last eight bytes of a name, without a branch. The bytes behind a shorter name are loaded
 * and masked out; the document's block goes on there.
 */
inline std::uint32_t hashEnds(const char* name, std::size_t length) {
  static constexpr unsigned char kKept[16] = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
  const std::size_t inHead = length < 8 ? length : 8;
  std::uint64_t head = 0;
  std::uint64_t tail = 0;
  std::uint64_t kept = 0;
  std::memcpy(&head, name, 8);
  std::memcpy(&tail, name + length - inHead, 8);
  std::memcpy(&kept, kKept + 8 - inHead, 8);
  head &= kept;
  tail &= kept;
  return static_cast<std::uint32_t>(((head + (tail >> 7 | tail << 57)) * kHashFactor) >> 32);
}

/** A hash of all bytes of a name. */
inline std::uint32_t hashName(const char* name, std::size_t length) {
  std::uint64_t hash = length;
  for (; length > 8; name += 8, length -= 8) {
    std::uint64_t part = 0;
    std::memcpy(&part, name, 8);
    hash = (hash ^ part) * kHashFactor;
    hash ^= hash >> 29;
  }
  return hashEnds(name, length) ^ static_cast<std::uint32_t>(hash >> 32);
}

/** The attribute names of one element at a time, as word indices of their records. */
class NameSet {
 public:
  /** Elements with more attributes are checked as a whole when their tag ends, see allDistinct(). */
  static constexpr Word kCapacity = 96;

  NameSet(const char* text, const Word* words) noexcept : text_(text), words_(words) {}

  /**
   * Adds `name`, of the attribute record at word `index`, for the element whose first attribute is at `first`. Slots
   * that hold an index before `first` belong to an earlier element, so nothing is cleared between elements. False when
   * the element has an attribute of that name.
   */
  bool add(const char* name, Word index, Word first, std::uint32_t hash) noexcept {
    Word slot = hash >> 24;
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

/** Words that allDistinct() needs behind the records, for each of them. */
constexpr Word kSlotsPerName = 2;

/**
 * Whether `count` attribute records from word `first` on bear distinct names, told in the words behind them. False,
 * too, when the search takes more steps than chance explains: such names were made to cost quadratic time.
 */
bool allDistinct(const char* text, Word* words, Word first, Word count) noexcept;

}  // namespace kov::xml

#endif
