#include "kov_protocol/device_report.h"

#include "trials.h"

namespace kov::test {
namespace {

const std::string kType = DEVICE_REPORT_MESSAGE_TYPE;

class DeviceReportTest : public WireTest {};

TEST_F(DeviceReportTest, PositionEndsBeforeTheReservedWord) {
  EXPECT_STREQ(analysed<DEVICE_REPORT_3900_PARAM>(kType, "3900", golden("reports/status.txt")).streamstat,
               "1,0 & more");
  auto record = analysed<DEVICE_REPORT_3901_PARAM>(kType, "3901", golden("reports/position.txt"));
  EXPECT_EQ(record.y, -2);
  EXPECT_EQ(record.linkage, 0);
  EXPECT_EQ(record.reserved, 0);
  EXPECT_EQ(analysed<DEVICE_REPORT_3901_PARAM>(kType, "3901", "<xml><x>5</x></xml>").mul, -1);
  record.reserved = 77;
  EXPECT_EQ(DEVICE_REPORT_3901_PARAM_init(&record), 0);
  for (const std::int32_t value : {record.x, record.y, record.mul, record.maxMul, record.linkage}) EXPECT_EQ(value, -1);
  EXPECT_EQ(record.reserved, 77);
  EXPECT_EQ(DEVICE_REPORT_3901_PARAM_init(nullptr), KOV_ERROR_NULL);
}

TEST_F(DeviceReportTest, AnalysisParsesBeforeItLooksAtTheCode) {
  void* result = nullptr;
  char body[8] = "?";
  const std::string told = "E DeviceReportMessageAnalysis ";
  const std::string unknown = " deal a unknow msg_cdoe : 3902\n";
  expectTold(
      {{DeviceReportMessageCompose("", 0, "3902", body, 8), KOV_ERROR_UNKNOWN_MESSAGE,
        "E DEVICE_REPORT_MESSAGE" + unknown},
       {analysisCode(kType, "3902", "<y>1</y>"), KOV_ERROR_UNKNOWN_MESSAGE, "E SYSTEM_HWCFG_MESSAGE" + unknown},
       {DeviceReportMessageAnalysis("<XML_ZANTIR>", "3902", &result), KOV_ERROR_BAD_DOCUMENT,
        told + "Parse MsgBuf error\n"},
       {DeviceReportMessageAnalysis("<XML_ZANTIR/>", "3902", &result), KOV_ERROR_BAD_DOCUMENT,
        told + "get MESSAGE_BODY error\n"},
       {analysisCode(kType, "3901", "<y>1</y>"), KOV_ERROR_NO_ELEMENT, told + "get HardwareConfig error\n"},
       {DeviceReportMessageAnalysis("", nullptr, &result), KOV_ERROR_EMPTY_ARGUMENT, told + "put a empty Param\n"},
       {DeviceReportMessageCompose("", 0, "3900", body, 0), KOV_ERROR_EMPTY_ARGUMENT,
        "E DEVICE_REPORT_MESSAGE put a empty Param\n"}});
  EXPECT_EQ(result, nullptr);
}

}  // namespace
}  // namespace kov::test
