#include "shell/services/controls.h"

#include <algorithm>

#include "shell/services/window.h"

namespace zol {
namespace {

[[noreturn]] void fail_item(const Control& control, int index, std::size_t count) {
  throw RunFailure("item " + std::to_string(index) + " of " + control.described() + " does not exist, it has " +
                   std::to_string(count) + " items, the first is 0");
}

}  // namespace

Control::Control(Window& window, std::string name, ControlKind kind, std::string caption)
    : window_(window), name_(std::move(name)), kind_(kind), shown_{std::move(caption)} {
  window_.add(*this);
}

std::string Control::path() const { return window_.name() + "." + name_; }

std::string Control::described() const {
  const std::string& caption = shown_.caption;
  const std::size_t first = caption.find_first_not_of(' ');
  if (first == std::string::npos) return path();
  return '"' + caption.substr(first, caption.find_last_not_of(' ') + 1 - first) + "\" (" + path() + ')';
}

const std::shared_ptr<const Control::Copy>& Control::copy() const {
  if (!copy_) copy_ = std::make_shared<const Copy>(Copy{shown_, copied_contents(), contents_kind()});
  return copy_;
}

void Control::put_back(const std::shared_ptr<const Copy>& copy) {
  if (copy == copy_) return;
  set_shown(copy->shown);
  take_contents(copy->contents);
  copy_ = copy;
}

void Control::store(StoreWriter& out, const Copy& copy) {
  zol::store(out, copy.shown);
  store_kept(out, copy.contents, copy.kind);
}

std::shared_ptr<const Control::Copy> Control::load(StoreReader& in) const {
  auto shown = zol::load<Shown>(in);
  return std::make_shared<const Copy>(Copy{std::move(shown), load_kept(in, contents_kind()), contents_kind()});
}

void Control::changed() {
  touched();
  if (auto* view = window_.view()) view->control_changed(*this);
}

void Control::set_caption(std::string_view caption) {
  shown_.caption = caption;
  changed();
}

void Control::set_visible(bool visible) {
  shown_.visible = visible;
  changed();
}

void Control::set_shown(Shown shown) {
  shown_ = std::move(shown);
  changed();
}

void TextBox::set_text(std::string_view text) {
  if (text == contents_.text) return;
  contents_.text = text;
  changed();
  on_change.fire(described() + " changed");
}

void TextBox::set_focus() {
  if (auto* view = window().view()) view->focus_wanted(*this);
}

int TextBox::press_key(int key) {
  on_key_press.fire("a key was pressed in " + described(), key);
  return key;
}

void TextBox::type(char character) {
  const int key = press_key(static_cast<unsigned char>(character));
  if (key == 0 || key == key_enter || key == '\n') return;
  std::string typed = contents_.text;
  if (key != key_backspace) {
    typed += static_cast<char>(key);
  } else if (!typed.empty()) {
    typed.pop_back();
  }
  set_text(typed);
}

void TextBox::leave() { on_lost_focus.fire(described() + " lost the focus"); }

void CheckBox::set_value(int value) {
  contents_.value = value;
  changed();
}

void CheckBox::click() {
  set_value(checked() ? 0 : 1);
  on_click.fire(described() + " was clicked");
}

void OptionButton::set_on(bool on) {
  if (on) {
    for (Control* control : window().controls()) {
      auto* other = dynamic_cast<OptionButton*>(control);
      if (other != nullptr && other != this && other->group_ == group_ && other->contents_.on) other->set_on(false);
    }
  }
  contents_.on = on;
  changed();
}

void OptionButton::click() {
  set_on(true);
  on_click.fire(described() + " was clicked");
}

void ComboBox::add_item(std::string_view item) {
  contents_.items.emplace_back(item);
  changed();
}

void ComboBox::set_text(std::string_view text) {
  contents_.text = text;
  changed();
}

void ComboBox::pick(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= contents_.items.size())
    fail_item(*this, index, contents_.items.size());
  set_text(contents_.items[static_cast<std::size_t>(index)]);
  on_click.fire(described() + " was clicked");
}

void ListBox::clear() {
  ++revision_;
  contents_.items.clear();
  contents_.colours.clear();
  contents_.list_index = -1;
  changed();
}

void ListBox::add_items(std::vector<std::string> items, Task& task) {
  constexpr std::size_t between_checks = 1024;
  std::size_t count = 0;
  contents_.items.own().reserve(contents_.items.size() + items.size());
  for (auto& item : items) {
    if (count++ % between_checks == 0) task.check();
    contents_.items.push_back(std::move(item));
    contents_.colours.push_back(contents_.fore_colour);
  }
  ++revision_;
  changed();
}

void ListBox::add_item(std::string item) {
  ++revision_;
  contents_.items.push_back(std::move(item));
  contents_.colours.push_back(contents_.fore_colour);
  changed();
}

void ListBox::set_list_index(int index) {
  if (index < -1 || index >= list_count()) fail_item(*this, index, contents_.items.size());
  contents_.list_index = index;
  changed();
}

void ListBox::pick(int index) {
  if (index < 0 || index >= list_count()) fail_item(*this, index, contents_.items.size());
  set_list_index(index);
  on_click.fire(described() + " was clicked");
}

void ProgressBar::set_range(Single minimum, Single maximum) {
  contents_.minimum = minimum;
  contents_.maximum = maximum;
  changed();
}

void ProgressBar::set_value(Single value) {
  contents_.value = value;
  changed();
}

void Slider::set_range(int minimum, int maximum) {
  contents_.minimum = minimum;
  contents_.maximum = maximum;
  set_value(contents_.value);
  changed();
}

void Slider::set_value(int value) {
  const int taken = std::clamp(value, contents_.minimum, contents_.maximum);
  if (taken == contents_.value) return;
  contents_.value = taken;
  changed();
  on_change.fire(described() + " was moved");
}

bool GridContents::sound() const {
  const auto within = [](int index, int count) { return index >= 0 && index < count; };
  return within(row, rows) && within(column, columns) && widths.size() == static_cast<std::size_t>(columns) &&
         cells.size() == static_cast<std::size_t>(rows) * widths.size();
}

Grid::Grid(Window& window, std::string name, int rows, int columns)
    : ControlWith(window, std::move(name), ControlKind::Grid, "") {
  constexpr int usual_width = 1000;
  contents_.rows = rows;
  contents_.columns = columns;
  contents_.cells.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns));
  contents_.widths.resize(static_cast<std::size_t>(columns), usual_width);
}

std::size_t Grid::cell(int row, int column) const {
  if (row < 0 || row >= contents_.rows) {
    throw RunFailure("row " + std::to_string(row) + " of the table " + path() + " is outside 0 to " +
                     std::to_string(contents_.rows - 1));
  }
  if (column < 0 || column >= contents_.columns) {
    throw RunFailure("column " + std::to_string(column) + " of the table " + path() + " is outside 0 to " +
                     std::to_string(contents_.columns - 1));
  }
  return static_cast<std::size_t>(row) * static_cast<std::size_t>(contents_.columns) + static_cast<std::size_t>(column);
}

void Grid::set_row(int row) {
  (void)cell(row, 0);
  contents_.row = row;
  changed();
}

void Grid::set_column(int column) {
  (void)cell(0, column);
  contents_.column = column;
  changed();
}

void Grid::set_text(std::string_view text) {
  contents_.cells[cell(contents_.row, contents_.column)] = text;
  changed();
}

const std::string& Grid::text(int row, int column) const { return contents_.cells[cell(row, column)]; }

int Grid::column_width(int column) const {
  (void)cell(0, column);
  return contents_.widths[static_cast<std::size_t>(column)];
}

void Grid::set_column_width(int column, int twips) {
  (void)cell(0, column);
  contents_.widths[static_cast<std::size_t>(column)] = twips;
  changed();
}

void Grid::clear() {
  contents_.cells.assign(contents_.cells.size(), "");
  changed();
}

int Grid::press_key(int key) {
  on_key_press.fire("a key was pressed in " + described(), key);
  return key;
}

void Grid::set_focus() {
  if (auto* view = window().view()) view->focus_wanted(*this);
}

}  // namespace zol
