#include "kikuchi/window/kikuchi_operations.h"
#include "kikuchi/window/pattern2_form.h"
#include "reflections/window/main1_form.h"
#include "spots/zone_calculation.h"

namespace zol {
namespace {

/// From the angles on: takes the rotation of the pattern off the azimuth, leaves axis and reference in the state.
void find_axis(CrystalState& state, Pattern2Form& form) {
  const auto axis = zone_axis_of(orientation(state), {state.TiltTheta, state.TiltPhi});
  const auto reference = new_reference(state, axis);
  state.NewZoneU = axis.h;
  state.NewZoneV = axis.k;
  state.NewZoneW = axis.l;
  if (reference.turn_degrees) {
    state.PatternAngleStep = *reference.turn_degrees;
    form.Label9.set_caption(plain_text(state.PatternAngleStep));
  }
  state.NewOriginH = reference.reflection.h;
  state.NewOriginK = reference.reflection.k;
  state.NewOriginL = reference.reflection.l;
  form.Label10.set_caption(plain_text(state.NewOriginH) + " " + plain_text(state.NewOriginK) + " " +
                           plain_text(state.NewOriginL));
}

void take_off_rotation(CrystalState& state) {
  state.TiltPhi = to_single(double{state.TiltPhi} - double{state.PatternAngle});
}

}  // namespace

void ZoneCalc(Workbench& bench) {
  CrystalState& state = main1_state(bench);
  auto& form = bench.windows.use<Pattern2Form>();
  const auto angles = angles_of_point(state.TiltX, state.TiltY);
  state.TiltTheta = angles.theta;
  state.TiltPhi = angles.phi;
  take_off_rotation(state);
  form.Text22.set_text(Format((double{state.TiltPhi} + state.PatternAngle) / degree, "##0.00"));
  form.Text23.set_text(Format(state.TiltTheta / degree, "##0.00"));
  find_axis(state, form);
}

void ZoneCalc2(Workbench& bench) {
  CrystalState& state = main1_state(bench);
  take_off_rotation(state);
  find_axis(state, bench.windows.use<Pattern2Form>());
}

}  // namespace zol
