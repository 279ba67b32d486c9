// Numbers and blocks at places of a binary file, little-endian.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <type_traits>

namespace zol {

static_assert(std::endian::native == std::endian::little, "the files are little-endian");

/// A file open for reading.
class BinaryFile {
 public:
  /// @throws RunFailure  it cannot be opened, or is no regular file
  explicit BinaryFile(std::string path);
  BinaryFile(const BinaryFile&) = delete;
  BinaryFile& operator=(const BinaryFile&) = delete;
  ~BinaryFile();

  [[nodiscard]] const std::string& path() const { return path_; }
  [[nodiscard]] std::uint64_t size() const { return size_; }
  /// @returns false where the file ends before
  [[nodiscard]] bool read(std::uint64_t offset, std::span<std::byte> bytes) const;

  /// The number at a place. @throws RunFailure  the file ends before; the message names the place and what stands there
  template <class Number>
  [[nodiscard]] Number number(std::uint64_t offset, const char* what) const {
    static_assert(std::is_arithmetic_v<Number>);
    std::array<std::byte, sizeof(Number)> bytes{};
    if (!read(offset, bytes)) fail_end(offset, what);
    Number value{};
    std::memcpy(&value, bytes.data(), sizeof value);
    return value;
  }

 private:
  [[noreturn]] void fail_end(std::uint64_t offset, const char* what) const;
  std::string path_;
  int descriptor_ = -1;
  std::uint64_t size_ = 0;
};

/// Pixels of 1, 2 or 4 bytes, unsigned, as grey values.
void widen_pixels(std::span<const std::byte> bytes, int bytes_of_each, std::span<float> values);

}  // namespace zol
