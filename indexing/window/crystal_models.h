// Crystals of the program made ready for indexing.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "indexing/window/auto_index_form.h"

namespace zol {

/// The present crystal and those of the list, in this order; what was made for an earlier picture is taken again. Sets
/// the families of the form and their marks where crystal or count are new.
/// @throws RunFailure  a crystal cannot be read or has too few reflections; the message names it
[[nodiscard]] std::vector<std::shared_ptr<const CrystalModel>> crystal_models(Workbench& bench, AutoIndexForm& form);

struct DynamicalModels {
  std::vector<std::shared_ptr<const CrystalModel>> models;
  std::vector<std::string> drawn_instead;  ///< crystals that have none, each with the reason
};
/// The same crystals in the same order with their dynamical patterns as spheres, as the pixels of a picture see them.
/// One that has none, for want of atoms or of a scattering factor for electrons, keeps its drawn bands.
/// @param pixel_deg  of fitted_pixel_deg
[[nodiscard]] DynamicalModels dynamical_models(Workbench& bench, AutoIndexForm& form,
                                               const std::vector<std::shared_ptr<const CrystalModel>>& models,
                                               double pixel_deg);
/// Of the present crystal. @throws RunFailure  it has none
[[nodiscard]] std::shared_ptr<const KinematicSphere> present_dynamical_sphere(Workbench& bench, AutoIndexForm& form,
                                                                              double pixel_deg);

/// Only the present crystal. @returns a null pointer where there is none
[[nodiscard]] std::shared_ptr<const CrystalModel> present_crystal_model(Workbench& bench, AutoIndexForm& form);

/// The list of families with its marks.
void show_families(AutoIndexForm& form);

}  // namespace zol
