#include "recording_platform.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include "kov_platform/services.h"

namespace kov::test {
namespace {

struct State {
  std::vector<std::string> lines;
  int failing = 0;
  int allocations = 0;
  Coder coder;
  std::string lastCoder;
};

State& state() {
  static State only;
  return only;
}

void record(char level, const char* format, va_list arguments) {
  va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(nullptr, 0, format, again);
  va_end(again);
  std::string text(static_cast<std::size_t>(length) + 1, '\0');
  std::vsnprintf(text.data(), text.size(), format, arguments);
  text.pop_back();
  state().lines.push_back(std::string(1, level) + " " + text);
}

int turnOver(const char* data, int dataLen, char* out, int outSize) {
  if (dataLen > outSize) return -1;
  for (int i = 0; i < dataLen; ++i) out[i] = static_cast<char>(~data[i]);
  return dataLen;
}

int code(const char* name, int mode, const char* data, int dataLen, char* out, int outSize) {
  state().lastCoder = std::string(name) + " " + std::to_string(mode);
  return state().coder ? state().coder(data, dataLen, out, outSize) : turnOver(data, dataLen, out, outSize);
}

}  // namespace

const std::vector<std::string>& logLines() { return state().lines; }

std::vector<std::string> failures() {
  std::vector<std::string> found;
  for (const std::string& line : state().lines) {
    if (line[0] != 'I') found.push_back(line);
  }
  return found;
}

void failAllocation(int nth) { state().failing = nth; }
int allocations() { return state().allocations; }
void setCoder(Coder coder) { state().coder = std::move(coder); }
const std::string& lastCoder() { return state().lastCoder; }
void resetPlatform() { state() = State{}; }

}  // namespace kov::test

using kov::test::state;

void* KovProtocolMalloc(size_t size) {
  ++state().allocations;
  if (state().failing > 0 && --state().failing == 0) return nullptr;
  return std::malloc(size);
}

void KovProtocolFree(void* block) { std::free(block); }

#define KOV_TEST_LOG(name, level)                \
  void name(const char* format, ...) {           \
    va_list arguments;                           \
    va_start(arguments, format);                 \
    kov::test::record(level, format, arguments); \
    va_end(arguments);                           \
  }

KOV_TEST_LOG(KovProtocolLogInfo, 'I')
KOV_TEST_LOG(KovProtocolLogError, 'E')
KOV_TEST_LOG(KovProtocolLogDebug, 'D')

int KovProtocolEncode(int mode, const char* data, int dataLen, char* out, int outSize, void*) {
  return kov::test::code("KovProtocolEncode", mode, data, dataLen, out, outSize);
}
int KovProtocolDecode(int mode, const char* data, int dataLen, char* out, int outSize, void*) {
  return kov::test::code("KovProtocolDecode", mode, data, dataLen, out, outSize);
}
int P2pProtocolEncode(int mode, const char* data, int dataLen, char* out, int outSize) {
  return kov::test::code("P2pProtocolEncode", mode, data, dataLen, out, outSize);
}
int P2pProtocolDecode(int mode, const char* data, int dataLen, char* out, int outSize) {
  return kov::test::code("P2pProtocolDecode", mode, data, dataLen, out, outSize);
}
