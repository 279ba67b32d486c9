// Work of a library that cannot be asked to stop: it runs on a thread of its own while the task is asked.
#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <system_error>
#include <thread>
#include <utility>

#include "core/task.h"

namespace zol {

namespace detail {
/// Keeps a thread whose result nobody waits for until it has come to its end.
void leave_alone(std::thread thread);
/// Lets go of what takes long to be freed; at once, where no thread can be had.
void free_aside(std::shared_ptr<const void> owned) noexcept;
}  // namespace detail

/// Runs the work on another thread and checks the task meanwhile. When the task stops, the work is left to itself: it
/// has to own all that it uses. What it throws is thrown here.
template <class Result>
[[nodiscard]] Result run_aside(Task& task, std::function<Result()> work) {
  constexpr auto between_checks = std::chrono::milliseconds(5);
  const auto packaged = std::make_shared<std::packaged_task<Result()>>(std::move(work));
  auto result = packaged->get_future();
  std::thread thread;
  try {
    thread = std::thread([packaged] { (*packaged)(); });
  } catch (const std::system_error&) {  // no thread is to be had
    (*packaged)();
    return result.get();
  }
  try {
    while (result.wait_for(between_checks) != std::future_status::ready) task.check();
  } catch (...) {
    detail::leave_alone(std::move(thread));
    throw;
  }
  thread.join();
  return result.get();
}

}  // namespace zol
