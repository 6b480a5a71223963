/**
 * @file xml_parser.h
 * @brief The XML reader that kov_protocol imports: one parsed document and typed access to its elements.
 *
 * The class holds one pointer only, so that another reader can stand behind the same symbols at link time.
 */
#ifndef KOV_PLATFORM_XML_PARSER_H
#define KOV_PLATFORM_XML_PARSER_H

/**
 * One parsed document.
 *
 * Element handles are opaque and live as long as any copy of the parser that produced them. Null handles are valid
 * arguments everywhere and answer as a missing element. All texts are raw: no entity is decoded, no byte is converted.
 * An element's own text is its first run of text or CDATA that is not all blanks.
 * Copies share the document and cost a counter; one document, copies included, belongs to one thread at a time.
 */
class KovXMLParser {
 public:
  KovXMLParser() noexcept = default;
  KovXMLParser(const KovXMLParser& other) noexcept;
  KovXMLParser& operator=(const KovXMLParser& other) noexcept;
  ~KovXMLParser();

  /** Reads a NUL-terminated document, replacing any earlier one. Returns 0, or nonzero when it is not well formed. */
  int Parse(const char* document) noexcept;

  /** The root element, or null. */
  void* RootElement() const noexcept;

  /** The first child of that name, or null. */
  void* FirstChildElement(void* parent, const char* name) const noexcept;

  /** The next sibling of that name, or null. */
  void* NextSiblingElement(void* element, const char* name) const noexcept;

  /** The attribute's raw text, or null when it is missing. */
  const char* Attribute(void* element, const char* name) const noexcept;

  /** The element's own text without leading and trailing blanks, never null. */
  const char* GetText(void* element) const noexcept;

 private:
  struct Document;
  Document* document_ = nullptr;
};

/*
 * Typed readers: 0 when the value was found and stored; nonzero when it is missing or unreadable, and the destination
 * is then untouched. Numbers are decimal with leading blanks and one sign, take the longest run of digits, need at
 * least one, ignore what follows, and saturate; unsigned readers take a minus sign modulo 2^n. Texts are cut to
 * size - 1 bytes and always terminated.
 */
int getXmlIntTypeParamAttribute(KovXMLParser parser, void* element, const char* name, int* value) noexcept;
int getXmlUIntTypeParamAttribute(KovXMLParser parser, void* element, const char* name, unsigned int* value) noexcept;
/** A number from 0 to 255; any other is unreadable. */
int getXmlUCharTypeParamAttribute(KovXMLParser parser, void* element, const char* name, unsigned char* value) noexcept;
int getXmlUllTypeParamAttribute(KovXMLParser parser, void* element, const char* name,
                                unsigned long long* value) noexcept;
/** A finite decimal number with optional fraction and exponent; anything but blanks behind it is unreadable. */
int getXmlFloatTypeParamAttribute(KovXMLParser parser, void* element, const char* name, float* value) noexcept;
int getXmlStringTypeParamAttribute(KovXMLParser parser, void* element, const char* name, char* text, int size) noexcept;
int getXmlIntTypeParamByGetText(KovXMLParser parser, void* element, int* value) noexcept;
int getXmlStringTypeParamByGetText(KovXMLParser parser, void* element, char* text, int size) noexcept;

#endif
