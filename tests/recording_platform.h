// The platform that tests link in place of the real one: it records every log line, and fails on demand.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kov::test {

// Log lines since reset(), each with its level in front: "E NVR_REPLAY_MESSAGE put a empty Param\n".
const std::vector<std::string>& logLines();
// Those of error and debug level only: most tests do not care for the information lines of the entries.
std::vector<std::string> failures();

// Lets the n-th KovProtocolMalloc() from now on fail, 1 being the next one. 0: none.
void failAllocation(int nth);
// Blocks taken by KovProtocolMalloc() since reset().
int allocations();

// What all four encoders do: they get the data and the output's capacity. The default turns every byte over.
using Coder = std::function<int(const char* data, int dataLen, char* out, int outSize)>;
void setCoder(Coder coder);
// Which encoder was called last, with its mode: "KovProtocolEncode 3".
const std::string& lastCoder();

void resetPlatform();

}  // namespace kov::test
