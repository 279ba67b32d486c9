#include "structures/structure_reading.h"

#include <algorithm>
#include <cctype>
#include <sstream>

#include "core/crystal_file.h"
#include "core/crystal_state.h"
#include "core/read_file.h"
#include "core/run_failure.h"
#include "structures/contents.h"
#include "structures/field_numbers.h"
#include "structures/gunzip.h"

namespace zol {
namespace {

std::vector<std::string> first_lines(std::string_view bytes, std::size_t count) {
  std::vector<std::string> lines;
  std::istringstream stream{std::string(bytes.substr(0, 1 << 16))};
  for (std::string line; lines.size() < count && std::getline(stream, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

std::string small(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
  return text;
}

/// Six numbers, a letter in quotes, the number of the group, the axes in quotes.
bool looks_like_crystal_file(const std::vector<std::string>& lines) {
  if (lines.empty()) return false;
  std::istringstream fields(lines.front());
  std::string field;
  int numbers = 0;
  while (std::getline(fields, field, ',')) {
    if (numbers == 6) return field.find('"') != std::string::npos;
    if (!measured_number(field)) return false;
    ++numbers;
  }
  return false;
}

bool starts_shelx(const std::vector<std::string>& lines) {
  return std::any_of(lines.begin(), lines.end(), [](const std::string& line) {
    const std::string start = small(line.substr(0, 5));
    return start == "cell " || start.starts_with("titl");
  });
}

/// Small letters stand for large ones, too. @param tag  begins with "_"
bool holds_tag(std::string_view bytes, std::string_view tag) {
  const auto same = [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) == b; };
  for (auto at = bytes.find('_'); at != std::string_view::npos; at = bytes.find('_', at + 1)) {
    const std::string_view here = bytes.substr(at, tag.size());
    if (std::equal(here.begin(), here.end(), tag.begin(), tag.end(), same)) return true;
  }
  return false;
}

bool looks_like_cif(std::string_view bytes) {
  return small(std::string(bytes.substr(0, 5))) == "data_" || holds_tag(bytes, "_atom_site") ||
         holds_tag(bytes, "_cell_length") || holds_tag(bytes, "_cell.length");
}

/// A scale in the second line, three vectors behind it.
bool looks_like_poscar(const std::vector<std::string>& lines) {
  if (lines.size() < 7) return false;
  for (std::size_t row = 1; row <= 4; ++row) {
    std::istringstream words(lines[row]);
    std::string word;
    const int wanted = row == 1 ? 1 : 3;
    for (int i = 0; i < wanted; ++i) {
      if (!(words >> word) || !measured_number(word)) return false;
    }
  }
  return true;
}

/// "Fe3+" as element and charge.
std::pair<std::string, int> parted_key(const std::string& key) {
  const auto species = species_of(key, false, {});
  if (species.empty()) return {key, 0};
  return {species.front().element, species.front().charge};
}

}  // namespace

Reading read_crystal(std::string_view bytes, const SpaceGroupLibrary& groups) {
  CrystalFileReader file("", std::string(bytes));
  Main1State cell;
  Module1State contents;
  file.read_cell(cell);
  if (!file.read_contents(contents) || contents.NAtom <= 0) {
    throw RunFailure("the crystal file holds no atoms; \"LOAD\" opens it");
  }
  ReadStructure read;
  read.format = "crystal file";
  Structure& structure = read.structure;
  structure.cell = {cell.CellA, cell.CellB, cell.CellC, cell.CellAlpha, cell.CellBeta, cell.CellGamma};
  check_cell(structure.cell);
  structure.space_group_number = cell.SGNumber.value();
  const auto* group = groups.find(cell.SGNumber.value());
  const auto turned = group == nullptr ? decltype(group->by_axes.end()){} : group->by_axes.find(cell.AxisSetting);
  if (group == nullptr || turned == group->by_axes.end()) {
    throw RunFailure("there is no space group file " + std::to_string(cell.SGNumber.value()) + " with the axes \"" +
                     cell.AxisSetting + "\"");
  }
  structure.operators = turned->second;
  structure.space_group_symbol = group->symbol;
  for (int i = 1; i <= contents.NAtom.value(); ++i) {
    const auto [element, charge] = parted_key(contents.AtomElement(i));
    structure.sites.push_back({contents.AtomLabel(i),
                               element,
                               charge,
                               contents.AtomOcc(i),
                               {contents.AtomPos(i, 1), contents.AtomPos(i, 2), contents.AtomPos(i, 3)},
                               contents.AtomB(i)});
  }
  return read;
}

Reading read_structure(std::string_view bytes, const std::string& name, const ImportAnswers& answers,
                       const SpaceGroupLibrary& groups, Task& task) {
  std::string unpacked;
  if (is_gzip(bytes)) {
    unpacked = gunzip(bytes, most_text_bytes);
    bytes = unpacked;
  }
  const auto lines = first_lines(bytes, 60);
  if (looks_like_crystal_file(lines)) return read_crystal(bytes, groups);
  const bool named_poscar =
      small(name).find("poscar") != std::string::npos || small(name).find("contcar") != std::string::npos;
  if (named_poscar || (looks_like_poscar(lines) && !looks_like_cif(bytes))) return read_poscar(bytes, answers, task);
  if (looks_like_cif(bytes)) return read_cif(bytes, answers, task);
  if (starts_shelx(lines)) return read_shelx(bytes, task);
  throw RunFailure("it is none of the known kinds: CIF, SHELX, POSCAR, crystal file");
}

}  // namespace zol
