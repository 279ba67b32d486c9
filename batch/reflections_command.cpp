#include "batch/reflections_command.h"

#include <cmath>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>

#include "batch/batch_program.h"
#include "batch/batch_progress.h"
#include "batch/number_check.h"
#include "core/number_text.h"
#include "reflections/merged_reflections.h"
#include "reflections/window/main1_form.h"
#include "reflections/window/main1_operations.h"
#include "shell/services/latin1.h"

namespace zol {
namespace {

struct ReflectionWords {
  std::vector<std::string> files;
  std::string radiation = "20kV";
  double dmin = 1;
  bool merge = false, csv = false, json = false;
};

/// A number as text; empty where there is none.
using Field = std::optional<std::string>;

/// A row of a table: the name of each column stands in its table.
struct Table {
  std::vector<std::string> columns;
  std::vector<std::vector<Field>> rows;
};

/// The column that tells the crystals of a table apart.
constexpr auto crystal_column = "crystal";

void append(Table& all, Table table, const std::string& crystal) {
  if (all.columns.empty()) {
    all.columns = std::move(table.columns);
    all.columns.insert(all.columns.begin(), crystal_column);
  }
  for (auto& row : table.rows) {
    row.insert(row.begin(), crystal);
    all.rows.push_back(std::move(row));
  }
}

/// Names with commas or quotes stand in quotes.
std::string csv_text(const Field& field) {
  std::string text = field.value_or("");
  if (text.find_first_of(",\"\n") == std::string::npos) return text;
  std::string quoted;
  for (const char c : text) quoted += c == '"' ? std::string(2, c) : std::string(1, c);
  return '"' + quoted + '"';
}

/// All digits of a Single, with a zero before the point.
std::string shortest(Single value) {
  std::string text = shortest_text(value);
  const std::size_t first = text.starts_with('-') ? 1 : 0;
  return text.substr(first).starts_with('.') ? text.insert(first, "0") : text;
}

/// The last number of a line of the list.
std::string last_number(const std::string& line) { return line.substr(line.find_last_of(' ') + 1); }

/// Reflections whose line the list has: all with atoms, else those with an intensity.
std::vector<int> listed(const CrystalState& state) {
  std::vector<int> entries;
  for (int i = 1; i <= state.RefCount.value(); ++i) {
    if (state.NAtom >= 1 || state.RefI(i) > 0) entries.push_back(i);
  }
  return entries;
}

/// What both tables have of an entry: s, d, 2-theta, A, B, F.
void add_numbers(const CrystalState& state, int entry, std::vector<Field>& row) {
  const Single s = state.RefS(entry);
  const Single angle = state.RefTwoTheta(entry);
  row.emplace_back(shortest(s));
  row.emplace_back(short_text(1 / (2 * double{s}), 6));
  row.push_back(angle > 0 ? Field(shortest(angle)) : Field());
  row.emplace_back(shortest(state.RefA(entry)));
  row.emplace_back(shortest(state.RefB(entry)));
  row.emplace_back(short_text(std::hypot(double{state.RefA(entry)}, double{state.RefB(entry)}), 4));
}

Table all_reflections(const CrystalState& state, const std::vector<std::string>& lines, bool xray) {
  Table table{{"h", "k", "l", "s", "d", "two_theta", "a", "b", "f", "intensity"}, {}};
  std::size_t line = 0;
  for (const int i : listed(state)) {
    std::vector<Field> row;
    for (const Integer index : {state.RefH(i), state.RefK(i), state.RefL(i)}) row.emplace_back(plain_text(index));
    add_numbers(state, i, row);
    const bool no_intensity = xray && state.NAtom >= 1 && !(state.RefTwoTheta(i) > 0);
    row.push_back(no_intensity ? Field() : Field(last_number(lines[line])));
    ++line;
    table.rows.push_back(std::move(row));
  }
  return table;
}

Table merged_table(const CrystalState& state) {
  Table table{{"h", "k", "l", "multiplicity", "s", "d", "two_theta", "a", "b", "f", "intensity_sum"}, {}};
  for (const auto& form : merged_reflections(state)) {
    if (state.NAtom < 1 && !(form.intensity > 0)) continue;
    std::vector<Field> row;
    for (const int index : form.hkl) row.emplace_back(std::to_string(index));
    row.emplace_back(std::to_string(form.multiplicity));
    add_numbers(state, form.entry, row);
    row.emplace_back(short_text(form.intensity, 4));
    table.rows.push_back(std::move(row));
  }
  return table;
}

void write_csv(const Table& table) {
  const auto write_row = [](const auto& row, const auto& text_of) {
    for (std::size_t i = 0; i < row.size(); ++i) std::cout << (i > 0 ? "," : "") << text_of(row[i]);
    std::cout << '\n';
  };
  write_row(table.columns, [](const std::string& name) { return name; });
  for (const auto& row : table.rows) write_row(row, csv_text);
}

void write_json(const Table& table) {
  auto all = nlohmann::ordered_json::array();
  for (const auto& row : table.rows) {
    nlohmann::ordered_json entry;
    for (std::size_t i = 0; i < row.size(); ++i) {
      auto& value = entry[table.columns[i]];
      if (!row[i]) continue;
      if (table.columns[i] == crystal_column) {
        value = *row[i];
        continue;
      }
      const double number = Val(*row[i]);
      constexpr double whole = 1e15;
      if (number == std::floor(number) && std::abs(number) < whole) {
        value = static_cast<long long>(number);
      } else {
        value = number;
      }
    }
    all.push_back(std::move(entry));
  }
  std::cout << all.dump(1) << '\n';
}

void write_columns(const Table& table) {
  std::size_t of_crystals = 0;
  for (const auto& row : table.rows) of_crystals = std::max(of_crystals, row.front().value_or("").size());
  const auto width = [of_crystals](const std::string& name) {
    constexpr std::size_t of_numbers = 12;
    constexpr std::size_t of_indices = 5;
    if (name == crystal_column) return std::max(of_crystals, name.size());
    return name.size() == 1 && name >= "h" && name <= "l" ? of_indices : std::max(of_numbers, name.size() + 1);
  };
  for (const auto& name : table.columns) std::cout << right_field(name, width(name));
  std::cout << '\n';
  for (const auto& row : table.rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      const bool amplitude = table.columns[i] == "a" || table.columns[i] == "b";
      const std::string text = row[i].value_or("");
      std::cout << right_field(amplitude ? short_text(Val(text), 3) : text, width(table.columns[i]));
    }
    std::cout << '\n';
  }
}

void write_table(const Table& table, const ReflectionWords& words) {
  words.csv ? write_csv(table) : words.json ? write_json(table) : write_columns(table);
}

void run(const ReflectionWords& words) {
  BatchProgram program;
  auto& main1 = program.window<Main1Form>();
  program.choose_radiation(words.radiation);
  program.set_dmin(words.dmin);
  const bool several = words.files.size() > 1;
  Table all;
  BatchProgress progress("crystals");
  for (std::size_t i = 0; i < words.files.size(); ++i) {
    const std::string& file = words.files[i];
    progress.show(i, words.files.size());
    // The list alone: "Calc" and loading go on to the triple table, which orders its indices anew.
    program.load(file);
    BatchProgram::naming(file, [&] { CalcReflections(program.bench()); });
    const auto& lines = main1.List2.items();
    if (several || words.csv || words.json || words.merge) {
      Table table =
          words.merge ? merged_table(program.state()) : all_reflections(program.state(), lines, main1.Option1.on());
      if (!several) return write_table(table, words);
      append(all, std::move(table), title_of(file));
      continue;
    }
    std::cout << readable_utf8(main1.Label24.caption()) << '\n';
    for (const auto& line : lines) std::cout << utf8_of_latin1(line) << '\n';
  }
  if (several) write_table(all, words);
}

}  // namespace

void add_reflections_command(CLI::App& app) {
  const auto words = std::make_shared<ReflectionWords>();
  CLI::App* list = app.add_subcommand("reflections", "the reflection list of one or more crystals");
  list->footer("Example:\n  zol-batch reflections quartz.cif --radiation CuKa --dmin 0.8 --merge");
  list->add_option("FILE", words->files, "structure files or crystals; several go into one table")->required();
  list->add_option("--radiation", words->radiation, "CuKa, MoKa, or electrons: 5kV, 10kV, ... 1250kV")
      ->capture_default_str();
  list->add_option("--dmin", words->dmin, "smallest spacing, angstroms")->check(spacing())->capture_default_str();
  list->add_flag("--merge", words->merge, "equivalent reflections as one, with their multiplicity");
  auto* json = list->add_flag("--json", words->json, "a list of objects");
  list->add_flag("--csv", words->csv, "a table with commas")->excludes(json);
  list->callback([words] { run(*words); });
}

}  // namespace zol
