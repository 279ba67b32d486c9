// Master patterns as files, in the cache, and as they are seen.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>

#include "core/read_file.h"
#include "core/run_failure.h"
#include "dynamics/master_cache.h"
#include "dynamics/master_file.h"
#include "dynamics/master_sphere.h"
#include "dynamics/master_view.h"
#include "dynamics/sphere_view.h"
#include "hdf5/hdf5_file.h"
#include "tests/dynamic_crystals.h"
#include "tests/quiet.h"
#include "tests/test_files.h"

namespace zol {
namespace {

TEST(MasterFile, IsReadAsItWasWritten) {
  const ScratchFolder folder;
  const std::string path = folder.path("master.h5");
  MasterSettings settings = small(21);
  settings.kilovolts = {15, 20};
  const auto master = master_pattern(zinc_blende(), settings, quiet);
  write_master(master, path);
  const auto read = read_master(path);
  EXPECT_EQ(read.kilovolts, std::vector{20.});
  EXPECT_EQ(read.patterns[0].north, master.patterns[1].north);
  EXPECT_EQ(read.patterns[0].south, master.patterns[1].south);
  EXPECT_NEAR(read.cell.a, 4.6, 1e-12);
  ASSERT_EQ(read.sites.size(), 1U);
  EXPECT_NEAR(read.sites[0].b_iso, .35, 1e-6);
  EXPECT_EQ(read.choice.beams, 24);
}

// As files of EMsoft 5 have it, by the one of nickel that kikuchipy ships: sites x voltages x n x n, the lowest voltage
// first, lengths in nanometres.
TEST(MasterFile, HasTheLayoutOfEMsoft) {
  const ScratchFolder folder;
  const std::string path = folder.path("master.h5");
  MasterSettings settings = small(21);
  settings.kilovolts = {20, 18, 16};
  const auto master = master_pattern(zinc_blende(), settings, quiet);
  write_master(master, path);
  const Hdf5File file(path);
  using Sides = std::vector<std::uint64_t>;
  const struct {
    const char* name;
    Sides sides;
    int bits;
    bool whole;
    double first;
  } rows[] = {{"EMData/EBSDmaster/mLPNH", {1, 3, 21, 21}, 32, false, static_cast<double>(master.patterns[2].north[0])},
              {"EMData/EBSDmaster/mLPSH", {1, 3, 21, 21}, 32, false, static_cast<double>(master.patterns[2].south[0])},
              {"EMData/EBSDmaster/masterSPNH", {3, 21, 21}, 32, false, 0},
              {"EMData/EBSDmaster/masterSPSH", {3, 21, 21}, 32, false, 0},
              {"EMData/EBSDmaster/EkeVs", {3}, 32, false, 16},
              {"EMData/EBSDmaster/numset", {1}, 32, true, 1},
              {"CrystalData/LatticeParameters", {6}, 64, false, .46},
              {"CrystalData/AtomData", {5, 1}, 32, false, 0},
              {"CrystalData/Atomtypes", {1}, 32, true, 28},
              {"CrystalData/SpaceGroupNumber", {1}, 32, true, 225},
              {"NMLparameters/EBSDMasterNameList/npx", {1}, 32, true, 10},
              {"NMLparameters/MCCLNameList/EkeV", {1}, 64, false, 20},
              {"NMLparameters/MCCLNameList/Ehistmin", {1}, 64, false, 16},
              {"NMLparameters/MCCLNameList/Ebinsize", {1}, 64, false, 2}};
  for (const auto& [name, sides, bits, whole, first] : rows) {
    SCOPED_TRACE(name);
    EXPECT_EQ(file.sides(name), sides);
    EXPECT_EQ(file.bits(name), bits);
    EXPECT_EQ(file.holds_whole_numbers(name), whole);
    EXPECT_NEAR(file.number(name).value_or(-1), first, 1e-6);
  }
  EXPECT_EQ(read_master(path).patterns[0].north, master.patterns[0].north);
}

// The fourth of the arrays lies at its end: half a file lacks it.
TEST(MasterFile, RefusesBrokenOnes) {
  const ScratchFolder folder;
  const std::string path = folder.path("master.h5");
  write_master(master_pattern(face_centred(nickel), small(21), quiet), path);
  for (const std::uintmax_t bytes : {std::uintmax_t{0}, std::uintmax_t{100}, std::uintmax_t{4000}}) {
    std::filesystem::resize_file(path, bytes);
    EXPECT_NE(failure_of([&] { (void)read_master(path); }).find(path), std::string::npos) << bytes;
  }
}

TEST(MasterSphere, ReadsBothHalves) {
  const auto master = master_pattern(zinc_blende(), small(41), quiet);
  const auto sphere = master_sphere(master, 0, quiet);
  EXPECT_NE(sphere->opposite(), 0);
  double mean = 0;
  for (const auto& d : some_directions()) mean += static_cast<double>(sphere->at({d[0], d[1], d[2]})) / 24;
  EXPECT_NEAR(mean, 0, .1);
  for (const auto& d : some_directions()) {
    const double difference = master.at(d) - master.at({-d[0], -d[1], -d[2]});
    EXPECT_NEAR(static_cast<double>(sphere->at({d[0], d[1], d[2]}) - sphere->at({-d[0], -d[1], -d[2]})), difference,
                .05);
  }
  EXPECT_EQ(master_sphere(master_pattern(face_centred(nickel), small(21), quiet), 1, quiet)->opposite(), 0);
}

// The table of X-rays has ions and bonded atoms, that of electrons neutral ones alone.
TEST(CrystalOfAtoms, TakesNeutralOnes) {
  CrystalState state;
  state.CellA = state.CellB = state.CellC = 3.5667F;
  state.CellAlpha = state.CellBeta = state.CellGamma = 90;
  state.NAtom = state.NCell = state.AsfECount = 1;
  state.UCOcc(1) = 1;
  state.AsfE(1).Z = 6;
  state.AsfE(1).A1 = state.AsfE(1).B1 = 1;
  for (const auto& [element, neutral] : std::map<std::string, std::string>{
           {"C", "C"}, {"Cval", "C"}, {"Sival", "Si"}, {"Hiso", "H"}, {"Fe3+", "Fe"}, {"V5+", "V"}}) {
    state.UCElement(1) = state.AtomElement(1) = element;
    state.AsfE(1).Element = neutral;
    EXPECT_EQ(dynamic_crystal(state, nullptr).kinds.front().atomic_number, 6) << element;
  }
  EXPECT_EQ(failure_of([&state] {
              state.AsfE(1).Element = "Ni";
              (void)kept_master(state, nullptr, small(21), quiet);
            }),
            "the element V has no scattering factor for electrons");
  state.NAtom = 0;
  state.JcpdsCount = 1;
  EXPECT_EQ(failure_of([&state] { (void)kept_master(state, nullptr, small(21), quiet); }),
            "it has observed lines and no atoms");
}

TEST(MasterCache, KeepsWithinItsLimitAndMendsWhatIsDamaged) {
  const ScratchFolder folder;
  const std::string place = folder.path("masters");
  const MasterCache cache(place, 20000);
  const auto files = [&] {
    std::vector<std::filesystem::path> found;
    for (const auto& entry : std::filesystem::directory_iterator(place)) found.push_back(entry.path());
    return found;
  };
  const auto crystal = zinc_blende();
  MasterSettings settings = small(21);
  settings.kilovolts = {20, 15};
  const auto first = cache.get(crystal, settings, quiet);
  ASSERT_EQ(files().size(), 1U);
  std::string bytes = read_file(files().front().string());
  char& middle = bytes[bytes.size() / 2];
  middle = static_cast<char>(middle ^ 1);  // a bit on the disk
  for (const std::string& damaged : {std::string("damaged"), bytes.substr(0, bytes.size() - 1), bytes}) {
    const auto read = cache.get(crystal, settings, quiet);
    EXPECT_EQ(read.directions, 0U);  // it was not made again
    EXPECT_EQ(read.patterns[1].south, first.patterns[1].south);
    EXPECT_EQ(read.sites.size(), first.sites.size());
    std::ofstream(files().front()) << damaged;
    const auto mended = cache.get(crystal, settings, quiet);
    EXPECT_EQ(mended.patterns[0].north, first.patterns[0].north);
    EXPECT_GT(mended.directions, 0U);
  }
  (void)cache.get(crystal, small(23), quiet);
  EXPECT_EQ(files().size(), 1U);
}

TEST(SphereView, ShowsThreefoldAxesOfACube) {
  MasterSettings settings;
  settings.size = 201;
  settings.smallest_spacing = 1;
  settings.beams = 20;
  const MasterPattern master = master_pattern(face_centred(nickel), settings, quiet);
  const auto seen = [&master](double turn_deg) {
    return draw_sphere(master, {SphereProjection::Globe, false, globe_about(diagonal, turn_deg)}, 60, 1, quiet);
  };
  const auto difference = [as_it_is = seen(0)](const std::vector<double>& turned) {
    double sum = 0;
    for (std::size_t i = 0; i < turned.size(); ++i) sum += std::abs(turned[i] - as_it_is[i]);
    return sum / static_cast<double>(turned.size());
  };
  EXPECT_LT(difference(seen(120)), .04);
  EXPECT_GT(difference(seen(60)), .1) << "it has no sixfold one";
}

// A file where the folder would be, as a disk that cannot be written.
TEST(MasterCache, DoesNoHarmWhereNothingCanBeKept) {
  const ScratchFolder folder;
  const MasterCache cache(folder.write("masters", "a file"));
  EXPECT_GT(cache.get(face_centred(nickel), small(21), quiet).directions, 0U);
}

}  // namespace
}  // namespace zol
