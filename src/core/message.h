// A message is one constant: its name, its forms by direction, and where it departs from the rule.
#pragma once

#include "core/body_io.h"
#include "core/record.h"

namespace kov {

// What one direction of a message says, and the element that analysis recognises it by.
struct Form {
  void (*run)(BodyIo& io, void* record);
  const char* element;  // null: nothing is required, every body is read
};

template <class Record>
struct FormOf : Form {};

template <auto Function>
struct FormRecord;
template <class Record, void (*Function)(BodyIo&, Record&)>
struct FormRecord<Function> {
  using Type = Record;
};

// A form that analysis recognises by the given element under MESSAGE_BODY.
template <auto Function>
constexpr auto form(const char* element) {
  using Record = typename FormRecord<Function>::Type;
  return FormOf<Record>{{&runForm<Function, Record>, element}};
}
template <auto Function>
constexpr auto request = form<Function>("REQUEST_PARAM");
template <auto Function>
constexpr auto response = form<Function>("RESPONSE_PARAM");

// How a message takes the directions, 0 and 2 being requests, 1 and 3 responses. It shows in all other values.
enum class Direction : unsigned char {
  RequestIs02,   // anything else is a response
  ResponseIs13,  // anything else is a request
  Ignored        // the request form serves all
};

class Message {
 public:
  // The name begins all log lines of the message, with "Compose" or "Analysis" behind it. A null form writes nothing.
  template <class Record>
  constexpr Message(const char* name, FormOf<Record> request, FormOf<Record> response,
                    Direction direction = Direction::RequestIs02)
      : Message(name, kRecordType<Record>, request, response, direction, response.element) {}
  template <class Record>
  constexpr Message(const char* name, FormOf<Record> request, std::nullptr_t,
                    Direction direction = Direction::RequestIs02)
      : Message(name, kRecordType<Record>, request, Form{}, direction, request.element) {}
  template <class Record>
  constexpr Message(const char* name, std::nullptr_t, FormOf<Record> response,
                    Direction direction = Direction::RequestIs02)
      : Message(name, kRecordType<Record>, Form{}, response, direction, response.element) {}

  // Analysis tries the response's element first, unless a message says otherwise.
  constexpr Message requestFirst() const {
    Message copy = *this;
    copy.requestFirst_ = true;
    return copy;
  }
  // The element that the log names when analysis finds none; by default the response's.
  constexpr Message reportsMissing(const char* element) const {
    Message copy = *this;
    copy.missing_ = element;
    return copy;
  }
  // The name that compose, or analysis, logs under when it is not the message's own.
  constexpr Message composesAs(const char* name) const {
    Message copy = *this;
    copy.composeName_ = name;
    return copy;
  }
  constexpr Message reportsAs(const char* name) const {
    Message copy = *this;
    copy.reportName_ = name;
    return copy;
  }

  // Composes the body. A null record is told at information level and gives KOV_ERROR_EMPTY_ARGUMENT.
  int compose(const void* record, int direction, BodyWriter& body) const;

  // Reads a document into a new record.
  int analyse(const char* xml, void** result) const;
  // The same for a document that has been parsed.
  int analyse(const KovXMLParser& document, void** result) const;

  constexpr const char* name() const { return name_; }
  const RecordType& record() const { return record_; }

 private:
  constexpr Message(const char* name, RecordType record, Form request, Form response, Direction direction,
                    const char* missing)
      : name_(name),
        composeName_(name),
        reportName_(name),
        record_(record),
        request_(request),
        response_(response),
        missing_(missing),
        direction_(direction) {}

  const Form& formFor(int direction) const;
  const Form* formOf(const ElementReader& body) const;

  const char* name_;
  const char* composeName_;
  const char* reportName_;  // what a missing element is reported under
  RecordType record_;
  Form request_;
  Form response_;
  const char* missing_;
  Direction direction_;
  bool requestFirst_ = false;
};

constexpr bool isRequest(int direction) { return direction == 0 || direction == 2; }
constexpr bool isResponse(int direction) { return direction == 1 || direction == 3; }

// Finds MESSAGE_BODY in a parsed document. A failure is told under the given name and gives KOV_ERROR_BAD_DOCUMENT;
// `body` is then a missing element.
int findBody(const char* name, const KovXMLParser& document, ElementReader& body);

// A parsed document on the stack, for analysis from text. A failure is told under the given name and gives
// KOV_ERROR_BAD_DOCUMENT.
int parseDocument(const char* name, const char* xml, KovXMLParser& document);

}  // namespace kov
