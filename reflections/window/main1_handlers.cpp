#include <array>

#include "analysis/window/pattern3_form.h"
#include "core/crystal_file.h"
#include "core/number_text.h"
#include "core/record_writer.h"
#include "core/space_group.h"
#include "entry/window/main1_import.h"
#include "entry/window/open_structure.h"
#include "kikuchi/window/kikuchi_operations.h"
#include "kikuchi/window/pattern2_form.h"
#include "powder/window/open_dring.h"
#include "powder/window/open_xd.h"
#include "reflections/scattering.h"
#include "reflections/window/main1_form.h"
#include "reflections/window/main1_operations.h"
#include "shell/services/wiring.h"
#include "spots/window/fiber_texture_form.h"
#include "spots/window/pattern_disp.h"
#include "spots/window/pattern_form.h"

namespace zol::main1 {
namespace {

void Text7_LostFocus(Main1Form& form);
void Combo1_Click(Workbench& bench, Main1Form& form);

constexpr std::array radiations{"CuKa", "MoKa", "5",   "10",  "15",  "20",   "25",  "30",
                                "100",  "120",  "200", "300", "400", "1000", "1250"};
// The last setting of the list is not one that operators can be turned to; crystal files may name "c-ba".
constexpr std::array axis_settings{"abc", "cab", "bca", "a-cb", "ba-c", "-cba"};

/// Electrons at the voltages of common microscopes.
struct Voltage {
  Single kilovolt;
  double wavelength;  ///< angstroms
  double mass_ratio;
};
constexpr std::array voltages{Voltage{100, 0.0371, 1.194},  Voltage{120, 0.0335, 1.22},  Voltage{200, 0.0251, 1.388},
                              Voltage{300, 0.0197, 1.588},  Voltage{400, 0.0164, 1.777}, Voltage{1000, 0.00872, 2.931},
                              Voltage{1250, 0.00736, 3.434}};

/// The number of a box goes into its field; a complete cell is computed.
void take_cell_constant(Workbench& bench, Main1Form& form, const TextBox& box, Single& field) {
  field = single_in(box);
  const CrystalState& state = form.state;
  const bool complete = state.CellA != 0 && state.CellB != 0 && state.CellC != 0 && state.CellAlpha != 0 &&
                        state.CellBeta != 0 && state.CellGamma != 0;
  if (complete) CalcCell(bench);
}

/// The crystal system settles the boxes only for the numbers of the International Tables.
void constrain_from_edge_a(Main1Form& form) {
  if (form.state.SGNumber >= 1 && form.state.SGNumber <= 230) Text7_LostFocus(form);
}

void set_wavelength(Main1Form& form, double wavelength, double mass_ratio) {
  CrystalState& state = form.state;
  state.WaveLength = to_single(wavelength);
  form.Text16.set_text(Str(state.WaveLength));
  state.MassRatio = to_single(mass_ratio);
}

/// Asks for the file of a report. It shares the remembered path with the crystal file.
bool ask_report_file(Main1Form& form) {
  form.CommonDialog1.set_filter(file_filters::texts);
  form.state.CrystalFile = form.CommonDialog1.save(FileKind::Report);
  return !form.state.CrystalFile.empty();
}

void print(Workbench& bench, const PrintLine& line) { bench.services.print_line(line.text()); }

/// A report bears the name of the crystal's file.
void end_document(Workbench& bench, const Main1Form& form) {
  const std::string& path = form.Text17.text();
  bench.services.end_document(path.empty() ? form.caption() : path.substr(path.rfind('/') + 1));
}

void Form_Load(Workbench& bench, Main1Form& form) {
  CrystalState& state = form.state;
  state.AsfXCount = read_scatter_table(bench.data.path("Asf/ASF-X.csv"), state.AsfX);
  state.AsfECount = read_scatter_table(bench.data.path("Asf/ASF-E.csv"), state.AsfE);
  form.CommonDialog1.set_initial_folder(bench.data.crystal_folder);
  form.Text15.set_text("1.0");
  form.Option1.set_on(false);
  form.Option2.set_on(true);
  for (CheckBox* box : {&form.Check1, &form.Check2, &form.Check3}) box->set_value(1);
  for (CheckBox* box : {&form.Check4, &form.Check5, &form.Check6, &form.Check7, &form.Check8, &form.Check9}) {
    box->set_visible(false);
  }
  for (const auto* radiation : radiations) form.Combo1.add_item(radiation);
  form.Combo1.set_text("20");
  Combo1_Click(bench, form);
  for (const auto* setting : axis_settings) form.Combo2.add_item(setting);
  form.Combo2.set_text("abc");
  state.AxisSetting = "abc";
  LoadSGNames(bench);
  for (int number = 1; number <= space_group_files; ++number) {
    form.List3.add_item(Str(number) + ' ' + state.SGNames(number));
  }
}

void Text1_Change(Workbench& bench, Main1Form& form) { take_cell_constant(bench, form, form.Text1, form.state.CellA); }
void Text2_Change(Workbench& bench, Main1Form& form) { take_cell_constant(bench, form, form.Text2, form.state.CellB); }
void Text3_Change(Workbench& bench, Main1Form& form) { take_cell_constant(bench, form, form.Text3, form.state.CellC); }
void Text4_Change(Workbench& bench, Main1Form& form) {
  take_cell_constant(bench, form, form.Text4, form.state.CellAlpha);
}
void Text5_Change(Workbench& bench, Main1Form& form) {
  take_cell_constant(bench, form, form.Text5, form.state.CellBeta);
}
void Text6_Change(Workbench& bench, Main1Form& form) {
  take_cell_constant(bench, form, form.Text6, form.state.CellGamma);
}

void Text1_LostFocus(Main1Form& form) { constrain_from_edge_a(form); }

void Text7_Change(Workbench& bench, Main1Form& form) {
  CrystalState& state = form.state;
  state.SGNumber = integer_in(form.Text7);
  if (state.SGNumber < 1 || state.SGNumber > max_space_group_number) {
    form.Label17.set_caption("");
    form.Label16.set_caption("");
    return;
  }
  state.SGFile = bench.data.path("SpaceGr/NO" + Format(state.SGNumber.value(), "000") + ".dat");
  const auto name = read_space_group_name(state.SGFile);
  state.SystemName = name.system;
  state.SGName = name.symbol;
  state.LatticeLetter = state.SGName.substr(0, 1);
  form.Label17.set_caption(state.SystemName);
  form.Label16.set_caption(state.SGName);
}

void Text7_LostFocus(Main1Form& form) {
  const auto constraint = cell_constraint(form.state.SystemName);
  if (constraint.b_as_a) form.Text2.set_text(form.Text1.text());
  if (constraint.c_as_a) form.Text3.set_text(form.Text1.text());
  if (!constraint.alpha.empty()) form.Text4.set_text(constraint.alpha);
  if (!constraint.beta.empty()) form.Text5.set_text(constraint.beta);
  if (!constraint.gamma.empty()) form.Text6.set_text(constraint.gamma);
}

void Text15_Change(Main1Form& form) { form.state.Dmin = single_in(form.Text15); }

void Text16_Change(Main1Form& form) { form.state.WaveLength = single_in(form.Text16); }

void Combo1_Click(Workbench& bench, Main1Form& form) {
  CrystalState& state = form.state;
  const std::string& choice = form.Combo1.text();
  const auto choose_xray = [&form, &state](double wavelength, std::string_view text) {
    state.WaveLength = to_single(wavelength);
    form.Text16.set_text(text);
    form.Option1.set_on(true);
  };
  if (choice == "CuKa") choose_xray(1.542, "1.542");
  if (choice == "MoKa") choose_xray(0.717, "0.717");

  state.AccVoltage = to_single(Val(choice));
  if (state.AccVoltage == 0) return;
  form.Option2.set_on(true);
  bench.windows.use<Pattern3Form>().Text5.set_text(plain_text(state.AccVoltage));
  bench.windows.use<Pattern2Form>().Text21.set_text(plain_text(state.AccVoltage));
  if (state.AccVoltage < 100) {
    const double radicand = divide(150.0, state.AccVoltage, "the acceleration voltage") / 1000.0;
    set_wavelength(form, square_root(radicand, "150 / voltage"), 1.0);
    return;
  }
  for (const auto& row : voltages) {
    if (row.kilovolt == state.AccVoltage) set_wavelength(form, row.wavelength, row.mass_ratio);
  }
}

void Combo2_Click(Main1Form& form) { form.state.AxisSetting = form.Combo2.text(); }

void List3_Click(Main1Form& form) {
  for (int i = 0; i < form.List3.list_count(); ++i) {
    if (form.List3.selected(i)) form.Text7.set_text(Str(i + 1));
  }
}

void Text1_KeyPress(Main1Form& form, int& key) {
  if (key == key_enter) constrain_from_edge_a(form);
  enter_moves_to(form.Text2, key);
}
void Text2_KeyPress(Main1Form& form, int& key) { enter_moves_to(form.Text3, key); }
void Text3_KeyPress(Main1Form& form, int& key) { enter_moves_to(form.Text4, key); }
void Text4_KeyPress(Main1Form& form, int& key) { enter_moves_to(form.Text5, key); }
void Text5_KeyPress(Main1Form& form, int& key) { enter_moves_to(form.Text6, key); }
void Text6_KeyPress(Main1Form& form, int& key) { enter_moves_to(form.Text7, key); }
void Text18_KeyPress(Main1Form& form, int& key) { enter_moves_to(form.Text19, key); }
void Text19_KeyPress(Main1Form& form, int& key) { enter_moves_to(form.Text20, key); }

void Command1_Click(Workbench& bench) { bench.show_window("InputAtom"); }

void Command2_Click(Main1Form& form) {
  if (!ask_report_file(form)) return;
  const CrystalState& state = form.state;
  RecordWriter file(state.CrystalFile);
  file.field(state.NCell).end_line();
  for (int m = 1; m <= state.NCell.value(); ++m) {
    file.field(state.UCLabel(m)).field(state.UCElement(m)).field(state.UCOcc(m));
    file.field(state.UCPos(m, 1)).field(state.UCPos(m, 2)).field(state.UCPos(m, 3)).field(state.UCB(m)).end_line();
  }
  file.commit();
}

void Command3_Click(Workbench& bench, Main1Form& form) {
  const CrystalState& state = form.state;
  for (int m = 1; m <= state.NCell.value(); ++m) {
    PrintLine line;
    line.add(state.UCLabel(m)).add(state.UCElement(m)).add(state.UCOcc(m));
    line.add(state.UCPos(m, 1)).add(state.UCPos(m, 2)).add(state.UCPos(m, 3)).add(state.UCB(m));
    print(bench, line);
  }
  end_document(bench, form);
}

// After "Calc" the indices and RefS stand in the order of the triple table, RefA and RefB in that of the list, so that
// a row of both reports pairs the two. Files made so far have it, and it stays.
void Command4_Click(Workbench& bench, Main1Form& form) {
  if (!ask_report_file(form)) return;
  const CrystalState& state = form.state;
  RecordWriter file(state.CrystalFile);
  WindowTask task(bench.services);
  for (int i = 1; i <= state.RefCount.value(); ++i) {
    task.report(i, state.RefCount.value());
    task.check();
    file.field(state.RefH(i)).field(state.RefK(i)).field(state.RefL(i));
    file.field(state.RefS(i)).field(state.RefA(i)).field(state.RefB(i)).end_line();
  }
  file.commit(task);
}

void Command5_Click(Workbench& bench, Main1Form& form) {
  const CrystalState& state = form.state;
  WindowTask task(bench.services);
  for (int i = 1; i <= state.RefCount.value(); ++i) {
    task.report(i, state.RefCount.value());
    task.check();
    PrintLine line;
    line.add(state.RefH(i)).add(state.RefK(i)).add(state.RefL(i));
    line.add(state.RefS(i)).add(state.RefA(i)).add(state.RefB(i));
    print(bench, line);
  }
  end_document(bench, form);
}

void Command6_Click(Workbench& bench) { calculate(bench); }

void Command7_Click(Workbench& bench, Main1Form& form) {
  if (form.state.RefCount > 0) open_xd(bench);
}

void Command8_Click(Workbench& bench, Main1Form& form) {
  if (form.state.RefCount > 0) open_dring(bench);
}

void Command9_Click(Workbench& bench, Main1Form& form) {
  CrystalState& state = form.state;
  if (state.RefCount >= 1 && state.NAtom >= 1) bench.windows.use<PatternForm>().show();
  const double radius = divide(1.0, Val(form.Text15.text()), "Dmin (Main1.Text15)");  // inverse angstroms
  bench.windows.use<PatternForm>().Text1.set_text(Str(radius));
  state.DisplayScale = 0;
}

void Command10_Click(Workbench& bench, Main1Form& form) {
  auto& pattern2 = bench.windows.use<Pattern2Form>();
  pattern2.show();
  pattern2.Check2.set_value(0);
  pattern2.Option1.set_on(true);
  CrystalState& state = form.state;
  state.CamXYRatio = 1;
  state.CamXShift = 0;
  state.CamYShift = 0;
  pattern2.Text14.set_text(plain_text(state.CamXShift));
  pattern2.Text15.set_text(plain_text(state.CamYShift));
}

void Command11_Click(Workbench& bench) { bench.show_window("AtomDistance"); }

void Command12_Click(Workbench& bench, Main1Form& form) {
  if (form.state.RefCount > 0) bench.windows.use<FiberTextureForm>().show();
}

void Command13_Click(Workbench& bench) { bench.show_window("PATTERN3"); }

void Command15_Click(Workbench& bench, Main1Form& form) {
  form.List1.clear();
  form.state.NAtom = 0;
  bench.show_window("InputJCPDS");
}

void DATA_SAVE_Click(Workbench& bench, Main1Form& form) {
  form.CommonDialog1.set_initial_folder(bench.data.crystal_folder);
  form.CommonDialog1.set_filter(file_filters::crystals);
  form.state.CrystalFile = form.CommonDialog1.save(FileKind::Crystal);
  if (form.state.CrystalFile.empty()) return;
  write_crystal_file(form.state.CrystalFile, form.state);
  bench.saved_crystal = crystal_file_text(form.state);
  form.Text17.set_text(form.state.CrystalFile);
}

void DATA_LOAD_Click(Workbench& bench) { load_crystal_file(bench); }

void OWARI_Click(Workbench& bench) { bench.services.end_program(); }

void RefselectON_Click(Main1Form& form) {
  for (CheckBox* box : {&form.Check4, &form.Check5, &form.Check6, &form.Check7, &form.Check8, &form.Check9}) {
    box->set_visible(true);
  }
}

void Show_utility_Click(Workbench& bench) { bench.show_window("Utility"); }

}  // namespace

}  // namespace zol::main1

namespace zol {

/// What the user does, and what answers it.
void wire(Workbench& bench, Main1Form& form) {
  using namespace main1;
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);  // a, and so on to Text6, gamma
  form.Text2.on_change = on(Text2_Change);
  form.Text3.on_change = on(Text3_Change);
  form.Text4.on_change = on(Text4_Change);
  form.Text5.on_change = on(Text5_Change);
  form.Text6.on_change = on(Text6_Change);
  form.Text7.on_change = on(Text7_Change);
  form.Text15.on_change = on(Text15_Change);
  form.Text16.on_change = on(Text16_Change);
  form.Text1.on_lost_focus = on(Text1_LostFocus);
  form.Text7.on_lost_focus = on(Text7_LostFocus);  // the cell follows the crystal system
  form.Text1.on_key_press = on(Text1_KeyPress);
  form.Text2.on_key_press = on(Text2_KeyPress);
  form.Text3.on_key_press = on(Text3_KeyPress);
  form.Text4.on_key_press = on(Text4_KeyPress);
  form.Text5.on_key_press = on(Text5_KeyPress);
  form.Text6.on_key_press = on(Text6_KeyPress);
  form.Text18.on_key_press = on(Text18_KeyPress);
  form.Text19.on_key_press = on(Text19_KeyPress);
  form.Combo1.on_click = on(Combo1_Click);
  form.Combo2.on_click = on(Combo2_Click);
  form.List3.on_click = on(List3_Click);
  form.Command1.on_click = on(Command1_Click);
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.Command4.on_click = on(Command4_Click);
  form.Command5.on_click = on(Command5_Click);
  form.Command6.on_click = on(Command6_Click);
  form.Command7.on_click = on(Command7_Click);
  form.Command8.on_click = on(Command8_Click);
  form.Command9.on_click = on(Command9_Click);
  form.Command10.on_click = on(Command10_Click);  // "KP CALC"
  form.Command11.on_click = on(Command11_Click);  // "Atom Distance"
  form.Command12.on_click = on(Command12_Click);  // "Fiber Pattern"
  form.Command13.on_click = on(Command13_Click);  // "KP ANALYSIS(A)"
  form.Command15.on_click = on(Command15_Click);  // "JCPDS reflections"
  form.DATA_SAVE.on_click = on(DATA_SAVE_Click);
  form.DATA_LOAD.on_click = on(DATA_LOAD_Click);
  form.ImportStructure.on_click = on(ImportStructure_Click);
  form.ExportStructure.on_click = on(ExportStructure_Click);
  form.ImportFromICSD.on_click = on(ImportFromICSD_Click);
  form.ImportfromCIF.on_click = on(ImportfromCIF_Click);
  form.OWARI.on_click = on(OWARI_Click);
  form.RefselectON.on_click = on(RefselectON_Click);
  form.Show_utility.on_click = on(Show_utility_Click);
  form.add_operation("CalcCell", on(CalcCell));
  form.add_operation("AtomCcalc", on(AtomCcalc));
  form.add_operation("LoadSGNames", on(LoadSGNames));
  form.add_operation("CalcReflections", on(CalcReflections));
  form.add_operation("CRYSTAL_SELECT", on(CRYSTAL_SELECT));
  form.add_operation("PatternDisp", on(PatternDisp));
  form.add_operation("PatternDisp2", on(PatternDisp2));
  form.add_operation("PatternDisp3", on(PatternDisp3));
  form.add_operation("Patterndisp4", on(Patterndisp4));
  form.add_operation("ZoneCalc", on(ZoneCalc));
  form.add_operation("ZoneCalc2", on(ZoneCalc2));
  form.on_load = on(Form_Load);
}

template void add_window<Main1Form>(Workbench&);

}  // namespace zol
