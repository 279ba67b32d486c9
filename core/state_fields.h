// All fields of the crystal state under their given names: the one table that printing, copying and comparing walk.
// Types and bounds are those of the members.
#pragma once

#include <concepts>
#include <string>
#include <type_traits>

#include "core/crystal_state.h"

namespace zol {

struct FieldName {
  const char* text;
  bool of_file = false;  ///< the field is a name of a file: bytes of the file system, where other texts are Latin-1
};

template <class State, class Part>
concept MaybeConst = std::same_as<std::remove_const_t<State>, Part>;

/// Calls visit(FieldName, field) for each field in the order of their declaration.
template <MaybeConst<Main1State> State, class Visit>
void for_each_field(State& state, const Visit& visit) {
  visit(FieldName{"CellA"}, state.CellA);
  visit(FieldName{"CellB"}, state.CellB);
  visit(FieldName{"CellC"}, state.CellC);
  visit(FieldName{"CellAlpha"}, state.CellAlpha);
  visit(FieldName{"CellBeta"}, state.CellBeta);
  visit(FieldName{"CellGamma"}, state.CellGamma);
  visit(FieldName{"SGNumber"}, state.SGNumber);
  visit(FieldName{"LatticeLetter"}, state.LatticeLetter);
  visit(FieldName{"CosAlpha"}, state.CosAlpha);
  visit(FieldName{"CosBeta"}, state.CosBeta);
  visit(FieldName{"CosGamma"}, state.CosGamma);
  visit(FieldName{"SinAlpha"}, state.SinAlpha);
  visit(FieldName{"SinBeta"}, state.SinBeta);
  visit(FieldName{"SinGamma"}, state.SinGamma);
  visit(FieldName{"CellVolume"}, state.CellVolume);
  visit(FieldName{"AStar"}, state.AStar);
  visit(FieldName{"BStar"}, state.BStar);
  visit(FieldName{"CStar"}, state.CStar);
  visit(FieldName{"AlphaStar"}, state.AlphaStar);
  visit(FieldName{"BetaStar"}, state.BetaStar);
  visit(FieldName{"GammaStar"}, state.GammaStar);
  visit(FieldName{"CosAlphaStar"}, state.CosAlphaStar);
  visit(FieldName{"CosBetaStar"}, state.CosBetaStar);
  visit(FieldName{"CosGammaStar"}, state.CosGammaStar);
  visit(FieldName{"SinAlphaStar"}, state.SinAlphaStar);
  visit(FieldName{"SinBetaStar"}, state.SinBetaStar);
  visit(FieldName{"SinGammaStar"}, state.SinGammaStar);
  visit(FieldName{"RefCount"}, state.RefCount);
  visit(FieldName{"KikuchiRefLimit"}, state.KikuchiRefLimit);
  visit(FieldName{"WaveLength"}, state.WaveLength);
  visit(FieldName{"Dmin"}, state.Dmin);
  visit(FieldName{"AccVoltage"}, state.AccVoltage);
  visit(FieldName{"MassRatio"}, state.MassRatio);
  visit(FieldName{"ScatterMissing"}, state.ScatterMissing);
  visit(FieldName{"ZoneU"}, state.ZoneU);
  visit(FieldName{"ZoneV"}, state.ZoneV);
  visit(FieldName{"ZoneW"}, state.ZoneW);
  visit(FieldName{"PrevZoneU"}, state.PrevZoneU);
  visit(FieldName{"PrevZoneV"}, state.PrevZoneV);
  visit(FieldName{"PrevZoneW"}, state.PrevZoneW);
  visit(FieldName{"NewZoneU"}, state.NewZoneU);
  visit(FieldName{"NewZoneV"}, state.NewZoneV);
  visit(FieldName{"NewZoneW"}, state.NewZoneW);
  visit(FieldName{"PatternFlag"}, state.PatternFlag);
  visit(FieldName{"TiltTheta"}, state.TiltTheta);
  visit(FieldName{"TiltPhi"}, state.TiltPhi);
  visit(FieldName{"Level"}, state.Level);
  visit(FieldName{"OriginH"}, state.OriginH);
  visit(FieldName{"OriginK"}, state.OriginK);
  visit(FieldName{"OriginL"}, state.OriginL);
  visit(FieldName{"NewOriginH"}, state.NewOriginH);
  visit(FieldName{"NewOriginK"}, state.NewOriginK);
  visit(FieldName{"NewOriginL"}, state.NewOriginL);
  visit(FieldName{"MarkH"}, state.MarkH);
  visit(FieldName{"MarkK"}, state.MarkK);
  visit(FieldName{"MarkL"}, state.MarkL);
  visit(FieldName{"PatternAngle"}, state.PatternAngle);
  visit(FieldName{"PatternAngleStep"}, state.PatternAngleStep);
  visit(FieldName{"SpotScale"}, state.SpotScale);
  visit(FieldName{"TiltX"}, state.TiltX);
  visit(FieldName{"TiltY"}, state.TiltY);
  visit(FieldName{"Dispersion"}, state.Dispersion);
  visit(FieldName{"DisplayScale"}, state.DisplayScale);
  visit(FieldName{"CrystalFile", true}, state.CrystalFile);
  visit(FieldName{"SystemName"}, state.SystemName);
  visit(FieldName{"SGName"}, state.SGName);
  visit(FieldName{"SGFile", true}, state.SGFile);
  visit(FieldName{"AxisSetting"}, state.AxisSetting);
  visit(FieldName{"AsfX"}, state.AsfX);
  visit(FieldName{"AsfXCount"}, state.AsfXCount);
  visit(FieldName{"AsfE"}, state.AsfE);
  visit(FieldName{"AsfECount"}, state.AsfECount);
  visit(FieldName{"SGNames"}, state.SGNames);
}
template <MaybeConst<Module1State> State, class Visit>
void for_each_field(State& state, const Visit& visit) {
  visit(FieldName{"NAtom"}, state.NAtom);
  visit(FieldName{"AtomLabel"}, state.AtomLabel);
  visit(FieldName{"AtomElement"}, state.AtomElement);
  visit(FieldName{"AtomOcc"}, state.AtomOcc);
  visit(FieldName{"AtomPos"}, state.AtomPos);
  visit(FieldName{"AtomB"}, state.AtomB);
  visit(FieldName{"NCell"}, state.NCell);
  visit(FieldName{"UCLabel"}, state.UCLabel);
  visit(FieldName{"UCElement"}, state.UCElement);
  visit(FieldName{"UCOcc"}, state.UCOcc);
  visit(FieldName{"UCPos"}, state.UCPos);
  visit(FieldName{"UCB"}, state.UCB);
  visit(FieldName{"JcpdsCount"}, state.JcpdsCount);
  visit(FieldName{"JcpdsH"}, state.JcpdsH);
  visit(FieldName{"JcpdsK"}, state.JcpdsK);
  visit(FieldName{"JcpdsL"}, state.JcpdsL);
  visit(FieldName{"JcpdsI"}, state.JcpdsI);
  visit(FieldName{"RefH"}, state.RefH);
  visit(FieldName{"RefK"}, state.RefK);
  visit(FieldName{"RefL"}, state.RefL);
  visit(FieldName{"RefS"}, state.RefS);
  visit(FieldName{"RefA"}, state.RefA);
  visit(FieldName{"RefB"}, state.RefB);
  visit(FieldName{"RefI"}, state.RefI);
  visit(FieldName{"RefTwoTheta"}, state.RefTwoTheta);
  visit(FieldName{"BandHKL"}, state.BandHKL);
  visit(FieldName{"CamXShift"}, state.CamXShift);
  visit(FieldName{"CamYShift"}, state.CamYShift);
  visit(FieldName{"CamAcquisition"}, state.CamAcquisition);
  visit(FieldName{"CamXYRatio"}, state.CamXYRatio);
  visit(FieldName{"CamNormal"}, state.CamNormal);
  visit(FieldName{"CamDetector"}, state.CamDetector);
  visit(FieldName{"CameraFile", true}, state.CameraFile);
}
/// Both parts, that of Main1 first.
template <MaybeConst<CrystalState> State, class Visit>
void for_each_field(State& state, const Visit& visit) {
  constexpr bool is_const = std::is_const_v<State>;
  for_each_field<std::conditional_t<is_const, const Main1State, Main1State>>(state, visit);
  for_each_field<std::conditional_t<is_const, const Module1State, Module1State>>(state, visit);
}

}  // namespace zol
