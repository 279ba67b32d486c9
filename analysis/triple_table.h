// Every ordered triple of the strongest reflections with the acute angles between their plane normals: the table that a
// measured Kikuchi pattern is indexed against.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>
#include <tuple>
#include <vector>

#include "core/crystal_state.h"
#include "core/list_order.h"
#include "core/task.h"

namespace zol {

/// The tables of all triples of N reflections, N^3 rows from 1. Row ((i - 1) N + (j - 1)) N + k is that of reflections
/// i, j, k, so that N reflections and the N x N angles between them are all that is stored. Row 0 and the rows after
/// the last triple hold zeros.
class TripleTable {
 public:
  // Elements of the four tables. @throws RunFailure  a row or column that the table does not have
  [[nodiscard]] Integer TripleHKL(int row, int column) const;   ///< columns 0 to 8: h, k, l of the three reflections
  [[nodiscard]] Single TripleS(int row, int column) const;      ///< columns 0 to 2: RefS, 1/(2d) in inverse angstroms
  [[nodiscard]] Single TripleI(int row, int column) const;      ///< columns 0 to 2: RefI
  [[nodiscard]] Single TripleAngle(int row, int column) const;  ///< columns 0 to 2: degrees between 1 and 2, 2 and 3,
                                                                ///< 3 and 1

  /// Last row of TripleHKL and TripleAngle, -1 before they have one.
  [[nodiscard]] int upper_row() const { return indices_and_angles_.upper; }

  /// The three reflections of a row, from 0.
  using Triple = std::array<std::size_t, 3>;
  /// None for a row of zeros.
  [[nodiscard]] std::optional<Triple> triple(long long row) const {
    return indices_and_angles_.filled ? triple_of(row) : std::nullopt;
  }
  /// The same for the tables of spacings and intensities, which keep their values when the other two are emptied.
  [[nodiscard]] std::optional<Triple> measured_triple(long long row) const {
    return lengths_and_intensities_.filled && row <= lengths_and_intensities_.upper ? triple_of(row) : std::nullopt;
  }
  [[nodiscard]] std::size_t reflections() const { return planes_.size(); }
  /// Degrees between the normals of two reflections, from 0.
  [[nodiscard]] Single angle(std::size_t a, std::size_t b) const { return angles_[a * planes_.size() + b]; }

  /// Fills TripleHKL and TripleAngle with zeros; the other two tables keep their values.
  /// @throws RunFailure  rows is negative
  void empty_indices_and_angles(int rows);

  /// A reflection of the table.
  struct Plane {
    std::array<Integer, 3> hkl;
    Single s = 0;
    Single intensity = 0;
    bool operator==(const Plane&) const = default;
  };
  [[nodiscard]] const std::vector<Plane>& planes() const { return planes_; }
  TripleTable() = default;
  bool operator==(const TripleTable&) const = default;
  /// All of it, to be written and read.
  static auto parts(auto& table) {
    return std::tie(table.planes_, table.angles_, table.indices_and_angles_, table.lengths_and_intensities_);
  }
  [[nodiscard]] bool sound() const { return angles_.size() == planes_.size() * planes_.size(); }
  /// All four tables.
  /// @param angles  degrees between reflections a and b at a N + b, both from 0
  /// @throws RunFailure  the triples need more rows
  TripleTable(int rows, std::vector<Plane> planes, std::vector<Single> angles);

 private:
  /// Rows of two of the tables.
  struct Rows {
    int upper = -1;
    bool filled = false;
    bool operator==(const Rows&) const = default;
  };
  [[nodiscard]] std::optional<Triple> triple_of(long long row) const;
  [[nodiscard]] const Plane* plane(std::string_view table, const Rows& rows, int row, int column, int columns) const;

  std::vector<Plane> planes_;
  std::vector<Single> angles_;
  Rows indices_and_angles_;
  Rows lengths_and_intensities_;
};

/// The reflection list by RefS * RefI, descending; among equal products the order is that of a selection sort.
[[nodiscard]] ListOrder order_by_weighted_intensity(const CrystalState& state, Task& task);

/// The wanted number of reflections extended so that reflections of equal RefI (within 0.1 per cent) stay together.
[[nodiscard]] Single extend_over_ties(const CrystalState& state, Single wanted);

/// The table of the first `used` reflections of the list, of which there are N = used rounded half to even.
/// Reports reflections.
/// @throws RunFailure  a reflection of zero length, or more rows than a Long can count
[[nodiscard]] TripleTable make_triple_table(const CrystalState& state, Single used, Task& task);

/// Third power of a number of reflections: the size of their table before it is rounded.
[[nodiscard]] inline double triples_of(Single reflections) {
  return double{reflections} * double{reflections} * double{reflections};
}

/// Highest row of a table of so many reflections.
[[nodiscard]] int triple_rows(Single reflections);

}  // namespace zol
