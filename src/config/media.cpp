// Media settings of cameras: all at once, or by section.
#include "config/media.h"

#include "config/media_sections.h"
#include "kov_protocol/system_config_media.h"

namespace kov {
namespace {

// The records hold no pointer: 64-bit machines and 32-bit ARM lay them out alike.
static_assert(sizeof(SYSTEM_CONFIG_GET_500_PARAM) == 864);
static_assert(sizeof(SYSTEM_CONFIG_GET_501_PARAM) == 1060);
static_assert(sizeof(SYSTEM_CONFIG_GET_502_PARAM) == 56);
static_assert(sizeof(SYSTEM_CONFIG_SET_523_PARAM) == 188);
static_assert(sizeof(SYSTEM_CONFIG_SET_524_PARAM) == 224);
static_assert(sizeof(SYSTEM_CONFIG_SET_525_PARAM) == 304);

// The whole configuration has an end tag for LightConfig, unlike for all other elements without children, and tells its
// times and the range of light modes without taking them from anyone.
void wholeLight(BodyIo& video, SYSTEM_CONFIG_MEDIA_LIGHT& r) {
  video.element("LightConfig",
                {{"LightMode", r.LightMode},
                 {"LightCtrl", r.LightCtrl},
                 {"LightVal", r.LightVal},
                 attr("LightModeRange", r.LightModeRange).writeOnly().thenNothing()},
                ">\n</LightConfig>\n");
}

void wholeCapture(BodyIo& video, SYSTEM_CONFIG_MEDIA_CAPTURE& r) {
  BodyIo capture = video.enter("Capture", "<Capture\n");
  captureBasics(capture, r);
  capture.attributes({{"IrcutSensitivity", r.IrcutSensitivity},
                      attr("IrcutNightStartTime", r.IrcutNightStartTime).writeOnly(),
                      attr("IrcutNightEndTime", r.IrcutNightEndTime).writeOnly(),
                      {"IrcutLumaList", r.IrcutLumaList},
                      {"IrcutLuma", r.IrcutLuma},
                      {"IrcutKeepColor", r.IrcutKeepColor}});
  capture.text("/>\n");
}

void wholeImage(BodyIo& video, SYSTEM_CONFIG_GET_500_PARAM& r) {
  BodyIo advanced = video.enter("AdvacedMediaConfig");
  SYSTEM_CONFIG_MEDIA_DRC& drc = r.Image.DRCConfig;
  imageSections(advanced, r.Image, attr("DRCStartTime", drc.DRCStartTime).writeOnly(),
                attr("DRCEndTime", drc.DRCEndTime).writeOnly());
  defogSection(advanced, r.DefogConfig);
  doubleLightSection(advanced, r.WeightCoefficient);
  advanced.text("</AdvacedMediaConfig>\n");
}

// Overlay is closed before its children, and once more behind them. Peers may enclose them, so they are looked for in
// both places.
void wholeOverlay(BodyIo& video, SYSTEM_CONFIG_GET_500_PARAM& r) {
  BodyIo overlay = video.enter("Overlay", "<Overlay\n");
  overlay.attributes({{"Enable", r.Overlay.Enable}, {"Transparency", r.Overlay.Transparency}});
  overlay.text("/>\n");
  if (!timeOverlay(overlay, r.TimeOverlay)) timeOverlay(video, r.TimeOverlay);
  if (!titleOverlay(overlay, r.TitleOverlay)) titleOverlay(video, r.TitleOverlay);
  video.text("</Overlay>\n");
}

void wholeVideo(BodyIo& media, SYSTEM_CONFIG_GET_500_PARAM& r) {
  BodyIo video = media.enter("Video");
  wholeLight(video, r.LightConfig);
  wholeCapture(video, r.Capture);
  SYSTEM_CONFIG_MEDIA_ADVANCE_ENCODE& advance = r.Encode.AdvanceEncodeConfig;
  encodeSection(video, r.Encode, attr("WDRStartTime", advance.WDRStartTime).writeOnly(),
                attr("WDREndTime", advance.WDREndTime).writeOnly());
  wholeImage(video, r);
  jpegSection(video, r.JpegConfig);
  wholeOverlay(video, r);
  maskSection(video, r.Mask);
  video.text("</Video>\n");
}

void wholeAudio(BodyIo& media, SYSTEM_CONFIG_GET_500_PARAM& r) {
  BodyIo audio = media.enter("Audio");
  audio.element("Capture", {{"Volume", r.CaptureVolume}});
  audioEncodeSection(audio, r.AudioEncode);
  audio.element("Play", {{"Volume", r.PlayVolume}});
  audio.text("</Aideo>\n");
}

void wholeConfig(BodyIo& io, SYSTEM_CONFIG_GET_500_PARAM& r) {
  BodyIo media = io.enter("MediaConfig");
  wholeVideo(media, r);
  wholeAudio(media, r);
  media.text("</MediaConfig>\n");
}

constexpr Message kGetMedia = Message("SystemConfig_getMediaconfig_Message", nullptr, form<wholeConfig>("MediaConfig"))
                                  .reportsMissing("RESPONSE_PARAM");
constexpr Message kSetMedia = Message("SystemConfig_setMediaconfig_Message", form<wholeConfig>("MediaConfig"), nullptr)
                                  .reportsMissing("RESPONSE_PARAM");

void channelQuery(BodyIo& io, SYSTEM_CONFIG_GET_501_PARAM& r) {
  io.element("REQUEST_PARAM", {{"ChannelId", r.ChannelId}});
}

void channelCapture(BodyIo& video, SYSTEM_CONFIG_MEDIA_CAPTURE& r) {
  BodyIo capture = video.enter("Capture", "<Capture\n");
  captureBasics(capture, r);
  capture.attributes({{"IrcutLuma", r.IrcutLuma},
                      {"IrcutSensitivity", r.IrcutSensitivity},
                      {"auiIRcutNightStartTime", r.IrcutNightStartTime},
                      {"auiIRcutNightEndTime", r.IrcutNightEndTime},
                      {"IrcutKeepColor", r.IrcutKeepColor},
                      {"IrcutLumaList", r.IrcutLumaList}});
  capture.text("/>\n");
}

// As imageSections(), for the messages that do not pad the times of day.
void unpaddedImage(BodyIo& advanced, SYSTEM_CONFIG_MEDIA_IMAGE& r) {
  imageSections(advanced, r, attr("DRCStartTime", r.DRCConfig.DRCStartTime).unpadded(),
                attr("DRCEndTime", r.DRCConfig.DRCEndTime).unpadded());
}

void channelSettings(BodyIo& video, SYSTEM_CONFIG_GET_501_PARAM& r) {
  channelCapture(video, r.Capture);
  SYSTEM_CONFIG_MEDIA_ADVANCE_ENCODE& advance = r.Encode.AdvanceEncodeConfig;
  encodeSection(video, r.Encode, attr("WDRStartTime", advance.WDRStartTime), attr("WDREndTime", advance.WDREndTime));
  BodyIo advanced = video.enter("AdvacedMediaConfig");
  unpaddedImage(advanced, r.Image);
  doubleLightSection(advanced, r.WeightCoefficient);
  advanced.text("</AdvacedMediaConfig>\n");
  jpegSection(video, r.JpegConfig);
  maskSection(video, r.Mask);
}

void channelOverlay(BodyIo& video, SYSTEM_CONFIG_GET_501_PARAM& r) {
  BodyIo overlay = enterOverlay(video, r.Overlay, r.ChannelId);
  timeOverlay(overlay, r.TimeOverlay);
  overlay.element("TitleOverlay", {{"PosX", r.TitleOverlay.PosX},
                                   {"PosY", r.TitleOverlay.PosY},
                                   {"Title", r.TitleOverlay.Title},
                                   {"DefaultTitle", r.DefaultTitle}});
  overlay.text("</Overlay>\n");
}

// What stands in place of a channel's settings when its record has a status. The times have the names of the whole
// configuration.
constexpr char kNoSettings[] =
    "<Capture\nBrightness=\"\"\nContrast=\"\"\nSaturation=\"\"\nSharpness=\"\"\nDayNight=\"\"\nWhiteBalance=\"\"\n"
    "BackLight=\"\"\nSwitch2A=\"\"\nBinningSkip=\"\"\nTVSystem=\"\"\nHFlip=\"\"\nVFlip=\"\"\nTNF=\"\"\nSNF=\"\"\n"
    "VSTAB=\"\"\nLDC=\"\"\nFD=\"\"\nIrcutMode=\"\"\nIrcutSensitivity=\"\"\nIrcutNightStartTime=\"\"\n"
    "IrcutNightEndTime=\"\"\n/>\n"
    "<Encode>\n"
    "<EncodeConfig\nStream=\"\"\nResolution=\"\"\nEncodeFormat=\"\"\nBitRateControl=\"\"\nInitquant=\"\"\n"
    "BitRate=\"\"\nFrameRate=\"\"\n/>\n"
    "<EncodeConfig\nStream=\"\"\nResolution=\"\"\nEncodeFormat=\"\"\nBitRateControl=\"\"\nInitquant=\"\"\n"
    "BitRate=\"\"\nFrameRate=\"\"\n/>\n"
    "</Encode>\n"
    "<JpegConfig\nEnable=\"\"\nStream=\"\"\nQuality=\"\"\nFramerate=\"\"\n/>\n";

void channelConfig(BodyIo& io, SYSTEM_CONFIG_GET_501_PARAM& r) {
  BodyIo video = io.enter("Video", "<Video ");
  video.attributes({attr("ChannelId", r.ChannelId).thenNothing()});
  video.text(">\n");
  if (video.writing() && isSet(r.Status)) {
    video.text(kNoSettings);
  } else {
    channelSettings(video, r);
  }
  if (video.reading() || isSet(r.ChannelId)) channelOverlay(video, r);
  video.text("</Video>\n");
}

constexpr Message kGetVideo = {"SystemConfig_getMediaVideoconfig_Message", request<channelQuery>,
                               form<channelConfig>("Video")};
constexpr Message kSetVideo = {"SystemConfig_setMediaVideoconfig_Message", form<channelConfig>("Video"), nullptr};

void audioConfig(BodyIo& io, SYSTEM_CONFIG_GET_502_PARAM& r) {
  BodyIo audio = io.enter("Audio");
  audio.element("Capture", {{"Volume", r.CaptureVolume}, {"DefVolume", r.CaptureDefVolume}});
  audioEncodeSection(audio, r.Encode);
  audio.element("Play", {{"Volume", r.PlayVolume}, {"DefVolume", r.PlayDefVolume}});
  audio.text("</Audio>\n");
}

void audioSetting(BodyIo& io, SYSTEM_CONFIG_GET_502_PARAM& r) {
  BodyIo audio = io.enter("Audio");
  audio.element("Capture", {{"Volume", r.CaptureVolume},
                            attr("BitsPerSample", r.BitsPerSample).ifSet(),
                            attr("SampleRate", r.SampleRate).asSigned().ifSet(),
                            attr("Channels", r.Channels).ifSet()});
  audioEncodeSection(audio, r.Encode);
  audio.element("Play", {{"Volume", r.PlayVolume}});
  audio.text("</Audio>\n");
}

constexpr Message kGetAudio = {"SystemConfig_getMediaAudioconfig_Message", nullptr, form<audioConfig>("Audio")};
constexpr Message kSetAudio = {"SystemConfig_setMediaAudioconfig_Message", form<audioSetting>("Audio"), nullptr};

void ratedStream(BodyIo& encode, SYSTEM_CONFIG_SET_523_STREAM& r) {
  BodyIo stream = encode.enter("EncodeConfig", "<EncodeConfig\n");
  streamBasics(stream, r.Basic);
  stream.attributes({{"ImageQuality", r.ImageQuality},
                     {"MotionLevel", r.MotionLevel},
                     {"NoiseLevel", r.NoiseLevel},
                     {"Mode", r.Mode}});
  stream.text("/>\n");
}

// The streams are written in full, the rest as far as it is set.
void encodeSetting(BodyIo& io, SYSTEM_CONFIG_SET_523_PARAM& r) {
  BodyIo encode = io.enter("Encode");
  encode.listOf<ratedStream>("EncodeConfig", r.EncodeConfig, SYSTEM_CONFIG_MEDIA_STREAMS);
  SYSTEM_CONFIG_MEDIA_ADVANCE_ENCODE& advance = r.AdvanceEncodeConfig;
  encode.element(
      "AdvanceEncodeConfig",
      {attr("H265plus", advance.H265plus).ifSet(), attr("H265subplus", advance.H265subplus).ifSet(),
       attr("WDRMode", advance.WDRMode).ifSet(),
       attr("WDRStartTime", advance.WDRStartTime).when(isSet(advance.WDRMode)),
       attr("WDREndTime", advance.WDREndTime).when(isSet(advance.WDRMode)),
       attr("EncodeProfile", advance.EncodeProfile).ifSet(),
       attr("DisablePrivateData", advance.DisablePrivateData).ifSet(),
       attr("IvpLowBitrate", advance.IvpLowBitrate).ifSet(), attr("IvpAdvanceIspNew", advance.IvpAdvanceIspNew).ifSet(),
       attr("IvpAdvanceIsp", advance.IvpAdvanceIsp).ifSet()});
  encode.text("</Encode>\n");
}

// The encoding speaks under the name of the channel's video settings when it composes.
constexpr Message kSetEncode =
    Message("SystemConfig_setMediaVideoencode_Message", form<encodeSetting>("Encode"), nullptr)
        .composesAs("SystemConfig_setMediaVideoconfig_Message");

// In the order of the whole configuration with the names of a channel's times; the further attributes stand at the end.
void captureSetting(BodyIo& video, SYSTEM_CONFIG_SET_524_PARAM& r) {
  BodyIo capture = video.enter("Capture", "<Capture\n");
  captureBasics(capture, r.Capture);
  capture.attributes({{"IrcutSensitivity", r.Capture.IrcutSensitivity},
                      {"auiIRcutNightStartTime", r.Capture.IrcutNightStartTime},
                      {"auiIRcutNightEndTime", r.Capture.IrcutNightEndTime},
                      {"IrcutLumaList", r.Capture.IrcutLumaList},
                      {"IrcutLuma", r.Capture.IrcutLuma},
                      {"IrcutKeepColor", r.Capture.IrcutKeepColor},
                      {"XOffset", r.XOffset},
                      {"YOffset", r.YOffset},
                      {"SoftResDelayValue", r.SoftResDelayValue}});
  capture.text("/>\n");
}

void imageSetting(BodyIo& io, SYSTEM_CONFIG_SET_524_PARAM& r) {
  BodyIo video = io.enter("Video");
  captureSetting(video, r);
  BodyIo advanced = video.enter("AdvacedMediaConfig");
  unpaddedImage(advanced, r.Image);
  defogSection(advanced, r.DefogConfig);
  doubleLightSection(advanced, r.WeightCoefficient);
  advanced.text("</AdvacedMediaConfig>\n");
  video.text("</Video>\n");
}

constexpr Message kSetCapture = {"SystemConfig_setMediaCapture_Message", form<imageSetting>("Video"), nullptr};

void overlaySetting(BodyIo& io, SYSTEM_CONFIG_SET_525_PARAM& r) {
  BodyIo overlay = enterOverlay(io, r.Overlay, r.ChanID);
  overlay.element("TimeOverlay", {{"PosX", r.TimeOverlay.PosX},
                                  {"PosY", r.TimeOverlay.PosY},
                                  {"Format", r.TimeOverlay.Format},
                                  attr("WeekDisplayEn", r.TimeOverlay.WeekDisplayEn).ifSet()});
  titleOverlay(overlay, r.TitleOverlay);
  overlay.text("</Overlay>\n");
}

constexpr Message kSetOsd = {"SystemConfig_setMediaVideoOsd_Message", form<overlaySetting>("Overlay"), nullptr};

// No newline but one, and none at the end.
void dropSetting(BodyIo& io, SYSTEM_CONFIG_SET_542_PARAM& r) {
  BodyIo encode = io.enter("Encode", "<Encode>");
  encode.element("DropFrameSwitch", "<DropFrameSwitch ", {attr("Switch", r.Switch).thenNothing()});
  encode.text("</Encode>");
}

constexpr Message kSetDrop = {"SystemConfig_setMediaDrop_Message", form<dropSetting>("Encode"), nullptr};

constexpr CodeRow kRows[] = {
    {500, &kGetMedia}, {520, &kSetMedia},  {501, &kGetVideo},   {521, &kSetVideo}, {502, &kGetAudio}, {522, &kSetAudio},
    {527, &kSetAudio}, {523, &kSetEncode}, {524, &kSetCapture}, {525, &kSetOsd},   {542, &kSetDrop},
};

}  // namespace

constexpr CodeGroup kMediaCodes = kRows;

}  // namespace kov

int SYSTEM_CONFIG_GET_500_PARAM_init(SYSTEM_CONFIG_GET_500_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_501_PARAM_init(SYSTEM_CONFIG_GET_501_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_502_PARAM_init(SYSTEM_CONFIG_GET_502_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_520_PARAM_init(SYSTEM_CONFIG_GET_500_PARAM* record) {
  return SYSTEM_CONFIG_GET_500_PARAM_init(record);
}
int SYSTEM_CONFIG_SET_521_PARAM_init(SYSTEM_CONFIG_GET_501_PARAM* record) {
  return SYSTEM_CONFIG_GET_501_PARAM_init(record);
}
int SYSTEM_CONFIG_SET_522_PARAM_init(SYSTEM_CONFIG_GET_502_PARAM* record) {
  return SYSTEM_CONFIG_GET_502_PARAM_init(record);
}
int SYSTEM_CONFIG_SET_523_PARAM_init(SYSTEM_CONFIG_SET_523_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_524_PARAM_init(SYSTEM_CONFIG_SET_524_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_525_PARAM_init(SYSTEM_CONFIG_SET_525_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_527_PARAM_init(SYSTEM_CONFIG_GET_502_PARAM* record) {
  return SYSTEM_CONFIG_GET_502_PARAM_init(record);
}
int SYSTEM_CONFIG_SET_542_PARAM_init(SYSTEM_CONFIG_SET_542_PARAM* record) { return kov::fillDefaults(record); }

int SystemConfig_getMediaconfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetMedia.analyse(xml, result);
}
int SystemConfig_setMediaconfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetMedia.analyse(xml, result);
}
int SystemConfig_getMediaVideoconfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetVideo.analyse(xml, result);
}
int SystemConfig_setMediaVideoconfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetVideo.analyse(xml, result);
}
int SystemConfig_getMediaAudioconfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetAudio.analyse(xml, result);
}
int SystemConfig_setMediaAudioconfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetAudio.analyse(xml, result);
}
int SystemConfig_setMediaVideoencode_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetEncode.analyse(xml, result);
}
int SystemConfig_setMediaCapture_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetCapture.analyse(xml, result);
}
int SystemConfig_setMediaVideoOsd_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetOsd.analyse(xml, result);
}
int SystemConfig_setMediaDrop_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetDrop.analyse(xml, result);
}
