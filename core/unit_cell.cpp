#include "core/unit_cell.h"

#include <algorithm>
#include <cmath>

#include "core/number_text.h"

namespace zol {
namespace {

/// Fraction of one coordinate of R x + t, 0 <= p < 1.
Single folded_image(const SymmetryOperator& op, std::size_t axis, const SingleTriple& site) {
  const auto& r = op.rotation[axis];
  const Single p = to_single(double{r[0]} * site[0] + double{op.translation[axis]} + double{r[1]} * site[1] +
                             double{r[2]} * site[2]);
  const Single folded = to_single(double{p} - std::floor(double{p}));
  return folded < 1 ? folded : 0.0F;  // a tiny negative coordinate rounds up to 1
}

/// Nearer than the tolerance modulo 1. Strict bounds, on Singles.
bool coincide(Single a, Single b) {
  constexpr Single tolerance = 0.01F;
  constexpr Single wrapped = 0.99F;
  const Single distance = std::abs(to_single(double{a} - double{b}));
  return distance < tolerance || distance > wrapped;
}

bool is_duplicate(const CrystalState& state, const UnitCell& cell, const SiteImage& image) {
  return std::any_of(cell.begin(), cell.end(), [&state, &image](const SiteImage& atom) {
    return coincide(atom.position[0], image.position[0]) && coincide(atom.position[1], image.position[1]) &&
           coincide(atom.position[2], image.position[2]) && state.AtomLabel(atom.site) == state.AtomLabel(image.site) &&
           state.AtomElement(atom.site) == state.AtomElement(image.site);
  });
}

void add_atom(const CrystalState& state, UnitCell& cell, const SiteImage& atom) {
  cell.push_back(atom);
  (void)state.UCLabel(static_cast<int>(cell.size()));  // fails where the arrays have no room for it
}

}  // namespace

UnitCell expand_unit_cell(const CrystalState& state, const SpaceGroup& group, Task& task) {
  std::vector<SymmetryOperator> operators;
  operators.reserve(group.operators.size());
  for (const auto& op : group.operators) operators.push_back(permute_axes(op, state.AxisSetting));

  UnitCell cell;
  for (int site = 1; site <= state.NAtom.value(); ++site) {
    const SingleTriple given{state.AtomPos(site, 1), state.AtomPos(site, 2), state.AtomPos(site, 3)};
    for (const auto& op : operators) {
      task.check();
      const SiteImage image{site, {folded_image(op, 0, given), folded_image(op, 1, given), folded_image(op, 2, given)}};
      if (!is_duplicate(state, cell, image)) add_atom(state, cell, image);
    }
  }
  return cell;
}

void commit(CrystalState& state, const UnitCell& cell) {
  state.NCell = static_cast<int>(cell.size());
  int m = 0;
  for (const auto& [site, position] : cell) {
    ++m;
    state.UCLabel(m) = state.AtomLabel(site);
    state.UCElement(m) = state.AtomElement(site);
    state.UCOcc(m) = state.AtomOcc(site);
    state.UCB(m) = state.AtomB(site);
    for (int axis = 1; axis <= 3; ++axis) state.UCPos(m, axis) = position[static_cast<std::size_t>(axis - 1)];
  }
}

std::string unit_cell_summary(const CrystalState& state) {
  Single sum = 0;
  for (int m = 1; m <= state.NCell.value(); ++m) sum = to_single(double{sum} + double{state.UCOcc(m)});
  return Str(state.NCell) + "(" + Format(sum, "##0.0##") + ")";
}

std::string unit_cell_line(const CrystalState& state, int m) {
  constexpr std::string_view coordinate = "#0.0####";
  return left_field(Str(m), 8) + left_field(state.UCLabel(m), 8) + left_field(state.UCElement(m), 8) +
         left_field(Format(state.UCOcc(m), "#0.0###"), 10) + left_field(Format(state.UCPos(m, 1), coordinate), 10) +
         left_field(Format(state.UCPos(m, 2), coordinate), 10) + left_field(Format(state.UCPos(m, 3), coordinate), 10) +
         left_field(Format(state.UCB(m), coordinate), 10);
}

}  // namespace zol
