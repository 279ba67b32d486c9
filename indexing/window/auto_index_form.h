// The window that indexes the measured pattern of PATTERN3 without a hand.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "indexing/detector.h"
#include "indexing/pattern_indexer.h"
#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

/// A crystal that was made ready, and what it was made of.
struct ReadyCrystal {
  std::string key;  ///< cell, symmetry, atoms, voltage
  std::shared_ptr<const CrystalModel> model;
};

/// A crystal's dynamical pattern as the pixels of a picture see it.
struct ReadySphere {
  std::string key;  ///< that of the crystal, and the size of the pixels
  std::shared_ptr<const KinematicSphere> sphere;
};

/// What was found in a picture; a value, so that it is kept and put back with the window.
struct IndexResult {
  struct Solution {
    std::shared_ptr<const CrystalModel> model;
    IndexSolution found;
    std::vector<MatchedBand> matches;
    bool dynamical = false;  ///< fitted to the crystal's dynamical pattern
    double kinematic = 0;    ///< correlation of the drawn bands in its place
  };
  PictureSize size;
  PatternCentre centre;  ///< of the picture as it is in PATTERN3
  std::vector<DetectedBand> bands;
  std::vector<Solution> solutions;
  std::size_t picked = 0;
  std::vector<std::string> drawn_instead;  ///< of a dynamical fit: crystals without such a pattern, and why
  int number = next_number();              ///< of the indexing: results with the same one are the same
  /// Another one at each call.
  [[nodiscard]] static int next_number();
  [[nodiscard]] bool operator==(const IndexResult& other) const {
    return number == other.number && picked == other.picked;
  }
  /// Whether solutions have both correlations.
  [[nodiscard]] bool compared() const;
  [[nodiscard]] const Solution* solution() const { return picked < solutions.size() ? &solutions[picked] : nullptr; }
};

/// What was found, and of the crystals what they are made of; loading makes them ready again, and gives the result a
/// number of its own.
template <>
struct Stored<IndexResult> {
  static void store(StoreWriter& out, const IndexResult& result);
  static IndexResult load(StoreReader& in);
};

struct AutoIndexForm : Window {
  static constexpr auto window_name = "AutoIndex";
  static constexpr bool shows_crystal_data = true;

  explicit AutoIndexForm(Workbench& bench);

  TextBox BandCount{*this, "BandCount", "Bands:"};
  TextBox FamilyCount{*this, "FamilyCount", "Families:"};
  TextBox SampleTilt{*this, "SampleTilt", "Sample tilt (deg):"};
  CheckBox CircleMask{*this, "CircleMask", "Round picture"};
  CheckBox Dynamical{*this, "Dynamical", "Dynamical"};  // fits to the crystal's dynamical pattern
  CommandButton Index{*this, "Index", "Index"};
  CommandButton RefineCentre{*this, "RefineCentre", "Refine centre"};
  CommandButton Show{*this, "Show", "Show in simulation"};
  CommandButton TakeLines{*this, "TakeLines", "Take lines"};
  CommandButton CopyReport{*this, "CopyReport", "Copy report"};
  Label Status{*this, "Status"};  // what was found, or why not

  ListBox Crystals{*this, "Crystals"};  // files tried beside the present crystal
  CommandButton AddCrystal{*this, "AddCrystal", "Add crystal..."};
  CommandButton RemoveCrystal{*this, "RemoveCrystal", "Remove"};
  Label FamiliesHeading{*this, "FamiliesHeading", "    h  k  l   n   d (A)   width  F2 (%)"};
  ListBox Families{*this, "Families"};
  CommandButton ToggleFamily{*this, "ToggleFamily", "Leave out / take in"};
  Label BandsHeading{*this, "BandsHeading", " no  azimuth distance  width strength   h  k  l   off"};
  ListBox Bands{*this, "Bands"};
  static constexpr auto solutions_heading = "no bands    off  corr. conf.      u      v      w   phi1    Phi   phi2";
  static constexpr auto compared_heading =
      "no bands    off  corr.   kin. conf.      u      v      w   phi1    Phi   phi2";
  Label SolutionsHeading{*this, "SolutionsHeading", solutions_heading};
  ListBox Solutions{*this, "Solutions"};

  Canvas Simulated;
  OptionButton Beside{*this, "Beside", "Beside", "view"};
  OptionButton Over{*this, "Over", "Over", "view"};
  OptionButton Alternating{*this, "Alternating", "Alternating", "view"};
  Slider Blend{*this, "Blend", "Simulated (%):"};
  MenuItem MakerCentre{*this, "MakerCentre", "Centre from numbers...", "Detector"};
  MenuItem SaveSimulated{*this, "SaveSimulated", "Save picture...", "Picture"};

  FileDialog CommonDialog1;

  // Kept with the window
  IndexResult result;
  std::vector<std::string> crystal_files;
  std::vector<bool> families_taken;  ///< by the user's marks, for the present crystal
  std::string families_key;          ///< crystal and count that the marks belong to
  bool measured_in_front = false;    ///< of the alternating view

  // Made again where they are missing
  std::vector<ReadyCrystal> ready;
  std::vector<ReadySphere> spheres;
  PatternIndexer indexer;

 private:
  void name_fields();
  void declare_tables();
};

}  // namespace zol
