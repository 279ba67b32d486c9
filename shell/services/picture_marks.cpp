#include "shell/services/picture_marks.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <numeric>

#include "core/number_text.h"
#include "shell/services/place_text.h"

namespace zol {
namespace {

constexpr double degrees_of_radian = 180 / std::numbers::pi;

double angle_between(const std::array<double, 3>& a, const std::array<double, 3>& b) {
  const std::array cross{a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
  return std::atan2(std::hypot(cross[0], cross[1], cross[2]), a[0] * b[0] + a[1] * b[1] + a[2] * b[2]) *
         degrees_of_radian;
}

bool nearly(double a, double b, double part) { return std::abs(a - b) <= part * std::max(std::abs(a), std::abs(b)); }

struct Box {
  double left, top, right, bottom;
  [[nodiscard]] bool touches(const Box& other) const {
    return left <= other.right && other.left <= right && top <= other.bottom && other.top <= bottom;
  }
};

/// Boxes that are taken, by cells of the room: a question looks at neighbours alone.
class TakenBoxes {
 public:
  TakenBoxes(double width, double height, double cell)
      : cell_(cell),
        columns_(static_cast<int>(width / cell) + 1),
        cells_(static_cast<std::size_t>(columns_) * (static_cast<std::size_t>(height / cell) + 1)) {}
  [[nodiscard]] bool is_free(const Box& box) const {
    bool free = true;
    visit(box, [&](std::size_t cell) {
      for (const Box& taken : cells_[cell]) free = free && !taken.touches(box);
    });
    return free;
  }
  void take(const Box& box) {
    visit(box, [&](std::size_t cell) { cells_[cell].push_back(box); });
  }

 private:
  void visit(const Box& box, const auto& what) const {
    for (int row = static_cast<int>(box.top / cell_); row <= static_cast<int>(box.bottom / cell_); ++row) {
      for (int column = static_cast<int>(box.left / cell_); column <= static_cast<int>(box.right / cell_); ++column) {
        what(static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) + static_cast<std::size_t>(column));
      }
    }
  }
  double cell_;
  int columns_;
  std::vector<std::vector<Box>> cells_;
};

}  // namespace

std::array<double, 3> direction_of_gnomonic(double x, double y) {
  const double size = std::hypot(x, y, 1.0);
  return {x / size, y / size, 1 / size};
}

std::array<double, 3> direction_of_map(double x, double y, bool equidistant) {
  const double radius = std::hypot(x, y);
  if (radius == 0) return {0, 0, 1};
  const double inside = std::min(radius, 1.0);
  const double angle = equidistant ? inside * std::numbers::pi / 2 : std::asin(inside);
  return {std::sin(angle) * x / radius, std::sin(angle) * y / radius, std::cos(angle)};
}

double map_circle(double angle_deg, bool equidistant) {
  constexpr double quarter = 90;
  return equidistant ? angle_deg / quarter : std::sin(angle_deg / degrees_of_radian);
}

PictureDistance distance_between(const PictureGeometry& geometry, std::array<double, 2> from,
                                 std::array<double, 2> to) {
  PictureDistance result;
  if (geometry.per_unit > 0) {
    result.d_star = geometry.per_unit * std::hypot(to[0] - from[0], to[1] - from[1]);
    result.angle_deg = angle_between({from[0], from[1], 0}, {to[0], to[1], 0});
  } else if (geometry.direction) {
    result.angle_deg = angle_between(geometry.direction(from[0], from[1]), geometry.direction(to[0], to[1]));
    const double wavelength = geometry.wavelength ? geometry.wavelength() : 0;
    if (wavelength > 0) result.d_star = 2 * std::sin(result.angle_deg / degrees_of_radian / 2) / wavelength;
  }
  if (result.d_star > 0) result.d = 1 / result.d_star;
  return result;
}

std::string distance_text(const PictureDistance& distance) {
  const std::string angle = value_text("angle", distance.angle_deg, "0.00", "°");
  return distance.d_star > 0 ? spacing_text(distance.d_star) + "   " + angle : angle;
}

std::string mark_text(const PictureMark& mark) {
  std::string text = plain_text(mark.h) + " " + plain_text(mark.k) + " " + plain_text(mark.l);
  if (mark.d > 0) text += value_text("   d", mark.d, "0.000", " Å");
  if (!(mark.intensity > 0)) return text;
  constexpr double small = 10;
  return text + value_text("   I", mark.intensity, mark.intensity < small ? "0.000" : "0", "");
}

double round_length(double most) {
  if (!(most > 0) || !std::isfinite(most)) return 0;
  const double power = std::pow(10.0, std::floor(std::log10(most)));
  double best = power;
  for (const double factor : {2.0, 5.0, 10.0}) {
    constexpr double rounding = 1e-12;
    if (factor * power <= most * (1 + rounding)) best = factor * power;
  }
  return best;
}

std::vector<int> families(const std::vector<PictureMark>& marks) {
  std::vector<std::size_t> order(marks.size());
  std::iota(order.begin(), order.end(), 0);
  std::sort(order.begin(), order.end(), [&marks](std::size_t a, std::size_t b) {
    return std::pair(-marks[a].d, marks[a].intensity) < std::pair(-marks[b].d, marks[b].intensity);
  });
  constexpr double same_d = 1e-5;
  constexpr double same_intensity = 1e-3;
  std::vector<int> result(marks.size());
  int count = 0;
  std::vector<std::size_t> heads;  // a mark of each family of one spacing
  for (const std::size_t i : order) {
    if (!heads.empty() && !nearly(marks[heads.front()].d, marks[i].d, same_d)) heads.clear();
    const auto head = std::find_if(heads.begin(), heads.end(), [&](std::size_t j) {
      return nearly(marks[j].intensity, marks[i].intensity, same_intensity);
    });
    if (head != heads.end()) {
      result[i] = result[*head];
      continue;
    }
    heads.push_back(i);
    result[i] = count++;
  }
  return result;
}

double distance_from(const PictureMark& mark, double x, double y) {
  if (mark.radius > 0) return std::abs(std::hypot(x, y) - mark.radius);
  const double dx = x - mark.x;
  const double dy = y - mark.y;
  if (!mark.is_line()) return std::hypot(dx, dy);
  return std::abs(dx * mark.along_y - dy * mark.along_x) / std::hypot(mark.along_x, mark.along_y);
}

int mark_at(const std::vector<PictureMark>& marks, double x, double y, double within) {
  int best = -1;
  double nearest = within;
  for (std::size_t i = 0; i < marks.size(); ++i) {
    const double distance = distance_from(marks[i], x, y);
    if (!(distance <= nearest)) continue;
    if (best >= 0 && distance == nearest && marks[i].intensity <= marks[static_cast<std::size_t>(best)].intensity)
      continue;
    best = static_cast<int>(i);
    nearest = distance;
  }
  return best;
}

std::vector<LabelPlace> place_labels(const std::vector<LabelWish>& wishes, double room_width, double room_height,
                                     double gap) {
  std::vector<int> order(wishes.size());
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(), [&wishes](int a, int b) {
    return wishes[static_cast<std::size_t>(a)].weight > wishes[static_cast<std::size_t>(b)].weight;
  });
  constexpr double cell = 32;
  TakenBoxes taken(std::max(room_width, 0.0), std::max(room_height, 0.0), cell);
  std::vector<LabelPlace> places;
  for (const int index : order) {
    const LabelWish& wish = wishes[static_cast<std::size_t>(index)];
    const double right = wish.x + gap;
    const double left = wish.x - gap - wish.width;
    const double above = wish.y - gap - wish.height;
    const double below = wish.y + gap;
    const double across = wish.x - wish.width / 2;
    const double beside = wish.y - wish.height / 2;
    for (const auto& [at_x, at_y] :
         {std::pair{right, above}, std::pair{left, above}, std::pair{right, below}, std::pair{left, below},
          std::pair{across, above}, std::pair{across, below}, std::pair{right, beside}, std::pair{left, beside}}) {
      const Box box{at_x, at_y, at_x + wish.width, at_y + wish.height};
      const bool inside = box.left >= 0 && box.top >= 0 && box.right <= room_width && box.bottom <= room_height;
      if (!inside || !taken.is_free(box)) continue;
      taken.take(box);
      places.push_back({index, at_x, at_y});
      break;
    }
  }
  return places;
}

const TurnButton* button_towards(const std::vector<TurnButton>& buttons, double left_deg) {
  double finest = std::numeric_limits<double>::infinity();
  for (const TurnButton& turn : buttons) finest = std::min(finest, std::abs(turn.degrees));
  const TurnButton* best = nullptr;
  for (const TurnButton& turn : buttons) {
    if (turn.degrees == 0 || (turn.degrees > 0) != (left_deg > 0)) continue;
    if (std::abs(turn.degrees) > std::abs(left_deg) + finest / 2) continue;
    if (best == nullptr || std::abs(turn.degrees) > std::abs(best->degrees)) best = &turn;
  }
  return best;
}

}  // namespace zol
