#include "batch/number_check.h"

#include <charconv>
#include <optional>
#include <string>

#include "core/number_text.h"

namespace zol {
namespace {

template <class Number>
std::optional<Number> number_of(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  Number number{};
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || stop != text.data() + text.size()) return std::nullopt;
  return number;
}

template <class Number>
CLI::Validator bounds(Number low, Number high, const char* type, const char* what) {
  const std::string from = short_text(low, 6);
  const std::string to = short_text(high, 6);
  const auto check = [=](const std::string& text) -> std::string {
    const auto number = number_of<Number>(text);
    if (number && *number >= low && *number <= high) return "";  // not so for what is no number
    const char* comma = text.find(',') == std::string::npos ? "" : ", with a decimal point";
    return text + ": " + what + " from " + from + " to " + to + " is expected" + comma;
  };
  return {check, std::string(type) + " in [" + from + " - " + to + ']'};
}

}  // namespace

CLI::Validator number_from(double low, double high) { return bounds(low, high, "FLOAT", "a number"); }
CLI::Validator whole_from(int low, int high) { return bounds(low, high, "INT", "a whole number"); }

}  // namespace zol
