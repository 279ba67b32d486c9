// Scripts of a user gone wild: random operations on every control of every window, the same for the same seed
// everywhere.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace zol::fuzz {

class StormMaker {
 public:
  /// Looks up the windows, their controls and operations.
  StormMaker();
  StormMaker(const StormMaker&) = delete;
  StormMaker& operator=(const StormMaker&) = delete;
  ~StormMaker();

  [[nodiscard]] std::string script(std::uint64_t seed) const;

 private:
  class Storm;
  struct Catalogue;
  std::unique_ptr<const Catalogue> catalogue_;
};

}  // namespace zol::fuzz
