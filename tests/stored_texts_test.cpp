// The texts of wire/messages.txt: each line names the type, a text, and the messages that it is, "202-1 222-0": the
// code and the direction of each. Reading gives a record that gives the same text again.
#include <sstream>

#include "golden.h"
#include "wire.h"

namespace kov::test {
namespace {

class StoredTexts : public WireTest {};

TEST_F(StoredTexts, ComeBackAsTheyWere) {
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
      EXPECT_EQ(bodyOf(type, code, std::stoi(message.substr(dash + 1)), read.result.get()), body) << line;
    }
  }
  EXPECT_GT(messages, 100);
}

}  // namespace
}  // namespace kov::test
