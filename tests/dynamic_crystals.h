// Crystals of a few atoms with their symmetry, for tests of dynamical diffraction.
#pragma once

#include <Eigen/Geometry>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "dynamics/master_pattern.h"

namespace zol {

inline constexpr double pi = std::numbers::pi;

// Rows of the table of electron scattering factors.
inline const AtomKind nickel{{{.51798, 1.67723, 2.11169, 2.24565}, {.33471, 2.57932, 13.28815, 57.00906}}, 28, 0.35};
inline const AtomKind oxygen{{{.13465, .45033, .91967, .47763}, {.28884, 2.05482, 7.34789, 23.26133}}, 8, 0.5};

inline Eigen::Matrix3d turned(const Eigen::Vector3d& axis, double degrees) {
  return Eigen::AngleAxisd(degrees * pi / 180, axis.normalized()).toRotationMatrix();
}

/// All products of operations.
inline std::vector<Eigen::Matrix3d> group_of(const std::vector<Eigen::Matrix3d>& generators) {
  std::vector<Eigen::Matrix3d> all{Eigen::Matrix3d::Identity()};
  for (std::size_t i = 0; i < all.size(); ++i) {
    for (const auto& generator : generators) {
      const Eigen::Matrix3d product = generator * all[i];
      if (std::none_of(all.begin(), all.end(), [&](const auto& o) { return (o - product).norm() < 0.1; })) {
        all.push_back(product);
      }
    }
  }
  return all;
}

inline const Eigen::Vector3d x_axis = Eigen::Vector3d::UnitX(), z_axis = Eigen::Vector3d::UnitZ(), diagonal(1, 1, 1);
inline const Eigen::Matrix3d inversion = -Eigen::Matrix3d::Identity();

inline DynamicCrystal face_centred(const AtomKind& kind) {
  DynamicCrystal crystal{{3.5236, 3.5236, 3.5236, 90, 90, 90}, {{28, 1, {}, .35}}, {kind}, {}, {}, {}, true, 225, 0};
  crystal.centring = {{0, .5, .5}, {.5, 0, .5}, {.5, .5, 0}};
  crystal.atoms = {{0, 1, {}}, {0, 1, {0, .5, .5}}, {0, 1, {.5, 0, .5}}, {0, 1, {.5, .5, 0}}};
  crystal.operations = group_of({turned(z_axis, 90), turned(diagonal, 120), inversion});
  return crystal;
}

/// Zinc blende of a heavy and a light atom, class -43m.
inline DynamicCrystal zinc_blende() {
  DynamicCrystal crystal = face_centred(nickel);
  crystal.cell.a = crystal.cell.b = crystal.cell.c = 4.6;
  crystal.centrosymmetric = false;
  crystal.kinds.push_back(oxygen);
  for (std::size_t i = 0; i < 4; ++i) {
    DynamicAtom atom = crystal.atoms[i];
    atom.kind = 1;
    for (double& part : atom.position) part += .25;
    crystal.atoms.push_back(atom);
  }
  crystal.operations = group_of({inversion * turned(z_axis, 90), turned(diagonal, 120)});
  return crystal;
}

/// Three atoms on a right-handed or a left-handed threefold screw along c, with a twofold axis along a: class 32.
inline DynamicCrystal screw(bool right) {
  DynamicCrystal crystal;
  crystal.cell = {4.9, 4.9, 5.4, 90, 90, 120};
  crystal.kinds = {nickel};
  const double u = .2;
  const double third = right ? 1. / 3 : 2. / 3;
  crystal.atoms = {{0, 1, {u, 0, third}}, {0, 1, {0, u, 2 * third}}, {0, 1, {-u, -u, 0}}};
  crystal.operations = group_of({turned(z_axis, 120), turned(x_axis, 180)});
  return crystal;
}

inline MasterSettings small(int size, int threads = 1) {
  MasterSettings settings;
  settings.size = size;
  settings.smallest_spacing = 0.8;
  settings.beams = 24;
  settings.threads = threads;
  return settings;
}

inline std::vector<GridDirection> some_directions() {
  std::vector<GridDirection> directions;
  for (int i = 0; i < 24; ++i) {
    const double z = 1 - (2 * i + 1.) / 24;
    const double radius = std::sqrt(1 - z * z);
    directions.push_back({radius * std::cos(2.4 * i), radius * std::sin(2.4 * i), z});
  }
  return directions;
}

}  // namespace zol
