// From the lines picked on a pattern to the normals of three lattice planes.
//
// The picture is a window on a plane at distance 1 from the source, a gnomonic projection: the point (0, 0) of the
// plane lies on the screen normal, x to the right, y downward as in the picture. A band is the trace of a lattice
// plane. Angles are in radians unless stated otherwise.
#pragma once

#include <string>

#include "analysis/picked_lines.h"
#include "core/bounded_array.h"
#include "core/crystal_state.h"

namespace zol {

struct MeasuredBands {
  BoundedArray<Single> ViewRange{"ViewRange", 4};  ///< largest magnitude; x low, x high, y low, y high of the window
  BoundedTable<Single> GnomX{"GnomX", 5, 1};       ///< line, end
  BoundedTable<Single> GnomY{"GnomY", 5, 1};
  BoundedArray<Single> LineSlope{"LineSlope", 5};  ///< y = slope x + intercept; 100000 for an upright line
  BoundedArray<Single> LineIntercept{"LineIntercept", 5};
  BoundedArray<Single> LineDist{"LineDist", 5};    ///< from (0, 0)
  BoundedArray<Single> BandS{"BandS", 2};          ///< half band width as sin(theta)/lambda, inverse angstroms
  BoundedArray<Single> BandPhi{"BandPhi", 2};      ///< azimuth of the normal, 0 to 6.28318
  BoundedArray<Single> BandTheta{"BandTheta", 2};  ///< of the normal from the screen normal
  BoundedArray<Single> BandCos{"BandCos", 2};      ///< between normals i and i + 1
  BoundedArray<Single> BandAngle{"BandAngle", 2};  ///< acute angle in degrees between normals 0 and 1, 1 and 2, 2 and 0
};

/// Three bands, measured with the acquisition angle, shifts and ratio of the state. A line that was not picked
/// is used with its stored ends.
/// @param before     the earlier measurement, kept for lines not in use and for widths without two edges
/// @param two_edges  lines 2i and 2i + 1 are the edges of band i, and the widths are measured too
/// @throws RunFailure  a wavelength of 0
[[nodiscard]] MeasuredBands measure_bands(const CrystalState& state, const PickedLines& lines, bool two_edges,
                                          MeasuredBands before);

/// Direction of a band's normal in words, with the d-spacing where the width was measured, and the angle to the next.
/// @throws RunFailure  a width of 0
[[nodiscard]] std::string band_text(const MeasuredBands& bands, int band, bool with_width);

}  // namespace zol
