#include "reflections/equivalents.h"

#include <array>
#include <cmath>
#include <span>

namespace zol {
namespace {

/// One place of a row: which of h, k, l, i, and its sign; 0 stands for both signs.
struct Term {
  char index = 'h';
  int sign = 1;
};

/// Equivalent indices as the tables of point groups write them, i = h + k (with the sign of -i as in hkil). "+-h"
/// stands for both signs of h, so that one row of three such gives eight triples.
struct Row {
  // NOLINTNEXTLINE(google-explicit-constructor,hicpp-explicit-conversions): the tables are lists of texts
  consteval Row(const char* text) {
    std::size_t place = 0;
    for (; *text != '\0'; ++text) {
      if (*text == ' ') {
        ++place;
      } else if (*text == '-') {
        terms.at(place).sign = terms.at(place).sign == 0 ? 0 : -1;  // the second half of "+-"
      } else if (*text == '+') {
        terms.at(place).sign = 0;
      } else {
        terms.at(place).index = *text;
      }
    }
  }
  std::array<Term, 3> terms;
};

constexpr Row rows_t[] = {"h k l", "-h -k -l"};
constexpr Row rows_m[] = {"h k l", "-h -k -l", "h -k l", "-h k -l"};
constexpr Row rows_o[] = {"+-h +-k +-l"};
constexpr Row rows_q[] = {"h k l", "-h -k l", "-k h l", "k -h l", "-h -k -l", "h k -l", "k -h -l", "-k h -l"};
constexpr Row rows_r[] = {"+-h +-k +-l", "+-k +-h +-l"};
constexpr Row rows_s[] = {"h k l", "-h -k -l", "k -i l", "-k i -l", "-i h l", "i -h -l"};
constexpr Row rows_u[] = {"h k l",  "-h -k -l", "k -i l",  "-k i -l", "-i h l",  "i -h -l",
                          "k h -l", "-k -h l",  "-i k -l", "i -k l",  "h -i -l", "-h i l"};
constexpr Row rows_w[] = {"h k l",  "-h -k -l", "k -i l",  "-k i -l", "-i h l",  "i -h -l",
                          "h k -l", "-h -k l",  "k -i -l", "-k i l",  "-i h -l", "i -h l"};
constexpr Row rows_x[] = {"h k l",   "-h -k -l", "k -i l",  "-k i -l", "-i h l",  "i -h -l",  "h k -l",  "-h -k l",
                          "k -i -l", "-k i l",   "-i h -l", "i -h l",  "k h l",   "-k -h -l", "-i k l",  "i -k -l",
                          "h -i l",  "-h i -l",  "k h -l",  "-k -h l", "-i k -l", "i -k l",   "h -i -l", "-h i l"};
constexpr Row rows_y[] = {"+-h +-k +-l", "+-k +-l +-h", "+-l +-h +-k"};
constexpr Row rows_z[] = {"+-h +-k +-l", "+-k +-l +-h", "+-l +-h +-k", "+-l +-k +-h", "+-h +-l +-k", "+-k +-h +-l"};

/// A factor that a row of observed indices earns.
struct Weight {
  bool (*applies)(const SingleTriple& hkl);
  int factor;
};

constexpr auto h_zero = [](const SingleTriple& r) { return r[0] == 0; };
constexpr auto k_zero = [](const SingleTriple& r) { return r[1] == 0; };
constexpr auto l_zero = [](const SingleTriple& r) { return r[2] == 0; };
constexpr auto h_zero_k_not = [](const SingleTriple& r) { return r[0] == 0 && round_half_even(r[1]) != 0.0; };
constexpr auto h_k_zero = [](const SingleTriple& r) { return r[0] == 0 && r[1] == 0; };
constexpr auto h_k_same = [](const SingleTriple& r) { return std::abs(r[0]) == std::abs(r[1]); };
constexpr auto k_l_same = [](const SingleTriple& r) { return std::abs(r[1]) == std::abs(r[2]); };
constexpr auto l_h_same = [](const SingleTriple& r) { return std::abs(r[2]) == std::abs(r[0]); };
constexpr auto all_same = [](const SingleTriple& r) { return h_k_same(r) && k_l_same(r); };

constexpr Weight weights_monoclinic[] = {{k_zero, 2}};
constexpr Weight weights_orthorhombic[] = {{h_zero, 2}, {k_zero, 2}, {l_zero, 2}};
constexpr Weight weights_tetragonal_low[] = {{h_zero_k_not, 4}, {l_zero, 2}};
constexpr Weight weights_tetragonal_high[] = {{h_zero, 2}, {k_zero, 2}, {l_zero, 2}, {h_k_same, 2}};
constexpr Weight weights_trigonal_low[] = {{h_k_zero, 3}};
constexpr Weight weights_trigonal_high[] = {{h_k_zero, 6}};
constexpr Weight weights_hexagonal[] = {{h_k_zero, 6}, {l_zero, 2}};
constexpr Weight weights_cubic_low[] = {{h_zero, 2}, {k_zero, 2}, {l_zero, 2}, {all_same, 3}};
constexpr Weight weights_cubic_high[] = {{h_zero, 2},   {k_zero, 2},   {l_zero, 2},
                                         {h_k_same, 2}, {k_l_same, 2}, {l_h_same, 2}};

/// One Laue class: the space group numbers up to `last`, the weights, the equivalents.
/// The weights are no full multiplicity rule; tables of observed reflections made with the program rely on them.
struct LaueClass {
  int last;
  std::span<const Weight> weights;
  std::span<const Row> equivalents;
};

constexpr LaueClass laue_classes[] = {
    {2, {}, rows_t},                         // triclinic, -1
    {15, weights_monoclinic, rows_m},        // monoclinic, 2/m, unique axis b
    {74, weights_orthorhombic, rows_o},      // orthorhombic, mmm
    {88, weights_tetragonal_low, rows_q},    // tetragonal, 4/m
    {142, weights_tetragonal_high, rows_r},  // tetragonal, 4/mmm
    {148, weights_trigonal_low, rows_s},     // trigonal, -3
    {167, weights_trigonal_high, rows_u},    // trigonal, -3m
    {176, weights_hexagonal, rows_w},        // hexagonal, 6/m
    {194, weights_hexagonal, rows_x},        // hexagonal, 6/mmm
    {206, weights_cubic_low, rows_y},        // cubic, m-3
    {230, weights_cubic_high, rows_z},       // cubic, m-3m
};

const LaueClass* find_class(Integer space_group_number) {
  if (space_group_number < 1) return nullptr;
  for (const auto& entry : laue_classes) {
    if (space_group_number <= entry.last) return &entry;
  }
  return nullptr;
}

Single term_value(const Term& term, const SingleTriple& hkl) {
  switch (term.index) {
    case 'h':
      return hkl[0];
    case 'k':
      return hkl[1];
    case 'l':
      return hkl[2];
    default:
      return to_single(double{hkl[0]} + double{hkl[1]});
  }
}

void add_row(const Row& row, const SingleTriple& hkl, std::vector<SingleTriple>& triples) {
  const auto& terms = row.terms;
  const auto signs = [](const Term& term) {
    return term.sign == 0 ? std::vector<Single>{1, -1} : std::vector<Single>{static_cast<Single>(term.sign)};
  };
  for (const Single h : signs(terms[0])) {
    for (const Single k : signs(terms[1])) {
      for (const Single l : signs(terms[2])) {
        triples.push_back(
            {h * term_value(terms[0], hkl), k * term_value(terms[1], hkl), l * term_value(terms[2], hkl)});
      }
    }
  }
}

long long key(int h, int k, int l) { return (static_cast<long long>(h) << 40) + (static_cast<long long>(k) << 20) + l; }

bool is_index(Single x) { return x == std::trunc(x) && std::abs(x) <= 32768; }

}  // namespace

std::vector<SingleTriple> equivalent_indices(Integer space_group_number, const SingleTriple& hkl) {
  std::vector<SingleTriple> triples;
  if (const LaueClass* laue = find_class(space_group_number)) {
    for (const auto& row : laue->equivalents) add_row(row, hkl, triples);
  }
  return triples;
}

int form_weight(Integer space_group_number, const SingleTriple& hkl) {
  int factor = 1;
  if (const LaueClass* laue = find_class(space_group_number)) {
    for (const auto& weight : laue->weights) {
      if (weight.applies(hkl)) factor *= weight.factor;
    }
  }
  return factor;
}

ObservedReflections::ObservedReflections(const CrystalState& state) {
  for (int row = 1; row <= state.JcpdsCount.value(); ++row) {
    const SingleTriple hkl{state.JcpdsH(row), state.JcpdsK(row), state.JcpdsL(row)};
    const Single value = to_single(double{state.JcpdsI(row)} * form_weight(state.SGNumber, hkl));
    for (const auto& [h, k, l] : equivalent_indices(state.SGNumber, hkl)) {
      if (!is_index(h) || !is_index(k) || !is_index(l)) continue;  // no reflection of the list has such indices
      values_[key(static_cast<int>(h), static_cast<int>(k), static_cast<int>(l))] = value;
    }
  }
}

std::optional<Single> ObservedReflections::JcpdsFactor(Integer h, Integer k, Integer l) const {
  const auto found = values_.find(key(h.value(), k.value(), l.value()));
  return found == values_.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace zol
