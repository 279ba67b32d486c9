#include "shell/script/stop_signal.h"

#include <unistd.h>

#include <csignal>
#include <ctime>
#include <string_view>

namespace zol {
namespace {

constexpr int died_of_signal = 128;

// All that a handler of signals may touch.
volatile std::sig_atomic_t came = 0;     // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
volatile std::sig_atomic_t waiting = 0;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
volatile std::time_t came_at = 0;        // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

/// Whoever ends a group of processes, as timeout does, may send the same signal twice at once: that is one.
extern "C" void take_signal(int signal) {
  constexpr std::time_t seconds_apart = 2;
  timespec now{};
  (void)clock_gettime(CLOCK_MONOTONIC, &now);
  const bool insists = came != 0 && now.tv_sec - came_at >= seconds_apart;
  if (came == 0) came_at = now.tv_sec;
  came = signal;
  if (waiting == 0 && !insists) return;
  constexpr std::string_view told = "zol-script: stopped by a signal\n";
  [[maybe_unused]] const auto written = write(STDERR_FILENO, told.data(), told.size());
  _exit(died_of_signal + signal);
}

}  // namespace

void take_stop_signals() {
  for (const int signal : {SIGINT, SIGTERM}) {
    struct sigaction before {};
    if (sigaction(signal, nullptr, &before) == 0 && before.sa_handler == SIG_IGN) continue;
    struct sigaction taken {};
    taken.sa_handler = take_signal;
    sigaction(signal, &taken, nullptr);
  }
}

int stop_signal() noexcept { return came; }

// A signal between the two lines of either is seen by one of them: here at once, else by who asks next.
Waits::Waits() noexcept {
  waiting = 1;
  if (came != 0) take_signal(came);
}
Waits::~Waits() { waiting = 0; }

}  // namespace zol
