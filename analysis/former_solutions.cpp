#include "analysis/former_solutions.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "core/numbers.h"

namespace zol {
namespace {

bool alike(Single value, Single of_former, std::string_view what) {
  constexpr double tolerance = 0.001;
  return std::abs(1.0 - divide(value, of_former, what)) <= tolerance;
}

bool divides(Single value) { return value < 0 || value > 0; }

}  // namespace

void FormerSolutions::add(int row) {
  rows_.push_back(row);
  const auto triple = table_.measured_triple(row);
  comparable_ = comparable_ && triple && std::all_of(triple->begin(), triple->end(), [this](std::size_t reflection) {
                  const auto& plane = table_.planes()[reflection];
                  return divides(plane.s) && divides(plane.intensity);
                });
  if (comparable_) by_first_[triple->front()].push_back(*triple);
}

bool FormerSolutions::has_equivalent(int row) const {
  const auto triple = table_.measured_triple(row);
  if (!comparable_ || !triple) return has_equivalent_plainly(row);
  const auto [first, second, third] = *triple;
  const Likeness& like_first = like(first);
  const Likeness& like_second = like(second);
  const Likeness& like_third = like(third);
  for (std::size_t i = 0; i < by_first_.size(); ++i) {
    if (!like_first[i]) continue;
    const auto& formers = by_first_[i];
    if (std::any_of(formers.begin(), formers.end(),
                    [&](const auto& former) { return like_second[former[1]] && like_third[former[2]]; })) {
      return true;
    }
  }
  return false;
}

bool FormerSolutions::has_equivalent_plainly(int row) const {
  return std::any_of(rows_.begin(), rows_.end(), [this, row](int former) { return is_equivalent(row, former); });
}

/// All six are compared, so that a value of 0 fails the run wherever it stands.
bool FormerSolutions::is_equivalent(int row, int former) const {
  bool equivalent = true;
  for (int c = 0; c < 3; ++c) {
    equivalent = alike(table_.TripleS(row, c), table_.TripleS(former, c), "TripleS of a former solution") && equivalent;
  }
  for (int c = 0; c < 3; ++c) {
    equivalent = alike(table_.TripleI(row, c), table_.TripleI(former, c), "TripleI of a former solution") && equivalent;
  }
  return equivalent;
}

const FormerSolutions::Likeness& FormerSolutions::like(std::size_t reflection) const {
  auto& found = like_[reflection];
  if (found) return *found;
  const auto& planes = table_.planes();
  const auto& own = planes[reflection];
  found.emplace(planes.size());
  for (std::size_t i = 0; i < planes.size(); ++i) {
    const auto& other = planes[i];
    (*found)[i] = divides(other.s) && divides(other.intensity) && alike(own.s, other.s, "a spacing") &&
                  alike(own.intensity, other.intensity, "an intensity");
  }
  return *found;
}

}  // namespace zol
