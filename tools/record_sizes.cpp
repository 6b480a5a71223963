// Writes abi/record_sizes_64.txt, or 32: size and alignment of every public record, which applications compile in. The
// two differ for records with a pointer.
#include "record_names.h"

namespace kov::tools {
namespace {

template <class Record>
std::string lineOf(const char* name) {
  return std::string(name) + " " + std::to_string(sizeof(Record)) + " " + std::to_string(alignof(Record)) + "\n";
}

std::string sizes() {
  std::string text = "# record, bytes, alignment\n";
#define KOV_RECORD(record, header) text += lineOf<record>(#record);
#include "record_names.inc"
#undef KOV_RECORD
  return text;
}

}  // namespace
}  // namespace kov::tools

int main(int count, char** arguments) { return kov::tools::compareOrWrite(count, arguments, kov::tools::sizes()); }
