#pragma once

#include "core/family.h"

namespace kov {

extern const CodeGroup kGeneralCodes;

}  // namespace kov
