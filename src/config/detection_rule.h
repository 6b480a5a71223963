// The detection rule that people, vehicles, animals, faces, plates and algorithms share.
#pragma once

#include "core/body_io.h"
#include "kov_protocol/system_config_detection.h"

namespace kov {

// The two kinds of exchange show in the device's defaults only: answers to GET messages tell them.
enum class Exchange : unsigned char { Get, Set };

// An attribute that SET messages neither write nor read.
Attribute deviceDefault(Exchange exchange, const Attribute& attribute);

// The attributes of a rule, for an element that goes on with its own behind them.
void ruleAttributes(BodyIo& io, SYSTEM_CONFIG_DETECTION_RULE& rule, Exchange exchange);

// Steps into an element whose attributes follow one by one; closeAttributes() ends its tag.
BodyIo openAttributes(BodyIo& io, const char* name);
void closeAttributes(BodyIo& io);

// An element that is a rule and nothing else.
void ruleElement(BodyIo& io, const char* name, SYSTEM_CONFIG_DETECTION_RULE& rule, Exchange exchange);

}  // namespace kov
