// Public operations of Main1 that other windows call too.
#pragma once

#include <array>

#include "shell/services/workbench.h"

namespace zol {

struct Main1Form;

/// The cell constants give the derived fields and the boxes of the reciprocal cell; an impossible cell changes no box.
void CalcCell(Workbench& bench);

/// Sites to unit cell: reads the operators of SGFile, fills the UC arrays, List1 and Label20.
/// @throws RunFailure  SGFile cannot be read, or the cell has more than 2000 atoms
void AtomCcalc(Workbench& bench);

/// Reads the names of the 250 space group files.
void LoadSGNames(Workbench& bench);

/// The reflection list of the present crystal: arrays, List2 and Label26. Asks for Dmin until it is positive. An
/// element without a scattering factor empties the list and gives a message.
void CalcReflections(Workbench& bench);

/// "Calc": CalcReflections, then the triple table of PATTERN3, which reorders the list.
void calculate(Workbench& bench);

/// Writes the constants (angstroms, degrees), the number of the space group and the choice of axes into the boxes. That
/// runs their handlers: the cell is computed, the space group looked up.
void show_cell(Main1Form& form, const std::array<Single, 6>& cell, Integer number, const String& axes);

/// The title of the crystal's file goes to the windows that draw from it.
void show_title(Workbench& bench, const std::string& title);

/// Asks for a crystal file and loads it, as the menu of Main1 does.
void load_crystal_file(Workbench& bench);

/// The same for other windows.
void CRYSTAL_SELECT(Workbench& bench);

}  // namespace zol
