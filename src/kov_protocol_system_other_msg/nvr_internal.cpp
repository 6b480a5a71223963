// NVR_INTERNAL_MESSAGES: recorders and cameras lock stream configurations and ask each other for channels.
#include "kov_protocol/nvr_internal.h"

#include "core/exported.h"
#include "core/family.h"
#include "kov_platform/services.h"
#include "kov_platform/value_text.h"
#include "kov_protocol_system_other_msg/nvr_internal.h"

namespace kov {
namespace {

static_assert(sizeof(NVR_INTERNAL_STREAM_CONFIG) == 72 && sizeof(NVR_INTERNAL_4001_PARAM) == 196);
static_assert(sizeof(NVR_INTERNAL_4002_PARAM) == 2116);

constexpr const char* kName = "NvrInternalMessage";
constexpr int kLockCode = 4001;
constexpr int kChannelListCode = 4002;
constexpr int kStreams = 2;

void streamConfig(BodyIo& element, NVR_INTERNAL_STREAM_CONFIG& config) {
  element.attributes({{"Stream", config.Stream},
                      {"Resolution", config.Resolution},
                      {"EncodeFormat", config.EncodeFormat},
                      {"BitRateControl", config.BitRateControl},
                      {"Initquant", config.Initquant},
                      {"BitRate", config.BitRate},
                      {"FrameRate", config.FrameRate}});
}

void writeStreams(BodyIo& lock, NVR_INTERNAL_4001_PARAM& r) {
  for (NVR_INTERNAL_STREAM_CONFIG& config : r.StreamConfig) {
    BodyIo element = lock.enter("StreamConfig", "<StreamConfig\n");
    streamConfig(element, config);
    element.text("/>\n");
  }
}

// False when the element does not say which stream it is.
bool readStream(const ElementReader& element, unsigned char& stream) {
  return readByte(element.attribute("Stream"), stream);
}

// Two elements, each into the configuration that its Stream names; checkStreams() has seen them.
void readStreams(const ElementReader& lock, NVR_INTERNAL_4001_PARAM& r) {
  ElementReader found = lock.child("StreamConfig");
  for (int i = 0; i < kStreams; ++i, found = found.next("StreamConfig")) {
    unsigned char stream = 0;
    readStream(found, stream);
    BodyIo element(found);
    streamConfig(element, r.StreamConfig[stream == 2 ? 1 : 0]);
  }
}

void lockStreams(BodyIo& io, NVR_INTERNAL_4001_PARAM& r) {
  BodyIo lock = io.enter("LockParamInfo");
  lock.element("IPCInfo", {{"SN", r.SN}, {"IPAddress", r.IPAddress}, {"MulticularChn", r.MulticularChn}});
  if (lock.reading()) {
    readStreams(lock.reader(), r);
  } else {
    writeStreams(lock, r);
  }
  lock.text("</LockParamInfo>\n");
}

constexpr Message kLock = {kName, form<lockStreams>("LockParamInfo"), nullptr, Direction::Ignored};

// Fails, unlike any other form, for elements that are there but say nothing of use.
int checkStreams(const ElementReader& lock) {
  ElementReader found = lock.child("StreamConfig");
  for (int round = 1; round <= kStreams; ++round, found = found.next("StreamConfig")) {
    unsigned char stream = 0;
    if (!found) {
      KovProtocolLogError("NvrInternalMessageAnalysis get StreamConfig:%d error\n", round);
      return KOV_ERROR_BAD_DOCUMENT;
    }
    if (!readStream(found, stream)) {
      KovProtocolLogError("NvrInternalMessageAnalysis get stream\n");
      return KOV_ERROR_BAD_DOCUMENT;
    }
    if (stream != 1 && stream != 2) {
      KovProtocolLogError("NvrInternalMessageAnalysis get Error stream :%d\n", stream);
      return KOV_ERROR_BAD_DOCUMENT;
    }
  }
  return KOV_OK;
}

void channelListRequest(BodyIo& io, NVR_INTERNAL_4002_PARAM& r) { io.element("REQUEST_PARAM", {{"SrcIp", r.SrcIp}}); }

void channelInfo(BodyIo& io, NVR_INTERNAL_CHANNEL_INFO& channel) {
  io.elementWhen(isSet(channel.IpAddr), "ChannelInfo", {{"IpAddr", channel.IpAddr}});
}

// The channels stand beside RESPONSE_PARAM. No more of them are read than it counts.
void readChannels(const ElementReader& body, NVR_INTERNAL_4002_PARAM& r) {
  ElementReader found = body.child("ChannelInfo");
  for (int i = 0; i < NVR_INTERNAL_CHANNELS && i < r.ChannelCount && found; ++i, found = found.next("ChannelInfo")) {
    BodyIo(found).attributes({{"IpAddr", r.ChannelInfo[i].IpAddr}});
  }
}

void channelListResponse(BodyIo& io, NVR_INTERNAL_4002_PARAM& r) {
  io.element("RESPONSE_PARAM", {{"ChannelCount", r.ChannelCount}, {"SrcIp", r.SrcIp}, {"SN", r.SN}});
  if (io.reading()) {
    readChannels(io.reader(), r);
  } else {
    io.listOf<channelInfo>("ChannelInfo", r.ChannelInfo, r.ChannelCount);
  }
}

constexpr Message kChannelList = {kName, request<channelListRequest>, response<channelListResponse>};

bool hasRequired(const NVR_INTERNAL_4002_PARAM& r, int direction) {
  const bool asks = isRequest(direction);
  if (isSet(r.SrcIp) && (asks || isSet(r.ChannelCount))) return true;
  const FieldText source(r.SrcIp);
  if (asks) {
    KovProtocolLogError("NVR_INTERNAL_MESSAGES put a error Param acSrcIp: %s\n", source.text());
  } else {
    KovProtocolLogError("NVR_INTERNAL_MESSAGES put a error Param iChannelCount: %d acSrcIp: %s\n", r.ChannelCount,
                        source.text());
  }
  return false;
}

constexpr CodeRow kCodes[] = {{kLockCode, &kLock}, {kChannelListCode, &kChannelList}};

void logUnknown(const char*, int code) {
  KovProtocolLogError("NVR_INTERNAL_MESSAGES deal a unknow msg_cdoe : %d\n", code);
}

void logUnknownReceived(const char*, int code) {
  KovProtocolLogError("NvrInternalMessageAnalysis deal a unknow msg_cdoe : %d\n", code);
}

constexpr CodeTable kTable("NVR_INTERNAL_MESSAGES", kCodes, logUnknown);
constexpr CodeTable kReceivedTable("NvrInternalMessageAnalysis", kCodes, logUnknownReceived);

int compose(const void* param, int direction, const char* msgCode, BodyWriter& body) {
  if (intOf(msgCode) == kChannelListCode) {
    if (!hasRequired(*static_cast<const NVR_INTERNAL_4002_PARAM*>(param), direction)) return KOV_ERROR_EMPTY_ARGUMENT;
  }
  return kTable.compose(param, direction, msgCode, body);
}

int composeCall(ComposeCall& call, BodyWriter& body) { return compose(call.param, call.direction, call.msgCode, body); }

int analyse(const KovXMLParser& document, const char* msgCode, void** result) {
  ElementReader body;
  const int found = findBody(kName, document, body);
  if (found != KOV_OK) return found;
  const ElementReader lock = body.child("LockParamInfo");
  if (intOf(msgCode) == kLockCode && lock) {
    const int checked = checkStreams(lock);
    if (checked != KOV_OK) return checked;
  }
  return kReceivedTable.analyse(document, msgCode, result);
}

int analyseCall(const AnalysisCall& call) { return analyse(call.document, call.msgCode, call.result); }

}  // namespace

constexpr Family kNvrInternal = {&kTable, composeCall, analyseCall};

}  // namespace kov

int NVR_INTERNAL_4001_PARAM_init(NVR_INTERNAL_4001_PARAM* record) { return kov::fillDefaults(record); }
int NVR_INTERNAL_4002_PARAM_init(NVR_INTERNAL_4002_PARAM* record) { return kov::fillDefaults(record); }

int NvrInternalMessageCompose(const void* param, int direction, const char* msgCode, char* body, int bodySize) {
  return kov::composeExported("NVR_INTERNAL_MESSAGES", param, body, bodySize, msgCode,
                              [=](kov::BodyWriter& writer) { return kov::compose(param, direction, msgCode, writer); });
}

int NvrInternalMessageAnalysis(const char* xml, const char* msgCode, void** result) {
  if (xml == nullptr || msgCode == nullptr || result == nullptr) {
    KovProtocolLogError("NvrInternalMessageAnalysis put a empty Param\n");
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  KovXMLParser document;
  const int parsed = kov::parseDocument(kov::kName, xml, document);
  return parsed != KOV_OK ? parsed : kov::analyse(document, msgCode, result);
}
