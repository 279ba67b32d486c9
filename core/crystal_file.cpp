#include "core/crystal_file.h"

#include "core/number_text.h"
#include "core/record_writer.h"

namespace zol {
namespace {

void read_site(RecordReader& file, Module1State& state, int i) {
  const std::string of_atom = " of atom " + std::to_string(i);
  state.AtomLabel(i) = file.next_string("the label" + of_atom);
  state.AtomElement(i) = file.next_string("the element" + of_atom);
  state.AtomOcc(i) = file.next_single("the occupancy" + of_atom);
  state.AtomPos(i, 1) = file.next_single("x" + of_atom);
  state.AtomPos(i, 2) = file.next_single("y" + of_atom);
  state.AtomPos(i, 3) = file.next_single("z" + of_atom);
  state.AtomB(i) = file.next_single("B" + of_atom);
}

void read_observed_reflection(RecordReader& file, Module1State& state, int i) {
  const std::string of_row = " of observed reflection " + std::to_string(i);
  state.JcpdsH(i) = file.next_single("h" + of_row);
  state.JcpdsK(i) = file.next_single("k" + of_row);
  state.JcpdsL(i) = file.next_single("l" + of_row);
  state.JcpdsI(i) = file.next_single("the intensity" + of_row);
}

void check_count(const RecordReader& file, const char* what, Integer count, int most) {
  if (count <= most) return;
  file.fail("the number of " + std::string(what) + " is " + plain_text(count) + ", at most " + std::to_string(most) +
            " are allowed");
}

void write_crystal(RecordText& file, const CrystalState& state) {
  file.field(state.CellA).field(state.CellB).field(state.CellC);
  file.field(state.CellAlpha).field(state.CellBeta).field(state.CellGamma);
  file.field(state.LatticeLetter).field(state.SGNumber).field(state.AxisSetting).end_line();
  file.field(state.NAtom).end_line();
  for (int i = 1; i <= state.NAtom.value(); ++i) {
    file.field(state.AtomLabel(i)).field(state.AtomElement(i)).field(state.AtomOcc(i));
    file.field(state.AtomPos(i, 1)).field(state.AtomPos(i, 2)).field(state.AtomPos(i, 3));
    file.field(state.AtomB(i)).end_line();
  }
  if (state.NAtom < 1 && state.JcpdsCount >= 1) {
    file.field(state.JcpdsCount).end_line();
    for (int i = 1; i <= state.JcpdsCount.value(); ++i) {
      file.field(state.JcpdsH(i)).field(state.JcpdsK(i)).field(state.JcpdsL(i)).field(state.JcpdsI(i)).end_line();
    }
  }
}

}  // namespace

void CrystalFileReader::read_cell(Main1State& state) {
  state.CellA = file_.next_single("the cell edge a");
  state.CellB = file_.next_single("the cell edge b");
  state.CellC = file_.next_single("the cell edge c");
  state.CellAlpha = file_.next_single("the cell angle alpha");
  state.CellBeta = file_.next_single("the cell angle beta");
  state.CellGamma = file_.next_single("the cell angle gamma");
  state.LatticeLetter = file_.next_string("the lattice letter");
  state.SGNumber = file_.next_integer("the space group number");
  state.AxisSetting = file_.next_string("the axis setting");
}

bool CrystalFileReader::read_contents(Module1State& state) {
  state.NAtom = -1;
  if (file_.at_end()) return false;
  state.NAtom = file_.next_integer("the number of atoms");
  if (state.NAtom < -1) {
    for (int field = 1; field <= 4; ++field) state.NAtom = file_.next_integer("a number of the older layout");
  }
  check_count(file_, "atoms", state.NAtom, max_sites);
  for (int i = 1; i <= state.NAtom.value(); ++i) read_site(file_, state, i);
  if (state.NAtom == 0) {
    state.JcpdsCount = file_.next_integer("the number of observed reflections");
    check_count(file_, "observed reflections", state.JcpdsCount, max_jcpds_rows);
    for (int i = 1; i <= state.JcpdsCount.value(); ++i) read_observed_reflection(file_, state, i);
  }
  return true;
}

void write_crystal_file(const std::string& path, const CrystalState& state) {
  RecordWriter file(path);
  write_crystal(file, state);
  file.commit();
}

std::string crystal_file_text(const CrystalState& state) {
  RecordText text;
  write_crystal(text, state);
  return text.text();
}

}  // namespace zol
