// A window: a caption, its controls by name, its public fields and operations by name, and the set of all windows.
#pragma once

#include <any>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/services/controls.h"
#include "shell/services/named_values.h"
#include "shell/services/services.h"
#include "shell/services/shared_state.h"
#include "shell/services/uses.h"

namespace zol {

/// What shows windows on a screen. Told after each change; a headless program has none.
class WindowView {
 public:
  WindowView() = default;
  WindowView(const WindowView&) = delete;
  WindowView& operator=(const WindowView&) = delete;
  virtual ~WindowView() = default;
  virtual void window_created(Window& window) = 0;  ///< before its Form_Load
  virtual void window_shown(Window& window) = 0;    ///< also when it stood already: it comes to the front
  virtual void window_changed(Window& window) = 0;  ///< caption, visibility, mouse pointer
  virtual void window_unloaded(Window& window) = 0;
  virtual void control_changed(Control& control) = 0;
  virtual void focus_wanted(Control& control) = 0;
};

/// A file dropped on a window answers the dialog of one of its menu items.
struct FileDrop {
  std::string ending;  ///< as ".cry", small letters
  MenuItem* item = nullptr;
  FileDialog* dialog = nullptr;
  FileKind kind = FileKind::Crystal;
};

class Window {
 public:
  Window(std::string name, std::string caption) : name_(std::move(name)), caption_(std::move(caption)) {}
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  virtual ~Window() = default;

  [[nodiscard]] const std::string& name() const { return name_; }
  [[nodiscard]] const std::string& caption() const { return caption_; }
  void set_caption(std::string_view caption);
  [[nodiscard]] MousePointer mouse_pointer() const { return mouse_pointer_; }
  void set_mouse_pointer(MousePointer pointer);
  [[nodiscard]] bool visible() const { return visible_; }
  void show();  ///< modeless; the window becomes the active one
  void hide();
  void activate();  ///< the user goes to the window

  /// In the order of their declaration.
  [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
  [[nodiscard]] Control* find(std::string_view control_name) const;  ///< nullptr when there is none
  [[nodiscard]] NamedValues& fields() { return fields_; }

  /// All that can change about a window, its fields and its controls.
  struct Copy {
    std::string caption;
    MousePointer mouse_pointer = MousePointer::Default;
    bool visible = false;
    NamedValues::Copies fields;
    std::vector<std::shared_ptr<const Control::Copy>> controls;  ///< in their order
  };
  /// @param before  an earlier copy, which is shared as far as nothing has changed; may be a null pointer
  [[nodiscard]] Copy copy(const Copy* before = nullptr) const;
  /// Takes a copy of this window; no handler runs, the view is told.
  void put_back(const Copy& copy);
  static void store(StoreWriter& out, const Copy& copy);
  /// A copy of a window of this kind. @throws RunFailure  the bytes hold none
  [[nodiscard]] Copy load(StoreReader& in) const;

  void add_operation(const std::string& name, std::function<void()> operation) {
    operations_[name] = std::move(operation);
  }
  /// The same reason against actions on several controls.
  static void warn(std::initializer_list<Control*> controls, const Reason& reason) {
    for (Control* control : controls) control->warn_when = reason;
  }

  /// nullptr when there is no such public operation
  [[nodiscard]] const std::function<void()>* operation(const std::string& name) const;
  [[nodiscard]] std::vector<std::string> operation_names() const;

  [[nodiscard]] WindowView* view() const { return view_; }
  void set_view(WindowView* view) { view_ = view; }

  /// Expires with the window, and as soon as it is unloaded.
  [[nodiscard]] std::weak_ptr<const void> life() const { return life_; }

  Event<> on_load;  ///< at its creation
  Event<> on_activate;

  // What a window wants from the front end
  std::vector<FileDrop> file_drops;       ///< what may be dropped on it
  CommandButton* frame_button = nullptr;  ///< what its frame button clicks; none: the window hides
  std::vector<SharedPart> reads = {};     ///< what it reads of the state that windows share, told at its foot
  std::string beside = {};                ///< the window that it goes with: it comes up beside that one, behind it
  bool shows_crystal = false;             ///< its title tells which
  TextBox* crystal_file = nullptr;        ///< the box that holds the path of the present crystal, where it has that
  bool offers_kept_work = false;          ///< of earlier runs
  std::vector<FileWay> file_ways = {};    ///< how it opens files by way of other windows
  std::vector<WayIn> ways_in = {};        ///< offered at its foot

 private:
  friend class Control;
  friend class Windows;
  void add(Control& control) { controls_.push_back(&control); }

  std::string name_;
  std::string caption_;
  MousePointer mouse_pointer_ = MousePointer::Default;
  bool visible_ = false;
  std::vector<Control*> controls_;
  NamedValues fields_;
  std::map<std::string, std::function<void()>> operations_;
  WindowView* view_ = nullptr;
  std::shared_ptr<const void> life_ = std::make_shared<char>();
};

/// Shows the hourglass over a window as long as it lives.
class Hourglass {
 public:
  explicit Hourglass(Window& window) : window_(window) { window_.set_mouse_pointer(MousePointer::Hourglass); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;
  ~Hourglass() { window_.set_mouse_pointer(MousePointer::Default); }

 private:
  Window& window_;
};

/// All windows of the program by name. A window comes into being at its first use, whatever uses it; its Form_Load runs
/// then, with the window already in place.
class Windows {
 public:
  struct Type {
    std::function<std::unique_ptr<Window>()> make;
    std::function<void(Window&)> load;  ///< ties events to handlers
  };

  void add_type(const std::string& name, Type type) { types_[name] = std::move(type); }
  [[nodiscard]] bool knows(const std::string& name) const { return types_.contains(name); }

  /// @throws RunFailure  no such window, or its Form_Load fails: there is none then
  Window& use(const std::string& name);
  template <class Form>
  Form& use() {
    return dynamic_cast<Form&>(use(Form::window_name));
  }
  /// nullptr while the window does not exist
  [[nodiscard]] Window* find(const std::string& name) const;
  /// Names of all windows, existing or not.
  [[nodiscard]] std::vector<std::string> names() const;

  /// Of the windows that exist, by name.
  using Copies = std::map<std::string, Window::Copy>;
  [[nodiscard]] Copies copies(const Copies& before = {}) const;
  /// The windows are as when they were copied: those made since are unloaded, those unloaded since are made again. No
  /// handler runs.
  void put_back(const Copies& copies);
  static void store(StoreWriter& out, const Copies& copies);
  /// @throws RunFailure  the bytes hold other windows than these
  [[nodiscard]] Copies load(StoreReader& in) const;

  /// Ends a window; its next use makes a new one. Its handlers may still be running, so that its memory goes later.
  void unload(const std::string& name);
  /// Hands over the unloaded windows, which may be freed when no handler runs.
  [[nodiscard]] std::vector<std::unique_ptr<Window>> take_unloaded() { return std::exchange(unloaded_, {}); }
  void free_unloaded() { unloaded_.clear(); }

  void set_view(WindowView* view);

 private:
  /// @param opens  its Form_Load runs
  Window& make(const std::string& name, bool opens);

  std::map<std::string, Type> types_;
  std::map<std::string, std::unique_ptr<Window>> windows_;
  std::vector<std::unique_ptr<Window>> unloaded_;
  WindowView* view_ = nullptr;
};

}  // namespace zol
