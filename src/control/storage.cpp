// Storage of a camera: its query, which runs two messages in either direction, and its formatting.
#include <cstdlib>

#include "control/control_messages.h"

namespace kov {
namespace {

static_assert(sizeof(SYSTEM_CONTROL_1014_PARAM) == 252);
static_assert(sizeof(SYSTEM_CONTROL_1017_PARAM) == sizeof SYSTEM_CONTROL_1014_DEVICE::DevName,
              "a storage record begins with a format record");

void storageAttributes(BodyIo io, SYSTEM_CONTROL_1014_DEVICE& r) {
  io.attributes({{"DevName", r.DevName},
                 {"Mounted", r.Mounted},
                 {"Total", r.Total},
                 {"Used", r.Used},
                 {"Free", r.Free},
                 {"Percent", r.Percent}});
}

// Every device is read into the first entry, so that the last one stays.
void readStorage(const ElementReader& param, SYSTEM_CONTROL_1014_DEVICE& first) {
  for (ElementReader device = param.child("DeviceInfo"); device; device = device.next("DeviceInfo")) {
    storageAttributes(BodyIo(device), first);
  }
}

void storageResponse(BodyIo& io, SYSTEM_CONTROL_1014_PARAM& r) {
  BodyIo param = io.enter("RESPONSE_PARAM");
  if (io.reading()) {
    readStorage(param.reader(), r.Devices[0]);
    return;
  }
  for (SYSTEM_CONTROL_1014_DEVICE& device : r.Devices) {
    io.text("<DeviceInfo");  // nothing stands between it and DevName
    storageAttributes(param, device);
    io.text("/>\n");
  }
  io.text("</RESPONSE_PARAM>\n");
}

// The serial number's body, made from a storage record: its first bytes are the first device's name.
void serialNumberOfStorage(BodyIo& io, SYSTEM_CONTROL_1014_PARAM& r) {
  io.element("RESPONSE_PARAM", {{"SerialNumber", r.Devices[0].DevName}});
}

constexpr Message kSerialNumberOfStorage = {"SystemControl_GetIpcSN_Message", nullptr, response<serialNumberOfStorage>};

void formatStorage(BodyIo& io, SYSTEM_CONTROL_1017_PARAM& r) { io.element("REQUEST_PARAM", {{"DevName", r.DevName}}); }

constexpr Message kStorageDeviceFormat = {"SystemControl_StorageDeviceFormat_Message", request<formatStorage>, nullptr};

// As the query's second reading, in a record that compose may take for a storage record.
void formatInQuery(BodyIo& io, SYSTEM_CONTROL_1014_PARAM& r) {
  io.element("REQUEST_PARAM", {{"DevName", r.Devices[0].DevName}});
}

constexpr Message kFormatInQuery = {kStorageDeviceFormat.name(), request<formatInQuery>, nullptr};

// The codes of the family's storage; composeStorageCfg() and analyseStorageCfg() serve the first instead of a message.
constexpr CodeRow kRows[] = {{1014, nullptr}, {1017, &kStorageDeviceFormat}};

// Both readers store into the same result, and the second one's code counts. The block of the first stays there unless
// the second puts its own in its place: then it is released here, because nobody else knows it any more.

int analyseBoth(const KovXMLParser& document, void** result) {
  void* storage = nullptr;
  const int stored = kGetIpcStorageCfg.analyse(document, &storage);
  if (stored == KOV_OK || stored == KOV_ERROR_NO_MEMORY) *result = storage;
  const int formatted = kFormatInQuery.analyse(document, result);
  if (storage != nullptr && *result != storage) std::free(storage);
  return formatted;
}

}  // namespace

constexpr Message kGetIpcStorageCfg = {"SystemControl_GetIpcStorageCfg_Message", nullptr, response<storageResponse>};

constexpr CodeGroup kStorageCodes = kRows;

// The second body is written from where the first began, so that only the second is left.
int composeStorageCfg(const void* record, int direction, BodyWriter& body) {
  BodyWriter overwritten = body;
  const int composed = kGetIpcStorageCfg.compose(record, direction, overwritten);
  return composed != KOV_OK ? composed : kSerialNumberOfStorage.compose(record, direction, body);
}

int analyseStorageCfg(const KovXMLParser& document, void** result) { return analyseBoth(document, result); }

// A text that cannot be parsed is told by both.
int analyseStorageCfg(const char* xml, void** result) {
  KovXMLParser document;
  if (parseDocument(kGetIpcStorageCfg.name(), xml, document) == KOV_OK) return analyseBoth(document, result);
  return kFormatInQuery.analyse(xml, result);
}

}  // namespace kov

int SYSTEM_CONTROL_1014_PARAM_init(SYSTEM_CONTROL_1014_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONTROL_1017_PARAM_init(SYSTEM_CONTROL_1017_PARAM* record) { return kov::fillDefaults(record); }

int SystemControl_GetIpcStorageCfg_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetIpcStorageCfg.analyse(xml, result);
}
int SystemControl_StorageDeviceFormat_MessageAnalysis(const char* xml, void** result) {
  return kov::kStorageDeviceFormat.analyse(xml, result);
}
