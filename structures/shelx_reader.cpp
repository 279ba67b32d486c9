// Instruction and result files of SHELX.
//
// Source: Sheldrick, Acta Cryst. C71 (2015) 3, and the manual of SHELX-97.
#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <numbers>

#include "core/run_failure.h"
#include "structures/contents.h"
#include "structures/field_numbers.h"
#include "structures/line_format.h"
#include "structures/operator_text.h"
#include "structures/structure_reading.h"
#include "structures/symmetry_group.h"

namespace zol {
namespace {

constexpr double b_of_u = 8 * std::numbers::pi * std::numbers::pi;

std::string upper(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::toupper(c); });
  return text;
}

/// Reads the instructions in order; what is none of them is an atom.
class ShelxReader {
 public:
  explicit ShelxReader(std::string_view bytes) : lines_(joined(numbered_lines(bytes))) {}

  Reading read(Task& task) {
    read_.format = "SHELX";
    for (const auto& line : lines_) {
      task.check();
      if (!take(line)) break;
    }
    if (!has_cell_) throw RunFailure("no CELL instruction");
    finish_symmetry(task);
    if (read_.structure.sites.empty()) throw RunFailure("no atoms");
    return std::move(read_);
  }

 private:
  /// A line that ends in "=" goes on in the next one; what follows "!" is a comment.
  static std::vector<NumberedLine> joined(const std::vector<NumberedLine>& lines) {
    std::vector<NumberedLine> result;
    bool goes_on = false;
    for (NumberedLine line : lines) {
      const auto comment = line.text.find('!');
      if (comment != std::string::npos) line.text.erase(comment);
      const auto last = line.text.find_last_not_of(" \t");
      const bool continues = last != std::string::npos && line.text[last] == '=' && !line.text.starts_with("TITL");
      if (continues) line.text.erase(last);
      if (goes_on) {
        result.back().text += ' ' + line.text;
      } else {
        result.push_back(line);
      }
      goes_on = continues;
    }
    return result;
  }

  /// @returns false at the end of the atoms
  bool take(const NumberedLine& line) {
    const auto words = words_of(line.text);
    if (words.empty() || line.text.starts_with(' ')) return true;
    std::string name = upper(words[0]);
    if (name.size() > 4 && name[4] == '_') name.resize(4);
    if (name == "END" || name == "HKLF") return false;
    if (name == "TITL") return take_title(line.text);
    if (name == "CELL") return take_cell(words, line.number);
    if (name == "LATT") return take_lattice(words, line.number);
    if (name == "SYMM") return take_symmetry(line.text.substr(4), line.number);
    if (name == "SFAC") return take_elements(words);
    if (name == "FVAR") return take_variables(words, line.number);
    if (name == "ZERR") return take_units(words);
    if (is_instruction(name)) return true;
    return take_atom(words, line.number);
  }

  static bool is_instruction(const std::string& name) {
    static constexpr std::array<std::string_view, 70> names{
        "ABIN", "ACTA", "AFIX", "ANIS", "ANSC", "ANSR", "BASF", "BIND", "BLOC", "BOND", "BUMP", "CGLS", "CHIV", "CONF",
        "CONN", "DAMP", "DANG", "DEFS", "DELU", "DFIX", "DISP", "EADP", "EQIV", "EXTI", "EXYZ", "FEND", "FLAT", "FMAP",
        "FRAG", "FREE", "GRID", "HFIX", "HTAB", "ISOR", "LAUE", "LIST", "L.S.", "MERG", "MORE", "MOVE", "MPLA", "NCSY",
        "NEUT", "OMIT", "PART", "PLAN", "PRIG", "REM",  "RESI", "RIGU", "RTAB", "SADI", "SAME", "SHEL", "SIMU", "SIZE",
        "SPEC", "STIR", "SUMP", "SWAT", "TEMP", "TIME", "TWIN", "TWST", "UNIT", "WGHT", "WIGL", "WPDB", "XNPD", "BEDE"};
    return name.starts_with('+') || std::find(names.begin(), names.end(), name) != names.end();
  }

  bool take_title(const std::string& line) {
    const auto first = line.find_first_not_of(' ', 4);
    if (first != std::string::npos) read_.structure.title = line.substr(first, 60);
    return true;
  }

  bool take_cell(const std::vector<std::string>& words, int line) {
    if (words.size() < 8) fail_in_line(line, "CELL needs a wavelength, three edges and three angles");
    CellConstants& cell = read_.structure.cell;
    const std::array fields{&cell.a, &cell.b, &cell.c, &cell.alpha, &cell.beta, &cell.gamma};
    for (std::size_t i = 0; i < fields.size(); ++i) *fields[i] = number_in(words[i + 2], line, "a constant of CELL");
    check_cell(cell);
    has_cell_ = true;
    return true;
  }

  bool take_lattice(const std::vector<std::string>& words, int line) {
    lattice_ = words.size() > 1 ? whole_number_in(words[1], line, "LATT", -7, 7) : 1;
    if (lattice_ == 0) fail_in_line(line, "LATT is 0");
    return true;
  }

  bool take_symmetry(const std::string& text, int line) {
    try {
      generators_.push_back(parse_operator(text));
    } catch (const RunFailure& failure) {
      fail_in_line(line, failure.message());
    }
    return true;
  }

  /// A list of elements, or one with its own scattering factor.
  bool take_elements(const std::vector<std::string>& words) {
    for (std::size_t i = 1; i < words.size(); ++i) {
      const std::string name = element_name(words[i]);
      if (!name.empty()) elements_.push_back(name);
    }
    return true;
  }

  bool take_variables(const std::vector<std::string>& words, int line) {
    for (std::size_t i = 1; i < words.size(); ++i) variables_.push_back(number_in(words[i], line, "a free variable"));
    return true;
  }

  bool take_units(const std::vector<std::string>& words) {
    const auto units = words.size() > 1 ? measured_number(words[1]) : std::nullopt;
    if (units && units->value > 0) read_.units = units->value;
    return true;
  }

  /// 10 + x is x, held; 10 m + p is p times free variable m, -10 m - p is p times (that variable - 1) with a sign.
  [[nodiscard]] double released(double value, int line) const {
    constexpr double farthest = 10000;  // of 999 free variables
    if (!(std::abs(value) < farthest)) fail_in_line(line, "a value is too large");
    const double m = std::trunc((value + (value < 0 ? -5 : 5)) / 10);
    const double p = value - 10 * m;
    if (m == 0 || m == 1) return p;
    const auto place = static_cast<std::size_t>(std::abs(m)) - 1;
    if (m == -1 || place >= variables_.size()) {
      fail_in_line(line, "a value refers to free variable " + std::to_string(static_cast<int>(std::abs(m))) +
                             ", which is not there");
    }
    return m > 0 ? p * variables_[place] : p * (variables_[place] - 1);
  }

  bool take_atom(const std::vector<std::string>& words, int line) {
    if (words.size() < 5) fail_in_line(line, "\"" + words[0] + "\" is not an instruction and has no coordinates");
    if (elements_.empty()) fail_in_line(line, "an atom before SFAC");
    const int kind =
        whole_number_in(words[1], line, "the element of " + words[0], 1, static_cast<int>(elements_.size()));
    if (words[0].starts_with('Q') && std::isdigit(static_cast<unsigned char>(words[0][1])) != 0 &&
        std::find(elements_.begin(), elements_.end(), "Q") == elements_.end()) {
      return true;  // a peak of the difference map
    }
    const std::string& element = elements_[static_cast<std::size_t>(kind - 1)];
    std::array<double, 3> x{};
    for (std::size_t i = 0; i < 3; ++i) {
      const auto given = measured_number(words[i + 2]);
      if (!given)
        fail_in_line(line, "a coordinate of " + words[0] + " is \"" + words[i + 2] + "\", a number is expected");
      x[i] = special_coordinate({released(given->value, line), given->half_unit});
    }
    Site site{words[0], element, 0, 1, {x[0], x[1], x[2]}, b_where_none};
    if (words.size() > 5) site.occupancy = released(number_in(words[5], line, "an occupancy"), line);
    site.b_iso = displacement(words, line);
    if (atomic_number(element) == 0) {
      read_.notes.doubt("the element " + element + " is not known; " + words[0] + " is left out");
    } else {
      read_.structure.sites.push_back(site);
    }
    return true;
  }

  /// One U, or six in the order 11, 22, 33, 23, 13, 12; a negative one rides on the atom before.
  double displacement(const std::vector<std::string>& words, int line) {
    if (words.size() < 7) return b_where_none;
    const double first = released(number_in(words[6], line, "a displacement parameter"), line);
    if (words.size() < 12) {
      if (first < -0.5 && first > -5) return -first * last_b_;
      last_b_ = b_of_u * first;
      return last_b_;
    }
    std::array<double, 6> u{first};
    for (std::size_t i = 1; i < 6; ++i) {
      u[i] = released(number_in(words[i + 6], line, "a displacement parameter"), line);
    }
    const Lattice lattice(read_.structure.cell);
    const CellConstants star = lattice.reciprocal_cell();
    const std::array stars{star.a, star.b, star.c};
    const std::array edges{lattice.cartesian(DirectVector{1, 0, 0}), lattice.cartesian(DirectVector{0, 1, 0}),
                           lattice.cartesian(DirectVector{0, 0, 1})};
    constexpr std::array<std::array<std::size_t, 2>, 6> places{{{0, 0}, {1, 1}, {2, 2}, {1, 2}, {0, 2}, {0, 1}}};
    double sum = 0;
    for (std::size_t k = 0; k < 6; ++k) {
      const auto [i, j] = places[k];
      sum += (i == j ? 1 : 2) * u[k] * stars[i] * stars[j] * dot(edges[i], edges[j]);
    }
    last_b_ = b_of_u * sum / 3;
    return last_b_;
  }

  /// LATT 1 to 7 is P, I, R obverse, F, A, B, C, positive with a centre of inversion at the origin. The occupancies
  /// count the images of a site that fall together, so that they are divided by the part of the images that do.
  void finish_symmetry(Task& task) {
    constexpr int half = operator_unit / 2, third = operator_unit / 3;
    static const std::array<std::vector<std::array<int, 3>>, 8> centrings{{{},
                                                                           {},
                                                                           {{half, half, half}},
                                                                           {{2 * third, third, third}},
                                                                           {{0, half, half}, {half, 0, half}},
                                                                           {{0, half, half}},
                                                                           {{half, 0, half}},
                                                                           {{half, half, 0}}}};
    for (const auto& t : centrings[static_cast<std::size_t>(std::abs(lattice_))]) {
      ExactOperator op;
      op.translation = t;
      generators_.push_back(op);
    }
    if (lattice_ > 0) {
      ExactOperator inversion;
      for (std::size_t i = 0; i < 3; ++i) inversion.rotation[i][i] = -operator_unit;
      generators_.push_back(inversion);
    }
    Structure& structure = read_.structure;
    structure.operators = generated_group(generators_);
    structure.space_group_number = 0;
    for (Site& site : structure.sites) {
      Structure one = structure;
      one.sites = {site};
      const auto images = static_cast<double>(cell_atoms(one, settled_angstrom, task).size());
      site.occupancy *= static_cast<double>(structure.operators.size()) / images;
      if (std::abs(site.occupancy - 1) < 0.005) site.occupancy = 1;
    }
  }

  std::vector<NumberedLine> lines_;
  ReadStructure read_;
  bool has_cell_ = false;
  int lattice_ = 1;
  Operators generators_;
  std::vector<std::string> elements_;
  std::vector<double> variables_;
  double last_b_ = b_where_none;
};

}  // namespace

Reading read_shelx(std::string_view bytes, Task& task) { return ShelxReader(bytes).read(task); }

}  // namespace zol
