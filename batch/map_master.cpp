#include "batch/map_master.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <utility>

#include "batch/number_check.h"
#include "core/number_text.h"
#include "core/run_failure.h"
#include "dynamics/master_file.h"
#include "dynamics/master_sphere.h"
#include "dynamics/master_view.h"

namespace zol {
namespace {

constexpr auto made = "auto";
constexpr auto drawn = "none";

MasterSettings settings_of(const MapMasterWords& words, double kilovolt) {
  MasterSettings settings;
  settings.kilovolts = {kilovolt};
  settings.depth_nm = words.depth_nm;
  return settings;
}

/// @throws RunFailure  the message names the crystal
DynamicCrystal dynamic_of(const LoadedCrystal& crystal) {
  try {
    return dynamic_crystal(crystal.state, &crystal.group);
  } catch (const RunFailure& failure) {
    throw RunFailure(crystal.title + ": " + failure.message());
  }
}

MasterPattern made_master(const MapMasterWords& words, const LoadedCrystal& crystal, const MasterView& view,
                          Task& task) {
  MasterSettings settings = settings_of(words, view.kilovolt);
  settings.threads = view.threads;
  const DynamicCrystal dynamic = dynamic_of(crystal);
  suit_to_pixels(settings, dynamic, view.pixel_deg());
  return kept_master(dynamic, settings, task);
}

/// Why a pattern is not made unless it is asked for; empty: it is.
std::string obstacle(const MapMasterWords& words, const LoadedCrystal& crystal, double kilovolt) {
  constexpr double quick_seconds = 60;
  try {
    const double seconds = master_effort(dynamic_of(crystal), settings_of(words, kilovolt)).seconds;
    if (seconds <= quick_seconds) return "";
    return crystal.title + ": its pattern would take about " + Format(std::ceil(seconds / quick_seconds), "0") +
           " minutes of a core, --master auto makes it";
  } catch (const RunFailure& failure) {
    return failure.message();
  }
}

}  // namespace

void add_master_options(CLI::App& command, MapMasterWords& words) {
  const auto* group = "Indexing";
  command
      .add_option("--master", words.masters,
                  "dynamical pattern: auto, none, or a file for each crystal in their order; default: auto where it "
                  "takes less than a minute")
      ->group(group)
      ->allow_extra_args(false);
  command.add_option("--master-depth", words.depth_nm, "mean depth that the electrons come from, nm, of patterns made")
      ->group(group)
      ->check(number_from(0.1, 100));
}

std::string fingerprint_text(const MapMasterWords& words) {
  std::string text = "masters " + plain_text(words.depth_nm) + '\n';
  for (const auto& master : words.masters) {
    std::error_code error;
    const auto time = std::filesystem::last_write_time(master, error).time_since_epoch().count();
    text += master + '\n' + std::to_string(time) + '\n';
  }
  return text;
}

double MasterView::pixel_deg() const { return fitted_pixel_deg(width, centre.z); }

CrystalMasters::CrystalMasters(MapMasterWords words, const std::vector<LoadedCrystal>& crystals, double kilovolt)
    : words_(std::move(words)), crystals_(&crystals), of_crystal_(words_.masters) {
  const bool told = !of_crystal_.empty();
  if (!told) of_crystal_ = {made};
  if (of_crystal_.size() == 1 && (of_crystal_.front() == made || of_crystal_.front() == drawn)) {
    of_crystal_.resize(crystals.size(), of_crystal_.front());
  }
  if (of_crystal_.size() < crystals.size()) {
    throw RunFailure("--master: the crystal " + crystals[of_crystal_.size()].title +
                     " has none; give auto, none, or a file for each crystal");
  }
  for (std::size_t i = 0; !told && remark_.empty() && i < crystals.size(); ++i) {
    const std::string reason = obstacle(words_, crystals[i], kilovolt);
    if (reason.empty()) continue;
    remark_ = "drawn bands are fitted, not dynamical patterns: " + reason;
  }
  if (!remark_.empty()) std::fill(of_crystal_.begin(), of_crystal_.end(), drawn);
  of_files_.resize(crystals.size());
  for (std::size_t i = 0; i < crystals.size(); ++i) {
    if (of_crystal_[i] == made) {
      (void)dynamic_of(crystals[i]);
    } else if (of_crystal_[i] != drawn) {
      of_files_[i] = read_master(of_crystal_[i]);
    }
  }
}

bool CrystalMasters::any() const {
  return std::any_of(of_crystal_.begin(), of_crystal_.end(), [](const auto& master) { return master != drawn; });
}

std::string CrystalMasters::description(std::size_t number) const {
  const std::string& master = of_crystal_[number];
  if (master == drawn) return "drawn bands (kinematic)";
  return master == made ? "its dynamical pattern" : "the dynamical pattern of " + master;
}

std::shared_ptr<const KinematicSphere> CrystalMasters::sphere(std::size_t number, const MasterView& view,
                                                              Task& task) const {
  const std::string& master = of_crystal_[number];
  if (master == drawn) return nullptr;
  const double blur = fitted_blur_deg(view.pixel_deg());
  if (master != made) return master_sphere(of_files_[number], blur, task);
  return master_sphere(made_master(words_, (*crystals_)[number], view, task), blur, task);
}

}  // namespace zol
