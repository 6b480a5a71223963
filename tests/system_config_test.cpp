#include "kov_protocol/system_config.h"

#include <sstream>

#include "config/alarm.h"
#include "config/channel.h"
#include "config/general.h"
#include "config/media.h"
#include "config/network.h"
#include "config/recorder.h"
#include "system_config_wire.h"

namespace kov::test {
namespace {

class SystemConfigTest : public WireTest {};

// A line of each message: its code, the directions that give it a text, and what it calls itself when it composes.
std::string messagesOf(const CodeGroup& codes) {
  std::istringstream sides(sidesOf(codes));
  std::string lines;
  for (const CodeRow& row : codes) {
    std::string side;
    sides >> side;
    char buffer[8];
    BodyWriter body(buffer, sizeof buffer);
    resetPlatform();
    row.message->compose(nullptr, 0, body);
    lines += side + " " + logLines().back();
  }
  return lines + missingOf(codes) + "\n";
}

TEST_F(SystemConfigTest, EveryMessageHasItsSidesAndNames) {
  for (const auto& [name, codes] : {std::pair("network", &kNetworkCodes),
                                    {"media", &kMediaCodes},
                                    {"alarm", &kAlarmCodes},
                                    {"channel", &kChannelCodes},
                                    {"general", &kGeneralCodes},
                                    {"recorder", &kRecorderSettingCodes}}) {
    EXPECT_EQ(messagesOf(*codes), golden("system_config/messages_" + std::string(name) + ".txt"));
  }
}

TEST_F(SystemConfigTest, DispatchersTellWhatTheyRefuse) {
  char body[8] = "?";
  void* result = nullptr;
  const SYSTEM_CONFIG_SET_3805_PARAM record;
  const std::string compose = "E SystemConfigMessageCompose deal Msg_code:";
  const std::string analysis = "E SystemConfigMessageAnalysis deal Msg_code:";
  const std::string end = ", put a empty Param\n";
  constexpr int kEmpty = KOV_ERROR_EMPTY_ARGUMENT;
  expectTold({{SystemConfigMessageCompose(&record, 0, "3805", nullptr, 8), kEmpty, compose + "3805" + end},
              {SystemConfigMessageCompose(&record, 0, "3802", body, 0), kEmpty, compose + "3802" + end},
              {SystemConfigMessageCompose(&record, 0, nullptr, body, 8), kEmpty, compose + "(null)" + end},
              {SystemConfigMessageAnalysis(nullptr, "3805", &result), kEmpty, analysis + "3805" + end},
              {SystemConfigMessageAnalysis("", nullptr, &result), kEmpty, analysis + "(null)" + end},
              {SystemConfigMessageAnalysis("", "3802", nullptr), kEmpty, analysis + "3802" + end},
              {SystemConfigMessageCompose(nullptr, 0, "9999", body, 8), 0, ""}});
  for (const auto& [code, number] : {std::pair("abc", "0"), std::pair("9999", "9999"), std::pair("320", "320")}) {
    resetPlatform();
    const std::string line = std::string("E SYSTEM_CONFIG_MESSAGE deal a unknow msg_cdoe : ") + number + "\n";
    expectTold({{SystemConfigMessageCompose("", 0, code, body, 8), KOV_ERROR_UNKNOWN_MESSAGE, line},
                {SystemConfigMessageAnalysis("", code, &result), KOV_ERROR_UNKNOWN_MESSAGE, line}});
  }
  resetPlatform();
  result = body;
  expectTold({{SystemConfigMessageCompose("", 1, "3802", body, 8), 0, ""},  // reserved: succeeds and does nothing
              {SystemConfigMessageAnalysis("no document", "3802", &result), 0, ""},
              {analysisCode(kConfigType, "3802", "<REQUEST_PARAM/>"), 0, ""}});
  EXPECT_STREQ(body, "?");
  EXPECT_EQ(result, body);
}

TEST_F(SystemConfigTest, BareChannelNumbersAreReadInQueries) {
  const std::string bare = "<REQUEST_PARAM ChannelId=7/>";
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_501_PARAM>("501", bare)->ChannelId, 7);
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_2511_PARAM>("2511", bare)->ChannelId, 7);
  EXPECT_EQ(analysisCode(SYSTEM_CONFIG_SET_MESSAGE_TYPE, "501", bare), KOV_ERROR_BAD_HEADER);
}

}  // namespace
}  // namespace kov::test
