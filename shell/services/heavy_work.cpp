#include "shell/services/heavy_work.h"

#include <algorithm>
#include <cmath>

#include "core/number_text.h"

namespace zol {
namespace {

/// A whole number with one digit, or two where the first one is small: an estimate knows no more.
double roughly(double number) {
  if (!(number > 1)) return 1;
  const double unit = std::pow(10.0, std::floor(std::log10(number)));
  const double step = number / unit < 3 ? std::max(1.0, unit / 10) : unit;
  return std::round(number / step) * step;
}

std::string counted(double number, const std::string& unit) {
  const double shown = roughly(number);
  return plain_text(shown) + ' ' + unit + (shown == 1 ? "" : "s");
}

std::string time_text(double seconds) {
  constexpr double minute = 60, hour = 60 * minute, day = 24 * hour, year = 365 * day;
  constexpr double several = 1.5;
  if (seconds < several * minute) return counted(seconds, "second");
  if (seconds < several * hour) return counted(seconds / minute, "minute");
  if (seconds < several * day) return counted(seconds / hour, "hour");
  if (seconds < several * year) return counted(seconds / day, "day");
  return "years";
}

std::string memory_text(double bytes) {
  constexpr double megabyte = 1024.0 * 1024.0, gigabyte = 1024 * megabyte;
  if (bytes < gigabyte) return plain_text(roughly(bytes / megabyte)) + " MB";
  return plain_text(roughly(bytes / gigabyte)) + " GB";
}

}  // namespace

bool is_heavy(const Effort& effort, std::optional<std::uint64_t> free_bytes) {
  constexpr double most_seconds = 60;
  constexpr double part_of_memory = 0.25;
  return effort.seconds > most_seconds ||
         (free_bytes && effort.bytes > part_of_memory * static_cast<double>(*free_bytes));
}

std::string effort_question(const Effort& effort) {
  constexpr double worth_telling = 10 * 1024.0 * 1024.0;
  std::string text = "This would take about " + time_text(effort.seconds);
  if (effort.bytes > worth_telling) text += " and " + memory_text(effort.bytes);
  return text + ". Do it all the same?";
}

}  // namespace zol
