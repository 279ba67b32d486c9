#include "core/user_folders.h"

#include <cstdlib>

namespace zol {

namespace fs = std::filesystem;

namespace {

std::string environment(const char* name) {
  const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): one thread
  return value == nullptr ? "" : value;
}

}  // namespace

fs::path user_folder(const char* variable, const char* below_home) {
  if (const fs::path given = environment(variable); given.is_absolute()) return given / "zol";
  const fs::path home = environment("HOME");
  return home.is_absolute() ? home / below_home / "zol" : fs::path();
}

std::string cache_folder() { return user_folder("XDG_CACHE_HOME", ".cache").string(); }

}  // namespace zol
