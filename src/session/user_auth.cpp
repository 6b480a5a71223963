// USER_AUTH_MESSAGE: a login and its answer.
#include "kov_protocol/user_auth.h"

#include "core/exported.h"
#include "core/message.h"
#include "kov_platform/services.h"
#include "session/user_auth.h"

namespace kov {
namespace {

using Login = USER_AUTH_CMD_USER_AUTH_PARAM;
static_assert(sizeof(Login) == 336);

void loginRequest(BodyIo& io, Login& r) {
  io.element("USER_AUTH_PARAM", {{"Username", r.Username},
                                 {"Password", r.Password},
                                 attr("AuthMethod", r.AuthMethod).ifSet().orZero().thenNothing()});
  if (io.writing() && isSet(r.VendorId)) {  // the vendor is told, but nobody listens
    io.element("VENDOR_PARAM", "<VENDOR_PARAM ", {attr("VendorId", r.VendorId).blankBeforeEquals().thenBlank()});
  }
  io.element("ENCRYPT", {{"Capbility", r.Capbility},
                         attr("Version", r.Version).orZero(),
                         attr("KeyTypeVer", r.KeyTypeVer).ifSet().orZero()});
}

void loginResponse(BodyIo& io, Login& r) {
  io.elementWhen(isSet(r.MAXChannels) || isSet(r.Sessionid) || isSet(r.Group), "USER_AUTH_RESPONSE",
                 {attr("Sessionid", r.Sessionid).ifSet(), attr("Group", r.Group).ifSet(),
                  attr("MAXChannels", r.MAXChannels).ifSet().orZero()});
  io.elementWhen(isSet(r.Version) || isSet(r.Capbility) || isSet(r.KeyTypeVer), "ENCRYPT",
                 {attr("Capbility", r.Capbility).ifSet(), attr("Version", r.Version).ifSet().orZero(),
                  attr("KeyTypeVer", r.KeyTypeVer).ifSet().orZero()});
}

constexpr Message kLogin = {"UserAuthMessage", form<loginRequest>(nullptr), form<loginResponse>(nullptr),
                            Direction::ResponseIs13};

// A document does not say which of the two it is, so it is read as both: all elements are optional.
void readLogin(const ElementReader& body, Login& record) {
  BodyIo io(body);
  loginRequest(io, record);
  loginResponse(io, record);
}

int analyse(const KovXMLParser& document, void** result) {
  const ElementReader root(document, document.RootElement());
  if (!root) {
    KovProtocolLogError("USER_AUTH_MESSAGE UserAuthMessageAnalysis get RootElement error\n");
    return KOV_ERROR_BAD_DOCUMENT;
  }
  const ElementReader body = root.child("MESSAGE_BODY");
  if (!body) {
    KovProtocolLogError("USER_AUTH_MESSAGE UserAuthMessageAnalysis get MESSAGE_BODY error or No MessageBody\n");
  }
  auto* const record = newRecord<Login>(result);
  if (record == nullptr) return KOV_ERROR_NO_MEMORY;
  if (body) {
    readLogin(body, *record);
  } else {
    record->KeyTypeVer = 0;  // the oldest peers send no body, and know no keys
  }
  return KOV_OK;
}

int composeEntry(ComposeCall& call, BodyWriter& body) { return kLogin.compose(call.param, call.direction, body); }

int analyseEntry(const AnalysisCall& call) { return analyse(call.document, call.result); }

}  // namespace

constexpr Family kUserAuth = {nullptr, composeEntry, analyseEntry};

}  // namespace kov

int USER_AUTH_CMD_USER_AUTH_PARAM_init(USER_AUTH_CMD_USER_AUTH_PARAM* record) { return kov::fillDefaults(record); }

int UserAuthMessageCompose(const USER_AUTH_CMD_USER_AUTH_PARAM* param, int direction, char* body, int bodySize) {
  return kov::composeExported("USER_AUTH_MESSAGE", param, body, bodySize, body,
                              [=](kov::BodyWriter& writer) { return kov::kLogin.compose(param, direction, writer); });
}

int UserAuthMessageAnalysis(const char* xml, void** result) {
  if (xml == nullptr || result == nullptr) {
    KovProtocolLogError("USER_AUTH_MESSAGE put a empty Param\n");
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  KovXMLParser document;
  return document.Parse(xml) == 0 ? kov::analyse(document, result) : KOV_ERROR_BAD_DOCUMENT;
}
