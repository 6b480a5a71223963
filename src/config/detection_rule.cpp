#include "config/detection_rule.h"

#include "config/list_text.h"

namespace kov {
namespace {

using Rule = SYSTEM_CONFIG_DETECTION_RULE;

void lightAttributes(BodyIo& io, Rule& r, Exchange exchange) {
  const auto def = [exchange](const Attribute& attribute) { return deviceDefault(exchange, attribute); };
  io.attributes({{"LightAlarmEnable", r.LightAlarmEnable},
                 def({"DefLightAlarmEnable", r.DefLightAlarmEnable}),
                 {"Lightduration", r.Lightduration},
                 def({"DefLightduration", r.DefLightduration}),
                 def({"DefLightdurationRange", r.DefLightdurationRange}),
                 {"LightScheduleMode", r.LightScheduleMode},
                 def({"DefLightScheduleMode", r.DefLightScheduleMode}),
                 {"LightAlarmPeriodNum", r.LightAlarmPeriodNum}});
}

void emailAttributes(BodyIo& io, Rule& r, Exchange exchange) {
  io.attributes({{"EmailAlarmEnable", r.EmailAlarmEnable},
                 {"Emailduration", r.Emailduration},
                 deviceDefault(exchange, {"DefEmaildurationRange", r.DefEmaildurationRange}),
                 {"EmailScheduleMode", r.EmailScheduleMode},
                 {"EmailAlarmPeriodNum", r.EmailAlarmPeriodNum}});
}

void audioAttributes(BodyIo& io, Rule& r, Exchange exchange) {
  const auto def = [exchange](const Attribute& attribute) { return deviceDefault(exchange, attribute); };
  io.attributes({{"AudioAlarmEnable", r.AudioAlarmEnable},
                 def({"DefAudioAlarmEnable", r.DefAudioAlarmEnable}),
                 {"AudioAlarmTimes", r.AudioAlarmTimes},
                 def({"DefAudioAlarmTimes", r.DefAudioAlarmTimes}),
                 def({"DefAudioAlarmTimesRange", r.DefAudioAlarmTimesRange}),
                 {"AudioScheduleMode", r.AudioScheduleMode},
                 def({"DefAudioScheduleMode", r.DefAudioScheduleMode}),
                 {"AudioAlarmPeriodNum", r.AudioAlarmPeriodNum}});
}

// The one default that is read out of SET messages too.
void trackAttributes(BodyIo& io, Rule& r, Exchange exchange) {
  const bool told = exchange == Exchange::Get;
  const bool countsCrowds = isSet(r.CrowdFlowStatEnable);
  io.attributes(
      {{"LightAudioAlarmStartTime", r.LightAudioAlarmStartTime},
       {"LightAudioAlarmEndTime", r.LightAudioAlarmEndTime},
       {"AlarmTime", r.AlarmTime},
       {"TrackEnable", r.TrackEnable},
       attr("DefTrackEnable", r.DefTrackEnable).when(told),
       attr("CrowdFlowStatEnable", r.CrowdFlowStatEnable).ifSet(),
       deviceDefault(exchange, attr("DefCrowdFlowStatEnable", r.DefCrowdFlowStatEnable).ifSet().when(countsCrowds))});
}

}  // namespace

Attribute deviceDefault(Exchange exchange, const Attribute& attribute) {
  return exchange == Exchange::Get ? attribute : attribute.writeOnly().readOnly();
}

void ruleAttributes(BodyIo& io, Rule& r, Exchange exchange) {
  io.attributes({{"Enable", r.Enable},
                 deviceDefault(exchange, {"DefEnable", r.DefEnable}),
                 {"DetectionAttr", r.DetectionAttr},
                 {"DetectionSens", r.DetectionSens},
                 deviceDefault(exchange, {"DefDetectionSens", r.DefDetectionSens}),
                 deviceDefault(exchange, {"DefDetectionSensRange", r.DefDetectionSensRange})});
  drawingAttributes(io, r.drawing);
  lightAttributes(io, r, exchange);
  emailAttributes(io, r, exchange);
  audioAttributes(io, r, exchange);
  trackAttributes(io, r, exchange);
  periodList(io, "LightAlarmPeriod", r.LightAlarmPeriod, r.LightAlarmPeriodNum);
  periodList(io, "AudioAlarmPeriod", r.AudioAlarmPeriod, r.AudioAlarmPeriodNum);
  periodList(io, "EmailAlarmPeriod", r.EmailAlarmPeriod, r.EmailAlarmPeriodNum);
}

BodyIo openAttributes(BodyIo& io, const char* name) {
  if (io.writing()) {
    io.writer().character('<');
    io.writer().text(name);
    io.writer().character('\n');
  }
  return io.enter(name, "");
}

void closeAttributes(BodyIo& io) { io.text("/>\n"); }

void ruleElement(BodyIo& io, const char* name, Rule& rule, Exchange exchange) {
  BodyIo element = openAttributes(io, name);
  ruleAttributes(element, rule, exchange);
  closeAttributes(element);
}

}  // namespace kov
