// NVR_REPLAY_MESSAGE: queries of recordings, and the playback of a channel.
#include "kov_protocol/nvr_replay.h"

#include "core/family.h"
#include "kov_platform/services.h"
#include "playback/nvr_replay.h"

namespace kov {
namespace {

void recQueryRequest(BodyIo& io, NVR_REPLAY_3001_PARAM& r) {
  io.element("REQUEST_PARAM", {{"ChannelId", r.ChannelId}, {"Time", r.Time}});
}

void recQueryResponse(BodyIo& io, NVR_REPLAY_3001_PARAM& r) {
  io.element("RESPONSE_PARAM", {{"Stream", r.Stream}, {"ChannelId", r.ChannelId}, {"Time", r.Time}});
}

constexpr Message kRecQuery = {"NvrReplay_RecQuery_Message", request<recQueryRequest>, response<recQueryResponse>,
                               Direction::ResponseIs13};

void streamStartRequest(BodyIo& io, NVR_REPLAY_3002_PARAM& r) {
  io.element("REQUEST_PARAM", {{"ChannelId", r.ChannelId},
                               {"Time", r.Time},
                               attr("RecType", r.RecType).hex().ifSet(),
                               attr("AudioEnable", r.AudioEnable).ifSet()});
}

void streamStartResponse(BodyIo& io, NVR_REPLAY_3002_PARAM& r) {
  io.element("RESPONSE_PARAM", {{"ChannelId", r.ChannelId}});
}

constexpr Message kStreamStart = {"NvrReplay_StreamStart_Message", request<streamStartRequest>,
                                  response<streamStartResponse>};

void streamControlRequest(BodyIo& io, NVR_REPLAY_3003_PARAM& r) {
  io.element("REQUEST_PARAM", {{"ChannelId", r.ChannelId}});
}

void streamControlResponse(BodyIo& io, NVR_REPLAY_3003_PARAM& r) {
  io.element("RESPONSE_PARAM", {{"ChannelId", r.ChannelId}});
}

constexpr Message kStreamControl = {"NvrReplay_StreamControl_Message", request<streamControlRequest>,
                                    response<streamControlResponse>};

void speedControlRequest(BodyIo& io, NVR_REPLAY_3004_PARAM& r) {
  io.element("REQUEST_PARAM",
             {attr("FrameType", r.FrameType).ifSet(), {"ChannelId", r.ChannelId}, attr("Speed", r.Speed).ifSet()});
}

void speedControlResponse(BodyIo& io, NVR_REPLAY_3004_PARAM& r) {
  io.element("RESPONSE_PARAM", {{"ChannelId", r.ChannelId}, attr("Speed", r.Speed).ifSet()});
}

constexpr Message kSpeedControl = {"NvrReplay_SpeedControl_Message", request<speedControlRequest>,
                                   response<speedControlResponse>};

void playJumpRequest(BodyIo& io, NVR_REPLAY_3010_PARAM& r) {
  io.element("REQUEST_PARAM", {{"Time", r.Time}, {"ChannelId", r.ChannelId}});
}

void playJumpResponse(BodyIo& io, NVR_REPLAY_3010_PARAM& r) {
  io.element("RESPONSE_PARAM", {{"ChannelId", r.ChannelId}});
}

constexpr Message kPlayJump = {"NvrReplay_PlayJump_Message", request<playJumpRequest>, response<playJumpResponse>,
                               Direction::ResponseIs13};

// The two flags say whether the record has the texts; they do not travel, and analysis leaves them unset.
bool present(std::int32_t flag) { return isSet(flag) && flag != 0; }

void vedioParamResponse(BodyIo& io, NVR_REPLAY_3012_PARAM& r) {
  io.element("RESPONSE_PARAM", {attr("ChannelId", r.ChannelId).ifSet(),
                                attr("VideoParam", r.VideoParam).when(present(r.HasVideoParam)),
                                attr("AudioParam", r.AudioParam).when(present(r.HasAudioParam)),
                                {"VideoSeconds", r.VideoSeconds}});
}

constexpr Message kVedioParam = {"NvrReplay_VedioParam_Message", nullptr, response<vedioParamResponse>,
                                 Direction::ResponseIs13};

void queryByMonthRequest(BodyIo& io, NVR_REPLAY_3016_PARAM& r) {
  io.element("REQUEST_PARAM", {{"ChannelId", r.ChannelId}, {"Time", r.Time}});
}

void queryByMonthResponse(BodyIo& io, NVR_REPLAY_3016_PARAM& r) {
  io.element("RESPONSE_PARAM", {{"RecordData", r.RecordData}, {"ChannelId", r.ChannelId}, {"Time", r.Time}});
}

constexpr Message kQueryByMonth = {"NvrReplay_QueryByMonth_Message", request<queryByMonthRequest>,
                                   response<queryByMonthResponse>, Direction::ResponseIs13};

// The sequence number is unsigned, but written signed.
void queryBySencondRequest(BodyIo& io, NVR_REPLAY_3017_PARAM& r) {
  io.element("REQUEST_PARAM",
             {{"ChannelId", r.ChannelId}, {"Time", r.Time}, attr("SequenceNumber", r.SequenceNumber).asSigned()});
}

void queryBySencondResponse(BodyIo& io, NVR_REPLAY_3017_PARAM& r) {
  io.element("RESPONSE_PARAM", {{"ChannelId", r.ChannelId},
                                {"Time", r.Time},
                                {"TotalPacketNum", r.TotalPacketNum},
                                {"CurrentPacket", r.CurrentPacket},
                                attr("SequenceNumber", r.SequenceNumber).asSigned()});
  io.element("TIMECLICE_PARAM", {{"TimeSliceInfo", r.TimeSliceInfo}});
}

constexpr Message kQueryBySencond =
    Message("NvrReplay_QueryBySencond_Message", request<queryBySencondRequest>, response<queryBySencondResponse>)
        .requestFirst();

constexpr CodeRow kCodes[] = {
    {3001, &kRecQuery},       {3002, &kStreamStart},   {3003, &kStreamControl}, {3004, &kSpeedControl},
    {3005, &kStreamControl},  {3006, &kStreamControl}, {3007, &kSpeedControl},  {3008, &kSpeedControl},
    {3009, &kStreamControl},  {3010, &kPlayJump},      {3011, &kStreamControl}, {3012, &kVedioParam},
    {3013, &kStreamStart},    {3014, &kStreamControl}, {3015, &kStreamControl}, {3016, &kQueryByMonth},
    {3017, &kQueryBySencond},
};

// Replay tells unknown codes under the live stream's name.
void logUnknown(const char* msgCode, int) {
  KovProtocolLogError("LIVE_STREAM_MESSAGE deal a unknow Msg_code:%s !!!\n", msgCode);
}

constexpr CodeTable kTable("NVR_REPLAY_MESSAGE", kCodes, logUnknown);

}  // namespace

constexpr Family kNvrReplay = {&kTable};

}  // namespace kov

int NVR_REPLAY_3001_PARAM_init(NVR_REPLAY_3001_PARAM* record) { return kov::fillDefaults(record); }
int NVR_REPLAY_3002_PARAM_init(NVR_REPLAY_3002_PARAM* record) { return kov::fillDefaults(record); }
int NVR_REPLAY_3003_PARAM_init(NVR_REPLAY_3003_PARAM* record) { return kov::fillDefaults(record); }
int NVR_REPLAY_3004_PARAM_init(NVR_REPLAY_3004_PARAM* record) { return kov::fillDefaults(record); }
int NVR_REPLAY_3005_PARAM_init(NVR_REPLAY_3003_PARAM* record) { return NVR_REPLAY_3003_PARAM_init(record); }
int NVR_REPLAY_3006_PARAM_init(NVR_REPLAY_3003_PARAM* record) { return NVR_REPLAY_3003_PARAM_init(record); }
int NVR_REPLAY_3007_PARAM_init(NVR_REPLAY_3004_PARAM* record) { return NVR_REPLAY_3004_PARAM_init(record); }
int NVR_REPLAY_3008_PARAM_init(NVR_REPLAY_3004_PARAM* record) { return NVR_REPLAY_3004_PARAM_init(record); }
int NVR_REPLAY_3009_PARAM_init(NVR_REPLAY_3003_PARAM* record) { return NVR_REPLAY_3003_PARAM_init(record); }
int NVR_REPLAY_3010_PARAM_init(NVR_REPLAY_3010_PARAM* record) { return kov::fillDefaults(record); }
int NVR_REPLAY_3011_PARAM_init(NVR_REPLAY_3003_PARAM* record) { return NVR_REPLAY_3003_PARAM_init(record); }
int NVR_REPLAY_3012_PARAM_init(NVR_REPLAY_3012_PARAM* record) { return kov::fillDefaults(record); }
int NVR_REPLAY_3013_PARAM_init(NVR_REPLAY_3002_PARAM* record) { return NVR_REPLAY_3002_PARAM_init(record); }
int NVR_REPLAY_3014_PARAM_init(NVR_REPLAY_3003_PARAM* record) { return NVR_REPLAY_3003_PARAM_init(record); }
int NVR_REPLAY_3015_PARAM_init(NVR_REPLAY_3003_PARAM* record) { return NVR_REPLAY_3003_PARAM_init(record); }
int NVR_REPLAY_3016_PARAM_init(NVR_REPLAY_3016_PARAM* record) { return kov::fillDefaults(record); }
int NVR_REPLAY_3017_PARAM_init(NVR_REPLAY_3017_PARAM* record) { return kov::fillDefaults(record); }

int NvrReplayMessageCompose(const void* param, int direction, const char* msgCode, char* body, int bodySize) {
  return kov::kTable.compose(param, direction, msgCode, body, bodySize);
}
int NvrReplayMessageAnalysis(const char* xml, const char* msgCode, void** result) {
  return kov::kTable.analyse(xml, msgCode, result);
}
int NvrReplay_RecQuery_MessageAnalysis(const char* xml, void** result) { return kov::kRecQuery.analyse(xml, result); }
int NvrReplay_StreamStart_MessageAnalysis(const char* xml, void** result) {
  return kov::kStreamStart.analyse(xml, result);
}
int NvrReplay_StreamControl_MessageAnalysis(const char* xml, void** result) {
  return kov::kStreamControl.analyse(xml, result);
}
int NvrReplay_SpeedControl_MessageAnalysis(const char* xml, void** result) {
  return kov::kSpeedControl.analyse(xml, result);
}
int NvrReplay_PlayJump_MessageAnalysis(const char* xml, void** result) { return kov::kPlayJump.analyse(xml, result); }
int NvrReplay_VedioParam_MessageAnalysis(const char* xml, void** result) {
  return kov::kVedioParam.analyse(xml, result);
}
int NvrReplay_QueryByMonth_MessageAnalysis(const char* xml, void** result) {
  return kov::kQueryByMonth.analyse(xml, result);
}
int NvrReplay_QueryBySencond_MessageAnalysis(const char* xml, void** result) {
  return kov::kQueryBySencond.analyse(xml, result);
}
