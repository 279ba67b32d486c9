// The steps to a reflection list, each committed at once.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "reflections/reflection_list.h"

namespace zol {

inline void enumerate_reflections(CrystalState& state, const EnumerationSettings& settings) {
  QuietTask task;
  commit(state, enumerate_reflections(std::as_const(state), settings, task));
}

/// The list that the state holds.
inline ReflectionList list_in(const CrystalState& state) {
  ReflectionList list;
  list.count = state.RefCount;
  list.h = state.RefH;
  list.k = state.RefK;
  list.l = state.RefL;
  list.s = state.RefS;
  list.a = state.RefA;
  list.b = state.RefB;
  list.i = state.RefI;
  list.two_theta = state.RefTwoTheta;
  list.bands = state.BandHKL;
  return list;
}

inline void sort_by_s(CrystalState& state) {
  QuietTask task;
  auto list = list_in(state);
  sort_list(list, task);
  commit(state, std::move(list));
}

/// @returns the lines
inline std::vector<std::string> compute_list(CrystalState& state, const Radiation& radiation) {
  QuietTask task;
  auto list = list_in(state);
  compute_list(state, radiation, list, task);
  auto lines = std::move(list.lines);
  commit(state, std::move(list));
  return lines;
}

}  // namespace zol
