// Elements in the spellings of structure files.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zol {

/// 1 to 98 for "H" to "Cf", 0 for anything else; the case of the letters counts.
[[nodiscard]] int atomic_number(std::string_view symbol);
[[nodiscard]] std::string_view element_symbol(int atomic_number);
/// Standard atomic weight; of an element without one the mass number of its longest-lived isotope.
/// Source: Prohaska et al., Pure Appl. Chem. 94 (2022) 573, abridged.
[[nodiscard]] double atomic_weight(std::string_view symbol);

/// Atoms by element, as "Al2 O3" or "C6 H12 O6" has them; deuterium counts as hydrogen. Charges and what is no element
/// are left out.
using Formula = std::map<std::string, double>;
[[nodiscard]] Formula parse_formula(std::string_view text);
[[nodiscard]] std::string formula_text(const Formula& formula);

/// What is on a site, or on a part of it.
struct Species {
  std::string element;
  int charge = 0;          ///< in elementary charges
  double share = 1;        ///< of the site
  bool hydrogens = false;  ///< the text means a water molecule or a hydroxyl group, whose hydrogens are not listed
  bool operator==(const Species&) const = default;
};

/// A type symbol ("Fe3+", "Na+", "Si0+", "D", "Wat", "0.75Si + 0.25Al") or a label ("Ca1", "HO3'", "Ow2").
/// @param formula  settles what the letters leave open: CA is Ca or C, Ho is Ho or H; may be empty
/// @returns none where there is no element in it
[[nodiscard]] std::vector<Species> species_of(std::string_view text, bool is_label, const Formula& formula);

/// Key of the table of scattering factors: the ion where there is one, as "Fe3+", otherwise the neutral atom.
[[nodiscard]] std::string species_key(const std::string& element, int charge);

}  // namespace zol
