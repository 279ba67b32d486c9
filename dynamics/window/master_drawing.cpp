#include "dynamics/window/master_drawing.h"

#include <cmath>
#include <numbers>

#include "core/number_text.h"
#include "core/run_failure.h"

namespace zol {
namespace {

using namespace colours;
using Point = std::array<double, 2>;

constexpr double reach = 1.02;  // half width of the picture, a little beyond the sphere
constexpr Colour yellow = RGB(255, 220, 0);
constexpr Colour sky = RGB(70, 200, 255);

std::string indices_text(const std::array<int, 3>& indices) {
  return std::to_string(indices[0]) + ' ' + std::to_string(indices[1]) + ' ' + std::to_string(indices[2]);
}

void draw_greys(Canvas& picture, const MasterPattern& master, const SphereView& view, Task& task) {
  const std::vector<double> values = draw_sphere(master, view, picture.pixel_width(), reach, task);
  picture.edit_picture([&](Surface& image) {
    image.fill(white);
    auto value = values.begin();
    for (int y = 0; y < image.height(); ++y) {
      task.check();
      for (int x = 0; x < image.width(); ++x, ++value) {
        if (*value < 0) continue;
        const int level = static_cast<int>(std::lround(*value * 255));
        image.set_pixel(x, y, RGB(level, level, level));
      }
    }
  });
}

/// The plane's trace in steps, where it is seen.
std::vector<Point> trace_of(const SphereView& view, const Vector3& normal) {
  const Vector3 across =
      normal.cross(std::abs(normal[2]) < 0.9 ? Vector3(Vector3::UnitZ()) : Vector3(Vector3::UnitX())).normalized();
  const Vector3 along = normal.cross(across);
  constexpr int steps = 240;
  std::vector<Point> points;
  for (int i = 0; i < steps; ++i) {
    const double turn = 2 * std::numbers::pi * i / steps;
    if (const auto at = view.place(std::cos(turn) * across + std::sin(turn) * along)) points.push_back(*at);
  }
  return points;
}

/// Labels and what they name, put into the picture where there is room.
class Names {
 public:
  explicit Names(Canvas& picture) : picture_(picture), per_pixel_(2 * reach / picture.pixel_width()) {}

  void add_axes(const SphereView& view, const std::vector<NamedAxis>& axes) {
    double rank = 2.0 * static_cast<double>(axes.size());  // before all bands
    for (const NamedAxis& axis : axes) {
      if (const auto at = view.place(axis.direction)) {
        add({*at, '[' + indices_text(axis.uvw) + ']', yellow, true}, rank);
      }
      rank -= 1;
    }
  }
  /// Where they stand farthest from what is named already.
  void add_bands(const SphereView& view, const std::vector<NamedBand>& bands) {
    double rank = 0;
    for (const NamedBand& band : bands) {
      const auto trace = trace_of(view, band.normal);
      draw_trace(trace);
      const Point* best = nullptr;
      double farthest = 0.02;  // nothing stands on the edge
      for (const Point& at : trace) {
        const double room = room_around(view, at);
        if (room <= farthest) continue;
        farthest = room;
        best = &at;
      }
      if (best != nullptr) add({*best, '(' + indices_text(band.hkl) + ')', sky, false}, rank);
      rank -= 1;
    }
  }
  void draw() {
    const double width = picture_.pixel_width();
    for (const LabelPlace& place : place_labels(wishes_, width, width, 5)) {
      const Name& name = names_[static_cast<std::size_t>(place.wish)];
      if (name.ringed) draw_ring(name);
      print(user(place.left, place.top), name);
    }
    picture_.set_fore_colour(black);
  }

 private:
  struct Name {
    Point at;  ///< user coordinates
    std::string text;
    Colour colour;
    bool ringed;
  };
  void add(Name name, double weight) {
    constexpr double letter = 5.6;  // mean width in pixels at the usual size
    constexpr double height = 14;
    wishes_.push_back({(name.at[0] + reach) / per_pixel_, (reach - name.at[1]) / per_pixel_,
                       letter * static_cast<double>(name.text.size()), height, weight});
    names_.push_back(std::move(name));
  }
  [[nodiscard]] Point user(double x, double y) const { return {x * per_pixel_ - reach, reach - y * per_pixel_}; }
  /// From all that is named, and from the edge.
  [[nodiscard]] double room_around(const SphereView& view, const Point& at) const {
    const bool square = view.projection == SphereProjection::Lambert;
    double room = 1 - (square ? std::max(std::abs(at[0]), std::abs(at[1])) : std::hypot(at[0], at[1]));
    for (const Name& name : names_) room = std::min(room, std::hypot(at[0] - name.at[0], at[1] - name.at[1]));
    return room;
  }
  /// Dashes, so that the band is seen below.
  void draw_trace(const std::vector<Point>& trace) {
    constexpr double jump = 0.2;  // to the other end
    for (std::size_t i = 0; i + 1 < trace.size(); ++i) {
      const auto& [x, y] = trace[i];
      const auto& [next_x, next_y] = trace[i + 1];
      if (i % 6 < 2 && std::hypot(next_x - x, next_y - y) < jump) picture_.line(x, y, next_x, next_y, sky);
    }
  }
  /// Poles are bright: what is light has a dark shadow there.
  void draw_ring(const Name& name) {
    constexpr double radius = 3;
    picture_.set_solid_fill(false);
    picture_.circle(name.at[0], name.at[1], (radius + 1) * per_pixel_, black);
    picture_.circle(name.at[0], name.at[1], radius * per_pixel_, name.colour);
    picture_.set_solid_fill(true);
  }
  /// In a dark outline.
  void print(const Point& at, const Name& name) {
    picture_.set_fore_colour(black);
    for (const double across : {-per_pixel_, per_pixel_}) {
      for (const double upward : {-per_pixel_, per_pixel_}) {
        picture_.move_to(at[0] + across, at[1] + upward);
        picture_.print(name.text);
      }
    }
    picture_.set_fore_colour(name.colour);
    picture_.move_to(at[0], at[1]);
    picture_.print(name.text);
  }

  Canvas& picture_;
  double per_pixel_;
  std::vector<LabelWish> wishes_;
  std::vector<Name> names_;
};

DrawnMaster wanted_of(const MasterPatternForm& form, const ShownMaster& shown) {
  DrawnMaster wanted;
  wanted.key = shown.key;
  wanted.south = form.South.on();
  if (form.Lambert.on()) wanted.projection = SphereProjection::Lambert;
  if (!form.Globe.on()) return wanted;
  wanted.projection = SphereProjection::Globe;
  wanted.middle = {Val(form.MiddleU.text()), Val(form.MiddleV.text()), Val(form.MiddleW.text())};
  wanted.turn_deg = Val(form.TurnAngle.text());
  return wanted;
}

SphereView view_of(const DrawnMaster& drawn, const CellConstants& cell) {
  return {drawn.projection, drawn.south, globe_about(direction_of(Lattice(cell), drawn.middle), drawn.turn_deg)};
}

}  // namespace

SphereView drawn_view(const MasterPatternForm& form, const ShownMaster& shown) {
  return view_of(form.drawn, shown.master.cell);
}

void draw_master(MasterPatternForm& form, const ShownMaster& shown, Task& task) {
  const DrawnMaster wanted = wanted_of(form, shown);
  const SphereView view = view_of(wanted, shown.master.cell);
  Canvas& picture = form.Picture;
  picture.clear();
  picture.scale(-reach, reach, reach, -reach);
  draw_greys(picture, shown.master, view, task);
  Names names(picture);
  if (form.ZoneAxes.checked()) names.add_axes(view, shown.axes);
  if (form.Bands.checked()) names.add_bands(view, shown.bands);
  names.draw();
  form.drawn = wanted;
}

std::string component_text(double component) {
  constexpr double steps = 1000;
  return Format(std::round(component * steps) / steps + 0.0, "0.000");
}

std::string place_text(const MasterPatternForm& form, double x, double y) {
  const auto shown = drawn_master(form);
  if (!shown) return "";
  const SphereView view = drawn_view(form, *shown);
  const auto direction = view.direction(x, y);
  if (!direction) return "beyond the half sphere";
  std::string text;
  for (const double part : components_of(Lattice(shown->master.cell), *direction)) {
    text += (text.empty() ? '[' : ' ') + component_text(part);
  }
  const NamedAxis& axis = nearest_axis(shown->known_axes, *direction);
  return text + "]   " + Format(angle_between_deg(axis.direction, *direction), "0.0") + "° from [" +
         indices_text(axis.uvw) + "]   " + Format(angle_between_deg(view.middle(), *direction), "0.0") +
         "° from the middle";
}

}  // namespace zol
