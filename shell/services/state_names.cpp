#include "shell/services/state_names.h"

namespace zol {
namespace {

/// A row of a scattering factor table as its record stands in the file.
std::string asf_text(const AsfRow& row) {
  std::string text = row.Element;
  for (const Single value : {row.A1, row.B1, row.A2, row.B2, row.A3, row.B3, row.A4, row.B4, row.C}) {
    text += ',' + plain_text(value);
  }
  return utf8_of_latin1(text + ',' + plain_text(row.Z));
}

}  // namespace

void register_main1_fields(NamedValues& values, const Main1State& state) {
  values.add("CellA", state.CellA);
  values.add("CellB", state.CellB);
  values.add("CellC", state.CellC);
  values.add("CellAlpha", state.CellAlpha);
  values.add("CellBeta", state.CellBeta);
  values.add("CellGamma", state.CellGamma);
  values.add("SGNumber", state.SGNumber);
  values.add("LatticeLetter", state.LatticeLetter);
  values.add("CosAlpha", state.CosAlpha);
  values.add("CosBeta", state.CosBeta);
  values.add("CosGamma", state.CosGamma);
  values.add("SinAlpha", state.SinAlpha);
  values.add("SinBeta", state.SinBeta);
  values.add("SinGamma", state.SinGamma);
  values.add("CellVolume", state.CellVolume);
  values.add("AStar", state.AStar);
  values.add("BStar", state.BStar);
  values.add("CStar", state.CStar);
  values.add("AlphaStar", state.AlphaStar);
  values.add("BetaStar", state.BetaStar);
  values.add("GammaStar", state.GammaStar);
  values.add("CosAlphaStar", state.CosAlphaStar);
  values.add("CosBetaStar", state.CosBetaStar);
  values.add("CosGammaStar", state.CosGammaStar);
  values.add("SinAlphaStar", state.SinAlphaStar);
  values.add("SinBetaStar", state.SinBetaStar);
  values.add("SinGammaStar", state.SinGammaStar);
  values.add("RefCount", state.RefCount);
  values.add("KikuchiRefLimit", state.KikuchiRefLimit);
  values.add("WaveLength", state.WaveLength);
  values.add("Dmin", state.Dmin);
  values.add("AccVoltage", state.AccVoltage);
  values.add("MassRatio", state.MassRatio);
  values.add("ScatterMissing", state.ScatterMissing);
  values.add("ZoneU", state.ZoneU);
  values.add("ZoneV", state.ZoneV);
  values.add("ZoneW", state.ZoneW);
  values.add("PrevZoneU", state.PrevZoneU);
  values.add("PrevZoneV", state.PrevZoneV);
  values.add("PrevZoneW", state.PrevZoneW);
  values.add("NewZoneU", state.NewZoneU);
  values.add("NewZoneV", state.NewZoneV);
  values.add("NewZoneW", state.NewZoneW);
  values.add("PatternFlag", state.PatternFlag);
  values.add("TiltTheta", state.TiltTheta);
  values.add("TiltPhi", state.TiltPhi);
  values.add("Level", state.Level);
  values.add("OriginH", state.OriginH);
  values.add("OriginK", state.OriginK);
  values.add("OriginL", state.OriginL);
  values.add("NewOriginH", state.NewOriginH);
  values.add("NewOriginK", state.NewOriginK);
  values.add("NewOriginL", state.NewOriginL);
  values.add("MarkH", state.MarkH);
  values.add("MarkK", state.MarkK);
  values.add("MarkL", state.MarkL);
  values.add("PatternAngle", state.PatternAngle);
  values.add("PatternAngleStep", state.PatternAngleStep);
  values.add("SpotScale", state.SpotScale);
  values.add("TiltX", state.TiltX);
  values.add("TiltY", state.TiltY);
  values.add("Dispersion", state.Dispersion);
  values.add("DisplayScale", state.DisplayScale);
  values.add_file_name("CrystalFile", state.CrystalFile);
  values.add("SystemName", state.SystemName);
  values.add("SGName", state.SGName);
  values.add_file_name("SGFile", state.SGFile);
  values.add("AxisSetting", state.AxisSetting);
  values.add_computed("AsfX", 1, [&state](std::span<const int> i) { return asf_text(state.AsfX(i[0])); });
  values.add("AsfXCount", state.AsfXCount);
  values.add_computed("AsfE", 1, [&state](std::span<const int> i) { return asf_text(state.AsfE(i[0])); });
  values.add("AsfECount", state.AsfECount);
  values.add("SGNames", state.SGNames);
}

void register_module1_fields(NamedValues& values, const Module1State& state) {
  values.add("NAtom", state.NAtom);
  values.add("AtomLabel", state.AtomLabel);
  values.add("AtomElement", state.AtomElement);
  values.add("AtomOcc", state.AtomOcc);
  values.add("AtomPos", state.AtomPos);
  values.add("AtomB", state.AtomB);
  values.add("NCell", state.NCell);
  values.add("UCLabel", state.UCLabel);
  values.add("UCElement", state.UCElement);
  values.add("UCOcc", state.UCOcc);
  values.add("UCPos", state.UCPos);
  values.add("UCB", state.UCB);
  values.add("JcpdsCount", state.JcpdsCount);
  values.add("JcpdsH", state.JcpdsH);
  values.add("JcpdsK", state.JcpdsK);
  values.add("JcpdsL", state.JcpdsL);
  values.add("JcpdsI", state.JcpdsI);
  values.add("RefH", state.RefH);
  values.add("RefK", state.RefK);
  values.add("RefL", state.RefL);
  values.add("RefS", state.RefS);
  values.add("RefA", state.RefA);
  values.add("RefB", state.RefB);
  values.add("RefI", state.RefI);
  values.add("RefTwoTheta", state.RefTwoTheta);
  values.add("BandHKL", state.BandHKL);
  values.add("CamXShift", state.CamXShift);
  values.add("CamYShift", state.CamYShift);
  values.add("CamAcquisition", state.CamAcquisition);
  values.add("CamXYRatio", state.CamXYRatio);
  values.add("CamNormal", state.CamNormal);
  values.add("CamDetector", state.CamDetector);
  values.add_file_name("CameraFile", state.CameraFile);
}

}  // namespace zol
