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

std::string written(void (*form)(BodyIo&)) {
  char buffer[2000];
  BodyWriter writer(buffer, sizeof buffer);
  BodyIo io(writer);
  form(io);
  writer.terminate();
  return buffer;
}

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
}

TEST(BodyWriterTest, FloatsReadAsPrintfWritesThem) {
  const auto check = [](float value) {
    char buffer[100];
    BodyWriter writer(buffer, sizeof buffer);
    writer.fixed(value);
    writer.terminate();
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

TEST(BodyWriterTest, CutTextIsAPrefixAndCountsOn) {
  char buffer[6] = "?????";
  BodyWriter writer(buffer, 4);
  EXPECT_TRUE(writer.empty());
  writer.literal("ab");
  writer.decimal(1234);
  writer.character('x');
  writer.terminate();
  EXPECT_STREQ(buffer, "ab1");
  EXPECT_EQ(buffer[4], '?');
  EXPECT_EQ(writer.length(), 7U);
  EXPECT_EQ(writer.written(), 3U);
}

TEST(BodyIoTest, LayoutsOfAttributes) {
  EXPECT_EQ(written([](BodyIo& io) {
              std::int32_t number = -1;
              std::int32_t range[2] = {1, -1};
              std::uint8_t small = 255;
              std::uint64_t wide = UINT64_MAX;
              KOV_TIME time = {6, 5, -1};
              KOV_TIME8 time8;
              char text[3] = {'a', 'b', 'c'};
              io.element("A", {{"Text", text},
                               {"Number", number},
                               attr("Unset", number).ifSet(),
                               attr("Small", small).ifSet(),
                               attr("Wide", wide).ifSet(),
                               attr("Hex", wide).hex(),
                               attr("Signed", wide).asSigned(),
                               {"Range", range},
                               attr("Size", range).separated('*'),
                               {"Time", time},
                               attr("Plain", time).unpadded(),
                               attr("Blank", time).padded(' '),
                               {"Time8", time8},
                               attr("No", number).readOnly(),
                               attr("No", number).when(false),
                               attr("B", number).thenBlank().blankBeforeEquals(),
                               attr("C", number).thenNothing()});
            }),
            golden("core/layouts.txt"));
}

struct Entry {
  std::int32_t n;
};

void entryForm(BodyIo& io, Entry& entry) { io.element("E", {{"N", entry.n}}); }

TEST(BodyIoTest, OpeningsClosingsTextsAndLists) {
  EXPECT_EQ(written([](BodyIo& io) {
              std::int32_t number = 7;
              char name[8] = "";
              io.element("A", "<A ", {{"N", number}}, "/>");
              BodyIo b = io.enter("B");
              b.texts({{"n", number}, attr("t", name).ifSet(), attr("u", name).thenNothing()});
              b.text("</B>\n");
              io.elementWhen(false, "C", {{"N", number}});
              Entry entries[2] = {{1}, {2}};
              std::int32_t count = 1000;
              io.list<entryForm>("E", entries, count);
              count = -5;
              io.list<entryForm>("E", entries, count);
            }),
            "<A N=\"7\"\n/><B>\n<n>7</n>\n<u></u></B>\n<E\nN=\"1\"\n/>\n<E\nN=\"2\"\n/>\n");
}

struct Sample {
  std::int32_t number = -1;
  std::int32_t zero = -1;
  std::uint32_t hex = 5;
  std::uint64_t wide = 5;
  std::uint8_t small = 255;
  float score = -1;
  char text[4] = "";
  KOV_TIME time;
  KOV_TIME8 time8;
  std::int32_t range[2] = {-1, -1};
};

// What is read of the attributes, written again.
std::string rewritten(const std::string& attributes) {
  KovXMLParser document;
  EXPECT_EQ(document.Parse(("<A " + attributes + "/>").c_str()), 0);
  Sample s;
  const auto form = [&s](BodyIo io) {
    io.attributes({{"number", s.number},
                   attr("zero", s.zero).orZero(),
                   attr("hex", s.hex).hex(),
                   {"wide", s.wide},
                   {"small", s.small},
                   {"score", s.score},
                   {"text", s.text},
                   {"time", s.time},
                   {"time8", s.time8},
                   attr("range", s.range).separated('*'),
                   attr("number", s.hex).writeOnly()});
  };
  form(BodyIo(ElementReader(document, document.RootElement())));
  char buffer[1000];
  BodyWriter writer(buffer, sizeof buffer);
  form(BodyIo(writer));
  writer.terminate();
  return buffer;
}

TEST(BodyIoTest, ReadsWhatItWritesAndKeepsDefaults) {
  EXPECT_EQ(rewritten("number=' -12x' zero='abc' hex='-1' wide='-1' small='254' score='0.5' text='abcdef' "
                      "time='6:05:59' time8='1:256:3' range='1920*1080'"),
            golden("core/read.txt"));
  EXPECT_EQ(rewritten("number='' hex='xyz' wide='' small='256' score='x' time='6:x' range='1,2'"),
            golden("core/kept.txt"));
  EXPECT_NE(rewritten("hex='fffffffff'").find("hex=\"ffffffff\"\n"), std::string::npos);
  EXPECT_NE(rewritten("number='99999999999'").find("number=\"2147483647\"\n"), std::string::npos);
}

}  // namespace
}  // namespace kov::test
