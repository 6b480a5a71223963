/**
 * @file log.cpp
 * @brief Log service: one bounded line a call on standard error, errors only.
 *
 * Information lines carry whole messages, passwords included, so they stay silent unless the build asks for them.
 * An application that logs elsewhere defines the three functions itself.
 */
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstring>

#include "kov_platform/services.h"

/** What a build lets through: 0 errors, 1 information as well, 2 debugging as well. */
#ifndef KOV_PLATFORM_LOG_LEVEL
#define KOV_PLATFORM_LOG_LEVEL 0
#endif

namespace {

constexpr std::size_t kLineSize = 512;
constexpr char kCut[] = "...";
constexpr std::size_t kEscapeLength = 4;

/** Writes one byte to `out` as it may go to a terminal: a control byte as \xNN. Returns the bytes written. */
std::size_t appendEscaped(char *out, unsigned char c) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  if (c >= 0x20 && c != 0x7F) {
    *out = static_cast<char>(c);
    return 1;
  }
  out[0] = '\\';
  out[1] = 'x';
  out[2] = kDigits[c >> 4];
  out[3] = kDigits[c & 15];
  return kEscapeLength;
}

/** Writes `text` as one line: received bytes must not break it or steer the terminal. */
void writeLine(const char *text, std::size_t length, bool cut) {
  char line[kLineSize];
  constexpr std::size_t kRoom = kLineSize - kEscapeLength - sizeof kCut;  // sizeof counts the newline's byte
  if (!cut && length != 0 && text[length - 1] == '\n') --length;
  std::size_t used = 0;
  for (std::size_t at = 0; at < length; ++at) {
    if (used > kRoom) {
      cut = true;
      break;
    }
    used += appendEscaped(line + used, static_cast<unsigned char>(text[at]));
  }
  if (cut) {
    std::memcpy(line + used, kCut, sizeof kCut - 1);
    used += sizeof kCut - 1;
  }
  line[used++] = '\n';
  std::fwrite(line, 1, used, stderr);
}

void logFormatted(const char *format, std::va_list arguments) {
  char text[kLineSize];
  if (format == nullptr) return;
  const int wanted = std::vsnprintf(text, sizeof text, format, arguments);
  if (wanted < 0) return;
  const bool cut = static_cast<std::size_t>(wanted) >= sizeof text;
  writeLine(text, cut ? sizeof text - 1 : static_cast<std::size_t>(wanted), cut);
}

}  // namespace

void KovProtocolLogError(const char *format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  logFormatted(format, arguments);
  va_end(arguments);
}

void KovProtocolLogInfo(const char *format, ...) {
  if constexpr (KOV_PLATFORM_LOG_LEVEL >= 1) {
    std::va_list arguments;
    va_start(arguments, format);
    logFormatted(format, arguments);
    va_end(arguments);
  }
}

void KovProtocolLogDebug(const char *format, ...) {
  if constexpr (KOV_PLATFORM_LOG_LEVEL >= 2) {
    std::va_list arguments;
    va_start(arguments, format);
    logFormatted(format, arguments);
    va_end(arguments);
  }
}
