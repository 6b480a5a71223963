// All messages of the library, for the tests that put each of them through the same trials.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/family.h"

namespace kov::test {

// A record in a heap block of exactly its size.
using RecordBlock = std::unique_ptr<char[]>;

struct TestedMessage {
  std::string type;
  std::string code;
  RecordType record;
  // Fills the record with one byte value all over; null: a plain fill. Records with pointers bring their own.
  void (*fill)(void* record, unsigned char value) = nullptr;
  const CodeTable* table = nullptr;  // where it stands; null, as the next: added by hand
  const Message* message = nullptr;

  std::string name() const { return type + " " + code; }
};

// The messages of all code tables, and those that AlsoTested adds.
const std::vector<TestedMessage>& everyMessage();

// A message that stands in no code table: a constant of its family's test file.
struct AlsoTested {
  explicit AlsoTested(const TestedMessage& message);
};

// A message whose text does not come back as it was composed, and why: a constant of its family's test file.
struct NoRoundTrip {
  NoRoundTrip(const std::string& type, const std::string& code, const std::string& why);
};
bool roundTrips(const TestedMessage& message);

RecordBlock filledRecord(const TestedMessage& message, unsigned char value);

}  // namespace kov::test
