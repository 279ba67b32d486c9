#include "tools/make_data/space_group_files.h"

#include <algorithm>
#include <array>
#include <gemmi/symmetry.hpp>
#include <string_view>

#include "core/record_writer.h"

namespace zol {
namespace {

constexpr int standard_groups = 230;

std::string_view system_word(int number) {
  if (number <= 2) return "TRICL";
  if (number <= 15) return "MONO";
  if (number <= 74) return "ORTHO";
  if (number <= 142) return "TETRA";
  if (number <= 167) return "TRIGO";
  if (number <= 194) return "HEXA";
  return "CUBIC";
}

void remove_all(std::string& text, std::string_view part) {
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part)) text.erase(at, part.size());
}

/// Short symbol on one line: "P 1 21/c 1" gives P21/c, "F d -3 m" gives Fd3m, "R -3 m" keeps its bar.
std::string short_symbol(const gemmi::SpaceGroup& group) {
  std::string symbol = group.hm;
  const auto system = system_word(group.number);
  if (system == "MONO") remove_all(symbol, " 1");  // the two axes without symmetry
  // No bar on a 3 in second place; -4 of P-43m in first place keeps its own.
  if (system == "CUBIC") {
    for (auto at = symbol.find("-3"); at != std::string::npos; at = symbol.find("-3")) symbol.erase(at, 1);
  }
  std::erase(symbol, ' ');
  return symbol;
}

/// A setting beside the standard ones. The system word ties the angles of the cell, so that a unique axis other than b,
/// or rhombohedral axes, need a word that ties nothing.
struct Setting {
  std::string_view system;
  std::string_view symbol;
  const char* gemmi_name;  ///< full symbol, with the origin choice or kind of axes behind a colon
};

constexpr std::array settings{
    Setting{"MONO", "P21/n", "P 1 21/n 1"},
    Setting{"MONO", "P21/a", "P 1 21/a 1"},
    Setting{"MONO", "P2/n", "P 1 2/n 1"},
    Setting{"MONO", "A2/a", "A 1 2/a 1"},
    Setting{"MONO", "I2/a", "I 1 2/a 1"},
    Setting{"MONO", "I2/m", "I 1 2/m 1"},
    Setting{"MONO", "A2/m", "A 1 2/m 1"},
    Setting{"MONOC", "P1121/b", "P 1 1 21/b"},
    Setting{"MONOC", "B112/b", "B 1 1 2/b"},
    Setting{"RHOMB", "P(R-3m)", "R -3 m:R"},
    Setting{"TRICL", "C1", "C 1"},
    Setting{"TRICL", "C-1", "C -1"},
    Setting{"TRICL", "I-1", "I -1"},
    Setting{"ORTHO", "Pbnm", "P b n m"},
    Setting{"ORTHO", "Pmcn", "P m c n"},
    Setting{"ORTHO", "Pmnb", "P m n b"},
    Setting{"ORTHO", "Bmab", "B m a b"},
    Setting{"TETRA", "I41/amd:1", "I 41/a m d:1"},
    Setting{"CUBIC", "Fd3m:1", "F d -3 m:1"},
};

/// P63/mmc with its origin on the centre of -6m2, Wyckoff position 2b at (0, 0, 1/4) of the standard setting, in place
/// of the centre of inversion: hexagonal close packing then has its atoms at (1/3, 2/3, 0) and (2/3, 1/3, 1/2).
gemmi::GroupOps p63_mmc_origin_b() {
  auto group = gemmi::get_spacegroup_by_name("P 63/m m c").operations();
  for (auto& op : group.sym_ops) {
    constexpr int shift = gemmi::Op::DEN / 4;  // along c
    op.tran[2] += op.rot[2][2] * shift / gemmi::Op::DEN - shift;
    op.wrap();
  }
  return group;
}

Single fraction(int twenty_fourths) { return to_single(twenty_fourths / double{gemmi::Op::DEN}); }

/// The operators stand in blocks, one for each centring translation, the plain one first.
void write_space_group(const std::string& folder, int number, std::string_view system, std::string_view symbol,
                       const gemmi::GroupOps& group) {
  std::string digits = std::to_string(number);
  digits.insert(0, 3 - digits.size(), '0');
  RecordWriter file(folder + "/No" + digits + ".dat");
  file.field(system).field(symbol).end_line();
  file.field(Integer(group.order())).end_line();
  for (const auto& centring : group.cen_ops) {
    for (gemmi::Op op : group.sym_ops) {
      op.translate(centring).wrap();
      for (const auto& row : op.rot) {
        for (const int element : row) file.field(fraction(element));
      }
      for (const int component : op.tran) file.field(fraction(component));
      file.end_line();
    }
  }
  file.commit();
}

}  // namespace

void write_space_group_files(const std::string& folder) {
  for (int number = 1; number <= standard_groups; ++number) {
    const auto& group = gemmi::get_spacegroup_reference_setting(number);
    write_space_group(folder, number, system_word(number), short_symbol(group), group.operations());
  }
  int number = standard_groups;
  for (const auto& [system, symbol, gemmi_name] : settings) {
    write_space_group(folder, ++number, system, symbol, gemmi::get_spacegroup_by_name(gemmi_name).operations());
  }
  write_space_group(folder, ++number, "HEXA", "P63/mmc-b", p63_mmc_origin_b());
}

}  // namespace zol
