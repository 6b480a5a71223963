/**
 * @file value_text.h
 * @brief Values out of received text: texts, and numbers, saturating and independent of locale and the width of long.
 *
 * One grammar of numbers for codec and reader: leading blanks, one sign, then digits; what follows them is ignored.
 */
#ifndef KOV_PLATFORM_VALUE_TEXT_H
#define KOV_PLATFORM_VALUE_TEXT_H

#include <cstddef>
#include <cstdint>

namespace kov {

/** Blanks as the C locale knows them. */
constexpr bool isBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

/**
 * Reads a decimal number at `text` and moves `text` behind it. False, and `text` unmoved, when no digit is there or
 * `text` is null.
 */
bool scanDecimal(const char*& text, bool& negative, std::uint64_t& magnitude) noexcept;

/** Reads a hexadecimal number, with or without "0x"; otherwise as scanDecimal(). */
bool scanHexadecimal(const char*& text, bool& negative, std::uint64_t& magnitude) noexcept;

/** Reads an int32 by scanDecimal(), saturated to its range. */
bool scanInt(const char*& text, std::int32_t& value) noexcept;

/** The number at the start of `text`, 0 when there is none. */
std::int32_t intOf(const char* text) noexcept;

/*
 * What a field takes: false, and the field untouched, when `text` is null or holds no such value.
 */

/** Saturated. */
bool readInt(const char* text, std::int32_t& value) noexcept;

/** Saturated, a minus sign taken modulo 2^n, as the composers write it. */
bool readUnsigned(const char* text, std::uint32_t& value) noexcept;
bool readUnsigned(const char* text, std::uint64_t& value) noexcept;

/** A number from 0 to 255. */
bool readByte(const char* text, std::uint8_t& value) noexcept;

/** A finite decimal number with optional fraction and exponent; nothing but blanks may follow it. */
bool readFloat(const char* text, float& value) noexcept;

/** A text, cut to `size` - 1 bytes and always terminated; `size` is at least 1. */
bool readText(const char* text, char* field, std::size_t size) noexcept;

}  // namespace kov

#endif
