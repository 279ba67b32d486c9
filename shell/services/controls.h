// Controls of windows as plain objects without a toolkit: they are the truth, a view shows them.
//
// Writing a property from the program tells the view; only a text box also fires its change handler, inside the write
// and only if the text differs. What a user does comes in through the operations that are named after it (click, pick,
// type).
#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/number_text.h"
#include "core/numbers.h"
#include "core/run_failure.h"

namespace zol {

class Window;

/// Colour packed as r + 256 g + 65536 b.
using Colour = std::int32_t;
/// Each part is cut to 0 to 255.
[[nodiscard]] constexpr Colour RGB(int r, int g, int b) {
  constexpr int most = 255;
  return std::clamp(r, 0, most) + 256 * std::clamp(g, 0, most) + 65536 * std::clamp(b, 0, most);
}
namespace colours {
inline constexpr Colour black = RGB(0, 0, 0);
inline constexpr Colour white = RGB(255, 255, 255);
inline constexpr Colour red = RGB(255, 0, 0);
inline constexpr Colour green = RGB(0, 255, 0);
inline constexpr Colour blue = RGB(0, 0, 255);
}  // namespace colours

enum class MousePointer { Default = 0, CrossHair = 2, Hourglass = 11 };

inline constexpr int key_enter = 13;
inline constexpr int key_backspace = 8;

/// What happens when an event comes in. A failure that leaves the handler gets the event as context.
template <class... Args>
class Event {
 public:
  Event& operator=(std::function<void(Args...)> handler) {
    handler_ = std::move(handler);
    return *this;
  }
  [[nodiscard]] explicit operator bool() const { return static_cast<bool>(handler_); }
  void fire(const std::string& what, Args... args) const {
    if (!handler_) return;
    const auto handler = handler_;  // the window may be unloaded meanwhile
    try {
      handler(args...);
    } catch (RunFailure& failure) {
      failure.add_context(what);
      throw;
    }
  }

 private:
  std::function<void(Args...)> handler_;
};

enum class ControlKind {
  TextBox,
  Label,
  CommandButton,
  CheckBox,
  OptionButton,
  ComboBox,
  ListBox,
  Frame,
  MenuItem,
  ProgressBar,
  Grid,
  Canvas
};

class Control {
 public:
  /// @param caption  its own text, or for a box the text that stands beside it
  Control(Window& window, std::string name, ControlKind kind, std::string caption);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  [[nodiscard]] const std::string& name() const { return name_; }
  [[nodiscard]] std::string path() const;  ///< "Window.Control"
  /// For messages: its caption, where it has one, and its path.
  [[nodiscard]] std::string described() const;
  [[nodiscard]] ControlKind kind() const { return kind_; }
  [[nodiscard]] Window& window() const { return window_; }

  [[nodiscard]] const std::string& caption() const { return caption_; }
  void set_caption(std::string_view caption);
  [[nodiscard]] bool visible() const { return visible_; }
  void set_visible(bool visible);

 protected:
  void changed();  ///< tells the view

 private:
  Window& window_;
  std::string name_;
  ControlKind kind_;
  std::string caption_;
  bool visible_ = true;
};

class TextBox : public Control {
 public:
  TextBox(Window& window, std::string name, std::string caption = "")
      : Control(window, std::move(name), ControlKind::TextBox, std::move(caption)) {}

  [[nodiscard]] const std::string& text() const { return text_; }
  /// Fires on_change, inside the write, if the text differs.
  void set_text(std::string_view text);
  void set_focus();

  /// A key press; the handler may swallow it by setting the key to 0. @returns the key that is left
  int press_key(int key);
  /// Types one character at the end: the key press, then, unless swallowed, the character, or backspace the other way.
  /// A line break has no place in the box.
  void type(char character);
  void leave();  ///< the focus goes elsewhere

  Event<> on_change;
  Event<int&> on_key_press;
  Event<> on_lost_focus;
  bool holds_file_name = false;  ///< bytes of the file system, where other boxes hold Latin-1

 private:
  std::string text_;
};

/// Converts what Val makes of a typed text. @throws RunFailure  it does not fit; the message tells what the text is
template <class Convert>
[[nodiscard]] auto typed_number(const std::string& what, const std::string& text, const Convert& convert) {
  try {
    return convert(Val(text));
  } catch (const RunFailure& failure) {
    throw RunFailure(what + " is \"" + text + "\": " + failure.message());
  }
}

/// The number in a box. @throws RunFailure  it does not fit; the message names the box
template <class Convert>
[[nodiscard]] auto number_in(const TextBox& box, const Convert& convert) {
  return typed_number(box.described(), box.text(), convert);
}
[[nodiscard]] inline Single single_in(const TextBox& box) { return number_in(box, to_single); }
[[nodiscard]] inline Integer integer_in(const TextBox& box) { return number_in(box, Integer::rounded); }
[[nodiscard]] inline Long long_in(const TextBox& box) { return number_in(box, Long::rounded); }

/// Swallows Enter. @returns true when the key was Enter
inline bool swallow_enter(int& key) {
  if (key != key_enter) return false;
  key = 0;
  return true;
}

/// Enter is swallowed and the focus goes on.
inline void enter_moves_to(TextBox& next, int& key) {
  if (swallow_enter(key)) next.set_focus();
}

class Label : public Control {
 public:
  Label(Window& window, std::string name, std::string caption = "", std::string beside = "")
      : Control(window, std::move(name), ControlKind::Label, std::move(caption)), beside_(std::move(beside)) {}
  [[nodiscard]] const std::string& beside() const { return beside_; }  ///< fixed text beside it

 private:
  std::string beside_;
};

class CommandButton : public Control {
 public:
  CommandButton(Window& window, std::string name, std::string caption = "")
      : Control(window, std::move(name), ControlKind::CommandButton, std::move(caption)) {}
  void click() const { on_click.fire(described() + " was clicked"); }
  Event<> on_click;
};

class CheckBox : public Control {
 public:
  CheckBox(Window& window, std::string name, std::string caption = "")
      : Control(window, std::move(name), ControlKind::CheckBox, std::move(caption)) {}
  [[nodiscard]] int value() const { return value_; }  ///< 0 off, 1 on
  [[nodiscard]] bool checked() const { return value_ == 1; }
  void set_value(int value);
  void click();  ///< turns the value over, then fires
  Event<> on_click;

 private:
  int value_ = 0;
};

/// Option buttons of one group of a window exclude each other.
class OptionButton : public Control {
 public:
  OptionButton(Window& window, std::string name, std::string caption = "", std::string group = "")
      : Control(window, std::move(name), ControlKind::OptionButton, std::move(caption)), group_(std::move(group)) {}
  [[nodiscard]] bool on() const { return on_; }
  [[nodiscard]] const std::string& group() const { return group_; }
  void set_on(bool on);
  void click();  ///< switches on, then fires
  Event<> on_click;

 private:
  std::string group_;
  bool on_ = false;
};

class ComboBox : public Control {
 public:
  ComboBox(Window& window, std::string name, std::string caption = "")
      : Control(window, std::move(name), ControlKind::ComboBox, std::move(caption)) {}
  [[nodiscard]] const std::string& text() const { return text_; }
  [[nodiscard]] const std::vector<std::string>& items() const { return items_; }
  void add_item(std::string_view item);
  void set_text(std::string_view text);  ///< from the program; fires nothing
  /// The user picks an item; fires. @throws RunFailure  no such item
  void pick(int index);
  Event<> on_click;

 private:
  std::string text_;
  std::vector<std::string> items_;
};

class ListBox : public Control {
 public:
  ListBox(Window& window, std::string name, std::string caption = "")
      : Control(window, std::move(name), ControlKind::ListBox, std::move(caption)) {}
  void clear();
  void add_item(std::string_view item);
  [[nodiscard]] int list_count() const { return static_cast<int>(items_.size()); }
  [[nodiscard]] const std::vector<std::string>& items() const { return items_; }
  [[nodiscard]] int list_index() const { return list_index_; }  ///< -1 when nothing is selected
  void set_list_index(int index);
  [[nodiscard]] bool selected(int index) const { return index == list_index_; }
  [[nodiscard]] int revision() const { return revision_; }  ///< another one when the lines have changed
  [[nodiscard]] Colour colour_of(int index) const { return colours_[static_cast<std::size_t>(index)]; }
  /// Colour of the lines that are added from now on; those that stand keep theirs.
  void set_fore_colour(Colour colour) { fore_colour_ = colour; }
  /// The user picks a line; fires. @throws RunFailure  no such line
  void pick(int index);
  Event<> on_click;

 private:
  std::vector<std::string> items_;
  std::vector<Colour> colours_;  // of the items
  int list_index_ = -1;
  int revision_ = 0;
  Colour fore_colour_ = 0;
};

class Frame : public Control {
 public:
  Frame(Window& window, std::string name, std::string caption = "")
      : Control(window, std::move(name), ControlKind::Frame, std::move(caption)) {}
};

class MenuItem : public Control {
 public:
  /// @param menu  title of the menu that it stands in; empty for an item of the menu bar
  MenuItem(Window& window, std::string name, std::string caption, std::string menu = "")
      : Control(window, std::move(name), ControlKind::MenuItem, std::move(caption)), menu_(std::move(menu)) {}
  [[nodiscard]] const std::string& menu() const { return menu_; }
  void click() const { on_click.fire(described() + " was clicked"); }
  Event<> on_click;

 private:
  std::string menu_;
};

class ProgressBar : public Control {
 public:
  ProgressBar(Window& window, std::string name) : Control(window, std::move(name), ControlKind::ProgressBar, "") {}
  [[nodiscard]] Single minimum() const { return minimum_; }
  [[nodiscard]] Single maximum() const { return maximum_; }
  [[nodiscard]] Single value() const { return value_; }
  void set_range(Single minimum, Single maximum);
  void set_value(Single value);

 private:
  Single minimum_ = 0;
  Single maximum_ = 100;
  Single value_ = 0;
};

/// A table of text cells; row 0 and column 0 are fixed headers. One cell is the current one.
class Grid : public Control {
 public:
  Grid(Window& window, std::string name, int rows, int columns);
  [[nodiscard]] int rows() const { return rows_; }
  [[nodiscard]] int columns() const { return columns_; }
  [[nodiscard]] int row() const { return row_; }
  [[nodiscard]] int column() const { return column_; }
  /// @throws RunFailure  a row or column beyond the table
  void set_row(int row);
  void set_column(int column);
  [[nodiscard]] const std::string& text() const { return text(row_, column_); }
  void set_text(std::string_view text);  ///< of the current cell
  [[nodiscard]] const std::string& text(int row, int column) const;
  [[nodiscard]] int column_width(int column) const;  ///< twips
  void set_column_width(int column, int twips);
  void clear();  ///< empties all cells, headers included
  /// A key press; the handler may swallow it. @returns the key that is left
  int press_key(int key);
  void set_focus();

  Event<int&> on_key_press;

 private:
  [[nodiscard]] std::size_t cell(int row, int column) const;

  int rows_;
  int columns_;
  int row_ = 1;
  int column_ = 1;
  std::vector<std::string> cells_;
  std::vector<int> widths_;
};

/// Members of a control array are named "Name(0)", "Name(1)", ...
template <class Kind>
class ControlArray {
 public:
  ControlArray(Window& window, const std::string& name, int count) {
    for (int i = 0; i < count; ++i) {
      members_.push_back(std::make_unique<Kind>(window, name + "(" + std::to_string(i) + ")"));
    }
  }
  [[nodiscard]] Kind& operator()(int index) const { return *members_.at(static_cast<std::size_t>(index)); }
  [[nodiscard]] int count() const { return static_cast<int>(members_.size()); }

 private:
  std::vector<std::unique_ptr<Kind>> members_;
};

}  // namespace zol
