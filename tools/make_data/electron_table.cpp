#include "tools/make_data/electron_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gemmi/c4322.hpp>
#include <gemmi/levmar.hpp>
#include <utility>
#include <vector>

#include "core/record_writer.h"

namespace zol {
namespace {

constexpr int last_element = 98;    // Cf
constexpr std::size_t n_terms = 4;  // Gaussians of the table
constexpr double s_limit = 2.0;     // 1/Å, end of the range of the source
constexpr int n_steps = 200;        // from 0 to the limit

struct Term {
  double a = 0.0;  ///< Å
  double b = 0.0;  ///< Å^2
};

using Gaussians = gemmi::C4322<double>::Coef;

/// Point and model in the shape that gemmi's least squares ask for. The parameters are a1, ln b1, ... a4, ln b4, so
/// that no exponent turns negative.
struct Point {
  double s_squared = 0.0;
  double factor = 0.0;
  [[nodiscard]] double get_y() const { return factor; }
  [[nodiscard]] static double get_weight() { return 1.0; }
};

struct FourGaussians {
  std::vector<Point> points;
  std::vector<Term> terms;

  [[nodiscard]] std::vector<double> get_parameters() const {
    std::vector<double> parameters;
    for (const auto& [a, b] : terms) {
      parameters.push_back(a);
      parameters.push_back(std::log(b));
    }
    return parameters;
  }
  void set_parameters(const std::vector<double>& parameters) {
    for (std::size_t i = 0; i < terms.size(); ++i) terms[i] = {parameters[2 * i], std::exp(parameters[2 * i + 1])};
  }
  [[nodiscard]] double value(double s_squared) const {
    double sum = 0.0;
    for (const auto& [a, b] : terms) sum += a * std::exp(-b * s_squared);
    return sum;
  }
  [[nodiscard]] std::vector<double> compute_values() const {
    std::vector<double> values;
    for (const auto& point : points) values.push_back(value(point.s_squared));
    return values;
  }
  /// Derivatives stand point by point, each with all parameters in their order.
  void compute_values_and_derivatives(std::size_t first, std::size_t count, std::vector<double>& values,
                                      std::vector<double>& derivatives) const {
    for (std::size_t i = 0; i < count; ++i) {
      const double s_squared = points[first + i].s_squared;
      values[i] = value(s_squared);
      for (std::size_t term = 0; term < terms.size(); ++term) {
        const auto& [a, b] = terms[term];
        const double gaussian = std::exp(-b * s_squared);
        const std::size_t at = 2 * (i * terms.size() + term);
        derivatives[at] = gaussian;
        derivatives[at + 1] = -a * b * s_squared * gaussian;  // by ln b
      }
    }
  }
};

/// The five terms, with the two whose exponents are nearest to each other made one.
std::vector<Term> starting_terms(const Gaussians& five) {
  std::vector<Term> terms(5);
  for (int i = 0; i < 5; ++i) terms[static_cast<std::size_t>(i)] = {five.a(i), five.b(i)};
  std::sort(terms.begin(), terms.end(), [](const Term& p, const Term& q) { return p.b < q.b; });
  std::size_t nearest = 0;
  for (std::size_t i = 1; i < n_terms; ++i) {
    if (terms[i + 1].b / terms[i].b < terms[nearest + 1].b / terms[nearest].b) nearest = i;
  }
  const Term low = terms[nearest];
  const Term high = terms[nearest + 1];
  terms[nearest] = {low.a + high.a, std::sqrt(low.b * high.b)};
  terms.erase(terms.begin() + static_cast<std::ptrdiff_t>(nearest) + 1);
  return terms;
}

FourGaussians fit(const Gaussians& five) {
  FourGaussians model;
  for (int step = 0; step <= n_steps; ++step) {
    const double s = s_limit * step / n_steps;
    model.points.push_back({s * s, five.calculate_sf(s * s)});
  }
  model.terms = starting_terms(five);
  gemmi::LevMar least_squares;
  least_squares.eval_limit = 2000;
  least_squares.stop_rel_change = 1e-7;
  least_squares.fit(model);
  return model;
}

/// The fourth decimal of the source, and one more.
double rounded(double value) { return std::round(value * 1e5) / 1e5; }

}  // namespace

double write_electron_table(const std::string& path) {
  double largest_difference = 0.0;
  RecordWriter file(path);
  for (int atomic_number = 1; atomic_number <= last_element; ++atomic_number) {
    const gemmi::Element element(atomic_number);
    auto model = fit(gemmi::C4322<double>::get(element.elem));
    file.field(std::string_view(element.name()));
    for (auto& term : model.terms) {
      term = {rounded(term.a), rounded(term.b)};
      file.field(to_single(term.a)).field(to_single(term.b));
    }
    file.field(Integer(0)).field(Integer(atomic_number)).end_line();
    for (const auto& point : model.points) {
      largest_difference = std::max(largest_difference, std::abs(model.value(point.s_squared) - point.factor));
    }
  }
  file.commit();
  return largest_difference;
}

}  // namespace zol
