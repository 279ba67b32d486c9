// What was drawn on a picture since its last clear, in user coordinates, and what the next drawing is done with: a
// plain value that can be copied, compared and put back.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <tuple>
#include <variant>
#include <vector>

#include "core/shared_vector.h"
#include "shell/services/controls.h"

namespace zol {

/// User coordinates: left and top lie at the picture's upper left corner; left may exceed right, top exceed bottom.
struct UserScale {
  double left = 0, top = 0, right = 1, bottom = 1;
  bool operator==(const UserScale&) const = default;
  [[nodiscard]] bool has_area() const { return left != right && top != bottom; }
};

struct DrawnLine {
  double x1, y1, x2, y2;
  Colour colour;
  bool operator==(const DrawnLine&) const = default;
};
struct DrawnCircle {
  double x, y, radius;
  Colour colour;
  std::optional<Colour> fill;
  bool operator==(const DrawnCircle&) const = default;
};
struct DrawnPoint {
  double x, y;
  Colour colour;
  bool operator==(const DrawnPoint&) const = default;
};
struct DrawnText {
  double x, y;
  Colour colour;
  std::string text;
  double font_size_pt;
  bool operator==(const DrawnText&) const = default;
};

/// One entry of the drawing list. A UserScale holds for all entries behind it.
struct Primitive {
  std::variant<UserScale, DrawnLine, DrawnCircle, DrawnPoint, DrawnText> what;
  bool stored = true;  ///< in the stored image, else on the overlay
  bool operator==(const Primitive&) const = default;
};

using DrawingList = std::deque<Primitive>;

/// What the next drawing is done with.
struct Pens {
  Colour fore = colours::black;
  Colour back = colours::white;  ///< of the picture
  Colour fill = colours::black;
  bool solid_fill = true;  ///< else transparent
  double font_size_pt = 8.25;
  bool persistent = true;  ///< what is drawn goes into the stored image, else onto the overlay
  bool operator==(const Pens&) const = default;
};

struct Drawing {
  Drawing() : Drawing(0, 0) {}
  Drawing(int width, int height);

  int width_twips, height_twips;  ///< 1440 twips are 96 pixels
  UserScale scale;                ///< in force now
  UserScale list_scale;           ///< in force at the head of the list
  double x = 0, y = 0;            ///< the drawing position
  Pens pens;
  SharedVector<Primitive, DrawingList> list;

  [[nodiscard]] int pixel_width() const;  ///< twips / 15, rounded half to even
  [[nodiscard]] int pixel_height() const;

  void clear();  ///< empties the list; the scale in force stays
  void set_scale(const UserScale& next);
  void move_to(double to_x, double to_y);
  void line(double x1, double y1, double x2, double y2, std::optional<Colour> colour);
  void circle(double at_x, double at_y, double radius, std::optional<Colour> colour);
  void set_point(double at_x, double at_y, std::optional<Colour> colour);
  void print(std::string text);
  void forget_stored();  ///< takes what the stored image holds off the list, but not its scales

  [[nodiscard]] bool holds_stored() const;
  /// The first scale of width or height 0 that something was drawn in, which then has no pixels.
  [[nodiscard]] std::optional<UserScale> scale_without_area() const;

  bool operator==(const Drawing&) const = default;
  static auto parts(auto& drawing) {
    return std::tie(drawing.width_twips, drawing.height_twips, drawing.scale, drawing.list_scale, drawing.x, drawing.y,
                    drawing.pens, drawing.list);
  }
};

}  // namespace zol
