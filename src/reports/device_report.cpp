// DEVICE_REPORT_MESSAGE: a device tells its state, or where its camera points, without being asked.
#include "kov_protocol/device_report.h"

#include "core/family.h"
#include "kov_platform/services.h"
#include "reports/device_report.h"

namespace kov {
namespace {

static_assert(sizeof(DEVICE_REPORT_3900_PARAM) == 5120 && sizeof(DEVICE_REPORT_3901_PARAM) == 24);

// Both messages and the analysis as a whole speak under one name.
constexpr const char* kName = "DeviceReportMessage";

// The texts go out as they stand.
void status(BodyIo& io, DEVICE_REPORT_3900_PARAM& r) {
  io.texts({attr("Ipcs_stat", r.Ipcs_stat).ifSet(), attr("streamstat", r.streamstat).ifSet(),
            attr("IpcAbility1", r.IpcAbility1).ifSet(), attr("IpcProtoCol", r.IpcProtoCol).ifSet(),
            attr("ChnFeature", r.ChnFeature).ifSet(), attr("ChnDevbind", r.ChnDevbind).ifSet()});
}

constexpr Message kStatus = {kName, form<status>(nullptr), nullptr, Direction::Ignored};

// A position looks like the answer to a PTZ query for it.
void position(BodyIo& io, DEVICE_REPORT_3901_PARAM& r) {
  BodyIo xml = io.enter("xml");
  xml.text("<cmd>getCurPos</cmd>\n");
  xml.texts({{"x", r.x}, {"y", r.y}, {"mul", r.mul}, {"maxMul", r.maxMul}, {"linkage", r.linkage}});
  xml.text("</xml>\n");
}

constexpr Message kPosition =
    Message(kName, form<position>("xml"), nullptr, Direction::Ignored).reportsMissing("HardwareConfig");

constexpr CodeRow kCodes[] = {{3900, &kStatus}, {3901, &kPosition}};

void logUnknown(const char*, int code) {
  KovProtocolLogError("DEVICE_REPORT_MESSAGE deal a unknow msg_cdoe : %d\n", code);
}

// Analysis tells unknown codes under another family's name.
void logUnknownReceived(const char*, int code) {
  KovProtocolLogError("SYSTEM_HWCFG_MESSAGE deal a unknow msg_cdoe : %d\n", code);
}

constexpr CodeTable kTable("DEVICE_REPORT_MESSAGE", kCodes, logUnknown);
constexpr CodeTable kReceivedTable("DeviceReportMessageAnalysis", kCodes, logUnknownReceived);

// A document without a body is told before an unknown code.
int analyse(const KovXMLParser& document, const char* msgCode, void** result) {
  ElementReader body;
  const int found = findBody(kName, document, body);
  return found != KOV_OK ? found : kReceivedTable.analyse(document, msgCode, result);
}

int analyseCall(const AnalysisCall& call) { return analyse(call.document, call.msgCode, call.result); }

}  // namespace

constexpr Family kDeviceReport = {&kTable, nullptr, analyseCall};

}  // namespace kov

int DEVICE_REPORT_3900_PARAM_init(DEVICE_REPORT_3900_PARAM* record) { return kov::fillDefaults(record); }

// The reserved word stays as it is: a caller's record may end before it.
int DEVICE_REPORT_3901_PARAM_init(DEVICE_REPORT_3901_PARAM* record) {
  if (record == nullptr) return KOV_ERROR_NULL;
  record->x = record->y = record->mul = record->maxMul = record->linkage = -1;
  return KOV_OK;
}

int DeviceReportMessageCompose(const void* param, int direction, const char* msgCode, char* body, int bodySize) {
  return kov::kTable.compose(param, direction, msgCode, body, bodySize);
}

int DeviceReportMessageAnalysis(const char* xml, const char* msgCode, void** result) {
  if (xml == nullptr || msgCode == nullptr || result == nullptr) {
    KovProtocolLogError("DeviceReportMessageAnalysis put a empty Param\n");
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  KovXMLParser document;
  const int parsed = kov::parseDocument(kov::kName, xml, document);
  return parsed != KOV_OK ? parsed : kov::analyse(document, msgCode, result);
}
