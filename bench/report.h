// The table of results: one line a comparison, or one line for all sizes of a function.
#ifndef ORBS_BENCH_REPORT_H
#define ORBS_BENCH_REPORT_H

#include <string>
#include <utility>
#include <vector>

#include "bench/measure.h"

namespace orbs::bench {

class Report {
 public:
  enum class Format { kText, kMarkdown };

  Report(Format format, std::string variant, bool summary)
      : format_(format), variant_(std::move(variant)), summary_(summary) {}

  // The machine and the versions of the peers, then the head of the table.
  void PrintHead(const std::string& selected) const;
  // Prints the comparison's line, or keeps it for the summary.
  void Add(const DeclaredComparison& declared, const Measurement& measured);
  // For each function and peer the geometric mean of the ratios over the sizes, and the lowest ratio.
  void PrintSummary() const;

 private:
  struct Column;
  static const Column kColumns[];
  static const Column kSummaryColumns[];

  struct Kept {
    std::string function;
    std::string peer;
    std::vector<std::pair<double, Orb32s>> ratios;  // with their sizes
  };

  void PrintLine(const DeclaredComparison& declared, const Measurement& measured) const;
  void PrintTitles(const Column* columns, size_t count) const;
  void PrintRow(const Column* columns, const std::string* cells, size_t count) const;

  Format format_;
  std::string variant_;
  bool summary_;
  std::vector<Kept> kept_;
};

}  // namespace orbs::bench

#endif
