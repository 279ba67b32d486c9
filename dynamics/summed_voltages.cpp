#include "dynamics/summed_voltages.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "core/run_failure.h"

namespace zol {
namespace {

std::vector<float> mean_of(const MasterPattern& master, std::span<const double> weights,
                           std::vector<float> MasterPattern::Halves::*half) {
  std::vector<double> sum((master.patterns.front().*half).size());
  for (std::size_t i = 0; i < weights.size(); ++i) {
    const auto& values = master.patterns[i].*half;
    for (std::size_t k = 0; k < sum.size(); ++k) sum[k] += weights[i] * static_cast<double>(values[k]);
  }
  const double all = std::accumulate(weights.begin(), weights.end(), 0.0);
  std::vector<float> mean;
  mean.reserve(sum.size());
  for (const double value : sum) mean.push_back(static_cast<float>(value / all));
  return mean;
}

}  // namespace

MasterPattern summed_voltages(MasterPattern master, std::span<const double> weights) {
  if (weights.size() != master.patterns.size()) {
    throw RunFailure("master pattern: " + std::to_string(weights.size()) + " weights for " +
                     std::to_string(master.patterns.size()) + " voltages");
  }
  if (std::any_of(weights.begin(), weights.end(), [](double weight) { return !(weight >= 0); }) ||
      !(std::accumulate(weights.begin(), weights.end(), 0.0) > 0)) {
    throw RunFailure("master pattern: the weights of voltages must be 0 and above, and one above 0");
  }
  MasterPattern::Halves halves{mean_of(master, weights, &MasterPattern::Halves::north),
                               mean_of(master, weights, &MasterPattern::Halves::south)};
  master.patterns = {std::move(halves)};
  master.kilovolts = {*std::max_element(master.kilovolts.begin(), master.kilovolts.end())};
  return master;
}

}  // namespace zol
