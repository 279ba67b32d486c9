#include "shell/desktop/curve_scene.h"

#include <algorithm>
#include <variant>

namespace zol {

CurveRange CurveScene::all() const { return {std::min(scale.left, scale.right), std::max(scale.left, scale.right)}; }

double CurveScene::highest(const CurveRange& part) const {
  double highest = 0;
  const auto look_at = [&](const std::vector<CurvePoint>& points) {
    for (const auto& point : points) {
      if (part.holds(point.x)) highest = std::max(highest, point.y);
    }
  };
  for (const auto& curve : curves) look_at(curve.points);
  for (const auto& layer : layers) {
    if (!layer.below) look_at(layer.points);
  }
  return highest;
}

double CurveScene::height_at(double x) const {
  double height = 0;
  for (const auto& curve : curves) {
    const auto next = std::lower_bound(curve.points.begin(), curve.points.end(), x,
                                       [](const CurvePoint& point, double place) { return point.x < place; });
    if (next == curve.points.end()) continue;
    const auto before = next == curve.points.begin() ? next : next - 1;
    height = std::max({height, before->y, next->y});
  }
  return height;
}

CurveScene scene_of(const Canvas& canvas) {
  CurveScene scene;
  scene.scale = canvas.user_scale();
  for (const auto& primitive : canvas.drawing()) {
    const auto* line = std::get_if<DrawnLine>(&primitive.what);
    if (line == nullptr) continue;
    auto& curves = scene.curves;
    const bool goes_on = !curves.empty() && curves.back().colour == line->colour &&
                         curves.back().points.back().x == line->x1 && curves.back().points.back().y == line->y1;
    if (!goes_on) curves.push_back({{{line->x1, line->y1}}, line->colour});
    curves.back().points.push_back({line->x2, line->y2});
  }
  const auto& offer = *canvas.curve;
  if (offer.reflections) scene.reflections = offer.reflections();
  if (offer.layers) scene.layers = offer.layers();
  if (offer.radiation) scene.radiation = offer.radiation();
  return scene;
}

}  // namespace zol
