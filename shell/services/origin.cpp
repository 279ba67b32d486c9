#include "shell/services/origin.h"

#include <utility>

namespace zol::inputs {

Inputs crystal() {
  return {"crystal",
          {"CellA", "CellB", "CellC", "CellAlpha", "CellBeta", "CellGamma", "SGFile", "AxisSetting", "NAtom",
           "AtomElement", "AtomOcc", "AtomPos", "AtomB", "JcpdsCount", "JcpdsH", "JcpdsK", "JcpdsL", "JcpdsI"}};
}

Inputs radiation() { return {"radiation", {"WaveLength", "AccVoltage", "MassRatio"}}; }

Inputs settings(std::vector<std::string> fields, std::vector<const Control*> controls) {
  return {"settings", std::move(fields), std::move(controls)};
}

}  // namespace zol::inputs
