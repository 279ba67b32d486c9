// Values that a calculation changes while it runs.
#pragma once

#include <tuple>

namespace zol {

/// Restores the values at the end of its scope, also when an exception ends it, unless keep() was called.
template <class... Values>
class PutBack {
 public:
  explicit PutBack(Values&... values) : values_(values...), before_(values...) {}
  PutBack(const PutBack&) = delete;
  PutBack& operator=(const PutBack&) = delete;
  ~PutBack() {
    if (!kept_) values_ = before_;
  }
  void keep() { kept_ = true; }

 private:
  std::tuple<Values&...> values_;
  std::tuple<Values...> before_;
  bool kept_ = false;
};

}  // namespace zol
