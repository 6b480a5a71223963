// IPC_REPAIR_MESSAGE: a camera asks a server where to fetch its firmware or its algorithm from.
#include "kov_protocol/ipc_repair.h"

#include "core/exported.h"
#include "core/family.h"
#include "kov_platform/services.h"
#include "reports/ipc_repair.h"

namespace kov {
namespace {

static_assert(sizeof(IPC_REPAIR_PARAM) == 996);

// Both messages speak under one name.
constexpr const char* kName = "IpcRepairMessage";
constexpr const char* kFirmwareElement = "IPC_REPAIR";
constexpr const char* kAlgorithmElement = "IPC_ALG_REPAIR";

void firmwareRequest(BodyIo& io, IPC_REPAIR_PARAM& r) {
  io.element(kFirmwareElement, {{"IPCMac", r.Mac}, {"IpcIdentify", r.RepairVer}});
}

// Request and response have one element, so this reads both: what has an IpcIdentify, even an empty one, is a request.
void firmwareResponse(BodyIo& io, IPC_REPAIR_PARAM& r) {
  if (io.reading()) {
    firmwareRequest(io, r);
    if (io.reader().child(kFirmwareElement).attribute("IpcIdentify") != nullptr) return;
  }
  io.element(kFirmwareElement, {{"ServerMac", r.ServerMac},
                                {"ServerIP", r.ServerIP},
                                {"ServerPort", r.ServerPort},
                                {"Ipaddr", r.Ipaddr},
                                {"IPCMac", r.IPCMac},
                                {"RepairVer", r.RepairVer}});
}

constexpr Message kFirmware = {kName, form<firmwareRequest>(kFirmwareElement),
                               form<firmwareResponse>(kFirmwareElement)};

void algorithmRequest(BodyIo& io, IPC_REPAIR_PARAM& r) {
  io.element(kAlgorithmElement, {{"Mac", r.Mac},
                                 {"BuildVer", r.RepairVer},
                                 {"ReqAddr", r.ReqAddr},
                                 {"SN", r.SN},
                                 {"Alm", r.Alm},
                                 {"DomainName", r.DomainName}});
}

// Reads the request as well. The client's addresses are written while its MAC is empty: servers answer that way.
void algorithmResponse(BodyIo& io, IPC_REPAIR_PARAM& r) {
  if (io.reading()) algorithmRequest(io, r);
  const bool tellsClient = !isSet(r.IPCMac);
  io.element(kAlgorithmElement, {{"ServerMac", r.ServerMac},
                                 {"ServerIP", r.ServerIP},
                                 {"ServerPort", r.ServerPort},
                                 {"FilePath", r.FilePath},
                                 {"BuildVer", r.RepairVer},
                                 {"SN", r.SN},
                                 {"Alm", r.Alm},
                                 attr("ClientIP", r.Ipaddr).when(tellsClient),
                                 attr("ClientMac", r.IPCMac).when(tellsClient)});
}

constexpr Message kAlgorithm = {kName, form<algorithmRequest>(kAlgorithmElement),
                                form<algorithmResponse>(kAlgorithmElement)};

int compose(const void* param, int direction, BodyWriter& body) {
  const bool algorithm = isSet(static_cast<const IPC_REPAIR_PARAM*>(param)->Alm);
  return (algorithm ? kAlgorithm : kFirmware).compose(param, direction, body);
}

int composeCall(ComposeCall& call, BodyWriter& body) { return compose(call.param, call.direction, body); }

// A body with both elements, or with neither, is the firmware's.
int analyse(const KovXMLParser& document, void** result) {
  const ElementReader body = ElementReader(document, document.RootElement()).child("MESSAGE_BODY");
  const bool algorithm = !body.child(kFirmwareElement) && body.child(kAlgorithmElement);
  return (algorithm ? kAlgorithm : kFirmware).analyse(document, result);
}

int analyseCall(const AnalysisCall& call) { return analyse(call.document, call.result); }

}  // namespace

constexpr Family kIpcRepair = {nullptr, composeCall, analyseCall};

}  // namespace kov

int IPC_REPAIR_PARAM_init(IPC_REPAIR_PARAM* record) { return kov::fillDefaults(record); }

int IpcRepairMessageCompose(const void* param, int direction, char* body, int bodySize) {
  return kov::composeExported("IPC_REPAIR_MESSAGE", param, body, bodySize, body,
                              [=](kov::BodyWriter& writer) { return kov::compose(param, direction, writer); });
}

int IpcRepairMessageAnalysis(const char* xml, void** result) {
  if (xml == nullptr || result == nullptr) {
    KovProtocolLogError("IpcRepairMessageAnalysis put a empty Param\n");
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  KovXMLParser document;
  const int parsed = kov::parseDocument(kov::kName, xml, document);
  return parsed != KOV_OK ? parsed : kov::analyse(document, result);
}
