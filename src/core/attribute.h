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

// One attribute of an element, or one child element that holds a value as text. Forms list them in wire order.
class Attribute {
 public:
  template <std::size_t Size>
  constexpr Attribute(const char (&name)[Size], std::int32_t& field) : Attribute(name, Size, &field, Kind::Int32, 1) {}
  template <std::size_t Size>
  constexpr Attribute(const char (&name)[Size], std::uint32_t& field)
      : Attribute(name, Size, &field, Kind::UInt32, 1) {}
  template <std::size_t Size>
  constexpr Attribute(const char (&name)[Size], std::uint8_t& field) : Attribute(name, Size, &field, Kind::UInt8, 1) {}
  template <std::size_t Size>
  constexpr Attribute(const char (&name)[Size], std::uint64_t& field)
      : Attribute(name, Size, &field, Kind::UInt64, 1) {}
  template <std::size_t Size>
  constexpr Attribute(const char (&name)[Size], float& field) : Attribute(name, Size, &field, Kind::Float, 1) {}
  template <std::size_t Size, std::size_t Capacity>
  constexpr Attribute(const char (&name)[Size], char (&field)[Capacity])
      : Attribute(name, Size, field, Kind::Text, Capacity) {
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
      : Attribute(name, Size, field, Kind::Int32List, Count) {}
  // Times of day: "%02d:%02d:%02d" unless unpadded() says otherwise.
  template <std::size_t Size>
  constexpr Attribute(const char (&name)[Size], KOV_TIME& field) : Attribute(name, Size, &field, Kind::Int32List, 3) {
    separator_ = ':';
    padding_ = '0';
  }
  template <std::size_t Size>
  constexpr Attribute(const char (&name)[Size], KOV_TIME8& field) : Attribute(name, Size, &field, Kind::UInt8List, 3) {
    separator_ = ':';
    padding_ = '0';
  }

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

  constexpr Attribute separated(char separator) const {
    Attribute copy = *this;
    copy.separator_ = separator;
    return copy;
  }
  constexpr Attribute unpadded() const { return padded('\0'); }
  // Numbers of a list padded to two places.
  constexpr Attribute padded(char padding) const {
    Attribute copy = *this;
    copy.padding_ = padding;
    return copy;
  }

  // What follows the closing quote instead of a newline.
  constexpr Attribute thenBlank() const { return with(kThenBlank); }
  constexpr Attribute thenNothing() const { return with(kThenNothing); }
  // Name ="value": a blank before the equals sign.
  constexpr Attribute blankBeforeEquals() const { return with(kBlankBeforeEquals); }

 private:
  friend class BodyIo;

  enum Flag : std::uint16_t {
    kIfSet = 1,
    kSkipWriting = 2,
    kSkipReading = 4,
    kHexadecimal = 8,
    kAsSigned = 16,
    kOrZero = 32,
    kThenBlank = 64,
    kThenNothing = 128,
    kBlankBeforeEquals = 256,
    // What makes an attribute look other than Name="value" on a line of its own.
    kLayout = kHexadecimal | kAsSigned | kThenBlank | kThenNothing | kBlankBeforeEquals
  };

  constexpr Attribute(const char* name, std::size_t nameSize, void* field, Kind kind, std::size_t count)
      : name_(name),
        field_(field),
        count_(static_cast<std::uint16_t>(count)),
        flags_(0),
        nameLength_(static_cast<std::uint8_t>(nameSize - 1)),
        kind_(kind) {}

  constexpr Attribute with(Flag flag) const {
    Attribute copy = *this;
    copy.flags_ = static_cast<std::uint16_t>(copy.flags_ | flag);
    return copy;
  }
  constexpr bool has(Flag flag) const { return (flags_ & flag) != 0; }

  const char* name_;
  void* field_;
  std::uint16_t count_;  // bytes of a text, numbers of a list
  std::uint16_t flags_;
  std::uint8_t nameLength_;
  Kind kind_;
  char separator_ = ',';
  char padding_ = '\0';
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
