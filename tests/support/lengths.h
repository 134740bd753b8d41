// The lengths that loops over arrays step through.
#ifndef ORBS_TESTS_SUPPORT_LENGTHS_H
#define ORBS_TESTS_SUPPORT_LENGTHS_H

#include <initializer_list>
#include <numeric>
#include <vector>

namespace orbs::test {

// 1 to `last`, then those around the sizes of blocks.
inline std::vector<int> Lengths(int last, std::initializer_list<int> more) {
  std::vector<int> lengths(static_cast<size_t>(last));
  std::iota(lengths.begin(), lengths.end(), 1);
  lengths.insert(lengths.end(), more);
  return lengths;
}

}  // namespace orbs::test

#endif
