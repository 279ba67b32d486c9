// Values as bytes and back: what a file keeps of the program's work.
//
// Numbers, texts and containers can be stored, and every plain struct of such, member by member. Any other class either
// names its members by a function parts() or has a Stored of its own; a type with neither does not compile. Where the
// members have to fit together, sound() tells whether they do. Bytes are those of this machine. A reader believes
// nothing: each length is held against the bytes that are left.
#pragma once

#include <any>
#include <array>
#include <concepts>
#include <cstdint>
#include <cstring>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <variant>
#include <vector>

#include "core/bounded_array.h"
#include "core/numbers.h"
#include "core/shared_vector.h"

namespace zol {

class Services;

/// Of any bytes. A change of a byte always changes it.
[[nodiscard]] std::uint64_t checksum(std::string_view bytes);

class StoreWriter {
 public:
  void raw(const void* bytes, std::size_t count) { bytes_.append(static_cast<const char*>(bytes), count); }
  template <class Number>
  void number(Number value) {
    static_assert(std::is_arithmetic_v<Number>);
    raw(&value, sizeof value);
  }
  /// @throws RunFailure  more than a file has room for
  void count(std::size_t number);
  void text(std::string_view text) {
    count(text.size());
    raw(text.data(), text.size());
  }

  [[nodiscard]] const std::string& bytes() const { return bytes_; }
  [[nodiscard]] std::string take() { return std::move(bytes_); }

 private:
  std::string bytes_;
};

class StoreReader {
 public:
  /// @param services  make the pixel images that are read; none where there are none to be read
  explicit StoreReader(std::string_view bytes, Services* services = nullptr) : left_(bytes), services_(services) {}

  // Each @throws RunFailure  the bytes are cut short or impossible
  [[nodiscard]] std::string_view raw(std::size_t count);
  template <class Number>
  [[nodiscard]] Number number() {
    static_assert(std::is_arithmetic_v<Number>);
    Number value;
    std::memcpy(&value, raw(sizeof value).data(), sizeof value);
    return value;
  }
  /// Of what takes a byte each at least.
  [[nodiscard]] std::size_t count();
  [[nodiscard]] std::string text() { return std::string(raw(count())); }
  [[noreturn]] static void fail(const std::string& why);

  [[nodiscard]] bool at_end() const { return left_.empty(); }
  [[nodiscard]] Services* services() const { return services_; }

 private:
  std::string_view left_;
  Services* services_;
};

namespace detail {

/// Takes the place of a member of any type but the struct itself.
template <class Struct>
struct AnyMember {
  template <class Member>
  requires(!std::same_as<Member, Struct>) operator Member()
      const;  // NOLINT(google-explicit-constructor,hicpp-explicit-conversions): that is its use
};

template <class Struct, class... Members>
[[nodiscard]] constexpr std::size_t count_members() {
  if constexpr (requires { Struct{Members{}..., AnyMember<Struct>{}}; }) {
    return count_members<Struct, Members..., AnyMember<Struct>>();
  } else {
    return sizeof...(Members);
  }
}

/// The members of a plain struct, as references.
template <class Struct>
[[nodiscard]] auto members_of(Struct& value) {
  constexpr std::size_t count = count_members<std::remove_const_t<Struct>>();
  static_assert(count >= 1 && count <= 12, "a struct that is stored has 1 to 12 members");
  if constexpr (count == 1) {
    auto& [a] = value;
    return std::tie(a);
  } else if constexpr (count == 2) {
    auto& [a, b] = value;
    return std::tie(a, b);
  } else if constexpr (count == 3) {
    auto& [a, b, c] = value;
    return std::tie(a, b, c);
  } else if constexpr (count == 4) {
    auto& [a, b, c, d] = value;
    return std::tie(a, b, c, d);
  } else if constexpr (count == 5) {
    auto& [a, b, c, d, e] = value;
    return std::tie(a, b, c, d, e);
  } else if constexpr (count == 6) {
    auto& [a, b, c, d, e, f] = value;
    return std::tie(a, b, c, d, e, f);
  } else if constexpr (count == 7) {
    auto& [a, b, c, d, e, f, g] = value;
    return std::tie(a, b, c, d, e, f, g);
  } else if constexpr (count == 8) {
    auto& [a, b, c, d, e, f, g, h] = value;
    return std::tie(a, b, c, d, e, f, g, h);
  } else if constexpr (count == 9) {
    auto& [a, b, c, d, e, f, g, h, i] = value;
    return std::tie(a, b, c, d, e, f, g, h, i);
  } else if constexpr (count == 10) {
    auto& [a, b, c, d, e, f, g, h, i, j] = value;
    return std::tie(a, b, c, d, e, f, g, h, i, j);
  } else if constexpr (count == 11) {
    auto& [a, b, c, d, e, f, g, h, i, j, k] = value;
    return std::tie(a, b, c, d, e, f, g, h, i, j, k);
  } else {
    auto& [a, b, c, d, e, f, g, h, i, j, k, l] = value;
    return std::tie(a, b, c, d, e, f, g, h, i, j, k, l);
  }
}

template <class Value>
concept HasParts = requires(Value& value) {
  Value::parts(value);
};

template <class Value>
[[nodiscard]] auto parts_of(Value& value) {
  if constexpr (HasParts<std::remove_const_t<Value>>) {
    return std::remove_const_t<Value>::parts(value);
  } else {
    return members_of(value);
  }
}

}  // namespace detail

template <class Value>
struct Stored;

template <class Value>
void store(StoreWriter& out, const Value& value) {
  Stored<Value>::store(out, value);
}
template <class Value>
[[nodiscard]] Value load(StoreReader& in) {
  return Stored<Value>::load(in);
}

template <class Number>
requires std::is_arithmetic_v<Number>
struct Stored<Number> {
  static void store(StoreWriter& out, Number value) { out.number(value); }
  static Number load(StoreReader& in) { return in.number<Number>(); }
};
template <>
struct Stored<bool> {
  static void store(StoreWriter& out, bool value) { out.number<char>(value ? 1 : 0); }
  static bool load(StoreReader& in) { return in.number<char>() != 0; }
};
template <class Enum>
requires std::is_enum_v<Enum>
struct Stored<Enum> {
  static void store(StoreWriter& out, Enum value) { out.number(static_cast<std::underlying_type_t<Enum>>(value)); }
  static Enum load(StoreReader& in) { return static_cast<Enum>(in.number<std::underlying_type_t<Enum>>()); }
};
template <class Rep>
struct Stored<CheckedInt<Rep>> {
  static void store(StoreWriter& out, CheckedInt<Rep> value) { out.number(static_cast<Rep>(value.value())); }
  static CheckedInt<Rep> load(StoreReader& in) { return CheckedInt<Rep>(in.number<Rep>()); }
};
template <>
struct Stored<std::string> {
  static void store(StoreWriter& out, const std::string& value) { out.text(value); }
  static std::string load(StoreReader& in) { return in.text(); }
};

template <class Value>
struct Stored<std::optional<Value>> {
  static void store(StoreWriter& out, const std::optional<Value>& value) {
    zol::store(out, value.has_value());
    if (value) zol::store(out, *value);
  }
  static std::optional<Value> load(StoreReader& in) {
    if (!zol::load<bool>(in)) return std::nullopt;
    return zol::load<Value>(in);
  }
};
template <class Value, std::size_t size>
struct Stored<std::array<Value, size>> {
  static void store(StoreWriter& out, const std::array<Value, size>& values) {
    for (const Value& value : values) zol::store(out, value);
  }
  static std::array<Value, size> load(StoreReader& in) {
    std::array<Value, size> values{};
    for (Value& value : values) value = zol::load<Value>(in);
    return values;
  }
};
template <class Value>
struct Stored<std::vector<Value>> {
  static void store(StoreWriter& out, const std::vector<Value>& values) {
    out.count(values.size());
    for (const Value& value : values) zol::store<Value>(out, value);
  }
  static std::vector<Value> load(StoreReader& in) {
    std::vector<Value> values;
    for (std::size_t left = in.count(); left > 0; --left) values.push_back(zol::load<Value>(in));
    return values;
  }
};
template <class Value, class Container>
struct Stored<SharedVector<Value, Container>> {
  static void store(StoreWriter& out, const SharedVector<Value, Container>& values) {
    out.count(values.size());
    for (const Value& value : values) zol::store<Value>(out, value);
  }
  static SharedVector<Value, Container> load(StoreReader& in) {
    SharedVector<Value, Container> values;
    for (std::size_t left = in.count(); left > 0; --left) values.push_back(zol::load<Value>(in));
    return values;
  }
};
template <class Key, class Value>
struct Stored<std::map<Key, Value>> {
  static void store(StoreWriter& out, const std::map<Key, Value>& values) {
    out.count(values.size());
    for (const auto& [key, value] : values) {
      zol::store(out, key);
      zol::store(out, value);
    }
  }
  static std::map<Key, Value> load(StoreReader& in) {
    std::map<Key, Value> values;
    for (std::size_t left = in.count(); left > 0; --left) {
      auto key = zol::load<Key>(in);
      values.insert_or_assign(std::move(key), zol::load<Value>(in));
    }
    return values;
  }
};
template <class... Kinds>
struct Stored<std::variant<Kinds...>> {
  using Variant = std::variant<Kinds...>;
  static void store(StoreWriter& out, const Variant& value) {
    out.number(static_cast<std::uint8_t>(value.index()));
    std::visit([&out](const auto& held) { zol::store(out, held); }, value);
  }
  static Variant load(StoreReader& in) {
    constexpr std::array<Variant (*)(StoreReader&), sizeof...(Kinds)> loads{
        [](StoreReader& from) { return Variant(zol::load<Kinds>(from)); }...};
    const auto kind = in.number<std::uint8_t>();
    if (kind >= loads.size()) StoreReader::fail("it names a kind that there is none of");
    return loads[kind](in);
  }
};

/// The elements of an array up to the last that is not zero: most of them are far larger than what is in use.
template <class Element>
void store_elements(StoreWriter& out, std::span<const Element> elements) {
  if constexpr (std::is_trivially_copyable_v<Element>) {
    const auto* bytes = reinterpret_cast<const char*>(elements.data());
    std::size_t used = elements.size_bytes();
    while (used > 0 && bytes[used - 1] == 0) --used;
    out.count(used);
    out.raw(bytes, used);
  } else {
    for (const Element& element : elements) store(out, element);
  }
}
/// @param elements  all of them zero
template <class Element>
void load_elements(StoreReader& in, std::span<Element> elements) {
  if constexpr (std::is_trivially_copyable_v<Element>) {
    const std::string_view bytes = in.raw(in.count());
    if (bytes.size() > elements.size_bytes()) StoreReader::fail("an array has more elements than room");
    if (!bytes.empty()) std::memcpy(static_cast<void*>(elements.data()), bytes.data(), bytes.size());
  } else {
    for (Element& element : elements) element = load<Element>(in);
  }
}
/// Upper bound of an array. @throws RunFailure  more than any list has; or texts that are not there
template <class Element>
[[nodiscard]] int load_bound(StoreReader& in) {
  constexpr std::int32_t most = std::is_trivially_copyable_v<Element> ? (1 << 28) : (1 << 20);
  const auto upper = in.number<std::int32_t>();
  if (upper < -1 || upper > most) StoreReader::fail("an array has a bound of " + std::to_string(upper));
  return upper;
}

template <class Element>
struct Stored<BoundedArray<Element>> {
  static void store(StoreWriter& out, const BoundedArray<Element>& array) {
    out.text(array.name());
    out.number(std::int32_t{array.upper()});
    if (array.upper() >= 0) store_elements(out, array.elements());
  }
  static BoundedArray<Element> load(StoreReader& in) {
    BoundedArray<Element> array(in.text());
    const int upper = load_bound<Element>(in);
    if (upper < 0) return array;
    array.allocate(upper);
    load_elements(in, array.elements());
    return array;
  }
};
template <class Element>
struct Stored<BoundedTable<Element>> {
  static void store(StoreWriter& out, const BoundedTable<Element>& table) {
    out.text(table.name());
    out.number(std::int32_t{table.upper_row()});
    out.number(std::int32_t{table.upper_column()});
    if (table.upper_row() >= 0) store_elements(out, table.elements());
  }
  static BoundedTable<Element> load(StoreReader& in) {
    BoundedTable<Element> table(in.text());
    const int rows = load_bound<Element>(in);
    const int columns = load_bound<Element>(in);
    if (rows < 0) return table;
    constexpr int most_columns = 100;
    if (columns < 0 || columns > most_columns) StoreReader::fail("a table has too many columns");
    table.allocate(rows, columns);
    load_elements(in, table.elements());
    return table;
  }
};

/// Plain structs, and classes that name their parts.
template <class Struct>
requires(std::is_class_v<Struct> && (std::is_aggregate_v<Struct> || detail::HasParts<Struct>)) struct Stored<Struct> {
  static void store(StoreWriter& out, const Struct& value) {
    std::apply([&out](const auto&... parts) { (zol::store(out, parts), ...); }, detail::parts_of(value));
  }
  static Struct load(StoreReader& in) {
    Struct value{};
    std::apply([&in](auto&... parts) { ((parts = zol::load<std::remove_reference_t<decltype(parts)>>(in)), ...); },
               detail::parts_of(value));
    if constexpr (requires { value.sound(); }) {
      if (!value.sound()) StoreReader::fail("its parts do not fit together");
    }
    return value;
  }
};

/// How a value of one type, which is kept as std::any, is stored and loaded.
struct ValueKind {
  std::uint64_t (*mark)();  ///< differs between types
  void (*store)(StoreWriter&, const std::any&);
  std::any (*load)(StoreReader&);
};
template <class Value>
inline constexpr ValueKind value_kind{
    [] { return checksum(typeid(Value).name()); },
    [](StoreWriter& out, const std::any& value) { store(out, *std::any_cast<Value>(&value)); },
    [](StoreReader& in) { return std::any(load<Value>(in)); }};

/// The value behind the mark of its type; no kind: nothing. @throws RunFailure  in load: it is of another type
void store_kept(StoreWriter& out, const std::any& value, const ValueKind* kind);
[[nodiscard]] std::any load_kept(StoreReader& in, const ValueKind* kind);

}  // namespace zol
