// Scans whose patterns stand as plain bytes, each at a place of its own in one file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "scans/binary_file.h"
#include "scans/scan.h"

namespace zol {

class RawScan : public Scan {
 public:
  void read(std::size_t first, std::size_t count, PatternBlock& block) override {
    block.begin(first, count, header_.pixels());
    bytes_read_.resize(header_.pixels() * static_cast<std::size_t>(header_.bits / 8));
    for (std::size_t i = 0; i < count; ++i) {
      const auto place = place_of_pixels(first + i);
      if (!place || !file_.read(*place, bytes_read_)) continue;
      widen_pixels(bytes_read_, header_.bits / 8, block.pattern(i));
      block.present[i] = 1;
    }
  }

 protected:
  explicit RawScan(std::string path) : file_(std::move(path)) {}

  BinaryFile file_;

 private:
  /// The byte at which the pixels of a point begin; none where it has no pattern, or a damaged one.
  [[nodiscard]] virtual std::optional<std::uint64_t> place_of_pixels(std::size_t point) const = 0;

  std::vector<std::byte> bytes_read_;
};

}  // namespace zol
