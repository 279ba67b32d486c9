#include "dynamics/window/master_pattern_form.h"

namespace zol {
namespace {

constexpr int sphere_twips = 15 * 600;

}  // namespace

MasterPatternForm::MasterPatternForm(Workbench& bench)
    : Window(window_name, "MASTER PATTERN"),
      Picture(*this, bench.services, "Picture", sphere_twips, sphere_twips),
      CommonDialog1(*this, bench.services, "CommonDialog1") {
  fields().keep("drawn", drawn);
  Depth.set_text("8");
  Points.set_text("401");
  for (TextBox* box : {&MiddleU, &MiddleV, &TurnAngle}) box->set_text("0");
  MiddleW.set_text("1");
  Stereographic.set_on(true);
  North.set_on(true);
  ZoneAxes.set_value(1);
  Picture.hint = "Make computes the pattern of the crystal";
  Picture.made_from = Origin{{inputs::crystal(), inputs::settings({}, {&Voltage, &Depth, &Points})}, {&Make}};
}

}  // namespace zol
