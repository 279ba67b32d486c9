#include "core/available_memory.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <vector>

#include "core/number_text.h"
#include "core/run_failure.h"

namespace zol {
namespace {

using Bytes = std::optional<std::uint64_t>;

/// The number behind a key ("MemAvailable: 8000 kB"), or at the head of the file when the key is empty.
Bytes number_in(const std::string& path, std::string_view key = "") {
  std::ifstream file(path);
  std::string line;
  while (std::getline(file, line)) {
    std::istringstream words(line);
    std::string name;
    if (!key.empty() && (!(words >> name) || name != key)) continue;
    std::uint64_t number = 0;
    if (words >> number) return number;
    return std::nullopt;  // "max": no limit
  }
  return std::nullopt;
}

Bytes smaller(Bytes a, Bytes b) { return a && b ? std::min(*a, *b) : (a ? a : b); }

/// Names of what a control group tells, in both versions of the interface.
struct GroupFiles {
  const char* mount;
  const char* limit;
  const char* used;
  const char* reclaimable;  ///< key in memory.stat: file pages that give way
};
constexpr GroupFiles version_1{"/sys/fs/cgroup/memory", "memory.limit_in_bytes", "memory.usage_in_bytes",
                               "total_inactive_file"};
constexpr GroupFiles version_2{"/sys/fs/cgroup", "memory.max", "memory.current", "inactive_file"};

/// The least that a group or one above it leaves.
Bytes left_in_groups(const std::string& root, const GroupFiles& files, std::string group) {
  Bytes left;
  for (;;) {
    const std::string folder = root + files.mount + group + '/';
    const Bytes limit = number_in(folder + files.limit);
    if (const Bytes used = number_in(folder + files.used); limit && used) {
      const std::uint64_t free = number_in(folder + "memory.stat", files.reclaimable).value_or(0) + *limit;
      left = smaller(left, free > *used ? free - *used : 0);
    }
    if (group.empty()) return left;
    group.erase(group.rfind('/'));
  }
}

/// The groups of this program, a line each: number, ":", kinds of resource, ":", path; version 2 names no kind.
Bytes left_by_groups(const std::string& root) {
  std::ifstream file(root + "/proc/self/cgroup");
  Bytes left;
  std::string line;
  while (std::getline(file, line)) {
    const std::size_t kinds = line.find(':') + 1;
    const std::size_t path = line.find(":/", kinds);
    if (kinds == 0 || path == std::string::npos) continue;
    std::string group = line.substr(path + 1);
    if (group == "/") group.clear();
    const std::string kind = ',' + line.substr(kinds, path - kinds) + ',';
    if (kind == ",,") left = smaller(left, left_in_groups(root, version_2, group));
    if (kind.find(",memory,") != std::string::npos) left = smaller(left, left_in_groups(root, version_1, group));
  }
  return left;
}

std::string megabytes(std::uint64_t bytes) { return plain_text(static_cast<double>(bytes >> 20U)) + " MB"; }

}  // namespace

std::optional<std::uint64_t> available_memory(const std::string& root) {
  constexpr std::uint64_t kilobyte = 1024;
  Bytes machine = number_in(root + "/proc/meminfo", "MemAvailable:");
  if (machine) *machine *= kilobyte;
  return smaller(machine, left_by_groups(root));
}

void require_memory(std::string_view array, std::uint64_t bytes) {
  constexpr std::uint64_t worth_a_look = std::uint64_t{16} << 20U;
  if (bytes < worth_a_look) return;
  const Bytes there = available_memory();
  if (!there || bytes <= *there) return;
  throw RunFailure("not enough memory for " + std::string(array) + ": it takes " + megabytes(bytes) + ", there are " +
                   megabytes(*there));
}

}  // namespace zol
