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

WireList::WireList(const std::string& file, const std::string& element) {
  const std::string body = golden(file + ".txt");
  const std::size_t first = body.find(element);
  entry = body.substr(first, body.find(element, first + 1) - first);
  EXPECT_EQ(body.substr(first, 2 * entry.size()), entry + entry) << file;
  head = body.substr(0, first);
  tail = body.substr(first + 2 * entry.size());
  counts = head.find("\"2\"");
}

std::string WireList::text(std::int32_t count, std::int32_t entries) const {
  std::string all = head + repeated(entry, entries) + tail;
  if (counts != std::string::npos) all.replace(counts + 1, 1, std::to_string(count));
  return all;
}

}  // namespace kov::test
