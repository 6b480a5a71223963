#include <expat.h>
#include <libxml/parser.h>
#include <tinyxml2.h>

#include <cstdlib>
#include <cstring>
#include <pugixml.hpp>
#include <rapidxml/rapidxml.hpp>

#include "peers.h"

namespace kov::bench {
namespace {

void walk(const pugi::xml_node& node, const PlannedElement& plan, char* values) {
  for (const PlannedAttribute& attribute : plan.attributes) {
    storeValue(attribute, node.attribute(attribute.name.c_str()).value(), values);
  }
  pugi::xml_node child;
  for (const PlannedElement& element : plan.children) {
    const bool again = child && element.name == child.name();
    child = again ? child.next_sibling(element.name.c_str()) : node.child(element.name.c_str());
    walk(child, element, values);
  }
}

void walk(rapidxml::xml_node<>* node, const PlannedElement& plan, char* values) {
  for (const PlannedAttribute& attribute : plan.attributes) {
    storeValue(attribute, node->first_attribute(attribute.name.c_str())->value(), values);
  }
  rapidxml::xml_node<>* child = nullptr;
  for (const PlannedElement& element : plan.children) {
    const bool again = child != nullptr && element.name == child->name();
    child = again ? child->next_sibling(element.name.c_str()) : node->first_node(element.name.c_str());
    walk(child, element, values);
  }
}

void walk(const tinyxml2::XMLElement* node, const PlannedElement& plan, char* values) {
  for (const PlannedAttribute& attribute : plan.attributes) {
    storeValue(attribute, node->Attribute(attribute.name.c_str()), values);
  }
  const tinyxml2::XMLElement* child = nullptr;
  for (const PlannedElement& element : plan.children) {
    const bool again = child != nullptr && element.name == child->Name();
    child = again ? child->NextSiblingElement(element.name.c_str()) : node->FirstChildElement(element.name.c_str());
    walk(child, element, values);
  }
}

xmlNode* nextNamed(xmlNode* node, const std::string& name) {
  const auto* const wanted = reinterpret_cast<const xmlChar*>(name.c_str());
  while (node != nullptr && (node->type != XML_ELEMENT_NODE || !xmlStrEqual(node->name, wanted))) node = node->next;
  return node;
}

const char* valueOf(xmlNode* node, const std::string& name) {
  xmlAttr* const attribute = xmlHasProp(node, reinterpret_cast<const xmlChar*>(name.c_str()));
  if (attribute == nullptr || attribute->children == nullptr) return "";
  return reinterpret_cast<const char*>(attribute->children->content);
}

void walk(xmlNode* node, const PlannedElement& plan, char* values) {
  for (const PlannedAttribute& attribute : plan.attributes) {
    storeValue(attribute, valueOf(node, attribute.name), values);
  }
  xmlNode* child = nullptr;
  for (const PlannedElement& element : plan.children) {
    xmlNode* const next = child != nullptr ? nextNamed(child->next, element.name) : nullptr;
    child = next != nullptr ? next : nextNamed(node->children, element.name);
    walk(child, element, values);
  }
}

// A push parser sees the elements in the order of the plan.
struct PushState {
  std::vector<const PlannedElement*> order;
  std::size_t next = 0;
  char* values = nullptr;
};

void flatten(const PlannedElement& element, std::vector<const PlannedElement*>& order) {
  order.push_back(&element);
  for (const PlannedElement& child : element.children) flatten(child, order);
}

void XMLCALL onElement(void* user, const XML_Char*, const XML_Char** attributes) {
  PushState& state = *static_cast<PushState*>(user);
  const PlannedElement& plan = *state.order[state.next++];
  for (const PlannedAttribute& wanted : plan.attributes) {
    for (const XML_Char** found = attributes; *found != nullptr; found += 2) {
      if (wanted.name != *found) continue;
      storeValue(wanted, found[1], state.values);
      break;
    }
  }
}

}  // namespace

void storeValue(const PlannedAttribute& attribute, const char* value, char* values) {
  if (attribute.number) {
    const int number = std::atoi(value);
    std::memcpy(values + attribute.offset, &number, sizeof number);
  } else {
    const std::size_t length = strnlen(value, kTextSize - 1);
    std::memcpy(values + attribute.offset, value, length);
    values[attribute.offset + length] = '\0';
  }
}

void readByPugixml(std::string& text, const Sample& sample, char* values) {
  pugi::xml_document document;
  document.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_latin1);
  walk(document.document_element(), sample.plan, values);
}

void readByRapidxml(std::string& text, const Sample& sample, char* values) {
  rapidxml::xml_document<> document;
  document.parse<rapidxml::parse_default>(text.data());
  walk(document.first_node(), sample.plan, values);
}

void readByTinyxml2(std::string& text, const Sample& sample, char* values) {
  tinyxml2::XMLDocument document;
  document.Parse(text.data(), text.size());
  walk(document.RootElement(), sample.plan, values);
}

void readByExpat(std::string& text, const Sample& sample, char* values) {
  PushState state;
  flatten(sample.plan, state.order);
  state.values = values;
  XML_Parser parser = XML_ParserCreate("ISO-8859-1");  // the label of the documents is unknown to it
  XML_SetUserData(parser, &state);
  XML_SetStartElementHandler(parser, onElement);
  if (XML_Parse(parser, text.data(), static_cast<int>(text.size()), 1) != XML_STATUS_OK) std::abort();
  XML_ParserFree(parser);
}

void readByLibxml2(std::string& text, const Sample& sample, char* values) {
  xmlDoc* const document =
      xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, "ISO-8859-1", XML_PARSE_NONET);
  walk(xmlDocGetRootElement(document), sample.plan, values);
  xmlFreeDoc(document);
}

}  // namespace kov::bench
