#include "indexing/window/auto_index_form.h"

#include "core/number_text.h"

namespace zol {
namespace {

constexpr int picture_twips = 15 * 640;  // 640 x 320 pixels: two pictures side by side

/// The orientation of the picked solution, or no rotation.
Rotation orientation(const IndexResult& result) {
  const auto* solution = result.solution();
  return solution != nullptr ? solution->found.crystal_from_picture : Rotation(Rotation::Zero());
}

}  // namespace

AutoIndexForm::AutoIndexForm(Workbench& bench)
    : Window(window_name, "AUTOMATIC INDEXING"),
      Simulated(*this, bench.services, "Simulated", picture_twips, picture_twips / 2),
      CommonDialog1(*this, bench.services, "CommonDialog1") {
  name_fields();
  beside = "PATTERN3";
  BandCount.set_text("9");
  FamilyCount.set_text("6");
  SampleTilt.set_text("70");
  Beside.set_on(true);
  Blend.set_range(0, 100);
  Blend.set_value(50);
  reads = {shared::radiation};
  Solutions.made_from = Origin{
      {inputs::crystal(), {"radiation", {"AccVoltage"}}, inputs::settings({}, {&BandCount, &CircleMask})}, {&Index}};
}

void AutoIndexForm::name_fields() {
  fields().keep("result", result);
  fields().keep("crystal_files", crystal_files);
  fields().keep("families_taken", families_taken);
  fields().keep("families_key", families_key);
  fields().keep("measured_in_front", measured_in_front);

  const auto from_one = [](int index, const char* name) {
    if (index < 1 || index > 3) throw RunFailure(std::string(name) + " has indices from 1 to 3");
    return index - 1;
  };
  fields().add_computed("Orientation", 2, [this, from_one](std::span<const int> at) {
    return plain_text(orientation(result)(from_one(at[0], "Orientation"), from_one(at[1], "Orientation")));
  });
  fields().add_computed("Euler", 1, [this, from_one](std::span<const int> at) {
    const auto index = static_cast<std::size_t>(from_one(at[0], "Euler"));
    const auto* solution = result.solution();
    if (solution == nullptr) return plain_text(0.0);
    return plain_text(
        bunge_deg(solution->found.crystal_from_picture * picture_from_sample(Val(SampleTilt.text())))[index]);
  });
  const auto number = [this](const char* name, double (*value)(const AutoIndexForm&)) {
    fields().add_computed(name, 0, [this, value](std::span<const int>) { return plain_text(value(*this)); });
  };
  number("Matched", [](const AutoIndexForm& form) {
    return form.result.solution() != nullptr ? static_cast<double>(form.result.solution()->found.matched) : 0.0;
  });
  number("Fit", [](const AutoIndexForm& form) {
    return form.result.solution() != nullptr ? form.result.solution()->found.mean_deviation_deg : 0.0;
  });
  number("Confidence", [](const AutoIndexForm& form) {
    return form.result.solution() != nullptr ? form.result.solution()->found.confidence : 0.0;
  });
  // As the detector shows the picture, before it was turned.
  number("CentreX", [](const AutoIndexForm& form) { return form.result.centre.x; });
  number("CentreY", [](const AutoIndexForm& form) { return upside_down(form.result.centre, form.result.size).y; });
  number("CentreZ", [](const AutoIndexForm& form) { return form.result.centre.z; });
}

}  // namespace zol
