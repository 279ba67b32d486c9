// What is to be said beside the lists and pictures of all windows: what each was made for, what has changed since, and
// words beside results that are right only by rule.
//
// Forms declare it (Control::made_from, Control::remarks). What has been noted goes with the contents of a control:
// where an earlier contents comes back by undoing, its note does too.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "shell/services/window_services.h"

namespace zol {

class Program;

class ResultNotes {
 public:
  explicit ResultNotes(Program& program) : program_(program) {}

  /// Looks at what the last event has made; to be called after each.
  void update();

  /// Texts are UTF-8.
  struct Note {
    std::string made;     ///< as "drawn for Quartz, 20 kV"; empty where nothing is shown
    std::string changed;  ///< as "crystal and settings changed since"; empty where nothing has
    std::vector<std::string> remarks;
    std::vector<const CommandButton*> again;    ///< what makes it again, one after the other; empty where it is not old
    [[nodiscard]] std::string line() const;     ///< what is to be said now; empty: nothing
    [[nodiscard]] std::string caption() const;  ///< what goes with an exported picture
  };
  [[nodiscard]] Note note_of(const Control& control) const;

 private:
  /// What something was made from.
  struct Made {
    std::string what;                   ///< crystal and radiation
    NamedValues::Copies fields;         ///< those of the origin
    std::vector<std::string> controls;  ///< contents of its controls, one after the other
    std::shared_ptr<const Made> by_way_of;
  };
  struct Noted {
    std::weak_ptr<const Control::Copy> contents;
    std::shared_ptr<const Made> made;
    std::vector<std::string> remarks;
  };
  struct Result {
    Noted present;
    unsigned begun = 0;  ///< another number: made again
    std::vector<Noted> known;
  };

  void update(const Control& control);
  [[nodiscard]] const Control* control(const std::string& path) const;
  [[nodiscard]] const Result* result(const std::string& path) const;
  [[nodiscard]] std::shared_ptr<const Made> made_now(const Origin& origin) const;
  /// Words of what has changed.
  void add_changed(const Origin& origin, const Made& made, std::vector<std::string>& words) const;

  Program& program_;
  std::map<std::string, Result> results_;  ///< by the path of the control
};

}  // namespace zol
