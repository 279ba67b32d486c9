#include "kikuchi/degrees_text.h"

#include <algorithm>
#include <cmath>

#include "core/number_text.h"

namespace zol {
namespace {

void put_digits(std::span<char> field, unsigned digits, bool negative) {
  constexpr unsigned ten = 10;
  std::size_t left = field.size();
  do {
    if (left == 0) return;
    field[--left] = static_cast<char>('0' + digits % ten);
    digits /= ten;
  } while (digits > 0);
  if (negative && left > 0) field[--left] = '-';
  std::fill_n(field.begin(), left, ' ');
}

}  // namespace

void put_whole(std::span<char> field, int number) {
  const auto digits = static_cast<unsigned>(number);
  put_digits(field, number < 0 ? 0U - digits : digits, number < 0);
}

void put_one_place(std::span<char> field, double degrees) {
  constexpr double near_half = 1e-6;
  constexpr double largest = 1e6;
  constexpr std::size_t point_and_place = 2;
  const double tenths = std::abs(degrees) * 10;
  const double whole = std::floor(tenths);
  if (!(tenths < largest) || std::abs(tenths - whole - 0.5) < near_half || field.size() < point_and_place) {
    std::ranges::copy(right_field(Format(degrees, "##0.0"), field.size()), field.begin());
    return;
  }
  const auto rounded = static_cast<unsigned>(tenths - whole < 0.5 ? whole : whole + 1);
  field[field.size() - 1] = static_cast<char>('0' + rounded % 10);
  field[field.size() - point_and_place] = '.';
  put_digits(field.first(field.size() - point_and_place), rounded / 10, degrees < 0);
}

}  // namespace zol
