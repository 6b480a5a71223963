// ALARM_REPORT_MESSAGE: one alarm, the record of what was seen, and a face's feature data behind the document.
#include "kov_protocol/alarm_report.h"

#include <algorithm>

#include "core/exported.h"
#include "core/family.h"
#include "kov_platform/services.h"
#include "reports/alarm_report.h"

namespace kov {
namespace {

using Alarm = ALARM_REPORT_CMD_RPEORT_ALARM_PARAM;
using Face = ALARM_REPORT_HUMAN_FACE_INFO;
using Animal = ALARM_REPORT_ANIMAL_INFO;
using Crossing = ALARM_REPORT_CROSSBORDER_INFO;

// An alarm and the largest extra record in one block. A receiver may take the extra record for that of Alarm_code, and
// compose does, so the block has room for any of them whatever element was received.
struct AlarmWithExtra {
  Alarm alarm;
  Face extra;
};

static_assert(sizeof(Alarm) == (sizeof(void*) == 8 ? 200 : 192));
static_assert(sizeof(Face) == 1192 && offsetof(Face, feature) == 40 && offsetof(Face, uniqueIndex) == 1064);
static_assert(sizeof(Animal) == 1 && sizeof(Crossing) == 8);
static_assert(offsetof(AlarmWithExtra, extra) == sizeof(Alarm), "the extra record stands directly behind the alarm");
static_assert(sizeof(Face) >= sizeof(Animal) && sizeof(Face) >= sizeof(Crossing));
static_assert(alignof(Face) >= alignof(Animal) && alignof(Face) >= alignof(Crossing));

constexpr char kName[] = "AlarmReportMessage";

// What stands between the document and the feature data.
constexpr std::size_t kEndCodeSize = 4;

std::size_t featureSize(const Face& face) {
  return face.AlgVer == 1 ? ALARM_REPORT_SHORT_FEATURE_SIZE : ALARM_REPORT_FEATURE_SIZE;
}

// The record has IsHat before IsMask, the wire the other way round.
void faceInfo(BodyIo& io, Face& f) {
  std::uint32_t absTime = static_cast<std::uint32_t>(f.absTime);  // written signed, read unsigned
  io.element("HumanFaceInfo", {{"Age", f.Age},
                               {"Gender", f.Gender},
                               {"IsGlasses", f.IsGlasses},
                               {"IsMask", f.IsMask},
                               {"IsHat", f.IsHat},
                               {"DataLen", f.DataLen},
                               {"SimilarityThreshold", f.SimilarityThreshold},
                               {"SerialNum", f.SerialNum},
                               {"AlgVer", f.AlgVer},
                               {"uniqueIndex", f.uniqueIndex},
                               attr("absTime", absTime).asSigned(),
                               {"faceQualityScore", f.faceQualityScore},
                               {"HsvAreaScore", f.HsvAreaScore},
                               {"BlurSMD", f.BlurSMD},
                               {"ErrorCode", f.ErrorCode}});
  if (io.reading()) f.absTime = static_cast<std::int32_t>(absTime);
}

void animalInfo(BodyIo& io, Animal& a) { io.element("ANIMAL_INFO", {{"Animal_type", a.Animal_type}}); }

void crossingInfo(BodyIo& io, Crossing& c) {
  io.element("CROSSBORDER_INFO", {{"CrowdFlowStatEnable", c.CrowdFlowStatEnable}, {"CrowdFlowNum", c.CrowdFlowNum}});
}

struct Extra {
  Form form;
  void (*setDefaults)(void* memory);
};

// In the order in which a receiver looks for them.
constexpr Extra kExtras[] = {
    {form<faceInfo>("HumanFaceInfo"), &setDefaults<Face>},
    {form<animalInfo>("ANIMAL_INFO"), &setDefaults<Animal>},
    {form<crossingInfo>("CROSSBORDER_INFO"), &setDefaults<Crossing>},
};
constexpr const Extra* kFace = &kExtras[0];
constexpr const Extra* kAnimal = &kExtras[1];

// No code stands for a crossing: its report goes out without the element.
const Extra* extraOfCode(std::int32_t alarmCode) {
  switch (alarmCode) {
    case 38:
    case 39:
      return kFace;
    case 44:
    case 45:
      return kAnimal;
    default:
      return nullptr;
  }
}

const Extra* extraOfElement(const ElementReader& item) {
  for (const Extra& extra : kExtras) {
    if (item.child(extra.form.element)) return &extra;
  }
  return nullptr;
}

// All but the extra element. Returns the item, which stays open for it.
BodyIo alarm(BodyIo& io, Alarm& r) {
  BodyIo report = io.enter("ALARM_REPORT_PARAM");
  report.elementWhen(isSet(r.Src), "SRC_INFO", {{"Src", r.Src}, {"ChannelId", r.ChannelId}});
  BodyIo item = report.enter("ALARM_ITEM");
  item.element("ALARM_INFO", {{"Alarm_code", r.Alarm_code},
                              {"Alarm_flag", r.Alarm_flag},
                              {"Alarm_level", r.Alarm_level},
                              {"Alarm_data", r.Alarm_data},
                              attr("Alarm_absTime", r.Alarm_absTime).asSigned().ifSet()});
  item.elementWhen(isSet(r.Year), "ALARM_TIME",
                   {{"Year", r.Year},
                    {"Month", r.Month},
                    {"Day", r.Day},
                    {"WDay", r.WDay},
                    {"Hour", r.Hour},
                    {"Minute", r.Minute},
                    {"Second", r.Second}});
  return item;
}

void composeExtra(BodyIo& item, const Alarm& r, std::uint32_t& extraLength) {
  if (r.pExData == nullptr) return;
  const Extra* const extra = extraOfCode(r.Alarm_code);
  if (extra == nullptr) {
    KovProtocolLogDebug("ALARM_REPORT_MESSAGE message deal alarm_code:%d , code has pExData, but unknow type to use\n",
                        r.Alarm_code);
    return;
  }
  extra->form.run(item, r.pExData);
  if (extra != kFace) return;
  extraLength += static_cast<std::uint32_t>(featureSize(*static_cast<const Face*>(r.pExData)) + kEndCodeSize);
}

int compose(const void* param, int direction, BodyWriter& body, std::uint32_t& extraLength) {
  if (isResponse(direction)) {
    KovProtocolLogInfo("ALARM_REPORT_MESSAGE response message Not have Body, please check msgtype\n");
    return KOV_OK;
  }
  auto& record = *static_cast<Alarm*>(const_cast<void*>(param));  // a form that writes leaves the record alone
  BodyIo io(body);
  BodyIo item = alarm(io, record);
  composeExtra(item, record, extraLength);
  io.text("</ALARM_ITEM>\n</ALARM_REPORT_PARAM>\n");
  return KOV_OK;
}

int composeCall(ComposeCall& call, BodyWriter& body) {
  return compose(call.param, call.direction, body, call.extraLen);
}

// What stands behind the document, as far as it was received.
struct Tail {
  const char* begin;
  std::size_t length;
};

void copyFeature(const Tail& tail, Face& face) {
  if (tail.length <= kEndCodeSize) return;
  const std::size_t length = std::min(tail.length - kEndCodeSize, featureSize(face));
  std::memcpy(face.feature, tail.begin + kEndCodeSize, length);
}

// Only the first alarm of a report is read.
int findItem(const KovXMLParser& document, ElementReader& body, ElementReader& item) {
  const int found = findBody(kName, document, body);
  if (found != KOV_OK) return found;
  const ElementReader report = body.child("ALARM_REPORT_PARAM");
  item = report.child("ALARM_ITEM");
  if (item) return KOV_OK;
  KovProtocolLogError("%sAnalysis get %s error\n", kName, report ? "ALARM_ITEM" : "ALARM_REPORT_PARAM");
  return KOV_ERROR_NO_ELEMENT;
}

void readExtra(const ElementReader& item, const Extra& extra, const Tail& tail, void* memory) {
  std::memset(memory, 0, sizeof(Face));
  extra.setDefaults(memory);
  BodyIo io(item);
  extra.form.run(io, memory);
  if (&extra == kFace) copyFeature(tail, *static_cast<Face*>(memory));
}

int analyse(const KovXMLParser& document, const Tail& tail, void** result) {
  ElementReader body;
  ElementReader item;
  const int found = findItem(document, body, item);
  if (found != KOV_OK) return found;
  const Extra* const extra = extraOfElement(item);
  void* const block = newBlock(extra == nullptr ? sizeof(Alarm) : sizeof(AlarmWithExtra), result);
  if (block == nullptr) return KOV_ERROR_NO_MEMORY;
  setDefaults<Alarm>(block);
  auto& record = *static_cast<Alarm*>(block);
  BodyIo io(body);
  alarm(io, record);
  if (extra == nullptr) return KOV_OK;
  record.pExData = static_cast<char*>(block) + sizeof(Alarm);
  readExtra(item, *extra, tail, record.pExData);
  return KOV_OK;
}

int analyseCall(const AnalysisCall& call) { return analyse(call.document, {call.tail, call.tailLength}, call.result); }

}  // namespace

constexpr Family kAlarmReport = {nullptr, composeCall, analyseCall};

}  // namespace kov

int ALARM_REPORT_CMD_RPEORT_ALARM_PARAM_init(ALARM_REPORT_CMD_RPEORT_ALARM_PARAM* record) {
  return kov::fillDefaults(record);
}

int AlarmReportMessageCompose(const void* param, int direction, char* out, int outSize, uint32_t* extraLength) {
  return kov::composeExported("ALARM_REPORT_MESSAGE", param, out, outSize, extraLength, [=](kov::BodyWriter& writer) {
    return kov::compose(param, direction, writer, *extraLength);
  });
}

int AlarmReportMessageAnalysis(const char* xml, void** result) {
  if (xml == nullptr || result == nullptr) {
    KovProtocolLogError("%sAnalysis put a empty Param\n", kov::kName);
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  KovXMLParser document;
  const int parsed = kov::parseDocument(kov::kName, xml, document);
  if (parsed != KOV_OK) return parsed;
  // The caller vouches for as many bytes as a face needs; only a face takes them.
  const kov::Tail tail = {xml + std::strlen(xml), kov::kEndCodeSize + ALARM_REPORT_FEATURE_SIZE};
  return kov::analyse(document, tail, result);
}
