// How long the crystal library takes with many files: their first reading, a later start with the index, one changed
// file, and a query.
//
// library_times [FILES]     made of the shipped crystals with other cells, half of them as CIF; default 10 000
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "core/number_text.h"
#include "core/read_file.h"
#include "core/run_failure.h"
#include "structures/cif_writer.h"
#include "structures/library_index.h"
#include "structures/library_query.h"

namespace {

using namespace zol;
namespace fs = std::filesystem;

const SpaceGroupLibrary& groups() {
  static const SpaceGroupLibrary library(
      [](int number) { return ZOL_SOURCE_DIR "/data/ZOL/SpaceGr/No" + Format(number, "000") + ".dat"; });
  return library;
}

void write(const fs::path& path, const std::string& text) {
  fs::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << text;
}

void make_files(const fs::path& folder, int count) {
  QuietTask task;
  std::vector<std::string> crystals;
  for (const auto& file : fs::directory_iterator(ZOL_SOURCE_DIR "/data/ZOLDATA")) {
    crystals.push_back(read_file(file.path().string()));
  }
  constexpr int files_of_folder = 100;
  for (int i = 0; i < count; ++i) {
    const std::string& text = crystals[static_cast<std::size_t>(i) % crystals.size()];
    const fs::path place = folder / std::to_string(i / files_of_folder);
    const std::string edge = plain_text(3 + 0.001 * i);
    std::string changed = edge + text.substr(text.find(','));
    try {
      if (i % 2 == 1) {
        const Reading reading = read_structure(changed, "", {}, groups(), task);
        write(place / ("crystal" + std::to_string(i) + ".cif"), cif_text(std::get<ReadStructure>(reading).structure));
        continue;
      }
    } catch (const RunFailure&) {  // it has no atoms
    }
    write(place / ("crystal" + std::to_string(i) + ".cry"), changed);
  }
}

template <class Work>
double milliseconds(const Work& work) {
  const auto begun = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begun).count();
}

}  // namespace

int main(int argc, char** argv) {
  const int count = argc > 1 ? std::atoi(argv[1]) : 10000;
  const fs::path scratch = fs::temp_directory_path() / ("zol-library-" + std::to_string(getpid()));
  const std::string folder = (scratch / "crystals").string();
  const std::string index = (scratch / "library.index").string();
  make_files(folder, count);
  LibraryEntries entries;
  const auto update = [&] {
    QuietTask task;
    update_library(
        folder, index, groups(), [&entries](LibraryEntries now) { entries = std::move(now); }, task);
  };
  std::printf("%d files: first reading %.0f ms", count, milliseconds(update));
  std::printf(", with the index %.0f ms", milliseconds(update));
  write(fs::path(folder) / "new.cry", read_file(ZOL_SOURCE_DIR "/data/ZOLDATA/Quartz.cry"));
  std::printf(", with one more %.0f ms\n", milliseconds(update));
  for (const char* text : {"quartz", "+Si -Al", "Fm-3m a=5..6", "SiO2"}) {
    int found = 0;
    const double time = milliseconds([&] {
      const LibraryQuery query(text);
      for (const auto& entry : entries) found += query.finds(entry) ? 1 : 0;
    });
    std::printf("query %-14s %.2f ms, %d found\n", text, time, found);
  }
  fs::remove_all(scratch);
  return 0;
}
