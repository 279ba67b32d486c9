#include "shell/program.h"

#include "analysis/hkl3make.h"
#include "analysis/pattern3_handlers.h"
#include "kikuchi/pattern2_form.h"
#include "powder/dring_handlers.h"
#include "powder/open_dring.h"
#include "powder/open_xd.h"
#include "powder/xd_handlers.h"
#include "reflections/main1_handlers.h"
#include "reflections/main1_operations.h"
#include "shell/main_menu_handlers.h"
#include "shell/state_names.h"

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
  form.OWARI.on_click = on(OWARI_Click);
  form.RefselectON.on_click = on(RefselectON_Click);
  form.Show_utility.on_click = on(Show_utility_Click);
  form.add_operation("CalcCell", on(CalcCell));
  form.add_operation("AtomCcalc", on(AtomCcalc));
  form.add_operation("LoadSGNames", on(LoadSGNames));
  form.add_operation("CalcReflections", on(CalcReflections));
  form.add_operation("CRYSTAL_SELECT", on(CRYSTAL_SELECT));
}

void wire(Workbench& bench, Pattern3Form& form) {
  using namespace pattern3;
  const Wire on(bench, form);
  form.Text2.on_lost_focus = on(Text2_LostFocus);
  form.add_operation("Hkl3make", on(Hkl3make));
}

void wire(Workbench& /*bench*/, Pattern2Form& /*form*/) {}

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
  add_window<Pattern3Form>(bench_, pattern3::Form_Load);
  add_window<Pattern2Form>(bench_, nullptr);
  add_window<XdForm>(bench_, nullptr);
  add_window<DringForm>(bench_, nullptr);
}

void Program::start() { windows_.use(MainMenuForm::window_name).show(); }

}  // namespace zol
