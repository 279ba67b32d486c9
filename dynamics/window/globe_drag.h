// Dragging over the sphere of the master pattern: what was taken follows the pointer; with Ctrl it spins about the
// middle.
#pragma once

#include <optional>

#include "dynamics/window/master_drawing.h"

namespace zol {

class GlobeDrag : public PictureDrag {
 public:
  explicit GlobeDrag(MasterPatternForm& form) : form_(form) {}
  void begin(double x, double y, bool turns) override;
  [[nodiscard]] std::optional<DragStep> next(double x, double y) override;

 private:
  MasterPatternForm& form_;
  std::optional<Rotation> taken_;  ///< the globe then; none where no globe is shown
  CellConstants cell_;
  std::array<double, 2> from_{}, last_{};
  bool spins_ = false;
};

}  // namespace zol
