#include "shell/services/controls.h"

#include "shell/services/window.h"

namespace zol {
namespace {

[[noreturn]] void fail_item(const Control& control, int index, std::size_t count) {
  throw RunFailure("item " + std::to_string(index) + " of " + control.described() + " does not exist, it has " +
                   std::to_string(count) + " items, the first is 0");
}

}  // namespace

Control::Control(Window& window, std::string name, ControlKind kind, std::string caption)
    : window_(window), name_(std::move(name)), kind_(kind), caption_(std::move(caption)) {
  window_.add(*this);
}

std::string Control::path() const { return window_.name() + "." + name_; }

std::string Control::described() const {
  const std::size_t first = caption_.find_first_not_of(' ');
  if (first == std::string::npos) return path();
  return '"' + caption_.substr(first, caption_.find_last_not_of(' ') + 1 - first) + "\" (" + path() + ')';
}

void Control::changed() {
  if (auto* view = window_.view()) view->control_changed(*this);
}

void Control::set_caption(std::string_view caption) {
  caption_ = caption;
  changed();
}

void Control::set_visible(bool visible) {
  visible_ = visible;
  changed();
}

void TextBox::set_text(std::string_view text) {
  if (text == text_) return;
  text_ = text;
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
  std::string typed = text_;
  if (key != key_backspace) {
    typed += static_cast<char>(key);
  } else if (!typed.empty()) {
    typed.pop_back();
  }
  set_text(typed);
}

void TextBox::leave() { on_lost_focus.fire(described() + " lost the focus"); }

void CheckBox::set_value(int value) {
  value_ = value;
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
      if (other != nullptr && other != this && other->group_ == group_ && other->on_) other->set_on(false);
    }
  }
  on_ = on;
  changed();
}

void OptionButton::click() {
  set_on(true);
  on_click.fire(described() + " was clicked");
}

void ComboBox::add_item(std::string_view item) {
  items_.emplace_back(item);
  changed();
}

void ComboBox::set_text(std::string_view text) {
  text_ = text;
  changed();
}

void ComboBox::pick(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= items_.size()) fail_item(*this, index, items_.size());
  set_text(items_[static_cast<std::size_t>(index)]);
  on_click.fire(described() + " was clicked");
}

void ListBox::clear() {
  ++revision_;
  items_.clear();
  colours_.clear();
  list_index_ = -1;
  changed();
}

void ListBox::add_item(std::string_view item) {
  ++revision_;
  items_.emplace_back(item);
  colours_.push_back(fore_colour_);
  changed();
}

void ListBox::set_list_index(int index) {
  if (index < -1 || index >= list_count()) fail_item(*this, index, items_.size());
  list_index_ = index;
  changed();
}

void ListBox::pick(int index) {
  if (index < 0 || index >= list_count()) fail_item(*this, index, items_.size());
  set_list_index(index);
  on_click.fire(described() + " was clicked");
}

void ProgressBar::set_range(Single minimum, Single maximum) {
  minimum_ = minimum;
  maximum_ = maximum;
  changed();
}

void ProgressBar::set_value(Single value) {
  value_ = value;
  changed();
}

Grid::Grid(Window& window, std::string name, int rows, int columns)
    : Control(window, std::move(name), ControlKind::Grid, ""),
      rows_(rows),
      columns_(columns),
      cells_(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns)),
      widths_(static_cast<std::size_t>(columns), 1000) {}

std::size_t Grid::cell(int row, int column) const {
  if (row < 0 || row >= rows_) {
    throw RunFailure("row " + std::to_string(row) + " of the table " + path() + " is outside 0 to " +
                     std::to_string(rows_ - 1));
  }
  if (column < 0 || column >= columns_) {
    throw RunFailure("column " + std::to_string(column) + " of the table " + path() + " is outside 0 to " +
                     std::to_string(columns_ - 1));
  }
  return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) + static_cast<std::size_t>(column);
}

void Grid::set_row(int row) {
  (void)cell(row, 0);
  row_ = row;
  changed();
}

void Grid::set_column(int column) {
  (void)cell(0, column);
  column_ = column;
  changed();
}

void Grid::set_text(std::string_view text) {
  cells_[cell(row_, column_)] = text;
  changed();
}

const std::string& Grid::text(int row, int column) const { return cells_[cell(row, column)]; }

int Grid::column_width(int column) const {
  (void)cell(0, column);
  return widths_[static_cast<std::size_t>(column)];
}

void Grid::set_column_width(int column, int twips) {
  (void)cell(0, column);
  widths_[static_cast<std::size_t>(column)] = twips;
  changed();
}

void Grid::clear() {
  cells_.assign(cells_.size(), "");
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
