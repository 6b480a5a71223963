// A recorder and a client that find each other by UDP and talk over TCP with this library. Run them as two processes:
//   kov_demo recorder PORT_FILE    waits for one client, having written its search port to the file
//   kov_demo client PORT           asks, and compares each answer with what the recorder holds
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>

#include "roles.h"

namespace {

bool run(const std::string& role, const char* argument) {
  if (role == "recorder") {
    demo::runRecorder(argument);
  } else if (role == "client") {
    demo::runClient(std::atoi(argument));
  } else {
    return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string role = argc == 3 ? argv[1] : "?";
  try {
    if (run(role, argv[argc - 1])) return 0;
    std::fprintf(stderr, "usage: kov_demo recorder PORT_FILE | kov_demo client PORT\n");
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "kov_demo %s: %s\n", role.c_str(), failure.what());
  }
  return 1;
}
