// Families of one message, which every Msg_code serves.
#pragma once

#include "core/message.h"

namespace kov {

// What their exported compose functions do: `name` begins the line about empty arguments, and a missing record
// composes nothing. The body is touched only when there is text for it.
int composeSingle(const char* name, const Message& message, const void* param, int direction, char* body, int bodySize);

}  // namespace kov
