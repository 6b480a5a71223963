// What an application adds to the library: sockets, and the eight bytes in front of each document.
#pragma once

#include <arpa/inet.h>
#include <kov_protocol/kov_protocol.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace demo {

inline void require(bool condition, const std::string& what) {
  if (!condition) throw std::runtime_error(what);
}

// How a frame is coded: plain, by the peer-to-peer coder, or by the keyed coder.
struct Coding {
  int mode = KOV_PLAIN;
  void* key = nullptr;
};

// A received message. It owns the record that analysis handed out.
class Received {
 public:
  KOV_PROTOCOL_HEADER header = {};
  Coding coding;
  std::vector<char> behind;  // what the application on the other side sent behind the document

  template <class Record>
  const Record& as() const {
    require(record_ != nullptr, "a message without the record that was expected");
    return *static_cast<const Record*>(record_);
  }
  std::string code() const { return header.Msg_code; }

  void analyse(std::vector<char>& payload) {
    const int code = KovProtocolMSGAnalysisStart(payload.data(), static_cast<int>(payload.size()), coding.mode,
                                                 coding.key, &header, &record_);
    require(code >= 0, "analysis failed with " + std::to_string(code));
  }

  Received() = default;
  Received(Received&& other) noexcept
      : header(other.header), coding(other.coding), behind(std::move(other.behind)), record_(other.record_) {
    other.record_ = nullptr;
  }
  Received& operator=(Received&&) = delete;
  ~Received() { KovProtocolMSGAnalysisStop(&record_); }

 private:
  void* record_ = nullptr;
};

// One side of a connection. `name` stands in front of all that it prints.
class Link {
 public:
  Link(std::string name, int socket, void* key) : name_(std::move(name)), socket_(socket), key_(key) {
    require(socket_ >= 0, "no connection");
  }
  Link(const Link&) = delete;
  Link& operator=(const Link&) = delete;
  ~Link() { close(socket_); }

  void send(const KOV_PROTOCOL_HEADER& header, const void* record, int direction, const Coding& coding) {
    std::vector<char> frame(65536);
    const int length = KovProtocolXMLCompose(&header, record, direction, coding.mode, coding.key, frame.data(),
                                             static_cast<int>(frame.size()));
    require(length > 0, "compose failed with " + std::to_string(length));
    const bool plain = coding.mode < 0;
    std::printf("%s sends %s %s, %d bytes, %s\n", name_.c_str(), header.Msg_type, header.Msg_code, length,
                plain ? "plain:" : "encoded");
    if (plain) std::printf("%.*s\n", length - KOV_FRAME_HEADER_SIZE, frame.data() + KOV_FRAME_HEADER_SIZE);
    std::fflush(stdout);
    write(frame.data(), static_cast<std::size_t>(length));
  }

  // The next message. False when the other side has closed.
  bool receive(Received& message) {
    char frameHeader[KOV_FRAME_HEADER_SIZE];
    if (!read(frameHeader, sizeof frameHeader)) return false;
    std::uint32_t magic = 0;
    std::uint32_t length = 0;
    std::memcpy(&magic, frameHeader, sizeof magic);
    std::memcpy(&length, frameHeader + sizeof magic, sizeof length);
    require(length > 0 && length <= (1U << 20), "an impossible length");
    if (std::memcmp(frameHeader, KOV_FRAME_ENCODED_MAGIC, sizeof magic) == 0) {
      message.coding = {1, key_};
    } else {
      require(magic == KOV_FRAME_PLAIN_MAGIC, "not a frame");
    }
    std::vector<char> payload(length);
    require(read(payload.data(), payload.size()), "the connection ended inside a frame");
    message.analyse(payload);
    std::printf("%s received %s %s:", name_.c_str(), message.header.Msg_type, message.header.Msg_code);
    return true;
  }

 private:
  void write(const char* data, std::size_t size) {
    while (size > 0) {
      const ssize_t sent = ::send(socket_, data, size, MSG_NOSIGNAL);
      require(sent > 0, "sending failed");
      data += sent;
      size -= static_cast<std::size_t>(sent);
    }
  }

  bool read(char* data, std::size_t size) {
    while (size > 0) {
      const ssize_t got = ::recv(socket_, data, size, 0);
      if (got <= 0) return false;
      data += got;
      size -= static_cast<std::size_t>(got);
    }
    return true;
  }

  std::string name_;
  int socket_;
  void* key_;
};

inline sockaddr_in loopback(int port) {
  sockaddr_in address = {};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  return address;
}

inline int portOf(int socket) {
  sockaddr_in address = {};
  socklen_t size = sizeof address;
  require(getsockname(socket, reinterpret_cast<sockaddr*>(&address), &size) == 0, "no port");
  return ntohs(address.sin_port);
}

inline int listenOnLoopback() {
  const int listener = socket(AF_INET, SOCK_STREAM, 0);
  const sockaddr_in address = loopback(0);
  require(bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0, "cannot bind");
  require(listen(listener, 1) == 0, "cannot listen");
  return listener;
}

inline int connectToLoopback(int port) {
  const int connection = socket(AF_INET, SOCK_STREAM, 0);
  const sockaddr_in address = loopback(port);
  require(connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0, "cannot connect");
  return connection;
}

// A text into a field of a record.
template <std::size_t Capacity>
void put(char (&field)[Capacity], const std::string& text) {
  const std::size_t length = std::min(text.size(), Capacity - 1);
  std::memcpy(field, text.data(), length);
  field[length] = '\0';
}

}  // namespace demo
