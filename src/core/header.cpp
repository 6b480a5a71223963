#include "core/header.h"

#include "core/record.h"
#include "kov_platform/services.h"

namespace kov {

void headerAttributes(BodyIo& io, KOV_PROTOCOL_HEADER& r) {
  io.attributes({{"Msg_type", r.Msg_type}, {"Msg_code", r.Msg_code}, {"Msg_flag", r.Msg_flag}});
}

void optionalHeaderAttributes(BodyIo& io, KOV_PROTOCOL_HEADER& r) {
  io.attributes({attr("Msg_uuid", r.Msg_uuid).ifSet(), attr("Msg_chn", r.Msg_chn).ifSet()});
}

int readMessageHeader(const KovXMLParser& document, KOV_PROTOCOL_HEADER& header) {
  const ElementReader root(document, document.RootElement());
  if (!root) {
    KovProtocolLogError("GetMessageHeader get RootElement error\n");
    return KOV_ERROR_BAD_DOCUMENT;
  }
  const ElementReader element = root.child("MESSAGE_HEADER");
  if (!element) {
    KovProtocolLogError("GetMessageHeader get MESSAGE_HEADER error\n");
    return KOV_ERROR_NO_ELEMENT;
  }
  BodyIo io(element);
  headerAttributes(io, header);
  optionalHeaderAttributes(io, header);
  return KOV_OK;
}

int readHeaderExtras(const KovXMLParser& document, void** result) {
  const ElementReader root(document, document.RootElement());
  if (!root) {
    KovProtocolLogError("GetMessageHeaderEx get RootElement error\n");
    return KOV_ERROR_BAD_DOCUMENT;
  }
  const ElementReader element = root.child("MESSAGE_HEADER");
  if (!element) {
    KovProtocolLogError("GetMessageHeaderEx get MESSAGE_HEADER error\n");
    return KOV_ERROR_NO_ELEMENT;
  }
  auto* const record = newRecord<KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM>(result);
  if (record == nullptr) return KOV_ERROR_NO_MEMORY;
  BodyIo(element).attributes({{"Ipcs_stat", record->Ipcs_stat},
                              {"streamstat", record->streamstat},
                              {"IpcAbility1", record->IpcAbility1},
                              {"IpcProtoCol", record->IpcProtoCol}});
  return KOV_OK;
}

int findTransparentHeader(const KovXMLParser& document, ElementReader& found) {
  const ElementReader root(document, document.RootElement());
  if (!root) {
    KovProtocolLogError("GetTransparentHeader get RootElement error\n");
    return KOV_ERROR_BAD_DOCUMENT;
  }
  found = root.child("TRANSPARENT_HEADER");
  return found ? KOV_OK : KOV_ERROR_NO_ELEMENT;  // silent: an ordinary message has none
}

void readTransparentHeader(const ElementReader& element, TRANSPARENT_HEADER& record) {
  BodyIo(element).attributes({{"Trans_Type", record.Trans_Type},
                              {"Channel_ID", record.Channel_ID},
                              {"Source_Type", record.Source_Type},
                              {"Session_ID", record.Session_ID},
                              {"Trans_Result", record.Trans_Result}});
}

}  // namespace kov

int KOV_PROTOCOL_HEADER_init(KOV_PROTOCOL_HEADER* header) { return kov::fillDefaults(header); }

int TRANSPARENT_HEADER_init(TRANSPARENT_HEADER* record) {
  if (record == nullptr) return KOV_ERROR_NULL;
  std::memset(static_cast<void*>(record), 0, offsetof(TRANSPARENT_HEADER, Payload));
  record->PayloadLength = -1;
  return KOV_OK;
}

int KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM_init(KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM* record) {
  return kov::fillDefaults(record);
}

int AUXPTZ_HEARTBEAT_CMD_HEARTBEAT_PARAM_init(KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM* record) {
  return KOV_HEARTBEAT_CMD_HEARTBEAT_PARAM_init(record);
}

int GetMessageHeader(const char* xml, KOV_PROTOCOL_HEADER* header) {
  if (xml == nullptr || header == nullptr) {
    KovProtocolLogError("Invalid input data %p %p\n", static_cast<const void*>(xml), static_cast<void*>(header));
    return KOV_ERROR_NULL;
  }
  KovXMLParser document;
  if (document.Parse(xml) != 0) {
    KovProtocolLogError("GetMessageHeader Parse xml error\n");
    return KOV_ERROR_BAD_DOCUMENT;
  }
  return kov::readMessageHeader(document, *header);
}

int GetMessageHeaderEx(const char* xml, void** result) {
  if (xml == nullptr || result == nullptr) {
    KovProtocolLogError("GetMessageHeaderEx put a empty Param\n");
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  KovXMLParser document;
  if (document.Parse(xml) != 0) return KOV_ERROR_BAD_DOCUMENT;
  return kov::readHeaderExtras(document, result);
}

int GetTransparentHeader(const char* xml, TRANSPARENT_HEADER* record) {
  if (xml == nullptr || record == nullptr) {
    KovProtocolLogError("Invalid input data %p %p\n", static_cast<const void*>(xml), static_cast<void*>(record));
    return KOV_ERROR_BAD_DOCUMENT;
  }
  KovXMLParser document;
  if (document.Parse(xml) != 0) return KOV_ERROR_BAD_DOCUMENT;
  kov::ElementReader element;
  const int found = kov::findTransparentHeader(document, element);
  if (found == KOV_OK) kov::readTransparentHeader(element, *record);
  return found;
}
