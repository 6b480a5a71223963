// The typed readers: numbers, floats and texts of one element.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "guarded_page.h"
#include "kov_platform/xml_parser.h"

namespace {

using kov::test::GuardedBuffer;

class XmlTyped : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(parser_.Parse("<A n=' -12x' big='99999999999' neg='-1' uc='255' uc2='256' none='' f='-1.5e2' nan='nan' "
                            "s='abcdef' big64='99999999999999999999'> 42 <B>text</B><C/></A>"),
              0);
    root_ = parser_.RootElement();
  }

  template <class Value>
  using Reader = int (*)(KovXMLParser, void*, const char*, Value*);

  /** The number of an attribute. */
  template <class Value>
  Value read(Reader<Value> reader, const char* name) {
    Value value = 7;
    EXPECT_EQ(reader(parser_, root_, name, &value), 0) << name;
    return value;
  }

  template <class Value>
  void expectUnread(Reader<Value> reader, std::initializer_list<const char*> names) {
    Value value = 7;
    for (const char* name : names) EXPECT_NE(reader(parser_, root_, name, &value), 0) << name;
    EXPECT_EQ(value, Value{7});
  }

  KovXMLParser parser_;
  void* root_ = nullptr;
};

TEST_F(XmlTyped, ReadsNumbers) {
  EXPECT_EQ(read(getXmlIntTypeParamAttribute, "n"), -12);
  EXPECT_EQ(read(getXmlIntTypeParamAttribute, "big"), 2147483647);
  EXPECT_EQ(read(getXmlUIntTypeParamAttribute, "neg"), 4294967295u);
  EXPECT_EQ(read(getXmlUIntTypeParamAttribute, "n"), 4294967284u);
  EXPECT_EQ(read(getXmlUIntTypeParamAttribute, "big"), 4294967295u);
  EXPECT_EQ(read(getXmlUllTypeParamAttribute, "neg"), 18446744073709551615u);
  EXPECT_EQ(read(getXmlUllTypeParamAttribute, "big"), 99999999999u);
  EXPECT_EQ(read(getXmlUllTypeParamAttribute, "big64"), 18446744073709551615u);
  EXPECT_EQ(read(getXmlUCharTypeParamAttribute, "uc"), 255);
  EXPECT_EQ(read(getXmlFloatTypeParamAttribute, "f"), -150.0f);
  int text = 7;
  EXPECT_EQ(getXmlIntTypeParamByGetText(parser_, root_, &text), 0);
  EXPECT_EQ(text, 42);
}

TEST_F(XmlTyped, LeavesTheDestinationAloneOnFailure) {
  expectUnread(getXmlIntTypeParamAttribute, {"none", "s", "absent"});
  expectUnread(getXmlUIntTypeParamAttribute, {"none", "s", "absent"});
  expectUnread(getXmlUCharTypeParamAttribute, {"none", "s", "absent", "uc2", "neg"});
  expectUnread(getXmlUllTypeParamAttribute, {"none", "s", "absent"});
  expectUnread(getXmlFloatTypeParamAttribute, {"none", "s", "absent", "nan"});
  int text = 7;
  for (const char* child : {"B", "C"}) {
    EXPECT_NE(getXmlIntTypeParamByGetText(parser_, parser_.FirstChildElement(root_, child), &text), 0);
  }
  EXPECT_EQ(text, 7);
}

TEST_F(XmlTyped, CutsTextsToTheirField) {
  for (std::size_t size = 1; size <= 8; ++size) {
    GuardedBuffer field(size);
    EXPECT_EQ(getXmlStringTypeParamAttribute(parser_, root_, "s", field.data(), static_cast<int>(size)), 0);
    EXPECT_EQ(field.data(), std::string("abcdef", std::min<std::size_t>(size - 1, 6)));
  }
  char text[8] = "keep";
  for (int size : {0, -1, -2147483647 - 1}) {
    EXPECT_NE(getXmlStringTypeParamAttribute(parser_, root_, "s", text, size), 0);
    EXPECT_NE(getXmlStringTypeParamByGetText(parser_, root_, text, size), 0);
  }
  EXPECT_NE(getXmlStringTypeParamAttribute(parser_, root_, "absent", text, 8), 0);
  EXPECT_NE(getXmlStringTypeParamByGetText(parser_, nullptr, text, 8), 0);
  EXPECT_STREQ(text, "keep");
  EXPECT_EQ(getXmlStringTypeParamByGetText(parser_, parser_.FirstChildElement(root_, "B"), text, 4), 0);
  EXPECT_STREQ(text, "tex");
  EXPECT_EQ(getXmlStringTypeParamByGetText(parser_, parser_.FirstChildElement(root_, "C"), text, 4), 0);
  EXPECT_STREQ(text, "");
}

}  // namespace
