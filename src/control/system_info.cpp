// What a device says of itself: a recorder's SystemInfo, and a camera's versions, in whose place it may stand.
#include "control/control_messages.h"

namespace kov {
namespace {

static_assert(sizeof(SYSTEM_CONTROL_3000_PARAM) == 240);
static_assert(sizeof(SYSTEM_CONTROL_1012_PARAM) == 732);

void systemInfo(BodyIo& io, SYSTEM_CONTROL_3000_PARAM& r) {
  io.element("SystemInfo", "<SystemInfo ",
             {{"ProductModel", r.ProductModel},
              {"CloudID", r.CloudID},
              {"ChannelNum", r.ChannelNum},
              {"HdNum", r.HdNum},
              {"AlarmIn", r.AlarmIn},
              {"AlarmOut", r.AlarmOut},
              {"SerialNumber", r.SerialNumber},
              {"SoftwareVersion", r.SoftwareVersion},
              {"HardwareVersion", r.HardwareVersion},
              {"ReleaseTime", r.ReleaseTime},
              {"TelnetPort", r.TelnetPort}});
}

constexpr Message kGetNvrSystemConfig =
    Message("SystemControl_GetNvrSystemConfig_Message", nullptr, form<systemInfo>("SystemInfo"))
        .reportsMissing("SalesArea");

void versions(BodyIo param, SYSTEM_CONTROL_1012_PARAM& r) {
  param.attributes({{"KernelVersion", r.KernelVersion},
                    {"FileSystemVersion", r.FileSystemVersion},
                    {"DeviceIdentify", r.DeviceIdentify}});
  optionalChannel(param, r.ChannelId, r.EmptyChannelId);
  param.attributes(
      {attr("FileSystemIdentify", r.FileSystemIdentify).ifSet(), attr("HardVersion", r.HardVersion).ifSet()});
}

void versionResponse(BodyIo& io, SYSTEM_CONTROL_1012_PARAM& r) {
  if (io.writing() && isSet(r.HasSystemInfo)) {
    systemInfo(io, r.SystemInfo);
    return;
  }
  versions(io.enter("RESPONSE_PARAM", "<RESPONSE_PARAM\n"), r);
  io.text("/>\n");
}

// Peers may ask with the versions; the library does not.
void versionRequest(BodyIo& io, SYSTEM_CONTROL_1012_PARAM& r) {
  if (io.reading()) versions(io.enter("REQUEST_PARAM"), r);
}

// All versions are told under the name of the time.
constexpr Message kGetIpcSysVersion =
    Message("SystemControl_SetIpcTime_Message", request<versionRequest>, response<versionResponse>)
        .composesAs("SystemControl_GetIpcSysVersion_Message");

void readSystemInfo(BodyIo& io, SYSTEM_CONTROL_1012_PARAM& r) {
  systemInfo(io, r.SystemInfo);
  r.HasSystemInfo = 1;
}

// The other answer, for analysis only.
constexpr Message kSystemInfoVersion =
    Message("SystemControl_SetIpcTime_Message", nullptr, form<readSystemInfo>("SystemInfo"))
        .reportsMissing("RESPONSE_PARAM");

constexpr CodeRow kRows[] = {{1012, &kGetIpcSysVersion}, {3000, &kGetNvrSystemConfig}};

}  // namespace

constexpr CodeGroup kSystemInfoCodes = kRows;

// Versions are preferred; missing elements are told by the message that was chosen.
int analyseSysVersion(const KovXMLParser& document, void** result) {
  const ElementReader body = ElementReader(document, document.RootElement()).child("MESSAGE_BODY");
  const bool hasVersions = body.child("RESPONSE_PARAM") || body.child("REQUEST_PARAM");
  return (hasVersions ? kGetIpcSysVersion : kSystemInfoVersion).analyse(document, result);
}

int analyseSysVersion(const char* xml, void** result) {
  if (xml == nullptr || result == nullptr) return kGetIpcSysVersion.analyse(xml, result);
  KovXMLParser document;
  const int parsed = parseDocument(kGetIpcSysVersion.name(), xml, document);
  return parsed != KOV_OK ? parsed : analyseSysVersion(document, result);
}

}  // namespace kov

int SYSTEM_CONTROL_1012_PARAM_init(SYSTEM_CONTROL_1012_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_3000_PARAM_init(SYSTEM_CONTROL_3000_PARAM* record) { return kov::fillDefaults(record); }

int SystemControl_GetIpcSysVersion_MessageAnalysis(const char* xml, void** result) {
  return kov::analyseSysVersion(xml, result);
}
int SystemControl_GetNvrSystemConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetNvrSystemConfig.analyse(xml, result);
}
