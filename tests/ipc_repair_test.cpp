#include "kov_protocol/ipc_repair.h"

#include "every_message.h"
#include "wire.h"

namespace kov::test {
namespace {

const std::string kType = IPC_REPAIR_MESSAGE_TYPE;

const AlsoTested kRepair({kType, "any", kRecordType<IPC_REPAIR_PARAM>});

class IpcRepairTest : public WireTest {
 protected:
  static IPC_REPAIR_PARAM read(const std::string& body) { return analysed<IPC_REPAIR_PARAM>(kType, "any", body); }
};

TEST_F(IpcRepairTest, FirmwareResponseLeavesTheMacInBothFields) {
  const std::string request = "<IPC_REPAIR\nIPCMac=\"mac\"\nIpcIdentify=\"\"\n/>\n";
  const auto asked = read(request);
  EXPECT_EQ(bodyOf(kType, "", 2, &asked), request);
  EXPECT_EQ(documentOf(kType, "", 2, &asked).substr(0, 5), "<?xml");
  EXPECT_STREQ(read("<IPC_REPAIR IPCMac=\"mac\" IpcIdentify=\"\" RepairVer=\"2\"/>").RepairVer, "");

  const std::string response =
      "<IPC_REPAIR\nServerMac=\"m\"\nServerIP=\"10.0.0.1\"\nServerPort=\"-1\"\nIpaddr=\"10.0.0.2\"\nIPCMac=\"ipc\"\n"
      "RepairVer=\"1.0\"\n/>\n";
  const auto answered = read("<IPC_ALG_REPAIR Alm=\"a\"/>" + response);
  for (const int direction : {1, 3, 4}) EXPECT_EQ(bodyOf(kType, "", direction, &answered), response);
  EXPECT_STREQ(answered.Mac, "ipc");
  EXPECT_STREQ(answered.IPCMac, "ipc");
}

TEST_F(IpcRepairTest, AlgorithmResponseTellsTheClientOnlyWithoutItsMac) {
  const std::string request =
      "<IPC_ALG_REPAIR\nMac=\"mac\"\nBuildVer=\"1.0\"\nReqAddr=\"r\"\nSN=\"sn\"\nAlm=\"alm\"\nDomainName=\"d\"\n/>\n";
  const auto asked = read(request);
  EXPECT_EQ(bodyOf(kType, "", 0, &asked), request);
  const std::string response =
      "<IPC_ALG_REPAIR\nServerMac=\"m\"\nServerIP=\"10.0.0.1\"\nServerPort=\"80\"\nFilePath=\"f\"\nBuildVer=\"1.0\"\n"
      "SN=\"sn\"\nAlm=\"alm\"\n";
  const std::string withClient = response + "ClientIP=\"10.0.0.2\"\nClientMac=\"\"\n/>\n";
  auto answered = read(withClient);
  EXPECT_EQ(bodyOf(kType, "", 1, &answered), withClient);
  EXPECT_STREQ(answered.Ipaddr, "10.0.0.2");
  set(answered.IPCMac, "ipc");
  EXPECT_EQ(bodyOf(kType, "", 1, &answered), response + "/>\n");
  EXPECT_STREQ(read("<IPC_ALG_REPAIR ClientMac=\"c\"/>").IPCMac, "c");
}

TEST_F(IpcRepairTest, TellsEmptyArgumentsAndMissingElements) {
  char body[8] = "?";
  void* result = nullptr;
  const IPC_REPAIR_PARAM record;
  EXPECT_EQ(IpcRepairMessageCompose(&record, 0, nullptr, 8), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(IpcRepairMessageCompose(&record, 0, body, 0), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(IpcRepairMessageCompose(nullptr, 0, body, 8), 0);
  EXPECT_STREQ(body, "?");
  EXPECT_EQ(IpcRepairMessageCompose(&record, 0, body, 8), 0);
  EXPECT_STREQ(body, "<IPC_RE");
  EXPECT_EQ(IpcRepairMessageAnalysis(nullptr, &result), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(IpcRepairMessageAnalysis("<XML_ZANTIR>", &result), KOV_ERROR_BAD_DOCUMENT);
  EXPECT_EQ(IpcRepairMessageAnalysis("<XML_ZANTIR/>", &result), KOV_ERROR_BAD_DOCUMENT);
  EXPECT_EQ(IpcRepairMessageAnalysis(received(kType, "", "").c_str(), &result), KOV_ERROR_NO_ELEMENT);
  EXPECT_EQ(
      logLines(),
      (std::vector<std::string>{
          "E IPC_REPAIR_MESSAGE put a empty Param\n", "E IPC_REPAIR_MESSAGE put a empty Param\n",
          "E IpcRepairMessageAnalysis put a empty Param\n", "E IpcRepairMessageAnalysis Parse MsgBuf error\n",
          "E IpcRepairMessageAnalysis get MESSAGE_BODY error\n", "E IpcRepairMessageAnalysis get IPC_REPAIR error\n"}));
  EXPECT_EQ(result, nullptr);
}

}  // namespace
}  // namespace kov::test
