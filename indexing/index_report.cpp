#include "indexing/index_report.h"

#include <nlohmann/json.hpp>
#include <numbers>

#include "core/number_text.h"

namespace zol {
namespace {

constexpr double per_radian = 180 / std::numbers::pi;
constexpr auto decimals4 = "0.0000";
constexpr auto decimals2 = "0.00";

std::string numbers(std::span<const double> values, const char* format) {
  std::string text;
  for (const double value : values) text += (text.empty() ? "" : " ") + Format(value, format);
  return text;
}

struct Maker {
  const char* name;
  CentreConvention convention;
};
constexpr std::array makers{Maker{"Bruker", CentreConvention::Bruker}, Maker{"EDAX", CentreConvention::Edax},
                            Maker{"Oxford", CentreConvention::Oxford}, Maker{"EMsoft", CentreConvention::Emsoft}};

std::array<double, 3> maker_centre(const ReportedSolution& reported, CentreConvention convention) {
  return written_centre(upside_down(reported.centre, reported.size), convention, reported.size);
}

std::array<double, 3> euler(const ReportedSolution& reported) {
  return bunge_deg(reported.solution->crystal_from_picture * picture_from_sample(reported.sample_tilt_deg));
}

std::string correlation_text(const ReportedSolution& reported) {
  const std::string correlation = Format(reported.solution->correlation, "0.000");
  if (!reported.kinematic) return correlation;
  return correlation + " dynamical, " + Format(*reported.kinematic, "0.000") + " kinematic";
}

}  // namespace

std::array<double, 3> middle_direction(const ReportedSolution& reported) {
  const Lattice lattice(reported.solution->model->reflectors.cell);
  const Projection projection{reported.centre, static_cast<double>(reported.size.width)};
  const Vector3 direction = reported.solution->crystal_from_picture *
                            projection.direction(reported.size.width / 2.0, reported.size.height / 2.0).normalized();
  const DirectVector uvw = lattice.direct(CartesianVector{direction[0], direction[1], direction[2]});
  const double largest = std::max({std::abs(uvw.u), std::abs(uvw.v), std::abs(uvw.w)});
  return {uvw.u / largest, uvw.v / largest, uvw.w / largest};
}

std::vector<std::string> report_lines(const ReportedSolution& reported) {
  const IndexSolution& solution = *reported.solution;
  std::vector<std::string> lines{"crystal: " + solution.model->title};
  for (const auto& [name, convention] : makers) {
    lines.push_back(
        "pattern centre (" + std::string(name) + "): " +
        numbers(maker_centre(reported, convention), convention == CentreConvention::Emsoft ? decimals2 : decimals4));
  }
  const auto angles = angles_of(reported.centre, reported.size);
  lines.push_back("half angle " + Format(angles.half_width_deg, decimals4) + ", x shift " +
                  Format(angles.x_shift_deg, decimals4) + ", y shift " + Format(angles.y_shift_deg, decimals4) +
                  " deg");
  lines.emplace_back("crystal axes from picture axes:");
  for (int row = 0; row < 3; ++row) {
    const Vector3 values = solution.crystal_from_picture.row(row);
    lines.push_back("  " + numbers(std::array{values[0], values[1], values[2]}, "0.000000"));
  }
  lines.push_back("quaternion: " + numbers(quaternion_of(solution.crystal_from_picture), "0.000000"));
  lines.push_back("Euler angles (Bunge, sample tilt " + plain_text(reported.sample_tilt_deg) +
                  "): " + numbers(euler(reported), decimals2) + " deg");
  lines.push_back("bands matched " + std::to_string(solution.matched) + " of " + std::to_string(reported.bands.size()) +
                  ", mean deviation " + Format(solution.mean_deviation_deg, decimals2) + " deg, correlation " +
                  correlation_text(reported) + ", confidence " + Format(solution.confidence, decimals2));
  for (const MatchedBand& match : reported.matches) {
    const DetectedBand& band = reported.bands[static_cast<std::size_t>(match.band)];
    std::string line = "band " + std::to_string(match.band + 1) + ": azimuth " +
                       Format(band.azimuth_rad * per_radian, decimals2) + ", distance " +
                       Format(band.distance_rad * per_radian, decimals2) + ", width " +
                       Format(2 * band.half_width_rad * per_radian, decimals2) + " deg";
    if (match.plane >= 0) {
      const auto& hkl = solution.model->table->planes()[static_cast<std::size_t>(match.plane)].hkl;
      line += ", (" + std::to_string(hkl[0]) + " " + std::to_string(hkl[1]) + " " + std::to_string(hkl[2]) +
              ") off by " + Format(match.deviation_deg, decimals2);
    }
    lines.push_back(line);
  }
  return lines;
}

std::string report_json(const ReportedSolution& reported) {
  const IndexSolution& solution = *reported.solution;
  nlohmann::json json;
  json["crystal"] = solution.model->title;
  json["picture"] = {{"width", reported.size.width}, {"height", reported.size.height}};
  for (const auto& [name, convention] : makers) {
    if (convention != CentreConvention::Emsoft) json["pattern_centre"][name] = maker_centre(reported, convention);
  }
  for (int row = 0; row < 3; ++row) {
    const Vector3 values = solution.crystal_from_picture.row(row);
    json["crystal_from_picture"].push_back(std::array{values[0], values[1], values[2]});
  }
  json["quaternion"] = quaternion_of(solution.crystal_from_picture);
  json["sample_tilt_deg"] = reported.sample_tilt_deg;
  json["euler_bunge_deg"] = euler(reported);
  json["matched"] = solution.matched;
  json["mean_deviation_deg"] = solution.mean_deviation_deg;
  json["correlation"] = solution.correlation;
  if (reported.kinematic) json["kinematic_correlation"] = *reported.kinematic;
  json["confidence"] = solution.confidence;
  json["bands"] = nlohmann::json::array();
  for (const MatchedBand& match : reported.matches) {
    const DetectedBand& band = reported.bands[static_cast<std::size_t>(match.band)];
    nlohmann::json entry{{"azimuth_deg", band.azimuth_rad * per_radian},
                         {"distance_deg", band.distance_rad * per_radian},
                         {"width_deg", 2 * band.half_width_rad * per_radian},
                         {"strength", band.strength}};
    if (match.plane >= 0) {
      entry["hkl"] = solution.model->table->planes()[static_cast<std::size_t>(match.plane)].hkl;
      entry["deviation_deg"] = match.deviation_deg;
    }
    json["bands"].push_back(entry);
  }
  // Names of crystals are Latin-1 in the program; what is no UTF-8 is replaced.
  return json.dump(2, ' ', true, nlohmann::json::error_handler_t::replace);
}

}  // namespace zol
