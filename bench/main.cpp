// orbs90lgc_bench: this library beside its peers, in one table.
#include <cstdio>
#include <exception>
#include <regex>
#include <string>
#include <vector>

#include "bench/compare.h"
#include "bench/measure.h"
#include "bench/report.h"
#include "boundary/pin.h"
#include "orbs90lgc.h"
#include "tests/support/runnable_variants.h"

namespace {

constexpr const char* kUsage =
    "usage: orbs90lgc_bench [options] [FILTER]\n"
    "  FILTER            a regular expression, in any case: measure the functions whose name/elements it "
    "matches\n"
    "  --variant=NAME    px, w7, v8, s8, p8, g9 or h9; the default is what the library selects\n"
    "  --markdown        print the table in Markdown\n"
    "  --summary         print the means over the sizes of each function, and not the sizes\n"
    "  --list            print the names and measure nothing\n"
    "  --benchmark_...   an option of Google Benchmark; --benchmark_filter=FILTER is FILTER\n";

struct Options {
  std::string filter;
  std::string variant;
  bool markdown = false;
  bool list = false;
  bool summary = false;
  bool help = false;
  std::vector<std::string> forGoogleBenchmark;
};

int Fail(const std::string& message) {
  std::fprintf(stderr, "orbs90lgc_bench: %s\n", message.c_str());
  return 1;
}

// The rest of `argument` behind `prefix`, or null.
const char* After(const std::string& argument, const std::string& prefix) {
  return argument.rfind(prefix, 0) == 0 ? argument.c_str() + prefix.size() : nullptr;
}

bool ParseOptions(int argc, char** argv, Options* options) {
  bool hasFilter = false;
  const auto setFilter = [&](const std::string& filter) {
    const bool isFirst = !hasFilter;
    options->filter = filter;
    hasFilter = true;
    return isFirst;
  };
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    if (const char* filter = After(argument, "--benchmark_filter=")) {
      if (!setFilter(filter)) return false;
    } else if (const char* variant = After(argument, "--variant=")) {
      options->variant = variant;
    } else if (argument == "--list" || After(argument, "--benchmark_list_tests")) {
      options->list = true;
    } else if (After(argument, "--benchmark_")) {
      options->forGoogleBenchmark.push_back(argument);
    } else if (argument == "--markdown") {
      options->markdown = true;
    } else if (argument == "--summary") {
      options->summary = true;
    } else if (argument == "--help" || argument == "-h") {
      options->help = true;
    } else if (argument.empty() || argument[0] == '-' || !setFilter(argument)) {
      return false;
    }
  }
  return true;
}

int Run(const char* program, const Options& options) {
  using namespace orbs::bench;
  std::regex filter;
  try {
    filter.assign(options.filter, std::regex::ECMAScript | std::regex::icase);
  } catch (const std::regex_error&) {
    return Fail("not a regular expression: '" + options.filter + "'");
  }

  const std::string selected = legacy90orbsGetLibVersion()->targetCpu;
  const std::string variant = options.variant.empty() ? selected : options.variant;
  const int index = orbs::test::VariantIndex(variant);
  if (index < 0) return Fail("no variant '" + variant + "'");
  if (!orbs::test::CanRun(static_cast<orbs::Variant>(index)))
    return Fail("this processor cannot run " + variant);
  if (!DeclareFamilies(index)) return Fail(variant + " is not in this build");
  orbsPinVariant(index);

  if (!InitializeMeasuring(program, options.forGoogleBenchmark)) return 1;
  Report report(options.markdown ? Report::Format::kMarkdown : Report::Format::kText, variant,
                options.summary);
  bool isFirst = true;
  for (const DeclaredComparison& declared : DeclaredComparisons()) {
    const std::string name = declared.name + "/" + std::to_string(declared.size);
    if (!std::regex_search(name, filter)) continue;
    if (options.list) {
      std::puts(name.c_str());
    } else {
      if (isFirst) report.PrintHead(selected);
      report.Add(declared, Measure(declared));
    }
    isFirst = false;
  }
  if (options.summary) report.PrintSummary();
  return isFirst ? Fail("nothing matches '" + options.filter + "'") : 0;
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  if (!ParseOptions(argc, argv, &options)) {
    std::fputs(kUsage, stderr);
    return 1;
  }
  if (options.help) {
    std::fputs(kUsage, stdout);
    return 0;
  }
  try {
    return Run(argv[0], options);
  } catch (const std::exception& error) {
    return Fail(error.what());
  }
}
