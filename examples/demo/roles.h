// The two processes of the demo. Each fails with std::runtime_error.
#pragma once

#include <string>

namespace demo {

// Waits for one client, having written the UDP port that it answers searches at to the file.
void runRecorder(const std::string& portFile);

// Searches at that port, asks, and compares each answer with what the recorder holds.
void runClient(int searchPort);

}  // namespace demo
