#include "link.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <stdexcept>

namespace demo {
namespace {

constexpr int kPatienceSeconds = 10;
constexpr std::size_t kLargestDatagram = 16384;
constexpr std::size_t kLargestFrame = 65536;  // of those that are sent
constexpr std::uint32_t kLargestPayload = 1U << 20;
constexpr int kKeyedMode = 1;  // modes above 0 ask for the keyed coder in both directions

sockaddr_in loopback(int port) {
  sockaddr_in address = {};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  return address;
}

Socket bound(int type) {
  Socket opened(socket(AF_INET, type, 0));
  const sockaddr_in any = loopback(0);
  require(bind(opened.descriptor(), reinterpret_cast<const sockaddr*>(&any), sizeof any) == 0, "cannot bind");
  return opened;
}

Socket connected(int type, int port) {
  Socket opened(socket(AF_INET, type, 0));
  const sockaddr_in peer = loopback(port);
  require(connect(opened.descriptor(), reinterpret_cast<const sockaddr*>(&peer), sizeof peer) == 0, "cannot connect");
  return opened;
}

// The first bytes of what cannot be read.
std::string hexOf(const std::string& bytes) {
  static constexpr char kDigits[] = "0123456789abcdef";
  constexpr std::size_t kShown = 24;
  std::string text;
  for (const char byte : bytes.substr(0, kShown)) {
    const auto value = static_cast<unsigned char>(byte);
    text += {' ', kDigits[value >> 4], kDigits[value & 15]};
  }
  return bytes.size() > kShown ? text + " ..." : text;
}

void printSent(const std::string& name, const KOV_PROTOCOL_HEADER& header, const std::string& what) {
  std::printf("%s sends %s %s, %s\n", name.c_str(), header.Msg_type, header.Msg_code, what.c_str());
  std::fflush(stdout);  // before the other side prints what it makes of it
}

}  // namespace

void require(bool condition, const std::string& what) {
  if (!condition) throw std::runtime_error(what);
}

Socket::Socket(int descriptor) : descriptor_(descriptor) {
  require(descriptor >= 0, "no socket, or nobody connected in time");
  const timeval patience = {kPatienceSeconds, 0};
  const bool bounded = setsockopt(descriptor, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience) == 0 &&
                       setsockopt(descriptor, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience) == 0;
  if (!bounded) close(descriptor);
  require(bounded, "cannot bound the waiting time");
}

Socket::Socket(Socket&& other) noexcept : descriptor_(other.descriptor_) { other.descriptor_ = -1; }

Socket::~Socket() {
  if (descriptor_ >= 0) close(descriptor_);
}

int Socket::port() const {
  sockaddr_in address = {};
  socklen_t size = sizeof address;
  require(getsockname(descriptor_, reinterpret_cast<sockaddr*>(&address), &size) == 0, "no port");
  return ntohs(address.sin_port);
}

Socket openUdp() { return bound(SOCK_DGRAM); }
Socket openUdpTo(int port) { return connected(SOCK_DGRAM, port); }
Socket connectTcp(int port) { return connected(SOCK_STREAM, port); }

Socket listenTcp() {
  Socket listener = bound(SOCK_STREAM);
  require(listen(listener.descriptor(), 1) == 0, "cannot listen");
  return listener;
}

Socket acceptTcp(const Socket& listener) { return Socket(accept(listener.descriptor(), nullptr, nullptr)); }

Received::Received(std::string receivedBy, std::vector<char> payload, Coding how, void* key)
    : receiver(std::move(receivedBy)), coding(how) {
  void* record = nullptr;
  const int mode = coding == Coding::Plain ? KOV_PLAIN : kKeyedMode;
  const int code =
      KovProtocolMSGAnalysisStart(payload.data(), static_cast<int>(payload.size()), mode, key, &header, &record);
  record_.reset(record);  // after a failure too
  require(code >= 0, "analysis failed with " + std::to_string(code));
}

// Discovery leaves the library bare. The length is the whole document's, even where the buffer ends before.
std::vector<char> SearchLink::compose(const KOV_PROTOCOL_HEADER& header, const void* record) const {
  std::vector<char> document(kLargestDatagram);
  const int length = KovProtocolXMLCompose(&header, record, KOV_REQUEST, KOV_PLAIN, nullptr, document.data(),
                                           static_cast<int>(document.size()));
  require(length > 0, "compose failed with " + std::to_string(length));
  require(static_cast<std::size_t>(length) <= document.size(), "too long for a datagram");
  document.resize(static_cast<std::size_t>(length));
  printSent(name_, header, std::to_string(length) + " bytes, bare:\n" + std::string(document.begin(), document.end()));
  return document;
}

void SearchLink::ask(const KOV_PROTOCOL_HEADER& header, const void* record) {
  const std::vector<char> document = compose(header, record);
  const ssize_t sent = ::send(socket_.descriptor(), document.data(), document.size(), 0);
  require(sent == static_cast<ssize_t>(document.size()), "asking failed");
}

void SearchLink::answer(const KOV_PROTOCOL_HEADER& header, const void* record) {
  const std::vector<char> document = compose(header, record);
  const ssize_t sent = ::sendto(socket_.descriptor(), document.data(), document.size(), 0,
                                reinterpret_cast<const sockaddr*>(&asker_), sizeof asker_);
  require(sent == static_cast<ssize_t>(document.size()), "answering failed");
}

Received SearchLink::receive() {
  std::vector<char> document(kLargestDatagram);
  socklen_t size = sizeof asker_;
  const ssize_t got = ::recvfrom(socket_.descriptor(), document.data(), document.size(), 0,
                                 reinterpret_cast<sockaddr*>(&asker_), &size);
  require(got > 0, "no datagram came");
  document.resize(static_cast<std::size_t>(got));
  return Received(name_, std::move(document), Coding::Plain, nullptr);
}

void Link::send(const KOV_PROTOCOL_HEADER& header, const void* record, int direction, Coding coding,
                const std::string& behind) {
  std::vector<char> frame(kLargestFrame);
  const bool plain = coding == Coding::Plain;
  require(plain || !key_.empty(), "a keyed frame needs a key");
  const int length = KovProtocolXMLCompose(&header, record, direction, plain ? KOV_PLAIN : kKeyedMode,
                                           plain ? nullptr : key_.data(), frame.data(), static_cast<int>(frame.size()));
  require(length > 0, "compose failed with " + std::to_string(length));

  std::string what = std::to_string(length) + " bytes";
  if (!behind.empty()) what += " and " + std::to_string(behind.size()) + " behind the document";
  const std::string payload(frame.data() + KOV_FRAME_HEADER_SIZE, frame.data() + length);
  printSent(name_, header, what + (plain ? ", plain:\n" + payload : ", encoded:" + hexOf(payload)));

  write(frame.data(), static_cast<std::size_t>(length));
  write(behind.data(), behind.size());
}

std::optional<Received> Link::receive() {
  char frameHeader[KOV_FRAME_HEADER_SIZE];
  if (!read(frameHeader, sizeof frameHeader)) return std::nullopt;
  std::uint32_t magic = 0;
  std::uint32_t length = 0;
  std::memcpy(&magic, frameHeader, sizeof magic);
  std::memcpy(&length, frameHeader + sizeof magic, sizeof length);
  const bool encoded = std::memcmp(frameHeader, KOV_FRAME_ENCODED_MAGIC, sizeof magic) == 0;
  require(encoded || magic == KOV_FRAME_PLAIN_MAGIC, "not a frame");
  require(!encoded || !key_.empty(), "an encoded frame before there was a key");
  require(length > 0 && length <= kLargestPayload, "an impossible length");

  // The payload is all that the length counts: the document, and what the application sent behind it.
  std::vector<char> payload(length);
  require(read(payload.data(), payload.size()), "the connection ended inside a frame");
  return Received(name_, std::move(payload), encoded ? Coding::Keyed : Coding::Plain, key_.data());
}

void Link::write(const char* data, std::size_t size) const {
  while (size > 0) {
    const ssize_t sent = ::send(socket_.descriptor(), data, size, MSG_NOSIGNAL);
    require(sent > 0, "sending failed");
    data += sent;
    size -= static_cast<std::size_t>(sent);
  }
}

// False when the connection ends before `size` bytes have come.
bool Link::read(char* data, std::size_t size) const {
  while (size > 0) {
    const ssize_t got = ::recv(socket_.descriptor(), data, size, 0);
    require(got >= 0, "nothing came in time");
    if (got == 0) return false;
    data += got;
    size -= static_cast<std::size_t>(got);
  }
  return true;
}

}  // namespace demo
