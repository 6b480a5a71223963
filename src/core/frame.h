// The 8-byte frame header, and the platform's encoders behind it.
#pragma once

#include <cstdint>

namespace kov {

struct Encoding {
  int mode;  // below 0: plain
  void* key;
};

// Frames a document that stands at out + KOV_FRAME_HEADER_SIZE already, in place. The length field counts the payload
// and `extraLen` bytes that the application sends behind it. Returns the length of the frame, or a code, told.
int frameDocument(char* out, int outSize, std::int64_t documentLength, const Encoding& encoding,
                  std::uint32_t extraLen);

}  // namespace kov
