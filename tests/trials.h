// Trials that the tests of several families put their messages to.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "golden.h"
#include "wire.h"

namespace kov::test {

std::string repeated(const std::string& text, int times);

// What a call returned and the failures that it logged; the call has just been made.
struct Outcome {
  Outcome(int code);  // NOLINT(google-explicit-constructor): lists of calls read as what they are

  std::string text;
};

// Calls, in their order, and wire/<file>.txt: the code of each and the lines that it logs.
void expectTold(const std::string& file, const std::vector<Outcome>& calls);

// A list on the wire: the text before it, where '#' is its count, an entry, and the text behind it.
struct WireList {
  std::string type;
  std::string code;
  int direction;
  int capacity;
  std::string head;
  std::string entry;
  std::string tail;

  std::string text(std::int32_t count, std::int32_t entries) const;
};

// More entries arrive than the table has room for, and the record claims any number of them.
template <class Record>
void expectBounded(const WireList& list, std::int32_t Record::*count) {
  const Analysis full = analysePayload(received(list.type, list.code, list.text(500, list.capacity + 6)));
  ASSERT_NE(full.result, nullptr) << list.code;
  Record& record = *static_cast<Record*>(full.result.get());
  const bool told = list.head.find('#') != std::string::npos;
  EXPECT_TRUE(told || record.*count == list.capacity) << list.code;
  for (const std::int32_t claimed : {list.capacity, INT32_MAX, 1, 0, -2, INT32_MIN}) {
    record.*count = claimed;
    const std::string expected = list.text(claimed, std::clamp<std::int32_t>(claimed, 0, list.capacity));
    EXPECT_EQ(bodyOf(list.type, list.code, list.direction, &record), expected) << list.code;
  }
}

}  // namespace kov::test
