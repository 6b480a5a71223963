// MEDIA_DATA_MESSAGE: pieces of binary data that travel behind the document.
//
// Analysis demands POS of nearly every message, though some bodies are composed without it, and takes whatever else a
// message has: the response form, which analysis tries first, reads the elements of both directions.
#include "kov_protocol/media_data.h"

#include "core/family.h"
#include "kov_platform/services.h"
#include "kov_platform/value_text.h"
#include "live/media_data.h"

namespace kov {
namespace {

static_assert(sizeof(MEDIA_DATA_1_PARAM) == 12 && sizeof(MEDIA_DATA_2_PARAM) == 528);
static_assert(sizeof(MEDIA_DATA_3_PARAM) == 12 && sizeof(MEDIA_DATA_4_PARAM) == 1056);
static_assert(sizeof(MEDIA_DATA_5_PARAM) == 160 && sizeof(MEDIA_DATA_6_PARAM) == 13616);
static_assert(sizeof(MEDIA_DATA_8_PARAM) == 980);

// What follows every piece.
constexpr int kEndCodeSize = 4;

template <class Record>
void position(BodyIo& io, Record& r) {
  io.element("POS", {{"StartPos", r.StartPos}, {"DataLen", r.DataLen}});
}

template <class Record>
void positionInResponse(BodyIo& io, Record& r) {
  io.element("POS", {{"XmlLen", r.XmlLen}, {"StartPos", r.StartPos}, {"DataLen", r.DataLen}});
}

void uploadResponse(BodyIo& io, MEDIA_DATA_1_PARAM& r) {
  if (io.reading()) position(io, r);
  io.elementWhen(isSet(r.Type), "RESPONSE_PARAM", {{"Type", r.Type}});
}

constexpr Message kUpload = {"MediaData_UploadData_Message", form<position<MEDIA_DATA_1_PARAM>>("POS"),
                             form<uploadResponse>("POS")};

void downloadResponse(BodyIo& io, MEDIA_DATA_2_PARAM& r) {
  if (io.reading()) position(io, r);
  io.element("RESPONSE_PARAM", {{"RemoteFileName", r.RemoteFileName},
                                {"LocalFileName", r.LocalFileName},
                                {"StartPos", r.StartPos},
                                {"ErrorCode", r.ErrorCode}});
}

constexpr Message kDownload = {"MediaData_DownloadData_Message", form<position<MEDIA_DATA_2_PARAM>>("POS"),
                               form<downloadResponse>("POS")};

void intercomRequest(BodyIo& io, MEDIA_DATA_3_PARAM& r) {
  io.element("POS", {{"StartPos", r.StartPos}, {"DataLen", r.DataLen}, attr("XmlLen", r.XmlLen).ifSet()});
}

constexpr Message kIntercom = {"MediaData_IntercomData_Message", form<intercomRequest>("POS"), nullptr};

void pictureInfo(BodyIo& io, MEDIA_DATA_4_PARAM& r) {
  io.element("DataInfo", {{"DataType", r.DataType},
                          {"DataTotalLen", r.DataTotalLen},
                          {"DataName", r.DataName},
                          {"Timestamp", r.Timestamp},
                          {"SerialNum", r.SerialNum}});
}

void pictureRequest(BodyIo& io, MEDIA_DATA_4_PARAM& r) {
  position(io, r);
  pictureInfo(io, r);
}

// The answer for a channel carries a piece, any other only describes the picture. This channel is never told.
constexpr std::int32_t kUntoldChannel = 255;

void pictureResponse(BodyIo& io, MEDIA_DATA_4_PARAM& r) {
  const bool ofChannel = isSet(r.ChannelId);
  io.elementWhen(ofChannel && r.ChannelId != kUntoldChannel, "RESPONSE_PARAM", {{"ChannelId", r.ChannelId}});
  if (io.reading() || ofChannel) positionInResponse(io, r);
  if (io.reading() || !ofChannel) pictureInfo(io, r);
}

constexpr Message kPicture = {"MediaData_IntelligentPicData_Message", form<pictureRequest>("POS"),
                              form<pictureResponse>("POS")};

void exportInfo(BodyIo& io, MEDIA_DATA_5_PARAM& r) {
  io.element("DataInfo",
             {{"SerialNum", r.SerialNum}, {"Alias", r.Alias}, {"ListType", r.ListType}, {"DataNum", r.DataNum}});
}

void exportRequest(BodyIo& io, MEDIA_DATA_5_PARAM& r) {
  exportInfo(io, r);
  position(io, r);
}

void exportResponse(BodyIo& io, MEDIA_DATA_5_PARAM& r) {
  io.elementWhen(isSet(r.ChannelId), "RESPONSE_PARAM", {{"ChannelId", r.ChannelId}});
  if (io.reading() || isSet(r.DataLen)) positionInResponse(io, r);
  if (io.reading()) exportInfo(io, r);
}

constexpr Message kExport = {"MediaData_ExportFaceListData_Message", form<exportRequest>("POS"),
                             form<exportResponse>("POS")};

void face(BodyIo& io, MEDIA_DATA_FACE& f) {
  io.element("HumanFaceInfo", {{"SerialNum", f.SerialNum}, {"Alias", f.Alias}});
}

// The list ends before the first face without a number, whatever DataNum says.
void faces(BodyIo& io, MEDIA_DATA_6_PARAM& r) {
  std::int32_t count = 0;
  while (count < MEDIA_DATA_MAX_FACES && count < r.DataNum && isSet(r.Faces[count].SerialNum)) ++count;
  io.listOf<face>("HumanFaceInfo", r.Faces, count);
}

void deleteFacesRequest(BodyIo& io, MEDIA_DATA_6_PARAM& r) {
  io.element("DataInfo", {{"DataNum", r.DataNum}, {"ListType", r.ListType}});
  faces(io, r);
}

constexpr Message kDeleteFaces = {"MediaData_DeleteFaceData_Message", form<deleteFacesRequest>("DataInfo"), nullptr};

void faceListRequest(BodyIo& io, MEDIA_DATA_6_PARAM& r) {
  io.element("DataInfo", {{"TotalData", r.TotalData}, {"DataNum", r.DataNum}, {"ListType", r.ListType}});
}

void faceListResponse(BodyIo& io, MEDIA_DATA_6_PARAM& r) {
  faceListRequest(io, r);
  faces(io, r);
}

constexpr Message kFaceList = {"MediaData_GetFaceListData_Message", form<faceListRequest>("POS"),
                               form<faceListResponse>("POS")};

constexpr std::size_t kTimeSize = sizeof MEDIA_DATA_8_PARAM::TimeList[0];
using TimeListText = char[MEDIA_DATA_MAX_TIMES * (kTimeSize + 1) + 1];

void joinTimes(const MEDIA_DATA_8_PARAM& r, TimeListText& text) {
  BodyWriter list(text, sizeof text);
  for (const auto& time : r.TimeList) {
    if (!isSet(time)) break;
    list.field(time);
    list.character(',');
  }
  list.terminate();
}

// Peers may leave out the last comma. Empty items are passed over, because an empty entry ends the list.
void splitTimes(const TimeListText& text, MEDIA_DATA_8_PARAM& r) {
  std::size_t entry = 0;
  for (const char* item = text; *item != '\0' && entry < MEDIA_DATA_MAX_TIMES;) {
    const std::size_t length = std::strcspn(item, ",");
    const std::size_t kept = length < kTimeSize ? length : kTimeSize - 1;
    if (kept > 0) std::memcpy(r.TimeList[entry++], item, kept);
    item += length + (item[length] == ',' ? 1 : 0);
  }
}

void thumbnailRequest(BodyIo& io, MEDIA_DATA_8_PARAM& r) {
  TimeListText list = {};
  if (io.writing()) joinTimes(r, list);
  io.element("REQUEST_PARAM", {{"TimeList", list}});
  if (io.reading()) splitTimes(list, r);
}

void thumbnailResponse(BodyIo& io, MEDIA_DATA_8_PARAM& r) {
  if (io.reading()) {
    position(io, r);
    thumbnailRequest(io, r);
  }
  io.element("RESPONSE_PARAM", {{"Time", r.TimeList[0]}});
  io.element("ImageInfo", {{"TotalLen", r.TotalLen}, {"StartPos", r.StartPos}, {"DataLen", r.DataLen}});
}

constexpr Message kThumbnail = {"MediaData_GetAlarmThumbail_Message", form<thumbnailRequest>("POS"),
                                form<thumbnailResponse>("POS")};

constexpr CodeRow kCodes[] = {
    {1, &kUpload}, {2, &kDownload},    {3, &kIntercom}, {4, &kPicture},
    {5, &kExport}, {6, &kDeleteFaces}, {7, &kFaceList}, {8, &kThumbnail},
};

void logUnknown(const char*, int code) {
  KovProtocolLogError("MEDIA_DATA_MESSAGE deal a unknow msg_cdoe : %d\n", code);
}

constexpr CodeTable kTable("MEDIA_DATA_MESSAGE", kCodes, logUnknown);

// The message of a code; null, and told, when there is none.
const Message* find(const char* msgCode) {
  const int code = intOf(msgCode);
  for (const CodeRow& row : kCodes) {
    if (row.code == code) return row.message;
  }
  logUnknown(msgCode, code);
  return nullptr;
}

struct Piece {
  bool follows;
  std::int32_t length;
};

template <class Record>
const Record& as(const void* param) {
  return *static_cast<const Record*>(param);
}

// The piece behind the body that was composed: where its POS, or ImageInfo, was written.
Piece pieceOf(int code, const void* param, bool asked) {
  switch (code) {
    case 1:
      return {asked, as<MEDIA_DATA_1_PARAM>(param).DataLen};
    case 2:
      return {asked, as<MEDIA_DATA_2_PARAM>(param).DataLen};
    case 3:
      return {asked, as<MEDIA_DATA_3_PARAM>(param).DataLen};
    case 4:
      return {asked || isSet(as<MEDIA_DATA_4_PARAM>(param).ChannelId), as<MEDIA_DATA_4_PARAM>(param).DataLen};
    case 5:
      return {asked || isSet(as<MEDIA_DATA_5_PARAM>(param).DataLen), as<MEDIA_DATA_5_PARAM>(param).DataLen};
    case 8:
      return {!asked, as<MEDIA_DATA_8_PARAM>(param).DataLen};
    default:
      return {false, 0};
  }
}

// An unset length counts as the -1 that it is.
void countPiece(const char* msgCode, const void* param, int direction, std::uint32_t& extraLen) {
  const Piece piece = pieceOf(intOf(msgCode), param, isRequest(direction));
  if (piece.follows) extraLen += kEndCodeSize + static_cast<std::uint32_t>(piece.length);
}

int composeCall(ComposeCall& call, BodyWriter& body) {
  const int composed = kTable.compose(call.param, call.direction, call.msgCode, body);
  if (composed == KOV_OK) countPiece(call.msgCode, call.param, call.direction, call.extraLen);
  return composed;
}

// Talk-back sound must fill the message exactly. A document without POS has no say in it and is refused for that.
int checkIntercomSize(const KovXMLParser& document, std::size_t textLength, int totalLength) {
  const ElementReader root(document, document.RootElement());
  const ElementReader position = root.child("MESSAGE_BODY").child("POS");
  if (!position) return KOV_OK;
  std::int32_t dataLength = -1;
  BodyIo(position).attributes({{"DataLen", dataLength}});
  const std::int64_t needed = static_cast<std::int64_t>(textLength) + dataLength + kEndCodeSize;
  if (dataLength >= 0 && needed == totalLength) return KOV_OK;
  KovProtocolLogError("%sAnalysis date size error : xmllen(%d) datalen(%d) endcode(%d) all(%d)\n", kIntercom.name(),
                      static_cast<int>(textLength), dataLength, kEndCodeSize, totalLength);
  return KOV_ERROR_SIZE;
}

int analyseIntercom(const KovXMLParser& document, std::size_t textLength, int totalLength, void** result) {
  const int checked = checkIntercomSize(document, textLength, totalLength);
  return checked == KOV_OK ? kIntercom.analyse(document, result) : checked;
}

int analyseIntercom(const char* xml, int totalLength, void** result) {
  if (xml == nullptr || result == nullptr) return kIntercom.analyse(xml, result);
  KovXMLParser document;
  const int parsed = parseDocument(kIntercom.name(), xml, document);
  return parsed == KOV_OK ? analyseIntercom(document, std::strlen(xml), totalLength, result) : parsed;
}

int analyseCall(const AnalysisCall& call) {
  const Message* const message = find(call.msgCode);
  if (message == nullptr) return KOV_ERROR_UNKNOWN_MESSAGE;
  if (message == &kIntercom) return analyseIntercom(call.document, call.textLength, call.received, call.result);
  return message->analyse(call.document, call.result);
}

}  // namespace

constexpr Family kMediaData = {&kTable, composeCall, analyseCall};

}  // namespace kov

int MEDIA_DATA_1_PARAM_init(MEDIA_DATA_1_PARAM* record) { return kov::fillDefaults(record); }
int MEDIA_DATA_2_PARAM_init(MEDIA_DATA_2_PARAM* record) { return kov::fillDefaults(record); }
int MEDIA_DATA_3_PARAM_init(MEDIA_DATA_3_PARAM* record) { return kov::fillDefaults(record); }
int MEDIA_DATA_4_PARAM_init(MEDIA_DATA_4_PARAM* record) { return kov::fillDefaults(record); }
int MEDIA_DATA_5_PARAM_init(MEDIA_DATA_5_PARAM* record) { return kov::fillDefaults(record); }
int MEDIA_DATA_6_PARAM_init(MEDIA_DATA_6_PARAM* record) { return kov::fillDefaults(record); }
int MEDIA_DATA_7_PARAM_init(MEDIA_DATA_7_PARAM* record) { return MEDIA_DATA_6_PARAM_init(record); }
int MEDIA_DATA_8_PARAM_init(MEDIA_DATA_8_PARAM* record) { return kov::fillDefaults(record); }

int MediaDataMessageCompose(const void* param, int direction, const char* msgCode, char* body, int bodySize,
                            uint32_t* extraLen) {
  // Without a counter there is no composing: the table refuses it as it does a null body.
  if (extraLen == nullptr) return kov::kTable.compose(param, direction, msgCode, nullptr, bodySize);
  const int composed = kov::kTable.compose(param, direction, msgCode, body, bodySize);
  if (composed == KOV_OK && param != nullptr) kov::countPiece(msgCode, param, direction, *extraLen);
  return composed;
}

int MediaDataMessageAnalysis(const char* xml, const char* msgCode, int totalLen, void** result) {
  if (xml == nullptr || msgCode == nullptr) return kov::kTable.analyse(xml, msgCode, result);
  const kov::Message* const message = kov::find(msgCode);
  if (message == nullptr) return KOV_ERROR_UNKNOWN_MESSAGE;
  if (message == &kov::kIntercom) return kov::analyseIntercom(xml, totalLen, result);
  return message->analyse(xml, result);
}

int MediaData_UploadData_MessageAnalysis(const char* xml, void** result) { return kov::kUpload.analyse(xml, result); }
int MediaData_DownloadData_MessageAnalysis(const char* xml, void** result) {
  return kov::kDownload.analyse(xml, result);
}
int MediaData_IntercomData_MessageAnalysis(const char* xml, int totalLen, void** result) {
  return kov::analyseIntercom(xml, totalLen, result);
}
int MediaData_IntelligentPicData_MessageAnalysis(const char* xml, void** result) {
  return kov::kPicture.analyse(xml, result);
}
int MediaData_ExportFaceListData_MessageAnalysis(const char* xml, void** result) {
  return kov::kExport.analyse(xml, result);
}
int MediaData_DeleteFaceData_MessageAnalysis(const char* xml, void** result) {
  return kov::kDeleteFaces.analyse(xml, result);
}
int MediaData_GetFaceListData_MessageAnalysis(const char* xml, void** result) {
  return kov::kFaceList.analyse(xml, result);
}
int MediaData_GetAlarmThumbail_MessageAnalysis(const char* xml, void** result) {
  return kov::kThumbnail.analyse(xml, result);
}
