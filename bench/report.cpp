#include "bench/report.h"

#include <fftw3.h>
#include <spandsp/version.h>
#include <unistd.h>
#include <volk/constants.h>
#include <volk/volk.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>

namespace orbs::bench {
namespace {

std::string Formatted(const char* format, double value) {
  char text[64];
  std::snprintf(text, sizeof text, format, value);
  return text;
}

// Three significant digits, without an exponent.
std::string Significant(double value) {
  return Formatted(value < 1 ? "%.4f" : value < 10 ? "%.2f" : value < 100 ? "%.1f" : "%.0f", value);
}

std::string ProcessorName() {
  std::ifstream info("/proc/cpuinfo");
  for (std::string line; std::getline(info, line);) {
    if (line.rfind("model name", 0) == 0) return line.substr(line.find(':') + 2);
  }
  return "unknown processor";
}

std::string CacheSizes() {
  constexpr struct {
    const char* name;
    int key;
  } kCaches[] = {
      {"L1", _SC_LEVEL1_DCACHE_SIZE}, {"L2", _SC_LEVEL2_CACHE_SIZE}, {"L3", _SC_LEVEL3_CACHE_SIZE}};
  std::string sizes;
  for (const auto& cache : kCaches) {
    sizes += std::string(", ") + cache.name + " " + std::to_string(sysconf(cache.key) / 1024) + " KiB";
  }
  return sizes;
}

}  // namespace

struct Report::Column {
  const char* title;
  int width;  // in text; negative: flush left
};

const Report::Column Report::kColumns[] = {
    {"function", -30}, {"variant", -7}, {"elements", 9},    {"ns/element", 10}, {"rate", 10},
    {"of memcpy", 9},  {"ratio", 6},    {"best peer", -18}, {"ns/element", 10}, {"other peers", -1}};

const Report::Column Report::kSummaryColumns[] = {{"function", -34}, {"variant", -7},        {"peer", -14},
                                                  {"sizes", 17},     {"geometric mean", 14}, {"lowest", 6},
                                                  {"at", 9}};

void Report::PrintRow(const Column* columns, const std::string* cells, size_t count) const {
  std::string row;
  for (size_t i = 0; i < count; ++i) {
    const Column& column = columns[i];
    const std::string& cell = cells[i];
    if (format_ == Format::kMarkdown) {
      row += "| " + cell + " ";
      continue;
    }
    const size_t width = static_cast<size_t>(column.width < 0 ? -column.width : column.width);
    const std::string padding(cell.size() < width ? width - cell.size() : 0, ' ');
    if (!row.empty()) row += "  ";
    row += column.width < 0 ? cell + padding : padding + cell;
  }
  if (format_ == Format::kMarkdown) {
    row += "|";
  } else {
    row.erase(row.find_last_not_of(' ') + 1);
  }
  std::puts(row.c_str());
  std::fflush(stdout);
}

void Report::PrintTitles(const Column* columns, size_t count) const {
  std::vector<std::string> titles;
  std::vector<std::string> rules;
  for (size_t i = 0; i < count; ++i) {
    titles.push_back(columns[i].title);
    rules.push_back(columns[i].width < 0 ? "---" : "--:");
  }
  PrintRow(columns, titles.data(), count);
  if (format_ == Format::kMarkdown) PrintRow(columns, rules.data(), count);
}

void Report::Add(const DeclaredComparison& declared, const Measurement& measured) {
  if (!summary_) {
    PrintLine(declared, measured);
    return;
  }
  for (const MeasuredPeer& peer : measured.peers) {
    auto kept = std::find_if(kept_.begin(), kept_.end(), [&](const Kept& k) {
      return k.function == declared.name && k.peer == peer.name;
    });
    if (kept == kept_.end()) kept = kept_.insert(kept_.end(), Kept{declared.name, peer.name, {}});
    kept->ratios.emplace_back(peer.nanoseconds / measured.ours, declared.size);
  }
}

void Report::PrintSummary() const {
  PrintTitles(kSummaryColumns, std::size(kSummaryColumns));
  for (const Kept& kept : kept_) {
    double logarithms = 0;
    for (const auto& ratio : kept.ratios) logarithms += std::log(ratio.first);
    const auto lowest = *std::min_element(kept.ratios.begin(), kept.ratios.end());
    const std::string cells[std::size(kSummaryColumns)] = {
        kept.function,
        variant_,
        kept.peer,
        std::to_string(kept.ratios.front().second) + " to " + std::to_string(kept.ratios.back().second),
        Formatted("%.2f", std::exp(logarithms / static_cast<double>(kept.ratios.size()))),
        Formatted("%.2f", lowest.first),
        std::to_string(lowest.second)};
    PrintRow(kSummaryColumns, cells, std::size(kSummaryColumns));
  }
}

void Report::PrintHead(const std::string& selected) const {
  std::printf("%s, %ld cores%s; the library selects %s. GCC %s, VOLK %s (%s), spandsp %s, %s.\n\n",
              ProcessorName().c_str(), sysconf(_SC_NPROCESSORS_ONLN), CacheSizes().c_str(), selected.c_str(),
              __VERSION__, volk_version(), volk_get_machine(), SPANDSP_RELEASE_DATETIME_STRING, fftw_version);

  if (!summary_) PrintTitles(kColumns, std::size(kColumns));
}

void Report::PrintLine(const DeclaredComparison& declared, const Measurement& measured) const {
  const double size = declared.size;
  std::string cells[std::size(kColumns)] = {declared.name, variant_, std::to_string(declared.size),
                                            Significant(measured.ours / size)};
  // So many a nanosecond are so many giga a second.
  const double work = declared.work.operations > 0 ? declared.work.operations : declared.work.Bytes();
  cells[4] =
      Formatted(declared.work.operations > 0 ? "%.1f Gop/s" : "%.1f GB/s", work * size / measured.ours);
  if (measured.copy) cells[5] = Formatted("%.0f%%", 100 * *measured.copy / measured.ours);
  if (!measured.peers.empty()) {
    const MeasuredPeer& best = measured.peers.front();
    cells[6] = Formatted("%.2f", best.nanoseconds / measured.ours);
    cells[7] = best.name;
    cells[8] = Significant(best.nanoseconds / size);
  }
  for (size_t i = 1; i < measured.peers.size(); ++i) {
    if (i > 1) cells[9] += ", ";
    cells[9] +=
        measured.peers[i].name + " " + Formatted("%.2f", measured.peers[i].nanoseconds / measured.ours);
  }
  PrintRow(kColumns, cells, std::size(kColumns));
}

}  // namespace orbs::bench
