// A message family: what the two entries call for one Msg_type, and the code table that most families are.
#pragma once

#include "core/message.h"

namespace kov {

// The 256 bytes of additional MESSAGE_HEADER lines: Msg_uuid, Msg_chn and what a family adds. A line that does not fit
// as a whole is left out, because a cut one would end the document.
class HeaderExtras {
 public:
  // Appends behind the `length` bytes that `buffer` holds already.
  HeaderExtras(char* buffer, std::size_t size, std::size_t length) : buffer_(buffer), size_(size), length_(length) {}

  template <std::size_t NameSize, std::size_t Capacity>
  void line(const char (&name)[NameSize], const char (&text)[Capacity]) {
    append(name, NameSize - 1, text, fieldLength(text));
  }
  // As line(), left out while the text is empty.
  template <std::size_t NameSize, std::size_t Capacity>
  void lineIfSet(const char (&name)[NameSize], const char (&text)[Capacity]) {
    if (isSet(text)) line(name, text);
  }
  template <std::size_t NameSize>
  void line(const char (&name)[NameSize], std::int32_t number) {
    append(name, NameSize - 1, number);
  }

  std::size_t length() const { return length_; }

 private:
  void append(const char* name, std::size_t nameLength, const char* text, std::size_t length);
  void append(const char* name, std::size_t nameLength, std::int32_t number);

  char* buffer_;
  std::size_t size_;
  std::size_t length_;
};

// One compose call, as far as a family sees it.
struct ComposeCall {
  const KOV_PROTOCOL_HEADER& header;
  const char* msgCode;  // NUL-terminated
  const void* param;    // never null
  int direction;
  std::uint32_t& extraLen;  // counts the bytes that the application sends behind the document
};

// One analysis call: the document is parsed once, for all readers.
struct AnalysisCall {
  const KovXMLParser& document;
  const char* text;        // NUL-terminated
  std::size_t textLength;  // of the document as it was received; the text may lack a blank of it
  const char* tail;        // what was received behind the document
  std::size_t tailLength;
  int received;  // length of the whole payload
  const char* msgCode;
  void** result;
};

// A row of a code table. A code without a message is known and has no body in either direction.
struct CodeRow {
  int code;
  const Message* message;
};

// Rows that stand together in one place.
struct CodeGroup {
  constexpr CodeGroup() = default;
  template <std::size_t Count>
  constexpr CodeGroup(const CodeRow (&group)[Count]) : rows(group), count(Count) {}

  const CodeRow* begin() const { return rows; }
  const CodeRow* end() const { return rows + count; }

  const CodeRow* rows = nullptr;
  std::size_t count = 0;
};

// A family that chooses its messages by the number in Msg_code.
class CodeTable {
 public:
  using LogUnknown = void (*)(const char* msgCode, int code);

  // `name` begins the line about empty arguments, usually the Msg_type.
  constexpr CodeTable(const char* name, CodeGroup rows, LogUnknown logUnknown)
      : name_(name), rows_(rows), logUnknown_(logUnknown) {}
  // A large family keeps its rows in groups, each beside its messages.
  template <std::size_t Count>
  constexpr CodeTable(const char* name, const CodeGroup* const (&groups)[Count], LogUnknown logUnknown)
      : name_(name), groups_(groups), groupCount_(Count), logUnknown_(logUnknown) {}

  int compose(const void* param, int direction, const char* msgCode, BodyWriter& body) const;
  int analyse(const KovXMLParser& document, const char* msgCode, void** result) const;

  // What the exported dispatchers do.
  int compose(const void* param, int direction, const char* msgCode, char* body, int bodySize) const;
  int analyse(const char* xml, const char* msgCode, void** result) const;

  std::size_t groupCount() const { return groups_ == nullptr ? 1 : groupCount_; }
  const CodeGroup& group(std::size_t index) const { return groups_ == nullptr ? rows_ : *groups_[index]; }

 private:
  const CodeRow* lookUp(int code) const;
  // The row of a code; null, and told, when there is none.
  const CodeRow* find(const char* msgCode) const;

  const char* name_;
  CodeGroup rows_;
  const CodeGroup* const* groups_ = nullptr;
  std::size_t groupCount_ = 0;
  LogUnknown logUnknown_;
};

// What the entries call for a Msg_type. A family that is a plain code table needs only that; a function goes before it.
struct Family {
  const CodeTable* codes = nullptr;
  int (*compose)(ComposeCall& call, BodyWriter& body) = nullptr;
  int (*analyse)(const AnalysisCall& call) = nullptr;
  int (*headerExtras)(ComposeCall& call, HeaderExtras& extras) = nullptr;  // optional, called before compose
};

}  // namespace kov
