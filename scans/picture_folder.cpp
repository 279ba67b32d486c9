// A folder with a picture for each point, whose names tell the place: "_x5y10", "-5-10" or "(row,column)".
#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <set>

#include "core/run_failure.h"
#include "scans/readers.h"

namespace zol {
namespace {

namespace fs = std::filesystem;

struct NamedPlace {
  long long column = 0, row = 0;
};

std::optional<NamedPlace> place_of(const std::string& stem) {
  static const std::regex by_letters("x([0-9]{1,9})_?y([0-9]{1,9})$", std::regex::icase);
  static const std::regex by_dashes("-([0-9]{1,9})-([0-9]{1,9})$");
  static const std::regex by_brackets(R"(\(([0-9]{1,9}),\s*([0-9]{1,9})\)$)");
  std::smatch found;
  if (std::regex_search(stem, found, by_letters) || std::regex_search(stem, found, by_dashes)) {
    return NamedPlace{std::stoll(found[1]), std::stoll(found[2])};
  }
  if (std::regex_search(stem, found, by_brackets)) return NamedPlace{std::stoll(found[2]), std::stoll(found[1])};
  return std::nullopt;
}

bool is_picture(const fs::path& path) {
  std::string ending = path.extension().string();
  std::transform(ending.begin(), ending.end(), ending.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  static const std::set<std::string> endings{".png", ".tif", ".tiff", ".bmp", ".jpg", ".jpeg"};
  return endings.contains(ending);
}

class PictureFolder : public Scan {
 public:
  PictureFolder(const std::string& path, const OpenScanSettings& settings) : read_image_(settings.read_image) {
    if (!read_image_) throw RunFailure(path + " is a folder; pictures cannot be read here");
    list(path);
    if (files_.empty()) throw RunFailure(path + " holds no pictures (png, tif, bmp, jpg)");
    const auto known = std::find_if(files_.begin(), files_.end(), [](const auto& file) { return !file.empty(); });
    const GreyImage first = read_image_(*known);
    header_.format = "folder of pictures";
    header_.width = first.width;
    header_.height = first.height;
    header_.bits = first.bits;
    header_.points = files_.size();
    if (settings.size) take_size(header_, *settings.size, path);
  }

  void read(std::size_t first, std::size_t count, PatternBlock& block) override {
    const std::size_t pixels = header_.pixels();
    block.begin(first, count, pixels);
    for (std::size_t i = 0; i < count; ++i) {
      const std::string& file = files_[first + i];
      if (file.empty()) continue;
      try {
        const GreyImage image = read_image_(file);
        if (image.width != header_.width || image.height != header_.height) continue;
        std::copy(image.values.begin(), image.values.end(), block.pattern(i).begin());
        block.present[i] = 1;
      } catch (const RunFailure&) {  // a damaged picture is a point without a pattern
      }
    }
  }

 private:
  void list(const std::string& path) {
    std::vector<std::string> files;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(path, error)) {
      if (entry.is_regular_file(error) && is_picture(entry.path())) files.push_back(entry.path().string());
    }
    if (error) throw RunFailure("cannot read the folder " + path + ": " + error.message());
    std::sort(files.begin(), files.end());
    if (!place_by_names(files)) files_ = std::move(files);
  }

  /// Numbers may be sparse and start anywhere: the distinct ones in order are the columns and rows.
  bool place_by_names(const std::vector<std::string>& files) {
    std::map<long long, std::size_t> columns;
    std::map<long long, std::size_t> rows;
    std::vector<NamedPlace> places;
    for (const auto& file : files) {
      const auto place = place_of(fs::path(file).stem().string());
      if (!place) return false;
      places.push_back(*place);
      columns[place->column] = 0;
      rows[place->row] = 0;
    }
    if (files.empty() || columns.size() * rows.size() != files.size()) return false;
    for (auto* numbers : {&columns, &rows}) {
      std::size_t next = 0;
      for (auto& [number, position] : *numbers) position = next++;
    }
    files_.assign(files.size(), "");
    for (std::size_t i = 0; i < files.size(); ++i) {
      files_[rows[places[i].row] * columns.size() + columns[places[i].column]] = files[i];
    }
    header_.grid = ScanGrid{static_cast<int>(columns.size()), static_cast<int>(rows.size())};
    return true;
  }

  ReadGreyImage read_image_;
  std::vector<std::string> files_;  ///< in map order
};

}  // namespace

std::unique_ptr<Scan> open_picture_folder(const std::string& path, const OpenScanSettings& settings) {
  return std::make_unique<PictureFolder>(path, settings);
}

}  // namespace zol
