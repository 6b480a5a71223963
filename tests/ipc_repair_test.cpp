#include "kov_protocol/ipc_repair.h"

#include "every_message.h"
#include "trials.h"

namespace kov::test {
namespace {

const std::string kType = IPC_REPAIR_MESSAGE_TYPE;

const AlsoTested kRepair({kType, "any", kRecordType<IPC_REPAIR_PARAM>});

class IpcRepairTest : public WireTest {
 protected:
  static IPC_REPAIR_PARAM read(const std::string& body) { return analysed<IPC_REPAIR_PARAM>(kType, "any", body); }
};

TEST_F(IpcRepairTest, RequestsAndResponsesShareElementsAndFields) {
  const auto asked = read(golden("reports/firmware.txt"));
  EXPECT_EQ(documentOf(kType, "", 2, &asked).substr(0, 5), "<?xml");
  EXPECT_STREQ(read("<IPC_REPAIR IPCMac=\"mac\" IpcIdentify=\"\" RepairVer=\"2\"/>").RepairVer, "");
  const std::string response = golden("reports/firmware_answer.txt");
  const auto both = read("<IPC_ALG_REPAIR Alm=\"a\"/>" + response);
  EXPECT_EQ(bodyOf(kType, "", 1, &both), response);
  EXPECT_EQ((Texts{both.Mac, both.IPCMac}), (Texts{"ipc", "ipc"}));

  auto answered = read(golden("reports/algorithm_answer.txt"));
  EXPECT_STREQ(answered.Ipaddr, "10.0.0.2");
  set(answered.IPCMac, "ipc");  // the client is told only without its MAC
  EXPECT_EQ(bodyOf(kType, "", 1, &answered).find("Client"), std::string::npos);
  EXPECT_STREQ(read("<IPC_ALG_REPAIR ClientMac=\"c\"/>").IPCMac, "c");
}

TEST_F(IpcRepairTest, TellsEmptyArgumentsAndMissingElements) {
  Untouched out;
  const IPC_REPAIR_PARAM record;
  expectTold("reports/repair_calls",
             {IpcRepairMessageCompose(&record, 0, nullptr, 8), IpcRepairMessageCompose(&record, 0, out.body, 0),
              IpcRepairMessageCompose(nullptr, 0, out.body, 8), IpcRepairMessageAnalysis(nullptr, &out.result),
              IpcRepairMessageAnalysis("<a>", &out.result), IpcRepairMessageAnalysis("<a/>", &out.result),
              analysisCode(kType, "", "")});
  char cut[8];
  EXPECT_EQ(IpcRepairMessageCompose(&record, 0, cut, 8), 0);
  EXPECT_STREQ(cut, "<IPC_RE");
}

}  // namespace
}  // namespace kov::test
