// Heartbeat, login and key.
#include "every_message.h"
#include "kov_protocol/heartbeat.h"
#include "kov_protocol/system_encrypt.h"
#include "kov_protocol/user_auth.h"
#include "trials.h"

namespace kov::test {
namespace {

using Heartbeat = KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM;
using Login = USER_AUTH_CMD_USER_AUTH_PARAM;
using Key = SYSTEM_ENCRYPT_150_PARAM;

const std::string kLogin = USER_AUTH_MESSAGE_TYPE;
const std::string kKey = SYSTEM_ENCRYPT_MESSAGE_TYPE;

const AlsoTested kMessages[] = {
    AlsoTested({KOV_HEARTBEAT_MESSAGE_TYPE, HEARTBEAT_MESSAGE_CODE, kRecordType<Heartbeat>}),
    AlsoTested({AUXPTZ_HEARTBEAT_MESSAGE_TYPE, HEARTBEAT_MESSAGE_CODE, kRecordType<Heartbeat>}),
    AlsoTested({"NVR_PRODUCE_TEST_MESSAGE", HEARTBEAT_MESSAGE_CODE, kRecordType<Heartbeat>}),
    AlsoTested({kLogin, "CMD_USER_AUTH", kRecordType<Login>}), AlsoTested({kKey, "150", kRecordType<Key>})};

class SessionTest : public WireTest {};

TEST_F(SessionTest, HeartbeatTravelsInTheHeaderOfAnEmptyMessage) {
  Heartbeat record;
  set(record.IpcProtoCol, "onvif");
  set(record.Ipcs_stat, "1,0");
  const std::string document = documentOf(AUXPTZ_HEARTBEAT_MESSAGE_TYPE, HEARTBEAT_MESSAGE_CODE, 0, &record);
  EXPECT_EQ(document, golden("session/heartbeat_document.txt"));
  const Analysis analysis = analysePayload(document);
  ASSERT_EQ(analysis.code, 0);
  EXPECT_STREQ(static_cast<Heartbeat*>(analysis.result.get())->IpcProtoCol, "onvif");
  EXPECT_EQ(documentOf(KOV_HEARTBEAT_MESSAGE_TYPE, "CMD_OTHER", 0, &record), "code -1000");
}

TEST_F(SessionTest, HeartbeatKeepsToItsBufferAndDropsWholeLines) {
  const KOV_PROTOCOL_HEADER header;
  Heartbeat record;
  set(record.Ipcs_stat, "abc");
  set(record.streamstat, std::string(64, 's'));
  set(record.IpcAbility1, "d");
  char extras[64] = "x=\"1\"\n";
  EXPECT_EQ(HeartbeatMessageCompose(&header, &record, extras, 64, 6), 0);
  EXPECT_STREQ(extras, "x=\"1\"\nIpcs_stat=\"abc\"\nIpcAbility1=\"d\"\n");
  expectTold("session/heartbeat_calls", {HeartbeatMessageCompose(&header, nullptr, extras, 64, -1),
                                         HeartbeatMessageCompose(&header, &record, extras, 64, -1),
                                         HeartbeatMessageCompose(&header, &record, extras, 64, 64),
                                         HeartbeatMessageCompose(nullptr, &record, extras, 64, 0),
                                         HeartbeatMessageCompose(&header, &record, nullptr, 64, 0),
                                         HeartbeatMessageCompose(&header, nullptr, extras, 0, 0)});
}

// The lines of a family share their 256 bytes with the two that any message may have.
TEST_F(SessionTest, HeartbeatLeavesOutTheLineThatIsTooLongForTheHeader) {
  KOV_PROTOCOL_HEADER header;
  set(header.Msg_type, KOV_HEARTBEAT_MESSAGE_TYPE);
  set(header.Msg_code, HEARTBEAT_MESSAGE_CODE);
  set(header.Msg_uuid, std::string(62, 'u'));
  set(header.Msg_chn, std::string(20, 'c'));
  Heartbeat record;
  set(record.Ipcs_stat, std::string(64, 'i'));
  for (const std::size_t length : {58U, 59U}) {  // 74 + 31 + 77 bytes before it, 15 more of its own, and a NUL
    set(record.IpcAbility1, std::string(length, 'a'));
    std::vector<char> out(8192);
    ASSERT_GT(KovProtocolXMLCompose(&header, &record, 0, KOV_PLAIN, nullptr, out.data(), 8192), 0);
    const std::string expected = "Msg_chn=\"" + std::string(20, 'c') + "\"\nIpcs_stat=\"" + record.Ipcs_stat + "\"\n" +
                                 (length == 58 ? "IpcAbility1=\"" + std::string(58, 'a') + "\"\n" : "") + "\n/>\n";
    EXPECT_NE(std::string(out.data() + 8).find(expected), std::string::npos) << out.data() + 8;
  }
}

TEST_F(SessionTest, LoginTellsTheVendorButDoesNotReadIt) {
  auto read = analysed<Login>(kLogin, "1", golden("session/login_method.txt"));
  EXPECT_STREQ(read.Password, "a<&b");
  set(read.VendorId, "v");
  const std::string body = bodyOf(kLogin, "1", 4, &read);
  EXPECT_NE(body.find("\"2\"/>\n<VENDOR_PARAM VendorId =\"v\" />\n<ENC"), std::string::npos);
  const Login none;
  EXPECT_EQ(bodyOf(kLogin, "1", 1, &none), "");
  read = analysed<Login>(kLogin, "1", body + "<USER_AUTH_RESPONSE MAXChannels=\"9z\"/>");
  EXPECT_EQ(read.MAXChannels, 9);
  EXPECT_STREQ(read.VendorId, "");
  const std::string odd = "<USER_AUTH_PARAM AuthMethod=\"x\" Username=\"" + std::string(40, 'u') + "\"/>";
  EXPECT_EQ(std::string(analysed<Login>(kLogin, "1", odd).Username), std::string(31, 'u'));
  EXPECT_EQ(analysed<Login>(kLogin, "1", odd).AuthMethod, 0);  // present, but no number
}

TEST_F(SessionTest, LoginWithoutBodySucceedsWithoutKeys) {
  char body[8] = "?";
  const Login record;
  void* result = nullptr;
  expectTold("session/login_calls",
             {UserAuthMessageCompose(&record, 0, nullptr, 8), UserAuthMessageAnalysis(nullptr, &result),
              UserAuthMessageAnalysis("<a>", &result), UserAuthMessageAnalysis("<a/>", &result),
              UserAuthMessageCompose(&record, 1, body, 8)});
  EXPECT_STREQ(body, "?");
  ASSERT_NE(result, nullptr);
  EXPECT_EQ((Numbers{static_cast<Login*>(result)->KeyTypeVer, static_cast<Login*>(result)->Version}), (Numbers{0, -1}));
  KovProtocolMSGAnalysisStop(&result);
}

TEST_F(SessionTest, KeyNeedsNoElement) {
  EXPECT_EQ(
      (Numbers{analysed<Key>(kKey, "150", "<KeyConfig KeyLen=\"\"/>").KeyLen, analysed<Key>(kKey, "150", "").KeyLen}),
      (Numbers{0, -1}));
  char cut[12];
  const Key record;
  EXPECT_EQ(SystemEncryptMessageCompose(&record, 0, cut, sizeof cut), 0);
  EXPECT_STREQ(cut, "<KeyConfig\n");
  resetPlatform();
  void* result = nullptr;
  expectTold("session/key_calls",
             {SystemEncryptMessageAnalysis("<a>", &result), SystemEncryptMessageAnalysis("<a/>", &result),
              SystemEncryptMessageAnalysis("<a/>", nullptr)});
}

}  // namespace
}  // namespace kov::test
