#include "every_message.h"

#include <map>

#include "core/family_table.h"

namespace kov::test {
namespace {

std::vector<TestedMessage>& added() {
  static std::vector<TestedMessage> messages;
  return messages;
}

std::map<std::string, std::string>& exceptions() {
  static std::map<std::string, std::string> reasons;
  return reasons;
}

void addCodes(const FamilyRow& family, std::vector<TestedMessage>& messages) {
  const CodeTable& table = *family.family->codes;
  for (std::size_t i = 0; i < table.groupCount(); ++i) {
    for (const CodeRow& row : table.group(i)) {
      if (row.message != nullptr) {
        messages.push_back(
            {family.msgType, std::to_string(row.code), row.message->record(), nullptr, &table, row.message});
      }
    }
  }
}

std::vector<TestedMessage> collect() {
  std::vector<TestedMessage> messages = added();
  for (const FamilyRow& family : families()) {
    if (family.family->codes != nullptr) addCodes(family, messages);
  }
  return messages;
}

}  // namespace

const std::vector<TestedMessage>& everyMessage() {
  static const std::vector<TestedMessage> all = collect();
  return all;
}

AlsoTested::AlsoTested(const TestedMessage& message) { added().push_back(message); }

NoRoundTrip::NoRoundTrip(const std::string& type, const std::string& code, const std::string& why) {
  exceptions()[type + " " + code] = why;
}

bool roundTrips(const TestedMessage& message) { return exceptions().count(message.name()) == 0; }

RecordBlock filledRecord(const TestedMessage& message, unsigned char value) {
  RecordBlock block(new char[message.record.size]);
  message.record.setDefaults(block.get());
  if (message.fill != nullptr) {
    message.fill(block.get(), value);
  } else {
    std::memset(block.get(), value, message.record.size);
  }
  return block;
}

}  // namespace kov::test
