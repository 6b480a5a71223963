#include "kov_protocol/system_config_analytics.h"

#include <climits>
#include <sstream>
#include <tuple>

#include "system_config_wire.h"

namespace kov::test {
namespace {

class SystemConfigAnalyticsTest : public WireTest {};

using Rule = SYSTEM_CONFIG_DETECTION_RULE;

std::string textOf(const std::string& file) { return golden("analytics/" + file + ".txt"); }

// What is read of a body, composed again under a code of the same record.
std::string relayed(const std::string& code, const std::string& body, const std::string& toCode, int direction) {
  const Analysis read = analysePayload(received(kConfigType, code, body));
  EXPECT_EQ(read.code, 0) << code;
  return bodyOf(kConfigType, toCode, direction, read.result.get());
}

// Calls `change` with every line that begins with Def, and puts what it returns in its place.
template <class Change>
std::string withDefaults(const std::string& text, const Change& change) {
  std::istringstream lines(text);
  std::string changed;
  for (std::string line; std::getline(lines, line);) {
    line += '\n';
    changed += line.compare(0, 3, "Def") == 0 ? change(line) : line;
  }
  return changed;
}

std::string withoutDefaults(const std::string& text) {
  return withDefaults(text, [](const std::string&) { return ""; });
}

// The defaults as they are told when they were not read: all but one.
std::string withUnsetDefaults(const std::string& text) {
  return withDefaults(text, [](const std::string& line) -> std::string {
    if (line.find("DefTrackEnable") == 0) return line;
    if (line.find("DefCrowdFlowStatEnable") == 0) return "";
    return line.substr(0, line.find('=')) + (line.find(',') == std::string::npos ? "=\"-1\"\n" : "=\"-1,-1\"\n");
  });
}

TEST_F(SystemConfigAnalyticsTest, RequestsLeaveTheDevicesDefaultsOut) {
  const std::tuple<const char*, const char*, const char*> exchanges[] = {
      {"1402", "1403", "1402_rules"},  {"1412", "1413", "1412_vehicles"},  {"1415", "1414", "1415_vehicle"},
      {"1417", "1416", "1417_human"},  {"1426", "1427", "1426_animals"},   {"1404", "1405", "1404_plates"},
      {"1429", "1430", "1429_plates"}, {"1429", "1430", "1429_parabolic"}, {"1429", "1430", "1429_neither"},
      {"1418", "1419", "1418_face"},
  };
  for (const auto& [get, set, file] : exchanges) {
    const std::string answer = textOf(file);
    const std::string request = withoutDefaults(answer);
    EXPECT_EQ(relayed(get, answer, get, kAnswer), answer);
    EXPECT_EQ(relayed(get, answer, set, kAsk), request);
    EXPECT_EQ(relayed(set, request, set, kAsk), request);
    EXPECT_EQ(relayed(set, answer, get, kAnswer), withUnsetDefaults(answer));
  }
}

TEST_F(SystemConfigAnalyticsTest, RulesAreReadIntoTheirFields) {
  const auto rules = readBody<SYSTEM_CONFIG_GET_1402_PARAM>("1402", textOf("1402_rules"));
  for (const Rule& rule : {rules->RegionDetection, rules->CrossBoundaryDetection}) {
    EXPECT_EQ((Numbers{rule.Enable, rule.DefDetectionSensRange[1], rule.drawing.VideoResolution[1],
                       rule.drawing.LineCoordinates[1].x, rule.LightAlarmPeriod[0].start.hour,
                       rule.EmailAlarmPeriod[1].end.hour, rule.AudioAlarmPeriod[0].start.hour,
                       rule.LightAudioAlarmStartTime.minute, rule.LightAudioAlarmEndTime.minute, rule.TrackEnable,
                       rule.CrowdFlowStatEnable}),
              (Numbers{1, 100, 576, 3, 1, 6, -1, 8, 18, 1, 1}));
  }
  EXPECT_EQ(readBody<SYSTEM_CONFIG_GET_1402_PARAM>("1402", "<SmartConfig/>")->RegionDetection.Enable, -1);
  const auto human = readBody<SYSTEM_CONFIG_SET_1416_PARAM>("1416", textOf("1417_human"));
  EXPECT_EQ(human->HumanFormDetection.EmailAlarmPeriodNum, 2);
  EXPECT_EQ(human->HumanDetectAlarmPushTime.AlarmEndTime.minute, 30);
  const auto plates = readBody<SYSTEM_CONFIG_GET_1404_PARAM>("1404", textOf("1404_plates"));
  EXPECT_EQ(plates->AnalysisPeriod[0].end.second, 6);
  EXPECT_EQ(plates->DefStrongLightSupprSens, 6);
  EXPECT_EQ(plates->strongLightDebug, 7);
}

TEST_F(SystemConfigAnalyticsTest, CrowdFlowIsWrittenWhileItIsSet) {
  SYSTEM_CONFIG_GET_1402_PARAM record;
  const auto hasLines = [&record](const std::string& lines) {
    return written("1402", kAnswer, record).find(lines) != std::string::npos;
  };
  record.RegionDetection.DefCrowdFlowStatEnable = 1;
  EXPECT_FALSE(hasLines("CrowdFlow"));
  record.RegionDetection.CrowdFlowStatEnable = 0;
  EXPECT_TRUE(hasLines("\nCrowdFlowStatEnable=\"0\"\nDefCrowdFlowStatEnable=\"1\"\nLight"));
  record.RegionDetection.DefCrowdFlowStatEnable = 255;
  EXPECT_TRUE(hasLines("\nCrowdFlowStatEnable=\"0\"\nLightAlarmPeriod=\"\"\n"));
}

TEST_F(SystemConfigAnalyticsTest, PeriodListsOfARuleAreWholeWhateverTheirCount) {
  SYSTEM_CONFIG_SET_1414_PARAM record;
  Rule& r = record.VehicleDetection;
  r.LightAlarmPeriodNum = INT_MAX;
  r.AudioAlarmPeriodNum = INT_MIN;
  r.EmailAlarmPeriodNum = 1;
  for (SYSTEM_CONFIG_PERIOD& period : r.LightAlarmPeriod) {
    period = {{INT_MIN, INT_MIN, INT_MIN}, {INT_MIN, INT_MIN, INT_MIN}};
  }
  const std::string time = "-2147483648:-2147483648:-2147483648";
  const std::string list = repeated("[" + time + "-" + time + "],", SYSTEM_CONFIG_PERIODS);
  ASSERT_GT(list.size(), 256U);
  const std::string body = written("1415", kAnswer, record);
  EXPECT_NE(body.find("\nLightAlarmPeriodNum=\"2147483647\"\n"), std::string::npos);
  EXPECT_NE(body.find("\nLightAlarmPeriod=\"" + list +
                      "\"\nAudioAlarmPeriod=\"\"\nEmailAlarmPeriod=\"[-1:-1:-1--1:-1:-1],\"\n/>"),
            std::string::npos);
  EXPECT_EQ(relayed("1415", body, "1415", kAnswer), body);
}

TEST_F(SystemConfigAnalyticsTest, AlgorithmSettingsAreThoseOfTheElementThatIsThere) {
  using Config = SYSTEM_CONFIG_GET_1429_PARAM;
  const auto parabolic = readBody<Config>("1429", textOf("1429_parabolic"));
  EXPECT_EQ(parabolic->settings, SYSTEM_CONFIG_HIGH_ALTITUDE_PARABOLIC);
  EXPECT_EQ(parabolic->highAltitudeParabolic.Enable, 1);
  EXPECT_EQ(parabolic->ShowTrackLine, 3);
  const auto plates = readBody<Config>("1430", textOf("1429_plates"));
  EXPECT_EQ(plates->settings, SYSTEM_CONFIG_LICENSE_PLATE_RECOGNITION);
  EXPECT_EQ(plates->StrongLightSupprSensRange[1], 9);
  EXPECT_EQ(plates->ShowTrackLine, -1);
  EXPECT_EQ(readBody<Config>("1429", textOf("1429_neither"))->settings, -1);
  EXPECT_EQ(written("1429", kAsk, *plates), "<REQUEST_PARAM\nalgorithmId=\"a1\"\n/>\n");
  EXPECT_STREQ(readBody<Config>("1429", "<REQUEST_PARAM algorithmId=\"q\"/>")->algorithmId, "q");
}

TEST_F(SystemConfigAnalyticsTest, FaceRequestReadsTheCountUnderAnotherName) {
  using Face = SYSTEM_CONFIG_GET_1407_PARAM;
  const std::string answer = textOf("1407_face");
  EXPECT_EQ(bothWays<Face>("1407", kAnswer, answer)->AnalysisPeriodNum, 1);
  EXPECT_EQ(relayed("1407", answer, "1408", kAsk), withoutDefaults(answer));
  const auto lost = readBody<Face>("1408", answer);
  EXPECT_EQ(lost->rule.DefEnable, -1);
  EXPECT_EQ(lost->AnalysisPeriodNum, -1);
  EXPECT_EQ(lost->AnalysisPeriod[0].start.second, 3);
  EXPECT_EQ(readBody<Face>("1408", "<HumanFaceRecognition AnalysisriodNum=\"2\"/>")->AnalysisPeriodNum, 2);
  const auto read = readBody<SYSTEM_CONFIG_GET_1418_PARAM>("1419", textOf("1418_face"));
  EXPECT_EQ(read->HumanFaceRecognition.AnalysisPeriodNum, 1);
  EXPECT_EQ(read->SceneAlarmTagCount, 1);
  EXPECT_EQ(read->SceneAlarmTag[0].SceneIndex, 4);
}

TEST_F(SystemConfigAnalyticsTest, SmallMessagesAreReadIntoTheirFields) {
  const auto face = readBody<SYSTEM_CONFIG_GET_1425_PARAM>("1425", textOf("1425_import"));
  EXPECT_EQ((Numbers{readBody<SYSTEM_CONFIG_SET_1406_PARAM>("1406", textOf("1406_plate_picture"))->Timestamp,
                     readBody<SYSTEM_CONFIG_SET_1409_PARAM>("1409", textOf("1409_face_picture"))->Timestamp,
                     readBody<SYSTEM_CONFIG_GET_1410_PARAM>("1411", textOf("1411_face_thresholds"))->DefaultThreshold,
                     readBody<SYSTEM_CONFIG_SET_1421_PARAM>("1421", textOf("1421_sound"))->AlarmAudioOperation,
                     face->absTime}),
            (Numbers{4000000000, 2, 2, 2, 4000000000}));
  EXPECT_EQ(face->faceQualityScore, 0.5F);
  EXPECT_STREQ(face->Trans_Type, "x");  // only a header outside the body makes a document transparent
}

TEST_F(SystemConfigAnalyticsTest, ListsStopAtTheirTables) {
  const auto expectList = [](const std::string& code, int direction, const std::string& file,
                             const std::string& element, int capacity, auto count) {
    expectBounded(kConfigType, code, direction, WireList("analytics/" + file, element + "\n"), capacity, count);
  };
  expectList("1420", kAnswer, "1420_sounds", "<AlarmAudio", 16, &SYSTEM_CONFIG_GET_1420_PARAM::AlarmAudioCount);
  expectList("1422", kAnswer, "1422_scenes", "<AlarmType", 16, &SYSTEM_CONFIG_SET_1423_PARAM::AlarmTypeCount);
  expectList("1423", kAsk, "1422_scenes", "<SceneAlarmInfo", 8, &SYSTEM_CONFIG_SET_1423_PARAM::SceneAlarmInfoCount);
  expectList("1428", kAnswer, "1428_algorithms", "<Algorithms", 32, &SYSTEM_CONFIG_GET_1428_PARAM::AlgorithmsCount);
  expectList("1424", kAnswer, "1424_databases", "<faceDatabase", 8, &SYSTEM_CONFIG_GET_1424_PARAM::faceDatabaseCount);
}

}  // namespace
}  // namespace kov::test
