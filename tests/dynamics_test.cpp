#include <gtest/gtest.h>

#include <Eigen/Eigenvalues>
#include <cmath>
#include <complex>

#include "core/run_failure.h"
#include "dynamics/potential.h"
#include "dynamics/summed_voltages.h"
#include "tests/dynamic_crystals.h"
#include "tests/quiet.h"
#include "tests/test_files.h"

namespace zol {
namespace {

using Complex = std::complex<double>;

/// Yields of directions and of their images.
std::vector<double> yields(const DynamicCrystal& crystal, const std::vector<GridDirection>& directions) {
  return master_yields(crystal, {0.8, 24, 8}, 20, directions, quiet);
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

/// Planes across a of two kinds of atoms, a quarter of their spacing apart, as (111) of zinc blende; other axes so
/// short that no plane but these reflects.
DynamicCrystal planes(bool inverted) {
  DynamicCrystal crystal;
  crystal.cell = {3.2, .6, .6, 90, 90, 90};
  crystal.operations = {Eigen::Matrix3d::Identity()};
  crystal.kinds = {nickel, oxygen};
  crystal.atoms = {{0, .03, {}}, {1, .03, {inverted ? -.25 : .25, 0, 0}}};
  return crystal;
}

/// The yield in real space: the wave goes from slice to slice down into the crystal, against the direction; what
/// attracts it and what absorbs it are even about the atoms. Schroedinger's equation for fast electrons without second
/// derivatives along the depth.
double followed(const DynamicCrystal& crystal, double spacing, double depth, const GridDirection& direction) {
  constexpr Eigen::Index points = 48;
  const FastElectron fast = fast_electron(20);
  const double per_volume = fast.mass_ratio / (pi * crystal.lattice().volume());
  const double period = crystal.cell.a;
  const auto last = static_cast<int>(period / spacing);
  Eigen::MatrixXcd step = Eigen::MatrixXcd::Zero(points, points);
  Eigen::ArrayXd sources = Eigen::ArrayXd::Zero(points);
  double inner = 0;
  double all = 0;
  for (const auto& atom : crystal.atoms) {
    const AtomKind& kind = crystal.kinds[atom.kind];
    inner += per_volume * atom.occupancy * electron_factor(kind.factor, 0);
    all += atom.occupancy * kind.atomic_number * kind.atomic_number;
    for (Eigen::Index i = 0; i < points; ++i) {
      for (int h = 0; h <= last; ++h) {
        const double s = h / (2 * period);
        const double smear = std::exp(-kind.b_iso * s * s);
        const double wave =
            (h == 0 ? 1 : 2) * std::cos(2 * pi * h * (static_cast<double>(i) / points - atom.position[0]));
        sources[i] += atom.occupancy * kind.atomic_number * kind.atomic_number * smear * wave;
        if (h == 0) continue;  // the means: refraction, and what the depths hold
        step(i, i) += per_volume * atom.occupancy * wave *
                      Complex(smear * electron_factor(kind.factor, s),
                              smear * absorptive_factor(kind.factor, s, kind.b_iso, fast));
      }
    }
  }
  const double k = std::sqrt(1 / (fast.wavelength * fast.wavelength) + inner);
  const double across = -k * direction[0];
  for (Eigen::Index i = 0; i < points; ++i) {
    for (Eigen::Index j = 0; j < points; ++j) {
      for (Eigen::Index h = -points / 2 + 1; h < points / 2; ++h) {  // exact derivatives of a periodic wave
        const double g = static_cast<double>(h) / period;
        step(i, j) -=
            (2 * across * g + g * g) * std::polar(1.0 / points, 2 * pi * static_cast<double>(h * (i - j)) / points);
      }
    }
  }
  constexpr double thin = .5;
  step *= Complex(0, pi / k * thin / 64);
  const Eigen::MatrixXcd one = Eigen::MatrixXcd::Identity(points, points);
  Eigen::MatrixXcd go = one + step * (one + step / 2 * (one + step / 3 * (one + step / 4)));
  for (int doubling = 0; doubling < 6; ++doubling) go = go * go;
  Eigen::VectorXcd wave = Eigen::VectorXcd::Ones(points);
  double yield = 0;
  double weights = 0;
  for (int slice = 0; slice < 8 * depth / thin; ++slice) {
    const double weight = std::exp(-slice * thin / depth) * (slice == 0 ? .5 : 1);
    weights += weight;
    yield += weight * (sources * wave.array().abs2()).mean() / all;
    wave = go * wave;
  }
  return yield / weights;
}

// Near Bragg's angles of the first two orders on both sides.
TEST(Yield, OfPolarPlanesIsThatOfAWaveFollowedInRealSpace) {
  constexpr double spacing = .61;
  constexpr double depth_nm = 3;
  std::vector<GridDirection> directions;
  for (const double sine : {-.0275, -.0134, -.006, .006, .0134, .0275})
    directions.push_back({sine, 0, std::sqrt(1 - sine * sine)});
  std::array<std::vector<double>, 2> sides;
  for (const bool inverted : {false, true}) {
    const auto crystal = planes(inverted);
    sides[inverted ? 1 : 0] = master_yields(crystal, {spacing, 11, depth_nm}, 20, directions, quiet);
    for (std::size_t i = 0; i < directions.size(); ++i) {
      EXPECT_NEAR(sides[inverted ? 1 : 0][i], followed(crystal, spacing, 10 * depth_nm, directions[i]), .02)
          << directions[i][0];
    }
  }
  for (std::size_t i = 0; i < directions.size(); ++i) {
    EXPECT_NEAR(sides[0][i], sides[1][directions.size() - 1 - i], 1e-4);
    EXPECT_GT(std::abs(sides[0][i] - sides[1][i]), .05);
  }
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

TEST(Master, OfSeveralVoltagesIsTheirWeightedMean) {
  MasterSettings settings = small(21);
  settings.kilovolts = {15, 20};
  const auto each = master_pattern(zinc_blende(), settings, quiet);
  const auto sum = summed_voltages(each, std::array{1., 3.});
  EXPECT_EQ(sum.kilovolts, std::vector{20.});
  ASSERT_EQ(sum.patterns.size(), 1U);
  for (std::size_t i = 0; i < 441; i += 40) {
    EXPECT_NEAR(sum.patterns[0].south[i], .25F * each.patterns[0].south[i] + .75F * each.patterns[1].south[i], 1e-6);
  }
  EXPECT_THROW((void)summed_voltages(each, std::array{1.}), RunFailure);
  EXPECT_THROW((void)summed_voltages(each, std::array{0., 0.}), RunFailure);
  EXPECT_THROW((void)summed_voltages(each, std::array{2., -1.}), RunFailure);
}

TEST(Master, IsTheSameForAnyNumberOfThreads) {
  const auto one = master_pattern(zinc_blende(), small(21), quiet);
  const auto three = master_pattern(zinc_blende(), small(21, 3), quiet);
  EXPECT_EQ(one.patterns[0].north, three.patterns[0].north);
  EXPECT_EQ(one.patterns[0].south, three.patterns[0].south);
}

// 2 (401^2 - 201^2) directions of 25 microseconds; of 48 operations 16 keep the squares. All 6 of the screw keep the
// rings, which have a third more of them, and 2 the squares.
TEST(Master, EffortIsThatOfTheDirectionsThatSymmetryLeaves) {
  const auto seconds = [](DynamicCrystal crystal, bool with_symmetry) {
    if (!with_symmetry) crystal.operations.resize(1);
    const auto of_size = [&](int size) {
      MasterSettings settings = small(size);
      settings.beams = 64;
      settings.kilovolts = {20};
      return master_effort(crystal, settings).seconds;
    };
    return of_size(401) - of_size(201);
  };
  EXPECT_NEAR(seconds(face_centred(nickel), false), 6.02, 1e-9);
  EXPECT_NEAR(seconds(face_centred(nickel), true), 6.02 / 16, 1e-9);
  EXPECT_NEAR(seconds(screw(true), true), 6.02 / 6 * 4 / 3, 1e-9);
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

}  // namespace
}  // namespace zol
