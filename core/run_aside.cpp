#include "core/run_aside.h"

#include <deque>
#include <mutex>
#include <utility>

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
    std::deque<std::thread> threads;
  };
  static Left left;
  constexpr std::size_t most = 8;  // beyond, the first one is waited for: by then it is over
  const std::lock_guard lock(left.mutex);
  left.threads.push_back(std::move(thread));
  if (left.threads.size() <= most) return;
  left.threads.front().join();
  left.threads.pop_front();
}

}  // namespace zol::detail
