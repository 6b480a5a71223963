#include "kov_protocol/system_searchipc.h"

#include "trials.h"

namespace kov::test {
namespace {

const std::string kType = SYSTEM_SEARCHIPC_MESSAGE_TYPE;

class SystemSearchipcTest : public WireTest {
 protected:
  static SYSTEM_SEARCHIPC_3_PARAM found(const std::string& body) {
    return analysed<SYSTEM_SEARCHIPC_3_PARAM>(kType, "3", body);
  }
};

TEST_F(SystemSearchipcTest, SearchResponseTellsAllButTheInterfaceNameBack) {
  const std::string body = golden("discovery/found.txt");
  auto record = found(body);
  EXPECT_EQ(record.DeviceInfo.Count[1], -1);
  EXPECT_STREQ(record.IPAddressVirtual, "10.0.0.3");
  EXPECT_EQ(record.DeviceInfo.Feature, UINT64_MAX - 1);
  EXPECT_EQ(record.AccountCount, 2);
  EXPECT_EQ((Texts{record.Account[0].Password, record.LANConfig.DNS2, record.LANConfig.DEV, record.LAN1Config.IPAddress,
                   found("<DEVICE_TYPE SalesArea=\"12345678\"/>").DeviceInfo.SalesArea}),
            (Texts{"p", "d2", "", "10.1.0.2", "1234567"}));
  set(record.LANConfig.DEV, "eth0");
  set(record.LAN1Config.DNS1, "not on the wire");
  set(record.Account[1].Password, "nobody's");
  for (const int direction : {0, 1, 9}) EXPECT_EQ(bodyOf(kType, "3", direction, &record), body);
}

TEST_F(SystemSearchipcTest, DefaultRecordKeepsThreeElementsAndNoAccounts) {
  const std::string none = golden("discovery/found_default.txt");
  const SYSTEM_SEARCHIPC_3_PARAM record;
  EXPECT_EQ(bodyOf(kType, "3", 1, &record), none);
  const auto read = found("");
  EXPECT_EQ(bodyOf(kType, "3", 1, &read), none);
  const WireList accounts("discovery/found_accounts", "<Account");
  expectBounded(kType, "3", 1, accounts, 40, &SYSTEM_SEARCHIPC_3_PARAM::AccountCount);
  EXPECT_EQ(found("<UserConfig/>").AccountCount, 0);
}

TEST_F(SystemSearchipcTest, ConnectionCountsEndInACommaEach) {
  const auto counts = [](const std::string& list) {
    const auto read = found("<ConnectionCount Count=\"" + list + "\"/>");
    std::string slots;
    for (const int count : read.DeviceInfo.Count) slots += std::to_string(count) + " ";
    return slots;
  };
  EXPECT_EQ(counts("5,6"), "5 0 0 0 0 0 0 0 0 0 0 0 ");
  EXPECT_EQ(counts(",x, 7,65537,"), "0 0 7 1 0 0 0 0 0 0 0 0 ");
  EXPECT_EQ(counts("1,2,3,4,5,6,7,8,9,10,11,12,13,"), "1 2 3 4 5 6 7 8 9 10 11 12 ");
  EXPECT_EQ(counts(std::string(30, '0') + "12,3,"), "1 3 0 0 0 0 0 0 0 0 0 0 ");
  EXPECT_EQ(counts("4," + std::string(1020, '0') + ",9,"), "4 0 0 0 0 0 0 0 0 0 0 0 ");
  EXPECT_EQ(found("<ConnectionCount/>").DeviceInfo.ConnectionCount, 1);
}

TEST_F(SystemSearchipcTest, SmallMessagesLeaveOutWhatIsUnset) {
  auto record = analysed<SYSTEM_SEARCHIPC_2_PARAM>(kType, "5", golden("discovery/modify.txt"));
  record.LANConfig.MTU = 1500;
  record.StreamAccess.RTPPacketSize = 1400;
  EXPECT_EQ(bodyOf(kType, "2", 1, &record), golden("discovery/modify.txt"));
  for (char* unset : {record.VendorId, record.DevID, record.LANConfig.IPAddress}) *unset = '\0';
  record.StreamAccess.Auth = -1;
  EXPECT_EQ(bodyOf(kType, "5", 0, &record), golden("discovery/modify_nothing.txt"));
  const SYSTEM_SEARCHIPC_1_PARAM request;
  EXPECT_EQ(bodyOf(kType, "1", 0, &request), "");
  EXPECT_EQ(documentOf(kType, "1", 0, &request).substr(0, 5), "<?xml");
}

TEST_F(SystemSearchipcTest, IotResponseIsReadUnderOtherNamesThanItIsWritten) {
  const auto read = analysed<SYSTEM_SEARCHIPC_21_PARAM>(
      kType, "21",
      "<IOTInfo DevType=\"7\" BindNetType=\"8\" RegStatus=\"1\"/><IPC_SERIALNUMBER DeviceModule=\"sn\" DevID=\"id\"/>");
  const std::string body = golden("discovery/iot.txt");
  EXPECT_EQ(bodyOf(kType, "21", 1, &read), body);
  const auto lost = analysed<SYSTEM_SEARCHIPC_21_PARAM>(kType, "21", body);
  EXPECT_EQ((Numbers{lost.DevType, lost.BindNetType}), (Numbers{-1, -1}));
  EXPECT_EQ((Texts{lost.DeviceInfo.SerialNumber, lost.DeviceInfo.DevID}), (Texts{"", "id"}));
}

}  // namespace
}  // namespace kov::test
