#include "batch/map_ranks.h"

#include <algorithm>
#include <thread>

#ifdef ZOL_MPI
#include <mpi.h>
#include <sched.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <mutex>
#include <string>
#include <vector>

#include "core/run_failure.h"
#endif

namespace zol {

#ifndef ZOL_MPI

MapRanks::MapRanks() = default;
MapRanks::~MapRanks() = default;
int MapRanks::cores() const { return static_cast<int>(std::max(1U, std::thread::hardware_concurrency())); }
bool MapRanks::run(MapIndexer& indexer, const ScanGrid& grid, const MapRun& run,
                   std::vector<PointResult>& points) const {
  return run_map(indexer, grid, run, points);
}
void MapRanks::abandon() const {}

#else

namespace {

constexpr int to_first = 1;  // tags
constexpr int to_others = 2;
constexpr std::int64_t no_tile = -1;

/// What a thread of another process tells the first one; results, or the words of a failure, stand behind it.
struct Note {
  enum Kind : std::int32_t { asks, delivers, stops, fails };
  Kind kind = asks;
  std::int32_t reserved = 0;
  std::int64_t tile = no_tile;
};

/// A launcher tells its processes so by the environment.
bool launched() {
  constexpr std::array names{"OMPI_COMM_WORLD_SIZE", "PMIX_RANK", "PMI_RANK", "PMI_SIZE"};
  return std::any_of(names.begin(), names.end(), [](const char* name) { return std::getenv(name) != nullptr; });
}

void send_note(const Note& note, const void* behind, std::size_t bytes) {
  std::string text(reinterpret_cast<const char*>(&note), sizeof note);
  text.append(static_cast<const char*>(behind), bytes);
  MPI_Send(text.data(), static_cast<int>(text.size()), MPI_BYTE, 0, to_first, MPI_COMM_WORLD);
}

/// The desk of another process: all its threads ask the first process, one at a time. A stop or a failure of this
/// process is told instead of the next question.
class FarDesk : public TileDesk {
 public:
  std::optional<std::size_t> next() override {
    const std::lock_guard lock(mutex_);
    if (closed_) return std::nullopt;
    send_note({Note::asks, 0, no_tile}, nullptr, 0);
    std::int64_t tile = no_tile;
    MPI_Recv(&tile, 1, MPI_INT64_T, 0, to_others, MPI_COMM_WORLD, MPI_STATUS_IGNORE);
    closed_ = tile == no_tile;
    if (closed_) return std::nullopt;
    return static_cast<std::size_t>(tile);
  }
  void deliver(std::size_t tile, const std::vector<PointResult>& results) override {
    const std::lock_guard lock(mutex_);
    send_note({Note::delivers, 0, static_cast<std::int64_t>(tile)}, results.data(),
              results.size() * sizeof(PointResult));
  }
  /// To be called once, when no thread asks any more.
  void leave(Note::Kind kind, const std::string& why) {
    const std::lock_guard lock(mutex_);
    send_note({kind, 0, no_tile}, why.data(), why.size());
  }

 private:
  std::mutex mutex_;
  bool closed_ = false;
};

/// Serves the other processes until each has left.
class Server {
 public:
  Server(TileDesk& desk, int others) : desk_(desk), others_(others), left_(static_cast<std::size_t>(others) + 1) {}

  bool serve(const std::function<bool()>& stopped) {
    while (others_ > 0) {
      MPI_Status status;
      int there = 0;
      MPI_Iprobe(MPI_ANY_SOURCE, to_first, MPI_COMM_WORLD, &there, &status);
      if (there == 0) {
        // One that is dead does not leave any more, and a launcher that has noticed allows a second.
        if (stopped() && std::chrono::steady_clock::now() - last_heard_ > std::chrono::milliseconds(300)) {
          tell_of_the_dead();
          return false;
        }
        std::this_thread::sleep_for(std::chrono::microseconds(500));
        continue;
      }
      last_heard_ = std::chrono::steady_clock::now();
      answer(status, stopped);
    }
    if (!failure_.empty()) throw RunFailure(failure_);
    return !one_stopped_;
  }

 private:
  void answer(const MPI_Status& status, const std::function<bool()>& stopped) {
    int size = 0;
    MPI_Get_count(&status, MPI_BYTE, &size);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    MPI_Recv(bytes.data(), size, MPI_BYTE, status.MPI_SOURCE, to_first, MPI_COMM_WORLD, MPI_STATUS_IGNORE);
    Note note;
    std::memcpy(&note, bytes.data(), sizeof note);
    const std::string_view behind = std::string_view(bytes).substr(sizeof note);
    switch (note.kind) {
      case Note::asks: {
        const bool ends = stopped() || one_stopped_ || !failure_.empty();
        const auto tile = ends ? std::nullopt : desk_.next();
        const std::int64_t told = tile ? static_cast<std::int64_t>(*tile) : no_tile;
        MPI_Send(&told, 1, MPI_INT64_T, status.MPI_SOURCE, to_others, MPI_COMM_WORLD);
        return;
      }
      case Note::delivers: {
        std::vector<PointResult> results(behind.size() / sizeof(PointResult));
        std::memcpy(results.data(), behind.data(), results.size() * sizeof(PointResult));
        desk_.deliver(static_cast<std::size_t>(note.tile), results);
        return;
      }
      case Note::stops:
        one_stopped_ = one_stopped_ || !behind.empty();
        break;
      case Note::fails:
        failure_ = "process " + std::to_string(status.MPI_SOURCE) + " of the run: " + std::string(behind);
        break;
    }
    left_[static_cast<std::size_t>(status.MPI_SOURCE)] = true;
    --others_;
  }

  void tell_of_the_dead() const {
    for (std::size_t rank = 1; rank < left_.size(); ++rank) {
      if (!left_[rank]) std::cerr << "zol-batch: process " << rank << " of the run has died\n";
    }
  }

  TileDesk& desk_;
  int others_;
  std::vector<bool> left_;  ///< by number; the first, that of this process, is not used
  std::chrono::steady_clock::time_point last_heard_ = std::chrono::steady_clock::now();
  bool one_stopped_ = false;
  std::string failure_;
};

}  // namespace

MapRanks::MapRanks() {
  if (!launched()) return;
  int given = 0;
  if (MPI_Init_thread(nullptr, nullptr, MPI_THREAD_SERIALIZED, &given) != MPI_SUCCESS) {
    throw RunFailure("MPI cannot begin");
  }
  begun_ = true;
  if (given < MPI_THREAD_SERIALIZED) throw RunFailure("this MPI does not support threads");
  MPI_Comm_rank(MPI_COMM_WORLD, &rank_);
  MPI_Comm_size(MPI_COMM_WORLD, &count_);
  MPI_Comm machine = MPI_COMM_NULL;
  MPI_Comm_split_type(MPI_COMM_WORLD, MPI_COMM_TYPE_SHARED, 0, MPI_INFO_NULL, &machine);
  MPI_Comm_size(machine, &on_machine_);
  MPI_Comm_free(&machine);
}

MapRanks::~MapRanks() {
  if (begun_) MPI_Finalize();
}

int MapRanks::cores() const {
  const int all = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
  cpu_set_t bound;
  CPU_ZERO(&bound);
  const int mine = sched_getaffinity(0, sizeof bound, &bound) == 0 ? CPU_COUNT(&bound) : all;
  return mine < all ? std::max(1, mine) : std::max(1, all / on_machine_);
}

bool MapRanks::run(MapIndexer& indexer, const ScanGrid& grid, const MapRun& run,
                   std::vector<PointResult>& points) const {
  if (count_ == 1) return run_map(indexer, grid, run, points);
  if (first()) {
    return run_map(indexer, grid, run, points, [this](TileDesk& desk, const std::function<bool()>& stopped) {
      return Server(desk, count_ - 1).serve(stopped);
    });
  }
  FarDesk desk;
  try {
    const bool whole = work_on_tiles(indexer, desk, run);
    desk.leave(Note::stops, whole ? "" : "stopped");
    return whole;
  } catch (const RunFailure& failure) {
    desk.leave(Note::fails, failure.message());
    throw;
  }
}

void MapRanks::abandon() const {
  if (count_ > 1) MPI_Abort(MPI_COMM_WORLD, 1);
}

#endif

}  // namespace zol
