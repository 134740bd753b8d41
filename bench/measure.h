// Measures one comparison with Google Benchmark.
#ifndef ORBS_BENCH_MEASURE_H
#define ORBS_BENCH_MEASURE_H

#include <optional>
#include <string>
#include <vector>

#include "bench/compare.h"

namespace orbs::bench {

struct MeasuredPeer {
  std::string name;
  double nanoseconds;
};

// Nanoseconds are those of one call, the median of the repetitions.
struct Measurement {
  double ours;
  std::vector<MeasuredPeer> peers;  // fastest first
  // A memcpy that reads and writes, in sum, as many bytes as a call does. Where the data stay in a cache, the
  // copy says nothing, and is not measured.
  std::optional<double> copy;
};

// Reads the options of Google Benchmark, --benchmark_..., and sets ours for what they leave open. False if
// one of them is none of Google Benchmark's, which has told so.
bool InitializeMeasuring(const char* program, const std::vector<std::string>& options);

Measurement Measure(const DeclaredComparison& declared);

}  // namespace orbs::bench

#endif
