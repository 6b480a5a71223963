// The heartbeat: all it says stands in the header, and its body is empty.
#include "kov_protocol/heartbeat.h"

#include "core/header.h"
#include "kov_platform/services.h"
#include "session/heartbeat.h"

namespace kov {
namespace {

static_assert(sizeof(KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM) == 260);

void appendState(const KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM& record, HeaderExtras& extras) {
  extras.lineIfSet("Ipcs_stat", record.Ipcs_stat);
  extras.lineIfSet("streamstat", record.streamstat);
  extras.lineIfSet("IpcAbility1", record.IpcAbility1);
  extras.lineIfSet("IpcProtoCol", record.IpcProtoCol);
}

int composeExtras(ComposeCall& call, HeaderExtras& extras) {
  appendState(*static_cast<const KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM*>(call.param), extras);
  return KOV_OK;
}

int composeNothing(ComposeCall&, BodyWriter&) { return KOV_OK; }

int analyse(const AnalysisCall& call) { return readHeaderExtras(call.document, call.result); }

int refuse() {
  KovProtocolLogError("HeartbeatMessageCompose put a empty msghead\n");
  return KOV_ERROR_BAD_HEADER;
}

}  // namespace

constexpr Family kHeartbeat = {nullptr, composeNothing, analyse, composeExtras};

}  // namespace kov

int HeartbeatMessageCompose(const KOV_PROTOCOL_HEADER* header, const KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM* param,
                            char* headerExtras, int extrasSize, int extrasLen) {
  if (headerExtras == nullptr || header == nullptr || extrasSize < 1) return kov::refuse();
  if (param == nullptr) return KOV_OK;
  if (extrasLen < 0 || extrasLen >= extrasSize) return kov::refuse();
  kov::HeaderExtras extras(headerExtras, static_cast<std::size_t>(extrasSize), static_cast<std::size_t>(extrasLen));
  kov::appendState(*param, extras);
  return KOV_OK;
}
