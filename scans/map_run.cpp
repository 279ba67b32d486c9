#include "scans/map_run.h"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstring>
#include <exception>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include "core/read_file.h"
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
  PartFile(const MapRun& run, std::size_t tiles) : path_(run.part_path), finished_(tiles) {
    if (path_.empty()) return;
    std::string head(sign);
    head.append(reinterpret_cast<const char*>(&run.fingerprint), sizeof run.fingerprint);
    std::size_t good = 0;
    if (run.resume && access(path_.c_str(), F_OK) == 0) good = take(head);
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

  [[nodiscard]] const std::vector<PointResult>& finished(std::size_t tile) const { return finished_[tile]; }

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
  std::size_t take(const std::string& head) {
    constexpr std::size_t most = std::size_t{1} << 40U;
    const std::string bytes = read_file(path_, most);
    if (bytes.size() < head.size()) return 0;
    if (!std::string_view(bytes).starts_with(head)) {
      throw RunFailure(path_ +
                       " is that of a run with other settings or another scan; remove it, or run without resume");
    }
    std::size_t at = head.size();
    while (bytes.size() - at >= sizeof(Record)) {
      Record record;
      std::memcpy(&record, bytes.data() + at, sizeof record);
      const std::size_t left = bytes.size() - at - sizeof record;
      if (record.tile >= finished_.size() || record.count > left / sizeof(PointResult)) break;
      std::vector<PointResult> results(record.count);
      std::memcpy(results.data(), bytes.data() + at + sizeof record, record.count * sizeof(PointResult));
      if (fingerprint_of(bytes_of(results), record.tile) != record.checksum) break;
      finished_[record.tile] = std::move(results);
      at += sizeof record + record.count * sizeof(PointResult);
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
  std::vector<std::vector<PointResult>> finished_;
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

/// What the threads share.
struct Shared {
  MapIndexer& indexer;
  const ScanGrid& grid;
  const MapRun& run;
  PartFile& part;
  std::vector<PointResult>& points;
  std::atomic<std::size_t> next = 0;
  std::atomic<bool> stopped = false;
  std::mutex mutex;
  std::size_t done = 0;
  std::exception_ptr failure;

  void put(std::size_t number, const std::vector<PointResult>& results) {
    const MapTile& tile = indexer.tiles()[number];
    std::size_t i = 0;
    for (int row = 0; row < tile.rows; ++row) {
      for (int column = 0; column < tile.columns; ++column, ++i) {
        const auto point = grid.point(tile.column + column, tile.row + row);
        if (point) points[*point] = results[i];
      }
    }
    done += results.size();
  }
};

void work(Shared& shared) {
  try {
    MapIndexer::Worker worker = shared.indexer.make_worker();
    const std::function<bool()> stop = [&shared] { return shared.stopped || shared.run.stop(); };
    RunTask task(stop);
    std::vector<PointResult> results;
    while (!stop()) {
      const std::size_t tile = shared.next++;
      if (tile >= shared.indexer.tiles().size()) return;
      if (!shared.part.finished(tile).empty()) continue;
      shared.indexer.index_tile(shared.indexer.tiles()[tile], worker, results, task);
      const std::lock_guard lock(shared.mutex);
      shared.part.keep(tile, results);
      shared.put(tile, results);
      shared.run.progress(shared.done, shared.points.size());
      if (shared.run.times != nullptr) *shared.run.times += std::exchange(worker.times, {});
    }
    shared.stopped = true;
  } catch (const Cancelled&) {
    shared.stopped = true;
  } catch (...) {
    const std::lock_guard lock(shared.mutex);
    shared.stopped = true;
    if (!shared.failure) shared.failure = std::current_exception();
  }
}

}  // namespace

std::uint64_t fingerprint_of(std::string_view bytes, std::uint64_t before) {
  constexpr std::uint64_t prime = 1099511628211U;
  for (const char c : bytes) before = (before ^ static_cast<unsigned char>(c)) * prime;
  return before;
}

bool run_map(MapIndexer& indexer, const ScanGrid& grid, const MapRun& run, std::vector<PointResult>& points) {
  points.assign(grid.points(), {});
  for (auto& point : points) point.missing = 1;
  PartFile part(run, indexer.tiles().size());
  Shared shared{indexer, grid, run, part, points, {}, {}, {}, 0, {}};
  for (std::size_t tile = 0; tile < indexer.tiles().size(); ++tile) {
    const auto& kept = part.finished(tile);
    const auto& place = indexer.tiles()[tile];
    if (kept.empty()) continue;
    if (kept.size() != static_cast<std::size_t>(place.columns) * static_cast<std::size_t>(place.rows)) {
      throw RunFailure(run.part_path + " does not fit the map; remove it, or run without resume");
    }
    shared.put(tile, kept);
  }
  std::vector<std::thread> threads;
  for (int i = 1; i < run.threads; ++i) {
    try {
      threads.emplace_back(work, std::ref(shared));
    } catch (const std::system_error&) {  // no more are to be had: those that run do the work
      break;
    }
  }
  work(shared);
  for (auto& thread : threads) thread.join();
  if (shared.failure) std::rethrow_exception(shared.failure);
  if (shared.stopped) return false;
  part.remove();
  return true;
}

}  // namespace zol
