// Maps of two made-up scans: orientations, stops and centres.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <string>
#include <vector>

#include "scans/centre_plane.h"
#include "scans/map_files.h"
#include "scans/map_run.h"
#include "tests/quiet.h"
#include "tests/test_files.h"

namespace zol {
namespace {

TEST(MapCentres, DriftWithTheBeam) {
  MapGeometry geometry;
  geometry.detector_tilt_deg = 5;
  geometry.screen_width_micrometre = 1000;
  const MapCentres centres({.5, .3, .6}, geometry, {3, 3, 10, 20});
  const auto corner = centres.at(8);
  EXPECT_NEAR(corner.x, .51, 1e-12);
  EXPECT_NEAR(corner.y, .3 + .02 * std::cos(25 * std::numbers::pi / 180), 1e-12);
  EXPECT_NEAR(corner.z, .6 - .02 * std::sin(25 * std::numbers::pi / 180), 1e-12);
  EXPECT_EQ(centres.at(4).x, .5);
}

/// Face-centred cubic, of signed permutations.
const CrystalModel& metal() {
  static const CrystalModel model = [] {
    const Lattice lattice({3.52, 3.52, 3.52, 90, 90, 90});
    std::vector<std::array<std::array<double, 3>, 3>> group;
    std::array<std::size_t, 3> order{0, 1, 2};
    do {
      for (unsigned signs = 0; signs < 8; ++signs) {
        auto& op = group.emplace_back();
        for (std::size_t i = 0; i < 3; ++i) op[i][order[i]] = (signs >> i & 1U) != 0 ? -1 : 1;
      }
    } while (std::next_permutation(order.begin(), order.end()));
    std::vector<ListedReflection> list;
    for (int n = 0; n < 11 * 11 * 11 / 2; ++n) {
      const std::array<int, 3> hkl{n / 121 - 5, n / 11 % 11 - 5, n % 11 - 5};
      const bool odd = hkl[0] % 2 != 0;
      if ((hkl[1] % 2 != 0) != odd || (hkl[2] % 2 != 0) != odd) continue;
      const double square = hkl[0] * hkl[0] + hkl[1] * hkl[1] + hkl[2] * hkl[2];
      list.push_back({hkl, std::exp(-square / 8)});
    }
    const auto rotations = proper_rotations(lattice, group);
    auto set = make_reflectors(lattice, rotations, list, 0.0859, quiet);
    auto families = voting_families(set, 6);
    auto sphere = std::make_shared<const KinematicSphere>(set, 401, StripShape{}, quiet);
    return make_crystal_model("metal", std::move(set), std::move(families), std::move(sphere), quiet);
  }();
  return model;
}

/// Two grains beside each other, and a point without a pattern, drawn by the program's own projection.
class TwoGrains : public Scan {
 public:
  static constexpr std::size_t side = 48, across = 6, down = 4;
  explicit TwoGrains(float scale = 1) : scale_(scale) {
    header_.whole = scale == 1;
    header_.width = header_.height = int{side};
    header_.points = across * down;
    header_.grid = ScanGrid{int{across}, int{down}};
  }
  static Rotation truth(std::size_t point) {
    return rotation_of_bunge(point % across < 3 ? std::array{40.0, 50.0, 60.0} : std::array{200.0, 30.0, 10.0});
  }
  void read(std::size_t first, std::size_t count, PatternBlock& block) override {
    block.begin(first, count, side * side);
    for (std::size_t i = 0; i < count; ++i) {
      if (first + i == 8) continue;
      std::vector<float> drawn;
      const PatternCentre turned{.5, 1 - .3, .55};
      draw_bands(*metal().sphere, truth(first + i) * picture_from_sample(70).transpose(), {turned, double{side}},
                 int{side}, int{side}, drawn);
      for (std::size_t y = 0; y < side; ++y) {
        for (std::size_t x = 0; x < side; ++x) {
          const auto noise = static_cast<float>((x * 7919 + y * 104729 + (first + i) * 31) % 17);
          block.pattern(i)[(side - 1 - y) * side + x] = scale_ * (100 + 20 * drawn[y * side + x] + noise);
        }
      }
      block.present[i] = 1;
    }
  }

 private:
  float scale_;
};

/// Nine grains under a beam that moves: the centre is another one at each point.
class DriftingScan : public Scan {
 public:
  static constexpr std::size_t side = 60;
  DriftingScan() {
    header_.width = header_.height = int{side};
    header_.grid = ScanGrid{12, 9};
    header_.points = header_.grid->points();
  }
  static MapCentres truth() { return {{.5, .3, .55}, {.001, 0, 0}, {0, .0009, -.0004}, {12, 9}}; }
  void read(std::size_t first, std::size_t count, PatternBlock& block) override {
    block.begin(first, count, side * side);
    for (std::size_t i = 0; i < count; ++i) {
      std::vector<float> drawn;
      const auto number = (first + i) % 12 / 4 + 3 * ((first + i) / 36);  // 4 x 3 points
      const auto grain = static_cast<double>(number);
      draw_bands(*metal().sphere, rotation_of_bunge({37 * grain, 50, 23 * grain}) * picture_from_sample(70).transpose(),
                 {upside_down(truth().at(first + i), {int{side}, int{side}}), double{side}}, int{side}, int{side},
                 drawn);
      for (std::size_t p = 0; p < side * side; ++p) {
        const auto noise = static_cast<float>((p * 7919 + (first + i) * 31) % 17);
        block.pattern(i)[(side - 1 - p / side) * side + p % side] = 100 + 20 * drawn[p] + noise;
      }
      block.present[i] = 1;
    }
  }
};

std::vector<PointResult> indexed(const MapRun& run, float scale = 1) {
  TwoGrains scan(scale);
  const ScanGrid grid = *scan.header().grid;
  MapIndexer indexer(scan, grid, MapCentres({.5, .3, .55}, {}, grid), {&metal()}, {});
  indexer.prepare(quiet);
  std::vector<PointResult> points;
  EXPECT_TRUE(run_map(indexer, grid, run, points));
  return points;
}

TEST(MapIndexer, FindsBothGrainsAndTheHoleWithAnyNumberOfThreadsAndAfterAStop) {
  const ScratchFolder folder;
  const auto points = indexed({});
  for (std::size_t i = 0; i < points.size(); ++i) {
    SCOPED_TRACE(i);
    ASSERT_EQ(points[i].missing != 0, i == 8);
    if (i == 8) continue;
    ASSERT_EQ(points[i].phase, 1);
    std::array<double, 3> angles{};
    for (std::size_t k = 0; k < 3; ++k)
      angles[k] = static_cast<double>(points[i].bunge_rad[k]) * 180 / std::numbers::pi;
    EXPECT_LT(misorientation_deg(rotation_of_bunge(angles), TwoGrains::truth(i), metal().reflectors.symmetry), 0.2);
  }
  const auto of_fractions = indexed({}, 1.0F / 512);
  EXPECT_TRUE(std::all_of(of_fractions.begin(), of_fractions.end(), [](const PointResult& point) {
    return point.phase == 1 || point.missing != 0;
  })) << "grey values from 0 to 1";
  MapRun run;
  run.threads = 3;
  EXPECT_EQ(indexed(run), points);
  run.part_path = folder.path("map.part");
  run.fingerprint = 5;
  TwoGrains scan;
  const ScanGrid grid = *scan.header().grid;
  MapIndexer indexer(scan, grid, MapCentres({.5, .3, .55}, {}, grid), {&metal()}, {});
  indexer.prepare(quiet);
  std::vector<PointResult> part;
  MapRun stopped = run;
  stopped.stop = [] { return true; };
  EXPECT_FALSE(run_map(indexer, grid, stopped, part));
  run.resume = true;
  EXPECT_EQ(indexed(run), points);
  EXPECT_EQ(folder.entries(), 0U) << "what was kept goes at the end";
  folder.write("map.part", "ZOLMAP2\n" + std::string("\6\0\0\0\0\0\0\0", 8));
  EXPECT_TRUE(fails_with("other settings", [&] { (void)run_map(indexer, grid, run, part); }));
}

// A tile of 108 points is the whole map, so that all that is kept stands within it.
TEST(MapRun, AProcessThatIsKilledLosesOnlyWhatItDidSinceItKeptItsPointsLast) {
  const ScratchFolder folder;
  DriftingScan scan;
  const ScanGrid grid = *scan.header().grid;
  MapIndexer indexer(scan, grid, DriftingScan::truth(), {&metal()}, {});
  indexer.prepare(quiet);
  const auto asked_of = [&](MapRun run, std::vector<PointResult>& points) {
    int asked = 0;
    run.stop = [&asked] { return ++asked < 0; };
    EXPECT_TRUE(run_map(indexer, grid, run, points));
    return asked;
  };
  std::vector<PointResult> whole;
  const int all = asked_of({}, whole);
  MapRun run;
  run.part_path = folder.path("map.part");
  run.keep_every = std::chrono::milliseconds(0);
  const pid_t child = fork();
  if (child == 0) {
    int left = all / 2;
    run.stop = [&left] { return --left < 0 && raise(SIGKILL) != 0; };
    std::vector<PointResult> points;
    (void)run_map(indexer, grid, run, points);
    _exit(0);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
  run.resume = true;
  std::vector<PointResult> points;
  EXPECT_LE(asked_of(run, points), all - all / 2 + 2) << "it is asked evenly as points go on, of " << all;
  EXPECT_GE(all, 10);
  EXPECT_EQ(points, whole);
}

TEST(MapRun, KeepsATileAsOftenAsItIsTold) {
  struct Desk : TileDesk {
    std::optional<std::size_t> next() override {
      return given ? std::nullopt : (given = true, std::optional<std::size_t>(0));
    }
    void keep(std::size_t /*tile*/, const TileState& state) override {
      ++times;
      done = state.done;
    }
    void deliver(std::size_t /*tile*/, const std::vector<PointResult>& /*results*/) override {}
    bool given = false;
    int times = 0;
    std::size_t done = 0;
  };
  DriftingScan scan;
  const ScanGrid grid = *scan.header().grid;
  MapIndexer indexer(scan, grid, DriftingScan::truth(), {&metal()}, {});
  indexer.prepare(quiet);
  MapRun run;
  run.keep_every = std::chrono::milliseconds(2);
  Desk desk;
  EXPECT_TRUE(work_on_tiles(indexer, desk, run));
  EXPECT_GT(desk.times, 5);
  EXPECT_GT(desk.done, 50U) << "of 108, which take much longer than that";
}

TEST(CentrePlane, GoesThroughPointsAndLeavesOutWhatLiesApart) {
  // x = .5 + .001 c, y = .3 - .002 r about the middle of 5 x 5 points, z with +-e: e of four points of the rest 0.
  const ScanGrid grid{5, 5};
  std::vector<CentrePoint> points;
  for (int i = 0; i < 25; ++i) {
    const int column = i % 5;
    const int row = i / 5;
    points.push_back({column, row, {.5 + .001 * (column - 2), .3 - .002 * (row - 2), i % 2 == 0 ? .601 : .599}, 1});
  }
  points[7].centre.x += .1;
  const CentrePlane plane = plane_through(points, grid);
  EXPECT_NEAR(plane.middle[0], .5, 1e-12);
  EXPECT_NEAR(plane.per_column[0], .001, 1e-12);
  EXPECT_NEAR(plane.per_row[1], -.002, 1e-12);
  EXPECT_NEAR(plane.centres().at(24).y, .3 - .004, 1e-12);
  for (std::size_t i = 0; i < 25; ++i) EXPECT_EQ(plane.points[i].left_out, i == 7) << i;
  // The scatter of z is nearly .001 over 24 points; sums of squares of columns about their middle are 50.
  EXPECT_NEAR(plane.scatter[2], .001 * std::sqrt(24 / 21.0), 2e-5);
  EXPECT_NEAR(plane.middle_error[2], plane.scatter[2] / std::sqrt(24.0), 1e-5);
  EXPECT_NEAR(plane.per_column_error[2], plane.scatter[2] / std::sqrt(50.0), 1e-5);

  std::vector<CentrePoint> line(points.begin(), points.begin() + 5);
  const CentrePlane along = plane_through(line, {5, 1});
  EXPECT_NEAR(along.per_column[0], .001, 1e-12);
  EXPECT_EQ(along.per_row[0], 0);
  EXPECT_EQ(along.per_row_error[0], 0);
  line.pop_back();
  EXPECT_EQ(failure_of([&] { (void)plane_through(line, grid); }),
            "a plane of pattern centres needs 5 clear points at least, and there are 4");
}

TEST(CentrePlane, FindsTheDriftOfAScan) {
  DriftingScan scan;
  const ScanGrid grid = *scan.header().grid;
  MapIndexer indexer(scan, grid, MapCentres({.51, .29, .56}, {}, grid), {&metal()}, {});
  indexer.prepare(quiet);
  const CentrePlane plane = fit_centre_plane(indexer, 9, quiet);
  const MapCentres truth = DriftingScan::truth();
  indexer.set_centres(plane.centres());
  for (const std::size_t point : {std::size_t{0}, grid.points() - 1}) {
    const auto found = upside_down(indexer.turned_centre(point), indexer.picture_size());
    EXPECT_NEAR(found.x, truth.at(point).x, 0.002) << point;
    EXPECT_NEAR(found.y, truth.at(point).y, 0.002) << point;
    EXPECT_NEAR(found.z, truth.at(point).z, 0.002) << point;
  }
}

// 4 pi and -1 for what is not indexed; a quarter turn and, on a hexagonal cell, 30 degrees between the two makers.
TEST(MapFiles, HaveTheirMakersAxes) {
  MapResult map;
  map.grid = {2, 1, 1.5, 1.5};
  map.phases = {{"Ti", "Ti2", {2.95, 2.95, 4.68, 90, 90, 120}, 194, "6/mmm", {{{0, 1, 1}, 100}}, {}},
                {"Ni", "Ni4", {3.52, 3.52, 3.52, 90, 90, 90}, 225, "m-3m", {}, {}}};
  const auto radian = [](double degree) { return static_cast<float>(degree * std::numbers::pi / 180); };
  map.points = {{{radian(100), radian(20), radian(350)}, .5F, .25F, .125F, 1, 0, 0, 0}, {}};
  const std::string ang = ang_text(map);
  EXPECT_LT(ang.find("# Phase 2"), ang.find("# Phase 1"));
  EXPECT_NE(ang.find("# Symmetry              62"), std::string::npos);
  EXPECT_NE(ang.find("  1.74533   0.34907   6.10865      0.00000      0.00000   500.0  0.250  1      1   0.125\n"),
            std::string::npos)
      << ang;
  EXPECT_NE(ang.find(" 12.56637  12.56637  12.56637      1.50000      0.00000     0.0 -1.000  0      1 180.000\n"),
            std::string::npos)
      << ang;
  const std::string ctf = ctf_text(map);
  EXPECT_NE(ctf.find("1\t0.0000\t0.0000\t0\t0\t10.0000\t20.0000\t20.0000\t0.1250\t128\t0\n"), std::string::npos) << ctf;
  EXPECT_NE(ctf.find("0\t1.5000\t0.0000\t0\t3\t0.0000\t0.0000\t0.0000\t0.0000\t0\t0\n"), std::string::npos) << ctf;
  const ScratchFolder folder;
  write_map(map, folder.path("a.h5"));
  EXPECT_GT(folder.read("a.h5").size(), 1000U);
  EXPECT_TRUE(fails_with("none of .ang", [&] { write_map(map, folder.path("a.xyz")); }));
}

}  // namespace
}  // namespace zol
