// The messages that are measured, and what a peer must take out of each to have done the same work.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "kov_protocol/kov_protocol.h"

namespace kov::bench {

// One attribute to read: into which of the bytes for the values, and how.
struct PlannedAttribute {
  std::string name;
  bool number;  // an int32; else a text of at most kTextSize bytes
  std::size_t offset;
};
constexpr std::size_t kTextSize = 64;

// One element to find, below its parent, in the order of the document.
struct PlannedElement {
  std::string name;
  std::vector<PlannedAttribute> attributes;
  std::vector<PlannedElement> children;
};

// A message as an application has it: header and record. The record lives as long as the program.
struct Sample {
  std::string name;
  KOV_PROTOCOL_HEADER header;
  const void* record;
  int direction;
  std::string document;    // without frame header
  PlannedElement plan;     // the whole document, from its root
  std::size_t valuesSize;  // the bytes that the plan's values take

  // What a peer fills, to be released by std::free: a record of the message's own type that holds its defaults, like
  // the library's result, and behind it the bytes for the values.
  char* (*newRecord)(std::size_t valuesSize);
  std::size_t recordSize;
};

const std::vector<Sample>& samples();

// A channel list of some entries, to see how time grows.
Sample channelList(int channels);

}  // namespace kov::bench
