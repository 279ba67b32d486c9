#include "shell/program/origins.h"

#include <algorithm>

namespace zol {
namespace {

bool is_made_from(const Control& control, Source source) {
  return std::find(control.made_from.begin(), control.made_from.end(), source) != control.made_from.end();
}

std::string and_joined(const std::vector<std::string>& words) {
  std::string text;
  for (const auto& word : words) text += (text.empty() ? "" : " and ") + word;
  return text;
}

}  // namespace

/// What is made from the list is made from what the list was computed from.
Origin Origins::of_content(const Control& control, const Origin& now) const {
  const auto list = lists_.find(now.reflections);
  return is_made_from(control, Source::Reflections) && list != lists_.end() ? list->second : now;
}

void Origins::note(const Windows& windows, const Snapshot& before, const Snapshot& after, const Origin& now) {
  std::erase_if(made_, [](const auto& entry) { return entry.first.expired(); });
  struct Made {
    const Control* control;
    Key key;
  };
  std::vector<Made> anew;
  bool list_made = false;
  for (const auto& [name, copy] : after.windows) {
    const Window* window = windows.find(name);
    if (window == nullptr) continue;
    const auto earlier = before.windows.find(name);
    for (std::size_t i = 0; i < copy.controls.size(); ++i) {
      const Control& control = *window->controls()[i];
      if (control.made_from.empty()) continue;
      const auto& held = copy.controls[i];
      const auto old = earlier == before.windows.end() ? nullptr : earlier->second.controls[i];
      if (old == held) continue;
      if (old != nullptr && !control.made_since(*old)) {
        if (const auto known = made_.find(old); known != made_.end()) made_[held] = Origin(known->second);
        continue;
      }
      if (!control.holds_something()) continue;
      anew.push_back({&control, held});
      list_made = list_made || is_made_from(control, Source::Radiation);
    }
  }
  if (list_made || !lists_.contains(now.reflections)) lists_[now.reflections] = now;
  for (const auto& [control, key] : anew) made_[key] = of_content(*control, now);
}

std::string Origins::said_of(const Control& control, const Origin& now) const {
  const auto found = made_.find(control.copy());
  if (control.made_from.empty() || found == made_.end()) return "";
  const Origin& then = found->second;
  const bool by_list = is_made_from(control, Source::Reflections);
  std::vector<std::string> changed;
  if (then.crystal != now.crystal && (by_list || is_made_from(control, Source::Crystal))) changed.push_back("crystal");
  if (then.radiation != now.radiation && (by_list || is_made_from(control, Source::Radiation))) {
    changed.push_back("radiation");
  }
  if (changed.empty() && by_list && then.reflections != now.reflections) changed.push_back("reflections");
  if (changed.empty()) return "";
  const std::string done = control.kind() == ControlKind::Canvas ? "drawn" : "listed";
  return done + " for " + then.crystal_name + (then.radiation.empty() ? "" : ", " + then.radiation) + "; " +
         and_joined(changed) + " changed since";
}

}  // namespace zol
