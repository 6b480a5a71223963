// The one table of all families. Both entries look a Msg_type up here, and nothing else in the core names a family.
#pragma once

#include <cstddef>
#include <cstring>

#include "core/family.h"

namespace kov {

// How a document leaves: behind a frame header, or bare.
enum class Framing : unsigned char { Framed, Bare };

struct FamilyRow {
  template <std::size_t Size>
  constexpr FamilyRow(const char (&type)[Size], const Family& served, Framing leaves = Framing::Framed,
                      const char* code = nullptr)
      : msgType(type), typeLength(Size - 1), family(&served), framing(leaves), onlyCode(code) {}

  // A family that is composed for one code only; it is read whatever the code says.
  constexpr FamilyRow composedAs(const char* code) const {
    FamilyRow copy = *this;
    copy.composedCode = code;
    return copy;
  }

  const char* msgType;
  std::size_t typeLength;
  const Family* family;
  Framing framing;
  const char* onlyCode;  // the row serves this Msg_code only; null: every code
  const char* composedCode = nullptr;
};

struct FamilyRows {
  const FamilyRow* begin() const { return first; }
  const FamilyRow* end() const { return behind; }
  const FamilyRow* first;
  const FamilyRow* behind;
};

FamilyRows families();

// False, and told, when a message of that code is not composed.
bool isComposed(const FamilyRow& row, const char* msgCode);

// The first row that serves a type and code, null when none does.
const FamilyRow* findFamily(const char* msgType, std::size_t typeLength, const char* msgCode);

}  // namespace kov
