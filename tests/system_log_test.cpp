// Logs and debug text.
#include "kov_protocol/system_log.h"

#include <cstring>

#include "every_message.h"
#include "trials.h"

namespace kov::test {
namespace {

using Log = SYSTEM_LOG_PARAM;

const std::string kLog = SYSTEM_LOG_MESSAGE_TYPE;
const std::string kDebug = DBG_CMD_MESSAGE_TYPE;

// A record full of text is refused, which is no trial.
void fillText(void* record, unsigned char value) { std::memset(record, value, 100); }

const AlsoTested kMessages[] = {AlsoTested({kLog, "1", kRecordType<Log>}),
                                AlsoTested({SYSTEM_LOG_DATA_TYPE, "1", kRecordType<Log>}),
                                AlsoTested({kDebug, "1", kRecordType<DBG_CMD_PARAM>, fillText})};
const NoRoundTrip kTextGrows(kDebug, "1", "the line breaks around the body come back as part of the text");

class SystemLogTest : public WireTest {};

// What the length field of the frame counts behind the document.
std::uint32_t countedBehind(const Log& record, int direction) {
  const KOV_PROTOCOL_HEADER header = headerOf(kLog, "1");
  char out[8192];
  const int length = KovProtocolXMLCompose(&header, &record, direction, KOV_PLAIN, nullptr, out, sizeof out);
  std::uint32_t field = 0;
  std::memcpy(&field, out + 4, sizeof field);
  return field - static_cast<std::uint32_t>(length - KOV_FRAME_HEADER_SIZE);
}

TEST_F(SystemLogTest, RequestNamesAFileOrACommand) {
  Log record;
  EXPECT_EQ(bodyOf(kLog, "1", 0, &record), "");
  set(record.Cmd, "ls");
  EXPECT_EQ(countedBehind(record, 2), 0U);
  const std::string piece = golden("session/log_piece.txt");
  record = analysed<Log>(kLog, "1", piece + "<cmd>ls</cmd>");
  EXPECT_EQ(countedBehind(record, 0), 1004U);
  EXPECT_STREQ(record.Cmd, "");
  set(record.Cmd, "ls");
  EXPECT_EQ(bodyOf(kLog, "1", 0, &record), piece);
  for (const auto& [length, counted] : {std::pair(-1, 3U), {INT32_MAX - 4, 2147483647U}, {INT32_MAX, 2147483651U}}) {
    record.DataLen = length;
    EXPECT_EQ(countedBehind(record, 0), counted);
  }
}

TEST_F(SystemLogTest, ResponseTextComesBackAsData) {
  Log record;
  std::memset(record.Data, 'd', sizeof record.Data);  // to the last byte, without a NUL
  EXPECT_EQ(bodyOf(kLog, "1", 1, &record), std::string(40960, 'd'));
  EXPECT_EQ(std::string(analysed<Log>(kLog, "1", std::string(50000, 'd')).Data), std::string(40959, 'd'));
  set(record.RespStr, "done");
  const std::string told = "<RESPONSE_PARAM>\nRespStr=\"done\"\n</RESPONSE_PARAM>\n";
  EXPECT_EQ(bodyOf(kLog, "1", 3, &record), told);
  EXPECT_EQ(countedBehind(record, 1), 0U);
  EXPECT_STREQ(analysed<Log>(kLog, "1", told).Data, "RespStr=\"done\"");
  set(record.Cmd, "out");
  record.RespDataLen = 7;
  const std::string counted = "<RESPONSE_PARAM>out</RESPONSE_PARAM>\n<RESPONSE_DATA_LEN>\n7\n</RESPONSE_DATA_LEN>\n";
  EXPECT_EQ(bodyOf(kLog, "1", 9, &record), counted);
  EXPECT_EQ(countedBehind(record, 1), 11U);
  const auto read = analysed<Log>(kLog, "1", counted);
  EXPECT_EQ((Numbers{read.RespDataLen, analysed<Log>(kLog, "1", "<RESPONSE_PARAM/><RESPONSE_DATA_LEN/>").RespDataLen}),
            (Numbers{7, -1}));
  EXPECT_STREQ(read.Data, "out");
}

// The data of a received message: a document that names `length` bytes, and `tail` behind it.
std::string dataOf(const std::string& length, const std::string& tail) {
  const Analysis analysis = analysePayload(received(kLog, "1", "<POS DataLen=\"" + length + "\"/>") + tail);
  if (analysis.code != 0) return "code " + std::to_string(analysis.code);
  const char* const data = static_cast<Log*>(analysis.result.get())->Data;
  return {data, strnlen(data, sizeof Log::Data)};
}

TEST_F(SystemLogTest, RawDataIsTakenFromWhatWasReceived) {
  const std::string separator(4, '\0');
  EXPECT_EQ(dataOf("3", separator + "abcdef"), "abc");
  EXPECT_EQ(dataOf("2147483647", separator + "abcdef"), "abcdef");
  EXPECT_EQ(dataOf("50000", separator + std::string(50000, 'a')), std::string(40960, 'a'));
  EXPECT_EQ(dataOf("3", std::string("\n\0\0\0abc", 7)), "abc");  // the first byte is where the text is cut
  for (const char* none : {"0", "-1"}) EXPECT_EQ(dataOf(none, separator + "abcdef"), "");
  for (std::size_t received = 0; received <= 4; ++received) EXPECT_EQ(dataOf("5", separator.substr(0, received)), "");
  EXPECT_EQ(dataOf("6", std::string(3, '\0') + "abc"), "<?xml ");
  EXPECT_EQ(dataOf("3000", "\n1"), received(kLog, "1", "<POS DataLen=\"3000\"/>"));
}

TEST_F(SystemLogTest, DataWithoutSeparatorIsTheDocumentAndWhatFollows) {
  const std::string document = received(kLog, "1", "<POS DataLen=\"3000\"/>");
  const Analysis analysis = analysePayload(document + "\nX1");
  ASSERT_EQ(analysis.code, 0);
  EXPECT_STREQ(static_cast<Log*>(analysis.result.get())->Data + document.size() + 1, "X1");
}

// Quotes put around a channel move the document away from what was received behind it.
TEST_F(SystemLogTest, DataOfADocumentThatMovedEndsWithIt) {
  const std::string body = "<POS DataLen=\"3000\"/><a b=\"SYSTEM_CONFIG_GET_MESSAGE 501\"/><c ChannelId=3/>";
  const Analysis analysis = analysePayload(received(kLog, "1", body) + "\nX1");
  ASSERT_EQ(analysis.code, 0);
  EXPECT_EQ(std::strlen(static_cast<Log*>(analysis.result.get())->Data), received(kLog, "1", body).size() + 2);
}

TEST_F(SystemLogTest, RawDataBehindATextOfUnknownLength) {
  const std::string separator(4, '\0');
  const std::string file = received(kLog, "1", "<POS DataLen=\"5\"/>");
  for (const std::string& memory :
       {file + separator + "abcdef", file + separator + "!", received(kLog, "1", "abcde")}) {
    const std::unique_ptr<char[]> exact(new char[memory.size() + 1]);  // text alone is not read beyond its end
    std::memcpy(exact.get(), memory.c_str(), memory.size() + 1);
    if (memory.back() == '!') exact[file.size() + 3] = '!';
    void* result = nullptr;
    ASSERT_EQ(SystemLogMessageAnalysis(exact.get(), &result), 0);
    EXPECT_STREQ(static_cast<Log*>(result)->Data, memory.back() == '!' ? "<?xml" : "abcde");
    KovProtocolMSGAnalysisStop(&result);
  }
}

TEST_F(SystemLogTest, RefusalsAreTold) {
  Log record;
  record.RespDataLen = INT32_MAX;
  char body[8] = "?";
  int extraLen = -4;
  expectTold("session/log_calls",
             {analysisCode(kLog, "1", " <other/>\n"), SystemLogMessageCompose(&record, 0, body, 8, nullptr),
              SystemLogMessageAnalysis("", nullptr), SystemLogMessageCompose(nullptr, 0, body, 8, &extraLen)});
  EXPECT_EQ(extraLen, -4);
  EXPECT_EQ(SystemLogMessageCompose(&record, 1, body, 8, &extraLen), 0);
  EXPECT_EQ(extraLen, INT32_MAX);
  EXPECT_STREQ(body, "<RESPON");
}

TEST_F(SystemLogTest, DebugTextTravelsAsItIs) {
  EXPECT_EQ(bodyOf(kDebug, "1", 0, "a<b/>c"), "a<b/>c");
  EXPECT_STREQ(analysed<DBG_CMD_PARAM>(kDebug, "1", "a<b/>c").Text, "\na<b/>c\n");
  DBG_CMD_PARAM full;
  std::memset(full.Text, 't', sizeof full.Text);
  const std::string most(8189, 't');
  EXPECT_EQ(std::string(analysed<DBG_CMD_PARAM>(kDebug, "1", most).Text), "\n" + most + "\n");
  EXPECT_EQ(analysisCode(kDebug, "1", most + "t"), KOV_ERROR_SIZE);
  EXPECT_EQ(failures(), std::vector<std::string>{"E Error: iBufLen(8192) small than len(8192)\n"});
  EXPECT_EQ(documentOf(kDebug, "1", 0, &full), "code -1007");
}

TEST_F(SystemLogTest, DebugTextIsCutOutOfTheDocument) {
  void* result = nullptr;
  const char* const text = "<MESSAGE_BODY>text</MESSAGE_BODY>";
  expectTold(
      "session/debug_calls",
      {DebugLogMessageAnalysis("<MESSAGE_BODY>text", 99, &result),
       DebugLogMessageAnalysis("</MESSAGE_BODY><MESSAGE_BODY>", 99, &result), DebugLogMessageAnalysis(text, 3, &result),
       DebugLogMessageAnalysis(text, -1, &result), DebugLogMessageAnalysis(text, 9, nullptr)});
  EXPECT_EQ(result, nullptr);
  EXPECT_EQ(DebugLogMessageAnalysis(text, 4, &result), 0);
  EXPECT_STREQ(static_cast<DBG_CMD_PARAM*>(result)->Text, "text");
  KovProtocolMSGAnalysisStop(&result);
}

TEST_F(SystemLogTest, DebugSwitchesAreAHeaderOnly) {
  for (const char* type : {OPEN_DBG_MESSAGE_TYPE, CLOSE_DBG_MESSAGE_TYPE}) {
    EXPECT_EQ(bodyOf(type, "1", 0, "text"), "");
    const Analysis analysis = analysePayload(received(type, "1", "text"));
    EXPECT_EQ(analysis.code, 0);
    EXPECT_EQ(analysis.result, nullptr);
  }
}

}  // namespace
}  // namespace kov::test
