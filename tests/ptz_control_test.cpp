#include "kov_protocol/ptz_control.h"

#include <cstring>
#include <sstream>

#include "every_message.h"
#include "ptz/sub_command.h"
#include "trials.h"

namespace kov::test {
namespace {

using Record = PTZ_CONTROL_PTZ_CMD_PARAM;
using Position = PTZ_CONTROL_PTZ_CMD_GETCURPOS_PARAM;
using PresetList = PTZ_CONTROL_PTZ_CMD_GETPRESETLIST_PARAM;
using PresetEntry = PTZ_CONTROL_PTZ_CMD_SETWATCHGUARD_PARAM;
using OrbitList = PTZ_CONTROL_PTZ_CMD_GETORBITLIST_PARAM;
using LocusList = PTZ_CONTROL_PTZ_CMD_GETLOCUSLIST_PARAM;
using Speed = PTZ_CONTROL_PTZ_CMD_SPEED_PARAM;
using Locate = PTZ_CONTROL_PTZ_CMD_GETLOCATECFG_PARAM;
using Manual = PTZ_CONTROL_PTZ_CMD_MANUALLOCATE_PARAM;
using OrbitChange = PTZ_CONTROL_PTZ_CMD_ADDORBIT_PARAM;

const std::string kType = PTZ_CONTROL_MESSAGE_TYPE;
const std::string kCode = PTZ_CONTROL_MESSAGE_CODE;

// One of each analysis goes through the trials of all messages. Scans do not, because they are never recognised.
constexpr const char* kTrials[] = {"getCurPos",       "setCurPos",     "GetLocateCfg",  "SetLocateCfg",
                                   "ManualLocate",    "callpreset",    "GetPresetList", "GetPresetListEx",
                                   "SetPresetListEx", "GetWatchGuard", "StopLocus",     "GetOrbitList",
                                   "AutoOrbit",       "AddOrbit",      "ClearOrbit",    "GetLocusList",
                                   "SetLocus",        "trans",         "StartLocus",    "ptz_reset"};

template <std::size_t Row>
void fillTrial(void* memory, unsigned char value) {
  static const std::size_t size = findSubCommand(kTrials[Row])->block.size;
  static const std::unique_ptr<char[]> block(new char[size]);
  auto& record = *static_cast<Record*>(memory);
  std::memset(memory, value, sizeof record);
  std::memset(block.get(), value, size);
  set(record.cmd, kTrials[Row]);
  record.pExData = size == 0 ? nullptr : block.get();
}

template <std::size_t... Rows>
std::vector<AlsoTested> addTrials(std::index_sequence<Rows...>) {
  return {AlsoTested({kType, kCode, kRecordType<Record>, fillTrial<Rows>})...};
}
const std::vector<AlsoTested> kAdded = addTrials(std::make_index_sequence<std::size(kTrials)>());

// The record of a received command, its block behind it. The analysis owns both.
template <class Block>
struct Read {
  explicit Read(const std::string& body, const std::string& extras = "")
      : analysis(analysePayload(received(kType, kCode, body, extras))) {
    EXPECT_EQ(analysis.code, 0) << body;
  }
  const Record& record() const { return *static_cast<const Record*>(analysis.result.get()); }
  const Block* operator->() const {
    EXPECT_EQ(record().pExData, &record() + 1);
    return static_cast<const Block*>(record().pExData);
  }
  Analysis analysis;
};

// What a received body becomes when its record is composed again.
std::string relayed(const std::string& body, int direction) {
  return bodyOf(kType, kCode, direction, &Read<char>(body).record());
}

// The text of a file, which becomes the same again as a response.
template <class Block>
Read<Block> readFile(const std::string& file) {
  const std::string text = golden("ptz/" + file + ".txt");
  EXPECT_EQ(relayed(text, 1), text);
  return Read<Block>(text);
}

// A command with its block.
template <class Block>
struct Command {
  explicit Command(const char* cmd, std::int32_t channel = -1) {
    set(record.cmd, cmd);
    record.channelid = channel;
    record.pExData = &block;
  }
  std::string body(int direction) const { return bodyOf(kType, kCode, direction, &record); }
  // It becomes the text of a file, and the text comes back as it was.
  void expectText(const std::string& file, int direction) const {
    const std::string text = golden("ptz/" + file + ".txt");
    EXPECT_EQ(body(direction), text);
    EXPECT_EQ(relayed(text, direction), text);
  }
  Record record;
  Block block;
};

std::string bodyWithoutBlock(const char* cmd, int direction) {
  Record record;
  set(record.cmd, cmd);
  record.channelid = 3;
  return bodyOf(kType, kCode, direction, &record);
}

// The failure that analysis tells, or "" when it succeeds.
std::string failureOf(const std::string& body, const std::string& extras = "") {
  resetPlatform();
  const Analysis analysis = analysePayload(received(kType, kCode, body, extras));
  EXPECT_EQ(analysis.code == 0, failures().empty());
  EXPECT_EQ(analysis.code == 0, analysis.result != nullptr);
  return failures().empty() ? "" : failures().back();
}

class PtzControlTest : public WireTest {};

TEST_F(PtzControlTest, PositionIsAskedWithTheChannelAndAnsweredWithout) {
  Command<Position> get("getCurPos", 2);
  get.expectText("position_query", 0);
  get.block = {1, -2, 3, 4};
  for (const int direction : {1, 3, -1, 4}) get.expectText("position", direction);
  const Read<Position> asked(golden("ptz/position_query.txt"));
  EXPECT_EQ(asked.record().channelid, 2);
  EXPECT_EQ(asked->x, -1);
}

TEST_F(PtzControlTest, LocationTravelsInAttributesThatAreWrittenSignedAndReadUnsigned) {
  Command<Locate> location("GetLocateCfg", 2);
  location.block = {1, 255, 10, 20, 5, -1};
  location.expectText("location", 1);
  const Read<Locate> wrapped(
      "<xml><GetLocateCfg status=\"256\" track_time_enable=\"0\" time_min=\"4294967294\"/></xml>");
  EXPECT_EQ(wrapped->status, 255);
  EXPECT_EQ(wrapped->track_time_enable, 0);
  EXPECT_EQ(wrapped->time_min, -2);
  Command<Locate> setting("SetLocateCfg", 2);
  setting.block.time_now = 7;
  setting.expectText("location_setting", 0);
  Command<Manual> rectangle("ManualLocate");
  rectangle.block.status = 0;
  rectangle.block.left_top_y = 4000000000U;
  rectangle.expectText("rectangle", 0);
}

TEST_F(PtzControlTest, MovementIsOneLineInEveryDirection) {
  EXPECT_EQ(bodyWithoutBlock("up", 0), "<channelid>3</channelid>\n<xml>\n<cmd>up</cmd></xml>");
  Command<Speed> move("left_up");
  move.block = {4, 5};
  for (const int direction : {0, 1, 2, 3, 9}) move.expectText("movement", direction);
  EXPECT_EQ(Read<Speed>("<xml><cmd>up</cmd></xml>")->panspeed, -1);
}

TEST_F(PtzControlTest, RequestsWithValues) {
  for (const char* cmd :
       {"setCurPos", "clearpreset", "AutoOrbit", "AddOrbit", "ClearOrbit", "SetLocus", "StopRecordLocus"}) {
    Command<OrbitChange> command(cmd, 0);  // the numbers of all these blocks stand in a row
    command.block = {1, 2, 3, 4, 4000000000U};
    command.expectText(cmd, 0);
    EXPECT_EQ(command.body(3), "");
  }
}

TEST_F(PtzControlTest, RequestsWithTexts) {
  Command<PresetEntry> entry("SetPresetListEx", 2);
  set(entry.block.name, "door");
  set(entry.block.preset_id, "7");
  EXPECT_EQ(entry.body(0), golden("ptz/preset_name.txt"));  // without the channel
  set(entry.record.cmd, "GetWatchGuard");
  entry.expectText("watch_guard", 0);
  Command<PTZ_CONTROL_PTZ_CMD_TRANS_PARAM> transparent("trans");
  set(transparent.block.data, "FF 01");
  transparent.expectText("transparent", 0);
}

TEST_F(PtzControlTest, PresetListIsPlainText) {
  Command<PresetList> list("GetPresetList");
  const char* const ids[] = {"1", "2", "5"};
  for (std::size_t i = 0; i < 3; ++i) set(list.block.preset[i].preset_id, ids[i]);
  set(list.block.list, "raw");
  const std::pair<int, std::string> bodies[] = {
      {0, "0^"}, {3, "3^1^2^5^"}, {-2, "-2^"}, {INT32_MAX, "256^1^2^5^" + std::string(253, '^')}, {-1, "raw"}};
  for (const auto& [count, body] : bodies) {
    list.block.count = count;
    EXPECT_EQ(list.body(1), body);
  }
  EXPECT_TRUE(failures().empty());
  set(list.block.list, "");
  EXPECT_EQ(list.body(1), "");
  EXPECT_EQ(failures(),
            std::vector<std::string>{"E PTZ_CONTROL_MESSAGE deal cmd : GetPresetList get the pExData is NULL\n"});
}

TEST_F(PtzControlTest, PresetListIsReadWithinItsBounds) {
  const Read<PresetList> list("3^1^2 ^5^");
  EXPECT_STREQ(list.record().cmd, "GetPresetList");
  EXPECT_STREQ(list->preset[1].preset_id, "2");
  EXPECT_STREQ(list->preset[2].preset_id, "5");
  EXPECT_STREQ(list->list, "3^1^2 ^5^");
  EXPECT_EQ(list->guard, -1);
  const std::pair<const char*, int> counts[] = {{"3^1^2 ^5^", 3}, {"9^1^^3", 9},
                                                {"1^1^2^", 1},    {"-5^1^", 0},
                                                {"x^1^", -1},     {"<xml><cmd>GetPresetList</cmd></xml>", -1}};
  for (const auto& [text, count] : counts) EXPECT_EQ(Read<PresetList>(text)->count, count) << text;
  EXPECT_STREQ(Read<PresetList>("9^1^^3")->preset[2].preset_id, "3");
  EXPECT_STREQ(Read<PresetList>("x^1^")->list, "x^1^");

  std::string many = "300^" + std::string(70, '7');
  for (int i = 0; i < 299; ++i) many += "^88888";
  const Read<PresetList> full(many);
  EXPECT_EQ(full->count, 256);
  EXPECT_EQ(full->preset[0].preset_id, std::string(63, '7'));
  EXPECT_STREQ(full->preset[255].preset_id, "88888");
  EXPECT_EQ(full->list, many.substr(0, 1023));
}

TEST_F(PtzControlTest, NamedPresetListRunsInParallel) {
  const auto list = readFile<PresetList>("preset_names");
  EXPECT_EQ(list->guard, 4);
  EXPECT_STREQ(list->preset[0].name, "door");
  EXPECT_STREQ(list->preset[1].preset_id, "9");
  const Read<PresetList> moreNames("<xml><cmd>GetPresetListEx</cmd><preset_id>1</preset_id><name>a^b^c^</name></xml>");
  EXPECT_EQ(moreNames->count, 1);
  EXPECT_STREQ(moreNames->preset[1].name, "");
  std::string ids;
  for (int i = 0; i < 300; ++i) ids += "1^";
  EXPECT_EQ(Read<PresetList>("<xml><cmd>GetPresetListEx</cmd><preset_id>" + ids + "</preset_id></xml>")->count, 256);
}

TEST_F(PtzControlTest, OrbitListCarriesTwoTablesOfLines) {
  const auto list = readFile<OrbitList>("orbits");
  EXPECT_EQ(list->time_min, 1);
  EXPECT_EQ(list->tarck_time_step, 2);
  EXPECT_EQ(list->normal_line[1].point[0].time, 30);
  EXPECT_STREQ(list->normal_line[1].point[1].preset, "8:9");
  EXPECT_EQ(list->track_line[0].count, 0);
  Command<OrbitList> command("GetOrbitList");
  command.block = *list.operator->();
  command.block.track_line_count = INT32_MAX;
  command.expectText("orbits", 1);
  EXPECT_EQ(Read<OrbitList>("<xml><cmd>GetOrbitList</cmd></xml>")->track_line_count, -1);
}

TEST_F(PtzControlTest, OrbitListLeavesOutWhatItCannotRead) {
  EXPECT_EQ(relayed(golden("ptz/odd_orbits.txt"), 1), golden("ptz/odd_orbits_read.txt"));
  std::string points;
  for (int i = 0; i < 40; ++i) points += "[p:5],";
  const Read<OrbitList> read("<GetOrbitList/><track_line_data line_8=\"" + points + "\"/>");
  EXPECT_EQ(read->track_line_count, PTZ_CONTROL_ORBIT_LINES);
  EXPECT_EQ(read->track_line[7].count, PTZ_CONTROL_ORBIT_POINTS);
}

TEST_F(PtzControlTest, LocusList) {
  const auto list = readFile<LocusList>("loci");
  EXPECT_EQ(list->line_max, 4);
  EXPECT_EQ(list->line[0].second, 2);
  EXPECT_EQ(list->line[2].third, -1);
  const std::string odd = "<GetLocusList/><line_data line_1=\"5;6\" line_32=\"1,2\" line_33=\"1,2,3\"/>";
  EXPECT_EQ(relayed(odd, 1),
            "<GetLocusList\nline_max=\"-1\"/>\n<line_data\nline_1=\"5,-1,-1\"\nline_32=\"1,2,-1\"\n/>\n");
}

// Without `xml`, the failure names the analysis that a document was given to.
std::string analysisBy(const std::string& text) {
  const std::string failure = failureOf("", "Msg_chn=\"" + text + "\"\n");
  const std::string prefix = "E PtzControl";
  const std::size_t end = failure.find("_MessageAnalysis get xml error\n");
  return end == std::string::npos ? failure : failure.substr(prefix.size(), end - prefix.size());
}

// Every line of the list is an analysis and the texts that lead to it.
TEST_F(PtzControlTest, AnySubCommandNameInTheDocumentDecides) {
  std::istringstream lines(golden("ptz/recognised.list"));
  int texts = 0;
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    std::string function, text;
    for (words >> function; words >> text; ++texts) EXPECT_EQ(analysisBy(text), function) << text;
  }
  EXPECT_EQ(texts, 48);
  for (const char* list : {"GetLocateCfg", "GetPresetList", "GetOrbitList", "GetLocusList"}) {
    const Read<char> read("", "Msg_chn=\"" + std::string(list) + "\"\n");
    EXPECT_STREQ(read.record().cmd, list);
  }
  EXPECT_STREQ(Read<PresetList>("<xml><cmd>ScanOn</cmd></xml>", "Msg_chn=\"^\"\n").record().cmd, "GetPresetList");
}

TEST_F(PtzControlTest, ScansAreComposedButNotRecognised) {
  for (const char* scan : {"ScanBegin", "ScanEnd", "ScanOn", "ScanOff"}) {
    const std::string body = bodyWithoutBlock(scan, 0);
    EXPECT_EQ(body, "<channelid>3</channelid>\n<xml>\n<cmd>" + std::string(scan) + "</cmd>\n</xml>\n");
    EXPECT_EQ(failureOf(body), "E PTZ_CONTROL_MESSAGE deal a unknow cmd \n");
  }
  const Read<char> stop("<xml><cmd>StopOrbit</cmd></xml>");
  EXPECT_EQ(stop.record().pExData, nullptr);
}

TEST_F(PtzControlTest, UnknownAndIncompleteCommandsAreTold) {
  char body[200];
  std::vector<Outcome> calls;
  for (const std::string cmd :
       {"", "Up", "uuuuuuuuuuuuuuuuuuuuuuuuuuuuuuuu", "setCurPos", "setpreset", "GetWatchGuard", "trans", "AddOrbit",
        "StartLocus", "getCurPos", "GetLocateCfg", "GetPresetList", "GetPresetListEx", "GetOrbitList"}) {
    Record record;
    cmd.copy(record.cmd, sizeof record.cmd);  // the longest without its NUL
    for (const int direction : {0, 1}) calls.emplace_back(PtzControlMessageCompose(&record, direction, body, 200));
  }
  expectTold("ptz/incomplete_calls", calls);
}

TEST_F(PtzControlTest, OnlyComposeMindsTheMessageCode) {
  Record record;
  set(record.cmd, "up");
  EXPECT_EQ(documentOf(kType, "PTZ_CMD2", 0, &record), "code -1000");
  EXPECT_EQ(failures().front(), "E PTZ_CONTROL_MESSAGE deal a unknow Msg_code:PTZ_CMD2 !!!\n");
  EXPECT_EQ(analysisCode(kType, "PTZ_CMD2", "<xml><cmd>up</cmd></xml>"), 0);
}

// A name in the header leads to one block, and `cmd` makes the receiver take it for another: it must be large enough.
TEST_F(PtzControlTest, BlockIsLargeEnoughForWhatCmdSays) {
  const Read<Position> read("<xml><cmd>GetPresetListEx</cmd><x>1</x><y>300</y></xml>", "Msg_chn=\"getCurPos\"\n");
  EXPECT_EQ(read->y, 300);
  EXPECT_STREQ(static_cast<const PresetList*>(read.record().pExData)->list, "");
  EXPECT_NE(bodyOf(kType, kCode, 1, &read.record()).find(std::string(250, '^')), std::string::npos);
  EXPECT_STREQ(Read<Speed>("<xml><cmd>left</cmd></xml>", "Msg_chn=\"GetLocateCfg\"\n").record().cmd, "left");
  EXPECT_EQ(Read<Speed>("<xml><cmd>up</cmd></xml>", "Msg_chn=\"StopLocus\"\n")->panspeed, 0);
}

TEST_F(PtzControlTest, ExportedFunctionsRefuseEmptyArgumentsAndBadDocuments) {
  Untouched out;
  Record record;
  expectTold(
      "ptz/calls",
      {PtzControlMessageCompose(&record, 0, nullptr, 8), PtzControlMessageCompose(&record, 0, out.body, 0),
       PtzControlMessageAnalysis(nullptr, &out.result), PtzControlMessageAnalysis("up", nullptr),
       PtzControlMessageCompose(nullptr, 0, out.body, 8), PtzControlLocusCmd_MessageAnalysis(nullptr, &out.result),
       PtzControlLocusCmd_MessageAnalysis("<XML_ZANTIR/>", nullptr),
       PtzControlMessageAnalysis("StartLocus", &out.result),
       PtzControlMessageAnalysis("<XML_ZANTIR>StartLocus</XML_ZANTIR>", &out.result)});
  set(record.cmd, "up");
  char cut[8];
  EXPECT_EQ(PtzControlMessageCompose(&record, 0, cut, 8), 0);
  EXPECT_STREQ(cut, "<xml>\n<");
}

}  // namespace
}  // namespace kov::test
