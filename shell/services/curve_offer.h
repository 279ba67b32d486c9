// What a window offers to lay beside a curve that it draws. A view shows it, over or under the curve, where the user
// wants it; the picture itself, its files and its read-out know nothing of it.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "shell/services/canvas.h"

namespace zol {

/// A place in user coordinates of the picture.
struct CurvePoint {
  double x = 0, y = 0;
};

enum class CurveStroke { Solid, Dashed, Dots, Sticks };

/// Sticks stand on the base line.
struct CurveLayer {
  std::string name;  ///< for the legend
  std::vector<CurvePoint> points;
  Colour colour = colours::black;
  CurveStroke stroke = CurveStroke::Solid;
  bool below = false;  ///< in a strip of its own below the curve, around a line of zero
};

/// Where a reflection stands.
struct CurveTick {
  double x = 0;
  std::string label;
  double weight = 0;  ///< the label of the heavier one goes first where there is no room for both
};

namespace curve_colours {
inline constexpr Colour calculated = RGB(0x18, 0x22, 0x2C);
inline constexpr Colour measured = RGB(0x0E, 0x46, 0x9B);
inline constexpr Colour difference = RGB(0xA3, 0x4A, 0x00);
inline constexpr Colour ticks = RGB(0x5E, 0x66, 0x6E);
}  // namespace curve_colours

/// An entry of the menu of the curve; a click goes to the control.
struct CurveCommand {
  MenuItem* item = nullptr;
  std::function<bool()> checked = {};  ///< none: it has no check mark
  std::string hint;                    ///< the tool tip
};

/// A box, a button or a label of the bar below the curve, which shows while its first control is visible.
struct CurveTool {
  Control* control = nullptr;
  std::string hint;
  std::string unit = {};
};

struct CurveOffer {
  std::function<std::vector<CurveTick>()> reflections = {};
  std::function<std::vector<CurveLayer>()> layers = {};  ///< shown when they are there
  std::function<std::string()> radiation = {};           ///< one line
  // The second axis: its numbers at a place of the first, and the place of a number; none where there is none
  Axis second_axis = {};
  std::function<std::optional<double>(double x)> second_at = {};
  std::function<std::optional<double>(double value)> place_of_second = {};
  // The list of peaks
  ListBox* peaks = nullptr;
  std::function<std::optional<double>(int line)> place_of_peak = {};
  std::vector<CurveCommand> commands = {};
  std::vector<CurveTool> tools = {};
  std::function<bool()> changed = {};  ///< whether any of it has changed since it was asked last
};

}  // namespace zol
