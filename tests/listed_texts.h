// Wire texts that a list names: each is read, and composed again in every direction.
#pragma once

#include <sstream>

#include "golden.h"
#include "wire.h"

namespace kov::test {

// Every line of the list names a code, a file, the directions that give its text, and those that give none ("-": either
// gives another text).
inline void expectListedTexts(const std::string& type, const std::string& directory) {
  std::istringstream lines(golden(directory + "/texts.list"));
  std::string code, file, directions, silent;
  int texts = 0;
  for (; lines >> code >> file >> directions >> silent; ++texts) {
    const std::string text = golden(directory + "/" + file + ".txt");
    const Analysis read = analysePayload(received(type, code, text));
    ASSERT_NE(read.result, nullptr) << code << " " << file;
    for (const int direction : {0, 1, 2, 3, 4}) {
      const char digit = static_cast<char>('0' + direction);
      const bool told = directions.find(digit) != std::string::npos;
      if (!told && silent.find(digit) == std::string::npos) continue;
      EXPECT_EQ(bodyOf(type, code, direction, read.result.get()), told ? text : "") << code << " " << file;
    }
  }
  EXPECT_GT(texts, 0);
}

}  // namespace kov::test
