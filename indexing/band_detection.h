// Bands of a Kikuchi pattern by the Radon transform.
//
// A band is the picture of a lattice plane: its middle is the straight line in which the plane cuts the screen, its
// edges are hyperbolas at the Bragg angle to either side. Lines are summed for directions all round, and each sum is
// laid out by the angle between its plane and the screen normal. In that measure a band has the same width wherever it
// lies, and its middle is the plane's trace, while on the screen it widens outward and its middle moves.
//
// Source of the use of the transform: Krieger Lassen, Juul Jensen & Conradsen, Scanning Microscopy 6 (1992) 115.
#pragma once

#include <span>
#include <vector>

#include "indexing/prepared_picture.h"

namespace zol {

struct DetectionSettings {
  int azimuths = 180;               ///< directions of lines in half a turn
  int most_bands = 12;              ///< strongest ones that are returned
  double least_separation_deg = 4;  ///< between the normals of two bands
  std::vector<double> half_widths;  ///< that are tried, radians, ascending; empty: five from 0.6 to 3 degrees
};

struct DetectedBand {
  double azimuth_rad = 0;   ///< of the normal on the picture, x towards y, -45 to 135 degrees
  double distance_rad = 0;  ///< angle from the pattern centre to the plane's trace, along the azimuth
  double half_width_rad = 0;
  double strength = 0;  ///< contrast in units of its own spread
  /// Unit normal of the plane in the picture's frame.
  [[nodiscard]] Vector3 normal() const;
};

/// Holds the storage of the transform; used again for the next picture.
class BandDetection {
 public:
  /// The strongest first. What it returns is valid until the next call.
  std::span<const DetectedBand> detect(const PreparedPicture& picture, const PatternCentre& centre,
                                       const DetectionSettings& settings);

 private:
  void plan(const PreparedPicture& picture, const DetectionSettings& settings);
  void transform(const std::vector<float>& image, const std::vector<float>& transposed, int azimuth, float* sums) const;
  void lay_out(const Projection& projection);
  void filter(const DetectionSettings& settings);
  void pick(const DetectionSettings& settings);
  [[nodiscard]] float response(int azimuth, int place) const;

  int width_ = 0, height_ = 0, shape_version_ = -1, azimuths_ = 0;
  int bins_ = 0;  ///< of a line of sums
  std::vector<float> transposed_;
  std::vector<float> sums_, lengths_;                     ///< azimuths x bins
  int places_ = 0;                                        ///< odd; steps of angle from -half to half
  double place_step_ = 0;                                 ///< radians
  std::vector<float> tangents_, value_sum_, length_sum_;  ///< azimuths x (places + 1), summed up from the first place
  std::vector<float> responses_;                          ///< azimuths x places, the best of all widths
  std::vector<unsigned char> widths_;                     ///< which width it was
  std::vector<double> half_widths_;
  std::vector<DetectedBand> candidates_, bands_;
};

}  // namespace zol
