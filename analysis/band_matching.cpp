#include "analysis/band_matching.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "analysis/former_solutions.h"
#include "analysis/zone_azimuth.h"
#include "core/cell_geometry.h"
#include "core/number_text.h"

namespace zol {
namespace {

constexpr double full_turn_deg = 360.0;
constexpr double largest_component = 1000.0;

/// Rows between two reports of progress.
constexpr long long report_step = 4096;

// Columns of a solution in the list.
constexpr std::size_t index_width = 4;
constexpr std::size_t component_width = 7;
constexpr std::size_t angle_error_width = 5;
constexpr std::size_t width_error_width = 6;

enum class Verdict { Rejected, Omitted, Listed };

class Matcher {
 public:
  Matcher(const CrystalState& state, const TripleTable& table, const MeasuredBands& bands,
          const MatchSettings& settings)
      : state_(state),
        table_(table),
        bands_(bands),
        measured_deg_{bands.BandAngle(0), bands.BandAngle(1), bands.BandAngle(2)},
        settings_(settings),
        tolerance_deg_(settings.angle_tolerance),
        former_(table) {}

  /// The first row from here to the last one whose angles fit, last + 1 when there is none.
  template <class Passed>
  [[nodiscard]] long long next_fitting(long long row, long long last, Passed passed) const {
    while (row <= last) {
      passed(row);
      const auto triple = table_.triple(row);
      if (!triple) {
        if (angles_fit(static_cast<int>(row))) return row;
        ++row;
        continue;
      }
      const auto [i, j, first] = *triple;
      const std::size_t count = table_.reflections();
      if (angle_fits(0, table_.angle(i, j))) {
        for (std::size_t k = first; k < count && row <= last; ++k, ++row) {
          if (angle_fits(1, table_.angle(j, k)) && angle_fits(2, table_.angle(k, i))) return row;
        }
      } else {
        row += static_cast<long long>(count - first);  // all rows of the pair i, j
      }
    }
    return last + 1;
  }

  /// Widths of a row without spacings fail the run even where they do not count.
  [[nodiscard]] bool widths_fit(int row) const {
    bool fit = true;
    for (int c = 0; c < 3; ++c) {
      const Single error_percent = to_single(std::abs(1.0 - width_ratio(row, c)) * 100.0);
      if (!settings_.width_tolerance_percent) continue;
      fit = fit && error_percent < *settings_.width_tolerance_percent;
    }
    return fit;
  }

  /// @returns true when this was the solution to stop at
  bool solve(int row) {
    const auto planes = row_planes(table_, row);
    TwoDirections roots;
    const SingleTriple inverted = invert(planes);
    if (status_ == match_status::singular) status_ = SolveTwoPlanes(state_, planes, band_cosines(), roots);
    matching_.status = status_;
    if (status_ < match_status::one_root) {
      const Verdict verdict = check(row, planes, inverted, SolvedBy::Inversion);
      return verdict != Verdict::Rejected && matching_.solutions.size() == 1 && settings_.stop_at_first_solution;
    }
    check(row, planes, roots.A1, SolvedBy::FirstRoot);
    if (status_ >= match_status::two_roots) check(row, planes, roots.A2, SolvedBy::SecondRoot);
    return false;
  }

  [[nodiscard]] Matching take_found() { return std::move(matching_); }

 private:
  [[nodiscard]] bool angle_fits(std::size_t c, Single angle_deg) const {
    return std::abs(double{angle_deg} - measured_deg_[c]) < tolerance_deg_;
  }
  [[nodiscard]] bool angles_fit(int row) const {
    return angle_fits(0, table_.TripleAngle(row, 0)) && angle_fits(1, table_.TripleAngle(row, 1)) &&
           angle_fits(2, table_.TripleAngle(row, 2));
  }

  [[nodiscard]] double width_ratio(int row, int c) const {
    return divide(bands_.BandS(c), table_.TripleS(row, c), "RefS of a reflection of the triple table");
  }

  [[nodiscard]] SingleTriple band_cosines() const {
    SingleTriple cosines{};
    for (int c = 0; c < 3; ++c) {
      cosines[static_cast<std::size_t>(c)] = to_single(std::cos(double{bands_.BandTheta(c)}));
    }
    return cosines;
  }

  /// The direction whose components along the three normals are those of the bands; of a singular matrix whatever the
  /// half worked inverse gives.
  SingleTriple invert(const std::array<Indices<Integer>, 3>& planes) {
    BoundedTable<Single> matrix("M", 3, 3);
    std::array<double, 3> along{};
    for (int i = 1; i <= 3; ++i) {
      const auto& [h, k, l] = planes[static_cast<std::size_t>(i - 1)];
      matrix(i, 1) = to_single(h.value());
      matrix(i, 2) = to_single(k.value());
      matrix(i, 3) = to_single(l.value());
      along[static_cast<std::size_t>(i - 1)] =
          to_single(std::cos(double{bands_.BandTheta(i - 1)}) * double{DHKL(state_, h, k, l)});
    }
    status_ = InvertMatrix(3, matrix);
    SingleTriple direction{};
    for (int i = 1; i <= 3; ++i) {
      direction[static_cast<std::size_t>(i - 1)] =
          to_single(matrix(i, 1) * along[0] + matrix(i, 2) * along[1] + matrix(i, 3) * along[2]);
    }
    return direction;
  }

  Verdict check(int row, const std::array<Indices<Integer>, 3>& planes, const SingleTriple& solved,
                SolvedBy solved_by) {
    const SingleTriple direction = in_whole_numbers(solved);
    if (!sense_of_rotation_fits(planes, direction)) return Verdict::Rejected;
    if (settings_.omit_equivalents && former_.has_equivalent(row)) return Verdict::Omitted;
    record(row, direction, solved_by);
    return Verdict::Listed;
  }

  [[nodiscard]] static SingleTriple in_whole_numbers(const SingleTriple& solved) {
    double largest = 0;
    for (const Single component : solved) {
      if (std::abs(component) > largest) largest = std::abs(component);
    }
    SingleTriple direction{};
    for (std::size_t i = 0; i < 3; ++i) {
      const double part = divide(solved[i], largest, "the largest component of a direction");
      direction[i] = to_single(std::floor(part * largest_component));
    }
    return direction;
  }

  [[nodiscard]] bool sense_of_rotation_fits(const std::array<Indices<Integer>, 3>& planes,
                                            const SingleTriple& direction) const {
    SingleTriple azimuth{};
    for (std::size_t i = 0; i < 3; ++i) azimuth[i] = zone_azimuth(state_, planes[i], direction);
    const auto forward = [](Single turn_deg) { return turn_deg < 0 ? to_single(turn_deg + full_turn_deg) : turn_deg; };
    bool fits = true;
    for (int i = 0; i < 2; ++i) {
      const auto place = static_cast<std::size_t>(i);
      const Single measured = forward(to_single((double{bands_.BandPhi(i + 1)} - double{bands_.BandPhi(i)}) / degree));
      const Single calculated = forward(to_single(double{azimuth[place + 1]} - double{azimuth[place]}));
      fits = fits && std::abs(double{measured} - double{calculated}) < 2.0 * double{settings_.angle_tolerance};
    }
    return fits || settings_.only_triangle;
  }

  void record(int row, const SingleTriple& direction, SolvedBy solved_by) {
    Solution solution;
    solution.number = static_cast<int>(matching_.solutions.size()) + 1;
    if (solution.number > most_solutions) detail::fail_index("SolutionTriple", solution.number, most_solutions);
    solution.row = row;
    solution.direction = direction;
    solution.solved_by = solved_by;
    solution.status = status_.value();
    Single sum = 0;
    for (int c = 0; c < 3; ++c) {
      const Single error = to_single(double{table_.TripleAngle(row, c)} - double{bands_.BandAngle(c)});
      sum = to_single(double{sum} + double{error} * double{error});
      solution.angle_error_deg[static_cast<std::size_t>(c)] = error;
    }
    if (settings_.width_tolerance_percent) {
      auto& errors = solution.width_error_percent.emplace();
      for (int c = 0; c < 3; ++c) errors[static_cast<std::size_t>(c)] = (width_ratio(row, c) - 1.0) * 100.0;
    }
    matching_.angle_error = sum;
    matching_.solutions.push_back(solution);
    former_.add(row);
  }

  const CrystalState& state_;
  const TripleTable& table_;
  const MeasuredBands& bands_;
  std::array<double, 3> measured_deg_;
  const MatchSettings& settings_;
  double tolerance_deg_;
  Integer status_;
  Matching matching_;
  FormerSolutions former_;
};

/// Each pair of reflections is looked at, each third one of a pair that fits, and the solution of what fits wholly; an
/// angle fits as often as if all were alike.
Effort effort_of_matching(const TripleTable& table, const MatchSettings& settings) {
  constexpr double of_pair = 3e-9;
  constexpr double of_third = 3e-9;
  constexpr double of_solution = 1.5e-6;
  constexpr double right_angle_deg = 90;
  const auto count = static_cast<double>(table.reflections());
  const double fits = std::min(1.0, 2.0 * std::abs(double{settings.angle_tolerance}) / right_angle_deg);
  const double triples = count * count * count;
  return {count * count * of_pair + triples * fits * of_third + triples * fits * fits * fits * of_solution, 0};
}

/// Words behind a line. Of status 1 nothing is left when a line is made, so that its two words never show; statuses 3
/// and 4 have none.
std::string_view status_words(int status) {
  if (status == match_status::singular) return " Det Error Div. By Zero";
  if (status == match_status::no_real_root) return " No Real Ans.";
  return "";
}

}  // namespace

Matching match_bands(const CrystalState& state, const TripleTable& table, Single used, const MeasuredBands& bands,
                     const MatchSettings& settings, Task& task) {
  const int rows = triple_rows(used);
  Matcher matcher(state, table, bands, settings);
  if (!settings.stop_at_first_solution) task.expect(effort_of_matching(table, settings));
  long long next_report = 0;
  const auto passed = [&](long long row) {
    if (row < next_report) return;
    task.report(static_cast<int>(row), rows);
    task.check();
    next_report = row + report_step;
  };
  long long row = matcher.next_fitting(settings.first_row, rows, passed);
  for (; row <= rows; row = matcher.next_fitting(row + 1, rows, passed)) {
    task.check();
    const int candidate = static_cast<int>(row);
    if (matcher.widths_fit(candidate) && matcher.solve(candidate)) break;
  }
  if (settings.first_row <= rows) task.report(static_cast<int>(std::min<long long>(row, rows)), rows);
  return matcher.take_found();
}

void take_solutions(const Matching& matching, SolutionTable& table) {
  table.SolutionCount = static_cast<int>(matching.solutions.size());
  for (const Solution& solution : matching.solutions) {
    table.SolutionTriple(solution.number) = solution.row;
    for (int i = 1; i <= 3; ++i) {
      table.SolutionDir(solution.number, i) = solution.direction[static_cast<std::size_t>(i - 1)];
    }
  }
  table.MatchStatus = matching.status.value_or(table.MatchStatus);
  table.AngleError = matching.angle_error.value_or(table.AngleError);
}

std::string solution_line(const TripleTable& table, const Solution& solution) {
  std::string line = Format(solution.number, "## ");
  for (int c = 0; c <= 8; ++c)
    line += right_field(Format(table.TripleHKL(solution.row, c).value(), "##0"), index_width);
  for (const Single component : solution.direction) line += right_field(Format(component, "###0.#"), component_width);
  for (const Single error : solution.angle_error_deg) line += right_field(Format(error, "#0.0"), angle_error_width);
  if (solution.width_error_percent) {
    for (const double error : *solution.width_error_percent) {
      line += right_field(Format(error, "##0.0"), width_error_width);
    }
  }
  if (solution.solved_by == SolvedBy::FirstRoot) return line + "  A1";
  if (solution.solved_by == SolvedBy::SecondRoot) return line + "  A2";
  return line.append(status_words(solution.status));
}

std::string solution_heading(int solutions, bool with_widths) {
  std::string line = left_field("No", Format(std::max(solutions, 1), "## ").size());
  for (int plane = 0; plane < 3; ++plane) {
    for (const auto* index : {"h", "k", "l"}) line += right_field(index, index_width);
  }
  for (const auto* component : {"u", "v", "w"}) line += right_field(component, component_width);
  for (const auto* error : {"d12", "d23", "d31"}) line += right_field(error, angle_error_width);
  if (!with_widths) return line;
  for (const auto* error : {"w1", "w2", "w3"}) line += right_field(error, width_error_width);
  return line;
}

std::array<Indices<Integer>, 3> row_planes(const TripleTable& table, int row) {
  std::array<Indices<Integer>, 3> planes;
  for (int i = 0; i < 3; ++i) {
    planes[static_cast<std::size_t>(i)] = {table.TripleHKL(row, 3 * i), table.TripleHKL(row, 3 * i + 1),
                                           table.TripleHKL(row, 3 * i + 2)};
  }
  return planes;
}

PlaneRotations in_plane_rotations(const CrystalState& state, const TripleTable& table, const MeasuredBands& bands,
                                  int row, const SingleTriple& direction) {
  constexpr double near_full_turn = 6.2;
  const auto planes = row_planes(table, row);
  PlaneRotations result;
  auto& rotation = result.rotation;
  for (std::size_t i = 0; i < 3; ++i) {
    const Single azimuth = zone_azimuth(state, planes[i], direction);
    rotation[i] = to_single(double{bands.BandPhi(static_cast<int>(i))} - double{azimuth} * degree);
    if (rotation[i] > program_two_pi) rotation[i] = to_single(double{rotation[i]} - program_two_pi);
    if (rotation[i] < 0) rotation[i] = to_single(double{rotation[i]} + program_two_pi);
  }
  const bool straddle = std::abs(double{rotation[2]} - double{rotation[1]}) > near_full_turn ||
                        std::abs(double{rotation[1]} - double{rotation[0]}) > near_full_turn;
  for (auto& turn : rotation) {
    if (straddle && turn > near_full_turn) turn = to_single(double{turn} - program_two_pi);
  }
  return result;
}

Single PlaneRotations::mean() const {
  return to_single((double{rotation[0]} + double{rotation[1]} + double{rotation[2]}) / 3.0);
}

}  // namespace zol
