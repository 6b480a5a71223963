// Writes docs/messages.md, the page of all messages, from the family table and from what compose writes.
#include <algorithm>
#include <cstring>
#include <functional>
#include <iostream>
#include <map>

#include "control/control_messages.h"
#include "core/family_table.h"
#include "kov_platform/services.h"
#include "kov_protocol/heartbeat.h"
#include "live/live_stream.h"
#include "live/reverse_audio.h"
#include "page_check.h"
#include "ptz/ptz_control.h"
#include "ptz/sub_command.h"
#include "record_names.h"
#include "reports/alarm_report.h"
#include "reports/ipc_repair.h"
#include "session/debug.h"
#include "session/heartbeat.h"
#include "session/system_encrypt.h"
#include "session/system_log.h"
#include "session/user_auth.h"

// The samples are strange records, and the codec would talk about them.
void KovProtocolLogInfo(const char*, ...) {}
void KovProtocolLogError(const char*, ...) {}
void KovProtocolLogDebug(const char*, ...) {}

namespace kov::tools {
namespace {

using Names = std::vector<std::string>;
using Change = std::function<void(char* record)>;

struct Row {
  std::string code;
  std::string name;
  RecordType record = {0, nullptr};
  std::vector<Change> samples = {nullptr};  // what is done to a filled record; elements may depend on it
  const RecordType* block = nullptr;        // a second record, which the first points at
  std::string label = {};                   // shown in place of the code
};

constexpr int kRoom = 1 << 18;

void leaveAt(char* record, std::size_t offset, const void* pointer) {
  std::memcpy(record + offset, &pointer, sizeof pointer);
}

std::vector<Row> alarmRows() {
  using Alarm = ALARM_REPORT_CMD_RPEORT_ALARM_PARAM;
  static const ALARM_REPORT_HUMAN_FACE_INFO face;
  static const ALARM_REPORT_ANIMAL_INFO animal;
  const auto with = [](int alarm, const void* extra) {
    return [=](char* record) {
      std::memcpy(record + offsetof(Alarm, Alarm_code), &alarm, sizeof alarm);
      leaveAt(record, offsetof(Alarm, pExData), extra);
    };
  };
  static const RecordType blocks[] = {kRecordType<ALARM_REPORT_HUMAN_FACE_INFO>, kRecordType<ALARM_REPORT_ANIMAL_INFO>};
  const auto row = [&](const char* name, const Change& sample, const RecordType* block) {
    return Row{"CMD_REPORT_ALARM", name, kRecordType<Alarm>, {sample}, block};
  };
  return {row("any alarm", with(1, nullptr), nullptr), row("alarms 38, 39", with(38, &face), &blocks[0]),
          row("alarms 44, 45", with(44, &animal), &blocks[1])};
}

Row ptzRow(const char* command) {
  using Command = PTZ_CONTROL_PTZ_CMD_PARAM;
  const PtzMessage& message = *findSubCommand(command);
  static std::vector<char> block(1 << 16, '\1');
  const auto sample = [=](char* record) {
    std::memset(record + offsetof(Command, cmd), 0, sizeof Command::cmd);
    std::memcpy(record + offsetof(Command, cmd), command, std::strlen(command));
    leaveAt(record, offsetof(Command, pExData), block.data());
  };
  const RecordType* const extra = message.block.size == 0 ? nullptr : &message.block;
  return {PTZ_CONTROL_MESSAGE_CODE, message.name, kRecordType<Command>, {sample}, extra, command};
}

std::vector<Row> ptzRows() {
  std::vector<Row> rows;
  for (const char* command : {
#include "ptz_commands.inc"
       }) {
    rows.push_back(ptzRow(command));
  }
  return rows;
}

// All lines of a heartbeat fit the header together only when its texts are short.
std::vector<Row> heartbeatRows() {
  using Heartbeat = KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM;
  const auto brief = [](char* record) {
    auto& heartbeat = *reinterpret_cast<Heartbeat*>(record);
    for (char* text : {heartbeat.Ipcs_stat, heartbeat.streamstat, heartbeat.IpcAbility1, heartbeat.IpcProtoCol}) {
      std::strcpy(text, "1");
    }
  };
  return {{HEARTBEAT_MESSAGE_CODE, "heartbeat", kRecordType<Heartbeat>, {brief}}};
}

std::vector<Row> logRows() {
  const auto command = [](char* record) {
    auto& log = *reinterpret_cast<SYSTEM_LOG_PARAM*>(record);
    log.Filename[0] = '\0';
    log.RespDataLen = -1;
  };
  return {{"any", "SystemLogMessage", kRecordType<SYSTEM_LOG_PARAM>, {nullptr, command}}};
}

std::vector<Row> repairRows() {
  // The record is the algorithm's when this field is set.
  const auto withAlgorithm = [](char set) {
    return [=](char* record) { record[offsetof(IPC_REPAIR_PARAM, Alm)] = set; };
  };
  const RecordType record = kRecordType<IPC_REPAIR_PARAM>;
  return {{"any", "firmware", record, {withAlgorithm('\0')}}, {"any", "algorithm", record, {withAlgorithm('1')}}};
}

// The messages of a family that is no code table.
std::vector<Row> rowsOutside(const Family& family) {
  if (&family == &kHeartbeat) return heartbeatRows();
  if (&family == &kUserAuth) return {{"any", "UserAuthMessage", kRecordType<USER_AUTH_CMD_USER_AUTH_PARAM>}};
  if (&family == &kSystemEncrypt) return {{"any", "SystemEncryptMessage", kRecordType<SYSTEM_ENCRYPT_150_PARAM>}};
  if (&family == &kSystemLog) return logRows();
  if (&family == &kDebugText) return {{"any", "free text in the body", kRecordType<DBG_CMD_PARAM>}};
  if (&family == &kDebugSwitch) return {{"any", "no body"}};
  if (&family == &kPtzControl) return ptzRows();
  if (&family == &kAlarmReport) return alarmRows();
  if (&family == &kIpcRepair) return repairRows();
  if (&family == &kReverseAudio) {
    return {{"CMD_RA_START", "ReverseAudioMessage", kRecordType<REVERSE_AUDIO_CMD_RA_START_PARAM>},
            {"544", "ReverseAudioMessage", kRecordType<REVERSE_AUDIO_CMD_RA_START_PARAM>},
            {"CMD_RA_STOP", "ReverseAudioMessage", kRecordType<REVERSE_AUDIO_CMD_RA_STOP_PARAM>},
            {"545", "ReverseAudioMessage", kRecordType<REVERSE_AUDIO_CMD_RA_STOP_PARAM>}};
  }
  if (&family == &kLiveStream) {
    return {{"CMD_STREAM_START", "LiveStreamCmdStartMessage", kRecordType<LIVE_STREAM_CMD_STREAM_START_PARAM>},
            {"1062", "LiveStreamCmdStartMessage", kRecordType<LIVE_STREAM_CMD_STREAM_START_PARAM>},
            {"CMD_STREAM_STOP", "LiveStreamCmdStopMessage", kRecordType<LIVE_STREAM_CMD_STREAM_STOP_PARAM>},
            {"CMD_STREAM_QUALITY", "LiveStreamCmdQualityMessage", kRecordType<LIVE_STREAM_CMD_STREAM_STOP_PARAM>}};
  }
  fail("a family without messages");
}

void addNew(Names& names, const std::string& name) {
  if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
}

bool isNameCharacter(char c) { return std::strchr("/<>=\" \n", c) == nullptr; }

std::string nameAt(const std::string& text, std::size_t at) {
  std::size_t end = at;
  while (end < text.size() && isNameCharacter(text[end])) ++end;
  return text.substr(at, end - at);
}

std::string between(const std::string& text, const char* opening, const char* closing) {
  const std::size_t begin = text.find(opening);
  const std::size_t from = begin == std::string::npos ? text.size() : begin + std::strlen(opening);
  return text.substr(from, text.find(closing, from) - from);
}

// The elements of MESSAGE_BODY, and behind an @ the further attributes of MESSAGE_HEADER.
void addElements(const std::string& document, Names& names) {
  const std::string header = between(document, "<MESSAGE_HEADER\n", "/>");
  for (std::size_t line = 0; line < header.size(); line = header.find('\n', line) + 1) {
    const std::string name = nameAt(header, line);
    if (!name.empty() && name.compare(0, 4, "Msg_") != 0) addNew(names, "@" + name);
  }
  const std::string body = between(document, "<MESSAGE_BODY>", "</MESSAGE_BODY>");
  for (std::size_t at = body.find('<'); at != std::string::npos; at = body.find('<', at + 1)) {
    const std::string name = nameAt(body, at + 1);
    if (!name.empty()) addNew(names, name);
  }
}

// Which elements there are depends on counts, kinds and on what is set, so many records are tried: bytes of one value,
// and numbers of one value.
std::vector<std::vector<char>> filledRecords(std::size_t size) {
  std::vector<std::vector<char>> records;
  for (const int byte : {1, 2, 3, 65, 255}) records.emplace_back(size, static_cast<char>(byte));
  for (char number = 0; number < 10; ++number) {
    std::vector<char>& record = records.emplace_back(size, '\0');
    for (std::size_t i = 0; i < size; i += sizeof(std::int32_t)) record[i] = number;
  }
  return records;
}

Names elementsOf(const char* type, const Row& row, int direction) {
  KOV_PROTOCOL_HEADER header;
  std::strcpy(header.Msg_type, type);
  std::strcpy(header.Msg_code, row.code.c_str());
  std::vector<char> out(kRoom);
  Names names;
  for (const Change& sample : row.samples) {
    for (std::vector<char>& record : filledRecords(row.record.size)) {
      if (sample) sample(record.data());
      const void* const param = record.empty() ? nullptr : record.data();
      const int length = KovProtocolXMLCompose(&header, param, direction, KOV_PLAIN, nullptr, out.data(), kRoom);
      if (length == KOV_ERROR_UNKNOWN_MESSAGE) fail(std::string(type) + " does not know " + row.code);
      if (length > 0) addElements({out.data(), static_cast<std::size_t>(length)}, names);
    }
  }
  return names;
}

std::string cell(const Names& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name;
  return text.empty() ? "-" : text;
}

std::string link(const RecordType& type) {
  if (type.size == 0) return "-";
  const RecordName& record = recordName(type);
  return "[" + std::string(record.name) + "](../include/kov_protocol/" + record.header + ")";
}

// Codes that say the same share a line.
void writeRows(const char* type, const std::vector<Row>& rows, std::ostream& page) {
  std::vector<std::pair<std::string, Names>> lines;
  for (const Row& row : rows) {
    const std::string rest =
        " | " + row.name + " | " + link(row.record) + (row.block == nullptr ? "" : ", " + link(*row.block)) + " | " +
        cell(elementsOf(type, row, KOV_REQUEST)) + " | " + cell(elementsOf(type, row, KOV_RESPONSE)) + " |\n";
    const auto same = [&](const auto& line) { return line.first == rest; };
    auto line = std::find_if(lines.begin(), lines.end(), same);
    if (line == lines.end()) line = lines.insert(line, {rest, {}});
    line->second.push_back(row.label.empty() ? row.code : row.label);
  }
  page << "| code | message | record | elements of the request | elements of the response |\n|---|---|---|---|---|\n";
  for (const auto& [rest, codes] : lines) page << "| " << cell(codes) << rest;
}

// The one code whose message does not stand in its table.
const Message* messageOf(const CodeRow& row) {
  return row.message == nullptr && row.code == 1014 ? &kGetIpcStorageCfg : row.message;
}

void checkBodiless(const char* type, int code) {
  const RecordType any = {kRoom, nullptr};
  for (const int direction : {KOV_REQUEST, KOV_RESPONSE}) {
    if (!elementsOf(type, {std::to_string(code), "", any}, direction).empty()) {
      fail(std::string(type) + " " + std::to_string(code) + " has a body, but no message in its table");
    }
  }
}

void writeTable(const char* type, const CodeTable& table, std::ostream& page) {
  std::map<int, const Message*> codes;
  for (std::size_t i = 0; i < table.groupCount(); ++i) {
    for (const CodeRow& row : table.group(i)) codes[row.code] = messageOf(row);
  }
  std::vector<Row> rows;
  Names bodiless;
  for (const auto& [code, message] : codes) {
    if (message == nullptr) {
      checkBodiless(type, code);
      bodiless.push_back(std::to_string(code));
    } else {
      rows.push_back({std::to_string(code), message->name(), message->record()});
    }
  }
  writeRows(type, rows, page);
  if (!bodiless.empty()) page << "\nKnown codes without a body: " << cell(bodiless) << ".\n";
}

// All types of a family share a section, which stands where the first of them does.
bool isFirstOfFamily(const FamilyRow& row) {
  for (const FamilyRow& other : families()) {
    if (other.family == row.family) return &other == &row;
  }
  return false;
}

void writeFamily(const FamilyRow& row, std::ostream& page) {
  Names types;
  for (const FamilyRow& other : families()) {
    if (other.family == row.family) addNew(types, other.msgType);
  }
  page << "\n## " << cell(types) << "\n\n";
  if (row.framing == Framing::Bare) page << "Leaves without a frame header.\n\n";
  if (row.family == &kPtzControl)
    page << "Msg_code is " PTZ_CONTROL_MESSAGE_CODE "; the first column names the sub-commands.\n\n";
  if (row.family->codes != nullptr) {
    writeTable(row.msgType, *row.family->codes, page);
  } else {
    writeRows(row.msgType, rowsOutside(*row.family), page);
  }
}

constexpr const char* kIntroduction = R"(# Messages

<!-- Written by scripts/update-tables; the tests compare it with the library. -->

Every message by Msg_type and Msg_code, with the record that compose takes and analysis hands out; a second record is
the one that its pointer names. The elements are all those that compose writes into MESSAGE_BODY, depending on what the
record holds, in the order of their first appearance: `@` marks a further attribute of MESSAGE_HEADER, and `-` stands
where there are none. Messages that ignore the direction write the same in both. The fields are documented in the
headers.

A message of the type TRANSPARENT_CHANNEL_MSG carries another one unread; its record is
[TRANSPARENT_HEADER](../include/kov_protocol/kov_protocol.h).
)";

}  // namespace

std::string writtenPage() {
  std::ostringstream page;
  page << kIntroduction;
  for (const FamilyRow& row : families()) {
    if (isFirstOfFamily(row)) writeFamily(row, page);
  }
  return page.str();
}

}  // namespace kov::tools

int main(int count, char** arguments) {
  return kov::tools::compareOrWrite(count, arguments, kov::tools::writtenPage());
}
