#include "shell/script/script_driver.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <istream>
#include <ostream>

#include "shell/script/control_text.h"
#include "shell/script/script_words.h"
#include "shell/services/latin1.h"
#include "shell/services/list_table.h"

namespace zol {

/// An operation by its form, the name and one word for each that it takes, and what it does.
struct ScriptDriver::Operation {
  std::string_view form;
  void (*run)(ScriptDriver& driver, const Words& words);

  [[nodiscard]] bool has_name(std::string_view name) const { return form.substr(0, form.find(' ')) == name; }
  [[nodiscard]] bool takes(const Words& words) const {
    return form.ends_with(" WORDS") || std::count(form.begin(), form.end(), ' ') + 1 == std::ssize(words);
  }
};

const std::vector<ScriptDriver::Operation>& ScriptDriver::operations() {
  static const std::vector<Operation> table{
      {"show WINDOW", [](ScriptDriver& d, const Words& w) { d.window(w[1]).show(); }},
      {"set W.C TEXT",
       [](ScriptDriver& d, const Words& w) {
         if (auto* slider = dynamic_cast<Slider*>(&d.any_control(w[1]))) {
           return slider->set_value(whole_number(w[2], "TEXT"));
         }
         auto& box = d.control<TextBox>(w[1]);
         box.set_text(box.holds_file_name ? w[2] : box_text(w[2]));
       }},
      {"type W.C TEXT", [](ScriptDriver& d, const Words& w) { d.type(w); }},
      {"leave W.C", [](ScriptDriver& d, const Words& w) { d.control<TextBox>(w[1]).leave(); }},
      {"click W.C", [](ScriptDriver& d, const Words& w) { d.click(w); }},
      {"select W.C INDEX", [](ScriptDriver& d, const Words& w) { d.select(w); }},
      {"choose W.C TEXT", [](ScriptDriver& d, const Words& w) { d.choose(w); }},
      {"cell W.C ROW COLUMN",
       [](ScriptDriver& d, const Words& w) {
         auto& grid = d.control<Grid>(w[1]);
         grid.set_row(whole_number(w[2], "ROW"));
         grid.set_column(whole_number(w[3], "COLUMN"));
       }},
      {"press W.C X Y",
       [](ScriptDriver& d, const Words& w) { d.control<Canvas>(w[1]).press(number(w[2], "X"), number(w[3], "Y")); }},
      {"move W.C X Y",
       [](ScriptDriver& d, const Words& w) { d.control<Canvas>(w[1]).move(number(w[2], "X"), number(w[3], "Y")); }},
      {"release W.C X Y",
       [](ScriptDriver& d, const Words& w) { d.control<Canvas>(w[1]).release(number(w[2], "X"), number(w[3], "Y")); }},
      {"doubleclick W.C", [](ScriptDriver& d, const Words& w) { d.control<Canvas>(w[1]).double_click(); }},
      {"answer TEXT", [](ScriptDriver& d, const Words& w) { d.services_.queue_answer(w[1], d.line_); }},
      {"cancel", [](ScriptDriver& d, const Words&) { d.services_.queue_answer(""); }},
      {"print W.C", [](ScriptDriver& d, const Words& w) { d.print(w); }},
      {"table W.C WORDS", [](ScriptDriver& d, const Words& w) { d.print_table(w); }},
      {"call W.OPERATION", [](ScriptDriver& d, const Words& w) { d.call(w); }},
      {"snapshot",
       [](ScriptDriver& d, const Words&) {
         d.kept_ = d.program_.snapshot();
         d.program_.watch(d.gate_);
       }},
      {"restore",
       [](ScriptDriver& d, const Words&) {
         if (!d.kept_) fail_script("there is no snapshot to restore");
         d.program_.put_back(*d.kept_);
       }},
      {"undo", [](ScriptDriver& d, const Words&) { d.go_in_history(&History::undo, &History::undo_name, "undo"); }},
      {"redo", [](ScriptDriver& d, const Words&) { d.go_in_history(&History::redo, &History::redo_name, "redo"); }},
      {"visible W.C",
       [](ScriptDriver& d, const Words& w) { d.output_ << (d.any_control(w[1]).visible() ? 1 : 0) << '\n'; }},
      {"caption WINDOW",
       [](ScriptDriver& d, const Words& w) { d.output_ << readable_utf8(d.window(w[1]).caption()) << '\n'; }},
      {"printer", [](ScriptDriver& d, const Words&) { d.print_pages(); }},
      {"export W.C FILE",
       [](ScriptDriver& d, const Words& w) { d.services_.export_picture(d.control<Canvas>(w[1]), w[2]); }},
      {"echo WORDS",
       [](ScriptDriver& d, const Words& w) {
         for (std::size_t i = 1; i < w.size(); ++i) {
           if (const auto readable = readable_utf8(w[i]); readable != w[i])
             fail_script("\"" + readable + "\" is not UTF-8");
           d.output_ << (i > 1 ? " " : "") << w[i];
         }
         d.output_ << '\n';
       }},
  };
  return table;
}

ScriptDriver::ScriptDriver(Program& program, ScriptServices& services, std::ostream& output)
    : program_(program),
      services_(services),
      output_(output),
      gate_([this] { program_.windows().free_unloaded(); },
            [this](const std::exception_ptr& reason) { stopped_ = reason; }) {}

void ScriptDriver::run(std::istream& script) {
  std::string line;
  // Who writes the script may wait for what a line prints.
  const auto next_line = [&] {
    if (script.rdbuf()->in_avail() > 0) return static_cast<bool>(std::getline(script, line));
    output_.flush();
    const Waits waits;
    return static_cast<bool>(std::getline(script, line));
  };
  for (line_ = 0; !services_.ended() && next_line();) {
    ++line_;
    if (services_.stop_wanted()) throw ScriptStopped();
    try {
      const Words words = split_words(line);
      if (words.empty()) continue;
      gate_.enter({line, line, [this, &words] { execute(words); }});
      if (stopped_) std::rethrow_exception(stopped_);
      if (services_.stop_wanted()) throw ScriptStopped();
    } catch (const ScriptError& error) {
      if (error.line() > 0) throw;
      throw ScriptError(error.what(), line_);
    }
  }
  if (script.bad()) {
    throw RunFailure("cannot read the script after line " + std::to_string(line_) + ": " + std::strerror(errno));
  }
}

void ScriptDriver::execute(const Words& words) {
  const auto& table = operations();
  const auto found =
      std::find_if(table.begin(), table.end(), [&words](const Operation& op) { return op.has_name(words.front()); });
  if (found == table.end()) fail_script("unknown operation \"" + words.front() + "\"");
  if (!found->takes(words)) fail_script("the form is: " + std::string(found->form));
  found->run(*this, words);
}

Window& ScriptDriver::window(const std::string& name) {
  if (!program_.windows().knows(name)) fail_script("there is no window " + name);
  return program_.windows().use(name);
}

Control& ScriptDriver::any_control(const std::string& name) {
  const auto [owner, rest] = split_name(name);
  Control* found = window(owner).find(rest);
  if (found == nullptr) fail_script("window " + owner + " has no control " + rest);
  return *found;
}

template <class Kind>
Kind& ScriptDriver::control(const std::string& name) {
  auto* found = dynamic_cast<Kind*>(&any_control(name));
  if (found == nullptr) fail_script(name + " is a control of another kind");
  return *found;
}

void ScriptDriver::type(const Words& words) {
  Control& target = any_control(words[1]);
  for (const char c : box_text(words[2])) {
    if (auto* box = dynamic_cast<TextBox*>(&target)) {
      box->type(c);
    } else if (auto* grid = dynamic_cast<Grid*>(&target)) {
      grid->press_key(static_cast<unsigned char>(c));
    } else {
      fail_script(words[1] + " takes no typing");
    }
  }
}

void ScriptDriver::click(const Words& words) {
  Control& target = any_control(words[1]);
  if (auto* button = dynamic_cast<CommandButton*>(&target)) return button->click();
  if (auto* item = dynamic_cast<MenuItem*>(&target)) return item->click();
  if (auto* check = dynamic_cast<CheckBox*>(&target)) return check->click();
  if (auto* option = dynamic_cast<OptionButton*>(&target)) return option->click();
  fail_script(words[1] + " cannot be clicked");
}

void ScriptDriver::select(const Words& words) {
  Control& target = any_control(words[1]);
  const int index = whole_number(words[2], "INDEX");
  const auto pick = [&](auto& control) {
    const std::size_t count = control.items().size();
    if (index < 0 || static_cast<std::size_t>(index) >= count) {
      fail_script(words[1] + " has no item " + words[2] + ", it has " + std::to_string(count) + ", the first is 0");
    }
    control.pick(index);
  };
  if (auto* list = dynamic_cast<ListBox*>(&target)) return pick(*list);
  if (auto* combo = dynamic_cast<ComboBox*>(&target)) return pick(*combo);
  fail_script(words[1] + " has no items");
}

void ScriptDriver::choose(const Words& words) {
  auto& combo = control<ComboBox>(words[1]);
  const auto item = std::find(combo.items().begin(), combo.items().end(), box_text(words[2]));
  if (item == combo.items().end()) fail_script(words[1] + " has no item \"" + words[2] + "\"");
  combo.pick(static_cast<int>(item - combo.items().begin()));
}

void ScriptDriver::print(const Words& words) {
  const auto [owner, name] = split_name(words[1]);
  if (owner == "Module1") return print_value(owner, program_.module1(), name);
  Window& shown = window(owner);
  if (Control* control = shown.find(name)) return print_control(*control, output_);
  print_value(owner, shown.fields(), name);
}

void ScriptDriver::print_value(const std::string& owner, const NamedValues& values, const std::string& name) {
  const auto [field, indices] = split_indices(name);
  const int dimensions = values.dimensions(field);
  if (dimensions < 0) fail_script(owner + " has no control or field " + field);
  if (static_cast<std::size_t>(dimensions) != indices.size()) {
    fail_script(owner + "." + field + " takes " + std::to_string(dimensions) + " indices, given are " +
                std::to_string(indices.size()));
  }
  output_ << values.text(field, indices) << '\n';
}

/// As CSV, with the columns that the words ask for.
void ScriptDriver::print_table(const Words& words) {
  if (words.size() < 2) fail_script("the form is: table W.C WORDS");
  const auto& list = control<ListBox>(words[1]);
  if (!list.table) fail_script(words[1] + " has no columns");
  const auto choices = ListTable::choices(*list.table);
  const TableChoices wanted(words.begin() + 2, words.end());
  for (const auto& choice : wanted) {
    if (std::find(choices.begin(), choices.end(), choice) == choices.end()) {
      std::string known;
      for (const auto& caption : choices) known += (known.empty() ? "" : ", ") + caption;
      fail_script("the table of " + words[1] + " has no choice \"" + choice + "\"; it has: " + known);
    }
  }
  const ListTable table(*list.table, list.contents().items, wanted);
  output_ << table.text(table.arranged(-1, false, ""), ',');
}

void ScriptDriver::call(const Words& words) {
  const auto [owner, name] = split_name(words[1]);
  const auto* operation = window(owner).operation(name);
  if (operation == nullptr) fail_script("window " + owner + " has no operation " + name);
  (*operation)();
}

void ScriptDriver::print_pages() {
  for (const auto& line : services_.take_printed()) output_ << line << '\n';
}

/// Tells the step. Undoing is no step itself.
void ScriptDriver::go_in_history(std::shared_ptr<const Snapshot> (History::*go)(),
                                 const std::string& (History::*name)() const, const std::string& word) {
  History& history = program_.history();
  const std::string step = (history.*name)();
  const auto snapshot = (history.*go)();
  if (!snapshot) fail_script("there is nothing to " + word + (kept_ ? "" : "; steps are kept from \"snapshot\" on"));
  program_.put_back(*snapshot);
  output_ << word << ' ' << utf8_of_latin1(step) << '\n';
}

}  // namespace zol
