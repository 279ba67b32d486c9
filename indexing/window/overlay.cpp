#include "indexing/window/overlay.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <numeric>
#include <utility>

#include "indexing/window/grey_range.h"

namespace zol {
namespace {

using namespace colours;

constexpr double view_size = 511;  // user coordinates of the picture of PATTERN3
constexpr Colour yellow = RGB(255, 220, 0);

struct Point {
  double x = 0, y = 0;
};

/// Pixels of the file onto the coordinates of PATTERN3, which stretches every picture to a square.
class View {
 public:
  explicit View(const IndexResult& result)
      : projection_{result.centre, static_cast<double>(result.size.width)},
        per_x_(view_size / result.size.width),
        per_y_(view_size / result.size.height) {}

  /// @returns none for a direction away from the screen or far outside the picture
  [[nodiscard]] std::optional<Point> point(const Vector3& direction) const {
    if (direction[2] < 0.02 * direction.norm()) return std::nullopt;
    const Point at{(direction[0] / direction[2] * projection_.distance() + projection_.x0()) * per_x_,
                   (direction[1] / direction[2] * projection_.distance() + projection_.y0()) * per_y_};
    if (std::abs(at.x) > 3 * view_size || std::abs(at.y) > 3 * view_size) return std::nullopt;
    return at;
  }
  [[nodiscard]] static bool inside(const Point& at) {
    return at.x >= 0 && at.x <= view_size && at.y >= 0 && at.y <= view_size;
  }

 private:
  Projection projection_;
  double per_x_, per_y_;
};

/// The curve of the directions at an angle from a plane: a hyperbola, or the plane's trace for 0.
void draw_edge(Canvas& picture, const View& view, const Vector3& normal, double angle_rad, Colour colour) {
  const Vector3 across =
      normal.cross(std::abs(normal[2]) < 0.9 ? Vector3(Vector3::UnitZ()) : Vector3(Vector3::UnitX())).normalized();
  const Vector3 along = normal.cross(across);
  constexpr int steps = 180;
  std::optional<Point> before;
  for (int i = 0; i <= steps; ++i) {
    const double turn = 2 * std::numbers::pi * i / steps;
    const Vector3 direction =
        std::cos(angle_rad) * (std::cos(turn) * across + std::sin(turn) * along) + std::sin(angle_rad) * normal;
    const auto here = view.point(direction);
    if (before && here && (View::inside(*before) || View::inside(*here))) {
      picture.line(before->x, before->y, here->x, here->y, colour);
    }
    before = here;
  }
}

const Reflector& plane_of(const IndexResult::Solution& solution, const MatchedBand& match) {
  return solution.model->table->planes()[static_cast<std::size_t>(match.plane)];
}

/// The zone of two planes in smallest whole numbers; zeros where they are parallel.
std::array<int, 3> zone_of(const std::array<int, 3>& a, const std::array<int, 3>& b) {
  std::array<int, 3> uvw{a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
  const int divisor = std::gcd(std::gcd(uvw[0], uvw[1]), uvw[2]);
  if (divisor > 1) {
    for (int& index : uvw) index /= divisor;
  }
  return uvw;
}

/// Zone axes where matched bands cross, with their indices.
void draw_zone_axes(Canvas& picture, const View& view, const IndexResult::Solution& solution) {
  constexpr int largest_index = 4;
  const Lattice lattice(solution.model->reflectors.cell);
  std::vector<std::array<int, 3>> drawn;
  for (const MatchedBand& a : solution.matches) {
    for (const MatchedBand& b : solution.matches) {
      if (a.plane < 0 || b.plane < 0 || a.band >= b.band) continue;
      std::array<int, 3> uvw = zone_of(plane_of(solution, a).hkl, plane_of(solution, b).hkl);
      if (uvw == std::array<int, 3>{}) continue;
      if (std::any_of(uvw.begin(), uvw.end(), [](int index) { return std::abs(index) > largest_index; })) continue;
      const CartesianVector axis = lattice.cartesian(DirectVector{1.0 * uvw[0], 1.0 * uvw[1], 1.0 * uvw[2]});
      Vector3 direction = solution.found.crystal_from_picture.transpose() * Vector3(axis.x, axis.y, axis.z);
      if (direction[2] < 0) {
        direction = -direction;
        for (int& index : uvw) index = -index;
      }
      if (std::find(drawn.begin(), drawn.end(), uvw) != drawn.end()) continue;
      drawn.push_back(uvw);
      const auto at = view.point(direction);
      if (!at || !View::inside(*at)) continue;
      // A cross: a circle would be filled as the pens of the window say.
      picture.line(at->x - 5, at->y, at->x + 5, at->y, yellow);
      picture.line(at->x, at->y - 5, at->x, at->y + 5, yellow);
      const std::string label =
          "[" + std::to_string(uvw[0]) + " " + std::to_string(uvw[1]) + " " + std::to_string(uvw[2]) + "]";
      // Poles are bright: a label has its shadow, or it could not be read there.
      for (const auto& [colour, shift] : {std::pair{black, 1.0}, {yellow, 0.0}}) {
        picture.set_fore_colour(colour);
        picture.move_to(at->x + 8 + shift, at->y + 2 + shift);
        picture.print(label);
      }
    }
  }
}

/// Where a line a x + b y + c = 0 of the view crosses its border; none where it misses it.
std::optional<std::array<Point, 2>> ends_on_border(double a, double b, double c) {
  std::vector<Point> ends;
  const auto add = [&ends](double x, double y) {
    const Point at{x, y};
    if (!View::inside(at)) return;
    if (ends.empty() || std::hypot(at.x - ends[0].x, at.y - ends[0].y) > 1) ends.push_back(at);
  };
  for (const double side : {0.0, view_size}) {
    if (b != 0) add(side, -(a * side + c) / b);
    if (a != 0) add(-(b * side + c) / a, side);
  }
  if (ends.size() < 2) return std::nullopt;
  return std::array{ends[0], ends[1]};
}

/// The straight line at an angle from the screen normal along an azimuth, in the coordinates of the view.
std::optional<std::array<Point, 2>> straight_line(const IndexResult& result, double azimuth_rad, double distance_rad) {
  const Projection projection{result.centre, static_cast<double>(result.size.width)};
  const double per_x = result.size.width / view_size;
  const double per_y = result.size.height / view_size;
  const double reach = std::tan(distance_rad) * projection.distance();
  const double cosine = std::cos(azimuth_rad);
  const double sine = std::sin(azimuth_rad);
  return ends_on_border(cosine * per_x, sine * per_y, -(cosine * projection.x0() + sine * projection.y0() + reach));
}

/// Whether a third band meets the two others in one point, nearly: the direction would be open to two answers.
bool in_one_zone(const std::vector<Vector3>& others, const Vector3& normal) {
  constexpr double least_sine = 0.17;  // 10 degrees
  return others.size() == 2 && std::abs(others[0].cross(others[1]).normalized().dot(normal)) < least_sine;
}

}  // namespace

void draw_solution(Pattern3Form& pattern, const IndexResult& result) {
  const auto* solution = result.solution();
  if (solution == nullptr) return;
  Canvas& picture = pattern.Picture1;
  const View view(result);
  picture.clear();
  for (const MatchedBand& match : solution->matches) {
    if (match.plane < 0) continue;
    const Reflector& plane = plane_of(*solution, match);
    const Vector3 normal = solution->found.crystal_from_picture.transpose() * plane.normal;
    const double bragg = solution->model->reflectors.families[static_cast<std::size_t>(plane.family)].bragg_rad;
    for (const double side : {-1.0, 1.0}) draw_edge(picture, view, normal, side * bragg, green);
  }
  draw_zone_axes(picture, view, *solution);
  picture.set_fore_colour(black);
}

void draw_band(Pattern3Form& pattern, const IndexResult& result, std::size_t band) {
  if (band >= result.bands.size()) return;
  const View view(result);
  const DetectedBand& marked = result.bands[band];
  for (const double side : {-1.0, 0.0, 1.0}) {
    draw_edge(pattern.Picture1, view, marked.normal(), side * marked.half_width_rad, red);
  }
}

bool take_lines(Pattern3Form& pattern, const IndexResult& result) {
  const auto* solution = result.solution();
  const bool two_edges = pattern.Check2.checked();
  std::vector<std::array<Point, 2>> lines;
  std::vector<Vector3> taken;
  for (std::size_t i = 0; i < result.bands.size() && lines.size() < (two_edges ? 6U : 3U); ++i) {
    const DetectedBand& band = result.bands[i];
    if (solution != nullptr && solution->matches[i].plane < 0) continue;
    if (in_one_zone(taken, band.normal())) continue;
    double half_width = band.half_width_rad;
    if (solution != nullptr) {
      const int family = plane_of(*solution, solution->matches[i]).family;
      half_width = solution->model->reflectors.families[static_cast<std::size_t>(family)].bragg_rad;
    }
    std::vector<std::array<Point, 2>> of_band;
    for (const double side : two_edges ? std::vector{-1.0, 1.0} : std::vector{0.0}) {
      const auto line = straight_line(result, band.azimuth_rad, band.distance_rad + side * half_width);
      if (line) of_band.push_back(*line);
    }
    if (of_band.size() != (two_edges ? 2U : 1U)) continue;
    lines.insert(lines.end(), of_band.begin(), of_band.end());
    taken.push_back(band.normal());
  }
  if (lines.size() < (two_edges ? 6U : 3U)) return false;
  pattern.Command2.click();
  int number = 0;
  for (const auto& line : lines) {
    for (int end = 0; end <= 1; ++end) {
      pattern.lines.LineX(number, end) = to_single(line[static_cast<std::size_t>(end)].x);
      pattern.lines.LineY(number, end) = to_single(line[static_cast<std::size_t>(end)].y);
    }
    pattern.lines.LineDone(number++) = 1;
  }
  pattern.Command3.click();
  return true;
}

void draw_simulated(AutoIndexForm& form, const PictureView& measured, Task& task) {
  const auto* solution = form.result.solution();
  if (solution == nullptr) {
    form.Simulated.remove_picture();
    return;
  }
  std::vector<float> simulated;
  const Projection projection{form.result.centre, static_cast<double>(measured.width)};
  draw_bands(*solution->model->sphere, solution->found.crystal_from_picture, projection, measured.width,
             measured.height, simulated, task);
  const GreyRange simulated_range(simulated, task);
  const GreyRange measured_range(measured.values, task);
  const PictureView drawn{simulated, measured.width, measured.height};
  const double share = form.Blend.value() / 100.0;
  form.Simulated.edit_picture([&](Surface& image) {
    image.fill(white);
    const int panels = form.Beside.on() ? 2 : 1;
    const double scale = std::min(static_cast<double>(image.width()) / panels / measured.width,
                                  static_cast<double>(image.height()) / measured.height);
    const int width = static_cast<int>(measured.width * scale);
    const int height = static_cast<int>(measured.height * scale);
    const int left = (image.width() - panels * width) / 2;
    for (int y = 0; y < height; ++y) {
      task.check();
      const int row = std::min(measured.height - 1, static_cast<int>(y / scale));
      for (int x = 0; x < width; ++x) {
        const int column = std::min(measured.width - 1, static_cast<int>(x / scale));
        const double ours = simulated_range.level(drawn.at(column, row));
        const double theirs = measured_range.level(measured.at(column, row));
        if (panels == 2) {
          image.set_pixel(left + x, y, GreyRange::grey(theirs));
          image.set_pixel(left + width + x, y, GreyRange::grey(ours));
        } else if (form.Over.on()) {
          image.set_pixel(left + x, y, GreyRange::grey(share * ours + (1 - share) * theirs));
        } else {
          image.set_pixel(left + x, y, GreyRange::grey(form.measured_in_front ? theirs : ours));
        }
      }
    }
  });
}

}  // namespace zol
