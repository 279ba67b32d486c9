// What is searched for in a library of crystals.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "structures/library_entry.h"

namespace zol {

/// Words parted by blanks, all of which have to hold; a word in quotes may hold blanks. The case of letters counts in
/// elements and formulas alone.
///
/// | word | finds |
/// |---|---|
/// | quartz | what has it in its name or title, in its folders, or as its formula, group or crystal system |
/// | +Si, -Al | with, without an element |
/// | SiO2 | this formula, or a multiple of it |
/// | 225, Fm-3m, cubic | the space group, the crystal system; also as group=225 |
/// | a=5.43, V=160, alpha=91.2 | edges within 1 %, volume and density within 3 %, angles within 1 degree |
/// | a=5.43~0.01 | within 0.01 |
/// | a=5.4..5.5, a>5, a<6 | from one value to the other, above, below |
///
/// The quantities are a, b, c, alpha, beta, gamma, V and density.
class LibraryQuery {
 public:
  /// @throws RunFailure  a word with a quantity that is none of these, or without the number; the message names the
  /// word
  explicit LibraryQuery(std::string_view text);

  [[nodiscard]] bool finds(const LibraryEntry& entry) const;

 private:
  using Condition = std::function<bool(const LibraryEntry&)>;
  [[nodiscard]] static Condition condition_of(std::string_view word);

  std::vector<Condition> conditions_;
};

}  // namespace zol
