#include "wire.h"

#include <cstring>
#include <fstream>
#include <functional>
#include <vector>

namespace kov::test {
namespace {

constexpr int kRoom = 1 << 18;

std::string between(const std::string& text, const std::string& opening, const std::string& closing) {
  const std::size_t begin = text.find(opening);
  const std::size_t end = text.rfind(closing);
  if (begin == std::string::npos || end == std::string::npos) return text;
  const std::size_t from = begin + opening.size();
  return from >= end ? "" : text.substr(from, end - from);
}

// With KOV_SEEDS naming a directory, the documents of all tests are left there: seeds for the fuzz targets.
void keepAsSeed(const std::string& document) {
  constexpr std::size_t kLargest = 4096;
  const char* const directory = std::getenv("KOV_SEEDS");
  if (directory == nullptr || document.size() > kLargest) return;
  std::ofstream(std::string(directory) + "/" + std::to_string(std::hash<std::string>()(document))) << document;
}

}  // namespace

KOV_PROTOCOL_HEADER headerOf(const std::string& type, const std::string& code) {
  KOV_PROTOCOL_HEADER header;
  set(header.Msg_type, type);
  set(header.Msg_code, code);
  return header;
}

std::string documentOf(const std::string& type, const std::string& code, int direction, const void* record) {
  const KOV_PROTOCOL_HEADER header = headerOf(type, code);
  std::vector<char> out(kRoom);
  const int length = KovProtocolXMLCompose(&header, record, direction, KOV_PLAIN, nullptr, out.data(), kRoom);
  if (length < 0) return "code " + std::to_string(length);
  const bool framed = out[0] != '<';
  const std::size_t skip = framed ? KOV_FRAME_HEADER_SIZE : 0;
  return {out.data() + skip, static_cast<std::size_t>(length) - skip};
}

std::string bodyOf(const std::string& type, const std::string& code, int direction, const void* record) {
  return between(documentOf(type, code, direction, record), "<MESSAGE_BODY>\n", "\n</MESSAGE_BODY>");
}

std::string received(const std::string& type, const std::string& code, const std::string& body,
                     const std::string& extras) {
  return "<?xml version=\"1.0\" encoding=\"GB2312\" ?>\n<XML_ZANTIR>\n<MESSAGE_HEADER\nMsg_type=\"" + type +
         "\"\nMsg_code=\"" + code + "\"\nMsg_flag=\"7\"\n" + extras + "/>\n<MESSAGE_BODY>\n" + body +
         "\n</MESSAGE_BODY>\n</XML_ZANTIR>";
}

Analysis analysePayload(const std::string& payload, int decodeMode, void* key) {
  const std::unique_ptr<char[]> exact(new char[payload.size()]);
  std::memcpy(exact.get(), payload.data(), payload.size());
  keepAsSeed(payload);
  Analysis analysis;
  void* result = nullptr;
  analysis.code = KovProtocolMSGAnalysisStart(exact.get(), static_cast<int>(payload.size()), decodeMode, key,
                                              &analysis.header, &result);
  analysis.result.reset(result);
  return analysis;
}

}  // namespace kov::test
