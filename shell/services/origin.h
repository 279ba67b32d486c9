// What the contents of a list or a picture are made from, as its form declares it. The front end tells what has changed
// since they were made.
#pragma once

#include <string>
#include <vector>

namespace zol {

class CommandButton;
class Control;

/// Some of it, under the word by which a change is told.
struct Inputs {
  std::string word;                           ///< as "crystal", "settings"
  std::vector<std::string> fields = {};       ///< of the crystal state
  std::vector<const Control*> controls = {};  ///< boxes, choices and sliders of any window
};

struct Origin {
  std::vector<Inputs> inputs;
  std::vector<const CommandButton*> again = {};  ///< clicked one after the other they make it anew; may be empty
  std::string by_way_of = {};                    ///< list that it is made from, as "Main1.List2"; its origin counts too

  /// For what is made by the way, as a list beside a picture.
  [[nodiscard]] Origin without_button() const { return {inputs, {}, by_way_of}; }
};

namespace inputs {

/// Cell, symmetry, sites or observed reflections.
[[nodiscard]] Inputs crystal();
[[nodiscard]] Inputs radiation();
[[nodiscard]] Inputs settings(std::vector<std::string> fields, std::vector<const Control*> controls = {});

}  // namespace inputs

}  // namespace zol
