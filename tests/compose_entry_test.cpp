#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <vector>

#include "allocation_probe.h"
#include "kov_protocol/nvr_replay.h"
#include "kov_protocol/system_searchipc.h"
#include "wire.h"

namespace kov::test {
namespace {

class ComposeEntry : public WireTest {
 protected:
  ComposeEntry() {
    header_ = headerOf("NVR_REPLAY_MESSAGE", "3003");
    set(header_.Msg_flag, "7");
    record_.ChannelId = 1;
  }

  // Composes into exactly `size` bytes up to the end of a block. They begin at an odd address.
  int compose(int size, int encodeMode = KOV_PLAIN, void* key = nullptr) {
    frame_.assign(static_cast<std::size_t>(size), '?');
    const std::unique_ptr<char[]> block(new char[frame_.size() + 1]);
    char* const out = block.get() + 1;
    std::memcpy(out, frame_.data(), frame_.size());
    const int length = KovProtocolXMLCompose(&header_, param_, 0, encodeMode, key, out, size);
    frame_.assign(out, frame_.size());
    return length;
  }

  std::uint32_t lengthField() const {
    std::uint32_t field = 0;
    std::memcpy(&field, &frame_[4], sizeof field);
    return field;
  }

  KOV_PROTOCOL_HEADER header_;
  NVR_REPLAY_3003_PARAM record_;
  const void* param_ = &record_;
  std::string frame_;
};

const std::string kHead =
    "<?xml version=\"1.0\" encoding=\"GB2312\" ?>\n<XML_ZANTIR>\n<MESSAGE_HEADER\nMsg_type=\"NVR_REPLAY_MESSAGE\"\n"
    "Msg_code=\"3003\"\nMsg_flag=\"7\"\n";
const std::string kEnd = "</MESSAGE_BODY>\n</XML_ZANTIR>";
const std::string kDocument = kHead + "/>\n<MESSAGE_BODY>\n<REQUEST_PARAM\nChannelId=\"1\"\n/>\n\n" + kEnd;

TEST_F(ComposeEntry, FourEnvelopes) {
  const int size = 9000;
  const std::string extras = "Msg_uuid=\"u\"\nMsg_chn=\"c\"\n\n";
  const std::string body = "<REQUEST_PARAM\nChannelId=\"1\"\n/>\n\n";
  for (const bool withExtras : {false, true}) {
    if (withExtras) set(header_.Msg_uuid, "u");
    if (withExtras) set(header_.Msg_chn, "c");
    for (const bool withBody : {true, false}) {
      param_ = withBody ? &record_ : nullptr;
      const std::string expected =
          kHead + (withExtras ? extras : "") + "/>\n<MESSAGE_BODY>\n" + (withBody ? body : "") + kEnd;
      ASSERT_EQ(compose(size), static_cast<int>(expected.size()) + 8);
      EXPECT_EQ(frame_.substr(0, 4), "\x58\x91\x58\x51");
      EXPECT_EQ(lengthField(), expected.size());
      EXPECT_EQ(frame_.substr(8, expected.size()), expected);
    }
  }
}

TEST_F(ComposeEntry, LogsEveryStep) {
  ASSERT_GT(compose(9000), 0);
  const std::string length = std::to_string(kDocument.size());
  const std::vector<std::string> expected = {
      "I KovProtocolMessageBufCompose put msglen:" + length + " msgbuf:" + kDocument + " \n",
      "I KovProtocolMessageBufCompose done, msglen:" + length + " DataLen:9000\n",
      "I put buf len : " + std::to_string(kDocument.size() + 8) + "\n", "I Msg HeadInfo len : " + length + "\n"};
  EXPECT_EQ(logLines(), expected);
  resetPlatform();
  compose(100);  // too small for the frame; the log shows the whole document all the same
  ASSERT_EQ(logLines().size(), 2U);
  EXPECT_EQ(logLines()[0], expected[0]);
  EXPECT_EQ(logLines()[1], "I KovProtocolMessageBufCompose done, msglen:" + length + " DataLen:100\n");
}

TEST_F(ComposeEntry, AnExactFitIsRefusedAndOneMoreByteTaken) {
  const int length = static_cast<int>(kDocument.size());
  for (const int size : {1, 7, 8, 9, length, length + 8}) EXPECT_EQ(compose(size), KOV_ERROR_SIZE) << size;
  EXPECT_EQ(failures(), std::vector<std::string>{});
  EXPECT_EQ(compose(length + 9), length + 8);
}

TEST_F(ComposeEntry, RefusesInvalidInput) {
  char out[16];
  EXPECT_EQ(KovProtocolXMLCompose(nullptr, param_, 0, -1, nullptr, out, 16), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(KovProtocolXMLCompose(&header_, param_, 0, -1, nullptr, nullptr, 16), KOV_ERROR_EMPTY_ARGUMENT);
  for (const int size : {0, -1, INT_MIN}) {
    EXPECT_EQ(KovProtocolXMLCompose(&header_, param_, 0, -1, nullptr, out, size), KOV_ERROR_EMPTY_ARGUMENT);
  }
  EXPECT_EQ(logLines(), std::vector<std::string>(5, "E KovProtocolXMLAnalysis Invaild Input Param\n"));
}

TEST_F(ComposeEntry, UnknownTypes) {
  for (const char* type : {"IOT_CAMERA_MESSAGE", "NVR_REPLAY_MESSAG", "NVR_REPLAY_MESSAGES", ""}) {
    resetPlatform();
    set(header_.Msg_type, type);
    EXPECT_EQ(compose(9000), KOV_ERROR_UNKNOWN_MESSAGE);
    EXPECT_EQ(logLines(), std::vector<std::string>{"E KovProtocolXMLCompose deal a unknow Msg_type:" +
                                                   std::string(type) + " Msg_code:3003 !!!\n"});
  }
  param_ = nullptr;  // nothing to dispatch: an empty body for any type
  EXPECT_GT(compose(9000), 0);
}

TEST_F(ComposeEntry, HeaderFieldsWithoutTerminatorStayInside) {
  std::memset(static_cast<void*>(&header_), 'x', sizeof header_);
  param_ = nullptr;
  ASSERT_GT(compose(9000), 0);
  const std::string x32(32, 'x');
  const std::string expected = "<MESSAGE_HEADER\nMsg_type=\"" + x32 + "\"\nMsg_code=\"" + x32 + "\"\nMsg_flag=\"" +
                               x32 + "\"\nMsg_uuid=\"" + x32 + x32 + "\"\nMsg_chn=\"" + x32 + "\"\n\n/>";
  EXPECT_NE(frame_.find(expected), std::string::npos) << frame_;
  param_ = &record_;
  EXPECT_EQ(compose(9000), KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(logLines().back(), "E KovProtocolXMLCompose deal a unknow Msg_type:" + x32 + " Msg_code:" + x32 + " !!!\n");
  set(header_.Msg_type, "NVR_REPLAY_MESSAGE");
  EXPECT_EQ(compose(9000), KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(failures().back(),
            "E Msgtype:NVR_REPLAY_MESSAGE Msg_code:" + x32 + " Msg_flag:" + x32 + " Compose failed, nRet : -1000\n");
}

TEST_F(ComposeEntry, EncodesByKeyAndMode) {
  int key = 0;
  const int size = static_cast<int>(2 * (kDocument.size() + 4) + 1);
  EXPECT_EQ(compose(size - 1, 5, &key), KOV_ERROR_SIZE);
  EXPECT_EQ(logLines().back(), "E KovProtocolMessageEncryption failed , ret : -1007\n");
  for (const int room : {size, 8191, 8192, 8193, 70000}) {
    for (const bool keyed : {true, false}) {
      resetPlatform();
      ASSERT_EQ(compose(room, 5, keyed ? &key : nullptr), static_cast<int>(kDocument.size()) + 8);
      EXPECT_EQ(lastCoder(), keyed ? "KovProtocolEncode 5" : "P2pProtocolEncode 5");
      EXPECT_EQ(frame_.substr(0, 4), "\x57\x81\x59\x52");
      EXPECT_EQ(lengthField(), kDocument.size());
      for (std::size_t i = 0; i < kDocument.size(); ++i) ASSERT_EQ(frame_[8 + i], static_cast<char>(~kDocument[i]));
      EXPECT_EQ(logLines()[2], "I KovProtocolEncode done, ret:" + std::to_string(kDocument.size()) + "\n");
    }
  }
}

TEST_F(ComposeEntry, EncodersThatFailOrFillTheirCapacity) {
  const int size = 600;
  setCoder([](const char*, int, char*, int) { return -3; });
  EXPECT_EQ(compose(size, 0), KOV_ERROR_CODING);
  EXPECT_EQ(failures(), (std::vector<std::string>{"E KovProtocolEncode faile!!, ret:-3\n",
                                                  "E KovProtocolMessageEncryption failed , ret : -1009\n"}));
  setCoder([](const char*, int, char*, int) { return 0; });
  EXPECT_EQ(compose(size, 0), 8);
  EXPECT_EQ(lengthField(), 0U);
  setCoder([](const char*, int, char*, int) { return 100; });  // claims bytes that it never wrote
  EXPECT_EQ(compose(size, 0), 108);
  EXPECT_EQ(frame_.substr(8, 100), std::string(100, '\0'));
  for (const int room : {size, 8192, 8193}) {  // the last needs a block
    for (const int length : {room - 8, room - 7, 2 * room - 8, 2 * room, INT_MAX}) {
      int capacity = 0;
      setCoder([&](const char*, int, char* out, int most) {
        capacity = most;
        std::memset(out, 'e', static_cast<std::size_t>(most));
        return length;
      });
      EXPECT_EQ(compose(room, 0), length == room - 8 ? room : KOV_ERROR_SIZE) << length;
      EXPECT_EQ(capacity, 2 * room - 8);
    }
  }
}

TEST_F(ComposeEntry, EncodingALargeOutputNeedsMemory) {
  EXPECT_GT(compose(70000, 0), 0);
  AllocationProbe probe;
  probe.failAt(1);
  EXPECT_EQ(compose(70000, 0), KOV_ERROR_NO_MEMORY);
}

TEST_F(ComposeEntry, BareDocumentsGiveWhatFitsAndTellTheirLength) {
  auto record = std::make_unique<SYSTEM_SEARCHIPC_3_PARAM>();
  const std::string type = "SYSTEM_SEARCHIPC_MESSAGE";
  header_ = headerOf(type, "3");
  param_ = record.get();
  for (const int accounts : {1, 40}) {  // below and above the size from which a document is composed in place
    std::memset(static_cast<void*>(record.get()), 'p', sizeof *record);
    record->AccountCount = accounts;
    const std::string document = documentOf(type, "3", 0, param_);
    const int length = static_cast<int>(document.size());
    ASSERT_EQ(length > 8192, accounts == 40);
    for (const int size : {1, 100, length - 1, length, length + 1, length + 300}) {
      ASSERT_EQ(compose(size), length) << size;
      const std::size_t whole = static_cast<std::size_t>(std::min(size, length));
      // A cut document may end in a NUL.
      const std::size_t sure = size < length ? whole - 1 : whole;
      EXPECT_EQ(frame_.substr(0, sure), document.substr(0, sure)) << size;
    }
  }
}

class TransparentCompose : public ComposeEntry {
 protected:
  TransparentCompose() {
    header_ = headerOf(TRANSPARENT_CHANNEL_MSG_TYPE, "");
    TRANSPARENT_HEADER_init(&message_);
    set(message_.Trans_Type, "T");
    set(message_.Session_ID, "s");
    param_ = &message_;
  }

  TRANSPARENT_HEADER message_;
};

const std::string kTransparentHead =
    "<?xml version=\"1.0\" encoding=\"GB2312\" "
    "?>\n<XML_ZANTIR>\n<TRANSPARENT_HEADER\nTrans_Type=\"T\"\nChannel_ID=\"\"\n"
    "Source_Type=\"\"\nSession_ID=\"s\"\nTrans_Result=\"\"\n/>\n";

TEST_F(TransparentCompose, AppendsThePayloadAsItIs) {
  set(header_.Msg_uuid, "unused");
  const std::string payload("<MESSAGE_HEADER/>\0</XML_ZANTIR>", 31);
  std::memcpy(message_.Payload, payload.data(), payload.size());
  message_.PayloadLength = 31;
  const std::string document = kTransparentHead + payload;
  const int length = static_cast<int>(document.size());
  EXPECT_EQ(compose(length + 8), KOV_ERROR_SIZE);
  ASSERT_EQ(compose(length + 9), length + 8);
  EXPECT_EQ(frame_.substr(8, document.size()), document);
  EXPECT_EQ(lengthField(), document.size());
  ASSERT_EQ(compose(9000, 1), length + 8);
  EXPECT_EQ(frame_[8], static_cast<char>(~'<'));
  message_.PayloadLength = 0;
  EXPECT_EQ(compose(9000), static_cast<int>(kTransparentHead.size()) + 8);
}

TEST_F(TransparentCompose, RefusesImpossibleLengths) {
  for (const int length : {-1, -5, INT_MIN, 8193, INT_MAX}) {
    message_.PayloadLength = length;
    EXPECT_EQ(compose(20000), KOV_ERROR_SIZE) << length;
  }
  for (const int length : {8191, 8192}) {
    message_.PayloadLength = length;
    EXPECT_EQ(compose(20000), static_cast<int>(kTransparentHead.size()) + length + 8);
    EXPECT_EQ(compose(8192), KOV_ERROR_SIZE);
  }
  std::memset(static_cast<void*>(&message_), 'x', offsetof(TRANSPARENT_HEADER, Payload));
  message_.PayloadLength = 0;
  EXPECT_GT(compose(9000), 0);
}

}  // namespace
}  // namespace kov::test
