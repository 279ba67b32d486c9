#include "analysis/window/hkl3make.h"

#include "analysis/window/pattern3_form.h"
#include "core/put_back.h"
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
  BarTask task(form.ProgressBar1);
  ReorderedList sorted(state, order_by_weighted_intensity(state, task));
  PutBack used(form.NhklUsed);
  form.NhklUsed = extend_over_ties(state, form.NhklWanted);

  const Hourglass hourglass(form);
  form.ProgressBar1.set_range(0, form.NhklUsed);
  form.triples = make_triple_table(state, form.NhklUsed, task);
  form.Label8.set_caption(plain_text(form.NhklUsed));
  used.keep();
  sorted.keep();
}

}  // namespace zol
