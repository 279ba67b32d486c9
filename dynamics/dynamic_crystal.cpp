#include "dynamics/dynamic_crystal.h"

#include <Eigen/LU>
#include <algorithm>
#include <cctype>
#include <cmath>
#include <set>

#include "core/run_failure.h"

namespace zol {
namespace {

/// Ions and bonded atoms (Cval, Sival, Hiso) of the table of X-rays have none in that of electrons, where the neutral
/// atom stands.
std::string neutral_atom(const std::string& element) {
  std::size_t end = 0;
  while (end < element.size() && std::isalpha(static_cast<unsigned char>(element[end])) != 0) ++end;
  const std::string letters = element.substr(0, end);
  constexpr std::size_t ending = 3;
  const bool bonded = letters.ends_with("val") || letters.ends_with("iso");
  return bonded ? letters.substr(0, end - ending) : letters;
}

AtomKind kind_of(const CrystalState& state, const std::string& element, double b_iso) {
  for (int row = 1; row <= state.AsfECount.value(); ++row) {
    const AsfRow& found = state.AsfE(row);
    if (found.Element != element) continue;
    return {
        {{found.A1, found.A2, found.A3, found.A4}, {found.B1, found.B2, found.B3, found.B4}}, found.Z.value(), b_iso};
  }
  throw RunFailure("the element " + element + " has no scattering factor for electrons");
}

Eigen::Matrix3d direct_basis(const Lattice& lattice) {
  Eigen::Matrix3d basis;
  int column = 0;
  for (const DirectVector& edge : {DirectVector{1, 0, 0}, DirectVector{0, 1, 0}, DirectVector{0, 0, 1}}) {
    const auto [x, y, z] = lattice.cartesian(edge);
    basis.col(column++) = Eigen::Vector3d(x, y, z);
  }
  return basis;
}

void add_operations(DynamicCrystal& crystal, const std::vector<SymmetryOperator>& operators) {
  const Eigen::Matrix3d basis = direct_basis(crystal.lattice());
  const Eigen::Matrix3d inverse = basis.inverse();
  crystal.operations.emplace_back(Eigen::Matrix3d::Identity());
  constexpr double most_strain = 0.02;
  for (const auto& op : operators) {
    Eigen::Matrix3d fractional;
    for (int i = 0; i < 3; ++i) {
      for (int j = 0; j < 3; ++j) {
        fractional(i, j) = static_cast<double>(op.rotation[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)]);
      }
    }
    const Eigen::Matrix3d turned = basis * fractional * inverse;
    if (!((turned * turned.transpose() - Eigen::Matrix3d::Identity()).norm() < most_strain)) continue;
    const bool known = std::any_of(crystal.operations.begin(), crystal.operations.end(),
                                   [&turned](const auto& other) { return (other - turned).norm() < 0.2; });
    if (!known) crystal.operations.push_back(turned);
  }
}

/// Translations of the operators whose rotation is this times the identity.
std::vector<std::array<double, 3>> translations_of(const std::vector<SymmetryOperator>& operators, Single diagonal) {
  std::vector<std::array<double, 3>> found;
  for (const auto& op : operators) {
    bool fits = true;
    for (std::size_t i = 0; i < 3; ++i) {
      for (std::size_t j = 0; j < 3; ++j) fits = fits && op.rotation[i][j] == (i == j ? diagonal : 0.0F);
    }
    if (!fits) continue;
    auto& translation = found.emplace_back();
    std::copy(op.translation.begin(), op.translation.end(), translation.begin());
  }
  return found;
}

void add_atoms(DynamicCrystal& crystal, const CrystalState& state) {
  std::vector<std::string> elements;
  std::set<std::string> assumed;
  for (int m = 1; m <= state.NCell.value(); ++m) {
    const std::string element = neutral_atom(state.UCElement(m));
    auto b_iso = static_cast<double>(state.UCB(m));
    if (!(b_iso > 0)) {
      b_iso = usual_b_iso;
      assumed.insert(state.UCLabel(m));
    }
    std::size_t kind = 0;
    while (kind < elements.size() && !(elements[kind] == element && crystal.kinds[kind].b_iso == b_iso)) ++kind;
    if (kind == elements.size()) {
      elements.push_back(element);
      crystal.kinds.push_back(kind_of(state, element, b_iso));
    }
    DynamicAtom atom{kind, static_cast<double>(state.UCOcc(m)), {}};
    for (int axis = 1; axis <= 3; ++axis) {
      atom.position[static_cast<std::size_t>(axis - 1)] = static_cast<double>(state.UCPos(m, axis));
    }
    crystal.atoms.push_back(atom);
  }
  crystal.assumed_b = static_cast<int>(assumed.size());
}

void add_sites(DynamicCrystal& crystal, const CrystalState& state) {
  for (int n = 1; n <= state.NAtom.value(); ++n) {
    const auto b_iso = static_cast<double>(state.AtomB(n));
    DynamicSite site{kind_of(state, neutral_atom(state.AtomElement(n)), b_iso).atomic_number,
                     static_cast<double>(state.AtomOcc(n)),
                     {},
                     b_iso > 0 ? b_iso : usual_b_iso};
    for (int axis = 1; axis <= 3; ++axis) {
      site.position[static_cast<std::size_t>(axis - 1)] = static_cast<double>(state.AtomPos(n, axis));
    }
    crystal.sites.push_back(site);
  }
}

}  // namespace

DynamicCrystal dynamic_crystal(const CrystalState& state, const SpaceGroup* group) {
  DynamicCrystal crystal;
  const auto wide = [](Single value) { return static_cast<double>(value); };
  crystal.cell = {wide(state.CellA),     wide(state.CellB),    wide(state.CellC),
                  wide(state.CellAlpha), wide(state.CellBeta), wide(state.CellGamma)};
  crystal.space_group = state.SGNumber.value();
  if (!(state.NCell > 0)) throw RunFailure("the crystal has no atoms: dynamical patterns need them");
  add_atoms(crystal, state);
  add_sites(crystal, state);
  std::vector<SymmetryOperator> operators;
  if (group != nullptr) {
    for (const auto& op : group->operators) operators.push_back(permute_axes(op, state.AxisSetting));
  }
  add_operations(crystal, operators);
  for (const auto& shift : translations_of(operators, 1)) {
    if (shift != std::array<double, 3>{}) crystal.centring.push_back(shift);
  }
  if (const auto centres = translations_of(operators, -1); !centres.empty()) {
    crystal.centrosymmetric = true;
    for (auto& atom : crystal.atoms) {
      for (std::size_t i = 0; i < 3; ++i) atom.position[i] -= centres.front()[i] / 2;
    }
  }
  return crystal;
}

}  // namespace zol
