/* A heartbeat there and back in plain C, and who owns what on the way. */
#include <kov_protocol/heartbeat.h>
#include <stdio.h>
#include <string.h>

/* C has no default values: a record is set by its _init function before the first field is. */
static int composeHeartbeat(char *frame, int size) {
  KOV_PROTOCOL_HEADER header;
  KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM state;
  if (KOV_PROTOCOL_HEADER_init(&header) != KOV_OK) return KOV_ERROR_NULL;
  if (KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM_init(&state) != KOV_OK) return KOV_ERROR_NULL;
  strcpy(header.Msg_type, KOV_HEARTBEAT_MESSAGE_TYPE);
  strcpy(header.Msg_code, HEARTBEAT_MESSAGE_CODE);
  strcpy(header.Msg_flag, "17");
  strcpy(state.Ipcs_stat, "1101");
  strcpy(state.streamstat, "1001");
  /* Header, record and buffer stay ours. Compose reads the first two and writes the third, all before it returns. */
  return KovProtocolXMLCompose(&header, &state, KOV_REQUEST, KOV_PLAIN, NULL, frame, size);
}

static int checkHeartbeat(const KOV_PROTOCOL_HEADER *header, const KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM *state) {
  if (strcmp(header->Msg_type, KOV_HEARTBEAT_MESSAGE_TYPE) != 0) return 1;
  if (strcmp(header->Msg_flag, "17") != 0 || strcmp(header->Msg_uuid, "") != 0) return 1;
  if (strcmp(state->Ipcs_stat, "1101") != 0 || strcmp(state->streamstat, "1001") != 0) return 1;
  printf("heartbeat %s: cameras %s, streams %s\n", header->Msg_flag, state->Ipcs_stat, state->streamstat);
  return strcmp(state->IpcAbility1, "") != 0; /* was not sent */
}

/* Reads what followed the frame header. The bytes stay the caller's, but analysis may rewrite them. */
static int readHeartbeat(char *payload, int length) {
  KOV_PROTOCOL_HEADER header;
  void *record = NULL; /* a message without a record leaves it alone */
  int failed = 1;
  KOV_PROTOCOL_HEADER_init(&header); /* an attribute that the message lacks leaves its field alone */
  if (KovProtocolMSGAnalysisStart(payload, length, KOV_PLAIN, NULL, &header, &record) == KOV_OK && record != NULL) {
    /* The header's type and code say what the record is. */
    failed = checkHeartbeat(&header, record);
  }
  /* The record is ours since analysis returned, after a failure too. This releases it and sets the pointer to null. */
  KovProtocolMSGAnalysisStop(&record);
  return failed || record != NULL;
}

int main(void) {
  char frame[8192];
  uint32_t magic;
  uint32_t announced;
  int length = composeHeartbeat(frame, (int)sizeof frame);
  if (length < 0) return 1;

  /* A socket would be here. The receiver reads the eight bytes in front itself, and then as much as they announce. */
  memcpy(&magic, frame, sizeof magic);
  memcpy(&announced, frame + sizeof magic, sizeof announced);
  if (magic != KOV_FRAME_PLAIN_MAGIC || announced != (uint32_t)(length - KOV_FRAME_HEADER_SIZE)) return 1;
  if (readHeartbeat(frame + KOV_FRAME_HEADER_SIZE, (int)announced) != 0) {
    fprintf(stderr, "The heartbeat differs from the one that was sent\n");
    return 1;
  }
  return 0;
}
