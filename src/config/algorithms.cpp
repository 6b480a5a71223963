// Licence plates, and the algorithms installed on a camera: one of them recognises plates with the same settings.
#include "config/analytics.h"
#include "config/detection_rule.h"
#include "config/list_text.h"
#include "kov_protocol/system_config_analytics.h"

namespace kov {
namespace {

void plateAttributes(BodyIo& io, SYSTEM_CONFIG_GET_1404_PARAM& r, Exchange exchange) {
  ruleAttributes(io, r.rule, exchange);
  io.attributes({{"VirtualLoopEnable", r.VirtualLoopEnable},
                 deviceDefault(exchange, {"DefVirtualLoopEnable", r.DefVirtualLoopEnable}),
                 {"AnalysisPeriodNum", r.AnalysisPeriodNum}});
  periodList(io, "AnalysisPeriod", r.AnalysisPeriod, r.AnalysisPeriodNum);
  io.attributes({{"StrongLightSupprSens", r.StrongLightSupprSens},
                 deviceDefault(exchange, {"DefStrongLightSupprSens", r.DefStrongLightSupprSens}),
                 {"strongLightDebug", r.strongLightDebug}});
}

template <Exchange kExchange>
void licensePlateEvent(BodyIo& io, SYSTEM_CONFIG_GET_1404_PARAM& r) {
  BodyIo analysis = openAttributes(io, "VehicleAnalysis");
  plateAttributes(analysis, r, kExchange);
  closeAttributes(analysis);
}

constexpr Message kGetLicensePlateEvent = {"SystemConfig_getLicensePlateEvent_Message", nullptr,
                                           form<licensePlateEvent<Exchange::Get>>("VehicleAnalysis")};
constexpr Message kSetLicensePlateEvent = {"SystemConfig_setLicensePlateEvent_Message",
                                           form<licensePlateEvent<Exchange::Set>>("VehicleAnalysis"), nullptr};

void licensePlateImage(BodyIo& io, SYSTEM_CONFIG_SET_1406_PARAM& r) {
  io.element(
      "LicensePlatePicture",
      {{"MaxBytesPerPacket", r.MaxBytesPerPacket}, {"Timestamp", r.Timestamp}, {"LicensePlate", r.LicensePlate}});
}

constexpr Message kGetLicensePlateImage = {"SystemConfig_getLicensePlateImage_Message", nullptr,
                                           form<licensePlateImage>("LicensePlatePicture")};

void algorithm(BodyIo& io, SYSTEM_CONFIG_ALGORITHM& r) {
  io.element("Algorithms", {{"algorithmId", r.algorithmId},
                            {"install", r.install},
                            {"useStatus", r.useStatus},
                            {"version", r.version},
                            {"isBuildIn", r.isBuildIn}});
}

void algorithmicList(BodyIo& io, SYSTEM_CONFIG_GET_1428_PARAM& r) {
  io.element("RESPONSE_PARAM",
             {{"DevSn", r.DevSn}, {"FirmwareVersion", r.FirmwareVersion}, {"AvailableSize", r.AvailableSize}});
  io.list<algorithm>("Algorithms", r.Algorithms, r.AlgorithmsCount);
}

constexpr Message kGetAlgorithmicList = {"SystemConfig_getAlgorithmicList_Message", nullptr, response<algorithmicList>};

void parabolicElement(BodyIo& io, SYSTEM_CONFIG_GET_1429_PARAM& r, Exchange exchange) {
  BodyIo parabolic = openAttributes(io, "highAltitudeParabolic");
  ruleAttributes(parabolic, r.highAltitudeParabolic, exchange);
  parabolic.attributes({{"ShowTrackLine", r.ShowTrackLine}});
  closeAttributes(parabolic);
}

void recognitionElement(BodyIo& io, SYSTEM_CONFIG_GET_1429_PARAM& r, Exchange exchange) {
  BodyIo recognition = openAttributes(io, "licensePlateRecognition");
  plateAttributes(recognition, r.licensePlateRecognition, exchange);
  recognition.attributes({{"StrongLightSupprSensRange", r.StrongLightSupprSensRange}});
  closeAttributes(recognition);
}

// The element that is there says which settings they are: the identifiers are the devices' own.
std::int32_t settingsOf(const ElementReader& config) {
  if (config.child("highAltitudeParabolic")) return SYSTEM_CONFIG_HIGH_ALTITUDE_PARABOLIC;
  return config.child("licensePlateRecognition") ? SYSTEM_CONFIG_LICENSE_PLATE_RECOGNITION : -1;
}

template <Exchange kExchange>
void algorithmicConfig(BodyIo& io, SYSTEM_CONFIG_GET_1429_PARAM& r) {
  BodyIo config = openAttributes(io, "config");
  config.attributes({{"algorithmId", r.algorithmId}});
  config.text(">\n");
  if (config.reading()) r.settings = settingsOf(config.reader());
  if (r.settings == SYSTEM_CONFIG_HIGH_ALTITUDE_PARABOLIC) parabolicElement(config, r, kExchange);
  if (r.settings == SYSTEM_CONFIG_LICENSE_PLATE_RECOGNITION) recognitionElement(config, r, kExchange);
  config.text("</config>\n");
}

void algorithmicConfigQuery(BodyIo& io, SYSTEM_CONFIG_GET_1429_PARAM& r) {
  io.element("REQUEST_PARAM", {{"algorithmId", r.algorithmId}});
}

constexpr Message kGetAlgorithmicConfig = {"SystemConfig_getAlgorithmicConfig_Message", request<algorithmicConfigQuery>,
                                           form<algorithmicConfig<Exchange::Get>>("config")};
constexpr Message kSetAlgorithmicConfig = {"SystemConfig_setAlgorithmicConfig_Message",
                                           form<algorithmicConfig<Exchange::Set>>("config"), nullptr};

constexpr CodeRow kRows[] = {
    {1404, &kGetLicensePlateEvent}, {1405, &kSetLicensePlateEvent}, {1406, &kGetLicensePlateImage},
    {1428, &kGetAlgorithmicList},   {1429, &kGetAlgorithmicConfig}, {1430, &kSetAlgorithmicConfig},
};

}  // namespace

constexpr CodeGroup kAlgorithmCodes = kRows;

}  // namespace kov

int SYSTEM_CONFIG_GET_1404_PARAM_init(SYSTEM_CONFIG_GET_1404_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_1405_PARAM_init(SYSTEM_CONFIG_GET_1404_PARAM* record) {
  return SYSTEM_CONFIG_GET_1404_PARAM_init(record);
}
int SYSTEM_CONFIG_SET_1406_PARAM_init(SYSTEM_CONFIG_SET_1406_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_1428_PARAM_init(SYSTEM_CONFIG_GET_1428_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_1429_PARAM_init(SYSTEM_CONFIG_GET_1429_PARAM* record) { return kov::fillDefaults(record); }

int SystemConfig_getLicensePlateEvent_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetLicensePlateEvent.analyse(xml, result);
}
int SystemConfig_setLicensePlateEvent_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetLicensePlateEvent.analyse(xml, result);
}
int SystemConfig_getLicensePlateImage_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetLicensePlateImage.analyse(xml, result);
}
int SystemConfig_getAlgorithmicList_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetAlgorithmicList.analyse(xml, result);
}
int SystemConfig_getAlgorithmicConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetAlgorithmicConfig.analyse(xml, result);
}
int SystemConfig_setAlgorithmicConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetAlgorithmicConfig.analyse(xml, result);
}
