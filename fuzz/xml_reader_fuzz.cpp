/**
 * @file xml_reader_fuzz.cpp
 * @brief Fuzz target: any bytes through the reader, and through every operation on what it accepts.
 */
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "kov_platform/xml_parser.h"

namespace {

constexpr const char* kNames[] = {"A", "B", "a", "b", "MESSAGE_BODY", "NetworkConfig", "Video", "Overlay", "Encode"};
constexpr int kMaxVisited = 2000;

/** Uses every value of one element; strlen walks it, so that the sanitizer sees an unterminated one. */
std::size_t readElement(const KovXMLParser& parser, void* element) {
  std::size_t total = std::strlen(parser.GetText(element));
  for (const char* name : kNames) {
    if (const char* value = parser.Attribute(element, name)) total += std::strlen(value);
    int number = 0;
    float real = 0;
    unsigned char byte = 0;
    unsigned long long wide = 0;
    char text[5];
    getXmlIntTypeParamAttribute(parser, element, name, &number);
    getXmlFloatTypeParamAttribute(parser, element, name, &real);
    getXmlUCharTypeParamAttribute(parser, element, name, &byte);
    getXmlUllTypeParamAttribute(parser, element, name, &wide);
    if (getXmlStringTypeParamAttribute(parser, element, name, text, sizeof text) == 0 && std::strlen(text) > 4) abort();
  }
  return total;
}

/** The first child of a name must precede every namesake, however often and in whatever order it is asked for. */
void checkFirst(const KovXMLParser& parser, void* parent, const char* name) {
  void* first = parser.FirstChildElement(parent, name);
  for (void* twin = first; twin != nullptr; twin = parser.NextSiblingElement(twin, name)) {
    if (twin < first) abort();
  }
  if (parser.FirstChildElement(parent, name) != first) abort();
}

void walk(const KovXMLParser& parser) {
  void* pending[kMaxVisited] = {parser.RootElement()};
  int count = 1;
  for (int at = 0; at < count; ++at) {
    readElement(parser, pending[at]);
    for (const char* name : kNames) {
      checkFirst(parser, pending[at], name);
      void* child = parser.FirstChildElement(pending[at], name);
      for (; child != nullptr && count < kMaxVisited; child = parser.NextSiblingElement(child, name)) {
        pending[count++] = child;
      }
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::unique_ptr<char[]> text(new char[size + 1]);  // exact size: the sanitizer guards the byte behind the NUL
  if (size != 0) std::memcpy(text.get(), data, size);
  text[size] = '\0';
  KovXMLParser parser;
  if (parser.Parse(text.get()) == 0) walk(parser);
  return 0;
}
