/**
 * @file bytes.h
 * @brief Short texts looked at and copied by several bytes at a time.
 */
#ifndef KOV_PLATFORM_BYTES_H
#define KOV_PLATFORM_BYTES_H

#include <cstddef>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace kov {

#ifdef __SSE2__

/** Bytes that one step looks at: sixteen where the machine can, else those of a machine word. */
class ByteBlock {
 public:
  static constexpr std::size_t kSize = 16;

  explicit ByteBlock(const char* bytes) : bytes_(_mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes))) {}

  void store(char* to) const { _mm_storeu_si128(reinterpret_cast<__m128i*>(to), bytes_); }

  /** The index of the first byte that equals `wanted`; kSize when none does. */
  std::size_t find(char wanted) const {
    const __m128i equal = _mm_cmpeq_epi8(bytes_, _mm_set1_epi8(wanted));
    return static_cast<std::size_t>(__builtin_ctz(static_cast<unsigned>(_mm_movemask_epi8(equal)) | 1U << kSize));
  }

 private:
  __m128i bytes_;
};

#else

/** Bytes that one step looks at. */
class ByteBlock {
  using Word = std::uintptr_t;

 public:
  static constexpr std::size_t kSize = sizeof(Word);

  explicit ByteBlock(const char* bytes) { std::memcpy(&word_, bytes, sizeof word_); }

  void store(char* to) const { std::memcpy(to, &word_, sizeof word_); }

  /** The index of the first byte that equals `wanted`; kSize when none does. */
  std::size_t find(char wanted) const {
    constexpr Word kOnes = ~Word{0} / 0xFF;  // 0x01 in every byte
    constexpr Word kLow = kOnes * 0x7F;
    const Word differing = word_ ^ (kOnes * static_cast<unsigned char>(wanted));
    const unsigned long long equal = static_cast<Word>(~(((differing & kLow) + kLow) | differing | kLow));
    if (equal == 0) return kSize;
    const bool littleEndian = __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__;
    constexpr unsigned kSpare = 8 * (sizeof equal - sizeof(Word));
    return static_cast<unsigned>(littleEndian ? __builtin_ctzll(equal) : __builtin_clzll(equal << kSpare)) / 8;
  }

 private:
  Word word_ = 0;
};

#endif

/** The length of a text in at most `capacity` bytes. */
inline std::size_t boundedLength(const char* text, std::size_t capacity) {
  const void* end = std::memchr(text, '\0', capacity);
  return end == nullptr ? capacity : static_cast<std::size_t>(static_cast<const char*>(end) - text);
}

/**
 * Copies up to 32 bytes without a call and returns the end of the copy. Two halves that overlap serve every length
 * between a power of two and the next.
 */
inline char* putShort(char* to, const char* from, std::size_t length) {
  const auto putHalves = [=](auto half) {
    auto first = half;
    auto last = half;
    std::memcpy(&first, from, sizeof half);
    std::memcpy(&last, from + length - sizeof half, sizeof half);
    std::memcpy(to, &first, sizeof half);
    std::memcpy(to + length - sizeof half, &last, sizeof half);
  };
  struct SixteenBytes {
    std::uint64_t words[2];
  };
  if (length >= 16) {
    putHalves(SixteenBytes{});
  } else if (length >= 8) {
    putHalves(std::uint64_t{});
  } else if (length >= 4) {
    putHalves(std::uint32_t{});
  } else {
    for (std::size_t i = 0; i < length; ++i) to[i] = from[i];
  }
  return to + length;
}

/** The same for a text of any length, which is mostly short. */
inline char* putText(char* to, const char* from, std::size_t length) {
  if (length <= 32) return putShort(to, from, length);
  std::memcpy(to, from, length);
  return to + length;
}

}  // namespace kov

#endif
