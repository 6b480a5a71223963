// Sections that several media messages carry. A time that they spell differently is handed in by the message.
#pragma once

#include "core/body_io.h"
#include "kov_protocol/system_config_media.h"

namespace kov {

// The attributes of Capture up to the ones of the infrared filter, whose order differs.
void captureBasics(BodyIo& capture, SYSTEM_CONFIG_MEDIA_CAPTURE& r);

// The attributes of EncodeConfig that all messages have.
void streamBasics(BodyIo& stream, SYSTEM_CONFIG_MEDIA_STREAM& r);
void encodeSection(BodyIo& video, SYSTEM_CONFIG_MEDIA_ENCODE& r, const Attribute& wdrStart, const Attribute& wdrEnd);

// The children of AdvacedMediaConfig up to DefogConfig.
void imageSections(BodyIo& advanced, SYSTEM_CONFIG_MEDIA_IMAGE& r, const Attribute& drcStart, const Attribute& drcEnd);
void defogSection(BodyIo& advanced, SYSTEM_CONFIG_MEDIA_DEFOG& r);
void doubleLightSection(BodyIo& advanced, std::uint8_t& weight);

void jpegSection(BodyIo& video, SYSTEM_CONFIG_MEDIA_JPEG& r);
void maskSection(BodyIo& video, SYSTEM_CONFIG_MEDIA_MASK (&masks)[SYSTEM_CONFIG_MEDIA_STREAMS]);

// Opens an Overlay that encloses its children; the message closes it.
BodyIo enterOverlay(BodyIo& io, SYSTEM_CONFIG_MEDIA_OVERLAY& r, std::int32_t& channel);
// False when reading, and the element is missing.
bool timeOverlay(BodyIo& io, SYSTEM_CONFIG_MEDIA_TIME_OVERLAY& r);
bool titleOverlay(BodyIo& io, SYSTEM_CONFIG_MEDIA_TITLE_OVERLAY& r);

void audioEncodeSection(BodyIo& audio, SYSTEM_CONFIG_MEDIA_AUDIO_ENCODE& r);

}  // namespace kov
