// Messages as they look on the wire, for tests that compare them byte for byte.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>

#include "kov_protocol/kov_protocol.h"
#include "recording_platform.h"

namespace kov::test {

// Every test starts with a fresh platform.
class WireTest : public ::testing::Test {
 protected:
  void SetUp() override { resetPlatform(); }
};

KOV_PROTOCOL_HEADER headerOf(const std::string& type, const std::string& code);

// The whole document that the compose entry makes; when it fails, "code -1001".
std::string documentOf(const std::string& type, const std::string& code, int direction, const void* record);

// The same without envelope: what stands between the lines of MESSAGE_BODY.
std::string bodyOf(const std::string& type, const std::string& code, int direction, const void* record);

// A document as a peer sends it. `extras` are further attributes of MESSAGE_HEADER.
std::string received(const std::string& type, const std::string& code, const std::string& body,
                     const std::string& extras = "");

struct FreeBlock {
  void operator()(void* block) const { std::free(block); }
};

// What the analysis entry makes of a payload; the payload stands in a block of exactly its size.
struct Analysis {
  int code = 0;
  KOV_PROTOCOL_HEADER header = {};
  std::unique_ptr<void, FreeBlock> result;
};
Analysis analysePayload(const std::string& payload, int decodeMode = KOV_PLAIN, void* key = nullptr);

// The record that analysis of a body yields; a test failure and a default record when there is none.
template <class Record>
Record analysed(const std::string& type, const std::string& code, const std::string& body) {
  const Analysis analysis = analysePayload(received(type, code, body));
  EXPECT_EQ(analysis.code, 0) << body;
  Record record;
  if (analysis.result != nullptr) record = *static_cast<Record*>(analysis.result.get());
  EXPECT_NE(analysis.result, nullptr) << body;
  return record;
}

// The code that analysis of a body yields.
inline int analysisCode(const std::string& type, const std::string& code, const std::string& body) {
  return analysePayload(received(type, code, body)).code;
}

// Fills a text field.
template <std::size_t Capacity>
void set(char (&field)[Capacity], const std::string& text) {
  text.copy(field, Capacity - 1);
  field[std::min(text.size(), Capacity - 1)] = '\0';
}

}  // namespace kov::test
