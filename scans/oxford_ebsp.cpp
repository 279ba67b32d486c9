// Oxford .ebsp and .uebsp, versions 0 to 6: a table of places in map order, then patterns as they came in.
#include <algorithm>
#include <cmath>
#include <limits>

#include "core/run_failure.h"
#include "scans/raw_scan.h"
#include "scans/readers.h"

namespace zol {
namespace {

struct PatternHeader {
  std::int32_t compressed = 0, rows = 0, columns = 0, bytes = 0;
  std::uint64_t data = 0;  ///< where the pixels stand
};

class OxfordEbsp : public RawScan {
 public:
  OxfordEbsp(const std::string& path, const OpenScanSettings& settings) : RawScan(path) {
    const auto first = file_.number<std::int64_t>(0, "the version");
    constexpr std::int64_t last_version = 64;
    if (first < -last_version)
      throw RunFailure(path + " is not an .ebsp file: it begins with " + std::to_string(first));
    version_ = first < 0 ? static_cast<int>(-first) : 0;
    std::uint64_t table = version_ == 0 ? 0U : 8U;
    if (version_ >= 4) ++table;
    header_.format = "Oxford .ebsp, version " + std::to_string(version_);
    read_table(table);
    const auto known = std::find_if(places_.begin(), places_.end(), [](std::int64_t at) { return at != 0; });
    const auto found = pattern_header(static_cast<std::uint64_t>(*known));
    if (found.compressed != 0) throw RunFailure(path + ": its patterns are compressed, which cannot be read");
    check_pattern_size(found.columns, found.rows, path);
    header_.width = found.columns;
    header_.height = found.rows;
    const std::int64_t pixels = std::int64_t{found.columns} * found.rows;
    bytes_ = static_cast<int>(found.bytes / pixels);
    if (found.bytes != pixels * bytes_ || (bytes_ != 1 && bytes_ != 2 && bytes_ != 4)) {
      throw RunFailure(path + ": the first pattern has " + std::to_string(found.bytes) + " bytes for " +
                       std::to_string(pixels) + " pixels");
    }
    header_.bits = 8 * bytes_;
    header_.points = places_.size();
    find_grid();
    if (settings.size) take_size(header_, *settings.size, path);
  }

 private:
  [[nodiscard]] std::optional<std::uint64_t> place_of_pixels(std::size_t point) const override {
    const auto at = static_cast<std::uint64_t>(places_[point]);
    if (!holds_head(at)) return std::nullopt;
    const auto found = pattern_header(at);
    const bool fits = found.compressed == 0 && found.columns == header_.width && found.rows == header_.height &&
                      found.bytes == static_cast<std::int32_t>(header_.pixels()) * bytes_;
    return fits ? std::optional(found.data) : std::nullopt;
  }

  /// Whether a pattern is stored there, and the file does not end within its header.
  [[nodiscard]] bool holds_head(std::uint64_t at) const {
    constexpr std::uint64_t longest_head = 24;
    return at != 0 && at + longest_head <= file_.size();
  }

  /// The table ends where the first pattern begins.
  void read_table(std::uint64_t table) {
    std::uint64_t end = std::numeric_limits<std::uint64_t>::max();
    for (std::uint64_t at = table; at < end; at += 8) {
      if (places_.size() >= most_points) throw RunFailure(file_.path() + ": its table of patterns has no end");
      const auto place = file_.number<std::int64_t>(at, "the place of a pattern");
      if (place < 0 || static_cast<std::uint64_t>(place) >= file_.size()) {
        throw RunFailure(file_.path() + ": pattern " + std::to_string(places_.size() + 1) + " is said to be at byte " +
                         std::to_string(place) + ", outside the file");
      }
      if (place != 0) end = std::min(end, static_cast<std::uint64_t>(place));
      places_.push_back(place);
    }
    if (end < table + 8 || end == std::numeric_limits<std::uint64_t>::max()) {
      throw RunFailure(file_.path() + " holds no pattern");
    }
  }

  [[nodiscard]] PatternHeader pattern_header(std::uint64_t at) const {
    if (version_ >= 5) at += 8;
    PatternHeader found;
    found.compressed = file_.number<std::int32_t>(at, "the header of a pattern");
    found.rows = file_.number<std::int32_t>(at + 4, "the height of a pattern");
    found.columns = file_.number<std::int32_t>(at + 8, "the width of a pattern");
    found.bytes = file_.number<std::int32_t>(at + 12, "the size of a pattern");
    found.data = at + 16;
    return found;
  }

  /// Where the beam stood, none where the file does not say.
  [[nodiscard]] std::optional<std::array<double, 2>> beam(std::size_t point) const {
    const auto at = static_cast<std::uint64_t>(places_[point]);
    if (version_ == 0 || !holds_head(at)) return std::nullopt;
    const auto found = pattern_header(at);
    std::uint64_t foot = found.data + static_cast<std::uint64_t>(std::max(found.bytes, 0));
    std::array<double, 2> place{};
    for (double& part : place) {
      if (version_ >= 2) {
        if (foot >= file_.size() || file_.number<std::uint8_t>(foot, "a flag") == 0) return std::nullopt;
        ++foot;
      }
      if (foot + 8 > file_.size()) return std::nullopt;
      part = file_.number<double>(foot, "the place of the beam");
      foot += 8;
    }
    return place;
  }

  /// Rows and columns by the places of the beam at the first two points and the last one.
  void find_grid() {
    const std::size_t last = places_.size() - 1;
    const auto a = beam(0);
    const auto b = last > 0 ? beam(1) : std::nullopt;
    const auto c = beam(last);
    if (!a || !b || !c) return;
    const double step = std::abs((*b)[0] - (*a)[0]);
    if (!(step > 0) || !std::isfinite(step)) return;
    const double columns = std::round(std::abs((*c)[0] - (*a)[0]) / step) + 1;
    if (!(columns >= 1) || columns > static_cast<double>(places_.size())) return;
    ScanGrid grid;
    grid.columns = static_cast<int>(columns);
    grid.rows = static_cast<int>(places_.size() / static_cast<std::size_t>(grid.columns));
    grid.take_steps(step, grid.rows > 1 ? std::abs((*c)[1] - (*a)[1]) / (grid.rows - 1) : step);
    if (grid.points() == header_.points) header_.grid = grid;
  }

  int version_ = 0, bytes_ = 1;
  std::vector<std::int64_t> places_;
};

}  // namespace

std::unique_ptr<Scan> open_oxford_ebsp(const std::string& path, const OpenScanSettings& settings) {
  return std::make_unique<OxfordEbsp>(path, settings);
}

}  // namespace zol
