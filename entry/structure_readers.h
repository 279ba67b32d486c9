// Readers of structure files that replace the crystal: crystallographic information files and the text export of ICSD.
//
// Both scan line by line for a handful of words and are no parsers of the formats. What belongs into the boxes of the
// main window goes out line by line, since writing a box sets off its handler; atoms go straight into the state.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/crystal_state.h"
#include "entry/word_lines.h"

namespace zol {

/// A text for one of the boxes of the main window.
struct BoxText {
  enum class Box { a, b, c, alpha, beta, gamma, space_group_number };
  Box box = Box::a;
  std::string text;
  bool operator==(const BoxText&) const = default;
};

/// Crystallographic information files with one tag a line; see docs/user-guide/import.md.
class CifReader {
 public:
  /// @param path  names the file in messages
  CifReader(std::string path, Module1State& state) : words_(std::move(path)), state_(state) {}

  /// @returns texts for boxes, at most one
  /// @throws RunFailure  too many words, too many atoms, or a word that is no number where one is needed
  std::vector<BoxText> take(std::string_view line);
  /// Atom rows so far.
  [[nodiscard]] Integer atoms() const { return atoms_; }

 private:
  void follow_loop();
  void take_atom();

  WordTable words_;
  Module1State& state_;
  Integer atoms_;
  bool in_atom_loop_ = false;
  Integer loop_column_;  ///< lines since the first _atom_site_label, that one included
  Integer label_, element_, x_, y_, z_, occupancy_, b_iso_;  ///< columns, 0 until the tag has been met
};

/// The text form of ICSD entries.
class IcsdReader {
 public:
  IcsdReader(std::string path, Module1State& state) : words_(std::move(path)), state_(state) {}

  /// @returns texts for boxes: the six cell constants, or the space group number
  /// @throws RunFailure  as for CifReader
  std::vector<BoxText> take(std::string_view line);
  [[nodiscard]] Integer atoms() const { return atoms_; }

 private:
  enum class AtomBlock { Outside, WithoutB, WithB };
  void take_atom();

  WordTable words_;
  Module1State& state_;
  Integer atoms_;
  AtomBlock block_ = AtomBlock::Outside;
};

}  // namespace zol
