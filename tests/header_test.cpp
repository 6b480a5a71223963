#include "core/header.h"

#include <gtest/gtest.h>

#include <cstring>

#include "core/message.h"
#include "wire.h"

namespace kov::test {
namespace {

class HeaderReaders : public WireTest {};

TEST_F(HeaderReaders, EachHasItsOwnCodesAndLines) {
  KOV_PROTOCOL_HEADER header;
  TRANSPARENT_HEADER record;
  void* result = nullptr;
  const char* const bad = "<XML_ZANTIR>";
  const char* const bare = "<XML_ZANTIR/>";
  EXPECT_EQ(GetMessageHeader(nullptr, &header), -1);
  EXPECT_EQ(GetMessageHeader(bad, nullptr), -1);
  EXPECT_EQ(GetMessageHeader(bad, &header), -1003);
  EXPECT_EQ(GetMessageHeader(bare, &header), -1004);
  EXPECT_EQ(GetMessageHeaderEx(nullptr, &result), -1001);
  EXPECT_EQ(GetMessageHeaderEx(bad, nullptr), -1001);
  EXPECT_EQ(GetMessageHeaderEx(bad, &result), -1003);
  EXPECT_EQ(GetMessageHeaderEx(bare, &result), -1004);
  EXPECT_EQ(GetTransparentHeader(nullptr, &record), -1003);
  EXPECT_EQ(GetTransparentHeader(bad, nullptr), -1003);
  EXPECT_EQ(GetTransparentHeader(bad, &record), -1003);
  EXPECT_EQ(GetTransparentHeader(bare, &record), -1004);
  const std::vector<std::string> lines = logLines();
  ASSERT_EQ(lines.size(), 9U);
  for (const unsigned nullArgument : {0U, 1U, 7U, 8U})
    EXPECT_EQ(lines[nullArgument].substr(0, 21), "E Invalid input data ");
  EXPECT_EQ(lines[2], "E GetMessageHeader Parse xml error\n");
  EXPECT_EQ(lines[3], "E GetMessageHeader get MESSAGE_HEADER error\n");
  EXPECT_EQ(lines[4], "E GetMessageHeaderEx put a empty Param\n");
  EXPECT_EQ(lines[5], "E GetMessageHeaderEx put a empty Param\n");
  EXPECT_EQ(lines[6], "E GetMessageHeaderEx get MESSAGE_HEADER error\n");
  EXPECT_EQ(result, nullptr);
}

// An application's own reader may accept a text without handing out a root.
TEST_F(HeaderReaders, ADocumentWithoutRootIsTold) {
  const KovXMLParser empty;
  KOV_PROTOCOL_HEADER header;
  void* result = nullptr;
  ElementReader element;
  EXPECT_EQ(readMessageHeader(empty, header), KOV_ERROR_BAD_DOCUMENT);
  EXPECT_EQ(readHeaderExtras(empty, &result), KOV_ERROR_BAD_DOCUMENT);
  EXPECT_EQ(findTransparentHeader(empty, element), KOV_ERROR_BAD_DOCUMENT);
  EXPECT_EQ(findBody("X", empty, element), KOV_ERROR_BAD_DOCUMENT);
  EXPECT_EQ(logLines(),
            (std::vector<std::string>{
                "E GetMessageHeader get RootElement error\n", "E GetMessageHeaderEx get RootElement error\n",
                "E GetTransparentHeader get RootElement error\n", "E XAnalysis get RootElement error\n"}));
}

TEST_F(HeaderReaders, AMissingAttributeLeavesItsField) {
  KOV_PROTOCOL_HEADER header = headerOf("old", "old");
  EXPECT_EQ(GetMessageHeader("<XML_ZANTIR><MESSAGE_HEADER Msg_code=\"new\"/></XML_ZANTIR>", &header), 0);
  EXPECT_STREQ(header.Msg_type, "old");
  EXPECT_STREQ(header.Msg_code, "new");
}

TEST_F(HeaderReaders, TransparentReaderLeavesThePayload) {
  TRANSPARENT_HEADER record;
  std::memset(static_cast<void*>(&record), 'p', sizeof record);
  EXPECT_EQ(TRANSPARENT_HEADER_init(&record), 0);
  EXPECT_EQ(record.Trans_Result[31], '\0');
  EXPECT_EQ(record.Payload[0], 'p');
  EXPECT_EQ(record.Payload[8191], 'p');
  EXPECT_EQ(record.PayloadLength, -1);
  EXPECT_EQ(GetTransparentHeader("<R><TRANSPARENT_HEADER Trans_Type=\"t\" Trans_Result=\"r\"/></R>", &record), 0);
  EXPECT_STREQ(record.Trans_Type, "t");
  EXPECT_STREQ(record.Trans_Result, "r");
  EXPECT_EQ(record.Payload[0], 'p');
  EXPECT_EQ(TRANSPARENT_HEADER_init(nullptr), -1);
  EXPECT_EQ(KOV_PROTOCOL_HEADER_init(nullptr), -1);
}

TEST_F(HeaderReaders, HeartbeatExtrasComeAsARecord) {
  const std::string text = "<R><MESSAGE_HEADER Ipcs_stat=\"" + std::string(70, '1') + "\" IpcProtoCol=\"p\"/></R>";
  void* result = nullptr;
  ASSERT_EQ(GetMessageHeaderEx(text.c_str(), &result), 0);
  const auto* const record = static_cast<KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM*>(result);
  EXPECT_EQ(record->Ipcs_stat, std::string(64, '1'));
  EXPECT_STREQ(record->streamstat, "");
  EXPECT_STREQ(record->IpcProtoCol, "p");
  KovProtocolMSGAnalysisStop(&result);
  failAllocation(1);
  EXPECT_EQ(GetMessageHeaderEx(text.c_str(), &result), -1002);
  EXPECT_EQ(failures(), std::vector<std::string>{"E Malloc Memory failed!\n"});
}

}  // namespace
}  // namespace kov::test
