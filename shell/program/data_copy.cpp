#include "shell/program/data_copy.h"

#include <unistd.h>

#include <cstring>
#include <filesystem>

#include "core/atomic_file.h"
#include "core/read_file.h"
#include "core/run_failure.h"

namespace zol {
namespace {

namespace fs = std::filesystem;

/// The file in a copy that holds its version. All copied files have its time, so that another time tells a file that
/// the user has changed.
fs::path stamp_of(const fs::path& copy) { return copy / "copied-version"; }

void write_with_time(const fs::path& path, const std::string& text, fs::file_time_type time) {
  AtomicFile file(path.string());
  file.write(text);
  file.commit();
  fs::last_write_time(path, time);
}

/// False for a file that the user has protected: it stays as it is, too.
bool may_write(const fs::path& path) {
  return (fs::status(path).permissions() & fs::perms(0222)) != fs::perms::none && access(path.c_str(), W_OK) == 0;
}

/// Adds and renews files, and writes the stamp last: a copy left half done is taken up again at the next start.
void fill_copy(const fs::path& installed, const fs::path& copy, const std::string& version) {
  const fs::path stamp = stamp_of(copy);
  const auto time = fs::exists(stamp) ? fs::last_write_time(stamp) : fs::file_time_type::clock::now();
  for (const auto& entry : fs::recursive_directory_iterator(installed)) {
    const fs::path target = copy / entry.path().lexically_relative(installed);
    if (entry.is_directory()) {
      fs::create_directories(target);
    } else if (!fs::exists(target) || (fs::last_write_time(target) == time && may_write(target))) {
      write_with_time(target, read_file(entry.path().string()), time);
    }
  }
  write_with_time(stamp, version, time);
}

void make_copy(const fs::path& installed, const fs::path& copy, const std::string& version) {
  fs::create_directories(copy.parent_path());
  Temporary folder(copy.parent_path().string() + '/', Temporary::Kind::folder);
  if (folder.reason() != 0) throw RunFailure(std::strerror(folder.reason()));
  fill_copy(installed, folder.path(), version);
  std::error_code error;
  fs::rename(folder.path(), copy, error);
  // Another program that started at the same time may have been first; its copy is as good.
  if (error && !fs::exists(stamp_of(copy))) throw fs::filesystem_error("", error);
  if (!error) folder.renamed();
}

}  // namespace

void update_data_copy(const std::string& installed, const std::string& copy, const std::string& version) {
  const auto failure = [&](const std::string& reason) {
    return RunFailure("cannot copy the data files from " + installed + " to " + copy + ": " + reason);
  };
  try {
    if (!fs::exists(copy)) {
      make_copy(installed, copy, version);
    } else if (const fs::path stamp = stamp_of(copy); !fs::exists(stamp) || read_file(stamp.string()) != version) {
      fill_copy(installed, copy, version);
    }
  } catch (const fs::filesystem_error& error) {
    throw failure(error.code().message());
  } catch (const RunFailure& error) {
    throw failure(error.message());
  }
}

}  // namespace zol
