// Whoever waits for a calculation can stop it: each asks its task often enough, and ends at once when it is told to.
// Those with measured progress are held by their own tests.
#include <gtest/gtest.h>

#include <functional>
#include <future>

#include "analysis/band_matching.h"
#include "calculators/atom_distances.h"
#include "core/exchange_sort.h"
#include "core/list_order.h"
#include "core/run_aside.h"
#include "core/run_failure.h"
#include "core/unit_cell.h"
#include "entry/word_lines.h"
#include "kikuchi/kikuchi_pattern.h"
#include "kikuchi/zone_map.h"
#include "powder/histogram.h"
#include "powder/line_profile.h"
#include "reflections/reflection_list.h"
#include "shell/services/heavy_work.h"
#include "shell/services/window_services.h"
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

/// @param fewest  checks, counted by hand
void asks(const char* name, int fewest, const std::function<void(Task&)>& run) {
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

const CrystalState down_c = crystal();
constexpr EnumerationSettings full_sphere{{true, true, true}, {}};
constexpr Radiation electrons{false, true};

TEST(Stopping, OfLists) {
  const std::vector<SymmetryOperator> two(2);
  const std::vector<double> keys(2051);
  auto list = list_in(down_c);
  for (auto* array : {&list.b, &list.two_theta}) array->allocate(4);
  asks("images", 6, [&](Task& t) { (void)expand_unit_cell(down_c, {"", "P", two}, t); });
  asks("rows of -2 to 2", 25, [](Task& t) { (void)enumerate_reflections(down_c, full_sphere, t); });
  asks("a sort, 1024 rounds", 3, [&](Task& t) { (void)exchange_order(keys, 1, first_smallest_below(9), false, t); });
  asks("a short sort", 1, [&](Task& t) { sort_list(list, t); });
  asks("reflections", 4, [&](Task& t) { compute_list(down_c, electrons, list, t); });
}

TEST(Stopping, OfPatterns) {
  const auto off_level = crystal({0, 0, 0}, 1);
  const auto view = gnomonic_view(down_c);
  auto many = crystal();
  set_list(many, std::vector<GivenReflection>(129, {1, 0, 0}));
  const InterferenceGrid grid{{2, 1, 1}, {0.0078125F, 0.0078125F, 0.0078125F}};
  const CrystalliteSize size{9, 9, 9};
  const auto pass = [](const Indices<Integer>&) {};
  asks("h, h k and spots of -4 to 4", 9 + 81 + 80, [](Task& t) { (void)diffraction_spots(down_c, electrons, t); });
  asks("h of spots off the level", 9, [&](Task& t) { visit_reflections_on_level(off_level, pass, t); });
  asks("arcs", 4, [](Task& t) { arcs(4, t); });
  asks("64 points of arcs of a turn and a half", 4 + 4 * 1790 / 64, [](Task& t) { arcs(270, t); });
  // Before the look 1080 degrees; a ring of 61 pi / 2 pixels has four sectors for each pixel, looked at once or more.
  asks("looks at a ring", 4 + 4 * (10790 + 750) / 64, [](Task& t) { arcs(721, t); });
  ListedPlanes planes(many);
  asks("greys of bands, each 64", 3, [&](Task& t) { (void)strongest_in_view(planes, view, t); });
  asks("bands, each 64", 3, [&](Task& t) { (void)kikuchi_lines(planes, view, true, t); });
  asks("27 zones but that of zeros", 26, [](Task& t) { (void)places_in_sweep(down_c, {1, 1, 1}, t); });
  asks("points 0 to 2 along a", 3, [&](Task& t) { (void)InterferenceTable(grid, size, t); });
  asks("5 points along a of each reflection", 3 + 20,
       [&](Task& t) { (void)fill_histogram(down_c, InterferenceTable(grid, size, t), 1250, 5000, t); });
  asks("64 lines in 16 blocks of samples", 32, [](Task& t) { lines(65, t); });
}

TEST(Stopping, OfListsAndPicturesOfManyEntries) {
  const std::vector<double> keys((1U << 18U) + 1);  // a tree of 2^20 nodes, half of them leaves
  Window window("W", "");
  ListBox list(window, "List1");
  asks("a tree, each 2^18 nodes", 4 + 1, [&](Task& t) { (void)TournamentTree(keys, t); });
  asks("lines of a list, each 1024", 3, [&](Task& t) { list.add_items(std::vector<std::string>(2049), t); });
  asks("entries of five arrays", 5, [&](Task& t) {
    auto state = down_c;
    reorder(state, {{0, 1, 2, 3, 4}}, t);
  });
}

/// Whether a user would be asked before it, with 2 GB of memory free. It is not done then.
bool is_asked_about(const std::function<void(Task&)>& run) {
  struct : RecordedTask {
    void expect(const Effort& effort) override {
      if (is_heavy(effort, std::uint64_t{2} << 30U)) throw Cancelled();
    }
  } task;
  try {
    run(task);
  } catch (const Cancelled&) {
    return true;
  }
  return false;
}

TEST(Estimates, AskBeforeWhatTakesMinutesOrMuchMemoryAlone) {
  const auto at = [](auto member, auto value) {
    auto state = crystal();
    state.*member = value;
    state.CellVolume = 64;
    return state;
  };
  const auto list = [&](Single dmin) {
    return
        [state = at(&CrystalState::Dmin, dmin)](Task& t) { (void)reflection_list(state, full_sphere, electrons, t); };
  };
  const auto spots = [&](Single half_width) {
    return [state = at(&CrystalState::CamAcquisition, half_width)](Task& t) {
      (void)diffraction_spots(state, electrons, t);
    };
  };
  const auto map = [](int limit) {
    return [limit](Task& t) { (void)places_in_sweep(down_c, {limit, limit, limit}, t); };
  };
  const auto powder = [&](int reflections) {
    return [state = at(&CrystalState::RefCount, Long(reflections))](Task& t) {
      const InterferenceGrid grid{{20, 20, 20}, {0.001F, 0.001F, 0.001F}};
      (void)fill_histogram(state, InterferenceTable(grid, {99, 99, 99}, t), 1250, 5000, t);
    };
  };
  const auto distances = [](Single limit) {
    return [limit](Task& t) {
      auto state = crystal();
      state.NAtom = 1000;
      state.NCell = 2000;
      (void)atom_distances(state, {40, 40, 40, 0, 0, 0}, limit, t);
    };
  };
  const auto matching = [](std::size_t reflections) {
    return [reflections](Task& t) {
      const auto rows = static_cast<int>(reflections * reflections * reflections);
      const TripleTable table(rows, std::vector<TripleTable::Plane>(reflections),
                              std::vector<Single>(reflections * reflections, 90));
      MatchSettings settings;
      settings.angle_tolerance = 40;
      (void)match_bands(down_c, table, static_cast<Single>(reflections), {}, settings, t);
    };
  };
  const auto arcs_of = [](int reflections, Single dispersion) {
    return [reflections, dispersion](Task& t) {
      auto state = crystal();
      set_list(state, std::vector<GivenReflection>(static_cast<std::size_t>(reflections), {1, 0, 0, 1}));
      state.Dispersion = dispersion;
      t.expect(effort_of_arcs(state, {512, 512, {}}, t));
    };
  };
  struct Row {
    const char* name;
    bool asked;
    std::function<void(Task&)> run;
  };
  for (const auto& [name, asked, run] :
       std::initializer_list<Row>{{"list to 1", false, list(1)},
                                  {"list to 0.02", true, list(0.02F)},
                                  {"few spots", false, spots(1)},
                                  {"very many spots", true, spots(3000)},
                                  {"map to 3", false, map(3)},
                                  {"map to 400", true, map(400)},
                                  {"powder", false, powder(4)},
                                  {"powder of a million lines", true, powder(1000000)},
                                  {"distances in the cells around", true, distances(99)},
                                  {"few triples", false, matching(3)},
                                  {"1200^3 triples", true, matching(1200)},
                                  {"narrow arcs", false, arcs_of(4, 10)},
                                  {"wide arcs of many", true, arcs_of(100000, 1e6)}}) {
    EXPECT_EQ(is_asked_about(run), asked) << name;
  }
}

TEST(Estimates, AreToldRoughly) {
  EXPECT_EQ(effort_question({250, 310e6}), "This would take about 4 minutes and 300 MB. Do it all the same?");
  constexpr double hour = 3600, day = 24 * hour;
  for (const auto& [seconds, text] : {std::pair{0.2, "1 second"},
                                      {71.0, "70 seconds"},
                                      {170.0, "3 minutes"},
                                      {1.8 * hour, "2 hours"},
                                      {40 * day, "40 days"},
                                      {1e15, "years"}}) {
    EXPECT_EQ(effort_question({seconds, 0}), std::string("This would take about ") + text + ". Do it all the same?");
  }
  EXPECT_EQ(effort_question({1, 5e9}), "This would take about 1 second and 5 GB. Do it all the same?");
  EXPECT_FALSE(is_heavy({59, 1e12}, std::nullopt)) << "nobody knows the memory";
}

TEST(Aside, WorkIsLeftAloneWhenTheTaskStops) {
  auto gate = std::make_shared<std::promise<void>>();
  RecordedTask task;
  EXPECT_EQ(run_aside<int>(task, [] { return 7; }), 7);
  EXPECT_THROW((void)run_aside<int>(task, []() -> int { throw RunFailure("no"); }), RunFailure);
  task.cancel_at = task.checks + 1;
  EXPECT_THROW((void)run_aside<int>(task, [gate] { return gate->get_future().wait(), 1; }), Cancelled);
  gate->set_value();
}

TEST(Stopping, OfStructures) {
  const SpaceGroupLibrary groups(file_of);
  const auto settle = [](Structure moved, Task& t) { (void)settle_positions(moved, t); };
  const std::string cif =
      "data_a\n_cell_length_a 4\n_cell_length_b 4\n_cell_length_c 4\n_cell_angle_alpha 90\n_cell_angle_beta 90\n"
      "_cell_angle_gamma 90\n_space_group_symop_operation_xyz x,y,z\nloop_\n_atom_site_label\n_atom_site_fract_x\n"
      "_atom_site_fract_y\n_atom_site_fract_z\nC1 0 0 0\nC2 .5 .5 .5\n";
  const std::string shelx = "TITL a\nCELL 0.7 4 5 6 90 90 90\nLATT -1\nSFAC C\nC1 1 0.1 0.2 0.3\n";
  const std::string poscar = "a\n1\n4 0 0\n0 4 0\n0 0 4\nC\n2\nDirect\n0 0 0\n.5 .5 .5\n";
  asks("lines", 3, [](Task& t) { for_each_line("a\nb\nc", t, [](std::string_view) {}); });
  asks("images in contents", 6, [](Task& t) { (void)cell_contents(structure(), t); });
  asks("images and sites of distances", 6 + 3, [](Task& t) { (void)shortest_distance(structure(), true, t); });
  asks("sites on symmetry elements", 3, [&](Task& t) { settle(structure(), t); });
  asks("groups 1 and 2", 2, [&](Task& t) { (void)in_program_setting(structure(), groups, t); });
  asks("lines of SHELX", 5, [&](Task& t) { (void)read_shelx(shelx, t); });
  asks("atoms of a POSCAR", 2, [&](Task& t) { (void)read_poscar(poscar, {}, t); });
  asks("sites of a CIF", 2, [&](Task& t) { (void)read_cif(cif, {}, t); });
}

}  // namespace
}  // namespace zol
