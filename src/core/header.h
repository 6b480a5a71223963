// The header records, read from a document that has been parsed.
#pragma once

#include "core/body_io.h"
#include "core/element_reader.h"
#include "kov_protocol/kov_protocol.h"

namespace kov {

// The attributes of MESSAGE_HEADER, in both directions: those that it always has, and those that it may have.
void headerAttributes(BodyIo& io, KOV_PROTOCOL_HEADER& r);
void optionalHeaderAttributes(BodyIo& io, KOV_PROTOCOL_HEADER& r);

// Reads MESSAGE_HEADER as GetMessageHeader() does.
int readMessageHeader(const KovXMLParser& document, KOV_PROTOCOL_HEADER& header);

// Reads a heartbeat's extras as GetMessageHeaderEx() does.
int readHeaderExtras(const KovXMLParser& document, void** result);

// Finds TRANSPARENT_HEADER as GetTransparentHeader() does: KOV_OK and the element, or a code.
int findTransparentHeader(const KovXMLParser& document, ElementReader& found);

// Reads its five attributes; the rest of the record is left alone.
void readTransparentHeader(const ElementReader& element, TRANSPARENT_HEADER& record);

}  // namespace kov
