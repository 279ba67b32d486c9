#include "shell/script/name_pages.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/services/latin1.h"

namespace zol {
namespace {

constexpr std::array<std::string_view, 13> kind_words = {"text box",  "label", "button", "check box", "option button",
                                                         "combo box", "list",  "frame",  "menu item", "progress bar",
                                                         "slider",    "table", "picture"};

std::string cell_text(std::string_view caption) {
  std::string text;
  for (const char letter : readable_utf8(caption)) {
    if (letter == '|' || letter == '<') text += '\\';
    text += letter == '\n' ? ' ' : letter;
  }
  return text;
}

/// Members of an array of controls, which follow each other, share a row.
struct Row {
  std::string name, last;
  const Control* control = nullptr;
};

std::string array_name(const std::string& name) { return name.substr(0, name.find('(')); }

std::vector<Row> rows_of(const Window& window) {
  std::vector<Row> rows;
  for (const Control* control : window.controls()) {
    const std::string& name = control->name();
    const bool member = name.find('(') != std::string::npos;
    if (member && !rows.empty() && array_name(rows.back().name) == array_name(name) &&
        rows.back().control->kind() == control->kind()) {
      rows.back().last = name;
    } else {
      rows.push_back({name, name, control});
    }
  }
  return rows;
}

std::string controls_table(const Window& window) {
  std::string page = "| Control | Kind | Caption |\n|---|---|---|\n";
  for (const Row& row : rows_of(window)) {
    const std::string up_to = row.last == row.name ? "" : " to `" + row.last + "`";
    page += "| `" + row.name + "`" + up_to + " | " +
            std::string(kind_words.at(static_cast<std::size_t>(row.control->kind()))) + " | " +
            cell_text(row.control->caption()) + " |\n";
  }
  return page;
}

std::string fields_list(const std::string& owner, const NamedValues& values) {
  constexpr std::array<std::string_view, 3> indices = {"", "(i)", "(i,j)"};
  std::string list;
  for (const auto& name : values.names()) {
    list +=
        "- `" + owner + '.' + name + std::string(indices.at(static_cast<std::size_t>(values.dimensions(name)))) + "`\n";
  }
  return list;
}

std::string window_page(Window& window) {
  std::string page = "# " + window.name() + "\n\nThe window \"" + cell_text(window.caption()) +
                     "\". [All names](README.md)\n\n" + controls_table(window);
  const std::string fields = fields_list(window.name(), window.fields());
  if (!fields.empty()) page += "\n## Fields\n\n`print` shows them.\n\n" + fields;
  std::string operations;
  for (const auto& name : window.operation_names()) operations += "- `" + window.name() + '.' + name + "`\n";
  if (!operations.empty()) page += "\n## Operations\n\n`call` runs them.\n\n" + operations;
  return page;
}

}  // namespace

std::map<std::string, std::string> name_pages(Program& program) {
  std::map<std::string, std::string> pages;
  std::string overview =
      "# Names for scripts\n\nThe windows, and what scripts can name in each: controls, fields and operations. Made "
      "by\n"
      "`zol-script --names docs/names`. How to use them: [scripts](../user-guide/scripting.md).\n\n"
      "| Window | Caption |\n|---|---|\n";
  for (const auto& name : program.windows().names()) {
    Window& window = program.windows().use(name);
    pages[name + ".md"] = window_page(window);
    overview += "| [" + name + "](" + name + ".md) | " + cell_text(window.caption()) + " |\n";
  }
  overview += "\n## Fields of no window\n\n`print` shows them.\n\n" + fields_list("Module1", program.module1());
  pages["README.md"] = overview;
  return pages;
}

}  // namespace zol
