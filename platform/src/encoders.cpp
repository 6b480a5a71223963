/**
 * @file encoders.cpp
 * @brief Stand-ins for the payload encoders. They protect nothing.
 *
 * Each exclusive-ors the payload with a byte sequence that anybody can compute. That exercises the encoded frames end
 * to end; it is neither encryption nor a checksum. A product defines the four functions itself.
 */
#include <cstdint>

#include "kov_platform/services.h"

namespace {

constexpr int kFailed = -1;
constexpr std::uint32_t kPeerToPeerSequence = 0x50325021;

/** Copies the payload, each byte changed by the sequence; doing it twice gives the payload back. */
int scramble(std::uint32_t state, const char *data, int dataLen, char *out, int outSize) {
  if (data == nullptr || out == nullptr || dataLen < 0 || outSize < dataLen) return kFailed;
  for (int at = 0; at < dataLen; ++at) {
    state = state * 1664525u + 1013904223u;
    out[at] = static_cast<char>(static_cast<unsigned char>(data[at]) ^ (state >> 24));
  }
  return dataLen;
}

}  // namespace

// The key may be any value, a handle of its owner included; it means something in one process only and is not used.

int KovProtocolEncode(int encodeMode, const char *data, int dataLen, char *out, int outSize, void * /*key*/) {
  return scramble(static_cast<std::uint32_t>(encodeMode), data, dataLen, out, outSize);
}

int KovProtocolDecode(int decodeMode, const char *data, int dataLen, char *out, int outSize, void * /*key*/) {
  return scramble(static_cast<std::uint32_t>(decodeMode), data, dataLen, out, outSize);
}

// A receiver knows a peer-to-peer payload by decode mode 0, whatever mode the sender used.

int P2pProtocolEncode(int /*encodeMode*/, const char *data, int dataLen, char *out, int outSize) {
  return scramble(kPeerToPeerSequence, data, dataLen, out, outSize);
}

int P2pProtocolDecode(int /*decodeMode*/, const char *data, int dataLen, char *out, int outSize) {
  return scramble(kPeerToPeerSequence, data, dataLen, out, outSize);
}
