// Heartbeat, login and key.
#include "every_message.h"
#include "kov_protocol/heartbeat.h"
#include "kov_protocol/system_encrypt.h"
#include "kov_protocol/user_auth.h"
#include "wire.h"

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
  EXPECT_EQ(document,
            "<?xml version=\"1.0\" encoding=\"GB2312\" ?>\n<XML_ZANTIR>\n<MESSAGE_HEADER\n"
            "Msg_type=\"AUXPTZ_HEARTBEAT_MESSAGE\"\nMsg_code=\"CMD_HEARTBEAT\"\nMsg_flag=\"\"\n"
            "Ipcs_stat=\"1,0\"\nIpcProtoCol=\"onvif\"\n\n/>\n<MESSAGE_BODY>\n</MESSAGE_BODY>\n</XML_ZANTIR>");
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
  EXPECT_EQ(HeartbeatMessageCompose(&header, nullptr, extras, 64, -1), 0);
  EXPECT_EQ(HeartbeatMessageCompose(&header, &record, extras, 64, -1), KOV_ERROR_BAD_HEADER);
  EXPECT_EQ(HeartbeatMessageCompose(&header, &record, extras, 64, 65), KOV_ERROR_BAD_HEADER);
  EXPECT_EQ(HeartbeatMessageCompose(nullptr, &record, extras, 64, 0), KOV_ERROR_BAD_HEADER);
  EXPECT_EQ(HeartbeatMessageCompose(&header, &record, nullptr, 64, 0), KOV_ERROR_BAD_HEADER);
  EXPECT_EQ(HeartbeatMessageCompose(&header, nullptr, extras, 0, 0), KOV_ERROR_BAD_HEADER);
  EXPECT_EQ(failures(), std::vector<std::string>(5, "E HeartbeatMessageCompose put a empty msghead\n"));
}

TEST_F(SessionTest, LoginRequestTellsUserVendorAndKeys) {
  Login record;
  EXPECT_EQ(bodyOf(kLogin, "1", 0, &record),
            "<USER_AUTH_PARAM\nUsername=\"\"\nPassword=\"\"\n/>\n<ENCRYPT\nCapbility=\"\"\nVersion=\"-1\"\n/>\n");
  set(record.Password, "a<&b");
  set(record.VendorId, "v");
  record.AuthMethod = 2;
  record.KeyTypeVer = 4;
  const std::string body =
      "<USER_AUTH_PARAM\nUsername=\"\"\nPassword=\"a<&b\"\nAuthMethod=\"2\"/>\n<VENDOR_PARAM VendorId =\"v\" />\n"
      "<ENCRYPT\nCapbility=\"\"\nVersion=\"-1\"\nKeyTypeVer=\"4\"\n/>\n";
  for (const int direction : {2, 4}) EXPECT_EQ(bodyOf(kLogin, "1", direction, &record), body);
  const auto read = analysed<Login>(kLogin, "1", body + "<USER_AUTH_RESPONSE MAXChannels=\"9z\"/>");
  EXPECT_STREQ(read.Password, "a<&b");
  EXPECT_STREQ(read.VendorId, "");
  EXPECT_EQ(read.MAXChannels, 9);
  const std::string odd = "<USER_AUTH_PARAM AuthMethod=\"x\" Username=\"" + std::string(40, 'u') + "\"/>";
  EXPECT_EQ(std::string(analysed<Login>(kLogin, "1", odd).Username), std::string(31, 'u'));
  EXPECT_EQ(analysed<Login>(kLogin, "1", odd).AuthMethod, 0);  // present, but no number
}

TEST_F(SessionTest, LoginResponseTellsWhatIsSet) {
  Login record;
  EXPECT_EQ(bodyOf(kLogin, "1", 1, &record), "");
  record.KeyTypeVer = 0;
  EXPECT_EQ(bodyOf(kLogin, "1", 3, &record), "<ENCRYPT\nKeyTypeVer=\"0\"\n/>\n");
  record = Login();
  set(record.Group, "g");
  EXPECT_EQ(bodyOf(kLogin, "1", 1, &record), "<USER_AUTH_RESPONSE\nGroup=\"g\"\n/>\n");
  record.MAXChannels = 8;
  set(record.Sessionid, "s");
  set(record.Capbility, "c");
  EXPECT_EQ(
      bodyOf(kLogin, "1", 1, &record),
      "<USER_AUTH_RESPONSE\nSessionid=\"s\"\nGroup=\"g\"\nMAXChannels=\"8\"\n/>\n<ENCRYPT\nCapbility=\"c\"\n/>\n");
}

TEST_F(SessionTest, LoginWithoutBodySucceedsWithoutKeys) {
  void* result = nullptr;
  EXPECT_EQ(UserAuthMessageAnalysis("<a>", &result), KOV_ERROR_BAD_DOCUMENT);  // silent
  EXPECT_EQ(UserAuthMessageAnalysis(nullptr, &result), KOV_ERROR_EMPTY_ARGUMENT);
  ASSERT_EQ(UserAuthMessageAnalysis("<a/>", &result), 0);
  EXPECT_EQ(static_cast<Login*>(result)->KeyTypeVer, 0);
  EXPECT_EQ(static_cast<Login*>(result)->Version, -1);
  KovProtocolMSGAnalysisStop(&result);
  EXPECT_EQ(logLines(), (std::vector<std::string>{
                            "E USER_AUTH_MESSAGE put a empty Param\n",
                            "E USER_AUTH_MESSAGE UserAuthMessageAnalysis get MESSAGE_BODY error or No MessageBody\n"}));
}

TEST_F(SessionTest, LoginBodyIsCutOrLeftAlone) {
  Login record;
  char body[8] = "?";
  EXPECT_EQ(UserAuthMessageCompose(nullptr, 0, body, 8), 0);
  EXPECT_EQ(UserAuthMessageCompose(&record, 1, body, 8), 0);
  EXPECT_STREQ(body, "?");
  EXPECT_EQ(UserAuthMessageCompose(&record, 0, body, 8), 0);
  EXPECT_STREQ(body, "<USER_A");
  EXPECT_EQ(UserAuthMessageCompose(&record, 0, nullptr, 8), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(UserAuthMessageCompose(nullptr, 0, body, 0), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(logLines(), std::vector<std::string>(2, "E USER_AUTH_MESSAGE put a empty Param\n"));
}

TEST_F(SessionTest, KeyLooksTheSameInBothDirections) {
  Key record;
  record.KeyLen = 16;
  set(record.KeyValue, "k");
  const std::string body = "<KeyConfig\nKeyLen=\"16\"\nKeyValue=\"k\"\n/>\n";
  for (const int direction : {0, 1}) EXPECT_EQ(bodyOf(kKey, "any", direction, &record), body);
  EXPECT_EQ(analysed<Key>(kKey, "150", "<KeyConfig KeyLen=\"\"/>").KeyLen, 0);
  EXPECT_EQ(analysed<Key>(kKey, "150", "").KeyLen, -1);
  char cut[12];
  EXPECT_EQ(SystemEncryptMessageCompose(&record, 0, cut, sizeof cut), 0);
  EXPECT_EQ(cut, body.substr(0, sizeof cut - 1));

  resetPlatform();
  void* result = nullptr;
  EXPECT_EQ(SystemEncryptMessageAnalysis("<a>", &result), KOV_ERROR_BAD_DOCUMENT);  // silent
  EXPECT_EQ(SystemEncryptMessageAnalysis("<a/>", &result), KOV_ERROR_BAD_DOCUMENT);
  EXPECT_EQ(SystemEncryptMessageAnalysis("<a/>", nullptr), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(logLines(), (std::vector<std::string>{"E SystemEncryptMessageAnalysis get MESSAGE_BODY error\n",
                                                  "E SystemEncryptMessageAnalysis put a empty Param\n"}));
}

}  // namespace
}  // namespace kov::test
