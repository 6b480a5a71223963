/**
 * @file byte_block.h
 * @brief Several bytes looked at in one step: sixteen where the machine can, else those of a machine word.
 */
#ifndef KOV_PLATFORM_BYTE_BLOCK_H
#define KOV_PLATFORM_BYTE_BLOCK_H

#include <cstddef>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace kov {

#ifdef __SSE2__

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

}  // namespace kov

#endif
