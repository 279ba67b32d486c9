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
  const auto update = [&](const std::string& version) {
    update_data_copy(folder.path("share"), folder.path("copy"), version);
  };
  for (const auto* name : {"plain", "changed", "removed", "protected"})
    folder.write(std::string("share/ZOLDATA/") + name, "of version 1");
  update("1");
  folder.write("copy/ZOLDATA/changed", "mine");
  folder.write("copy/ZOLDATA/own", "mine");
  fs::remove(folder.path("copy/ZOLDATA/removed"));
  fs::permissions(folder.path("copy/ZOLDATA/protected"), fs::perms::owner_read);
  update("1");
  EXPECT_FALSE(fs::exists(folder.path("copy/ZOLDATA/removed"))) << "no new version, so it stays away";

  for (const std::string version : {"2", "3"}) {
    for (const auto* name : {"plain", "changed", "removed", "protected", "new"}) {
      folder.write(std::string("share/ZOLDATA/") + name, "of version " + version);
    }
    update(version);
    for (const auto* name : {"plain", "removed", "new"}) {
      EXPECT_EQ(folder.read(std::string("copy/ZOLDATA/") + name), "of version " + version) << name;
    }
    EXPECT_EQ(folder.read("copy/ZOLDATA/protected"), "of version 1");
    for (const auto* name : {"changed", "own"}) {
      EXPECT_EQ(folder.read(std::string("copy/ZOLDATA/") + name), "mine") << name << ", version " << version;
    }
  }
}

TEST(DataCopy, FailureNamesTheFoldersAndLeavesNothing) {
  const ScratchFolder folder;
  folder.write("share/ZOL/first", "1");
  fs::create_symlink("nowhere", folder.path("share/ZOL/unreadable"));
  const auto copied_to = [&](const char* name) {
    return failure_of([&] { update_data_copy(folder.path("share"), folder.path(name), "1"); });
  };
  const std::string message = copied_to("home/copy");
  EXPECT_TRUE(message.starts_with("can't copy the data files from " + folder.path("share") + " to " +
                                  folder.path("home/copy") + ": "))
      << message;
  EXPECT_NE(message.find("share/ZOL/unreadable: No such file"), std::string::npos) << message;
  EXPECT_TRUE(fs::is_empty(folder.path("home")));

  folder.write("file", "");
  EXPECT_NE(copied_to("file/copy").find(folder.path("file/copy") + ": Not a directory"), std::string::npos);
}

}  // namespace
}  // namespace zol
