// Every message composed from a record of arbitrary bytes, in any direction, encoding and buffer size, by the entry or
// the code table; what comes of it is analysed, composed and analysed again.
#include <fuzzer/FuzzedDataProvider.h>
#include <kov_protocol/alarm_report.h>
#include <kov_protocol/ptz_control.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "ptz/sub_command.h"
#include "trials.h"

namespace {

using namespace kov::fuzz;

using Block = std::unique_ptr<char[]>;

// How the input becomes a record: laid over the defaults, or repeated over all of it.
enum class Filling : unsigned char { OverDefaults, Repeated, kMaxValue = Repeated };

void fill(char* memory, std::size_t size, const Text& bytes, Filling filling) {
  if (bytes.empty()) return;
  const std::size_t end = filling == Filling::Repeated ? size : std::min(size, bytes.size());
  for (std::size_t at = 0; at < end; at += bytes.size()) {
    std::memcpy(memory + at, bytes.data(), std::min(bytes.size(), end - at));
  }
}

// The block that the pointer of a record must name, of exactly the size that its record says; of size 0 when it may be
// null.
std::size_t extraSizeOf(const Trial& trial, const void* record) {
  if (std::strcmp(trial.type, "ALARM_REPORT_MESSAGE") == 0) return sizeof(ALARM_REPORT_HUMAN_FACE_INFO);
  if (trial.cmd == nullptr) return 0;
  char cmd[sizeof PTZ_CONTROL_PTZ_CMD_PARAM::cmd + 1] = {};
  std::memcpy(cmd, static_cast<const PTZ_CONTROL_PTZ_CMD_PARAM*>(record)->cmd, sizeof cmd - 1);
  const kov::PtzMessage* const message = kov::findSubCommand(cmd);
  return message == nullptr ? 0 : message->block.size;
}

void point(const Trial& trial, void* record, void* extra) {
  if (std::strcmp(trial.type, "ALARM_REPORT_MESSAGE") == 0) {
    static_cast<ALARM_REPORT_CMD_RPEORT_ALARM_PARAM*>(record)->pExData = extra;
  } else if (trial.cmd != nullptr) {
    static_cast<PTZ_CONTROL_PTZ_CMD_PARAM*>(record)->pExData = extra;
  }
}

Block newRecord(const Trial& trial, const Text& bytes, Filling filling) {
  Block record(new char[trial.record.size]);
  trial.record.setDefaults(record.get());
  fill(record.get(), trial.record.size, bytes, filling);
  if (trial.cmd != nullptr && filling == Filling::Repeated) {
    std::memcpy(reinterpret_cast<PTZ_CONTROL_PTZ_CMD_PARAM*>(record.get())->cmd, trial.cmd, std::strlen(trial.cmd) + 1);
  }
  return record;
}

// The text of a body ends inside its buffer, however small that is.
void composeBody(const Trial& trial, const void* record, int direction, int size) {
  const Block body(new char[static_cast<std::size_t>(size)]);
  body[0] = '\0';
  trial.table->compose(record, direction, trial.code, body.get(), size);
  const char* const end = static_cast<const char*>(std::memchr(body.get(), '\0', static_cast<std::size_t>(size)));
  if (end == nullptr) std::abort();
  checkInitialised(body.get(), static_cast<std::size_t>(end - body.get()));
}

void composeAndRelay(const Trial& trial, const void* record, int direction, Coding coding, int size) {
  KOV_PROTOCOL_HEADER header;
  const Result result = analyse(compose(headerOf(trial), record, direction, coding, size), coding, header);
  if (result != nullptr) relay(header, result.get());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t size) {
  FuzzedDataProvider choices(input, size);
  const Trial& trial = everyTrial()[choices.ConsumeIntegralInRange<std::size_t>(0, everyTrial().size() - 1)];
  const Filling filling = choices.ConsumeEnum<Filling>();
  const int direction = choices.ConsumeIntegralInRange<int>(-1, 4);
  const int outSize = choices.ConsumeBool() ? 1 << 15 : choices.ConsumeIntegralInRange<int>(1, 1 << 17);
  int key = 0;
  const Coding coding = {choices.ConsumeIntegralInRange<int>(-2, 1), choices.ConsumeBool() ? &key : nullptr};
  const bool withExtra = choices.ConsumeBool();
  Text bytes = choices.ConsumeRemainingBytes<char>();
  if (trial.record.size == 0) {
    bytes.push_back('\0');  // any record will do that is not null
    composeAndRelay(trial, bytes.data(), direction, coding, outSize);
    return 0;
  }
  const Block record = newRecord(trial, bytes, filling);
  const std::size_t extraSize = withExtra ? extraSizeOf(trial, record.get()) : 0;
  const Block extra(extraSize == 0 ? nullptr : new char[extraSize]());
  if (extra != nullptr) fill(extra.get(), extraSize, bytes, filling);
  point(trial, record.get(), extra.get());
  composeAndRelay(trial, record.get(), direction, coding, outSize);
  if (trial.table != nullptr) composeBody(trial, record.get(), direction, outSize);
  return 0;
}
