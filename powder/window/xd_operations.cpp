#include "powder/window/xd_operations.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "core/site_remarks.h"
#include "powder/histogram.h"
#include "powder/window/curve_operations.h"
#include "powder/window/open_xd.h"
#include "reflections/window/main1_form.h"
#include "shell/services/guards.h"
#include "shell/services/place_text.h"

namespace zol {
namespace {

/// Shows the settings. Writing a box runs its change handler: the field is then what the text says.
void write_settings(XdForm& form) {
  form.Text1.set_text(plain_text(form.TwoThetaMin));
  if (form.TwoThetaMax == 0) form.TwoThetaMax = 60;
  form.Text2.set_text(plain_text(form.TwoThetaMax));
  if (form.HalfWidth == 0) form.HalfWidth = 0.1F;
  form.Text3.set_text(plain_text(form.HalfWidth));
  form.Text4.set_text(plain_text(form.GaussianRatio));
  form.Text6.set_text(plain_text(form.CellsP));
  form.Text7.set_text(plain_text(form.CellsQ));
  form.Text8.set_text(plain_text(form.CellsR));
}

constexpr double degrees = 180 / std::numbers::pi;

/// In degrees; none where the wavelength does not reach.
std::optional<double> two_theta_at(double wavelength, double d_star) {
  const double sine = wavelength * d_star / 2;
  if (!(sine > 0) || sine > 1) return std::nullopt;
  return 2 * std::asin(sine) * degrees;
}

void list_peaks(XdForm& form, Single wavelength) {
  form.List1.clear();
  form.List1.add_item("2-Theta   d     I/Io");
  for (const int m : maxima(form.Profile, form.PeakMax)) {
    const Single two_theta = form.range().at(m);
    form.List1.add_item(Format(two_theta, "##0.00") + "    " +
                        peak_line(spacing_at_two_theta(wavelength, two_theta), form.Profile(m), form.PeakMax));
  }
}

}  // namespace

XdForm::XdForm(Workbench& bench)
    : Window(window_name, "X-ray Powder Diffraction"),
      Picture1(*this, bench.services, "Picture1", 12000, 8400),
      CommonDialog1(*this, bench.services, "CommonDialog1"),
      Curves(*this, bench.services, *this, Picture1, CurveControls::Source::Tube,
             [this](double d_star) { return two_theta_at(Curves.data.with.wavelength, d_star); }) {
  Picture1.x_axis = Axis{"2θ", "°"};
  Picture1.y_axis = Axis{"I", "% of full height", 100};
  Picture1.hint = "CALC draws the diagram";
  Picture1.describe_place = [&bench](double x, double y) {
    std::string text = value_text("2θ", x, "0.00", "°");
    if (x > 0 && x < 180)
      text += value_text("   d", main1_state(bench).WaveLength / (2 * std::sin(x / 2 * degree)), "0.000", " Å");
    return text + value_text("   I", y * 100, "0.0", " %");
  };
  fields().add("TwoThetaMin", TwoThetaMin);
  fields().add("TwoThetaMax", TwoThetaMax);
  fields().add("GaussianRatio", GaussianRatio);
  fields().add("PeakMax", PeakMax);
  show_fields(fields());
  declare(bench);
  offer_curve();
}

void XdForm::offer_curve() {
  CurveOffer offer = Curves.offer();
  offer.second_axis = Axis{"d", "Å"};
  offer.second_at = [this](double two_theta) -> std::optional<double> {
    const double sine = std::sin(two_theta / 2 / degrees);
    if (!(sine > 0) || two_theta > 180) return std::nullopt;
    return Curves.data.with.wavelength / (2 * sine);
  };
  offer.place_of_second = [this](double d) { return two_theta_at(Curves.data.with.wavelength, 1 / d); };
  offer.peaks = &List1;
  offer.place_of_peak = [this](int line) { return number_at_head(List1, line); };
  Picture1.curve = std::make_shared<const CurveOffer>(std::move(offer));
}

void XdForm::declare(const Workbench& bench) {
  using namespace guard;
  const CrystalState& seen = bench.seen();
  Command1.warn_when = [this, &seen] {
    return first_of(
        {fault(seen), when(TwoThetaMax == TwoThetaMin && TwoThetaMax != 0, "2theta.min and 2theta.max are the same")});
  };
  const auto no_curve = [this] { return when(Profile.upper() < 0, "there is no curve yet: press \"CALC\" first"); };
  warn({&Command6, &Command7, &Command3}, no_curve);
  Text5.warn_when = [this, no_curve] {
    return first_of({no_curve(), when(Val(Text5.text()) == 0, "an intensity of 0 cannot be drawn at full height")});
  };
  Picture1.warn_when = [this, no_curve] {
    return first_of({no_curve(), when(PeakMax == 0, R"("Clear" has removed the curve: press "CALC" first)")});
  };
  Picture1.warn_at = [this](double x, double /*y*/) {
    const std::string off_curve = failure_of([&] { return Profile(range().nearest(to_single(x))); });
    return when(!off_curve.empty(), "the curve does not reach to this place");
  };
  const Origin made{{inputs::settings({}, {&Text1, &Text2, &Text3, &Text4, &Text6, &Text7, &Text8})},
                    {&Command2, &Command1},
                    "Main1.List2"};
  Picture1.made_from = made;
  List1.made_from = made.without_button();
  List1.table = peak_table({{"2theta", "°"}, {"d", "Å"}});
  Picture1.remarks = [this, &bench] {
    auto words = PowderPattern::remarks(double{TwoThetaMax} - double{TwoThetaMin}, "°");
    const auto* main1 = dynamic_cast<const Main1Form*>(bench.windows.find(Main1Form::window_name));
    if (main1 == nullptr) return words;
    if (main1->Option2.on()) words.emplace_back("the intensities are those of electrons");
    const std::string remark = wavelength_remark(main1->state, main1->Option1.on());
    if (!remark.empty()) words.push_back(remark);
    return words;
  };
  reads = {shared::radiation, shared::smallest_d, shared::order};
}

void xd::draw(XdForm& form, Single full_height, std::string_view name) {
  const TwoThetaRange range = form.range();
  form.Picture1.scale(range.minimum, 1.01, range.maximum, -0.01);
  form.Text5.set_text(Str(std::floor(full_height)));
  form.Picture1.move_to(range.minimum, relative_height(form.Profile(0), full_height, name));
  for (int m = 1; m <= last_sample; ++m) {
    form.Picture1.line_to(range.at(m), relative_height(form.Profile(m), full_height, name));
  }
}

void xd::redraw(XdForm& form) {
  form.Picture1.clear();
  draw(form, form.DisplayMax, display_max);
}

void XDCalc(Workbench& bench) {
  const CrystalState& state = main1_state(bench);
  auto& form = bench.windows.use<XdForm>();
  form.allocate(state.Dmin, 1000);
  const auto grid = interference_grid(state, form.size());
  form.Label12.set_caption(grid_text(grid));
  const Integer points = grid_points(grid);
  write_settings(form);

  const Hourglass hourglass(form);
  WindowTask task(bench.services, form.ProgressBar1);
  const InterferenceTable table(grid, form.size(), task);
  form.ProgressBar1.set_range(1, to_single(state.RefCount.value()));
  form.Bins = fill_histogram(state, table, form.BinCount, form.Bins.upper(), task);
  form.ProgressBar1.set_range(0, last_sample);
  const auto bins = filled_bins(form.Bins, 0, form.BinCount, state.Dmin);
  auto profile = sum_pseudo_voigt_lines(bins, state.WaveLength, form.range(), form.line(), task);
  form.Profile = divided_samples(std::move(profile), points);
  form.PeakMax = std::max(0.0F, largest_sample(form.Profile));
  form.DisplayMax = form.PeakMax;
  xd::draw(form, form.PeakMax, xd::peak_max);
  list_peaks(form, state.WaveLength);
  const TwoThetaRange range = form.range();
  curve_calculated(bench, form.Curves,
                   {range.minimum, range.maximum, state.WaveLength, state.Dmin, form.line(), points});
}

void open_xd(Workbench& bench) {
  const CrystalState& state = main1_state(bench);
  auto& form = bench.windows.use<XdForm>();
  form.show();
  form.TwoThetaMax = two_theta_limit(state.WaveLength, state.Dmin);
  form.TwoThetaMin = 0;
  form.HalfWidth = 0.2F;
  form.GaussianRatio = 50;
  form.CellsP = form.CellsQ = form.CellsR = 10000;
  form.PeakMax = 0;
  XDCalc(bench);
  form.Picture1.set_mouse_pointer(MousePointer::CrossHair);
}

}  // namespace zol
