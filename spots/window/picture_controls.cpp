#include "spots/window/picture_controls.h"

#include "core/number_text.h"
#include "reflections/window/main1_form.h"

namespace zol {
namespace {

/// Present value of a prompt.
template <class Number>
std::string bracketed(Number value) {
  return "[" + plain_text(value) + "]";
}

}  // namespace

void ask_font_size(Workbench& bench, Canvas& picture) {
  constexpr Single largest_pt = 2160;
  const Single present = to_single(picture.font_size());
  const std::string answer = bench.services.prompt(bracketed(present) + " input fontsize", "Font Size");
  const auto points = strict_number(answer);
  if (!points) throw RunFailure("the font size is \"" + answer + "\", must be a number of points");
  if (!(*points > 0.0 && *points <= largest_pt)) {
    throw RunFailure("the font size is " + answer + " points, must be above 0 and at most " + plain_text(largest_pt));
  }
  picture.set_font_size(to_single(*points));
}

void ask_spot_size(Workbench& bench) {
  CrystalState& state = main1_state(bench);
  const Single percent = to_single(double{state.SpotScale} * 100.0);
  const std::string answer = bench.services.prompt(
      bracketed(percent) + " Input Diffraction spot size (% of the picture width)", "Diffraction spot size");
  state.SpotScale = typed_number("the spot size", answer, [](double size) { return to_single(size / 100.0); });
}

void ask_rotation_pitch(Workbench& bench, Single& pitch) {
  const std::string answer =
      bench.services.prompt(bracketed(pitch) + " Input Rotation Angle Minimum (deg.)", "Rotation Angle Pitch");
  if (!answer.empty()) pitch = typed_number("the rotation angle pitch", answer, to_single);
}

bool ask_image_size(Workbench& bench, Canvas& picture) {
  const std::string answer = bench.services.prompt(bracketed(picture.width()) + " Input size of image", "Image size");
  const Long twips = typed_number("the image size", answer, Long::rounded);
  if (twips == 0) return false;
  picture.set_width(twips.value());
  picture.set_height(twips.value());
  return true;
}

std::optional<double> exponent_in(const TextBox& box) {
  if (box.text().empty()) return std::nullopt;
  return Val(box.text());
}

}  // namespace zol
