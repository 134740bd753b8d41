// What was counted in a part of the library, and the faults that were found in it.
#ifndef ORBS_TOOLS_CHECK_OBJECTS_REPORT_H
#define ORBS_TOOLS_CHECK_OBJECTS_REPORT_H

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace check_objects {

class Report {
 public:
  explicit Report(std::string part) : part_(std::move(part)) {}

  // Faults of one symbol that differ in `detail` alone are told once, with the first detail and their number.
  void Add(std::string_view path, std::string_view symbol, std::string_view fault,
           std::string_view detail = {});

  // One line if all is well, and at most kMaxLines otherwise. Whether all is well.
  bool Print() const;

  size_t objects = 0;
  size_t symbols = 0;
  size_t instructions = 0;

 private:
  static constexpr size_t kMaxLines = 20;

  struct Fault {
    std::string where;
    std::string detail;
    std::string what;
    int count;
  };

  std::string part_;
  std::vector<Fault> faults_;
  std::map<std::tuple<std::string, std::string, std::string>, size_t> known_;  // indices of faults_
};

}  // namespace check_objects

#endif
