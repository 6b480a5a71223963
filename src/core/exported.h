// What the exported compose functions do around a composer: the caller's arguments, and the end of the text.
#pragma once

#include "core/body_writer.h"
#include "kov_platform/services.h"
#include "kov_protocol/kov_protocol.h"

namespace kov {

// Lets `compose` write into the caller's buffer, which is touched only when there is text for it.
template <class Compose>
int composeInto(char* body, int bodySize, Compose compose) {
  BodyWriter writer(body, static_cast<std::size_t>(bodySize));
  const int composed = compose(writer);
  if (!writer.empty()) writer.terminate();
  return composed;
}

// The rule for all families: a missing argument is told under the family's name, and a missing record composes nothing.
// `required` is one more argument that must not be null.
template <class Compose>
int composeExported(const char* name, const void* param, char* body, int bodySize, const void* required,
                    Compose compose) {
  if (body == nullptr || bodySize < 1 || required == nullptr) {
    KovProtocolLogError("%s put a empty Param\n", name);
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  return param == nullptr ? KOV_OK : composeInto(body, bodySize, compose);
}

}  // namespace kov
