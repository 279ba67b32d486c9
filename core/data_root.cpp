#include "core/data_root.h"

#include <algorithm>
#include <filesystem>

namespace zol {
namespace {

namespace fs = std::filesystem;

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool same_but_for_case(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return lower(x) == lower(y); });
}

fs::path entry_of(const fs::path& folder, const std::string& name) {
  std::error_code error;
  fs::path exact = folder / name;
  if (fs::exists(exact, error)) return exact;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    if (same_but_for_case(entry->path().filename().string(), name)) return entry->path();
  }
  return exact;
}

}  // namespace

std::string DataRoot::path(std::string_view relative) const {
  fs::path found = root;
  for (const auto& name : fs::path(relative)) found = entry_of(found, name.string());
  return found.string();
}

bool DataRoot::holds(std::string_view relative) const {
  std::error_code error;
  return fs::exists(path(relative), error);
}

}  // namespace zol
