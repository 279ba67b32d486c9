// The pixels of a measured picture as grey values, for calculations: at the size of its file, not of the control.
#pragma once

#include <vector>

namespace zol {

/// Row by row from the upper left. 0 is black and 255 white; a file of 16 bits gives fractions between.
struct GreyPicture {
  int width = 0, height = 0;
  std::vector<float> values;
};

}  // namespace zol
