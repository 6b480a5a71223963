#include "trials.h"

#include <sstream>

namespace kov::test {

std::string repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

void expectBothWays(const std::string& type, const std::string& directory, const std::vector<WireText>& texts) {
  for (const WireText& text : texts) {
    const std::string body = golden(directory + "/" + text.file + ".txt");
    std::istringstream messages(text.messages);
    for (std::string message; messages >> message;) {
      const std::size_t dash = message.find('-');
      const std::string code = message.substr(0, dash);
      const Analysis read = analysePayload(received(type, code, body));
      EXPECT_EQ(read.code, 0) << text.file;
      ASSERT_NE(read.result, nullptr) << message;
      EXPECT_EQ(bodyOf(type, code, std::stoi(message.substr(dash + 1)), read.result.get()), body) << text.file;
    }
  }
}

void expectTold(const std::vector<Told>& calls) {
  std::vector<std::string> lines;
  for (const Told& call : calls) {
    EXPECT_EQ(call.code, call.expected) << call.line;
    if (!call.line.empty()) lines.push_back(call.line);
  }
  EXPECT_EQ(failures(), lines);
}

std::string WireList::text(std::int32_t count, std::int32_t entries) const {
  std::string all = head + repeated(entry, entries) + tail;
  const std::size_t at = head.find('#');
  if (at != std::string::npos) all.replace(at, 1, std::to_string(count));
  return all;
}

}  // namespace kov::test
