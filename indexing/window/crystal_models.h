// Crystals of the program made ready for indexing.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "dynamics/master_view.h"
#include "indexing/window/auto_index_form.h"

namespace zol {

/// The present crystal and those of the list, in this order; what was made for an earlier picture is taken again. Sets
/// the families of the form and their marks where crystal or count are new.
/// @throws RunFailure  a crystal can't be read or has too few reflections; the message names it
[[nodiscard]] std::vector<std::shared_ptr<const CrystalModel>> crystal_models(Workbench& bench, AutoIndexForm& form);

/// The same ones in the same order with the dynamical pattern in place of the drawn bands, made or taken from the
/// cache.
/// @throws RunFailure  a crystal has no such pattern; the message names it
[[nodiscard]] std::vector<std::shared_ptr<const CrystalModel>> dynamical_models(
    Workbench& bench, AutoIndexForm& form, const std::vector<std::shared_ptr<const CrystalModel>>& models,
    const MasterView& view);

/// The model of the present crystal with its dynamical pattern. @throws RunFailure  it has none
[[nodiscard]] std::shared_ptr<const CrystalModel> present_dynamical_model(
    Workbench& bench, AutoIndexForm& form, const std::shared_ptr<const CrystalModel>& model, const MasterView& view);

/// Only the present crystal. @returns a null pointer where there is none
[[nodiscard]] std::shared_ptr<const CrystalModel> present_crystal_model(Workbench& bench, AutoIndexForm& form);

/// The list of families with its marks.
void show_families(AutoIndexForm& form);

}  // namespace zol
