#include "session/single_message.h"

#include "kov_platform/services.h"

namespace kov {

int composeSingle(const char* name, const Message& message, const void* param, int direction, char* body,
                  int bodySize) {
  if (body == nullptr || bodySize < 1) {
    KovProtocolLogError("%s put a empty Param\n", name);
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  if (param == nullptr) return KOV_OK;
  BodyWriter writer(body, static_cast<std::size_t>(bodySize));
  const int composed = message.compose(param, direction, writer);
  if (!writer.empty()) writer.terminate();
  return composed;
}

}  // namespace kov
