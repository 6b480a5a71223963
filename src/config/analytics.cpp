// Detection rules of people, vehicles and animals: SmartConfig with rule elements, some with push times behind them.
#include "config/analytics.h"

#include "config/detection_rule.h"
#include "kov_protocol/system_config_analytics.h"

namespace kov {
namespace {

void pushTime(BodyIo& io, const char* name, SYSTEM_CONFIG_PUSH_TIME& r) {
  io.element(name, {{"OfflinePush", r.OfflinePush},
                    {"ScheduleMode", r.ScheduleMode},
                    {"AlarmStartTime", r.AlarmStartTime},
                    {"AlarmEndTime", r.AlarmEndTime}});
}

constexpr char kSmartConfigEnd[] = "</SmartConfig>\n";

template <Exchange kExchange>
void intelligentEvent(BodyIo& io, SYSTEM_CONFIG_GET_1402_PARAM& r) {
  BodyIo config = io.enter("SmartConfig");
  ruleElement(config, "RegionDetection", r.RegionDetection, kExchange);
  ruleElement(config, "CrossBoundaryDetection", r.CrossBoundaryDetection, kExchange);
  config.text(kSmartConfigEnd);
}

constexpr Message kGetIntelligentEvent = {"SystemConfig_getIntelligentEvent_Message", nullptr,
                                          form<intelligentEvent<Exchange::Get>>("SmartConfig")};
constexpr Message kSetIntelligentEvent = {"SystemConfig_setIntelligentEvent_Message",
                                          form<intelligentEvent<Exchange::Set>>("SmartConfig"), nullptr};

template <Exchange kExchange>
void vehicleForm(BodyIo& io, SYSTEM_CONFIG_GET_1412_PARAM& r) {
  BodyIo config = io.enter("SmartConfig");
  ruleElement(config, "VehicleRegion", r.VehicleRegion, kExchange);
  ruleElement(config, "VehicleCrossBoundary", r.VehicleCrossBoundary, kExchange);
  pushTime(config, "VehicleShapeAlarmPushTime", r.VehicleShapeAlarmPushTime);
  config.text(kSmartConfigEnd);
}

constexpr Message kGetVehicleForm = {"SystemConfig_getVehicleFormIntelligent_Message", nullptr,
                                     form<vehicleForm<Exchange::Get>>("SmartConfig")};
constexpr Message kSetVehicleForm = {"SystemConfig_setVehicleFormIntelligent_Message",
                                     form<vehicleForm<Exchange::Set>>("SmartConfig"), nullptr};

template <Exchange kExchange>
void vehicleDetection(BodyIo& io, SYSTEM_CONFIG_SET_1414_PARAM& r) {
  BodyIo config = io.enter("SmartConfig");
  ruleElement(config, "VehicleDetection", r.VehicleDetection, kExchange);
  pushTime(config, "VehicleShapeAlarmPushTime", r.VehicleShapeAlarmPushTime);
  config.text(kSmartConfigEnd);
}

constexpr Message kGetVehicleDetection = {"SystemConfig_getVehicleDetection_Message", nullptr,
                                          form<vehicleDetection<Exchange::Get>>("SmartConfig")};
constexpr Message kSetVehicleDetection = {"SystemConfig_setVehicleDetection_Message",
                                          form<vehicleDetection<Exchange::Set>>("SmartConfig"), nullptr};

template <Exchange kExchange>
void humanDetection(BodyIo& io, SYSTEM_CONFIG_SET_1416_PARAM& r) {
  BodyIo config = io.enter("SmartConfig");
  ruleElement(config, "HumanFormDetection", r.HumanFormDetection, kExchange);
  pushTime(config, "HumanDetectAlarmPushTime", r.HumanDetectAlarmPushTime);
  config.text(kSmartConfigEnd);
}

constexpr Message kGetHumanDetection = {"SystemConfig_getHumanDetection_Message", nullptr,
                                        form<humanDetection<Exchange::Get>>("SmartConfig")};
constexpr Message kSetHumanDetection = {"SystemConfig_setHumanDetection_Message",
                                        form<humanDetection<Exchange::Set>>("SmartConfig"), nullptr};

template <Exchange kExchange>
void animalDetection(BodyIo& io, SYSTEM_CONFIG_GET_1426_PARAM& r) {
  BodyIo config = io.enter("SmartConfig");
  ruleElement(config, "AnimalRegion", r.AnimalRegion, kExchange);
  ruleElement(config, "AnimalCrossBoundary", r.AnimalCrossBoundary, kExchange);
  config.text(kSmartConfigEnd);
}

constexpr Message kGetAnimalDetection = {"SystemConfig_getAnimaldetecIntelligent_Message", nullptr,
                                         form<animalDetection<Exchange::Get>>("SmartConfig")};
constexpr Message kSetAnimalDetection = {"SystemConfig_setAnimaldetecIntelligent_Message",
                                         form<animalDetection<Exchange::Set>>("SmartConfig"), nullptr};

// In two pairs the answer has the higher code.
constexpr CodeRow kRows[] = {
    {1402, &kGetIntelligentEvent}, {1403, &kSetIntelligentEvent}, {1412, &kGetVehicleForm},
    {1413, &kSetVehicleForm},      {1415, &kGetVehicleDetection}, {1414, &kSetVehicleDetection},
    {1417, &kGetHumanDetection},   {1416, &kSetHumanDetection},   {1426, &kGetAnimalDetection},
    {1427, &kSetAnimalDetection},
};

}  // namespace

constexpr CodeGroup kRuleCodes = kRows;

}  // namespace kov

int SYSTEM_CONFIG_GET_1402_PARAM_init(SYSTEM_CONFIG_GET_1402_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_1403_PARAM_init(SYSTEM_CONFIG_GET_1402_PARAM* record) {
  return SYSTEM_CONFIG_GET_1402_PARAM_init(record);
}
int SYSTEM_CONFIG_GET_1412_PARAM_init(SYSTEM_CONFIG_GET_1412_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_1413_PARAM_init(SYSTEM_CONFIG_GET_1412_PARAM* record) {
  return SYSTEM_CONFIG_GET_1412_PARAM_init(record);
}
int SYSTEM_CONFIG_SET_1414_PARAM_init(SYSTEM_CONFIG_SET_1414_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_1415_PARAM_init(SYSTEM_CONFIG_SET_1414_PARAM* record) {
  return SYSTEM_CONFIG_SET_1414_PARAM_init(record);
}
int SYSTEM_CONFIG_SET_1416_PARAM_init(SYSTEM_CONFIG_SET_1416_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_1417_PARAM_init(SYSTEM_CONFIG_SET_1416_PARAM* record) {
  return SYSTEM_CONFIG_SET_1416_PARAM_init(record);
}
int SYSTEM_CONFIG_GET_1426_PARAM_init(SYSTEM_CONFIG_GET_1426_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_1427_PARAM_init(SYSTEM_CONFIG_GET_1426_PARAM* record) {
  return SYSTEM_CONFIG_GET_1426_PARAM_init(record);
}

int SystemConfig_getIntelligentEvent_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetIntelligentEvent.analyse(xml, result);
}
int SystemConfig_setIntelligentEvent_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetIntelligentEvent.analyse(xml, result);
}
int SystemConfig_getVehicleFormIntelligent_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetVehicleForm.analyse(xml, result);
}
int SystemConfig_setVehicleFormIntelligent_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetVehicleForm.analyse(xml, result);
}
int SystemConfig_getVehicleDetection_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetVehicleDetection.analyse(xml, result);
}
int SystemConfig_setVehicleDetection_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetVehicleDetection.analyse(xml, result);
}
int SystemConfig_getHumanDetection_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetHumanDetection.analyse(xml, result);
}
int SystemConfig_setHumanDetection_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetHumanDetection.analyse(xml, result);
}
int SystemConfig_getAnimaldetecIntelligent_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetAnimalDetection.analyse(xml, result);
}
int SystemConfig_setAnimaldetecIntelligent_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetAnimalDetection.analyse(xml, result);
}
