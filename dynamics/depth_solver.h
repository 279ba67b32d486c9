// The yield of backscattered electrons for one direction: beams coupled by the crystal, followed into the depth.
//
// With amplitudes c(z), c(0) = 1 for the beam that comes in and 0 for all others, dc/dz = -M c, and exponentially
// distributed depths of mean z0, the yield is the integral of exp(-z/z0)/z0 times c* S c. In the orthonormal functions
// sqrt(2a) exp(-a z) L_k(2 a z) of the depth (L_k: Laguerre's polynomials) the coefficients of c exp(-z/(2 z0)) follow
// from one another by a solution of linear equations each, so that one factorisation serves all. It is done in tiles
// of 16 by 16 in single precision without pivots: the Hermitian part of M is positive. docs/theory-dynamical.md.
#pragma once

#include <memory>
#include <span>

namespace zol {

/// What couples two beams by the difference of their indices: an element of M, per angstrom, and of S.
struct PairTerm {
  float re = 0, im = 0, source_re = 0, source_im = 0;
};

struct DepthSettings {
  double mean_depth = 80;  ///< z0, angstroms
  double scale = 0.08;     ///< a, 1/angstrom
  int terms = 16;          ///< of the depth, a multiple of 16
};

/// Beams of one direction. The element of beams i and j stands at pairs[offsets[i] - offsets[j]].
struct CoupledBeams {
  const PairTerm* pairs = nullptr;
  std::span<const int> offsets;       ///< that of the beam which comes in first
  std::span<const float> deviations;  ///< diagonal of M is i times these, 1/angstrom
  bool symmetric = false;             ///< elements (i, j) and (j, i) are the same, those of S real
  /// Beams that are not followed but folded into the others to first order, as Bethe did.
  std::span<const int> weak_offsets = {};
  std::span<const float> weak_deviations = {};
};

/// Holds storage from one direction to the next; one thread at a time.
class DepthSolver {
 public:
  DepthSolver();
  DepthSolver(DepthSolver&&) noexcept;
  ~DepthSolver();
  [[nodiscard]] double yield(const CoupledBeams& beams, const DepthSettings& settings);

 private:
  struct Storage;
  std::unique_ptr<Storage> storage_;
};

}  // namespace zol
