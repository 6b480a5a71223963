// The exported functions of one line each, by the lists in cmake/exports: each must serve the record and the message
// that its name says.
#include <climits>
#include <cstddef>
#include <cstring>
#include <map>

#include "core/record.h"
#include "exported_headers.inc"
#include "wire.h"

namespace kov::test {
namespace {

// Functions that log under another one's name.
const std::map<std::string, std::string> kToldAs = {
    {"SystemControl_GetIpcSysVersion_MessageAnalysis", "SystemControl_SetIpcTime_MessageAnalysis"},
    {"SystemControl_GetMediaAbality_MessageAnalysis", "SystemControl_GetDeviceType_MessageAnalysis"},
};

// What a filler sets: all of a record, but for the one that may end before its reserved word.
template <class Record>
constexpr std::size_t kFilled = sizeof(Record);
template <>
constexpr std::size_t kFilled<DEVICE_REPORT_3901_PARAM> = offsetof(DEVICE_REPORT_3901_PARAM, reserved);

template <class Record>
void check(const char* name, int (*fill)(Record*)) {
  EXPECT_EQ(fill(nullptr), KOV_ERROR_NULL) << name;
  const std::unique_ptr<char[]> filled(new char[sizeof(Record)]);
  const std::unique_ptr<char[]> expected(new char[sizeof(Record)]);
  std::memset(filled.get(), 0xAA, sizeof(Record));
  setDefaults<Record>(expected.get());
  EXPECT_EQ(fill(reinterpret_cast<Record*>(filled.get())), 0) << name;
  EXPECT_EQ(std::memcmp(filled.get(), expected.get(), kFilled<Record>), 0) << name;
}

void checkTold(const std::string& name, int code) {
  EXPECT_EQ(code, KOV_ERROR_EMPTY_ARGUMENT) << name;
  const auto other = kToldAs.find(name);
  const std::string told = other == kToldAs.end() ? name : other->second;
  EXPECT_EQ(logLines(), std::vector<std::string>{"E " + told + " put a empty Param\n"}) << name;
  resetPlatform();
}

void check(const char* name, int (*analyse)(const char*, void**)) { checkTold(name, analyse(nullptr, nullptr)); }
void check(const char* name, int (*analyse)(const char*, int, void**)) {
  checkTold(name, analyse(nullptr, 0, nullptr));
}

TEST(Exported, EachServesWhatItsNameSays) {
  resetPlatform();
#define KOV_EXPORTED(name) check(#name, name);
#include "exported.inc"
#undef KOV_EXPORTED
}

TEST(Exported, ComposersRefuseSizesBelowOne) {
  const KOV_PROTOCOL_HEADER header;
  const SYSTEM_CONTROL_1020_PARAM abilities;
  const LIVE_STREAM_CMD_STREAM_START_PARAM start;
  for (const int size : {0, -1, INT_MIN}) {
    char body[1] = {'?'};
    EXPECT_EQ(SystemControl_GetSysAbality_MessageCompose(&abilities, 1, body, size), KOV_ERROR_EMPTY_ARGUMENT);
    EXPECT_EQ(LiveStreamMessageCompose(&start, 0, "1062", body, size, nullptr, 0, 0), KOV_ERROR_EMPTY_ARGUMENT);
    EXPECT_EQ(HeartbeatMessageCompose(&header, nullptr, body, size, 0), KOV_ERROR_BAD_HEADER) << size;
    EXPECT_EQ(body[0], '?');
  }
}

}  // namespace
}  // namespace kov::test
