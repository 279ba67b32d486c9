// A task that remembers what it was told, and can stop a calculation.
#pragma once

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "core/task.h"

namespace zol {

struct RecordedTask : Task {
  void report(int done, int total) override {
    EXPECT_TRUE(done <= total && (steps.empty() || (done >= steps.back().first && total == steps.back().second)));
    steps.emplace_back(done, total);
  }
  void check() override {
    if (++checks == cancel_at) throw Cancelled();
  }

  std::vector<std::pair<int, int>> steps;  ///< done, total
  int checks = 0;
  int cancel_at = 0;  ///< the check that stops the calculation, from 1; 0: none
};

}  // namespace zol
