#include "kov_protocol/system_config.h"

#include "system_config_wire.h"

namespace kov::test {
namespace {

class SystemConfigTest : public WireTest {};

TEST_F(SystemConfigTest, DispatchersTellWhatTheyRefuse) {
  char body[8] = "?";
  void* result = body;
  const SYSTEM_CONFIG_SET_3805_PARAM record;
  expectTold(
      "system_config/arguments_calls",
      {SystemConfigMessageCompose(&record, 0, "3805", nullptr, 8),
       SystemConfigMessageCompose(&record, 0, "3802", body, 0),
       SystemConfigMessageCompose(&record, 0, nullptr, body, 8), SystemConfigMessageAnalysis(nullptr, "3805", &result),
       SystemConfigMessageAnalysis("", nullptr, &result), SystemConfigMessageAnalysis("", "3802", nullptr),
       SystemConfigMessageCompose(nullptr, 0, "9999", body, 8)});
  std::vector<Outcome> calls;
  for (const char* code : {"abc", "9999", "320", "3802"}) {  // 3802 is reserved: it succeeds and does nothing
    calls.push_back(SystemConfigMessageCompose("", 1, code, body, 8));
    calls.push_back(SystemConfigMessageAnalysis("no document", code, &result));
  }
  calls.push_back(analysisCode(kConfigType, "3802", "<REQUEST_PARAM/>"));
  expectTold("system_config/codes_calls", calls);
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
