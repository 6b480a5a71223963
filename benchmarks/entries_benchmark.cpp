// Both entries beside general libraries that do the same work on the same bytes, in one run.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "counted_heap.h"
#include "peers.h"
#include "ratios.h"

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
  if (sample->document.compare(0, std::string::npos, out.get(), sample->document.size()) != 0) std::abort();
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
    char* const record = sample->newRecord(sample->valuesSize);
    read(payload, *sample, record + sample->recordSize);
    benchmark::DoNotOptimize(record);
    std::free(record);
  }
}

// Registers a benchmark that tells its best repetition: what disturbs a run only ever makes it slower.
template <class... Arguments>
void add(const std::string& name, Arguments... arguments) {
  const auto least = [](const std::vector<double>& times) { return *std::min_element(times.begin(), times.end()); };
  benchmark::RegisterBenchmark(name.c_str(), arguments...)->ComputeStatistics(kBest, least);
}

void addCompose(const Sample& sample) {
  const std::string work = "compose " + sample.name + "/";
  const int outSize = sample.document.size() < kSmallOutput ? kSmallOutput : kLargeOutput;
  add(work + "kov", composeKov, &sample, outSize);
  if (outSize == kSmallOutput) {
    add(work + "kov in 64 KiB", composeKov, &sample, kLargeOutput);
  }
  add(work + "snprintf", composePeer, &sample, writeBySnprintf);
  add(work + "fmt", composePeer, &sample, writeByFmt);
  add(work + "pieces", composePeer, &sample, writePieces);
  add(work + "memcpy", composePeer, &sample, writeByMemcpy);
}

void addAnalysis(const Sample& sample) {
  const std::string work = "analyse " + sample.name + "/";
  add(work + "kov", analyseKov, &sample);
  add(work + "pugixml", analysePeer, &sample, readByPugixml);
  add(work + "rapidxml", analysePeer, &sample, readByRapidxml);
  add(work + "tinyxml2", analysePeer, &sample, readByTinyxml2);
  add(work + "expat", analysePeer, &sample, readByExpat);
  add(work + "libxml2", analysePeer, &sample, readByLibxml2);
}

// How time grows: lists of 1 and 8 channels, and elements with ever more attributes.
void addGrowth() {
  static const Sample lists[] = {channelList(1), channelList(8)};
  static std::vector<Sample> wide;
  for (const Sample& list : lists) {
    add("analyse " + list.name + "/kov", analyseKov, &list);
  }
  wide.reserve(5);
  for (const int attributes : {64, 1000, 2000, 10000, 100000}) {
    Sample sample = samples().front();
    std::string more;
    for (int i = 0; i < attributes; ++i) more += " a" + std::to_string(i) + "=\"v\"";
    sample.document.insert(sample.document.find("REQUEST_PARAM") + std::strlen("REQUEST_PARAM"), more);
    sample.name = std::to_string(attributes) + " attributes";
    wide.push_back(sample);
    add("analyse " + sample.name + "/kov", analyseKov, &wide.back());
  }
}

}  // namespace

void registerAll() {
  for (const Sample& sample : samples()) addCompose(sample);
  for (const Sample& sample : samples()) addAnalysis(sample);
  addGrowth();
}

}  // namespace kov::bench
