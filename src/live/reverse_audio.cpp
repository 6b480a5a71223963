// REVERSE_AUDIO_MESSAGE: talk-back from a client to a device.
#include "kov_protocol/reverse_audio.h"

#include "core/exported.h"
#include "kov_platform/services.h"
#include "kov_platform/value_text.h"
#include "live/reverse_audio.h"

namespace kov {
namespace {

using Start = REVERSE_AUDIO_CMD_RA_START_PARAM;
using Stop = REVERSE_AUDIO_CMD_RA_STOP_PARAM;
static_assert(sizeof(Start) == 120 && sizeof(Stop) == 64);

void startRequest(BodyIo& io, Start& r) {
  io.element("RA_START_PARAM", {attr("Sessionid", r.Sessionid).ifSet(),
                                {"AudioForamt", r.AudioForamt},
                                {"Channels", r.Channels},
                                {"SampleRate", r.SampleRate},
                                {"Bitrate", r.Bitrate},
                                {"RTPSendPort", r.RTPPort},
                                {"ConnectType", r.ConnectType}});
}

// The sample rate goes out under a name that no side listens to.
void startResponse(BodyIo& io, Start& r) {
  io.element("RA_START_RESPONSE", {attr("Sessionid", r.Sessionid).ifSet(),
                                   {"RTPRecvPort", r.RTPPort},
                                   {"AudioCodec", r.AudioForamt},
                                   attr("Samplerate", r.SampleRate).writeOnly(),
                                   attr("SampleRate", r.SampleRate).readOnly(),
                                   {"BitsPerSample", r.Bitrate},
                                   {"Channels", r.Channels},
                                   attr("ConnectionType", r.ConnectType).thenNothing()});
}

// A received session may fill its field to the last byte, without a NUL.
void stopRequest(BodyIo& io, Stop& r) {
  if (io.writing()) {
    io.elementWhen(isSet(r.Sessionid), "RA_STOP_PARAM", {{"Sessionid", r.Sessionid}});
    return;
  }
  const char* const session = io.reader().child("RA_STOP_PARAM").attribute("Sessionid");
  if (session != nullptr) std::memcpy(r.Sessionid, session, boundedLength(session, sizeof r.Sessionid));
}

// The missing element is told under the live stream's name.
constexpr Message kStart =
    Message("ReverseAudioMessage", form<startRequest>("RA_START_PARAM"), form<startResponse>("RA_START_RESPONSE"))
        .requestFirst()
        .reportsAs("LiveStreamCmdStartMessage")
        .reportsMissing("STREAM_START_PARAM");

constexpr Message kStop = Message("ReverseAudioMessage", form<stopRequest>("RA_STOP_PARAM"), nullptr)
                              .reportsAs("LiveStreamCmdStartMessage")
                              .reportsMissing("STREAM_START_PARAM");

const Message* messageOf(const char* msgCode) {
  if (sameText(msgCode, REVERSE_AUDIO_START_CODE)) return &kStart;
  if (sameText(msgCode, REVERSE_AUDIO_STOP_CODE)) return &kStop;
  const int code = intOf(msgCode);
  if (code == 544) return &kStart;
  return code == 545 ? &kStop : nullptr;
}

int compose(const void* param, int direction, const char* msgCode, BodyWriter& body) {
  const Message* const message = messageOf(msgCode);
  if (message != nullptr) return message->compose(param, direction, body);
  KovProtocolLogError("LIVE_STREAM_MESSAGE deal a unknow Msg_code:%s !!!\n", msgCode);
  return KOV_ERROR_UNKNOWN_MESSAGE;
}

int analyse(const KovXMLParser& document, const char* msgCode, void** result) {
  ElementReader body;
  const int found = findBody(kStart.name(), document, body);
  // To this family a missing body is a missing element.
  if (found != KOV_OK) return document.RootElement() == nullptr ? found : KOV_ERROR_NO_ELEMENT;
  const Message* const message = messageOf(msgCode);
  if (message != nullptr) return message->analyse(document, result);
  KovProtocolLogError("ReverseAudioMessageAnalysis deal a unknow Msg_code:%s !!!\n", msgCode);
  return KOV_ERROR_UNKNOWN_MESSAGE;
}

int composeEntry(ComposeCall& call, BodyWriter& body) {
  return compose(call.param, call.direction, call.msgCode, body);
}

int analyseEntry(const AnalysisCall& call) { return analyse(call.document, call.msgCode, call.result); }

}  // namespace

constexpr Family kReverseAudio = {nullptr, composeEntry, analyseEntry};

}  // namespace kov

int REVERSE_AUDIO_CMD_RA_START_PARAM_init(REVERSE_AUDIO_CMD_RA_START_PARAM* record) {
  return kov::fillDefaults(record);
}
int REVERSE_AUDIO_CMD_RA_STOP_PARAM_init(REVERSE_AUDIO_CMD_RA_STOP_PARAM* record) { return kov::fillDefaults(record); }

int ReverseAudioMessageCompose(const void* param, int direction, const char* msgCode, char* body, int bodySize) {
  return kov::composeExported("REVERSE_AUDIO_MESSAGE", param, body, bodySize, msgCode,
                              [=](kov::BodyWriter& writer) { return kov::compose(param, direction, msgCode, writer); });
}

int ReverseAudioMessageAnalysis(const char* xml, const char* msgCode, void** result) {
  if (xml == nullptr || msgCode == nullptr || result == nullptr) {
    KovProtocolLogError("ReverseAudioMessageAnalysis put a empty Param\n");
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  KovXMLParser document;
  return document.Parse(xml) == 0 ? kov::analyse(document, msgCode, result) : KOV_ERROR_BAD_DOCUMENT;
}
