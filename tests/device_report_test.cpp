#include "kov_protocol/device_report.h"

#include "wire.h"

namespace kov::test {
namespace {

const std::string kType = DEVICE_REPORT_MESSAGE_TYPE;

class DeviceReportTest : public WireTest {};

TEST_F(DeviceReportTest, StatusTravelsAsTextAndLeavesOutWhatIsEmpty) {
  const std::string body =
      "<streamstat>1,0 & more</streamstat>\n<ChnDevbind>" + std::string(2047, 'b') + "</ChnDevbind>\n";
  const auto read = analysed<DEVICE_REPORT_3900_PARAM>(kType, "3900", body);
  EXPECT_EQ(bodyOf(kType, "3900", 0, &read), body);
  EXPECT_STREQ(read.streamstat, "1,0 & more");
}

TEST_F(DeviceReportTest, PositionStandsInXmlAndEndsBeforeTheReservedWord) {
  DEVICE_REPORT_3901_PARAM record = {1, -2, 3, 4, 0, 77};
  const std::string body =
      "<xml>\n<cmd>getCurPos</cmd>\n<x>1</x>\n<y>-2</y>\n<mul>3</mul>\n<maxMul>4</maxMul>\n<linkage>0</linkage>\n"
      "</xml>\n";
  EXPECT_EQ(bodyOf(kType, "3901", 3, &record), body);
  const auto read = analysed<DEVICE_REPORT_3901_PARAM>(kType, "3901", body);
  EXPECT_EQ(read.y, -2);
  EXPECT_EQ(read.linkage, 0);
  EXPECT_EQ(read.reserved, 0);
  EXPECT_EQ(analysed<DEVICE_REPORT_3901_PARAM>(kType, "3901", "<xml><x>5</x></xml>").mul, -1);

  EXPECT_EQ(DEVICE_REPORT_3901_PARAM_init(&record), 0);
  EXPECT_EQ(record.x, -1);
  EXPECT_EQ(record.linkage, -1);
  EXPECT_EQ(record.reserved, 77);
  EXPECT_EQ(DEVICE_REPORT_3901_PARAM_init(nullptr), KOV_ERROR_NULL);
}

TEST_F(DeviceReportTest, AnalysisParsesBeforeItLooksAtTheCode) {
  void* result = nullptr;
  const std::string xml = received(kType, "3902", "<y>1</y>");
  char body[8] = "?";
  EXPECT_EQ(DeviceReportMessageCompose("", 0, "3902", body, sizeof body), KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(DeviceReportMessageAnalysis(xml.c_str(), "3902", &result), KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(DeviceReportMessageAnalysis("<XML_ZANTIR>", "3902", &result), KOV_ERROR_BAD_DOCUMENT);
  EXPECT_EQ(DeviceReportMessageAnalysis("<XML_ZANTIR/>", "3902", &result), KOV_ERROR_BAD_DOCUMENT);
  EXPECT_EQ(DeviceReportMessageAnalysis(xml.c_str(), "3901", &result), KOV_ERROR_NO_ELEMENT);
  EXPECT_EQ(DeviceReportMessageAnalysis(xml.c_str(), nullptr, &result), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(DeviceReportMessageCompose("", 0, "3900", body, 0), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(logLines(), (std::vector<std::string>{"E DEVICE_REPORT_MESSAGE deal a unknow msg_cdoe : 3902\n",
                                                  "E SYSTEM_HWCFG_MESSAGE deal a unknow msg_cdoe : 3902\n",
                                                  "E DeviceReportMessageAnalysis Parse MsgBuf error\n",
                                                  "E DeviceReportMessageAnalysis get MESSAGE_BODY error\n",
                                                  "E DeviceReportMessageAnalysis get HardwareConfig error\n",
                                                  "E DeviceReportMessageAnalysis put a empty Param\n",
                                                  "E DEVICE_REPORT_MESSAGE put a empty Param\n"}));
  EXPECT_EQ(result, nullptr);
  resetPlatform();
  EXPECT_EQ(analysisCode(kType, "3902", ""), KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(failures(), std::vector<std::string>{"E SYSTEM_HWCFG_MESSAGE deal a unknow msg_cdoe : 3902\n"});
}

}  // namespace
}  // namespace kov::test
