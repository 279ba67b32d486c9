// Storms: random operations on all controls. Only success and a failure of the run may come out of them.
//
// The seeds are 1 to ZOL_STORMS (an environment variable), shared among the parts.
#include "fuzz/storm.h"

#include <gtest/gtest.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <regex>

#include "core/run_failure.h"
#include "fuzz/bounded_script.h"
#include "fuzz/script_target.h"
#include "tests/test_files.h"

namespace zol::fuzz {
namespace {

constexpr std::uint64_t parts = 8;
constexpr std::uint64_t default_storms = 2000;
constexpr std::uint64_t batch = 25;
constexpr unsigned longest_seconds = 60;  // of processor time, which other programs do not lengthen
constexpr unsigned longest_wait_seconds = 600;

std::uint64_t storms() {
  const char* given = std::getenv("ZOL_STORMS");  // NOLINT(concurrency-mt-unsafe): one thread
  return given == nullptr ? default_storms : std::strtoull(given, nullptr, 10);
}

/// Files are renamed when they are complete: none may be left under the name of its making.
bool half_written(const std::filesystem::path& folder) {
  static const std::regex temporary(R"(.*\.[A-Za-z0-9]{6})");
  return std::any_of(std::filesystem::directory_iterator(folder), {},
                     [](const auto& entry) { return std::regex_match(entry.path().filename().string(), temporary); });
}

/// Ends the process by a signal when that has passed. 0 lifts the limits.
void limit_time(unsigned processor_seconds, unsigned seconds) {
  const itimerval timer{{}, {static_cast<time_t>(processor_seconds), 0}};
  setitimer(ITIMER_PROF, &timer, nullptr);
  alarm(seconds);
}

bool ended_by_limit(int status) {
  return WIFSIGNALED(status) && (WTERMSIG(status) == SIGPROF || WTERMSIG(status) == SIGALRM);
}

/// Runs storms one after the other and says in a file which one is under way.
void run_storms(const StormMaker& maker, const std::vector<std::uint64_t>& seeds, const ScratchFolder& scratch) {
  const std::filesystem::path files = scratch.path("files");
  ScriptFolder folder(files);
  for (const auto seed : seeds) {
    (void)scratch.write("seed", std::to_string(seed));
    limit_time(longest_seconds, longest_wait_seconds);
    try {
      folder.run(maker.script(seed));
    } catch (const RunFailure&) {
      // one of the two ends that are allowed
    }
    if (half_written(files)) {
      std::cerr << "a file is left half written\n";
      std::_Exit(EXIT_FAILURE);
    }
  }
  limit_time(0, 0);
}

/// Runs a batch in a process of its own, whose end tells of crashes, leaks and hangs.
int status_of_batch(const StormMaker& maker, const std::vector<std::uint64_t>& seeds, const ScratchFolder& scratch) {
  const pid_t child = fork();
  if (child == 0) {
    run_storms(maker, seeds, scratch);
    std::exit(EXIT_SUCCESS);  // NOLINT(concurrency-mt-unsafe): looks for leaks
  }
  int status = 0;
  waitpid(child, &status, 0);
  return status;
}

class Storms : public testing::TestWithParam<std::uint64_t> {};
TEST_P(Storms, EndInSuccessOrFailureOfTheRun) {
  const StormMaker maker;
  const ScratchFolder scratch;
  for (std::uint64_t first = 1 + GetParam() * batch; first <= storms(); first += parts * batch) {
    std::vector<std::uint64_t> seeds;
    for (std::uint64_t seed = first; seed < first + batch && seed <= storms(); ++seed) seeds.push_back(seed);
    const int status = status_of_batch(maker, seeds, scratch);
    const auto last = std::strtoull(scratch.read("seed").c_str(), nullptr, 10);
    ASSERT_EQ(status, 0) << (ended_by_limit(status) ? "too long" : "broken") << ": seed " << last
                         << (last == seeds.back() ? ", or a leak of one of the batch before it" : "") << '\n'
                         << bounded_script(maker.script(last));
  }
}
INSTANTIATE_TEST_SUITE_P(Part, Storms, testing::Range(std::uint64_t{0}, parts));

}  // namespace
}  // namespace zol::fuzz
