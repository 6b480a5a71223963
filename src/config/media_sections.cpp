#include "config/media_sections.h"

namespace kov {
namespace {

void streamEntry(BodyIo& encode, SYSTEM_CONFIG_MEDIA_STREAM& r) {
  BodyIo stream = encode.enter("EncodeConfig", "<EncodeConfig\n");
  streamBasics(stream, r);
  stream.text("/>\n");
}

// The sizes are unsigned, but written signed.
void maskOf(BodyIo& mask, const char* stream, SYSTEM_CONFIG_MEDIA_MASK& r) {
  auto& [first, second, third, fourth] = r.Area;
  mask.element(stream, {{"Area1PosX", first.PosX},
                        {"Area1PosY", first.PosY},
                        attr("Area1Width", first.Width).asSigned(),
                        attr("Area1Height", first.Height).asSigned(),
                        {"Area2PosX", second.PosX},
                        {"Area2PosY", second.PosY},
                        attr("Area2Width", second.Width).asSigned(),
                        attr("Area2Height", second.Height).asSigned(),
                        {"Area3PosX", third.PosX},
                        {"Area3PosY", third.PosY},
                        attr("Area3Width", third.Width).asSigned(),
                        attr("Area3Height", third.Height).asSigned(),
                        {"Area4PosX", fourth.PosX},
                        {"Area4PosY", fourth.PosY},
                        attr("Area4Width", fourth.Width).asSigned(),
                        attr("Area4Height", fourth.Height).asSigned()});
}

}  // namespace

void captureBasics(BodyIo& capture, SYSTEM_CONFIG_MEDIA_CAPTURE& r) {
  capture.attributes({{"LightBoardBrigh", r.LightBoardBrigh},
                      {"LightBoardMode", r.LightBoardMode},
                      {"Brightness", r.Brightness},
                      {"Contrast", r.Contrast},
                      {"Saturation", r.Saturation},
                      {"Sharpness", r.Sharpness},
                      {"DayNight", r.DayNight},
                      {"WhiteBalance", r.WhiteBalance},
                      {"BackLight", r.BackLight},
                      {"Switch2A", r.Switch2A},
                      {"BinningSkip", r.BinningSkip},
                      {"TVSystem", r.TVSystem},
                      {"HFlip", r.HFlip},
                      {"VFlip", r.VFlip},
                      {"TNF", r.TNF},
                      {"SNF", r.SNF},
                      {"VSTAB", r.VSTAB},
                      {"LDC", r.LDC},
                      {"FD", r.FD},
                      {"Rotation", r.Rotation},
                      {"PreventOverexposure", r.PreventOverexposure},
                      {"IrcutMode", r.IrcutMode},
                      {"SoftPhotoresistanceSensitivity", r.SoftPhotoresistanceSensitivity},
                      {"soft_pr_luma_day_to_night", r.soft_pr_luma_day_to_night},
                      {"IrcutDelayValue", r.IrcutDelayValue}});
}

void streamBasics(BodyIo& stream, SYSTEM_CONFIG_MEDIA_STREAM& r) {
  stream.attributes({{"Stream", r.Stream},
                     {"Resolution", r.Resolution},
                     {"EncodeFormat", r.EncodeFormat},
                     {"BitRateControl", r.BitRateControl},
                     {"Initquant", r.Initquant},
                     {"BitRate", r.BitRate},
                     {"FrameRate", r.FrameRate}});
}

void encodeSection(BodyIo& video, SYSTEM_CONFIG_MEDIA_ENCODE& r, const Attribute& wdrStart, const Attribute& wdrEnd) {
  BodyIo encode = video.enter("Encode");
  encode.listOf<streamEntry>("EncodeConfig", r.EncodeConfig, SYSTEM_CONFIG_MEDIA_STREAMS);
  SYSTEM_CONFIG_MEDIA_ADVANCE_ENCODE& advance = r.AdvanceEncodeConfig;
  encode.element("AdvanceEncodeConfig", {{"EncodeProfile", advance.EncodeProfile},
                                         {"WDRMode", advance.WDRMode},
                                         wdrStart,
                                         wdrEnd,
                                         {"DisablePrivateData", advance.DisablePrivateData},
                                         {"DefaultDPrivateData", advance.DefaultDPrivateData},
                                         {"H265plus", advance.H265plus},
                                         {"DefaultH265plus", advance.DefaultH265plus},
                                         {"H265subplus", advance.H265subplus},
                                         {"DefaultH265subplus", advance.DefaultH265subplus},
                                         {"IvpLowBitrate", advance.IvpLowBitrate},
                                         {"IvpAdvanceIspNew", advance.IvpAdvanceIspNew},
                                         {"IvpAdvanceIsp", advance.IvpAdvanceIsp}});
  encode.text("</Encode>\n");
}

void imageSections(BodyIo& advanced, SYSTEM_CONFIG_MEDIA_IMAGE& r, const Attribute& drcStart, const Attribute& drcEnd) {
  advanced.element("AEConfig", {{"AEStep", r.AEConfig.AEStep}, {"AETolerance", r.AEConfig.AETolerance}});
  advanced.element("ExposureConfig", {{"ExposureMode", r.ExposureConfig.ExposureMode},
                                      {"SemiautoMode", r.ExposureConfig.SemiautoMode},
                                      {"ExposureTime", r.ExposureConfig.ExposureTime},
                                      {"DaySystemGain", r.ExposureConfig.DaySystemGain},
                                      {"NightSystemGain", r.ExposureConfig.NightSystemGain}});
  advanced.element(
      "AWBConfig",
      {{"AWBMode", r.AWBConfig.AWBMode}, {"AWBRGain", r.AWBConfig.AWBRGain}, {"AWBBGain", r.AWBConfig.AWBBGain}});
  advanced.element("DRCConfig",
                   {{"Mode", r.DRCConfig.Mode}, {"StrenthTarget", r.DRCConfig.StrenthTarget}, drcStart, drcEnd});
  advanced.element("DenoiseConfig", {{"DenoiseMode", r.DenoiseConfig.DenoiseMode},
                                     {"DenoiseDayStrenth", r.DenoiseConfig.DenoiseDayStrenth},
                                     {"DenoiseNightStrenth", r.DenoiseConfig.DenoiseNightStrenth}});
  advanced.element("ColorStyle", {{"ColorStyleMode", r.ColorStyleMode}});
  advanced.element("LDCConfig", {{"enable", r.LDCConfig.enable},
                                 {"centorX", r.LDCConfig.centorX},
                                 {"centorY", r.LDCConfig.centorY},
                                 {"ratio", r.LDCConfig.ratio}});
  advanced.element("StarlightConfig", {{"enable", r.StarlightEnable}});
}

void defogSection(BodyIo& advanced, SYSTEM_CONFIG_MEDIA_DEFOG& r) {
  advanced.element("DefogConfig", {{"DefogMode", r.DefogMode}, {"DefogValue", r.DefogValue}});
}

void doubleLightSection(BodyIo& advanced, std::uint8_t& weight) {
  advanced.element("DoubleLight", {{"WeightCoefficient", weight}});
}

void jpegSection(BodyIo& video, SYSTEM_CONFIG_MEDIA_JPEG& r) {
  video.element("JpegConfig",
                {{"Enable", r.Enable}, {"Stream", r.Stream}, {"Quality", r.Quality}, {"Framerate", r.Framerate}});
}

void maskSection(BodyIo& video, SYSTEM_CONFIG_MEDIA_MASK (&masks)[SYSTEM_CONFIG_MEDIA_STREAMS]) {
  BodyIo mask = video.enter("Mask");
  maskOf(mask, "MainStream", masks[0]);
  maskOf(mask, "SubStream", masks[1]);
  mask.text("</Mask>\n");
}

BodyIo enterOverlay(BodyIo& io, SYSTEM_CONFIG_MEDIA_OVERLAY& r, std::int32_t& channel) {
  BodyIo overlay = io.enter("Overlay", "<Overlay\n");
  overlay.attributes({{"Enable", r.Enable}, {"Transparency", r.Transparency}, attr("ChanID", channel).ifSet()});
  overlay.text(">\n");
  return overlay;
}

bool timeOverlay(BodyIo& io, SYSTEM_CONFIG_MEDIA_TIME_OVERLAY& r) {
  return io.element("TimeOverlay",
                    {{"PosX", r.PosX}, {"PosY", r.PosY}, {"Format", r.Format}, {"WeekDisplayEn", r.WeekDisplayEn}});
}

bool titleOverlay(BodyIo& io, SYSTEM_CONFIG_MEDIA_TITLE_OVERLAY& r) {
  return io.element("TitleOverlay", {{"PosX", r.PosX}, {"PosY", r.PosY}, {"Title", r.Title}});
}

// The rates are unsigned, but written signed.
void audioEncodeSection(BodyIo& audio, SYSTEM_CONFIG_MEDIA_AUDIO_ENCODE& r) {
  audio.element("Encode", {{"Enable", r.Enable},
                           attr("SampleRate", r.SampleRate).asSigned(),
                           {"EncodeType", r.EncodeType},
                           attr("BitRate", r.BitRate).asSigned()});
}

}  // namespace kov
