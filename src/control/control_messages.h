// What the parts of the system control family share: their code rows, and the messages that are more than a row.
#pragma once

#include "core/family.h"
#include "kov_protocol/system_control.h"

namespace kov {

extern const CodeGroup kDeviceCodes;
extern const CodeGroup kFileCodes;
extern const CodeGroup kNetworkStatusCodes;
extern const CodeGroup kRecorderCodes;
extern const CodeGroup kStorageCodes;
extern const CodeGroup kSystemInfoCodes;

// 1012 is answered with versions or with a recorder's SystemInfo: analysis chooses by the elements there are. Both
// forms of a document, text and parsed, go the same way.
int analyseSysVersion(const char* xml, void** result);
int analyseSysVersion(const KovXMLParser& document, void** result);

// 1014 runs two messages in a row, in both directions.
int composeStorageCfg(const void* record, int direction, BodyWriter& body);
int analyseStorageCfg(const char* xml, void** result);
int analyseStorageCfg(const KovXMLParser& document, void** result);

// The first of the two: its text never leaves.
extern const Message kGetIpcStorageCfg;

// A channel that may be left out, or named by an empty attribute.
void optionalChannel(BodyIo& io, std::int32_t& channel, std::int32_t emptyChannel);

}  // namespace kov
