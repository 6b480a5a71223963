// Texts of the wire that stand in files of their own, byte for byte: tests/wire.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

namespace kov::test {

// The text of a file below tests/wire; a test failure when it is missing.
inline std::string golden(const std::string& name) {
  std::ifstream file(std::string(KOV_TEST_WIRE) + "/" + name, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << name;
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace kov::test
