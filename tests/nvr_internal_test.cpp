#include "kov_protocol/nvr_internal.h"

#include <cstring>

#include "every_message.h"
#include "wire.h"

namespace kov::test {
namespace {

const std::string kType = NVR_INTERNAL_MESSAGES_TYPE;

const NoRoundTrip kLock(kType, "4001", "configurations that do not name stream 1 and 2 are refused or fall together");

class NvrInternalTest : public WireTest {
 protected:
  // The line that analysis of 4001 fails with.
  static std::string lockFailure(const std::string& streams) {
    resetPlatform();
    EXPECT_EQ(analysisCode(kType, "4001", "<LockParamInfo>" + streams + "</LockParamInfo>"), KOV_ERROR_BAD_DOCUMENT);
    EXPECT_EQ(allocations(), 0);
    return failures().size() == 1 ? failures()[0] : "";
  }
};

TEST_F(NvrInternalTest, LockReadsTwoStreamsByNumberAndWritesThemInOrder) {
  const std::string first =
      "<StreamConfig\nStream=\"1\"\nResolution=\"704*576\"\nEncodeFormat=\"H265\"\nBitRateControl=\"VBR\"\n"
      "Initquant=\"255\"\nBitRate=\"4000000000\"\nFrameRate=\"25\"\n/>\n";
  const std::string second =
      "<StreamConfig\nStream=\"2\"\nResolution=\"\"\nEncodeFormat=\"\"\nBitRateControl=\"\"\nInitquant=\"1\"\n"
      "BitRate=\"4294967295\"\nFrameRate=\"255\"\n/>\n";
  const auto locked = [](const std::string& streams) {
    return "<LockParamInfo>\n<IPCInfo\nSN=\"sn\"\nIPAddress=\"10.0.0.1\"\nMulticularChn=\"-1\"\n/>\n" + streams +
           "</LockParamInfo>\n";
  };
  const auto read = analysed<NVR_INTERNAL_4001_PARAM>(kType, "4001", locked(second + first));
  EXPECT_EQ(read.StreamConfig[0].BitRate, 4000000000);
  for (const int direction : {0, 1}) EXPECT_EQ(bodyOf(kType, "4001", direction, &read), locked(first + second));
  const auto twice = analysed<NVR_INTERNAL_4001_PARAM>(kType, "4001", locked(second + second + first));
  EXPECT_EQ(twice.StreamConfig[0].Stream, 255);
  EXPECT_EQ(twice.StreamConfig[1].Initquant, 1);
}

TEST_F(NvrInternalTest, LockRefusesStreamsThatAreNotTheTwo) {
  const std::string one = "<StreamConfig Stream=\"1\"/>";
  EXPECT_EQ(lockFailure(""), "E NvrInternalMessageAnalysis get StreamConfig:1 error\n");
  EXPECT_EQ(lockFailure(one), "E NvrInternalMessageAnalysis get StreamConfig:2 error\n");
  EXPECT_EQ(lockFailure(one + "<StreamConfig/>"), "E NvrInternalMessageAnalysis get stream\n");
  EXPECT_EQ(lockFailure("<StreamConfig Stream=\"256\"/>"), "E NvrInternalMessageAnalysis get stream\n");
  EXPECT_EQ(lockFailure("<StreamConfig Stream=\"3\"/>" + one), "E NvrInternalMessageAnalysis get Error stream :3\n");
}

TEST_F(NvrInternalTest, ChannelListClosesItsGaps) {
  NVR_INTERNAL_4002_PARAM record;
  record.ChannelCount = 3;
  set(record.SrcIp, "10.0.0.1");
  set(record.ChannelInfo[0].IpAddr, "a");
  set(record.ChannelInfo[2].IpAddr, "c");
  set(record.ChannelInfo[3].IpAddr, "beyond");
  EXPECT_EQ(bodyOf(kType, "4002", 2, &record), "<REQUEST_PARAM\nSrcIp=\"10.0.0.1\"\n/>\n");
  const std::string body =
      "<RESPONSE_PARAM\nChannelCount=\"3\"\nSrcIp=\"10.0.0.1\"\nSN=\"\"\n/>\n<ChannelInfo\nIpAddr=\"a\"\n/>\n"
      "<ChannelInfo\nIpAddr=\"c\"\n/>\n";
  EXPECT_EQ(bodyOf(kType, "4002", 4, &record), body);
  const auto read = analysed<NVR_INTERNAL_4002_PARAM>(kType, "4002", "<REQUEST_PARAM SrcIp=\"x\"/>" + body);
  EXPECT_STREQ(read.SrcIp, "10.0.0.1");
  EXPECT_STREQ(read.ChannelInfo[1].IpAddr, "c");
  EXPECT_STREQ(read.ChannelInfo[2].IpAddr, "");
}

TEST_F(NvrInternalTest, ChannelsStopAtTheTableAndAtTheirCount) {
  std::string channels;
  for (int i = 0; i < 100; ++i) channels += "<ChannelInfo IpAddr=\"" + std::to_string(i) + "\"/>";
  const auto list = [&channels](const std::string& attributes) {
    return analysed<NVR_INTERNAL_4002_PARAM>(kType, "4002", "<RESPONSE_PARAM " + attributes + "/>" + channels);
  };
  const auto full = list("ChannelCount=\"100\" SrcIp=\"s\"");
  EXPECT_EQ(full.ChannelCount, 100);
  EXPECT_STREQ(full.ChannelInfo[63].IpAddr, "63");
  const std::string body = bodyOf(kType, "4002", 1, &full);
  EXPECT_EQ(body.substr(body.rfind('<')), "<ChannelInfo\nIpAddr=\"63\"\n/>\n");
  EXPECT_STREQ(list("ChannelCount=\"1\"").ChannelInfo[1].IpAddr, "");
  EXPECT_STREQ(list("").ChannelInfo[0].IpAddr, "");
}

TEST_F(NvrInternalTest, ChannelListNeedsItsPeerAndItsCount) {
  NVR_INTERNAL_4002_PARAM record;
  EXPECT_EQ(bodyOf(kType, "4002", 0, &record), "code -1001");
  std::memset(record.SrcIp, '1', sizeof record.SrcIp);
  EXPECT_EQ(bodyOf(kType, "4002", 3, &record), "code -1001");
  const std::string line = "E NVR_INTERNAL_MESSAGES put a error Param ";
  EXPECT_EQ(failures()[0], line + "acSrcIp: \n");
  EXPECT_EQ(failures()[2], line + "iChannelCount: -1 acSrcIp: " + std::string(32, '1') + "\n");
  char body[8] = "?";
  EXPECT_EQ(NvrInternalMessageCompose(&record, 1, "4002", body, sizeof body), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_STREQ(body, "?");
  EXPECT_EQ(NvrInternalMessageCompose(&record, 0, "4002", body, sizeof body), 0);
  EXPECT_STREQ(body, "<REQUES");
  record = {};
  record.ChannelCount = 1;
  EXPECT_EQ(bodyOf(kType, "4002", 1, &record), "code -1001");
}

TEST_F(NvrInternalTest, TellsUnknownCodesAndMissingElements) {
  char body[8] = "?";
  void* result = nullptr;
  const std::string xml = received(kType, "4003", "");
  EXPECT_EQ(NvrInternalMessageCompose("", 0, "4003", body, sizeof body), KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(NvrInternalMessageCompose("", 0, nullptr, body, sizeof body), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(NvrInternalMessageCompose(nullptr, 0, "4003", body, sizeof body), 0);
  EXPECT_EQ(NvrInternalMessageAnalysis(xml.c_str(), "4003", &result), KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(NvrInternalMessageAnalysis("<XML_ZANTIR/>", "4003", &result), KOV_ERROR_BAD_DOCUMENT);
  EXPECT_EQ(NvrInternalMessageAnalysis(xml.c_str(), "4001", &result), KOV_ERROR_NO_ELEMENT);
  EXPECT_EQ(NvrInternalMessageAnalysis(xml.c_str(), "4002", &result), KOV_ERROR_NO_ELEMENT);
  EXPECT_EQ(NvrInternalMessageAnalysis(xml.c_str(), "4002", nullptr), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(logLines(), (std::vector<std::string>{"E NVR_INTERNAL_MESSAGES deal a unknow msg_cdoe : 4003\n",
                                                  "E NVR_INTERNAL_MESSAGES put a empty Param\n",
                                                  "E NvrInternalMessageAnalysis deal a unknow msg_cdoe : 4003\n",
                                                  "E NvrInternalMessageAnalysis get MESSAGE_BODY error\n",
                                                  "E NvrInternalMessageAnalysis get LockParamInfo error\n",
                                                  "E NvrInternalMessageAnalysis get RESPONSE_PARAM error\n",
                                                  "E NvrInternalMessageAnalysis put a empty Param\n"}));
  EXPECT_EQ(result, nullptr);
}

}  // namespace
}  // namespace kov::test
