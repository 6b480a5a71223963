/**
 * @file number_text.h
 * @brief Numbers out of text: saturating, independent of locale and of the width of long.
 *
 * One grammar for the whole library: leading blanks, one sign, then digits; what follows the digits is ignored.
 */
#ifndef KOV_PLATFORM_NUMBER_TEXT_H
#define KOV_PLATFORM_NUMBER_TEXT_H

#include <cstdint>

namespace kov {

/** Blanks as the C locale knows them. */
constexpr bool isBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

/** Reads a decimal number at `text` and moves `text` behind it. False, and `text` unmoved, when no digit is there. */
bool scanDecimal(const char*& text, bool& negative, std::uint64_t& magnitude) noexcept;

/** Reads a hexadecimal number, with or without "0x"; otherwise as scanDecimal(). */
bool scanHexadecimal(const char*& text, bool& negative, std::uint64_t& magnitude) noexcept;

/** Reads an int32 by scanDecimal(), saturated to its range. */
bool scanInt(const char*& text, std::int32_t& value) noexcept;

/** The number at the start of `text`, 0 when there is none. */
std::int32_t intOf(const char* text) noexcept;

/** Reads a finite decimal number with optional fraction and exponent; nothing but blanks may follow it. */
bool floatOf(const char* text, float& value) noexcept;

}  // namespace kov

#endif
