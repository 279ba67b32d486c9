// What a library of crystals knows of one file, enough to search it without opening the file again.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "structures/elements.h"
#include "structures/structure_reading.h"

namespace zol {

struct LibraryEntry {
  std::string path;             ///< below the folder of the library, parted by "/"
  std::int64_t changed_ns = 0;  ///< time of the last change, in the clock of the file system
  std::int64_t bytes = 0;
  bool read = false;       ///< what follows is known
  std::string fault = {};  ///< why it holds no crystal; the rest is empty then
  std::string title = {};  ///< as the file tells it
  Formula formula = {};    ///< of the smallest unit that the contents of the cell are a multiple of
  CellConstants cell = {};
  double volume = 0;   ///< cubic angstroms
  double density = 0;  ///< grams per cubic centimetre; 0 without atoms
  int group = 0;       ///< 1 to 230; 0 where it is not known
  std::string symbol = {};
  bool operator==(const LibraryEntry&) const = default;

  /// The name of the file without its folders.
  [[nodiscard]] std::string_view name() const { return std::string_view(path).substr(path.rfind('/') + 1); }
};

/// Whether the name is that of a file that may hold a crystal.
[[nodiscard]] bool is_crystal_name(std::string_view name);

/// Reads files for a library; keeps what is known of groups from one file to the next.
class EntryReader {
 public:
  explicit EntryReader(const SpaceGroupLibrary& groups) : groups_(groups) {}

  /// Fills in what the bytes of a file hold. Where a file leaves something open, the first answer is taken, as of
  /// several crystals the first. A crystal file without atoms has a cell and a group alone. What cannot be read is told
  /// as fault.
  /// @param entry  with its path
  /// @throws Cancelled  the task stops
  void read(LibraryEntry& entry, std::string_view bytes, Task& task);

 private:
  struct Name {
    int number = 0;
    std::string symbol;
  };
  const Name& name_of(const Structure& structure, Task& task);
  void take_structure(LibraryEntry& entry, const ReadStructure& read, Task& task);
  void take_cell_alone(LibraryEntry& entry, std::string_view bytes, Task& task);

  const SpaceGroupLibrary& groups_;
  std::map<Operators, Name> names_;  ///< by the operators, sorted
};

/// A formula unit: the counts divided by what the whole ones have in common, "Al4 Na4 O32 Si12" is "Na Al Si3 O8".
[[nodiscard]] Formula reduced_formula(const Formula& contents);

/// Metals by their letters, then the others in the order of the nomenclature; compounds of carbon and hydrogen begin
/// with these. As "Na Al Si3 O8". Source: IUPAC, Nomenclature of Inorganic Chemistry (1990) I-4.6.
[[nodiscard]] std::string library_formula(const Formula& formula);

/// The crystal system of a space group, "cubic"; empty for no number from 1 to 230.
[[nodiscard]] std::string_view crystal_system(int group);

}  // namespace zol
