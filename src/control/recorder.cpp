// Small settings of a recorder, its network check and its disks. Most elements open with a blank where other families
// have a newline, and most of them are missed under the name of the sales area.
#include "control/control_messages.h"

namespace kov {
namespace {

static_assert(sizeof(SYSTEM_CONTROL_3020_PARAM) == 40);
static_assert(sizeof(SYSTEM_CONTROL_3026_PARAM) == 48);
static_assert(sizeof(SYSTEM_CONTROL_3027_PARAM) == 104);
static_assert(sizeof(SYSTEM_CONTROL_3300_PARAM) == 16);
static_assert(sizeof(SYSTEM_CONTROL_3500_PARAM) == 624);
static_assert(sizeof(SYSTEM_CONTROL_3501_PARAM) == 8);

// The answer to the query uses the request's element too.
void timedRestart(BodyIo& io, SYSTEM_CONTROL_3020_PARAM& r) {
  io.element("REQUEST_PARAM", "<REQUEST_PARAM ", {{"Enable", r.Enable}, {"Day", r.Day}, {"Time", r.Time}});
}

constexpr Message kGetNvrTimedRestartConfig =
    Message("SystemControl_GetNvrTimedRestartConfig_Message", nullptr, request<timedRestart>)
        .reportsMissing("SalesArea");
constexpr Message kSetNvrTimedRestartConfig =
    Message("SystemControl_SetNvrTimedRestartConfig_Message", request<timedRestart>, nullptr)
        .reportsMissing("SalesArea");

void salesArea(BodyIo& io, SYSTEM_CONTROL_3023_PARAM& r) { io.element("SalesArea", {{"SalesArea", r.SalesArea}}); }

constexpr Message kSetNvrSalesarea = {"SystemControl_SetNvrSalesarea_Message", form<salesArea>("SalesArea"), nullptr};

void simpleCustom(BodyIo& io, SYSTEM_CONTROL_3026_PARAM& r) {
  io.element("REQUEST_PARAM", "<REQUEST_PARAM ",
             {attr("CtrlBuzzerEnable", r.CtrlBuzzerEnable).ifSet(), attr("Language", r.Language).ifSet(),
              attr("AsDefLanguage", r.AsDefLanguage).ifSet(), attr("LanguageNum", r.LanguageNum).ifSet(),
              attr("InProjectPwd", r.InProjectPwd).ifSet()});
}

constexpr Message kSetNvrSimpleCustomConfig =
    Message("SystemControl_SetNvrSimpleCustomConfig_Message", request<simpleCustom>, nullptr)
        .reportsMissing("SalesArea");

void networkCheckRequest(BodyIo& io, SYSTEM_CONTROL_3027_PARAM& r) {
  io.element("REQUEST_PARAM", "<REQUEST_PARAM ",
             {{"DiagnosticType", r.DiagnosticType},
              {"TotalPackets", r.TotalPackets},
              {"DomainName", r.DomainName},
              {"ChannelId", r.ChannelId}});
}

// Who answers may repeat the question: a reader takes both.
void networkCheckResponse(BodyIo& io, SYSTEM_CONTROL_3027_PARAM& r) {
  if (io.reading()) networkCheckRequest(io, r);
  io.element("RESPONSE_PARAM", "<RESPONSE_PARAM ",
             {{"Result", r.Result},
              {"IPAddress", r.IPAddress},
              {"SumPacket", r.SumPacket},
              {"SkipPacket", r.SkipPacket},
              {"SkipPacketRatio", r.SkipPacketRatio},
              {"MinTime", r.MinTime},
              {"AveTime", r.AveTime},
              {"MaxTime", r.MaxTime}});
}

constexpr Message kSetNvrStartNetworkCheck = {"SystemControl_SetNvrStartNetworkCheck_Message",
                                              request<networkCheckRequest>, response<networkCheckResponse>};

void displayConfig(BodyIo& io, SYSTEM_CONTROL_3300_PARAM& r) {
  io.element(
      "DisplayConfig", "<DisplayConfig ",
      {{"Brightness", r.Brightness}, {"Contrast", r.Contrast}, {"Saturation", r.Saturation}, {"Chroma", r.Chroma}});
}

constexpr Message kGetNvrDisplayConfig =
    Message("SystemControl_GetNvrDisplayConfig_Message", nullptr, form<displayConfig>("DisplayConfig"))
        .reportsMissing("SalesArea");
constexpr Message kSetNvrDisplayConfig =
    Message("SystemControl_SetNvrDisplayConfig_Message", form<displayConfig>("DisplayConfig"), nullptr)
        .reportsMissing("SalesArea");

void disk(BodyIo& io, SYSTEM_CONTROL_3500_DISK& r) {
  io.element("DeviceInfo", {{"DevIndex", r.DevIndex},
                            {"VerifyMark", r.VerifyMark},
                            {"DevName", r.DevName},
                            {"Mounted", r.Mounted},
                            {"Total", r.Total},
                            {"Used", r.Used},
                            {"Status", r.Status}});
}

// The two numbers follow the start tag, where they are text; a reader looks for them inside it.
void diskInfo(BodyIo& io, SYSTEM_CONTROL_3500_PARAM& r) {
  BodyIo param = io.enter("RESPONSE_PARAM");
  param.attributes({{"DiskNum", r.DiskNum}, {"RecordDays", r.RecordDays}});
  param.listOf<disk>("DeviceInfo", r.Disks, r.DiskNum);
  io.text("</RESPONSE_PARAM>\n");
}

constexpr Message kGetNvrDiskInfo = {"SystemControl_GetNvrDiskInfo_Message", nullptr, response<diskInfo>};

void diskFormat(BodyIo& io, SYSTEM_CONTROL_3501_PARAM& r) {
  io.element("FORMAT_PARAM", "<FORMAT_PARAM ", {{"DevIndex", r.DevIndex}, {"VerifyMark", r.VerifyMark}});
}

constexpr Message kSetNvrDiskFormat =
    Message("SystemControl_SetNvrDiskFormat_Message", form<diskFormat>("FORMAT_PARAM"), nullptr)
        .reportsMissing("SalesArea");

constexpr CodeRow kRows[] = {
    {3020, &kGetNvrTimedRestartConfig}, {3023, &kSetNvrSalesarea},         {3025, &kSetNvrTimedRestartConfig},
    {3026, &kSetNvrSimpleCustomConfig}, {3027, &kSetNvrStartNetworkCheck}, {3300, &kGetNvrDisplayConfig},
    {3320, &kSetNvrDisplayConfig},      {3500, &kGetNvrDiskInfo},          {3501, &kSetNvrDiskFormat},
};

}  // namespace

constexpr CodeGroup kRecorderCodes = kRows;

}  // namespace kov

int SYSTEM_CONTROL_3020_PARAM_init(SYSTEM_CONTROL_3020_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_3023_PARAM_init(SYSTEM_CONTROL_3023_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_3025_PARAM_init(SYSTEM_CONTROL_3020_PARAM* record) { return SYSTEM_CONTROL_3020_PARAM_init(record); }
int SYSTEM_CONTROL_3026_PARAM_init(SYSTEM_CONTROL_3026_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_3027_PARAM_init(SYSTEM_CONTROL_3027_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_3300_PARAM_init(SYSTEM_CONTROL_3300_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_3320_PARAM_init(SYSTEM_CONTROL_3300_PARAM* record) { return SYSTEM_CONTROL_3300_PARAM_init(record); }
int SYSTEM_CONTROL_3500_PARAM_init(SYSTEM_CONTROL_3500_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_3501_PARAM_init(SYSTEM_CONTROL_3501_PARAM* record) { return kov::fillDefaults(record); }

int SystemControl_GetNvrTimedRestartConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetNvrTimedRestartConfig.analyse(xml, result);
}
int SystemControl_SetNvrSalesarea_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetNvrSalesarea.analyse(xml, result);
}
int SystemControl_SetNvrTimedRestartConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetNvrTimedRestartConfig.analyse(xml, result);
}
int SystemControl_SetNvrSimpleCustomConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetNvrSimpleCustomConfig.analyse(xml, result);
}
int SystemControl_SetNvrStartNetworkCheck_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetNvrStartNetworkCheck.analyse(xml, result);
}
int SystemControl_GetNvrDisplayConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetNvrDisplayConfig.analyse(xml, result);
}
int SystemControl_SetNvrDisplayConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetNvrDisplayConfig.analyse(xml, result);
}
int SystemControl_GetNvrDiskInfo_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetNvrDiskInfo.analyse(xml, result);
}
int SystemControl_SetNvrDiskFormat_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetNvrDiskFormat.analyse(xml, result);
}
