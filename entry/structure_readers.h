// Readers of structure files that replace the crystal: crystallographic information files and the text export of ICSD.
//
// Both scan line by line for a few words and do not parse the whole format. What they find is returned line by line,
// since writing a box runs its handler.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "entry/atom_site.h"
#include "entry/word_lines.h"

namespace zol {

/// A text for one of the boxes of the main window.
struct BoxText {
  enum class Box { a, b, c, alpha, beta, gamma, space_group_number };
  Box box = Box::a;
  std::string text;
  bool operator==(const BoxText&) const = default;
};

/// What was found in a line.
struct LineContents {
  std::optional<AtomSite> site;
  std::vector<BoxText> texts;  ///< for the boxes, after the site
};

/// Crystallographic information files with one tag per line; see docs/user-guide/import.md.
class CifReader {
 public:
  /// @param path  names the file in messages
  explicit CifReader(std::string path) : words_(std::move(path)) {}

  /// @returns at most one text
  /// @throws RunFailure  too many words, or a word that is not a number where one is needed
  [[nodiscard]] LineContents take(std::string_view line);

 private:
  void follow_loop();
  AtomSite take_atom();

  WordTable words_;
  bool in_atom_loop_ = false;
  Integer loop_column_;  ///< lines since the first _atom_site_label, that one included
  Integer label_, element_, x_, y_, z_, occupancy_, b_iso_;  ///< columns, 0 until the tag has been met
};

/// The text form of ICSD entries.
class IcsdReader {
 public:
  explicit IcsdReader(std::string path) : words_(std::move(path)) {}

  /// @returns the six cell constants, or the space group number, or a site
  /// @throws RunFailure  as for CifReader
  [[nodiscard]] LineContents take(std::string_view line);

 private:
  enum class AtomBlock { Outside, WithoutB, WithB };
  AtomSite take_atom();

  WordTable words_;
  AtomBlock block_ = AtomBlock::Outside;
};

}  // namespace zol
