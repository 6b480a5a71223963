// What a form says about one attribute: its name, the field that carries it, and what is special about it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "kov_protocol/kov_protocol.h"

namespace kov {

// Follows from the type of the field; a modifier of Attribute changes it where the wire wants another conversion.
enum class Kind : std::uint8_t {
  Int32,      // "%d"
  UInt32,     // "%u"
  UInt8,      // "%d", 255 is unset
  UInt64,     // "%llu"
  Float,      // "%f"
  Text,       // "%s", at most the field's size
  Int32List,  // numbers with a separator between them: times, ranges, resolutions
  UInt8List
};

// An unset field holds all ones; an empty text is unset.
inline bool isSet(std::int32_t value) { return value != -1; }
inline bool isSet(std::uint32_t value) { return value != UINT32_MAX; }
inline bool isSet(std::uint8_t value) { return value != UINT8_MAX; }
inline bool isSet(std::uint64_t value) { return value != UINT64_MAX; }
template <std::size_t Capacity>
bool isSet(const char (&text)[Capacity]) {
  return text[0] != '\0';
}

// An attribute name with a number in it: ch12_SipDeviceID. It must outlive the list that names it.
class NumberedName {
 public:
  NumberedName(const char* prefix, unsigned number, const char* suffix);
  const char* text() const { return text_; }
  std::size_t size() const { return size_; }

 private:
  char text_[32];
  std::size_t size_;  // the NUL included
};

// One attribute of an element, or one child element that holds a value as text. Forms list them in wire order. It takes
// three words, because every attribute of every message builds one.
class Attribute {
 public:
  template <std::size_t Size>
  constexpr Attribute(const char (&name)[Size], std::int32_t& field)
      : Attribute(name, nameSize<Size>(), &field, Kind::Int32, 1) {}
  template <std::size_t Size>
  constexpr Attribute(const char (&name)[Size], std::uint32_t& field)
      : Attribute(name, nameSize<Size>(), &field, Kind::UInt32, 1) {}
  template <std::size_t Size>
  constexpr Attribute(const char (&name)[Size], std::uint8_t& field)
      : Attribute(name, nameSize<Size>(), &field, Kind::UInt8, 1) {}
  template <std::size_t Size>
  constexpr Attribute(const char (&name)[Size], std::uint64_t& field)
      : Attribute(name, nameSize<Size>(), &field, Kind::UInt64, 1) {}
  template <std::size_t Size>
  constexpr Attribute(const char (&name)[Size], float& field)
      : Attribute(name, nameSize<Size>(), &field, Kind::Float, 1) {}
  template <std::size_t Size, std::size_t Capacity>
  constexpr Attribute(const char (&name)[Size], char (&field)[Capacity])
      : Attribute(name, nameSize<Size>(), field, Kind::Text, Capacity) {
    static_assert(Capacity <= UINT16_MAX, "a text field longer than the engine counts");
  }
  Attribute(const NumberedName& name, std::int32_t& field)
      : Attribute(name.text(), name.size(), &field, Kind::Int32, 1) {}
  template <std::size_t Capacity>
  Attribute(const NumberedName& name, char (&field)[Capacity])
      : Attribute(name.text(), name.size(), field, Kind::Text, Capacity) {}

  // Ranges and sizes: "%d,%d" unless separated() says otherwise.
  template <std::size_t Size, std::size_t Count>
  constexpr Attribute(const char (&name)[Size], std::int32_t (&field)[Count])
      : Attribute(name, nameSize<Size>(), field, Kind::Int32List, listOf(Count, ',', kUnpadded)) {
    static_assert(Count <= kMostNumbers, "a list longer than the engine counts");
  }
  // Times of day: "%02d:%02d:%02d" unless unpadded() says otherwise.
  template <std::size_t Size>
  constexpr Attribute(const char (&name)[Size], KOV_TIME& field)
      : Attribute(name, nameSize<Size>(), &field, Kind::Int32List, listOf(3, ':', kZeros)) {}
  template <std::size_t Size>
  constexpr Attribute(const char (&name)[Size], KOV_TIME8& field)
      : Attribute(name, nameSize<Size>(), &field, Kind::UInt8List, listOf(3, ':', kZeros)) {}

  // Written only when the field is set.
  constexpr Attribute ifSet() const { return with(kIfSet); }
  // Written only when the condition holds; always read.
  constexpr Attribute when(bool condition) const { return condition ? *this : with(kSkipWriting); }
  constexpr Attribute writeOnly() const { return with(kSkipReading); }
  constexpr Attribute readOnly() const { return with(kSkipWriting); }

  // Hexadecimal: "%x", "%llx".
  constexpr Attribute hex() const { return with(kHexadecimal); }
  // An unsigned field written "%d" or "%lld".
  constexpr Attribute asSigned() const { return with(kAsSigned); }
  // An int read as atoi does: present but no number is 0.
  constexpr Attribute orZero() const { return with(kOrZero); }

  // Numbers of a list with another separator, without padding, or padded to two places.
  constexpr Attribute separated(char separator) const { return relisted(separator, padding()); }
  constexpr Attribute unpadded() const { return relisted(separator(), '\0'); }
  constexpr Attribute padded(char padding) const { return relisted(separator(), padding); }

  // What follows the closing quote instead of a newline.
  constexpr Attribute thenBlank() const { return with(kThenBlank); }
  constexpr Attribute thenNothing() const { return with(kThenNothing); }
  // Name ="value": a blank before the equals sign.
  constexpr Attribute blankBeforeEquals() const { return with(kBlankBeforeEquals); }

 private:
  friend class BodyIo;

  // The word of facts: 16 bits of count, 5 of the name's length, 3 of the kind, 8 of flags, two of which are a number.
  static constexpr unsigned kNameShift = 16;
  static constexpr unsigned kKindShift = 21;
  static constexpr std::uint32_t kMostName = 31;
  enum Flag : std::uint32_t {
    kIfSet = 1U << 24,
    kSkipWriting = 1U << 25,
    kSkipReading = 1U << 26,
    kHexadecimal = 1U << 27,
    kAsSigned = 2U << 27,
    kOrZero = 3U << 27,
    kConversion = 3U << 27,
    kThenBlank = 1U << 29,
    kThenNothing = 1U << 30,
    kBlankBeforeEquals = 1U << 31,
    kUnusualText = kConversion | kThenBlank | kThenNothing | kBlankBeforeEquals
  };

  template <std::size_t Size>
  static constexpr std::size_t nameSize() {
    static_assert(Size - 1 <= kMostName, "a name longer than the engine counts");
    return Size;
  }

  // For a list, the 16 bits of count hold 4 of count, 8 of the separator and 2 of the padding.
  static constexpr std::uint32_t kMostNumbers = 15;
  enum Padding : std::uint32_t { kUnpadded = 0, kZeros = 1, kBlanks = 2 };
  static constexpr std::uint32_t listOf(std::size_t count, char separator, Padding padding) {
    return static_cast<std::uint32_t>(count) |
           (static_cast<std::uint32_t>(static_cast<unsigned char>(separator)) << 4) | (padding << 12);
  }

  constexpr Attribute(const char* name, std::size_t nameSize, void* field, Kind kind, std::size_t count)
      : name_(name),
        field_(field),
        facts_(static_cast<std::uint32_t>(count) |
               ((static_cast<std::uint32_t>(nameSize - 1) & kMostName) << kNameShift) |
               (static_cast<std::uint32_t>(kind) << kKindShift)) {}

  constexpr Attribute with(Flag flag) const {
    Attribute copy = *this;
    copy.facts_ |= flag;
    return copy;
  }
  constexpr Attribute relisted(char separator, char padding) const {
    const Padding kept = padding == '\0' ? kUnpadded : padding == '0' ? kZeros : kBlanks;
    Attribute copy = *this;
    copy.facts_ = (facts_ & ~0xFFFFU) | listOf(numbers(), separator, kept);
    return copy;
  }

  constexpr bool has(Flag flag) const { return (facts_ & flag) != 0; }
  constexpr bool isAlwaysWritten() const { return (facts_ & (kIfSet | kSkipWriting)) == 0; }
  // Written in the usual layout and conversion.
  constexpr bool isPlain() const { return (facts_ & kUnusualText) == 0; }
  constexpr Flag conversion() const { return static_cast<Flag>(facts_ & kConversion); }
  constexpr Kind kind() const { return static_cast<Kind>((facts_ >> kKindShift) & 7); }
  constexpr std::size_t nameLength() const { return (facts_ >> kNameShift) & kMostName; }
  constexpr std::size_t capacity() const { return facts_ & 0xFFFF; }
  constexpr std::size_t numbers() const { return facts_ & kMostNumbers; }
  constexpr char separator() const { return static_cast<char>((facts_ >> 4) & 0xFF); }
  constexpr char padding() const {
    const std::uint32_t padding = (facts_ >> 12) & 3;
    return padding == kUnpadded ? '\0' : padding == kZeros ? '0' : ' ';
  }

  const char* name_;
  void* field_;
  std::uint32_t facts_;
};

// Spells an attribute that carries modifiers: attr("RecType", r.RecType).hex().ifSet()
template <std::size_t Size, class Field>
constexpr Attribute attr(const char (&name)[Size], Field& field) {
  return Attribute(name, field);
}

template <class Field>
Attribute attr(const NumberedName& name, Field& field) {
  return Attribute(name, field);
}

}  // namespace kov
