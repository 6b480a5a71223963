#pragma once

#include "core/family.h"

namespace kov {

extern const CodeGroup kChannelCodes;

}  // namespace kov
