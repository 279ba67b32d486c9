// EDAX .up1 (8 bits) and .up2 (16 bits). Versions 0 and 1 tell no size of the map, from 3 on they do.
#include <algorithm>
#include <filesystem>

#include "core/run_failure.h"
#include "scans/raw_scan.h"
#include "scans/readers.h"

namespace zol {
namespace {

class EdaxUp : public RawScan {
 public:
  EdaxUp(const std::string& path, const OpenScanSettings& settings) : RawScan(path) {
    bytes_ = path.ends_with("2") ? 2 : 1;
    header_.bits = 8 * bytes_;
    const auto version = file_.number<std::uint32_t>(0, "the version");
    std::uint64_t at = 4;
    constexpr std::uint32_t last_known = 32;  // beyond, it is the width of a file without a version
    const bool bare = version > last_known;
    if (bare) at = 0;
    header_.format =
        std::string("EDAX .up") + (bytes_ == 1 ? "1" : "2") + ", version " + std::to_string(bare ? 0 : version);
    const auto width = file_.number<std::uint32_t>(at, "the width of a pattern");
    const auto height = file_.number<std::uint32_t>(at + 4, "the height of a pattern");
    check_pattern_size(width, height, path);
    header_.width = static_cast<int>(width);
    header_.height = static_cast<int>(height);
    start_ = bare ? 8 : file_.number<std::uint32_t>(12, "the place of the first pattern");
    of_pattern_ = std::uint64_t{width} * height * static_cast<std::uint64_t>(bytes_);
    if (start_ > file_.size()) {
      throw RunFailure(path + ": the first pattern is said to be at byte " + std::to_string(start_) +
                       ", after the end of the file");
    }
    header_.points = (file_.size() - start_) / of_pattern_;
    if (header_.points == 0) throw RunFailure(path + " holds no whole pattern");
    if (!bare && version >= 2 && start_ >= 42) read_grid();
    if (settings.size) take_size(header_, *settings.size, path);
  }

 private:
  [[nodiscard]] std::optional<std::uint64_t> place_of_pixels(std::size_t point) const override {
    return start_ + point * of_pattern_;
  }

  void read_grid() {
    ScanGrid grid;
    const bool extra = file_.number<std::uint8_t>(16, "the flag of extra patterns") != 0;
    const auto columns = file_.number<std::uint32_t>(17, "the columns of the map");
    const auto rows = file_.number<std::uint32_t>(21, "the rows of the map");
    grid.hexagonal = file_.number<std::uint8_t>(25, "the kind of grid") == 1;
    grid.take_steps(file_.number<double>(26, "the step"), file_.number<double>(34, "the step"));
    grid.short_rows = grid.hexagonal && !extra;
    constexpr std::uint32_t most = 1U << 20U;
    if (columns == 0 || rows == 0 || columns > most || rows > most) {
      header_.remarks.push_back("the size of the map is said to be " + std::to_string(columns) + " x " +
                                std::to_string(rows) + ", which is impossible");
      return;
    }
    grid.columns = static_cast<int>(columns);
    grid.rows = static_cast<int>(rows);
    if (grid.points() != header_.points) {
      header_.remarks.push_back("the header says " + std::to_string(grid.columns) + " x " + std::to_string(grid.rows) +
                                " points, the file holds " + std::to_string(header_.points) + " whole patterns");
      if (grid.points() < header_.points) header_.points = grid.points();
      grid.rows = static_cast<int>(header_.points / columns);
      if (grid.rows == 0) return;
      header_.points = grid.points();
    }
    header_.grid = grid;
  }

  int bytes_ = 1;
  std::uint64_t start_ = 0, of_pattern_ = 0;
};

}  // namespace

std::unique_ptr<Scan> open_edax_up(const std::string& path, const OpenScanSettings& settings) {
  return std::make_unique<EdaxUp>(path, settings);
}

}  // namespace zol
