// Writing of HDF5 files. Groups on the way to an array are made.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <type_traits>
#include <vector>

#include "hdf5/hdf5_file.h"

namespace zol {

/// The first failure is remembered, what follows it does nothing.
class Hdf5Writer {
 public:
  explicit Hdf5Writer(const std::string& path);
  [[nodiscard]] bool good() const { return good_; }
  [[nodiscard]] bool flush();

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

/// Writes a file beside its place and gives it that place when it is complete.
/// @throws RunFailure  it cannot be written
void write_hdf5(const std::string& path, const std::function<void(Hdf5Writer&)>& write);

}  // namespace zol
