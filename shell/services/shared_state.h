// The state that windows share without a word, each part as a short text for the foot of a window that reads it.
#pragma once

#include <string>

#include "core/crystal_state.h"

namespace zol {

using SharedPart = std::string (*)(const CrystalState& state);

/// UTF-8. Each is empty where there is nothing to tell.
namespace shared {

std::string radiation(const CrystalState& state);   ///< voltage or wavelength, wavelength
std::string half_angle(const CrystalState& state);  ///< CamAcquisition as the Kikuchi windows read it
std::string half_width(const CrystalState& state);  ///< the same as spot pattern and fiber texture read it
std::string shifts(const CrystalState& state);      ///< of the pattern centre
std::string zone_axis(const CrystalState& state);
std::string fiber_axis(const CrystalState& state);  ///< H, K, L
std::string turn(const CrystalState& state);        ///< PatternAngle
std::string order(const CrystalState& state);       ///< of the reflection list
std::string smallest_d(const CrystalState& state);

}  // namespace shared

}  // namespace zol
