// How a window's events are tied to its handlers: one table per window, at the end of its handlers.
//
//   void wire(Workbench& bench, SizeForm& form) {
//     const Wire on(bench, form);
//     form.Command1.on_click = on(Command1_Click);
//     form.on_load = on(Form_Load);
//   }
//   template void add_window<SizeForm>(Workbench&);
#pragma once

#include <memory>

#include "shell/services/workbench.h"

namespace zol {

/// Fills the workbench and the form into a handler. A handler takes what it needs of the two.
template <class Form>
class Wire {
 public:
  Wire(Workbench& bench, Form& form) : bench_(bench), form_(form) {}

  template <class... Args>
  [[nodiscard]] auto operator()(void (*handler)(Workbench&, Form&, Args...)) const {
    return [handler, &bench = bench_, &form = form_](Args... args) { handler(bench, form, args...); };
  }
  template <class... Args>
  [[nodiscard]] auto operator()(void (*handler)(Form&, Args...)) const {
    return [handler, &form = form_](Args... args) { handler(form, args...); };
  }
  template <class... Args>
  [[nodiscard]] auto operator()(void (*operation)(Workbench&, Args...)) const {
    return [operation, &bench = bench_](Args... args) { operation(bench, args...); };
  }

 private:
  Workbench& bench_;
  Form& form_;
};

/// Makes a window known to the program: how it is made, and the table wire(Workbench&, Form&) that ties its events.
/// Instantiated beside that table.
template <class Form>
void add_window(Workbench& bench) {
  bench.windows.add_type(Form::window_name, {[&bench] {
                                               auto form = std::make_unique<Form>(bench);
                                               form->shows_crystal = requires { Form::shows_crystal_data; };
                                               return form;
                                             },
                                             [&bench](Window& window) { wire(bench, dynamic_cast<Form&>(window)); }});
}

}  // namespace zol
