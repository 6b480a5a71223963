// The names of all records of the public headers, which the build reads out of them.
#pragma once

#include <vector>

#include "core/record.h"
#include "page_check.h"
#include "public_headers.inc"

namespace kov::tools {

struct RecordName {
  RecordType type;
  const char* name;
  const char* header;
};

constexpr RecordName kRecordNames[] = {
#define KOV_RECORD(record, header) {kRecordType<record>, #record, header},
#include "record_names.inc"
#undef KOV_RECORD
};

// A record type is known by its defaults: each type has its own function.
inline const RecordName& recordName(const RecordType& type) {
  for (const RecordName& record : kRecordNames) {
    if (record.type.setDefaults == type.setDefaults && record.type.size == type.size) return record;
  }
  fail("a record that no public header declares");
}

}  // namespace kov::tools
