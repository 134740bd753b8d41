// Tables whose rows are types or functions. What fails in a row says in which.
#ifndef ORBS_TESTS_SUPPORT_ROWS_H
#define ORBS_TESTS_SUPPORT_ROWS_H

#include <gtest/gtest.h>

namespace orbs::test {

// Calls test(Row{}) for each; a row has a kName.
template <class... Rows, class Test>
void ForEachRow(const Test& test) {
  const auto run = [&test](auto row) {
    SCOPED_TRACE(decltype(row)::kName);
    test(row);
  };
  (run(Rows{}), ...);
}

template <class Function>
struct NamedFunction {
  const char* name;
  Function* function;
};
template <class Function>
NamedFunction(const char*, Function*) -> NamedFunction<Function>;

#define ORBS_NAMED(function) \
  orbs::test::NamedFunction { #function, function }

// Calls test(function) for each.
template <class Test, class... Functions>
void ForEachFunction(const Test& test, const NamedFunction<Functions>&... rows) {
  const auto run = [&test](const auto& row) {
    SCOPED_TRACE(row.name);
    test(row.function);
  };
  (run(rows), ...);
}

}  // namespace orbs::test

#endif
