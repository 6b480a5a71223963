// Parameter records: plain structs whose declarations state the defaults.
#pragma once

#include <cstddef>
#include <cstring>
#include <new>
#include <type_traits>

#include "kov_protocol/kov_protocol.h"

namespace kov {

// Every byte of a record is set, padding and reserved words included: zero first, then the defaults.
template <class Record>
void setDefaults(void* memory) {
  static_assert(std::is_trivially_copyable_v<Record> && std::is_trivially_destructible_v<Record>);
  std::memset(memory, 0, sizeof(Record));
  ::new (memory) Record;
}

// What every exported default filler does.
template <class Record>
int fillDefaults(Record* record) {
  if (record == nullptr) return KOV_ERROR_NULL;
  setDefaults<Record>(record);
  return KOV_OK;
}

// A record type without its type, for the analysis skeleton.
struct RecordType {
  std::size_t size;
  void (*setDefaults)(void* memory);
};

template <class Record>
constexpr RecordType kRecordType = {sizeof(Record), &setDefaults<Record>};

// Allocates a result block with KovProtocolMalloc and stores it in `*result`. When that fails `*result` is null, and
// the failure is told.
void* newBlock(std::size_t size, void** result);

// A new result record that holds the defaults.
template <class Record>
Record* newRecord(void** result) {
  void* const block = newBlock(sizeof(Record), result);
  if (block == nullptr) return nullptr;
  setDefaults<Record>(block);
  return static_cast<Record*>(block);
}

}  // namespace kov
