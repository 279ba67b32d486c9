// Scans in HDF5 files: kikuchipy, EDAX, Bruker, Oxford and EMsoft, told apart by the names of their arrays.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "core/run_failure.h"
#include "hdf5/hdf5_file.h"
#include "indexing/units.h"
#include "scans/readers.h"

namespace zol {
namespace {

/// Where the patterns of one scan stand and what is said of them.
struct Layout {
  std::string format;
  std::string patterns;       ///< the array
  std::string header;         ///< the group beside it
  std::string columns, rows;  ///< names in the header
  std::string step_x, step_y;
  std::string width, height;
  std::string background;
};

std::optional<int> whole(const std::optional<double>& value) {
  constexpr double most = 1 << 20;
  if (!value || !(*value >= 1) || *value > most) return std::nullopt;
  return static_cast<int>(*value);
}

class Hdf5Scan : public Scan {
 public:
  Hdf5Scan(const std::string& path, const OpenScanSettings& settings) : file_(path) {
    layout_ = find_layout(settings);
    header_.format = layout_.format;
    measure_array();
    read_grid();
    read_background();
    if (layout_.format.starts_with("kikuchipy")) {
      read_kikuchipy();
    } else if (layout_.format.starts_with("EDAX")) {
      read_edax();
    } else if (layout_.format.starts_with("Bruker")) {
      read_bruker();
    } else if (layout_.format.starts_with("Oxford")) {
      read_oxford();
    } else {
      read_emsoft();
    }
    if (settings.size) take_size(header_, *settings.size, path);
  }

  void read(std::size_t first, std::size_t count, PatternBlock& block) override {
    const std::size_t pixels = header_.pixels();
    block.begin(first, count, pixels);
    if (order_.empty() && !rows_of_patterns_ &&
        file_.read_entries(layout_.patterns, first, count, std::span(block.values).first(count * pixels))) {
      std::fill(block.present.begin(), block.present.end(), 1);
    } else {
      for (std::size_t i = 0; i < count; ++i) read_one(first + i, block.pattern(i), block.present[i]);
    }
    for (float& value : block.values) {
      if (!std::isfinite(value)) value = 0;  // what lies outside a free-form area
    }
  }

 private:
  [[nodiscard]] std::string in_header(const std::string& name) const { return layout_.header + '/' + name; }
  [[nodiscard]] std::optional<double> header_number(const std::string& name) const {
    return file_.number(in_header(name));
  }

  [[nodiscard]] Layout find_layout(const OpenScanSettings& settings) const {
    if (file_.holds("EMData/EBSD/EBSDPatterns")) {
      return {"EMsoft, simulated patterns",
              "EMData/EBSD/EBSDPatterns",
              "NMLparameters/EBSDNameList",
              "",
              "",
              "",
              "",
              "numsx",
              "numsy",
              ""};
    }
    std::vector<std::string> tried;
    for (const std::string& name : file_.names("")) {
      if (!settings.dataset.empty() && name != settings.dataset) continue;
      const std::string data = name + "/EBSD/Data/";
      const std::string header = name + "/EBSD/Header";
      if (file_.holds(data + "patterns")) {
        return {"kikuchipy h5ebsd", data + "patterns", header,          "n_columns",      "n_rows",
                "step_x",           "step_y",          "pattern_width", "pattern_height", "static_background"};
      }
      if (file_.holds(data + "Pattern")) {
        return {"EDAX HDF5", data + "Pattern", header,          "nColumns",       "nRows",
                "Step X",    "Step Y",         "Pattern Width", "Pattern Height", ""};
      }
      if (file_.holds(data + "RawPatterns")) {
        return {"Bruker HDF5", data + "RawPatterns", header,          "NCOLS",           "NROWS", "XSTEP",
                "YSTEP",       "PatternWidth",       "PatternHeight", "StaticBackground"};
      }
      const bool processed = file_.holds(data + "Processed Patterns");
      const bool raw = file_.holds(data + "Unprocessed Patterns");
      if (processed || raw) {
        const bool take_raw = raw && (settings.raw || !processed);
        const std::string kind = take_raw ? "Unprocessed " : "Processed ";
        return {"Oxford .h5oina", data + kind + "Patterns",
                header,           "X Cells",
                "Y Cells",        "X Step",
                "Y Step",         "Pattern Width",
                "Pattern Height", kind + "Static Background"};
      }
      tried.push_back('"' + name + '"');
    }
    if (!settings.dataset.empty() && tried.empty()) {
      throw RunFailure(file_.path() + " holds no scan \"" + settings.dataset + "\"");
    }
    std::string groups;
    for (const auto& one : tried) groups += (groups.empty() ? "" : ", ") + one;
    throw RunFailure(file_.path() + " holds no patterns in a layout that is known; looked in " +
                     (groups.empty() ? "the whole file" : groups));
  }

  /// Sides of the array of patterns: points, height, width; or rows, columns, height, width.
  void measure_array() {
    const auto sides = file_.sides(layout_.patterns);
    if (sides.size() != 3 && sides.size() != 4) {
      throw RunFailure(file_.path() + ": \"" + layout_.patterns + "\" has " + std::to_string(sides.size()) +
                       " sides, expected are 3: points, height, width");
    }
    const std::size_t last = sides.size() - 1;
    check_pattern_size(static_cast<std::int64_t>(sides[last]), static_cast<std::int64_t>(sides[last - 1]),
                       file_.path());
    header_.width = static_cast<int>(sides[last]);
    header_.height = static_cast<int>(sides[last - 1]);
    rows_of_patterns_ = sides.size() == 4;
    const std::uint64_t points = rows_of_patterns_ ? sides[0] * sides[1] : sides[0];
    if (points == 0 || points > most_points) {
      throw RunFailure(file_.path() + " says it holds " + std::to_string(points) + " patterns, which is impossible");
    }
    header_.points = points;
    stored_ = points;
    header_.bits = file_.bits(layout_.patterns);
    header_.whole = file_.holds_whole_numbers(layout_.patterns);
    if (rows_of_patterns_) row_length_ = sides[1];
    for (const auto& [name, side] : {std::pair(layout_.width, header_.width), {layout_.height, header_.height}}) {
      const auto said = whole(header_number(name));
      if (said && *said != side) {
        header_.remarks.push_back("the header says " + std::to_string(*said) + " for \"" + name +
                                  "\", the patterns have " + std::to_string(side));
      }
    }
  }

  void read_grid() {
    ScanGrid grid;
    const auto columns = whole(header_number(layout_.columns));
    const auto rows = whole(header_number(layout_.rows));
    if (rows_of_patterns_) {
      grid.columns = static_cast<int>(row_length_);
      grid.rows = static_cast<int>(header_.points / row_length_);
    } else if (columns && rows) {
      grid.columns = *columns;
      grid.rows = *rows;
    } else {
      return;
    }
    grid.take_steps(header_number(layout_.step_x).value_or(0), header_number(layout_.step_y).value_or(0));
    if (grid.points() != header_.points) {
      header_.remarks.push_back("the header says " + std::to_string(grid.columns) + " x " + std::to_string(grid.rows) +
                                " points, the file holds " + std::to_string(header_.points) + " patterns");
      said_ = grid;
      return;
    }
    header_.grid = grid;
  }

  void read_background() {
    if (layout_.background.empty()) return;
    const auto values = file_.numbers(in_header(layout_.background));
    if (values.size() != header_.pixels()) return;
    header_.static_background.assign(values.begin(), values.end());
  }

  /// Three arrays of the data or single numbers of the header, as the file has them.
  void read_centres(const std::array<std::string, 3>& places, CentreConvention convention) {
    std::array<std::vector<double>, 3> parts;
    for (std::size_t i = 0; i < 3; ++i) parts[i] = file_.numbers(places[i]);
    const std::size_t count = parts[0].size();
    if (count == 0 || parts[1].size() != count || parts[2].size() != count) return;
    if (count != 1 && count != stored_) return;
    const auto usable = [&](std::size_t i) {
      return std::isfinite(parts[0][i]) && std::isfinite(parts[1][i]) && parts[2][i] > 0;
    };
    for (std::size_t i = 0; i < count; ++i) {
      if (!usable(i)) {
        header_.centres.clear();
        header_.remarks.emplace_back("the file's pattern centre is none");
        return;
      }
      header_.centres.push_back({{parts[0][i], parts[1][i], parts[2][i]}, convention});
    }
    const auto same = [this](const StoredCentre& one) { return one.numbers == header_.centres.front().numbers; };
    if (std::all_of(header_.centres.begin(), header_.centres.end(), same)) header_.centres.resize(1);
  }

  void read_kikuchipy() {
    header_.sample_tilt_deg = header_number("sample_tilt");
    header_.detector_tilt_deg = header_number("elevation_angle");
    const std::string scan = layout_.patterns.substr(0, layout_.patterns.find('/'));
    header_.kilovolt = file_.number(scan + "/SEM/Header/beam_energy");
    read_centres({in_header("pcx"), in_header("pcy"), in_header("pcz")}, CentreConvention::Bruker);
  }

  void read_edax() {
    header_.sample_tilt_deg = header_number("Sample Tilt");
    header_.detector_tilt_deg = header_number("Camera Elevation Angle");
    const std::string place = in_header("Pattern Center Calibration/");
    read_centres({place + "x-star", place + "y-star", place + "z-star"}, CentreConvention::Edax);
    if (header_.grid) header_.grid->hexagonal = file_.text(in_header("Grid Type")).starts_with("Hex");
  }

  void read_bruker() {
    header_.sample_tilt_deg = header_number("SampleTilt");
    if (!header_.sample_tilt_deg) header_.sample_tilt_deg = header_number("Sample Tilt");
    header_.detector_tilt_deg = header_number("CameraTilt");
    header_.kilovolt = header_number("KV");
    const auto full = header_number("DetectorFullHeightMicrons");
    const auto unclipped = header_number("UnClippedPatternHeight");
    if (full && unclipped && *full > 0 && *unclipped > 0) header_.pixel_micrometre = *full / *unclipped;
    const std::string grid = file_.text(in_header("Grid Type"));
    if (!grid.empty() && grid != "isometric") {
      throw RunFailure(file_.path() + ": its grid is \"" + grid + "\", only isometric ones can be read");
    }
    const std::string data = layout_.patterns.substr(0, layout_.patterns.rfind('/')) + '/';
    read_centres({data + "PCX", data + "PCY", data + "DD"}, CentreConvention::Bruker);
    place_points(layout_.header.substr(0, layout_.header.rfind('/')) + "/SEM/");
  }

  /// Patterns that stand in no order, with their columns and rows beside them.
  void place_points(const std::string& group) {
    const auto x = file_.numbers(group + "IX");
    const auto y = file_.numbers(group + "IY");
    if (x.size() != stored_ || y.size() != stored_) return;
    const auto known = [](double number) { return std::isfinite(number); };
    const bool all_known = std::all_of(x.begin(), x.end(), known) && std::all_of(y.begin(), y.end(), known);
    const auto [least_x, most_x] = std::minmax_element(x.begin(), x.end());
    const auto [least_y, most_y] = std::minmax_element(y.begin(), y.end());
    const double columns = *most_x - *least_x + 1;
    const double rows = *most_y - *least_y + 1;
    constexpr double most = 1 << 20;
    if (!all_known || columns > most || rows > most || columns * rows > 4.0 * static_cast<double>(stored_) + 16) {
      header_.remarks.emplace_back("the places of the points are impossible, the points are taken in order");
      return;
    }
    ScanGrid grid = header_.grid.value_or(said_);
    grid.columns = static_cast<int>(columns);
    grid.rows = static_cast<int>(rows);
    order_.assign(grid.points(), missing);
    for (std::size_t i = 0; i < stored_; ++i) {
      const auto column = static_cast<std::size_t>(x[i] - *least_x);
      const auto row = static_cast<std::size_t>(y[i] - *least_y);
      order_[row * static_cast<std::size_t>(grid.columns) + column] = i;
    }
    std::vector<StoredCentre> centres;
    if (header_.centres.size() == stored_ && stored_ > 1) {
      for (const std::size_t from : order_) centres.push_back(header_.centres[from == missing ? 0 : from]);
      header_.centres = std::move(centres);
    }
    header_.points = grid.points();
    header_.grid = grid;
    std::erase_if(header_.remarks, [](const std::string& one) { return one.starts_with("the header says "); });
  }

  void read_oxford() {
    if (const auto tilt = header_number("Tilt Angle")) header_.sample_tilt_deg = *tilt * degrees;
    const auto turned = file_.numbers(in_header("Detector Orientation Euler"));
    constexpr double upright = 90;
    if (turned.size() == 3) header_.detector_tilt_deg = turned[1] * degrees - upright;
    header_.kilovolt = header_number("Beam Voltage");
    const std::string data = layout_.patterns.substr(0, layout_.patterns.rfind('/')) + '/';
    read_centres({data + "Pattern Center X", data + "Pattern Center Y", data + "Detector Distance"},
                 CentreConvention::Oxford);
  }

  void read_emsoft() {
    header_.detector_tilt_deg = header_number("thetac");
    header_.pixel_micrometre = header_number("delta");
    const auto x = header_number("xpc");
    const auto y = header_number("ypc");
    const auto distance = header_number("L");
    if (!x || !y || !distance || !(*distance > 0)) return;
    // Up to version 4 the first number grows to the right, from version 5 on to the left.
    const std::string version = file_.text("EMheader/EBSD/Version");
    const bool told = !version.empty() && version[0] >= '1' && version[0] <= '9';
    const bool to_the_right = told && std::atoi(version.c_str()) < 5;
    header_.centres = {{{to_the_right ? -*x : *x, *y, *distance}, CentreConvention::Emsoft}};
    if (!told) {
      header_.remarks.emplace_back(
          "the file has no version of EMsoft; the centre is taken as 5 writes it, earlier ones reverse its first "
          "number");
    }
  }

  void read_one(std::size_t point, std::span<float> values, char& present) const {
    const std::size_t from = order_.empty() ? point : order_[point];
    if (from == missing) return;
    if (rows_of_patterns_) {
      std::vector<float> row(row_length_ * values.size());
      if (!file_.read_entries(layout_.patterns, from / row_length_, 1, row)) return;
      const auto begin = static_cast<std::ptrdiff_t>((from % row_length_) * values.size());
      std::copy_n(row.begin() + begin, values.size(), values.begin());
    } else if (!file_.read_entries(layout_.patterns, from, 1, values)) {
      return;
    }
    present = 1;
  }

  static constexpr std::size_t missing = static_cast<std::size_t>(-1);
  Hdf5File file_;
  Layout layout_;
  ScanGrid said_;
  bool rows_of_patterns_ = false;
  std::size_t row_length_ = 1;
  std::size_t stored_ = 0;
  std::vector<std::size_t> order_;  ///< of each point, where its pattern stands; empty: in map order
};

}  // namespace

std::unique_ptr<Scan> open_hdf5_scan(const std::string& path, const OpenScanSettings& settings) {
  return std::make_unique<Hdf5Scan>(path, settings);
}

}  // namespace zol
