#include "structures/cell_vectors.h"

#include "structures/contents.h"

namespace zol {

double CellVectors::volume() const { return dot(edges[0], cross(edges[1], edges[2])); }

CellConstants CellVectors::cell(Notes& notes) const {
  const auto& [a, b, c] = edges;
  if (volume() < 0) notes.doubt("the cell vectors are left-handed; the crystal is mirrored");
  const CellConstants constants{length(a), length(b), length(c), angle_deg(b, c), angle_deg(c, a), angle_deg(a, b)};
  check_cell(constants);
  return constants;
}

DirectVector CellVectors::fractional(const CartesianVector& position) const {
  const auto& [a, b, c] = edges;
  return {dot(position, cross(b, c)) / volume(), dot(position, cross(c, a)) / volume(),
          dot(position, cross(a, b)) / volume()};
}

}  // namespace zol
