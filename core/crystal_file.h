// The file of one crystal: cell, space group number, axis setting, then the atom sites or the observed reflections.
// The unit cell and the reflection list are not stored; they are rebuilt at load.
#pragma once

#include <string>
#include <utility>

#include "core/crystal_state.h"
#include "core/record_reader.h"

namespace zol {

/// Reads a crystal file in its two steps; between them the window shows the cell and looks up the space group.
class CrystalFileReader {
 public:
  /// @throws RunFailure  the file is missing or cannot be read
  explicit CrystalFileReader(const std::string& path) : file_(path) {}
  /// Reads from a text in memory; the path only names it in messages.
  CrystalFileReader(std::string path, std::string text) : file_(std::move(path), std::move(text)) {}

  /// Line 1: cell constants, lattice letter, space group number, axis setting.
  /// @throws RunFailure  a field is missing or not a number
  void read_cell(Main1State& state);

  /// The atoms (NAtom > 0) or the observed reflections (NAtom = 0). NAtom is -1 when the file ends after line 1.
  /// An older layout has a marker below -1 first, and the count as the last of four further numbers.
  /// @returns false when the file ended after line 1
  /// @throws RunFailure  a field is missing or not a number, or there are more rows than the arrays hold
  bool read_contents(Module1State& state);

 private:
  RecordReader file_;
};

/// Writes the crystal; the observed reflections are stored only when there are no atoms.
/// @throws RunFailure  the file cannot be written
void write_crystal_file(const std::string& path, const CrystalState& state);
/// What that file would hold.
[[nodiscard]] std::string crystal_file_text(const CrystalState& state);

}  // namespace zol
