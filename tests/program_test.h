// The program without a screen, for tests of its windows.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "reflections/window/main1_form.h"
#include "shell/program/program.h"
#include "tests/fake_services.h"
#include "tests/focus_view.h"

namespace zol {

class ProgramTest : public testing::Test {
 protected:
  ProgramTest() {
    program.windows().set_view(&view);
    program.start();
  }

  template <class Form>
  Form& window() {
    return program.windows().use<Form>();
  }
  Main1Form& main1() { return window<Main1Form>(); }
  /// Loads a crystal that ships, which makes its reflection list down to a spacing in angstroms.
  void load(const std::string& crystal, const std::string& dmin = "1.0") {
    main1().Text15.set_text(dmin);
    services.answers.push_back(ZOL_SOURCE_DIR "/data/ZOLDATA/" + crystal);
    main1().DATA_LOAD.click();
  }
  /// What is drawn of one kind.
  template <class Kind>
  static std::vector<Kind> drawn(const Canvas& canvas) {
    std::vector<Kind> found;
    for (const auto& primitive : canvas.drawing()) {
      if (const auto* kind = std::get_if<Kind>(&primitive.what)) found.push_back(*kind);
    }
    return found;
  }

  FocusView view;
  FakeServices services;
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
  CrystalState& state = program.state();
};

}  // namespace zol
