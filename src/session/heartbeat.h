#pragma once

#include "core/family.h"

namespace kov {

extern const Family kHeartbeat;

}  // namespace kov
