#include "kov_protocol/system_config.h"

#include "system_config_wire.h"

namespace kov::test {
namespace {

class SystemConfigTest : public WireTest {};

TEST_F(SystemConfigTest, BareChannelNumbersAreReadInQueries) {
  const std::string bare = "<REQUEST_PARAM ChannelId=7/>";
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_501_PARAM>("501", bare)->ChannelId, 7);
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_2511_PARAM>("2511", bare)->ChannelId, 7);
  EXPECT_EQ(analysisCode(SYSTEM_CONFIG_SET_MESSAGE_TYPE, "501", bare), KOV_ERROR_BAD_HEADER);
}

}  // namespace
}  // namespace kov::test
