#pragma once

#include "core/family.h"

namespace kov {

// Free text for the debug console.
extern const Family kDebugText;

// Opens and closes the console: a header says it all.
extern const Family kDebugSwitch;

}  // namespace kov
