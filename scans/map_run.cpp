#include "scans/map_run.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <mutex>
#include <span>
#include <system_error>
#include <thread>
#include <utility>

#include "core/run_failure.h"

namespace zol {
namespace {

constexpr std::string_view sign = "ZOLMAP2\n";

/// What stands before points of a tile, which end with its last one or with what is known of the row behind them.
struct Record {
  std::uint64_t tile = 0, first = 0, count = 0;  ///< points, counted in the tile
  std::uint64_t known = 0;                       ///< orientations
  std::uint64_t checksum = 0;                    ///< of what follows, going on from the tile
};

constexpr std::size_t known_bytes = sizeof(double) * 11;

std::string bytes_of(std::span<const PointResult> results) {
  return {reinterpret_cast<const char*>(results.data()), results.size_bytes()};
}

std::string bytes_of(const KnownOrientation& known) {
  std::array<double, 11> numbers{static_cast<double>(known.model), known.correlation};
  Eigen::Map<Eigen::Matrix<double, 3, 3>>(numbers.data() + 2) = known.crystal_from_picture;
  return {reinterpret_cast<const char*>(numbers.data()), known_bytes};
}

KnownOrientation known_of(const char* bytes) {
  std::array<double, 11> numbers{};
  std::memcpy(numbers.data(), bytes, known_bytes);
  KnownOrientation known{static_cast<int>(numbers[0]), numbers[1], {}};
  known.crystal_from_picture = Eigen::Map<const Eigen::Matrix<double, 3, 3>>(numbers.data() + 2);
  return known;
}

/// The file of tiles that are finished or begun. Records are appended as a whole with a checksum; a tail that is not is
/// cut off.
class PartFile {
 public:
  using Finish = std::function<void(std::size_t tile, const std::vector<PointResult>& results)>;

  /// @param finish  is told each tile that an earlier run has finished
  PartFile(const MapRun& run, const std::vector<MapTile>& tiles, Finish finish)
      : path_(run.part_path), tiles_(tiles), finish_(std::move(finish)), finished_(tiles.size()) {
    if (path_.empty()) return;
    std::string head(sign);
    head.append(reinterpret_cast<const char*>(&run.fingerprint), sizeof run.fingerprint);
    std::size_t good = 0;
    if (run.resume && access(path_.c_str(), F_OK) == 0) good = take_kept(head);
    file_ = open(path_.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666);
    if (file_ < 0) fail();
    if (ftruncate(file_, static_cast<off_t>(good)) != 0 || lseek(file_, 0, SEEK_END) < 0) fail();
    if (good == 0) append(head);
  }
  PartFile(const PartFile&) = delete;
  PartFile& operator=(const PartFile&) = delete;
  ~PartFile() {
    if (file_ >= 0) close(file_);
  }

  [[nodiscard]] bool finished(std::size_t tile) const { return finished_[tile]; }
  /// How far an earlier run had come with a tile.
  [[nodiscard]] const TileState* begun(std::size_t tile) const {
    const auto found = begun_.find(tile);
    return found == begun_.end() ? nullptr : &found->second;
  }
  [[nodiscard]] std::size_t points_of(std::size_t tile) const {
    return static_cast<std::size_t>(tiles_[tile].columns) * static_cast<std::size_t>(tiles_[tile].rows);
  }

  void keep(std::size_t tile, std::size_t first, std::span<const PointResult> results,
            std::span<const KnownOrientation> row) {
    if (file_ < 0) return;
    std::string bytes = bytes_of(results);
    for (const auto& known : row) bytes += bytes_of(known);
    const Record record{tile, first, results.size(), row.size(), fingerprint_of(bytes, tile)};
    append(std::string(reinterpret_cast<const char*>(&record), sizeof record) + bytes);
  }
  void remove() {
    if (file_ >= 0) (void)unlink(path_.c_str());
  }

 private:
  [[noreturn]] void fail() const { throw RunFailure("cannot write " + path_ + ": " + std::strerror(errno)); }

  /// @returns the bytes that are good
  std::size_t take_kept(const std::string& head) {
    std::ifstream file(path_, std::ios::binary);
    if (!file) throw RunFailure("cannot open " + path_);
    const auto size = static_cast<std::size_t>(std::filesystem::file_size(path_));
    std::string begin(head.size(), ' ');
    if (!file.read(begin.data(), static_cast<std::streamsize>(begin.size()))) return 0;
    if (begin != head) {
      throw RunFailure(path_ +
                       " is that of a run with other settings or another scan; remove it, or run without resume");
    }
    std::size_t at = head.size();
    Record record;
    std::string bytes;
    while (file.read(reinterpret_cast<char*>(&record), sizeof record)) {
      const std::size_t left = size - at - sizeof record;
      if (record.count > left / sizeof(PointResult) || record.known > left / known_bytes) break;
      bytes.resize(record.count * sizeof(PointResult) + record.known * known_bytes);
      if (!file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) break;
      if (fingerprint_of(bytes, record.tile) != record.checksum) break;
      take(record, bytes);
      at += sizeof record + bytes.size();
    }
    return at;
  }

  void take(const Record& record, const std::string& bytes) {
    const std::size_t points = record.tile < tiles_.size() ? points_of(record.tile) : 0;
    const std::size_t end = record.first + record.count;
    if (record.first > points || record.count > points - record.first || record.known > end) {
      throw RunFailure(path_ + " does not fit the map; remove it, or run without resume");
    }
    if (finished_[record.tile]) return;
    TileState& state = begun_[record.tile];
    if (state.done != record.first) return;
    state.found.resize(points);
    state.known.resize(state.found.size());
    std::memcpy(&state.found[record.first], bytes.data(), record.count * sizeof(PointResult));
    const char* known = bytes.data() + record.count * sizeof(PointResult);
    for (std::size_t i = end - record.known; i < end; ++i, known += known_bytes) state.known[i] = known_of(known);
    state.done = end;
    if (end < points) return;
    finish_(record.tile, state.found);
    finished_[record.tile] = true;
    begun_.erase(record.tile);
  }

  void append(const std::string& bytes) const {
    for (std::size_t done = 0; done < bytes.size();) {
      const ssize_t written = write(file_, bytes.data() + done, bytes.size() - done);
      if (written < 0 && errno != EINTR) fail();
      if (written > 0) done += static_cast<std::size_t>(written);
    }
  }

  std::string path_;
  const std::vector<MapTile>& tiles_;
  Finish finish_;
  int file_ = -1;
  std::vector<bool> finished_;
  std::map<std::size_t, TileState> begun_;
};

/// Stops a thread when the run is stopped.
class RunTask : public Task {
 public:
  explicit RunTask(const std::function<bool()>& stop) : stop_(stop) {}
  void report(int /*done*/, int /*total*/) override {}
  void check() override {
    constexpr int between = 256;
    if (++asked_ % between == 0 && stop_()) throw Cancelled();
  }

 private:
  const std::function<bool()>& stop_;
  int asked_ = 0;
};

/// Hands out the tiles of a map that are not finished, and keeps what is found.
class Ledger : public TileDesk {
 public:
  Ledger(const MapIndexer& indexer, const ScanGrid& grid, const MapRun& run, std::vector<PointResult>& points)
      : tiles_(indexer.tiles()),
        grid_(grid),
        run_(run),
        points_(points),
        part_(run, tiles_, [this](std::size_t tile, const std::vector<PointResult>& results) { put(tile, results); }),
        kept_(tiles_.size()) {
    for (std::size_t tile = 0; tile < tiles_.size(); ++tile) all_ += part_.points_of(tile);
  }

  std::optional<std::size_t> next() override {
    while (true) {
      const std::size_t tile = next_++;
      if (tile >= tiles_.size()) return std::nullopt;
      if (part_.finished(tile)) continue;
      if (const auto* state = part_.begun(tile)) kept_[tile] = state->done;
      return tile;
    }
  }
  TileState begun(std::size_t tile) override {
    const auto* state = part_.begun(tile);
    return state != nullptr ? *state : TileState{};
  }
  void keep(std::size_t tile, const TileState& state) override {
    const std::lock_guard lock(mutex_);
    const std::size_t first = kept_[tile];
    if (first == state.done) return;
    const std::size_t row = std::min(state.done, static_cast<std::size_t>(tiles_[tile].columns));
    part_.keep(tile, first, std::span(state.found).subspan(first, state.done - first),
               std::span(state.known).subspan(state.done - row, row));
    kept_[tile] = state.done;
  }
  void deliver(std::size_t tile, const std::vector<PointResult>& results) override {
    const std::lock_guard lock(mutex_);
    part_.keep(tile, kept_[tile], std::span(results).subspan(kept_[tile]), {});
    put(tile, results);
    run_.progress(done_, all_);
  }
  void remove_part() { part_.remove(); }

 private:
  void put(std::size_t number, const std::vector<PointResult>& results) {
    const MapTile& tile = tiles_[number];
    std::size_t i = 0;
    for (int row = 0; row < tile.rows; ++row) {
      for (int column = 0; column < tile.columns; ++column, ++i) {
        const auto point = grid_.point(tile.column + column, tile.row + row);
        if (point) points_[*point] = results[i];
      }
    }
    done_ += results.size();
  }

  const std::vector<MapTile>& tiles_;
  const ScanGrid& grid_;
  const MapRun& run_;
  std::vector<PointResult>& points_;
  std::size_t done_ = 0, all_ = 0;  ///< points of the tiles
  PartFile part_;
  std::vector<std::size_t> kept_;  ///< points of each tile that stand in the file
  std::atomic<std::size_t> next_ = 0;
  std::mutex mutex_;
};

/// What the threads of a process share.
struct Crew {
  MapIndexer& indexer;
  TileDesk& desk;
  const MapRun& run;
  std::atomic<bool> stopped = false;
  std::mutex mutex;
  std::exception_ptr failure;

  [[nodiscard]] bool stop() const { return stopped || run.stop(); }
  void fail() {
    const std::lock_guard lock(mutex);
    stopped = true;
    if (!failure) failure = std::current_exception();
  }
};

/// With a tile to its end, keeping it every now and then and when it is stopped.
void go_on(Crew& crew, std::size_t tile, MapIndexer::Worker& worker, TileState& state, Task& task) {
  auto kept = std::chrono::steady_clock::now();
  try {
    crew.indexer.index_tile(crew.indexer.tiles()[tile], worker, state, task, [&] {
      const auto now = std::chrono::steady_clock::now();
      if (now - kept < crew.run.keep_every || state.done == state.found.size()) return;
      kept = now;
      crew.desk.keep(tile, state);
    });
  } catch (const Cancelled&) {
    crew.desk.keep(tile, state);
    throw;
  }
}

void work(Crew& crew) {
  try {
    MapIndexer::Worker worker = crew.indexer.make_worker();
    const std::function<bool()> stop = [&crew] { return crew.stop(); };
    RunTask task(stop);
    while (!stop()) {
      const auto tile = crew.desk.next();
      if (!tile) return;
      TileState state = crew.desk.begun(*tile);
      go_on(crew, *tile, worker, state, task);
      crew.desk.deliver(*tile, state.found);
      const std::lock_guard lock(crew.mutex);
      if (crew.run.times != nullptr) *crew.run.times += std::exchange(worker.times, {});
    }
    crew.stopped = true;
  } catch (const Cancelled&) {
    crew.stopped = true;
  } catch (...) {
    crew.fail();
  }
}

}  // namespace

std::uint64_t fingerprint_of(std::string_view bytes, std::uint64_t before) {
  constexpr std::uint64_t prime = 1099511628211U;
  for (const char c : bytes) before = (before ^ static_cast<unsigned char>(c)) * prime;
  return before;
}

bool work_on_tiles(MapIndexer& indexer, TileDesk& desk, const MapRun& run, const AlongsideWork& alongside) {
  Crew crew{indexer, desk, run, {}, {}, {}};
  std::vector<std::thread> threads;
  for (int i = alongside ? 0 : 1; i < run.threads; ++i) {
    try {
      threads.emplace_back(work, std::ref(crew));
    } catch (const std::system_error&) {  // no more are to be had: those that run do the work
      break;
    }
  }
  if (alongside) {
    try {
      if (!alongside(desk, [&crew] { return crew.stop(); })) crew.stopped = true;
    } catch (...) {
      crew.fail();
    }
  }
  if (!alongside || threads.empty()) work(crew);
  for (auto& thread : threads) thread.join();
  if (crew.failure) std::rethrow_exception(crew.failure);
  return !crew.stopped;
}

bool run_map(MapIndexer& indexer, const ScanGrid& grid, const MapRun& run, std::vector<PointResult>& points,
             const AlongsideWork& alongside) {
  points.assign(grid.points(), {});
  for (auto& point : points) point.missing = 1;
  Ledger ledger(indexer, grid, run, points);
  if (!work_on_tiles(indexer, ledger, run, alongside)) return false;
  ledger.remove_part();
  return true;
}

}  // namespace zol
