#include "dynamics/master_pattern.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <exception>
#include <mutex>
#include <numbers>
#include <system_error>
#include <thread>

#include "core/number_text.h"
#include "core/run_failure.h"
#include "dynamics/depth_solver.h"
#include "dynamics/potential.h"

namespace zol {
namespace {

using std::numbers::pi;
constexpr double nanometre = 10;

DepthSettings depth_settings(double depth_nm) {
  // Found by comparing with the full eigenproblem: what oscillates in the depth needs a scale of its own.
  constexpr double shallow_nm = 5;
  constexpr double deep_nm = 12;
  return {depth_nm * nanometre, depth_nm < shallow_nm ? 0.1 : 0.08, depth_nm > deep_nm ? 32 : 16};
}

/// One thread's storage.
class Directions {
 public:
  Directions(const CrystalPotential& potential, const MasterChoice& choice)
      : potential_(potential), beams_(potential), choice_(choice), depth_(depth_settings(choice.depth_nm)) {}
  [[nodiscard]] double yield(const GridDirection& direction) {
    if (choice_.rule) {
      beams_.choose(direction, *choice_.rule);
    } else {
      beams_.choose(direction, choice_.beams);
    }
    return solver_.yield({potential_.pairs(), beams_.offsets(), beams_.deviations(), potential_.symmetric(),
                          beams_.weak_offsets(), beams_.weak_deviations()},
                         depth_);
  }

 private:
  const CrystalPotential& potential_;
  BeamChoice beams_;
  DepthSolver solver_;
  MasterChoice choice_;
  DepthSettings depth_;
};

/// Work on numbered directions shared by threads. What is thrown anywhere stops all.
class SharedWork {
 public:
  template <class Compute>
  SharedWork(std::size_t count, int threads, Task& task, int done_before, int total, const Compute& compute)
      : count_(count) {
    std::vector<std::jthread> others;
    for (int i = 1; i < threads; ++i) {
      try {
        others.emplace_back([this, &compute] { run(compute, [] {}); });
      } catch (const std::system_error&) {  // no more are to be had: those that run do the work
        break;
      }
    }
    run(compute, [this, &task, done_before, total] {
      task.check();
      constexpr std::size_t seldom = 64;
      if (++asked_ % seldom == 0) task.report(done_before + static_cast<int>(std::min(next_.load(), count_)), total);
    });
    for (auto& thread : others) thread.join();
    if (failure_) std::rethrow_exception(failure_);
  }

 private:
  template <class Compute, class Check>
  void run(const Compute& compute, const Check& check) {
    constexpr std::size_t chunk = 32;  // neighbours have nearly the same beams
    try {
      auto worker = compute();
      while (!stopped_) {
        const std::size_t first = next_.fetch_add(chunk);
        if (first >= count_) return;
        for (std::size_t i = first; i < std::min(first + chunk, count_) && !stopped_; ++i) {
          check();
          worker(i);
        }
      }
    } catch (...) {
      const std::lock_guard lock(mutex_);
      stopped_ = true;
      if (!failure_) failure_ = std::current_exception();
    }
  }

  std::size_t count_;
  std::size_t asked_ = 0;
  std::atomic<std::size_t> next_ = 0;
  std::atomic<bool> stopped_ = false;
  std::mutex mutex_;
  std::exception_ptr failure_;
};

/// Waves that keep between the atoms are absorbed less than the mean, which the depths already hold; where they grew
/// against it as fast as fewer electrons come from deeper, there would be no yield.
double deepest_nm(const DynamicCrystal& crystal, double kilovolt) {
  const FastElectron fast = fast_electron(kilovolt);
  double absorption = 0;
  for (const auto& atom : crystal.atoms) {
    const AtomKind& kind = crystal.kinds[atom.kind];
    absorption += atom.occupancy * absorptive_factor(kind.factor, 0, kind.b_iso, fast);
  }
  absorption *= fast.mass_ratio * fast.wavelength / crystal.lattice().volume();  // pi U'_0 / K, 1/angstrom
  constexpr double share = 2.0 / 3;
  return absorption > 0 ? share / (2 * absorption) / nanometre : 1e6;
}

template <class Grid>
std::size_t directions_of(const DynamicCrystal& crystal) {
  return static_cast<std::size_t>(std::count_if(crystal.operations.begin(), crystal.operations.end(),
                                                [](const auto& o) { return Grid::keeps(o); }));
}

/// Values of all points of a grid.
template <class Grid>
class GridPattern {
 public:
  GridPattern(const Grid& grid, const DynamicCrystal& crystal)
      : grid_(grid), orbits_(orbits_of(grid, crystal.operations)) {}
  [[nodiscard]] std::size_t directions() const { return orbits_.representatives.size(); }
  [[nodiscard]] std::vector<float> compute(const CrystalPotential& potential, const MasterPattern& master,
                                           const MasterSettings& settings, std::size_t pattern, Task& task) const {
    const auto done = static_cast<int>(pattern * directions());
    const auto total = static_cast<int>(master.kilovolts.size() * directions());
    std::vector<float> yields(directions());
    const SharedWork work(directions(), settings.threads, task, done, total, [&] {
      return [&yields, this, own = Directions(potential, master.choice)](std::size_t i) mutable {
        yields[i] = static_cast<float>(own.yield(grid_.direction(orbits_.representatives[i])));
      };
    });
    std::vector<float> values;
    values.reserve(grid_.count());
    for (const std::size_t orbit : orbits_.orbit) values.push_back(yields[orbit]);
    return values;
  }

 private:
  Grid grid_;
  Orbits orbits_;
};

MasterPattern::Halves halves_of(std::vector<float> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  return {{values.begin(), middle}, {middle, values.end()}};
}

std::vector<float> on_square(const RingGrid& rings, const std::vector<float>& values, const SquareGrid& square) {
  std::vector<float> read;
  read.reserve(square.count());
  for (std::size_t i = 0; i < square.count(); ++i) {
    read.push_back(static_cast<float>(rings.read(values, square.direction(i))));
  }
  return read;
}

/// Directions evenly over the sphere, by the golden angle.
std::vector<GridDirection> spiral(int count) {
  std::vector<GridDirection> directions;
  for (int i = 0; i < count; ++i) {
    const double z = 1 - (2 * i + 1.0) / count;
    const double turn = pi * (3 - std::sqrt(5.0)) * i;
    const double radius = std::sqrt(1 - z * z);
    directions.push_back({radius * std::cos(turn), radius * std::sin(turn), z});
  }
  return directions;
}

double correlation(const std::vector<double>& a, const std::vector<double>& b) {
  const Eigen::Map<const Eigen::ArrayXd> x(a.data(), static_cast<Eigen::Index>(a.size()));
  const Eigen::Map<const Eigen::ArrayXd> y(b.data(), static_cast<Eigen::Index>(b.size()));
  const double both = ((x - x.mean()) * (y - y.mean())).sum();
  const double norm = std::sqrt((x - x.mean()).square().sum() * (y - y.mean()).square().sum());
  return norm > 0 ? both / norm : 1;
}

void check_range(const char* what, double value, double least, double most) {
  if (value >= least && value <= most) return;
  throw RunFailure(std::string("master pattern: ") + what + " is " + plain_text(value) + ", must be " +
                   plain_text(least) + " to " + plain_text(most));
}

}  // namespace

MasterChoice master_choice(const DynamicCrystal& crystal, const MasterSettings& settings) {
  check_range("the size", settings.size, 11, 2001);
  if (settings.size % 2 == 0) throw RunFailure("master pattern: the size is even, must be odd");
  check_range("the depth in nm", settings.depth_nm, 0.1, 100);
  if (settings.kilovolts.empty()) throw RunFailure("master pattern: no voltage");
  for (const double kilovolt : settings.kilovolts) check_range("the voltage in kV", kilovolt, 1, 400);
  MasterChoice choice{settings.smallest_spacing, settings.beams, settings.depth_nm, settings.rule};
  const double volume = crystal.lattice().volume() / static_cast<double>(1 + crystal.centring.size());
  if (choice.beams == 0) {
    constexpr double small = 60;
    constexpr double medium = 200;
    choice.beams = volume < small ? 64 : volume < medium ? 112 : 144;
  }
  if (choice.smallest_spacing == 0) {
    constexpr double usual = 0.45;
    constexpr double most_candidates = 10000;
    choice.smallest_spacing = std::max(usual, std::cbrt(4 * pi / 3 * volume / most_candidates));
  }
  choice.depth_nm = std::min(choice.depth_nm, deepest_nm(crystal, settings.kilovolts.back()));
  check_range("the number of beams", choice.beams, 2, 1000);
  check_range("the smallest spacing in angstroms", choice.smallest_spacing, 0.2, 5);
  return choice;
}

double MasterPattern::at(const GridDirection& direction, std::size_t pattern) const {
  const auto& [dx, dy, dz] = direction;
  const double length = std::sqrt(dx * dx + dy * dy + dz * dz);
  const auto [x, y] = lambert_square({dx / length, dy / length, dz / length});
  const int half = (size - 1) / 2;
  const auto place = [half](double part) { return std::clamp((part + 1) * half, 0.0, 2.0 * half); };
  const int column = std::min(static_cast<int>(place(x)), 2 * half - 1);
  const int row = std::min(static_cast<int>(place(y)), 2 * half - 1);
  const double right = place(x) - column;
  const double down = place(y) - row;
  const auto& values = dz < 0 ? patterns[pattern].south : patterns[pattern].north;
  const auto value = [&values, this](int c, int r) {
    return static_cast<double>(
        values[static_cast<std::size_t>(r) * static_cast<std::size_t>(size) + static_cast<std::size_t>(c)]);
  };
  const double upper = value(column, row) + right * (value(column + 1, row) - value(column, row));
  const double lower = value(column, row + 1) + right * (value(column + 1, row + 1) - value(column, row + 1));
  return upper + down * (lower - upper);
}

MasterPattern empty_master(const DynamicCrystal& crystal, const MasterSettings& settings) {
  MasterPattern master;
  master.choice = master_choice(crystal, settings);
  master.size = settings.size;
  master.kilovolts = settings.kilovolts;
  master.cell = crystal.cell;
  master.sites = crystal.sites;
  master.space_group = crystal.space_group;
  return master;
}

MasterPattern master_pattern(const DynamicCrystal& crystal, const MasterSettings& settings, Task& task) {
  MasterPattern master = empty_master(crystal, settings);
  task.expect({master_effort(crystal, settings).seconds / std::max(1, settings.threads), 0});
  const SquareGrid square(settings.size);
  // Rings a quarter closer than the square grid, from which it is read.
  const RingGrid rings(2 * (settings.size - 1) / 3 + 1);
  const bool by_rings = directions_of<RingGrid>(crystal) > directions_of<SquareGrid>(crystal);
  const auto fill = [&](const auto& grid, const auto& read) {
    const GridPattern pattern(grid, crystal);
    master.directions = pattern.directions();
    for (std::size_t i = 0; i < master.kilovolts.size(); ++i) {
      const CrystalPotential potential(crystal, {master.kilovolts[i], master.choice.smallest_spacing, true}, task);
      master.patterns.push_back(halves_of(read(pattern.compute(potential, master, settings, i, task))));
    }
  };
  if (by_rings) {
    fill(rings, [&](const std::vector<float>& values) { return on_square(rings, values, square); });
  } else {
    fill(square, [](std::vector<float> values) { return values; });
  }
  return master;
}

std::vector<double> master_yields(const DynamicCrystal& crystal, const MasterChoice& choice, double kilovolt,
                                  const std::vector<GridDirection>& directions, Task& task) {
  const CrystalPotential potential(crystal, {kilovolt, choice.smallest_spacing, true}, task);
  Directions own(potential, choice);
  std::vector<double> yields;
  for (const auto& direction : directions) {
    task.check();
    yields.push_back(own.yield(direction));
  }
  return yields;
}

MasterConvergence master_convergence(const DynamicCrystal& crystal, const MasterSettings& settings, Task& task) {
  constexpr int sample = 200;
  const auto directions = spiral(sample);
  const MasterChoice choice = master_choice(crystal, settings);
  const auto yields = [&](const MasterChoice& one) {
    return master_yields(crystal, one, settings.kilovolts.front(), directions, task);
  };
  const auto usual = yields(choice);
  MasterChoice more = choice;
  more.beams *= 2;
  MasterChoice finer = choice;
  finer.smallest_spacing *= 0.8;
  finer.beams += choice.beams / 2;
  return {correlation(usual, yields(more)), correlation(usual, yields(finer))};
}

}  // namespace zol
