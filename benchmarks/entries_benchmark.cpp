// Both entries beside general libraries that do the same work on the same bytes, in one run.
#include <benchmark/benchmark.h>

#include <cstring>

#include "counted_heap.h"
#include "peers.h"

namespace kov::bench {
namespace {

constexpr int kSmallOutput = 8192;
constexpr int kLargeOutput = 65536;

void composeKov(benchmark::State& state, const Sample* sample, int outSize) {
  const std::unique_ptr<char[]> out(new char[static_cast<std::size_t>(outSize)]);
  HeapUse heap(state);
  for (auto step : state) {
    (void)step;
    benchmark::DoNotOptimize(KovProtocolXMLCompose(&sample->header, sample->record, sample->direction, KOV_PLAIN,
                                                   nullptr, out.get(), outSize));
    benchmark::ClobberMemory();
  }
}

void composePeer(benchmark::State& state, const Sample* sample, void (*write)(const Sample&, char*, std::size_t)) {
  const std::unique_ptr<char[]> out(new char[kLargeOutput]);
  const std::size_t size = sample->document.size() < kSmallOutput ? kSmallOutput : kLargeOutput;
  write(*sample, out.get(), size);
  HeapUse heap(state);
  for (auto step : state) {
    (void)step;
    write(*sample, out.get(), size);
    benchmark::DoNotOptimize(out.get());
    benchmark::ClobberMemory();
  }
}

void writeByMemcpy(const Sample& sample, char* out, std::size_t) {
  std::memcpy(out, sample.document.data(), sample.document.size());
}

// Every reading starts with a fresh copy of the payload, as from a socket.
void analyseKov(benchmark::State& state, const Sample* sample) {
  std::string payload = sample->document;
  HeapUse heap(state);
  for (auto step : state) {
    (void)step;
    std::memcpy(payload.data(), sample->document.data(), payload.size());
    KOV_PROTOCOL_HEADER header;
    void* record = nullptr;
    benchmark::DoNotOptimize(KovProtocolMSGAnalysisStart(payload.data(), static_cast<int>(payload.size()), KOV_PLAIN,
                                                         nullptr, &header, &record));
    KovProtocolMSGAnalysisStop(&record);
  }
}

void analysePeer(benchmark::State& state, const Sample* sample, void (*read)(std::string&, const Sample&, char*)) {
  std::string payload = sample->document;
  HeapUse heap(state);
  for (auto step : state) {
    (void)step;
    std::memcpy(payload.data(), sample->document.data(), payload.size());
    const std::unique_ptr<char[]> record(new char[sample->recordSize]());
    read(payload, *sample, record.get());
    benchmark::DoNotOptimize(record.get());
  }
}

void addCompose(const Sample& sample) {
  const std::string work = "compose " + sample.name + "/";
  const int outSize = sample.document.size() < kSmallOutput ? kSmallOutput : kLargeOutput;
  benchmark::RegisterBenchmark((work + "kov").c_str(), composeKov, &sample, outSize);
  if (outSize == kSmallOutput) {
    benchmark::RegisterBenchmark((work + "kov in 64 KiB").c_str(), composeKov, &sample, kLargeOutput);
  }
  benchmark::RegisterBenchmark((work + "snprintf").c_str(), composePeer, &sample, writeBySnprintf);
  benchmark::RegisterBenchmark((work + "fmt").c_str(), composePeer, &sample, writeByFmt);
  benchmark::RegisterBenchmark((work + "memcpy").c_str(), composePeer, &sample, writeByMemcpy);
}

void addAnalysis(const Sample& sample) {
  const std::string work = "analyse " + sample.name + "/";
  benchmark::RegisterBenchmark((work + "kov").c_str(), analyseKov, &sample);
  benchmark::RegisterBenchmark((work + "pugixml").c_str(), analysePeer, &sample, readByPugixml);
  benchmark::RegisterBenchmark((work + "rapidxml").c_str(), analysePeer, &sample, readByRapidxml);
  benchmark::RegisterBenchmark((work + "tinyxml2").c_str(), analysePeer, &sample, readByTinyxml2);
  benchmark::RegisterBenchmark((work + "expat").c_str(), analysePeer, &sample, readByExpat);
  benchmark::RegisterBenchmark((work + "libxml2").c_str(), analysePeer, &sample, readByLibxml2);
}

// How time grows: lists of 1 and 8 channels, and elements with ever more attributes.
void addGrowth() {
  static const Sample lists[] = {channelList(1), channelList(8)};
  static std::vector<Sample> wide;
  for (const Sample& list : lists) {
    benchmark::RegisterBenchmark(("analyse " + list.name + "/kov").c_str(), analyseKov, &list);
  }
  wide.reserve(3);
  for (const int attributes : {1000, 10000, 100000}) {
    Sample sample = samples().front();
    std::string more;
    for (int i = 0; i < attributes; ++i) more += " a" + std::to_string(i) + "=\"v\"";
    sample.document.insert(sample.document.find("REQUEST_PARAM") + std::strlen("REQUEST_PARAM"), more);
    sample.name = std::to_string(attributes) + " attributes";
    wide.push_back(sample);
    benchmark::RegisterBenchmark(("analyse " + sample.name + "/kov").c_str(), analyseKov, &wide.back());
  }
}

}  // namespace

void registerAll() {
  for (const Sample& sample : samples()) addCompose(sample);
  for (const Sample& sample : samples()) addAnalysis(sample);
  addGrowth();
}

}  // namespace kov::bench
