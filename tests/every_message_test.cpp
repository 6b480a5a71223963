// Every message of the library through the same trials.
#include "every_message.h"

#include <climits>
#include <cstring>

#include "core/family_table.h"
#include "wire.h"

namespace kov::test {
namespace {

constexpr int kDirections[] = {-1, 0, 1, 2, 3, 4};
constexpr unsigned char kFills[] = {0x00, 0x01, 'A', 0x7F, 0x80, 0xFF};

class EveryMessage : public WireTest {};

// Composes into a block of exactly the given size, so that a byte too far is seen.
int composeInto(const TestedMessage& message, const void* record, int direction, int size) {
  const KOV_PROTOCOL_HEADER header = headerOf(message.type, message.code);
  const std::unique_ptr<char[]> exact(new char[static_cast<std::size_t>(size)]);
  return KovProtocolXMLCompose(&header, record, direction, KOV_PLAIN, nullptr, exact.get(), size);
}

// A bare document tells its whole length, whatever fits.
bool leavesBare(const TestedMessage& message) {
  return findFamily(message.type.data(), message.type.size(), message.code.c_str())->framing == Framing::Bare;
}

TEST_F(EveryMessage, ComposesAnyRecordIntoAnyBuffer) {
  for (const TestedMessage& message : everyMessage()) {
    for (const unsigned char fill : kFills) {
      const RecordBlock record = filledRecord(message, fill);
      for (const int direction : kDirections) {
        for (const int size : {1, 8, 9, 300, 8191, 8192, 8193, 70000}) {
          const int length = composeInto(message, record.get(), direction, size);
          EXPECT_TRUE(length <= size || leavesBare(message)) << message.name();
        }
        resetPlatform();
      }
    }
  }
}

TEST_F(EveryMessage, BodyIsAPrefixInABufferOfAnySize) {
  std::vector<char> whole(1 << 18);
  for (const TestedMessage& message : everyMessage()) {
    if (message.table == nullptr) continue;
    const RecordBlock record = filledRecord(message, 'A');
    for (const int direction : {0, 1}) {
      whole[0] = '\0';
      const auto compose = [&](char* body, int size) {
        return message.table->compose(record.get(), direction, message.code.c_str(), body, size);
      };
      ASSERT_EQ(compose(whole.data(), 1 << 18), 0) << message.name();
      const int length = static_cast<int>(std::strlen(whole.data()));
      for (int size = 1; size <= length; size += std::max(1, length / 100)) {
        const std::unique_ptr<char[]> exact(new char[static_cast<std::size_t>(size)]);
        compose(exact.get(), size);
        const std::string expected(whole.data(), static_cast<std::size_t>(size) - 1);
        ASSERT_STREQ(exact.get(), expected.c_str()) << message.name();
      }
    }
  }
}

// What analysis hands out may go to compose, and the text that comes of it does not change any more.
TEST_F(EveryMessage, ComposeAnalyseComposeIsStable) {
  for (const TestedMessage& message : everyMessage()) {
    for (const unsigned char fill : kFills) {
      const RecordBlock record = filledRecord(message, fill);
      for (const int direction : {0, 1}) {
        const Analysis first = analysePayload(documentOf(message.type, message.code, direction, record.get()));
        if (first.code != 0 || first.result == nullptr) continue;
        const std::string text = documentOf(message.type, message.code, direction, first.result.get());
        if (!roundTrips(message)) continue;
        const Analysis second = analysePayload(text);
        ASSERT_EQ(second.code, 0) << message.name() << "\n" << text;
        ASSERT_NE(second.result, nullptr) << message.name();
        EXPECT_EQ(documentOf(message.type, message.code, direction, second.result.get()), text) << message.name();
      }
      resetPlatform();
    }
  }
}

TEST_F(EveryMessage, RoundTripsItsDefaultsInOneDirectionAtLeast) {
  for (const TestedMessage& message : everyMessage()) {
    if (!roundTrips(message)) continue;
    const RecordBlock record = filledRecord(message, 0x01);
    int readable = 0;
    for (const int direction : {0, 1}) {
      readable += analysePayload(documentOf(message.type, message.code, direction, record.get())).code == 0 ? 1 : 0;
    }
    EXPECT_GT(readable, 0) << message.name();
  }
}

TEST_F(EveryMessage, FailedAllocationLeavesNothingBehind) {
  for (const TestedMessage& message : everyMessage()) {
    const RecordBlock record = filledRecord(message, 0x01);
    for (const int direction : {0, 1}) {
      const std::string payload = documentOf(message.type, message.code, direction, record.get());
      resetPlatform();
      analysePayload(payload);
      const int needed = allocations();
      for (int nth = 1; nth <= needed; ++nth) {
        resetPlatform();
        failAllocation(nth);
        const Analysis analysis = analysePayload(payload);
        EXPECT_EQ(analysis.code, KOV_ERROR_NO_MEMORY) << message.name();
        EXPECT_EQ(analysis.result, nullptr) << message.name();
        EXPECT_EQ(failures(), std::vector<std::string>{"E Malloc Memory failed!\n"}) << message.name();
      }
    }
  }
}

TEST_F(EveryMessage, TellsAMissingRecordAndEmptyArguments) {
  for (const FamilyRow& family : families()) {
    if (family.family->codes == nullptr) continue;
    for (std::size_t i = 0; i < family.family->codes->groupCount(); ++i) {
      for (const CodeRow& row : family.family->codes->group(i)) {
        if (row.message == nullptr) continue;
        char buffer[16] = "?";
        BodyWriter body(buffer, sizeof buffer);
        resetPlatform();
        EXPECT_EQ(row.message->compose(nullptr, 0, body), KOV_ERROR_EMPTY_ARGUMENT);
        void* result = nullptr;
        EXPECT_EQ(row.message->analyse(nullptr, &result), KOV_ERROR_EMPTY_ARGUMENT);
        EXPECT_EQ(row.message->analyse("<XML_ZANTIR/>", nullptr), KOV_ERROR_EMPTY_ARGUMENT);
        EXPECT_EQ(row.message->analyse("<XML_ZANTIR>", &result), KOV_ERROR_BAD_DOCUMENT);
        EXPECT_EQ(row.message->analyse("<XML_ZANTIR/>", &result), KOV_ERROR_BAD_DOCUMENT);
        const std::string name = row.message->name();
        ASSERT_EQ(logLines().size(), 5U) << name;
        EXPECT_EQ(logLines()[0].substr(0, 2), "I ");
        EXPECT_NE(logLines()[0].find("Compose put a empty Param\n"), std::string::npos);
        EXPECT_EQ(logLines()[1], "E " + name + "Analysis put a empty Param\n");
        EXPECT_EQ(logLines()[2], "E " + name + "Analysis put a empty Param\n");
        EXPECT_EQ(logLines()[3], "E " + name + "Analysis Parse MsgBuf error\n");
        EXPECT_EQ(logLines()[4], "E " + name + "Analysis get MESSAGE_BODY error\n");
        EXPECT_EQ(result, nullptr);
        EXPECT_STREQ(buffer, "?");
      }
    }
  }
}

}  // namespace
}  // namespace kov::test
