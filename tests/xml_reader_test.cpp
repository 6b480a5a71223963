// The reader: what it accepts, what it refuses, what it forgives, and what it costs.
#include <gtest/gtest.h>

#include <chrono>
#include <sstream>
#include <string>
#include <utility>

#include "../platform/src/xml_grammar.h"
#include "../platform/src/xml_name_set.h"
#include "allocation_probe.h"
#include "guarded_page.h"
#include "kov_platform/xml_parser.h"
#include "trials.h"

namespace {

using kov::test::AllocationProbe;
using kov::test::GuardedBuffer;
using kov::test::repeated;

/** Parses a text that lies exactly before an unreadable page. */
bool accepts(const std::string& text) {
  GuardedBuffer guarded(text);
  return KovXMLParser().Parse(guarded.data()) == 0;
}

/** An element with `count` attributes a0, a1, ... */
std::string wideElement(int count) {
  std::string text = "<A";
  for (int i = 0; i < count; ++i) text += " a" + std::to_string(i) + "=\"" + std::to_string(i) + "\"";
  return text + "/>";
}

/** An element with 676 attributes of the fewest bytes: one may follow the closing quote of another there. */
std::string denseElement() {
  std::string text = "<Encode ";
  for (char first = 'a'; first <= 'z'; ++first) {
    for (char second = 'a'; second <= 'z'; ++second) text += {first, second, '=', '\'', '\''};
  }
  return text + "/>";
}

/** Every line of the file is what it shows, a colon and a document. */
void expectOfAll(const std::string& file, bool accepted) {
  std::istringstream lines(kov::test::golden("xml/" + file));
  int documents = 0;
  for (std::string line; std::getline(lines, line); ++documents) {
    EXPECT_EQ(accepts(line.substr(line.find(": ") + 2)), accepted) << line;
  }
  EXPECT_GT(documents, 15);
}

TEST(XmlGrammar, AcceptsWellFormedDocumentsAndWhatTheWireNeeds) {
  expectOfAll("accepted.txt", true);
  for (const char* text : {"<?xml version=\"1.0\" encoding=\"GB2312\" ?>\n<A/>", " \t\r\n<A/>\n<!-- c --><?p d?> ",
                           "<A a = '1'\tb\n=\r\"2\" />", "<\xD6\xD0 \xB2\xE2=\"\xCA\xD4\"/>"}) {
    EXPECT_TRUE(accepts(text)) << text;
  }
}

TEST(XmlGrammar, RefusesEverythingElseNextToATolerancesTextsToo) {
  expectOfAll("refused.txt", false);
  for (const char* text : {"", " \n", " <?xml version='1.0'?><A/>", "\xEF\xBB\xBF<A/>", "<LANConfig\n<A/></LANConfig>",
                           "<A>temp <\xD6\xD0</A>", "<A/> < "}) {
    EXPECT_FALSE(accepts(text)) << text;
  }
}

TEST(XmlGrammar, RefusesEveryProperPrefix) {
  const std::string whole = "<?xml version=\"1.0\"?><A b=\"1\"><!--c--><B>t<C/></B><![CDATA[d]]><?p q?></A>";
  ASSERT_TRUE(accepts(whole));
  for (std::size_t length = 0; length < whole.size(); ++length) EXPECT_FALSE(accepts(whole.substr(0, length)));
}

TEST(XmlGrammar, NamesEndAtTheFirstByteOfAnotherClass) {
  for (int c = 0; c < 256; ++c) {
    for (std::size_t at = 0; at < 20; ++at) {
      std::string text = std::string(20, 'n') + '=' + std::string(kov::xml::kNameBlock, '\0');
      text[at] = static_cast<char>(c);
      const auto length = static_cast<std::size_t>(kov::xml::skipName(text.data()) - text.data());
      EXPECT_EQ(length, kov::xml::isNameChar(static_cast<char>(c)) ? 20 : at) << c;
    }
  }
}

TEST(XmlGrammar, NestsSixtyFourLevels) {
  EXPECT_TRUE(accepts(repeated("<A>", 64) + repeated("</A>", 64)));
  EXPECT_FALSE(accepts(repeated("<A>", 65) + repeated("</A>", 65)));
  EXPECT_FALSE(accepts(repeated("<A>", 64) + "<B/>" + repeated("</A>", 64)));
}

/** The attribute of an element that the names lead to from the root. */
const char* attributeAt(const KovXMLParser& parser, std::initializer_list<const char*> path, const char* name) {
  void* element = parser.RootElement();
  for (const char* child : path) element = parser.FirstChildElement(element, child);
  return parser.Attribute(element, name);
}

TEST(XmlTolerance, ReadsUnbalancedNetworkConfig) {
  KovXMLParser parser;
  ASSERT_EQ(parser.Parse(kov::test::golden("xml/unbalanced_network.txt").c_str()), 0);
  EXPECT_STREQ(attributeAt(parser, {"MESSAGE_BODY", "NetworkConfig", "LANConfig"}, "DHCP"), "1");
  EXPECT_STREQ(attributeAt(parser, {"MESSAGE_BODY", "NetworkConfig", "LAN1Config"}, "DHCP"), "2");
  void* const body = parser.FirstChildElement(parser.RootElement(), "MESSAGE_BODY");
  EXPECT_STREQ(parser.GetText(parser.FirstChildElement(body, "NetworkConfig")), "/NetworkConfig>");
}

TEST(XmlTolerance, ReadsMisspeltMediaConfig) {
  KovXMLParser parser;
  ASSERT_EQ(parser.Parse(kov::test::golden("xml/misspelt_media.txt").c_str()), 0);
  EXPECT_STREQ(attributeAt(parser, {"Video", "TitleOverlay"}, "P"), "2");
  EXPECT_STREQ(attributeAt(parser, {"Video", "Mask"}, "E"), "3");
  EXPECT_STREQ(attributeAt(parser, {"Audio", "Play"}, "V"), "4");
  EXPECT_STREQ(attributeAt(parser, {"After"}, "A"), "5");
}

TEST(XmlText, IsTheFirstRunThatIsNotBlank) {
  const std::pair<const char*, const char*> cases[] = {{"<A/>", ""},
                                                       {"<A> \t\r\n</A>", ""},
                                                       {"<A>\n a b \n</A>", "a b"},
                                                       {"<A> <B>inner</B> x <C/> y </A>", "x"},
                                                       {"<A>a<!-- c -->b</A>", "a"},
                                                       {"<A> <![CDATA[ ]]><![CDATA[ <d>]]>e</A>", "<d>"},
                                                       {"<A>a<![CDATA[b]]></A>", "a"},
                                                       {"<A>\v\x01</A>", "\v\x01"},
                                                       {"<A> < 30 </A>", "< 30"},
                                                       {"<A>&amp;\xD6\xD0</A>", "&amp;\xD6\xD0"}};
  for (const auto& [text, expected] : cases) {
    KovXMLParser parser;
    ASSERT_EQ(parser.Parse(text), 0) << text;
    EXPECT_STREQ(parser.GetText(parser.RootElement()), expected) << text;
  }
}

TEST(XmlLookup, FindsAttributesInAnyOrder) {
  KovXMLParser parser;
  ASSERT_EQ(parser.Parse("<A a='' ab=' 1 ' abc='&lt;' b='x<y'/>"), 0);
  void* root = parser.RootElement();
  const std::pair<const char*, const char*> cases[] = {{"b", "x<y"}, {"a", ""},       {"abc", "&lt;"}, {"ab", " 1 "},
                                                       {"b", "x<y"}, {"abc", "&lt;"}, {"a", ""}};
  for (const auto& [name, value] : cases) {
    EXPECT_STREQ(parser.Attribute(root, name), value);
    for (const char* none : {"abcd", "B", ""}) EXPECT_EQ(parser.Attribute(root, none), nullptr);
  }
}

/** The search starts behind the last hit, and must not therefore take a later namesake for the first child. */
TEST(XmlLookup, FindsTheFirstChildOfANameInAnyOrder) {
  KovXMLParser parser;
  ASSERT_EQ(parser.Parse("<R><A i='1'/><B i='2'/><A i='3'/><C i='4'><A i='5'/></C><B i='6'/></R>"), 0);
  void* root = parser.RootElement();
  const auto first = [&](const char* name) { return parser.Attribute(parser.FirstChildElement(root, name), "i"); };
  const std::pair<const char*, const char*> firsts[] = {{"A", "1"}, {"B", "2"}, {"C", "4"}};
  for (const char* before : {"A", "B", "C", "D"}) {
    for (const auto& [name, index] : firsts) {
      first(before);
      EXPECT_STREQ(first(name), index) << before;
    }
    first(before);
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
  KovXMLParser& same = copy;
  copy = same;
  EXPECT_STREQ(copy.Attribute(root, "b"), "1");
  EXPECT_EQ(copy.Parse(copy.Attribute(root, "b")), -1) << "the text to parse lay in the document just replaced";
}

/** A text of nothing but the shortest elements or attributes is read a second time into a larger block, a message
 * never. */
TEST(XmlResources, HoldsOneBlockOfAtMostSixTimesTheInput) {
  for (const std::string& text :
       {"<A>" + repeated("<b/>", 5000) + "</A>", "<A>" + repeated("<b a=''/>", 5000) + "</A>", wideElement(5000),
        repeated("<A>", 64) + repeated("</A>", 64), "<A>" + repeated("<B>x</B>", 3000) + "</A>", denseElement(),
        "<A>" + repeated("text ", 5000) + "</A>"}) {
    AllocationProbe probe;
    KovXMLParser parser;
    EXPECT_EQ(parser.Parse(text.c_str()), 0);
    EXPECT_LE(probe.count(), 2);
    EXPECT_LE(probe.largest(), 6 * text.size() + 1024);
  }
  const std::string message = "<A>\n" + repeated("<Item\nid=\"1\"\n/>\n", 500) + "</A>";
  AllocationProbe probe;
  KovXMLParser parser;
  EXPECT_EQ(parser.Parse(message.c_str()), 0);
  EXPECT_EQ(probe.count(), 1);
}

TEST(XmlResources, SurvivesFailedAllocationAndRefusesOversizedDocumentsUnallocated) {
  const std::string text = "<A>" + std::string(16u << 20, ' ') + "</A>";
  AllocationProbe probe;
  KovXMLParser parser;
  EXPECT_NE(parser.Parse(text.c_str()), 0);
  EXPECT_EQ(probe.count(), 0);
  probe.failAt(1);
  EXPECT_NE(parser.Parse("<A/>"), 0);
  EXPECT_EQ(parser.RootElement(), nullptr);
  EXPECT_EQ(parser.Parse("<A/>"), 0);
  probe.failAt(2);
  EXPECT_NE(parser.Parse(("<A>" + repeated("<b/>", 100) + "</A>").c_str()), 0)
      << "the larger block of a second reading";
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

  const std::pair<const char*, const char*> endless[] = {{"<A>", "<A>"},       {"<A ", "a='"}, {"<A>", "<!--"},
                                                         {"<A>", "<![CDATA["}, {"<A>", "< "},  {"<A><?p ", "> "}};
  for (const auto& [opening, part] : endless) EXPECT_FALSE(accepts(opening + repeated(part, kMany))) << part;
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
