#include "entry/atom_site.h"

namespace zol {

void store_site(Module1State& crystal, int row, const AtomSite& site) {
  crystal.AtomLabel(row) = site.label;
  crystal.AtomElement(row) = site.element;
  crystal.AtomOcc(row) = site.occupancy;
  int axis = 0;
  for (const Single coordinate : site.position) crystal.AtomPos(row, ++axis) = coordinate;
  if (site.b) crystal.AtomB(row) = *site.b;
}

}  // namespace zol
