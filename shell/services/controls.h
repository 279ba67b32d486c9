// Controls of windows as plain objects without a toolkit: they are the truth, a view shows them.
//
// Writing a property from the program tells the view; only a text box also fires its change handler, inside the write
// and only if the text differs. What a user does comes in through the operations that are named after it (click, pick,
// type).
#pragma once

#include <algorithm>
#include <any>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/number_text.h"
#include "core/numbers.h"
#include "core/run_failure.h"
#include "core/shared_vector.h"
#include "core/task.h"
#include "shell/services/origin.h"
#include "shell/services/stored.h"

namespace zol {

class Window;
struct ListColumns;

/// Why an action would end the run, or be of no use, in the present state; empty where it is fine. It begins with a
/// small letter, has no full stop, and changes nothing. A script knows nothing of it.
using Reason = std::function<std::string()>;

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
  Slider,
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

  [[nodiscard]] const std::string& caption() const { return shown_.caption; }
  void set_caption(std::string_view caption);
  [[nodiscard]] bool visible() const { return shown_.visible; }
  void set_visible(bool visible);

  /// What all kinds have.
  struct Shown {
    std::string caption;
    bool visible = true;
    bool operator==(const Shown&) const = default;
  };
  [[nodiscard]] const Shown& shown() const { return shown_; }
  /// Fires nothing; the view is told. So do set_contents and put_back.
  void set_shown(Shown shown);
  /// All that can change about it: what all kinds have, and the contents of its kind. The same one as long as nothing
  /// has changed.
  struct Copy {
    Shown shown;
    std::any contents;
    const ValueKind* kind = nullptr;  ///< of the contents; none where there are none
  };
  [[nodiscard]] const std::shared_ptr<const Copy>& copy() const;
  /// Takes a copy of a control of the same kind. @throws std::bad_any_cast  it is of another kind
  void put_back(const std::shared_ptr<const Copy>& copy);
  static void store(StoreWriter& out, const Copy& copy);
  /// A copy of a control of this kind. @throws RunFailure  the bytes hold none
  [[nodiscard]] std::shared_ptr<const Copy> load(StoreReader& in) const;

  // What the front end says beside it; scripts and results know nothing of it
  Reason warn_when = {};                                ///< against a click, or Enter in a box or a table
  std::function<std::vector<std::string>()> remarks{};  ///< words beside a result that is right by rule alone
  std::optional<Origin> made_from = {};                 ///< what its contents are made from

 protected:
  void changed();                    ///< tells the view
  void touched() { copy_.reset(); }  ///< something has changed that no view shows
  [[nodiscard]] virtual std::any copied_contents() const { return {}; }
  [[nodiscard]] virtual const ValueKind* contents_kind() const { return nullptr; }
  virtual void take_contents(const std::any& /*contents*/) {}

 private:
  Window& window_;
  std::string name_;
  ControlKind kind_;
  Shown shown_;
  mutable std::shared_ptr<const Copy> copy_;  ///< none where something has changed since
};

/// A control of a kind that has more than caption and visibility.
template <class Value>
class ControlWith : public Control {
 public:
  using Contents = Value;
  using Control::Control;

  [[nodiscard]] const Contents& contents() const { return contents_; }
  void set_contents(Contents contents) {
    contents_ = std::move(contents);
    contents_replaced();
    changed();
  }

 protected:
  [[nodiscard]] std::any copied_contents() const override { return contents_; }
  [[nodiscard]] const ValueKind* contents_kind() const override { return &value_kind<Contents>; }
  void take_contents(const std::any& contents) override { set_contents(std::any_cast<const Contents&>(contents)); }
  virtual void contents_replaced() {}
  Contents contents_;
};

// What each kind of control holds. Some of it has to fit together, which is sound() then.
struct TextBoxContents {
  std::string text;
  bool operator==(const TextBoxContents&) const = default;
};
struct CheckBoxContents {
  int value = 0;
  bool operator==(const CheckBoxContents&) const = default;
};
struct OptionButtonContents {
  bool on = false;
  bool operator==(const OptionButtonContents&) const = default;
};
struct ComboBoxContents {
  std::string text;
  std::vector<std::string> items;
  bool operator==(const ComboBoxContents&) const = default;
};
struct ListBoxContents {
  SharedVector<std::string> items;
  std::vector<Colour> colours;  ///< of the items, one each
  int list_index = -1;
  Colour fore_colour = colours::black;
  bool operator==(const ListBoxContents&) const = default;
  [[nodiscard]] bool sound() const {
    return colours.size() == items.size() && list_index >= -1 && list_index < static_cast<int>(items.size());
  }
};
struct ProgressBarContents {
  Single minimum = 0, maximum = 100, value = 0;
  bool operator==(const ProgressBarContents&) const = default;
  [[nodiscard]] bool sound() const { return std::isfinite(minimum) && std::isfinite(maximum) && std::isfinite(value); }
};
struct SliderContents {
  int minimum = 0, maximum = 100, value = 0;
  bool operator==(const SliderContents&) const = default;
  [[nodiscard]] bool sound() const { return minimum <= maximum; }
};
struct GridContents {
  int rows = 0, columns = 0;
  int row = 1, column = 1;         ///< of the current cell
  std::vector<std::string> cells;  ///< row by row
  std::vector<int> widths;         ///< of the columns, twips
  bool operator==(const GridContents&) const = default;
  [[nodiscard]] bool sound() const;
};

class TextBox : public ControlWith<TextBoxContents> {
 public:
  TextBox(Window& window, std::string name, std::string caption = "")
      : ControlWith(window, std::move(name), ControlKind::TextBox, std::move(caption)) {}

  [[nodiscard]] const std::string& text() const { return contents_.text; }
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
  std::function<std::string(const std::string& text)> warn_text = {};  ///< why this text should not be typed
  bool holds_file_name = false;  ///< bytes of the file system, where other boxes hold Latin-1
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

class CheckBox : public ControlWith<CheckBoxContents> {
 public:
  CheckBox(Window& window, std::string name, std::string caption = "")
      : ControlWith(window, std::move(name), ControlKind::CheckBox, std::move(caption)) {}
  [[nodiscard]] int value() const { return contents_.value; }  ///< 0 off, 1 on
  [[nodiscard]] bool checked() const { return contents_.value == 1; }
  void set_value(int value);
  void click();  ///< turns the value over, then fires
  Event<> on_click;
};

/// Option buttons of one group of a window exclude each other.
class OptionButton : public ControlWith<OptionButtonContents> {
 public:
  OptionButton(Window& window, std::string name, std::string caption = "", std::string group = "")
      : ControlWith(window, std::move(name), ControlKind::OptionButton, std::move(caption)), group_(std::move(group)) {}
  [[nodiscard]] bool on() const { return contents_.on; }
  [[nodiscard]] const std::string& group() const { return group_; }
  void set_on(bool on);
  void click();  ///< switches on, then fires
  Event<> on_click;

 private:
  std::string group_;
};

class ComboBox : public ControlWith<ComboBoxContents> {
 public:
  ComboBox(Window& window, std::string name, std::string caption = "")
      : ControlWith(window, std::move(name), ControlKind::ComboBox, std::move(caption)) {}
  [[nodiscard]] const std::string& text() const { return contents_.text; }
  [[nodiscard]] const std::vector<std::string>& items() const { return contents_.items; }
  void add_item(std::string_view item);
  void set_text(std::string_view text);  ///< from the program; fires nothing
  /// The user picks an item; fires. @throws RunFailure  no such item
  void pick(int index);
  Event<> on_click;
  std::function<std::string(int index)> warn_row = {};  ///< why this item should not be picked
};

class ListBox : public ControlWith<ListBoxContents> {
 public:
  ListBox(Window& window, std::string name, std::string caption = "")
      : ControlWith(window, std::move(name), ControlKind::ListBox, std::move(caption)) {}
  void clear();
  void add_item(std::string item);
  /// Adds many of them. @param task  checked every now and then
  void add_items(std::vector<std::string> items, Task& task);
  [[nodiscard]] int list_count() const { return static_cast<int>(contents_.items.size()); }
  [[nodiscard]] const std::vector<std::string>& items() const { return contents_.items; }
  [[nodiscard]] int list_index() const { return contents_.list_index; }  ///< -1 when nothing is selected
  void set_list_index(int index);
  [[nodiscard]] bool selected(int index) const { return index == contents_.list_index; }
  [[nodiscard]] int revision() const { return revision_; }  ///< another one when the lines have changed
  [[nodiscard]] Colour colour_of(int index) const { return contents_.colours[static_cast<std::size_t>(index)]; }
  /// Colour of the lines that are added from now on; those that stand keep theirs.
  void set_fore_colour(Colour colour) {
    contents_.fore_colour = colour;
    touched();
  }
  /// The user picks a line; fires. @throws RunFailure  no such line
  void pick(int index);
  Event<> on_click;
  std::function<std::string(int index)> warn_row = {};  ///< why this line should not be picked
  std::shared_ptr<const ListColumns> table = {};        ///< how its lines are read as rows of a table; none: not at all

 private:
  void contents_replaced() override { ++revision_; }

  int revision_ = 0;
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
  std::function<bool()> checked_when = {};  ///< a mode that it switches is on; none: it switches none

 private:
  std::string menu_;
};

class ProgressBar : public ControlWith<ProgressBarContents> {
 public:
  ProgressBar(Window& window, std::string name) : ControlWith(window, std::move(name), ControlKind::ProgressBar, "") {}
  [[nodiscard]] Single minimum() const { return contents_.minimum; }
  [[nodiscard]] Single maximum() const { return contents_.maximum; }
  [[nodiscard]] Single value() const { return contents_.value; }
  void set_range(Single minimum, Single maximum);
  void set_value(Single value);
};

/// A whole number that is set by dragging.
class Slider : public ControlWith<SliderContents> {
 public:
  Slider(Window& window, std::string name, std::string caption = "")
      : ControlWith(window, std::move(name), ControlKind::Slider, std::move(caption)) {}
  [[nodiscard]] int minimum() const { return contents_.minimum; }
  [[nodiscard]] int maximum() const { return contents_.maximum; }
  [[nodiscard]] int value() const { return contents_.value; }
  void set_range(int minimum, int maximum);
  /// Brought into the range; fires on_change if the value differs.
  void set_value(int value);
  Event<> on_change;
};

/// A table of text cells; row 0 and column 0 are fixed headers. One cell is the current one.
class Grid : public ControlWith<GridContents> {
 public:
  Grid(Window& window, std::string name, int rows, int columns);
  [[nodiscard]] int rows() const { return contents_.rows; }
  [[nodiscard]] int columns() const { return contents_.columns; }
  [[nodiscard]] int row() const { return contents_.row; }
  [[nodiscard]] int column() const { return contents_.column; }
  /// @throws RunFailure  a row or column beyond the table
  void set_row(int row);
  void set_column(int column);
  [[nodiscard]] const std::string& text() const { return text(contents_.row, contents_.column); }
  void set_text(std::string_view text);  ///< of the current cell
  [[nodiscard]] const std::string& text(int row, int column) const;
  [[nodiscard]] int column_width(int column) const;  ///< twips
  void set_column_width(int column, int twips);
  void clear();  ///< empties all cells, headers included
  /// A key press; the handler may swallow it. @returns the key that is left
  int press_key(int key);
  void set_focus();

  Event<int&> on_key_press;

  // What a table to be edited wants from the front end
  TextBox* buffer = nullptr;                              ///< where typing collects until Enter
  CommandButton* emptier = nullptr;                       ///< empties the current cell
  std::function<std::string(int row, int column)> doubt;  ///< why a text will hardly be meant; empty: fine

 private:
  [[nodiscard]] std::size_t cell(int row, int column) const;
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
