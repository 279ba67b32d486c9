#include "shell/program/main_menu_form.h"

#include "shell/program/data_folders.h"
#include "shell/services/guards.h"

namespace zol {

MainMenuForm::MainMenuForm(Workbench& bench) : Window(window_name, "MAIN MENU") {
  offers_kept_work = true;
  Command2.warn_when = [&bench] { return guard::no_reflections(bench.seen()); };
  const Use crystal_window{Command1.path()};
  const Use analysis_window{Command3.path()};
  file_ways = {{FileKind::Crystal, ".cry", {crystal_window, {"Main1.DATA_LOAD"}}}};
  for (const auto* ending : file_filters::picture_endings) {
    file_ways.push_back({FileKind::Picture, ending, {analysis_window, {"PATTERN3.ImageLoad"}}});
  }
  file_ways.push_back({FileKind::Structure, "", {crystal_window, {"Main1.ImportStructure"}}});
  const auto load = [&bench](const char* name) {
    return Use{"Main1.DATA_LOAD", "", bench.data.crystal_folder + '/' + name};
  };
  constexpr auto half_angle_deg = "33";  // of the picture
  ways_in = {{"Open a structure...",
              "a CIF or another structure file of yours, with its reflections",
              {crystal_window, {"Main1.ImportStructure"}}},
             {"Take an example", "quartz, with its reflections", {crystal_window, load("Quartz.cry")}},
             {"Index the example picture",
              "a simulated Kikuchi pattern of silicon, indexed automatically",
              {load("Silicon.cry"),
               analysis_window,
               {"PATTERN3.Text3", half_angle_deg},
               {"PATTERN3.ImageLoad", "", examples_folder() + "/silicon-pattern.bmp"},
               {"PATTERN3.ImageFlip"},  // the detector shows the screen from behind
               {"PATTERN3.AutomaticIndexing"},
               {"AutoIndex.Index"}}}};
}

}  // namespace zol
