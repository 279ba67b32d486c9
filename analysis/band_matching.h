// Indexing of three measured bands: each row of the triple table whose angles agree is an assignment of planes to the
// bands; the direction of the beam follows from it, and the sense of rotation around that direction has to fit.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "analysis/band_measurement.h"
#include "analysis/direction_solvers.h"
#include "analysis/triple_table.h"
#include "core/task.h"

namespace zol {

struct MatchSettings {
  Single angle_tolerance = 0;                     ///< degrees; of an azimuth difference twice as much is allowed
  bool only_triangle = false;                     ///< the sense of rotation is not tested
  bool omit_equivalents = false;                  ///< only the first of solutions with equal spacings and intensities
  std::optional<Single> width_tolerance_percent;  ///< none: widths are not compared
  int first_row = 1;
  bool stop_at_first_solution = false;
};

inline constexpr int most_solutions = 10000;

/// What a run of matching leaves for the next one.
struct SolutionTable {
  Integer SolutionCount;
  BoundedArray<Long> SolutionTriple{"SolutionTriple", most_solutions};  ///< row of the table; solutions count from 1
  BoundedTable<Single> SolutionDir{"SolutionDir", most_solutions,
                                   3};  ///< u, v, w in columns 1 to 3, the largest near 1000
  Integer MatchStatus;                  ///< left by the solvers
  Single AngleError = 0;                ///< squared degrees, of the solution found last
};

/// How the direction of a solution was found.
enum class SolvedBy { Inversion, FirstRoot, SecondRoot };

struct Solution {
  int number = 0;  ///< from 1
  int row = 0;     ///< of the triple table
  SingleTriple direction{};
  SingleTriple angle_error_deg{};  ///< table less measurement
  std::optional<std::array<double, 3>> width_error_percent;
  SolvedBy solved_by = SolvedBy::Inversion;
  int status = 0;  ///< MatchStatus
};

struct Matching {
  std::vector<Solution> solutions;
  std::optional<Integer> status;      ///< left by the solvers for the last row that fitted
  std::optional<Single> angle_error;  ///< of the last solution, squared degrees
};

/// Matches the bands with the rows of the table from the first one on. Reports rows.
/// @throws RunFailure  more than 10000 solutions, or a vector of length 0
[[nodiscard]] Matching match_bands(const CrystalState& state, const TripleTable& table, Single used,
                                   const MeasuredBands& bands, const MatchSettings& settings, Task& task);

/// Writes the solutions to the table. Later rows keep those of an earlier run; status and error stay if there is no new
/// one.
void take_solutions(const Matching& matching, SolutionTable& table);

/// One line of the list: number, indices, direction, angle and width errors, and how it was solved.
[[nodiscard]] std::string solution_line(const TripleTable& table, const Solution& solution);

/// Names of the columns, aligned with the longest of so many lines.
[[nodiscard]] std::string solution_heading(int solutions, bool with_widths);

/// The three planes of a row.
[[nodiscard]] std::array<Indices<Integer>, 3> row_planes(const TripleTable& table, int row);

/// In-plane rotation that brings each of three planes onto its band, radians from 0; values near a
/// full turn are brought to the other side when the three straddle it.
struct PlaneRotations {
  SingleTriple rotation{};
  [[nodiscard]] Single mean() const;
};
[[nodiscard]] PlaneRotations in_plane_rotations(const CrystalState& state, const TripleTable& table,
                                                const MeasuredBands& bands, int row, const SingleTriple& direction);

}  // namespace zol
