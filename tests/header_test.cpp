#include "core/header.h"

#include <cstring>

#include "core/message.h"
#include "trials.h"

namespace kov::test {
namespace {

class HeaderReaders : public WireTest {};

TEST_F(HeaderReaders, EachHasItsOwnCodesAndLines) {
  KOV_PROTOCOL_HEADER header;
  TRANSPARENT_HEADER record;
  Untouched out;
  const char* const bad = "<XML_ZANTIR>";
  const char* const bare = "<XML_ZANTIR/>";
  EXPECT_EQ(GetMessageHeader(nullptr, &header), -1);
  EXPECT_EQ(GetMessageHeader(bad, nullptr), -1);
  EXPECT_EQ(GetTransparentHeader(nullptr, &record), -1003);
  EXPECT_EQ(GetTransparentHeader(bad, nullptr), -1003);
  EXPECT_EQ(failures().size(), 4U);
  for (const std::string& line : failures()) EXPECT_EQ(line.substr(0, 21), "E Invalid input data ");
  resetPlatform();
  expectTold("core/header_calls", {GetMessageHeader(bad, &header), GetMessageHeader(bare, &header),
                                   GetMessageHeaderEx(nullptr, &out.result), GetMessageHeaderEx(bad, nullptr),
                                   GetMessageHeaderEx(bad, &out.result), GetMessageHeaderEx(bare, &out.result),
                                   GetTransparentHeader(bad, &record), GetTransparentHeader(bare, &record)});
}

// An application's own reader may accept a text without handing out a root.
TEST_F(HeaderReaders, ADocumentWithoutRootIsTold) {
  const KovXMLParser empty;
  KOV_PROTOCOL_HEADER header;
  Untouched out;
  ElementReader element;
  expectTold("core/rootless_calls", {readMessageHeader(empty, header), readHeaderExtras(empty, &out.result),
                                     findTransparentHeader(empty, element), findBody("X", empty, element)});
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
}

}  // namespace
}  // namespace kov::test
