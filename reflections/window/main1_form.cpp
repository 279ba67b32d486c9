#include "reflections/window/main1_form.h"

#include "core/number_text.h"
#include "core/site_remarks.h"
#include "reflections/window/crystal_tables_form.h"
#include "shell/services/guards.h"
#include "shell/services/latin1.h"

namespace zol {
namespace {

constexpr int table_rows = 200;  // of the two tables

}  // namespace

Main1Form::Main1Form(Workbench& bench)
    : Window(window_name, "ZOL "), CommonDialog1(*this, bench.services, "CommonDialog1"), state(bench.crystal_) {
  file_drops = {{".cry", &DATA_LOAD, &CommonDialog1, FileKind::Crystal},
                {"", &ImportStructure, &CommonDialog1, FileKind::Structure}};
  Text17.holds_file_name = true;
  crystal_file = &Text17;
  fields().add_fields<Main1State>(state);
  declare_guards(bench);
  declare_results();
}

void Main1Form::declare_guards(const Workbench& bench) {
  using namespace guard;
  const CrystalState& seen = state;
  for (auto* button : {&Command7, &Command8, &Command10, &Command12}) {
    button->warn_when = [&seen] { return no_reflections(seen); };
  }
  Command6.warn_when = [&seen] {
    return first_of(
        {no_cell(seen), when(!(seen.Dmin > 0), "Dmin is not above 0: the program asks for it until it is")});
  };
  Command9.warn_when = [this, &seen] {
    return first_of({no_reflections(seen), when(seen.NAtom < 1, "there are no atoms"),
                     when(Val(Text15.text()) == 0, "the box Dmin holds 0")});
  };
  Command1.warn_when = [&seen] {
    return when(seen.NAtom >= table_rows, "the table has no room for 200 atoms or more");
  };
  Command15.warn_when = [&seen] {
    return first_of({when(seen.NAtom > 0, "this removes the atoms, even if you cancel there"),
                     when(seen.JcpdsCount >= table_rows, "the table has no room for 200 reflections")});
  };
  Command11.warn_when = [&seen] { return when(seen.NAtom < 1, "there are no atoms"); };
  DATA_SAVE.warn_when = [&seen] {
    return when(seen.NAtom < 1 && seen.JcpdsCount < 1, "a file without atoms and reflections cannot be loaded again");
  };
  Text7.warn_text = [&bench](const std::string& text) {
    const double number = Val(text);
    if (!(number >= 1 && number <= max_space_group_number)) {
      return when(!(number >= -32768 && number <= 32767), "there is no such space group");
    }
    const std::string file = "SpaceGr/NO" + Format(Integer::rounded(number).value(), "000") + ".dat";
    return when(!bench.data.holds(file), "there is no file of this space group");
  };
  Combo2.warn_row = [this](int row) {
    const auto& setting = Combo2.items()[static_cast<std::size_t>(row)];
    return when(setting == "-cba", "-cba has no operators: every atom falls on 0 0 0");
  };
  for (auto* box : {&Text18, &Text19, &Text20}) whole_number(*box);
}

void Main1Form::declare_results() {
  List1.made_from = Origin{{inputs::crystal()}};
  List2.made_from = Origin{{inputs::crystal(),
                            {"radiation", inputs::radiation().fields, {&Option1, &Option2}},
                            inputs::settings({"Dmin"}, {&Check1, &Check2, &Check3, &Check4, &Check5, &Check6, &Check7,
                                                        &Check8, &Check9, &Text18, &Text19, &Text20})},
                           {&Command6}};
  List1.remarks = [this] {
    auto words = site_remarks(state);
    for (auto& remark : words) remark = utf8_of_latin1(remark);
    return words;
  };
  List2.remarks = [this]() -> std::vector<std::string> {
    const std::string remark = wavelength_remark(state, Option1.on());
    return remark.empty() ? std::vector<std::string>() : std::vector{remark};
  };
  List1.table = atom_table();
  List2.table = reflection_table(state);
  List3.table = space_group_table();
  reads = {shared::radiation, shared::smallest_d, shared::order};
}

CrystalState& main1_state(Workbench& bench) { return bench.windows.use<Main1Form>().state; }

}  // namespace zol
