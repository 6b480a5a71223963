// A recorder is asked for its recordings: the request as it leaves the client, and as the recorder reads it.
#include <kov_protocol/nvr_replay.h>

#include <cstdio>
#include <cstring>

int main() {
  KOV_PROTOCOL_HEADER header;
  KOV_PROTOCOL_HEADER_init(&header);
  std::strcpy(header.Msg_type, NVR_REPLAY_MESSAGE_TYPE);
  std::strcpy(header.Msg_code, "3001");
  NVR_REPLAY_3001_PARAM query;
  NVR_REPLAY_3001_PARAM_init(&query);
  query.ChannelId = 3;
  std::strcpy(query.Time, "2026-11-21");
  char frame[8192];
  const int length = KovProtocolXMLCompose(&header, &query, KOV_REQUEST, KOV_PLAIN, nullptr, frame, sizeof frame);
  if (length < 0) return 1;

  KOV_PROTOCOL_HEADER from = {};
  void* record = nullptr;
  bool same = false;
  if (KovProtocolMSGAnalysisStart(frame + KOV_FRAME_HEADER_SIZE, length - KOV_FRAME_HEADER_SIZE, KOV_PLAIN, nullptr,
                                  &from, &record) == 0) {
    const auto* asked = static_cast<const NVR_REPLAY_3001_PARAM*>(record);
    std::printf("%s: channel %d, day %s\n", from.Msg_code, asked->ChannelId, asked->Time);
    same = asked->ChannelId == query.ChannelId && std::strcmp(asked->Time, query.Time) == 0;
  }
  KovProtocolMSGAnalysisStop(&record);
  return same ? 0 : 1;
}
