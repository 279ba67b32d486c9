// What the symmetry of a crystal says of its reflections: equivalents, multiplicity, systematic absences.
//
// An operator x -> R x + t turns (h k l) into (h k l) R. With Friedel's law (h k l) and (-h -k -l) are equivalent, so
// that equivalents are those of the Laue class. A reflection is absent where an operator with (h k l) R = (h k l) has a
// phase (h k l) . t that is no whole number. Source: International Tables for Crystallography A (2016) 1.6.
#pragma once

#include <array>
#include <vector>

#include "core/crystal_state.h"
#include "core/space_group.h"

namespace zol {

using Indices3 = std::array<int, 3>;

class ReflectionSymmetry {
 public:
  ReflectionSymmetry() = default;  ///< not known: no reflection has equivalents but its Friedel mate
  explicit ReflectionSymmetry(const std::vector<SymmetryOperator>& operators);
  /// By the file of the crystal's space group under its axis setting; where there is none, by the Laue class of its
  /// number without absences.
  [[nodiscard]] static ReflectionSymmetry of_crystal(const Main1State& crystal);

  /// All different ones, Friedel mates included, in falling order of h, k, l.
  [[nodiscard]] std::vector<Indices3> equivalents(const Indices3& hkl) const;
  [[nodiscard]] int multiplicity(const Indices3& hkl) const { return static_cast<int>(equivalents(hkl).size()); }
  /// The one that stands for all: the fewest negative indices, then the largest h, k, l.
  [[nodiscard]] Indices3 leader(const Indices3& hkl) const;
  [[nodiscard]] bool absent(const Indices3& hkl) const;

 private:
  struct Operator {
    std::array<Indices3, 3> rotation{};
    Indices3 translation{};  ///< in 24ths
  };
  [[nodiscard]] static Indices3 turned(const Indices3& hkl, const Operator& op);

  std::vector<Operator> operators_;
  std::vector<Operator> rotations_;  ///< each rotation once
  Integer laue_number_;              ///< of the space group, where the operators are not known; 0: none
};

}  // namespace zol
