#include "scans/map_run.h"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include "core/run_failure.h"

namespace zol {
namespace {

constexpr std::string_view sign = "ZOLMAP1\n";

struct Record {
  std::uint64_t tile = 0, count = 0, checksum = 0;
};

std::string_view bytes_of(const std::vector<PointResult>& results) {
  return {reinterpret_cast<const char*>(results.data()), results.size() * sizeof(PointResult)};
}

/// The file of finished tiles. Each is appended as a whole with its checksum; a tail that is not is cut off.
class PartFile {
 public:
  using Take = std::function<void(std::size_t tile, const std::vector<PointResult>& results)>;

  /// @param take  is told each tile that was kept by an earlier run
  PartFile(const MapRun& run, std::size_t tiles, const Take& take) : path_(run.part_path), finished_(tiles) {
    if (path_.empty()) return;
    std::string head(sign);
    head.append(reinterpret_cast<const char*>(&run.fingerprint), sizeof run.fingerprint);
    std::size_t good = 0;
    if (run.resume && access(path_.c_str(), F_OK) == 0) good = take_kept(head, take);
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

  void keep(std::size_t tile, const std::vector<PointResult>& results) {
    if (file_ < 0) return;
    const Record record{tile, results.size(), fingerprint_of(bytes_of(results), tile)};
    std::string bytes(reinterpret_cast<const char*>(&record), sizeof record);
    bytes += bytes_of(results);
    append(bytes);
  }
  void remove() {
    if (file_ >= 0) (void)unlink(path_.c_str());
  }

 private:
  [[noreturn]] void fail() const { throw RunFailure("can't write " + path_ + ": " + std::strerror(errno)); }

  /// @returns the bytes that are good
  std::size_t take_kept(const std::string& head, const Take& take) {
    std::ifstream file(path_, std::ios::binary);
    if (!file) throw RunFailure("can't open " + path_);
    const auto size = static_cast<std::size_t>(std::filesystem::file_size(path_));
    std::string begin(head.size(), ' ');
    if (!file.read(begin.data(), static_cast<std::streamsize>(begin.size()))) return 0;
    if (begin != head) {
      throw RunFailure(path_ +
                       " is that of a run with other settings or another scan; remove it, or run without resume");
    }
    std::size_t at = head.size();
    Record record;
    std::vector<PointResult> results;
    while (file.read(reinterpret_cast<char*>(&record), sizeof record)) {
      const std::size_t left = size - at - sizeof record;
      if (record.tile >= finished_.size() || record.count > left / sizeof(PointResult)) break;
      results.resize(record.count);
      const std::size_t bytes = record.count * sizeof(PointResult);
      if (!file.read(reinterpret_cast<char*>(results.data()), static_cast<std::streamsize>(bytes))) break;
      if (fingerprint_of(bytes_of(results), record.tile) != record.checksum) break;
      if (!finished_[record.tile]) take(record.tile, results);
      finished_[record.tile] = true;
      at += sizeof record + bytes;
    }
    return at;
  }

  void append(const std::string& bytes) const {
    for (std::size_t done = 0; done < bytes.size();) {
      const ssize_t written = write(file_, bytes.data() + done, bytes.size() - done);
      if (written < 0 && errno != EINTR) fail();
      if (written > 0) done += static_cast<std::size_t>(written);
    }
  }

  std::string path_;
  int file_ = -1;
  std::vector<bool> finished_;
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
  Ledger(MapIndexer& indexer, const ScanGrid& grid, const MapRun& run, std::vector<PointResult>& points)
      : indexer_(indexer),
        grid_(grid),
        run_(run),
        points_(points),
        part_(run, indexer.tiles().size(), [this](std::size_t tile, const std::vector<PointResult>& kept) {
          const auto& place = indexer_.tiles()[tile];
          if (kept.size() != static_cast<std::size_t>(place.columns) * static_cast<std::size_t>(place.rows)) {
            throw RunFailure(run_.part_path + " does not fit the map; remove it, or run without resume");
          }
          put(tile, kept);
        }) {}

  std::optional<std::size_t> next() override {
    while (true) {
      const std::size_t tile = next_++;
      if (tile >= indexer_.tiles().size()) return std::nullopt;
      if (!part_.finished(tile)) return tile;
    }
  }
  void deliver(std::size_t tile, const std::vector<PointResult>& results) override {
    const std::lock_guard lock(mutex_);
    part_.keep(tile, results);
    put(tile, results);
    run_.progress(done_, points_.size());
  }
  void remove_part() { part_.remove(); }

 private:
  void put(std::size_t number, const std::vector<PointResult>& results) {
    const MapTile& tile = indexer_.tiles()[number];
    std::size_t i = 0;
    for (int row = 0; row < tile.rows; ++row) {
      for (int column = 0; column < tile.columns; ++column, ++i) {
        const auto point = grid_.point(tile.column + column, tile.row + row);
        if (point) points_[*point] = results[i];
      }
    }
    done_ += results.size();
  }

  MapIndexer& indexer_;
  const ScanGrid& grid_;
  const MapRun& run_;
  std::vector<PointResult>& points_;
  std::size_t done_ = 0;  ///< counts what the next one takes
  PartFile part_;
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

void work(Crew& crew) {
  try {
    MapIndexer::Worker worker = crew.indexer.make_worker();
    const std::function<bool()> stop = [&crew] { return crew.stop(); };
    RunTask task(stop);
    std::vector<PointResult> results;
    while (!stop()) {
      const auto tile = crew.desk.next();
      if (!tile) return;
      crew.indexer.index_tile(crew.indexer.tiles()[*tile], worker, results, task);
      crew.desk.deliver(*tile, results);
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
