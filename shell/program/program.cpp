#include "shell/program/program.h"

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <utility>

#include "core/crystal_file.h"
#include "core/number_text.h"
#include "shell/program/main_menu_form.h"
#include "shell/program/step_name.h"
#include "shell/program/window_list.h"

namespace zol {
namespace {

/// All that an Origin is made of.
constexpr std::array origin_fields{
    "CellA",      "CellB",       "CellC",    "CellAlpha", "CellBeta",    "CellGamma", "LatticeLetter",
    "SGNumber",   "AxisSetting", "NAtom",    "AtomLabel", "AtomElement", "AtomOcc",   "AtomPos",
    "AtomB",      "JcpdsCount",  "JcpdsH",   "JcpdsK",    "JcpdsL",      "JcpdsI",    "CrystalFile",
    "AccVoltage", "WaveLength",  "RefCount", "RefH",      "RefK",        "RefL",      "RefI"};

SharedCopy field_of(const Snapshot& snapshot, const std::string& name) {
  const auto found = snapshot.state.find(name);
  return found == snapshot.state.end() ? nullptr : found->second;
}

/// Of indices and intensities; a sum over the reflections, so that their order does not count.
std::uint64_t list_digest(const CrystalState& state) {
  std::uint64_t sum = 0;
  for (int i = 1; i <= state.RefCount.value() && i <= state.RefH.upper(); ++i) {
    std::uint64_t mixed = std::bit_cast<std::uint32_t>(state.RefI(i));
    for (const Integer index : {state.RefH(i), state.RefK(i), state.RefL(i)}) {
      mixed = (mixed ^ static_cast<std::uint16_t>(index.value())) * 0x9e3779b97f4a7c15U;
      mixed ^= mixed >> 29U;
    }
    sum += mixed;
  }
  return sum;
}

}  // namespace

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
  if (told_) told_();
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

/// Made again only where one of its fields is another one.
const Origin& Program::origin() {
  std::vector<SharedCopy> fields;
  for (const char* name : origin_fields) fields.push_back(field_of(*last_, name));
  if (fields == origin_fields_) return origin_;
  const std::string name = crystal_name();
  origin_ = {crystal_file_text(state_), name.empty() ? "new crystal" : name, radiation(), list_digest(state_)};
  origin_fields_ = std::move(fields);
  return origin_;
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
    origins_.note(windows_, *before, *after, origin());
    last_ = after;
    tell_change();
    if (same_work(*before, *after)) return;
    history_.note(step_of(event, windows_), before, std::move(after));
  });
}

void Program::start() { windows_.use(MainMenuForm::window_name).show(); }

}  // namespace zol
