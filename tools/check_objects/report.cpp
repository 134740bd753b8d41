#include "report.h"

#include <cxxabi.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace check_objects {
namespace {

std::string Demangle(const std::string& symbol) {
  int status = 0;
  const std::unique_ptr<char, void (*)(void*)> name(
      abi::__cxa_demangle(symbol.c_str(), nullptr, nullptr, &status), std::free);
  return status == 0 ? name.get() : symbol;
}

}  // namespace

void Report::Add(std::string_view path, std::string_view symbol, std::string_view fault,
                 std::string_view detail) {
  const auto [known, isNew] = known_.emplace(std::tuple(path, symbol, fault), faults_.size());
  if (!isNew) {
    ++faults_[known->second].count;
    return;
  }
  std::string where;
  for (const std::string& text : {std::string(path), Demangle(std::string(symbol))}) {
    if (!text.empty()) where += text + ": ";
  }
  faults_.push_back({where, std::string(detail), std::string(fault), 1});
}

bool Report::Print() const {
  const char* part = part_.c_str();
  std::printf("%s: %s: %zu objects, %zu symbols, %zu instructions", part, faults_.empty() ? "ok" : "FAULT",
              objects, symbols, instructions);
  if (faults_.empty()) {
    std::printf("\n");
    return true;
  }
  std::printf(", %zu faults\n", faults_.size());
  const size_t shown = faults_.size() < kMaxLines ? faults_.size() : kMaxLines - 2;
  for (size_t i = 0; i < shown; ++i) {
    const Fault& fault = faults_[i];
    std::printf("%s: %s%s%s", part, fault.where.c_str(), fault.detail.c_str(), fault.what.c_str());
    std::printf(fault.count > 1 ? ", %d times\n" : "\n", fault.count);
  }
  if (shown < faults_.size()) std::printf("%s: and %zu more\n", part, faults_.size() - shown);
  return false;
}

}  // namespace check_objects
