// A small query, 3001: both entries beside general libraries that do the same work on the same bytes.
#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <pugixml.hpp>
#include <rapidxml/rapidxml.hpp>
#include <string>

#include "kov_protocol/nvr_replay.h"

namespace kov::bench {
namespace {

constexpr int kSmallOutput = 8192;
constexpr int kLargeOutput = 65536;

NVR_REPLAY_3001_PARAM query() {
  NVR_REPLAY_3001_PARAM record;
  record.ChannelId = 3;
  std::strcpy(record.Time, "2026-11-21 08:00:00");
  return record;
}

KOV_PROTOCOL_HEADER queryHeader() {
  KOV_PROTOCOL_HEADER header;
  std::strcpy(header.Msg_type, "NVR_REPLAY_MESSAGE");
  std::strcpy(header.Msg_code, "3001");
  std::strcpy(header.Msg_flag, "17");
  std::strcpy(header.Msg_uuid, "6b2f0d51-8c4e");
  return header;
}

std::string queryDocument() {
  const KOV_PROTOCOL_HEADER header = queryHeader();
  const NVR_REPLAY_3001_PARAM record = query();
  char frame[kSmallOutput];
  const int length = KovProtocolXMLCompose(&header, &record, KOV_REQUEST, KOV_PLAIN, nullptr, frame, sizeof frame);
  return {frame + KOV_FRAME_HEADER_SIZE, static_cast<std::size_t>(length - KOV_FRAME_HEADER_SIZE)};
}

void composeKov(benchmark::State& state, int outSize) {
  const KOV_PROTOCOL_HEADER header = queryHeader();
  const NVR_REPLAY_3001_PARAM record = query();
  const std::unique_ptr<char[]> out(new char[static_cast<std::size_t>(outSize)]);
  for (auto step : state) {
    (void)step;
    benchmark::DoNotOptimize(
        KovProtocolXMLCompose(&header, &record, KOV_REQUEST, KOV_PLAIN, nullptr, out.get(), outSize));
    benchmark::ClobberMemory();
  }
}
BENCHMARK_CAPTURE(composeKov, small, kSmallOutput)->Name("compose query/kov");
BENCHMARK_CAPTURE(composeKov, large, kLargeOutput)->Name("compose query/kov in 64 KiB");

// What a straight implementation does: zero-filled scratch, successive snprintf into body and document, a copy.
void composeSnprintf(benchmark::State& state) {
  const KOV_PROTOCOL_HEADER header = queryHeader();
  const NVR_REPLAY_3001_PARAM record = query();
  static char out[kSmallOutput];
  for (auto step : state) {
    (void)step;
    char body[kSmallOutput] = {};
    char document[kSmallOutput] = {};
    char extras[256] = {};
    int length = std::snprintf(body, sizeof body, "<REQUEST_PARAM\n");
    length += std::snprintf(body + length, sizeof body - length, "ChannelId=\"%d\"\n", record.ChannelId);
    length += std::snprintf(body + length, sizeof body - length, "Time=\"%s\"\n", record.Time);
    std::snprintf(body + length, sizeof body - length, "/>\n");
    std::snprintf(extras, sizeof extras, "Msg_uuid=\"%s\"\n", header.Msg_uuid);
    const int total =
        std::snprintf(document, sizeof document,
                      "<?xml version=\"1.0\" encoding=\"GB2312\" ?>\n<XML_ZANTIR>\n<MESSAGE_HEADER\nMsg_type=\"%s\"\n"
                      "Msg_code=\"%s\"\nMsg_flag=\"%s\"\n%s\n/>\n<MESSAGE_BODY>\n%s\n</MESSAGE_BODY>\n</XML_ZANTIR>",
                      header.Msg_type, header.Msg_code, header.Msg_flag, extras, body);
    std::memcpy(out + KOV_FRAME_HEADER_SIZE, document, static_cast<std::size_t>(total));
    benchmark::DoNotOptimize(out);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(composeSnprintf)->Name("compose query/snprintf");

void composeFmt(benchmark::State& state) {
  const KOV_PROTOCOL_HEADER header = queryHeader();
  const NVR_REPLAY_3001_PARAM record = query();
  static char out[kSmallOutput];
  for (auto step : state) {
    (void)step;
    fmt::format_to_n(out, sizeof out,
                     "<?xml version=\"1.0\" encoding=\"GB2312\" ?>\n<XML_ZANTIR>\n<MESSAGE_HEADER\nMsg_type=\"{}\"\n"
                     "Msg_code=\"{}\"\nMsg_flag=\"{}\"\nMsg_uuid=\"{}\"\n\n/>\n<MESSAGE_BODY>\n<REQUEST_PARAM\n"
                     "ChannelId=\"{}\"\nTime=\"{}\"\n/>\n\n</MESSAGE_BODY>\n</XML_ZANTIR>",
                     header.Msg_type, header.Msg_code, header.Msg_flag, header.Msg_uuid, record.ChannelId, record.Time);
    benchmark::DoNotOptimize(out);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(composeFmt)->Name("compose query/fmt");

void composeMemcpy(benchmark::State& state) {
  const std::string document = queryDocument();
  static char out[kSmallOutput];
  for (auto step : state) {
    (void)step;
    std::memcpy(out, document.data(), document.size());
    benchmark::DoNotOptimize(out);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(composeMemcpy)->Name("compose query/memcpy");

// Each analysis starts with a fresh copy of the payload, as from a socket.
void analyseKov(benchmark::State& state) {
  const std::string document = queryDocument();
  std::string payload = document;
  for (auto step : state) {
    (void)step;
    std::memcpy(&payload[0], document.data(), document.size());
    KOV_PROTOCOL_HEADER header;
    void* record = nullptr;
    benchmark::DoNotOptimize(KovProtocolMSGAnalysisStart(&payload[0], static_cast<int>(payload.size()), KOV_PLAIN,
                                                         nullptr, &header, &record));
    KovProtocolMSGAnalysisStop(&record);
  }
}
BENCHMARK(analyseKov)->Name("analyse query/kov");

template <std::size_t Capacity>
void take(char (&field)[Capacity], const char* text) {
  std::strncpy(field, text, Capacity - 1);
}

void analysePugixml(benchmark::State& state) {
  const std::string document = queryDocument();
  std::string payload = document;
  for (auto step : state) {
    (void)step;
    std::memcpy(&payload[0], document.data(), document.size());
    pugi::xml_document parsed;
    parsed.load_buffer(payload.data(), payload.size(), pugi::parse_default, pugi::encoding_latin1);
    const pugi::xml_node root = parsed.document_element();
    const pugi::xml_node head = root.child("MESSAGE_HEADER");
    KOV_PROTOCOL_HEADER header;
    take(header.Msg_type, head.attribute("Msg_type").value());
    take(header.Msg_code, head.attribute("Msg_code").value());
    take(header.Msg_flag, head.attribute("Msg_flag").value());
    take(header.Msg_uuid, head.attribute("Msg_uuid").value());
    take(header.Msg_chn, head.attribute("Msg_chn").value());
    const pugi::xml_node request = root.child("MESSAGE_BODY").child("REQUEST_PARAM");
    auto* record = static_cast<NVR_REPLAY_3001_PARAM*>(std::malloc(sizeof(NVR_REPLAY_3001_PARAM)));
    NVR_REPLAY_3001_PARAM_init(record);
    record->ChannelId = request.attribute("ChannelId").as_int(-1);
    take(record->Time, request.attribute("Time").value());
    benchmark::DoNotOptimize(header);
    benchmark::DoNotOptimize(record);
    std::free(record);
  }
}
BENCHMARK(analysePugixml)->Name("analyse query/pugixml");

void analyseRapidxml(benchmark::State& state) {
  const std::string document = queryDocument();
  std::string payload = document;
  for (auto step : state) {
    (void)step;
    std::memcpy(&payload[0], document.c_str(), document.size() + 1);
    rapidxml::xml_document<> parsed;
    parsed.parse<rapidxml::parse_default>(&payload[0]);
    rapidxml::xml_node<>* const root = parsed.first_node();
    rapidxml::xml_node<>* const head = root->first_node("MESSAGE_HEADER");
    const auto value = [](rapidxml::xml_node<>* node, const char* name) {
      rapidxml::xml_attribute<>* const attribute = node->first_attribute(name);
      return attribute == nullptr ? "" : attribute->value();
    };
    KOV_PROTOCOL_HEADER header;
    take(header.Msg_type, value(head, "Msg_type"));
    take(header.Msg_code, value(head, "Msg_code"));
    take(header.Msg_flag, value(head, "Msg_flag"));
    take(header.Msg_uuid, value(head, "Msg_uuid"));
    take(header.Msg_chn, value(head, "Msg_chn"));
    rapidxml::xml_node<>* const request = root->first_node("MESSAGE_BODY")->first_node("REQUEST_PARAM");
    auto* record = static_cast<NVR_REPLAY_3001_PARAM*>(std::malloc(sizeof(NVR_REPLAY_3001_PARAM)));
    NVR_REPLAY_3001_PARAM_init(record);
    record->ChannelId = std::atoi(value(request, "ChannelId"));
    take(record->Time, value(request, "Time"));
    benchmark::DoNotOptimize(header);
    benchmark::DoNotOptimize(record);
    std::free(record);
  }
}
BENCHMARK(analyseRapidxml)->Name("analyse query/rapidxml");

}  // namespace
}  // namespace kov::bench
