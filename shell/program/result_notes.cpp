#include "shell/program/result_notes.h"

#include <algorithm>
#include <utility>

#include "core/number_text.h"
#include "shell/program/program.h"
#include "shell/services/latin1.h"

namespace zol {
namespace {

std::string contents_of(const Control& control) {
  switch (control.kind()) {
    case ControlKind::TextBox:
      return dynamic_cast<const TextBox&>(control).text();
    case ControlKind::ComboBox:
      return dynamic_cast<const ComboBox&>(control).text();
    case ControlKind::CheckBox:
      return plain_text(dynamic_cast<const CheckBox&>(control).value());
    case ControlKind::OptionButton:
      return dynamic_cast<const OptionButton&>(control).on() ? "1" : "0";
    case ControlKind::Slider:
      return plain_text(dynamic_cast<const Slider&>(control).value());
    default:
      throw std::logic_error(control.path() + " is nothing that something is made from");
  }
}

/// Whether there is something to say anything of.
bool shows_something(const Control& control) {
  if (const auto* list = dynamic_cast<const ListBox*>(&control)) return list->list_count() > 0;
  const auto* canvas = dynamic_cast<const Canvas*>(&control);
  return canvas != nullptr && !canvas->drawing().empty();
}

/// Another number when the contents have been begun anew; what is only added leaves it.
unsigned begun(const Control& control) {
  if (const auto* list = dynamic_cast<const ListBox*>(&control)) return static_cast<unsigned>(list->revision());
  const auto* canvas = dynamic_cast<const Canvas*>(&control);
  return canvas == nullptr ? 0 : canvas->begun();
}

/// "a", "a and b", "a, b and c".
std::string listed(const std::vector<std::string>& words) {
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0) text += i + 1 == words.size() ? " and " : ", ";
    text += words[i];
  }
  return text;
}

}  // namespace

std::string ResultNotes::Note::line() const {
  std::string text = changed.empty() ? "" : made + "; " + changed;
  for (const auto& remark : remarks) text += (text.empty() ? "" : "; ") + remark;
  return text;
}

std::string ResultNotes::Note::caption() const {
  std::string text = made;
  for (const auto& words : {changed, listed(remarks)}) {
    if (!words.empty()) text += (text.empty() ? "" : "; ") + words;
  }
  return text;
}

void ResultNotes::update() {
  for (const auto& name : program_.windows().names()) {
    const Window* window = program_.windows().find(name);
    if (window == nullptr) continue;
    for (const Control* shown : window->controls()) {
      if (shown->made_from || shown->remarks) update(*shown);
    }
  }
}

void ResultNotes::update(const Control& shown) {
  Result& result = results_[shown.path()];
  const auto contents = shown.copy();
  if (result.present.contents.lock() == contents) return;
  if (shown.made_from && !shown.made_from->by_way_of.empty()) {
    if (const Control* before = control(shown.made_from->by_way_of)) update(*before);
  }
  std::erase_if(result.known, [](const Noted& noted) { return noted.contents.expired(); });
  const auto known = std::find_if(result.known.begin(), result.known.end(),
                                  [&contents](const Noted& noted) { return noted.contents.lock() == contents; });
  const bool anew = std::exchange(result.begun, begun(shown)) != begun(shown) || !result.present.made;
  if (known != result.known.end()) {
    result.present = *known;
    return;
  }
  Noted& present = result.present;
  present.contents = contents;
  const bool empty = !shows_something(shown);
  if (empty) {
    present.made = nullptr;
  } else if (anew && shown.made_from) {
    present.made = made_now(*shown.made_from);
  }
  present.remarks = empty || !shown.remarks ? std::vector<std::string>() : shown.remarks();
  result.known.push_back(present);
}

const Control* ResultNotes::control(const std::string& path) const {
  const std::size_t dot = path.find('.');
  const Window* window = program_.windows().find(path.substr(0, dot));
  return window == nullptr ? nullptr : window->find(path.substr(dot + 1));
}

const ResultNotes::Result* ResultNotes::result(const std::string& path) const {
  const auto found = results_.find(path);
  return found == results_.end() ? nullptr : &found->second;
}

std::shared_ptr<const ResultNotes::Made> ResultNotes::made_now(const Origin& origin) const {
  Made made;
  const CrystalState& state = program_.state();
  for (const Inputs& group : origin.inputs) {
    for (const auto& name : group.fields) made.fields[name] = program_.state_fields().copy(name);
    for (const Control* input : group.controls) made.controls.push_back(contents_of(*input));
  }
  if (const Result* before = result(origin.by_way_of)) made.by_way_of = before->present.made;
  if (made.by_way_of) {
    made.what = made.by_way_of->what;
  } else {
    const std::string name = program_.crystal_name();
    made.what = name.empty() ? "an unnamed crystal" : name;
    if (state.WaveLength != 0) {
      made.what += state.AccVoltage > 0 ? ", " + plain_text(state.AccVoltage) + " kV"
                                        : ", " + plain_text(state.WaveLength) + " Å";
    }
  }
  return std::make_shared<const Made>(std::move(made));
}

void ResultNotes::add_changed(const Origin& origin, const Made& made, std::vector<std::string>& words) const {
  auto contents = made.controls.begin();
  for (const Inputs& group : origin.inputs) {
    bool same = std::all_of(group.fields.begin(), group.fields.end(), [&](const std::string& name) {
      const SharedCopy& before = made.fields.at(name);
      return program_.state_fields().copy(name, before) == before;
    });
    for (const Control* input : group.controls) same = contents_of(*input) == *contents++ && same;
    if (!same && std::find(words.begin(), words.end(), group.word) == words.end()) words.push_back(group.word);
  }
  if (!made.by_way_of) return;
  const Control* before = control(origin.by_way_of);
  if (before != nullptr && before->made_from) add_changed(*before->made_from, *made.by_way_of, words);
}

ResultNotes::Note ResultNotes::note_of(const Control& shown) const {
  const Result* found = result(shown.path());
  if (found == nullptr) return {};
  Note note;
  note.remarks = found->present.remarks;
  if (!found->present.made || !shown.made_from) return note;
  const Origin& origin = *shown.made_from;
  const Made& made = *found->present.made;
  note.made = (shown.kind() == ControlKind::Canvas ? "drawn for " : "made for ") + made.what;
  std::vector<std::string> words;
  add_changed(origin, made, words);
  if (words.empty()) return note;
  std::sort(words.begin(), words.end());
  note.changed = listed(words) + " changed since";
  if (origin.again.empty()) return note;
  if (const Control* before = control(origin.by_way_of)) {
    const Note first = note_of(*before);
    note.again = first.again;
  }
  note.again.insert(note.again.end(), origin.again.begin(), origin.again.end());
  return note;
}

}  // namespace zol
