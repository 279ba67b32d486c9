#include "shell/program.h"

#include "analysis/hkl3make.h"
#include "analysis/pattern3_handlers.h"
#include "calculators/atom_distance_handlers.h"
#include "calculators/utility_handlers.h"
#include "entry/input_atom_handlers.h"
#include "entry/input_jcpds_handlers.h"
#include "entry/main1_import.h"
#include "kikuchi/camera_parameters_handlers.h"
#include "kikuchi/kikuchi_operations.h"
#include "kikuchi/pattern2_handlers.h"
#include "kikuchi/zaxis_handlers.h"
#include "powder/dring_handlers.h"
#include "powder/open_dring.h"
#include "powder/open_xd.h"
#include "powder/xd_handlers.h"
#include "reflections/main1_handlers.h"
#include "reflections/main1_operations.h"
#include "shell/main_menu_handlers.h"
#include "shell/state_names.h"
#include "spots/fiber_texture_handlers.h"
#include "spots/pattern_disp.h"
#include "spots/pattern_handlers.h"

namespace zol {
namespace {

/// Handlers with the workbench and their form filled in.
template <class Form>
class Wire {
 public:
  Wire(Workbench& bench, Form& form) : bench_(bench), form_(form) {}

  [[nodiscard]] auto operator()(void (*handler)(Workbench&, Form&)) const {
    return [handler, &bench = bench_, &form = form_] { handler(bench, form); };
  }
  [[nodiscard]] auto operator()(void (*handler)(Workbench&, Form&, int&)) const {
    return [handler, &bench = bench_, &form = form_](int& key) { handler(bench, form, key); };
  }
  [[nodiscard]] auto operator()(void (*handler)(Workbench&, Form&, Single, Single)) const {
    return [handler, &bench = bench_, &form = form_](Single x, Single y) { handler(bench, form, x, y); };
  }
  [[nodiscard]] auto operator()(void (*operation)(Workbench&)) const {
    return [operation, &bench = bench_] { operation(bench); };
  }

 private:
  Workbench& bench_;
  Form& form_;
};

void wire(Workbench& bench, MainMenuForm& form) {
  using namespace main_menu;
  const Wire on(bench, form);
  form.Command1.on_click = on(Command1_Click);
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.Command5.on_click = on(Command5_Click);
  form.Camera_parameters.on_click = on(Camera_parameters_Click);
  form.Show_Utility.on_click = on(Show_Utility_Click);
}

void wire(Workbench& bench, Main1Form& form) {
  using namespace main1;
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);
  form.Text2.on_change = on(Text2_Change);
  form.Text3.on_change = on(Text3_Change);
  form.Text4.on_change = on(Text4_Change);
  form.Text5.on_change = on(Text5_Change);
  form.Text6.on_change = on(Text6_Change);
  form.Text7.on_change = on(Text7_Change);
  form.Text15.on_change = on(Text15_Change);
  form.Text16.on_change = on(Text16_Change);
  form.Text1.on_lost_focus = on(Text1_LostFocus);
  form.Text7.on_lost_focus = on(Text7_LostFocus);
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
  form.Command10.on_click = on(Command10_Click);
  form.Command11.on_click = on(Command11_Click);
  form.Command12.on_click = on(Command12_Click);
  form.Command13.on_click = on(Command13_Click);
  form.Command15.on_click = on(Command15_Click);
  form.DATA_SAVE.on_click = on(DATA_SAVE_Click);
  form.DATA_LOAD.on_click = on(DATA_LOAD_Click);
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
}

void wire(Workbench& bench, InputAtomForm& form) {
  using namespace input_atom;
  const Wire on(bench, form);
  form.on_activate = on(Form_Activate);
  form.G.on_key_press = on(G_KeyPress);
  form.Command1.on_click = on(Command1_Click);
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.Command4.on_click = on(Command4_Click);
  form.Import_CIF.on_click = on(Import_CIF_Click);
  form.Import_MINCRYST.on_click = on(Import_MINCRYST_Click);
}

void wire(Workbench& bench, InputJcpdsForm& form) {
  using namespace input_jcpds;
  const Wire on(bench, form);
  form.on_activate = on(Form_Activate);
  form.G.on_key_press = on(G_KeyPress);
  form.Command1.on_click = on(Command1_Click);
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.Command4.on_click = on(Command4_Click);
}

void wire(Workbench& bench, Pattern3Form& form) {
  using namespace pattern3;
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);
  form.Text2.on_lost_focus = on(Text2_LostFocus);
  form.Text3.on_change = on(Text3_Change);
  form.Text4.on_change = on(Text4_Change);
  form.Text5.on_lost_focus = on(Text5_LostFocus);
  form.Text6.on_change = on(Text6_Change);
  form.Text7.on_change = on(Text7_Change);
  form.Text8.on_change = on(Text8_Change);
  form.Text9.on_change = on(Text9_Change);
  form.Text10.on_change = on(Text10_Change);
  form.Text11.on_change = on(Text11_Change);
  form.Text12.on_key_press = on(Text12_KeyPress);
  form.Text13.on_key_press = on(Text13_KeyPress);
  form.Text14.on_change = on(Text14_Change);
  form.Text15.on_change = on(Text15_Change);
  form.Text16.on_key_press = on(Text16_KeyPress);
  form.Command1.on_click = on(Command1_Click);
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.Command4.on_click = on(Command4_Click);
  form.Command5.on_click = on(Command5_Click);
  form.Command6.on_click = on(Command6_Click);
  form.Command7.on_click = on(Command7_Click);
  form.Command8.on_click = on(Command8_Click);
  form.Command9.on_click = on(Command9_Click);
  for (int i = 0; i < form.Command10.count(); ++i) {
    form.Command10(i).on_click = [&form, i] { Command10_Click(form, i); };
  }
  form.Command11.on_click = on(Command11_Click);
  form.Command12.on_click = on(Command12_Click);
  form.Command13.on_click = on(Command13_Click);
  form.Command14.on_click = on(Command14_Click);
  form.Command15.on_click = on(Command15_Click);
  form.Check2.on_click = on(Check2_Click);
  form.List1.on_click = on(List1_Click);
  form.Picture1.on_mouse_down = on(Picture1_MouseDown);
  form.Picture1.on_mouse_move = on(Picture1_MouseMove);
  form.Picture1.on_mouse_up = on(Picture1_MouseUp);
  form.ImageLoad.on_click = on(ImageLoad_Click);
  form.ImageSAve.on_click = on(ImageSAve_Click);
  form.Imageclear.on_click = on(Imageclear_Click);
  form.ImageFlip.on_click = on(ImageFlip_Click);
  form.ImageMirror.on_click = on(ImageMirror_Click);
  form.Imatch.on_click = on(Imatch_Click);
  form.CorrectFile.on_click = on(CorrectFile_Click);
  form.CPS_Si001.on_click = on(CPS_Si001_Click);
  form.CP_Setting_Show.on_click = on(CP_Setting_Show_Click);
  form.CenterPosition.on_click = on(CenterPosition_Click);
  form.add_operation("Hkl3make", on(Hkl3make));
  form.add_operation("MatchAngle", on(MatchAngle));
  form.add_operation("EquivSet", on(EquivSet));
}

void wire(Workbench& bench, Pattern2Form& form) {
  using namespace pattern2;
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);
  form.Text3.on_change = on(Text3_Change);
  form.Text4.on_change = on(Text4_Change);
  form.Text5.on_change = on(Text5_Change);
  form.Text11.on_change = on(Text11_Change);
  form.Text12.on_change = on(Text12_Change);
  form.Text13.on_change = on(Text13_Change);
  form.Text14.on_change = on(Text14_Change);
  form.Text15.on_change = on(Text15_Change);
  form.Text19.on_change = on(Text19_Change);
  form.Text21.on_lost_focus = on(Text21_LostFocus);
  form.Text3.on_key_press = on(Text3_KeyPress);
  form.Text4.on_key_press = on(Text4_KeyPress);
  form.Text5.on_key_press = on(Text5_KeyPress);
  form.Text11.on_key_press = on(Text11_KeyPress);
  form.Text12.on_key_press = on(Text12_KeyPress);
  form.Text13.on_key_press = on(Text13_KeyPress);
  form.Text22.on_key_press = on(Text22_KeyPress);
  form.Text23.on_key_press = on(Text23_KeyPress);
  for (int i = 0; i < form.Command1.count(); ++i) {
    form.Command1(i).on_click = [&bench, &form, i] { Command1_Click(bench, form, i); };
  }
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.Command4.on_click = on(Command4_Click);
  form.Command5.on_click = on(Command5_Click);
  form.Command6.on_click = on(Command6_Click);
  form.Command7.on_click = on(Command7_Click);
  form.Command8.on_click = on(Command8_Click);
  form.Command9.on_click = on(Command9_Click);
  form.Command10.on_click = on(Command10_Click);
  form.Command11.on_click = on(Command11_Click);
  form.Command12.on_click = on(Command12_Click);
  form.Command13.on_click = on(Command13_Click);
  form.Command14.on_click = on(Command14_Click);
  form.Command15.on_click = on(Command15_Click);
  form.Command16.on_click = on(Command16_Click);
  form.Command17.on_click = on(Command17_Click);
  form.Command18.on_click = on(Command18_Click);
  form.List1.on_click = on(List1_Click);
  form.Picture1.on_mouse_down = on(Picture1_MouseDown);
  form.Picture1.on_double_click = on(Command4_Click);
  form.ISAVE.on_click = on(ISAVE_Click);
  form.Imagesize.on_click = on(Imagesize_Click);
  form.ImageLoad.on_click = on(ImageLoad_Click);
  form.ImageClear.on_click = on(ImageClear_Click);
  form.Rpitch.on_click = on(Rpitch_Click);
  form.Spitch.on_click = on(Spitch_Click);
  form.Zpitch.on_click = on(Zpitch_Click);
  form.add_operation("Fsize", on(Fsize));
  form.add_operation("Spotsize", on(Spotsize));
}

void wire(Workbench& bench, ZaxisForm& form) {
  using namespace zaxis;
  const Wire on(bench, form);
  for (TextBox* limit : {&form.Text1, &form.Text2, &form.Text3}) limit->on_change = on(redraw);
  for (CheckBox* box : {&form.Check1, &form.Check2, &form.Check3}) box->on_click = on(redraw);
  for (OptionButton* option : {&form.Option1, &form.Option2}) option->on_click = on(redraw);
  for (TextBox* index : {&form.Text4, &form.Text5, &form.Text6}) index->on_change = on(direction_Change);
  form.Text4.on_key_press = on(Text4_KeyPress);
  form.Text5.on_key_press = on(Text5_KeyPress);
  form.Text6.on_key_press = on(Text6_KeyPress);
  form.Command1.on_click = on(Command1_Click);
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.SaveMap.on_click = on(SaveMap_Click);
  form.add_operation("Calc", on(Calc));
  form.add_operation("Redraw", on(Calc));
}

void wire(Workbench& bench, CameraParametersForm& form) {
  using namespace camera_parameters;
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);
  form.Text2.on_change = on(Text2_Change);
  form.Text3.on_change = on(Text3_Change);
  form.Text5.on_change = on(Text5_Change);
  form.Text6.on_change = on(Text6_Change);
  form.Text7.on_change = on(Text7_Change);
  form.Command1.on_click = on(Command1_Click);
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
}

void wire(Workbench& bench, AtomDistanceForm& form) {
  using namespace atom_distance;
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);
  form.Text1.on_key_press = on(Text1_KeyPress);
  form.Command1.on_click = on(Command1_Click);
}

void wire(Workbench& bench, UtilityForm& form) {
  using namespace utility;
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);
  form.Text2.on_change = on(Text2_Change);
  form.Text3.on_change = on(Text3_Change);
  form.Text4.on_change = on(Text4_Change);
  form.Text10.on_change = on(Text10_Change);
  form.Text11.on_change = on(Text11_Change);
  form.Text12.on_change = on(Text12_Change);
  form.Text13.on_change = on(Text13_Change);
  form.Text14.on_change = on(Text14_Change);
  form.Text15.on_change = on(Text15_Change);
  form.Text46.on_change = on(Text46_Change);
  form.Text47.on_change = on(Text47_Change);
  form.Text48.on_change = on(Text48_Change);
  form.Text49.on_change = on(Text49_Change);
  form.Text50.on_change = on(Text50_Change);
  form.Text51.on_change = on(Text51_Change);
  form.Text1.on_key_press = on(Text1_KeyPress);
  form.Text2.on_key_press = on(Text2_KeyPress);
  form.Text3.on_key_press = on(Text3_KeyPress);
  form.Text4.on_key_press = on(Text4_KeyPress);
  form.Text9.on_key_press = on(Text9_KeyPress);
  form.Text8.on_key_press = on(Text8_KeyPress);
  form.Text7.on_key_press = on(Text7_KeyPress);
  form.Text6.on_key_press = on(Text6_KeyPress);
  form.Text10.on_key_press = on(Text10_KeyPress);
  form.Text11.on_key_press = on(Text11_KeyPress);
  form.Text12.on_key_press = on(Text12_KeyPress);
  form.Text13.on_key_press = on(Text13_KeyPress);
  form.Text14.on_key_press = on(Text14_KeyPress);
  form.Text15.on_key_press = on(Text15_KeyPress);
  form.Text46.on_key_press = on(Text46_KeyPress);
  form.Text47.on_key_press = on(Text47_KeyPress);
  form.Text48.on_key_press = on(Text48_KeyPress);
  form.Text49.on_key_press = on(Text49_KeyPress);
  form.Text50.on_key_press = on(Text50_KeyPress);
  form.Text51.on_key_press = on(Text51_KeyPress);
  for (int i = 0; i < form.Text5.count(); ++i) {
    form.Text5(i).on_key_press = [i, &form](int& key) { Text5_KeyPress(form, i, key); };
  }
  form.Command1.on_click = on(Command1_Click);
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.Command4.on_click = on(Command4_Click);
  form.Command5.on_click = on(Command5_Click);
  form.Option1.on_click = on(Option1_Click);
  form.Option2.on_click = on(Option2_Click);
  form.Option3.on_click = on(Option3_Click);
}

void wire(Workbench& bench, PatternForm& form) {
  using namespace pattern;
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);
  form.Text2.on_change = on(Text2_Change);
  form.Text3.on_change = on(Text3_Change);
  form.Text4.on_change = on(Text4_Change);
  form.Text5.on_change = on(Text5_Change);
  form.Text3.on_key_press = on(Text3_KeyPress);
  form.Text4.on_key_press = on(Text4_KeyPress);
  form.Text5.on_key_press = on(Text5_KeyPress);
  form.Command8.on_click = on(Command8_Click);
  form.Command5.on_click = on(Command5_Click);
  form.Command14.on_click = on(Command14_Click);
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.Command6.on_click = on(Command6_Click);
  form.Command9.on_click = on(Command9_Click);
  form.Command11.on_click = on(Command11_Click);
  form.Command7.on_click = on(Command7_Click);
  form.Command10.on_click = on(Command10_Click);
  form.Command12.on_click = on(Command12_Click);
  form.Command4.on_click = on(Command4_Click);
  form.Command13.on_click = on(Command13_Click);
  form.Command1.on_click = on(Command1_Click);
  form.ISAVE.on_click = on(ISAVE_Click);
  form.Spotsize.on_click = on(Spotsize_Click);
  form.Rpitch.on_click = on(Rpitch_Click);
  form.Fsize.on_click = on(Fsize_Click);
  form.add_operation("Imagesize", on(Imagesize));
}

void wire(Workbench& bench, FiberTextureForm& form) {
  using namespace fiber_texture;
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);
  form.Text2.on_change = on(Text2_Change);
  form.Text3.on_change = on(Text3_Change);
  form.Text4.on_change = on(Text4_Change);
  form.Text5.on_change = on(Text5_Change);
  form.Text3.on_key_press = on(Text3_KeyPress);
  form.Text4.on_key_press = on(Text4_KeyPress);
  form.Text5.on_key_press = on(Text5_KeyPress);
  form.Command8.on_click = on(Command8_Click);
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.Command6.on_click = on(Command6_Click);
  form.Command9.on_click = on(Command9_Click);
  form.Command11.on_click = on(Command11_Click);
  form.Command7.on_click = on(Command7_Click);
  form.Command10.on_click = on(Command10_Click);
  form.Command12.on_click = on(Command12_Click);
  form.Command5.on_click = on(Command5_Click);
  form.Command1.on_click = on(Command1_Click);
  form.Isave.on_click = on(Isave_Click);
  form.Fsize.on_click = on(Fsize_Click);
  form.Rpitch.on_click = on(Rpitch_Click);
  form.Imagesize.on_click = on(Imagesize_Click);
  form.Spotsize.on_click = on(Spotsize_Click);
}

void wire(Workbench& bench, XdForm& form) {
  using namespace xd;
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);
  form.Text2.on_change = on(Text2_Change);
  form.Text3.on_change = on(Text3_Change);
  form.Text4.on_change = on(Text4_Change);
  form.Text6.on_change = on(Text6_Change);
  form.Text7.on_change = on(Text7_Change);
  form.Text8.on_change = on(Text8_Change);
  form.Text5.on_key_press = on(Text5_KeyPress);
  form.Command1.on_click = on(Command1_Click);
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.Command4.on_click = on(Command4_Click);
  form.Command5.on_click = on(Command5_Click);
  form.Command6.on_click = on(Command6_Click);
  form.Command7.on_click = on(Command7_Click);
  form.Picture1.on_mouse_down = on(Picture1_MouseDown);
  form.add_operation("XDCalc", on(XDCalc));
}

void wire(Workbench& bench, DringForm& form) {
  using namespace dring;
  const Wire on(bench, form);
  form.Text2.on_change = on(Text2_Change);
  form.Text3.on_change = on(Text3_Change);
  form.Text5.on_change = on(Text5_Change);
  form.Text6.on_change = on(Text6_Change);
  form.Text7.on_change = on(Text7_Change);
  form.Text8.on_change = on(Text8_Change);
  form.Check1.on_click = on(Check1_Click);
  form.Check2.on_click = on(Check2_Click);
  form.Check3.on_click = on(Check3_Click);
  form.Command1.on_click = on(Command1_Click);
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.Command4.on_click = on(Command4_Click);
  form.Command5.on_click = on(Command5_Click);
  form.Command6.on_click = on(Command6_Click);
  form.Command7.on_click = on(Command7_Click);
  form.Picture1.on_mouse_down = on(Picture1_MouseDown);
  form.Picture2.on_mouse_down = on(Picture2_MouseDown);
  form.add_operation("DRCalc", on(DRCalc));
}

/// Makes a window known: its form, its events, its Form_Load.
template <class Form>
void add_window(Workbench& bench, void (*form_load)(Workbench&, Form&)) {
  bench.windows.add_type(Form::window_name, {[&bench] { return std::make_unique<Form>(bench); },
                                             [&bench, form_load](Window& window) {
                                               auto& form = dynamic_cast<Form&>(window);
                                               wire(bench, form);
                                               if (form_load != nullptr) form_load(bench, form);
                                             }});
}

}  // namespace

Program::Program(DataRoot data, Services& services)
    : data_(std::move(data)), bench_{state_, windows_, services, data_} {
  register_module1_fields(module1_, state_);
  add_window<MainMenuForm>(bench_, main_menu::Form_Load);
  add_window<Main1Form>(bench_, main1::Form_Load);
  add_window<InputAtomForm>(bench_, input_atom::Form_Load);
  add_window<InputJcpdsForm>(bench_, input_jcpds::Form_Load);
  add_window<Pattern3Form>(bench_, pattern3::Form_Load);
  add_window<Pattern2Form>(bench_, pattern2::Form_Load);
  add_window<ZaxisForm>(bench_, zaxis::Form_Load);
  add_window<CameraParametersForm>(bench_, camera_parameters::Form_Load);
  add_window<AtomDistanceForm>(bench_, nullptr);
  add_window<UtilityForm>(bench_, utility::Form_Load);
  add_window<PatternForm>(bench_, pattern::Form_Load);
  add_window<FiberTextureForm>(bench_, fiber_texture::Form_Load);
  add_window<XdForm>(bench_, nullptr);
  add_window<DringForm>(bench_, nullptr);
}

void Program::start() { windows_.use(MainMenuForm::window_name).show(); }

}  // namespace zol
