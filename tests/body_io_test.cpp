#include "core/body_io.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdarg>
#include <cstdio>

#include "golden.h"

namespace kov::test {
namespace {

std::string formatted(const char* format, ...) {
  char text[100];
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(text, sizeof text, format, arguments);
  va_end(arguments);
  return text;
}

TEST(BodyWriterTest, NumbersReadAsPrintfWritesThem) {
  char buffer[100];
  const auto text = [&](auto write) {
    BodyWriter writer(buffer, sizeof buffer);
    write(writer);
    writer.terminate();
    return std::string(buffer);
  };
  for (const int value : {0, 9, 10, 99, 100, 101, -1, -10, 12345, INT_MAX, INT_MIN}) {
    EXPECT_EQ(text([&](BodyWriter& w) { w.decimal(value); }), formatted("%d", value));
    EXPECT_EQ(text([&](BodyWriter& w) { w.padded(value, 2, '0'); }), formatted("%02d", value));
    EXPECT_EQ(text([&](BodyWriter& w) { w.padded(value, 2, ' '); }), formatted("%2d", value));
    EXPECT_EQ(text([&](BodyWriter& w) { w.padded(value, 5, '0'); }), formatted("%05d", value));
    EXPECT_EQ(text([&](BodyWriter& w) { w.padded(value, 5, ' '); }), formatted("%5d", value));
  }
  for (const unsigned long long value : {0ULL, 255ULL, 4294967296ULL, 1000000007ULL, ULLONG_MAX}) {
    EXPECT_EQ(text([&](BodyWriter& w) { w.unsignedDecimal(value); }), formatted("%llu", value));
    EXPECT_EQ(text([&](BodyWriter& w) { w.hexadecimal(value); }), formatted("%llx", value));
  }
  EXPECT_EQ(text([](BodyWriter& w) { w.decimal(INT64_MIN); }), "-9223372036854775808");
  for (unsigned long long power = 10; power <= 10'000'000'000'000'000'000ULL / 10; power *= 10) {
    for (const unsigned long long value : {power - 1, power}) {
      EXPECT_EQ(text([&](BodyWriter& w) { w.unsignedDecimal(value); }), formatted("%llu", value));
    }
  }
}

TEST(BodyWriterTest, FloatsReadAsPrintfWritesThem) {
  const auto check = [](float value) {
    char buffer[100];
    *BodyWriter::putFixed(buffer, value) = '\0';
    EXPECT_EQ(std::string(buffer), formatted("%f", static_cast<double>(value)));
  };
  for (const float value : {0.0F,        -0.0F,       1.0F,    -1.0F,      0.5F,        0.1F,     97.25F,    1e-6F,
                            5e-7F,       4.9e-7F,     1.5e-6F, 2.5e-6F,    1e-30F,      FLT_MIN,  FLT_MAX,   -FLT_MAX,
                            16777216.0F, 33554434.0F, 1e10F,   0.9999999F, 0.99999994F, INFINITY, -INFINITY, NAN}) {
    check(value);
  }
  std::uint32_t bits = 12345;
  for (int i = 0; i < 20000; ++i) {
    bits = bits * 1664525 + 1013904223;
    float value = 0;
    std::memcpy(&value, &bits, sizeof value);
    if (!std::isnan(value)) check(value);
  }
}

// The longest name, with all that may stand around a value.
template <class Field>
Attribute surrounded(Field& field) {
  return attr("NameOfThirtyOneCharactersInAll_", field).blankBeforeEquals().thenBlank();
}

std::string surroundedText(const std::string& value) { return "NameOfThirtyOneCharactersInAll_ =\"" + value + "\" "; }

TEST(BodyIoTest, TextsEndAtTheirNulOrTheirCapacity) {
  struct Record {
    char text[19];
  };
  const auto record = std::make_unique<Record>();  // a block of its own, so that reading on is seen
  for (const char fill : {'a', '\x01', '\x80', '\xFF'}) {
    for (std::size_t length = 0; length <= sizeof record->text; ++length) {
      std::memset(record->text, fill, sizeof record->text);
      if (length < sizeof record->text) record->text[length] = '\0';
      const std::string expected = surroundedText(std::string(length, fill));
      for (const std::size_t size : {expected.size(), expected.size() + 1, std::size_t{100}}) {
        const std::unique_ptr<char[]> buffer(new char[size]);
        BodyWriter writer(buffer.get(), size);
        BodyIo(writer).attributes({surrounded(record->text)});
        writer.terminate();
        EXPECT_EQ(buffer.get(), expected.substr(0, size - 1));
      }
    }
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
  const std::string expected = surroundedText(list);
  for (std::size_t room = 0; room <= expected.size(); ++room) {
    const std::unique_ptr<char[]> buffer(new char[room + 1]);
    BodyWriter writer(buffer.get(), room + 1);
    BodyIo(writer).attributes({surrounded(numbers)});
    writer.terminate();
    EXPECT_EQ(buffer.get(), expected.substr(0, room));
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
