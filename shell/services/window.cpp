#include "shell/services/window.h"

#include <algorithm>

#include "core/run_failure.h"

namespace zol {

void Window::set_caption(std::string_view caption) {
  caption_ = caption;
  if (view_ != nullptr) view_->window_changed(*this);
}

void Window::set_mouse_pointer(MousePointer pointer) {
  mouse_pointer_ = pointer;
  if (view_ != nullptr) view_->window_changed(*this);
}

void Window::show() {
  visible_ = true;
  if (view_ != nullptr) view_->window_shown(*this);
  on_activate.fire(name_ + " was shown");
}

void Window::activate() { on_activate.fire(name_ + " was activated"); }

void Window::hide() {
  visible_ = false;
  if (view_ != nullptr) view_->window_changed(*this);
}

Window::Copy Window::copy(const Copy* before) const {
  Copy copy{
      caption_, mouse_pointer_, visible_, before != nullptr ? fields_.copies(before->fields) : fields_.copies(), {}};
  copy.controls.reserve(controls_.size());
  for (const Control* control : controls_) copy.controls.push_back(control->copy());
  return copy;
}

void Window::put_back(const Copy& copy) {
  fields_.put_back(copy.fields);
  for (std::size_t i = 0; i < std::min(controls_.size(), copy.controls.size()); ++i) {
    controls_[i]->put_back(copy.controls[i]);
  }
  caption_ = copy.caption;
  mouse_pointer_ = copy.mouse_pointer;
  const bool comes_up = copy.visible && !visible_;
  visible_ = copy.visible;
  if (view_ == nullptr) return;
  if (comes_up) view_->window_shown(*this);
  view_->window_changed(*this);
}

void Window::store(StoreWriter& out, const Copy& copy) {
  out.text(copy.caption);
  zol::store(out, copy.mouse_pointer);
  zol::store(out, copy.visible);
  NamedValues::store(out, copy.fields);
  for (const auto& control : copy.controls) Control::store(out, *control);
}

Window::Copy Window::load(StoreReader& in) const {
  Copy copy;
  copy.caption = in.text();
  copy.mouse_pointer = zol::load<MousePointer>(in);
  copy.visible = zol::load<bool>(in);
  copy.fields = fields_.load(in);
  for (const Control* control : controls_) copy.controls.push_back(control->load(in));
  return copy;
}

Control* Window::find(std::string_view control_name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [control_name](const Control* control) { return control->name() == control_name; });
  return found == controls_.end() ? nullptr : *found;
}

const std::function<void()>* Window::operation(const std::string& name) const {
  const auto found = operations_.find(name);
  return found == operations_.end() ? nullptr : &found->second;
}

std::vector<std::string> Window::operation_names() const {
  std::vector<std::string> names;
  for (const auto& [name, operation] : operations_) names.push_back(name);
  return names;
}

Window& Windows::use(const std::string& name) {
  if (Window* existing = find(name)) return *existing;
  return make(name, true);
}

Window& Windows::make(const std::string& name, bool opens) {
  const auto type = types_.find(name);
  if (type == types_.end()) throw RunFailure("there is no window " + name);
  auto made = type->second.make();
  Window& window = *made;
  windows_[name] = std::move(made);
  window.set_view(view_);
  try {
    if (view_ != nullptr) view_->window_created(window);
    type->second.load(window);
    if (opens) window.on_load.fire(name + " was opened");
  } catch (...) {
    unload(name);
    throw;
  }
  return window;
}

Window* Windows::find(const std::string& name) const {
  const auto found = windows_.find(name);
  return found == windows_.end() ? nullptr : found->second.get();
}

std::vector<std::string> Windows::names() const {
  std::vector<std::string> names;
  for (const auto& [name, type] : types_) names.push_back(name);
  return names;
}

Windows::Copies Windows::copies(const Copies& before) const {
  Copies copies;
  for (const auto& [name, window] : windows_) {
    const auto known = before.find(name);
    copies.emplace_hint(copies.end(), name, window->copy(known == before.end() ? nullptr : &known->second));
  }
  return copies;
}

void Windows::put_back(const Copies& copies) {
  for (const auto& name : names()) {
    if (!copies.contains(name)) unload(name);
  }
  for (const auto& [name, copy] : copies) {
    Window* existing = find(name);
    (existing != nullptr ? *existing : make(name, false)).put_back(copy);
  }
}

void Windows::store(StoreWriter& out, const Copies& copies) {
  out.count(copies.size());
  for (const auto& [name, copy] : copies) {
    out.text(name);
    Window::store(out, copy);
  }
}

/// Each copy is read by a window of its kind, which stays out of sight.
Windows::Copies Windows::load(StoreReader& in) const {
  Copies copies;
  for (std::size_t left = in.count(); left > 0; --left) {
    const std::string name = in.text();
    const auto type = types_.find(name);
    if (type == types_.end()) StoreReader::fail("there is no window " + name);
    copies.insert_or_assign(name, type->second.make()->load(in));
  }
  return copies;
}

void Windows::unload(const std::string& name) {
  const auto found = windows_.find(name);
  if (found == windows_.end()) return;
  if (view_ != nullptr) view_->window_unloaded(*found->second);
  found->second->set_view(nullptr);
  found->second->life_.reset();
  unloaded_.push_back(std::move(found->second));
  windows_.erase(found);
}

void Windows::set_view(WindowView* view) {
  view_ = view;
  for (const auto& [name, window] : windows_) window->set_view(view);
}

}  // namespace zol
