// Reading of HDF5 files by paths of names. Names may carry blanks at their ends, as those of some makers do.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zol {

/// What holds a handle of the library.
class Hdf5Handle {
 public:
  using Close = int (*)(std::int64_t);
  Hdf5Handle(std::int64_t id, Close close) : id_(id), close_(close) {}
  Hdf5Handle(Hdf5Handle&& other) noexcept : id_(other.id_), close_(other.close_) { other.id_ = -1; }
  Hdf5Handle(const Hdf5Handle&) = delete;
  Hdf5Handle& operator=(const Hdf5Handle&) = delete;
  ~Hdf5Handle() {
    if (id_ >= 0) (void)close_(id_);
  }
  [[nodiscard]] std::int64_t id() const { return id_; }
  explicit operator bool() const { return id_ >= 0; }

 private:
  std::int64_t id_;
  Close close_;
};

/// An open file. Paths are as "Scan 1/EBSD/Header/n_rows"; what cannot be read is none.
class Hdf5File {
 public:
  /// @throws RunFailure  it is no HDF5 file, or cannot be opened
  explicit Hdf5File(const std::string& path);

  [[nodiscard]] const std::string& path() const { return path_; }
  [[nodiscard]] bool holds(const std::string& place) const { return !real_path(place).empty(); }
  /// Names of what stands in a group, in the order of their names, blanks at the ends taken off.
  [[nodiscard]] std::vector<std::string> names(const std::string& group) const;
  /// Sides of an array; empty where it is none or a single value.
  [[nodiscard]] std::vector<std::uint64_t> sides(const std::string& dataset) const;
  /// Bits of one number of an array, 0 where it holds none.
  [[nodiscard]] int bits(const std::string& dataset) const;
  [[nodiscard]] bool holds_whole_numbers(const std::string& dataset) const;
  /// All of an array of numbers; empty where there is none, or more than most_numbers.
  [[nodiscard]] std::vector<double> numbers(const std::string& dataset) const;
  /// The first of them.
  [[nodiscard]] std::optional<double> number(const std::string& dataset) const;
  [[nodiscard]] std::string text(const std::string& dataset) const;
  /// Entries of the first side, as grey values. @returns false where they cannot be read
  [[nodiscard]] bool read_entries(const std::string& dataset, std::uint64_t first, std::uint64_t count,
                                  std::span<float> values) const;

 private:
  /// With the blanks that the file has; empty where there is no such thing.
  [[nodiscard]] std::string real_path(const std::string& place) const;
  [[nodiscard]] Hdf5Handle open_dataset(const std::string& dataset) const;

  std::string path_;
  Hdf5Handle file_;
};

}  // namespace zol
