#include "trials.h"

namespace kov::test {

std::string repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
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
