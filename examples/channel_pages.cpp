// A recorder sends its list of 64 channels in pages, and a client puts them together.
//
// The client names the size of a page once; the recorder answers with as many messages as it takes and marks the last.
#include <kov_protocol/system_config.h>

#include <memory>

#include "example_frames.h"

using example::require;

namespace {

using ChannelList = SYSTEM_CONFIG_GET_3803_PARAM;
using Channel = SYSTEM_CONFIG_CHANNEL_INFO;

constexpr int kPageSize = 24;  // the last page of 64 channels is not full

const auto kHeader = example::headerOf(SYSTEM_CONFIG_GET_MESSAGE_TYPE, "3803");

Channel channelOf(int number) {
  Channel channel;
  channel.ChannelId = number;
  channel.Status = number % 3;
  channel.CtrlPort = 8000 + number;
  example::put(channel.Protocol, "KOV");
  example::put(channel.IpAddr, "192.0.2." + std::to_string(10 + number));
  example::put(channel.ChannnelName, "Gate " + std::to_string(number));
  return channel;
}

// Recorder: one page, the channels from `first` on. A slot with the channel -1 is empty and ends the page.
void sendPage(int socket, int first, int pageSize) {
  const auto page = std::make_unique<ChannelList>();  // 64 channels are too much for small stacks
  page->DivideResponse = pageSize;
  page->ChannelCount = SYSTEM_CONFIG_CHANNELS;
  page->EndPackage = first + pageSize >= SYSTEM_CONFIG_CHANNELS ? 1 : 0;
  const int end = std::min(first + pageSize, SYSTEM_CONFIG_CHANNELS);
  for (int number = first; number < end; ++number) page->Channels[number - first] = channelOf(number);
  example::sendMessage(socket, kHeader, page.get(), KOV_RESPONSE);
}

void serveList(int socket) {
  const example::Received request(socket);
  const int pageSize = request.as<ChannelList>().DivideResponse;
  // A size from the network: 0 would never end.
  require(pageSize > 0 && pageSize <= SYSTEM_CONFIG_CHANNELS, "a possible page size");
  for (int first = 0; first < SYSTEM_CONFIG_CHANNELS; first += pageSize) sendPage(socket, first, pageSize);
}

// The counts of a page. Peers that put them into a REQUEST_PARAM get them read into the record; this library writes
// them without any element, and then they are text in front of the first channel.
int countOf(const std::string& payload, int read, const std::string& name) {
  if (read != -1) return read;
  const std::size_t at = payload.find(name + "=\"");
  require(at < payload.find("<ChannelInfo"), name + " in front of the channels");
  return std::atoi(payload.c_str() + at + name.size() + 2);
}

// Client: takes one page into the list. Returns whether it was the last.
bool receivePage(int socket, std::vector<Channel>& channels) {
  const std::string payload = example::receivePayload(socket);
  const example::Received page(payload);
  const auto& list = page.as<ChannelList>();
  require(countOf(payload, list.ChannelCount, "ChannelCount") == SYSTEM_CONFIG_CHANNELS, "the count of all channels");
  for (const Channel& slot : list.Channels) {
    if (slot.ChannelId == -1) break;
    channels.push_back(slot);
  }
  return countOf(payload, list.EndPackage, "EndPackage") == 1;
}

bool same(const Channel& a, const Channel& b) {
  return a.ChannelId == b.ChannelId && a.Status == b.Status && a.CtrlPort == b.CtrlPort &&
         std::strcmp(a.Protocol, b.Protocol) == 0 && std::strcmp(a.IpAddr, b.IpAddr) == 0 &&
         std::strcmp(a.ChannnelName, b.ChannnelName) == 0;
}

}  // namespace

int main() {
  const example::Connection connection;
  const auto query = std::make_unique<ChannelList>();
  query->DivideResponse = kPageSize;
  example::sendMessage(connection.client(), kHeader, query.get(), KOV_REQUEST);
  serveList(connection.device());  // elsewhere at the other end of the network

  std::vector<Channel> channels;
  int pages = 1;
  while (!receivePage(connection.client(), channels)) {
    require(channels.size() == static_cast<std::size_t>(pages) * kPageSize, "a full page");
    ++pages;
  }
  require(pages == 3, "three pages");
  require(channels.size() == SYSTEM_CONFIG_CHANNELS, "all channels");
  for (int number = 0; number < SYSTEM_CONFIG_CHANNELS; ++number) {
    const Channel& channel = channels[static_cast<std::size_t>(number)];
    require(same(channel, channelOf(number)), "channel " + std::to_string(number) + " as the recorder has it");
  }
  std::printf("%zu channels in %d pages\n", channels.size(), pages);
  return EXIT_SUCCESS;
}
