// The library of crystals: what is known of files, the index of a folder, what is found in it.
#include <algorithm>
#include <filesystem>
#include <tuple>

#include "structures/group_search.h"
#include "structures/library_index.h"
#include "structures/library_query.h"
#include "tests/test_files.h"

namespace zol {
namespace {

const SpaceGroupLibrary& shipped_groups() {
  static const SpaceGroupLibrary library([](int number) {
    std::string digits = std::to_string(number);
    digits.insert(0, 3 - digits.size(), '0');
    return ZOL_SOURCE_DIR "/data/ZOL/SpaceGr/No" + digits + ".dat";
  });
  return library;
}

struct CountingTask : Task {
  void report(int done, int /*total*/) override { read = done; }
  void check() override {}
  int read = 0;
};

/// What the last state of the library is, and how many files were read for it.
std::pair<LibraryEntries, int> library_of(const std::string& folder, const std::string& index = "") {
  LibraryEntries last;
  CountingTask task;
  update_library(
      folder, index, shipped_groups(), [&last](LibraryEntries entries) { last = std::move(entries); }, task);
  return {last, task.read};
}

const LibraryEntries& shipped() {
  static const LibraryEntries entries = library_of(ZOL_SOURCE_DIR "/data/ZOLDATA").first;
  return entries;
}

const LibraryEntry& shipped(const std::string& path) {
  return *std::find_if(shipped().begin(), shipped().end(), [&path](const auto& entry) { return entry.path == path; });
}

// Densities as in Anthony et al., Handbook of Mineralogy, calculated ones.
TEST(Library, KnowsWhatFilesHold) {
  using Row = std::tuple<const char*, const char*, int, const char*, double>;
  for (const auto& [path, formula, group, system, density] :
       {Row{"Quartz.cry", "Si O2", 154, "trigonal", 2.65}, Row{"NaCl.cry", "Na Cl", 225, "cubic", 2.165},
        Row{"Albite.cry", "Al Na Si3 O8", 2, "triclinic", 2.62}, Row{"Pyrite.cry", "Fe S2", 205, "cubic", 5.01},
        Row{"Zircon.cry", "Zr Si O4", 141, "tetragonal", 4.67},
        Row{"Barite.cry", "Ba S O4", 62, "orthorhombic", 4.47}}) {
    const LibraryEntry& entry = shipped(path);
    EXPECT_EQ(library_formula(entry.formula), formula);
    EXPECT_EQ(entry.group, group) << path;
    EXPECT_EQ(crystal_system(entry.group), system);
    EXPECT_NEAR(entry.density, density, 0.02 * density) << path;
  }
  const LibraryEntry& lines = shipped("CopperLines.cry");  // observed reflections, no atoms
  EXPECT_EQ(std::tuple(lines.group, lines.formula.size(), lines.fault), std::tuple(225, 0U, ""));
  EXPECT_EQ(library_formula({{"H", 6}, {"C", 2}, {"O", 1}}), "C2 H6 O");
  EXPECT_EQ(library_formula(reduced_formula({{"Mg", 7.2}, {"Fe", 0.8}, {"Si", 4}, {"O", 16}})), "Fe0.2 Mg1.8 Si O4");
}

TEST(Library, FindsWhatIsAskedFor) {
  LibraryEntries entries = shipped();
  LibraryEntry mineral = shipped("NaCl.cry");
  mineral.path = "amcsd/0001.cif";
  mineral.title = "Halite";
  entries.push_back(mineral);
  using Row = std::pair<const char*, std::string>;
  for (const auto& [query, expected] : {
           Row{"quartz", "Quartz.cry"},
           {"QUARTZ", "Quartz.cry"},
           {"halite", "amcsd/0001.cif"},
           {"amcsd cubic", "amcsd/0001.cif"},
           {"+Si -O", "Silicon.cry"},
           {"+C -O", "Diamond.cry Graphite.cry"},
           {"+Ti +O", "Anatase.cry Rutile.cry"},
           {"TiO2", "Anatase.cry Rutile.cry"},
           {"Ti2O4 a=4.6", "Rutile.cry"},
           {"227 -Mg", "Diamond.cry Silicon.cry"},
           {"Fd-3m +Al", "Spinel.cry"},
           {"Fd3m +Al", "Spinel.cry"},
           {"group=\"F d -3 m\" +Al", "Spinel.cry"},
           {"sg=194", "Graphite.cry Magnesium.cry Titanium.cry"},
           {"tetra +Zr", "Zircon.cry"},
           {"a=5.43", "Fluorite.cry Pyrite.cry Silicon.cry"},
           {"A=5.43~0.01 cubic", "Silicon.cry"},
           {"a=5.4..5.42", "Pyrite.cry"},
           {"c=5.4 V=113", "Quartz.cry"},
           {"beta>104 density<2.62 -Na", "Kaolinite.cry"},
           {"density>8", "Copper.cry"},
           {"group=1 +Zr", ""},
           {"nothing", ""},
       }) {
    const LibraryQuery asked(query);
    std::string found;
    for (const auto& entry : entries) found += asked.finds(entry) ? (found.empty() ? "" : " ") + entry.path : "";
    EXPECT_EQ(found, expected) << query;
  }
  EXPECT_EQ(
      std::count_if(entries.begin(), entries.end(), [](const auto& entry) { return LibraryQuery(" ").finds(entry); }),
      static_cast<std::ptrdiff_t>(entries.size()));
  for (const auto& [query, words] : {std::pair{"a=x", "\"a=x\": a number"},
                                     {"a=", "a number"},
                                     {"x=5", "density or group"},
                                     {"+Xy", "an element"},
                                     {"group=Fm-5m", "no such space group"},
                                     {"a=5~", "a number"},
                                     {"a=1..", "a number"},
                                     {"=", "density or group"}}) {
    EXPECT_TRUE(fails_with(words, [&query = query] { return LibraryQuery(query); })) << query;
  }
}

TEST(Library, FindsGroupsInAList) {
  using Row = std::tuple<const char*, const char*, bool>;
  for (const auto& [typed, row, found] :
       {Row{"Fm-3m", " 225 Fm3m", true}, Row{"fm3", " 225 Fm3m", true}, Row{"225", " 225 Fm3m", true},
        Row{"cubic", " 225 Fm3m", true}, Row{"cubic", " 194 P63/mmc", false}, Row{"22", " 225 Fm3m", false},
        Row{"P 21/n", " 14 P21/c", true}, Row{"P21/n", " 231 P21/n", true}, Row{"", " 5 C2", true},
        Row{"231", " 231 P21/n", true}, Row{"p63", " 194 P63/mmc", true}}) {
    EXPECT_EQ(finds_row(typed, GroupSearch(typed), row), found) << typed << " in " << row;
  }
}

TEST(LibraryIndex, ReadsAgainOnlyWhatHasChanged) {
  const ScratchFolder scratch;
  const std::string text = "5.43,5.43,5.43,90,90,90,\"F\",227,\"abc\"\n1\n\"Si\",\"Si\",1,.5,0,0,0\n";
  for (const auto* name :
       {"c/a.cry", "c/deep/b\tx\n.cry", "c/deep/c.cry", "c/broken.cif", "c/.hidden/d.cry", "c/e.txt"}) {
    scratch.write(name, std::string(name).ends_with(".cif") ? "data_\n" : text);
  }
  const std::string folder = scratch.path("c");
  const std::string index = scratch.path("cache/library.index");
  const auto [first, all] = library_of(folder, index);
  ASSERT_EQ(first.size(), 4U);
  EXPECT_EQ(all, 4);
  EXPECT_EQ(first[1].path, "broken.cif");
  EXPECT_NE(first[1].fault, "");
  const auto [second, none] = library_of(folder, index);
  EXPECT_EQ(none, 0);
  EXPECT_EQ(second, first);
  scratch.write("c/a.cry", text + "\n");
  std::filesystem::remove(scratch.path("c/deep/c.cry"));
  EXPECT_EQ(library_of(folder, index).second, 1);
  EXPECT_EQ(library_of(folder, index).second, 0);

  const std::string kept = scratch.read("cache/library.index");
  std::string other = kept;
  other[kept.find("5.43")] = '6';
  for (const auto& damaged : {kept.substr(0, kept.size() / 2), other, std::string(), std::string("crystal library 2\n"),
                              std::string("\0\n\t\nend 1 1\n", 12)}) {
    scratch.write("cache/library.index", damaged);
    EXPECT_EQ(library_of(folder, index).second, 3) << damaged;
    EXPECT_EQ(scratch.read("cache/library.index"), kept);
  }
  EXPECT_EQ(library_of(folder, "/proc/no/such.index").second, 3);
  EXPECT_TRUE(fails_with("none", [&] { return library_of(scratch.path("none")); }));
}

TEST(LibraryIndex, KeepsWhatWasReadBeforeItWasStopped) {
  const ScratchFolder scratch;
  for (const auto* name : {"c/a.cry", "c/b.cry"}) {
    scratch.write(name, "3.6,3.6,3.6,90,90,90,\"P\",1,\"abc\"\n1\n\"Cu\",\"Cu\",1,.5,0,0,0\n");
  }
  const std::string index = scratch.path("library.index");
  struct StopsBehindTheFirst : Task {
    void report(int /*done*/, int /*total*/) override { stopped = true; }
    void check() override {
      if (stopped) throw Cancelled();
    }
    bool stopped = false;
  } stopping;
  EXPECT_THROW(update_library(
                   scratch.path("c"), index, shipped_groups(), [](const LibraryEntries&) {}, stopping),
               Cancelled);
  EXPECT_EQ(library_of(scratch.path("c"), index).second, 1);
}

}  // namespace
}  // namespace zol
