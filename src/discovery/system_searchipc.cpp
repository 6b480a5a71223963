// SYSTEM_SEARCHIPC_MESSAGE: cameras are found on the local network and addressed by serial number.
#include "kov_protocol/system_searchipc.h"

#include <cstddef>

#include "core/family.h"
#include "discovery/system_searchipc.h"
#include "kov_platform/services.h"
#include "kov_platform/value_text.h"

namespace kov {
namespace {

// The layouts are fixed by the programs on both ends. Feature aligns to 8 bytes there.
static_assert(sizeof(SEARCHIPC_LAN_CONFIG) == 680 && sizeof(SEARCHIPC_STREAM_ACCESS) == 32);
static_assert(sizeof(SEARCHIPC_DEVICE_INFO) == 696 && offsetof(SEARCHIPC_DEVICE_INFO, Feature) == 672);
static_assert(sizeof(SYSTEM_SEARCHIPC_1_PARAM) == 40 && sizeof(SYSTEM_SEARCHIPC_2_PARAM) == 824);
static_assert(sizeof(SYSTEM_SEARCHIPC_3_PARAM) == 6976 && offsetof(SYSTEM_SEARCHIPC_3_PARAM, Account) == 784);
static_assert(sizeof(SYSTEM_SEARCHIPC_4_PARAM) == 32 && sizeof(SYSTEM_SEARCHIPC_7_PARAM) == 448);
static_assert(sizeof(SYSTEM_SEARCHIPC_21_PARAM) == 1424 && sizeof(SYSTEM_SEARCHIPC_101_PARAM) == 520);

// It stands on one line, unlike all other elements.
void vendor(BodyIo& io, char (&vendorId)[40]) {
  if (io.writing() && !isSet(vendorId)) return;
  io.element("VENDOR_PARAM", "<VENDOR_PARAM ", {attr("VendorId", vendorId).thenNothing()});
}

// An interface with its address and name servers, and what else a message tells with it.
void lanConfig(BodyIo& io, SEARCHIPC_LAN_CONFIG& lan, Attributes more) {
  BodyIo element = io.enter("LANConfig", "<LANConfig\n");
  element.attributes({{"MacAddress", lan.MacAddress},
                      {"DHCP", lan.DHCP},
                      {"IPAddress", lan.IPAddress},
                      {"Netmask", lan.Netmask},
                      {"Gateway", lan.Gateway},
                      {"DNS1", lan.DNS1},
                      {"DNS2", lan.DNS2}});
  element.attributes(more);
  element.text("/>\n");
}

// StreamAccess opens with a carriage return, which peers expect.
void mediaStreamConfig(BodyIo& io, SEARCHIPC_STREAM_ACCESS& access, Attributes more) {
  if (io.writing() && !isSet(access.Auth)) return;
  BodyIo config = io.enter("MediaStreamConfig");
  BodyIo element = config.enter("StreamAccess", "<StreamAccess\r\n");
  element.attributes({{"Auth", access.Auth},
                      {"VideoPort", access.VideoPort},
                      {"RTPOverRTSP", access.RTPOverRTSP},
                      {"PTZPort", access.PTZPort},
                      {"WEBPort", access.WEBPort}});
  element.attributes(more);
  element.text("/>\n</MediaStreamConfig>\n");
}

void searchRequest(BodyIo& io, SYSTEM_SEARCHIPC_1_PARAM& r) { vendor(io, r.VendorId); }

// Its compose speaks under the response's name.
constexpr Message kSearchRequest =
    Message("SystemSearchipc_SearchRequest_Message", form<searchRequest>(nullptr), nullptr, Direction::Ignored)
        .composesAs("SystemSearchipc_SearchResponse_Message");

void modifyIpBySn(BodyIo& io, SYSTEM_SEARCHIPC_2_PARAM& r) {
  vendor(io, r.VendorId);
  io.element("IPC_SERIALNUMBER", {{"SerialNumber", r.SerialNumber}, attr("DevID", r.DevID).ifSet()});
  if (io.reading() || isSet(r.LANConfig.IPAddress)) {
    lanConfig(io, r.LANConfig, {attr("AllNetConnectEnable", r.AllNetConnectEnable).ifSet()});
  }
  mediaStreamConfig(io, r.StreamAccess, {});
}

constexpr Message kModifyIpBySn = {"SystemSearchipc_ModifyIpBySn_Message", form<modifyIpBySn>(nullptr), nullptr,
                                   Direction::Ignored};

void deviceType(BodyIo& io, SEARCHIPC_DEVICE_INFO& device) {
  io.element("DEVICE_TYPE", {{"DeviceType", device.DeviceType},
                             attr("SalesArea", device.SalesArea).ifSet(),
                             attr("DeviceModule", device.DeviceModule).ifSet(),
                             attr("BindMode", device.BindMode).ifSet(),
                             attr("DevSubType", device.DevSubType).ifSet(),
                             attr("Feature", device.Feature).asSigned().ifSet()});
}

// The second interface has no name servers of its own.
void lan1Config(BodyIo& io, SEARCHIPC_LAN_CONFIG& lan) {
  io.elementWhen(isSet(lan.IPAddress), "LAN1Config",
                 {{"MacAddress", lan.MacAddress},
                  {"DHCP", lan.DHCP},
                  {"IPAddress", lan.IPAddress},
                  {"Netmask", lan.Netmask},
                  {"Gateway", lan.Gateway}});
}

void account(BodyIo& io, SEARCHIPC_ACCOUNT& entry) {
  io.element("Account", {{"Group", entry.Group},
                         {"Status", entry.Status},
                         attr("Username", entry.Username).ifSet(),
                         attr("Password", entry.Password).when(isSet(entry.Username))});
}

// A device without accounts says so with an empty UserConfig; a missing one says nothing.
void userConfig(BodyIo& io, SYSTEM_SEARCHIPC_3_PARAM& r) {
  if (io.writing() && !isSet(r.AccountCount)) return;
  BodyIo config = io.enter("UserConfig");
  if (!config) return;
  config.list<account>("Account", r.Account, r.AccountCount);
  config.text("</UserConfig>\n");
}

void writeConnectionCount(BodyWriter& body, const SEARCHIPC_DEVICE_INFO& device) {
  if (!isSet(device.ConnectionCount)) return;
  body.literal("<ConnectionCount\nCount=\"");
  for (const std::int16_t count : device.Count) {
    body.decimal(count);
    body.character(',');
  }
  body.literal("\"\n/>\n");
}

// The number in [begin, end), of which 31 characters count.
std::int16_t connectionsOf(const char* begin, const char* end) {
  char item[32];
  BodyWriter text(item, sizeof item);
  text.text(begin, static_cast<std::size_t>(end - begin));
  text.terminate();
  return static_cast<std::int16_t>(static_cast<std::uint16_t>(intOf(item)));
}

// Every item of the list ends in a comma; what follows the last comma does not count.
void readConnectionCount(const ElementReader& element, SEARCHIPC_DEVICE_INFO& device) {
  constexpr std::size_t kLongestList = 1023;
  if (!element) return;
  device.ConnectionCount = 1;
  const char* item = element.attribute("Count");
  if (item == nullptr) return;
  const char* const end = item + boundedLength(item, kLongestList);
  for (std::int16_t& count : device.Count) {
    const void* const comma = std::memchr(item, ',', static_cast<std::size_t>(end - item));
    if (comma == nullptr) return;
    count = connectionsOf(item, static_cast<const char*>(comma));
    item = static_cast<const char*>(comma) + 1;
  }
}

void connectionCount(BodyIo& io, SEARCHIPC_DEVICE_INFO& device) {
  if (io.writing()) {
    writeConnectionCount(io.writer(), device);
  } else {
    readConnectionCount(io.reader().child("ConnectionCount"), device);
  }
}

void searchResponse(BodyIo& io, SYSTEM_SEARCHIPC_3_PARAM& r) {
  SEARCHIPC_DEVICE_INFO& device = r.DeviceInfo;
  vendor(io, r.VendorId);
  deviceType(io, device);
  io.element("IPC_SERIALNUMBER", {{"SerialNumber", device.SerialNumber}, {"DevID", device.DevID}});
  lanConfig(
      io, r.LANConfig,
      {attr("AllNetConnectEnable", r.AllNetConnectEnable).ifSet(), attr("IPAddressVirtual", r.IPAddressVirtual).ifSet(),
       attr("MTU", r.LANConfig.MTU).ifSet(), attr("DEV", r.LANConfig.DEV).ifSet().writeOnly()});
  lan1Config(io, r.LAN1Config);
  userConfig(io, r);
  mediaStreamConfig(io, r.StreamAccess,
                    {attr("RTSPClientNumber", r.StreamAccess.RTSPClientNumber).ifSet(),
                     attr("RTPPacketSize", r.StreamAccess.RTPPacketSize).ifSet()});
  io.elementWhen(isSet(device.OsdStr), "OSD", {{"OsdStr", device.OsdStr}});
  io.elementWhen(isSet(device.FileSystemVersion), "VERSION", {{"FileSystemVersion", device.FileSystemVersion}});
  io.elementWhen(isSet(device.Name), "Manufacturer", {{"Name", device.Name}});
  connectionCount(io, device);
}

constexpr Message kSearchResponse = {"SystemSearchipc_SearchResponse_Message", form<searchResponse>(nullptr), nullptr,
                                     Direction::Ignored};

void restoreConfig(BodyIo& io, SYSTEM_SEARCHIPC_4_PARAM& r) {
  io.element("IPC_SERIALNUMBER", {{"SerialNumber", r.SerialNumber}});
}

constexpr Message kRestoreConfig = {"SystemSearchipc_RestoreConfig_Message", form<restoreConfig>(nullptr), nullptr,
                                    Direction::Ignored};

void broadcastDeviceInfo(BodyIo& io, SYSTEM_SEARCHIPC_7_PARAM& r) {
  io.element("IPC_DEVINFO", {{"SerialNumber", r.SerialNumber},
                             {"ipaddr", r.ipaddr},
                             {"randStr", r.randStr},
                             attr("IPList", r.IPList).ifSet(),
                             attr("SerialNumberBrother", r.SerialNumberBrother).ifSet(),
                             attr("ipaddrBrother", r.ipaddrBrother).ifSet(),
                             attr("randStrBrother", r.randStrBrother).ifSet()});
}

constexpr Message kBroadcastDeviceInfo = {"SystemSearchipc_BroadcastDeviceInfo_Message",
                                          form<broadcastDeviceInfo>(nullptr), nullptr, Direction::Ignored};

// The devices that answer and the programs that ask name three of the values differently, so each direction keeps the
// name of its peer.
void searchIotResponse(BodyIo& io, SYSTEM_SEARCHIPC_21_PARAM& r) {
  io.element("IOTInfo", {attr("DeviceType", r.DevType).writeOnly(), attr("DevType", r.DevType).readOnly(),
                         attr("DeviceModule", r.DeviceModule).ifSet(), attr("BindStatus", r.BindStatus).ifSet(),
                         attr("DevSubType", r.BindNetType).ifSet().writeOnly(),
                         attr("BindNetType", r.BindNetType).readOnly(), attr("RegStatus", r.RegStatus).ifSet()});
  io.element("IPC_SERIALNUMBER", {attr("SerialNumber", r.DeviceInfo.SerialNumber).writeOnly(),
                                  attr("DeviceModule", r.DeviceInfo.SerialNumber).readOnly(),
                                  {"DevID", r.DeviceInfo.DevID}});
  lanConfig(io, r.LANConfig, {{"MTU", r.LANConfig.MTU}});
}

constexpr Message kSearchIotResponse = {"SystemSearchipc_SearchIotResponse_Message", form<searchIotResponse>(nullptr),
                                        nullptr, Direction::Ignored};

void udpSendTime(BodyIo& io, SYSTEM_SEARCHIPC_101_PARAM& r) {
  io.element("TimeConfig", {{"Enable", r.Enable}, {"Timezone", r.Timezone}, {"Format", r.Format}, {"Time", r.Time}},
             ">\n</TimeConfig>\n");
}

constexpr Message kUdpSendTime = {"SystemSearchipc_UDPSendTime_Message", form<udpSendTime>(nullptr), nullptr,
                                  Direction::Ignored};

constexpr CodeRow kCodes[] = {
    {1, &kSearchRequest},
    {2, &kModifyIpBySn},
    {3, &kSearchResponse},
    {4, &kRestoreConfig},
    {5, &kModifyIpBySn},
    {6, &kRestoreConfig},
    {7, &kBroadcastDeviceInfo},
    {8, &kRestoreConfig},
    {9, nullptr},
    {10, nullptr},
    {11, nullptr},
    {20, nullptr},
    {21, &kSearchIotResponse},
    {101, &kUdpSendTime},
};

void logUnknown(const char*, int code) {
  KovProtocolLogError("SYSTEM_SEARCHIPC_MESSAGE deal a unknow msg_code:%d \n", code);
}

constexpr CodeTable kTable("SYSTEM_SEARCHIPC_MESSAGE", kCodes, logUnknown);

}  // namespace

constexpr Family kSystemSearchipc = {&kTable};

}  // namespace kov

int SYSTEM_SEARCHIPC_1_PARAM_init(SYSTEM_SEARCHIPC_1_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_SEARCHIPC_2_PARAM_init(SYSTEM_SEARCHIPC_2_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_SEARCHIPC_3_PARAM_init(SYSTEM_SEARCHIPC_3_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_SEARCHIPC_4_PARAM_init(SYSTEM_SEARCHIPC_4_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_SEARCHIPC_5_PARAM_init(SYSTEM_SEARCHIPC_2_PARAM* record) { return SYSTEM_SEARCHIPC_2_PARAM_init(record); }
int SYSTEM_SEARCHIPC_6_PARAM_init(SYSTEM_SEARCHIPC_4_PARAM* record) { return SYSTEM_SEARCHIPC_4_PARAM_init(record); }
int SYSTEM_SEARCHIPC_7_PARAM_init(SYSTEM_SEARCHIPC_7_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_SEARCHIPC_8_PARAM_init(SYSTEM_SEARCHIPC_4_PARAM* record) { return SYSTEM_SEARCHIPC_4_PARAM_init(record); }
int SYSTEM_SEARCHIPC_21_PARAM_init(SYSTEM_SEARCHIPC_21_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_SEARCHIPC_101_PARAM_init(SYSTEM_SEARCHIPC_101_PARAM* record) { return kov::fillDefaults(record); }

int SystemSearchipcMessageCompose(const void* param, int direction, const char* msgCode, char* body, int bodySize) {
  return kov::kTable.compose(param, direction, msgCode, body, bodySize);
}
int SystemSearchipcMessageAnalysis(const char* xml, const char* msgCode, void** result) {
  return kov::kTable.analyse(xml, msgCode, result);
}
int SystemSearchipc_SearchRequest_MessageAnalysis(const char* xml, void** result) {
  return kov::kSearchRequest.analyse(xml, result);
}
int SystemSearchipc_ModifyIpBySn_MessageAnalysis(const char* xml, void** result) {
  return kov::kModifyIpBySn.analyse(xml, result);
}
int SystemSearchipc_SearchResponse_MessageAnalysis(const char* xml, void** result) {
  return kov::kSearchResponse.analyse(xml, result);
}
int SystemSearchipc_RestoreConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kRestoreConfig.analyse(xml, result);
}
int SystemSearchipc_BroadcastDeviceInfo_MessageAnalysis(const char* xml, void** result) {
  return kov::kBroadcastDeviceInfo.analyse(xml, result);
}
int SystemSearchipc_SearchIotResponse_MessageAnalysis(const char* xml, void** result) {
  return kov::kSearchIotResponse.analyse(xml, result);
}
int SystemSearchipc_UDPSendTime_MessageAnalysis(const char* xml, void** result) {
  return kov::kUdpSendTime.analyse(xml, result);
}
