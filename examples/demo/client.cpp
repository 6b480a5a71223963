// The client: searches, logs in, asks, and compares each answer with what the recorder holds.
#include <cstdio>

#include "held.h"
#include "roles.h"

namespace demo {
namespace {

// Title of a step.
void begin(const std::string& step) {
  std::printf("\n--- %s\n", step.c_str());
  std::fflush(stdout);
}

// An answer bears the mark of its question, and is coded like it.
void requireAnswer(const Received& got, const KOV_PROTOCOL_HEADER& expected, Coding coding) {
  require(got.is(expected.Msg_type, expected.Msg_code),
          std::string("the answer is ") + got.header.Msg_type + " " + got.header.Msg_code);
  require(std::string(expected.Msg_flag) == got.header.Msg_flag, "the answer is to another question");
  require(got.coding == coding, "the answer is coded in another way");
}

// Finds the recorder and returns the port that it takes commands at.
int search(int searchPort) {
  begin("search");
  SearchLink link("client", openUdpTo(searchPort));
  SYSTEM_SEARCHIPC_1_PARAM wanted;
  put(wanted.VendorId, held::kVendor);
  link.ask(headerOf(SYSTEM_SEARCHIPC_MESSAGE_TYPE, "1", "search"), &wanted);
  const Received got = link.receive();
  requireAnswer(got, headerOf(SYSTEM_SEARCHIPC_MESSAGE_TYPE, "3", "search"), Coding::Plain);
  const auto& found = shown<SYSTEM_SEARCHIPC_3_PARAM>(got);
  const int port = found.StreamAccess.PTZPort;  // not known beforehand: that a recorder answers there proves it
  require(port > 0 && port < 65536, "the recorder tells no port for commands");
  requireSame(fieldsOf(found), fieldsOf(held::identity(port)));
  return port;
}

class Client {
 public:
  explicit Client(int port) : link_("client", connectTcp(port)) {}

  void logIn();
  void configureKey();
  void heartbeat();
  void watchLive();
  void playFile();
  void fetchLog();
  void queryRecordings(Coding coding);
  void playBack(Coding coding);

 private:
  // A header with a mark that no other question has.
  KOV_PROTOCOL_HEADER question(const std::string& type, const std::string& code) {
    return headerOf(type, code, "question-" + std::to_string(++asked_));
  }

  Received receive(const KOV_PROTOCOL_HEADER& expected, Coding coding) {
    std::optional<Received> got = link_.receive();
    require(got.has_value(), "the recorder closed the connection");
    requireAnswer(*got, expected, coding);
    return std::move(*got);
  }

  template <class Record>
  void expect(const KOV_PROTOCOL_HEADER& header, const Record& expected, Coding coding) {
    const Received got = receive(header, coding);
    requireSame(fieldsOf(shown<Record>(got)), fieldsOf(expected));
  }

  template <class Record>
  void ask(const KOV_PROTOCOL_HEADER& header, const Record& record, const Record& expected,
           Coding coding = Coding::Plain) {
    link_.send(header, &record, KOV_REQUEST, coding);
    expect(header, expected, coding);
  }

  void queryDay(const std::string& day, Coding coding);
  void queryMonth(const std::string& month, Coding coding);
  void querySeconds(Coding coding);

  Link link_;
  int asked_ = 0;
};

void Client::logIn() {
  begin("login, with a wrong and with the right password");
  USER_AUTH_CMD_USER_AUTH_PARAM login;
  put(login.Username, held::kUser);
  put(login.VendorId, held::kVendor);
  put(login.Capbility, "keyed");
  login.AuthMethod = 0;
  login.Version = 1;
  login.KeyTypeVer = 1;
  put(login.Password, "guessed");
  ask(question(USER_AUTH_MESSAGE_TYPE, "CMD_USER_AUTH"), login, USER_AUTH_CMD_USER_AUTH_PARAM());
  put(login.Password, held::kPassword);
  ask(question(USER_AUTH_MESSAGE_TYPE, "CMD_USER_AUTH"), login, held::session());
}

void Client::configureKey() {
  begin("key of the session");
  const std::string key = "0123456789abcdef";
  SYSTEM_ENCRYPT_150_PARAM config;
  put(config.KeyValue, key);
  config.KeyLen = static_cast<int>(key.size());
  SYSTEM_ENCRYPT_150_PARAM taken;
  taken.KeyLen = config.KeyLen;
  ask(question(SYSTEM_ENCRYPT_MESSAGE_TYPE, "150"), config, taken);
  link_.setKey(key);
}

// All that a heartbeat says stands in its header, in both directions.
void Client::heartbeat() {
  begin("heartbeat");
  KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM own;
  put(own.Ipcs_stat, "1");
  put(own.streamstat, "0");
  put(own.IpcAbility1, "3");
  put(own.IpcProtoCol, "1");
  ask(question(KOV_HEARTBEAT_MESSAGE_TYPE, HEARTBEAT_MESSAGE_CODE), own, held::state());
}

void Client::watchLive() {
  begin("live stream, started and stopped");
  LIVE_STREAM_CMD_STREAM_START_PARAM start;
  start.ChannelId = held::kChannel;
  start.VideoStream = 1;
  start.AudioEnable = 1;
  start.Multicast = 1;
  ask(question(LIVE_STREAM_MESSAGE_TYPE, "CMD_STREAM_START"), start, held::liveStream());
  LIVE_STREAM_CMD_STREAM_STOP_PARAM stop;
  stop.ChannelId = held::kChannel;
  stop.StreamID = held::liveStream().StreamID;
  ask(question(LIVE_STREAM_MESSAGE_TYPE, "CMD_STREAM_STOP"), stop, stop);
}

void Client::queryDay(const std::string& day, Coding coding) {
  NVR_REPLAY_3001_PARAM query;
  query.ChannelId = held::kChannel;
  put(query.Time, day);
  NVR_REPLAY_3001_PARAM recorded = query;
  put(recorded.Stream, held::minutesOf(held::kChannel, day));
  ask(question(NVR_REPLAY_MESSAGE_TYPE, "3001"), query, recorded, coding);
}

void Client::queryMonth(const std::string& month, Coding coding) {
  NVR_REPLAY_3016_PARAM query;
  query.ChannelId = held::kChannel;
  put(query.Time, month);
  NVR_REPLAY_3016_PARAM recorded = query;
  put(recorded.RecordData, held::daysOf(held::kChannel, month));
  ask(question(NVR_REPLAY_MESSAGE_TYPE, "3016"), query, recorded, coding);
}

// The slices come in packets, each a message of its own.
void Client::querySeconds(Coding coding) {
  NVR_REPLAY_3017_PARAM query;
  query.ChannelId = held::kChannel;
  query.SequenceNumber = 7;
  put(query.Time, held::kDay);
  const KOV_PROTOCOL_HEADER header = question(NVR_REPLAY_MESSAGE_TYPE, "3017");
  link_.send(header, &query, KOV_REQUEST, coding);
  NVR_REPLAY_3017_PARAM packet = query;
  packet.TotalPacketNum = static_cast<int>(held::kSlices.size());
  packet.CurrentPacket = 0;
  for (const std::string& slice : held::kSlices) {
    put(packet.TimeSliceInfo, slice);
    expect(header, packet, coding);
    ++packet.CurrentPacket;
  }
}

void Client::queryRecordings(Coding coding) {
  begin(std::string("recordings by day, month and second, ") + (coding == Coding::Plain ? "plain" : "encoded"));
  queryDay(held::kDay, coding);
  queryDay("2026-11-22", coding);  // nothing was recorded
  queryMonth(held::kMonth, coding);
  querySeconds(coding);
}

// The answer to a start names the channel only.
void Client::playBack(Coding coding) {
  begin(std::string("playback, started and controlled, ") + (coding == Coding::Plain ? "plain" : "encoded"));
  NVR_REPLAY_3002_PARAM start;
  start.ChannelId = held::kChannel;
  start.RecType = 0xFF;
  start.AudioEnable = 1;
  put(start.Time, held::kDay + " 08:00:00");
  NVR_REPLAY_3002_PARAM started;
  started.ChannelId = held::kChannel;
  ask(question(NVR_REPLAY_MESSAGE_TYPE, "3002"), start, started, coding);
  NVR_REPLAY_3003_PARAM control;
  control.ChannelId = held::kChannel;
  ask(question(NVR_REPLAY_MESSAGE_TYPE, "3003"), control, control, coding);
}

void Client::playFile() {
  begin("replay of a file");
  REPLAY_CONTROL_PARAM control;
  put(control.FileName, held::kFile);
  control.StartPos = 60;
  control.PlayParam = 2;
  ask(question(REPLAY_CONTROL_MESSAGE_TYPE, "1"), control, control);
}

// The log comes in pieces of raw data behind the documents, and analysis puts them into the records.
void Client::fetchLog() {
  begin("log file, raw data behind the documents");
  SYSTEM_LOG_PARAM wanted;
  put(wanted.Cmd, "send " + held::kLogName);
  KOV_PROTOCOL_HEADER header = question(SYSTEM_LOG_MESSAGE_TYPE, "1");
  link_.send(header, &wanted, KOV_REQUEST, Coding::Plain);
  put(header.Msg_type, SYSTEM_LOG_DATA_TYPE);
  const std::string whole = held::logFile();
  std::string file;
  while (file.size() < whole.size()) {
    const Received got = receive(header, Coding::Plain);
    const auto& piece = shown<SYSTEM_LOG_PARAM>(got);
    require(piece.Filename == held::kLogName && piece.StartPos == static_cast<int>(file.size()), "another piece");
    require(piece.DataLen > 0 && static_cast<std::size_t>(piece.DataLen) <= sizeof piece.Data, "no such length");
    file.append(piece.Data, static_cast<std::size_t>(piece.DataLen));
  }
  require(file == whole, "the log differs from what the recorder holds");
  std::printf("client: all %zu bytes of the log are those of the recorder\n", file.size());
}

}  // namespace

void runClient(int searchPort) {
  Client client(search(searchPort));
  client.logIn();
  client.configureKey();
  client.heartbeat();
  client.watchLive();
  for (const Coding coding : {Coding::Plain, Coding::Keyed}) {
    client.queryRecordings(coding);
    client.playBack(coding);
  }
  client.playFile();
  client.fetchLog();
  std::printf("\nclient: every answer is what the recorder holds\n");
}

}  // namespace demo
