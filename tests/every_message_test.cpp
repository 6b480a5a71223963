// Every message of the library through the same trials.
#include "every_message.h"

#include <climits>
#include <cstring>
#include <set>
#include <sstream>

#include "core/family_table.h"
#include "trials.h"

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
  for (const TestedMessage& tested : everyMessage()) {
    if (tested.message == nullptr) continue;
    const Message& message = *tested.message;
    char buffer[16] = "?";
    BodyWriter body(buffer, sizeof buffer);
    resetPlatform();
    EXPECT_EQ(message.compose(nullptr, 0, body), KOV_ERROR_EMPTY_ARGUMENT);
    void* result = nullptr;
    EXPECT_EQ(message.analyse(nullptr, &result), KOV_ERROR_EMPTY_ARGUMENT);
    EXPECT_EQ(message.analyse("<XML_ZANTIR/>", nullptr), KOV_ERROR_EMPTY_ARGUMENT);
    EXPECT_EQ(message.analyse("<XML_ZANTIR>", &result), KOV_ERROR_BAD_DOCUMENT);
    EXPECT_EQ(message.analyse("<XML_ZANTIR/>", &result), KOV_ERROR_BAD_DOCUMENT);
    const std::string told = "E " + std::string(message.name()) + "Analysis ";
    ASSERT_EQ(logLines().size(), 5U) << told;
    EXPECT_EQ(std::vector<std::string>(logLines().begin() + 1, logLines().end()),
              (std::vector<std::string>{told + "put a empty Param\n", told + "put a empty Param\n",
                                        told + "Parse MsgBuf error\n", told + "get MESSAGE_BODY error\n"}));
    EXPECT_EQ(result, nullptr);
    EXPECT_STREQ(buffer, "?");
  }
}

// What a message calls itself, the directions that give its record a text, and what a body without its element is told.
std::string traitsOf(const TestedMessage& message) {
  std::string traits = message.name() + "\n";
  if (message.message != nullptr) {
    char buffer[8];
    BodyWriter body(buffer, sizeof buffer);
    resetPlatform();
    message.message->compose(nullptr, 0, body);
    traits += "  " + logLines().at(0);
  }
  traits += "  directions";
  const RecordBlock record = filledRecord(message, 1);
  for (const int direction : {0, 1, 2, 3, 4}) {
    const bool silent = bodyOf(message.type, message.code, direction, record.get()).empty();
    if (!silent) traits += " " + std::to_string(direction);
  }
  resetPlatform();
  return traits + "\n  without element " + Outcome(analysisCode(message.type, message.code, "")).text;
}

TEST_F(EveryMessage, HasItsNameItsDirectionsAndItsElement) {
  std::set<std::string> each;
  for (const TestedMessage& message : everyMessage()) each.insert(traitsOf(message));
  std::string traits;
  for (const std::string& one : each) traits += one;
  EXPECT_EQ(traits, golden("traits.txt"));
}

// Each line of wire/messages.txt names the type, a text, and the messages that it is, "202-134 222-02": the code and
// the directions of each. Reading gives a record that gives the same text again.
TEST_F(EveryMessage, StoredTextsComeBackAsTheyWere) {
  std::istringstream lines(golden("messages.txt"));
  int messages = 0;
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    std::string type, file;
    words >> type >> file;
    const std::string body = golden(file + ".txt");
    for (std::string message; words >> message; ++messages) {
      const std::size_t dash = message.find('-');
      const std::string code = message.substr(0, dash);
      const Analysis read = analysePayload(received(type, code, body));
      ASSERT_EQ(read.code, 0) << line;
      ASSERT_NE(read.result, nullptr) << line;
      for (const char direction : message.substr(dash + 1)) {
        EXPECT_EQ(bodyOf(type, code, direction - '0', read.result.get()), body) << line;
      }
    }
  }
  EXPECT_GT(messages, 150);
}

}  // namespace
}  // namespace kov::test
