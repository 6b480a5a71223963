// Transfer of files, and updates of a device's software.
#include "control/control_messages.h"

namespace kov {
namespace {

static_assert(sizeof(SYSTEM_CONTROL_1022_PARAM) == 528);
static_assert(sizeof(SYSTEM_CONTROL_1090_PARAM) == 584);
static_assert(sizeof(SYSTEM_CONTROL_1092_PARAM) == 16);

void uploadRequest(BodyIo& io, SYSTEM_CONTROL_1022_PARAM& r) {
  io.element("REQUEST_PARAM", {{"FileType", r.FileType},
                               {"FilePath", r.FilePath},
                               {"StartPos", r.StartPos},
                               {"FileLength", r.FileLength},
                               attr("AlarmAudioName", r.AlarmAudioName).ifSet()});
}

// The last line of this answer does not end.
void uploadResponse(BodyIo& io, SYSTEM_CONTROL_1022_PARAM& r) {
  io.element("RESPONSE_PARAM", {{"Port", r.Port}, {"Type", r.FileType}}, "/>");
}

constexpr Message kUploadFile = {"SystemControl_UploadFile_Message", request<uploadRequest>, response<uploadResponse>};

void downloadRequest(BodyIo& io, SYSTEM_CONTROL_1022_PARAM& r) {
  io.elementWhen(isSet(r.FilePath), "REQUEST_PARAM", {{"FileName", r.FilePath}, attr("StartPos", r.StartPos).ifSet()});
}

void downloadResponse(BodyIo& io, SYSTEM_CONTROL_1022_PARAM& r) {
  io.elementWhen(isSet(r.Port) && isSet(r.FileType), "RESPONSE_PARAM",
                 {{"Port", r.Port}, {"Type", r.FileType}, attr("FileLength", r.FileLength).ifSet()});
}

constexpr Message kDownloadFile = {"SystemControl_DownloadFile_Message", request<downloadRequest>,
                                   response<downloadResponse>};

// The request closes its element, writes the channel behind it and closes it again: peers expect it.
void updateRequest(BodyIo& io, SYSTEM_CONTROL_1090_PARAM& r) {
  BodyIo param = io.enter("REQUEST_PARAM", "<REQUEST_PARAM\n");
  param.attributes({{"url", r.url}, {"md5", r.md5}});
  io.text("/>\n");
  optionalChannel(param, r.ChannelId, r.EmptyChannelId);
  io.text("/>\n");
}

void updateResponse(BodyIo& io, SYSTEM_CONTROL_1090_PARAM& r) {
  BodyIo param = io.enter("RESPONSE_PARAM", "<RESPONSE_PARAM\n");
  optionalChannel(param, r.ChannelId, r.EmptyChannelId);
  io.text("/>\n");
}

constexpr Message kSendUpdateCmd = {"SystemControl_SendUpdateCmd_Message", request<updateRequest>,
                                    response<updateResponse>};

void updateStatusRequest(BodyIo& io, SYSTEM_CONTROL_1092_PARAM& r) {
  BodyIo param = io.enter("REQUEST_PARAM", "<REQUEST_PARAM\n");
  optionalChannel(param, r.ChannelId, r.EmptyChannelId);
  io.text("/>\n");
}

void updateStatusResponse(BodyIo& io, SYSTEM_CONTROL_1092_PARAM& r) {
  BodyIo param = io.enter("RESPONSE_PARAM", "<RESPONSE_PARAM\n");
  param.attributes({{"Progress", r.Progress}, {"State", r.State}});
  optionalChannel(param, r.ChannelId, r.EmptyChannelId);
  io.text("/>\n");
}

constexpr Message kGetUpdateStatus = {"SystemControl_GetUpdateStatus_Message", request<updateStatusRequest>,
                                      response<updateStatusResponse>};

void cancelUpdateRequest(BodyIo& io, SYSTEM_CONTROL_1092_PARAM& r) {
  io.element("REQUEST_PARAM", {{"ChannelId", r.ChannelId}});
}

void cancelUpdateResponse(BodyIo& io, SYSTEM_CONTROL_1092_PARAM& r) {
  io.element("RESPONSE_PARAM", {{"ChannelId", r.ChannelId}});
}

constexpr Message kCancelUpdate = {"SystemControl_CancelUpdate_Message", request<cancelUpdateRequest>,
                                   response<cancelUpdateResponse>};

constexpr CodeRow kRows[] = {
    {1009, &kDownloadFile},  {1022, &kUploadFile},      {1023, &kDownloadFile}, {1024, &kDownloadFile},
    {1090, &kSendUpdateCmd}, {1092, &kGetUpdateStatus}, {1093, &kCancelUpdate},
};

}  // namespace

constexpr CodeGroup kFileCodes = kRows;

}  // namespace kov

int SYSTEM_CONTROL_1009_PARAM_init(SYSTEM_CONTROL_1022_PARAM* record) { return SYSTEM_CONTROL_1022_PARAM_init(record); }
int SYSTEM_CONTROL_1022_PARAM_init(SYSTEM_CONTROL_1022_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_1023_PARAM_init(SYSTEM_CONTROL_1022_PARAM* record) { return SYSTEM_CONTROL_1022_PARAM_init(record); }
int SYSTEM_CONTROL_1024_PARAM_init(SYSTEM_CONTROL_1022_PARAM* record) { return SYSTEM_CONTROL_1022_PARAM_init(record); }
int SYSTEM_CONTROL_1090_PARAM_init(SYSTEM_CONTROL_1090_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_1092_PARAM_init(SYSTEM_CONTROL_1092_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_1093_PARAM_init(SYSTEM_CONTROL_1092_PARAM* record) { return SYSTEM_CONTROL_1092_PARAM_init(record); }

int SystemControl_DownloadFile_MessageAnalysis(const char* xml, void** result) {
  return kov::kDownloadFile.analyse(xml, result);
}
int SystemControl_UploadFile_MessageAnalysis(const char* xml, void** result) {
  return kov::kUploadFile.analyse(xml, result);
}
int SystemControl_SendUpdateCmd_MessageAnalysis(const char* xml, void** result) {
  return kov::kSendUpdateCmd.analyse(xml, result);
}
int SystemControl_GetUpdateStatus_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetUpdateStatus.analyse(xml, result);
}
int SystemControl_CancelUpdate_MessageAnalysis(const char* xml, void** result) {
  return kov::kCancelUpdate.analyse(xml, result);
}
