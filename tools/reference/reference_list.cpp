// Writes the X-ray structure factors of a crystal as gemmi computes them, as a reference for tests.
//
// Only the crystal file is read with code of the program. Symmetry, cell geometry, scattering factors and the sum over
// the cell are gemmi's, in double precision and with exact constants; there is no anomalous scattering.
// One line a reflection: h, k, l, d in Å and |F| in electrons, over the whole sphere, absent reflections included.
#include <array>
#include <complex>
#include <cstdio>
#include <gemmi/it92.hpp>
#include <gemmi/sfcalc.hpp>
#include <gemmi/small.hpp>
#include <gemmi/symmetry.hpp>
#include <string>

#include "core/crystal_file.h"
#include "core/number_text.h"
#include "core/run_failure.h"

namespace zol {
namespace {

constexpr double d_min_angstrom = 0.9;
constexpr double pi = 3.14159265358979323846;

CrystalState read_crystal(const std::string& path) {
  CrystalState crystal;
  CrystalFileReader file(path);
  file.read_cell(crystal);
  if (!file.read_contents(crystal) || crystal.NAtom < 1) throw RunFailure(path + " has no atoms");
  if (crystal.SGNumber < 1 || crystal.SGNumber > 230 || crystal.AxisSetting != "abc") {
    throw RunFailure(path + " has space group number " + plain_text(crystal.SGNumber) + " and axis setting " +
                     crystal.AxisSetting + ", 1 to 230 and abc are expected");
  }
  return crystal;
}

gemmi::SmallStructure::Site site_of(const CrystalState& crystal, int i) {
  gemmi::SmallStructure::Site site;
  site.label = crystal.AtomLabel(i);
  site.element = gemmi::Element(crystal.AtomElement(i));
  if (site.element.name() != crystal.AtomElement(i)) {
    throw RunFailure("the element of atom " + site.label + " is " + crystal.AtomElement(i) +
                     ", a neutral atom is expected");
  }
  site.occ = crystal.AtomOcc(i);
  site.fract = gemmi::Fractional(crystal.AtomPos(i, 1), crystal.AtomPos(i, 2), crystal.AtomPos(i, 3));
  site.u_iso = crystal.AtomB(i) / (8.0 * pi * pi);
  return site;
}

gemmi::SmallStructure structure_of(const CrystalState& crystal) {
  gemmi::SmallStructure structure;
  structure.cell.set(crystal.CellA, crystal.CellB, crystal.CellC, crystal.CellAlpha, crystal.CellBeta,
                     crystal.CellGamma);
  structure.cell.set_cell_images_from_spacegroup(&gemmi::get_spacegroup_reference_setting(crystal.SGNumber.value()));
  for (int i = 1; i <= crystal.NAtom.value(); ++i) structure.sites.push_back(site_of(crystal, i));
  structure.change_occupancies_to_crystallographic();
  return structure;
}

void write_reflections(std::FILE* output, const gemmi::SmallStructure& structure) {
  gemmi::StructureFactorCalculator<gemmi::IT92<double>> calculator(structure.cell);
  const gemmi::Miller limits = structure.cell.get_hkl_limits(d_min_angstrom);
  (void)std::fprintf(output, "h,k,l,d,F\n");
  gemmi::Miller hkl{};
  for (hkl[0] = -limits[0]; hkl[0] <= limits[0]; ++hkl[0]) {
    for (hkl[1] = -limits[1]; hkl[1] <= limits[1]; ++hkl[1]) {
      for (hkl[2] = -limits[2]; hkl[2] <= limits[2]; ++hkl[2]) {
        if (hkl == gemmi::Miller{0, 0, 0}) continue;
        const double d = structure.cell.calculate_d(hkl);
        if (d < d_min_angstrom) continue;
        const double amplitude = std::abs(calculator.calculate_sf_from_small_structure(structure, hkl));
        (void)std::fprintf(output, "%d,%d,%d,%.5f,%.4f\n", hkl[0], hkl[1], hkl[2], d, amplitude);
      }
    }
  }
}

void make_list(const std::string& crystal_path, const std::string& output_path) {
  const auto structure = structure_of(read_crystal(crystal_path));
  std::FILE* output = std::fopen(output_path.c_str(), "wb");
  if (output == nullptr) throw RunFailure("cannot write " + output_path);
  write_reflections(output, structure);
  const bool lost = std::ferror(output) != 0;
  if (std::fclose(output) != 0 || lost) throw RunFailure("cannot write " + output_path);
}

}  // namespace
}  // namespace zol

int main(int argc, char** argv) {
  if (argc != 3) {
    (void)std::fprintf(stderr, "usage: reference_list CRYSTAL_FILE OUTPUT\n");
    return 2;
  }
  try {
    zol::make_list(argv[1], argv[2]);
  } catch (const std::exception& failure) {
    (void)std::fprintf(stderr, "reference_list: %s\n", failure.what());
    return 1;
  }
  return 0;
}
