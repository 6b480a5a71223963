#include "kov_protocol/reverse_audio.h"

#include <cstring>

#include "every_message.h"
#include "trials.h"

namespace kov::test {
namespace {

using Start = REVERSE_AUDIO_CMD_RA_START_PARAM;
using Stop = REVERSE_AUDIO_CMD_RA_STOP_PARAM;

const std::string kType = REVERSE_AUDIO_MESSAGE_TYPE;
const AlsoTested kStart({kType, "544", kRecordType<Start>});
const AlsoTested kStop({kType, "CMD_RA_STOP", kRecordType<Stop>});

class ReverseAudioTest : public WireTest {};

TEST_F(ReverseAudioTest, StartNamesTheFormatDifferentlyInTheAnswer) {
  Start record = {1, 2, 8000, 0, "G711", "", 16, 5004};
  const std::string answer =
      "<RA_START_RESPONSE\nRTPRecvPort=\"5004\"\nAudioCodec=\"G711\"\nSamplerate=\"8000\"\nBitsPerSample=\"16\"\n"
      "Channels=\"1\"\nConnectionType=\"2\"/>\n";
  for (const int direction : {1, -1}) EXPECT_EQ(bodyOf(kType, "544", direction, &record), answer);
  auto read = analysed<Start>(kType, "544", answer);
  EXPECT_EQ(read.SampleRate, -1);  // lost: it is read under another spelling than it is written
  read.SampleRate = 8000;
  EXPECT_EQ(std::memcmp(&read, &record, sizeof read), 0);
  EXPECT_EQ(analysed<Start>(kType, "544", "<RA_START_RESPONSE SampleRate=\"7\"/>").SampleRate, 7);
  set(record.Sessionid, "s");
  read = analysed<Start>(kType, "CMD_RA_START", answer + golden("live/talk.txt"));
  EXPECT_EQ(std::memcmp(&read, &record, sizeof read), 0);
}

TEST_F(ReverseAudioTest, StopNamesItsSession) {
  Stop record;
  EXPECT_EQ(bodyOf(kType, "545", 0, &record), "");
  std::memset(record.Sessionid, 's', sizeof record.Sessionid);
  for (const int direction : {1, 4}) EXPECT_EQ(bodyOf(kType, "545", direction, &record), "");
  const auto read = analysed<Stop>(kType, "545", "<RA_STOP_PARAM Sessionid=\"" + std::string(68, 's') + "\"/>");
  EXPECT_EQ(std::memcmp(&read, &record, sizeof read), 0);
}

}  // namespace
}  // namespace kov::test
