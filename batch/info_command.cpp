#include "batch/info_command.h"

#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>

#include "batch/batch_progress.h"
#include "batch/batch_status.h"
#include "core/crystal_file.h"
#include "core/number_text.h"
#include "core/read_file.h"
#include "core/run_failure.h"
#include "reflections/scattering.h"
#include "shell/program/data_folders.h"
#include "shell/services/latin1.h"
#include "structures/contents.h"
#include "structures/structure_import.h"

namespace zol {
namespace {

struct InfoWords {
  std::vector<std::string> files;
  bool json = false;
};

/// What is told of a crystal; what a file of observed lines cannot have is none.
struct CrystalInfo {
  std::string file, formula, group, setting;
  CellConstants cell;
  int number = 0;
  double units = 0;
  std::size_t sites = 0, atoms = 0;
  std::optional<double> density_g_cm3;
  std::optional<ShortestDistance> shortest;
  Notes notes;
};

class InfoReader {
 public:
  explicit InfoReader(Task& task)
      : task_(task),
        data_(find_data_root(data_places())),
        groups_([this](int number) { return data_.path("SpaceGr/No" + Format(number, "000") + ".dat"); }) {
    BoundedArray<AsfRow> table = CrystalState().AsfX;
    const Integer rows = read_scatter_table(data_.path("Asf/ASF-X.csv"), table);
    for (int i = 1; i <= rows.value(); ++i) keys_.insert(table(i).Element);
  }

  /// @throws RunFailure  it cannot be read, or leaves something open
  [[nodiscard]] CrystalInfo read(const std::string& path) {
    const std::string name = path.substr(path.rfind('/') + 1);
    const std::string bytes = read_file(path, task_);
    try {
      if (const auto lines = observed_lines(path)) return *lines;
      auto result = import_structure(bytes, name, {}, groups_, keys_, task_);
      if (const auto* question = std::get_if<Question>(&result)) {
        throw RunFailure("it leaves open: " + question->text + " Open it in the program, and save it as a crystal");
      }
      return info_of(path, std::get<ImportedCrystal>(result));
    } catch (const RunFailure& failure) {
      if (failure.message().find(name) != std::string::npos) throw;
      throw RunFailure(path + ": " + failure.message());
    }
  }

 private:
  CrystalInfo info_of(const std::string& path, const ImportedCrystal& crystal) {
    CrystalInfo info;
    info.file = path;
    info.formula = formula_text(crystal.formula);
    info.units = crystal.units;
    info.cell = crystal.structure.cell;
    info.group = crystal.group_symbol;
    info.number = crystal.file_number;
    info.setting = crystal.axis_setting;
    info.sites = crystal.structure.sites.size();
    info.atoms = cell_atoms(crystal.structure, settled_angstrom, task_).size();
    info.density_g_cm3 = density(cell_contents(crystal.structure, task_), crystal.structure.cell);
    info.shortest = shortest_distance(crystal.structure, true, task_);
    info.notes = crystal.notes;
    return info;
  }

  /// A crystal file that holds lines of a powder in the place of atoms.
  std::optional<CrystalInfo> observed_lines(const std::string& path) {
    if (!path.ends_with(".cry")) return std::nullopt;
    CrystalState state;
    CrystalFileReader file(path);
    file.read_cell(state);
    file.read_contents(state);
    if (state.NAtom > 0 || state.JcpdsCount < 1) return std::nullopt;
    CrystalInfo info;
    info.file = path;
    info.cell = {state.CellA, state.CellB, state.CellC, state.CellAlpha, state.CellBeta, state.CellGamma};
    const auto* group = groups_.find(state.SGNumber.value());
    if (group != nullptr) info.group = group->symbol;
    info.number = state.SGNumber.value();
    info.setting = state.AxisSetting;
    info.notes.assume(plain_text(state.JcpdsCount) + " observed lines in the place of atoms");
    return info;
  }

  Task& task_;
  DataRoot data_;
  SpaceGroupLibrary groups_;
  std::set<std::string> keys_;
};

std::string counted(std::size_t count, const char* thing) {
  return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

std::string line_of(const CrystalInfo& info) {
  const CellConstants& cell = info.cell;
  std::string line = info.file + ": ";
  if (!info.formula.empty()) line += info.formula + ", Z = " + short_text(info.units, 2) + ", ";
  line += "cell";
  for (const double edge : {cell.a, cell.b, cell.c}) line += " " + short_text(edge, 4);
  for (const double angle : {cell.alpha, cell.beta, cell.gamma}) line += " " + short_text(angle, 3);
  line += ", " + info.group + " (number " + std::to_string(info.number) + ", axes " + info.setting + ")";
  if (info.sites > 0) {
    line += ", " + counted(info.sites, "site") + ", " + counted(info.atoms, "atom") + " in the cell";
  }
  if (info.density_g_cm3) line += ", " + Format(*info.density_g_cm3, "0.000") + " g/cm3";
  if (info.shortest) {
    line += ", shortest " + info.shortest->first + " - " + info.shortest->second + " " +
            Format(info.shortest->angstrom, "0.000") + " A";
  }
  for (const auto& note : info.notes.list()) line += std::string("; ") + (note.doubt ? "Warning: " : "") + note.text;
  return readable_utf8(line);
}

nlohmann::ordered_json json_of(const CrystalInfo& info) {
  const CellConstants& cell = info.cell;
  nlohmann::ordered_json json{
      {"file", info.file},
      {"formula", info.formula.empty() ? nlohmann::ordered_json() : nlohmann::ordered_json(info.formula)},
      {"z", info.units},
      {"cell", {cell.a, cell.b, cell.c, cell.alpha, cell.beta, cell.gamma}},
      {"space_group", readable_utf8(info.group)},
      {"number", info.number},
      {"axes", info.setting},
      {"sites", info.sites},
      {"atoms_in_cell", info.atoms},
      {"density_g_cm3", nullptr},
      {"shortest_distance", nullptr},
      {"assumed", nlohmann::ordered_json::array()},
      {"doubtful", nlohmann::ordered_json::array()}};
  if (info.density_g_cm3) json["density_g_cm3"] = *info.density_g_cm3;
  if (info.shortest) {
    json["shortest_distance"] = {{"from", readable_utf8(info.shortest->first)},
                                 {"to", readable_utf8(info.shortest->second)},
                                 {"angstrom", info.shortest->angstrom}};
  }
  for (const auto& note : info.notes.list()) {
    json[note.doubt ? "doubtful" : "assumed"].push_back(readable_utf8(note.text));
  }
  return json;
}

/// All that can be read are told; one that cannot fails the command at its end.
int run(const InfoWords& words) {
  BatchTask task;
  InfoReader reader(task);
  auto all = nlohmann::ordered_json::array();
  std::size_t failed = 0;
  for (const auto& path : words.files) {
    try {
      const CrystalInfo info = reader.read(path);
      if (words.json) {
        all.push_back(json_of(info));
      } else {
        std::cout << line_of(info) << '\n';
      }
    } catch (const RunFailure& failure) {
      ++failed;
      std::cerr << "zol-batch: " << readable_utf8(failure.message()) << '\n';
    }
  }
  if (words.json) std::cout << all.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
  if (failed == 0) return batch_done;
  return batch_failed;
}

}  // namespace

void add_info_command(CLI::App& app, int& status) {
  const auto words = std::make_shared<InfoWords>();
  CLI::App* info = app.add_subcommand("info", "what is in structure files, one line per file");
  info->footer("Example:\n  zol-batch info quartz.cif calcite.cif --json");
  info->add_option("FILE", words->files, "structure file or crystal: .cif, .res, .ins, POSCAR, .cry; also .gz")
      ->required();
  info->add_flag("--json", words->json, "a list of objects");
  info->callback([words, &status] { status = run(*words); });
}

}  // namespace zol
