/**
 * @file xml_reader_test.cpp
 * @brief The reader: what it accepts, what it refuses, what it forgives, and what it costs.
 */
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "../platform/src/xml_name_set.h"
#include "allocation_probe.h"
#include "guarded_page.h"
#include "kov_platform/xml_parser.h"

namespace {

using kov::test::AllocationProbe;
using kov::test::GuardedBuffer;

/** Parses a text that lies exactly before an unreadable page. */
bool accepts(const std::string& text) {
  GuardedBuffer guarded(text);
  return KovXMLParser().Parse(guarded.data()) == 0;
}

std::string repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

/** An element with `count` attributes a0, a1, ... */
std::string wideElement(int count) {
  std::string text = "<A";
  for (int i = 0; i < count; ++i) text += " a" + std::to_string(i) + "=\"" + std::to_string(i) + "\"";
  return text + "/>";
}

/** The path of child names from the root, or null when one of them is missing. */
void* walk(const KovXMLParser& parser, const std::vector<const char*>& path) {
  void* element = parser.RootElement();
  for (const char* name : path) element = parser.FirstChildElement(element, name);
  return element;
}

struct Case {
  const char* text;
  const char* reason;
};

TEST(XmlGrammar, AcceptsWellFormedDocuments) {
  const Case cases[] = {
      {"<A/>", "shortest"},
      {"<A></A>", "empty"},
      {"<A ></A >", "blanks at tag ends"},
      {"<?xml version=\"1.0\" encoding=\"GB2312\" ?>\n<A/>", "our declaration"},
      {"<?xml version='1.0'?><A/>", "version only"},
      {"<?xml version='1.0' encoding='x' standalone='yes'?><A/>", "all of the declaration"},
      {"<?xml-style a?><A/>", "an instruction whose name begins with xml"},
      {" \t\r\n<A/>\n<!-- c --><?p d?> ", "blanks, comment and instruction around the root"},
      {"<A><?p?><?q a>b?><!----><!-- < > & - - --></A>", "instructions and comments inside"},
      {"<A a = '1'\tb\n=\r\"2\" />", "blanks around equals, both quotes"},
      {"<A a='\"' b=\"'\" c=\"/>\"/>", "the other quote and a tag end in a value"},
      {"<_a.b-c:1 x-1.:='1'/>", "name characters"},
      {"<\xD6\xD0 \xB2\xE2=\"\xCA\xD4\"/>", "double-byte names and values"},
      {"<A>a<B/>b<![CDATA[ <c> ]] > ]]>d</A>", "mixed content"},
      {"<A>a ]] > b > c</A>", "harmless angles in text"},
  };
  for (const Case& c : cases) EXPECT_TRUE(accepts(c.text)) << c.reason;
}

TEST(XmlGrammar, RefusesEverythingElse) {
  const Case cases[] = {
      {"", "empty"},
      {" \n", "blanks only"},
      {"text", "text only"},
      {"<!-- c -->", "no root"},
      {"<A>", "unclosed root"},
      {"<A><B></A>", "unclosed child"},
      {"<A><B></A></B>", "crossed tags"},
      {"<A></a>", "names differ in case"},
      {"<A></AB>", "end tag longer than the name"},
      {"<AB></A>", "end tag shorter than the name"},
      {"</A>", "end tag only"},
      {"<A/></A>", "end tag too many"},
      {"<A/><A/>", "two roots"},
      {"<A></A><B></B>", "two roots"},
      {"<A/>x", "text behind the root"},
      {"x<A/>", "text before the root"},
      {"<A/><![CDATA[x]]>", "CDATA behind the root"},
      {"<![CDATA[x]]><A/>", "CDATA before the root"},
      {"< A/>", "blank before a name"},
      {"<1A/>", "digit at the start of a name"},
      {"<A", "cut in the name"},
      {"<A ", "cut behind the name"},
      {"<A b", "cut in an attribute name"},
      {"<A b=", "cut before a value"},
      {"<A b='x", "unclosed quote"},
      {"<A b='x\"/>", "mixed quotes"},
      {"<A b=1/>", "unquoted value"},
      {"<A b/>", "attribute without value"},
      {"<A b c='1'/>", "attribute without value before another"},
      {"<A ='1'/>", "attribute without name"},
      {"<A 1='1'/>", "digit at the start of an attribute name"},
      {"<A b='1'c='2'/>", "no blank between attributes"},
      {"<A b='1' b='1'/>", "repeated attribute"},
      {"<A/ >", "blank in an empty tag's end"},
      {"<A/", "cut in an empty tag's end"},
      {"<A></ A>", "blank before an end tag's name"},
      {"<A></>", "end tag without name"},
      {"<A></A b='1'>", "attribute in an end tag"},
      {"<A></A", "cut in an end tag"},
      {"<!DOCTYPE A><A/>", "document type"},
      {"<!DOCTYPE A [<!ENTITY e 'x'>]><A>&e;</A>", "entity declaration"},
      {"<A><!ELEMENT></A>", "declaration in an element"},
      {"<A><!-- a -- b --></A>", "double hyphen in a comment"},
      {"<A><!-- a ---></A>", "three hyphens at a comment's end"},
      {"<A><!-- a </A>", "unclosed comment"},
      {"<A><!-></A>", "half a comment"},
      {"<A><![CDATA[ a </A>", "unclosed CDATA"},
      {"<A>a ]]> b</A>", "CDATA end in text"},
      {"<A><?p a </A>", "unclosed instruction"},
      {"<A><? p?></A>", "instruction without name"},
      {"<A><?p?a?></A>", "instruction name run into its data"},
      {" <?xml version='1.0'?><A/>", "declaration not at the start"},
      {"<A><?xml version='1.0'?></A>", "declaration in an element"},
      {"<A/><?XML a?>", "reserved instruction name"},
      {"<?xml?><A/>", "declaration without version"},
      {"<?xml encoding='x'?><A/>", "declaration without version"},
      {"<?xml version='1.0' standalone='no' encoding='x'?><A/>", "declaration out of order"},
      {"<?xml version='1.0'encoding='x'?><A/>", "no blank in the declaration"},
      {"<?xml version='1.0' x='y'?><A/>", "unknown part of the declaration"},
      {"\xEF\xBB\xBF<A/>", "a mark before the root"},
  };
  for (const Case& c : cases) EXPECT_FALSE(accepts(c.text)) << c.reason << ": " << c.text;
}

TEST(XmlGrammar, RefusesEveryProperPrefix) {
  const std::string whole = "<?xml version=\"1.0\"?><A b=\"1\"><!--c--><B>t<C/></B><![CDATA[d]]><?p q?></A>";
  ASSERT_TRUE(accepts(whole));
  for (std::size_t length = 0; length < whole.size(); ++length) EXPECT_FALSE(accepts(whole.substr(0, length)));
}

TEST(XmlGrammar, NestsSixtyFourLevels) {
  EXPECT_TRUE(accepts(repeated("<A>", 64) + repeated("</A>", 64)));
  EXPECT_FALSE(accepts(repeated("<A>", 65) + repeated("</A>", 65)));
  EXPECT_FALSE(accepts(repeated("<A>", 64) + "<B/>" + repeated("</A>", 64)));
}

/** Each tolerance with the texts it is for, and next to them what it does not cover. */
TEST(XmlTolerance, AcceptsTheWireAndNotItsNeighbours) {
  const struct {
    const char* text;
    bool accepted;
  } cases[] = {
      {"<NetworkConfig\n<A/></NetworkConfig>", true},
      {"<NetworkConfig<A/></NetworkConfig>", false},
      {"<NetworkConfig a='1' <A/></NetworkConfig>", false},
      {"<NetworkConfigs <A/></NetworkConfigs>", false},
      {"<LANConfig\n<A/></LANConfig>", false},

      {"<Video></Overlay></Video>", true},
      {"<Video><Overlay/><A/></Overlay></Overlay></Video>", true},
      {"<Video><A></Overlay></A></Video>", false},
      {"<Video></Mask></Video>", false},
      {"<Audio></Overlay></Audio>", false},
      {"<Video/></Overlay>", false},

      {"<M><Audio><A/></Aideo></M>", true},
      {"<M><Audio><A></Aideo></M>", false},
      {"<M><Video></Aideo></M>", false},
      {"<M><Aideo></Audio></M>", false},
      {"<M><Audio></Aideo></Audio></M>", false},

      {"<X><MESSAGE_BODY><NetworkConfig></MESSAGE_BODY></X>", true},
      {"<X><MESSAGE_BODY><RecordConfig><A/></MESSAGE_BODY></X>", true},
      {"<X><MESSAGE_BODY><REQUEST_PARAM></MESSAGE_BODY></X>", false},
      {"<X><MESSAGE_BODY><RecordConfig><A></MESSAGE_BODY></X>", false},
      {"<X><MESSAGE_BODY><A><RecordConfig></MESSAGE_BODY></X>", false},
      {"<X><MESSAGE_BODY><RecordConfig></X>", false},
      {"<MESSAGE_BODY><X><RecordConfig></MESSAGE_BODY></X>", false},
      {"<RecordConfig></MESSAGE_BODY>", false},

      {"<Encode a='1'b='2'c=\"3\"/>", true},
      {"<Encode a='1'a='2'/>", false},
      {"<EncodeConfig a='1'b='2'/>", false},
      {"<Encode><A a='1'b='2'/></Encode>", false},

      {"<A b='a<b&c;'>&lt; & &#0;</A>", true},
      {"<A b<='1'/>", false},
      {"<A &='1'/>", false},
      {"&<A/>", false},

      {"<A>temp < 30, <= or <<>< </A>", true},
      {"<A>temp <30</A>", false},
      {"<A>temp <-30</A>", false},
      {"<A>temp <\xD6\xD0</A>", false},
      {"<A>temp <x</A>", false},
      {"< <A/>", false},
      {"<A/> < ", false},
  };
  for (const auto& c : cases) EXPECT_EQ(accepts(c.text), c.accepted) << c.text;
}

TEST(XmlTolerance, ReadsUnbalancedNetworkConfig) {
  KovXMLParser parser;
  ASSERT_EQ(parser.Parse("<X><MESSAGE_BODY>\n<NetworkConfig\n<LANConfig\nDHCP=\"1\"\n/>\n<LAN1Config\nDHCP=\"2\"\n/>\n"
                         "/NetworkConfig>\n\n</MESSAGE_BODY></X>"),
            0);
  void* network = walk(parser, {"MESSAGE_BODY", "NetworkConfig"});
  EXPECT_STREQ(parser.Attribute(parser.FirstChildElement(network, "LANConfig"), "DHCP"), "1");
  EXPECT_STREQ(parser.Attribute(parser.FirstChildElement(network, "LAN1Config"), "DHCP"), "2");
  EXPECT_STREQ(parser.GetText(network), "/NetworkConfig>");
}

TEST(XmlTolerance, ReadsMisspeltMediaConfig) {
  KovXMLParser parser;
  ASSERT_EQ(parser.Parse("<M><Video><Overlay E='1'/><TitleOverlay P='2'/></Overlay><Mask E='3'/></Video>"
                         "<Audio><Play V='4'/></Aideo><After A='5'/></M>"),
            0);
  EXPECT_STREQ(parser.Attribute(walk(parser, {"Video", "TitleOverlay"}), "P"), "2");
  EXPECT_STREQ(parser.Attribute(walk(parser, {"Video", "Mask"}), "E"), "3");
  EXPECT_STREQ(parser.Attribute(walk(parser, {"Audio", "Play"}), "V"), "4");
  EXPECT_STREQ(parser.Attribute(walk(parser, {"After"}), "A"), "5");
}

TEST(XmlText, IsTheFirstRunThatIsNotBlank) {
  const struct {
    const char* text;
    const char* expected;
  } cases[] = {
      {"<A/>", ""},
      {"<A></A>", ""},
      {"<A> \t\r\n</A>", ""},
      {"<A>\n a b \n</A>", "a b"},
      {"<A>x</A>", "x"},
      {"<A> <B>inner</B> x <C/> y </A>", "x"},
      {"<A>a<!-- c -->b</A>", "a"},
      {"<A> <![CDATA[ ]]><![CDATA[ <d>]]>e</A>", "<d>"},
      {"<A>a<![CDATA[b]]></A>", "a"},
      {"<A>\v\x01</A>", "\v\x01"},
      {"<A> < 30 </A>", "< 30"},
      {"<A>&amp;\xD6\xD0</A>", "&amp;\xD6\xD0"},
  };
  for (const auto& c : cases) {
    KovXMLParser parser;
    ASSERT_EQ(parser.Parse(c.text), 0) << c.text;
    EXPECT_STREQ(parser.GetText(parser.RootElement()), c.expected) << c.text;
  }
}

TEST(XmlLookup, FindsAttributesInAnyOrder) {
  KovXMLParser parser;
  ASSERT_EQ(parser.Parse("<A a='' ab=' 1 ' abc='&lt;' b='x<y'/>"), 0);
  void* root = parser.RootElement();
  for (int round = 0; round < 2; ++round) {
    EXPECT_STREQ(parser.Attribute(root, "b"), "x<y");
    EXPECT_STREQ(parser.Attribute(root, "a"), "");
    EXPECT_STREQ(parser.Attribute(root, "abc"), "&lt;");
    EXPECT_STREQ(parser.Attribute(root, "ab"), " 1 ");
    EXPECT_EQ(parser.Attribute(root, "abcd"), nullptr);
    EXPECT_EQ(parser.Attribute(root, "B"), nullptr);
    EXPECT_EQ(parser.Attribute(root, ""), nullptr);
  }
}

/** The search starts behind the last hit, and must not therefore take a later namesake for the first child. */
TEST(XmlLookup, FindsTheFirstChildOfANameInAnyOrder) {
  KovXMLParser parser;
  ASSERT_EQ(parser.Parse("<R><A i='1'/><B i='2'/><A i='3'/><C i='4'><A i='5'/></C><B i='6'/></R>"), 0);
  void* root = parser.RootElement();
  const auto first = [&](const char* name) { return parser.Attribute(parser.FirstChildElement(root, name), "i"); };
  for (const char* before : {"A", "B", "C", "D"}) {
    first(before);
    EXPECT_STREQ(first("A"), "1") << before;
    first(before);
    EXPECT_STREQ(first("B"), "2") << before;
    first(before);
    EXPECT_STREQ(first("C"), "4") << before;
    EXPECT_EQ(first("D"), nullptr) << before;
  }
  void* a = parser.FirstChildElement(root, "A");
  EXPECT_STREQ(parser.Attribute(parser.NextSiblingElement(a, "A"), "i"), "3");
  EXPECT_EQ(parser.NextSiblingElement(parser.NextSiblingElement(a, "A"), "A"), nullptr);
  EXPECT_STREQ(parser.Attribute(parser.FirstChildElement(parser.FirstChildElement(root, "C"), "A"), "i"), "5");
  EXPECT_EQ(parser.NextSiblingElement(root, "R"), nullptr);
}

TEST(XmlLookup, AnswersNullsNeutrally) {
  KovXMLParser empty;
  KovXMLParser parser;
  int target = 7;
  ASSERT_EQ(parser.Parse("<A b='1'><C/></A>"), 0);
  void* root = parser.RootElement();
  for (const KovXMLParser& p : {empty, parser}) {
    EXPECT_EQ(p.FirstChildElement(nullptr, "C"), nullptr);
    EXPECT_EQ(p.NextSiblingElement(nullptr, "C"), nullptr);
    EXPECT_EQ(p.Attribute(nullptr, "b"), nullptr);
    EXPECT_STREQ(p.GetText(nullptr), "");
    EXPECT_NE(getXmlIntTypeParamAttribute(p, nullptr, "b", &target), 0);
    EXPECT_NE(getXmlIntTypeParamByGetText(p, nullptr, &target), 0);
  }
  EXPECT_EQ(empty.RootElement(), nullptr);
  EXPECT_EQ(empty.Attribute(root, "b"), nullptr);
  EXPECT_STREQ(empty.GetText(root), "");
  EXPECT_EQ(parser.FirstChildElement(root, nullptr), nullptr);
  EXPECT_EQ(parser.NextSiblingElement(root, nullptr), nullptr);
  EXPECT_EQ(parser.Attribute(root, nullptr), nullptr);
  EXPECT_NE(getXmlIntTypeParamAttribute(parser, root, "b", nullptr), 0);
  EXPECT_NE(getXmlStringTypeParamAttribute(parser, root, "b", nullptr, 4), 0);
  EXPECT_EQ(target, 7);
  EXPECT_NE(parser.Parse(nullptr), 0);
  EXPECT_EQ(parser.RootElement(), nullptr);
}

TEST(XmlCopies, ShareTheDocumentWithoutAllocating) {
  AllocationProbe probe;
  KovXMLParser parser;
  ASSERT_EQ(parser.Parse("<A b='1'/>"), 0);
  void* root = parser.RootElement();
  {
    KovXMLParser copy(parser);
    KovXMLParser assigned;
    assigned = copy;
    assigned = *&assigned;
    EXPECT_STREQ(assigned.Attribute(root, "b"), "1");
    ASSERT_EQ(copy.Parse("<C/>"), 0);
    EXPECT_EQ(copy.FirstChildElement(copy.RootElement(), "b"), nullptr);
  }
  EXPECT_STREQ(parser.Attribute(root, "b"), "1");
  EXPECT_EQ(probe.count(), 2);
}

TEST(XmlCopies, KeepTheDocumentBeyondItsParser) {
  KovXMLParser copy;
  void* root = nullptr;
  {
    KovXMLParser parser;
    ASSERT_EQ(parser.Parse("<A b='1'>&lt;C/></A>"), 0);
    root = parser.RootElement();
    copy = parser;
    EXPECT_NE(parser.Parse("<A"), 0);
    EXPECT_EQ(parser.RootElement(), nullptr);
  }
  EXPECT_STREQ(copy.Attribute(root, "b"), "1");
  EXPECT_EQ(copy.Parse(copy.Attribute(root, "b")), -1) << "the text to parse lay in the document just replaced";
}

TEST(XmlResources, TakesOneBlockOfAtMostSixTimesTheInput) {
  for (const std::string& text :
       {"<A>" + repeated("<b/>", 5000) + "</A>", "<A>" + repeated("<b a=''/>", 5000) + "</A>", wideElement(5000),
        repeated("<A>", 64) + repeated("</A>", 64), "<A>" + repeated("<B>x</B>", 3000) + "</A>",
        "<Encode " + wideElement(3000).substr(3), "<A>" + repeated("text ", 5000) + "</A>"}) {
    AllocationProbe probe;
    KovXMLParser parser;
    EXPECT_EQ(parser.Parse(text.c_str()), 0);
    EXPECT_EQ(probe.count(), 1);
    EXPECT_LE(probe.bytes(), 6 * text.size() + 1024);
  }
}

TEST(XmlResources, SurvivesFailedAllocation) {
  AllocationProbe probe;
  KovXMLParser parser;
  probe.failAt(1);
  EXPECT_NE(parser.Parse("<A/>"), 0);
  EXPECT_EQ(parser.RootElement(), nullptr);
  EXPECT_EQ(parser.Parse("<A/>"), 0);
}

TEST(XmlResources, RefusesOversizedDocumentsUnallocated) {
  const std::string text = "<A>" + std::string(16u << 20, ' ') + "</A>";
  AllocationProbe probe;
  EXPECT_NE(KovXMLParser().Parse(text.c_str()), 0);
  EXPECT_EQ(probe.count(), 0);
}

/** All of it takes a fraction of a second; quadratic work on any of these would take far longer than the limit. */
TEST(XmlResources, SpendsLinearTimeOnHostileDocuments) {
  constexpr int kMany = 100'000;
  const auto start = std::chrono::steady_clock::now();
  KovXMLParser parser;
  ASSERT_EQ(parser.Parse(wideElement(kMany).c_str()), 0);
  for (int i = 0; i < kMany; ++i) {
    const std::string name = "a" + std::to_string(i);
    ASSERT_STREQ(parser.Attribute(parser.RootElement(), name.c_str()), name.c_str() + 1);
  }
  ASSERT_EQ(parser.Parse(("<A>" + repeated("<B c='1'/>", kMany) + "</A>").c_str()), 0);
  int siblings = 0;
  void* element = parser.FirstChildElement(parser.RootElement(), "B");
  for (; element != nullptr; element = parser.NextSiblingElement(element, "B")) ++siblings;
  EXPECT_EQ(siblings, kMany);

  EXPECT_FALSE(accepts(repeated("<A>", kMany)));
  EXPECT_FALSE(accepts("<A " + repeated("a='", kMany)));
  EXPECT_FALSE(accepts("<A>" + repeated("<!--", kMany)));
  EXPECT_FALSE(accepts("<A>" + repeated("<![CDATA[", kMany)));
  EXPECT_FALSE(accepts("<A>" + repeated("< ", kMany)));
  EXPECT_FALSE(accepts("<A><?p " + repeated("> ", kMany)));
  EXPECT_TRUE(accepts("<A>" + repeated("]]", kMany) + "</A>"));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

/** Distinct names that all hash into a thousandth of the range, as an attacker who knows the hash would pick them. */
TEST(XmlResources, RefusesNamesMadeToCollide) {
  std::string few = "<A";
  std::string many;
  int found = 0;
  for (int i = 0; found < 5000; ++i) {
    const std::string name = "name" + std::to_string(10'000'000 + i);
    if (kov::xml::hashName(name.c_str(), name.size()) >> 22 != 0) continue;
    many += " " + name + "=''";
    if (++found == 90) few += many;
  }
  EXPECT_TRUE(accepts(few + "/>"));
  EXPECT_FALSE(accepts("<A" + many + "/>"));
}

TEST(XmlResources, FindsARepeatedAttributeAmongAnyNumber) {
  for (int count : {2, 95, 96, 97, 300, 20'000}) {
    const std::string wide = wideElement(count);
    EXPECT_TRUE(accepts(wide)) << count;
    for (int twin : {0, count / 2, count - 1}) {
      const std::string attribute = " a" + std::to_string(twin) + "='x'/>";
      EXPECT_FALSE(accepts(wide.substr(0, wide.size() - 2) + attribute)) << count << ' ' << twin;
    }
  }
}

}  // namespace
