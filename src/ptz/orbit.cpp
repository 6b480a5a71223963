// Orbits and loci: single commands, and the lists that a device answers with.
#include <algorithm>
#include <cstring>

#include "kov_platform/value_text.h"
#include "ptz/sub_command.h"

namespace kov {
namespace {

constexpr unsigned kCommand = PtzForm::kXml | PtzForm::kCmd;

using OrbitList = PTZ_CONTROL_PTZ_CMD_GETORBITLIST_PARAM;
using OrbitLine = PTZ_CONTROL_ORBIT_LINE;
using OrbitPoint = PTZ_CONTROL_ORBIT_POINT;
using Orbit = PTZ_CONTROL_PTZ_CMD_AUTOORBIT_PARAM;
using OrbitChange = PTZ_CONTROL_PTZ_CMD_ADDORBIT_PARAM;
using LocusList = PTZ_CONTROL_PTZ_CMD_GETLOCUSLIST_PARAM;
using LocusLine = PTZ_CONTROL_LOCUS_LINE;
using Locus = PTZ_CONTROL_PTZ_CMD_SETLOCUS_PARAM;
using LocusNumber = PTZ_CONTROL_PTZ_CMD_RECORDLOCUS_PARAM;

constexpr std::int32_t kMostPoints = PTZ_CONTROL_ORBIT_POINTS;

void orbit(BodyIo& io, Orbit& r) { io.texts({{"orbit_id", r.orbit_id}, {"orbit_type", r.orbit_type}}); }

void orbitAdded(BodyIo& io, OrbitChange& r) {
  io.texts({{"orbit_id", r.orbit_id}, {"orbit_type", r.orbit_type}, {"preset_id", r.preset_id}, {"time", r.time}});
}

void orbitCleared(BodyIo& io, OrbitChange& r) {
  io.texts({{"orbit_id", r.orbit_id}, {"orbit_type", r.orbit_type}, {"preset_index", r.preset_index}});
}

void locus(BodyIo& io, Locus& r) { io.texts({{"locus_id", r.locus_id}, {"locus_type", r.locus_type}}); }

void locusNumber(BodyIo& io, LocusNumber& r) { io.texts({{"locus_id", r.locus_id}}); }

bool isSet(const OrbitLine& line) { return kov::isSet(line.count); }

void writeLine(BodyWriter& body, const OrbitLine& line) {
  for (std::int32_t i = 0; i < std::min(line.count, kMostPoints); ++i) {
    body.character('[');
    body.field(line.point[i].preset);
    body.character(':');
    body.decimal(line.point[i].time);
    body.literal("],");
  }
}

// Reads what stands between the brackets of an item. The number is behind the last colon: the text may hold others.
bool readPoint(const char* begin, const char* end, OrbitPoint& point) {
  const char* number = end;
  while (number > begin && number[-1] != ':') --number;
  if (number == begin) return false;
  const auto textLength = static_cast<std::size_t>(number - 1 - begin);
  if (!scanInt(number, point.time)) return false;
  BodyWriter preset(point.preset, sizeof point.preset);
  preset.text(begin, textLength);
  preset.terminate();
  return true;
}

void readLine(const char* text, OrbitLine& line) {
  line.count = 0;
  while (line.count < kMostPoints) {
    const char* const begin = std::strchr(text, '[');
    const char* const end = begin == nullptr ? nullptr : std::strchr(begin, ']');
    if (end == nullptr) return;
    if (readPoint(begin + 1, end, line.point[line.count])) ++line.count;
    text = end + 1;
  }
}

bool isSet(const LocusLine& line) {
  return kov::isSet(line.first) || kov::isSet(line.second) || kov::isSet(line.third);
}

void writeLine(BodyWriter& body, const LocusLine& line) {
  body.decimal(line.first);
  body.character(',');
  body.decimal(line.second);
  body.character(',');
  body.decimal(line.third);
}

// Numbers up to the first that is missing.
void readLine(const char* text, LocusLine& line) {
  if (!scanInt(text, line.first) || *text++ != ',') return;
  if (!scanInt(text, line.second) || *text++ != ',') return;
  scanInt(text, line.third);
}

// Attributes that are numbered from 1, one a line. A line that is not set is left out, and the others keep their
// numbers.
template <class Line, std::size_t Capacity>
void writeLines(BodyWriter& body, const char* prefix, const Line (&table)[Capacity], std::int32_t count) {
  const std::int32_t end = std::min(count, static_cast<std::int32_t>(Capacity));
  for (std::int32_t i = 0; i < end; ++i) {
    if (!isSet(table[i])) continue;
    body.text(NumberedName(prefix, static_cast<unsigned>(i) + 1, "=\"").text());
    writeLine(body, table[i]);
    body.literal("\"\n");
  }
}

template <class Line, std::size_t Capacity>
void readLines(const ElementReader& data, const char* prefix, Line (&table)[Capacity], std::int32_t& count) {
  count = 0;
  for (std::int32_t i = 0; i < static_cast<std::int32_t>(Capacity); ++i) {
    const char* const text = data.attribute(NumberedName(prefix, static_cast<unsigned>(i) + 1, "").text());
    if (text == nullptr) continue;
    readLine(text, table[i]);
    count = i + 1;
  }
}

template <class Line, std::size_t Capacity>
void lines(BodyIo data, const char* prefix, Line (&table)[Capacity], std::int32_t& count) {
  if (data.writing()) {
    writeLines(data.writer(), prefix, table, count);
    data.text("/>\n");
  } else if (data) {
    readLines(data.reader(), prefix, table, count);
  }
}

// "tarck_time_step" and "lind_" are spelt so on the wire. Both tables count from 1.
void orbitList(BodyIo& io, OrbitList& r) {
  io.element("GetOrbitList", {{"time_min", r.time_min},
                              {"time_max", r.time_max},
                              {"preset_max", r.preset_max},
                              {"normal_line_max", r.normal_line_max},
                              {"track_time_min", r.track_time_min},
                              {"track_time_max", r.track_time_max},
                              {"tarck_time_step", r.tarck_time_step},
                              {"track_line_max", r.track_line_max}});
  lines(io.enter("normal_line_data", "<normal_line_data\n"), "lind_", r.normal_line, r.normal_line_count);
  lines(io.enter("track_line_data", "<track_line_data\n"), "line_", r.track_line, r.track_line_count);
}

void locusList(BodyIo& io, LocusList& r) {
  io.element("GetLocusList", {attr("line_max", r.line_max).thenNothing()});
  lines(io.enter("line_data", "<line_data\n"), "line_", r.line, r.line_count);
}

}  // namespace

constexpr PtzMessage kGetOrbitList = {"PtzControlGetOrbitList_Message",
                                      ptzBlock<OrbitList>(),
                                      kCmdAlone,
                                      ptzForm<orbitList, OrbitList>(PtzForm::kBare),
                                      CmdFrom::TextOrName,
                                      "GetOrbitList"};
constexpr PtzMessage kAutoOrbit = {"PtzControlAutoOrbit_Message", ptzBlock<Orbit>(), ptzForm<orbit, Orbit>(kCommand),
                                   kNoText};
constexpr PtzMessage kAddOrbit = {"PtzControlAddOrbit_Message", ptzBlock<OrbitChange>(),
                                  ptzForm<orbitAdded, OrbitChange>(kCommand), kNoText};
constexpr PtzMessage kClearOrbit = {"PtzControlClearOrbit_Message", ptzBlock<OrbitChange>(),
                                    ptzForm<orbitCleared, OrbitChange>(kCommand), kNoText};
constexpr PtzMessage kGetLocusList = {"PtzControlGetLocusList_Message",
                                      ptzBlock<LocusList>(),
                                      kCmdAlone,
                                      ptzForm<locusList, LocusList>(PtzForm::kBare),
                                      CmdFrom::TextOrName,
                                      "GetLocusList"};
constexpr PtzMessage kSetLocus = {"PtzControlSetLocus_Message", ptzBlock<Locus>(), ptzForm<locus, Locus>(kCommand),
                                  kNoText};
constexpr PtzMessage kLocusCmd = {"PtzControlLocusCmd_Message", ptzBlock<LocusNumber>(),
                                  ptzForm<locusNumber, LocusNumber>(PtzForm::kChannel | kCommand), kNoText};

}  // namespace kov

int PTZ_CONTROL_PTZ_CMD_GETORBITLIST_PARAM_init(PTZ_CONTROL_PTZ_CMD_GETORBITLIST_PARAM* record) {
  return kov::fillDefaults(record);
}
int PTZ_CONTROL_PTZ_CMD_AUTOORBIT_PARAM_init(PTZ_CONTROL_PTZ_CMD_AUTOORBIT_PARAM* record) {
  return kov::fillDefaults(record);
}
int PTZ_CONTROL_PTZ_CMD_ADDORBIT_PARAM_init(PTZ_CONTROL_PTZ_CMD_ADDORBIT_PARAM* record) {
  return kov::fillDefaults(record);
}
int PTZ_CONTROL_PTZ_CMD_CLEARORBIT_PARAM_init(PTZ_CONTROL_PTZ_CMD_ADDORBIT_PARAM* record) {
  return PTZ_CONTROL_PTZ_CMD_ADDORBIT_PARAM_init(record);
}
int PTZ_CONTROL_PTZ_CMD_GETLOCUSLIST_PARAM_init(PTZ_CONTROL_PTZ_CMD_GETLOCUSLIST_PARAM* record) {
  return kov::fillDefaults(record);
}
int PTZ_CONTROL_PTZ_CMD_SETLOCUS_PARAM_init(PTZ_CONTROL_PTZ_CMD_SETLOCUS_PARAM* record) {
  return kov::fillDefaults(record);
}
int PTZ_CONTROL_PTZ_CMD_RECORDLOCUS_PARAM_init(PTZ_CONTROL_PTZ_CMD_RECORDLOCUS_PARAM* record) {
  return kov::fillDefaults(record);
}
int PTZ_CONTROL_PTZ_CMD_STOPRECORDLOCUS_PARAM_init(PTZ_CONTROL_PTZ_CMD_RECORDLOCUS_PARAM* record) {
  return PTZ_CONTROL_PTZ_CMD_RECORDLOCUS_PARAM_init(record);
}
int PTZ_CONTROL_PTZ_CMD_STARTLOCUS_PARAM_init(PTZ_CONTROL_PTZ_CMD_RECORDLOCUS_PARAM* record) {
  return PTZ_CONTROL_PTZ_CMD_RECORDLOCUS_PARAM_init(record);
}
int PtzControlGetOrbitList_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetOrbitList.analyse(xml, result);
}
int PtzControlAutoOrbit_MessageAnalysis(const char* xml, void** result) { return kov::kAutoOrbit.analyse(xml, result); }
int PtzControlAddOrbit_MessageAnalysis(const char* xml, void** result) { return kov::kAddOrbit.analyse(xml, result); }
int PtzControlClearOrbit_MessageAnalysis(const char* xml, void** result) {
  return kov::kClearOrbit.analyse(xml, result);
}
int PtzControlGetLocusList_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetLocusList.analyse(xml, result);
}
int PtzControlSetLocus_MessageAnalysis(const char* xml, void** result) { return kov::kSetLocus.analyse(xml, result); }
int PtzControlLocusCmd_MessageAnalysis(const char* xml, void** result) { return kov::kLocusCmd.analyse(xml, result); }
