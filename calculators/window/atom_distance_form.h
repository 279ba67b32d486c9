// The window that lists the distances between atoms.
#pragma once

#include "calculators/atom_distances.h"
#include "shell/services/guards.h"
#include "shell/services/list_columns.h"
#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

struct AtomDistanceForm : Window {
  static constexpr auto window_name = "AtomDistance";
  static constexpr bool shows_crystal_data = true;

  explicit AtomDistanceForm(Workbench& bench) : Window(window_name, "Atom Distance") {
    fields().add("CellA", cell.CellA);
    fields().add("CellB", cell.CellB);
    fields().add("CellC", cell.CellC);
    fields().add("CosAlpha", cell.CosAlpha);
    fields().add("CosBeta", cell.CosBeta);
    fields().add("CosGamma", cell.CosGamma);
    fields().add("DistanceMax", DistanceMax);
    warn({&Command1, &Text1}, [this, &seen = bench.seen()] {
      return guard::first_of({guard::when(seen.NAtom < 1, "there are no atoms"),
                              guard::when(!(DistanceMax > 0), "the largest distance is not above 0")});
    });
    constexpr auto word = ListColumn::Word;
    BondsAndAngles.warn_when = [&seen = bench.seen()] { return guard::when(seen.NAtom < 1, "there are no atoms"); };
    List1.table = std::make_shared<const ListColumns>(
        ListColumns{"Distances",
                    always({{"atom 1", "", 7, word},
                            {"", "", 0, word, '('},
                            {"element 1", "", 0, word, ')'},
                            {"", "", 0, word, '-'},
                            {"atom 2", "", 7, word},
                            {"", "", 0, word, '('},
                            {"element 2", "", 0, word, ')'},
                            {"distance", "Å"}}),
                    [](std::string_view line) { return !line.starts_with("---"); }});
    List1.made_from = Origin{{inputs::crystal(), inputs::settings({}, {&Text1})}, {&Command1}};
  }

  TextBox Text1{*this, "Text1", "distance maximum (A)="};
  CommandButton Command1{*this, "Command1", "Calc"};
  ListBox List1{*this, "List1"};
  CommandButton BondsAndAngles{*this, "BondsAndAngles", "Bonds and angles"};

  DistanceCell cell;       ///< as it was at the last calculation
  Single DistanceMax = 0;  ///< angstroms
};

}  // namespace zol
