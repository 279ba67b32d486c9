// Values that a calculation changes for as long as it runs, or until it has come to its end.
#pragma once

#include <tuple>

namespace zol {

/// Gives values back what they held, when it ends, however that comes about; unless they are to be kept.
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
