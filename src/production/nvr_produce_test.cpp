// NVR_PRODUCE_TEST_MESSAGE: a recorder's hardware checks on the production line.
#include "kov_protocol/nvr_produce_test.h"

#include "core/family.h"
#include "kov_platform/services.h"
#include "production/nvr_produce_test.h"

namespace kov {
namespace {

static_assert(sizeof(NVR_PRODUCE_TEST_4002_PARAM) == 8);
static_assert(sizeof(NVR_PRODUCE_TEST_4003_PARAM) == 44);
static_assert(sizeof(NVR_PRODUCE_TEST_4004_PARAM) == 24);
static_assert(sizeof(NVR_PRODUCE_TEST_RESULTS) == 116);
static_assert(sizeof(NVR_PRODUCE_TEST_4006_PARAM) == 268);
static_assert(sizeof(NVR_PRODUCE_TEST_4008_PARAM) == 304);
static_assert(sizeof(NVR_PRODUCE_TEST_4010_PARAM) == 160);

// The newer messages end on the line of their closing.
constexpr const char* kUnendedLine = "/>";

void ledControl(BodyIo& io, NVR_PRODUCE_TEST_4002_PARAM& r) {
  io.element("LedControl", {{"Switch", r.Switch}, {"Color", r.Color}});
}

constexpr Message kLedControl = {"NvrProduceTest_LedControl_Message", form<ledControl>("LedControl"), nullptr};

void audioRequest(BodyIo& io, NVR_PRODUCE_TEST_4003_PARAM& r) {
  io.element("AudioControl", {{"Soundtrack", r.Soundtrack}});
}

// Both directions have the same element: whoever reads it takes all attributes.
void audioResponse(BodyIo& io, NVR_PRODUCE_TEST_4003_PARAM& r) {
  io.element("AudioControl", {attr("Soundtrack", r.Soundtrack).readOnly(),
                              {"format", r.format},
                              {"frequency", r.frequency},
                              {"method", r.method}});
}

constexpr Message kAudioTest = {"NvrProduceTest_AudioTest_Message", form<audioRequest>("AudioControl"),
                                form<audioResponse>("AudioControl")};

void screenRequest(BodyIo& io, NVR_PRODUCE_TEST_4004_PARAM& r) { io.element("ScreenControl", {{"Screen", r.Screen}}); }

// A reader takes both elements; either is enough, because an answer has only this one.
void screenResponse(BodyIo& io, NVR_PRODUCE_TEST_4004_PARAM& r) {
  if (io.reading()) screenRequest(io, r);
  io.element("VideoControl",
             {{"channel", r.channel}, {"view_layout", r.view_layout}, attr("decode_status", r.decode_status).hex()});
}

constexpr Message kVgaHdmiTest = Message("NvrProduceTest_VGA_HMDI_Test_Message", form<screenRequest>("ScreenControl"),
                                         form<screenResponse>("VideoControl"))
                                     .reportsMissing("ScreenControl");

// What the self test reports and the station sends back.
template <class Record>
void selfTestResults(BodyIo& io, Record& r) {
  NVR_PRODUCE_TEST_RESULTS& results = r.Results;
  io.attributes({{"DevType", r.DevType},
                 {"DevTypeResult", results.DevTypeResult},
                 {"DevVer", r.DevVer},
                 {"DevVerResult", results.DevVerResult},
                 {"SerialNum", r.SerialNum},
                 {"SnResult", results.SnResult},
                 {"UsbResult", results.UsbResult},
                 {"DiskResult", results.DiskResult},
                 attr("AgingTime", results.AgingTime).asSigned(),
                 {"AgingTimeResult", results.AgingTimeResult},
                 {"AgingAvgTemp", results.AgingAvgTemp},
                 {"AgingAvgTempResult", results.AgingAvgTempResult},
                 attr("AgingAvgDuration", results.AgingAvgDuration).asSigned(),
                 {"AgingAvgDurationResult", results.AgingAvgDurationResult},
                 {"AlarmInputResult", results.AlarmInputResult},
                 {"AlarmOutputResult", results.AlarmOutputResult},
                 {"PanelUsbResult", results.PanelUsbResult},
                 {"EsataResult", results.EsataResult}});
}

void reportResult(BodyIo& io, NVR_PRODUCE_TEST_4006_PARAM& r) {
  BodyIo result = io.enter("SelfTestResult", "<SelfTestResult\n");
  selfTestResults(result, r);
  io.text(kUnendedLine);
}

constexpr Message kReportResult = {"NvrProduceTest_ReportResult_Message", nullptr,
                                   form<reportResult>("SelfTestResult")};

void systemTime(BodyIo& io, NVR_PRODUCE_TEST_4007_PARAM& r) {
  io.element("RtcTime", {{"seconds", r.seconds}}, kUnendedLine);
}

constexpr Message kGetNvrSystemTime =
    Message("NvrProduceTest_GetNvrSystemTime_Message", nullptr, form<systemTime>("RtcTime"))
        .reportsMissing("TestResult");

void testResult(BodyIo& io, NVR_PRODUCE_TEST_4008_PARAM& r) {
  NVR_PRODUCE_TEST_RESULTS& results = r.Results;
  BodyIo result = io.enter("TestResult", "<TestResult\n");
  result.attributes(
      {{"TesterName", r.TesterName}, {"RtcTime", r.RtcTime}, attr("RtcTimeResult", results.RtcTimeResult).writeOnly()});
  selfTestResults(result, r);
  result.attributes({{"VGAResult", results.VGAResult},
                     {"HDMIResult", results.HDMIResult},
                     {"VideoDecodeResult", results.VideoDecodeResult},
                     {"AudioDecodeResult", results.AudioDecodeResult},
                     {"PilotLampResult", results.PilotLampResult},
                     {"DevCurrent", results.DevCurrent},
                     {"DevCurrentResult", results.DevCurrentResult},
                     {"DevStartUpResult", results.DevStartUpResult},
                     {"EthPortResult", results.EthPortResult},
                     {"RS232Result", results.RS232Result},
                     {"RS485Result", results.RS485Result},
                     {"FanResult", results.FanResult},
                     {"CheckTotalResult", results.CheckTotalResult}});
  io.text(kUnendedLine);
}

constexpr Message kSendTestResult = {"NvrProduceTest_SendTestReuslt_Message", form<testResult>("TestResult"), nullptr};

void testAbality(BodyIo& io, NVR_PRODUCE_TEST_4010_PARAM& r) {
  io.element("ProductAbility",
             {{"DevType", r.DevType},
              {"DevTypeTest", r.DevTypeTest},
              {"DevVerTest", r.DevVerTest},
              {"SnTest", r.SnTest},
              {"RtcTimeTest", r.RtcTimeTest},
              {"USBTest", r.USBTest},
              {"DiskTest", r.DiskTest},
              {"AgingTest", r.AgingTest},
              {"VGATest", r.VGATest},
              {"HDMITest", r.HDMITest},
              {"VideoDecodeTest", r.VideoDecodeTest},
              {"AudioDecodeTest", r.AudioDecodeTest},
              {"PilotLampTest", r.PilotLampTest},
              {"PilotLampNum", r.PilotLampNum},
              {"PilotLampList", r.PilotLampList},
              {"DevCurrentTest", r.DevCurrentTest},
              {"DevStartUpTest", r.DevStartUpTest},
              {"EthPortTest", r.EthPortTest},
              {"AlarmInputTest", r.AlarmInputTest},
              {"AlarmOutputTest", r.AlarmOutputTest},
              {"RS232Test", r.RS232Test},
              {"RS485Test", r.RS485Test},
              {"IPConflictEnable", r.IPConflictEnable},
              {"PanelUsbTest", r.PanelUsbTest},
              {"FanTest", r.FanTest},
              {"EsataTest", r.EsataTest}},
             kUnendedLine);
}

constexpr Message kGetNvrTestAbality = {"NvrProduceTest_GetNvrTestAbality_Message", nullptr,
                                        form<testAbality>("ProductAbility")};

void otherParam(BodyIo& io, NVR_PRODUCE_TEST_4011_PARAM& r) {
  io.element("MiscInfo", {{"SerialNumber", r.SerialNumber}}, kUnendedLine);
}

constexpr Message kGetOtherParam =
    Message("NvrProduceTest_GetOtherParam_Message", nullptr, form<otherParam>("MiscInfo"))
        .reportsMissing("ProductAbility");

constexpr CodeRow kCodes[] = {
    {4002, &kLedControl},        {4003, &kAudioTest},        {4004, &kVgaHdmiTest},    {4005, &kVgaHdmiTest},
    {4006, &kReportResult},      {4007, &kGetNvrSystemTime}, {4008, &kSendTestResult}, {4009, nullptr},
    {4010, &kGetNvrTestAbality}, {4011, &kGetOtherParam},
};

void logUnknown(const char*, int code) {
  KovProtocolLogError("NVR_PRODUCE_TEST_MESSAGE deal a unknow msg_code:%d\n", code);
}

constexpr CodeTable kTable("NVR_PRODUCE_TEST_MESSAGE", kCodes, logUnknown);

// This family has a code of its own for the missing element.
int missingIsOwnCode(int analysed) { return analysed == KOV_ERROR_NO_ELEMENT ? KOV_ERROR_NO_TEST_ELEMENT : analysed; }

int analyse(const AnalysisCall& call) {
  return missingIsOwnCode(kTable.analyse(call.document, call.msgCode, call.result));
}

}  // namespace

constexpr Family kNvrProduceTest = {&kTable, nullptr, analyse};

}  // namespace kov

int NVR_PRODUCE_TEST_4002_PARAM_init(NVR_PRODUCE_TEST_4002_PARAM* record) { return kov::fillDefaults(record); }
int NVR_PRODUCE_TEST_4003_PARAM_init(NVR_PRODUCE_TEST_4003_PARAM* record) { return kov::fillDefaults(record); }
int NVR_PRODUCE_TEST_4004_PARAM_init(NVR_PRODUCE_TEST_4004_PARAM* record) { return kov::fillDefaults(record); }
int NVR_PRODUCE_TEST_4005_PARAM_init(NVR_PRODUCE_TEST_4004_PARAM* record) {
  return NVR_PRODUCE_TEST_4004_PARAM_init(record);
}
int NVR_PRODUCE_TEST_4006_PARAM_init(NVR_PRODUCE_TEST_4006_PARAM* record) { return kov::fillDefaults(record); }
int NVR_PRODUCE_TEST_4007_PARAM_init(NVR_PRODUCE_TEST_4007_PARAM* record) { return kov::fillDefaults(record); }
int NVR_PRODUCE_TEST_4008_PARAM_init(NVR_PRODUCE_TEST_4008_PARAM* record) { return kov::fillDefaults(record); }
int NVR_PRODUCE_TEST_4010_PARAM_init(NVR_PRODUCE_TEST_4010_PARAM* record) { return kov::fillDefaults(record); }
int NVR_PRODUCE_TEST_4011_PARAM_init(NVR_PRODUCE_TEST_4011_PARAM* record) { return kov::fillDefaults(record); }

int NvrProduceTestMessageCompose(const void* param, int direction, const char* msgCode, char* body, int bodySize) {
  return kov::kTable.compose(param, direction, msgCode, body, bodySize);
}
int NvrProduceTestMessageAnalysis(const char* xml, const char* msgCode, void** result) {
  if (xml == nullptr || msgCode == nullptr || result == nullptr) {
    KovProtocolLogError("NvrProduceTestMessageAnalysis put a empty Param\n");
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  return kov::missingIsOwnCode(kov::kTable.analyse(xml, msgCode, result));
}
int NvrProduceTest_LedControl_MessageAnalysis(const char* xml, void** result) {
  return kov::missingIsOwnCode(kov::kLedControl.analyse(xml, result));
}
int NvrProduceTest_AudioTest_MessageAnalysis(const char* xml, void** result) {
  return kov::missingIsOwnCode(kov::kAudioTest.analyse(xml, result));
}
int NvrProduceTest_VGA_HMDI_Test_MessageAnalysis(const char* xml, void** result) {
  return kov::missingIsOwnCode(kov::kVgaHdmiTest.analyse(xml, result));
}
int NvrProduceTest_ReportResult_MessageAnalysis(const char* xml, void** result) {
  return kov::missingIsOwnCode(kov::kReportResult.analyse(xml, result));
}
int NvrProduceTest_GetNvrSystemTime_MessageAnalysis(const char* xml, void** result) {
  return kov::missingIsOwnCode(kov::kGetNvrSystemTime.analyse(xml, result));
}
int NvrProduceTest_SendTestReuslt_MessageAnalysis(const char* xml, void** result) {
  return kov::missingIsOwnCode(kov::kSendTestResult.analyse(xml, result));
}
int NvrProduceTest_GetNvrTestAbality_MessageAnalysis(const char* xml, void** result) {
  return kov::missingIsOwnCode(kov::kGetNvrTestAbality.analyse(xml, result));
}
int NvrProduceTest_GetOtherParam_MessageAnalysis(const char* xml, void** result) {
  return kov::missingIsOwnCode(kov::kGetOtherParam.analyse(xml, result));
}
