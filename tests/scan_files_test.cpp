// Files of scans: each maker's patterns come out in the order of the map.
#include <gtest/gtest.h>
#include <hdf5.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <vector>

#include "hdf5/lzf.h"
#include "scans/readers.h"
#include "scans/tile_reader.h"
#include "tests/test_files.h"

namespace zol {
namespace {

constexpr int columns = 3, rows = 2, width = 5, height = 4, pixels = width * height;
constexpr std::size_t points_of_all = 6;

template <class Value>
std::string bytes(Value value) {
  return {reinterpret_cast<const char*>(&value), sizeof value};
}

/// Pixel p of point k is 10 k + p, so that each place in a file is known again.
template <class Pixel = std::uint8_t>
std::string pattern(int point) {
  std::string text;
  for (int p = 0; p < pixels; ++p) text += bytes(static_cast<Pixel>(10 * point + p));
  return text;
}
template <class Pixel = std::uint8_t>
std::string patterns() {
  std::string text;
  for (int point = 0; point < columns * rows; ++point) text += pattern<Pixel>(point);
  return text;
}

std::string up(std::uint32_t version, const std::string& pixels_of_all, double step_x = 1.5) {
  std::string text = bytes(version) + bytes(std::uint32_t{width}) + bytes(std::uint32_t{height});
  if (version < 2) return text + bytes(std::uint32_t{16}) + pixels_of_all;
  return text + bytes(std::uint32_t{42}) + std::string(1, '\0') + bytes(std::uint32_t{columns}) +
         bytes(std::uint32_t{rows}) + std::string(1, '\0') + bytes(step_x) + bytes(2.5) + pixels_of_all;
}

/// Patterns stand the last first, beams where the points are; point 4 was not stored.
std::string ebsp(int version) {
  std::string text = version > 0 ? bytes(-std::int64_t{version}) : "";
  if (version >= 4) text += '\0';
  std::size_t at = text.size() + 8 * points_of_all;
  std::vector<std::string> parts(points_of_all);
  std::vector<std::int64_t> places(points_of_all);
  for (int point = columns * rows - 1; point >= 0; --point) {
    if (point == 4) continue;
    const int row = point / columns;
    std::string& part = parts[static_cast<std::size_t>(point)];
    if (version >= 5) part += bytes(std::int32_t{point % columns}) + bytes(std::int32_t{point / columns});
    part += bytes(std::int32_t{0}) + bytes(std::int32_t{height}) + bytes(std::int32_t{width}) +
            bytes(std::int32_t{pixels}) + pattern(point);
    const std::string flag = version >= 2 ? std::string(1, '\1') : "";
    if (version > 0) part += flag + bytes(1.5 * (point % columns)) + flag + bytes(-2.5 * row);
    places[static_cast<std::size_t>(point)] = static_cast<std::int64_t>(at);
    at += part.size();
  }
  for (const auto place : places) text += bytes(place);
  std::reverse(parts.begin(), parts.end());
  for (const auto& part : parts) text += part;
  return text;
}

/// Writes arrays at paths.
struct Hdf5Maker {
  explicit Hdf5Maker(const std::string& path)
      : file(H5Fcreate(path.c_str(), H5F_ACC_TRUNC, H5P_DEFAULT, H5P_DEFAULT)), links(H5Pcreate(H5P_LINK_CREATE)) {
    H5Pset_create_intermediate_group(links, 1);
  }
  Hdf5Maker(const Hdf5Maker&) = delete;
  Hdf5Maker& operator=(const Hdf5Maker&) = delete;
  ~Hdf5Maker() {
    H5Pclose(links);
    H5Fclose(file);
  }
  void put(const std::string& path, hid_t type, std::vector<hsize_t> sides, const void* values) const {
    const hid_t space = H5Screate_simple(static_cast<int>(sides.size()), sides.data(), nullptr);
    const hid_t set = H5Dcreate2(file, path.c_str(), type, space, links, H5P_DEFAULT, H5P_DEFAULT);
    H5Dwrite(set, type, H5S_ALL, H5S_ALL, H5P_DEFAULT, values);
    H5Dclose(set);
    H5Sclose(space);
  }
  void number(const std::string& path, double value) const { put(path, H5T_NATIVE_DOUBLE, {1}, &value); }
  void numbers(const std::string& path, const std::vector<double>& values) const {
    put(path, H5T_NATIVE_DOUBLE, {values.size()}, values.data());
  }
  hid_t file, links;
};

const std::string all_patterns = patterns();

void make_kikuchipy(const std::string& path) {
  const Hdf5Maker out(path);
  out.put("Scan 1/EBSD/Data/patterns", H5T_NATIVE_UINT8, {points_of_all, height, width}, all_patterns.data());
  const std::string header = "Scan 1/EBSD/Header/";
  for (const auto& [name, value] : {std::pair{"n_columns", 1.0 * columns},
                                    {"n_rows", 1.0 * rows},
                                    {"step_x", 1.5},
                                    {"step_y", 2.5},
                                    {"sample_tilt", 71.0},
                                    {"pcx", .4},
                                    {"pcy", .3},
                                    {"pcz", .5}}) {
    out.number(header + name, value);
  }
}

/// The last point first, with its column and row beside it.
void make_bruker_at(const std::string& path, const std::vector<double>& x, const std::vector<double>& y) {
  const Hdf5Maker out(path);
  std::string turned;
  for (int point = columns * rows - 1; point >= 0; --point) turned += pattern(point);
  out.put("Area/EBSD/Data/RawPatterns", H5T_NATIVE_UINT8, {points_of_all, height, width}, turned.data());
  out.number("Area/EBSD/Header/NCOLS", columns);
  out.number("Area/EBSD/Header/NROWS", rows);
  out.number("Area/EBSD/Header/XSTEP", 1.5);
  out.number("Area/EBSD/Header/YSTEP", 2.5);
  out.numbers("Area/EBSD/SEM/IX", x);
  out.numbers("Area/EBSD/SEM/IY", y);
}
void make_bruker(const std::string& path) { make_bruker_at(path, {9, 8, 7, 9, 8, 7}, {10, 10, 10, 9, 9, 9}); }

/// @param told  by the header, beside the usual or in its place
void make_edax_telling(const std::string& path, std::map<std::string, double> told) {
  const Hdf5Maker out(path);
  out.put(" Scan 1/EBSD/Data/Pattern", H5T_NATIVE_UINT8, {points_of_all, height, width}, all_patterns.data());
  told.insert({{" nColumns", columns}, {"nRows", rows}, {"Step X", 1.5}, {"Step Y", 2.5}});
  for (const auto& [name, value] : told) out.number(" Scan 1/EBSD/Header/" + name, value);
}
void make_edax(const std::string& path) { make_edax_telling(path, {}); }

GreyImage fake_image(const std::string& path) {
  GreyImage image{width, height, 8, {}};
  const int point = path[path.size() - 7] - '0' + columns * (path[path.size() - 5] - '0') - 2;  // "..x2y0.png"
  for (const char p : pattern(point)) image.values.push_back(static_cast<float>(static_cast<unsigned char>(p)));
  return image;
}

// Each format holds the same six patterns; they come out in map order, with the grid where the file tells it.
TEST(Scans, OfAllMakersGiveTheirPatternsInMapOrder) {
  const ScratchFolder folder;
  for (const auto* make : {"kikuchipy", "bruker", "edax"}) {
    const std::string path = folder.path(std::string(make) + ".h5");
    (make[0] == 'k' ? make_kikuchipy : make[0] == 'b' ? make_bruker : make_edax)(path);
  }
  folder.write("v1.up1", up(1, all_patterns));
  folder.write("v3.up1", up(3, all_patterns));
  folder.write("v3.up2", up(3, patterns<std::uint16_t>()));
  for (const int version : {0, 1, 2, 4, 5}) folder.write("v" + std::to_string(version) + ".ebsp", ebsp(version));
  folder.write("nordif/Pattern.dat", all_patterns);
  folder.write("nordif/Setting.txt",
               "[Acquisition settings]\nResolution\t5x4\tpx\n[Area]\nStep size\t1.5\tum\nNumber of samples\t2x3\t#\n");
  for (int point = 0; point < columns * rows; ++point) {
    folder.write("pictures/a_x" + std::to_string(2 + point % columns) + "y" + std::to_string(point / columns) + ".png",
                 "");
  }
  struct Row {
    const char* name;
    bool tells_size, tells_steps, lacks_4;
  };
  for (const auto& [name, tells_size, tells_steps, lacks_4] :
       {Row{"kikuchipy.h5", true, true, false}, Row{"bruker.h5", true, true, false}, Row{"edax.h5", true, true, false},
        Row{"v1.up1", false, false, false}, Row{"v3.up1", true, true, false}, Row{"v3.up2", true, true, false},
        Row{"v0.ebsp", false, false, true}, Row{"v1.ebsp", true, true, true}, Row{"v2.ebsp", true, true, true},
        Row{"v4.ebsp", true, true, true}, Row{"v5.ebsp", true, true, true}, Row{"nordif", true, false, false},
        Row{"pictures", true, false, false}}) {
    SCOPED_TRACE(name);
    OpenScanSettings settings;
    settings.read_image = fake_image;
    if (!tells_size) settings.size = {columns, rows};
    const auto scan = open_scan(folder.path(name), settings);
    const ScanHeader& header = scan->header();
    ASSERT_TRUE(header.grid.has_value());
    EXPECT_EQ(header.grid->columns, columns);
    EXPECT_EQ(header.grid->rows, rows);
    if (tells_steps) {
      EXPECT_EQ(header.grid->step_x, 1.5);
      EXPECT_EQ(header.grid->step_y, 2.5);
    }
    PatternBlock block;
    scan->read(1, 4, block);
    for (int i = 0; i < 4; ++i) {
      const bool there = !lacks_4 || i + 1 != 4;
      const auto k = static_cast<std::size_t>(i);
      ASSERT_EQ(block.present[k] != 0, there);
      EXPECT_EQ(block.pattern(k)[7], there ? 10.0F * static_cast<float>(i + 1) + 7 : 0);
    }
  }
}

// Of an area of any outline: 6 points may stand on 4 x 6 + 16 = 40 places, and no more; what is no number is no place.
TEST(Scans, OfPointsInNoOrderHaveTheirPlacesWhereTheseCanBe) {
  const ScratchFolder folder;
  for (const auto& [last_x, last_y, wide, high] :
       {std::array<double, 4>{14, 13, 8, 5}, {15, 13, 3, 2}, {9, std::nan(""), 3, 2}, {HUGE_VAL, 10, 3, 2}}) {
    make_bruker_at(folder.path("a.h5"), {9, last_x, 7, 9, 8, 7}, {10, last_y, 10, 9, 9, 9});
    const auto scan = open_scan(folder.path("a.h5"), {});
    const auto& header = scan->header();
    EXPECT_EQ(header.grid->columns, wide) << last_x;
    EXPECT_EQ(header.grid->rows, high) << last_x;
    EXPECT_EQ(header.remarks, wide == 8 ? std::vector<std::string>{}
                                        : std::vector<std::string>{"the places of the points are impossible, the "
                                                                   "points are taken in order"});
  }
}

TEST(Scans, WhoseHeadersCannotBeSaySoAndAreRead) {
  const ScratchFolder folder;
  const std::string z_star = "Pattern Center Calibration/z-star";
  struct Row {
    std::map<std::string, double> told;
    double step_x, step_y;  ///< 0: no grid
    const char* remark;
  };
  for (const auto& [told, step_x, step_y, remark] :
       {Row{{{"Pattern Width", 6}}, 1.5, 2.5, "the header says 6 for \"Pattern Width\", the patterns have 5"},
        Row{{{"Pattern Height", std::nan("")}}, 1.5, 2.5, ""}, Row{{{"Step X", 0}}, 1, 2.5, ""},
        Row{{{"Step Y", HUGE_VAL}}, 1.5, 1.5, ""},
        Row{{{"nRows", 3}}, 0, 0, "the header says 3 x 3 points, the file holds 6 patterns"},
        Row{{{"Pattern Center Calibration/x-star", .5}, {"Pattern Center Calibration/y-star", .5}, {z_star, 0}},
            1.5,
            2.5,
            "the file's pattern centre is none"}}) {
    SCOPED_TRACE(told.begin()->first);
    make_edax_telling(folder.path("a.h5"), told);
    const auto scan = open_scan(folder.path("a.h5"), {});
    const auto& header = scan->header();
    const ScanGrid grid = header.grid.value_or(ScanGrid{0, 0, 0, 0});
    EXPECT_EQ(grid.step_x, step_x);
    EXPECT_EQ(grid.step_y, step_y);
    EXPECT_EQ(header.remarks.empty() ? "" : header.remarks.front(), remark);
  }
}

TEST(Scans, WhoseStepsAreNoLengthsHaveStepsOfOne) {
  const ScratchFolder folder;
  folder.write("a.up1", up(3, all_patterns, std::nan("")));
  folder.write("b.up1", up(3, all_patterns, -1));
  folder.write("nordif/Pattern.dat", all_patterns);
  folder.write("nordif/Setting.txt",
               "[Acquisition settings]\nResolution\t5x4\tpx\n[Area]\nStep size\tinf\tum\nNumber of samples\t2x3\t#\n");
  for (const auto& [name, step_y] : {std::pair{"a.up1", 2.5}, {"b.up1", 2.5}, {"nordif", 1.0}}) {
    const auto scan = open_scan(folder.path(name), {});
    EXPECT_EQ(scan->header().grid->step_x, 1) << name;
    EXPECT_EQ(scan->header().grid->step_y, step_y) << name;
  }
}

// By hand, 5 pixels wide: version 4 counts x to the right of the middle, version 5 to the left.
TEST(Scans, OfEMsoftHaveTheSignOfTheirVersion) {
  const ScratchFolder folder;
  for (const auto& [version, x] : {std::pair{"4_2_0_0", .7}, {"5_0_3", .3}}) {
    const std::string path = folder.path(std::string(version) + ".h5");
    {
      const Hdf5Maker out(path);
      out.put("EMData/EBSD/EBSDPatterns", H5T_NATIVE_UINT8, {1, height, width}, all_patterns.data());
      for (const auto& [name, value] : {std::pair{"xpc", 1.0}, {"ypc", 0.0}, {"L", 100.0}, {"delta", 50.0}}) {
        out.number(std::string("NMLparameters/EBSDNameList/") + name, value);
      }
      const hid_t text = H5Tcopy(H5T_C_S1);
      H5Tset_size(text, 8);
      std::string padded = version;
      padded.resize(8);
      out.put("EMheader/EBSD/Version", text, {1}, padded.data());
      H5Tclose(text);
    }
    const auto scan = open_scan(path, {});
    const StoredCentre centre = scan->header().centres.at(0);
    EXPECT_NEAR(read_centre(centre.numbers, centre.convention, {width, height, 50}).x, x, 1e-9) << version;
  }
}

TEST(Scans, ThatAreWrongAreRefusedWithTheReason) {
  const ScratchFolder folder;
  std::string far = ebsp(2);
  far.replace(8, 8, bytes(std::int64_t{1} << 40U));
  { const Hdf5Maker empty(folder.path("empty.h5")); }
  struct Row {
    std::string file, words;
    std::optional<std::array<int, 2>> size;
  };
  for (const Row& row :
       {Row{folder.write("short.up1", up(3, "").substr(0, 10)), "ends before byte 8", {}},
        Row{folder.write("none.up1", up(1, "")), "no whole pattern", {}},
        Row{folder.write("wide.up1", bytes(1U) + bytes(1U << 20U) + bytes(4U) + bytes(16U)), "1048576 x 4 pixels", {}},
        Row{folder.write("size.up1", up(1, all_patterns)), "6 patterns, which is not 4 x 2", std::array{4, 2}},
        Row{folder.write("far.ebsp", far), "outside the file", {}},
        Row{folder.path("empty.h5"), "holds no patterns", {}},
        Row{folder.write("a.txt", "text"), "not a known kind of scan", {}},
        Row{folder.path("gone.up1"), "cannot open", {}}}) {
    EXPECT_TRUE(fails_with(row.words, [&] { (void)open_scan(row.file, {row.size, "", false, {}}); })) << row.file;
  }
}

// The first by hand: two literal bytes, then a copy of five from two before.
TEST(Lzf, UnpacksRunsAndCopiesAndNothingBeyondItsPlace) {
  const auto unpacked = [](std::vector<unsigned char> packed, std::size_t room) -> std::string {
    std::vector<std::byte> out(room);
    const auto size = unpack_lzf(std::as_bytes(std::span(packed)), out);
    return size ? std::string(reinterpret_cast<const char*>(out.data()), *size) : "damaged";
  };
  EXPECT_EQ(unpacked({1, 'a', 'b', 3U << 5U, 1}, 7), "abababa");
  EXPECT_EQ(unpacked({0, 'x', 7U << 5U, 3, 0}, 20), std::string(13, 'x')) << "a long copy tells its length";
  EXPECT_EQ(unpacked({1, 'a', 'b', 3U << 5U, 1}, 6), "damaged");
  EXPECT_EQ(unpacked({1, 'a'}, 9), "damaged");
  EXPECT_EQ(unpacked({0, 'a', 3U << 5U, 1}, 9), "damaged") << "from before the start";
}

// The last column of the map, as the last tile of a row may be, and what lies about it. Patterns are turned: pixel 15
// is the first of the last row.
TEST(TileReader, ReadsASingleColumnAndItsNeighbours) {
  const ScratchFolder folder;
  const auto scan = open_scan(folder.write("a.up1", up(3, all_patterns)), {});
  TileReader reader(*scan, *scan->header().grid, pixels, false);
  PatternBlock block;
  PatternTile tile;
  reader.read({2, 0, 1, 2}, 0, block, tile);
  EXPECT_EQ(tile.present, std::vector<char>({1, 1}));
  EXPECT_EQ(tile.values.at(0), 2 * 10 + 15);
  EXPECT_EQ(tile.values.at(pixels), 5 * 10 + 15);
  reader.read({2, 0, 1, 2}, 1, block, tile);
  EXPECT_EQ(tile.present, std::vector<char>({0, 0, 0, 1, 1, 0, 1, 1, 0, 0, 0, 0}));
}

TEST(ScanGrid, ShortRowsOfHexagonalGridsAreCounted) {
  const ScanGrid grid{3, 3, 1, 1, true, true};
  EXPECT_EQ(grid.points(), 8U);
  for (std::size_t point = 0; point < grid.points(); ++point) {
    const auto [column, row] = grid.place(point);
    EXPECT_EQ(grid.point(column, row), point);
  }
  EXPECT_FALSE(grid.point(2, 1));
}

// The centre moves right with the beam, and down the slope down the screen and towards it: a = 90 - 70 + 5 degrees.
}  // namespace
}  // namespace zol
