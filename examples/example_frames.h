// What the examples share: checks, sockets inside one process, and whole frames through them.
#pragma once

#include <kov_protocol/kov_protocol.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace example {

// An example is also a test: it ends here when something is not as it says.
inline void require(bool condition, const std::string& what) {
  if (condition) return;
  std::fprintf(stderr, "Not as expected: %s\n", what.c_str());
  std::exit(EXIT_FAILURE);
}

// A text into a field of a record, cut to the field.
template <std::size_t Capacity>
void put(char (&field)[Capacity], const std::string& text) {
  const std::size_t length = std::min(text.size(), Capacity - 1);
  std::memcpy(field, text.data(), length);
  field[length] = '\0';
}

inline KOV_PROTOCOL_HEADER headerOf(const char* type, const char* code) {
  KOV_PROTOCOL_HEADER header;
  put(header.Msg_type, type);
  put(header.Msg_code, code);
  return header;
}

// A peer that falls silent in the middle of a message must not stop us for ever.
inline void limitWaiting(int socket) {
  timeval patience = {};
  patience.tv_sec = 5;
  require(setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience) == 0, "a receive timeout");
}

// Both ends of a connection. Real ones are in two processes, over TCP.
class Connection {
 public:
  Connection() {
    require(socketpair(AF_UNIX, SOCK_STREAM, 0, ends_) == 0, "two connected sockets");
    for (const int end : ends_) limitWaiting(end);
  }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  ~Connection() {
    for (const int end : ends_) close(end);
  }
  int client() const { return ends_[0]; }
  int device() const { return ends_[1]; }

 private:
  int ends_[2];
};

inline void sendAll(int socket, const char* data, std::size_t size) {
  while (size > 0) {
    const ssize_t sent = send(socket, data, size, MSG_NOSIGNAL);
    require(sent > 0, "the other side takes what is sent");
    data += sent;
    size -= static_cast<std::size_t>(sent);
  }
}

inline void receiveAll(int socket, char* data, std::size_t size) {
  while (size > 0) {
    const ssize_t got = recv(socket, data, size, 0);
    require(got > 0, "the other side sends as much as it announced");
    data += got;
    size -= static_cast<std::size_t>(got);
  }
}

// The frame of a message. The caller keeps the record; compose only reads it.
inline std::vector<char> composeFrame(const KOV_PROTOCOL_HEADER& header, const void* record, int direction) {
  std::vector<char> frame(65536);
  const int length = KovProtocolXMLCompose(&header, record, direction, KOV_PLAIN, nullptr, frame.data(),
                                           static_cast<int>(frame.size()));
  require(length > 0, "a composed message, not code " + std::to_string(length));
  frame.resize(static_cast<std::size_t>(length));
  return frame;
}

inline void sendMessage(int socket, const KOV_PROTOCOL_HEADER& header, const void* record, int direction) {
  const std::vector<char> frame = composeFrame(header, record, direction);
  sendAll(socket, frame.data(), frame.size());
}

// What a frame header announces to follow. The number comes from the peer, so it is believed only up to a limit.
inline std::uint32_t announcedLength(const char* frameHeader) {
  constexpr std::uint32_t kMost = 1U << 18;
  std::uint32_t magic = 0;
  std::uint32_t length = 0;
  std::memcpy(&magic, frameHeader, sizeof magic);
  std::memcpy(&length, frameHeader + sizeof magic, sizeof length);
  require(magic == KOV_FRAME_PLAIN_MAGIC, "a plain frame");
  require(length > 0 && length <= kMost, "a possible length");
  return length;
}

// What stands behind the frame header of the next frame.
inline std::string receivePayload(int socket) {
  char frameHeader[KOV_FRAME_HEADER_SIZE];
  receiveAll(socket, frameHeader, sizeof frameHeader);
  std::string payload(announcedLength(frameHeader), '\0');
  receiveAll(socket, payload.data(), payload.size());
  return payload;
}

// A received message. It owns the record that analysis handed out.
class Received {
 public:
  explicit Received(std::string payload) {
    const int code = KovProtocolMSGAnalysisStart(payload.data(), static_cast<int>(payload.size()), KOV_PLAIN, nullptr,
                                                 &header, &record_);
    require(code == KOV_OK, "an analysed message, not code " + std::to_string(code));
  }
  explicit Received(int socket) : Received(receivePayload(socket)) {}
  Received(const Received&) = delete;
  Received& operator=(const Received&) = delete;
  ~Received() { KovProtocolMSGAnalysisStop(&record_); }

  KOV_PROTOCOL_HEADER header = {};

  // The caller knows from the header which record it is. Some messages, heartbeats for one, may come without.
  template <class Record>
  const Record& as() const {
    require(record_ != nullptr, "a message with a record");
    return *static_cast<const Record*>(record_);
  }

 private:
  void* record_ = nullptr;
};

// The header alone. That is all there is in a message with an empty body, as many queries and most acknowledgements
// have: analysis would miss the body's elements.
inline KOV_PROTOCOL_HEADER readHeader(const std::string& payload) {
  KOV_PROTOCOL_HEADER header = {};
  require(GetMessageHeader(payload.c_str(), &header) == KOV_OK, "a message with a header");
  return header;
}

}  // namespace example
