#include "calculators/window/bonds_form.h"

namespace zol {

BondsForm::BondsForm(Workbench& bench) : Window(window_name, "Bonds and angles") {
  beside = "AtomDistance";
  Gap.set_text("10");
  warn({&Calc, &Limit, &Gap}, [&seen = bench.seen()] { return guard::when(seen.NAtom < 1, "there are no atoms"); });
  const Origin made{{inputs::crystal(), inputs::settings({}, {&Limit, &Gap})}, {&Calc}};
  Sites.made_from = made;
  BondList.made_from = made.without_button();
  Angles.made_from = made.without_button();
  declare_tables();
}

void BondsForm::declare_tables() {
  constexpr auto number = ListColumn::Number;
  constexpr auto word = ListColumn::Word;
  const auto table = [](const char* title, std::vector<ListColumn> columns) {
    return std::make_shared<const ListColumns>(ListColumns{title, always(std::move(columns))});
  };
  Sites.table = table("Coordination", {{"atom", "", 8, word},
                                       {"element", "", 6, word},
                                       {"CN", "", 5, number, ' ', "coordination number"},
                                       {"shortest", "Å", 10},
                                       {"mean", "Å", 10},
                                       {"longest", "Å", 10},
                                       {"next", "Å", 10, number, ' ', "nearest atom that is not bonded"}});
  BondList.table = table("Bonds", {{"atom 1", "", 8, word},
                                   {"element 1", "", 6, word},
                                   {"atom 2", "", 8, word},
                                   {"element 2", "", 6, word},
                                   {"distance", "Å", 10},
                                   {"x", "", 10, number, ' ', "of the second atom"},
                                   {"y", "", 10},
                                   {"z", "", 10}});
  Angles.table = table("Angles", {{"atom 1", "", 8, word},
                                  {"centre", "", 8, word},
                                  {"atom 2", "", 8, word},
                                  {"angle", "°", 9},
                                  {"d 1", "Å", 10},
                                  {"d 2", "Å", 10}});
}

}  // namespace zol
