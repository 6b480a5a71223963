// A recorder's on-screen display, encoding, log, storage and recording.
#include "config/recorder.h"

#include <algorithm>
#include <cstring>

#include "kov_platform/value_text.h"
#include "kov_protocol/system_config_general.h"

namespace kov {
namespace {

// Peers write a channel number decimal, or hexadecimal behind "0x".
void readChannel(BodyIo& query, std::int32_t& channel) {
  const char* const raw = query.reader().attribute("ChannelId");
  const char* const digits = raw == nullptr ? "" : raw + std::strspn(raw, " \t\r\n");
  const bool hexadecimal = digits[0] == '0' && (digits[1] == 'x' || digits[1] == 'X');
  const Attribute number = attr("ChannelId", channel);
  query.attributes({hexadecimal ? number.hex() : number});
}

void channelQuery(BodyIo& io, std::int32_t& channel, const char* closing) {
  BodyIo query = io.enter("REQUEST_PARAM", "<REQUEST_PARAM\n");
  if (query.reading()) {
    readChannel(query, channel);
  } else if (channel == SYSTEM_CONFIG_ALL_CHANNELS) {
    query.text("ChannelId=\"0xff\"");
  } else {
    query.attributes({attr("ChannelId", channel).thenNothing()});
  }
  query.text(closing);
}

// Reads a number out of a text Name="12".
void readBareLine(const char* text, const char* name, std::int32_t& number) {
  const std::size_t length = std::strlen(name);
  if (std::strncmp(text, name, length) != 0) return;
  text += length;
  text += std::strspn(text, " \t\r\n=\"'");
  scanInt(text, number);
}

// An attribute's line that stands behind the start tag, where it is the element's text. Peers may as well send an
// attribute.
template <std::size_t Size>
void bareLine(BodyIo& io, const char (&name)[Size], std::int32_t& number) {
  if (io.reading() && io.reader().attribute(name) == nullptr) {
    readBareLine(io.reader().text(), name, number);
  } else {
    io.attributes({{name, number}});
  }
}

void osdQuery(BodyIo& io, SYSTEM_CONFIG_GET_2550_PARAM& r) { channelQuery(io, r.ChannelId, "/>\n"); }

void overlayAndTime(BodyIo& overlay, SYSTEM_CONFIG_CHANNEL_OVERLAY& r) {
  overlay.attributes({{"ChannelId", r.ChannelId}, {"Enable", r.Enable}, {"Transparency", r.Transparency}});
  overlay.text(">\n");
  overlay.element(
      "TimeOverlay",
      {{"PosX", r.TimePosX}, {"PosY", r.TimePosY}, {"Format", r.Format}, {"WeekDisplayEn", r.WeekDisplayEn}});
}

void shownOverlay(BodyIo& io, SYSTEM_CONFIG_CHANNEL_OVERLAY& r) {
  BodyIo overlay = io.enter("Overlay", "<Overlay\n");
  overlayAndTime(overlay, r);
  overlay.element(
      "TitleOverlay",
      {{"PosX", r.TitlePosX}, {"PosY", r.TitlePosY}, {"OsdTitle", r.OsdTitle}, {"DefaultOsdTitle", r.DefaultOsdTitle}});
  overlay.text("</Overlay>\n");
}

void chosenOverlay(BodyIo& io, SYSTEM_CONFIG_CHANNEL_OVERLAY& r) {
  BodyIo overlay = io.enter("Overlay", "<Overlay\n");
  overlayAndTime(overlay, r);
  overlay.element("TitleOverlay", {{"PosX", r.TitlePosX}, {"PosY", r.TitlePosY}, {"OsdTitle", r.OsdTitle}});
  overlay.text("</Overlay>\n");
}

std::ptrdiff_t usedOverlays(const SYSTEM_CONFIG_GET_2550_PARAM& r) {
  const auto unused = [](const SYSTEM_CONFIG_CHANNEL_OVERLAY& entry) { return !isSet(entry.ChannelId); };
  return std::find_if(r.Overlays, r.Overlays + SYSTEM_CONFIG_CHANNELS, unused) - r.Overlays;
}

void osdAnswer(BodyIo& io, SYSTEM_CONFIG_GET_2550_PARAM& r) {
  const std::int32_t overlays = io.listOf<shownOverlay>("Overlay", r.Overlays, usedOverlays(r));
  if (io.reading()) r.ChannelCount = overlays;
}

void osdSetting(BodyIo& io, SYSTEM_CONFIG_GET_2550_PARAM& r) {
  bareLine(io, "ChannelCount", r.ChannelCount);
  const std::int32_t overlays = io.listOf<chosenOverlay>("Overlay", r.Overlays, r.ChannelCount);
  if (io.reading() && !isSet(r.ChannelCount)) r.ChannelCount = overlays;
}

constexpr Message kGetOsd = {"SystemConfig_getVideoOsdConfig_Message", request<osdQuery>, form<osdAnswer>("Overlay")};
constexpr Message kSetOsd = {"SystemConfig_setVideoOsdConfig_Message", form<osdSetting>("Overlay"), nullptr};

void encodeQuery(BodyIo& io, SYSTEM_CONFIG_GET_2560_PARAM& r) { channelQuery(io, r.ChannelId, "\n/>\n"); }

void encodedStream(BodyIo& io, SYSTEM_CONFIG_CHANNEL_STREAM& r) {
  io.element("EncodeConfig", {{"Stream", r.Stream},
                              {"Resolution", r.Resolution},
                              {"EncodeFormat", r.EncodeFormat},
                              {"BitRateControl", r.BitRateControl},
                              {"Initquant", r.Initquant},
                              {"BitRate", r.BitRate},
                              {"FrameRate", r.FrameRate}});
}

void encodedStreams(BodyIo& encode, SYSTEM_CONFIG_GET_2560_PARAM& r) {
  encode.listOf<encodedStream>("EncodeConfig", r.Streams, SYSTEM_CONFIG_CHANNEL_STREAMS);
  encode.text("</Encode>\n");
}

void encodeAnswer(BodyIo& io, SYSTEM_CONFIG_GET_2560_PARAM& r) {
  BodyIo encode = io.enter("Encode", "<Encode\n");
  encode.attributes({{"ChannelId", r.ChannelId}, {"LockPara", r.LockPara}});
  encode.text(">\n");
  encodedStreams(encode, r);
}

// Nothing parts the two attributes. The XML reader knows it.
void encodeSetting(BodyIo& io, SYSTEM_CONFIG_GET_2560_PARAM& r) {
  BodyIo encode = io.enter("Encode", "<Encode\n");
  encode.attributes({attr("ChannelId", r.ChannelId).thenNothing(), attr("LockPara", r.LockPara).thenNothing()});
  encode.text(">\n");
  encodedStreams(encode, r);
}

constexpr Message kGetEncode = {"SystemConfig_getMediaVideoConfig_Message", request<encodeQuery>,
                                form<encodeAnswer>("Encode")};
constexpr Message kSetEncode = {"SystemConfig_setMediaVideoConfig_Message", form<encodeSetting>("Encode"), nullptr};

void capabilityQuery(BodyIo& io, SYSTEM_CONFIG_GET_2561_PARAM& r) { channelQuery(io, r.ChannelId, "\n/>\n"); }

void capability(BodyIo& io, SYSTEM_CONFIG_GET_2561_PARAM& r) {
  BodyIo channel = io.enter("ChannelInfo");
  bareLine(channel, "ChannelId", r.ChannelId);
  channel.element("VideoCap", {attr("CapList", r.VideoCap).thenNothing()});
  channel.element("VideoBestParameter", "<VideoBestParameter ", {attr("CapList", r.VideoBestParameter).thenNothing()});
  channel.text("</ChannelInfo>\n");
}

constexpr Message kCapability = {"SystemConfig_getMediaCapability_Message", request<capabilityQuery>,
                                 form<capability>("ChannelInfo")};

void logQuery(BodyIo& io, SYSTEM_CONFIG_GET_3028_PARAM& r) {
  io.element("REQUEST_PARAM", "<REQUEST_PARAM \n",
             {{"LogMode", r.LogMode},
              {"UserType", r.UserType},
              {"QueryDate", r.QueryDate},
              {"LogId", r.LogId},
              {"PageSize", r.PageSize}});
}

void logEntry(BodyIo& io, SYSTEM_CONFIG_LOG& r) {
  io.element("LogInfo", {{"LogMode", r.LogMode},
                         {"RecordTimeStamp", r.RecordTimeStamp},
                         {"LogId", r.LogId},
                         {"UserName", r.UserName},
                         {"UserType", r.UserType},
                         {"Detail", r.Detail}});
}

void logAnswer(BodyIo& io, SYSTEM_CONFIG_GET_3028_PARAM& r) {
  io.element("RESPONSE_PARAM", "<RESPONSE_PARAM \n", {{"LogCount", r.LogCount}});
  BodyIo list = io.enter("LogList");
  const std::int32_t entries = list.listOf<logEntry>("LogInfo", r.Logs, r.LogCount);
  if (io.reading() && !isSet(r.LogCount)) r.LogCount = entries;
  list.text("</LogList>\n");
}

constexpr Message kLog = {"SystemConfig_getNvrSystemLog_Message", request<logQuery>, response<logAnswer>,
                          Direction::ResponseIs13};

using Policies = SYSTEM_CONFIG_STORAGE_POLICY[SYSTEM_CONFIG_STORAGE_POLICIES];

void writePolicies(BodyWriter& body, const Policies& policies) {
  body.literal("StorageCapSet=\"");
  for (const SYSTEM_CONFIG_STORAGE_POLICY& entry : policies) {
    if (!isSet(entry.Policy)) break;
    body.decimal(entry.Policy);
    body.character(',');
  }
  body.literal("\"\n");
}

void readPolicies(const ElementReader& element, Policies& policies) {
  const char* list = element.attribute("StorageCapSet");
  for (SYSTEM_CONFIG_STORAGE_POLICY& entry : policies) {
    if (!scanInt(list, entry.Policy) || *list++ != ',') return;
  }
}

void strategyAnswer(BodyIo& io, SYSTEM_CONFIG_GET_3502_PARAM& r) {
  BodyIo strategy = io.enter("StrategyConfig", "<StrategyConfig\n");
  if (strategy.writing()) {
    writePolicies(strategy.writer(), r.StorageCapSet);
  } else {
    readPolicies(strategy.reader(), r.StorageCapSet);
  }
  strategy.attributes({{"StoragePolicy", r.StoragePolicy}});
  strategy.text("/>\n");
}

void strategySetting(BodyIo& io, SYSTEM_CONFIG_GET_3502_PARAM& r) {
  io.element("StrategyConfig", {{"StoragePolicy", r.StoragePolicy}});
}

constexpr Message kGetStrategy = {"SystemConfig_getStrategyConfig_Message", nullptr,
                                  form<strategyAnswer>("StrategyConfig")};
constexpr Message kSetStrategy = {"SystemConfig_setStrategyConfig_Message", form<strategySetting>("StrategyConfig"),
                                  nullptr};

void recordChannel(BodyIo& io, SYSTEM_CONFIG_RECORD_CHANNEL& r) {
  io.element("ChannelDetail", {{"ID", r.ID}, {"Schedule", r.Schedule}});
}

// RecordConfig has no end tag: the one of MESSAGE_BODY ends it. The XML reader knows it.
void recording(BodyIo& io, SYSTEM_CONFIG_GET_3600_PARAM& r) {
  BodyIo record = io.enter("RecordConfig");
  bareLine(record, "ChannelNum", r.ChannelNum);
  const std::int32_t channels = record.listOf<recordChannel>("ChannelDetail", r.Channels, r.ChannelNum);
  if (io.reading() && !isSet(r.ChannelNum)) r.ChannelNum = channels;
}

constexpr Message kGetRecording = {"SystemConfig_getRecoedConfig_Message", nullptr, form<recording>("RecordConfig")};
constexpr Message kSetRecording =
    Message("SystemConfig_setRecoedConfig_Message", form<recording>("RecordConfig"), nullptr)
        .composesAs("SystemConfig_getRecoedConfig_Message");

constexpr CodeRow kRows[] = {
    {2550, &kGetOsd}, {2555, &kSetOsd},      {2560, &kGetEncode},   {2565, &kSetEncode},    {2561, &kCapability},
    {3028, &kLog},    {3502, &kGetStrategy}, {3503, &kSetStrategy}, {3600, &kGetRecording}, {3601, &kSetRecording},
};

}  // namespace

constexpr CodeGroup kRecorderSettingCodes = kRows;

}  // namespace kov

int SYSTEM_CONFIG_GET_2550_PARAM_init(SYSTEM_CONFIG_GET_2550_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_2555_PARAM_init(SYSTEM_CONFIG_GET_2550_PARAM* record) {
  return SYSTEM_CONFIG_GET_2550_PARAM_init(record);
}
int SYSTEM_CONFIG_GET_2560_PARAM_init(SYSTEM_CONFIG_GET_2560_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_2561_PARAM_init(SYSTEM_CONFIG_GET_2561_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_2565_PARAM_init(SYSTEM_CONFIG_GET_2560_PARAM* record) {
  return SYSTEM_CONFIG_GET_2560_PARAM_init(record);
}
int SYSTEM_CONFIG_GET_3028_PARAM_init(SYSTEM_CONFIG_GET_3028_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_3502_PARAM_init(SYSTEM_CONFIG_GET_3502_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_3600_PARAM_init(SYSTEM_CONFIG_GET_3600_PARAM* record) { return kov::fillDefaults(record); }

int SystemConfig_getVideoOsdConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetOsd.analyse(xml, result);
}
int SystemConfig_setVideoOsdConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetOsd.analyse(xml, result);
}
int SystemConfig_getMediaVideoConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetEncode.analyse(xml, result);
}
int SystemConfig_setMediaVideoConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetEncode.analyse(xml, result);
}
int SystemConfig_getMediaCapability_MessageAnalysis(const char* xml, void** result) {
  return kov::kCapability.analyse(xml, result);
}
int SystemConfig_getNvrSystemLog_MessageAnalysis(const char* xml, void** result) {
  return kov::kLog.analyse(xml, result);
}
int SystemConfig_getStrategyConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetStrategy.analyse(xml, result);
}
int SystemConfig_setStrategyConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetStrategy.analyse(xml, result);
}
int SystemConfig_getRecoedConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetRecording.analyse(xml, result);
}
int SystemConfig_setRecoedConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetRecording.analyse(xml, result);
}
