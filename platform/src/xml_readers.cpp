/**
 * @file xml_readers.cpp
 * @brief The typed readers, on nothing but the parser's public operations.
 */
#include <cstdint>
#include <type_traits>

#include "kov_platform/value_text.h"
#include "kov_platform/xml_parser.h"

namespace {

constexpr int kOk = 0;
constexpr int kUnreadable = -1;

static_assert(std::is_same_v<std::int32_t, int> && std::is_same_v<std::uint32_t, unsigned int>);

/** Reads `text` into `*value` as the field reader does; without a destination nothing is readable. */
template <typename Value>
int readInto(bool (*read)(const char*, Value&) noexcept, const char* text, Value* value) {
  return value != nullptr && read(text, *value) ? kOk : kUnreadable;
}

int readTextInto(const char* text, char* field, int size) {
  if (field == nullptr || size < 1) return kUnreadable;
  return kov::readText(text, field, static_cast<std::size_t>(size)) ? kOk : kUnreadable;
}

/** The text of an element; null, unlike GetText(), when there is no element. */
const char* textOf(const KovXMLParser& parser, void* element) {
  return element != nullptr && parser.RootElement() != nullptr ? parser.GetText(element) : nullptr;
}

}  // namespace

int getXmlIntTypeParamAttribute(KovXMLParser parser, void* element, const char* name, int* value) noexcept {
  return readInto(kov::readInt, parser.Attribute(element, name), value);
}

int getXmlUIntTypeParamAttribute(KovXMLParser parser, void* element, const char* name, unsigned int* value) noexcept {
  return readInto<std::uint32_t>(kov::readUnsigned, parser.Attribute(element, name), value);
}

int getXmlUCharTypeParamAttribute(KovXMLParser parser, void* element, const char* name, unsigned char* value) noexcept {
  return readInto(kov::readByte, parser.Attribute(element, name), value);
}

int getXmlUllTypeParamAttribute(KovXMLParser parser, void* element, const char* name,
                                unsigned long long* value) noexcept {
  std::uint64_t read = 0;
  if (value == nullptr || !kov::readUnsigned(parser.Attribute(element, name), read)) return kUnreadable;
  *value = read;
  return kOk;
}

int getXmlFloatTypeParamAttribute(KovXMLParser parser, void* element, const char* name, float* value) noexcept {
  return readInto(kov::readFloat, parser.Attribute(element, name), value);
}

int getXmlStringTypeParamAttribute(KovXMLParser parser, void* element, const char* name, char* text,
                                   int size) noexcept {
  return readTextInto(parser.Attribute(element, name), text, size);
}

int getXmlIntTypeParamByGetText(KovXMLParser parser, void* element, int* value) noexcept {
  return readInto(kov::readInt, textOf(parser, element), value);
}

int getXmlStringTypeParamByGetText(KovXMLParser parser, void* element, char* text, int size) noexcept {
  return readTextInto(textOf(parser, element), text, size);
}
