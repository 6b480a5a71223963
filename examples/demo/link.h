// What an application adds to the library: sockets, and the eight bytes in front of each document.
#pragma once

#include <kov_protocol/kov_protocol.h>
#include <netinet/in.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace demo {

void require(bool condition, const std::string& what);

// A socket on the loopback interface. Whatever waits on it fails after some seconds.
class Socket {
 public:
  explicit Socket(int descriptor);
  Socket(Socket&& other) noexcept;
  Socket& operator=(Socket&&) = delete;
  ~Socket();

  int descriptor() const { return descriptor_; }
  int port() const;

 private:
  int descriptor_;
};

Socket openUdp();            // on any free port
Socket openUdpTo(int port);  // talks to this port only
Socket listenTcp();          // on any free port
Socket acceptTcp(const Socket& listener);
Socket connectTcp(int port);

// How a frame is coded: readable, or by the keyed encoder of the platform.
enum class Coding { Plain, Keyed };

// A received message. It owns the record that analysis handed out.
class Received {
 public:
  KOV_PROTOCOL_HEADER header = {};
  std::string receiver;
  Coding coding;

  // `key` may be null for a plain payload.
  Received(std::string receivedBy, std::vector<char> payload, Coding how, void* key);

  bool is(const std::string& type, const std::string& code) const {
    return type == header.Msg_type && code == header.Msg_code;
  }

  // The type and the code say which record it is: look at them first.
  template <class Record>
  const Record& as() const {
    require(record_ != nullptr, "a message without the record that was expected");
    return *static_cast<const Record*>(record_.get());
  }

 private:
  struct Release {
    void operator()(void* record) const { KovProtocolMSGAnalysisStop(&record); }
  };
  std::unique_ptr<void, Release> record_;
};

// One side of a search: each datagram is a document, without anything around it. Answers go to who asked last.
class SearchLink {
 public:
  // `name` stands in front of all that is printed.
  SearchLink(std::string name, Socket socket) : name_(std::move(name)), socket_(std::move(socket)) {}

  void ask(const KOV_PROTOCOL_HEADER& header, const void* record);
  void answer(const KOV_PROTOCOL_HEADER& header, const void* record);
  Received receive();

 private:
  std::vector<char> compose(const KOV_PROTOCOL_HEADER& header, const void* record) const;

  std::string name_;
  Socket socket_;
  sockaddr_in asker_ = {};
};

// One side of a connection: a stream of frames.
class Link {
 public:
  Link(std::string name, Socket socket) : name_(std::move(name)), socket_(std::move(socket)) {}

  // Both sides set the same key before the first keyed frame.
  void setKey(const std::string& key) { key_ = key; }

  // `behind` goes out behind the document, in the same frame: the record has announced its length.
  void send(const KOV_PROTOCOL_HEADER& header, const void* record, int direction, Coding coding,
            const std::string& behind = {});

  // The next message; nothing when the other side has closed the connection.
  std::optional<Received> receive();

 private:
  void write(const char* data, std::size_t size) const;
  bool read(char* data, std::size_t size) const;

  std::string name_;
  Socket socket_;
  std::string key_;
};

}  // namespace demo
