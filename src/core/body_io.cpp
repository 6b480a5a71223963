#include "core/body_io.h"

#include <algorithm>
#include <utility>

#include "kov_platform/value_text.h"

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

bool BodyIo::element(const char* name, Attributes attributes) {
  if (reading()) return readElement(name, attributes);
  open(name);
  writer_->literal("\n");
  write(attributes);
  writer_->literal("/>\n");
  return true;
}

bool BodyIo::element(const char* name, Attributes attributes, const char* closing) {
  if (reading()) return readElement(name, attributes);
  open(name);
  writer_->literal("\n");
  write(attributes);
  writer_->text(closing);
  return true;
}

bool BodyIo::element(const char* name, const char* opening, Attributes attributes, const char* closing) {
  if (reading()) return readElement(name, attributes);
  writer_->text(opening);
  write(attributes);
  writer_->text(closing);
  return true;
}

bool BodyIo::readElement(const char* name, Attributes attributes) {
  const ElementReader found = find(name);
  read(found, attributes);
  return static_cast<bool>(found);
}

bool BodyIo::elementWhen(bool condition, const char* name, Attributes attributes) {
  return (condition || reading()) && element(name, attributes);
}

BodyIo BodyIo::enter(const char* name) {
  if (reading()) return {nullptr, find(name)};
  open(name);
  writer_->literal(">\n");
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
      const ElementReader found = find(value.name_);
      if (found && !value.has(Attribute::kSkipReading)) readValue(found.text(), value);
    } else if (isWritten(value)) {
      open(value.name_);
      writer_->literal(">");
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

void BodyIo::open(const char* name) {
  writer_->literal("<");
  writer_->text(name);
}

inline bool BodyIo::isWritten(const Attribute& attribute) {
  if (attribute.isAlwaysWritten()) return true;
  if (attribute.has(Attribute::kSkipWriting)) return false;
  return attribute.kind() == Kind::Text ? load<char>(attribute.field_) != '\0' : isNumberSet(attribute);
}

bool BodyIo::isNumberSet(const Attribute& attribute) {
  switch (attribute.kind()) {
    case Kind::UInt8:
    case Kind::UInt8List:
      return isSet(load<std::uint8_t>(attribute.field_));
    case Kind::UInt64:
      return isSet(load<std::uint64_t>(attribute.field_));
    default:
      return isSet(load<std::uint32_t>(attribute.field_));
  }
}

// Straight into the buffer wherever there is room for the longest value that the attribute may have.
void BodyIo::write(Attributes attributes) {
  char* to = writer_->cursor();
  const char* const end = to + writer_->room();
  for (const Attribute& attribute : attributes) {
    if (!isWritten(attribute)) continue;
    const std::size_t room = static_cast<std::size_t>(end - to);
    char* behind = attribute.isPlain() ? putPlain(to, attribute, room) : put(to, attribute, room);
    if (behind == nullptr) {
      writer_->advanceTo(to);
      writePieces(attribute);
      behind = writer_->cursor();
    }
    to = behind;
  }
  writer_->advanceTo(to);
}

// Null when it may not fit. Most attributes are plain, and of one of four kinds; what is said of them is loaded before
// anything is stored, which might alter it for all that the compiler knows.
inline char* BodyIo::putPlain(char* to, const Attribute& attribute, std::size_t room) {
  if (room < kMostAround + kMostNumberText) return nullptr;
  const void* const field = attribute.field_;
  const Kind kind = attribute.kind();
  const std::size_t capacity = attribute.capacity();
  to = putShort(to, attribute.name_, attribute.nameLength());
  std::memcpy(to, "=\"", 2);
  to += 2;
  switch (kind) {
    case Kind::Int32:
      to = putDecimal(to, load<std::int32_t>(field));
      break;
    case Kind::UInt32:
      to = putUnsigned(to, load<std::uint32_t>(field));
      break;
    case Kind::UInt8:
      to = putUnsigned(to, std::uint32_t{load<std::uint8_t>(field)});
      break;
    case Kind::Text:
      if (capacity > room - kMostAround) return nullptr;
      to = putField(to, static_cast<const char*>(field), capacity);
      break;
    default:
      to = putNumber(to, attribute);
  }
  std::memcpy(to, "\"\n", 2);
  return to + 2;
}

// The same for an attribute of any sort.
char* BodyIo::put(char* to, const Attribute& attribute, std::size_t room) {
  const bool isText = attribute.kind() == Kind::Text;
  if (room < kMostAround + (isText ? attribute.capacity() : kMostNumberText)) return nullptr;
  to = putOpening(to, attribute);
  to = isText ? putField(to, static_cast<const char*>(attribute.field_), attribute.capacity())
              : putNumber(to, attribute);
  return putClosing(to, attribute);
}

char* BodyIo::putOpening(char* to, const Attribute& attribute) {
  to = putShort(to, attribute.name_, attribute.nameLength());
  if (attribute.has(Attribute::kBlankBeforeEquals)) *to++ = ' ';
  std::memcpy(to, "=\"", 2);
  return to + 2;
}

char* BodyIo::putClosing(char* to, const Attribute& attribute) {
  std::memcpy(to, "\"\n", 2);
  if (attribute.has(Attribute::kThenNothing)) return to + 1;
  if (attribute.has(Attribute::kThenBlank)) to[1] = ' ';
  return to + 2;
}

// The same piece by piece, near the end of the buffer.
void BodyIo::writePieces(const Attribute& attribute) {
  char piece[kMostAround];
  writer_->text(piece, static_cast<std::size_t>(putOpening(piece, attribute) - piece));
  writeValue(attribute);
  writer_->text(piece, static_cast<std::size_t>(putClosing(piece, attribute) - piece));
}

void BodyIo::writeValue(const Attribute& attribute) {
  if (attribute.kind() == Kind::Text) {
    const char* const text = static_cast<const char*>(attribute.field_);
    writer_->text(text, boundedLength(text, attribute.capacity()));
    return;
  }
  char value[kMostNumberText];
  writer_->text(value, static_cast<std::size_t>(putNumber(value, attribute) - value));
}

// A value of any kind but text.
char* BodyIo::putNumber(char* to, const Attribute& attribute) {
  const void* const field = attribute.field_;
  switch (attribute.kind()) {
    case Kind::Int32:
      if (attribute.conversion() == Attribute::kHexadecimal) break;
      return putDecimal(to, load<std::int32_t>(field));
    case Kind::UInt8:
      return putUnsigned(to, std::uint32_t{load<std::uint8_t>(field)});
    case Kind::UInt64:
      return putUnsignedOf(to, attribute, load<std::uint64_t>(field), load<std::int64_t>(field));
    case Kind::Float:
      return putFixed(to, load<float>(field));
    case Kind::Int32List:
    case Kind::UInt8List:
      return putList(to, attribute);
    default:
      break;
  }
  return putUnsignedOf(to, attribute, load<std::uint32_t>(field), load<std::int32_t>(field));
}

char* BodyIo::putUnsignedOf(char* to, const Attribute& attribute, std::uint64_t value, std::int64_t asSigned) {
  switch (attribute.conversion()) {
    case Attribute::kHexadecimal:
      return putHexadecimal(to, value);
    case Attribute::kAsSigned:
      return putDecimal(to, asSigned);
    default:
      return putUnsigned(to, value);
  }
}

char* BodyIo::putList(char* to, const Attribute& attribute) {
  const char padding = attribute.padding();
  const bool small = attribute.kind() == Kind::UInt8List;
  for (std::size_t i = 0; i < attribute.numbers(); ++i) {
    const void* const field = attribute.field_;
    const std::int32_t number = small ? load<std::uint8_t>(field, i) : load<std::int32_t>(field, i);
    if (i > 0) *to++ = attribute.separator();
    to = putTwoPlaces(to, number, padding);
  }
  return to;
}

void BodyIo::read(const ElementReader& element, Attributes attributes) {
  if (!element) return;
  for (const Attribute& attribute : attributes) {
    if (attribute.has(Attribute::kSkipReading)) continue;
    if (const char* const raw = element.attribute(attribute.name_)) readValue(raw, attribute);
  }
}

// Stores what the text says; an unreadable text leaves the field alone.
inline void BodyIo::readValue(const char* raw, const Attribute& attribute) {
  if (attribute.kind() == Kind::Text) {
    readText(raw, static_cast<char*>(attribute.field_), attribute.capacity());
  } else {
    readNumber(raw, attribute);
  }
}

void BodyIo::readNumber(const char* raw, const Attribute& attribute) {
  void* const field = attribute.field_;
  const bool hexadecimal = attribute.conversion() == Attribute::kHexadecimal;
  switch (attribute.kind()) {
    case Kind::Int32:
      if (hexadecimal) return readHexadecimal(raw, attribute);
      if (!readInt(raw, *static_cast<std::int32_t*>(field)) && attribute.conversion() == Attribute::kOrZero) {
        store(field, 0);
      }
      return;
    case Kind::UInt32:
      if (hexadecimal) return readHexadecimal(raw, attribute);
      kov::readUnsigned(raw, *static_cast<std::uint32_t*>(field));
      return;
    case Kind::UInt8:
      readByte(raw, *static_cast<std::uint8_t*>(field));
      return;
    case Kind::UInt64:
      if (hexadecimal) return readHexadecimal(raw, attribute);
      kov::readUnsigned(raw, *static_cast<std::uint64_t*>(field));
      return;
    case Kind::Float:
      readFloat(raw, *static_cast<float*>(field));
      return;
    default:
      return readList(raw, attribute);
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

}  // namespace kov
