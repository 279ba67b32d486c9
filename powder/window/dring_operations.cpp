#include <cmath>
#include <utility>

#include "powder/histogram.h"
#include "powder/line_profile.h"
#include "powder/window/curve_operations.h"
#include "powder/window/dring_form.h"
#include "powder/window/open_dring.h"
#include "reflections/window/main1_form.h"
#include "shell/services/guards.h"
#include "shell/services/place_text.h"

namespace zol {
namespace {

using namespace colours;

/// Shows the settings. Writing a box runs its change handler: the field is then what the text says.
void write_settings(DringForm& form) {
  form.Text2.set_text(plain_text(form.DStarMax));
  if (form.HalfWidth == 0) form.HalfWidth = 0.01F;
  form.Text3.set_text(plain_text(form.HalfWidth));
  form.Text6.set_text(plain_text(form.CellsP));
  form.Text7.set_text(plain_text(form.CellsQ));
  form.Text8.set_text(plain_text(form.CellsR));
}

void set_scales(DringForm& form) {
  const double end = form.DStarMax;
  form.Picture1.scale(0, 1.01, end, -0.01);
  const double start = form.Check2.checked() ? -end : 0.0;
  form.Picture2.scale(start, end, end, start);
  form.Picture2.set_back_colour(form.Check3.checked() ? white : black);
}

void draw(DringForm& form) {
  form.Picture1.move_to(0, relative_height(form.Profile(0), form.DisplayMax));
  for (int m = 1; m <= last_sample; ++m) {
    const Single d_star = d_star_at(form.DStarMax, m);
    form.Picture1.line_to(d_star, relative_height(form.Profile(m), form.DisplayMax));
    const int level = grey_level(form.Profile(m), form.DisplayMax, form.Check3.checked()).value();
    form.Picture2.circle(0, 0, d_star, RGB(level, level, level));
  }
  form.Picture2.set_point(0, 0, red);  // the beam
}

/// The reflection whose 1/d is nearest to that of a peak; of equally near ones the first. 0 where there is none.
int nearest_reflection(const CrystalState& state, double d_star) {
  int nearest = 0;
  double least = 0;
  for (int i = 1; i <= state.RefCount.value(); ++i) {
    const double away = std::abs(2 * double{state.RefS(i)} - d_star);
    if (nearest == 0 || away < least) {
      nearest = i;
      least = away;
    }
  }
  return nearest;
}

void mark_ring(DringForm& form, const CrystalState& state, int sample) {
  const double d_star = d_star_at(form.DStarMax, sample);
  PictureMark mark{
      .radius = d_star, .d = 1 / d_star, .intensity = form.Profile(sample), .row = form.List1.list_count() - 1};
  if (const int i = nearest_reflection(state, d_star); i > 0) {
    mark.h = state.RefH(i).value();
    mark.k = state.RefK(i).value();
    mark.l = state.RefL(i).value();
  }
  form.Picture2.mark(mark);
}

void list_peaks(DringForm& form, const CrystalState& state) {
  form.List1.clear();
  form.List1.add_item("d     I/Io");
  for (const int m : maxima(form.Profile, form.DisplayMax)) {
    form.List1.add_item(peak_line(ring_spacing(form.DStarMax, m), form.Profile(m), form.DisplayMax));
    mark_ring(form, state, m);
  }
}

}  // namespace

DringForm::DringForm(Workbench& bench)
    : Window(window_name, "DS-ring"),
      Picture1(*this, bench.services, "Picture1", 9000, 3600),
      Picture2(*this, bench.services, "Picture2", 8400, 8400),
      CommonDialog1(*this, bench.services, "CommonDialog1"),
      Curves(*this, bench.services, *this, Picture1, CurveControls::Source::Any,
             [](double d_star) { return std::optional(d_star); }) {
  Picture1.x_axis = Axis{"1/d", "Å⁻¹"};
  Picture1.y_axis = Axis{"I", "% of full height", 100};
  Picture1.describe_place = [](double x, double y) {
    return spacing_text(x) + value_text("   I", y * 100, "0.0", " %");
  };
  for (Canvas* picture : {&Picture1, &Picture2}) picture->hint = "CALC draws the diagram";
  Picture2.geometry = PictureGeometry{1};
  Picture2.rows = &List1;
  Picture2.describe_place = [](double x, double y) { return spacing_text(std::hypot(x, y)); };
  Picture2.set_solid_fill(false);
  fields().add("DStarMax", DStarMax);
  show_fields(fields());
  declare(bench);
  offer_curve();
}

void DringForm::offer_curve() {
  CurveOffer offer = Curves.offer();
  offer.second_axis = Axis{"d", "Å"};
  const auto inverse = [](double value) { return value > 0 ? std::optional(1 / value) : std::nullopt; };
  offer.second_at = inverse;
  offer.place_of_second = inverse;
  offer.peaks = &List1;
  offer.place_of_peak = [this, inverse](int line) -> std::optional<double> {
    const auto d = number_at_head(List1, line);
    return d ? inverse(*d) : std::nullopt;
  };
  Picture1.curve = std::make_shared<const CurveOffer>(std::move(offer));
}

void DringForm::declare(const Workbench& bench) {
  using namespace guard;
  const CrystalState& seen = bench.seen();
  const Reason unmade = [this, &seen] {
    return first_of({fault(seen), when(DStarMax == 0, "the end of the profile, d*-max, is 0")});
  };
  warn({&Command1, &Command6, &Command7}, unmade);
  const auto no_curve = [this] { return when(Profile.upper() < 0, "there is no curve yet: press \"CALC\" first"); };
  Command4.warn_when = no_curve;
  Picture1.warn_when = [this, no_curve] {
    return first_of({no_curve(), when(DisplayMax == 0, R"("Clear" has removed the curve: press "CALC" first)")});
  };
  Picture1.warn_at = [this](double x, double /*y*/) {
    const std::string off_curve = failure_of([&] { return Profile(nearest_ring_sample(DStarMax, to_single(x))); });
    return when(!off_curve.empty(), "the curve does not reach to this place");
  };
  const Origin made{{inputs::settings({}, {&Text2, &Text3, &Text6, &Text7, &Text8, &Check1, &Check2, &Check3})},
                    {&Command2, &Command1},
                    "Main1.List2"};
  Picture1.made_from = made;
  Picture2.made_from = made.without_button();
  List1.made_from = made.without_button();
  List1.table = peak_table({{"d", "Å"}});
  Picture1.remarks = [this, &bench] {
    auto words = PowderPattern::remarks(DStarMax, " Å⁻¹");
    const auto* main1 = dynamic_cast<const Main1Form*>(bench.windows.find(Main1Form::window_name));
    if (main1 != nullptr && main1->Option1.on()) words.emplace_back("the intensities are those of X-rays");
    return words;
  };
  reads = {shared::radiation, shared::smallest_d, shared::order};
}

void DRCalc(Workbench& bench) {
  const CrystalState& state = main1_state(bench);
  auto& form = bench.windows.use<DringForm>();
  write_settings(form);
  const Hourglass hourglass(form);
  form.allocate(state.Dmin, 10000);
  const auto grid = interference_grid(state, form.size());
  form.Label6.set_caption(grid_text(grid));
  WindowTask task(bench.services, form.ProgressBar1);
  const InterferenceTable table(grid, form.size(), task);

  form.ProgressBar1.set_range(0, to_single(state.RefCount.value()));
  form.Bins = fill_histogram(state, table, form.BinCount, form.Bins.upper(), task);
  form.ProgressBar1.set_range(0, last_sample);
  const auto bins = filled_bins(form.Bins, 1, form.BinCount, state.Dmin);
  auto profile = sum_gaussian_lines(bins, form.DStarMax, form.HalfWidth, task);
  if (form.Check1.checked()) profile = square_roots(std::move(profile));
  form.Profile = std::move(profile);

  if (form.DisplayMax == 0) form.DisplayMax = largest_sample(form.Profile);
  set_scales(form);
  form.Text5.set_text(Str(std::floor(form.DisplayMax)));  // a new text cuts DisplayMax and clears both pictures
  draw(form);
  list_peaks(form, state);
  curve_calculated(bench, form.Curves, {0, form.DStarMax, state.WaveLength, state.Dmin, {}, 1});
}

void open_dring(Workbench& bench) {
  const CrystalState& state = main1_state(bench);
  auto& form = bench.windows.use<DringForm>();
  form.show();
  form.DisplayMax = 0;
  form.DStarMax = to_single(divide(1.0, state.Dmin, "Dmin"));
  form.CellsP = form.CellsQ = form.CellsR = 10000;
  form.HalfWidth = 0.003F;
  DRCalc(bench);
  form.Picture1.set_mouse_pointer(MousePointer::CrossHair);
  form.Picture2.set_mouse_pointer(MousePointer::CrossHair);
}

}  // namespace zol
