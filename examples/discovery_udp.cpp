// Cameras are found over UDP, and one of them gets another address.
//
// Discovery is the exception on the wire: a datagram holds one bare document, without a frame in front. In the field
// the question goes to everybody by broadcast; here two cameras listen on ports of the loopback interface.
#include <arpa/inet.h>
#include <kov_protocol/system_searchipc.h>
#include <netinet/in.h>

#include "example_frames.h"

using example::require;

namespace {

using Question = SYSTEM_SEARCHIPC_1_PARAM;
using Change = SYSTEM_SEARCHIPC_2_PARAM;
using Answer = SYSTEM_SEARCHIPC_3_PARAM;

constexpr std::size_t kLargestDatagram = 8192;

class UdpSocket {
 public:
  UdpSocket() : socket_(socket(AF_INET, SOCK_DGRAM, 0)) {
    sockaddr_in any = {};
    any.sin_family = AF_INET;
    any.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    require(bind(socket_, reinterpret_cast<const sockaddr*>(&any), sizeof any) == 0, "a port");
    example::limitWaiting(socket_);
  }
  UdpSocket(const UdpSocket&) = delete;
  UdpSocket& operator=(const UdpSocket&) = delete;
  ~UdpSocket() { close(socket_); }

  sockaddr_in address() const {
    sockaddr_in own = {};
    socklen_t size = sizeof own;
    require(getsockname(socket_, reinterpret_cast<sockaddr*>(&own), &size) == 0, "an address");
    return own;
  }

  void send(const char* code, const void* record, const sockaddr_in& to) const {
    const auto header = example::headerOf(SYSTEM_SEARCHIPC_MESSAGE_TYPE, code);
    char document[kLargestDatagram];
    const int length = KovProtocolXMLCompose(&header, record, KOV_REQUEST, KOV_PLAIN, nullptr, document,
                                             static_cast<int>(sizeof document));
    // Of a bare document compose copies what fits, but returns its whole length.
    require(length > 0 && length <= static_cast<int>(sizeof document), "a whole document");
    require(std::memcmp(document, "<?xml", 5) == 0, "a document without a frame in front");
    const auto size = static_cast<std::size_t>(length);
    const ssize_t sent = sendto(socket_, document, size, 0, reinterpret_cast<const sockaddr*>(&to), sizeof to);
    require(sent == length, "a datagram sent");
  }

  std::string receive(sockaddr_in& from) const {
    std::string datagram(kLargestDatagram, '\0');
    socklen_t size = sizeof from;
    const ssize_t got =
        recvfrom(socket_, datagram.data(), datagram.size(), 0, reinterpret_cast<sockaddr*>(&from), &size);
    require(got > 0, "a datagram received");
    datagram.resize(static_cast<std::size_t>(got));
    return datagram;
  }

 private:
  int socket_;
};

class Camera {
 public:
  Camera(const char* serialNumber, const char* address) : serialNumber_(serialNumber), address_(address) {}

  sockaddr_in listensAt() const { return socket_.address(); }
  std::string address() const { return address_; }

  // Reads one datagram. Only a search is answered.
  void serve() {
    sockaddr_in from = {};
    const example::Received message(socket_.receive(from));
    const std::string code = message.header.Msg_code;
    if (code == "1") answer(from);
    if (code == "2") move(message.as<Change>());
  }

 private:
  void answer(const sockaddr_in& to) const {
    Answer answer;
    example::put(answer.DeviceInfo.SerialNumber, serialNumber_);
    example::put(answer.DeviceInfo.DeviceType, "IPC");
    example::put(answer.LANConfig.IPAddress, address_);
    example::put(answer.LANConfig.Netmask, "255.255.255.0");
    socket_.send("3", &answer, to);
  }

  // All cameras hear of the change; the one that it is for knows its serial number.
  void move(const Change& change) {
    if (serialNumber_ == change.SerialNumber) address_ = change.LANConfig.IPAddress;
  }

  UdpSocket socket_;
  std::string serialNumber_;
  std::string address_;
};

// Who is there: serial number and address of each camera, in the order of the answers.
std::string search(const UdpSocket& client, Camera* cameras, int count) {
  Question question;
  example::put(question.VendorId, "kov");
  std::string found;
  for (int i = 0; i < count; ++i) {
    client.send("1", &question, cameras[i].listensAt());
    cameras[i].serve();
    sockaddr_in from = {};
    const example::Received message(client.receive(from));
    require(std::strcmp(message.header.Msg_code, "3") == 0, "an answer to the search");
    const auto& answer = message.as<Answer>();
    found += std::string(answer.DeviceInfo.SerialNumber) + " at " + answer.LANConfig.IPAddress + "\n";
  }
  return found;
}

}  // namespace

int main() {
  Camera cameras[] = {{"K0001", "192.0.2.11"}, {"K0002", "192.0.2.11"}};
  const UdpSocket client;
  const std::string before = search(client, cameras, 2);
  require(before == "K0001 at 192.0.2.11\nK0002 at 192.0.2.11\n", "two cameras with one address");

  Change change;
  example::put(change.SerialNumber, "K0002");
  example::put(change.LANConfig.IPAddress, "192.0.2.12");
  for (Camera& camera : cameras) {
    client.send("2", &change, camera.listensAt());
    camera.serve();
  }
  const std::string after = search(client, cameras, 2);
  require(after == "K0001 at 192.0.2.11\nK0002 at 192.0.2.12\n", "an address for each camera");
  std::printf("%s", after.c_str());
  return EXIT_SUCCESS;
}
