#include "core/frame.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>

#include "kov_platform/services.h"
#include "kov_protocol/kov_protocol.h"

namespace kov {
namespace {

constexpr std::size_t kMagicSize = 4;
constexpr std::size_t kStackScratch = 16384;

// Lets the encoder write into `scratch`, twice the size of `out`, and takes what fits. The encoder is told the capacity
// that the protocol names; the area is as large as that asks for.
int encodeThrough(char* scratch, char* out, int outSize, int documentLength, const Encoding& encoding) {
  const std::size_t scratchSize = 2 * static_cast<std::size_t>(outSize);
  std::memset(scratch, 0, scratchSize);
  const char* const document = out + KOV_FRAME_HEADER_SIZE;
  char* const encoded = scratch + KOV_FRAME_HEADER_SIZE;
  const int capacity = static_cast<int>(std::min<std::size_t>(scratchSize - KOV_FRAME_HEADER_SIZE, INT32_MAX));
  const int length = encoding.key != nullptr
                         ? KovProtocolEncode(encoding.mode, document, documentLength, encoded, capacity, encoding.key)
                         : P2pProtocolEncode(encoding.mode, document, documentLength, encoded, capacity);
  KovProtocolLogInfo("KovProtocolEncode done, ret:%d\n", length);
  if (length < 0) {
    KovProtocolLogError("KovProtocolEncode faile!!, ret:%d\n", length);
    return KOV_ERROR_CODING;
  }
  if (length > outSize - KOV_FRAME_HEADER_SIZE) return KOV_ERROR_SIZE;
  std::memcpy(scratch, KOV_FRAME_ENCODED_MAGIC, kMagicSize);
  std::memcpy(out, scratch, static_cast<std::size_t>(length) + KOV_FRAME_HEADER_SIZE);
  return length;
}

int encodeOnStack(char* out, int outSize, int documentLength, const Encoding& encoding) {
  char scratch[kStackScratch];
  return encodeThrough(scratch, out, outSize, documentLength, encoding);
}

int encode(char* out, int outSize, int documentLength, const Encoding& encoding) {
  const std::int64_t needed = (static_cast<std::int64_t>(documentLength) + 4) * 2;
  if (needed >= outSize) return KOV_ERROR_SIZE;
  const std::size_t scratchSize = 2 * static_cast<std::size_t>(outSize);
  if (scratchSize <= kStackScratch) return encodeOnStack(out, outSize, documentLength, encoding);
  const std::unique_ptr<char[]> scratch(new (std::nothrow) char[scratchSize]);
  if (scratch == nullptr) return KOV_ERROR_NO_MEMORY;
  return encodeThrough(scratch.get(), out, outSize, documentLength, encoding);
}

int framePlain(char* out, int documentLength) {
  const std::uint32_t magic = KOV_FRAME_PLAIN_MAGIC;
  std::memcpy(out, &magic, sizeof magic);
  return documentLength;
}

}  // namespace

int frameDocument(char* out, int outSize, std::int64_t documentLength, const Encoding& encoding,
                  std::uint32_t extraLen) {
  const int length = static_cast<int>(documentLength);
  const int payload = encoding.mode < 0 ? framePlain(out, length) : encode(out, outSize, length, encoding);
  if (payload < 0) {
    KovProtocolLogError("KovProtocolMessageEncryption failed , ret : %d\n", payload);
    return payload;
  }
  const std::uint32_t field = static_cast<std::uint32_t>(payload) + extraLen;
  std::memcpy(out + kMagicSize, &field, sizeof field);
  KovProtocolLogInfo("put buf len : %d\n", payload + KOV_FRAME_HEADER_SIZE);
  KovProtocolLogInfo("Msg HeadInfo len : %d\n", static_cast<int>(field));
  return payload + KOV_FRAME_HEADER_SIZE;
}

}  // namespace kov
