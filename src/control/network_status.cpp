// The network status of a camera.
#include "control/control_messages.h"

namespace kov {
namespace {

static_assert(sizeof(SYSTEM_CONTROL_1026_PARAM) == 4764);

void wireNetwork(BodyIo& io, SYSTEM_CONTROL_1026_PARAM& r) {
  io.element("WIRE_NETWORK", {{"MacAddress", r.Wire.MacAddress},
                              {"IPType", r.Wire.IPType},
                              {"IPAddress", r.Wire.IPAddress},
                              {"Netmask", r.Wire.Netmask},
                              {"Gateway", r.Wire.Gateway},
                              {"Dns1", r.Wire.Dns1},
                              {"Dns2", r.Wire.Dns2},
                              {"MTU", r.MTU}});
}

void wirelessNetwork(BodyIo& io, SYSTEM_CONTROL_1026_PARAM& r) {
  io.elementWhen(isSet(r.Wireless.IPAddress), "WIRELESS_NETWORK",
                 {{"MacAddress", r.Wireless.MacAddress},
                  {"IPAddress", r.Wireless.IPAddress},
                  {"Netmask", r.Wireless.Netmask},
                  {"Gateway", r.Wireless.Gateway},
                  {"ESSID", r.Wireless.ESSID},
                  {"OperationMode", r.Wireless.OperationMode},
                  {"AccessPoint", r.Wireless.AccessPoint},
                  {"Bitrate", r.Wireless.Bitrate},
                  {"Frequency", r.Wireless.Frequency},
                  {"EncrptType", r.Wireless.EncrptType},
                  {"LinkQuality", r.LinkQuality},
                  {"SignalLevel", r.SignalLevel},
                  {"Noise", r.Noise}});
}

void netStatus(BodyIo& io, SYSTEM_CONTROL_1026_PARAM& r) {
  BodyIo status = io.enter("RESPONSE_PARAM");
  wireNetwork(status, r);
  wirelessNetwork(status, r);
  status.element("CLOUD", {{"LoginStatus", r.LoginStatus}, {"ID", r.ID}});
  status.element("QRCODE_URL", {{"Url", r.Url}});
  io.text("</RESPONSE_PARAM>\n");
}

constexpr Message kGetNetStatus = {"SystemControl_GetNetStatus_Message", nullptr, response<netStatus>};

constexpr CodeRow kRows[] = {{1026, &kGetNetStatus}};

}  // namespace

constexpr CodeGroup kNetworkStatusCodes = kRows;

}  // namespace kov

int SYSTEM_CONTROL_1026_PARAM_init(SYSTEM_CONTROL_1026_PARAM* record) { return kov::fillDefaults(record); }

int SystemControl_GetNetStatus_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetNetStatus.analyse(xml, result);
}
