#include "entry/window/main1_import.h"

#include <array>

#include "core/number_text.h"
#include "core/read_file.h"
#include "entry/structure_readers.h"
#include "reflections/window/main1_operations.h"

namespace zol::main1 {
namespace {

void write_box(Main1Form& form, const BoxText& entry) {
  const std::array boxes{&form.Text1, &form.Text2, &form.Text3, &form.Text4, &form.Text5, &form.Text6, &form.Text7};
  boxes.at(static_cast<std::size_t>(entry.box))->set_text(entry.text);
}

template <class Reader>
void import(Workbench& bench, Main1Form& form, FileKind kind, const char* filter) {
  form.CommonDialog1.set_filter(filter);
  const std::string path = form.CommonDialog1.open(kind);
  if (path.empty()) return;
  CrystalState& state = form.state;
  Reader reader(path);
  Integer atoms;
  WindowTask task(bench.services);
  for_each_line(read_file(path, task), task, [&](std::string_view line) {
    const auto found = reader.take(line);
    if (found.site) store_site(state, (atoms += 1).value(), *found.site);
    for (const auto& entry : found.texts) write_box(form, entry);
  });
  state.NAtom = atoms;
  form.Label19.set_caption(Str(state.NAtom));
  AtomCcalc(bench);
}

}  // namespace

void ImportfromCIF_Click(Workbench& bench, Main1Form& form) {
  import <CifReader>(bench, form, FileKind::Cif, file_filters::cif);
}

void ImportFromICSD_Click(Workbench& bench, Main1Form& form) {
  import <IcsdReader>(bench, form, FileKind::Icsd, file_filters::texts);
}

}  // namespace zol::main1
