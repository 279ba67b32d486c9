// NORDIF: Pattern.dat has the patterns alone, Setting.txt beside it tells all else.
#include <charconv>
#include <filesystem>
#include <map>

#include "core/read_file.h"
#include "core/run_failure.h"
#include "core/trimmed.h"
#include "scans/raw_scan.h"
#include "scans/readers.h"

namespace zol {
namespace {

namespace fs = std::filesystem;

/// The settings by block and name: "Area/Step size" is "1.500".
std::map<std::string, std::string> read_settings(const std::string& path) {
  std::map<std::string, std::string> settings;
  const std::string text = read_file(path);
  std::string block;
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    const std::string_view line = trimmed(std::string_view(text).substr(at, end - at));
    at = end + 1;
    if (line.starts_with('[') && line.ends_with(']')) {
      block = line.substr(1, line.size() - 2);
      continue;
    }
    const std::size_t tab = line.find('\t');
    if (tab == std::string_view::npos) continue;
    const std::string_view rest = line.substr(tab + 1);
    settings[block + '/' + std::string(trimmed(line.substr(0, tab)))] = trimmed(rest.substr(0, rest.find('\t')));
  }
  return settings;
}

std::optional<double> leading_number(std::string_view text) {
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end == text.data()) return std::nullopt;
  return value;
}

/// "60x60"
std::optional<std::array<int, 2>> pair_of(std::string_view text) {
  const std::size_t cross = text.find('x');
  if (cross == std::string_view::npos) return std::nullopt;
  const auto first = leading_number(text.substr(0, cross));
  const auto second = leading_number(text.substr(cross + 1));
  constexpr double most = 1 << 20;
  if (!first || !second || !(*first >= 1 && *second >= 1 && *first <= most && *second <= most)) return std::nullopt;
  return std::array{static_cast<int>(*first), static_cast<int>(*second)};
}

class Nordif : public RawScan {
 public:
  Nordif(const fs::path& folder, const OpenScanSettings& settings) : RawScan((folder / "Pattern.dat").string()) {
    const std::string beside = (folder / "Setting.txt").string();
    const auto said = read_settings(beside);
    const auto find = [&said](const std::string& name) {
      const auto found = said.find(name);
      return found == said.end() ? std::string() : found->second;
    };
    const auto size = pair_of(find("Acquisition settings/Resolution"));
    if (!size) throw RunFailure(beside + " has no \"Resolution\" under [Acquisition settings], as 60x60");
    check_pattern_size((*size)[0], (*size)[1], beside);
    header_.format = "NORDIF";
    header_.width = (*size)[0];
    header_.height = (*size)[1];
    header_.kilovolt = leading_number(find("Microscope/Accelerating voltage"));
    header_.sample_tilt_deg = leading_number(find("Microscope/Tilt angle"));
    if (const auto elevation = leading_number(find("Detector angles/Elevation")))
      header_.detector_tilt_deg = -*elevation;
    const std::uint64_t pixels = header_.pixels();
    const std::uint64_t held = (file_.size() + pixels - 1) / pixels;
    header_.points = held;
    if (const auto samples = pair_of(find("Area/Number of samples"))) {  // rows x columns
      ScanGrid grid;
      grid.rows = (*samples)[0];
      grid.columns = (*samples)[1];
      const double step = leading_number(find("Area/Step size")).value_or(0);
      grid.take_steps(step, step);
      header_.points = grid.points();
      header_.grid = grid;
    }
    if (header_.points == 0 || header_.points > most_points) throw RunFailure(file_.path() + " holds no pattern");
    if (file_.size() != header_.points * pixels) {
      header_.remarks.push_back("the file has " + std::to_string(file_.size()) + " bytes, " +
                                std::to_string(header_.points) + " patterns need " +
                                std::to_string(header_.points * pixels));
    }
    const fs::path background = folder / "Background acquisition pattern.bmp";
    std::error_code error;
    if (settings.read_image && fs::exists(background, error)) {
      const GreyImage image = settings.read_image(background.string());
      if (image.width == header_.width && image.height == header_.height) header_.static_background = image.values;
    }
    if (settings.size) take_size(header_, *settings.size, file_.path());
  }

 private:
  [[nodiscard]] std::optional<std::uint64_t> place_of_pixels(std::size_t point) const override {
    return point * header_.pixels();
  }
};

}  // namespace

std::unique_ptr<Scan> open_nordif(const std::string& path, const OpenScanSettings& settings) {
  const fs::path given(path);
  std::error_code error;
  return std::make_unique<Nordif>(fs::is_directory(given, error) ? given : given.parent_path(), settings);
}

}  // namespace zol
