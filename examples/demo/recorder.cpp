// The recorder: answers a search, then the messages of one session.
#include <cstdio>
#include <fstream>
#include <stdexcept>

#include "held.h"
#include "roles.h"

namespace demo {
namespace {

class Recorder {
 public:
  explicit Recorder(Link link) : link_(std::move(link)) {}

  // Until the client closes the connection.
  void serve() {
    while (const std::optional<Received> asked = link_.receive()) answer(*asked);
  }

 private:
  using Answer = void (Recorder::*)(const Received&);
  struct Row {
    const char* type;
    const char* code;
    Answer answer;
  };
  static const Row kRows[];

  void answer(const Received& asked);

  template <class Record>
  void reply(const Received& asked, const Record& record) {
    link_.send(asked.header, &record, KOV_RESPONSE, asked.coding);
  }

  void logIn(const Received& asked);
  void takeKey(const Received& asked);
  void heartbeat(const Received& asked);
  void startLive(const Received& asked);
  void stopLive(const Received& asked);
  void queryDay(const Received& asked);
  void queryMonth(const Received& asked);
  void querySeconds(const Received& asked);
  void startPlayback(const Received& asked);
  void controlPlayback(const Received& asked);
  void playFile(const Received& asked);
  void sendLog(const Received& asked);

  Link link_;
  bool loggedIn_ = false;
  bool live_ = false;
  bool playing_ = false;
};

const Recorder::Row Recorder::kRows[] = {
    {USER_AUTH_MESSAGE_TYPE, "CMD_USER_AUTH", &Recorder::logIn},
    {SYSTEM_ENCRYPT_MESSAGE_TYPE, "150", &Recorder::takeKey},
    {KOV_HEARTBEAT_MESSAGE_TYPE, HEARTBEAT_MESSAGE_CODE, &Recorder::heartbeat},
    {LIVE_STREAM_MESSAGE_TYPE, "CMD_STREAM_START", &Recorder::startLive},
    {LIVE_STREAM_MESSAGE_TYPE, "CMD_STREAM_STOP", &Recorder::stopLive},
    {NVR_REPLAY_MESSAGE_TYPE, "3001", &Recorder::queryDay},
    {NVR_REPLAY_MESSAGE_TYPE, "3016", &Recorder::queryMonth},
    {NVR_REPLAY_MESSAGE_TYPE, "3017", &Recorder::querySeconds},
    {NVR_REPLAY_MESSAGE_TYPE, "3002", &Recorder::startPlayback},
    {NVR_REPLAY_MESSAGE_TYPE, "3003", &Recorder::controlPlayback},
    {REPLAY_CONTROL_MESSAGE_TYPE, "1", &Recorder::playFile},
    {SYSTEM_LOG_MESSAGE_TYPE, "1", &Recorder::sendLog},
};

void Recorder::answer(const Received& asked) {
  for (const Row& row : kRows) {
    if (!asked.is(row.type, row.code)) continue;
    require(loggedIn_ || row.answer == &Recorder::logIn, "asked before the login");
    return (this->*row.answer)(asked);
  }
  throw std::runtime_error(std::string("the recorder does not know ") + asked.header.Msg_type + " " +
                           asked.header.Msg_code);
}

// Who is refused gets an answer without a session.
void Recorder::logIn(const Received& asked) {
  const auto& login = shown<USER_AUTH_CMD_USER_AUTH_PARAM>(asked);
  loggedIn_ = login.Username == held::kUser && login.Password == held::kPassword;
  reply(asked, loggedIn_ ? held::session() : USER_AUTH_CMD_USER_AUTH_PARAM());
}

// The key is confirmed by its length, and does not travel again.
void Recorder::takeKey(const Received& asked) {
  const auto& config = shown<SYSTEM_ENCRYPT_150_PARAM>(asked);
  const std::string key = config.KeyValue;
  SYSTEM_ENCRYPT_150_PARAM taken;
  taken.KeyLen = static_cast<int>(key.size());
  require(taken.KeyLen == config.KeyLen, "a key of another length than announced");
  reply(asked, taken);
  link_.setKey(key);
}

void Recorder::heartbeat(const Received& asked) {
  shown<KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM>(asked);
  reply(asked, held::state());
}

void Recorder::startLive(const Received& asked) {
  const auto& start = shown<LIVE_STREAM_CMD_STREAM_START_PARAM>(asked);
  const auto stream = held::liveStream();
  require(start.ChannelId == stream.ChannelId && start.VideoStream == stream.VideoStream, "no such live stream");
  live_ = true;
  reply(asked, stream);
}

void Recorder::stopLive(const Received& asked) {
  const auto& stop = shown<LIVE_STREAM_CMD_STREAM_STOP_PARAM>(asked);
  require(live_ && stop.StreamID == held::liveStream().StreamID, "that stream is not live");
  live_ = false;
  reply(asked, stop);
}

void Recorder::queryDay(const Received& asked) {
  NVR_REPLAY_3001_PARAM answer = shown<NVR_REPLAY_3001_PARAM>(asked);
  put(answer.Stream, held::minutesOf(answer.ChannelId, answer.Time));
  reply(asked, answer);
}

void Recorder::queryMonth(const Received& asked) {
  NVR_REPLAY_3016_PARAM answer = shown<NVR_REPLAY_3016_PARAM>(asked);
  put(answer.RecordData, held::daysOf(answer.ChannelId, answer.Time));
  reply(asked, answer);
}

// One question, several answers: a packet for each slice.
void Recorder::querySeconds(const Received& asked) {
  NVR_REPLAY_3017_PARAM answer = shown<NVR_REPLAY_3017_PARAM>(asked);
  require(answer.ChannelId == held::kChannel && answer.Time == held::kDay, "nothing was recorded then");
  answer.TotalPacketNum = static_cast<int>(held::kSlices.size());
  answer.CurrentPacket = 0;
  for (const std::string& slice : held::kSlices) {
    put(answer.TimeSliceInfo, slice);
    reply(asked, answer);
    ++answer.CurrentPacket;
  }
}

void Recorder::startPlayback(const Received& asked) {
  const auto& start = shown<NVR_REPLAY_3002_PARAM>(asked);
  require(start.ChannelId == held::kChannel && start.Time == held::kDay + " 08:00:00", "nothing was recorded then");
  playing_ = true;
  reply(asked, start);
}

void Recorder::controlPlayback(const Received& asked) {
  const auto& control = shown<NVR_REPLAY_3003_PARAM>(asked);
  require(playing_ && control.ChannelId == held::kChannel, "that channel does not play");
  reply(asked, control);
}

void Recorder::playFile(const Received& asked) {
  const auto& control = shown<REPLAY_CONTROL_PARAM>(asked);
  require(control.FileName == held::kFile, "no such file");
  reply(asked, control);
}

// Each piece is raw data behind a document that names its place in the file; four zero bytes separate the two. It is
// the request form that has such a place, and that the receiver takes raw data with.
void Recorder::sendLog(const Received& asked) {
  const auto& wanted = shown<SYSTEM_LOG_PARAM>(asked);
  require(wanted.Cmd == "send " + held::kLogName, "no such log");
  KOV_PROTOCOL_HEADER header = asked.header;
  put(header.Msg_type, SYSTEM_LOG_DATA_TYPE);
  const std::string file = held::logFile();
  for (std::size_t at = 0; at < file.size(); at += held::kLogPiece) {
    const std::string data = file.substr(at, held::kLogPiece);
    SYSTEM_LOG_PARAM piece;
    put(piece.Filename, held::kLogName);
    piece.StartPos = static_cast<int>(at);
    piece.DataLen = static_cast<int>(data.size());
    link_.send(header, &piece, KOV_REQUEST, Coding::Plain, std::string(4, '\0') + data);
  }
}

// The address goes into place as a whole: who waits for the file never reads half of it.
void tellPort(const std::string& portFile, int port) {
  const std::string written = portFile + ".part";
  std::ofstream(written) << port << '\n';
  require(std::rename(written.c_str(), portFile.c_str()) == 0, "cannot write the port file");
}

void answerSearch(SearchLink& search, int controlPort) {
  const Received asked = search.receive();
  require(asked.is(SYSTEM_SEARCHIPC_MESSAGE_TYPE, "1"), "not a search");
  require(shown<SYSTEM_SEARCHIPC_1_PARAM>(asked).VendorId == held::kVendor, "another vendor's devices are searched");
  const SYSTEM_SEARCHIPC_3_PARAM identity = held::identity(controlPort);
  search.answer(headerOf(SYSTEM_SEARCHIPC_MESSAGE_TYPE, "3", asked.header.Msg_flag), &identity);
}

}  // namespace

void runRecorder(const std::string& portFile) {
  const Socket listener = listenTcp();
  Socket searched = openUdp();
  tellPort(portFile, searched.port());
  SearchLink search("recorder", std::move(searched));
  answerSearch(search, listener.port());
  Recorder(Link("recorder", acceptTcp(listener))).serve();
}

}  // namespace demo
