// SYSTEM_ENCRYPT_MESSAGE: the key of a session.
#include "kov_protocol/system_encrypt.h"

#include "core/exported.h"
#include "core/message.h"
#include "kov_platform/services.h"
#include "session/system_encrypt.h"

namespace kov {
namespace {

static_assert(sizeof(SYSTEM_ENCRYPT_150_PARAM) == 264);

void keyConfig(BodyIo& io, SYSTEM_ENCRYPT_150_PARAM& r) {
  io.element("KeyConfig", {attr("KeyLen", r.KeyLen).orZero(), {"KeyValue", r.KeyValue}});
}

constexpr Message kKeyConfig = {"SystemEncryptMessage", form<keyConfig>(nullptr), nullptr, Direction::Ignored};

int compose(ComposeCall& call, BodyWriter& body) { return kKeyConfig.compose(call.param, call.direction, body); }

int analyse(const AnalysisCall& call) { return kKeyConfig.analyse(call.document, call.result); }

}  // namespace

constexpr Family kSystemEncrypt = {nullptr, compose, analyse};

}  // namespace kov

int SYSTEM_ENCRYPT_150_PARAM_init(SYSTEM_ENCRYPT_150_PARAM* record) { return kov::fillDefaults(record); }

int SystemEncryptMessageCompose(const SYSTEM_ENCRYPT_150_PARAM* param, int direction, char* body, int bodySize) {
  return kov::composeExported("SYSTEM_ENCRYPT_MESSAGE", param, body, bodySize, body, [=](kov::BodyWriter& writer) {
    return kov::kKeyConfig.compose(param, direction, writer);
  });
}

int SystemEncryptMessageAnalysis(const char* xml, void** result) {
  if (xml == nullptr || result == nullptr) return kov::kKeyConfig.analyse(xml, result);  // tells the empty argument
  KovXMLParser document;
  if (document.Parse(xml) != 0) return KOV_ERROR_BAD_DOCUMENT;  // unlike other messages, without a line
  return kov::kKeyConfig.analyse(document, result);
}
