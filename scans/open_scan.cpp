#include <array>
#include <cctype>
#include <filesystem>
#include <string_view>

#include "core/run_failure.h"
#include "scans/binary_file.h"
#include "scans/readers.h"

namespace zol {
namespace {

namespace fs = std::filesystem;

bool is_hdf5(const std::string& path) {
  constexpr std::string_view sign = "\x89HDF\r\n\x1a\n";
  std::array<std::byte, sign.size()> bytes{};
  const BinaryFile file(path);
  return file.read(0, bytes) && std::memcmp(bytes.data(), sign.data(), sign.size()) == 0;
}

std::string ending_of(const std::string& path) {
  std::string ending = fs::path(path).extension().string();
  for (char& c : ending) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return ending;
}

}  // namespace

void check_pattern_size(std::int64_t width, std::int64_t height, const std::string& path) {
  if (width >= 1 && height >= 1 && width <= most_side && height <= most_side) return;
  throw RunFailure(path + ": patterns of " + std::to_string(width) + " x " + std::to_string(height) +
                   " pixels are impossible; expected are 1 to " + std::to_string(most_side));
}

std::unique_ptr<Scan> open_scan(const std::string& path, const OpenScanSettings& settings) {
  std::error_code error;
  if (fs::is_directory(path, error)) {
    const bool nordif =
        fs::exists(fs::path(path) / "Pattern.dat", error) && fs::exists(fs::path(path) / "Setting.txt", error);
    return nordif ? open_nordif(path, settings) : open_picture_folder(path, settings);
  }
  if (is_hdf5(path)) return open_hdf5_scan(path, settings);
  const std::string ending = ending_of(path);
  if (ending == ".up1" || ending == ".up2") return open_edax_up(path, settings);
  if (ending == ".ebsp" || ending == ".uebsp") return open_oxford_ebsp(path, settings);
  if (ending == ".dat" || fs::path(path).filename() == "Setting.txt") return open_nordif(path, settings);
  throw RunFailure(path +
                   " is not a known kind of scan; expected are HDF5 (.h5, .oh5, .h5oina), .up1, .up2, .ebsp, "
                   "NORDIF's Pattern.dat or a folder of pictures");
}

}  // namespace zol
