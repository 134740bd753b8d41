#include "bench/measure.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <map>

namespace orbs::bench {
namespace {

constexpr double kLeastBytesForCopy = 32.0 * 1024 * 1024;

// Takes the processor time of a call in each repetition. What other processes take between does not count.
class Collector : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Iteration) {
        nanoseconds_[run.run_name.function_name].push_back(run.GetAdjustedCPUTime());
      }
    }
  }

  double Median(const std::string& name) {
    std::vector<double>& values = nanoseconds_.at(name);
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
  }

 private:
  std::map<std::string, std::vector<double>> nanoseconds_;
};

void Register(const std::string& name, const Repeat& repeat) {
  // Once beforehand: the first call of a peer may set it up, and would pass for the cost of every call.
  repeat(1);
  benchmark::RegisterBenchmark(name.c_str(), [&repeat](benchmark::State& state) {
    while (state.KeepRunningBatch(state.max_iterations)) repeat(state.max_iterations);
  });
}

}  // namespace

bool InitializeMeasuring(const char* program, const std::vector<std::string>& options) {
  // Many short repetitions in random order: what disturbs the machine for a while then hits all sides alike,
  // and the median leaves out what it hit.
  std::vector<std::string> all = {program, "--benchmark_repetitions=15", "--benchmark_min_time=0.005",
                                  "--benchmark_enable_random_interleaving=true"};
  all.insert(all.end(), options.begin(), options.end());
  std::vector<char*> arguments;
  for (std::string& argument : all) arguments.push_back(argument.data());
  arguments.push_back(nullptr);
  int count = static_cast<int>(all.size());
  benchmark::Initialize(&count, arguments.data());
  return !benchmark::ReportUnrecognizedArguments(count, arguments.data());
}

Measurement Measure(const DeclaredComparison& declared) {
  Comparison comparison;
  declared.body(comparison, declared.size);

  Repeat copy;
  const double bytes = declared.work.Bytes() * declared.size;
  if (bytes >= kLeastBytesForCopy) {
    const size_t half = static_cast<size_t>(bytes / 2);
    const void* const src = comparison.Array<Orb8u>(static_cast<Orb32s>(half));
    void* const dst = comparison.Array<Orb8u>(static_cast<Orb32s>(half));
    copy = Repeated([=] { std::memcpy(dst, src, half); });
  }

  // A prefix keeps a peer's name from meeting the two others.
  const std::string peerPrefix = "peer ";
  Register("ours", comparison.ours());
  for (const Comparison::Side& peer : comparison.peers()) Register(peerPrefix + peer.name, peer.repeat);
  if (copy) Register("copy", copy);
  Collector collector;
  benchmark::RunSpecifiedBenchmarks(&collector, ".");
  benchmark::ClearRegisteredBenchmarks();

  Measurement measured;
  measured.ours = collector.Median("ours");
  for (const Comparison::Side& peer : comparison.peers()) {
    measured.peers.push_back({peer.name, collector.Median(peerPrefix + peer.name)});
  }
  std::sort(measured.peers.begin(), measured.peers.end(),
            [](const MeasuredPeer& a, const MeasuredPeer& b) { return a.nanoseconds < b.nanoseconds; });
  if (copy) measured.copy = collector.Median("copy");
  return measured;
}

}  // namespace orbs::bench
