// Words of the command line that several commands read.
#pragma once

#include <CLI/CLI.hpp>
#include <array>
#include <charconv>
#include <cmath>
#include <string>

#include "indexing/detector.h"

namespace zol {

/// "3,4,5" @throws CLI::ValidationError  it has another count of numbers
template <std::size_t count>
std::array<double, count> numbers_of(const std::string& option, const std::string& text, char between = ',') {
  std::array<double, count> numbers{};
  std::size_t at = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t end = std::min(text.find(between, at), text.size());
    const std::string part = text.substr(at, end - at);
    const auto [stop, error] = std::from_chars(part.data(), part.data() + part.size(), numbers[i]);
    const bool last = i + 1 == count;
    if (error != std::errc() || !std::isfinite(numbers[i]) || stop != part.data() + part.size() ||
        last != (end == text.size())) {
      throw CLI::ValidationError(
          option, "\"" + text + "\" is not " + std::to_string(count) + " numbers with '" + between + "' between");
    }
    at = end + 1;
  }
  return numbers;
}

/// "3,4,5", each at least the one of its place. @throws CLI::ValidationError  it is something else
template <std::size_t count>
std::array<int, count> whole_numbers_of(const std::string& option, const std::string& text, char between,
                                        const std::array<int, count>& least) {
  const auto numbers = numbers_of<count>(option, text, between);
  std::array<int, count> whole{};
  constexpr double most = 1e9;
  for (std::size_t i = 0; i < count; ++i) {
    if (!(numbers[i] >= least[i] && numbers[i] <= most) || numbers[i] != std::floor(numbers[i])) {
      throw CLI::ValidationError(option, text + ": number " + std::to_string(i + 1) + " is to be a whole one from " +
                                             std::to_string(least[i]));
    }
    whole[i] = static_cast<int>(numbers[i]);
  }
  return whole;
}

/// @throws CLI::ValidationError  it is none
inline CentreConvention convention_of(const std::string& name) {
  const auto convention = centre_convention(name);
  if (!convention) throw CLI::ValidationError("--convention", name + " is none of bruker, edax, oxford, emsoft");
  return *convention;
}

/// A pattern centre of the command line as widths. @throws CLI::ValidationError  it is none
inline PatternCentre centre_of_words(const std::string& centre, const std::string& convention,
                                     const PictureSize& size) {
  const PatternCentre read = read_centre(numbers_of<3>("--pc", centre), convention_of(convention), size);
  constexpr double most = 20;
  if (!(read.z > 0 && read.z < most && std::abs(read.x) < most && std::abs(read.y) < most)) {
    throw CLI::ValidationError("--pc", centre + " is no centre in the convention of " + convention);
  }
  return read;
}

}  // namespace zol
