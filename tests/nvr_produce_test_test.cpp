#include "kov_protocol/nvr_produce_test.h"

#include "trials.h"

namespace kov::test {
namespace {

const std::string kType = NVR_PRODUCE_TEST_MESSAGE_TYPE;

class NvrProduceTest : public WireTest {};

std::string textOf(const std::string& file) { return golden("production/" + file + ".txt"); }

TEST_F(NvrProduceTest, AudioUsesOneElementInBothDirections) {
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
  for (const char* code : {"4004", "4005"}) {
    EXPECT_EQ(analysed<NVR_PRODUCE_TEST_4004_PARAM>(kType, code, textOf("video")).decode_status, 31U);
    EXPECT_EQ(analysed<NVR_PRODUCE_TEST_4004_PARAM>(kType, code, textOf("video") + textOf("screen")).Screen, 2);
  }
}

TEST_F(NvrProduceTest, VerdictOfTheStationDoesNotReadTheClocks) {
  auto record = analysed<NVR_PRODUCE_TEST_4008_PARAM>(kType, "4008", textOf("verdict"));
  EXPECT_EQ(record.Results.RtcTimeResult, -1);
  EXPECT_EQ(record.Results.AgingTime, 5U);
  EXPECT_EQ(record.Results.EsataResult, 0);
  EXPECT_EQ(record.Results.AgingAvgDuration, UINT32_MAX);
  record.Results.RtcTimeResult = 1;
  EXPECT_EQ(bodyOf(kType, "4008", 0, &record), textOf("verdict"));
}

TEST_F(NvrProduceTest, MissingElementsHaveACodeOfTheirOwn) {
  const std::string xml = received(kType, "4002", "");
  void* result = nullptr;
  EXPECT_EQ(NvrProduceTestMessageAnalysis(xml.c_str(), "4002", &result), KOV_ERROR_NO_TEST_ELEMENT);
  for (const auto analysis :
       {NvrProduceTest_LedControl_MessageAnalysis, NvrProduceTest_AudioTest_MessageAnalysis,
        NvrProduceTest_VGA_HMDI_Test_MessageAnalysis, NvrProduceTest_ReportResult_MessageAnalysis,
        NvrProduceTest_GetNvrSystemTime_MessageAnalysis, NvrProduceTest_SendTestReuslt_MessageAnalysis,
        NvrProduceTest_GetNvrTestAbality_MessageAnalysis, NvrProduceTest_GetOtherParam_MessageAnalysis}) {
    EXPECT_EQ(analysis(xml.c_str(), &result), KOV_ERROR_NO_TEST_ELEMENT) << logLines().back();
  }
}

}  // namespace
}  // namespace kov::test
