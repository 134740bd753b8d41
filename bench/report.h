// The table of results: one line a comparison.
#ifndef ORBS_BENCH_REPORT_H
#define ORBS_BENCH_REPORT_H

#include <string>

#include "bench/measure.h"

namespace orbs::bench {

class Report {
 public:
  enum class Format { kText, kMarkdown };

  Report(Format format, std::string variant) : format_(format), variant_(std::move(variant)) {}

  // The machine and the versions of the peers, then the head of the table.
  void PrintHead(const std::string& selected) const;
  void PrintLine(const DeclaredComparison& declared, const Measurement& measured) const;

 private:
  struct Column;
  static const Column kColumns[];

  void PrintRow(const std::string* cells) const;

  Format format_;
  std::string variant_;
};

}  // namespace orbs::bench

#endif
