#include "indexing/window/show_orientation.h"

#include <algorithm>
#include <cmath>

#include "analysis/window/pattern3_form.h"
#include "core/lattice.h"
#include "core/number_text.h"
#include "core/run_failure.h"
#include "dynamics/master_sphere.h"
#include "indexing/window/crystal_models.h"
#include "indexing/window/grey_range.h"
#include "kikuchi/kikuchi_pattern.h"
#include "kikuchi/window/kikuchi_operations.h"
#include "kikuchi/window/pattern2_form.h"
#include "reflections/window/main1_form.h"
#include "spots/zone_geometry.h"

namespace zol {
namespace {

/// The pattern counts its turn from a reflection in whole numbers: an axis of large components keeps it near the zone.
constexpr double largest_component = 100;

Lattice lattice_of(const CrystalState& state) {
  return Lattice({state.CellA, state.CellB, state.CellC, state.CellAlpha, state.CellBeta, state.CellGamma});
}

Vector3 vector_of(const CartesianVector& v) { return {v.x, v.y, v.z}; }

Vector3 reference_of(const Lattice& lattice, const std::array<double, 3>& uvw) {
  const auto reference = reference_reflection(uvw[0], uvw[1], uvw[2]);
  return vector_of(lattice.cartesian(
      ReciprocalVector{1.0 * reference.h.value(), 1.0 * reference.k.value(), 1.0 * reference.l.value()}));
}

/// Of the picture of Pattern2, degrees.
double pixel_of_pattern2(Workbench& bench, const GnomonicView& view) {
  const double width = std::max(1e-3, std::abs(double{view.right} - double{view.left}));
  return fitted_pixel_deg(bench.windows.use<Pattern2Form>().Picture1.pixel_width(), 1 / width);
}

double rounded(double value) { return std::round(value * 100) / 100; }

}  // namespace

void show_orientation(Workbench& bench, const Rotation& crystal_from_picture) {
  CrystalState& state = main1_state(bench);
  if (state.RefCount < 1) {
    throw RunFailure("the simulation needs the reflection list: press Calc in the main window");
  }
  const Lattice lattice = lattice_of(state);
  const Vector3 axis = crystal_from_picture.col(2);
  const DirectVector direct = lattice.direct(CartesianVector{axis[0], axis[1], axis[2]});
  const double largest = std::max({std::abs(direct.u), std::abs(direct.v), std::abs(direct.w)});
  std::array<double, 3> uvw{};
  const std::array components{direct.u, direct.v, direct.w};
  for (std::size_t i = 0; i < 3; ++i) uvw[i] = rounded(components[i] / largest * largest_component);
  const auto is_zero = [](const Vector3& v) { return v.norm() == 0; };
  if (is_zero(reference_of(lattice, uvw))) uvw[2] = 0;  // [n -n 0] nearly: then azimuths count from 0 0 1
  const Vector3 in_picture = crystal_from_picture.transpose() * reference_of(lattice, uvw);
  state.PatternAngle = to_single(std::atan2(in_picture[1], in_picture[0]));

  auto& pattern2 = bench.windows.use<Pattern2Form>();
  pattern2.show();
  pattern2.Text1.set_text(plain_text(state.CamAcquisition));
  pattern2.Text14.set_text(plain_text(state.CamXShift));
  pattern2.Text15.set_text(plain_text(state.CamYShift));
  pattern2.Text3.set_text(plain_text(to_single(uvw[0])));
  pattern2.Text4.set_text(plain_text(to_single(uvw[1])));
  pattern2.Text5.set_text(plain_text(to_single(uvw[2])));
  // The picture counts y downward, the simulation upward.
  if (pattern2.ImageMark == "ON") pattern2.Picture1.take_picture(bench.windows.use<Pattern3Form>().Picture1, true);
  PatternDisp2(bench);
}

Rotation shown_orientation(const CrystalState& state) {
  const Lattice lattice = lattice_of(state);
  const std::array<double, 3> uvw{state.ZoneU, state.ZoneV, state.ZoneW};
  const Vector3 axis = vector_of(lattice.cartesian(DirectVector{uvw[0], uvw[1], uvw[2]}));
  if (!(axis.norm() > 0)) throw RunFailure("the zone axis is zero");
  const Vector3 z = axis.normalized();
  Vector3 reference = reference_of(lattice, uvw);
  reference -= reference.dot(z) * z;
  if (!(reference.norm() > 0)) throw RunFailure("the zone axis has no reference reflection");
  const Vector3 along = reference.normalized();
  const Vector3 across = z.cross(along);
  const double turn = state.PatternAngle;
  const Vector3 x = std::cos(turn) * along - std::sin(turn) * across;
  Rotation orientation;
  orientation << x, z.cross(x), z;
  return orientation;
}

void draw_bands_as_picture(Workbench& bench, BandLook look) {
  constexpr auto title = "Bands as a picture";
  try {
    const CrystalState& state = main1_state(bench);
    auto& indexing = bench.windows.use<AutoIndexForm>();
    const auto model = present_crystal_model(bench, indexing);
    if (!model) throw RunFailure("there is no crystal: load one in the main window");
    const Rotation orientation = shown_orientation(state);
    const GnomonicView view = gnomonic_view(state);
    auto& pattern2 = bench.windows.use<Pattern2Form>();
    const Hourglass hourglass(pattern2);
    WindowTask task(bench.services);
    const auto sphere = look == BandLook::Kinematic
                            ? model->sphere
                            : present_dynamical_sphere(bench, indexing, pixel_of_pattern2(bench, view));
    pattern2.Picture1.edit_picture([&](Surface& image) {
      const double width = image.width();
      const double height = image.height();
      std::vector<float> values;
      for (int y = 0; y < image.height(); ++y) {
        task.check();
        for (int x = 0; x < image.width(); ++x) {
          const Vector3 place(view.left + (double{view.right} - double{view.left}) * (x + 0.5) / width,
                              view.top + (double{view.bottom} - double{view.top}) * (y + 0.5) / height, 1);
          values.push_back(sphere->at(orientation * place));
        }
      }
      const GreyRange range(values, task);
      std::size_t pixel = 0;
      for (int y = 0; y < image.height(); ++y) {
        task.check();
        for (int x = 0; x < image.width(); ++x) image.set_pixel(x, y, range.colour(values[pixel++]));
      }
    });
  } catch (const RunFailure& failure) {
    bench.services.message(failure.message(), title);
  }
}

}  // namespace zol
