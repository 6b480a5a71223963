#pragma once

#include "core/family.h"

namespace kov {

extern const Family kSystemControl;

// 1020, which the configuration types serve as well.
extern const Message kGetSysAbality;

}  // namespace kov
