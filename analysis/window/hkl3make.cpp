#include "analysis/window/hkl3make.h"

#include "analysis/window/pattern3_form.h"
#include "reflections/window/main1_form.h"

namespace zol {

void Hkl3make(Workbench& bench) {
  auto& form = bench.windows.use<Pattern3Form>();
  CrystalState& state = main1_state(bench);
  if (state.RefCount < 3) return;
  const Single count = to_single(state.RefCount.value());
  if (form.NhklWanted > count) {
    form.NhklWanted = count;
    form.Text2.set_text(plain_text(form.NhklWanted));
  }
  sort_by_weighted_intensity(state);
  form.NhklUsed = extend_over_ties(state, form.NhklWanted);
  form.Label8.set_caption(plain_text(form.NhklUsed));

  const Hourglass hourglass(form);
  form.ProgressBar1.set_range(0, form.NhklUsed);
  BarTask task(form.ProgressBar1);
  fill_triple_table(state, form.NhklUsed, form.triples, task);
}

}  // namespace zol
