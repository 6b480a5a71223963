#include "kov_protocol/nvr_internal.h"

#include <cstring>

#include "every_message.h"
#include "trials.h"

namespace kov::test {
namespace {

const std::string kType = NVR_INTERNAL_MESSAGES_TYPE;

const NoRoundTrip kLock(kType, "4001", "configurations that do not name stream 1 and 2 are refused or fall together");

class NvrInternalTest : public WireTest {};

TEST_F(NvrInternalTest, LockReadsTwoStreamsByNumberAndWritesThemInOrder) {
  const std::string text = golden("nvr_internal/lock.txt");
  const std::size_t first = text.find("<StreamConfig");
  const std::size_t second = text.find("<StreamConfig", first + 1);
  const std::size_t end = text.find("</LockParamInfo>");
  const std::string one = text.substr(first, second - first), two = text.substr(second, end - second);
  const auto locked = [&](const std::string& streams) {
    return analysed<NVR_INTERNAL_4001_PARAM>(kType, "4001", text.substr(0, first) + streams + text.substr(end));
  };
  const auto read = locked(two + one);
  EXPECT_EQ(read.StreamConfig[0].BitRate, 4000000000);
  EXPECT_EQ(bodyOf(kType, "4001", 0, &read), text);
  EXPECT_EQ(
      (Numbers{locked(two + two + one).StreamConfig[0].Stream, locked(two + two + one).StreamConfig[1].Initquant}),
      (Numbers{255, 1}));
}

TEST_F(NvrInternalTest, LockRefusesStreamsThatAreNotTheTwo) {
  const auto lock = [](const std::string& streams) {
    const int code = analysisCode(kType, "4001", "<LockParamInfo>" + streams + "</LockParamInfo>");
    EXPECT_EQ(allocations(), 0);
    return code;
  };
  const std::string one = "<StreamConfig Stream=\"1\"/>";
  expectTold("nvr_internal/lock_calls",
             {lock(""), lock(one), lock(one + "<StreamConfig/>"), lock("<StreamConfig Stream=\"256\"/>"),
              lock("<StreamConfig Stream=\"3\"/>" + one)});
}

TEST_F(NvrInternalTest, ChannelListClosesItsGapsAndStopsAtItsCountAndItsTable) {
  const auto list = [](const std::string& body) { return analysed<NVR_INTERNAL_4002_PARAM>(kType, "4002", body); };
  const std::string body = golden("nvr_internal/channels.txt");
  auto read = list("<REQUEST_PARAM SrcIp=\"x\"/>" + body);
  EXPECT_EQ((Texts{read.SrcIp, read.ChannelInfo[1].IpAddr}), (Texts{"10.0.0.1", "c"}));
  std::swap(read.ChannelInfo[1], read.ChannelInfo[2]);
  set(read.ChannelInfo[3].IpAddr, "beyond");
  EXPECT_EQ(bodyOf(kType, "4002", 4, &read), body);

  std::string channels;
  for (int i = 0; i < 100; ++i) channels += "<ChannelInfo IpAddr=\"" + std::to_string(i) + "\"/>";
  const auto full = list("<RESPONSE_PARAM ChannelCount=\"100\" SrcIp=\"s\"/>" + channels);
  EXPECT_EQ(full.ChannelCount, 100);
  EXPECT_STREQ(full.ChannelInfo[63].IpAddr, "63");
  const std::string written = bodyOf(kType, "4002", 1, &full);
  EXPECT_EQ(written.substr(written.rfind('<')), "<ChannelInfo\nIpAddr=\"63\"\n/>\n");
  EXPECT_EQ((Texts{list("<RESPONSE_PARAM ChannelCount=\"1\"/>" + channels).ChannelInfo[1].IpAddr,
                   list("<RESPONSE_PARAM/>" + channels).ChannelInfo[0].IpAddr}),
            (Texts{"", ""}));
}

TEST_F(NvrInternalTest, ChannelListNeedsItsPeerAndItsCount) {
  char body[8] = "?";
  NVR_INTERNAL_4002_PARAM record, counted, named;
  counted.ChannelCount = 1;
  std::memset(named.SrcIp, '1', sizeof named.SrcIp);
  expectTold("nvr_internal/channels_calls", {NvrInternalMessageCompose(&record, 0, "4002", body, 8),
                                             NvrInternalMessageCompose(&counted, 1, "4002", body, 8),
                                             NvrInternalMessageCompose(&named, 3, "4002", body, 8)});
  EXPECT_STREQ(body, "?");
  EXPECT_EQ(bodyOf(kType, "4002", 0, &record), "code -1001");
  EXPECT_EQ(NvrInternalMessageCompose(&named, 0, "4002", body, 8), 0);
  EXPECT_STREQ(body, "<REQUES");
}

}  // namespace
}  // namespace kov::test
