// A camera reports that it saw a face, with the face's feature data, and a recorder reads both.
//
// The feature data is binary and does not fit into XML: it travels raw behind the document, inside the same frame. The
// library composes the document and counts the data in the frame's length; the application sends it.
#include <kov_protocol/alarm_report.h>

#include "example_frames.h"

using example::require;

namespace {

using Alarm = ALARM_REPORT_CMD_RPEORT_ALARM_PARAM;
using Face = ALARM_REPORT_HUMAN_FACE_INFO;

constexpr int kFaceSeen = 38;
constexpr std::uint8_t kAlgorithms[] = {1, 2};  // the first makes the shorter data
constexpr std::size_t kZeros = 4;               // between the document and the feature data

// The algorithm that made the data decides how much of it there is.
std::size_t featureSize(const Face& face) {
  return face.AlgVer == 1 ? ALARM_REPORT_SHORT_FEATURE_SIZE : ALARM_REPORT_FEATURE_SIZE;
}

Face seenFace(std::uint8_t algorithm) {
  Face face;
  face.Age = 41;
  face.IsGlasses = 1;
  face.AlgVer = algorithm;
  face.SerialNum = 7;
  face.faceQualityScore = 0.75F;
  example::put(face.uniqueIndex, "2026-11-21/000007");
  face.DataLen = static_cast<std::uint32_t>(featureSize(face));
  // Every byte value occurs, NUL and '<' too: nothing may take the data for text.
  for (std::size_t i = 0; i < featureSize(face); ++i) face.feature[i] = static_cast<std::uint8_t>(i * 7 + algorithm);
  return face;
}

void sendAlarm(int socket, Face& face) {
  Alarm alarm;
  alarm.Src = 1;
  alarm.ChannelId = 3;
  alarm.Alarm_code = kFaceSeen;
  alarm.Alarm_flag = 1;
  alarm.pExData = &face;  // stays ours; compose takes it for a face because of Alarm_code
  const auto header = example::headerOf(ALARM_REPORT_MESSAGE_TYPE, ALARM_REPORT_MESSAGE_CODE);
  std::vector<char> frame = example::composeFrame(header, &alarm, KOV_REQUEST);

  // What the frame announces is more than was composed: the rest is for us to append.
  const std::size_t appended = kZeros + featureSize(face);
  require(example::announcedLength(frame.data()) == frame.size() - KOV_FRAME_HEADER_SIZE + appended,
          "a length that counts the feature data");
  frame.insert(frame.end(), kZeros, '\0');
  frame.insert(frame.end(), face.feature, face.feature + featureSize(face));
  example::sendAll(socket, frame.data(), frame.size());
}

void receiveAlarm(int socket, const Face& sent) {
  const example::Received message(socket);
  require(std::strcmp(message.header.Msg_code, ALARM_REPORT_MESSAGE_CODE) == 0, "an alarm");
  const auto& alarm = message.as<Alarm>();
  require(alarm.Alarm_code == kFaceSeen && alarm.ChannelId == 3, "a face on channel 3");
  // The face stands in the same block as the alarm, and goes with it.
  require(alarm.pExData != nullptr, "an extra record");
  const auto& face = *static_cast<const Face*>(alarm.pExData);
  require(face.Age == sent.Age && face.Gender == sent.Gender && face.IsGlasses == sent.IsGlasses, "the face's looks");
  require(std::strcmp(face.uniqueIndex, sent.uniqueIndex) == 0, "the face's index");
  require(face.faceQualityScore == sent.faceQualityScore, "the face's score");
  require(face.DataLen == featureSize(sent), "the length of the feature data");
  require(std::memcmp(face.feature, sent.feature, sizeof face.feature) == 0, "the feature data, bit for bit");
  std::printf("channel %d: age %d, %u bytes of feature data\n", alarm.ChannelId, face.Age, face.DataLen);
}

}  // namespace

int main() {
  const example::Connection connection;
  for (const std::uint8_t algorithm : kAlgorithms) {
    Face face = seenFace(algorithm);
    sendAlarm(connection.device(), face);
    receiveAlarm(connection.client(), face);
  }
  return EXIT_SUCCESS;
}
