// SYSTEM_SEARCHIPC_MESSAGE for the family table.
#pragma once

#include "core/family.h"

namespace kov {

extern const Family kSystemSearchipc;

}  // namespace kov
