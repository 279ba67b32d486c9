// Arrays with given bounds: index 0 exists, every access is checked, and a failed check ends the run with the name of
// the array and the index. An array may be unallocated; reading one then fails as well.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace zol {

namespace detail {

[[noreturn]] void fail_index(std::string_view array, long long index, long long upper);
[[noreturn]] void fail_bound(std::string_view array, long long upper);
[[noreturn]] void fail_memory(std::string_view array, long long upper);
/// Fails the run when the machine does not have so many bytes for array(0 to upper).
void check_memory(std::string_view array, long long upper, std::size_t elements, std::size_t element_size);

/// Memory that comes zeroed from the system, so that large arrays cost only the pages that are used.
template <class T>
struct ZeroedAllocator {
  static_assert(std::is_trivially_copyable_v<T>);
  using value_type = T;
  ZeroedAllocator() = default;
  template <class U>
  explicit ZeroedAllocator(const ZeroedAllocator<U>& /*other*/) {}
  T* allocate(std::size_t count) {
    void* memory = std::calloc(count, sizeof(T));  // NOLINT(cppcoreguidelines-no-malloc,hicpp-no-malloc)
    if (memory == nullptr) throw std::bad_alloc();
    return static_cast<T*>(memory);
  }
  void deallocate(T* memory, std::size_t /*count*/) { std::free(memory); }  // NOLINT(cppcoreguidelines-no-malloc)
  template <class U>
  void construct(U* /*place*/) {}  // already zero
  template <class U, class... Args>
  void construct(U* place, Args&&... args) {
    ::new (static_cast<void*>(place)) U(std::forward<Args>(args)...);
  }
  friend bool operator==(const ZeroedAllocator&, const ZeroedAllocator&) { return true; }
};

/// Tells without a look at the elements that two arrays hold the same: they bear the number of one content. Whatever
/// may change an element takes the number off, so that it costs a store to write an element and nothing to read a const
/// one.
class ContentNumber {
 public:
  ContentNumber() = default;
  ContentNumber(const ContentNumber&) = default;
  ContentNumber(ContentNumber&& other) noexcept : number_(std::exchange(other.number_, 0)) {}
  ContentNumber& operator=(const ContentNumber&) = default;
  ContentNumber& operator=(ContentNumber&& other) noexcept {
    number_ = std::exchange(other.number_, 0);
    return *this;
  }
  ~ContentNumber() = default;

  void take_off() { number_ = 0; }
  [[nodiscard]] bool same_as(const ContentNumber& other) const { return number_ != 0 && number_ == other.number_; }
  void give_new() const {
    static std::atomic<std::uint64_t> last = 0;
    if (number_ == 0) number_ = ++last;
  }
  void take_from(const ContentNumber& other) const { number_ = other.number_; }

 private:
  mutable std::uint64_t number_ = 0;  ///< 0: none
};

/// Elements of an array that starts with T{} everywhere. Where that is all bits zero, it knows how far elements have
/// been handed out to be changed: no one looks behind that when all are copied or compared, so that an array far larger
/// than what it holds costs no more than that.
template <class T, bool zero_is_default = std::is_trivially_copyable_v<T>>
class Elements {
 public:
  Elements() = default;
  explicit Elements(std::size_t size) : store_(size) {}
  [[nodiscard]] std::size_t size() const { return store_.size(); }
  [[nodiscard]] T& operator[](std::size_t i) { return store_[i]; }
  [[nodiscard]] const T& operator[](std::size_t i) const { return store_[i]; }
  [[nodiscard]] std::span<T> all() { return store_; }
  [[nodiscard]] std::span<const T> all() const { return store_; }
  [[nodiscard]] bool operator==(const Elements&) const = default;

 private:
  std::vector<T> store_;
};

template <class T>
class Elements<T, true> {
 public:
  Elements() = default;
  explicit Elements(std::size_t size) : store_(size) {}
  Elements(const Elements& other) : store_(other.size()), used_(other.used_) {
    if (used_ > 0) std::memcpy(store_.data(), other.store_.data(), used_ * sizeof(T));
  }
  Elements(Elements&& other) noexcept : store_(std::move(other.store_)), used_(std::exchange(other.used_, 0)) {}
  Elements& operator=(Elements other) noexcept {
    store_.swap(other.store_);
    std::swap(used_, other.used_);
    return *this;
  }
  ~Elements() = default;

  [[nodiscard]] std::size_t size() const { return store_.size(); }
  [[nodiscard]] T& operator[](std::size_t i) {
    if (i >= used_) used_ = i + 1;
    return store_[i];
  }
  [[nodiscard]] const T& operator[](std::size_t i) const { return store_[i]; }
  [[nodiscard]] std::span<T> all() {
    used_ = store_.size();
    return store_;
  }
  [[nodiscard]] std::span<const T> all() const { return store_; }
  /// Bit by bit: quick, and a NaN is itself.
  [[nodiscard]] bool operator==(const Elements& other) const {
    if (size() != other.size()) return false;
    const std::size_t both = std::min(used_, other.used_);
    return (both == 0 || std::memcmp(store_.data(), other.store_.data(), both * sizeof(T)) == 0) && zero_from(both) &&
           other.zero_from(both);
  }

 private:
  [[nodiscard]] bool zero_from(std::size_t first) const {
    const auto* bytes = reinterpret_cast<const unsigned char*>(store_.data());
    return std::all_of(bytes + first * sizeof(T), bytes + used_ * sizeof(T), [](unsigned char b) { return b == 0; });
  }

  std::vector<T, ZeroedAllocator<T>> store_;
  std::size_t used_ = 0;
};

}  // namespace detail

/// One-dimensional array, indices 0 to upper(). All elements start as T{}, which for numbers is all bits zero.
template <class T>
class BoundedArray {
 public:
  /// Unallocated; upper() is -1.
  explicit BoundedArray(std::string name) : name_(std::move(name)) {}
  BoundedArray(std::string name, int upper) : name_(std::move(name)) { allocate(upper); }

  /// Reallocates the array with indices 0 to upper; former contents are lost.
  /// @throws RunFailure  negative upper bound or not enough memory
  void allocate(int upper) {
    if (upper < 0) detail::fail_bound(name_, upper);
    content_.take_off();
    store_ = {};
    detail::check_memory(name_, upper, static_cast<std::size_t>(upper) + 1, sizeof(T));
    try {
      store_ = Store(static_cast<std::size_t>(upper) + 1);
    } catch (const std::bad_alloc&) {
      detail::fail_memory(name_, upper);
    }
  }

  [[nodiscard]] T& operator()(int index) {
    content_.take_off();
    return store_[check(index)];
  }
  [[nodiscard]] const T& operator()(int index) const { return store_[check(index)]; }

  /// All elements, to be changed.
  [[nodiscard]] std::span<T> elements() {
    content_.take_off();
    return store_.all();
  }
  [[nodiscard]] std::span<const T> elements() const { return store_.all(); }

  [[nodiscard]] int upper() const { return static_cast<int>(store_.size()) - 1; }
  /// The same bounds and elements, numbers bit by bit.
  [[nodiscard]] bool operator==(const BoundedArray& other) const {
    return content_.same_as(other.content_) || store_ == other.store_;
  }
  /// For copies that are compared again and again.
  [[nodiscard]] const detail::ContentNumber& content() const { return content_; }
  [[nodiscard]] const std::string& name() const { return name_; }

 private:
  using Store = detail::Elements<T>;

  [[nodiscard]] std::size_t check(int index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= store_.size()) detail::fail_index(name_, index, upper());
    return static_cast<std::size_t>(index);
  }

  std::string name_;
  Store store_;
  detail::ContentNumber content_;
};

/// Two-dimensional array, rows 0 to upper_row(), columns 0 to upper_column(), row by row in memory.
template <class T>
class BoundedTable {
 public:
  explicit BoundedTable(std::string name) : name_(std::move(name)) {}
  BoundedTable(std::string name, int upper_row, int upper_column) : name_(std::move(name)) {
    allocate(upper_row, upper_column);
  }

  /// Reallocates the table; former contents are lost.
  /// @throws RunFailure  negative upper bound or not enough memory
  void allocate(int upper_row, int upper_column) {
    if (upper_row < 0) detail::fail_bound(name_, upper_row);
    if (upper_column < 0) detail::fail_bound(name_, upper_column);
    const std::size_t elements =
        (static_cast<std::size_t>(upper_row) + 1) * (static_cast<std::size_t>(upper_column) + 1);
    content_.take_off();
    store_ = {};
    upper_row_ = upper_column_ = -1;
    detail::check_memory(name_, upper_row, elements, sizeof(T));
    try {
      store_ = Store(elements);
    } catch (const std::exception&) {
      detail::fail_memory(name_, upper_row);
    }
    upper_row_ = upper_row;
    upper_column_ = upper_column;
  }

  [[nodiscard]] T& operator()(int row, int column) {
    content_.take_off();
    return store_[check(row, column)];
  }
  [[nodiscard]] const T& operator()(int row, int column) const { return store_[check(row, column)]; }

  /// All elements, row by row, to be changed.
  [[nodiscard]] std::span<T> elements() {
    content_.take_off();
    return store_.all();
  }
  [[nodiscard]] std::span<const T> elements() const { return store_.all(); }

  /// The same bounds and elements, numbers bit by bit.
  [[nodiscard]] bool operator==(const BoundedTable& other) const {
    return content_.same_as(other.content_) ||
           (upper_row_ == other.upper_row_ && upper_column_ == other.upper_column_ && store_ == other.store_);
  }
  /// For copies that are compared again and again.
  [[nodiscard]] const detail::ContentNumber& content() const { return content_; }
  [[nodiscard]] int upper_row() const { return upper_row_; }
  [[nodiscard]] int upper_column() const { return upper_column_; }
  [[nodiscard]] const std::string& name() const { return name_; }

 private:
  using Store = detail::Elements<T>;

  [[nodiscard]] std::size_t check(int row, int column) const {
    if (row < 0 || row > upper_row_) detail::fail_index(name_, row, upper_row_);
    if (column < 0 || column > upper_column_) detail::fail_index(name_, column, upper_column_);
    return static_cast<std::size_t>(row) * (static_cast<std::size_t>(upper_column_) + 1) +
           static_cast<std::size_t>(column);
  }

  std::string name_;
  int upper_row_ = -1;
  int upper_column_ = -1;
  Store store_;
  detail::ContentNumber content_;
};

}  // namespace zol
