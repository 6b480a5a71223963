// LIVE_STREAM_MESSAGE: start, stop and quality of a live stream.
#include "kov_protocol/live_stream.h"

#include "core/exported.h"
#include "core/family.h"
#include "kov_platform/services.h"
#include "kov_platform/value_text.h"
#include "live/live_stream.h"

namespace kov {
namespace {

using Start = LIVE_STREAM_CMD_STREAM_START_PARAM;
using Stop = LIVE_STREAM_CMD_STREAM_STOP_PARAM;

static_assert(sizeof(Start) == 680 && offsetof(Start, video) == 88 && offsetof(Start, audio) == 640);
static_assert(sizeof(Stop) == 16);

// The numbers that a granted stream has in MESSAGE_HEADER. Its stream number there is the one that the requester asked
// for, so it lands in VideoStream; the body overwrites what it carries itself.
void readHeaderNumbers(const BodyIo& io, Start& r) {
  if (io.writing()) return;
  const KovXMLParser& document = io.reader().document();
  const ElementReader root(document, document.RootElement());
  BodyIo(root.child("MESSAGE_HEADER"))
      .attributes({{"ChannelId", r.ChannelId},
                   {"StreamID", r.VideoStream},
                   {"ConnectNum", r.ConnectNum},
                   {"StreamNum", r.StreamNum}});
}

void writeHeaderNumbers(HeaderExtras& extras, const Start& r) {
  if (!isSet(r.ConnectNum)) return;
  extras.line("ChannelId", r.ChannelId);
  extras.line("StreamID", r.StreamID);
  extras.line("ConnectNum", r.ConnectNum);
  extras.line("StreamNum", r.StreamNum);
}

void startRequest(BodyIo& io, Start& r) {
  readHeaderNumbers(io, r);
  io.element("STREAM_START_PARAM", {{"ChannelId", r.ChannelId},
                                    {"VideoStream", r.VideoStream},
                                    attr("AudioEnable", r.AudioEnable).ifSet(),
                                    attr("VideoPort", r.VideoPort).ifSet(),
                                    attr("AudioPort", r.AudioPort).ifSet(),
                                    attr("Multicast", r.Multicast).ifSet(),
                                    attr("UseTcp", r.UseTcp).ifSet(),
                                    attr("FrameType", r.FrameType).ifSet()});
}

// Over TCP there are neither ports nor groups to tell. The channel is read from the header only.
void transport(BodyIo& io, Start& r, bool sound) {
  const bool tcp = isSet(r.UseTcp) && r.UseTcp != 0;
  std::int32_t audioFlag = sound ? 1 : 0;
  io.element("TRANS_PARAM", {attr("ChannelId", r.ChannelId).writeOnly(),
                             {"StreamID", r.StreamID},
                             {"VideoStream", r.VideoStream},
                             attr("AudioEnable", audioFlag).writeOnly(),
                             attr("AudioEnable", r.AudioEnable).readOnly(),
                             attr("UseTcp", r.UseTcp).when(tcp),
                             attr("Multicast", r.Multicast).when(!tcp).ifSet(),
                             attr("MulticastAddress", r.MulticastAddress).when(!tcp).ifSet(),
                             attr("VideoPort", r.VideoPort).when(!tcp),
                             attr("AudioPort", r.AudioPort).when(!tcp && sound),
                             attr("EnableChangeStream", r.EnableChangeStream).ifSet()});
}

// Without a video stream the response is its header numbers alone.
void startResponse(BodyIo& io, Start& r) {
  readHeaderNumbers(io, r);
  if (io.writing() && !isSet(r.VideoStream)) return;
  const bool sound = r.AudioEnable > 0;
  transport(io, r, sound);
  io.element("VIDEO_PARAM", {{"Encoder", r.video.Encoder},
                             {"Width", r.video.Width},
                             {"Height", r.video.Height},
                             {"Framerate", r.video.Framerate},
                             {"Bitrate", r.video.Bitrate},
                             {"Config", r.video.Config}});
  io.elementWhen(sound, "AUDIO_PARAM",
                 {{"Encoder", r.audio.Encoder},
                  {"SampleRate", r.audio.SampleRate},
                  {"SampleWidth", r.audio.SampleWidth},
                  {"Channels", r.audio.Channels},
                  {"Bitrate", r.audio.Bitrate}});
}

// A response without TRANS_PARAM is told under the request's element.
constexpr Message kStart =
    Message("LiveStreamCmdStartMessage", form<startRequest>("STREAM_START_PARAM"), form<startResponse>("TRANS_PARAM"))
        .requestFirst()
        .reportsMissing("STREAM_START_PARAM");

void stop(BodyIo& io, Stop& r) {
  io.element("STREAM_STOP_PARAM",
             {attr("ChannelId", r.ChannelId).ifSet().orZero(), attr("StreamID", r.StreamID).ifSet().orZero(),
              attr("UseTcp", r.UseTcp).ifSet().orZero()});
}

constexpr Message kStop = {"LiveStreamCmdStopMessage", form<stop>("STREAM_STOP_PARAM"), nullptr, Direction::Ignored};

void quality(BodyIo& io, Stop& r) {
  io.element("STREAM_QUALITY_PARAM",
             {attr("ChannelId", r.ChannelId).ifSet().orZero(), attr("StreamID", r.StreamID).ifSet().orZero(),
              attr("FrameType", r.FrameType).ifSet().orZero()});
}

constexpr Message kQuality = {"LiveStreamCmdQualityMessage", form<quality>("STREAM_QUALITY_PARAM"), nullptr,
                              Direction::Ignored};

constexpr int kStartNumber = 1062;

const Message* lookUp(const char* msgCode) {
  if (sameText(msgCode, "CMD_STREAM_START") || intOf(msgCode) == kStartNumber) return &kStart;
  if (sameText(msgCode, "CMD_STREAM_STOP")) return &kStop;
  return sameText(msgCode, "CMD_STREAM_QUALITY") ? &kQuality : nullptr;
}

// The message of a code; null, and told, when there is none.
const Message* find(const char* msgCode) {
  const Message* const message = lookUp(msgCode);
  if (message == nullptr) KovProtocolLogError("LIVE_STREAM_MESSAGE deal a unknow Msg_code:%s !!!\n", msgCode);
  return message;
}

int refuse() {
  KovProtocolLogError("LIVE_STREAM_MESSAGE put a empty Param\n");
  return KOV_ERROR_EMPTY_ARGUMENT;
}

void composeExtras(const Message* message, const void* param, int direction, HeaderExtras& extras) {
  if (message == &kStart && !isRequest(direction)) writeHeaderNumbers(extras, *static_cast<const Start*>(param));
}

int composeHeader(ComposeCall& call, HeaderExtras& extras) {
  composeExtras(lookUp(call.msgCode), call.param, call.direction, extras);
  return KOV_OK;
}

int composeBody(ComposeCall& call, BodyWriter& body) {
  const Message* const message = find(call.msgCode);
  return message == nullptr ? KOV_ERROR_UNKNOWN_MESSAGE : message->compose(call.param, call.direction, body);
}

// Text that is not well formed is refused without a line.
int analyseText(const Message& message, const char* xml, void** result) {
  if (xml == nullptr || result == nullptr) {
    KovProtocolLogError("%sAnalysis put a empty Param\n", message.name());
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  KovXMLParser document;
  return document.Parse(xml) == 0 ? message.analyse(document, result) : KOV_ERROR_BAD_DOCUMENT;
}

int analyseCall(const AnalysisCall& call) {
  const Message* const message = find(call.msgCode);
  return message == nullptr ? KOV_ERROR_UNKNOWN_MESSAGE : message->analyse(call.document, call.result);
}

}  // namespace

constexpr Family kLiveStream = {nullptr, composeBody, analyseCall, composeHeader};

}  // namespace kov

int LIVE_STREAM_CMD_STREAM_START_PARAM_init(LIVE_STREAM_CMD_STREAM_START_PARAM* record) {
  return kov::fillDefaults(record);
}
int LIVE_STREAM_1062_PARAM_init(LIVE_STREAM_CMD_STREAM_START_PARAM* record) {
  return LIVE_STREAM_CMD_STREAM_START_PARAM_init(record);
}
int LIVE_STREAM_CMD_STREAM_STOP_PARAM_init(LIVE_STREAM_CMD_STREAM_STOP_PARAM* record) {
  return kov::fillDefaults(record);
}
int LIVE_STREAM_CMD_STREAM_QUALITY_PARAM_init(LIVE_STREAM_CMD_STREAM_STOP_PARAM* record) {
  return LIVE_STREAM_CMD_STREAM_STOP_PARAM_init(record);
}

int LiveStreamMessageCompose(const void* param, int direction, const char* msgCode, char* body, int bodySize,
                             char* headerExtras, int headerExtrasSize, int headerExtrasLen) {
  if (body == nullptr || bodySize < 1 || msgCode == nullptr) return kov::refuse();
  const kov::Message* const message = kov::find(msgCode);
  if (message == nullptr) return KOV_ERROR_UNKNOWN_MESSAGE;
  if (param == nullptr) return KOV_OK;
  if (headerExtras != nullptr) {
    if (headerExtrasLen < 0 || headerExtrasLen >= headerExtrasSize) return kov::refuse();
    kov::HeaderExtras extras(headerExtras, static_cast<std::size_t>(headerExtrasSize),
                             static_cast<std::size_t>(headerExtrasLen));
    kov::composeExtras(message, param, direction, extras);
  }
  return kov::composeInto(body, bodySize,
                          [=](kov::BodyWriter& writer) { return message->compose(param, direction, writer); });
}

int LiveStreamMessageAnalysis(const char* xml, const char* msgCode, void** result) {
  if (xml == nullptr || msgCode == nullptr) return kov::refuse();
  const kov::Message* const message = kov::find(msgCode);
  return message == nullptr ? KOV_ERROR_UNKNOWN_MESSAGE : kov::analyseText(*message, xml, result);
}

int LiveStreamCmdStartMessageAnalysis(const char* xml, void** result) {
  return kov::analyseText(kov::kStart, xml, result);
}
int LiveStreamCmdStopMessageAnalysis(const char* xml, void** result) {
  return kov::analyseText(kov::kStop, xml, result);
}
int LiveStreamCmdQualityMessageAnalysis(const char* xml, void** result) {
  return kov::analyseText(kov::kQuality, xml, result);
}
