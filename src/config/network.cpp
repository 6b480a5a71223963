// Network settings of cameras and recorders.
#include "config/network.h"

#include <algorithm>

#include "kov_protocol/system_config_network.h"

namespace kov {
namespace {

static_assert(sizeof(SYSTEM_CONFIG_GET_300_PARAM) == 2904);
static_assert(sizeof(SYSTEM_CONFIG_GET_315_PARAM) == 88);
static_assert(sizeof(SYSTEM_CONFIG_SET_325_PARAM) == 652);
static_assert(sizeof(SYSTEM_CONFIG_GET_2000_PARAM) == 1060);
static_assert(sizeof(SYSTEM_CONFIG_GET_2015_PARAM) == 4912);

void peerToPeer(BodyIo& io, SYSTEM_CONFIG_GET_315_PARAM& r) {
  io.element("P2PConfig", {{"Enable", r.Enable}, {"SyncTime", r.SyncTime}, {"User", r.User}, {"Passwd", r.Passwd}});
}

// Cameras look at the first word of the user name, not at its first character.
bool userGiven(const SYSTEM_CONFIG_GET_315_PARAM& r) {
  return std::any_of(r.User, r.User + 4, [](char c) { return c != '\0'; });
}

void peerToPeerIfSet(BodyIo& io, SYSTEM_CONFIG_GET_315_PARAM& r) {
  io.element("P2PConfig", {attr("Enable", r.Enable).ifSet(), attr("SyncTime", r.SyncTime).ifSet(),
                           attr("User", r.User).when(userGiven(r)), attr("Passwd", r.Passwd).ifSet()});
}

void cameraInterface(BodyIo& io, const char* element, std::int32_t& allNet, SYSTEM_CONFIG_IPC_ADDRESS& r,
                     bool withAddress) {
  io.element(element, {{"AllNetConnectEnable", allNet},
                       attr("MacAddress", r.MacAddress).when(withAddress),
                       attr("DHCP", r.DHCP).when(withAddress),
                       attr("IPAddress", r.IPAddress).when(withAddress),
                       attr("Netmask", r.Netmask).when(withAddress),
                       attr("Gateway", r.Gateway).when(withAddress),
                       attr("DNS1", r.DNS1).when(withAddress),
                       attr("DNS2", r.DNS2).when(withAddress),
                       attr("MTU", r.MTU).when(withAddress)});
}

void cameraLan(BodyIo& io, SYSTEM_CONFIG_SET_325_PARAM& r) {
  cameraInterface(io, "LANConfig", r.AllNetConnectEnable, r.Address, isSet(r.Address.IPAddress));
}

void cameraTunnel(BodyIo& io, SYSTEM_CONFIG_IPC_PPTP& r) {
  io.element("PPTPConfig", {{"Enable", r.Enable},
                            {"Server", r.Server},
                            {"Username", r.Username},
                            {"Password", r.Password},
                            {"MTU", r.MTU},
                            {"MPPE", r.MPPE}});
}

void cameraSip(BodyIo& io, SYSTEM_CONFIG_IPC_GB28181& r) {
  io.element("GB28181", {{"Enable", r.Enable},
                         {"DevPort", r.DevPort},
                         {"ServerID", r.ServerID},
                         {"ServerName", r.ServerName},
                         {"ServerIP", r.ServerIP},
                         {"ServerPort", r.ServerPort},
                         {"DevName", r.DevName},
                         {"DevID", r.DevID},
                         {"Passwd", r.Passwd},
                         {"Expires", r.Expires},
                         {"KeepAlive", r.KeepAlive},
                         {"KeepAliveNum", r.KeepAliveNum},
                         {"StreamIdx", r.StreamIdx},
                         {"AlarmID", r.AlarmID}});
}

void cameraNetwork(BodyIo& io, SYSTEM_CONFIG_GET_300_PARAM& r) {
  BodyIo network = io.enter("NetworkConfig");
  cameraInterface(network, "LANConfig", r.AllNetConnectEnable, r.LAN, true);
  cameraInterface(network, "WireConfig", r.Wire.AllNetConnectEnable, r.Wire.Address, true);
  cameraTunnel(network, r.PPTP);
  peerToPeer(network, r.P2P);
  cameraSip(network, r.GB28181);
  network.text("</NetworkConfig>\n");
}

constexpr Message kGetIpcNet = {"SystemConfig_getIpcNetconfig_Message", nullptr, form<cameraNetwork>("NetworkConfig")};
constexpr Message kGetIpcP2P = {"SystemConfig_getIpcP2Pconfig_Message", nullptr, form<peerToPeerIfSet>("P2PConfig")};
constexpr Message kSetIpcP2P = {"SystemConfig_setIpcP2Pconfig_Message", form<peerToPeer>("P2PConfig"), nullptr};
constexpr Message kSetIpcLan = Message("SystemConfig_setIpcLanconfig_Message", form<cameraLan>("LANConfig"), nullptr)
                                   .composesAs("SystemConfig_setIpcNetconfig_Message");

void recorderLan(BodyIo& io, SYSTEM_CONFIG_GET_2000_PARAM& r) {
  io.element("LANConfig", {{"DHCP", r.DHCP},
                           {"IPAddress", r.IPAddress},
                           {"Netmask", r.Netmask},
                           {"Gateway", r.Gateway},
                           {"MacAddress", r.MacAddress},
                           {"DNS1", r.DNS1},
                           {"DNS2", r.DNS2},
                           {"Login", r.Login},
                           {"CloundID", r.CloundID},
                           {"MTU", r.MTU},
                           {"ConflictSelfAda", r.ConflictSelfAda}});
}

void recorderServer(BodyIo& io, std::int32_t& enable) { io.element("NetworkServerConfig", {{"Enable", enable}}); }

// The second port, and how the two work together; a recorder with one port has no address there.
void recorderSecondLan(BodyIo& io, SYSTEM_CONFIG_GET_2000_PARAM& r) {
  const bool present = isSet(r.LAN1_IPAddress);
  io.elementWhen(present, "NetworkLanMode", {{"Mode", r.Mode}, {"DefaultGateWayIndex", r.DefaultGateWayIndex}});
  io.elementWhen(present, "LAN1Config",
                 {{"DHCP", r.LAN1_DHCP},
                  {"IPAddress", r.LAN1_IPAddress},
                  {"Netmask", r.LAN1_Netmask},
                  {"Gateway", r.LAN1_Gateway},
                  {"MacAddress", r.LAN1_MacAddress},
                  {"ConflictSelfAda", r.LAN1_ConflictSelfAda}});
}

void recorderLans(BodyIo& io, SYSTEM_CONFIG_GET_2000_PARAM& r) {
  recorderLan(io, r);
  recorderSecondLan(io, r);
}

// Recorders send NetworkConfig with a start tag that lacks its ">", and with an end tag that lacks its "<" or is not
// there at all. The XML reader knows it.
void recorderNetwork(BodyIo& io, SYSTEM_CONFIG_GET_2000_PARAM& r) {
  BodyIo network = io.enter("NetworkConfig", "<NetworkConfig\n");
  recorderLan(network, r);
  recorderServer(network, r.Enable);
  recorderSecondLan(network, r);
  if (isSet(r.LAN1_IPAddress)) network.text("/NetworkConfig>\n");
}

void networkService(BodyIo& io, SYSTEM_CONFIG_GET_2010_PARAM& r) { recorderServer(io, r.Enable); }

constexpr Message kGetNet = {"SystemConfig_getNetconfig_Message", nullptr, form<recorderNetwork>("NetworkConfig")};
constexpr Message kSetNet = {"SystemConfig_setNetconfig_Message", form<recorderNetwork>("NetworkConfig"), nullptr};
constexpr Message kGetNetLan = {"SystemConfig_getNetLanconfig_Message", nullptr, form<recorderLans>("LANConfig")};
constexpr Message kSetNetLan = {"SystemConfig_setNetLanconfig_Message", form<recorderLans>("LANConfig"), nullptr};
constexpr Message kGetNetServer = {"SystemConfig_getNetServerconfig_Message", nullptr,
                                   form<networkService>("NetworkServerConfig")};
constexpr Message kSetNetServer = {"SystemConfig_setNetServerconfig_Message",
                                   form<networkService>("NetworkServerConfig"), nullptr};

using SipDevices = SYSTEM_CONFIG_SIP_DEVICE[SYSTEM_CONFIG_SIP_DEVICES];

// How a table of devices is spelled: <prefix>7<suffix> is the ID of the seventh.
struct SipNames {
  const char* prefix;
  const char* suffix;
  const char* report;
};
constexpr SipNames kChannelNames = {"ch", "_SipDeviceID", "ch_SipDeviceReport"};
constexpr SipNames kAlarmInputNames = {"AlarmIn_", "", "AlarmIn_SipDeviceReport"};

void sipDeviceIDs(BodyIo& io, const SipNames& names, SipDevices& devices, std::int32_t count) {
  for (std::int32_t i = 0; i < count; ++i) {
    const NumberedName name(names.prefix, static_cast<unsigned>(i) + 1, names.suffix);
    io.attributes({attr(name, devices[i].SipDeviceID)});
  }
}

// A flag of 0 or 1 is one character; an unset one is eight.
void writeSipReports(BodyWriter& body, const SipNames& names, const SipDevices& devices, std::int32_t count) {
  body.text(names.report);
  body.literal("=\"");
  for (std::int32_t i = 0; i < count; ++i) body.hexadecimal(static_cast<std::uint32_t>(devices[i].SipDeviceReport));
  body.literal("\"\n");
}

// A text that is shorter than the table switches the rest of it off; without a text nothing is known.
void readSipReports(const ElementReader& element, const SipNames& names, SipDevices& devices) {
  const char* flag = element.attribute(names.report);
  if (flag == nullptr) return;
  for (SYSTEM_CONFIG_SIP_DEVICE& device : devices) {
    device.SipDeviceReport = *flag == '1' ? 1 : 0;
    if (*flag != '\0') ++flag;
  }
}

// Reading tries the names of the whole table, because the number of channels does not travel.
void sipDevices(BodyIo& io, const SipNames& names, SipDevices& devices, std::int32_t count) {
  constexpr std::int32_t kCapacity = SYSTEM_CONFIG_SIP_DEVICES;
  if (io.reading()) {
    sipDeviceIDs(io, names, devices, kCapacity);
    readSipReports(io.reader(), names, devices);
    return;
  }
  const std::int32_t entries = std::min(count, kCapacity);
  sipDeviceIDs(io, names, devices, entries);
  writeSipReports(io.writer(), names, devices, entries);
}

void recorderSip(BodyIo& io, SYSTEM_CONFIG_GET_2015_PARAM& r) {
  BodyIo access = io.enter("GB28181Config", "<GB28181Config\n");
  access.attributes({{"Enable", r.Enable},
                     attr("ProtoCol", r.ProtoCol).ifSet(),
                     {"StreamType", r.StreamType},
                     attr("DefaultLanIndex", r.DefaultLanIndex).ifSet(),
                     {"LocalPort", r.LocalPort},
                     {"SipServerID", r.SipServerID},
                     {"SipServerDomain", r.SipServerDomain},
                     {"SipServerIP", r.SipServerIP},
                     {"SipServerPort", r.SipServerPort},
                     {"SipUserID", r.SipUserID},
                     {"SipUserPassword", r.SipUserPassword},
                     {"SipRegExpires", r.SipRegExpires},
                     {"SipHeartBeatCycle", r.SipHeartBeatCycle},
                     {"SipHeartBeatTimeOutNum", r.SipHeartBeatTimeOutNum}});
  sipDevices(access, kChannelNames, r.Channels, r.ChannelCount);
  access.text("/>\n");
  BodyIo inputs = io.enter("AlarmInputID", "<AlarmInputID\n");
  inputs.attributes({{"AlarmInputIDNum", r.AlarmInputIDNum}});
  sipDevices(inputs, kAlarmInputNames, r.AlarmInputs, r.AlarmInputIDNum);
  inputs.text("/>\n");
}

constexpr Message kGetNetSip = {"SystemConfig_getNetGB28181Config_Message", nullptr,
                                form<recorderSip>("GB28181Config")};
constexpr Message kSetNetSip = {"SystemConfig_setNetGB28181Config_Message", form<recorderSip>("GB28181Config"),
                                nullptr};

constexpr CodeRow kRows[] = {
    {300, &kGetIpcNet},     {315, &kGetIpcP2P},     {325, &kSetIpcLan},  {335, &kSetIpcP2P},
    {2000, &kGetNet},       {2020, &kSetNet},       {2005, &kGetNetLan}, {2025, &kSetNetLan},
    {2010, &kGetNetServer}, {2030, &kSetNetServer}, {2015, &kGetNetSip}, {2035, &kSetNetSip},
};

}  // namespace

constexpr CodeGroup kNetworkCodes = kRows;

}  // namespace kov

int SYSTEM_CONFIG_GET_300_PARAM_init(SYSTEM_CONFIG_GET_300_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_315_PARAM_init(SYSTEM_CONFIG_GET_315_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_320_PARAM_init(SYSTEM_CONFIG_GET_300_PARAM* record) {
  return SYSTEM_CONFIG_GET_300_PARAM_init(record);
}
int SYSTEM_CONFIG_SET_325_PARAM_init(SYSTEM_CONFIG_SET_325_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_335_PARAM_init(SYSTEM_CONFIG_GET_315_PARAM* record) {
  return SYSTEM_CONFIG_GET_315_PARAM_init(record);
}
int SYSTEM_CONFIG_GET_2000_PARAM_init(SYSTEM_CONFIG_GET_2000_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_2005_PARAM_init(SYSTEM_CONFIG_GET_2000_PARAM* record) {
  return SYSTEM_CONFIG_GET_2000_PARAM_init(record);
}
int SYSTEM_CONFIG_GET_2010_PARAM_init(SYSTEM_CONFIG_GET_2010_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_2015_PARAM_init(SYSTEM_CONFIG_GET_2015_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_2020_PARAM_init(SYSTEM_CONFIG_GET_2000_PARAM* record) {
  return SYSTEM_CONFIG_GET_2000_PARAM_init(record);
}
int SYSTEM_CONFIG_SET_2025_PARAM_init(SYSTEM_CONFIG_GET_2000_PARAM* record) {
  return SYSTEM_CONFIG_GET_2000_PARAM_init(record);
}
int SYSTEM_CONFIG_SET_2030_PARAM_init(SYSTEM_CONFIG_GET_2010_PARAM* record) {
  return SYSTEM_CONFIG_GET_2010_PARAM_init(record);
}
int SYSTEM_CONFIG_SET_2035_PARAM_init(SYSTEM_CONFIG_GET_2015_PARAM* record) {
  return SYSTEM_CONFIG_GET_2015_PARAM_init(record);
}

int SystemConfig_getIpcNetconfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetIpcNet.analyse(xml, result);
}
int SystemConfig_getIpcP2Pconfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetIpcP2P.analyse(xml, result);
}
int SystemConfig_setIpcLanconfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetIpcLan.analyse(xml, result);
}
int SystemConfig_setIpcP2Pconfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetIpcP2P.analyse(xml, result);
}
int SystemConfig_getNetconfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetNet.analyse(xml, result);
}
int SystemConfig_setNetconfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetNet.analyse(xml, result);
}
int SystemConfig_getNetLanconfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetNetLan.analyse(xml, result);
}
int SystemConfig_setNetLanconfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetNetLan.analyse(xml, result);
}
int SystemConfig_getNetServerconfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetNetServer.analyse(xml, result);
}
int SystemConfig_setNetServerconfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetNetServer.analyse(xml, result);
}
int SystemConfig_getNetGB28181Config_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetNetSip.analyse(xml, result);
}
int SystemConfig_setNetGB28181Config_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetNetSip.analyse(xml, result);
}
