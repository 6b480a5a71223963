#include "kov_protocol/system_config.h"

#include "wire.h"

namespace kov::test {
namespace {

class SystemConfigTest : public WireTest {};

TEST_F(SystemConfigTest, DispatchersRefuseEmptyArguments) {
  char body[8] = "?";
  void* result = nullptr;
  SYSTEM_CONFIG_SET_3805_PARAM record;
  EXPECT_EQ(SystemConfigMessageCompose(&record, 0, "3805", nullptr, 8), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(SystemConfigMessageCompose(&record, 0, "3802", body, 0), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(SystemConfigMessageCompose(&record, 0, nullptr, body, 8), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(SystemConfigMessageAnalysis(nullptr, "3805", &result), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(SystemConfigMessageAnalysis("", nullptr, &result), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(SystemConfigMessageAnalysis("", "3802", nullptr), KOV_ERROR_EMPTY_ARGUMENT);
  const std::string compose = "E SystemConfigMessageCompose deal Msg_code:";
  const std::string analysis = "E SystemConfigMessageAnalysis deal Msg_code:";
  const std::string end = ", put a empty Param\n";
  EXPECT_EQ(logLines(),
            (std::vector<std::string>{compose + "3805" + end, compose + "3802" + end, compose + "(null)" + end,
                                      analysis + "3805" + end, analysis + "(null)" + end, analysis + "3802" + end}));
  EXPECT_STREQ(body, "?");
  EXPECT_EQ(SystemConfigMessageCompose(nullptr, 0, "9999", body, 8), 0);
  EXPECT_STREQ(body, "?");
}

TEST_F(SystemConfigTest, UnknownCodesAreToldAsNumbers) {
  char body[8] = "?";
  void* result = nullptr;
  const std::string xml = received("SYSTEM_CONFIG_SET_MESSAGE", "9999", "<REQUEST_PARAM/>");
  for (const auto& [code, number] : {std::pair("abc", "0"), std::pair("9999", "9999"), std::pair("320", "320")}) {
    resetPlatform();
    EXPECT_EQ(SystemConfigMessageCompose("", 0, code, body, 8), KOV_ERROR_UNKNOWN_MESSAGE);
    EXPECT_EQ(SystemConfigMessageAnalysis(xml.c_str(), code, &result), KOV_ERROR_UNKNOWN_MESSAGE);
    const std::string line = std::string("E SYSTEM_CONFIG_MESSAGE deal a unknow msg_cdoe : ") + number + "\n";
    EXPECT_EQ(logLines(), (std::vector<std::string>{line, line}));
  }
  EXPECT_STREQ(body, "?");
  EXPECT_EQ(result, nullptr);
}

TEST_F(SystemConfigTest, ReservedCodeSucceedsAndDoesNothing) {
  char body[8] = "?";
  void* result = body;
  for (const int direction : {0, 1}) EXPECT_EQ(SystemConfigMessageCompose("", direction, "3802", body, 8), 0);
  EXPECT_EQ(SystemConfigMessageAnalysis("no document", "3802", &result), 0);
  EXPECT_STREQ(body, "?");
  EXPECT_EQ(result, body);
  EXPECT_EQ(analysisCode("SYSTEM_CONFIG_GET_MESSAGE", "3802", "<REQUEST_PARAM/>"), 0);
  EXPECT_TRUE(failures().empty());
}

TEST_F(SystemConfigTest, TheCodeAloneSelectsTheMessage) {
  SYSTEM_CONFIG_SET_3805_PARAM record;
  record.ChannelId = 3;
  for (const std::string type : {SYSTEM_CONFIG_GET_MESSAGE_TYPE, SYSTEM_CONFIG_SET_MESSAGE_TYPE}) {
    const std::string body = "<REQUEST_PARAM\nChannelId=\"3\"\n/>\n";
    EXPECT_EQ(bodyOf(type, "3805", 2, &record), body);
    EXPECT_EQ(bodyOf(type, "3805", 3, &record), "");
    EXPECT_EQ(analysed<SYSTEM_CONFIG_SET_3805_PARAM>(type, "3805", body).ChannelId, 3);
  }
}

// The numbers of the queries with a bare channel are looked for in the whole text, so a mark will do.
TEST_F(SystemConfigTest, BareChannelNumbersAreReadInQueries) {
  const std::string bare = "<REQUEST_PARAM ChannelId=7/>";
  for (const std::string mark : {"501", "2511", "2560", "2561"}) {
    const std::string extras = "Msg_uuid=\"" + mark + "\"\n";
    const Analysis query = analysePayload(received(SYSTEM_CONFIG_GET_MESSAGE_TYPE, "3805", bare, extras));
    ASSERT_EQ(query.code, 0) << mark;
    EXPECT_EQ(static_cast<SYSTEM_CONFIG_SET_3805_PARAM*>(query.result.get())->ChannelId, 7);
    const std::string setting = received(SYSTEM_CONFIG_SET_MESSAGE_TYPE, "3805", bare, extras);
    EXPECT_EQ(analysePayload(setting).code, KOV_ERROR_BAD_HEADER);
  }
  EXPECT_EQ(analysisCode(SYSTEM_CONFIG_GET_MESSAGE_TYPE, "3805", bare), KOV_ERROR_BAD_HEADER);
}

}  // namespace
}  // namespace kov::test
