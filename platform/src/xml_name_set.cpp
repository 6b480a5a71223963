/**
 * @file xml_name_set.cpp
 * @brief The check of elements with many attributes.
 */
#include "xml_name_set.h"

namespace kov::xml {
namespace {

/** The only NUL between a name and its value ends the name, and mostly it stands where the equals sign was. */
std::size_t nameLength(const char* name, std::size_t valueDistance) {
  const std::size_t usual = valueDistance - 2;
  return name[usual] == '\0' ? usual : std::strlen(name);
}

}  // namespace

bool allDistinct(const char* text, Word* words, Word first, Word count) noexcept {
  constexpr std::size_t kStepsPerByte = 64;
  const Word end = first + count * kAttributeWords;
  const std::size_t slotCount = std::size_t{kSlotsPerName} * count;
  Word* slots = words + end;
  std::memset(slots, 0, slotCount * sizeof(Word));

  std::size_t bytes = 0;
  std::size_t steps = 0;
  for (Word index = first; index < end; index += kAttributeWords) {
    const char* name = text + words[index];
    const std::size_t length = nameLength(name, words[index + 1] - words[index]);
    bytes += length;
    auto slot = static_cast<std::size_t>(std::uint64_t{hashName(name, length)} * slotCount >> 32);
    for (; slots[slot] != 0; slot = slot + 1 < slotCount ? slot + 1 : 0) {
      if (std::strcmp(text + words[slots[slot]], name) == 0) return false;
      steps += length;
    }
    slots[slot] = index;
    if (steps > kStepsPerByte * (bytes + NameSet::kCapacity)) return false;
  }
  return true;
}

}  // namespace kov::xml
