#include "dynamics/potential.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>

#include "core/run_failure.h"

namespace zol {
namespace {

using Complex = std::complex<double>;
using std::numbers::pi;
constexpr double faint = 1e-5;         ///< |U_g| of a reflection that is absent
constexpr double as_if_absent = 0.01;  ///< the strength by which an absent one is ranked

/// Factors of one kind of atom on a grid of s, Debye-Waller factors applied.
class FactorTable {
 public:
  FactorTable(const AtomKind& kind, const FastElectron& fast, double largest_s, bool absorption)
      : z_square_(static_cast<double>(kind.atomic_number) * kind.atomic_number) {
    const auto count = static_cast<std::size_t>(largest_s / step) + 3;
    for (std::size_t i = 0; i < count; ++i) {
      const double s = static_cast<double>(i) * step;
      const double smear = std::exp(-kind.b_iso * s * s);
      rows_.push_back({smear * electron_factor(kind.factor, s),
                       absorption ? smear * absorptive_factor(kind.factor, s, kind.b_iso, fast) : 0,
                       smear * z_square_});
    }
  }
  /// Potential, absorption, source.
  [[nodiscard]] std::array<double, 3> at(double s) const {
    const auto below = std::min(static_cast<std::size_t>(s / step), rows_.size() - 2);
    const double part = s / step - static_cast<double>(below);
    std::array<double, 3> values{};
    for (std::size_t i = 0; i < 3; ++i) {
      values[i] = rows_[below][i] + part * (rows_[below + 1][i] - rows_[below][i]);
    }
    return values;
  }

 private:
  static constexpr double step = 0.005;
  double z_square_;
  std::vector<std::array<double, 3>> rows_;
};

/// exp(-2 pi i h x) of each atom and each index of one axis, from -reach to reach.
std::vector<Complex> phases_of(const DynamicCrystal& crystal, std::size_t axis, int reach) {
  std::vector<Complex> phases;
  for (int h = -reach; h <= reach; ++h) {
    for (const auto& atom : crystal.atoms) phases.push_back(std::polar(1.0, -2 * pi * h * atom.position[axis]));
  }
  return phases;
}

bool allowed(const DynamicCrystal& crystal, const std::array<int, 3>& hkl) {
  constexpr double whole = 1e-3;
  return std::all_of(crystal.centring.begin(), crystal.centring.end(), [&hkl](const auto& shift) {
    const double sum = hkl[0] * shift[0] + hkl[1] * shift[1] + hkl[2] * shift[2];
    return std::abs(sum - std::round(sum)) < whole;
  });
}

}  // namespace

double electron_factor(const GaussianFactor& factor, double s) {
  double sum = 0;
  for (std::size_t i = 0; i < factor.a.size(); ++i) sum += factor.a[i] * std::exp(-factor.b[i] * s * s);
  return sum;
}

double absorptive_factor(const GaussianFactor& factor, double s, double b_iso, const FastElectron& fast) {
  double sum = 0;
  const double square = s * s;
  for (std::size_t i = 0; i < factor.a.size(); ++i) {
    for (std::size_t j = 0; j < factor.a.size(); ++j) {
      const double both = factor.b[i] + factor.b[j];
      const double apart = factor.b[i] - factor.b[j];
      const double widened = both + 2 * b_iso;
      const double still = pi / both * std::exp(-square * factor.b[i] * factor.b[j] / both);
      const double moving = pi / widened * std::exp(square * (apart * apart / (4 * widened) - both / 4 + b_iso / 2));
      sum += factor.a[i] * factor.a[j] * (still - moving);
    }
  }
  return 2 * fast.wavelength * fast.mass_ratio * sum;
}

CrystalPotential::CrystalPotential(const DynamicCrystal& crystal, const PotentialSettings& settings, Task& task)
    : electron_(fast_electron(settings.kilovolt)), symmetric_(crystal.centrosymmetric) {
  if (!(settings.smallest_spacing > 0)) throw RunFailure("the smallest spacing is not above 0");
  find_candidates(crystal, settings.smallest_spacing, task);
  fill_pairs(crystal, settings, task);
}

void CrystalPotential::find_candidates(const DynamicCrystal& crystal, double smallest_spacing, Task& task) {
  const Lattice lattice = crystal.lattice();
  const CellConstants& cell = crystal.cell;
  const std::array<double, 3> edges{cell.a, cell.b, cell.c};
  constexpr double most_candidates = 60000;
  if (4 * pi / 3 * lattice.volume() / std::pow(smallest_spacing, 3) / static_cast<double>(1 + crystal.centring.size()) >
      most_candidates) {
    throw RunFailure("the cell has more than 60000 reflections down to that spacing: take a larger one");
  }
  std::array<int, 3> most{};
  for (std::size_t i = 0; i < 3; ++i) {
    most[i] = static_cast<int>(edges[i] / smallest_spacing);
    reach_[i] = 2 * most[i];
  }
  const int row = 2 * reach_[2] + 1;
  const int layer = row * (2 * reach_[1] + 1);
  const double largest_square = 1 / (smallest_spacing * smallest_spacing);
  for (int h = -most[0]; h <= most[0]; ++h) {
    task.check();
    for (int k = -most[1]; k <= most[1]; ++k) {
      for (int l = -most[2]; l <= most[2]; ++l) {
        const auto [x, y, z] =
            lattice.cartesian(ReciprocalVector{static_cast<double>(h), static_cast<double>(k), static_cast<double>(l)});
        if (x * x + y * y + z * z > largest_square || !allowed(crystal, {h, k, l})) continue;
        candidates_.push_back({{h, k, l}, {x, y, z}, h * layer + k * row + l, 0});
      }
    }
  }
  const auto square = [](const CandidateBeam& c) { return c.g[0] * c.g[0] + c.g[1] * c.g[1] + c.g[2] * c.g[2]; };
  std::stable_sort(candidates_.begin(), candidates_.end(),
                   [&square](const auto& a, const auto& b) { return square(a) < square(b); });
}

void CrystalPotential::fill_pairs(const DynamicCrystal& crystal, const PotentialSettings& settings, Task& task) {
  const Lattice lattice = crystal.lattice();
  const double largest = 2 / settings.smallest_spacing;
  std::vector<FactorTable> tables;
  for (const auto& kind : crystal.kinds) {
    tables.emplace_back(kind, electron_, largest / 2, settings.absorption);
  }
  const auto x = phases_of(crystal, 0, reach_[0]);
  const auto y = phases_of(crystal, 1, reach_[1]);
  const auto z = phases_of(crystal, 2, reach_[2]);
  const std::size_t atoms = crystal.atoms.size();
  const auto side = [this](std::size_t axis) { return 2 * static_cast<std::size_t>(reach_[axis]) + 1; };
  const double scale = electron_.mass_ratio / (pi * lattice.volume());
  double sources = 0;
  for (const auto& atom : crystal.atoms) {
    sources += atom.occupancy * std::pow(crystal.kinds[atom.kind].atomic_number, 2);
  }
  pairs_.resize(side(0) * side(1) * side(2));
  middle_ = pairs_.size() / 2;

  std::vector<Complex> by_kind(tables.size());
  std::vector<Complex> row(atoms);
  /// Potential, absorption, sources of one reflection.
  const auto terms_of = [&](int h, int k, int l) {
    const auto [gx, gy, gz] =
        lattice.cartesian(ReciprocalVector{static_cast<double>(h), static_cast<double>(k), static_cast<double>(l)});
    const double length = std::sqrt(gx * gx + gy * gy + gz * gz);
    std::array<Complex, 3> terms{};
    if (length > largest) return terms;
    std::fill(by_kind.begin(), by_kind.end(), Complex{});
    const Complex* along = &z[static_cast<std::size_t>(l + reach_[2]) * atoms];
    for (std::size_t i = 0; i < atoms; ++i) by_kind[crystal.atoms[i].kind] += row[i] * along[i];
    for (std::size_t kind = 0; kind < tables.size(); ++kind) {
      const auto factors = tables[kind].at(length / 2);
      for (std::size_t t = 0; t < 3; ++t) terms[t] += factors[t] * by_kind[kind];
    }
    return std::array<Complex, 3>{terms[0] * scale, terms[1] * scale, terms[2] / sources};
  };
  const auto begin_row = [&](int h, int k) {
    for (std::size_t i = 0; i < atoms; ++i) {
      row[i] = crystal.atoms[i].occupancy * x[static_cast<std::size_t>(h + reach_[0]) * atoms + i] *
               y[static_cast<std::size_t>(k + reach_[1]) * atoms + i];
    }
  };
  begin_row(0, 0);
  const auto middle = terms_of(0, 0, 0);
  mean_potential_ = middle[0].real();
  mean_absorption_ = middle[1].real();
  wave_number_ = std::sqrt(1 / (electron_.wavelength * electron_.wavelength) + mean_potential_);
  const double per_depth = pi / wave_number_;
  const auto entry = [this, per_depth](const std::array<Complex, 3>& t) -> PairTerm {
    const double keep = symmetric_ ? 0 : 1;
    return {static_cast<float>(per_depth * (t[1].real() + keep * t[0].imag())),
            static_cast<float>(per_depth * (keep * t[1].imag() - t[0].real())), static_cast<float>(t[2].real()),
            static_cast<float>(keep * t[2].imag())};
  };
  std::size_t place = 0;
  for (int h = -reach_[0]; h <= 0; ++h) {
    for (int k = -reach_[1]; k <= reach_[1]; ++k) {
      task.check();
      if (place > middle_) break;
      begin_row(h, k);
      for (int l = -reach_[2]; l <= reach_[2]; ++l, ++place) {
        if (place > middle_) break;
        const auto terms = terms_of(h, k, l);
        pairs_[place] = entry(terms);
        // All three belong to real functions of space.
        pairs_[pairs_.size() - 1 - place] = entry({std::conj(terms[0]), std::conj(terms[1]), std::conj(terms[2])});
      }
    }
  }
  pairs_[middle_].re = 0;  // the mean absorption is in the distribution of depths
  for (auto& candidate : candidates_) {
    begin_row(candidate.hkl[0], candidate.hkl[1]);
    const double strength = std::abs(terms_of(candidate.hkl[0], candidate.hkl[1], candidate.hkl[2])[0]);
    candidate.strength = strength < faint ? as_if_absent : strength;
  }
}

}  // namespace zol
