#include "core/run_aside.h"

#include <deque>
#include <exception>
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

void free_aside(std::shared_ptr<const void> owned) noexcept {
  try {
    leave_alone(std::thread([held = std::move(owned)] {}));
  } catch (const std::exception&) {  // what is held has gone by now
  }
}

}  // namespace zol::detail
