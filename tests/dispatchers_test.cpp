// The exported dispatchers that choose a message by its number: what each refuses, and its codes without a body.
#include <climits>
#include <functional>
#include <iterator>
#include <sstream>

#include "kov_protocol/device_report.h"
#include "kov_protocol/nvr_internal.h"
#include "kov_protocol/nvr_produce_test.h"
#include "kov_protocol/nvr_replay.h"
#include "kov_protocol/replay_control.h"
#include "kov_protocol/reverse_audio.h"
#include "kov_protocol/system_config.h"
#include "kov_protocol/system_control.h"
#include "kov_protocol/system_searchipc.h"
#include "trials.h"

namespace kov::test {
namespace {

struct Dispatcher {
  std::string type;
  std::function<int(const void*, int, const char*, char*, int)> compose;
  std::function<int(const char*, const char*, void**)> analyse;
  std::string served;
  std::string others;  // without body, or unknown
};

int composeReplayControl(const void* record, int direction, const char* code, char* body, int size) {
  return ReplayControlMessageCompose(static_cast<const REPLAY_CONTROL_PARAM*>(record), direction, code, body, size);
}

const Dispatcher kDispatchers[] = {
    {DEVICE_REPORT_MESSAGE_TYPE, DeviceReportMessageCompose, DeviceReportMessageAnalysis, "3900", "3902"},
    {NVR_INTERNAL_MESSAGES_TYPE, NvrInternalMessageCompose, NvrInternalMessageAnalysis, "4002", "4003"},
    {NVR_PRODUCE_TEST_MESSAGE_TYPE, NvrProduceTestMessageCompose, NvrProduceTestMessageAnalysis, "4002",
     "4001 4009 4012"},
    {NVR_REPLAY_MESSAGE_TYPE, NvrReplayMessageCompose, NvrReplayMessageAnalysis, "3001",
     "3018 3000 abc 4294970297 9999"},
    {REPLAY_CONTROL_MESSAGE_TYPE, composeReplayControl, ReplayControlMessageAnalysis, "1", "13 -1"},
    {REVERSE_AUDIO_MESSAGE_TYPE, ReverseAudioMessageCompose, ReverseAudioMessageAnalysis, "545", "546 no"},
    {SYSTEM_CONFIG_GET_MESSAGE_TYPE, SystemConfigMessageCompose, SystemConfigMessageAnalysis, "3805",
     "abc 9999 320 3802"},
    {SYSTEM_CONTROL_MESSAGE_TYPE, SystemControlMessageCompose, SystemControlMessageAnalysis, "1014 1019",
     "828 1001 1002 1003 1007 1025 1027 1096 1097 1100 3010 3021 3022 3024 5010 5011 5012"},
    {SYSTEM_SEARCHIPC_MESSAGE_TYPE, SystemSearchipcMessageCompose, SystemSearchipcMessageAnalysis, "3",
     "9 10 11 20 0 12 102 -1"},
};

std::vector<std::string> wordsOf(const std::string& text) {
  std::istringstream words(text);
  return {std::istream_iterator<std::string>(words), {}};
}

class Dispatchers : public WireTest {
 protected:
  void tell(const std::string& call, const Outcome& outcome) { told_ += call + " " + outcome.text; }

  std::string told_;
  Untouched out_;
  char record_[8] = "";  // none of it is ever looked at
};

TEST_F(Dispatchers, RefuseEmptyArguments) {
  for (const Dispatcher& family : kDispatchers) {
    tell("compose " + family.type, family.compose(record_, 1, nullptr, out_.body, 8));
    tell("analyse " + family.type, family.analyse("", nullptr, &out_.result));
    for (const std::string& text : wordsOf(family.served + " " + family.others)) {
      const char* const code = text.c_str();
      tell("no record " + family.type + " " + code, family.compose(nullptr, 1, code, out_.body, 8));
      tell("no body", family.compose(record_, 1, code, nullptr, 8));
      for (const int size : {0, -1, INT_MIN}) tell("no room", family.compose(record_, 1, code, out_.body, size));
      tell("no text", family.analyse(nullptr, code, &out_.result));
      tell("no result", family.analyse("", code, nullptr));
    }
  }
  EXPECT_EQ(told_, golden("empty_arguments.txt"));
}

TEST_F(Dispatchers, KnowTheirCodes) {
  for (const Dispatcher& family : kDispatchers) {
    for (const std::string& text : wordsOf(family.others)) {
      const char* const code = text.c_str();
      char frame[1024];
      tell("compose " + family.type + " " + code, family.compose(record_, 1, code, out_.body, 8));
      const KOV_PROTOCOL_HEADER header = headerOf(family.type, code);
      tell("sent", KovProtocolXMLCompose(&header, record_, 0, KOV_PLAIN, nullptr, frame, sizeof frame));
      tell("unreadable", family.analyse("<a>", code, &out_.result));
      tell("without body", family.analyse("<a/>", code, &out_.result));
      tell("received", analysisCode(family.type, code, ""));
    }
  }
  EXPECT_EQ(told_, golden("codes.txt"));
}

}  // namespace
}  // namespace kov::test
