// What the fuzz targets share: the list of all messages, and both entries on blocks of exactly the given size.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "core/family_table.h"

namespace kov::fuzz {

// Text without a NUL. Not a std::string: half of one lives in the standard library, where MemorySanitizer sees nothing.
using Text = std::vector<char>;
inline void append(Text& text, std::string_view more) { text.insert(text.end(), more.begin(), more.end()); }
inline std::string_view view(const Text& text) { return {text.data(), text.size()}; }

// A message that can be named: of a code table, or of a family that has none.
struct Trial {
  const char* type;
  char code[32];
  RecordType record = {0, nullptr};  // of size 0: the code has no body
  const char* cmd = nullptr;         // the sub-command of a PTZ record
  const CodeTable* table = nullptr;
};
const std::vector<Trial>& everyTrial();

KOV_PROTOCOL_HEADER headerOf(const Trial& trial);

// Aborts, with MemorySanitizer, at a byte that nobody has set.
void checkInitialised(const void* memory, std::size_t size);
// The same for a whole block of the heap.
void checkBlock(const void* block);

struct StopAnalysis {
  void operator()(void* result) const { KovProtocolMSGAnalysisStop(&result); }
};
using Result = std::unique_ptr<void, StopAnalysis>;

struct Coding {
  int mode = KOV_PLAIN;
  void* key = nullptr;
};

// Composes into a block of exactly `size` bytes; returns what a peer would be given to analyse, empty after a failure.
Text compose(const KOV_PROTOCOL_HEADER& header, const void* record, int direction, Coding coding, int size);

// Analyses a payload in a block of exactly its size. What it hands out is checked to the last byte.
Result analyse(const Text& payload, Coding coding, KOV_PROTOCOL_HEADER& header);

// Whatever analysis has handed out may be composed, in any direction, and that analysed again.
void relay(const KOV_PROTOCOL_HEADER& header, const void* record);

}  // namespace kov::fuzz
