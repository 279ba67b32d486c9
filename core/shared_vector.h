// A vector whose copies share its elements until one of them is changed: long lists are copied and compared with what
// they were at no cost. One thread changes them; others may look at copies of their own and drop them.
#pragma once

#include <atomic>
#include <memory>
#include <utility>
#include <vector>

#include "core/run_aside.h"

namespace zol {

/// @tparam Container  a deque where it grows long under the eyes of someone: it never moves all of its elements
template <class T, class Container = std::vector<T>>
class SharedVector {
 public:
  SharedVector() = default;
  SharedVector(const SharedVector&) = default;
  SharedVector& operator=(const SharedVector& other) {
    if (this != &other && elements_ != other.elements_) {
      let_go();
      elements_ = other.elements_;
    }
    return *this;
  }
  ~SharedVector() { let_go(); }

  [[nodiscard]] const Container& get() const { return *elements_; }
  operator const Container&() const { return *elements_; }  // NOLINT(google-explicit-constructor)
  [[nodiscard]] auto begin() const { return get().begin(); }
  [[nodiscard]] auto end() const { return get().end(); }
  [[nodiscard]] std::size_t size() const { return get().size(); }
  [[nodiscard]] bool empty() const { return get().empty(); }
  [[nodiscard]] const T& operator[](std::size_t i) const { return get()[i]; }
  [[nodiscard]] const T& back() const { return get().back(); }
  [[nodiscard]] bool operator==(const SharedVector& other) const {
    return elements_ == other.elements_ || get() == other.get();
  }

  /// To be changed: the copies keep what they have.
  [[nodiscard]] Container& own() {
    if (elements_.use_count() > 1) {
      elements_ = std::make_shared<Container>(get());
    } else {
      std::atomic_thread_fence(std::memory_order_acquire);  // behind the last look of another thread at its copy
    }
    return *elements_;
  }
  template <class... Args>
  void emplace_back(Args&&... args) {
    own().emplace_back(std::forward<Args>(args)...);
  }
  void push_back(T element) { own().push_back(std::move(element)); }
  void clear() { *this = SharedVector(); }

 private:
  /// To free a million texts takes a tenth of a second: no one waits for that.
  void let_go() {
    constexpr std::size_t many = 100000;
    if (elements_.use_count() == 1 && elements_->size() > many) {
      detail::free_aside(std::move(elements_));
    }
  }

  std::shared_ptr<Container> elements_ = std::make_shared<Container>();
};

}  // namespace zol
