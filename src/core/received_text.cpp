#include "core/received_text.h"

#include <new>

#include "kov_platform/services.h"
#include "kov_platform/value_text.h"

namespace kov {
namespace {

constexpr char kRootEnd[] = "</XML_ZANTIR>";
constexpr std::size_t kRootEndLength = sizeof kRootEnd - 1;
constexpr std::size_t kRootEndAnchor = 6;  // Z

}  // namespace

std::size_t ReceivedText::find(const char* needle, std::size_t anchor, std::size_t from) const {
  const std::size_t length = std::strlen(needle);
  const char* const end = text_ + length_;
  const char* at = text_ + from;
  while (static_cast<std::size_t>(end - at) >= length) {
    const std::size_t starts = static_cast<std::size_t>(end - at) - length + 1;
    const void* const hop = std::memchr(at + anchor, needle[anchor], starts);
    if (hop == nullptr) return kNowhere;
    at = static_cast<const char*>(hop) - anchor;
    if (std::memcmp(at, needle, length) == 0) return static_cast<std::size_t>(at - text_);
    ++at;
  }
  return kNowhere;
}

bool ReceivedText::cutAtRootEnd() {
  const std::size_t rootEnd = find(kRootEnd, kRootEndAnchor);
  if (rootEnd == kNowhere) return false;
  length_ = rootEnd + kRootEndLength;
  tail_ = text_ + length_;
  log();
  return true;
}

bool ReceivedText::quote(std::size_t from, std::size_t to) {
  const char* const received = text_;
  const std::size_t receivedLength = length_;
  if (!takeCopy(receivedLength + 3)) return false;
  text_[from] = '"';
  std::memcpy(text_ + from + 1, received + from, to - from);
  text_[to + 1] = '"';
  std::memcpy(text_ + to + 2, received + to, receivedLength - to);
  length_ = receivedLength + 2;
  log();
  return true;
}

bool ReceivedText::terminate() {
  if (length_ == capacity_ && !dropBlankBeforeRootEnd() && !takeCopy(length_ + 1)) return false;
  text_[length_] = '\0';
  return true;
}

// A plain frame usually ends where its document ends. The blank in front of the closing root tag says nothing, so the
// tag moves one byte ahead and leaves its last byte to the NUL.
bool ReceivedText::dropBlankBeforeRootEnd() {
  char* const rootEnd = text_ + length_ - kRootEndLength;
  if (rootEnd == text_ || !isBlank(rootEnd[-1])) return false;
  droppedBlank_ = rootEnd[-1];
  std::memmove(rootEnd - 1, rootEnd, kRootEndLength);
  --length_;
  return true;
}

void ReceivedText::restore() {
  if (droppedBlank_ == '\0') return;
  char* const rootEnd = text_ + length_ - kRootEndLength;
  std::memmove(rootEnd + 1, rootEnd, kRootEndLength);
  *rootEnd = droppedBlank_;
  droppedBlank_ = '\0';
  ++length_;
}

// Goes on in a block of its own, which begins with the text.
bool ReceivedText::takeCopy(std::size_t size) {
  std::unique_ptr<char[]> copy(new (std::nothrow) char[size]);
  if (copy == nullptr) return false;
  std::memcpy(copy.get(), text_, length_);
  copy_ = std::move(copy);
  text_ = copy_.get();
  capacity_ = size;
  return true;
}

void ReceivedText::log() const {
  KovProtocolLogInfo("KovProtocolMSGAnalysisStart get msgbuf:%.*s\n", static_cast<int>(length_), text_);
}

}  // namespace kov
