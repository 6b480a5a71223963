#include "core/body_io.h"

#include <algorithm>
#include <utility>

#include "kov_platform/number_text.h"

namespace kov {
namespace {

template <class Value>
Value load(const void* field, std::size_t index = 0) {
  Value value;
  std::memcpy(&value, static_cast<const char*>(field) + index * sizeof value, sizeof value);
  return value;
}

template <class Value>
void store(void* field, Value value, std::size_t index = 0) {
  std::memcpy(static_cast<char*>(field) + index * sizeof value, &value, sizeof value);
}

// A received number of any width modulo 2^n, as printf and scanf see unsigned fields.
std::uint64_t withSign(bool negative, std::uint64_t magnitude) { return negative ? 0 - magnitude : magnitude; }

}  // namespace

NumberedName::NumberedName(const char* prefix, unsigned number, const char* suffix) {
  BodyWriter name(text_, sizeof text_);
  name.text(prefix);
  name.unsignedDecimal(number);
  name.text(suffix);
  name.terminate();
  size_ = name.written() + 1;
}

bool BodyIo::element(const char* name, Attributes attributes, const char* closing) {
  if (writing()) {
    open(name, "\n");
    write(attributes);
    writer_->text(closing);
    return true;
  }
  const ElementReader found = find(name);
  read(found, attributes);
  return static_cast<bool>(found);
}

bool BodyIo::element(const char* name, const char* opening, Attributes attributes, const char* closing) {
  if (reading()) return element(name, attributes);
  writer_->text(opening);
  write(attributes);
  writer_->text(closing);
  return true;
}

bool BodyIo::elementWhen(bool condition, const char* name, Attributes attributes) {
  return (condition || reading()) && element(name, attributes);
}

BodyIo BodyIo::enter(const char* name) {
  if (reading()) return {nullptr, find(name)};
  open(name, ">\n");
  return {writer_, at_};
}

BodyIo BodyIo::enter(const char* name, const char* opening) {
  if (reading()) return {nullptr, find(name)};
  writer_->text(opening);
  return {writer_, at_};
}

void BodyIo::attributes(Attributes attributes) {
  if (writing()) {
    write(attributes);
  } else {
    read(at_, attributes);
  }
}

void BodyIo::texts(Attributes values) {
  for (const Attribute& value : values) {
    if (reading()) {
      readText(find(value.name_), value);
    } else if (isWritten(value)) {
      open(value.name_, ">");
      writeValue(value);
      writer_->literal("</");
      writer_->text(value.name_, value.nameLength());
      writer_->text(value.has(Attribute::kThenNothing) ? ">" : ">\n");
    }
  }
}

ElementReader BodyIo::find(const char* name) {
  if (entry_ != nullptr) return {at_.document(), std::exchange(entry_, nullptr)};
  return at_.child(name);
}

std::int32_t BodyIo::eachEntry(const char* name, void* table, std::size_t entrySize, std::size_t capacity,
                               std::int64_t count, void (*form)(BodyIo&, void*)) {
  char* entry = static_cast<char*>(table);
  const std::int32_t most = static_cast<std::int32_t>(capacity);
  std::int32_t done = 0;
  if (writing()) {
    for (; done < most && done < count; ++done, entry += entrySize) form(*this, entry);
    return done;
  }
  for (ElementReader found = at_.child(name); found && done < most; found = found.next(name), ++done) {
    BodyIo item(*this);
    item.entry_ = found.handle();
    form(item, entry);
    entry += entrySize;
  }
  return done;
}

void BodyIo::open(const char* name, const char* end) {
  writer_->character('<');
  writer_->text(name);
  writer_->text(end);
}

bool BodyIo::isWritten(const Attribute& attribute) {
  if (attribute.has(Attribute::kSkipWriting)) return false;
  if (!attribute.has(Attribute::kIfSet)) return true;
  switch (attribute.kind()) {
    case Kind::Text:
      return load<char>(attribute.field_) != '\0';
    case Kind::UInt8:
    case Kind::UInt8List:
      return isSet(load<std::uint8_t>(attribute.field_));
    case Kind::UInt64:
      return isSet(load<std::uint64_t>(attribute.field_));
    default:
      return isSet(load<std::uint32_t>(attribute.field_));
  }
}

void BodyIo::write(Attributes attributes) {
  for (const Attribute& attribute : attributes) {
    if (isWritten(attribute) && !writeCommon(attribute)) writeAny(attribute);
  }
}

// Nearly all attributes are a text or a decimal int on a line of their own, and fit: one check of the room, no calls.
bool BodyIo::writeCommon(const Attribute& attribute) {
  const bool isText = attribute.kind() == Kind::Text;
  const bool isInt = attribute.kind() == Kind::Int32;
  if ((!isText && !isInt) || !attribute.isPlain()) return false;
  const char* const text = static_cast<const char*>(attribute.field_);
  const std::size_t length = isText ? boundedLength(text, attribute.capacity()) : BodyWriter::kMostDigits;
  constexpr std::size_t kPunctuation = 4;
  char* to = writer_->place(attribute.nameLength() + length + kPunctuation);
  if (to == nullptr) return false;
  copyShort(to, attribute.name_, attribute.nameLength());
  to += attribute.nameLength();
  std::memcpy(to, "=\"", 2);
  to += 2;
  if (isText) {
    copyShort(to, text, length);
    to += length;
  } else {
    to = BodyWriter::putDecimal(to, load<std::int32_t>(attribute.field_));
  }
  std::memcpy(to, "\"\n", 2);
  writer_->advanceTo(to + 2);
  return true;
}

void BodyIo::writeAny(const Attribute& attribute) {
  writer_->text(attribute.name_, attribute.nameLength());
  if (attribute.has(Attribute::kBlankBeforeEquals)) writer_->character(' ');
  writer_->literal("=\"");
  writeValue(attribute);
  if (attribute.has(Attribute::kThenNothing)) {
    writer_->character('"');
  } else {
    writer_->text(attribute.has(Attribute::kThenBlank) ? "\" " : "\"\n", 2);
  }
}

void BodyIo::writeValue(const Attribute& attribute) {
  const void* field = attribute.field_;
  switch (attribute.kind()) {
    case Kind::Int32:
      if (attribute.conversion() != Attribute::kHexadecimal) {
        writer_->decimal(load<std::int32_t>(field));
        break;
      }
      [[fallthrough]];
    case Kind::UInt32:
      writeUnsigned(attribute, load<std::uint32_t>(field), load<std::int32_t>(field));
      break;
    case Kind::UInt64:
      writeUnsigned(attribute, load<std::uint64_t>(field), load<std::int64_t>(field));
      break;
    case Kind::UInt8:
      writer_->unsignedDecimal(load<std::uint8_t>(field));
      break;
    case Kind::Float:
      writer_->fixed(load<float>(field));
      break;
    case Kind::Text: {
      const char* text = static_cast<const char*>(field);
      writer_->text(text, boundedLength(text, attribute.capacity()));
      break;
    }
    case Kind::Int32List:
    case Kind::UInt8List:
      writeList(attribute);
      break;
  }
}

void BodyIo::writeUnsigned(const Attribute& attribute, std::uint64_t value, std::int64_t asSigned) {
  if (attribute.conversion() == Attribute::kHexadecimal) {
    writer_->hexadecimal(value);
  } else if (attribute.conversion() == Attribute::kAsSigned) {
    writer_->decimal(asSigned);
  } else {
    writer_->unsignedDecimal(value);
  }
}

void BodyIo::writeList(const Attribute& attribute) {
  const unsigned width = attribute.padding() == '\0' ? 1 : 2;
  for (std::size_t i = 0; i < attribute.numbers(); ++i) {
    const std::int32_t number = attribute.kind() == Kind::UInt8List ? load<std::uint8_t>(attribute.field_, i)
                                                                    : load<std::int32_t>(attribute.field_, i);
    if (i > 0) writer_->character(attribute.separator());
    writer_->padded(number, width, attribute.padding());
  }
}

void BodyIo::read(const ElementReader& element, Attributes attributes) {
  if (!element) return;
  for (const Attribute& attribute : attributes) {
    if (!attribute.has(Attribute::kSkipReading)) readAttribute(element, attribute);
  }
}

void BodyIo::readAttribute(const ElementReader& element, const Attribute& attribute) {
  if (readRawly(attribute)) {
    readRaw(element.attribute(attribute.name_), attribute);
    return;
  }
  void* const field = attribute.field_;
  const KovXMLParser& document = element.document();
  switch (attribute.kind()) {
    case Kind::Int32:
      getXmlIntTypeParamAttribute(document, element.handle(), attribute.name_, static_cast<int*>(field));
      break;
    case Kind::UInt32:
      getXmlUIntTypeParamAttribute(document, element.handle(), attribute.name_, static_cast<unsigned int*>(field));
      break;
    case Kind::UInt8:
      getXmlUCharTypeParamAttribute(document, element.handle(), attribute.name_, static_cast<unsigned char*>(field));
      break;
    case Kind::UInt64: {
      unsigned long long value = 0;
      if (getXmlUllTypeParamAttribute(document, element.handle(), attribute.name_, &value) == 0) {
        store<std::uint64_t>(field, value);
      }
      break;
    }
    case Kind::Float:
      getXmlFloatTypeParamAttribute(document, element.handle(), attribute.name_, static_cast<float*>(field));
      break;
    case Kind::Text:
      getXmlStringTypeParamAttribute(document, element.handle(), attribute.name_, static_cast<char*>(field),
                                     static_cast<int>(attribute.capacity()));
      break;
    default:
      break;
  }
}

// The typed readers know decimal numbers and texts; the rest is read from the raw text.
bool BodyIo::readRawly(const Attribute& attribute) {
  return attribute.kind() == Kind::Int32List || attribute.kind() == Kind::UInt8List ||
         attribute.conversion() == Attribute::kHexadecimal || attribute.conversion() == Attribute::kOrZero;
}

void BodyIo::readRaw(const char* raw, const Attribute& attribute) {
  if (raw == nullptr) return;
  if (attribute.conversion() == Attribute::kOrZero) {
    store(attribute.field_, intOf(raw));
  } else if (attribute.conversion() == Attribute::kHexadecimal) {
    readHexadecimal(raw, attribute);
  } else {
    readList(raw, attribute);
  }
}

void BodyIo::readHexadecimal(const char* raw, const Attribute& attribute) {
  bool negative = false;
  std::uint64_t magnitude = 0;
  if (!scanHexadecimal(raw, negative, magnitude)) return;
  if (attribute.kind() == Kind::UInt64) {
    store(attribute.field_, withSign(negative, magnitude));
  } else {
    const std::uint64_t limited = std::min<std::uint64_t>(magnitude, UINT32_MAX);
    store(attribute.field_, static_cast<std::uint32_t>(withSign(negative, limited)));
  }
}

// Numbers up to the first that is missing; those behind it keep their defaults.
void BodyIo::readList(const char* raw, const Attribute& attribute) {
  for (std::size_t i = 0; i < attribute.numbers(); ++i) {
    std::int32_t number = 0;
    if (i > 0 && *raw++ != attribute.separator()) return;
    if (!scanInt(raw, number)) return;
    if (attribute.kind() == Kind::Int32List) {
      store(attribute.field_, number, i);
    } else if (number >= 0 && number <= UINT8_MAX) {
      store(attribute.field_, static_cast<std::uint8_t>(number), i);
    }
  }
}

void BodyIo::readText(const ElementReader& element, const Attribute& value) {
  if (!element || value.has(Attribute::kSkipReading)) return;
  if (value.kind() == Kind::Text) {
    getXmlStringTypeParamByGetText(element.document(), element.handle(), static_cast<char*>(value.field_),
                                   static_cast<int>(value.capacity()));
  } else if (value.kind() == Kind::Int32 && value.conversion() != Attribute::kOrZero) {
    getXmlIntTypeParamByGetText(element.document(), element.handle(), static_cast<int*>(value.field_));
  } else {
    readNumber(element.text(), value);
  }
}

// A number of any other kind out of an element's text.
void BodyIo::readNumber(const char* raw, const Attribute& value) {
  if (readRawly(value)) {
    readRaw(raw, value);
    return;
  }
  bool negative = false;
  std::uint64_t magnitude = 0;
  if (value.kind() == Kind::UInt32 && scanDecimal(raw, negative, magnitude)) {
    const std::uint64_t limited = std::min<std::uint64_t>(magnitude, UINT32_MAX);
    store(value.field_, static_cast<std::uint32_t>(withSign(negative, limited)));
  }
}

}  // namespace kov
