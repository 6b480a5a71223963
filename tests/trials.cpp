#include "trials.h"

namespace kov::test {

std::string repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

Outcome::Outcome(int code) : text(std::to_string(code) + "\n") {
  for (const std::string& line : failures()) text += line;
  resetPlatform();
}

void expectTold(const std::string& file, const std::vector<Outcome>& calls) {
  std::string told;
  for (const Outcome& call : calls) told += call.text;
  EXPECT_EQ(told, golden(file + ".txt"));
}

std::string WireList::text(std::int32_t count, std::int32_t entries) const {
  std::string all = head + repeated(entry, entries) + tail;
  const std::size_t at = head.find('#');
  if (at != std::string::npos) all.replace(at, 1, std::to_string(count));
  return all;
}

}  // namespace kov::test
