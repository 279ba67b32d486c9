#include "fuzz/scan_targets.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <span>
#include <vector>

#include "fuzz/memory_file.h"
#include "hdf5/lzf.h"
#include "scans/readers.h"

namespace zol::fuzz {
namespace {

/// Reads some patterns from the beginning, the middle and the end.
void read_some(Scan& scan) {
  const ScanHeader& header = scan.header();
  constexpr std::size_t most_pixels = 1U << 22U;  // a header may promise patterns as large as memory
  if (header.points == 0 || header.pixels() > most_pixels) return;
  PatternBlock block;
  const std::size_t at_once = std::min<std::size_t>(3, header.points);
  for (const std::size_t first : {std::size_t{0}, (header.points - at_once) / 2, header.points - at_once}) {
    scan.read(first, at_once, block);
  }
  if (!header.grid) return;
  for (const std::size_t point : {std::size_t{0}, header.grid->points() - 1}) {
    const auto [column, row] = header.grid->place(point);
    (void)header.grid->point(column, row);
  }
}

}  // namespace

void scan_edax_up(const std::string& input) {
  const MemoryFile file(input);
  read_some(*open_edax_up(file.path(), {}));
}

void scan_oxford_ebsp(const std::string& input) {
  const MemoryFile file(input);
  read_some(*open_oxford_ebsp(file.path(), {}));
}

void scan_hdf5(const std::string& input) {
  const MemoryFile file(input);
  read_some(*open_hdf5_scan(file.path(), {}));
}

void scan_nordif(const std::string& input) {
  static const std::string folder = [] {
    const auto path = std::filesystem::temp_directory_path() / ("zol-fuzz-nordif-" + std::to_string(::getpid()));
    std::filesystem::create_directories(path);
    std::ofstream(path / "Pattern.dat") << std::string(360, '\7');
    return path.string();
  }();
  std::ofstream(folder + "/Setting.txt", std::ios::binary | std::ios::trunc) << input;
  read_some(*open_nordif(folder, {}));
}

void lzf(const std::string& input) {
  if (input.empty()) return;
  std::vector<std::byte> room(static_cast<unsigned char>(input[0]) * std::size_t{16});
  (void)unpack_lzf(std::as_bytes(std::span(input)).subspan(1), room);
}

}  // namespace zol::fuzz
