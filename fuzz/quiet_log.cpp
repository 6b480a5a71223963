// The logger of the fuzz targets: formats every line, so that the sanitizers see what is printed, and drops it.
#include <cstdarg>
#include <cstdio>

#include "kov_platform/services.h"

namespace {

void formatOnly(const char* format, va_list arguments) {
  char line[256];
  std::vsnprintf(line, sizeof line, format, arguments);
}

}  // namespace

void KovProtocolLogInfo(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  formatOnly(format, arguments);
  va_end(arguments);
}

void KovProtocolLogError(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  formatOnly(format, arguments);
  va_end(arguments);
}

void KovProtocolLogDebug(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  formatOnly(format, arguments);
  va_end(arguments);
}
