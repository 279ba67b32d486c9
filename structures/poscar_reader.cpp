// POSCAR and CONTCAR files of VASP: title, scale, three vectors, names, counts, kind of coordinates, positions.
//
// Source: the POSCAR page of the VASP manual.
#include <algorithm>
#include <array>
#include <cmath>

#include "core/run_failure.h"
#include "structures/cell_vectors.h"
#include "structures/field_numbers.h"
#include "structures/line_format.h"
#include "structures/structure_reading.h"

namespace zol {
namespace {

class PoscarReader {
 public:
  explicit PoscarReader(std::string_view bytes) : lines_(numbered_lines(bytes)) {}

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
    read_.notes.assume("the file gives no symmetry and no displacement parameters; B = 0.5 square angstroms is taken");
    return std::move(read_);
  }

 private:
  [[nodiscard]] std::vector<std::string> words_at(std::size_t line) const {
    if (line >= lines_.size()) throw RunFailure("the file ends before line " + std::to_string(line + 1));
    auto words = words_of(lines_[line].text);
    if (words.empty()) fail_in_line(lines_[line].number, "it is empty");
    return words;
  }
  [[nodiscard]] std::string words_joined(std::size_t line) const {
    return line < lines_.size() ? lines_[line].text : "";
  }
  static bool is_number(const std::string& word) { return measured_number(word).has_value(); }

  [[nodiscard]] std::array<double, 3> vector_at(std::size_t line) const {
    const auto words = words_at(line);
    if (words.size() < 3) fail_in_line(lines_[line].number, "three numbers are expected");
    std::array<double, 3> v{};
    for (std::size_t i = 0; i < 3; ++i) v[i] = number_in(words[i], lines_[line].number, "a component");
    return v;
  }

  [[nodiscard]] CartesianVector scaled(const CartesianVector& v) const {
    return {v.x * scale_[0], v.y * scale_[1], v.z * scale_[2]};
  }

  /// A negative scale is the volume of the cell.
  void read_cell() {
    const auto scales = words_at(1);
    for (std::size_t i = 0; i < 3; ++i) {
      const auto v = vector_at(i + 2);
      vectors_.edges[i] = {v[0], v[1], v[2]};
    }
    const double volume = vectors_.volume();
    const double first = number_in(scales[0], lines_[1].number, "the scale");
    if (first == 0 || volume == 0) fail_in_line(lines_[1].number, "the cell has no volume");
    scale_ = {first, first, first};
    if (first < 0) {
      const double factor = std::cbrt(-first / std::abs(volume));
      scale_ = {factor, factor, factor};
    } else if (scales.size() >= 3) {
      for (std::size_t i = 0; i < 3; ++i) scale_[i] = number_in(scales[i], lines_[1].number, "the scale");
    }
    for (auto& edge : vectors_.edges) edge = scaled(edge);
    read_.structure.cell = vectors_.cell(read_.notes);
  }

  [[nodiscard]] std::vector<int> counts_at(std::size_t line) const {
    std::vector<int> counts;
    for (const auto& word : words_at(line)) {
      if (!is_number(word)) break;  // a comment may follow
      const double count = number_in(word, lines_[line].number, "a count of atoms");
      if (count < 0 || count != std::floor(count) || count > 1e6) {
        fail_in_line(lines_[line].number, "\"" + word + "\" is not a count of atoms");
      }
      counts.push_back(static_cast<int>(count));
    }
    if (counts.empty()) fail_in_line(lines_[line].number, "counts of atoms are expected");
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
      if (atomic_number(element_name(names[i])) == 0) throw RunFailure("\"" + names[i] + "\" is not an element");
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
    return vectors_.fractional(scaled({v[0], v[1], v[2]}));
  }

  std::vector<NumberedLine> lines_;
  ReadStructure read_;
  std::array<double, 3> scale_{};
  CellVectors vectors_;
};

}  // namespace

Reading read_poscar(std::string_view bytes, const ImportAnswers& answers, Task& task) {
  return PoscarReader(bytes).read(answers, task);
}

}  // namespace zol
