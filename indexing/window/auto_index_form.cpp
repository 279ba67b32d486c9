#include "indexing/window/auto_index_form.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

#include "core/miller_bravais.h"
#include "core/number_text.h"
#include "reflections/window/crystal_tables_form.h"

namespace zol {
namespace {

constexpr int pictures_twips = 15 * 640;  // 640 x 320 pixels: two pictures side by side

/// The orientation of the picked solution, or no rotation.
Rotation orientation(const IndexResult& result) {
  const auto* solution = result.solution();
  return solution != nullptr ? solution->found.crystal_from_picture : Rotation(Rotation::Zero());
}

template <class Matrix>
void store_matrix(StoreWriter& out, const Matrix& matrix) {
  out.raw(matrix.data(), sizeof(double) * static_cast<std::size_t>(matrix.size()));
}

template <class Matrix>
void load_matrix(StoreReader& in, Matrix& matrix) {
  const std::size_t bytes = sizeof(double) * static_cast<std::size_t>(matrix.size());
  std::memcpy(matrix.data(), in.raw(bytes).data(), bytes);
  if (!matrix.allFinite()) StoreReader::fail("an orientation is none");
}

void store_reflectors(StoreWriter& out, const ReflectorSet& set) {
  store(out, set.cell);
  store(out, set.families);
  out.count(set.members.size());
  for (const Reflector& member : set.members) {
    store(out, member.hkl);
    store_matrix(out, member.normal);
    out.number(member.family);
  }
  out.count(set.symmetry.size());
  for (const Rotation& rotation : set.symmetry) store_matrix(out, rotation);
}

/// Whether the members stand family by family, and are planes.
bool fit_together(const ReflectorSet& set) {
  std::size_t next = 0;
  for (std::size_t number = 0; number < set.families.size(); ++number) {
    const ReflectorFamily& family = set.families[number];
    if (family.first != static_cast<int>(next) || family.count < 1 ||
        set.members.size() - next < static_cast<std::size_t>(family.count))
      return false;
    if (!(family.weight > 0 && std::isfinite(family.weight) && family.bragg_rad > 0 && family.bragg_rad < 2))
      return false;
    for (int i = 0; i < family.count; ++i, ++next) {
      constexpr double rounding = 1e-6;
      const Reflector& member = set.members[next];
      if (member.family != static_cast<int>(number) || !(std::abs(member.normal.norm() - 1) < rounding)) return false;
    }
  }
  return next == set.members.size() && !set.symmetry.empty();
}

ReflectorSet load_reflectors(StoreReader& in) {
  ReflectorSet set;
  set.cell = load<CellConstants>(in);
  set.families = load<std::vector<ReflectorFamily>>(in);
  for (std::size_t left = in.count(); left > 0; --left) {
    Reflector member;
    member.hkl = load<std::array<int, 3>>(in);
    load_matrix(in, member.normal);
    member.family = in.number<int>();
    set.members.push_back(member);
  }
  for (std::size_t left = in.count(); left > 0; --left) load_matrix(in, set.symmetry.emplace_back());
  if (!fit_together(set)) StoreReader::fail("the planes of a crystal do not fit together");
  return set;
}

std::shared_ptr<const CrystalModel> load_model(StoreReader& in) {
  std::string title = in.text();
  ReflectorSet reflectors = load_reflectors(in);
  auto used = load<std::vector<bool>>(in);
  QuietTask task;
  return std::make_shared<const CrystalModel>(
      make_crystal_model(std::move(title), std::move(reflectors), std::move(used), nullptr, task));
}

}  // namespace

int IndexResult::next_number() {
  static int last = 0;
  return ++last;
}

bool IndexResult::compared() const {
  return std::any_of(solutions.begin(), solutions.end(), [](const Solution& solution) { return solution.dynamical; });
}

void Stored<IndexResult>::store(StoreWriter& out, const IndexResult& result) {
  zol::store(out, result.size);
  zol::store(out, result.centre);
  zol::store(out, result.bands);
  out.number(std::uint64_t{result.picked});
  zol::store(out, result.drawn_instead);
  std::vector<const CrystalModel*> models;  // each once
  for (const auto& solution : result.solutions) {
    if (std::find(models.begin(), models.end(), solution.model.get()) == models.end()) {
      models.push_back(solution.model.get());
    }
  }
  out.count(models.size());
  for (const CrystalModel* model : models) {
    out.text(model->title);
    store_reflectors(out, model->reflectors);
    zol::store(out, model->families_used);
  }
  out.count(result.solutions.size());
  for (const auto& solution : result.solutions) {
    out.number(
        static_cast<std::uint32_t>(std::find(models.begin(), models.end(), solution.model.get()) - models.begin()));
    const IndexSolution& found = solution.found;
    store_matrix(out, found.crystal_from_picture);
    out.number(found.matched);
    for (const double number : {found.mean_deviation_deg, found.votes, found.correlation, found.confidence}) {
      out.number(number);
    }
    zol::store(out, solution.matches);
    zol::store(out, solution.dynamical);
    out.number(solution.kinematic);
    zol::store(out, found.lead);
  }
}

IndexResult Stored<IndexResult>::load(StoreReader& in) {
  IndexResult result;
  result.size = zol::load<PictureSize>(in);
  result.centre = zol::load<PatternCentre>(in);
  result.bands = zol::load<std::vector<DetectedBand>>(in);
  result.picked = in.number<std::uint64_t>();
  result.drawn_instead = zol::load<std::vector<std::string>>(in);
  std::vector<std::shared_ptr<const CrystalModel>> models;
  for (std::size_t left = in.count(); left > 0; --left) models.push_back(load_model(in));
  for (std::size_t left = in.count(); left > 0; --left) {
    const auto number = in.number<std::uint32_t>();
    if (number >= models.size()) StoreReader::fail("an orientation is of no crystal");
    IndexResult::Solution solution;
    solution.model = models[number];
    solution.found.model = solution.model.get();
    load_matrix(in, solution.found.crystal_from_picture);
    solution.found.matched = in.number<int>();
    for (double* value : {&solution.found.mean_deviation_deg, &solution.found.votes, &solution.found.correlation,
                          &solution.found.confidence}) {
      *value = in.number<double>();
    }
    solution.matches = zol::load<std::vector<MatchedBand>>(in);
    solution.dynamical = zol::load<bool>(in);
    solution.kinematic = in.number<double>();
    solution.found.lead = zol::load<std::optional<double>>(in);
    const auto planes = static_cast<int>(solution.model->table->planes().size());
    const bool fits = solution.matches.size() == result.bands.size() &&
                      std::all_of(solution.matches.begin(), solution.matches.end(), [planes](const MatchedBand& match) {
                        return match.plane >= -1 && match.plane < planes;
                      });
    if (!fits) StoreReader::fail("the bands of an orientation are others");
    result.solutions.push_back(std::move(solution));
  }
  return result;
}

AutoIndexForm::AutoIndexForm(Workbench& bench)
    : Window(window_name, "AUTOMATIC INDEXING"),
      Simulated(*this, bench.services, "Simulated", pictures_twips, pictures_twips / 2),
      CommonDialog1(*this, bench.services, "CommonDialog1") {
  name_fields();
  BandCount.set_text("9");
  FamilyCount.set_text("6");
  SampleTilt.set_text("70");
  Beside.set_on(true);
  Blend.set_range(0, 100);
  Blend.set_value(50);
  reads = {shared::radiation};
  Solutions.made_from = Origin{{inputs::crystal(),
                                {"radiation", {"AccVoltage"}},
                                {"detector", {"CamAcquisition", "CamXShift", "CamYShift"}},
                                inputs::settings({}, {&BandCount, &CircleMask, &Dynamical})},
                               {&Index}};
  declare_tables();
}

void AutoIndexForm::declare_tables() {
  constexpr auto number = ListColumn::Number;
  constexpr auto word = ListColumn::Word;
  const auto table = [](ListColumns columns) { return std::make_shared<const ListColumns>(std::move(columns)); };
  Families.table =
      table({"Families of planes", always({{"taken", "", 2, word, ' ', "x: used, -: left out"},
                                           {"h", "", 3},
                                           {"k", "", 3},
                                           {"l", "", 3},
                                           {"n", "", 4, number, ' ', "planes of the family"},
                                           {"d", "Å", 8},
                                           {"width", "°", 8},
                                           {"F2", "%", 8, number, ' ', "|F|^2, of the strongest family"}})});
  Bands.table = table({"Bands", always({{"no", "", 3},
                                        {"azimuth", "°", 9},
                                        {"distance", "°", 9},
                                        {"width", "°", 7},
                                        {"strength", "", 9},
                                        {"h", "", 4},
                                        {"k", "", 3},
                                        {"l", "", 3},
                                        {"off", "°", 6, number, ' ', "from the plane of the picked solution"}})});
  const auto hexagonal = [this](const ListCells& row) {
    const auto rank = static_cast<std::size_t>(Val(row[0]));
    if (rank < 1 || rank > result.solutions.size()) return false;
    const CellConstants& cell = result.solutions[rank - 1].model->reflectors.cell;
    return has_hexagonal_axes(cell.a, cell.b, cell.alpha, cell.beta, cell.gamma);
  };
  const auto columns = [this] {
    std::vector<ListColumn> all{{"no"},
                                {"matched", "", 0, number, '/', "bands that are explained"},
                                {"bands"},
                                {"off", "°", 0, number, ' ', "mean deviation of the bands"},
                                {"corr", "", 0, number, ' ', "correlation with the picture"}};
    if (result.compared())
      all.push_back({"kin", "", 0, number, ' ', "correlation of the drawn bands with the picture"});
    all.insert(all.end(), {{"conf", "", 0, number, ' ', "confidence"},
                           {"u"},
                           {"v"},
                           {"w"},
                           {"phi1", "°"},
                           {"Phi", "°"},
                           {"phi2", "°"},
                           {"crystal", "", ListColumn::to_the_end, word}});
    return all;
  };
  const auto directions = [this, hexagonal] {
    return std::vector{direction_columns(result.compared() ? 7 : 6, hexagonal)};
  };
  Solutions.table = table({"Solutions", columns, {}, directions});
}

void AutoIndexForm::name_fields() {
  fields().keep("result", result);
  fields().keep("crystal_files", crystal_files);
  fields().keep("families_taken", families_taken);
  fields().keep("families_key", families_key);
  fields().keep("measured_in_front", measured_in_front);

  const auto from_one = [](int index, const char* name) {
    if (index < 1 || index > 3) throw RunFailure(std::string(name) + " has indices from 1 to 3");
    return index - 1;
  };
  fields().add_computed("Orientation", 2, [this, from_one](std::span<const int> at) {
    return plain_text(orientation(result)(from_one(at[0], "Orientation"), from_one(at[1], "Orientation")));
  });
  fields().add_computed("Euler", 1, [this, from_one](std::span<const int> at) {
    const auto index = static_cast<std::size_t>(from_one(at[0], "Euler"));
    const auto* solution = result.solution();
    if (solution == nullptr) return plain_text(0.0);
    return plain_text(
        bunge_deg(solution->found.crystal_from_picture * picture_from_sample(Val(SampleTilt.text())))[index]);
  });
  const auto number = [this](const char* name, double (*value)(const AutoIndexForm&)) {
    fields().add_computed(name, 0, [this, value](std::span<const int>) { return plain_text(value(*this)); });
  };
  number("Matched", [](const AutoIndexForm& form) {
    return form.result.solution() != nullptr ? static_cast<double>(form.result.solution()->found.matched) : 0.0;
  });
  number("Fit", [](const AutoIndexForm& form) {
    return form.result.solution() != nullptr ? form.result.solution()->found.mean_deviation_deg : 0.0;
  });
  number("Confidence", [](const AutoIndexForm& form) {
    return form.result.solution() != nullptr ? form.result.solution()->found.confidence : 0.0;
  });
  // As the detector shows the picture, before it was turned.
  number("CentreX", [](const AutoIndexForm& form) { return form.result.centre.x; });
  number("CentreY", [](const AutoIndexForm& form) { return upside_down(form.result.centre, form.result.size).y; });
  number("CentreZ", [](const AutoIndexForm& form) { return form.result.centre.z; });
}

}  // namespace zol
