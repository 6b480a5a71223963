#include "kov_protocol/nvr_produce_test.h"

#include "wire.h"

namespace kov::test {
namespace {

const std::string kType = NVR_PRODUCE_TEST_MESSAGE_TYPE;

class NvrProduceTest : public WireTest {};

TEST_F(NvrProduceTest, AudioUsesOneElementInBothDirections) {
  NVR_PRODUCE_TEST_4003_PARAM record;
  record.Soundtrack = 1;
  set(record.format, "pcm");
  EXPECT_EQ(bodyOf(kType, "4003", 0, &record), "<AudioControl\nSoundtrack=\"1\"\n/>\n");
  EXPECT_EQ(bodyOf(kType, "4003", 1, &record), "<AudioControl\nformat=\"pcm\"\nfrequency=\"-1\"\nmethod=\"-1\"\n/>\n");
  const auto read = analysed<NVR_PRODUCE_TEST_4003_PARAM>(
      kType, "4003", "<AudioControl Soundtrack=\"1\" frequency=\"2\" method=\"3\" format=\"f\"/>");
  EXPECT_EQ(read.Soundtrack, 1);
  EXPECT_EQ(read.method, 3);
  EXPECT_STREQ(read.format, "f");
}

TEST_F(NvrProduceTest, PictureTestReadsEitherOfItsElements) {
  NVR_PRODUCE_TEST_4004_PARAM record;
  ASSERT_EQ(NVR_PRODUCE_TEST_4005_PARAM_init(&record), 0);
  EXPECT_EQ(record.decode_status, UINT64_MAX);
  record.decode_status = 0x1F;
  const std::string request = "<ScreenControl\nScreen=\"-1\"\n/>\n";
  const std::string response = "<VideoControl\nchannel=\"-1\"\nview_layout=\"-1\"\ndecode_status=\"1f\"\n/>\n";
  for (const char* code : {"4004", "4005"}) {
    EXPECT_EQ(bodyOf(kType, code, 2, &record), request);
    EXPECT_EQ(bodyOf(kType, code, 3, &record), response);
    EXPECT_EQ(analysed<NVR_PRODUCE_TEST_4004_PARAM>(kType, code, response).decode_status, 31U);
    EXPECT_EQ(analysed<NVR_PRODUCE_TEST_4004_PARAM>(kType, code, "<ScreenControl Screen=\"2\"/>").Screen, 2);
    EXPECT_EQ(analysed<NVR_PRODUCE_TEST_4004_PARAM>(kType, code, response + "<ScreenControl Screen=\"2\"/>").Screen, 2);
  }
}

TEST_F(NvrProduceTest, NewerMessagesEndWithoutNewline) {
  NVR_PRODUCE_TEST_4007_PARAM time;
  EXPECT_EQ(bodyOf(kType, "4007", 1, &time), "<RtcTime\nseconds=\"4294967295\"\n/>");
  EXPECT_EQ(bodyOf(kType, "4007", 0, &time), "");
  NVR_PRODUCE_TEST_4011_PARAM other;
  EXPECT_EQ(bodyOf(kType, "4011", 1, &other), "<MiscInfo\nSerialNumber=\"\"\n/>");
  NVR_PRODUCE_TEST_4010_PARAM ability;
  const std::string text = bodyOf(kType, "4010", 1, &ability);
  const std::string end = "\nEsataTest=\"-1\"\n/>";
  ASSERT_GT(text.size(), end.size());
  EXPECT_EQ(text.substr(text.size() - end.size()), end);
}

TEST_F(NvrProduceTest, VerdictsOfTheSelfTestAndOfTheStation) {
  NVR_PRODUCE_TEST_4008_PARAM record;
  set(record.TesterName, "t");
  set(record.DevType, "d");
  record.Results.RtcTimeResult = 1;
  record.Results.AgingTime = 5;
  record.Results.EsataResult = 0;
  const std::string common =
      "DevType=\"d\"\nDevTypeResult=\"-1\"\nDevVer=\"\"\nDevVerResult=\"-1\"\nSerialNum=\"\"\nSnResult=\"-1\"\n"
      "UsbResult=\"-1\"\nDiskResult=\"-1\"\nAgingTime=\"5\"\nAgingTimeResult=\"-1\"\nAgingAvgTemp=\"-1\"\n"
      "AgingAvgTempResult=\"-1\"\nAgingAvgDuration=\"-1\"\nAgingAvgDurationResult=\"-1\"\nAlarmInputResult=\"-1\"\n"
      "AlarmOutputResult=\"-1\"\nPanelUsbResult=\"-1\"\nEsataResult=\"0\"\n";
  const std::string body =
      "<TestResult\nTesterName=\"t\"\nRtcTime=\"\"\nRtcTimeResult=\"1\"\n" + common +
      "VGAResult=\"-1\"\nHDMIResult=\"-1\"\nVideoDecodeResult=\"-1\"\nAudioDecodeResult=\"-1\"\nPilotLampResult=\"-"
      "1\"\n"
      "DevCurrent=\"-1\"\nDevCurrentResult=\"-1\"\nDevStartUpResult=\"-1\"\nEthPortResult=\"-1\"\nRS232Result=\"-1\"\n"
      "RS485Result=\"-1\"\nFanResult=\"-1\"\nCheckTotalResult=\"-1\"\n/>";
  EXPECT_EQ(bodyOf(kType, "4008", 0, &record), body);
  const auto read = analysed<NVR_PRODUCE_TEST_4008_PARAM>(kType, "4008", body);
  EXPECT_EQ(read.Results.RtcTimeResult, -1);
  EXPECT_EQ(read.Results.AgingTime, 5U);
  EXPECT_EQ(read.Results.AgingAvgDuration, UINT32_MAX);

  NVR_PRODUCE_TEST_4006_PARAM report;
  set(report.DevType, "d");
  report.Results = record.Results;
  EXPECT_EQ(bodyOf(kType, "4006", 1, &report), "<SelfTestResult\n" + common + "/>");
}

TEST_F(NvrProduceTest, MissingElementsHaveACodeAndNamesOfTheirOwn) {
  const struct {
    const char* code;
    const char* line;
    int (*analysis)(const char*, void**);
  } rows[] = {
      {"4002", "LedControl_MessageAnalysis get LedControl", NvrProduceTest_LedControl_MessageAnalysis},
      {"4003", "AudioTest_MessageAnalysis get AudioControl", NvrProduceTest_AudioTest_MessageAnalysis},
      {"4005", "VGA_HMDI_Test_MessageAnalysis get ScreenControl", NvrProduceTest_VGA_HMDI_Test_MessageAnalysis},
      {"4006", "ReportResult_MessageAnalysis get SelfTestResult", NvrProduceTest_ReportResult_MessageAnalysis},
      {"4007", "GetNvrSystemTime_MessageAnalysis get TestResult", NvrProduceTest_GetNvrSystemTime_MessageAnalysis},
      {"4008", "SendTestReuslt_MessageAnalysis get TestResult", NvrProduceTest_SendTestReuslt_MessageAnalysis},
      {"4010", "GetNvrTestAbality_MessageAnalysis get ProductAbility",
       NvrProduceTest_GetNvrTestAbality_MessageAnalysis},
      {"4011", "GetOtherParam_MessageAnalysis get ProductAbility", NvrProduceTest_GetOtherParam_MessageAnalysis},
  };
  for (const auto& row : rows) {
    resetPlatform();
    void* result = nullptr;
    const std::string xml = received(kType, row.code, "");
    EXPECT_EQ(row.analysis(xml.c_str(), &result), KOV_ERROR_NO_TEST_ELEMENT);
    EXPECT_EQ(NvrProduceTestMessageAnalysis(xml.c_str(), row.code, &result), KOV_ERROR_NO_TEST_ELEMENT);
    EXPECT_EQ(analysisCode(kType, row.code, ""), KOV_ERROR_NO_TEST_ELEMENT);
    EXPECT_EQ(failures(), std::vector<std::string>(3, std::string("E NvrProduceTest_") + row.line + " error\n"));
    EXPECT_EQ(row.analysis("<XML_ZANTIR/>", &result), KOV_ERROR_BAD_DOCUMENT);
  }
}

TEST_F(NvrProduceTest, DispatchersKnowTheirCodes) {
  char body[8] = "?";
  void* result = nullptr;
  EXPECT_EQ(NvrProduceTestMessageCompose(body, 1, "4009", body, 8), 0);
  EXPECT_EQ(NvrProduceTestMessageAnalysis("no document", "4009", &result), 0);
  EXPECT_TRUE(logLines().empty());
  EXPECT_EQ(NvrProduceTestMessageCompose(body, 1, "4001", body, 8), KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(NvrProduceTestMessageAnalysis("", "4012", &result), KOV_ERROR_UNKNOWN_MESSAGE);
  EXPECT_EQ(NvrProduceTestMessageCompose(body, 1, "4002", body, 0), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(NvrProduceTestMessageAnalysis(nullptr, "4002", &result), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(NvrProduceTestMessageAnalysis("", nullptr, &result), KOV_ERROR_EMPTY_ARGUMENT);
  EXPECT_EQ(NvrProduceTestMessageAnalysis("", "4002", nullptr), KOV_ERROR_EMPTY_ARGUMENT);
  const std::string empty = "E NvrProduceTestMessageAnalysis put a empty Param\n";
  EXPECT_EQ(logLines(),
            (std::vector<std::string>{"E NVR_PRODUCE_TEST_MESSAGE deal a unknow msg_code:4001\n",
                                      "E NVR_PRODUCE_TEST_MESSAGE deal a unknow msg_code:4012\n",
                                      "E NVR_PRODUCE_TEST_MESSAGE put a empty Param\n", empty, empty, empty}));
  EXPECT_STREQ(body, "?");
}

}  // namespace
}  // namespace kov::test
