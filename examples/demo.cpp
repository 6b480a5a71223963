// A client and a recorder that talk over loopback TCP with this library. Run them as two processes:
//   kov_demo recorder PORT_FILE    waits for one client, having written its port to the file
//   kov_demo client PORT           asks, and compares each answer with what the recorder holds
#include <kov_protocol/nvr_replay.h>

#include <fstream>

#include "demo_link.h"

namespace {

using demo::Coding;
using demo::Link;
using demo::put;
using demo::Received;
using demo::require;

int sharedKey = 0;  // stands for the key that both sides hold

// What the recorder holds: channel 3 recorded from 8:00 to 8:02 on the 21st of the month.
constexpr int kChannel = 3;
const std::string kDay = "2026-11-21";
const std::string kMonth = "2026-11";
const std::string kSlices[] = {"[08:00:00-08:00:59]", "[08:01:00-08:01:59]"};
constexpr int kPackets = 2;

std::string minutesOfDay() {
  std::string minutes(1440, '0');
  minutes[480] = minutes[481] = '1';
  return minutes;
}

std::string daysOfMonth() {
  std::string days(30, '0');
  days[20] = '1';
  return days;
}

KOV_PROTOCOL_HEADER headerFor(const char* code) {
  KOV_PROTOCOL_HEADER header;
  KOV_PROTOCOL_HEADER_init(&header);
  put(header.Msg_type, NVR_REPLAY_MESSAGE_TYPE);
  put(header.Msg_code, code);
  put(header.Msg_flag, "demo");
  return header;
}

// The recorder's side: each function answers one request.

void answerDay(Link& link, const Received& asked) {
  const auto& query = asked.as<NVR_REPLAY_3001_PARAM>();
  std::printf(" channel %d, day %s\n", query.ChannelId, query.Time);
  NVR_REPLAY_3001_PARAM answer = query;
  if (query.ChannelId == kChannel && query.Time == kDay) put(answer.Stream, minutesOfDay());
  link.send(asked.header, &answer, KOV_RESPONSE, asked.coding);
}

void answerMonth(Link& link, const Received& asked) {
  const auto& query = asked.as<NVR_REPLAY_3016_PARAM>();
  std::printf(" channel %d, month %s\n", query.ChannelId, query.Time);
  NVR_REPLAY_3016_PARAM answer = query;
  if (query.ChannelId == kChannel && query.Time == kMonth) put(answer.RecordData, daysOfMonth());
  link.send(asked.header, &answer, KOV_RESPONSE, asked.coding);
}

void answerSeconds(Link& link, const Received& asked) {
  const auto& query = asked.as<NVR_REPLAY_3017_PARAM>();
  std::printf(" channel %d, day %s, sequence %u\n", query.ChannelId, query.Time, query.SequenceNumber);
  for (int packet = 0; packet < kPackets; ++packet) {
    NVR_REPLAY_3017_PARAM answer = query;
    answer.TotalPacketNum = kPackets;
    answer.CurrentPacket = packet;
    put(answer.TimeSliceInfo, kSlices[packet]);
    link.send(asked.header, &answer, KOV_RESPONSE, asked.coding);
  }
}

void answerStart(Link& link, const Received& asked) {
  const auto& start = asked.as<NVR_REPLAY_3002_PARAM>();
  std::printf(" channel %d, from %s, record types %x, audio %d\n", start.ChannelId, start.Time,
              static_cast<unsigned>(start.RecType), start.AudioEnable);
  link.send(asked.header, &start, KOV_RESPONSE, asked.coding);
}

void answerControl(Link& link, const Received& asked) {
  const auto& control = asked.as<NVR_REPLAY_3003_PARAM>();
  std::printf(" channel %d\n", control.ChannelId);
  link.send(asked.header, &control, KOV_RESPONSE, asked.coding);
}

void answer(Link& link, const Received& asked) {
  if (asked.code() == "3001") return answerDay(link, asked);
  if (asked.code() == "3016") return answerMonth(link, asked);
  if (asked.code() == "3017") return answerSeconds(link, asked);
  if (asked.code() == "3002") return answerStart(link, asked);
  if (asked.code() == "3003") return answerControl(link, asked);
  throw std::runtime_error("the recorder does not know " + asked.code());
}

int runRecorder(const char* portFile) {
  const int listener = demo::listenOnLoopback();
  const std::string written = std::string(portFile) + ".part";
  std::ofstream(written) << demo::portOf(listener) << '\n';
  require(std::rename(written.c_str(), portFile) == 0, "cannot write the port file");
  Link link("recorder", accept(listener, nullptr, nullptr), &sharedKey);
  close(listener);
  for (;;) {
    Received asked;
    if (!link.receive(asked)) return 0;
    answer(link, asked);
  }
}

// The client's side: each function asks, and checks what comes back.

void queryDay(Link& link, const Coding& coding) {
  NVR_REPLAY_3001_PARAM query;
  NVR_REPLAY_3001_PARAM_init(&query);
  query.ChannelId = kChannel;
  put(query.Time, kDay);
  link.send(headerFor("3001"), &query, KOV_REQUEST, coding);
  Received got;
  require(link.receive(got), "no answer");
  const auto& answered = got.as<NVR_REPLAY_3001_PARAM>();
  std::printf(" channel %d, day %s, %zu minutes\n", answered.ChannelId, answered.Time, std::strlen(answered.Stream));
  require(answered.ChannelId == kChannel && answered.Time == kDay && answered.Stream == minutesOfDay(),
          "the recorded minutes differ");
}

void queryMonth(Link& link, const Coding& coding) {
  NVR_REPLAY_3016_PARAM query;
  NVR_REPLAY_3016_PARAM_init(&query);
  query.ChannelId = kChannel;
  put(query.Time, kMonth);
  link.send(headerFor("3016"), &query, KOV_REQUEST, coding);
  Received got;
  require(link.receive(got), "no answer");
  const auto& answered = got.as<NVR_REPLAY_3016_PARAM>();
  std::printf(" days %s\n", answered.RecordData);
  require(answered.RecordData == daysOfMonth(), "the recorded days differ");
}

void querySeconds(Link& link, const Coding& coding) {
  NVR_REPLAY_3017_PARAM query;
  NVR_REPLAY_3017_PARAM_init(&query);
  query.ChannelId = kChannel;
  query.SequenceNumber = 7;
  put(query.Time, kDay);
  link.send(headerFor("3017"), &query, KOV_REQUEST, coding);
  for (int packet = 0; packet < kPackets; ++packet) {
    Received got;
    require(link.receive(got), "no answer");
    const auto& answered = got.as<NVR_REPLAY_3017_PARAM>();
    std::printf(" packet %d of %d: %s\n", answered.CurrentPacket, answered.TotalPacketNum, answered.TimeSliceInfo);
    require(answered.CurrentPacket == packet && answered.TotalPacketNum == kPackets && answered.SequenceNumber == 7 &&
                answered.TimeSliceInfo == kSlices[packet],
            "the time slices differ");
  }
}

void startPlayback(Link& link, const Coding& coding) {
  NVR_REPLAY_3002_PARAM start;
  NVR_REPLAY_3002_PARAM_init(&start);
  start.ChannelId = kChannel;
  start.RecType = 0xFF;
  start.AudioEnable = 1;
  put(start.Time, kDay + " 08:00:00");
  link.send(headerFor("3002"), &start, KOV_REQUEST, coding);
  Received got;
  require(link.receive(got), "no answer");
  const int channel = got.as<NVR_REPLAY_3002_PARAM>().ChannelId;
  std::printf(" channel %d plays\n", channel);
  require(channel == kChannel, "another channel was started");
}

void controlPlayback(Link& link, const Coding& coding) {
  NVR_REPLAY_3003_PARAM control;
  NVR_REPLAY_3003_PARAM_init(&control);
  control.ChannelId = kChannel;
  link.send(headerFor("3003"), &control, KOV_REQUEST, coding);
  Received got;
  require(link.receive(got), "no answer");
  const int channel = got.as<NVR_REPLAY_3003_PARAM>().ChannelId;
  std::printf(" channel %d obeys\n", channel);
  require(channel == kChannel && got.header.Msg_flag == std::string("demo"), "another channel was controlled");
}

int runClient(const char* port) {
  Link link("client", demo::connectToLoopback(std::atoi(port)), &sharedKey);
  for (const Coding& coding : {Coding{KOV_PLAIN, nullptr}, Coding{1, &sharedKey}}) {
    queryDay(link, coding);
    queryMonth(link, coding);
    querySeconds(link, coding);
    startPlayback(link, coding);
    controlPlayback(link, coding);
  }
  std::printf("client: every answer is what the recorder holds\n");
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const std::string role = argc == 3 ? argv[1] : "";
    if (role == "recorder") return runRecorder(argv[2]);
    if (role == "client") return runClient(argv[2]);
    std::fprintf(stderr, "usage: kov_demo recorder PORT_FILE | kov_demo client PORT\n");
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "kov_demo: %s\n", failure.what());
  }
  return 1;
}
