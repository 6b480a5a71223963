#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <tuple>

#include "allocation_probe.h"
#include "kov_protocol/nvr_replay.h"
#include "trials.h"

namespace kov::test {
namespace {

const std::string kType = "NVR_REPLAY_MESSAGE";
const std::string kBody = "<REQUEST_PARAM\nChannelId=\"4\"\n/>\n";

class AnalysisEntry : public WireTest {};

int channelOf(const Analysis& analysis) {
  return analysis.result == nullptr ? -9 : static_cast<NVR_REPLAY_3003_PARAM*>(analysis.result.get())->ChannelId;
}

TEST_F(AnalysisEntry, ReadsHeaderAndRecord) {
  const std::string document = received(kType, "3003", kBody, "Msg_uuid=\"" + std::string(80, 'u') + "\"\n");
  const Analysis analysis = analysePayload(document);
  EXPECT_EQ(analysis.code, 0);
  EXPECT_EQ(channelOf(analysis), 4);
  const KOV_PROTOCOL_HEADER& header = analysis.header;
  EXPECT_EQ((Texts{header.Msg_type, header.Msg_code, header.Msg_flag, header.Msg_uuid, header.Msg_chn}),
            (Texts{"NVR_REPLAY_MESSAGE", "3003", "7", std::string(63, 'u'), ""}));
  EXPECT_EQ(logLines(), std::vector<std::string>{"I KovProtocolMSGAnalysisStart get msgbuf:" + document + "\n"});
}

TEST_F(AnalysisEntry, TheDocumentMayEndAnywhereInThePayload) {
  const std::string document = received(kType, "3003", kBody);
  EXPECT_EQ(channelOf(analysePayload(document)), 4);
  EXPECT_EQ(channelOf(analysePayload(document + "x")), 4);
  EXPECT_EQ(channelOf(analysePayload(document + std::string("\0\0\0\0raw<<", 9))), 4);
  EXPECT_EQ(channelOf(analysePayload(document + document)), 4);
  std::string tight = document;  // without a blank that could make room for the NUL
  tight.erase(tight.rfind('\n'), 1);
  EXPECT_EQ(channelOf(analysePayload(tight)), 4);
}

TEST_F(AnalysisEntry, ThePayloadIsAsItWasWhenNothingFollowsTheDocument) {
  for (const std::string& body : {kBody, std::string("<OTHER/>")}) {
    const std::string document = received(kType, "3003", body);
    std::string payload = document;
    KOV_PROTOCOL_HEADER header;
    void* result = nullptr;
    KovProtocolMSGAnalysisStart(payload.data(), static_cast<int>(payload.size()), -1, nullptr, &header, &result);
    EXPECT_EQ(payload, document);
    KovProtocolMSGAnalysisStop(&result);
  }
}

TEST_F(AnalysisEntry, FamiliesSeeTheWholeLengthOfADocumentThatFillsThePayload) {
  const std::string document = received("MEDIA_DATA_MESSAGE", "3", "<POS DataLen=\"0\"/>");
  const std::string size = std::to_string(document.size());
  EXPECT_EQ(analysePayload(document).code, KOV_ERROR_SIZE);
  EXPECT_EQ(failures(), std::vector<std::string>{"E MediaData_IntercomData_MessageAnalysis date size error : xmllen(" +
                                                 size + ") datalen(0) endcode(4) all(" + size + ")\n"});
  setCoder([&](const char*, int, char* out, int) { return static_cast<int>(document.copy(out, document.size())); });
  EXPECT_EQ(analysePayload(std::string(200, 'p'), 1).code, KOV_ERROR_SIZE);  // all that was received, before decoding
  EXPECT_NE(failures().back().find(" all(200)\n"), std::string::npos);
}

TEST_F(AnalysisEntry, IncompleteTextIsRefusedInSilence) {
  const std::string document = received(kType, "3003", kBody);
  EXPECT_EQ(analysePayload(document.substr(0, document.size() - 1)).code, KOV_ERROR_INCOMPLETE);
  EXPECT_EQ(analysePayload("<").code, KOV_ERROR_INCOMPLETE);
  std::string cut = document;
  cut[20] = '\0';
  EXPECT_EQ(analysePayload(cut).code, KOV_ERROR_INCOMPLETE);
  EXPECT_EQ(logLines(), std::vector<std::string>{});
}

// The NUL may need a copy of the text, and so do the quotes.
TEST_F(AnalysisEntry, TextsThatCannotBeCopiedAreRefused) {
  const std::string tight = "<XML_ZANTIR><MESSAGE_HEADER/></XML_ZANTIR>";
  const std::string unquoted = received("SYSTEM_CONFIG_GET_MESSAGE", "501", "<REQUEST_PARAM ChannelId=3/>");
  for (const std::string& payload : {tight, unquoted}) {
    EXPECT_NE(analysePayload(payload).code, KOV_ERROR_NO_MEMORY);
    AllocationProbe probe;
    probe.failAt(1);
    EXPECT_EQ(analysePayload(payload).code, KOV_ERROR_NO_MEMORY);
  }
  EXPECT_EQ(analysePayload("</XML_ZANTIR>").code, KOV_ERROR_BAD_HEADER);  // nothing stands in front of the tag
}

TEST_F(AnalysisEntry, RefusesInvalidInput) {
  char payload[] = "</XML_ZANTIR>";
  KOV_PROTOCOL_HEADER header;
  void* result = nullptr;
  EXPECT_EQ(KovProtocolMSGAnalysisStart(nullptr, 5, -1, nullptr, &header, &result), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(KovProtocolMSGAnalysisStart(payload, 5, -1, nullptr, nullptr, &result), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(KovProtocolMSGAnalysisStart(payload, 5, -1, nullptr, &header, nullptr), KOV_ERROR_EMPTY_ARGUMENT);
  for (const int length : {0, -1, INT_MIN}) {
    EXPECT_EQ(KovProtocolMSGAnalysisStart(payload, length, -1, nullptr, &header, &result), KOV_ERROR_EMPTY_ARGUMENT);
  }
  EXPECT_EQ(logLines(), std::vector<std::string>(6, "E KovProtocolXMLAnalysis Invaild Input Param\n"));
  // Twice this length is beyond any work block, so the payload is not even looked at.
  EXPECT_EQ(KovProtocolMSGAnalysisStart(payload, INT_MAX, 0, nullptr, &header, &result), KOV_ERROR_NO_MEMORY);
  EXPECT_EQ(logLines().back(), "E KovProtocolMalloc faile!!\n");
}

TEST_F(AnalysisEntry, RefusalsAreTold) {
  const std::string unreadable = "E GetMessageHeader Parse xml error\nE GetMessageHeader failed! nRet:-1003 \n";
  const std::tuple<std::string, int, std::string> cases[] = {
      {"text</XML_ZANTIR>", KOV_ERROR_BAD_HEADER, unreadable},
      {"<XML_ZANTIR><A></B></XML_ZANTIR>", KOV_ERROR_BAD_HEADER, unreadable},
      {"<!DOCTYPE a><XML_ZANTIR></XML_ZANTIR>", KOV_ERROR_BAD_HEADER, unreadable},
      {"<XML_ZANTIR></XML_ZANTIR>", KOV_ERROR_BAD_HEADER,
       "E GetMessageHeader get MESSAGE_HEADER error\nE GetMessageHeader failed! nRet:-1004 \n"},
      {received("IOT_CAMERA_MESSAGE", "1205", ""), KOV_ERROR_UNKNOWN_MESSAGE,
       "E KovProtocolMSGAnalysisStart deal a unknow Msg_type:IOT_CAMERA_MESSAGE Msg_code:1205 !!!\n"},
      {"<XML_ZANTIR><MESSAGE_HEADER/></XML_ZANTIR>", KOV_ERROR_UNKNOWN_MESSAGE,
       "E KovProtocolMSGAnalysisStart deal a unknow Msg_type: Msg_code: !!!\n"},
      {"<XML_ZANTIR><MESSAGE_HEADER Msg_type=\"NVR_REPLAY_MESSAGE\" Msg_code=\"3003\"/></XML_ZANTIR>",
       KOV_ERROR_BAD_DOCUMENT, "E NvrReplay_StreamControl_MessageAnalysis get MESSAGE_BODY error\n"},
  };
  for (const auto& [document, code, lines] : cases) {
    const Analysis analysis = analysePayload(document);
    EXPECT_EQ(analysis.result, nullptr);
    EXPECT_EQ(allocations(), 0);
    EXPECT_EQ(Outcome(analysis.code).text, std::to_string(code) + "\n" + lines) << document;
  }
}

// What a document lacks is the application's; it may have left it without a NUL.
TEST_F(AnalysisEntry, HeaderFieldsWithoutTerminatorStayInside) {
  const std::string x32(32, 'x');
  const std::pair<std::string, std::string> cases[] = {
      {"", "E KovProtocolMSGAnalysisStart deal a unknow Msg_type:" + x32 + " Msg_code:" + x32 + " !!!\n"},
      {"Msg_type=\"NVR_REPLAY_MESSAGE\"", "E LIVE_STREAM_MESSAGE deal a unknow Msg_code:" + x32 + " !!!\n"}};
  for (const auto& [attributes, line] : cases) {
    std::string payload = "<XML_ZANTIR>\n<MESSAGE_HEADER " + attributes + "/></XML_ZANTIR>";
    const auto header = std::make_unique<KOV_PROTOCOL_HEADER>();
    std::memset(static_cast<void*>(header.get()), 'x', sizeof *header);
    void* result = nullptr;
    EXPECT_EQ(KovProtocolMSGAnalysisStart(payload.data(), static_cast<int>(payload.size()), KOV_PLAIN, nullptr,
                                          header.get(), &result),
              KOV_ERROR_UNKNOWN_MESSAGE);
    EXPECT_EQ(failures().back(), line);
  }
}

TEST_F(AnalysisEntry, DecodesByMode) {
  const std::string document = received(kType, "3003", kBody);
  std::string encoded = document;
  for (char& c : encoded) c = static_cast<char>(~c);
  EXPECT_EQ(channelOf(analysePayload(encoded, 0)), 4);
  EXPECT_EQ(lastCoder(), "P2pProtocolDecode 0");
  EXPECT_EQ(channelOf(analysePayload(encoded, 2)), 4);
  EXPECT_EQ(lastCoder(), "KovProtocolDecode 2");
  const std::string large = encoded + std::string(5000, ' ');
  resetPlatform();
  EXPECT_EQ(channelOf(analysePayload(large, 1)), 4);
  EXPECT_EQ(allocations(), 2);
  failAllocation(1);
  EXPECT_EQ(analysePayload(large, 1).code, KOV_ERROR_NO_MEMORY);
  EXPECT_EQ(failures(), std::vector<std::string>{"E KovProtocolMalloc faile!!\n"});
}

TEST_F(AnalysisEntry, DecodersThatFailOrLie) {
  const std::string document = received(kType, "3003", kBody);
  for (const std::size_t size : {std::size_t{100}, std::size_t{4096}, std::size_t{4097}, std::size_t{20000}}) {
    const std::string payload(size, 'p');
    const int capacity = size <= 4096 ? 8192 : static_cast<int>(2 * size);
    const auto decodeTo = [&](int length) {
      resetPlatform();
      int told = 0;
      setCoder([&](const char*, int, char* out, int room) {
        told = room;
        std::memset(out, ' ', static_cast<std::size_t>(room));
        document.copy(out + room - document.size(), document.size());
        return length;
      });
      const int code = analysePayload(payload, 1).code;
      EXPECT_EQ(told, capacity);
      return code;
    };
    EXPECT_EQ(decodeTo(-7), KOV_ERROR_CODING);
    EXPECT_EQ(failures(), std::vector<std::string>{"E KovProtocolEncode faile!!, ret:-7\n"});
    EXPECT_EQ(decodeTo(0), KOV_ERROR_INCOMPLETE);
    EXPECT_EQ(decodeTo(capacity - 1), KOV_ERROR_INCOMPLETE);
    EXPECT_EQ(decodeTo(capacity), KOV_ERROR_BAD_HEADER);  // blanks before the declaration
    EXPECT_EQ(decodeTo(capacity + 1), KOV_ERROR_CODING);
    EXPECT_EQ(decodeTo(INT_MAX), KOV_ERROR_CODING);
  }
  setCoder([&](const char*, int, char* out, int) { return static_cast<int>(document.copy(out, document.size())); });
  EXPECT_EQ(channelOf(analysePayload("p", 1)), 4);
  setCoder([](const char*, int, char*, int) { return 8000; });  // claims bytes that it never wrote, just now a document
  EXPECT_EQ(analysePayload("p", 1).code, KOV_ERROR_INCOMPLETE);
}

TEST_F(AnalysisEntry, QuotesTheChannelOfConfigurationQueries) {
  const auto query = [](const std::string& code, const std::string& body) {
    return received("SYSTEM_CONFIG_GET_MESSAGE", code, body);
  };
  const auto lastText = [](const std::string& payload) {
    resetPlatform();
    analysePayload(payload);
    std::string text;
    for (const std::string& line : logLines()) {
      if (line.find("get msgbuf:") != std::string::npos) text = line;
    }
    return text.substr(text.find("msgbuf:") + 7);
  };
  for (const std::string code : {"501", "2511", "2560", "2561"}) {
    const std::string plain = query(code, "<REQUEST_PARAM ChannelId=3/>");
    const std::string quoted = query(code, "<REQUEST_PARAM ChannelId=\"3\"/>");
    EXPECT_EQ(lastText(plain), quoted + "\n");
    EXPECT_EQ(lastText(plain + std::string("\0\0\0\0tail", 8)), quoted + "\n");
    EXPECT_EQ(lastText(quoted), quoted + "\n");
  }
  // Not a query of those; no channel; the codes count wherever they stand.
  for (const std::string& untouched :
       {query("502", "<REQUEST_PARAM ChannelId=3/>"), query("501", "<REQUEST_PARAM Channel=3/>"),
        received("SYSTEM_CONFIG_SET_MESSAGE", "501", "<REQUEST_PARAM ChannelId=3/>")}) {
    EXPECT_EQ(lastText(untouched), untouched + "\n");
  }
  const std::string elsewhere = query("300", "<REQUEST_PARAM a=\"2511\" ChannelId=3 /><B/>");
  EXPECT_NE(lastText(elsewhere).find("ChannelId=\"3 \"/>"), std::string::npos);
  EXPECT_NE(lastText(query("501", "<REQUEST_PARAM ChannelId=/>")).find("ChannelId=\"\"/>"), std::string::npos);
}

std::string transparent(const std::string& rest) {
  return "<XML_ZANTIR>\n<TRANSPARENT_HEADER\nTrans_Type=\"T\"\nChannel_ID=\"2\"\nSession_ID=\"" + std::string(40, 's') +
         "\"\n/>\n" + rest;
}

TEST_F(AnalysisEntry, TransparentMessagesHandOutTheEmbeddedText) {
  const std::string embedded = "<MESSAGE_HEADER Msg_type=\"X\"/>\n<MESSAGE_BODY/>\n</XML_ZANTIR>";
  for (const std::string tail : {"", "behind"}) {
    const Analysis analysis = analysePayload(transparent(embedded) + tail);
    ASSERT_EQ(analysis.code, static_cast<int>(embedded.size()));
    const auto* const record = static_cast<TRANSPARENT_HEADER*>(analysis.result.get());
    EXPECT_EQ((Texts{analysis.header.Msg_type, record->Trans_Type, record->Channel_ID, record->Source_Type,
                     record->Session_ID, record->Payload}),
              (Texts{"T", "T", "2", "", std::string(31, 's'), embedded}));
    EXPECT_EQ(record->PayloadLength, analysis.code);
  }
  EXPECT_EQ(failures(), std::vector<std::string>{});
  std::string untyped = "<XML_ZANTIR><TRANSPARENT_HEADER/>" + embedded;
  KOV_PROTOCOL_HEADER header = headerOf("old", "old");
  void* result = nullptr;
  KovProtocolMSGAnalysisStart(untyped.data(), static_cast<int>(untyped.size()), KOV_PLAIN, nullptr, &header, &result);
  EXPECT_STREQ(header.Msg_type, "");
  KovProtocolMSGAnalysisStop(&result);
  EXPECT_EQ(analysePayload(transparent("<OTHER/>\n</XML_ZANTIR>")).code, KOV_ERROR_INCOMPLETE);
  failAllocation(1);
  EXPECT_EQ(analysePayload(transparent(embedded)).code, KOV_ERROR_NO_MEMORY);
  EXPECT_EQ(failures(), std::vector<std::string>{"E Malloc Memory failed!\n"});
}

TEST_F(AnalysisEntry, EmbeddedTextMustFitItsField) {
  const std::string opening = "<MESSAGE_HEADER a=\"";
  const std::string closing = "\"/>\n</XML_ZANTIR>";
  const auto ofLength = [&](std::size_t length) {
    return transparent(opening + std::string(length - opening.size() - closing.size(), 'x') + closing);
  };
  EXPECT_EQ(analysePayload(ofLength(8191)).code, 8191);
  resetPlatform();
  EXPECT_EQ(analysePayload(ofLength(8192)).code, KOV_ERROR_SIZE);
  EXPECT_EQ(failures(), std::vector<std::string>{"E Error: iBufLen(8192) small than len(8192)\n"});
  EXPECT_EQ(allocations(), 0);
}

TEST_F(AnalysisEntry, StopReleasesOnceAndIgnoresNull) {
  void* result = KovProtocolMSGAnalysisStop(nullptr) == 0 ? std::malloc(8) : nullptr;
  ASSERT_NE(result, nullptr);
  EXPECT_EQ(KovProtocolMSGAnalysisStop(&result), 0);
  EXPECT_EQ(result, nullptr);
  EXPECT_EQ(KovProtocolMSGAnalysisStop(&result), 0);
}

}  // namespace
}  // namespace kov::test
