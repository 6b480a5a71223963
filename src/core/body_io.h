// The cursor that runs a form in one of two directions: it writes a body from a record, or reads the body into it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>

#include "core/attribute.h"
#include "core/body_writer.h"
#include "core/element_reader.h"

namespace kov {

using Attributes = std::initializer_list<Attribute>;

class BodyIo;

// A form without the type of its record.
template <auto Form, class Record>
void runForm(BodyIo& io, void* record) {
  Form(io, *static_cast<Record*>(record));
}

// A form calls it once per element, in wire order. The default layout of an element is "<Name\n", one attribute a line,
// "/>\n"; a form that needs another opening or closing says its text. Text that frames elements is written only.
class BodyIo {
 public:
  explicit BodyIo(BodyWriter& writer) : writer_(&writer) {}
  explicit BodyIo(const ElementReader& element) : writer_(nullptr), at_(element) {}

  // False when reading, and the element of this cursor is missing.
  explicit operator bool() const { return writer_ != nullptr || static_cast<bool>(at_); }
  bool writing() const { return writer_ != nullptr; }
  bool reading() const { return writer_ == nullptr; }

  // One child element with attributes only. False when reading, and it is missing.
  bool element(const char* name, Attributes attributes);
  bool element(const char* name, Attributes attributes, const char* closing);
  bool element(const char* name, const char* opening, Attributes attributes, const char* closing = "/>\n");
  // As element(), but written only when the condition holds.
  bool elementWhen(bool condition, const char* name, Attributes attributes);

  // Steps into a child element that holds more than attributes. It opens "<Name>\n" unless the form says otherwise; the
  // form writes its end with text().
  BodyIo enter(const char* name);
  BodyIo enter(const char* name, const char* opening);
  // Attributes of the element that enter() opened.
  void attributes(Attributes attributes);
  // Child elements that hold one value each: "<name>value</name>\n".
  void texts(Attributes values);

  // Fixed text of the wire; nothing when reading.
  void text(const char* fixed) {
    if (writer_ != nullptr) writer_->text(fixed);
  }

  // Elements of one name, an entry each: io.list<account>("Account", r.accounts, r.AccountCount). Writing takes the
  // first `count` entries, as far as the table has them; reading fills the table from the elements there are and counts
  // them.
  template <auto Form, class Entry, std::size_t Capacity>
  void list(const char* name, Entry (&table)[Capacity], std::int32_t& count) {
    const std::int32_t entries = listOf<Form>(name, table, count);
    if (reading()) count = entries;
  }
  // The same for a table whose count travels elsewhere and is of no account when reading. Returns the number of entries
  // written or read.
  template <auto Form, class Entry, std::size_t Capacity>
  std::int32_t listOf(const char* name, Entry (&table)[Capacity], std::int64_t count) {
    return eachEntry(name, table, sizeof(Entry), Capacity, count, &runForm<Form, Entry>);
  }

  // The two sides, for what no form can say.
  BodyWriter& writer() { return *writer_; }
  const ElementReader& reader() const { return at_; }

 private:
  BodyIo(BodyWriter* writer, const ElementReader& element) : writer_(writer), at_(element) {}

  std::int32_t eachEntry(const char* name, void* table, std::size_t entrySize, std::size_t capacity, std::int64_t count,
                         void (*form)(BodyIo&, void*));

  // The longest text of a number or list: all of its numbers padded, with a separator behind each.
  static constexpr std::size_t kMostNumberText = Attribute::kMostNumbers * (kMostTwoPlaces + 1);
  static_assert(kMostNumberText >= kMostFixed && kMostNumberText >= kMostDigits);

  // What stands around a value at most: the name, a blank, the equals sign, two quotes and what ends it.
  static constexpr std::size_t kMostAround = Attribute::kMostName + 5;

  ElementReader find(const char* name);
  void open(const char* name);
  bool readElement(const char* name, Attributes attributes);
  void write(Attributes attributes);
  void writePieces(const Attribute& attribute);
  void writeValue(const Attribute& attribute);
  static char* putPlain(char* to, const Attribute& attribute, std::size_t room);
  static char* put(char* to, const Attribute& attribute, std::size_t room);
  static char* putOpening(char* to, const Attribute& attribute);
  static char* putClosing(char* to, const Attribute& attribute);
  static char* putNumber(char* to, const Attribute& attribute);
  static char* putUnsignedOf(char* to, const Attribute& attribute, std::uint64_t value, std::int64_t asSigned);
  static char* putList(char* to, const Attribute& attribute);
  static bool isWritten(const Attribute& attribute);
  static bool isNumberSet(const Attribute& attribute);

  static void read(const ElementReader& element, Attributes attributes);
  static void readValue(const char* raw, const Attribute& attribute);
  static void readNumber(const char* raw, const Attribute& attribute);
  static void readHexadecimal(const char* raw, const Attribute& attribute);
  static void readList(const char* raw, const Attribute& attribute);

  BodyWriter* writer_;     // null when reading
  ElementReader at_;       // the element whose children this cursor reads
  void* entry_ = nullptr;  // in a list: the element that the entry's form is about to name
};

}  // namespace kov
