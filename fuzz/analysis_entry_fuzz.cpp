// The analysis entry on any payload, plain or through a decoder that may lie; what it hands out goes back to compose.
// A document chooses its own message, so the documents of the tests reach them all, and every byte that comes of them
// is checked.
#include <kov_platform/services.h>
#include <kov_protocol/kov_protocol.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "trials.h"

namespace {

constexpr int kOutput = 16384;

// Copies the payload over, as often as it fits, and claims the length that its first bytes spell.
int lie(const char* data, int dataLen, char* out, int outSize) {
  for (int done = 0; done + dataLen <= outSize; done += dataLen)
    std::memcpy(out + done, data, static_cast<std::size_t>(dataLen));
  std::int16_t claimed = 0;
  std::memcpy(&claimed, data, std::min<std::size_t>(sizeof claimed, static_cast<std::size_t>(dataLen)));
  return claimed < 0 ? dataLen : claimed;
}

void relay(const KOV_PROTOCOL_HEADER& header, const void* record) {
  const std::unique_ptr<char[]> out(new char[kOutput]);
  for (int direction = 0; direction < 2; ++direction) {
    for (const int size : {kOutput, 300}) {
      const int length = KovProtocolXMLCompose(&header, record, direction, KOV_PLAIN, nullptr, out.get(), size);
      const bool bare = length > 0 && out[0] == '<';
      if (length > size && !bare) std::abort();
      if (length > 0) kov::fuzz::checkInitialised(out.get(), static_cast<std::size_t>(std::min(length, size)));
    }
  }
}

#ifdef KOV_PLANTED_FAULT
// The fault that scripts/fuzz-selftest expects to be found: one byte is read behind the payload, when a message is
// accepted with a Msg_flag that takes two steps away from those of the seeds.
void readBehind(const char* payload, std::size_t length, const KOV_PROTOCOL_HEADER& header) {
  if (std::strlen(header.Msg_flag) < 4) return;
  if (std::strchr(header.Msg_flag, '!') == nullptr) return;
  if (payload[length] == '\0') std::abort();
}
#endif

}  // namespace

int KovProtocolDecode(int, const char* data, int dataLen, char* out, int outSize, void*) {
  return lie(data, dataLen, out, outSize);
}
int P2pProtocolDecode(int, const char* data, int dataLen, char* out, int outSize) {
  if (dataLen > outSize) return -1;
  std::memcpy(out, data, static_cast<std::size_t>(dataLen));
  return dataLen;
}
int KovProtocolEncode(int, const char* data, int dataLen, char* out, int outSize, void*) {
  return lie(data, dataLen, out, outSize);
}
int P2pProtocolEncode(int, const char* data, int dataLen, char* out, int outSize) {
  return lie(data, dataLen, out, outSize);
}

// The input is the payload, in a block of exactly its size. Its last byte chooses the decode mode, too: a document that
// ends in '>' is taken as plain.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t length) {
  if (length == 0) return 0;
  const int choice = input[length - 1] % 3;
  const int decodeMode = choice == '>' % 3 ? KOV_PLAIN : choice;
  const std::unique_ptr<char[]> payload(new char[length]);
  std::memcpy(payload.get(), input, length);
  KOV_PROTOCOL_HEADER header;
  void* result = nullptr;
  const int code =
      KovProtocolMSGAnalysisStart(payload.get(), static_cast<int>(length), decodeMode, nullptr, &header, &result);
#ifdef KOV_PLANTED_FAULT
  if (code == KOV_OK) readBehind(payload.get(), length, header);
#endif
  kov::fuzz::checkInitialised(&header, sizeof header);
  if (result != nullptr) kov::fuzz::checkBlock(result);
  if (code == KOV_OK && result != nullptr) relay(header, result);
  KovProtocolMSGAnalysisStop(&result);
  return 0;
}
