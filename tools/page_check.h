// What the tools share: a committed file is compared with what the code says, or written.
#pragma once

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

namespace kov::tools {

[[noreturn]] inline void fail(const std::string& why) {
  std::cerr << why << "\n";
  std::exit(1);
}

// usage: TOOL check|write FILE
inline int compareOrWrite(int count, char** arguments, const std::string& text) {
  if (count != 3) fail("usage: check|write FILE");
  const std::string file = arguments[2];
  if (std::string(arguments[1]) == "write") {
    std::ofstream(file) << text;
    return 0;
  }
  std::ostringstream committed;
  committed << std::ifstream(file).rdbuf();
  if (committed.str() != text) fail(file + " is not what the code says; run scripts/update-tables");
  return 0;
}

}  // namespace kov::tools
