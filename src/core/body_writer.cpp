#include "core/body_writer.h"

namespace kov {

void BodyWriter::text(const char* text, std::size_t length) {
  if (length <= room()) {
    cursor_ = putText(cursor_, text, length);
  } else {
    cut(text, length);
  }
}

// What does not fit is cut, and counted.
void BodyWriter::cut(const char* text, std::size_t length) {
  const std::size_t fits = room();
  std::memcpy(cursor_, text, fits);
  cursor_ += fits;
  cut_ += length - fits;
}

}  // namespace kov
