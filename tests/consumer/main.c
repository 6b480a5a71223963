// A program of somebody else's: sends itself a heartbeat, with nothing but the public headers.
#include <kov_protocol/heartbeat.h>
#include <string.h>

static int received(char *frame, int length) {
  KOV_PROTOCOL_HEADER header;
  KOV_PROTOCOL_HEADER_init(&header);
  void *record = NULL;
  const int code = KovProtocolMSGAnalysisStart(frame + KOV_FRAME_HEADER_SIZE, length - KOV_FRAME_HEADER_SIZE, KOV_PLAIN,
                                               NULL, &header, &record);
  const KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM *const heartbeat = record;
  const int same = code == KOV_OK && heartbeat != NULL && strcmp(heartbeat->Ipcs_stat, "1010") == 0;
  KovProtocolMSGAnalysisStop(&record);
  return same;
}

int main(void) {
  KOV_PROTOCOL_HEADER header;
  KOV_PROTOCOL_HEADER_init(&header);
  strcpy(header.Msg_type, KOV_HEARTBEAT_MESSAGE_TYPE);
  strcpy(header.Msg_code, HEARTBEAT_MESSAGE_CODE);
  KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM heartbeat;
  KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM_init(&heartbeat);
  strcpy(heartbeat.Ipcs_stat, "1010");
  char frame[2048];
  const int length = KovProtocolXMLCompose(&header, &heartbeat, KOV_REQUEST, KOV_PLAIN, NULL, frame, (int)sizeof frame);
  return length > 0 && received(frame, length) ? 0 : 1;
}
