#include "config/list_text.h"

#include <cstring>

#include "kov_platform/value_text.h"

namespace kov {
namespace {

constexpr std::size_t kMostNumbers = 6;
constexpr std::size_t kCutSize = 256;

static_assert(sizeof(SYSTEM_CONFIG_PERIOD) == kMostNumbers * sizeof(std::int32_t), "a period is six numbers");
static_assert(sizeof(SYSTEM_CONFIG_POINT) == 2 * sizeof(std::int32_t), "a point is two numbers");

std::size_t sizeOf(const EntryShape& shape) { return shape.numbers * sizeof(std::int32_t); }

constexpr std::size_t kMostEntry = kMostNumbers * (kMostTwoPlaces + 1) + 2;

char* putEntry(char* to, const EntryShape& shape, const char* entry) {
  *to++ = '[';
  for (std::size_t i = 0; i < shape.numbers; ++i, entry += sizeof(std::int32_t)) {
    std::int32_t number = 0;
    std::memcpy(&number, entry, sizeof number);
    to = putTwoPlaces(to, number, shape.padding);
    *to++ = shape.behind[i];
  }
  *to++ = ',';
  return to;
}

void writeEntries(BodyWriter& text, const EntryShape& shape, const ListTable& table) {
  const char* entry = static_cast<const char*>(table.entries);
  for (std::int32_t i = 0; i < table.count && i < table.capacity; ++i, entry += sizeOf(shape)) {
    char aside[kMostEntry];  // for an entry that may not fit
    const bool fits = text.room() >= kMostEntry;
    char* const to = fits ? text.cursor() : aside;
    char* const end = putEntry(to, shape, entry);
    if (fits) {
      text.advanceTo(end);
    } else {
      text.text(aside, static_cast<std::size_t>(end - aside));
    }
  }
}

// Reads an entry behind its opening bracket. One that was cut, or is none, changes nothing.
bool readEntry(const char* text, const EntryShape& shape, char* entry) {
  std::int32_t numbers[kMostNumbers];
  for (std::size_t i = 0; i < shape.numbers; ++i) {
    if (!scanInt(text, numbers[i]) || *text != shape.behind[i]) return false;
    ++text;
  }
  std::memcpy(entry, numbers, sizeOf(shape));
  return true;
}

// Goes from bracket to bracket, so that it moves on whatever stands behind one.
void readEntries(const char* text, const EntryShape& shape, const ListTable& table) {
  char* entry = static_cast<char*>(table.entries);
  for (std::int32_t room = table.capacity; room > 0 && (text = std::strchr(text, '[')) != nullptr;) {
    ++text;
    if (!readEntry(text, shape, entry)) continue;
    entry += sizeOf(shape);
    --room;
  }
}

void writeCut(BodyWriter& body, const EntryShape& shape, const ListTable& table) {
  char buffer[kCutSize];
  BodyWriter text(buffer, sizeof buffer);
  writeEntries(text, shape, table);
  body.text(buffer, text.written());
}

}  // namespace

constexpr EntryShape kPeriodEntry = {"::-::]", 6, '0'};
constexpr EntryShape kPointEntry = {",]", 2, '\0'};

void listAttribute(BodyIo& io, const char* name, const EntryShape& shape, const ListTable& table, ListText built) {
  if (io.reading()) {
    const char* const text = io.reader().attribute(name);
    if (text != nullptr) readEntries(text, shape, table);
    return;
  }
  BodyWriter& body = io.writer();
  body.text(name);
  body.literal("=\"");
  if (built == ListText::Cut) {
    writeCut(body, shape, table);
  } else {
    writeEntries(body, shape, table);
  }
  body.literal("\"\n");
}

void drawingAttributes(BodyIo& io, SYSTEM_CONFIG_DRAWING& r) {
  io.attributes({{"ShowAlarmCount", r.ShowAlarmCount},
                 {"ShowAlarmLine", r.ShowAlarmLine},
                 attr("VideoResolution", r.VideoResolution).separated('*'),
                 {"MaxCoordinateCapability", r.MaxCoordinateCapability},
                 {"LineCoordinatesNum", r.LineCoordinatesNum}});
  const ListTable points = {r.LineCoordinates, SYSTEM_CONFIG_POINTS, r.LineCoordinatesNum};
  listAttribute(io, "LineCoordinates", kPointEntry, points, ListText::Cut);
}

}  // namespace kov
