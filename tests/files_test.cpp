// Files as a whole: what is read and what is not, and what a save leaves of the old file.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <optional>
#include <tuple>

#include "core/atomic_file.h"
#include "core/read_file.h"
#include "core/record_writer.h"
#include "tests/test_files.h"

namespace {
int refusal = 0;  ///< why no new file can be made beside another, as a value of errno
}

/// In place of the one of the system.
extern "C" int mkostemp(char* name, int flags) {
  if (refusal == 0) return mkostemps(name, 0, flags);
  errno = refusal;
  return -1;
}

namespace zol {
namespace {

namespace fs = std::filesystem;

constexpr uid_t somebody = 4711;

/// Another user than root, who may write everywhere, for the length of a scope.
struct AsSomebody {
  AsSomebody() { EXPECT_TRUE(geteuid() != 0 || (setegid(somebody) == 0 && seteuid(somebody) == 0)); }
  ~AsSomebody() { EXPECT_TRUE(getuid() != 0 || (seteuid(0) == 0 && setegid(0) == 0)); }
};

void save(const std::string& path, const std::string& text) {
  AtomicFile file(path);
  file.write(text);
  file.commit();
}

struct stat status_of(const std::string& path) {
  struct stat file {};
  EXPECT_EQ(stat(path.c_str(), &file), 0);
  return file;
}

uid_t owner_of(const std::string& path) { return status_of(path).st_uid; }

TEST(AtomicFiles, LeaveTheOldFileUnlessCommitted) {
  const ScratchFolder folder;
  const std::string name(255, 'n');  // as long as the disk takes
  folder.write(name, "old");
  for (const bool committed : {false, true}) {
    RecordWriter file(folder.path(name));
    file.field("a, b").field(0.1F).field(Integer(-3)).end_line();
    file.field("new").end_line();
    if (committed) file.commit();
    EXPECT_EQ(folder.read(name), committed ? "\"a, b\",.1,-3\r\n\"new\"\r\n" : "old");
  }
  { const AtomicFile given_up(folder.path("given up")); }
  EXPECT_EQ(folder.entries(), 1U) << "a temporary file was left behind";
  EXPECT_TRUE(fails_with("too long", [&] { AtomicFile(folder.path(name + 'n')); }));
}

TEST(AtomicFiles, KeepLinksPermissionsAndAttributes) {
  const ScratchFolder folder;
  folder.write("real", "old");
  const auto permissions = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
  fs::permissions(folder.path("real"), permissions);
  const bool attributes = setxattr(folder.path("real").c_str(), "user.note", "x", 1, 0) == 0 &&  // not on all disks
                          setxattr(folder.path("real").c_str(), "user.other", "yy", 2, 0) == 0;
  const auto old_file = status_of(folder.path("real")).st_ino;
  fs::create_directory(folder.path("other"));
  fs::create_symlink("../real", folder.path("other/link"));
  fs::create_symlink("other/link", folder.path("link"));
  save(folder.path("link"), "new");
  EXPECT_EQ(folder.read("real"), "new");
  EXPECT_TRUE(fs::is_symlink(folder.path("link")) && fs::is_symlink(folder.path("other/link")));
  EXPECT_EQ(fs::status(folder.path("real")).permissions(), permissions);
  EXPECT_EQ(getxattr(folder.path("real").c_str(), "user.note", nullptr, 0), attributes ? 1 : -1);
  EXPECT_EQ(getxattr(folder.path("real").c_str(), "user.other", nullptr, 0), attributes ? 2 : -1);
  EXPECT_NE(status_of(folder.path("real")).st_ino, old_file) << "a new file, so that the old one is there to the last";

  fs::create_symlink("../not-yet", folder.path("other/dangling"));
  save(folder.path("other/dangling"), "made");
  EXPECT_EQ(folder.read("not-yet"), "made");

  fs::create_hard_link(folder.path("real"), folder.path("twin"));
  save(folder.path("twin"), "3");
  EXPECT_EQ(folder.read("real"), "3") << "both names are still the same file, and cut to the shorter text";
  fs::create_symlink("loop", folder.path("loop"));
  EXPECT_TRUE(fails_with("it is a folder", [&] { AtomicFile(folder.path("other")); }));
  EXPECT_TRUE(fails_with("Too many levels", [&] { AtomicFile(folder.path("loop")); }));
}

TEST(AtomicFiles, AreWrittenInPlaceWhereNoneCanBeMadeBeside) {
  const ScratchFolder folder;
  const auto set_mode = [&](const char* name, int mode) {
    ASSERT_EQ(chmod(folder.path(name).c_str(), static_cast<mode_t>(mode)), 0);
  };
  for (const auto* name : {"shared/open", "shared/closed", "shared/mine", "shared/protected"})
    folder.write(name, "old");
  ASSERT_TRUE(getuid() != 0 || chown(folder.path("shared/mine").c_str(), somebody, somebody) == 0);
  set_mode("shared/mine", 0464);
  set_mode("shared/open", 0646);
  set_mode("shared/protected", 0404);
  EXPECT_TRUE(fails_with("write-protected", [&] { AtomicFile(folder.path("shared/protected")); }));
  if (getuid() == 0) {
    set_mode("shared", 0700);
    ASSERT_EQ(chown(folder.path("shared/closed").c_str(), somebody, somebody), 0);
    save(folder.path("shared/closed"), "by root");
    EXPECT_EQ(owner_of(folder.path("shared/closed")), somebody) << "the file stays whose it was";
    ASSERT_EQ(chown(folder.path("shared/closed").c_str(), 0, 0), 0);
  }
  set_mode("shared/closed", getuid() == 0 ? 0600 : 0460);
  for (const auto folder_mode : {0555, 0777}) {  // in the second a new file would belong to somebody
    set_mode("shared", folder_mode);
    const AsSomebody user;
    save(folder.path("shared/open"), "by somebody");
    for (const auto* name : {"shared/closed", "shared/mine"}) {
      EXPECT_TRUE(fails_with("denied", [&] { AtomicFile(folder.path(name)); }));
    }
  }
  EXPECT_EQ(folder.read("shared/open"), "by somebody");
  EXPECT_EQ(owner_of(folder.path("shared/open")), getuid());

  set_mode("shared/mine", 0644);
  std::optional<AtomicFile> file;
  for (const auto folder_mode : {0777, 0555}) {  // protected between the begin of a save and its end
    set_mode("shared", folder_mode);
    const AsSomebody user;
    if (file) file->commit();
    if (!file) file.emplace(folder.path("shared/mine")).write("new");
  }
  EXPECT_EQ(folder.read("shared/mine"), "new");
  set_mode("shared", 0777);
}

TEST(AtomicFiles, AreNotWrittenInPlaceOnAFullDisk) {
  const ScratchFolder folder;
  const std::string path = folder.write("file", "old");
  for (const auto& [reason, words, left] :
       {std::tuple{ENOSPC, "No space", "old"}, {EDQUOT, "quota", "old"}, {EMFILE, "", "new"}}) {
    refusal = reason;
    if (reason == EMFILE) {
      save(path, "new");
    } else {
      EXPECT_TRUE(fails_with(words, [&] { save(path, "new"); }));
    }
    EXPECT_TRUE(fails_with(std::strerror(reason), [&] { save(folder.path("none"), "new"); }));
    refusal = 0;
    EXPECT_EQ(folder.read("file"), left);
  }
}

TEST(AtomicFiles, GoToPipesAndDevices) {
  const ScratchFolder folder;
  const std::string pipe = folder.path("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0666), 0);
  EXPECT_TRUE(fails_with("nobody reads", [&] { AtomicFile{pipe}; }));
  const int reader = open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
  save(pipe, "text");
  std::array<char, 8> bytes{};
  EXPECT_EQ(read(reader, bytes.data(), bytes.size()), 4);
  AtomicFile given_up(pipe);
  given_up.write("text");
  close(reader);
  EXPECT_TRUE(fails_with("Broken pipe", [&] { given_up.commit(); }));
  save("/dev/null", "text");
  EXPECT_TRUE(fs::is_fifo(pipe) && fs::is_character_file("/dev/null"));
  EXPECT_TRUE(fails_with("No space", [] { save("/dev/full", "text"); }));

  folder.write("output", "");
  const int output = open(folder.path("output").c_str(), O_WRONLY);
  ASSERT_EQ(write(output, "before ", 7), 7);
  fs::create_symlink("/dev/fd/" + std::to_string(output), folder.path("link"));
  save(folder.path("link"), "saved ");
  ASSERT_EQ(write(output, "after", 5), 5);
  close(output);
  EXPECT_EQ(folder.read("output"), "before saved after") << "a file that is open goes on where it is";
}

TEST(AtomicFiles, CleanUpBehindProgramsThatWereKilled) {
  const ScratchFolder folder;
  for (const auto* name : {".zol-save-abcdef", ".zol-save-folder/part"}) folder.write(name, "left");
  for (const auto* name : {".zol-save-abc", "out.abcdef", ".zol-save-abcdefg"}) folder.write(name, "the user's");
  fs::create_symlink("out.abcdef", folder.path(".zol-save-linked"));
  AtomicFile living(folder.path("living"));
  save(folder.path("out"), "new");
  living.commit();
  EXPECT_EQ(folder.entries(), 6U) << "three files, a link, and the two that were saved";
  EXPECT_FALSE(fs::exists(folder.path(".zol-save-abcdef")) || fs::exists(folder.path(".zol-save-folder")));
}

TEST(Files, ThatCantBeReadAreNamed) {
  const ScratchFolder folder;
  ASSERT_EQ(mkfifo(folder.path("pipe").c_str(), 0666), 0);
  std::ofstream(folder.path("large")).close();
  fs::resize_file(folder.path("large"), most_text_bytes + 1);
  for (const auto& [path, message] :
       {std::pair{folder.path("none"), "cannot open " + folder.path("none") + ": No such file or directory"},
        {folder.path(""), "it is a folder"},
        {folder.path("pipe"), "it is a pipe"},
        {std::string("/dev/zero"), "cannot read /dev/zero: it is a device"},
        {folder.path("large"), "it has 67108865 bytes or more, at most 67108864 are taken"}}) {
    EXPECT_TRUE(fails_with(message, [&path = path] { (void)read_file(path); })) << path;
  }
  EXPECT_TRUE(fails_with("at most 10", [] { (void)read_file("/proc/self/maps", 10); }));
  EXPECT_FALSE(read_file("/proc/self/maps").empty()) << "a file without a size";
  EXPECT_TRUE(fails_with("none/out", [&] { AtomicFile(folder.path("none/out")); }));
}

}  // namespace
}  // namespace zol
