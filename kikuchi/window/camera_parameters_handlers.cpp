#include <array>

#include "analysis/window/pattern3_form.h"
#include "core/camera_file.h"
#include "kikuchi/window/camera_parameters_form.h"
#include "shell/services/wiring.h"

namespace zol::camera_parameters {
namespace {

void fill_boxes(const Module1State& camera, CameraParametersForm& form) {
  // Writing a box sets its scalar from the text, so the texts are made first.
  const std::array texts{plain_text(camera.CamAcquisition), plain_text(camera.CamXShift),
                         plain_text(camera.CamYShift),      plain_text(camera.CamDetector),
                         plain_text(camera.CamXYRatio),     plain_text(camera.CamNormal)};
  const std::array boxes{&form.Text1, &form.Text2, &form.Text3, &form.Text5, &form.Text6, &form.Text7};
  for (std::size_t i = 0; i < boxes.size(); ++i) boxes[i]->set_text(texts[i]);
}

/// The dialog starts at the data root with the file in use.
std::string ask_file(Workbench& bench, CameraParametersForm& form, bool save) {
  form.CommonDialog1.set_initial_folder(bench.data.root);
  form.CommonDialog1.set_file_name(bench.state.CameraFile);
  return save ? form.CommonDialog1.save(FileKind::CameraParameters)
              : form.CommonDialog1.open(FileKind::CameraParameters);
}

void take(const TextBox& box, Single& scalar) { scalar = single_in(box); }

void Form_Load(Workbench& bench, CameraParametersForm& form) { fill_boxes(bench.state, form); }

void Text1_Change(Workbench& bench, CameraParametersForm& form) { take(form.Text1, bench.state.CamAcquisition); }
void Text2_Change(Workbench& bench, CameraParametersForm& form) { take(form.Text2, bench.state.CamXShift); }
void Text3_Change(Workbench& bench, CameraParametersForm& form) { take(form.Text3, bench.state.CamYShift); }
void Text5_Change(Workbench& bench, CameraParametersForm& form) { take(form.Text5, bench.state.CamDetector); }
void Text6_Change(Workbench& bench, CameraParametersForm& form) { take(form.Text6, bench.state.CamXYRatio); }
void Text7_Change(Workbench& bench, CameraParametersForm& form) { take(form.Text7, bench.state.CamNormal); }

void Command1_Click(Workbench& bench, CameraParametersForm& form) {
  const std::string path = ask_file(bench, form, false);
  if (path.empty()) return;
  bench.state.CameraFile = path;
  read_camera_file(path, bench.state);
  fill_boxes(bench.state, form);
  auto& pattern3 = bench.windows.use<Pattern3Form>();
  pattern3.Text3.set_text(form.Text1.text());
  pattern3.Text14.set_text(form.Text2.text());
  pattern3.Text15.set_text(form.Text3.text());
}

void Command2_Click(Workbench& bench, CameraParametersForm& form) {
  const std::string path = ask_file(bench, form, true);
  if (path.empty()) return;
  bench.state.CameraFile = path;
  write_camera_file(path, bench.state);
}

void Command3_Click(CameraParametersForm& form) { form.hide(); }

}  // namespace

}  // namespace zol::camera_parameters

namespace zol {

/// What the user does, and what answers it.
void wire(Workbench& bench, CameraParametersForm& form) {
  using namespace camera_parameters;
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);
  form.Text2.on_change = on(Text2_Change);
  form.Text3.on_change = on(Text3_Change);
  form.Text5.on_change = on(Text5_Change);
  form.Text6.on_change = on(Text6_Change);
  form.Text7.on_change = on(Text7_Change);
  form.Command1.on_click = on(Command1_Click);  // "Load"
  form.Command2.on_click = on(Command2_Click);  // "Save"
  form.Command3.on_click = on(Command3_Click);  // "Close"
  form.on_load = on(Form_Load);
}

template void add_window<CameraParametersForm>(Workbench&);

}  // namespace zol
