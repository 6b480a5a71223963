#pragma once

#include "core/family.h"

namespace kov {

extern const Family kUserAuth;

}  // namespace kov
