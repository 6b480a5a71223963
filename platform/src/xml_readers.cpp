/**
 * @file xml_readers.cpp
 * @brief The typed readers, on nothing but the parser's public operations.
 */
#include <cstdint>
#include <cstring>
#include <limits>

#include "kov_platform/number_text.h"
#include "kov_platform/xml_parser.h"

namespace {

constexpr int kOk = 0;
constexpr int kUnreadable = -1;

/** Reads a number for an unsigned field: saturated, a minus sign taken modulo 2^n, as the composers write it. */
template <typename Unsigned>
int unsignedOf(const char* text, Unsigned* value) {
  constexpr std::uint64_t kLargest = std::numeric_limits<Unsigned>::max();
  bool negative = false;
  std::uint64_t magnitude = 0;
  if (value == nullptr || !kov::scanDecimal(text, negative, magnitude)) return kUnreadable;
  const auto saturated = static_cast<Unsigned>(magnitude < kLargest ? magnitude : kLargest);
  *value = negative ? static_cast<Unsigned>(0 - saturated) : saturated;
  return kOk;
}

int signedOf(const char* text, int* value) {
  static_assert(sizeof(int) == sizeof(std::int32_t), "the int fields of the protocol have 32 bits");
  std::int32_t read = 0;
  if (value == nullptr || !kov::scanInt(text, read)) return kUnreadable;
  *value = read;
  return kOk;
}

/** Copies what fits of `source`; one byte of `size` is always the terminator's. */
int copyText(const char* source, char* text, int size) {
  if (source == nullptr || text == nullptr || size < 1) return kUnreadable;
  const auto room = static_cast<std::size_t>(size) - 1;
  const void* const end = std::memchr(source, '\0', room);
  const std::size_t length = end != nullptr ? static_cast<std::size_t>(static_cast<const char*>(end) - source) : room;
  std::memcpy(text, source, length);
  text[length] = '\0';
  return kOk;
}

/** The text of an element; null, unlike GetText(), when there is no element. */
const char* textOf(const KovXMLParser& parser, void* element) {
  return element != nullptr && parser.RootElement() != nullptr ? parser.GetText(element) : nullptr;
}

}  // namespace

int getXmlIntTypeParamAttribute(KovXMLParser parser, void* element, const char* name, int* value) noexcept {
  return signedOf(parser.Attribute(element, name), value);
}

int getXmlUIntTypeParamAttribute(KovXMLParser parser, void* element, const char* name, unsigned int* value) noexcept {
  return unsignedOf(parser.Attribute(element, name), value);
}

int getXmlUCharTypeParamAttribute(KovXMLParser parser, void* element, const char* name, unsigned char* value) noexcept {
  int read = 0;
  if (value == nullptr || signedOf(parser.Attribute(element, name), &read) != kOk) return kUnreadable;
  if (read < 0 || read > 255) return kUnreadable;
  *value = static_cast<unsigned char>(read);
  return kOk;
}

int getXmlUllTypeParamAttribute(KovXMLParser parser, void* element, const char* name,
                                unsigned long long* value) noexcept {
  return unsignedOf(parser.Attribute(element, name), value);
}

int getXmlFloatTypeParamAttribute(KovXMLParser parser, void* element, const char* name, float* value) noexcept {
  return value != nullptr && kov::floatOf(parser.Attribute(element, name), *value) ? kOk : kUnreadable;
}

int getXmlStringTypeParamAttribute(KovXMLParser parser, void* element, const char* name, char* text,
                                   int size) noexcept {
  return copyText(parser.Attribute(element, name), text, size);
}

int getXmlIntTypeParamByGetText(KovXMLParser parser, void* element, int* value) noexcept {
  return signedOf(textOf(parser, element), value);
}

int getXmlStringTypeParamByGetText(KovXMLParser parser, void* element, char* text, int size) noexcept {
  return copyText(textOf(parser, element), text, size);
}
