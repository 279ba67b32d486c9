// Writing of HDF5 files. Groups on the way to an array are made.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "hdf5/hdf5_file.h"

namespace zol {

/// Makes the file in memory: the library ends the process where a disk fails it. The first failure is remembered, what
/// follows it does nothing.
class Hdf5Writer {
 public:
  Hdf5Writer();
  /// The bytes of the file; none where something failed.
  [[nodiscard]] std::optional<std::string> bytes();

  template <class Value>
  void array(const std::string& place, const std::vector<Value>& values) {
    put(place, type_of<Value>(), {values.size()}, values.data());
  }
  /// @param sides  of the array, their product is the number of values
  template <class Value>
  void array(const std::string& place, const std::vector<std::uint64_t>& sides, const std::vector<Value>& values) {
    put(place, type_of<Value>(), sides, values.data());
  }
  template <class Value>
  void single(const std::string& place, Value value) {
    put(place, type_of<Value>(), {1}, &value);
  }
  void text(const std::string& place, const std::string& value);

 private:
  enum class Type { f32, f64, i8, u8, i32 };
  template <class Value>
  static Type type_of() {
    if constexpr (std::is_same_v<Value, float>) return Type::f32;
    if constexpr (std::is_same_v<Value, double>) return Type::f64;
    if constexpr (std::is_same_v<Value, std::int8_t>) return Type::i8;
    if constexpr (std::is_same_v<Value, std::uint8_t>) return Type::u8;
    return Type::i32;
  }
  void put(const std::string& place, Type type, const std::vector<std::uint64_t>& sides, const void* values);
  void put_as(const std::string& place, std::int64_t type, const std::vector<std::uint64_t>& sides, const void* values);

  Hdf5Handle file_, links_;
  bool good_ = false;
};

/// The file appears as a whole or not at all.
/// @throws RunFailure  it cannot be written
void write_hdf5(const std::string& path, const std::function<void(Hdf5Writer&)>& write);

}  // namespace zol
