// Attributes that carry a whole table as text, a bracket an entry and a comma behind each: Name="[3,4],[5,6],".
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/body_io.h"
#include "kov_protocol/system_config_detection.h"

namespace kov {

// How the text of a list is built. Some lists pass through a buffer of 256 bytes that cuts them, others do not.
enum class ListText : unsigned char { Whole, Cut };

// One kind of entry: its numbers stand in the record one behind the other.
struct EntryShape {
  const char* behind;  // what follows each number, up to the closing bracket
  std::size_t numbers;
  char padding;  // of a number to two places; NUL: none
};
extern const EntryShape kPeriodEntry;  // [08:00:00-17:30:00]
extern const EntryShape kPointEntry;   // [640,360]

struct ListTable {
  void* entries;
  std::int32_t capacity;
  std::int32_t count;  // what the record claims; any number
};

// One list attribute. Writing takes the first `count` entries as far as the table has them; reading takes the whole
// entries of the text as far as the table has room.
void listAttribute(BodyIo& io, const char* name, const EntryShape& shape, const ListTable& table, ListText built);

template <std::size_t Capacity>
void periodList(BodyIo& io, const char* name, SYSTEM_CONFIG_PERIOD (&table)[Capacity], std::int32_t count,
                ListText built = ListText::Whole) {
  listAttribute(io, name, kPeriodEntry, {table, static_cast<std::int32_t>(Capacity), count}, built);
}

// The attributes of a drawing, whose point list is always cut.
void drawingAttributes(BodyIo& io, SYSTEM_CONFIG_DRAWING& r);

}  // namespace kov
