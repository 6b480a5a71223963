#include "core/body_io.h"

#include <gtest/gtest.h>

#include "golden.h"

namespace kov::test {
namespace {

// A field in a block of its own, so that reading on is seen, written into buffers that end with the text and behind it.
template <std::size_t Capacity>
void checkTextField() {
  struct Record {
    char text[Capacity];
  };
  const auto record = std::make_unique<Record>();
  for (const char fill : {'a', '\x01', '\x80', '\xFF'}) {
    for (std::size_t length = 0; length <= Capacity; ++length) {
      std::memset(record->text, fill, Capacity);
      if (length < Capacity) record->text[length] = '\0';
      const std::string expected = "t=\"" + std::string(length, fill) + "\"\n";
      for (const std::size_t size : {expected.size() + 1, std::size_t{300}}) {
        const std::unique_ptr<char[]> buffer(new char[size]);
        BodyWriter writer(buffer.get(), size);
        BodyIo(writer).attributes({{"t", record->text}});
        writer.terminate();
        EXPECT_EQ(buffer.get(), expected);
      }
    }
  }
}

TEST(BodyIoTest, TextsEndAtTheirNulOrTheirCapacity) {
  checkTextField<3>();
  checkTextField<19>();
  checkTextField<32>();
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
