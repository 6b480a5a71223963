#include "kov_protocol/ipc_repair.h"

#include "every_message.h"
#include "wire.h"

namespace kov::test {
namespace {

const std::string kType = IPC_REPAIR_MESSAGE_TYPE;

const AlsoTested kRepair({kType, "any", kRecordType<IPC_REPAIR_PARAM>});

class IpcRepairTest : public WireTest {
 protected:
  IpcRepairTest() {
    set(record.Mac, "mac");
    set(record.RepairVer, "1.0");
    set(record.ServerIP, "10.0.0.1");
    set(record.Ipaddr, "10.0.0.2");
    set(record.SN, "sn");
  }
  IPC_REPAIR_PARAM record;
};

TEST_F(IpcRepairTest, FirmwareResponseLeavesTheMacInBothFields) {
  const std::string request = "<IPC_REPAIR\nIPCMac=\"mac\"\nIpcIdentify=\"1.0\"\n/>\n";
  EXPECT_EQ(bodyOf(kType, "", 2, &record), request);
  EXPECT_EQ(documentOf(kType, "", 2, &record).substr(0, 5), "<?xml");
  set(record.IPCMac, "ipc");
  const std::string response =
      "<IPC_REPAIR\nServerMac=\"\"\nServerIP=\"10.0.0.1\"\nServerPort=\"-1\"\nIpaddr=\"10.0.0.2\"\nIPCMac=\"ipc\"\n"
      "RepairVer=\"1.0\"\n/>\n";
  for (const int direction : {1, 3, 4}) EXPECT_EQ(bodyOf(kType, "", direction, &record), response);

  const auto answered = analysed<IPC_REPAIR_PARAM>(kType, "7", response + "<IPC_ALG_REPAIR Alm=\"a\"/>");
  EXPECT_STREQ(answered.Mac, "ipc");
  EXPECT_STREQ(answered.IPCMac, "ipc");
  EXPECT_STREQ(answered.RepairVer, "1.0");
  EXPECT_STREQ(answered.Alm, "");
  const auto asked = analysed<IPC_REPAIR_PARAM>(
      kType, "", "<IPC_REPAIR IPCMac=\"mac\" IpcIdentify=\"\" RepairVer=\"2\" ServerPort=\"1\"/>");
  EXPECT_STREQ(asked.Mac, "mac");
  EXPECT_STREQ(asked.IPCMac, "");
  EXPECT_STREQ(asked.RepairVer, "");
  EXPECT_EQ(asked.ServerPort, -1);
}

TEST_F(IpcRepairTest, AlgorithmResponseTellsTheClientOnlyWithoutItsMac) {
  set(record.Alm, "alm");
  const std::string request =
      "<IPC_ALG_REPAIR\nMac=\"mac\"\nBuildVer=\"1.0\"\nReqAddr=\"\"\nSN=\"sn\"\nAlm=\"alm\"\nDomainName=\"\"\n/>\n";
  EXPECT_EQ(bodyOf(kType, "", 0, &record), request);
  const std::string response =
      "<IPC_ALG_REPAIR\nServerMac=\"\"\nServerIP=\"10.0.0.1\"\nServerPort=\"-1\"\nFilePath=\"\"\nBuildVer=\"1.0\"\n"
      "SN=\"sn\"\nAlm=\"alm\"\n";
  const std::string client = "ClientIP=\"10.0.0.2\"\nClientMac=\"\"\n";
  EXPECT_EQ(bodyOf(kType, "", 1, &record), response + client + "/>\n");
  set(record.IPCMac, "ipc");
  EXPECT_EQ(bodyOf(kType, "", 1, &record), response + "/>\n");

  const auto asked = analysed<IPC_REPAIR_PARAM>(kType, "", request);
  EXPECT_EQ(bodyOf(kType, "", 0, &asked), request);
  const auto answered = analysed<IPC_REPAIR_PARAM>(kType, "", response + client + "/>\n");
  EXPECT_STREQ(answered.Ipaddr, "10.0.0.2");
  EXPECT_STREQ(answered.RepairVer, "1.0");
  EXPECT_STREQ(analysed<IPC_REPAIR_PARAM>(kType, "", "<IPC_ALG_REPAIR ClientMac=\"c\"/>").IPCMac, "c");
}

TEST_F(IpcRepairTest, TellsEmptyArgumentsAndMissingElements) {
  char body[8] = "?";
  void* result = nullptr;
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
