// What the fuzz targets share: the list of all messages, and both entries on blocks of exactly the given size.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "core/family_table.h"

namespace kov::fuzz {

// A message that can be named: of a code table, or of a family that has none.
struct Trial {
  const char* type;
  std::string code;
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
std::string compose(const KOV_PROTOCOL_HEADER& header, const void* record, int direction, Coding coding, int size);

// Analyses a payload in a block of exactly its size. What it hands out is checked to the last byte.
Result analyse(const std::string& payload, Coding coding, KOV_PROTOCOL_HEADER& header);

// Whatever analysis has handed out may be composed, in any direction, and that analysed again.
void relay(const KOV_PROTOCOL_HEADER& header, const void* record);

}  // namespace kov::fuzz
