// Makes the data files under data/ZOL. The crystals under data/ZOLDATA are kept by hand.
#include <cstdio>
#include <filesystem>

#include "core/record_writer.h"
#include "core/run_failure.h"
#include "tools/make_data/electron_table.h"
#include "tools/make_data/scattering_tables.h"
#include "tools/make_data/space_group_files.h"

namespace zol {
namespace {

/// Half opening 37 degrees, pattern centre in the middle, detector edge 40 mm, square pixels, specimen not tilted.
void write_camera_file(const std::string& path) {
  RecordWriter file(path);
  for (const int value : {37, 0, 0, 40, 1, 0}) file.field(Integer(value));
  file.end_line();
  file.commit();
}

/// One shift for each row of a picture of 512 rows; none is moved.
void write_corrector_file(const std::string& path) {
  constexpr int picture_rows = 512;
  RecordWriter file(path);
  for (int y = 0; y < picture_rows; ++y) {
    file.field(Integer(y)).field(Integer(0)).end_line();
  }
  file.commit();
}

void make_data(const std::string& root, const std::string& ion_file) {
  std::filesystem::create_directories(root + "/SpaceGr");
  std::filesystem::create_directories(root + "/Asf");
  write_space_group_files(root + "/SpaceGr");
  write_xray_table(root + "/Asf/ASF-X.csv", ion_file);
  const double misfit = write_electron_table(root + "/Asf/ASF-E.csv");
  std::printf("electron factors: four Gaussians differ from five by at most %.4f Å\n", misfit);
  write_camera_file(root + "/Camera_Parameters_New");
  write_corrector_file(root + "/Corrector_Standard");
}

}  // namespace
}  // namespace zol

int main(int argc, char** argv) {
  if (argc != 3) {
    (void)std::fprintf(stderr, "usage: make_data DATA_ROOT ION_FACTORS\n");
    return 2;
  }
  try {
    zol::make_data(argv[1], argv[2]);
  } catch (const std::exception& failure) {
    (void)std::fprintf(stderr, "make_data: %s\n", failure.what());
    return 1;
  }
  return 0;
}
