// Operations and queries of a camera: time, identity, abilities, key frame, user data.
#include "control/control_messages.h"
#include "control/system_control.h"
#include "core/exported.h"
#include "kov_platform/services.h"

namespace kov {
namespace {

static_assert(sizeof(SYSTEM_CONTROL_1005_PARAM) == 64);
static_assert(sizeof(SYSTEM_CONTROL_1020_PARAM) == 4464);
static_assert(sizeof(SYSTEM_CONTROL_1030_PARAM) == 24);
static_assert(sizeof(SYSTEM_CONTROL_1031_PARAM) == 8704);
static_assert(sizeof(SYSTEM_CONTROL_1032_PARAM) == 12);

void setRefleshChbkg(BodyIo& io, SYSTEM_CONTROL_1004_PARAM& r) {
  io.element("REQUEST_PARAM", {{"FileType", r.FileType}});
}

constexpr Message kSetRefleshChbkg = {"SystemControl_SetRefleshCHBKG_Message", request<setRefleshChbkg>, nullptr};

void setIpcTime(BodyIo& io, SYSTEM_CONTROL_1005_PARAM& r) {
  io.element("REQUEST_PARAM", {{"Time", r.Time}, {"TimeZone", r.TimeZone}});
}

// It misses its element under the name of a stream's.
constexpr Message kSetIpcTime =
    Message("SystemControl_SetIpcTime_Message", request<setIpcTime>, nullptr).reportsMissing("STREAM_START_PARAM");

void setNvrChannelAdd(BodyIo& io, SYSTEM_CONTROL_1006_PARAM& r) {
  io.element("REQUEST_PARAM", {{"CrtlEnable", r.CrtlEnable}, {"ChnAddCfg", r.ChnAddCfg}});
}

constexpr Message kSetNvrChannelAdd = {"SystemControl_SetNvrChannelAdd_Message", request<setNvrChannelAdd>, nullptr};

void getIpcSn(BodyIo& io, SYSTEM_CONTROL_1019_PARAM& r) {
  io.element("RESPONSE_PARAM", {{"SerialNumber", r.SerialNumber}});
}

constexpr Message kGetIpcSn = {"SystemControl_GetIpcSN_Message", nullptr, response<getIpcSn>};

void getSysAbality(BodyIo& io, SYSTEM_CONTROL_1020_PARAM& r) {
  io.element("RESPONSE_PARAM", {{"SystemConfigString", r.SystemConfigString}});
  const bool hasAuthority = io.elementWhen(r.NoRemoteAuthority == 0, "REMOTE_AUTHORITY",
                                           {{"RemotePreview", r.RemotePreview},
                                            {"RemotePlayback", r.RemotePlayback},
                                            {"PTZControl", r.PTZControl},
                                            {"SystemSettings", r.SystemSettings},
                                            {"RemoteUpgrade", r.RemoteUpgrade},
                                            {"TalkingEnble", r.TalkingEnble},
                                            {"ShutDownSystem", r.ShutDownSystem}});
  if (io.reading() && hasAuthority) r.NoRemoteAuthority = 0;
  // The identifiers share one line, and it does not end.
  if (io.reading() || isSet(r.algorithmId)) {
    io.element("AvailableAlId", "<AvailableAlId ", {attr("algorithmId", r.algorithmId).thenNothing()}, "/>");
  }
  if (io.reading() || isSet(r.vaSeviceId)) {
    io.element("va_service", "<va_service ", {attr("vaSeviceId", r.vaSeviceId).thenBlank()}, "/>");
  }
}

void getDeviceType(BodyIo& io, SYSTEM_CONTROL_1030_PARAM& r) {
  io.element("RESPONSE_PARAM", {{"IPC_Type", r.IPC_Type},
                                {"DevMType", r.DevMType},
                                {"DevType", r.DevType},
                                {"SdkType", r.SdkType},
                                {"Feature", r.Feature}});
}

constexpr Message kGetDeviceType = {"SystemControl_GetDeviceType_Message", nullptr, response<getDeviceType>};

void getMediaAbality(BodyIo& io, SYSTEM_CONTROL_1031_PARAM& r) {
  BodyIo media = io.enter("RESPONSE_PARAM");
  media.element("VideoCap", {{"CapList", r.VideoCap.CapList}, attr("CapListV2", r.VideoCap.CapListV2).ifSet()});
  // These two close on the line of their attribute.
  media.element("AudioCap", {attr("CapList", r.AudioCap.CapList).thenNothing()});
  media.element("VideoBestParameter", {attr("CapList", r.VideoBestParameter.CapList).thenNothing()});
  io.text("</RESPONSE_PARAM>\n");
}

// Analysis speaks under the device type's name.
constexpr Message kGetMediaAbality = Message("SystemControl_GetDeviceType_Message", nullptr, response<getMediaAbality>)
                                         .composesAs("SystemControl_GetMediaAbality_Message");

// Recorders and cameras spell the same question differently, and the answer has to know which one asked.
void readKeyFrame(const ElementReader& param, SYSTEM_CONTROL_1032_PARAM& r) {
  BodyIo(param).attributes(
      {{"ChannelId", r.ChannelId}, {"StreamIndex", r.StreamIndex}, {"Camera", r.ChannelId}, {"Stream", r.StreamIndex}});
  if (param.attribute("ChannelId") != nullptr || param.attribute("StreamIndex") != nullptr) r.bSendIpc = 0;
  if (param.attribute("Camera") != nullptr || param.attribute("Stream") != nullptr) r.bSendIpc = 1;
}

void getIpcKeyFrame(BodyIo& io, SYSTEM_CONTROL_1032_PARAM& r) {
  if (io.reading()) {
    readKeyFrame(io.reader().child("REQUEST_PARAM"), r);
  } else if (r.bSendIpc == 0) {
    io.element("REQUEST_PARAM", {{"ChannelId", r.ChannelId}, {"StreamIndex", r.StreamIndex}});
  } else if (r.bSendIpc == 1) {
    io.element("REQUEST_PARAM", {{"Camera", r.ChannelId}, {"Stream", r.StreamIndex}});
  } else {
    KovProtocolLogError("SystemControl_GetIpcKeyFrame_MessageCompose unknow bSendIpc:%d\n", r.bSendIpc);
  }
}

constexpr Message kGetIpcKeyFrame = {"SystemControl_GetIpcKeyFrame_Message", request<getIpcKeyFrame>, nullptr};

void setIpcUserdevdata(BodyIo& io, SYSTEM_CONTROL_1033_PARAM& r) {
  io.element("REQUEST_PARAM", {{"UserDevData", r.UserDevData}});
}

constexpr Message kSetIpcUserdevdata = {"SystemControl_SetIpcUserdevdata_Message", request<setIpcUserdevdata>, nullptr};

void getIpcUserdevdata(BodyIo& io, SYSTEM_CONTROL_1033_PARAM& r) {
  io.element("RESPONSE_PARAM", {{"UserDevData", r.UserDevData}});
}

constexpr Message kGetIpcUserdevdata = {"SystemControl_GetIpcUserdevdata_Message", nullptr,
                                        response<getIpcUserdevdata>};

void setIpcIrcut(BodyIo& io, SYSTEM_CONTROL_1046_PARAM& r) { io.element("REQUEST_PARAM", {{"Mode", r.Mode}}); }

constexpr Message kSetIpcIrcut = {"SystemControl_SetIpcIrcut_Message", request<setIpcIrcut>, nullptr};

constexpr CodeRow kRows[] = {
    {1004, &kSetRefleshChbkg},   {1005, &kSetIpcTime},        {1006, &kSetNvrChannelAdd}, {1019, &kGetIpcSn},
    {1020, &kGetSysAbality},     {1030, &kGetDeviceType},     {1031, &kGetMediaAbality},  {1032, &kGetIpcKeyFrame},
    {1033, &kSetIpcUserdevdata}, {1034, &kGetIpcUserdevdata}, {1046, &kSetIpcIrcut},
};

}  // namespace

constexpr Message kGetSysAbality = {"SystemControl_GetSysAbality_Message", nullptr, response<getSysAbality>};

constexpr CodeGroup kDeviceCodes = kRows;

}  // namespace kov

int SYSTEM_CONTROL_1004_PARAM_init(SYSTEM_CONTROL_1004_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_1005_PARAM_init(SYSTEM_CONTROL_1005_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_1006_PARAM_init(SYSTEM_CONTROL_1006_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_1019_PARAM_init(SYSTEM_CONTROL_1019_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_1020_PARAM_init(SYSTEM_CONTROL_1020_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_1030_PARAM_init(SYSTEM_CONTROL_1030_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_1031_PARAM_init(SYSTEM_CONTROL_1031_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_1032_PARAM_init(SYSTEM_CONTROL_1032_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_1033_PARAM_init(SYSTEM_CONTROL_1033_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_1034_PARAM_init(SYSTEM_CONTROL_1033_PARAM* record) { return SYSTEM_CONTROL_1033_PARAM_init(record); }
int SYSTEM_CONTROL_1046_PARAM_init(SYSTEM_CONTROL_1046_PARAM* record) { return kov::fillDefaults(record); }

int SystemControl_GetSysAbality_MessageCompose(const SYSTEM_CONTROL_1020_PARAM* param, int direction, char* body,
                                               int bodySize) {
  if (param == nullptr || body == nullptr || bodySize < 1) {
    KovProtocolLogInfo("SystemControl_GetSysAbality_MessageCompose put a empty Param\n");
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  return kov::composeInto(
      body, bodySize, [=](kov::BodyWriter& writer) { return kov::kGetSysAbality.compose(param, direction, writer); });
}

int SystemControl_SetRefleshCHBKG_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetRefleshChbkg.analyse(xml, result);
}
int SystemControl_SetIpcTime_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetIpcTime.analyse(xml, result);
}
int SystemControl_SetNvrChannelAdd_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetNvrChannelAdd.analyse(xml, result);
}
int SystemControl_GetIpcSN_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetIpcSn.analyse(xml, result);
}
int SystemControl_GetSysAbality_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetSysAbality.analyse(xml, result);
}
int SystemControl_GetDeviceType_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetDeviceType.analyse(xml, result);
}
int SystemControl_GetMediaAbality_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetMediaAbality.analyse(xml, result);
}
int SystemControl_GetIpcKeyFrame_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetIpcKeyFrame.analyse(xml, result);
}
int SystemControl_SetIpcUserdevdata_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetIpcUserdevdata.analyse(xml, result);
}
int SystemControl_GetIpcUserdevdata_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetIpcUserdevdata.analyse(xml, result);
}
int SystemControl_SetIpcIrcut_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetIpcIrcut.analyse(xml, result);
}
