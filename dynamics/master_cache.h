// Master patterns that were made before, in a folder of the user's cache. Its files are of this program and machine
// alone, so that programs which read no HDF5 have them too: a line that tells what follows, one of all that it was made
// of, the values as they are in memory, a checksum.
#pragma once

#include <cstdint>
#include <string>

#include "dynamics/master_pattern.h"

namespace zol {

class MasterCache {
 public:
  static constexpr std::uint64_t usual_bytes = std::uint64_t{256} << 20U;

  /// @param folder      made when something is kept; empty: nothing is
  /// @param most_bytes  of all files; those used longest ago go first
  explicit MasterCache(std::string folder, std::uint64_t most_bytes = usual_bytes)
      : folder_(std::move(folder)), most_bytes_(most_bytes) {}

  /// By crystal, voltages and settings, threads aside; the same values whether made or read. One that is damaged or
  /// that of something else is made anew; what cannot be kept does no harm.
  /// @throws RunFailure  as master_pattern
  [[nodiscard]] MasterPattern get(const DynamicCrystal& crystal, const MasterSettings& settings, Task& task) const;

 private:
  [[nodiscard]] std::string path_of(const std::string& key) const;
  [[nodiscard]] bool read(const std::string& key, MasterPattern& master) const;
  void keep(const MasterPattern& master, const std::string& key) const;
  void trim(const std::string& newest) const;

  std::string folder_;
  std::uint64_t most_bytes_;
};

}  // namespace zol
