// What a reader has to say beside the crystal: what it assumed, and what it doubts.
#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace zol {

struct Note {
  bool doubt = false;  ///< the user should look at it: the crystal may be wrong
  std::string text;
  friend bool operator==(const Note& a, const Note& b) { return a.doubt == b.doubt && a.text == b.text; }
};

class Notes {
 public:
  void assume(std::string text) { add({false, std::move(text)}); }
  void doubt(std::string text) { add({true, std::move(text)}); }
  void add(const Notes& others) {
    for (const auto& note : others.list_) add(note);
  }
  [[nodiscard]] const std::vector<Note>& list() const { return list_; }

 private:
  void add(Note note) {
    if (std::find(list_.begin(), list_.end(), note) == list_.end()) list_.push_back(std::move(note));
  }
  std::vector<Note> list_;
};

}  // namespace zol
