// The document inside a received payload: found, logged and terminated without reading or writing outside the payload.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "core/text.h"

namespace kov {

class ReceivedText {
 public:
  static constexpr std::size_t kNowhere = SIZE_MAX;

  // `received` bytes stand in a buffer of `capacity` bytes, all of which may be written.
  ReceivedText(char* buffer, std::size_t received, std::size_t capacity)
      : text_(buffer), length_(boundedLength(buffer, received)), capacity_(capacity), end_(buffer + received) {}

  // Cuts the text behind its closing root tag and logs it. False when there is none.
  bool cutAtRootEnd();

  // Puts double quotes around [from, to) and logs the text again. False when memory runs out.
  bool quote(std::size_t from, std::size_t to);

  // Ends the text in a NUL, in place where the buffer has room for it. False when memory runs out.
  bool terminate();

  // The text as it was received; not necessarily followed by a NUL any more.
  void restore();

  const char* text() const { return text_; }
  std::size_t length() const { return length_; }
  // The length of the document as it was received.
  std::size_t documentLength() const { return length_ + (droppedBlank_ == '\0' ? 0 : 1); }
  char operator[](std::size_t at) const { return text_[at]; }  // at < length()

  // What was received behind the document.
  const char* tail() const { return tail_; }
  std::size_t tailLength() const { return static_cast<std::size_t>(end_ - tail_); }

  // Where a text first stands at or behind `from`. The search hops to the needle's character at `anchor`: a rare one
  // makes it fast.
  std::size_t find(const char* needle, std::size_t anchor = 0, std::size_t from = 0) const;
  bool contains(const char* needle, std::size_t anchor = 0) const { return find(needle, anchor) != kNowhere; }

 private:
  bool dropBlankBeforeRootEnd();
  bool takeCopy(std::size_t size);
  void log() const;

  char* text_;
  std::size_t length_;
  std::size_t capacity_;
  const char* end_;
  const char* tail_ = end_;
  std::unique_ptr<char[]> copy_;
  char droppedBlank_ = '\0';
};

}  // namespace kov
