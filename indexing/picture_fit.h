// The picture of the crystal's bands fitted to the measured one: the last step of indexing, and the most exact.
//
// Orientation and, where asked for, pattern centre are changed until the normalised correlation of both pictures is
// highest, by Gauss and Newton's steps. How the computed picture changes with each follows from its own slopes along x
// and y: a rotation or a shift of the centre moves what is at a place by a known way.
#pragma once

#include <Eigen/Core>
#include <array>
#include <vector>

#include "indexing/kinematic_sphere.h"
#include "indexing/prepared_picture.h"

namespace zol {

struct FitSettings {
  int most_steps = 8;
  double least_turn_deg = 0.003;  ///< a smaller step is the last
  bool centre = false;            ///< whether the pattern centre is free too
  double most_turn_deg = 3;       ///< of one step
  bool evened = false;            ///< the computed picture is made even as the measured one was
};

struct PictureFit {
  Rotation crystal_from_picture = Rotation::Identity();
  PatternCentre centre;
  double correlation = -1;  ///< of the pictures, -1 to 1
  int steps = 0;
  /// Standard errors of rotation (degrees, about x, y, z of the picture) and centre (widths), from the residuals.
  std::array<double, 6> errors{};
};

/// Holds its storage for the next picture.
class PictureFitter {
 public:
  /// What depends on the picture; to be called before the others.
  void take(const PreparedPicture& picture);

  /// Correlation of the picture with that of an orientation.
  double correlation(const KinematicSphere& sphere, const Rotation& crystal_from_picture, const PatternCentre& centre);

  PictureFit fit(const KinematicSphere& sphere, const Rotation& start, const PatternCentre& centre,
                 const FitSettings& settings);

  /// The computed picture of the last call, of the size of the prepared one.
  [[nodiscard]] const std::vector<float>& computed() const { return computed_; }

 private:
  using Parameters = Eigen::Matrix<double, 6, 1>;
  using Normal = Eigen::Matrix<double, 6, 6>;
  struct Place {
    Rotation crystal_from_picture;
    PatternCentre centre;
  };
  /// Turned and shifted by a step: radians about x, y, z of the picture, pixels along x, y, z.
  [[nodiscard]] Place moved(const Place& place, const Parameters& step) const;
  void draw(const KinematicSphere& sphere, const Place& place);
  double correlate();
  // How what was drawn changes with each parameter, and the sums for one step from it
  void slopes_from_picture(const Projection& projection);
  void slopes_from_draws(const KinematicSphere& sphere, const Place& place, int parameters);
  void sum_up(int parameters, Normal& normal, Parameters& right) const;
  void note_errors(int parameters, const Normal& normal, PictureFit& fit) const;

  struct Sums {
    double computed = 0, square = 0, product = 0;
  };
  const PreparedPicture* picture_ = nullptr;
  int shape_version_ = -1;
  EvenContrast even_;
  bool evened_ = false;  ///< what is drawn now is to be made even
  double count_ = 0, norm_ = 0;
  Sums sums_;
  std::vector<float> mask_, measured_, computed_, kept_, gain_, parts_, slopes_;
  std::vector<int> places_;
};

/// Where a picture of bands goes.
struct BandPicture {
  float* values = nullptr;
  int width = 0, height = 0;
};

/// Draws the bands with storage of the caller: a width of places, two of parts.
void draw_bands(const KinematicSphere& sphere, const Rotation& crystal_from_picture, const Projection& projection,
                const BandPicture& picture, int* places, float* parts);

/// One picture of the bands, as grey values row by row.
void draw_bands(const KinematicSphere& sphere, const Rotation& crystal_from_picture, const Projection& projection,
                int width, int height, std::vector<float>& values, Task& task);
inline void draw_bands(const KinematicSphere& sphere, const Rotation& crystal_from_picture,
                       const Projection& projection, int width, int height, std::vector<float>& values) {
  QuietTask task;
  draw_bands(sphere, crystal_from_picture, projection, width, height, values, task);
}

}  // namespace zol
