#include "shell/program/data_folders.h"

#include <gtest/gtest.h>

#include "shell/program/program.h"
#include "tests/test_files.h"

namespace zol {
namespace {

namespace fs = std::filesystem;

TEST(DataFolders, AreTakenFromTheFirstPlaceThatHasThem) {
  const ScratchFolder folder;
  DataPlaces places;
  places.installed_data = folder.path("share");
  places.user_data = folder.path("home/data");
  places.user_settings = folder.path("home/zol.conf");
  EXPECT_NE(failure_of([&] { (void)find_data_root(places); }).find("no data files found"), std::string::npos);

  folder.write("share/ZOL/Camera_Parameters_New", "shipped");
  folder.write("share/ZOLDATA/NaCl.cry", "shipped");
  EXPECT_EQ(find_data_root(places).root, folder.path("home/data/ZOL")) << "the first start makes a copy";
  EXPECT_EQ(folder.read("home/data/ZOL/Camera_Parameters_New"), "shipped");
  folder.write("home/data/ZOLDATA/NaCl.cry", "mine");
  EXPECT_EQ(find_data_root(places).crystal_folder, folder.path("home/data/ZOLDATA"));
  EXPECT_EQ(folder.read("home/data/ZOLDATA/NaCl.cry"), "mine") << "later starts leave it alone";
  places.installed_data = folder.path("moved away");
  EXPECT_EQ(find_data_root(places).root, folder.path("home/data/ZOL")) << "the copy outlives the installation";
  places.installed_data = places.user_data;
  EXPECT_EQ(find_data_root(places).root, folder.path("home/data/ZOL")) << "an installation into the user's own folders";
  EXPECT_EQ(folder.read("home/data/ZOLDATA/NaCl.cry"), "mine");

  folder.write("source/ZOL/x", "");
  places.source_data = folder.path("source");
  EXPECT_EQ(find_data_root(places).root, folder.path("source/ZOL"));
  folder.write("home/zol.conf", "# mine\n data_root = elsewhere/ZOL \r\n");
  EXPECT_EQ(find_data_root(places).crystal_folder, folder.path("home/elsewhere/ZOLDATA"));
  places.beside_executable = folder.write("bin/zol.conf", "crystal_folder = /crystals\ndata_root = /abs/ZOL\n");
  EXPECT_EQ(find_data_root(places).root, "/abs/ZOL");
  EXPECT_EQ(find_data_root(places).crystal_folder, "/crystals");
}

TEST(DataFolders, AreTheInstalledOnesWhereNoCopyCanBeMade) {
  const ScratchFolder folder;
  folder.write("share/ZOL/table", "");
  DataPlaces places;
  places.installed_data = folder.path("share");
  for (const auto& [user_data, reason] :
       {std::pair{"", "neither HOME nor XDG_DATA_HOME names a folder"}, {"/proc/none/zol", "to /proc/none/zol: "}}) {
    places.user_data = user_data;
    const DataRoot data = find_data_root(places);
    EXPECT_EQ(data.root, folder.path("share/ZOL"));
    EXPECT_NE(data.read_only.find(reason), std::string::npos) << data.read_only;
  }
  fs::create_directories(folder.path("share/ZOLDATA"));
  places.user_data = folder.path("home/zol");
  EXPECT_EQ(find_data_root(places).read_only, "");
  places.installed_version = "2";
  fs::remove(folder.path("home/zol/copied-version"));
  fs::create_directories(folder.path("home/zol/copied-version"));
  EXPECT_EQ(find_data_root(places).root, folder.path("home/zol/ZOL")) << "a copy that cannot be renewed still serves";
  EXPECT_NE(find_data_root(places).read_only.find("it is a folder"), std::string::npos);
}

TEST(DataFolders, LieBesideTheProgramAndWithTheUser) {
  const ScratchFolder home;
  for (const auto* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"})
    setenv(variable, home.path(variable).c_str(), 1);  // NOLINT(concurrency-mt-unsafe)
  const auto places = data_places();
  const fs::path folder = fs::read_symlink("/proc/self/exe").parent_path();
  EXPECT_EQ(places.beside_executable, folder / "zol.conf");
  EXPECT_EQ(places.installed_data, folder.parent_path() / "share/zol");
  EXPECT_EQ(places.installed_version, program_version);
  EXPECT_EQ(places.user_settings, home.path("XDG_CONFIG_HOME/zol/zol.conf"));
  EXPECT_EQ(places.user_data, home.path("XDG_DATA_HOME/zol"));
}

TEST(DataFolders, SettingsNameTheLineThatIsWrong) {
  const ScratchFolder folder;
  for (const auto& [text, words] : {std::pair{"\ndata_rot = x\n", "zol.conf, line 2: "},
                                    {"\ndata_root x\n", "zol.conf, line 2: "},
                                    {"\ndata_root =\n", "zol.conf, line 2: "},
                                    {"crystal_folder = x\n", "is missing"}}) {
    const auto path = folder.write("zol.conf", text);
    EXPECT_NE(failure_of([&] { (void)read_data_settings(path); }).find(words), std::string::npos) << text;
  }
  EXPECT_NE(failure_of([&] { (void)read_data_settings(folder.path("")); }).find("it is a folder"), std::string::npos);
  EXPECT_EQ(data_root_at("/a/b/data/").root, "/a/b/data");
  EXPECT_EQ(data_root_at("/a/b/data/").crystal_folder, "/a/b/ZOLDATA") << "beside a root that is given";
}

}  // namespace
}  // namespace zol
