// An application that brings its own XML reader, here one of the general libraries, and reads a message with it.
//
// The library sees no more of its reader than the class KovXMLParser: define its functions, and the platform's reader
// stays out of the link. The typed readers on top, getXml..., use nothing but the class and remain the platform's.
//
// Mind what is lost. A general library reads well-formed XML, but not all texts of the wire are: some devices close
// elements that they never opened, or misspell the name in an end tag. The platform's reader takes those, this one
// refuses them, as the end of this program shows. Its own texts differ in one more point: blanks in CDATA stay.
#include <kov_platform/xml_parser.h>
#include <kov_protocol/nvr_replay.h>

#include <new>
#include <pugixml.hpp>

#include "example_frames.h"

using example::require;

// What copies of a parser share. One document belongs to one thread at a time, so a plain counter will do.
struct KovXMLParser::Document {
  pugi::xml_document tree;
  int users = 1;

  static void release(Document* document) noexcept {
    if (document != nullptr && --document->users == 0) delete document;
  }
};

namespace {

int documentsParsed = 0;  // shows that this reader is the one at work

pugi::xml_node nodeOf(void* element) { return pugi::xml_node(static_cast<pugi::xml_node_struct*>(element)); }

}  // namespace

KovXMLParser::KovXMLParser(const KovXMLParser& other) noexcept : document_(other.document_) {
  if (document_ != nullptr) ++document_->users;
}

KovXMLParser& KovXMLParser::operator=(const KovXMLParser& other) noexcept {
  if (other.document_ != nullptr) ++other.document_->users;
  Document::release(document_);
  document_ = other.document_;
  return *this;
}

KovXMLParser::~KovXMLParser() { Document::release(document_); }

// All texts stay raw: no entity is decoded, no line end or blank in an attribute is converted. The texts are not
// always in the encoding that they name, so the reader must not convert that either.
int KovXMLParser::Parse(const char* text) noexcept {
  constexpr unsigned int kRaw = pugi::parse_minimal | pugi::parse_cdata | pugi::parse_trim_pcdata;
  auto* const parsed = new (std::nothrow) Document;
  const bool readable = parsed != nullptr && text != nullptr && parsed->tree.load_string(text, kRaw);
  Document::release(document_);
  document_ = parsed;
  ++documentsParsed;
  if (readable) return 0;
  Document::release(document_);
  document_ = nullptr;
  return -1;
}

void* KovXMLParser::RootElement() const noexcept {
  return document_ != nullptr ? document_->tree.document_element().internal_object() : nullptr;
}

// A null element is a valid question here and in the functions below; so it is to this library.
void* KovXMLParser::FirstChildElement(void* parent, const char* name) const noexcept {
  return name != nullptr ? nodeOf(parent).child(name).internal_object() : nullptr;
}

void* KovXMLParser::NextSiblingElement(void* element, const char* name) const noexcept {
  return name != nullptr ? nodeOf(element).next_sibling(name).internal_object() : nullptr;
}

const char* KovXMLParser::Attribute(void* element, const char* name) const noexcept {
  const pugi::xml_attribute attribute = name != nullptr ? nodeOf(element).attribute(name) : pugi::xml_attribute();
  return attribute ? attribute.value() : nullptr;
}

const char* KovXMLParser::GetText(void* element) const noexcept { return nodeOf(element).child_value(); }

namespace {

// Through the analysis entry, which now parses with the reader above.
void readQuery() {
  NVR_REPLAY_3001_PARAM query;
  query.ChannelId = 3;
  example::put(query.Time, "2026-11-21");
  const example::Connection connection;
  example::sendMessage(connection.client(), example::headerOf(NVR_REPLAY_MESSAGE_TYPE, "3001"), &query, KOV_REQUEST);

  require(documentsParsed == 0, "composing without a reader");
  const example::Received message(connection.device());
  require(documentsParsed == 1, "one parse by our own reader");
  require(std::strcmp(message.header.Msg_code, "3001") == 0, "the message that was sent");
  const auto& asked = message.as<NVR_REPLAY_3001_PARAM>();
  require(asked.ChannelId == query.ChannelId && std::strcmp(asked.Time, query.Time) == 0, "the query that was sent");
  std::printf("%s: channel %d, day %s\n", message.header.Msg_code, asked.ChannelId, asked.Time);
}

int parseCode(const char* text) {
  KOV_PROTOCOL_HEADER header = {};
  return GetMessageHeader(text, &header);
}

}  // namespace

int main() {
  readQuery();
  require(parseCode("<R><MESSAGE_HEADER Msg_code=\"500\"/><Video><Overlay></Overlay></Video></R>") == KOV_OK,
          "a well-formed document read");
  // Devices send this one; the platform's reader takes it.
  require(parseCode("<R><MESSAGE_HEADER Msg_code=\"500\"/><Video></Overlay></Video></R>") == KOV_ERROR_BAD_DOCUMENT,
          "a document of the wire that only the platform's reader takes");
  return EXIT_SUCCESS;
}
