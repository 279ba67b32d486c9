#include "core/run_aside.h"

#include <mutex>
#include <vector>

namespace zol::detail {

void leave_alone(std::thread thread) {
  struct Left {
    Left() = default;
    Left(const Left&) = delete;
    Left& operator=(const Left&) = delete;
    ~Left() {
      for (auto& one : threads) one.join();
    }
    std::mutex mutex;
    std::vector<std::thread> threads;
  };
  static Left left;
  const std::lock_guard lock(left.mutex);
  left.threads.push_back(std::move(thread));
}

}  // namespace zol::detail
