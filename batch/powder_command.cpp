#include "batch/powder_command.h"

#include <cmath>
#include <memory>
#include <optional>

#include "batch/batch_progress.h"
#include "batch/figure.h"
#include "batch/number_check.h"
#include "batch/output_guard.h"
#include "batch/set_number.h"
#include "core/number_text.h"
#include "powder/histogram.h"
#include "powder/window/dring_form.h"
#include "powder/window/open_dring.h"
#include "powder/window/open_xd.h"
#include "powder/window/xd_form.h"
#include "reflections/window/main1_form.h"

namespace zol {
namespace {

struct PowderWords {
  std::vector<std::string> files;
  std::string output, radiation;
  double dmin = 1, scale = 1;
  std::optional<double> from, to, step, width, gauss, cells;
  bool index = false;
  // of rings alone
  std::string draw;
  bool roots = false, centred = false, inverse = false;
};

void set_cells(const std::optional<double>& cells, std::initializer_list<TextBox*> boxes) {
  for (TextBox* box : boxes) set_number(*box, cells);
}

bool of_numbers(const std::string& path) { return path.ends_with(".xy"); }

std::string number_text(double number) { return short_text(number, 6); }

/// Samples at other places than those of the window: runs of 1001 as it makes them, one behind the other.
class SteppedSamples {
 public:
  SteppedSamples(const CrystalState& state, const XdForm& form, double step)
      : state_(state),
        form_(form),
        points_(grid_points(interference_grid(state, form.size()))),
        bins_(filled_bins(form.Bins, 0, form.BinCount, state.Dmin)),
        step_(step) {}

  void append(std::vector<Single>& places, std::vector<Single>& values) const {
    BatchTask task;
    const double from = form_.TwoThetaMin;
    constexpr double rounding = 1e-6;
    const auto count = static_cast<long>(std::floor((form_.TwoThetaMax - from) / step_ + rounding)) + 1;
    for (long first = 0; first < count; first += last_sample) {
      const double begin = from + static_cast<double>(first) * step_;
      const TwoThetaRange range{to_single(begin), to_single(begin + last_sample * step_)};
      const auto profile =
          divided_samples(sum_pseudo_voigt_lines(bins_, state_.WaveLength, range, form_.line(), task), points_);
      for (int m = 0; m < last_sample && first + m < count; ++m) {
        places.push_back(range.at(m));
        values.push_back(profile(m));
      }
    }
  }

 private:
  const CrystalState& state_;
  const XdForm& form_;
  Integer points_;
  std::vector<FilledBin> bins_;
  double step_;
};

/// A file of numbers or a figure, of all crystals.
class Diagram {
 public:
  explicit Diagram(const PowderWords& words) : words_(words) {}

  void begin_numbers(std::string place, std::vector<std::array<std::string, 2>> head) {
    columns_.place = std::move(place);
    columns_.head = std::move(head);
    columns_.places.clear();
  }
  std::vector<Single>& places() { return columns_.places; }
  std::vector<Single>& values(const std::string& file) {
    columns_.names.push_back(title_of(file));
    return columns_.values.emplace_back();
  }
  void add_curve(const Canvas& canvas, const std::string& file) {
    curves_.push_back(drawn_curve(canvas, title_of(file)));
  }
  void write(Canvas& canvas) const {
    if (of_numbers(words_.output)) return write_columns(columns_, words_.output);
    write_curves(canvas, curves_, {words_.output, words_.scale, words_.index});
  }

 private:
  const PowderWords& words_;
  NumberColumns columns_;
  std::vector<NamedCurve> curves_;
};

void check_index(const PowderWords& words) {
  if (!words.index) return;
  if (words.files.size() > 1) throw CLI::ValidationError("--index", "only peaks of one crystal can have indices");
  if (of_numbers(words.output))
    throw CLI::ValidationError("--index", "numbers have no indices: the file of -o must be a figure");
}

void calculate_powder(BatchProgram& program, const PowderWords& words) {
  auto& form = program.window<XdForm>();
  open_xd(program.bench());
  set_number(form.Text1, words.from);
  set_number(form.Text2, words.to);
  set_number(form.Text3, words.width);
  set_number(form.Text4, words.gauss);
  set_cells(words.cells, {&form.Text6, &form.Text7, &form.Text8});
  form.Command2.click();
  BatchProgram::click(form.Command1);
}

void run_powder(const PowderWords& words) {
  check_figure_path("-o", words.output, true);
  check_output(words.output, words.files);
  check_index(words);
  BatchProgram program;
  program.choose_radiation(words.radiation);
  program.set_dmin(words.dmin);
  auto& form = program.window<XdForm>();
  Diagram diagram(words);
  BatchProgress progress("crystals");
  for (std::size_t i = 0; i < words.files.size(); ++i) {
    const std::string& file = words.files[i];
    progress.show(i, words.files.size());
    program.load(file);
    BatchProgram::naming(file, [&] { calculate_powder(program, words); });
    const CrystalState& state = program.state();
    if (!of_numbers(words.output)) {
      diagram.add_curve(form.Picture1, file);
      continue;
    }
    diagram.begin_numbers("2theta", {{"radiation", words.radiation},
                                     {"wavelength", number_text(state.WaveLength)},
                                     {"dmin", number_text(state.Dmin)},
                                     {"half_width", number_text(form.HalfWidth)},
                                     {"gaussian_percent", number_text(form.GaussianRatio)},
                                     {"cells", number_text(form.CellsP)}});
    auto& values = diagram.values(file);
    if (words.step) {
      SteppedSamples(state, form, *words.step).append(diagram.places(), values);
    } else {
      for (int m = 0; m <= last_sample; ++m) {
        diagram.places().push_back(form.range().at(m));
        values.push_back(form.Profile(m));
      }
    }
  }
  diagram.write(form.Picture1);
}

void calculate_rings(BatchProgram& program, const PowderWords& words) {
  auto& form = program.window<DringForm>();
  open_dring(program.bench());
  for (const auto& [box, wanted] :
       {std::pair(&form.Check1, words.roots), {&form.Check2, words.centred}, {&form.Check3, words.inverse}}) {
    if (box->checked() != wanted) box->click();
  }
  set_number(form.Text2, words.to);
  set_number(form.Text3, words.width);
  set_cells(words.cells, {&form.Text6, &form.Text7, &form.Text8});
  form.Command2.click();
  BatchProgram::click(form.Command1);
}

void run_rings(PowderWords words) {
  check_figure_path("-o", words.output, true);
  check_output(words.output, words.files);
  check_index(words);
  if (words.draw.empty()) words.draw = words.files.size() > 1 || of_numbers(words.output) ? "profile" : "rings";
  if (words.draw == "rings" && words.index) throw CLI::ValidationError("--index", "needs --draw profile");
  if (words.draw == "rings" && words.files.size() > 1) {
    throw CLI::ValidationError("--draw", "rings are drawn of one crystal; several have their profiles in one diagram");
  }
  BatchProgram program;
  program.choose_radiation(words.radiation);
  program.set_dmin(words.dmin);
  auto& form = program.window<DringForm>();
  Diagram diagram(words);
  BatchProgress progress("crystals");
  for (std::size_t i = 0; i < words.files.size(); ++i) {
    const std::string& file = words.files[i];
    progress.show(i, words.files.size());
    program.load(file);
    BatchProgram::naming(file, [&] { calculate_rings(program, words); });
    diagram.add_curve(form.Picture1, file);
    diagram.begin_numbers("1/d", {{"radiation", words.radiation},
                                  {"dmin", number_text(program.state().Dmin)},
                                  {"half_width", number_text(form.HalfWidth)},
                                  {"cells", number_text(form.CellsP)}});
    auto& values = diagram.values(file);
    for (int m = 0; m <= last_sample; ++m) {
      diagram.places().push_back(d_star_at(form.DStarMax, m));
      values.push_back(form.Profile(m));
    }
  }
  if (words.draw == "rings") return write_picture(program, form.Picture2, words.output, words.scale);
  diagram.write(form.Picture1);
}

/// What both have.
void add_words(CLI::App& command, PowderWords& words) {
  command.add_option("FILE", words.files, "structure files or crystals; several go into one diagram")->required();
  command.add_option("-o,--output", words.output, "result: .xy (numbers), .svg, .pdf, .png, .bmp")->required();
  command.add_option("--radiation", words.radiation, "CuKa, MoKa, or electrons: 5kV, 10kV, ... 1250kV")
      ->capture_default_str();
  command.add_option("--dmin", words.dmin, "smallest spacing, angstroms")->check(spacing())->capture_default_str();
  command.add_option("--cells", words.cells, "size of the crystallites in cells along each axis; default: 10000")
      ->check(number_from(1, 1e6));
  command.add_flag("--index", words.index, "h k l at the peaks of a figure of one crystal");
  command.add_option("--scale", words.scale, "pixels of .png and .bmp per pixel of the window")
      ->check(number_from(0.1, 20))
      ->capture_default_str();
}

}  // namespace

void add_powder_command(CLI::App& app) {
  const auto words = std::make_shared<PowderWords>();
  words->radiation = "CuKa";
  CLI::App* powder = app.add_subcommand("powder", "the X-ray powder diagram of one or more crystals");
  powder->footer("Example:\n  zol-batch powder quartz.cif calcite.cif --from 15 --to 70 -o mixture.svg");
  add_words(*powder, *words);
  powder->add_option("--from", words->from, "2-theta, degrees; default: 0")->check(number_from(0, 180));
  powder->add_option("--to", words->to, "2-theta, degrees; default: that of --dmin")->check(number_from(0, 180));
  powder->add_option("--step", words->step, "between numbers of .xy, degrees; default: a thousandth of the range")
      ->check(number_from(1e-4, 10));
  powder->add_option("--width", words->width, "full width at half maximum, degrees; default: 0.2")
      ->check(number_from(1e-4, 20));
  powder->add_option("--gauss", words->gauss, "Gaussian share of a line, per cent; default: 50")
      ->check(number_from(0, 100));
  powder->callback([words] { run_powder(*words); });
}

void add_rings_command(CLI::App& app) {
  const auto words = std::make_shared<PowderWords>();
  words->radiation = "200kV";
  CLI::App* rings = app.add_subcommand("rings", "the Debye rings of electrons, or their profile");
  rings->footer("Example:\n  zol-batch rings gold.cif --radiation 200kV --centred -o rings.png");
  add_words(*rings, *words);
  rings->add_option("--draw", words->draw, "rings or profile; default: rings, of several crystals the profile")
      ->check(CLI::IsMember({"rings", "profile"}));
  rings->add_option("--to", words->to, "end of 1/d, inverse angstroms; default: that of --dmin")
      ->check(number_from(1e-3, 100));
  rings->add_option("--width", words->width, "full width at half maximum, inverse angstroms; default: 0.003")
      ->check(number_from(1e-5, 1));
  rings->add_flag("--roots", words->roots, "square roots of the intensities");
  rings->add_flag("--centred", words->centred, "the beam in the middle of the picture");
  rings->add_flag("--inverse", words->inverse, "dark rings on white");
  rings->callback([words] { run_rings(*words); });
}

}  // namespace zol
