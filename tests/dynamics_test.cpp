#include <gtest/gtest.h>

#include <Eigen/Eigenvalues>
#include <cmath>
#include <complex>
#include <filesystem>
#include <fstream>
#include <map>
#include <numbers>

#include "core/read_file.h"
#include "core/run_failure.h"
#include "dynamics/master_cache.h"
#include "dynamics/master_file.h"
#include "dynamics/master_sphere.h"
#include "dynamics/master_view.h"
#include "dynamics/potential.h"
#include "tests/test_files.h"

namespace zol {
namespace {

using Complex = std::complex<double>;
constexpr double pi = std::numbers::pi;
QuietTask quiet;

// Rows of the table of electron scattering factors.
const AtomKind nickel{{{.51798, 1.67723, 2.11169, 2.24565}, {.33471, 2.57932, 13.28815, 57.00906}}, 28, 0.35};
const AtomKind oxygen{{{.13465, .45033, .91967, .47763}, {.28884, 2.05482, 7.34789, 23.26133}}, 8, 0.5};

Eigen::Matrix3d turned(const Eigen::Vector3d& axis, double degrees) {
  return Eigen::AngleAxisd(degrees * pi / 180, axis.normalized()).toRotationMatrix();
}

/// All products of operations.
std::vector<Eigen::Matrix3d> group_of(const std::vector<Eigen::Matrix3d>& generators) {
  std::vector<Eigen::Matrix3d> all{Eigen::Matrix3d::Identity()};
  for (std::size_t i = 0; i < all.size(); ++i) {
    for (const auto& generator : generators) {
      const Eigen::Matrix3d product = generator * all[i];
      if (std::none_of(all.begin(), all.end(), [&](const auto& o) { return (o - product).norm() < 0.1; })) {
        all.push_back(product);
      }
    }
  }
  return all;
}

const Eigen::Vector3d x_axis = Eigen::Vector3d::UnitX(), z_axis = Eigen::Vector3d::UnitZ(), diagonal(1, 1, 1);
const Eigen::Matrix3d inversion = -Eigen::Matrix3d::Identity();

DynamicCrystal face_centred(const AtomKind& kind) {
  DynamicCrystal crystal{{3.5236, 3.5236, 3.5236, 90, 90, 90}, {{28, 1, {}, .35}}, {kind}, {}, {}, {}, true, 225, 0};
  crystal.centring = {{0, .5, .5}, {.5, 0, .5}, {.5, .5, 0}};
  crystal.atoms = {{0, 1, {}}, {0, 1, {0, .5, .5}}, {0, 1, {.5, 0, .5}}, {0, 1, {.5, .5, 0}}};
  crystal.operations = group_of({turned(z_axis, 90), turned(diagonal, 120), inversion});
  return crystal;
}

/// Zinc blende of a heavy and a light atom, class -43m.
DynamicCrystal zinc_blende() {
  DynamicCrystal crystal = face_centred(nickel);
  crystal.cell.a = crystal.cell.b = crystal.cell.c = 4.6;
  crystal.centrosymmetric = false;
  crystal.kinds.push_back(oxygen);
  for (std::size_t i = 0; i < 4; ++i) {
    DynamicAtom atom = crystal.atoms[i];
    atom.kind = 1;
    for (double& part : atom.position) part += .25;
    crystal.atoms.push_back(atom);
  }
  crystal.operations = group_of({inversion * turned(z_axis, 90), turned(diagonal, 120)});
  return crystal;
}

/// Three atoms on a right-handed or a left-handed threefold screw along c, with a twofold axis along a: class 32.
DynamicCrystal screw(bool right) {
  DynamicCrystal crystal;
  crystal.cell = {4.9, 4.9, 5.4, 90, 90, 120};
  crystal.kinds = {nickel};
  const double u = .2;
  const double third = right ? 1. / 3 : 2. / 3;
  crystal.atoms = {{0, 1, {u, 0, third}}, {0, 1, {0, u, 2 * third}}, {0, 1, {-u, -u, 0}}};
  crystal.operations = group_of({turned(z_axis, 120), turned(x_axis, 180)});
  return crystal;
}

MasterSettings small(int size, int threads = 1) {
  MasterSettings settings;
  settings.size = size;
  settings.smallest_spacing = 0.8;
  settings.beams = 24;
  settings.threads = threads;
  return settings;
}

/// Yields of directions and of their images.
std::vector<double> yields(const DynamicCrystal& crystal, const std::vector<GridDirection>& directions) {
  return master_yields(crystal, {0.8, 24, 8}, 20, directions, quiet);
}

std::vector<GridDirection> some_directions() {
  std::vector<GridDirection> directions;
  for (int i = 0; i < 24; ++i) {
    const double z = 1 - (2 * i + 1.) / 24;
    const double radius = std::sqrt(1 - z * z);
    directions.push_back({radius * std::cos(2.4 * i), radius * std::sin(2.4 * i), z});
  }
  return directions;
}

std::vector<GridDirection> images(const Eigen::Matrix3d& operation, std::vector<GridDirection> directions) {
  for (auto& d : directions) {
    const Eigen::Vector3d image = operation * Eigen::Vector3d(d[0], d[1], d[2]);
    d = {image[0], image[1], image[2]};
  }
  return directions;
}

double largest_difference(const std::vector<double>& a, const std::vector<double>& b) {
  double largest = 0;
  for (std::size_t i = 0; i < a.size(); ++i) largest = std::max(largest, std::abs(a[i] - b[i]));
  return largest;
}

// NIST's table and Reimer & Kohl (2008), table of constants: 8.5885 pm at 20 kV, 2.5079 pm at 200 kV.
TEST(Electron, HasTheWavelengthOfTheTables) {
  EXPECT_NEAR(fast_electron(20).wavelength, 0.085885, 1e-6);
  EXPECT_NEAR(fast_electron(200).wavelength, 0.025079, 1e-6);
  EXPECT_NEAR(fast_electron(510.99895).mass_ratio, 2, 1e-8);
  EXPECT_THROW((void)fast_electron(0), RunFailure);
}

// The closed form against Bird and King's integral over the plane, summed here on a plain grid.
TEST(Absorption, OfGaussiansIsTheIntegral) {
  const FastElectron fast = fast_electron(20);
  for (const double s : {0., .3, .8}) {
    double sum = 0;
    constexpr double step = 0.02;
    for (double x = -5; x <= 5; x += step) {
      for (double y = -5; y <= 5; y += step) {
        const double square = x * x + y * y;
        sum += electron_factor(nickel.factor, std::hypot(s / 2 + x, y)) *
               electron_factor(nickel.factor, std::hypot(s / 2 - x, y)) *
               (1 - std::exp(-2 * nickel.b_iso * (square - s * s / 4)));
      }
    }
    EXPECT_NEAR(absorptive_factor(nickel.factor, s, nickel.b_iso, fast),
                2 * fast.wavelength * fast.mass_ratio * sum * step * step, 2e-4)
        << s;
  }
}

/// Two beams on a difference of 1: U_g and U'_g times pi/K, and the places of sources along g.
struct TwoBeams {
  double potential, absorption, deviation, source;
};

double solved(const TwoBeams& t, const DepthSettings& depth) {
  const Complex source = std::polar(1.0, -2 * pi * t.source);
  const auto term = [&](double sign) {
    return PairTerm{static_cast<float>(t.absorption), static_cast<float>(-t.potential),
                    static_cast<float>(source.real()), static_cast<float>(sign * source.imag())};
  };
  const std::array<PairTerm, 3> table{term(-1), PairTerm{0, 0, 1, 0}, term(1)};
  const std::array<int, 2> offsets{0, 1};
  const std::array<float, 2> deviations{0, static_cast<float>(-t.deviation)};
  DepthSolver solver;
  return solver.yield({&table[1], offsets, deviations, t.source == 0}, depth);
}

// Hirsch et al., Electron Microscopy of Thin Crystals: |c_g|^2 = (P/w)^2 sin^2(w z) with w^2 = P^2 + (A/2)^2, c_g* c_0
// likewise; over exp(-z/z0)/z0 the mean of sin^2 is (1 - 1/(1 + (2 w z0)^2))/2 and that of sin 2wz is 2 w z0/(1 + (2 w
// z0)^2).
TEST(Depth, OfTwoBeamsIsTheAnalyticOne) {
  for (const auto& t : {TwoBeams{.02, 0, 0, 0}, {.02, 0, .03, 0}, {.02, 0, 0, .25}, {.02, 0, -.05, .1}}) {
    const DepthSettings depth{60, .08, 64};
    const double w = std::hypot(t.potential, t.deviation / 2);
    const double twice = 2 * w * depth.mean_depth;
    const double square = (1 - 1 / (1 + twice * twice)) / 2;
    const double sine = twice / (1 + twice * twice);
    const double phase = 2 * pi * t.source;
    // c_0 = (cos wz - i A/2w sin wz) f, c_g = i P/w sin wz f with |f| = 1; yield 1 + 2 Re(c_0* c_g e^(i phase)).
    const double in_phase = -t.potential * t.deviation / 2 / (w * w) * square;
    const double out_of_phase = t.potential / w * sine / 2;
    EXPECT_NEAR(solved(t, depth), 1 + 2 * (in_phase * std::cos(phase) - out_of_phase * std::sin(phase)), 2e-4);
  }
}

/// The full complex eigenproblem in double precision.
double reference(const CrystalPotential& potential, const BeamChoice& beams, double mean_depth) {
  const auto n = static_cast<Eigen::Index>(beams.offsets().size());
  Eigen::MatrixXcd m(n, n);
  Eigen::MatrixXcd s(n, n);
  for (Eigen::Index i = 0; i < n; ++i) {
    for (Eigen::Index j = 0; j < n; ++j) {
      const auto at = [&](Eigen::Index k) { return beams.offsets()[static_cast<std::size_t>(k)]; };
      const PairTerm& term = potential.pairs()[at(i) - at(j)];
      m(i, j) = i == j ? Complex(0, static_cast<double>(beams.deviations()[static_cast<std::size_t>(i)]))
                       : Complex(static_cast<double>(term.re), static_cast<double>(term.im));
      s(i, j) = Complex(static_cast<double>(term.source_re), static_cast<double>(term.source_im));
    }
  }
  const Eigen::ComplexEigenSolver<Eigen::MatrixXcd> solver(m);
  const Eigen::MatrixXcd& c = solver.eigenvectors();
  const Eigen::VectorXcd start = c.partialPivLu().solve(Eigen::VectorXcd::Unit(n, 0));
  const Eigen::MatrixXcd middle = c.adjoint() * s * c;
  Complex sum = 0;
  for (Eigen::Index i = 0; i < n; ++i) {
    for (Eigen::Index j = 0; j < n; ++j) {
      sum += std::conj(start[i]) * start[j] * middle(i, j) /
             (1. + mean_depth * (std::conj(solver.eigenvalues()[i]) + solver.eigenvalues()[j]));
    }
  }
  return sum.real();
}

TEST(Depth, OfManyBeamsIsThatOfTheFullEigenproblem) {
  for (const bool polar : {false, true}) {
    const DynamicCrystal crystal = polar ? zinc_blende() : face_centred(nickel);
    const CrystalPotential potential(crystal, {20, .7, true}, quiet);
    BeamChoice beams(potential);
    DepthSolver solver;
    for (const int count : {2, 16, 37}) {
      beams.choose({.36, .48, .8}, count);
      const CoupledBeams coupled{potential.pairs(), beams.offsets(), beams.deviations(), potential.symmetric()};
      const double exact = reference(potential, beams, 80);
      EXPECT_NEAR(solver.yield(coupled, {80, .08, 1024}), exact, 2e-3) << polar << ' ' << count;
      EXPECT_NEAR(solver.yield(coupled, {80, .08, 16}), exact, 3e-2) << polar << ' ' << count;
    }
  }
}

// Sources spread evenly see the sum of all beams, which is 1 where nothing is absorbed.
TEST(Depth, WithoutAbsorptionLosesNothing) {
  const CrystalPotential potential(face_centred(nickel), {20, .7, false}, quiet);
  std::vector<PairTerm> even;
  BeamChoice beams(potential);
  beams.choose({.6, 0, .8}, 30);
  const auto [least, most] = std::minmax_element(beams.offsets().begin(), beams.offsets().end());
  const int reach = *most - *least;
  for (int i = -reach; i <= reach; ++i) {
    even.push_back({potential.pairs()[i].re, potential.pairs()[i].im, i == 0 ? 1.F : 0.F, 0});
  }
  DepthSolver solver;
  EXPECT_NEAR(solver.yield({&even[static_cast<std::size_t>(reach)], beams.offsets(), beams.deviations(), true},
                           {30, .08, 1024}),
              1, 1e-3);
}

TEST(BeamChoice, DoesNotDependOnTheDirectionBefore) {
  const CrystalPotential potential(face_centred(nickel), {20, .7, true}, quiet);
  BeamChoice once(potential);
  BeamChoice again(potential);
  for (const auto& direction : some_directions()) again.choose(direction, 40);
  again.choose({0, .6, .8}, 40);
  once.choose({0, .6, .8}, 40);
  EXPECT_EQ(once.offsets(), again.offsets());
  EXPECT_EQ(once.offsets().size(), 40U);
}

// Of the class, not of the Laue class; what the class lacks differs. Without a centre Friedel's law does not hold.
TEST(Yield, HasThePointGroupOfTheCrystal) {
  const auto directions = some_directions();
  for (const auto& crystal : {face_centred(nickel), zinc_blende(), screw(true)}) {
    const auto here = yields(crystal, directions);
    for (const auto& operation : crystal.operations) {
      EXPECT_LT(largest_difference(here, yields(crystal, images(operation, directions))), 0.02);
    }
    const double reversed = largest_difference(here, yields(crystal, images(inversion, directions)));
    EXPECT_EQ(crystal.centrosymmetric, reversed < 0.02) << reversed;
  }
}

// The left-handed crystal is the right-handed one in a mirror across c.
TEST(Yield, OfTheOtherHandIsMirrored) {
  const auto directions = some_directions();
  const Eigen::Matrix3d mirror = Eigen::Vector3d(1, 1, -1).asDiagonal();
  const auto right = yields(screw(true), directions);
  EXPECT_LT(largest_difference(right, yields(screw(false), images(mirror, directions))), 0.01);
  EXPECT_GT(largest_difference(right, yields(screw(false), directions)), 0.05);
}

// By hand, in the first order of the depth z: at Bragg's angle of g, on the side of +g, a source d/4 towards +g of the
// scattering planes yields 1 - 2 pi z U_g/K, on the side of -g as much more.
TEST(Yield, OfAPolarCrystalHasItsSense) {
  DynamicCrystal crystal;
  crystal.cell = {4, 4, 4, 90, 90, 90};
  crystal.operations = {Eigen::Matrix3d::Identity()};
  AtomKind source = oxygen;  // sources without a potential of their own
  source.factor.a = {};
  AtomKind scatterer = nickel;
  scatterer.atomic_number = 0;
  crystal.kinds = {scatterer, source};
  crystal.atoms = {{0, 1, {}}, {1, 1, {.25, 0, 0}}};
  const double sine = fast_electron(20).wavelength / 8;
  const auto seen =
      master_yields(crystal, {3.9, 4, 5}, 20,
                    {{sine, .1, std::sqrt(.99 - sine * sine)}, {-sine, .1, std::sqrt(.99 - sine * sine)}}, quiet);
  EXPECT_LT(seen[0], 0.9);
  EXPECT_GT(seen[1], 1.1);
}

TEST(Grids, MapDirectionsAsTheOperationsDo) {
  const auto check = [](const auto& grid, const auto& operations) {
    for (std::size_t i = 0; i < grid.count(); i += 7) {
      const auto d = grid.direction(i);
      EXPECT_NEAR(std::hypot(d[0], d[1], d[2]), 1, 1e-12);
      for (const auto& operation : operations) {
        ASSERT_TRUE(grid.keeps(operation));
        const auto image = grid.direction(grid.image(operation, i));
        const auto expected = images(operation, {d}).front();
        for (std::size_t k = 0; k < 3; ++k) EXPECT_NEAR(image[k], expected[k], 1e-9);
      }
    }
  };
  check(SquareGrid(21), group_of({turned(z_axis, 90), turned(x_axis, 180), inversion}));
  check(RingGrid(9), group_of({turned(z_axis, 60), turned(x_axis, 180), inversion}));
  EXPECT_FALSE(SquareGrid::keeps(turned(z_axis, 60)));
  EXPECT_FALSE(RingGrid::keeps(turned(diagonal, 120)));
  const auto there = lambert_square({.6, -.48, -.64});
  const auto back = from_lambert_square(there[0], there[1], true);
  EXPECT_NEAR(back[0], .6, 1e-12);
  EXPECT_NEAR(back[1], -.48, 1e-12);
}

// A plane wave over the sphere, read between the points of the rings.
TEST(Grids, RingsAreReadSmoothly) {
  const RingGrid rings(40);
  const auto wave = [](const GridDirection& d) { return std::sin(3 * d[0] - 2 * d[1] + d[2]); };
  std::vector<float> values;
  for (std::size_t i = 0; i < rings.count(); ++i) values.push_back(static_cast<float>(wave(rings.direction(i))));
  for (const auto& d : some_directions()) EXPECT_NEAR(rings.read(values, d), wave(d), 2e-4);
  EXPECT_NEAR(rings.read(values, {0, 0, 1}), std::sin(1.), 1e-6);
}

// Of cubic symmetry only a part maps the grid on itself. Trigonal patterns are read from rings, with an error of their
// finest lines.
TEST(Master, IsThatOfItsDirections) {
  for (const auto& [crystal, mean, orbit] : {std::tuple(face_centred(nickel), 1e-4, 12U), {screw(true), 0.15, 4U}}) {
    const MasterPattern master = master_pattern(crystal, small(101), quiet);
    const SquareGrid grid(101);
    std::vector<GridDirection> directions;
    std::vector<double> kept;
    for (std::size_t i = 5; i < grid.count(); i += 301) {
      directions.push_back(grid.direction(i));
      kept.push_back(master.at(directions.back()));
    }
    const auto exact = yields(crystal, directions);
    double sum = 0;
    for (std::size_t i = 0; i < kept.size(); ++i) sum += std::abs(kept[i] - exact[i]);
    EXPECT_LT(sum / static_cast<double>(kept.size()), mean);
    EXPECT_LT(master.directions, grid.count() / orbit);
  }
}

TEST(Master, IsTheSameForAnyNumberOfThreads) {
  const auto one = master_pattern(zinc_blende(), small(21), quiet);
  const auto three = master_pattern(zinc_blende(), small(21, 3), quiet);
  EXPECT_EQ(one.patterns[0].north, three.patterns[0].north);
  EXPECT_EQ(one.patterns[0].south, three.patterns[0].south);
}

TEST(Master, StopsWhenItsTaskDoes) {
  struct Impatient final : Task {
    void report(int, int) override {}
    void check() override {
      if (++asked > 200) throw Cancelled();
    }
    int asked = 0;
  } task;
  EXPECT_THROW((void)master_pattern(face_centred(nickel), small(101, 2), task), Cancelled);
}

TEST(Master, RefusesWhatItCannotDo) {
  for (auto change : std::vector<void (*)(MasterSettings&)>{
           [](MasterSettings& s) { s.size = 20; }, [](MasterSettings& s) { s.depth_nm = 0; },
           [](MasterSettings& s) { s.kilovolts = {}; }, [](MasterSettings& s) { s.kilovolts = {0}; },
           [](MasterSettings& s) { s.beams = 1; }, [](MasterSettings& s) { s.smallest_spacing = 0.1; }}) {
    MasterSettings settings = small(21);
    change(settings);
    EXPECT_THROW((void)master_pattern(face_centred(nickel), settings, quiet), RunFailure);
  }
}

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

// A file where the folder would be, as a disk that can't be written.
TEST(MasterCache, DoesNoHarmWhereNothingCanBeKept) {
  const ScratchFolder folder;
  const MasterCache cache(folder.write("masters", "a file"));
  EXPECT_GT(cache.get(face_centred(nickel), small(21), quiet).directions, 0U);
}

}  // namespace
}  // namespace zol
