// The records of the demo as lists of named texts: for people to read, and to compare two records by.
#pragma once

#include <kov_protocol/heartbeat.h>
#include <kov_protocol/live_stream.h>
#include <kov_protocol/nvr_replay.h>
#include <kov_protocol/replay_control.h>
#include <kov_protocol/system_encrypt.h>
#include <kov_protocol/system_log.h>
#include <kov_protocol/system_searchipc.h>
#include <kov_protocol/user_auth.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "link.h"

namespace demo {

// One field of a record; an unset one has no text.
struct Field {
  Field(std::string fieldName, std::int32_t value) : name(std::move(fieldName)) {
    if (value != -1) text = std::to_string(value);
  }
  Field(std::string fieldName, std::uint32_t value) : name(std::move(fieldName)) {
    if (value != UINT32_MAX) text = std::to_string(value);
  }
  // A text that fills its field has no NUL.
  template <std::size_t Capacity>
  Field(std::string fieldName, const char (&value)[Capacity])
      : name(std::move(fieldName)), text(value, strnlen(value, Capacity)) {}

  std::string name;
  std::string text;
};
using Fields = std::vector<Field>;

Fields fieldsOf(const SYSTEM_SEARCHIPC_1_PARAM& r);
Fields fieldsOf(const SYSTEM_SEARCHIPC_3_PARAM& r);
Fields fieldsOf(const USER_AUTH_CMD_USER_AUTH_PARAM& r);
Fields fieldsOf(const SYSTEM_ENCRYPT_150_PARAM& r);
Fields fieldsOf(const KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM& r);
Fields fieldsOf(const LIVE_STREAM_CMD_STREAM_START_PARAM& r);
Fields fieldsOf(const LIVE_STREAM_CMD_STREAM_STOP_PARAM& r);
Fields fieldsOf(const NVR_REPLAY_3001_PARAM& r);
Fields fieldsOf(const NVR_REPLAY_3002_PARAM& r);
Fields fieldsOf(const NVR_REPLAY_3003_PARAM& r);
Fields fieldsOf(const NVR_REPLAY_3016_PARAM& r);
Fields fieldsOf(const NVR_REPLAY_3017_PARAM& r);
Fields fieldsOf(const REPLAY_CONTROL_PARAM& r);
Fields fieldsOf(const SYSTEM_LOG_PARAM& r);  // without the raw data

void print(const Received& message, const Fields& fields);
void requireSame(const Fields& received, const Fields& expected);

// The record of a message, printed.
template <class Record>
const Record& shown(const Received& message) {
  const Record& record = message.as<Record>();
  print(message, fieldsOf(record));
  return record;
}

// A text into a field of a record.
template <std::size_t Capacity>
void put(char (&field)[Capacity], const std::string& text) {
  const std::size_t length = std::min(text.size(), Capacity - 1);
  std::memcpy(field, text.data(), length);
  field[length] = '\0';
}

inline KOV_PROTOCOL_HEADER headerOf(const std::string& type, const std::string& code, const std::string& flag) {
  KOV_PROTOCOL_HEADER header;
  put(header.Msg_type, type);
  put(header.Msg_code, code);
  put(header.Msg_flag, flag);
  return header;
}

}  // namespace demo
