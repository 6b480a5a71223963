#pragma once

#include "core/family.h"

namespace kov {

extern const CodeGroup kAlarmCodes;

}  // namespace kov
