// Fields of a window or of the crystal state under their names: read as text, copied out and put back.
#pragma once

#include <any>
#include <concepts>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/bounded_array.h"
#include "core/number_text.h"
#include "core/state_fields.h"
#include "shell/services/latin1.h"
#include "shell/services/stored.h"

namespace zol {

/// Plain text of a value in UTF-8, as a view or a script shows it.
[[nodiscard]] inline std::string shown_text(const String& value) { return utf8_of_latin1(value); }
/// A row of a scattering factor table as its record stands in the file.
[[nodiscard]] std::string shown_text(const AsfRow& row);
template <class Number>
[[nodiscard]] std::string shown_text(Number value) {
  return plain_text(value);
}

/// A copy of a value that may change. Copies taken one after the other share what has not changed between them.
struct KeptValue {
  std::any value;
  const ValueKind* kind;
};
using SharedCopy = std::shared_ptr<const KeptValue>;

/// A copy of a value, or the earlier one where it is the same.
template <class Value>
[[nodiscard]] SharedCopy shared_copy(const Value& value, const SharedCopy& before) {
  static_assert(std::equality_comparable<Value>, "what is kept has to tell whether it has changed");
  constexpr bool numbered = requires { value.content().give_new(); };  // large: found the same without a look
  const auto* known = before ? std::any_cast<Value>(&before->value) : nullptr;
  if (known != nullptr && *known == value) {
    if constexpr (numbered) value.content().take_from(known->content());
    return before;
  }
  if constexpr (numbered) value.content().give_new();
  return std::make_shared<const KeptValue>(KeptValue{value, &value_kind<Value>});
}

/// Fields and arrays under their names. The values are looked at when asked; they outlive this.
class NamedValues {
 public:
  template <class Value>
  void add(const std::string& name, Value& value) {
    add(name, 0, value, [&value](Indices) { return shown_text(value); });
  }
  template <class Value>
  void add(const std::string& name, BoundedArray<Value>& array) {
    add(name, 1, array, [&array](Indices index) { return shown_text(std::as_const(array)(index[0])); });
  }
  template <class Value>
  void add(const std::string& name, BoundedTable<Value>& table) {
    add(name, 2, table, [&table](Indices index) { return shown_text(std::as_const(table)(index[0], index[1])); });
  }
  /// A name of a file is shown as it stands.
  void add_file_name(const std::string& name, String& path) {
    add(name, 0, path, [&path](Indices) { return path; });
  }
  /// All fields of a part of the crystal state.
  template <class State>
  void add_fields(State& state) {
    for_each_field(state, [this](const FieldName& name, auto& field) {
      if constexpr (std::is_same_v<decltype(field), String&>) {
        if (name.of_file) return add_file_name(name.text, field);
      }
      add(name.text, field);
    });
  }
  /// A value that is put together when asked. It cannot be put back: what it comes from is kept beside it.
  void add_computed(const std::string& name, int dimensions, std::function<std::string(std::span<const int>)> text) {
    printed_[name] = {dimensions, std::move(text)};
  }
  /// A value that is copied and put back but has no text. A file keeps it too: see stored.h.
  template <class Value>
  void keep(const std::string& name, Value& value) {
    static_assert(std::is_copy_assignable_v<Value>);
    kept_[name] = {[&value](const SharedCopy& before) { return shared_copy(value, before); },
                   [&value](const std::any& copy) {
                     const auto& kept = std::any_cast<const Value&>(copy);
                     if (!(value == kept)) value = kept;  // looked at, a long array takes less than when it is copied
                   },
                   &value_kind<Value>};
  }

  /// Number of indices that a name takes; -1 when there is no such name.
  [[nodiscard]] int dimensions(const std::string& name) const;
  /// @throws RunFailure  an index out of bounds, or an array that has not been allocated
  [[nodiscard]] std::string text(const std::string& name, std::span<const int> indices) const;

  /// Of all that has a text.
  [[nodiscard]] std::vector<std::string> names() const;

  /// Of one value. @param before  an earlier one, which is given back where nothing has changed
  [[nodiscard]] SharedCopy copy(const std::string& name, const SharedCopy& before = {}) const {
    return kept_.at(name).copy(before);
  }
  using Copies = std::map<std::string, SharedCopy>;
  /// @param before  earlier ones, to be shared where nothing has changed
  [[nodiscard]] Copies copies(const Copies& before = {}) const;
  /// Takes copies back that these names gave; others are left alone. @throws std::bad_any_cast  a copy of another type
  void put_back(const Copies& copies) const;
  static void store(StoreWriter& out, const Copies& copies);
  /// Copies of all that is kept under these names. @throws RunFailure  the bytes hold others
  [[nodiscard]] Copies load(StoreReader& in) const;

 private:
  using Indices = std::span<const int>;
  struct Printed {
    int dimensions = 0;
    std::function<std::string(Indices)> text;
  };
  struct Kept {
    std::function<SharedCopy(const SharedCopy&)> copy;
    std::function<void(const std::any&)> put_back;
    const ValueKind* kind;
  };
  template <class Value>
  void add(const std::string& name, int dimensions, Value& value, std::function<std::string(Indices)> text) {
    printed_[name] = {dimensions, std::move(text)};
    keep(name, value);
  }

  std::map<std::string, Printed> printed_;
  std::map<std::string, Kept> kept_;
};

}  // namespace zol
