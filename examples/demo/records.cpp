#include "records.h"

#include <cstdio>

namespace demo {
namespace {

constexpr std::size_t kExcerpt = 40;

// What tells two different texts apart: a piece of one of them, around the first difference.
std::string excerpt(const std::string& text, std::size_t difference) {
  const std::size_t from = difference < kExcerpt / 2 ? 0 : difference - kExcerpt / 2;
  return std::string(from == 0 ? "'" : "'...") + text.substr(from, kExcerpt) + "'";
}

std::size_t firstDifference(const std::string& one, const std::string& other) {
  std::size_t at = 0;
  while (at < one.size() && at < other.size() && one[at] == other[at]) ++at;
  return at;
}

}  // namespace

Fields fieldsOf(const SYSTEM_SEARCHIPC_1_PARAM& r) { return {{"VendorId", r.VendorId}}; }

Fields fieldsOf(const SYSTEM_SEARCHIPC_3_PARAM& r) {
  Fields fields = {{"VendorId", r.VendorId},
                   {"SerialNumber", r.DeviceInfo.SerialNumber},
                   {"DevID", r.DeviceInfo.DevID},
                   {"DeviceType", r.DeviceInfo.DeviceType},
                   {"DeviceModule", r.DeviceInfo.DeviceModule},
                   {"Name", r.DeviceInfo.Name},
                   {"FileSystemVersion", r.DeviceInfo.FileSystemVersion},
                   {"MacAddress", r.LANConfig.MacAddress},
                   {"DHCP", r.LANConfig.DHCP},
                   {"MTU", r.LANConfig.MTU},
                   {"IPAddress", r.LANConfig.IPAddress},
                   {"Netmask", r.LANConfig.Netmask},
                   {"Gateway", r.LANConfig.Gateway},
                   {"DNS1", r.LANConfig.DNS1},
                   {"DNS2", r.LANConfig.DNS2},
                   {"Auth", r.StreamAccess.Auth},
                   {"VideoPort", r.StreamAccess.VideoPort},
                   {"RTPOverRTSP", r.StreamAccess.RTPOverRTSP},
                   {"PTZPort", r.StreamAccess.PTZPort},
                   {"WEBPort", r.StreamAccess.WEBPort},
                   {"RTSPClientNumber", r.StreamAccess.RTSPClientNumber},
                   {"RTPPacketSize", r.StreamAccess.RTPPacketSize},
                   {"AccountCount", r.AccountCount}};
  for (int i = 0; i < r.AccountCount; ++i) {
    const std::string account = "Account" + std::to_string(i) + ".";
    fields.emplace_back(account + "Username", r.Account[i].Username);
    fields.emplace_back(account + "Password", r.Account[i].Password);
    fields.emplace_back(account + "Group", r.Account[i].Group);
    fields.emplace_back(account + "Status", r.Account[i].Status);
  }
  return fields;
}

Fields fieldsOf(const USER_AUTH_CMD_USER_AUTH_PARAM& r) {
  return {{"Username", r.Username},   {"Password", r.Password}, {"AuthMethod", r.AuthMethod},
          {"Capbility", r.Capbility}, {"Version", r.Version},   {"KeyTypeVer", r.KeyTypeVer},
          {"Sessionid", r.Sessionid}, {"Group", r.Group},       {"MAXChannels", r.MAXChannels}};
}

Fields fieldsOf(const SYSTEM_ENCRYPT_150_PARAM& r) { return {{"KeyLen", r.KeyLen}, {"KeyValue", r.KeyValue}}; }

Fields fieldsOf(const KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM& r) {
  return {{"Ipcs_stat", r.Ipcs_stat},
          {"streamstat", r.streamstat},
          {"IpcAbility1", r.IpcAbility1},
          {"IpcProtoCol", r.IpcProtoCol}};
}

Fields fieldsOf(const LIVE_STREAM_CMD_STREAM_START_PARAM& r) {
  return {{"ChannelId", r.ChannelId},
          {"VideoStream", r.VideoStream},
          {"StreamID", r.StreamID},
          {"ConnectNum", r.ConnectNum},
          {"StreamNum", r.StreamNum},
          {"UseTcp", r.UseTcp},
          {"Multicast", r.Multicast},
          {"MulticastAddress", r.MulticastAddress},
          {"VideoPort", r.VideoPort},
          {"AudioPort", r.AudioPort},
          {"AudioEnable", r.AudioEnable},
          {"FrameType", r.FrameType},
          {"EnableChangeStream", r.EnableChangeStream},
          {"video.Encoder", r.video.Encoder},
          {"video.Width", r.video.Width},
          {"video.Height", r.video.Height},
          {"video.Framerate", r.video.Framerate},
          {"video.Bitrate", r.video.Bitrate},
          {"video.Config", r.video.Config},
          {"audio.Encoder", r.audio.Encoder},
          {"audio.SampleRate", r.audio.SampleRate},
          {"audio.SampleWidth", r.audio.SampleWidth},
          {"audio.Channels", r.audio.Channels},
          {"audio.Bitrate", r.audio.Bitrate}};
}

Fields fieldsOf(const LIVE_STREAM_CMD_STREAM_STOP_PARAM& r) {
  return {{"ChannelId", r.ChannelId}, {"StreamID", r.StreamID}, {"FrameType", r.FrameType}, {"UseTcp", r.UseTcp}};
}

Fields fieldsOf(const NVR_REPLAY_3001_PARAM& r) {
  return {{"ChannelId", r.ChannelId}, {"Time", r.Time}, {"Stream", r.Stream}};
}

Fields fieldsOf(const NVR_REPLAY_3002_PARAM& r) {
  return {{"ChannelId", r.ChannelId}, {"Time", r.Time}, {"RecType", r.RecType}, {"AudioEnable", r.AudioEnable}};
}

Fields fieldsOf(const NVR_REPLAY_3003_PARAM& r) { return {{"ChannelId", r.ChannelId}}; }

Fields fieldsOf(const NVR_REPLAY_3016_PARAM& r) {
  return {{"ChannelId", r.ChannelId}, {"Time", r.Time}, {"RecordData", r.RecordData}};
}

Fields fieldsOf(const NVR_REPLAY_3017_PARAM& r) {
  return {{"ChannelId", r.ChannelId},           {"Time", r.Time},
          {"SequenceNumber", r.SequenceNumber}, {"TotalPacketNum", r.TotalPacketNum},
          {"CurrentPacket", r.CurrentPacket},   {"TimeSliceInfo", r.TimeSliceInfo}};
}

Fields fieldsOf(const REPLAY_CONTROL_PARAM& r) {
  return {{"FileName", r.FileName}, {"StartPos", r.StartPos}, {"PlayParam", r.PlayParam}};
}

Fields fieldsOf(const SYSTEM_LOG_PARAM& r) {
  return {{"Cmd", r.Cmd},           {"Filename", r.Filename}, {"XmlLen", r.XmlLen}, {"RespDataLen", r.RespDataLen},
          {"StartPos", r.StartPos}, {"DataLen", r.DataLen}};
}

void print(const Received& message, const Fields& fields) {
  std::string line = message.receiver + " received " + message.header.Msg_type + " " + message.header.Msg_code + ":";
  for (const Field& field : fields) {
    if (!field.text.empty()) line += " " + field.name + "=" + field.text;
  }
  std::printf("%s\n", line.c_str());
  std::fflush(stdout);
}

void requireSame(const Fields& received, const Fields& expected) {
  require(received.size() == expected.size(), "another number of fields than the recorder holds");
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const std::size_t at = firstDifference(received[i].text, expected[i].text);
    require(received[i].text == expected[i].text, expected[i].name + " is " + excerpt(received[i].text, at) +
                                                      ", but the recorder holds " + excerpt(expected[i].text, at));
  }
}

}  // namespace demo
