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
  WindowTask task(bench.services, form.ProgressBar1);
  reorder(state, order_by_weighted_intensity(state, task), task);
  form.NhklUsed = extend_over_ties(state, form.NhklWanted);

  const Hourglass hourglass(form);
  form.ProgressBar1.set_range(0, form.NhklUsed);
  form.triples = make_triple_table(state, form.NhklUsed, task);
  form.Label8.set_caption(plain_text(form.NhklUsed));
}

}  // namespace zol
