// Maps as files that other programs read.
#pragma once

#include <string>

#include "scans/map_result.h"

namespace zol {

/// EDAX: angles in radians, sample axes X down the slope, Y right; phases highest number first; a point that is not
/// indexed has CI -1, angles of 4 pi and fit 180. CI is the confidence.
[[nodiscard]] std::string ang_text(const MapResult& map);
/// Oxford: degrees, sample axes X right, Y up the slope, crystal axis X along a*. @throws RunFailure  a hexagonal grid
[[nodiscard]] std::string ctf_text(const MapResult& map);
/// One line a point under a head of names; angles in degrees as in .ang.
[[nodiscard]] std::string csv_text(const MapResult& map);

/// Writes what the ending of the path names: .ang, .ctf, .csv, .h5, .oh5.
/// @throws RunFailure  another ending, or it cannot be written
void write_map(const MapResult& map, const std::string& path);
/// Whether write_map knows the ending. @throws RunFailure  it does not; the message tells those it knows
void check_map_path(const std::string& path);

/// EDAX's number of a Laue class, as 43 for m-3m.
[[nodiscard]] int edax_symmetry(const std::string& laue_class);

/// HDF5 of EDAX's layout and of kikuchipy's and orix's in one.
void write_map_hdf5(const MapResult& map, const std::string& path);

}  // namespace zol
