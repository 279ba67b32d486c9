#include "shell/program/data_copy.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/test_files.h"

namespace zol {
namespace {

namespace fs = std::filesystem;

TEST(DataCopy, CanBeWrittenThoughTheInstalledFilesCannot) {
  const ScratchFolder folder;
  fs::permissions(folder.write("share/ZOL/Asf/table", "1"), fs::perms::owner_read);
  fs::permissions(folder.path("share/ZOL/Asf"), fs::perms::owner_read | fs::perms::owner_exec);
  update_data_copy(folder.path("share"), folder.path("home/copy"), "1");
  fs::permissions(folder.path("share/ZOL/Asf"), fs::perms::owner_all);
  EXPECT_EQ(folder.read("home/copy/ZOL/Asf/table"), "1");
  for (const auto* name : {"home/copy", "home/copy/ZOL/Asf", "home/copy/ZOL/Asf/table"}) {
    EXPECT_NE(fs::status(folder.path(name)).permissions() & fs::perms::owner_write, fs::perms::none) << name;
  }
}

TEST(DataCopy, NewVersionLeavesAloneWhatTheUserHasChanged) {
  const ScratchFolder folder;
  const auto install = [&](const std::string& version) {
    for (const std::string name : {"plain", "changed", "removed", "protected"}) {
      folder.write("share/ZOLDATA/" + name, version);
    }
    update_data_copy(folder.path("share"), folder.path("copy"), version);
  };
  install("1");
  for (const auto* mine : {"copy/ZOLDATA/changed", "copy/ZOLDATA/own"}) folder.write(mine, "mine");
  fs::remove(folder.path("copy/ZOLDATA/removed"));
  fs::permissions(folder.path("copy/ZOLDATA/protected"), fs::perms::owner_read);
  install("1");
  EXPECT_FALSE(fs::exists(folder.path("copy/ZOLDATA/removed"))) << "no new version, so it stays away";
  for (const std::string version : {"2", "3"}) {
    folder.write("share/ZOLDATA/new", version);
    install(version);
    std::string found;
    for (const std::string name : {"plain", "removed", "new", "protected", "changed", "own"}) {
      found += folder.read("copy/ZOLDATA/" + name) + ' ';
    }
    EXPECT_EQ(found, version + ' ' + version + ' ' + version + " 1 mine mine ");
  }
}

TEST(DataCopy, FailureNamesTheFoldersAndLeavesNothing) {
  const ScratchFolder folder;
  folder.write("share/ZOL/first", "1");
  fs::create_symlink("nowhere", folder.path("share/ZOL/unreadable"));
  folder.write("file", "");
  for (const auto& [home, reason] :
       {std::pair{"home", "share/ZOL/unreadable: No such file"}, {"file", "file/copy: Not a directory"}}) {
    const std::string copy = folder.path(home) + "/copy";
    const std::string message = failure_of([&] { update_data_copy(folder.path("share"), copy, "1"); });
    EXPECT_TRUE(message.starts_with("cannot copy the data files from " + folder.path("share") + " to " + copy + ": "))
        << message;
    EXPECT_NE(message.find(reason), std::string::npos) << message;
  }
  EXPECT_TRUE(fs::is_empty(folder.path("home")));
}

}  // namespace
}  // namespace zol
