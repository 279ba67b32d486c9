#include "structures/symmetry_choice.h"

#include <algorithm>
#include <cctype>
#include <cmath>

#include "core/number_text.h"
#include "core/run_failure.h"
#include "structures/contents.h"
#include "structures/operator_text.h"
#include "structures/space_group_symbols.h"

namespace zol {
namespace {

/// How well a reading agrees with what else is known: formula and Z, density, and no atoms in each other's place.
struct Evidence {
  bool formula_fits = false;  ///< a whole number of formulas, Z of them where Z is told
  bool atoms_apart = true;
  double density = 0;  ///< grams per cubic centimetre
  std::optional<ShortestDistance> shortest = {};

  [[nodiscard]] int points() const { return (formula_fits ? 2 : 0) + (atoms_apart ? 1 : 0); }
};

Evidence evidence_for(const ReadStructure& read, const Operators& operators, Task& task) {
  ReadStructure tried = read;
  tried.structure.operators = operators;
  (void)settle_positions(tried.structure, task);
  const Formula contents = cell_contents(tried.structure, task);
  Evidence evidence;
  evidence.density = density(contents, tried.structure.cell);
  if (const auto units = formula_units(contents, read.formula)) {
    evidence.formula_fits = read.units ? std::abs(*units - *read.units) < 0.05 * *read.units
                                       : std::abs(*units - std::round(*units)) < 0.05 && *units > 0.9;
  } else if (read.formula.empty() && read.file_density) {
    evidence.formula_fits = std::abs(evidence.density - *read.file_density) < 0.05 * *read.file_density;
  }
  constexpr double closest = 0.9;
  evidence.shortest = shortest_distance(tried.structure, false, task);
  evidence.atoms_apart = !evidence.shortest || evidence.shortest->angstrom > closest;
  return evidence;
}

/// What a user tells a right origin from a wrong one by.
std::string told(const std::string& origin, const Evidence& evidence) {
  std::string text = "Origin " + origin + ": " + Format(evidence.density, "0.000") + " g/cm3";
  if (const auto& nearest = evidence.shortest) {
    text += "; ";
    text += "shortest distance: " + nearest->first + " - " + nearest->second + " " +
            Format(nearest->angstrom, "0.000") + " angstroms";
  }
  return text + '\n';
}

struct Candidate {
  int number = 0;
  std::string symbol;
  Operators operators;
};

class Choice {
 public:
  Choice(ReadStructure& read, const SymmetryClaims& claims, const ImportAnswers& answers, Task& task)
      : read_(read), claims_(claims), answers_(answers), task_(task) {}

  std::optional<Question> choose() {
    named_ = named_groups();
    Operators listed = listed_operators();
    if (listed.empty()) return choose_named();
    const bool identity_alone = listed.size() == 1;
    const bool more_is_claimed = !named_.empty() && named_.front().operators.size() > 1;
    if (identity_alone && more_is_claimed) return choose_against_identity(listed);
    tell_contradiction(listed);
    take({claims_.number, claims_.symbol, std::move(listed)});
    return std::nullopt;
  }

 private:
  void take(const Candidate& candidate) {
    Structure& structure = read_.structure;
    structure.operators = candidate.operators;
    structure.space_group_number = candidate.number;
    structure.space_group_symbol = candidate.symbol;
  }

  /// What the Hall symbol, else the Hermann-Mauguin symbol, else the number means.
  std::vector<Candidate> named_groups() {
    const CellConstants& cell = read_.structure.cell;
    std::vector<Candidate> found;
    if (!claims_.hall.empty()) {
      try {
        std::string hall = claims_.hall;
        std::replace(hall.begin(), hall.end(), '_', ' ');
        found.push_back({claims_.number, claims_.symbol, hall_group(hall)});
        return found;
      } catch (const RunFailure& failure) {
        read_.notes.assume(failure.message());
      }
    }
    if (!claims_.symbol.empty()) {
      for (auto& group : groups_of_symbol(claims_.symbol, cell)) {
        found.push_back({group.number, group.symbol, std::move(group.operators)});
      }
      if (found.empty()) read_.notes.doubt("the space group symbol \"" + claims_.symbol + "\" is not known");
    }
    if (!found.empty() && claims_.number > 0 && found.front().number != claims_.number) {
      read_.notes.doubt("the symbol " + claims_.symbol + " has number " + std::to_string(found.front().number) +
                        ", the file says " + std::to_string(claims_.number) + "; the symbol counts");
    }
    if (found.empty() && claims_.number >= 1 && claims_.number <= 230) {
      for (auto& group : groups_of_number(claims_.number, cell)) {
        found.push_back({group.number, group.symbol, std::move(group.operators)});
      }
    }
    return found;
  }

  Operators parsed(const std::vector<std::string>& texts) {
    Operators operators;
    for (const auto& text : texts) {
      try {
        operators.push_back(parse_operator(text));
      } catch (const RunFailure& failure) {
        read_.notes.doubt(failure.message() + "; it is left out");
      }
    }
    return operators;
  }

  /// The operators of the file as a group, sorted; none where there are none that can be used.
  Operators listed_operators() {
    Operators operators = parsed(claims_.operators);
    const Operators centrings = parsed(claims_.centrings);
    if (!centrings.empty()) {
      Operators products;
      for (const auto& centring : centrings) {
        for (const auto& op : operators) products.push_back(centring * op);
      }
      operators = std::move(products);
    }
    if (operators.empty()) return {};
    std::sort(operators.begin(), operators.end());
    operators.erase(std::unique(operators.begin(), operators.end()), operators.end());
    if (is_group(operators)) return operators;
    return mended_group(operators);
  }

  Operators mended_group(const Operators& operators) {
    constexpr std::size_t most = 192;  // of any setting in use
    Operators closed;
    try {
      closed = generated_group(operators);
    } catch (const RunFailure&) {
      closed.clear();
    }
    const bool usable = !closed.empty() && closed.size() <= most;
    if (!named_.empty() && (!usable || closed != named_.front().operators)) {
      read_.notes.doubt("the symmetry operators do not form a group; those of " + named_.front().symbol + " are taken");
      return {};
    }
    if (!usable) {
      read_.notes.doubt("the symmetry operators do not form a group and are left out");
      return {};
    }
    read_.notes.doubt("the " + std::to_string(operators.size()) + " symmetry operators do not form a group; the " +
                      std::to_string(closed.size()) + " that they make are taken");
    return closed;
  }

  void tell_contradiction(const Operators& listed) {
    if (named_.empty()) return;
    const auto same = [&listed](const Candidate& c) { return c.operators == listed; };
    if (std::any_of(named_.begin(), named_.end(), same)) return;
    const auto order = [](const Operators& group) { return group.size() / centring_translations(group).size(); };
    const auto& named = named_.front();
    if (order(named.operators) != order(listed)) {
      read_.notes.doubt("the " + std::to_string(listed.size()) + " symmetry operators do not belong to " +
                        named.symbol + ", which has " + std::to_string(named.operators.size()) +
                        "; the operators count");
    }
  }

  /// "1" or "2" of the answers; 0 before the question has been asked.
  [[nodiscard]] int answer(const std::string& key) const {
    const auto given = answers_.find(key);
    if (given == answers_.end()) return 0;
    if (given->second == "1" || given->second == "2") return given->second.front() - '0';
    throw RunFailure("1 or 2 is expected as an answer, not \"" + given->second + "\"");
  }

  std::optional<Question> choose_named() {
    if (named_.empty()) {
      if (claims_.symbol.empty() && claims_.number == 0) {
        read_.notes.doubt("the file gives no symmetry; the atoms are taken as they are listed");
      } else {
        read_.notes.doubt("without symmetry operators the atoms are taken as they are listed");
      }
      take({1, "P 1", {ExactOperator{}}});
      return std::nullopt;
    }
    if (named_.size() == 1) {
      take(named_.front());
      read_.notes.assume("no symmetry operators in the file; those of " + named_.front().symbol + " are taken");
      return std::nullopt;
    }
    const int origin = answer("origin");
    if (origin == 0) return origin_question();
    take(named_[static_cast<std::size_t>(origin - 1)]);
    read_.notes.assume("origin " + std::to_string(origin) + " of " + named_.front().symbol + " is taken");
    return std::nullopt;
  }

  Question origin_question() {
    const std::string& symbol = named_.front().symbol;
    const Evidence first = evidence_for(read_, named_[0].operators, task_);
    const Evidence second = evidence_for(read_, named_[1].operators, task_);
    std::string text = symbol + " has two origins, and the file gives neither origin nor operators.\n" +
                       "1: origin choice 1\n2: origin choice 2, on a centre of inversion\n";
    text += told("1", first);
    text += told("2", second);
    if (first.points() != second.points()) {
      text += std::string("Proposed is ") + (first.points() > second.points() ? "1" : "2") +
              ", which fits formula and distances.\n";
    } else {
      text += "Formula and distances speak for neither.\n";
    }
    text += "The file itself can tell it: " + symbol + " :1 or " + symbol + " :2.";
    return {"origin", text};
  }

  /// The identity alone beside a symbol that says more: a list of all atoms, or a list of operators cut short.
  std::optional<Question> choose_against_identity(const Operators& identity) {
    const auto all_listed = evidence_for(read_, identity, task_);
    std::vector<Evidence> by_symbol;
    for (const auto& candidate : named_) by_symbol.push_back(evidence_for(read_, candidate.operators, task_));
    const bool symbol_fits =
        std::any_of(by_symbol.begin(), by_symbol.end(), [](const Evidence& e) { return e.formula_fits; });
    int decision = 0;
    if (all_listed.formula_fits != symbol_fits) {
      decision = symbol_fits ? 1 : 2;
    } else {
      decision = answer("symmetry");
      if (decision == 0) return identity_question();
    }
    if (decision == 2) {
      read_.notes.doubt("the only symmetry operator is the identity, although the file says " + named_.front().symbol +
                        "; the atoms are taken as they are listed");
      take({1, "P 1", identity});
      return std::nullopt;
    }
    read_.notes.doubt("the only symmetry operator is the identity; those of " + named_.front().symbol + " are taken");
    return choose_named();
  }

  [[nodiscard]] Question identity_question() const {
    return {"symmetry", "The only symmetry operator of the file is the identity, but its space group is " +
                            named_.front().symbol + ".\n1: the atoms are those of the asymmetric unit\n" +
                            "2: all atoms of the cell are listed"};
  }

  ReadStructure& read_;
  const SymmetryClaims& claims_;
  const ImportAnswers& answers_;
  Task& task_;
  std::vector<Candidate> named_;
};

}  // namespace

std::optional<Question> choose_symmetry(ReadStructure& read, const SymmetryClaims& claims, const ImportAnswers& answers,
                                        Task& task) {
  return Choice(read, claims, answers, task).choose();
}

}  // namespace zol
