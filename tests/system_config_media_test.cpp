#include "kov_protocol/system_config_media.h"

#include "system_config_wire.h"

namespace kov::test {
namespace {

class SystemConfigMediaTest : public WireTest {};

TEST_F(SystemConfigMediaTest, FieldsStandUnderTheirNames) {
  const auto video = stored<SYSTEM_CONFIG_GET_501_PARAM>("501", "media_channel");
  EXPECT_EQ((Numbers{video->Capture.IrcutNightEndTime.second, video->Encode.AdvanceEncodeConfig.WDRStartTime.hour,
                     video->Image.DRCConfig.DRCStartTime.minute}),
            (Numbers{10, 6, 5}));
  EXPECT_STREQ(video->DefaultTitle, "camera");
  video->ChannelId = -1;
  EXPECT_EQ(written("501", kAnswer, *video), golden("system_config/media_channel_unnumbered.txt"));

  const auto audio = stored<SYSTEM_CONFIG_GET_502_PARAM>("502", "audio_told");
  EXPECT_EQ((Numbers{audio->PlayDefVolume, audio->Encode.BitRate,
                     stored<SYSTEM_CONFIG_GET_502_PARAM>("522", "audio_set_full")->SampleRate,
                     stored<SYSTEM_CONFIG_SET_524_PARAM>("524", "image_tuning")->Image.DRCConfig.DRCEndTime.second,
                     stored<SYSTEM_CONFIG_SET_525_PARAM>("525", "media_overlay")->ChanID}),
            (Numbers{4, UINT32_MAX, 16000, 30, 9}));
  const auto encode = stored<SYSTEM_CONFIG_SET_523_PARAM>("523", "encoding_unset");
  encode->AdvanceEncodeConfig.WDRStartTime = {1, 2, 3};  // not written without a mode
  EXPECT_EQ(written("523", kAsk, *encode), golden("system_config/encoding_unset.txt"));
}

TEST_F(SystemConfigMediaTest, WholeConfigurationComesBackButForItsTimes) {
  const auto media = stored<SYSTEM_CONFIG_GET_500_PARAM>("500", "media_whole");
  EXPECT_EQ(written("520", kAsk, *media), golden("system_config/media_whole_untimed.txt"));
  EXPECT_EQ((Numbers{media->Capture.BackLight, media->Encode.AdvanceEncodeConfig.IvpAdvanceIspNew,
                     media->DefogConfig.DefogValue, media->TimeOverlay.WeekDisplayEn, media->Mask[0].Area[0].Height,
                     media->Mask[1].Area[3].PosX, media->CaptureVolume, media->AudioEncode.BitRate}),
            (Numbers{9, 1000, 21, 5, UINT32_MAX, 29, 41, 64000}));
  EXPECT_STREQ(media->Encode.EncodeConfig[1].Resolution, "640*360");
  for (const int mode : {0, 1, 2}) media->LightConfig.LightModeRange[mode] = mode;
  media->Capture.IrcutNightStartTime = {8, 7, 6};
  media->Capture.IrcutNightEndTime = {20, 0, 10};
  media->Encode.AdvanceEncodeConfig.WDRStartTime = {6, 5, 4};
  media->Encode.AdvanceEncodeConfig.WDREndTime = {18, 0, 1};
  media->Image.DRCConfig.DRCStartTime = {7, 5, 9};
  media->Image.DRCConfig.DRCEndTime = {19, 0, 30};
  EXPECT_EQ(written("500", kAnswer, *media), golden("system_config/media_whole.txt"));
  EXPECT_STREQ(stored<SYSTEM_CONFIG_GET_500_PARAM>("520", "media_whole")->TitleOverlay.Title, "gate");
}

TEST_F(SystemConfigMediaTest, WholeConfigurationTakesOverlaysFromBothPlaces) {
  const auto media = readBody<SYSTEM_CONFIG_GET_500_PARAM>(
      "500",
      "<MediaConfig><Video><Overlay Enable=\"1\"><TimeOverlay PosX=\"3\"/></Overlay><TimeOverlay PosX=\"1\"/>"
      "<TitleOverlay PosX=\"2\"/></Video></MediaConfig>");
  EXPECT_EQ(
      (Numbers{media->TimeOverlay.PosX, media->TitleOverlay.PosX, media->Overlay.Transparency, media->PlayVolume}),
      (Numbers{3, 2, 255, 255}));
}

TEST_F(SystemConfigMediaTest, StreamsBeyondTheSecondAreLeftAlone) {
  const std::string encode =
      "<Encode><EncodeConfig Stream=\"0\"/><EncodeConfig Stream=\"1\"/><EncodeConfig Stream=\"2\"/></Encode>";
  const auto video = readBody<SYSTEM_CONFIG_GET_501_PARAM>("501", "<Video>" + encode + "</Video>");
  EXPECT_EQ((Numbers{video->Encode.EncodeConfig[1].Stream, video->Encode.AdvanceEncodeConfig.EncodeProfile}),
            (Numbers{1, 255}));
  const auto set = readBody<SYSTEM_CONFIG_SET_523_PARAM>("523", encode);
  EXPECT_EQ((Numbers{set->EncodeConfig[1].Basic.Stream, set->AdvanceEncodeConfig.H265plus}), (Numbers{1, 255}));
}

TEST_F(SystemConfigMediaTest, ChannelWithAStatusTellsEmptyValues) {
  SYSTEM_CONFIG_GET_501_PARAM video;
  video.Status = 0;
  EXPECT_EQ(written("521", kAsk, video), golden("system_config/media_channel_status_set.txt"));
  video.ChannelId = 3;
  set(video.TimeOverlay.Format, "Y-M-D");
  EXPECT_EQ(written("501", kAnswer, video), golden("system_config/media_channel_status.txt"));
  const auto read = stored<SYSTEM_CONFIG_GET_501_PARAM>("501", "media_channel_status");
  EXPECT_EQ((Numbers{read->Capture.Brightness, read->JpegConfig.Quality, read->Status}), (Numbers{-1, 255, -1}));
  EXPECT_STREQ(read->TimeOverlay.Format, "Y-M-D");
}

}  // namespace
}  // namespace kov::test
