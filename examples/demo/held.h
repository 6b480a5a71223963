// What the recorder holds. Only the recorder answers from it; the client knows it to compare the answers with.
#pragma once

#include "records.h"

namespace demo::held {

inline const std::string kVendor = "demo-vendor";
inline const std::string kUser = "operator";
inline const std::string kPassword = "let-me-see";

// What a search finds: who the recorder is, its network, its accounts, its ports. Of the ports, PTZPort is the one of
// commands: the frames of a session go there. VideoPort and WEBPort are those of pictures and pages.
inline SYSTEM_SEARCHIPC_3_PARAM identity(int controlPort) {
  SYSTEM_SEARCHIPC_3_PARAM r;
  put(r.VendorId, kVendor);
  put(r.DeviceInfo.SerialNumber, "DEMO00000017");
  put(r.DeviceInfo.DevID, "17");
  put(r.DeviceInfo.DeviceType, "NVR");
  put(r.DeviceInfo.DeviceModule, "R16");
  put(r.DeviceInfo.Name, "Warehouse east");
  put(r.DeviceInfo.FileSystemVersion, "3.1.4");
  put(r.LANConfig.MacAddress, "02:00:5E:10:00:11");
  put(r.LANConfig.IPAddress, "127.0.0.1");
  put(r.LANConfig.Netmask, "255.0.0.0");
  put(r.LANConfig.Gateway, "127.0.0.1");
  put(r.LANConfig.DNS1, "127.0.0.53");
  r.LANConfig.DHCP = 0;
  r.LANConfig.MTU = 1500;
  // Whoever asks learns the accounts, so their passwords stay at home.
  r.AccountCount = 2;
  put(r.Account[0].Username, kUser);
  put(r.Account[0].Group, "Operators");
  put(r.Account[0].Status, "on");
  put(r.Account[1].Username, "guest");
  put(r.Account[1].Group, "Guests");
  put(r.Account[1].Status, "off");
  r.StreamAccess.Auth = 1;
  r.StreamAccess.VideoPort = 554;
  r.StreamAccess.RTPOverRTSP = 1;
  r.StreamAccess.PTZPort = controlPort;
  r.StreamAccess.WEBPort = 80;
  r.StreamAccess.RTSPClientNumber = 10;
  r.StreamAccess.RTPPacketSize = 1400;
  return r;
}

// The answer to a login with the right password. With the wrong one, nothing of it is told.
inline USER_AUTH_CMD_USER_AUTH_PARAM session() {
  USER_AUTH_CMD_USER_AUTH_PARAM r;
  put(r.Sessionid, "session-0042");
  put(r.Group, "Operators");
  put(r.Capbility, "keyed");
  r.MAXChannels = 16;
  r.Version = 1;
  r.KeyTypeVer = 1;
  return r;
}

inline KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM state() {
  KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM r;
  put(r.Ipcs_stat, "1,1,1,0");
  put(r.streamstat, "0,0,1,0");
  put(r.IpcAbility1, "7");
  put(r.IpcProtoCol, "1,1,2,0");
  return r;
}

constexpr int kChannel = 3;

// The live stream of the channel: its numbers, how it is transported, and its coding. ConnectNum makes the numbers
// travel in the message's header too.
inline LIVE_STREAM_CMD_STREAM_START_PARAM liveStream() {
  LIVE_STREAM_CMD_STREAM_START_PARAM r;
  r.ChannelId = kChannel;
  r.VideoStream = 1;
  r.StreamID = 301;
  r.ConnectNum = 2;
  r.StreamNum = 5;
  r.AudioEnable = 1;
  r.Multicast = 1;
  put(r.MulticastAddress, "239.0.0.17");
  r.VideoPort = 30010;
  r.AudioPort = 30012;
  put(r.video.Encoder, "H264");
  put(r.video.Config, "profile-level-id=42001f");
  r.video.Width = 1280;
  r.video.Height = 720;
  r.video.Framerate = 25;
  r.video.Bitrate = 2048;
  put(r.audio.Encoder, "G711A");
  r.audio.SampleRate = 8000;
  r.audio.SampleWidth = 16;
  r.audio.Channels = 1;
  r.audio.Bitrate = 64;
  return r;
}

// The channel was recorded from 8:00 to 8:02 on the 21st of the month.
inline const std::string kDay = "2026-11-21";
inline const std::string kMonth = "2026-11";
inline const std::vector<std::string> kSlices = {"[08:00:00-08:00:59]", "[08:01:00-08:01:59]"};
inline const std::string kFile = "ch03_20261121_080000.rec";

// One character a minute.
inline std::string minutesOf(int channel, const std::string& day) {
  std::string minutes(1440, '0');
  if (channel == kChannel && day == kDay) minutes[480] = minutes[481] = '1';
  return minutes;
}

// One character a day.
inline std::string daysOf(int channel, const std::string& month) {
  std::string days(30, '0');
  if (channel == kChannel && month == kMonth) days[20] = '1';
  return days;
}

inline const std::string kLogName = "system.log";
constexpr std::size_t kLogPiece = 256;  // bytes in a message

// Some lines, and every byte that there is: raw data is no text.
inline std::string logFile() {
  std::string file = "08:00:00 recording of channel 3 started\n08:02:00 recording of channel 3 stopped\n";
  for (int value = 0; value < 256; ++value) file += static_cast<char>(value);
  return file + "\n</XML_ZANTIR> 08:03:00 says nothing here\n";
}

}  // namespace demo::held
