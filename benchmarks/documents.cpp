#include "documents.h"

#include <cstdlib>
#include <cstring>
#include <pugixml.hpp>

#include "kov_protocol/nvr_replay.h"
#include "kov_protocol/system_config.h"
#include "kov_protocol/system_searchipc.h"

namespace kov::bench {
namespace {

template <std::size_t Capacity>
void put(char (&field)[Capacity], const char* text) {
  std::strncpy(field, text, Capacity - 1);
}

template <class Record, int (*Defaults)(Record*)>
char* newRecord(std::size_t valuesSize) {
  void* const block = std::malloc(sizeof(Record) + valuesSize);
  Defaults(static_cast<Record*>(block));
  return static_cast<char*>(block);
}

// Records are kept for the whole run.
template <class Record>
Record& make() {
  return *new Record();
}

bool isNumber(const char* text) {
  char* end = nullptr;
  std::strtol(text, &end, 10);
  return end != text && *end == '\0';
}

PlannedElement planOf(const pugi::xml_node& node, std::size_t& size) {
  PlannedElement element = {node.name(), {}, {}};
  for (const pugi::xml_attribute& attribute : node.attributes()) {
    const bool number = isNumber(attribute.value());
    element.attributes.push_back({attribute.name(), number, size});
    size += number ? sizeof(int) : kTextSize;
  }
  for (const pugi::xml_node& child : node.children()) {
    if (child.type() == pugi::node_element) element.children.push_back(planOf(child, size));
  }
  return element;
}

template <class Record, int (*Defaults)(Record*)>
Sample sampleOf(const char* name, const char* type, const char* code, int direction, const Record* record) {
  Sample sample = {};
  sample.newRecord = newRecord<Record, Defaults>;
  sample.recordSize = sizeof(Record);
  sample.name = name;
  put(sample.header.Msg_type, type);
  put(sample.header.Msg_code, code);
  put(sample.header.Msg_flag, "17");
  put(sample.header.Msg_uuid, "6b2f0d51-8c4e");
  sample.record = record;
  sample.direction = direction;
  std::vector<char> out(1 << 18);
  const int length = KovProtocolXMLCompose(&sample.header, record, direction, KOV_PLAIN, nullptr, out.data(),
                                           static_cast<int>(out.size()));
  const std::size_t skip = out[0] == '<' ? 0 : KOV_FRAME_HEADER_SIZE;
  sample.document.assign(out.data() + skip, static_cast<std::size_t>(length) - skip);
  pugi::xml_document parsed;
  if (!parsed.load_string(sample.document.c_str())) std::abort();  // the samples are well formed for everybody
  sample.plan = planOf(parsed.document_element(), sample.valuesSize);
  return sample;
}

Sample query() {
  auto& record = make<NVR_REPLAY_3001_PARAM>();
  record.ChannelId = 3;
  put(record.Time, "2026-11-21 08:00:00");
  return sampleOf<NVR_REPLAY_3001_PARAM, NVR_REPLAY_3001_PARAM_init>("query", NVR_REPLAY_MESSAGE_TYPE, "3001",
                                                                     KOV_REQUEST, &record);
}

Sample discoveryAnswer() {
  auto& record = make<SYSTEM_SEARCHIPC_3_PARAM>();
  put(record.DeviceInfo.DeviceType, "IPC");
  put(record.DeviceInfo.DeviceModule, "module");
  put(record.DeviceInfo.SerialNumber, "A1234567890");
  put(record.DeviceInfo.DevID, "D1");
  put(record.LANConfig.MacAddress, "00:11:22:33:44:55");
  put(record.LANConfig.IPAddress, "192.168.1.10");
  put(record.LANConfig.Netmask, "255.255.255.0");
  put(record.LANConfig.Gateway, "192.168.1.1");
  record.LANConfig.DHCP = 1;
  record.AccountCount = 4;
  for (int i = 0; i < 4; ++i) {
    put(record.Account[i].Username, "user");
    put(record.Account[i].Password, "password");
    put(record.Account[i].Group, "admin");
    put(record.Account[i].Status, "1");
  }
  record.StreamAccess.Auth = 1;
  record.StreamAccess.VideoPort = 554;
  return sampleOf<SYSTEM_SEARCHIPC_3_PARAM, SYSTEM_SEARCHIPC_3_PARAM_init>(
      "discovery answer", SYSTEM_SEARCHIPC_MESSAGE_TYPE, "3", KOV_RESPONSE, &record);
}

// The whole media configuration is unbalanced on the wire; a channel's is its balanced twin.
Sample mediaConfiguration() {
  auto& record = make<SYSTEM_CONFIG_GET_501_PARAM>();
  std::memset(static_cast<void*>(&record), '1', sizeof record);
  record.Status = -1;
  record.ChannelId = 1;
  return sampleOf<SYSTEM_CONFIG_GET_501_PARAM, SYSTEM_CONFIG_GET_501_PARAM_init>(
      "media configuration", SYSTEM_CONFIG_GET_MESSAGE_TYPE, "501", KOV_RESPONSE, &record);
}

Sample detectionRule() {
  auto& record = make<SYSTEM_CONFIG_GET_1402_PARAM>();
  for (SYSTEM_CONFIG_DETECTION_RULE* rule : {&record.RegionDetection, &record.CrossBoundaryDetection}) {
    rule->Enable = 1;
    rule->drawing.LineCoordinatesNum = 4;
    rule->LightAlarmPeriodNum = rule->AudioAlarmPeriodNum = rule->EmailAlarmPeriodNum = 2;
  }
  return sampleOf<SYSTEM_CONFIG_GET_1402_PARAM, SYSTEM_CONFIG_GET_1402_PARAM_init>(
      "detection rule", SYSTEM_CONFIG_GET_MESSAGE_TYPE, "1402", KOV_RESPONSE, &record);
}

}  // namespace

Sample channelList(int channels) {
  auto& record = make<SYSTEM_CONFIG_GET_3803_PARAM>();
  record.ChannelCount = channels;
  for (int i = 0; i < channels; ++i) {
    SYSTEM_CONFIG_CHANNEL_INFO& channel = record.Channels[i];
    channel.ChannelId = i;
    channel.CtrlPort = 80;
    channel.DevMode = 1;
    channel.Status = 1;
    put(channel.Protocol, "PRIVATE");
    put(channel.IpAddr, "192.168.1.100");
    put(channel.Username, "admin");
    put(channel.Password, "secret");
    put(channel.ChannnelName, "Front door");
    channel.RtspMainResPort = channel.RtspSubResPort = 554;
    put(channel.RtspMainResPath, "/main/stream");
    put(channel.RtspSubResPath, "/sub/stream");
  }
  const std::string name = std::to_string(channels) + " channels";
  return sampleOf<SYSTEM_CONFIG_GET_3803_PARAM, SYSTEM_CONFIG_GET_3803_PARAM_init>(
      name.c_str(), SYSTEM_CONFIG_GET_MESSAGE_TYPE, "3803", KOV_RESPONSE, &record);
}

const std::vector<Sample>& samples() {
  static const std::vector<Sample> all = {query(), discoveryAnswer(), mediaConfiguration(), detectionRule(),
                                          channelList(64)};
  return all;
}

}  // namespace kov::bench
