// Whoever waits for a calculation can stop it: each asks its task often enough, and ends at once when it is told to.
// Those with measured progress are held by their own tests.
#include <gtest/gtest.h>

#include <functional>

#include "core/exchange_sort.h"
#include "core/unit_cell.h"
#include "entry/word_lines.h"
#include "kikuchi/kikuchi_pattern.h"
#include "kikuchi/zone_map.h"
#include "powder/histogram.h"
#include "powder/line_profile.h"
#include "reflections/reflection_list.h"
#include "spots/fiber_texture.h"
#include "spots/spot_pattern.h"
#include "structures/contents.h"
#include "structures/structure_reading.h"
#include "tests/crystals.h"
#include "tests/lists.h"
#include "tests/recorded_task.h"
#include "tools/data_check/cell_metric.h"

namespace zol {
namespace {

/// Cubic, 4 angstroms, four reflections, three atoms, seen along an axis; to index 2 in pictures and lists.
CrystalState crystal(const SingleTriple& axis = {0, 0, 1}, int level = 0) {
  CrystalState state = with_cell(cubic_cell(4));
  set_list(state, {{1, 0, 0, 1}, {0, 1, 0, 1}, {0, 0, 1, 1}, {2, 0, 0, 1}});
  state.Dmin = 4;
  state.NAtom = 3;
  state.WaveLength = 1;
  state.CamAcquisition = 0.5F;  // 2 * 0.5 / 0.25 is 4
  state.ZoneU = axis[0];
  state.ZoneV = axis[1];
  state.ZoneW = axis[2];
  state.OriginH = state.OriginK = 1;
  state.Level = level;
  state.Dispersion = 4;
  return state;
}

/// Three sites, and inversions in a place that is not the origin of space group 2.
Structure structure() {
  ExactOperator inversion;
  for (std::size_t i = 0; i < 3; ++i) inversion.rotation[i][i] = -operator_unit;
  inversion.translation = {operator_unit / 2, 0, 0};
  Structure made;
  made.cell = {4, 5, 6, 90, 91, 92};
  made.space_group_number = 0;
  made.operators = {ExactOperator{}, inversion};
  for (const double x : {0.1, 0.3, 0.45}) made.sites.push_back({"C", "C", 0, 1, {x, 0.2, 0.3}, 0.5});
  return made;
}

void arcs(Single dispersion, Task& task) {
  auto state = crystal();
  state.Dispersion = dispersion;
  (void)fiber_arcs(state, 4, {61, 61, {}}, task);  // in steps of 0.1 degrees: 0.5 / 0.5 / 10
}

void lines(std::size_t bins, Task& task) {
  (void)sum_pseudo_voigt_lines(std::vector<FilledBin>(bins, {0.4F, 1}), 1.5F, {0, 100}, {0.1F, 50}, task);
}

struct Row {
  const char* name;
  std::function<void(Task&)> run;
  int checks;  ///< the fewest, counted by hand
};

// NOLINTNEXTLINE(readability-function-size): a table
TEST(Calculations, AskWhetherToGoOnAndStop) {
  const InterferenceGrid grid{{2, 1, 1}, {0.0078125F, 0.0078125F, 0.0078125F}};
  const SpaceGroupLibrary groups(file_of);
  const CrystalState down_c = crystal();
  const std::vector<Row> rows{
      {"an exchange, every 1024 rounds",
       [](Task& t) { (void)exchange_order(std::vector<double>(2051), 1, first_smallest_below(9), false, t); }, 3},
      {"a unit cell, each image",
       [&](Task& t) {
         (void)expand_unit_cell(down_c, {"", "P", std::vector<SymmetryOperator>(2)}, t);
       },
       6},
      {"a reflection list, each row of -2 to 2",
       [&](Task& t) {
         (void)enumerate_reflections(down_c, {{true, true, true}, {}}, t);
       },
       25},
      {"a sort",
       [&](Task& t) {
         auto list = list_in(down_c);
         sort_list(list, t);
       },
       1},
      {"intensities, each reflection",
       [&](Task& t) {
         auto list = list_in(down_c);
         for (auto* array : {&list.b, &list.two_theta}) array->allocate(4);
         compute_list(down_c, {true, false}, list, t);
       },
       4},
      {"spots, each h, h k and spot of -4 to 4",
       [&](Task& t) {
         (void)diffraction_spots(down_c, {false, true}, t);
       },
       9 + 81 + 80},
      {"spots, all of them off the level: each h",
       [](Task& t) {
         visit_reflections_on_level(
             crystal({0, 0, 0}, 1), [](const Indices<Integer>&) {}, t);
       },
       9},
      {"fiber texture, each arc", [](Task& t) { arcs(4, t); }, 4},
      {"arcs of a turn and a half, every 64 points", [](Task& t) { arcs(270, t); }, 4 + 4 * 1790 / 64},
      // Before the look 1080 degrees; a ring of 61 pi / 2 pixels has four sectors for each pixel, looked at once or
      // more.
      {"looks at the ring", [](Task& t) { arcs(721, t); }, 4 + 4 * (10790 + 750) / 64},
      {"greys of bands, each reflection", [&](Task& t) { (void)strongest_in_view(down_c, gnomonic_view(down_c), t); },
       4},
      {"bands, each reflection", [&](Task& t) { (void)kikuchi_lines(down_c, gnomonic_view(down_c), true, t); }, 4},
      {"zones, each of 27 but the one of zeros",
       [&](Task& t) {
         (void)places_in_sweep(down_c, {1, 1, 1}, t);
       },
       26},
      {"interference, points 0 to 2 along a",
       [&](Task& t) {
         (void)InterferenceTable(grid, {9, 9, 9}, t);
       },
       3},
      {"a histogram, beside those 5 points along a for each reflection",
       [&](Task& t) {
         (void)fill_histogram(down_c, InterferenceTable(grid, {9, 9, 9}, t), 1250, 5000, t);
       },
       3 + 20},
      {"lines, for 16 blocks of samples 64 at a time", [](Task& t) { lines(65, t); }, 32},
      {"a text, each line", [](Task& t) { for_each_line("a\nb\nc", t, [](std::string_view) {}); }, 3},
      {"contents of a cell, each image", [](Task& t) { (void)cell_contents(structure(), t); }, 6},
      {"distances, each image and each site", [](Task& t) { (void)shortest_distance(structure(), true, t); }, 6 + 3},
      {"special positions, each site",
       [](Task& t) {
         auto moved = structure();
         (void)settle_positions(moved, t);
       },
       3},
      {"a setting, each group up to number 2",
       [&](Task& t) { EXPECT_EQ(in_program_setting(structure(), groups, t).file_number, 2); }, 2},
      {"SHELX, each line",
       [](Task& t) { (void)read_shelx("TITL a\nCELL 0.7 4 5 6 90 90 90\nLATT -1\nSFAC C\nC1 1 0.1 0.2 0.3\n", t); }, 5},
      {"POSCAR, each atom",
       [](Task& t) { (void)read_poscar("a\n1\n4 0 0\n0 4 0\n0 0 4\nC\n2\nDirect\n0 0 0\n.5 .5 .5\n", {}, t); }, 2},
      {"CIF, each site",
       [](Task& t) {
         (void)read_cif(
             "data_a\n_cell_length_a 4\n_cell_length_b 4\n_cell_length_c 4\n_cell_angle_alpha 90\n"
             "_cell_angle_beta 90\n_cell_angle_gamma 90\n_space_group_symop_operation_xyz x,y,z\nloop_\n"
             "_atom_site_label\n_atom_site_fract_x\n_atom_site_fract_y\n_atom_site_fract_z\nC1 0 0 0\nC2 .5 .5 .5\n",
             {}, t);
       },
       2},
  };
  for (const auto& [name, run, fewest] : rows) {
    SCOPED_TRACE(name);
    RecordedTask whole;
    run(whole);
    EXPECT_GE(whole.checks, fewest);
    for (const int at : {1, whole.checks}) {
      RecordedTask stopped;
      stopped.cancel_at = at;
      EXPECT_THROW(run(stopped), Cancelled);
      EXPECT_EQ(stopped.checks, at);
    }
  }
}

}  // namespace
}  // namespace zol
