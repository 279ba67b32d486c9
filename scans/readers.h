// The readers behind open_scan, one for each family of files.
#pragma once

#include "scans/scan.h"

namespace zol {

/// EDAX .up1, .up2: a header and patterns in map order.
[[nodiscard]] std::unique_ptr<Scan> open_edax_up(const std::string& path, const OpenScanSettings& settings);
/// Oxford .ebsp: a table of places, then patterns in any order.
[[nodiscard]] std::unique_ptr<Scan> open_oxford_ebsp(const std::string& path, const OpenScanSettings& settings);
/// All that is HDF5.
[[nodiscard]] std::unique_ptr<Scan> open_hdf5_scan(const std::string& path, const OpenScanSettings& settings);
/// NORDIF: Pattern.dat with its Setting.txt beside it; the path of either, or of their folder.
[[nodiscard]] std::unique_ptr<Scan> open_nordif(const std::string& path, const OpenScanSettings& settings);
/// A picture for each point, its place in the name.
[[nodiscard]] std::unique_ptr<Scan> open_picture_folder(const std::string& path, const OpenScanSettings& settings);

/// The most pixels along a side and points of a scan that are believed.
inline constexpr int most_side = 8192;
inline constexpr std::uint64_t most_points = std::uint64_t{1} << 31U;

/// @throws RunFailure  a side is not 1 to most_side
void check_pattern_size(std::int64_t width, std::int64_t height, const std::string& path);

}  // namespace zol
