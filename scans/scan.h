// A scan: the patterns of many points of a sample, as the makers of detectors store them.
//
// Points are counted in map order: row by row, the column fastest, the first row at the top of the scan. Patterns stand
// as seen from behind the screen, rows from the top.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "indexing/detector.h"

namespace zol {

struct ScanGrid {
  int columns = 0, rows = 0;
  double step_x = 1, step_y = 1;  ///< micrometres
  bool hexagonal = false;         ///< every second row is shifted by half a step
  bool short_rows = false;        ///< of a hexagonal grid: every second row has a point less

  [[nodiscard]] std::size_t points() const {
    const auto all = static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows);
    return hexagonal && short_rows ? all - static_cast<std::size_t>(rows / 2) : all;
  }
  /// Column, row of a point.
  [[nodiscard]] std::array<int, 2> place(std::size_t point) const;
  /// The point at a place, none outside the map and at the end of a short row.
  [[nodiscard]] std::optional<std::size_t> point(int column, int row) const;
  /// As a file has them. What is no length counts as 1 along x, and along y as the step along x.
  void take_steps(double along_x, double along_y);
};

/// A pattern centre as a maker writes it.
struct StoredCentre {
  std::array<double, 3> numbers{};
  CentreConvention convention = CentreConvention::Bruker;
};

/// What a file says of itself; what it leaves open is none.
struct ScanHeader {
  std::string format;         ///< as "EDAX .up1, version 3"
  int width = 0, height = 0;  ///< pixels of a pattern
  int bits = 8;               ///< of a pixel
  bool whole = true;          ///< grey values are whole numbers, so that their step is 1
  std::size_t points = 0;     ///< patterns that there are places for
  std::optional<ScanGrid> grid;
  std::optional<double> sample_tilt_deg, detector_tilt_deg, kilovolt, pixel_micrometre;
  std::vector<StoredCentre> centres;     ///< none, one, or one of each point
  std::vector<float> static_background;  ///< empty, or of the size of a pattern
  std::vector<std::string> remarks;      ///< what is said wrongly, or was taken for granted

  [[nodiscard]] std::size_t pixels() const {
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  }
};

/// A run of patterns. Its storage is used again.
struct PatternBlock {
  std::size_t first = 0, count = 0;
  std::size_t pixels = 0;     ///< of a pattern
  std::vector<float> values;  ///< pattern by pattern
  std::vector<char> present;  ///< of each, 0 where it is missing or damaged; its values are 0

  void begin(std::size_t first_point, std::size_t points, std::size_t pixels_of_each);
  [[nodiscard]] std::span<float> pattern(std::size_t i) { return std::span(values).subspan(i * pixels, pixels); }
  [[nodiscard]] std::span<const float> pattern(std::size_t i) const {
    return std::span(values).subspan(i * pixels, pixels);
  }
};

/// An open file. One thread at a time.
class Scan {
 public:
  Scan() = default;
  Scan(const Scan&) = delete;
  Scan& operator=(const Scan&) = delete;
  virtual ~Scan() = default;

  [[nodiscard]] const ScanHeader& header() const { return header_; }
  /// Hands the centres over; the header has none then. Those of a large map take much memory.
  [[nodiscard]] std::vector<StoredCentre> take_centres() { return std::exchange(header_.centres, {}); }
  /// Patterns first to first + count - 1, which there are.
  /// @throws RunFailure  the file cannot be read any more; a damaged or missing pattern is none
  virtual void read(std::size_t first, std::size_t count, PatternBlock& block) = 0;

 protected:
  ScanHeader header_;
};

/// Grey values of a picture file.
struct GreyImage {
  int width = 0, height = 0, bits = 8;
  std::vector<float> values;
};
/// Reads pictures for folders of them. @throws RunFailure  it is none
using ReadGreyImage = std::function<GreyImage(const std::string& path)>;

struct OpenScanSettings {
  std::optional<std::array<int, 2>> size;  ///< columns, rows, where the user tells them
  std::string dataset;                     ///< of HDF5 files with several scans, the name of one; empty: the first
  bool raw = false;                        ///< unprocessed patterns where there are both
  ReadGreyImage read_image;
};

/// Tells the format by what stands in the file, and opens it. Readers: EDAX .up1 and .up2; Oxford .ebsp and .h5oina;
/// Bruker .h5; EDAX .h5 and .oh5; h5ebsd of kikuchipy; EMsoft's simulated patterns; NORDIF; a folder of pictures.
/// @throws RunFailure  none of these, or its contents contradict each other; the message names file and place
[[nodiscard]] std::unique_ptr<Scan> open_scan(const std::string& path, const OpenScanSettings& settings);

/// Makes the grid that the user tells the header's. @throws RunFailure  it has another number of points
void take_size(ScanHeader& header, const std::array<int, 2>& size, const std::string& path);

}  // namespace zol
