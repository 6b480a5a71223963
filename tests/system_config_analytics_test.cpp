#include "kov_protocol/system_config_analytics.h"

#include <algorithm>
#include <climits>

#include "config/analytics.h"
#include "system_config_wire.h"

namespace kov::test {
namespace {

class SystemConfigAnalyticsTest : public WireTest {};

using Rule = SYSTEM_CONFIG_DETECTION_RULE;

// A rule of which every kind of attribute is set.
Rule rule() {
  Rule r;
  r.Enable = 1;
  r.DefEnable = 0;
  r.DefDetectionSensRange[0] = 1;
  r.DefDetectionSensRange[1] = 100;
  r.drawing.VideoResolution[0] = 704;
  r.drawing.VideoResolution[1] = 576;
  r.drawing.LineCoordinatesNum = 2;
  r.drawing.LineCoordinates[0] = {1, 2};
  r.drawing.LineCoordinates[1] = {3, 4};
  r.LightAlarmPeriodNum = 1;
  r.LightAlarmPeriod[0] = {{1, 0, 0}, {2, 0, 0}};
  r.EmailAlarmPeriodNum = 2;
  r.EmailAlarmPeriod[0] = {{3, 0, 0}, {4, 0, 0}};
  r.EmailAlarmPeriod[1] = {{5, 0, 0}, {6, 0, 0}};
  r.AudioAlarmPeriodNum = 0;
  r.LightAudioAlarmStartTime = {7, 8, 9};
  r.LightAudioAlarmEndTime = {17, 18, 19};
  r.TrackEnable = 1;
  r.DefTrackEnable = 2;
  r.CrowdFlowStatEnable = 1;
  r.DefCrowdFlowStatEnable = 0;
  return r;
}

// Its attributes as an answer tells them, and as a request does.
const std::string kTold =
    "Enable=\"1\"\nDefEnable=\"0\"\nDetectionAttr=\"-1\"\nDetectionSens=\"-1\"\nDefDetectionSens=\"-1\"\n"
    "DefDetectionSensRange=\"1,100\"\nShowAlarmCount=\"-1\"\nShowAlarmLine=\"-1\"\nVideoResolution=\"704*576\"\n"
    "MaxCoordinateCapability=\"-1\"\nLineCoordinatesNum=\"2\"\nLineCoordinates=\"[1,2],[3,4],\"\n"
    "LightAlarmEnable=\"-1\"\nDefLightAlarmEnable=\"-1\"\nLightduration=\"-1\"\nDefLightduration=\"-1\"\n"
    "DefLightdurationRange=\"-1,-1\"\nLightScheduleMode=\"-1\"\nDefLightScheduleMode=\"-1\"\n"
    "LightAlarmPeriodNum=\"1\"\nEmailAlarmEnable=\"-1\"\nEmailduration=\"-1\"\nDefEmaildurationRange=\"-1,-1\"\n"
    "EmailScheduleMode=\"-1\"\nEmailAlarmPeriodNum=\"2\"\nAudioAlarmEnable=\"-1\"\nDefAudioAlarmEnable=\"-1\"\n"
    "AudioAlarmTimes=\"-1\"\nDefAudioAlarmTimes=\"-1\"\nDefAudioAlarmTimesRange=\"-1,-1\"\nAudioScheduleMode=\"-1\"\n"
    "DefAudioScheduleMode=\"-1\"\nAudioAlarmPeriodNum=\"0\"\nLightAudioAlarmStartTime=\"07:08:09\"\n"
    "LightAudioAlarmEndTime=\"17:18:19\"\nAlarmTime=\"-1\"\nTrackEnable=\"1\"\nDefTrackEnable=\"2\"\n"
    "CrowdFlowStatEnable=\"1\"\nDefCrowdFlowStatEnable=\"0\"\nLightAlarmPeriod=\"[01:00:00-02:00:00],\"\n"
    "AudioAlarmPeriod=\"\"\nEmailAlarmPeriod=\"[03:00:00-04:00:00],[05:00:00-06:00:00],\"\n";

// Drops the lines that begin with Def.
std::string withoutDefaults(const std::string& text) {
  std::string kept;
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t to = text.find('\n', from) + 1;
    if (text.compare(from, 3, "Def") != 0) kept += text.substr(from, to - from);
    from = to;
  }
  return kept;
}
const std::string kRequested = withoutDefaults(kTold);

std::string element(const std::string& name, const std::string& attributes) {
  return "<" + name + "\n" + attributes + "/>\n";
}

void expectRule(const Rule& read, bool told) {
  EXPECT_EQ(read.Enable, 1);
  EXPECT_EQ(read.drawing.VideoResolution[1], 576);
  EXPECT_EQ(read.drawing.LineCoordinates[1].x, 3);
  EXPECT_EQ(read.LightAlarmPeriod[0].start.hour, 1);
  EXPECT_EQ(read.EmailAlarmPeriod[1].end.hour, 6);
  EXPECT_EQ(read.AudioAlarmPeriod[0].start.hour, -1);
  EXPECT_EQ(read.LightAudioAlarmEndTime.minute, 18);
  EXPECT_EQ(read.CrowdFlowStatEnable, 1);
  EXPECT_EQ(read.DefEnable, told ? 0 : -1);
  EXPECT_EQ(read.DefDetectionSensRange[1], told ? 100 : -1);
  EXPECT_EQ(read.DefCrowdFlowStatEnable, told ? 0 : 255);
}

TEST_F(SystemConfigAnalyticsTest, EachMessageHasItsSide) {
  EXPECT_EQ(sidesOf(kRuleCodes),
            "1402:134 1403:02 1412:134 1413:02 1415:134 1414:02 1417:134 1416:02 1426:134 1427:02 ");
  EXPECT_EQ(sidesOf(kAlgorithmCodes), "1404:134 1405:02 1406:134 1428:134 1429:01234 1430:02 ");
  EXPECT_EQ(sidesOf(kFaceCodes), "1407:134 1408:02 1409:134 1410:134 1411:02 1418:134 1419:02 1424:134 1425:134 ");
  EXPECT_EQ(sidesOf(kSceneCodes), "1420:134 1421:02 1422:134 1423:02 ");
  EXPECT_EQ(missingOf(kAlgorithmCodes),
            "getLicensePlateEvent VehicleAnalysis; setLicensePlateEvent VehicleAnalysis; "
            "getLicensePlateImage LicensePlatePicture; getAlgorithmicList RESPONSE_PARAM; "
            "getAlgorithmicConfig config; setAlgorithmicConfig config; ");
}

TEST_F(SystemConfigAnalyticsTest, RequestsLeaveTheDevicesDefaultsOut) {
  SYSTEM_CONFIG_GET_1402_PARAM record;
  record.RegionDetection = rule();
  record.CrossBoundaryDetection = rule();
  const auto config = [](const std::string& attributes) {
    return "<SmartConfig>\n" + element("RegionDetection", attributes) + element("CrossBoundaryDetection", attributes) +
           "</SmartConfig>\n";
  };
  EXPECT_EQ(written("1402", kAnswer, record), config(kTold));
  EXPECT_EQ(written("1403", kAsk, record), config(kRequested));
  const auto answer = *readBody<SYSTEM_CONFIG_GET_1402_PARAM>("1402", config(kTold));
  expectRule(answer.RegionDetection, true);
  expectRule(answer.CrossBoundaryDetection, true);
  // A request is read without the defaults even where they are, but for one.
  const auto request = *readBody<SYSTEM_CONFIG_GET_1402_PARAM>("1403", config(kTold));
  expectRule(request.RegionDetection, false);
  EXPECT_EQ(request.RegionDetection.DefTrackEnable, 2);
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_1402_PARAM>("1402", "<SmartConfig/>")->RegionDetection.Enable, -1);
}

TEST_F(SystemConfigAnalyticsTest, CrowdFlowIsWrittenWhileItIsSet) {
  SYSTEM_CONFIG_GET_1402_PARAM record;
  EXPECT_EQ(written("1402", kAnswer, record).find("CrowdFlow"), std::string::npos);
  record.RegionDetection.DefCrowdFlowStatEnable = 1;
  EXPECT_EQ(written("1402", kAnswer, record).find("CrowdFlow"), std::string::npos);
  record.RegionDetection.CrowdFlowStatEnable = 0;
  EXPECT_NE(written("1402", kAnswer, record).find("\nCrowdFlowStatEnable=\"0\"\nDefCrowdFlowStatEnable=\"1\"\nLight"),
            std::string::npos);
  record.RegionDetection.DefCrowdFlowStatEnable = 255;
  EXPECT_NE(written("1402", kAnswer, record).find("\nCrowdFlowStatEnable=\"0\"\nLightAlarmPeriod=\"\"\n"),
            std::string::npos);
}

TEST_F(SystemConfigAnalyticsTest, PeriodListsOfARuleAreWholeWhateverTheirCount) {
  SYSTEM_CONFIG_SET_1414_PARAM record;
  Rule& r = record.VehicleDetection;
  r.LightAlarmPeriodNum = INT_MAX;
  r.AudioAlarmPeriodNum = INT_MIN;
  r.EmailAlarmPeriodNum = 1;
  for (SYSTEM_CONFIG_PERIOD& period : r.LightAlarmPeriod) period = {{100, 100, 100}, {100, 100, 100}};
  std::string list;
  for (int i = 0; i < SYSTEM_CONFIG_PERIODS; ++i) list += "[100:100:100-100:100:100],";
  ASSERT_GT(list.size(), 256U);
  const std::string body = written("1415", kAnswer, record);
  EXPECT_NE(body.find("\nLightAlarmPeriodNum=\"2147483647\"\n"), std::string::npos);
  EXPECT_NE(body.find("\nLightAlarmPeriod=\"" + list +
                      "\"\nAudioAlarmPeriod=\"\"\nEmailAlarmPeriod=\"[-1:-1:-1--1:-1:-1],\"\n/>"),
            std::string::npos);
  const auto read = *readBody<SYSTEM_CONFIG_SET_1414_PARAM>("1415", body);
  EXPECT_EQ(read.VehicleDetection.LightAlarmPeriod[11].end.second, 100);
  EXPECT_EQ(read.VehicleDetection.LightAlarmPeriodNum, INT_MAX);
}

TEST_F(SystemConfigAnalyticsTest, RulesStandInTheElementsOfTheirMessages) {
  const std::string push =
      "OfflinePush=\"1\"\nScheduleMode=\"2\"\nAlarmStartTime=\"08:00:00\"\nAlarmEndTime=\"20:30:00\"\n";
  const SYSTEM_CONFIG_PUSH_TIME pushTime = {1, 2, {8, 0, 0}, {20, 30, 0}};
  const auto expectBoth = [](const char* get, const char* set, const auto& record, const auto& bodyWith) {
    EXPECT_EQ(written(get, kAnswer, record), "<SmartConfig>\n" + bodyWith(kTold) + "</SmartConfig>\n");
    EXPECT_EQ(written(set, kAsk, record), "<SmartConfig>\n" + bodyWith(kRequested) + "</SmartConfig>\n");
  };
  SYSTEM_CONFIG_GET_1412_PARAM vehicles = {rule(), rule(), pushTime};
  expectBoth("1412", "1413", vehicles, [&](const std::string& attributes) {
    return element("VehicleRegion", attributes) + element("VehicleCrossBoundary", attributes) +
           element("VehicleShapeAlarmPushTime", push);
  });
  SYSTEM_CONFIG_SET_1414_PARAM vehicle = {rule(), pushTime};
  expectBoth("1415", "1414", vehicle, [&](const std::string& attributes) {
    return element("VehicleDetection", attributes) + element("VehicleShapeAlarmPushTime", push);
  });
  SYSTEM_CONFIG_SET_1416_PARAM human = {rule(), pushTime};
  expectBoth("1417", "1416", human, [&](const std::string& attributes) {
    return element("HumanFormDetection", attributes) + element("HumanDetectAlarmPushTime", push);
  });
  SYSTEM_CONFIG_GET_1426_PARAM animals = {rule(), rule()};
  expectBoth("1426", "1427", animals, [&](const std::string& attributes) {
    return element("AnimalRegion", attributes) + element("AnimalCrossBoundary", attributes);
  });
  const auto read = *readBody<SYSTEM_CONFIG_SET_1416_PARAM>("1416", written("1416", kAsk, human));
  expectRule(read.HumanFormDetection, false);
  EXPECT_EQ(read.HumanDetectAlarmPushTime.AlarmEndTime.minute, 30);
}

const std::string kPlateTold =
    "VirtualLoopEnable=\"1\"\nDefVirtualLoopEnable=\"0\"\nAnalysisPeriodNum=\"1\"\n"
    "AnalysisPeriod=\"[01:02:03-04:05:06],\"\nStrongLightSupprSens=\"5\"\nDefStrongLightSupprSens=\"6\"\n"
    "strongLightDebug=\"7\"\n";

SYSTEM_CONFIG_GET_1404_PARAM plates() {
  SYSTEM_CONFIG_GET_1404_PARAM record;
  record.rule = rule();
  record.VirtualLoopEnable = 1;
  record.DefVirtualLoopEnable = 0;
  record.AnalysisPeriodNum = 1;
  record.AnalysisPeriod[0] = {{1, 2, 3}, {4, 5, 6}};
  record.StrongLightSupprSens = 5;
  record.DefStrongLightSupprSens = 6;
  record.strongLightDebug = 7;
  return record;
}

TEST_F(SystemConfigAnalyticsTest, PlatesGoOnBehindTheRule) {
  const auto record = plates();
  const std::string answer = element("VehicleAnalysis", kTold + kPlateTold);
  EXPECT_EQ(written("1404", kAnswer, record), answer);
  EXPECT_EQ(written("1405", kAsk, record), element("VehicleAnalysis", kRequested + withoutDefaults(kPlateTold)));
  const auto request = *readBody<SYSTEM_CONFIG_GET_1404_PARAM>("1405", answer);
  expectRule(request.rule, false);
  EXPECT_EQ(request.AnalysisPeriod[0].end.second, 6);
  EXPECT_EQ(request.DefStrongLightSupprSens, -1);
  EXPECT_EQ(request.strongLightDebug, 7);
}

TEST_F(SystemConfigAnalyticsTest, AlgorithmSettingsAreThoseOfTheElementThatIsThere) {
  SYSTEM_CONFIG_GET_1429_PARAM record;
  set(record.algorithmId, "a1");
  record.highAltitudeParabolic = rule();
  record.ShowTrackLine = 3;
  record.licensePlateRecognition = plates();
  record.StrongLightSupprSensRange[0] = 1;
  record.StrongLightSupprSensRange[1] = 9;
  const std::string head = "<config\nalgorithmId=\"a1\"\n>\n";
  const std::string range = "StrongLightSupprSensRange=\"1,9\"\n";
  EXPECT_EQ(written("1429", kAsk, record), "<REQUEST_PARAM\nalgorithmId=\"a1\"\n/>\n");
  EXPECT_EQ(written("1429", kAnswer, record), head + "</config>\n");
  record.settings = SYSTEM_CONFIG_HIGH_ALTITUDE_PARABOLIC;
  const std::string parabolic =
      head + element("highAltitudeParabolic", kTold + "ShowTrackLine=\"3\"\n") + "</config>\n";
  EXPECT_EQ(written("1429", kAnswer, record), parabolic);
  record.settings = SYSTEM_CONFIG_LICENSE_PLATE_RECOGNITION;
  EXPECT_EQ(
      written("1430", kAsk, record),
      head + element("licensePlateRecognition", kRequested + withoutDefaults(kPlateTold) + range) + "</config>\n");

  const auto read = *readBody<SYSTEM_CONFIG_GET_1429_PARAM>("1429", parabolic);
  EXPECT_EQ(read.settings, SYSTEM_CONFIG_HIGH_ALTITUDE_PARABOLIC);
  expectRule(read.highAltitudeParabolic, true);
  EXPECT_EQ(read.ShowTrackLine, 3);
  const auto plate = *readBody<SYSTEM_CONFIG_GET_1429_PARAM>("1430", written("1430", kAsk, record));
  EXPECT_EQ(plate.settings, SYSTEM_CONFIG_LICENSE_PLATE_RECOGNITION);
  EXPECT_EQ(plate.StrongLightSupprSensRange[1], 9);
  EXPECT_EQ(plate.ShowTrackLine, -1);
  EXPECT_STREQ(readBody<SYSTEM_CONFIG_GET_1429_PARAM>("1429", "<REQUEST_PARAM algorithmId=\"q\"/>")->algorithmId, "q");
}

TEST_F(SystemConfigAnalyticsTest, FaceRequestReadsTheCountUnderAnotherName) {
  SYSTEM_CONFIG_GET_1418_PARAM record;
  SYSTEM_CONFIG_GET_1407_PARAM& face = record.HumanFaceRecognition;
  face.rule = rule();
  face.ShowFaceBox = 1;
  face.AnalysisPeriodNum = 1;
  face.AnalysisPeriod[0] = {{1, 2, 3}, {4, 5, 6}};
  record.SceneAlarmTagCount = 1;
  record.SceneAlarmTag[0].SceneIndex = 4;
  const std::string tail = "ShowFaceBox=\"1\"\nAnalysisPeriodNum=\"1\"\nAnalysisPeriod=\"[01:02:03-04:05:06],\"\n";
  const std::string answer = element("HumanFaceRecognition", kTold + tail);
  const std::string request = element("HumanFaceRecognition", kRequested + tail);
  const std::string tag = "<SceneAlarmTag\nSceneIndex=\"4\"\nSceneEnable=\"-1\"\nSceneAlias=\"\"\n/>\n";
  EXPECT_EQ(written("1407", kAnswer, face), answer);
  EXPECT_EQ(written("1408", kAsk, face), request);
  EXPECT_EQ(written("1418", kAnswer, record), "<HumanFaceParam>\n" + answer + tag + "</HumanFaceParam>\n");
  const std::string v2 = "<HumanFaceParam>\n" + request + tag + "</HumanFaceParam>\n";
  EXPECT_EQ(written("1419", kAsk, record), v2);

  using Face = SYSTEM_CONFIG_GET_1407_PARAM;
  EXPECT_EQ(readBody<Face>("1407", answer)->AnalysisPeriodNum, 1);
  const Face lost = *readBody<Face>("1408", request);
  EXPECT_EQ(lost.AnalysisPeriodNum, -1);
  EXPECT_EQ(lost.AnalysisPeriod[0].start.second, 3);
  EXPECT_EQ(readBody<Face>("1408", "<HumanFaceRecognition AnalysisriodNum=\"2\"/>")->AnalysisPeriodNum, 2);
  const auto read = *readBody<SYSTEM_CONFIG_GET_1418_PARAM>("1419", v2);
  EXPECT_EQ(read.HumanFaceRecognition.AnalysisPeriodNum, 1);
  EXPECT_EQ(read.SceneAlarmTagCount, 1);
  EXPECT_EQ(read.SceneAlarmTag[0].SceneIndex, 4);
}

TEST_F(SystemConfigAnalyticsTest, ImportedFaceBringsATransparentHeaderOfItsOwn) {
  SYSTEM_CONFIG_GET_1425_PARAM record;
  set(record.uniqueIndex, "u");
  record.absTime = 4000000000U;
  record.Age = 30;
  record.faceQualityScore = 0.5F;
  set(record.Alias, "n");
  set(record.Trans_Type, "x");
  const std::string body =
      "<FACE_FEATURE_RESULT\nuniqueIndex=\"u\"\nabsTime=\"4000000000\"\nAge=\"30\"\nGender=\"255\"\nIsMask=\"255\"\n"
      "IsGlasses=\"255\"\nIsHat=\"255\"\nDataLen=\"4294967295\"\nAlgVer=\"255\"\nfaceQualityScore=\"0.500000\"\n"
      "HsvAreaScore=\"-1.000000\"\nBlurSMD=\"-1.000000\"\nErrorCode=\"-1\"\nErrorMsg=\"\"\n/>\n"
      "<LOAD_FACE_YUV_PARAM\nAlias=\"n\"\nBatchChanel=\"-1\"\nListType=\"-1\"\nSerialNum=\"4294967295\"\n/>\n"
      "<TRANSPARENT_HEADER\nTrans_Type=\"x\"\nChannel_ID=\"\"\nSource_Type=\"\"\nSession_ID=\"\"\nTrans_Result=\"\"\n"
      "/>\n";
  EXPECT_EQ(written("1425", kAnswer, record), body);
  // Only a header outside the body makes a document transparent.
  const auto read = *readBody<SYSTEM_CONFIG_GET_1425_PARAM>("1425", body);
  EXPECT_EQ(read.absTime, 4000000000U);
  EXPECT_EQ(read.faceQualityScore, 0.5F);
  EXPECT_STREQ(read.Trans_Type, "x");
}

TEST_F(SystemConfigAnalyticsTest, SmallMessagesComeBackAsTheyWere) {
  const auto plate = bothWays<SYSTEM_CONFIG_SET_1406_PARAM>(
      "1406", kAnswer,
      "<LicensePlatePicture\nMaxBytesPerPacket=\"1\"\nTimestamp=\"4000000000\"\nLicensePlate=\"p\"\n/>\n");
  EXPECT_EQ(plate->Timestamp, 4000000000U);
  bothWays<SYSTEM_CONFIG_SET_1409_PARAM>("1409", kAnswer,
                                         "<HumanFacePicture\nMaxBytesPerPacket=\"1\"\nTimestamp=\"2\"\n"
                                         "SerialNum=\"4000000000\"\nHumanFace=\"f\"\n/>\n");
  bothWays<SYSTEM_CONFIG_GET_1410_PARAM>(
      "1411", kAsk,
      "<HumanFaceAdvancedSet\nSimilarityThreshold=\"1\"\nDefaultThreshold=\"2\"\nSimilarityRange=\"3,4\"\n/>\n");
  bothWays<SYSTEM_CONFIG_SET_1421_PARAM>("1421", kAsk,
                                         "<AlarmAudioCfg\nAlarmAudioIndex=\"1\"\nAlarmAudioOperation=\"2\"\n/>\n");
}

const std::string kScene =
    "<SceneAlarmInfo\nSceneIndex=\"1\"\nSceneEnable=\"2\"\nSceneAlias=\"hall\"\nScheduleMode=\"3\"\n"
    "AlarmPeriodNum=\"1\"\nLightAlarmEnable=\"4\"\nLightduration=\"5\"\nLightScheduleMode=\"6\"\n"
    "LightAlarmPeriodNum=\"2\"\nAudioAlarmEnable=\"7\"\nAlarmAudioIndex=\"8\"\nAudioAlarmTimes=\"9\"\n"
    "AudioScheduleMode=\"10\"\nAudioAlarmPeriodNum=\"1\"\nIOAlarmEnable=\"11\"\nIOduration=\"12\"\n"
    "IOScheduleMode=\"13\"\nIOAlarmPeriodNum=\"1\"\nAlarmPeriod=\"[01:00:00-02:00:00],\"\n"
    "LightAlarmPeriod=\"[03:00:00-04:00:00],[05:00:00-06:00:00],\"\nAudioAlarmPeriod=\"[07:00:00-08:00:00],\"\n"
    "IOAlarmPeriod=\"[09:00:00-10:00:00],\"\n/>\n";

// Every list that a record counts: it comes back as it was, and one too long for the table is cut at its end.
TEST_F(SystemConfigAnalyticsTest, ListsOfElementsComeBackAndStopAtTheirTables) {
  struct List {
    std::string code, before, item, after;
    int direction, capacity;
  };
  const std::string param = "<SceneAlarmParam\nSceneTotal=\"1\"\nSceneTotalMax=\"8\"\nNextSceneIndex=\"-1\"\n/>\n";
  const std::string type = "<AlarmType\nAlarmTypeIndex=\"1\"\nAlarmTypeEnable=\"2\"\nAlarmTypeName=\"t\"\n/>\n";
  const std::string database = "<faceDatabase\nListType=\"1\"\nAmount=\"2\"\nCapacity=\"3\"\naddAllow=\"4\"\n/>\n";
  const std::string audio = "<AlarmAudio\nAlarmAudioIndex=\"1\"\nAlarmAudioEnable=\"2\"\nAlarmAudioName=\"n\"\n/>\n";
  const std::string facts = "<RESPONSE_PARAM\nDevSn=\"s\"\nFirmwareVersion=\"f\"\nAvailableSize=\"3\"\n/>\n";
  const std::string algorithm =
      "<Algorithms\nalgorithmId=\"a\"\ninstall=\"1\"\nuseStatus=\"2\"\nversion=\"v\"\nisBuildIn=\"3\"\n/>\n";
  const List lists[] = {
      {"1420", "<SceneAudio>\n", audio, "</SceneAudio>\n", kAnswer, SYSTEM_CONFIG_ALARM_AUDIOS},
      {"1422", "<SceneAlarm>\n" + param, type, kScene + "</SceneAlarm>\n", kAnswer, SYSTEM_CONFIG_ALARM_TYPES},
      {"1423", "<SceneAlarm>\n" + param + type, kScene, "</SceneAlarm>\n", kAsk, SYSTEM_CONFIG_SCENES},
      {"1428", facts, algorithm, "", kAnswer, SYSTEM_CONFIG_ALGORITHMS},
      {"1424", "", database, "", kAnswer, SYSTEM_CONFIG_FACE_DATABASES},
  };
  for (const List& list : lists) {
    const auto bodyWith = [&list](int count) {
      std::string body = list.before;
      for (int i = 0; i < count; ++i) body += list.item;
      return body + list.after;
    };
    for (const int count : {1, list.capacity, list.capacity + 5}) {
      const Analysis read = analysePayload(received(kConfigType, list.code, bodyWith(count)));
      ASSERT_NE(read.result, nullptr) << list.code;
      EXPECT_EQ(bodyOf(kConfigType, list.code, list.direction, read.result.get()),
                bodyWith(std::min(count, list.capacity)));
    }
  }
}

}  // namespace
}  // namespace kov::test
