#include "batch/batch_program.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "core/number_text.h"
#include "reflections/window/main1_form.h"
#include "shell/program/data_folders.h"
#include "shell/services/latin1.h"

namespace zol {

std::string BatchServices::prompt(const std::string& text, const std::string& /*title*/) {
  throw RunFailure("it leaves open: " + text + " Open it in the program, and save it as a crystal");
}

void BatchServices::message(const std::string& text, const std::string& /*title*/) { throw RunFailure(text); }

void BatchServices::report(const std::vector<std::string>& lines, const std::string& /*title*/) { told = lines; }

BatchProgram::BatchProgram() : program_(find_data_root(data_places()), services_) {
  program_.start();
  (void)services_.make_surface(1, 1);  // starts Qt, whose fonts exports need
}

void BatchProgram::choose_radiation(const std::string& word) {
  auto& box = window<Main1Form>().Combo1;
  const std::string choice = word.ends_with("kV") ? word.substr(0, word.size() - 2) : word;
  const auto& items = box.items();
  const auto found = std::find(items.begin(), items.end(), choice);
  if (found == items.end()) {
    std::string known;
    for (const auto& item : items) known += (known.empty() ? "" : ", ") + item;
    throw CLI::ValidationError("--radiation", word + " is none of " + known + " (kV)");
  }
  box.pick(static_cast<int>(found - items.begin()));
}

void BatchProgram::set_dmin(double dmin) { window<Main1Form>().Text15.set_text(plain_text(to_single(dmin))); }

void BatchProgram::click(const CommandButton& button) {
  if (button.warn_when) {
    const std::string reason = button.warn_when();
    if (!reason.empty()) throw RunFailure(reason);
  }
  button.click();
}

void BatchProgram::naming(const std::string& path, const std::function<void()>& action) {
  try {
    action();
  } catch (const RunFailure& failure) {
    // What was clicked on the way is nothing to whoever gave a command.
    const std::string reason = failure.message().substr(0, failure.message().find(", while "));
    const std::string name = path.substr(path.rfind('/') + 1);
    throw RunFailure(reason.find(name) != std::string::npos ? reason : path + ": " + reason);
  }
}

void BatchProgram::load(const std::string& path) {
  auto& main1 = window<Main1Form>();
  services_.told.clear();
  naming(path, [&] {
    auto& button = path.ends_with(".cry") ? main1.DATA_LOAD : main1.ImportStructure;
    main1.CommonDialog1.answering(path, [&button] { button.click(); });
    if (!(state().RefCount > 0)) throw RunFailure("there are no reflections down to " + main1.Text15.text() + " A");
  });
}

std::string title_of(const std::string& path) {
  const std::string name = path.substr(path.rfind('/') + 1);
  return name.substr(0, name.rfind('.'));
}

}  // namespace zol
