#include "core/body_io.h"

#include <gtest/gtest.h>

#include <climits>

#include "golden.h"

namespace kov::test {
namespace {

// An attribute and its text: the plain one, and the longest name with all that may stand around a value.
struct Shape {
  template <class Field>
  Attribute of(Field& field) const {
    const Attribute plain = attr("NameOfThirtyOneCharactersInAll_", field);
    return isPlain ? plain : plain.blankBeforeEquals().thenBlank();
  }
  std::string text(const std::string& value) const {
    return "NameOfThirtyOneCharactersInAll_" + std::string(isPlain ? "=" : " =") + '"' + value +
           (isPlain ? "\"\n" : "\" ");
  }
  bool isPlain;
};
constexpr Shape kShapes[] = {{true}, {false}};

// Writes into a buffer of its own, so that writing on is seen, which cuts the text.
void checkCut(const Attribute& attribute, const std::string& expected, std::size_t room) {
  const std::unique_ptr<char[]> buffer(new char[room + 1]);
  BodyWriter writer(buffer.get(), room + 1);
  BodyIo(writer).attributes({attribute});
  writer.terminate();
  EXPECT_EQ(buffer.get(), expected.substr(0, room));
  EXPECT_EQ(writer.length(), expected.size());
}

// A field in a block of its own, so that reading on is seen.
template <std::size_t Capacity>
void checkTextField(const Shape& shape) {
  struct Record {
    char text[Capacity];
  };
  const auto record = std::make_unique<Record>();
  for (const char fill : {'a', '\x01', '\x80', '\xFF'}) {
    for (std::size_t length = 0; length <= Capacity; ++length) {
      std::memset(record->text, fill, Capacity);
      if (length < Capacity) record->text[length] = '\0';
      const std::string expected = shape.text(std::string(length, fill));
      for (const std::size_t room : {expected.size() - 1, expected.size(), std::size_t{300}}) {
        checkCut(shape.of(record->text), expected, room);
      }
    }
  }
}

TEST(BodyIoTest, TextsEndAtTheirNulOrTheirCapacity) {
  for (const Shape& shape : kShapes) {
    checkTextField<3>(shape);
    checkTextField<19>(shape);
    checkTextField<32>(shape);
    checkTextField<200>(shape);
  }
}

TEST(BodyIoTest, ListsAreCutAtTheEndOfTheirBuffer) {
  std::int32_t numbers[15];
  std::string list;
  for (std::int32_t& number : numbers) {
    number = INT_MIN;
    list += "-2147483648,";
  }
  list.pop_back();
  for (const Shape& shape : kShapes) {
    const std::string expected = shape.text(list);
    for (std::size_t room = 0; room <= expected.size(); ++room) checkCut(shape.of(numbers), expected, room);
  }
}

// What is read of the attributes, written again. Plain numbers and texts have tests of their own.
std::string rewritten(const std::string& attributes) {
  KovXMLParser document;
  EXPECT_EQ(document.Parse(("<A " + attributes + "/>").c_str()), 0);
  std::uint32_t hex = 5;
  std::uint64_t wide = 5;
  KOV_TIME time;
  KOV_TIME8 time8;
  std::int32_t range[2] = {-1, -1};
  const auto form = [&](BodyIo io) {
    io.attributes({attr("hex", hex).hex(),
                   attr("wide", wide).hex(),
                   {"time", time},
                   {"time8", time8},
                   attr("range", range).separated('*')});
  };
  form(BodyIo(ElementReader(document, document.RootElement())));
  char buffer[1000];
  BodyWriter writer(buffer, sizeof buffer);
  form(BodyIo(writer));
  writer.terminate();
  return buffer;
}

TEST(BodyIoTest, ReadsWhatItWritesAndKeepsDefaults) {
  EXPECT_EQ(rewritten("hex='-1' wide='-1' time='6:05:59' time8='1:256:3' range='1920*1080'"), golden("core/read.txt"));
  EXPECT_EQ(rewritten("hex='xyz' wide='' time='6:x:7' time8='1:-1:3' range='1,2'"), golden("core/kept.txt"));
  EXPECT_EQ(rewritten("hex='fffffffff'").find("hex=\"ffffffff\"\n"), 0U);
}

}  // namespace
}  // namespace kov::test
