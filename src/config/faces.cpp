// Recognition of faces: its rule, its thresholds, the databases of faces and what is imported into them.
#include "config/analytics.h"
#include "config/detection_rule.h"
#include "config/list_text.h"
#include "kov_protocol/system_config_analytics.h"

namespace kov {
namespace {

// The element that 1407 and 1408 consist of, and that 1418 and 1419 hold. `count` is its attribute AnalysisPeriodNum.
void faceRecognition(BodyIo& io, SYSTEM_CONFIG_GET_1407_PARAM& r, Exchange exchange, const Attribute& count) {
  BodyIo face = openAttributes(io, "HumanFaceRecognition");
  ruleAttributes(face, r.rule, exchange);
  face.attributes({{"ShowFaceBox", r.ShowFaceBox}, count});
  periodList(face, "AnalysisPeriod", r.AnalysisPeriod, r.AnalysisPeriodNum);
  closeAttributes(face);
}

void humanFaceAnswer(BodyIo& io, SYSTEM_CONFIG_GET_1407_PARAM& r) {
  faceRecognition(io, r, Exchange::Get, attr("AnalysisPeriodNum", r.AnalysisPeriodNum));
}

// The request is read under another name of the count than it is written.
void humanFaceRequest(BodyIo& io, SYSTEM_CONFIG_GET_1407_PARAM& r) {
  std::int32_t& count = r.AnalysisPeriodNum;
  faceRecognition(io, r, Exchange::Set,
                  io.writing() ? attr("AnalysisPeriodNum", count) : attr("AnalysisriodNum", count));
}

constexpr Message kGetHumanFaceEvent = {"SystemConfig_getHumanFaceEvent_Message", nullptr,
                                        form<humanFaceAnswer>("HumanFaceRecognition")};
constexpr Message kSetHumanFaceEvent = {"SystemConfig_setHumanFaceEvent_Message",
                                        form<humanFaceRequest>("HumanFaceRecognition"), nullptr};

void humanFaceImage(BodyIo& io, SYSTEM_CONFIG_SET_1409_PARAM& r) {
  io.element("HumanFacePicture", {{"MaxBytesPerPacket", r.MaxBytesPerPacket},
                                  {"Timestamp", r.Timestamp},
                                  {"SerialNum", r.SerialNum},
                                  {"HumanFace", r.HumanFace}});
}

constexpr Message kGetHumanFaceImage = {"SystemConfig_getHumanFaceImage_Message", nullptr,
                                        form<humanFaceImage>("HumanFacePicture")};

void humanFaceAdvanced(BodyIo& io, SYSTEM_CONFIG_GET_1410_PARAM& r) {
  io.element("HumanFaceAdvancedSet", {{"SimilarityThreshold", r.SimilarityThreshold},
                                      {"DefaultThreshold", r.DefaultThreshold},
                                      {"SimilarityRange", r.SimilarityRange}});
}

constexpr auto kAdvancedForm = form<humanFaceAdvanced>("HumanFaceAdvancedSet");
constexpr Message kGetHumanFaceAdvanced = {"SystemConfig_getHumanFaceAdvanced_Message", nullptr, kAdvancedForm};
constexpr Message kSetHumanFaceAdvanced = {"SystemConfig_setHumanFaceAdvanced_Message", kAdvancedForm, nullptr};

void sceneTag(BodyIo& io, SYSTEM_CONFIG_SCENE_TAG& r) {
  io.element("SceneAlarmTag",
             {{"SceneIndex", r.SceneIndex}, {"SceneEnable", r.SceneEnable}, {"SceneAlias", r.SceneAlias}});
}

template <Exchange kExchange>
void humanFaceV2(BodyIo& io, SYSTEM_CONFIG_GET_1418_PARAM& r) {
  SYSTEM_CONFIG_GET_1407_PARAM& face = r.HumanFaceRecognition;
  BodyIo param = io.enter("HumanFaceParam");
  faceRecognition(param, face, kExchange, attr("AnalysisPeriodNum", face.AnalysisPeriodNum));
  param.list<sceneTag>("SceneAlarmTag", r.SceneAlarmTag, r.SceneAlarmTagCount);
  param.text("</HumanFaceParam>\n");
}

constexpr Message kGetHumanFaceV2 = {"SystemConfig_getHumanFaceV2_Message", nullptr,
                                     form<humanFaceV2<Exchange::Get>>("HumanFaceParam")};
constexpr Message kSetHumanFaceV2 = {"SystemConfig_setHumanFaceV2_Message",
                                     form<humanFaceV2<Exchange::Set>>("HumanFaceParam"), nullptr};

void faceDatabase(BodyIo& io, SYSTEM_CONFIG_FACE_DATABASE& r) {
  io.element("faceDatabase",
             {{"ListType", r.ListType}, {"Amount", r.Amount}, {"Capacity", r.Capacity}, {"addAllow", r.addAllow}});
}

void humanFaceCapacity(BodyIo& io, SYSTEM_CONFIG_GET_1424_PARAM& r) {
  io.list<faceDatabase>("faceDatabase", r.faceDatabase, r.faceDatabaseCount);
}

constexpr Message kGetHumanFaceCapacity = {"SystemConfig_getHumanFaceCapacity_Message", nullptr,
                                           form<humanFaceCapacity>("faceDatabase")};

void featureResult(BodyIo& io, SYSTEM_CONFIG_GET_1425_PARAM& r) {
  io.element("FACE_FEATURE_RESULT", {{"uniqueIndex", r.uniqueIndex},
                                     {"absTime", r.absTime},
                                     {"Age", r.Age},
                                     {"Gender", r.Gender},
                                     {"IsMask", r.IsMask},
                                     {"IsGlasses", r.IsGlasses},
                                     {"IsHat", r.IsHat},
                                     {"DataLen", r.DataLen},
                                     {"AlgVer", r.AlgVer},
                                     {"faceQualityScore", r.faceQualityScore},
                                     {"HsvAreaScore", r.HsvAreaScore},
                                     {"BlurSMD", r.BlurSMD},
                                     {"ErrorCode", r.ErrorCode},
                                     {"ErrorMsg", r.ErrorMsg}});
}

void faceYuvImportResult(BodyIo& io, SYSTEM_CONFIG_GET_1425_PARAM& r) {
  featureResult(io, r);
  io.element(
      "LOAD_FACE_YUV_PARAM",
      {{"Alias", r.Alias}, {"BatchChanel", r.BatchChanel}, {"ListType", r.ListType}, {"SerialNum", r.SerialNum}});
  io.element("TRANSPARENT_HEADER", {{"Trans_Type", r.Trans_Type},
                                    {"Channel_ID", r.Channel_ID},
                                    {"Source_Type", r.Source_Type},
                                    {"Session_ID", r.Session_ID},
                                    {"Trans_Result", r.Trans_Result}});
}

constexpr Message kFaceYuvImportResult = {"SystemConfig_FaceYuvImportResult_Message", nullptr,
                                          form<faceYuvImportResult>("FACE_FEATURE_RESULT")};

constexpr CodeRow kRows[] = {
    {1407, &kGetHumanFaceEvent},    {1408, &kSetHumanFaceEvent},    {1409, &kGetHumanFaceImage},
    {1410, &kGetHumanFaceAdvanced}, {1411, &kSetHumanFaceAdvanced}, {1418, &kGetHumanFaceV2},
    {1419, &kSetHumanFaceV2},       {1424, &kGetHumanFaceCapacity}, {1425, &kFaceYuvImportResult},
};

}  // namespace

constexpr CodeGroup kFaceCodes = kRows;

}  // namespace kov

int SYSTEM_CONFIG_GET_1407_PARAM_init(SYSTEM_CONFIG_GET_1407_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_1408_PARAM_init(SYSTEM_CONFIG_GET_1407_PARAM* record) {
  return SYSTEM_CONFIG_GET_1407_PARAM_init(record);
}
int SYSTEM_CONFIG_SET_1409_PARAM_init(SYSTEM_CONFIG_SET_1409_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_1410_PARAM_init(SYSTEM_CONFIG_GET_1410_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_1411_PARAM_init(SYSTEM_CONFIG_GET_1410_PARAM* record) {
  return SYSTEM_CONFIG_GET_1410_PARAM_init(record);
}
int SYSTEM_CONFIG_GET_1418_PARAM_init(SYSTEM_CONFIG_GET_1418_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_1419_PARAM_init(SYSTEM_CONFIG_GET_1418_PARAM* record) {
  return SYSTEM_CONFIG_GET_1418_PARAM_init(record);
}
int SYSTEM_CONFIG_GET_1424_PARAM_init(SYSTEM_CONFIG_GET_1424_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_1425_PARAM_init(SYSTEM_CONFIG_GET_1425_PARAM* record) { return kov::fillDefaults(record); }

int SystemConfig_getHumanFaceEvent_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetHumanFaceEvent.analyse(xml, result);
}
int SystemConfig_setHumanFaceEvent_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetHumanFaceEvent.analyse(xml, result);
}
int SystemConfig_getHumanFaceImage_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetHumanFaceImage.analyse(xml, result);
}
int SystemConfig_getHumanFaceAdvanced_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetHumanFaceAdvanced.analyse(xml, result);
}
int SystemConfig_setHumanFaceAdvanced_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetHumanFaceAdvanced.analyse(xml, result);
}
int SystemConfig_getHumanFaceV2_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetHumanFaceV2.analyse(xml, result);
}
int SystemConfig_setHumanFaceV2_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetHumanFaceV2.analyse(xml, result);
}
int SystemConfig_getHumanFaceCapacity_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetHumanFaceCapacity.analyse(xml, result);
}
int SystemConfig_FaceYuvImportResult_MessageAnalysis(const char* xml, void** result) {
  return kov::kFaceYuvImportResult.analyse(xml, result);
}
