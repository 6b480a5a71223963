// What all sub-commands share: the text around their values, and the record with a block behind it.
#include "ptz/sub_command.h"

#include <algorithm>

#include "kov_platform/services.h"

namespace kov {
namespace {

using Record = PTZ_CONTROL_PTZ_CMD_PARAM;

void writeOpening(BodyIo& io, Record& record, const PtzForm& form) {
  if (form.has(PtzForm::kChannel)) io.texts({attr("channelid", record.channelid).ifSet()});
  if (form.has(PtzForm::kXml)) io.text("<xml>\n");
  if (!form.has(PtzForm::kCmd)) return;
  const Attribute cmd("cmd", record.cmd);
  io.texts({form.has(PtzForm::kOneLine) ? cmd.thenNothing() : cmd});
}

void writeClosing(BodyIo& io, const PtzForm& form) {
  if (form.has(PtzForm::kXml)) io.text(form.has(PtzForm::kOneLine) ? "</xml>" : "</xml>\n");
}

std::size_t blockSizeOf(const char* cmd) {
  const PtzMessage* const message = findSubCommand(cmd);
  return message == nullptr ? 0 : message->block.size;
}

// A new record with `blockSize` zeroed bytes behind it.
Record* newCommand(std::size_t blockSize, void** result) {
  void* const memory = newBlock(sizeof(Record) + blockSize, result);
  if (memory == nullptr) return nullptr;
  setDefaults<Record>(memory);
  auto* const record = static_cast<Record*>(memory);
  if (blockSize == 0) return record;
  record->pExData = record + 1;
  std::memset(record->pExData, 0, blockSize);
  return record;
}

}  // namespace

int PtzMessage::compose(const Record& record, int direction, BodyWriter& body) const {
  const PtzForm& form = isRequest(direction) ? request : response;
  if (form.values != nullptr && record.pExData == nullptr && !form.has(PtzForm::kOptional)) {
    const FieldText text(record.cmd);
    KovProtocolLogError("PTZ_CONTROL_MESSAGE deal cmd : %s get the pExData is NULL\n", text.text());
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  BodyIo io(body);
  writeOpening(io, const_cast<Record&>(record), form);  // writing leaves the record alone
  if (form.values != nullptr && record.pExData != nullptr) form.values(io, record.pExData);
  writeClosing(io, form);
  return KOV_OK;
}

int PtzMessage::analyse(const char* xml, void** result) const {
  if (xml == nullptr || result == nullptr) {
    KovProtocolLogError("%sAnalysis put a empty Param\n", name);
    return KOV_ERROR_EMPTY_ARGUMENT;
  }
  KovXMLParser document;
  const int parsed = parseDocument(name, xml, document);
  return parsed != KOV_OK ? parsed : analyse(document, result);
}

int PtzMessage::analyse(const KovXMLParser& document, void** result) const {
  ElementReader body;
  const int found = findBody(name, document, body);
  if (found != KOV_OK) return found;
  const ElementReader xml = body.child("xml");
  if (!xml && needsXml()) {
    KovProtocolLogError("%sAnalysis get xml error\n", name);
    return KOV_ERROR_NO_ELEMENT;
  }
  char text[sizeof Record::cmd] = {};
  readCmd(xml, text);
  // The document was recognised by any name in it, and who gets the record goes by its cmd: the block must do for both.
  Record* const record = newCommand(std::max(block.size, blockSizeOf(text)), result);
  if (record == nullptr) return KOV_ERROR_NO_MEMORY;
  std::memcpy(record->cmd, text, sizeof text);
  BodyIo(body).texts({{"channelid", record->channelid}});
  if (block.size != 0) read(body, xml, record->pExData);
  return KOV_OK;
}

void PtzMessage::readCmd(const ElementReader& xml, char (&text)[sizeof Record::cmd]) const {
  if (cmdFrom != CmdFrom::Name) BodyIo(xml).texts({{"cmd", text}});
  if (cmdFrom == CmdFrom::Text || text[0] != '\0') return;
  BodyWriter writer(text, sizeof text);
  writer.text(cmd);
  writer.terminate();
}

// Every text is read for both directions: it does not say which one it is. Replies that stand bare in the body are also
// understood inside xml.
void PtzMessage::read(const ElementReader& body, const ElementReader& xml, void* memory) const {
  block.setDefaults(memory);
  for (const PtzForm* form : {&request, &response}) {
    if (form->values == nullptr) continue;
    BodyIo inBody(body);
    if (form->isBare()) form->values(inBody, memory);
    BodyIo inXml(xml);
    form->values(inXml, memory);
  }
}

}  // namespace kov
