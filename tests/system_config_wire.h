// Configuration messages on the wire: what the tests of all their groups ask.
#pragma once

#include <memory>
#include <stdexcept>
#include <string>

#include "trials.h"

namespace kov::test {

// Either type serves all codes.
inline const std::string kConfigType = "SYSTEM_CONFIG_GET_MESSAGE";
constexpr int kAsk = 0;
constexpr int kAnswer = 1;

template <class Record>
std::string written(const std::string& code, int direction, const Record& record) {
  return bodyOf(kConfigType, code, direction, &record);
}

// Some results are large and stay in their heap block.
template <class Record>
using Result = std::unique_ptr<Record, FreeBlock>;

template <class Record>
Result<Record> readBody(const std::string& code, const std::string& body) {
  Analysis analysis = analysePayload(received(kConfigType, code, body));
  EXPECT_EQ(analysis.code, 0) << code << "\n" << body;
  if (analysis.result == nullptr) throw std::runtime_error("no record of " + code);
  return Result<Record>(static_cast<Record*>(analysis.result.release()));
}

// The record of wire/system_config/<file>.txt.
template <class Record>
Result<Record> stored(const std::string& code, const std::string& file) {
  return readBody<Record>(code, golden("system_config/" + file + ".txt"));
}

template <class Record>
void expectBoundedList(const std::string& code, int direction, int capacity, const std::string& file,
                       const std::string& element, std::int32_t Record::*count) {
  expectBounded(kConfigType, code, direction, WireList("system_config/" + file, element), capacity, count);
}

// Reads a body, and expects the record to give the same text again.
template <class Record>
Result<Record> bothWays(const std::string& code, int direction, const std::string& body) {
  Result<Record> result = readBody<Record>(code, body);
  EXPECT_EQ(written(code, direction, *result), body);
  return result;
}

}  // namespace kov::test
