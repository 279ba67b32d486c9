// Crystals of the program made ready for indexing.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "indexing/window/auto_index_form.h"

namespace zol {

/// The present crystal and those of the list, in this order; what was made for an earlier picture is taken again. Sets
/// the families of the form and their marks where crystal or count are new.
/// @throws RunFailure  a crystal can't be read or has too few reflections; the message names it
[[nodiscard]] std::vector<std::shared_ptr<const CrystalModel>> crystal_models(Workbench& bench, AutoIndexForm& form);
/// With the dynamical pattern of each crystal as its sphere, as the pixels of such a picture see it. The patterns are
/// kept as long as the window is.
/// @throws RunFailure  also where a crystal has no atoms, or an element without scattering factor for electrons
[[nodiscard]] std::vector<std::shared_ptr<const CrystalModel>> dynamical_models(Workbench& bench, AutoIndexForm& form,
                                                                                int picture_width, double distance);

/// Only the present crystal. @returns a null pointer where there is none
[[nodiscard]] std::shared_ptr<const CrystalModel> present_crystal_model(Workbench& bench, AutoIndexForm& form);

/// The list of families with its marks.
void show_families(AutoIndexForm& form);

}  // namespace zol
