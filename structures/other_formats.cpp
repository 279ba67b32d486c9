// SHELX instruction and result files, and POSCAR files of VASP.
//
// Sources: Sheldrick, Acta Cryst. C71 (2015) 3, and the SHELX-97 manual for the instructions; the POSCAR page of the
// VASP manual.
#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <numbers>
#include <sstream>

#include "core/run_failure.h"
#include "structures/field_numbers.h"
#include "structures/operator_text.h"
#include "structures/structure_reading.h"
#include "structures/symmetry_group.h"

namespace zol {
namespace {

constexpr double b_of_u = 8 * std::numbers::pi * std::numbers::pi;
constexpr double b_where_none = 0.5;  ///< square angstroms

struct NumberedLine {
  std::string text;
  int number = 0;
};

std::vector<NumberedLine> lines_of(std::string_view bytes) {
  std::vector<NumberedLine> lines;
  std::string text;
  int number = 1;
  for (const char c : bytes) {
    if (c == '\r') continue;
    if (c == '\n') {
      lines.push_back({text, number++});
      text.clear();
    } else {
      text += c;
    }
  }
  if (!text.empty()) lines.push_back({text, number});
  return lines;
}

std::vector<std::string> words_of(const std::string& line) {
  std::istringstream stream(line);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

[[noreturn]] void fail(int line, const std::string& why) {
  throw RunFailure("line " + std::to_string(line) + ": " + why);
}

double number_in(const std::string& word, int line, const std::string& what) {
  const auto number = measured_number(word);
  if (!number) fail(line, what + " is \"" + word + "\", a number is expected");
  return number->value;
}

std::string upper(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::toupper(c); });
  return text;
}

std::string element_name(const std::string& word) {
  std::string name;
  for (const char c : word) {
    if (std::isalpha(static_cast<unsigned char>(c)) == 0) break;
    name += static_cast<char>(name.empty() ? std::toupper(static_cast<unsigned char>(c))
                                           : std::tolower(static_cast<unsigned char>(c)));
  }
  return name == "D" ? "H" : name;
}

/// Reads the instructions in order; what is none of them is an atom.
class ShelxReader {
 public:
  explicit ShelxReader(std::string_view bytes) { lines_ = joined(lines_of(bytes)); }

  Reading read(Task& task) {
    read_.format = "SHELX";
    for (const auto& line : lines_) {
      task.check();
      if (!take(line)) break;
    }
    if (!has_cell_) throw RunFailure("no CELL instruction");
    finish_symmetry();
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
    if (words.size() < 8) fail(line, "CELL needs a wavelength, three edges and three angles");
    CellConstants& cell = read_.structure.cell;
    const std::array fields{&cell.a, &cell.b, &cell.c, &cell.alpha, &cell.beta, &cell.gamma};
    for (std::size_t i = 0; i < fields.size(); ++i) *fields[i] = number_in(words[i + 2], line, "a constant of CELL");
    (void)Lattice(cell);
    has_cell_ = true;
    return true;
  }

  bool take_lattice(const std::vector<std::string>& words, int line) {
    lattice_ = words.size() > 1 ? static_cast<int>(number_in(words[1], line, "LATT")) : 1;
    if (lattice_ == 0 || std::abs(lattice_) > 7) fail(line, "LATT is -7 to 7 and not 0");
    return true;
  }

  bool take_symmetry(const std::string& text, int line) {
    try {
      generators_.push_back(parse_operator(text));
    } catch (const RunFailure& failure) {
      fail(line, failure.message());
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
    const double m = std::trunc((value + (value < 0 ? -5 : 5)) / 10);
    const double p = value - 10 * m;
    if (m == 0 || m == 1) return p;
    const auto place = static_cast<std::size_t>(std::abs(m)) - 1;
    if (m == -1 || place >= variables_.size()) {
      fail(line,
           "a value refers to free variable " + std::to_string(static_cast<int>(std::abs(m))) + ", which is not there");
    }
    return m > 0 ? p * variables_[place] : p * (variables_[place] - 1);
  }

  bool take_atom(const std::vector<std::string>& words, int line) {
    if (words.size() < 5) fail(line, "\"" + words[0] + "\" is no instruction and has no coordinates");
    const auto kind = static_cast<int>(number_in(words[1], line, "the element of " + words[0]));
    if (kind < 1 || static_cast<std::size_t>(kind) > elements_.size()) {
      fail(line, "the element of " + words[0] + " is " + words[1] + ", SFAC has " + std::to_string(elements_.size()));
    }
    if (words[0].starts_with('Q') && std::isdigit(static_cast<unsigned char>(words[0][1])) != 0 &&
        std::find(elements_.begin(), elements_.end(), "Q") == elements_.end()) {
      return true;  // a peak of the difference map
    }
    const std::string& element = elements_[static_cast<std::size_t>(kind - 1)];
    std::array<double, 3> x{};
    for (std::size_t i = 0; i < 3; ++i) {
      const auto given = measured_number(words[i + 2]);
      if (!given) fail(line, "a coordinate of " + words[0] + " is \"" + words[i + 2] + "\", a number is expected");
      x[i] = special_coordinate({released(given->value, line), given->half_unit});
    }
    Site site{words[0], element, 0, 1, {x[0], x[1], x[2]}, b_where_none};
    if (words.size() > 5) site.occupancy = released(number_in(words[5], line, "an occupancy"), line);
    site.b_iso = displacement(words, line);
    if (atomic_number(element) == 0) {
      read_.notes.doubt("the element " + element + " is not known; " + words[0] + " is left out");
    } else if (site.occupancy > 0) {
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
  void finish_symmetry() {
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
      const auto images = static_cast<double>(cell_atoms(one, 0.45).size());
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

/// Title, scale, three vectors, names, counts, kind of coordinates, positions.
class PoscarReader {
 public:
  explicit PoscarReader(std::string_view bytes) : lines_(lines_of(bytes)) {}

  Reading read(const ImportAnswers& answers, Task& task) {
    read_.format = "POSCAR";
    read_.structure.title = words_joined(0).substr(0, 60);
    read_cell();
    std::size_t at = 5;
    std::vector<std::string> names;
    if (!is_number(words_at(at).front())) names = words_at(at++);
    const auto counts = counts_at(at++);
    if (names.empty()) {
      names = names_from(0, counts.size());
      if (names.empty()) {
        const auto answer = answers.find("elements");
        if (answer == answers.end()) {
          return Question{"elements", "The file does not name its elements. Which are its " +
                                          std::to_string(counts.size()) + ", in their order (as Na Cl)?"};
        }
        names = words_of(answer->second);
      }
    }
    check_names(names, counts.size());
    read_sites(at, names, counts, task);
    read_.structure.operators = {ExactOperator{}};
    read_.structure.space_group_symbol = "P 1";
    read_.notes.assume("the file tells no symmetry and no displacement parameters; B = 0.5 square angstroms is taken");
    return std::move(read_);
  }

 private:
  [[nodiscard]] std::vector<std::string> words_at(std::size_t line) const {
    if (line >= lines_.size()) throw RunFailure("the file ends before line " + std::to_string(line + 1));
    auto words = words_of(lines_[line].text);
    if (words.empty()) fail(lines_[line].number, "it is empty");
    return words;
  }
  [[nodiscard]] std::string words_joined(std::size_t line) const {
    return line < lines_.size() ? lines_[line].text : "";
  }
  static bool is_number(const std::string& word) { return measured_number(word).has_value(); }

  std::array<double, 3> vector_at(std::size_t line) const {
    const auto words = words_at(line);
    if (words.size() < 3) fail(lines_[line].number, "three numbers are expected");
    std::array<double, 3> v{};
    for (std::size_t i = 0; i < 3; ++i) v[i] = number_in(words[i], lines_[line].number, "a component");
    return v;
  }

  /// A negative scale is the volume of the cell.
  void read_cell() {
    const auto scales = words_at(1);
    std::array<CartesianVector, 3> edges{};
    for (std::size_t i = 0; i < 3; ++i) {
      const auto v = vector_at(i + 2);
      edges[i] = {v[0], v[1], v[2]};
    }
    const double volume = dot(edges[0], cross(edges[1], edges[2]));
    const double first = number_in(scales[0], lines_[1].number, "the scale");
    if (first == 0 || volume == 0) fail(lines_[1].number, "the cell has no volume");
    scale_ = {first, first, first};
    if (first < 0) {
      const double factor = std::cbrt(-first / std::abs(volume));
      scale_ = {factor, factor, factor};
    } else if (scales.size() >= 3) {
      for (std::size_t i = 0; i < 3; ++i) scale_[i] = number_in(scales[i], lines_[1].number, "the scale");
    }
    for (auto& edge : edges) edge = {edge.x * scale_[0], edge.y * scale_[1], edge.z * scale_[2]};
    edges_ = edges;
    read_.structure.cell = {length(edges[0]),
                            length(edges[1]),
                            length(edges[2]),
                            angle_deg(edges[1], edges[2]),
                            angle_deg(edges[2], edges[0]),
                            angle_deg(edges[0], edges[1])};
    if (volume < 0) read_.notes.doubt("the cell vectors are left-handed; the crystal is mirrored");
    (void)Lattice(read_.structure.cell);
  }

  [[nodiscard]] std::vector<int> counts_at(std::size_t line) const {
    std::vector<int> counts;
    for (const auto& word : words_at(line)) {
      if (!is_number(word)) break;  // a comment may follow
      const double count = number_in(word, lines_[line].number, "a count of atoms");
      if (count < 0 || count != std::floor(count) || count > 1e6) {
        fail(lines_[line].number, "\"" + word + "\" is no count of atoms");
      }
      counts.push_back(static_cast<int>(count));
    }
    if (counts.empty()) fail(lines_[line].number, "counts of atoms are expected");
    return counts;
  }

  /// Names in the title, where it has as many elements as there are counts.
  [[nodiscard]] std::vector<std::string> names_from(std::size_t line, std::size_t count) const {
    auto words = words_of(lines_[line].text);
    const auto known = [](const std::string& word) {
      return atomic_number(element_name(word)) > 0 && word.size() <= 2;
    };
    if (words.size() != count || !std::all_of(words.begin(), words.end(), known)) return {};
    return words;
  }

  void check_names(const std::vector<std::string>& names, std::size_t count) const {
    if (names.size() < count) {
      throw RunFailure("there are " + std::to_string(count) + " counts of atoms and " + std::to_string(names.size()) +
                       " elements");
    }
    for (std::size_t i = 0; i < count; ++i) {
      if (atomic_number(element_name(names[i])) == 0) throw RunFailure("\"" + names[i] + "\" is no element");
    }
  }

  void read_sites(std::size_t at, const std::vector<std::string>& names, const std::vector<int>& counts, Task& task) {
    std::string kind = words_at(at).front();
    if (kind[0] == 's' || kind[0] == 'S') kind = words_at(++at).front();
    const bool cartesian = std::string_view("cCkK").find(kind[0]) != std::string_view::npos;
    ++at;
    for (std::size_t i = 0; i < counts.size(); ++i) {
      for (int n = 0; n < counts[i]; ++n, ++at) {
        task.check();
        const std::string element = element_name(names[i]);
        read_.structure.sites.push_back(
            {element + std::to_string(n + 1), element, 0, 1, position_at(at, cartesian), b_where_none});
      }
    }
    if (read_.structure.sites.empty()) throw RunFailure("no atoms");
  }

  [[nodiscard]] DirectVector position_at(std::size_t line, bool cartesian) const {
    const auto v = vector_at(line);
    if (!cartesian) return {v[0], v[1], v[2]};
    const CartesianVector x{v[0] * scale_[0], v[1] * scale_[1], v[2] * scale_[2]};
    const double volume = dot(edges_[0], cross(edges_[1], edges_[2]));
    return {dot(x, cross(edges_[1], edges_[2])) / volume, dot(x, cross(edges_[2], edges_[0])) / volume,
            dot(x, cross(edges_[0], edges_[1])) / volume};
  }

  std::vector<NumberedLine> lines_;
  ReadStructure read_;
  std::array<double, 3> scale_{};
  std::array<CartesianVector, 3> edges_{};
};

}  // namespace

Reading read_shelx(std::string_view bytes, Task& task) { return ShelxReader(bytes).read(task); }

Reading read_poscar(std::string_view bytes, const ImportAnswers& answers, Task& task) {
  return PoscarReader(bytes).read(answers, task);
}

}  // namespace zol
