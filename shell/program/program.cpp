#include "shell/program/program.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

#include "core/crystal_file.h"
#include "core/number_text.h"
#include "shell/program/main_menu_form.h"
#include "shell/program/step_name.h"
#include "shell/program/window_list.h"

namespace zol {
const char* const program_version = ZOL_VERSION;

Program::Program(DataRoot data, Services& services)
    : data_(std::move(data)), bench_(state_, windows_, services, data_) {
  module1_.add_fields(bench_.state);
  state_fields_.add_fields(state_);
  add_windows(bench_);
}

std::shared_ptr<const Snapshot> Program::snapshot() {
  last_ =
      std::make_shared<const Snapshot>(Snapshot{state_fields_.copies(last_->state), windows_.copies(last_->windows)});
  return last_;
}

void Program::put_back(const Snapshot& snapshot) {
  windows_.put_back(snapshot.windows);
  state_fields_.put_back(snapshot.state);
  went_back_ = true;
  last_ = std::make_shared<const Snapshot>(snapshot);
  tell_change();
}

void Program::tell_change() const {
  if (changed_) changed_(last_);
}

void Program::restore(const KeptWork& work) {
  bench_.saved_crystal = work.saved_crystal;
  put_back(*work.snapshot);
  went_back_ = false;
}

KeptWork Program::read_work(std::string_view bytes) {
  return zol::read_work(bytes, state_fields_, windows_, bench_.services);
}

KeptWork Program::kept_work(std::shared_ptr<const Snapshot> snapshot) const {
  const auto since_1970 = std::chrono::system_clock::now().time_since_epoch();
  WorkNote note;
  note.version = program_version;
  note.time_ms = std::chrono::duration_cast<std::chrono::milliseconds>(since_1970).count();
  if (holds_crystal()) note.crystal = crystal_name().empty() ? "new crystal" : crystal_name();
  for (const auto& [name, window] : snapshot->windows) {
    const Window* existing = windows_.find(name);
    const bool told = window.visible && (existing == nullptr || !existing->offers_kept_work);  // where it is offered
    if (told) note.windows += (note.windows.empty() ? "" : ", ") + name;
  }
  return {note, std::move(snapshot), bench_.saved_crystal};
}

std::string Program::crystal_name() const {
  for (const auto& name : windows_.names()) {
    const Window* window = windows_.find(name);
    if (window == nullptr || window->crystal_file == nullptr) continue;
    const std::string& path = window->crystal_file->text();
    const std::string file = path.substr(path.rfind('/') + 1);
    return file.substr(0, file.rfind('.'));
  }
  return "";
}

std::string Program::radiation() const {
  const CrystalState& state = state_;
  if (state.AccVoltage > 0) return plain_text(state.AccVoltage) + " kV";
  return state.WaveLength > 0 ? plain_text(state.WaveLength) + " Å" : "";
}

bool Program::holds_crystal() const {
  const CrystalState& state = state_;
  const auto is_set = [](Single constant) { return constant != 0; };
  const std::array cell{state.CellA, state.CellB, state.CellC, state.CellAlpha, state.CellBeta, state.CellGamma};
  return std::any_of(cell.begin(), cell.end(), is_set) || state.NAtom > 0 || state.JcpdsCount > 0;
}

bool Program::crystal_unsaved() const { return holds_crystal() && crystal_file_text(state_) != bench_.saved_crystal; }

std::function<void()> Program::keep() {
  return [this, kept = snapshot()] { put_back(*kept); };
}

void Program::watch(EventGate& gate) {
  began_ = last_;
  gate.set_keep([this] {
    went_back_ = false;
    auto put_back = keep();
    began_ = last_;
    return put_back;
  });
  gate.set_done([this](const UserEvent& event) {
    if (std::exchange(went_back_, false)) return;
    const auto before = began_;
    auto after = snapshot();
    last_ = after;
    tell_change();
    if (same_work(*before, *after)) return;
    history_.note(step_of(event, windows_), before, std::move(after));
  });
}

void Program::start() { windows_.use(MainMenuForm::window_name).show(); }

}  // namespace zol
