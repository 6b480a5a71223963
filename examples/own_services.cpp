// An application that brings its own logger and its own allocator.
//
// The library imports both. The platform library has each group of services in an object of its own, which is linked
// only when something still misses its functions: define all functions of a group, as below, and yours are used.
// This program links the static library, but a shared one takes the functions of the program just the same.
#include <kov_platform/services.h>
#include <kov_protocol/system_config.h>

#include <atomic>
#include <cstdarg>

#include "example_frames.h"

using example::require;

namespace {

// The library may call from any thread, so what it counts is atomic.
struct Services {
  std::atomic<int> informationLines{0};
  std::atomic<int> errorLines{0};
  std::atomic<int> debugLines{0};
  std::atomic<int> blocksGiven{0};
  std::atomic<int> blocksReturned{0};
  std::atomic<std::size_t> largestBlock{1U << 20};  // more is refused
  char lastError[256] = "";                         // for one thread: a real logger would lock
};

Services& services() {
  static Services all;
  return all;
}

}  // namespace

// Information lines hold whole messages, passwords too: a logger that keeps them needs to keep them safe.
void KovProtocolLogInfo(const char* /*format*/, ...) { ++services().informationLines; }

void KovProtocolLogDebug(const char* /*format*/, ...) { ++services().debugLines; }

// Lines hold what was received: cut them, and mind control characters when they go to a terminal.
void KovProtocolLogError(const char* format, ...) {
  ++services().errorLines;
  std::va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(services().lastError, sizeof services().lastError, format, arguments);
  va_end(arguments);
}

// Null is a valid answer. A block must be one that free() takes: KovProtocolMSGAnalysisStop() releases results with it.
void* KovProtocolMalloc(size_t size) {
  if (size > services().largestBlock) return nullptr;
  ++services().blocksGiven;
  return std::malloc(size);
}

// Work buffers of the library come back here before a call returns; results go the other way.
void KovProtocolFree(void* block) {
  if (block != nullptr) ++services().blocksReturned;
  std::free(block);
}

namespace {

using Cameras = SYSTEM_CONFIG_SET_3804_PARAM;

// Cameras for all channels: a message that is too long for the library's stack.
std::vector<char> composeCameras(const KOV_PROTOCOL_HEADER& header, int encodeMode, char* key) {
  std::vector<char> frame(131072);
  std::vector<Cameras> cameras(1);
  cameras[0].ChannelCount = SYSTEM_CONFIG_CHANNELS;
  for (int i = 0; i < SYSTEM_CONFIG_CHANNELS; ++i) cameras[0].Channels[i].ChannelId = i;
  const int length = KovProtocolXMLCompose(&header, cameras.data(), KOV_REQUEST, encodeMode, key, frame.data(),
                                           static_cast<int>(frame.size()));
  require(length > KOV_FRAME_HEADER_SIZE, "a composed message");
  frame.resize(static_cast<std::size_t>(length));
  frame.erase(frame.begin(), frame.begin() + KOV_FRAME_HEADER_SIZE);
  return frame;
}

// Analyses and releases. Tells the code, and in `channels` how many came.
int analyse(std::vector<char> payload, int decodeMode, char* key, int& channels) {
  KOV_PROTOCOL_HEADER header = {};
  void* record = nullptr;
  const int code =
      KovProtocolMSGAnalysisStart(payload.data(), static_cast<int>(payload.size()), decodeMode, key, &header, &record);
  channels = record != nullptr ? static_cast<const Cameras*>(record)->ChannelCount : -1;
  KovProtocolMSGAnalysisStop(&record);
  return code;
}

}  // namespace

int main() {
  Services& own = services();
  char key[] = "example key";
  int channels = 0;
  auto header = example::headerOf(SYSTEM_CONFIG_SET_MESSAGE_TYPE, "3804");

  const std::vector<char> plain = composeCameras(header, KOV_PLAIN, nullptr);
  require(own.informationLines > 0, "lines that tell of the composed message");
  require(own.blocksGiven == 0, "composing a plain message without memory");

  require(analyse(plain, KOV_PLAIN, nullptr, channels) == KOV_OK && channels == SYSTEM_CONFIG_CHANNELS, "the cameras");
  require(own.blocksGiven == 1 && own.blocksReturned == 0, "one block, for the result");

  // The encoders are the platform's: each group is replaced on its own.
  const std::vector<char> encoded = composeCameras(header, 1, key);
  require(analyse(encoded, 1, key, channels) == KOV_OK && channels == SYSTEM_CONFIG_CHANNELS, "the encoded cameras");
  require(own.blocksGiven == 3 && own.blocksReturned == 1, "one more block, to decode in");
  require(own.errorLines == 0, "no error so far");

  own.largestBlock = 1024;
  require(analyse(plain, KOV_PLAIN, nullptr, channels) == KOV_ERROR_NO_MEMORY && channels == -1, "a refused block");
  require(own.errorLines > 0 && std::strcmp(own.lastError, "Malloc Memory failed!\n") == 0, "a line about memory");
  require(own.blocksGiven == 3, "no further block");

  const std::vector<Cameras> cameras(1);
  std::vector<char> out(8192);
  example::put(header.Msg_code, "99999");
  require(KovProtocolXMLCompose(&header, cameras.data(), KOV_REQUEST, KOV_PLAIN, nullptr, out.data(),
                                static_cast<int>(out.size())) == KOV_ERROR_UNKNOWN_MESSAGE,
          "an unknown code");
  require(std::strstr(own.lastError, "99999") != nullptr, "a line about the code");

  std::printf("%d information lines, %d errors, %d blocks\n", own.informationLines.load(), own.errorLines.load(),
              own.blocksGiven.load());
  return EXIT_SUCCESS;
}
