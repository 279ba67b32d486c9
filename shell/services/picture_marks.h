// What a picture shows beside its lines: the reflections that were drawn, what a place in it stands for, and what can
// be done in it by dragging. A view makes scales, labels and measurements of this; scripts and files know nothing of
// it.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/shared_vector.h"

namespace zol {

class CommandButton;
class TextBox;

/// Something drawn that has indices: a spot; a line through its place, where it goes along some direction; a ring
/// around the centre, where it has a radius. In user coordinates.
struct PictureMark {
  int h = 0, k = 0, l = 0;
  double x = 0, y = 0;              ///< of the spot; the foot of the line
  double along_x = 0, along_y = 0;  ///< of a line, of any length
  double radius = 0;                ///< of a ring
  double d = 0;                     ///< spacing, angstrom
  double intensity = 0;             ///< in the unit of its window
  int row = -1;                     ///< of the list beside the picture; -1: it stands in none
  bool operator==(const PictureMark&) const = default;
  [[nodiscard]] bool is_line() const { return along_x != 0 || along_y != 0; }
  /// Whether it is that of a reflection; a line or a ring is that of its opposite, too. Directions have no spacing.
  [[nodiscard]] bool is_of(const std::array<int, 3>& hkl) const {
    if (!(d > 0)) return false;
    if (hkl == std::array{h, k, l}) return true;
    return (is_line() || radius > 0) && hkl == std::array{-h, -k, -l};
  }
};
using PictureMarks = SharedVector<PictureMark>;

/// Where circles of an angle stand, in user coordinates: their centre, and how long their unit is along x and y.
struct CircleFrame {
  double x = 0, y = 0;
  double unit_x = 1, unit_y = 1;
};

/// What places stand for: points of a plane in reciprocal space, or directions.
struct PictureGeometry {
  double per_unit = 0;  ///< 1/angstrom of a user unit; 0: places are directions
  std::function<std::array<double, 3>(double x, double y)> direction = {};  ///< a unit vector
  std::function<double(double angle_deg)> circle = {};                      ///< radius of an angle around the centre
  std::function<CircleFrame()> circle_frame = {};                           ///< none: around the origin, in user units
  std::function<double()> wavelength = {};                                  ///< angstrom, 0 where there is none
};

/// Directions of places in the pictures that share a projection, as unit vectors; x right, y up, z towards the viewer.
/// Gnomonic: on a plane at unit distance.
[[nodiscard]] std::array<double, 3> direction_of_gnomonic(double x, double y);
/// Orthographic, or equidistant in the angle; beyond the unit circle that of the circle.
[[nodiscard]] std::array<double, 3> direction_of_map(double x, double y, bool equidistant);
[[nodiscard]] double map_circle(double angle_deg, bool equidistant);

/// Between two places. What is not known is 0.
struct PictureDistance {
  double d_star = 0;     ///< 1/angstrom
  double d = 0;          ///< angstrom
  double angle_deg = 0;  ///< between the directions; in a plane of reciprocal space as seen from its centre
};
/// Between directions the width of a band gives d* = 2 sin(angle / 2) / wavelength, Bragg's law.
[[nodiscard]] PictureDistance distance_between(const PictureGeometry& geometry, std::array<double, 2> from,
                                               std::array<double, 2> to);
/// "d* 0.3546 Å⁻¹   d 2.820 Å   angle 54.74°".
[[nodiscard]] std::string distance_text(const PictureDistance& distance);

/// "-1 0 2   d 2.820 Å   I 1234".
[[nodiscard]] std::string mark_text(const PictureMark& mark);

/// The longest of 1, 2 and 5 times a power of ten that does not exceed a length; 0 for one that is not above 0.
[[nodiscard]] double round_length(double most);

/// A family for each mark: those of one spacing (within 1e-5 of it) and one intensity (within 1e-3), numbered from 0 by
/// falling spacing.
[[nodiscard]] std::vector<int> families(const std::vector<PictureMark>& marks);

/// Half planes of place: distance of a place from what is drawn of a mark, in user units.
[[nodiscard]] double distance_from(const PictureMark& mark, double x, double y);
/// The nearest mark within a distance; of equally near ones the strongest. -1 where there is none.
[[nodiscard]] int mark_at(const std::vector<PictureMark>& marks, double x, double y, double within);

/// A label that wants room beside a point, in pixels.
struct LabelWish {
  double x = 0, y = 0;
  double width = 0, height = 0;
  double weight = 0;  ///< the heavier one comes first
};
struct LabelPlace {
  int wish = 0;
  double left = 0, top = 0;
};
/// Places of labels that touch neither each other nor the border of the room; those that find none are left out.
/// @param gap  between a point and its label
[[nodiscard]] std::vector<LabelPlace> place_labels(const std::vector<LabelWish>& wishes, double room_width,
                                                   double room_height, double gap);

/// What one step of a drag types and clicks, as the user would by hand.
struct DragStep {
  std::vector<std::pair<TextBox*, std::string>> typed = {};
  const CommandButton* clicked = nullptr;
};

/// A drag over a picture, by the controls of its window.
class PictureDrag {
 public:
  PictureDrag() = default;
  PictureDrag(const PictureDrag&) = delete;
  PictureDrag& operator=(const PictureDrag&) = delete;
  virtual ~PictureDrag() = default;
  /// At a place in user coordinates. @param turns  turns the picture, else tilts it
  virtual void begin(double x, double y, bool turns) = 0;
  /// The next step towards this place; none when there is no more to do.
  [[nodiscard]] virtual std::optional<DragStep> next(double x, double y) = 0;
};

/// Something to be done with a picture, offered in its menu.
struct PictureAction {
  std::string text;                ///< of the entry
  std::string operation;           ///< of the window
  std::function<bool()> possible;  ///< now
};

/// Buttons that turn a picture, the coarsest first, and the degrees of each.
struct TurnButton {
  const CommandButton* button = nullptr;
  double degrees = 0;  ///< anticlockwise
};
/// The button that brings a picture nearest to an angle without passing it by more than half of the finest step; none
/// when it is there.
/// @param left_deg  that it is still to be turned, anticlockwise
[[nodiscard]] const TurnButton* button_towards(const std::vector<TurnButton>& buttons, double left_deg);

}  // namespace zol
