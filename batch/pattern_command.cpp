#include "batch/pattern_command.h"

#include <memory>
#include <optional>

#include "batch/figure.h"
#include "batch/number_check.h"
#include "batch/output_guard.h"
#include "batch/set_number.h"
#include "batch/words.h"
#include "core/number_text.h"
#include "kikuchi/window/pattern2_form.h"
#include "kikuchi/window/zaxis_form.h"
#include "reflections/window/main1_form.h"
#include "spots/window/fiber_texture_form.h"
#include "spots/window/pattern_form.h"

namespace zol {
namespace {

struct PatternWords {
  std::string file, axis, kind, output, radiation;
  std::optional<double> dmin, area, dispersion;
  std::optional<int> bands;
  double scale = 1;
  bool index = false, roots = false;
};

constexpr double usual_dispersion_deg = 5;

void set_axis(const std::array<double, 3>& axis, std::initializer_list<TextBox*> boxes) {
  std::size_t i = 0;
  for (TextBox* box : boxes) box->set_text(plain_text(to_single(axis[i++])));
}

Canvas& draw_spots(BatchProgram& program, const PatternWords& words, const std::array<double, 3>& axis) {
  if (program.state().NAtom < 1) throw RunFailure("a spot pattern needs atoms, the file holds observed lines");
  program.window<Main1Form>().Command9.click();
  auto& form = program.window<PatternForm>();
  set_axis(axis, {&form.Text3, &form.Text4, &form.Text5});
  set_number(form.Text1, words.area);
  form.Option1.set_on(!words.roots);
  form.Option2.set_on(words.roots);
  form.Check3.set_value(words.index ? 1 : 0);
  BatchProgram::click(form.Command8);
  return form.Picture1;
}

Canvas& draw_fiber(BatchProgram& program, const PatternWords& words, const std::array<double, 3>& axis) {
  program.window<Main1Form>().Command12.click();
  auto& form = program.window<FiberTextureForm>();
  set_axis(axis, {&form.Text3, &form.Text4, &form.Text5});
  const double whole_list = 1 / double{program.state().Dmin};
  set_number(form.Text1, words.area.value_or(whole_list));
  set_number(form.Text2, words.dispersion.value_or(usual_dispersion_deg));
  BatchProgram::click(form.Command8);
  return form.Picture1;
}

Pattern2Form& draw_kikuchi(BatchProgram& program, const PatternWords& words, const std::array<double, 3>& axis) {
  program.window<Main1Form>().Command10.click();
  auto& form = program.window<Pattern2Form>();
  set_axis(axis, {&form.Text3, &form.Text4, &form.Text5});
  set_number(form.Text1, words.area);
  if (words.bands) form.Text19.set_text(std::to_string(*words.bands));
  form.Option1.set_on(!words.roots);
  form.Option2.set_on(words.roots);
  BatchProgram::click(form.Command8);
  return form;
}

Canvas& draw(BatchProgram& program, const PatternWords& words, const std::array<double, 3>& axis) {
  if (words.kind == "spots") return draw_spots(program, words, axis);
  if (words.kind == "fiber") return draw_fiber(program, words, axis);
  Pattern2Form& form = draw_kikuchi(program, words, axis);
  if (words.kind == "map") {
    form.Check2.click();
    BatchProgram::click(form.Command8);
    return program.window<ZaxisForm>().Picture1;
  }
  if (words.kind == "picture") {
    form.Picture1.clear();
    form.BandsAsPicture.click();
  }
  return form.Picture1;
}

void run(const PatternWords& words) {
  check_figure_path("-o", words.output);
  check_output(words.output, {words.file});
  const auto axis = numbers_of<3>("--axis", words.axis);
  if (axis == std::array<double, 3>{}) throw CLI::ValidationError("--axis", "0,0,0 is not a direction");
  BatchProgram program;
  const bool spots = words.kind == "spots" || words.kind == "fiber";
  program.choose_radiation(!words.radiation.empty() ? words.radiation : spots ? "200kV" : "20kV");
  if (words.dmin) program.set_dmin(*words.dmin);
  program.load(words.file);
  BatchProgram::naming(words.file, [&] {
    Canvas& picture = draw(program, words, axis);
    write_picture(program, picture, words.output, words.scale);
  });
}

}  // namespace

void add_pattern_command(CLI::App& app) {
  const auto words = std::make_shared<PatternWords>();
  CLI::App* pattern = app.add_subcommand("pattern", "a diffraction pattern of a crystal along an axis");
  pattern->footer("Example:\n  zol-batch pattern silicon.cif --axis 1,1,2 --kind kikuchi -o silicon.svg");
  pattern->add_option("FILE", words->file, "structure file or crystal")->required();
  pattern
      ->add_option("--axis", words->axis,
                   "U,V,W of the zone axis in the middle; of a fiber H,K,L of the plane across it")
      ->required();
  pattern->add_option("--kind", words->kind, "spots, kikuchi, fiber, map (of zone axes), picture (grey, of bands)")
      ->required()
      ->check(CLI::IsMember({"spots", "kikuchi", "fiber", "map", "picture"}));
  pattern->add_option("-o,--output", words->output, "figure: .svg, .pdf, .png, .bmp")->required();
  pattern->add_option("--radiation", words->radiation,
                      "electrons: 5kV, 10kV, ... 1250kV; default: 20kV, of spots and fiber 200kV");
  pattern->add_option("--dmin", words->dmin, "smallest spacing, angstroms; default: 1")->check(spacing());
  pattern
      ->add_option("--area", words->area,
                   "half the width: degrees, of spots and fiber inverse angstroms; default: the window's")
      ->check(number_from(1e-3, 100));
  pattern->add_option("--bands", words->bands, "reflections of a Kikuchi pattern")->check(whole_from(1, 32767));
  pattern->add_option("--dispersion", words->dispersion, "of a fiber, degrees; default: 5")->check(number_from(0, 90));
  pattern->add_option("--scale", words->scale, "pixels of .png and .bmp per pixel of the window")
      ->check(number_from(0.1, 20))
      ->capture_default_str();
  pattern->add_flag("--index", words->index, "indices beside the spots");
  pattern->add_flag("--roots", words->roots, "square roots of the intensities, for weak ones");
  pattern->callback([words] { run(*words); });
}

}  // namespace zol
