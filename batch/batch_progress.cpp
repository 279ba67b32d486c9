#include "batch/batch_progress.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <iostream>
#include <utility>

#include "shell/script/stop_signal.h"

namespace zol {

BatchProgress::BatchProgress(std::string things, bool quiet)
    : things_(std::move(things)), shown_(!quiet && isatty(STDERR_FILENO) != 0) {}

BatchProgress::~BatchProgress() {
  if (begun_) std::cerr << '\n';
}

void BatchProgress::show(std::size_t done, std::size_t all) {
  const auto now = std::chrono::steady_clock::now();
  if (!shown_ || (begun_ && now - last_ < std::chrono::milliseconds(200) && done < all)) return;
  last_ = now;
  begun_ = true;
  const double seconds = std::max(std::chrono::duration<double>(now - start_).count(), 1e-3);
  const double rate = std::max(static_cast<double>(done) / seconds, 1e-3);
  std::array<char, 128> line{};
  (void)std::snprintf(line.data(), line.size(), "\r%zu of %zu %s, %.0f a second, %.0f s left   ", done, all,
                      things_.c_str(), rate, static_cast<double>(all - done) / rate);
  std::cerr << line.data() << std::flush;
}

void BatchTask::report(int done, int total) {
  if (progress_ != nullptr) progress_->show(static_cast<std::size_t>(done), static_cast<std::size_t>(total));
}

void BatchTask::check() {
  if (stop_signal() != 0) throw Cancelled();
}

}  // namespace zol
