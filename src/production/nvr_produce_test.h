#pragma once

#include "core/family.h"

namespace kov {

extern const Family kNvrProduceTest;

}  // namespace kov
