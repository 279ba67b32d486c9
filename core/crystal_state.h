// The one crystal of the program and what its windows share: plain data without behaviour.
//
// Main1State holds the fields that live on the window Main1, Module1State the arrays and scalars beside it. Arrays are
// used from 1, with the count in a scalar; entry 0 stays free unless a rule says otherwise. Lengths are in angstroms,
// reciprocal lengths in inverse angstroms without a factor 2 pi, angles in degrees.
#pragma once

#include "core/bounded_array.h"
#include "core/numbers.h"

namespace zol {

inline constexpr int max_sites = 1000;              ///< atoms of the asymmetric unit
inline constexpr int max_cell_atoms = 2000;         ///< atoms of the unit cell
inline constexpr int max_jcpds_rows = 200;          ///< observed powder reflections
inline constexpr int max_scatter_rows = 300;        ///< rows of a scattering factor table
inline constexpr int space_group_files = 250;       ///< files that are there at the start
inline constexpr int max_space_group_number = 299;  ///< highest number that is looked up

/// Scattering factor of one element: sum of A * exp(-B * s^2) over four pairs, and C; s = sin(theta)/lambda in
/// 1/angstrom.
struct AsfRow {
  bool operator==(const AsfRow&) const = default;
  Single A1 = 0;
  String Element;  ///< key, compared exactly with the element of an atom
  Single B1 = 0;
  Single A2 = 0, B2 = 0, A3 = 0, B3 = 0, A4 = 0, B4 = 0;
  Single C = 0;
  Integer Z;  ///< atomic number, for the conversion to electrons
};

struct Main1State {
  // Cell
  Single CellA = 0, CellB = 0, CellC = 0;
  Single CellAlpha = 0, CellBeta = 0, CellGamma = 0;
  Integer SGNumber;      ///< number of the space group file, 0 when nothing is entered
  String LatticeLetter;  ///< first character of SGName; drives the reflection conditions

  // Derived by CalcCell; they keep the values of the last possible cell
  Single CosAlpha = 0, CosBeta = 0, CosGamma = 0;
  Single SinAlpha = 0, SinBeta = 0, SinGamma = 0;
  Single CellVolume = 0;
  Single AStar = 0, BStar = 0, CStar = 0;
  Single AlphaStar = 0, BetaStar = 0, GammaStar = 0;
  Single CosAlphaStar = 0, CosBetaStar = 0, CosGammaStar = 0;
  Single SinAlphaStar = 0, SinBetaStar = 0, SinGammaStar = 0;

  // Beam and calculation settings
  Long RefCount;         ///< reflections in the Ref arrays
  Long KikuchiRefLimit;  ///< reflections that a Kikuchi pattern draws; 0 means all
  Single WaveLength = 0;
  Single Dmin = 0;         ///< smallest d-spacing of the list
  Single AccVoltage = 0;   ///< kV; 0 for an X-ray source
  Single MassRatio = 0;    ///< m/m0 of the electron
  Integer ScatterMissing;  ///< 1 when an element had no row in the present calculation

  // Pattern state, shared by the pattern windows
  Single ZoneU = 0, ZoneV = 0, ZoneW = 0;
  Single PrevZoneU = 0, PrevZoneV = 0, PrevZoneW = 0;
  Integer NewZoneU, NewZoneV, NewZoneW;
  Integer PatternFlag;
  Single TiltTheta = 0, TiltPhi = 0;
  Integer Level;
  Integer OriginH, OriginK, OriginL;
  Integer NewOriginH, NewOriginK, NewOriginL;
  Integer MarkH, MarkK, MarkL;
  Single PatternAngle = 0, PatternAngleStep = 0;  ///< radians
  Single SpotScale = 0;
  Single TiltX = 0, TiltY = 0;
  Single Dispersion = 0;
  Single DisplayScale = 0;

  // Text and tables
  String CrystalFile;  ///< path chosen last in a file dialog of Main1, crystal file or report
  String SystemName;   ///< crystal system word of the space group file
  String SGName;       ///< space group symbol
  String SGFile;       ///< path of the space group file opened last
  String AxisSetting;
  BoundedArray<AsfRow> AsfX{"AsfX", max_scatter_rows};
  Integer AsfXCount;
  BoundedArray<AsfRow> AsfE{"AsfE", max_scatter_rows};  ///< read, never used: electron factors come from AsfX
  Integer AsfECount;
  BoundedArray<String> SGNames{"SGNames", 300};
};

struct Module1State {
  // Asymmetric unit
  Integer NAtom;  ///< -1: neither atoms nor observed reflections; 0: no atoms, observed reflections may stand
  BoundedArray<String> AtomLabel{"AtomLabel", max_sites};
  BoundedArray<String> AtomElement{"AtomElement", max_sites};
  BoundedArray<Single> AtomOcc{"AtomOcc", max_sites};
  BoundedTable<Single> AtomPos{"AtomPos", max_sites, 3};  ///< fractional, columns 1 to 3
  BoundedArray<Single> AtomB{"AtomB", max_sites};         ///< isotropic, square angstroms

  // Unit cell, filled by AtomCcalc alone
  Integer NCell;
  BoundedArray<String> UCLabel{"UCLabel", max_cell_atoms};
  BoundedArray<String> UCElement{"UCElement", max_cell_atoms};
  BoundedArray<Single> UCOcc{"UCOcc", max_cell_atoms};
  BoundedTable<Single> UCPos{"UCPos", max_cell_atoms, 3};  ///< 0 <= x < 1, columns 1 to 3
  BoundedArray<Single> UCB{"UCB", max_cell_atoms};

  // Observed powder reflections; the indices are floats
  Integer JcpdsCount;
  BoundedArray<Single> JcpdsH{"JcpdsH", max_jcpds_rows};
  BoundedArray<Single> JcpdsK{"JcpdsK", max_jcpds_rows};
  BoundedArray<Single> JcpdsL{"JcpdsL", max_jcpds_rows};
  BoundedArray<Single> JcpdsI{"JcpdsI", max_jcpds_rows};

  // Reflection list, made anew by each calculation
  BoundedArray<Integer> RefH{"RefH"};
  BoundedArray<Integer> RefK{"RefK"};
  BoundedArray<Integer> RefL{"RefL"};
  BoundedArray<Single> RefS{"RefS"};  ///< sin(theta)/lambda = 1/(2d)
  BoundedArray<Single> RefA{"RefA"};  ///< real part of the structure factor
  BoundedArray<Single> RefB{"RefB"};  ///< imaginary part
  BoundedArray<Single> RefI{"RefI"};
  BoundedArray<Single> RefTwoTheta{"RefTwoTheta"};  ///< degrees, 0 when there is no angle
  BoundedTable<Integer> BandHKL{"BandHKL"};         ///< h, k, l of the Kikuchi band list, columns 0 to 2

  // Camera
  Single CamXShift = 0;       ///< pattern centre in x, degrees
  Single CamYShift = 0;       ///< pattern centre in y, degrees
  Single CamAcquisition = 0;  ///< half opening of the picture: degrees (Kikuchi) or inverse angstroms (spots, fiber)
  Single CamXYRatio = 0;      ///< scale of y against x
  Single CamNormal = 0;       ///< substrate normal against the screen normal, degrees
  Single CamDetector = 0;     ///< edge of the detector, mm
  String CameraFile;
};

/// All of it. Calculations take it whole; the two parts are told apart because touching a field of Main1 is a use of
/// that window.
struct CrystalState : Main1State, Module1State {};

}  // namespace zol
