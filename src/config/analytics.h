// The groups of video analytics: rules of people, vehicles and animals; plates and algorithms; faces; scenes.
#pragma once

#include "core/family.h"

namespace kov {

extern const CodeGroup kRuleCodes;
extern const CodeGroup kAlgorithmCodes;
extern const CodeGroup kFaceCodes;
extern const CodeGroup kSceneCodes;

}  // namespace kov
