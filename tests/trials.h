// Trials that the tests of several families put their messages to.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "golden.h"
#include "wire.h"

namespace kov::test {

// Several fields of a record, to be compared at once.
using Numbers = std::vector<std::int64_t>;
using Texts = std::vector<std::string>;

std::string repeated(const std::string& text, int times);

// Where refused calls must not leave anything.
struct Untouched {
  ~Untouched() {
    EXPECT_STREQ(body, "?");
    EXPECT_EQ(result, this);
  }

  char body[8] = "?";
  void* result = this;
};

// What a call returned and the failures that it logged; the call has just been made.
struct Outcome {
  Outcome(int code);  // NOLINT(google-explicit-constructor): lists of calls read as what they are

  std::string text;
};

// Calls, in their order, and wire/<file>.txt: the code of each and the lines that it logs.
void expectTold(const std::string& file, const std::vector<Outcome>& calls);

// A list on the wire: wire/<file>.txt is it with two entries of the same text, each of which begins with `element`.
struct WireList {
  WireList(const std::string& file, const std::string& element);

  // The list with another number of entries, which counts them where its head tells a count.
  std::string text(std::int32_t count, std::int32_t entries) const;

  std::string head, entry, tail;
  std::size_t counts;  // where the head tells "2"
};

// More entries arrive than the table has room for, and the record claims any number of them.
template <class Record>
void expectBounded(const std::string& type, const std::string& code, int direction, const WireList& list, int capacity,
                   std::int32_t Record::*count) {
  const Analysis full = analysePayload(received(type, code, list.text(500, capacity + 6)));
  ASSERT_NE(full.result, nullptr) << code;
  Record& record = *static_cast<Record*>(full.result.get());
  EXPECT_TRUE(list.counts != std::string::npos || record.*count == capacity) << code;
  for (const std::int32_t claimed : {capacity, INT32_MAX, 1, 0, -2, INT32_MIN}) {
    record.*count = claimed;
    const std::string expected = list.text(claimed, std::clamp<std::int32_t>(claimed, 0, capacity));
    EXPECT_EQ(bodyOf(type, code, direction, &record), expected) << code;
  }
}

}  // namespace kov::test
