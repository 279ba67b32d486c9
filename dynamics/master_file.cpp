#include "dynamics/master_file.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>

#include "core/run_failure.h"
#include "hdf5/hdf5_file.h"
#include "hdf5/hdf5_writer.h"

namespace zol {
namespace {

const std::string patterns_group = "EMData/EBSDmaster/";
const std::string crystal_group = "CrystalData/";
const std::string own_group = "ZOL/master/";
constexpr double angstroms = 10;  // in a nanometre
constexpr double square_angstroms = 100;

void write_crystal(Hdf5Writer& out, const MasterPattern& master) {
  const auto& cell = master.cell;
  out.array(crystal_group + "LatticeParameters",
            std::vector<double>{cell.a / angstroms, cell.b / angstroms, cell.c / angstroms, cell.alpha, cell.beta,
                                cell.gamma});
  out.single<std::int32_t>(crystal_group + "SpaceGroupNumber", master.space_group);
  out.single<std::int32_t>(crystal_group + "SpaceGroupSetting", 1);
  std::vector<std::int32_t> elements;
  std::vector<float> data(5 * master.sites.size());
  for (std::size_t i = 0; i < master.sites.size(); ++i) {
    const DynamicSite& site = master.sites[i];
    elements.push_back(site.atomic_number);
    const std::array<double, 5> rows{site.position[0], site.position[1], site.position[2], site.occupancy,
                                     site.b_iso / square_angstroms};
    for (std::size_t row = 0; row < rows.size(); ++row) {
      data[row * master.sites.size() + i] = static_cast<float>(rows[row]);
    }
  }
  out.single<std::int32_t>(crystal_group + "Natomtypes", static_cast<std::int32_t>(elements.size()));
  out.array(crystal_group + "Atomtypes", elements);
  out.array(crystal_group + "AtomData", {5, elements.size()}, data);
}

void write_settings(Hdf5Writer& out, const MasterPattern& master) {
  // Names that readers of this layout ask for.
  out.text("EMheader/EBSDmaster/ProgramName", "EMEBSDmaster.f90");
  out.text("EMheader/EBSDmaster/Version", "layout of 5.0, written by ZOL");
  const std::string names = "NMLparameters/EBSDMasterNameList/";
  out.single(names + "dmin", static_cast<float>(master.choice.smallest_spacing / angstroms));
  out.single<std::int32_t>(names + "npx", (master.size - 1) / 2);
  out.text(names + "latgridtype", "Lambert");
  out.single<std::int32_t>(names + "combinesites", 1);
  const std::string start = "NMLparameters/MCCLNameList/";
  const auto [lowest, highest] = std::minmax_element(master.kilovolts.begin(), master.kilovolts.end());
  const double steps = static_cast<double>(master.kilovolts.size()) - 1;
  out.single(start + "EkeV", *highest);
  out.single(start + "Ehistmin", *lowest);
  out.single(start + "Ebinsize", steps > 0 ? (*highest - *lowest) / steps : 1.0);
  out.single(start + "depthmax", 100.0);
  out.single(start + "depthstep", 1.0);
  out.single(start + "sig", 70.0);
  out.single(start + "omega", 0.0);
  out.text(start + "MCmode", "CSDA");
  out.single(own_group + "depth_nm", master.choice.depth_nm);
  out.single(own_group + "smallest_spacing", master.choice.smallest_spacing);
  out.single<std::int32_t>(own_group + "beams", master.choice.beams);
}

/// The lowest voltage first, as readers of this layout expect.
std::vector<std::size_t> ascending(const std::vector<double>& kilovolts) {
  std::vector<std::size_t> order(kilovolts.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return kilovolts[a] < kilovolts[b]; });
  return order;
}

[[noreturn]] void fail(const std::string& path, const std::string& why) {
  throw RunFailure("cannot read the master pattern " + path + ": " + why);
}

/// Sites summed, of one voltage.
std::vector<float> read_half(const Hdf5File& file, const std::string& name, std::size_t voltages, std::size_t voltage,
                             const std::vector<std::uint64_t>& expected) {
  const std::string place = patterns_group + name;
  const auto sides = file.sides(place);
  if (sides != expected) fail(file.path(), place + " has not the sides of mLPNH");
  const std::uint64_t side = sides.back();
  const std::uint64_t entries = sides.size() == 4 ? sides[0] : 1;
  std::vector<float> sum(side * side);
  std::vector<float> all(voltages * side * side);
  for (std::uint64_t site = 0; site < entries; ++site) {
    const bool good =
        sides.size() == 4 ? file.read_entries(place, site, 1, all) : file.read_entries(place, 0, sides[0], all);
    if (!good) fail(file.path(), place + " is damaged");
    for (std::size_t i = 0; i < sum.size(); ++i) sum[i] += all[voltage * side * side + i];
  }
  if (!std::all_of(sum.begin(), sum.end(), [](float value) { return std::isfinite(value); })) {
    fail(file.path(), place + " holds something that is not a number");
  }
  return sum;
}

void read_crystal(const Hdf5File& file, MasterPattern& master) {
  if (const auto cell = file.numbers(crystal_group + "LatticeParameters"); cell.size() == 6) {
    master.cell = {cell[0] * angstroms, cell[1] * angstroms, cell[2] * angstroms, cell[3], cell[4], cell[5]};
  }
  master.space_group =
      static_cast<int>(std::clamp(file.number(crystal_group + "SpaceGroupNumber").value_or(1), 1.0, 230.0));
  const auto elements = file.numbers(crystal_group + "Atomtypes");
  const auto data = file.numbers(crystal_group + "AtomData");
  if (data.size() != 5 * elements.size()) return;
  for (std::size_t i = 0; i < elements.size(); ++i) {
    const auto value = [&](std::size_t row) { return data[row * elements.size() + i]; };
    constexpr double heaviest = 120;
    master.sites.push_back({static_cast<int>(std::clamp(elements[i], 0.0, heaviest)),
                            value(3),
                            {value(0), value(1), value(2)},
                            value(4) * square_angstroms});
  }
}

}  // namespace

std::vector<float> stereographic(const MasterPattern& master, std::size_t pattern, bool south) {
  std::vector<float> values;
  const int half = (master.size - 1) / 2;
  for (int row = -half; row <= half; ++row) {
    for (int column = -half; column <= half; ++column) {
      const double x = static_cast<double>(column) / half;
      const double y = static_cast<double>(row) / half;
      const double square = x * x + y * y;
      if (square > 1) {
        values.push_back(0);
        continue;
      }
      const double z = (1 - square) / (1 + square);
      // On the equator both halves hold the direction.
      values.push_back(
          static_cast<float>(master.at({2 * x / (1 + square), 2 * y / (1 + square), south ? -z : z}, pattern)));
    }
  }
  return values;
}

void write_master(const MasterPattern& master, const std::string& path) {
  write_hdf5(path, [&master](Hdf5Writer& out) {
    const auto side = static_cast<std::uint64_t>(master.size);
    const std::uint64_t voltages = master.patterns.size();
    std::array<std::vector<float>, 4> arrays;
    std::vector<float> told;
    for (const std::size_t i : ascending(master.kilovolts)) {
      told.push_back(static_cast<float>(master.kilovolts[i]));
      const auto append = [](std::vector<float>& to, const std::vector<float>& from) {
        to.insert(to.end(), from.begin(), from.end());
      };
      append(arrays[0], master.patterns[i].north);
      append(arrays[1], master.patterns[i].south);
      append(arrays[2], stereographic(master, i, false));
      append(arrays[3], stereographic(master, i, true));
    }
    out.array(patterns_group + "mLPNH", {1, voltages, side, side}, arrays[0]);
    out.array(patterns_group + "mLPSH", {1, voltages, side, side}, arrays[1]);
    out.array(patterns_group + "masterSPNH", {voltages, side, side}, arrays[2]);
    out.array(patterns_group + "masterSPSH", {voltages, side, side}, arrays[3]);
    out.array(patterns_group + "EkeVs", told);
    out.single<std::int32_t>(patterns_group + "numEbins", static_cast<std::int32_t>(voltages));
    out.single<std::int32_t>(patterns_group + "lastEnergy", 1);
    out.single<std::int32_t>(patterns_group + "numset", 1);
    write_crystal(out, master);
    write_settings(out, master);
  });
}

MasterPattern read_master(const std::string& path) {
  const Hdf5File file(path);
  const auto sides = file.sides(patterns_group + "mLPNH");
  if (sides.size() != 3 && sides.size() != 4) {
    fail(path, "it holds no EMData/EBSDmaster/mLPNH of sites x voltages x n x n");
  }
  const std::uint64_t side = sides.back();
  const std::uint64_t voltages = sides[sides.size() - 3];
  constexpr std::uint64_t most_side = 4001;
  constexpr std::uint64_t most_values = std::uint64_t{1} << 27U;
  if (sides[sides.size() - 2] != side || side % 2 == 0 || side < 11 || side > most_side) {
    fail(path, "mLPNH is not a square of an odd number of points from 11 to 4001");
  }
  if (voltages == 0 || voltages > most_values / (side * side) || (sides.size() == 4 && sides[0] > 1000)) {
    fail(path, "mLPNH has too many voltages or sites, or none");
  }
  const auto kilovolts = file.numbers(patterns_group + "EkeVs");
  if (kilovolts.size() != voltages) fail(path, "the voltages in EkeVs are not as many as in mLPNH");
  const auto highest =
      static_cast<std::size_t>(std::max_element(kilovolts.begin(), kilovolts.end()) - kilovolts.begin());

  MasterPattern master;
  master.size = static_cast<int>(side);
  master.kilovolts = {kilovolts[highest]};
  master.patterns.push_back(
      {read_half(file, "mLPNH", voltages, highest, sides), read_half(file, "mLPSH", voltages, highest, sides)});
  read_crystal(file, master);
  const std::string spacing = "NMLparameters/EBSDMasterNameList/dmin";
  master.choice = {file.number(own_group + "smallest_spacing").value_or(file.number(spacing).value_or(0) * angstroms),
                   static_cast<int>(std::clamp(file.number(own_group + "beams").value_or(0), 0.0, 1e4)),
                   file.number(own_group + "depth_nm").value_or(0)};
  return master;
}

}  // namespace zol
