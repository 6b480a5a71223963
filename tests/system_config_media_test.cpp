#include "kov_protocol/system_config_media.h"

#include <algorithm>
#include <initializer_list>

#include "config/media.h"
#include "system_config_wire.h"

namespace kov::test {
namespace {

class SystemConfigMediaTest : public WireTest {};

// The wire has one attribute a line. The texts here put several on one, and no blanks inside values.
std::string lines(const std::string& text) {
  std::string wire;
  for (const char c : text) {
    if (c != ' ' && c != '\n') {
      wire += c;
    } else if (!wire.empty() && wire.back() != '\n') {
      wire += '\n';
    }
  }
  return wire;
}

// The same text with other values of some attributes.
std::string with(std::string text, std::initializer_list<std::pair<std::string, std::string>> changes) {
  for (const auto& [from, to] : changes) {
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    if (at != std::string::npos) text.replace(at, from.size(), to);
  }
  return text;
}

const std::string kBasics = R"(<Capture LightBoardBrigh="1" LightBoardMode="2" Brightness="-2" Contrast="300"
Saturation="5" Sharpness="6" DayNight="7" WhiteBalance="8" BackLight="9" Switch2A="10" BinningSkip="11" TVSystem="12"
HFlip="13" VFlip="14" TNF="15" SNF="16" VSTAB="17" LDC="18" FD="19" Rotation="20" PreventOverexposure="21"
IrcutMode="22" SoftPhotoresistanceSensitivity="23" soft_pr_luma_day_to_night="24" IrcutDelayValue="25"
)";

const std::string kEncode = R"(<Encode>
<EncodeConfig Stream="0" Resolution="1920*1080" EncodeFormat="H265" BitRateControl="CBR" Initquant="30" BitRate="4096"
FrameRate="25" />
<EncodeConfig Stream="1" Resolution="640*360" EncodeFormat="H264" BitRateControl="VBR" Initquant="31" BitRate="512"
FrameRate="15" />
<AdvanceEncodeConfig EncodeProfile="1" WDRMode="2" WDRStartTime="06:05:04" WDREndTime="18:00:01" DisablePrivateData="3"
DefaultDPrivateData="4" H265plus="5" DefaultH265plus="6" H265subplus="7" DefaultH265subplus="8" IvpLowBitrate="9"
IvpAdvanceIspNew="1000" IvpAdvanceIsp="10" />
</Encode>
)";

const std::string kImage = R"(<AdvacedMediaConfig>
<AEConfig AEStep="500" AETolerance="600" />
<ExposureConfig ExposureMode="1" SemiautoMode="2" ExposureTime="3" DaySystemGain="4" NightSystemGain="5" />
<AWBConfig AWBMode="6" AWBRGain="7" AWBBGain="8" />
<DRCConfig Mode="9" StrenthTarget="10" DRCStartTime="7:5:9" DRCEndTime="19:0:30" />
<DenoiseConfig DenoiseMode="11" DenoiseDayStrenth="12" DenoiseNightStrenth="13" />
<ColorStyle ColorStyleMode="14" />
<LDCConfig enable="15" centorX="16" centorY="17" ratio="18" />
<StarlightConfig enable="19" />
)";
const std::string kDefog = "<DefogConfig DefogMode=\"20\" DefogValue=\"21\" />\n";
const std::string kImageEnd = "<DoubleLight WeightCoefficient=\"22\" />\n</AdvacedMediaConfig>\n";
const std::string kJpeg = "<JpegConfig Enable=\"1\" Stream=\"2\" Quality=\"3\" Framerate=\"4\" />\n";

const std::string kMask = R"(<Mask>
<MainStream Area1PosX="1" Area1PosY="2" Area1Width="300" Area1Height="-1" Area2PosX="5" Area2PosY="6" Area2Width="7"
Area2Height="8" Area3PosX="9" Area3PosY="10" Area3Width="11" Area3Height="12" Area4PosX="13" Area4PosY="14"
Area4Width="15" Area4Height="16" />
<SubStream Area1PosX="17" Area1PosY="18" Area1Width="19" Area1Height="20" Area2PosX="21" Area2PosY="22" Area2Width="23"
Area2Height="24" Area3PosX="25" Area3PosY="26" Area3Width="27" Area3Height="28" Area4PosX="29" Area4PosY="30"
Area4Width="31" Area4Height="32" />
</Mask>
)";

const std::string kTime = "<TimeOverlay PosX=\"3\" PosY=\"4\" Format=\"Y-M-D\" WeekDisplayEn=\"5\" />\n";
const std::string kTitle = "<TitleOverlay PosX=\"6\" PosY=\"7\" Title=\"gate\" />\n";

const std::string kWhole =
    lines(R"(<MediaConfig> <Video>
<LightConfig LightMode="1" LightCtrl="2" LightVal="3" LightModeRange="0,1,2"> </LightConfig>
)" + kBasics +
          R"(IrcutSensitivity="26" IrcutNightStartTime="08:07:06" IrcutNightEndTime="20:00:10" IrcutLumaList="1,2,3"
IrcutLuma="27" IrcutKeepColor="28" />
)" + kEncode +
          with(kImage, {{"7:5:9", "07:05:09"}, {"19:0:30", "19:00:30"}}) + kDefog + kImageEnd + kJpeg +
          "<Overlay Enable=\"1\" Transparency=\"2\" />\n" + kTime + kTitle + "</Overlay>\n" + kMask + R"(</Video>
<Audio> <Capture Volume="41" />
<Encode Enable="1" SampleRate="8000" EncodeType="G711A" BitRate="64000" />
<Play Volume="42" /> </Aideo> </MediaConfig>
)");

TEST_F(SystemConfigMediaTest, EverySettingTravelsOnItsSideOnly) {
  EXPECT_EQ(sidesOf(kMediaCodes), "500:134 520:02 501:01234 521:02 502:134 522:02 527:02 523:02 524:02 525:02 542:02 ");
}

TEST_F(SystemConfigMediaTest, MissingElementsAreNamed) {
  EXPECT_EQ(missingOf(kMediaCodes),
            "getMediaconfig RESPONSE_PARAM; setMediaconfig RESPONSE_PARAM; getMediaVideoconfig Video; "
            "setMediaVideoconfig Video; getMediaAudioconfig Audio; setMediaAudioconfig Audio; "
            "setMediaAudioconfig Audio; setMediaVideoencode Encode; setMediaCapture Video; setMediaVideoOsd Overlay; "
            "setMediaDrop Encode; ");
}

TEST_F(SystemConfigMediaTest, WholeConfigurationComesBackButForItsTimes) {
  const auto media = readBody<SYSTEM_CONFIG_GET_500_PARAM>("500", kWhole);
  EXPECT_EQ(written("520", kAsk, *media), with(kWhole, {{"0,1,2", "-1,-1,-1"},
                                                        {"08:07:06", "255:255:255"},
                                                        {"20:00:10", "255:255:255"},
                                                        {"06:05:04", "255:255:255"},
                                                        {"18:00:01", "255:255:255"},
                                                        {"07:05:09", "255:255:255"},
                                                        {"19:00:30", "255:255:255"}}));
  EXPECT_EQ(media->Capture.BackLight, 9);
  EXPECT_STREQ(media->Encode.EncodeConfig[1].Resolution, "640*360");
  EXPECT_EQ(media->Encode.AdvanceEncodeConfig.IvpAdvanceIspNew, 1000);
  EXPECT_EQ(media->DefogConfig.DefogValue, 21);
  EXPECT_EQ(media->TimeOverlay.WeekDisplayEn, 5);
  EXPECT_STREQ(media->TitleOverlay.Title, "gate");
  EXPECT_EQ(media->Mask[0].Area[0].Height, UINT32_MAX);
  EXPECT_EQ(media->Mask[1].Area[3].PosX, 29);
  EXPECT_EQ(media->CaptureVolume, 41);
  EXPECT_EQ(media->AudioEncode.BitRate, 64000U);

  for (const int mode : {0, 1, 2}) media->LightConfig.LightModeRange[mode] = mode;
  media->Capture.IrcutNightStartTime = {8, 7, 6};
  media->Capture.IrcutNightEndTime = {20, 0, 10};
  media->Encode.AdvanceEncodeConfig.WDRStartTime = {6, 5, 4};
  media->Encode.AdvanceEncodeConfig.WDREndTime = {18, 0, 1};
  media->Image.DRCConfig.DRCStartTime = {7, 5, 9};
  media->Image.DRCConfig.DRCEndTime = {19, 0, 30};
  EXPECT_EQ(written("500", kAnswer, *media), kWhole);
  EXPECT_STREQ(readBody<SYSTEM_CONFIG_GET_500_PARAM>("520", kWhole)->TitleOverlay.Title, "gate");
}

TEST_F(SystemConfigMediaTest, WholeConfigurationTakesOverlaysFromBothPlaces) {
  const std::string outside = "</Overlay><TimeOverlay PosX=\"1\"/><TitleOverlay PosX=\"2\"/>";
  const std::string inside = "<Overlay Enable=\"1\"><TimeOverlay PosX=\"3\"/>" + outside;
  const auto media =
      readBody<SYSTEM_CONFIG_GET_500_PARAM>("500", "<MediaConfig><Video>" + inside + "</Video></MediaConfig>");
  EXPECT_EQ(media->TimeOverlay.PosX, 3);
  EXPECT_EQ(media->TitleOverlay.PosX, 2);
  EXPECT_EQ(media->Overlay.Transparency, 255);
  EXPECT_EQ(media->PlayVolume, 255);
}

TEST_F(SystemConfigMediaTest, StreamsBeyondTheSecondAreLeftAlone) {
  const std::string streams = "<EncodeConfig Stream=\"0\"/><EncodeConfig Stream=\"1\"/><EncodeConfig Stream=\"2\"/>";
  const auto video = readBody<SYSTEM_CONFIG_GET_501_PARAM>("501", "<Video><Encode>" + streams + "</Encode></Video>");
  EXPECT_EQ(video->Encode.EncodeConfig[1].Stream, 1);
  EXPECT_EQ(video->Encode.AdvanceEncodeConfig.EncodeProfile, 255);
  const auto encode = readBody<SYSTEM_CONFIG_SET_523_PARAM>("523", "<Encode>" + streams + "</Encode>");
  EXPECT_EQ(encode->EncodeConfig[1].Basic.Stream, 1);
  EXPECT_EQ(encode->AdvanceEncodeConfig.H265plus, 255);
}

const std::string kChannelOverlay =
    lines("<Overlay Enable=\"1\" Transparency=\"2\" ChanID=\"3\" >\n" + kTime +
          "<TitleOverlay PosX=\"6\" PosY=\"7\" Title=\"gate\" DefaultTitle=\"camera\" /> </Overlay>\n");

const std::string kChannel = "<Video ChannelId=\"3\">\n" +
                             lines(kBasics + R"(IrcutLuma="27" IrcutSensitivity="26" auiIRcutNightStartTime="08:07:06"
auiIRcutNightEndTime="20:00:10" IrcutKeepColor="28" IrcutLumaList="1,2,3" />
)" + kEncode + kImage + kImageEnd + kJpeg +
                                   kMask) +
                             kChannelOverlay + "</Video>\n";

TEST_F(SystemConfigMediaTest, ChannelIsAskedForByNumber) {
  const auto query = bothWays<SYSTEM_CONFIG_GET_501_PARAM>("501", kAsk, "<REQUEST_PARAM\nChannelId=\"3\"\n/>\n");
  EXPECT_EQ(query->ChannelId, 3);
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_501_PARAM>("501", "<REQUEST_PARAM ChannelId=4/>")->ChannelId, 4);
}

TEST_F(SystemConfigMediaTest, ChannelVideoComesBackWithItsTimes) {
  const auto video = bothWays<SYSTEM_CONFIG_GET_501_PARAM>("501", kAnswer, kChannel);
  bothWays<SYSTEM_CONFIG_GET_501_PARAM>("521", kAsk, kChannel);
  EXPECT_EQ(video->Capture.IrcutNightEndTime.second, 10);
  EXPECT_EQ(video->Encode.AdvanceEncodeConfig.WDRStartTime.hour, 6);
  EXPECT_EQ(video->Image.DRCConfig.DRCStartTime.minute, 5);
  EXPECT_STREQ(video->DefaultTitle, "camera");

  video->ChannelId = -1;
  const std::string noOverlay = with(kChannel, {{"\"3\">", "\"-1\">"}, {kChannelOverlay, ""}});
  EXPECT_EQ(written("501", kAnswer, *video), noOverlay);
}

TEST_F(SystemConfigMediaTest, ChannelWithAStatusTellsEmptyValues) {
  SYSTEM_CONFIG_GET_501_PARAM video;
  video.Status = 0;
  const std::string encode =
      "<EncodeConfig Stream= Resolution= EncodeFormat= BitRateControl= Initquant= BitRate= "
      "FrameRate= />\n";
  std::string settings = lines(
      "<Capture Brightness= Contrast= Saturation= Sharpness= DayNight= WhiteBalance= BackLight= Switch2A= BinningSkip= "
      "TVSystem= HFlip= VFlip= TNF= SNF= VSTAB= LDC= FD= IrcutMode= IrcutSensitivity= IrcutNightStartTime= "
      "IrcutNightEndTime= />\n<Encode> " +
      encode + encode + "</Encode> <JpegConfig Enable= Stream= Quality= Framerate= />\n");
  for (std::size_t at = 0; (at = settings.find("=\n", at)) != std::string::npos; ++at) settings.insert(at + 1, "\"\"");
  EXPECT_EQ(written("521", kAsk, video), "<Video ChannelId=\"-1\">\n" + settings + "</Video>\n");

  video.ChannelId = 3;
  set(video.TimeOverlay.Format, "Y-M-D");
  const std::string text = written("501", kAnswer, video);
  EXPECT_NE(text.find(settings + "<Overlay\nEnable=\"255\"\nTransparency=\"255\"\nChanID=\"3\"\n>\n"),
            std::string::npos);
  const auto read = readBody<SYSTEM_CONFIG_GET_501_PARAM>("501", text);
  EXPECT_EQ(read->Capture.Brightness, -1);
  EXPECT_EQ(read->JpegConfig.Quality, 255);
  EXPECT_EQ(read->Status, -1);
  EXPECT_STREQ(read->TimeOverlay.Format, "Y-M-D");
}

TEST_F(SystemConfigMediaTest, AudioTellsDefaultVolumesAndIsSetWithoutThem) {
  const std::string encode = "<Encode Enable=\"1\" SampleRate=\"8000\" EncodeType=\"AAC\" BitRate=\"-1\" />\n";
  const std::string told = lines("<Audio> <Capture Volume=\"1\" DefVolume=\"2\" />\n" + encode +
                                 "<Play Volume=\"3\" DefVolume=\"4\" /> </Audio>\n");
  const auto audio = bothWays<SYSTEM_CONFIG_GET_502_PARAM>("502", kAnswer, told);
  EXPECT_EQ(audio->PlayDefVolume, 4);
  EXPECT_EQ(audio->Encode.BitRate, UINT32_MAX);

  const std::string plain = lines("<Audio> <Capture Volume=\"1\" />\n" + encode + "<Play Volume=\"3\" /> </Audio>\n");
  EXPECT_EQ(written("522", kAsk, *audio), plain);
  const std::string full = with(plain, {{"/>", "BitsPerSample=\"16\"\nSampleRate=\"16000\"\nChannels=\"2\"\n/>"}});
  for (const std::string code : {"522", "527"}) {
    EXPECT_EQ(bothWays<SYSTEM_CONFIG_GET_502_PARAM>(code, kAsk, full)->SampleRate, 16000U);
  }
}

TEST_F(SystemConfigMediaTest, EncodingLeavesOutWhatIsUnset) {
  const std::string streams =
      lines(R"(<Encode> <EncodeConfig Stream="0" Resolution="r" EncodeFormat="f" BitRateControl="c" Initquant="1"
BitRate="2" FrameRate="3" ImageQuality="4" MotionLevel="5" NoiseLevel="6" Mode="7" />
<EncodeConfig Stream="-1" Resolution="" EncodeFormat="" BitRateControl="" Initquant="-1" BitRate="-1" FrameRate="-1"
ImageQuality="255" MotionLevel="255" NoiseLevel="255" Mode="255" />
)");
  const std::string end = "/>\n</Encode>\n";
  const auto encode = bothWays<SYSTEM_CONFIG_SET_523_PARAM>("523", kAsk, streams + "<AdvanceEncodeConfig\n" + end);
  encode->AdvanceEncodeConfig.WDRStartTime = {1, 2, 3};
  EXPECT_EQ(written("523", kAsk, *encode), streams + "<AdvanceEncodeConfig\n" + end);
  const std::string full =
      lines(R"(<AdvanceEncodeConfig H265plus="0" H265subplus="1" WDRMode="2" WDRStartTime="01:02:03"
WDREndTime="04:05:06" EncodeProfile="3" DisablePrivateData="4" IvpLowBitrate="5" IvpAdvanceIspNew="6" IvpAdvanceIsp="7"
)");
  bothWays<SYSTEM_CONFIG_SET_523_PARAM>("523", kAsk, streams + full + end);

  resetPlatform();
  const auto row = std::find_if(kMediaCodes.begin(), kMediaCodes.end(), [](auto& r) { return r.code == 523; });
  char buffer[8];
  BodyWriter body(buffer, sizeof buffer);
  EXPECT_EQ(row->message->compose(nullptr, kAsk, body), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(logLines().front(), "I SystemConfig_setMediaVideoconfig_MessageCompose put a empty Param\n");
}

TEST_F(SystemConfigMediaTest, ImageTuningHasFurtherAttributes) {
  const std::string body = lines("<Video>\n" + kBasics + R"(IrcutSensitivity="26" auiIRcutNightStartTime="08:07:06"
auiIRcutNightEndTime="20:00:10" IrcutLumaList="1,2,3" IrcutLuma="27" IrcutKeepColor="28" XOffset="29" YOffset="30"
SoftResDelayValue="31" />
)" + kImage + kDefog + kImageEnd +
                                 "</Video>\n");
  EXPECT_EQ(bothWays<SYSTEM_CONFIG_SET_524_PARAM>("524", kAsk, body)->Image.DRCConfig.DRCEndTime.second, 30);
}

TEST_F(SystemConfigMediaTest, OverlayEnclosesItsChildren) {
  const std::string body =
      lines("<Overlay Enable=\"1\" Transparency=\"2\" ChanID=\"9\" >\n" + kTime + kTitle + "</Overlay>\n");
  EXPECT_EQ(bothWays<SYSTEM_CONFIG_SET_525_PARAM>("525", kAsk, body)->ChanID, 9);
  bothWays<SYSTEM_CONFIG_SET_525_PARAM>("525", kAsk,
                                        with(body, {{"ChanID=\"9\"\n", ""}, {"WeekDisplayEn=\"5\"\n", ""}}));
}

TEST_F(SystemConfigMediaTest, DropSwitchIsNearlyOneLine) {
  bothWays<SYSTEM_CONFIG_SET_542_PARAM>("542", kAsk, "<Encode><DropFrameSwitch Switch=\"on\"/>\n</Encode>");
}

}  // namespace
}  // namespace kov::test
