#include "spots/window/picture_controls.h"

#include "core/number_text.h"
#include "reflections/window/main1_form.h"
#include "shell/services/guards.h"

namespace zol {
namespace {

/// Present value of a prompt.
template <class Number>
std::string bracketed(Number value) {
  return "[" + plain_text(value) + "]";
}

}  // namespace

void ask_font_size(Workbench& bench, Canvas& picture) {
  static constexpr Single largest_pt = 2160;
  const Single present = to_single(picture.font_size());
  const std::string answer = bench.services.ask_text(
      {bracketed(present) + " input fontsize", "Font Size", "Points, above 0 and up to 2160; 8 is usual.",
       [](const std::string& typed) {
         const auto points = strict_number(typed);
         return guard::when(!points || !(*points > 0 && *points <= largest_pt), "this is not a font size");
       }});
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
  const std::string answer = bench.services.ask_text(
      {bracketed(percent) + " Input Diffraction spot size (% of the picture width)", "Diffraction spot size",
       "Above 0; with more than 10 the spots cover one another.", [](const std::string& typed) {
         constexpr double largest = 100;
         if (Val(typed) == 0) return std::string("without a size above 0 the first one is taken");
         return guard::when(!(Val(typed) > 0 && Val(typed) <= largest), "no spot of this size shows");
       }});
  state.SpotScale = typed_number("the spot size", answer, [](double size) { return to_single(size / 100.0); });
}

void ask_rotation_pitch(Workbench& bench, Single& pitch) {
  const std::string answer =
      bench.services.ask_text({bracketed(pitch) + " Input Rotation Angle Minimum (deg.)", "Rotation Angle Pitch",
                               "Degrees; with 0 nothing turns.", [](const std::string& typed) {
                                 return guard::when(!typed.empty() && Val(typed) == 0, "with 0 degrees nothing turns");
                               }});
  if (!answer.empty()) pitch = typed_number("the rotation angle pitch", answer, to_single);
}

bool ask_image_size(Workbench& bench, Canvas& picture) {
  const std::string answer = bench.services.ask_text(
      {bracketed(picture.width()) + " Input size of image", "Image size",
       "Twips, 15 to a pixel, of both edges: 7500 gives 500 pixels. The largest is 122880, the least 15; 0 leaves it.",
       [](const std::string& typed) {
         constexpr double twips_per_pixel = 15;
         constexpr double largest = 8192 * twips_per_pixel;
         const double twips = Val(typed);
         if (twips == 0) return std::string();
         if (twips < twips_per_pixel) return std::string("a picture of this size has no pixels");
         return guard::when(twips > largest, "no picture of more than 8192 pixels can be made");
       }});
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
