/**
 * @file xml_typed_reader_test.cpp
 * @brief The typed readers: numbers, floats and texts of one element.
 */
#include <gtest/gtest.h>

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

  KovXMLParser parser_;
  void* root_ = nullptr;
};

TEST_F(XmlTyped, ReadsNumbers) {
  int i = 7;
  unsigned u = 7;
  unsigned char c = 7;
  unsigned long long l = 7;
  float f = 7;
  EXPECT_EQ(getXmlIntTypeParamAttribute(parser_, root_, "n", &i), 0);
  EXPECT_EQ(i, -12);
  EXPECT_EQ(getXmlIntTypeParamAttribute(parser_, root_, "big", &i), 0);
  EXPECT_EQ(i, 2147483647);
  EXPECT_EQ(getXmlUIntTypeParamAttribute(parser_, root_, "neg", &u), 0);
  EXPECT_EQ(u, 4294967295u);
  EXPECT_EQ(getXmlUIntTypeParamAttribute(parser_, root_, "n", &u), 0);
  EXPECT_EQ(u, 4294967284u);
  EXPECT_EQ(getXmlUIntTypeParamAttribute(parser_, root_, "big", &u), 0);
  EXPECT_EQ(u, 4294967295u);
  EXPECT_EQ(getXmlUllTypeParamAttribute(parser_, root_, "neg", &l), 0);
  EXPECT_EQ(l, 18446744073709551615u);
  EXPECT_EQ(getXmlUllTypeParamAttribute(parser_, root_, "big", &l), 0);
  EXPECT_EQ(l, 99999999999u);
  EXPECT_EQ(getXmlUllTypeParamAttribute(parser_, root_, "big64", &l), 0);
  EXPECT_EQ(l, 18446744073709551615u);
  EXPECT_EQ(getXmlUCharTypeParamAttribute(parser_, root_, "uc", &c), 0);
  EXPECT_EQ(c, 255);
  EXPECT_EQ(getXmlFloatTypeParamAttribute(parser_, root_, "f", &f), 0);
  EXPECT_EQ(f, -150.0f);
  EXPECT_EQ(getXmlIntTypeParamByGetText(parser_, root_, &i), 0);
  EXPECT_EQ(i, 42);
}

TEST_F(XmlTyped, LeavesTheDestinationAloneOnFailure) {
  int i = 7;
  unsigned u = 7;
  unsigned char c = 7;
  unsigned long long l = 7;
  float f = 7;
  for (const char* name : {"none", "s", "absent"}) {
    EXPECT_NE(getXmlIntTypeParamAttribute(parser_, root_, name, &i), 0) << name;
    EXPECT_NE(getXmlUIntTypeParamAttribute(parser_, root_, name, &u), 0) << name;
    EXPECT_NE(getXmlUCharTypeParamAttribute(parser_, root_, name, &c), 0) << name;
    EXPECT_NE(getXmlUllTypeParamAttribute(parser_, root_, name, &l), 0) << name;
    EXPECT_NE(getXmlFloatTypeParamAttribute(parser_, root_, name, &f), 0) << name;
  }
  EXPECT_NE(getXmlUCharTypeParamAttribute(parser_, root_, "uc2", &c), 0);
  EXPECT_NE(getXmlUCharTypeParamAttribute(parser_, root_, "neg", &c), 0);
  EXPECT_NE(getXmlFloatTypeParamAttribute(parser_, root_, "nan", &f), 0);
  EXPECT_NE(getXmlIntTypeParamByGetText(parser_, parser_.FirstChildElement(root_, "B"), &i), 0);
  EXPECT_NE(getXmlIntTypeParamByGetText(parser_, parser_.FirstChildElement(root_, "C"), &i), 0);
  EXPECT_TRUE(i == 7 && u == 7 && c == 7 && l == 7 && f == 7);
}

TEST_F(XmlTyped, CutsTextsToTheirField) {
  const char* expected[] = {"", "a", "ab", "abc", "abcd", "abcde", "abcdef", "abcdef"};
  for (int size = 1; size <= 8; ++size) {
    GuardedBuffer field(static_cast<std::size_t>(size));
    EXPECT_EQ(getXmlStringTypeParamAttribute(parser_, root_, "s", field.data(), size), 0);
    EXPECT_STREQ(field.data(), expected[size - 1]);
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
