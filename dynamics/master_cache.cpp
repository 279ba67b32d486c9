#include "dynamics/master_cache.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "core/atomic_file.h"
#include "core/number_text.h"
#include "core/read_file.h"
#include "core/run_failure.h"

namespace zol {
namespace {

namespace fs = std::filesystem;

/// All that a pattern depends on, and the version of the calculation.
std::string key_of(const DynamicCrystal& crystal, const MasterSettings& settings) {
  std::string key = "1";
  const auto add = [&key](std::initializer_list<double> numbers) {
    for (const double number : numbers) key += ' ' + plain_text(number);
  };
  const auto& cell = crystal.cell;
  add({cell.a, cell.b, cell.c, cell.alpha, cell.beta, cell.gamma});
  for (const auto& kind : crystal.kinds) {
    add({static_cast<double>(kind.atomic_number), kind.b_iso});
    for (std::size_t i = 0; i < kind.factor.a.size(); ++i) add({kind.factor.a[i], kind.factor.b[i]});
  }
  for (const auto& atom : crystal.atoms) {
    add({static_cast<double>(atom.kind), atom.occupancy, atom.position[0], atom.position[1], atom.position[2]});
  }
  add({static_cast<double>(crystal.space_group), static_cast<double>(crystal.operations.size())});
  for (const auto& operation : crystal.operations) {
    for (const double element : operation.reshaped()) add({element});
  }
  for (const double kilovolt : settings.kilovolts) add({kilovolt});
  const MasterChoice choice = master_choice(crystal, settings);
  add({static_cast<double>(settings.size), choice.depth_nm, choice.smallest_spacing,
       static_cast<double>(choice.beams)});
  if (choice.rule) add({choice.rule->strong, choice.rule->weak, choice.rule->listed});
  return key;
}

/// FNV-1a, 64 bits.
std::uint64_t hash_of(std::string_view text) {
  std::uint64_t hash = 14695981039346656037U;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  return hash;
}

std::string head_of(const std::string& key) { return "ZOL master pattern\n" + key + '\n'; }

void append(std::string& to, const void* from, std::size_t bytes) { to.append(static_cast<const char*>(from), bytes); }

/// Those of an earlier version too, which were files of HDF5.
bool is_master(const fs::path& path) { return path.extension() == ".master" || path.extension() == ".h5"; }

}  // namespace

std::string MasterCache::path_of(const std::string& key) const {
  std::array<char, 16> digits{};
  constexpr int hexadecimal = 16;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), hash_of(key), hexadecimal).ptr;
  return folder_ + '/' + std::string(digits.data(), end) + ".master";
}

MasterPattern MasterCache::get(const DynamicCrystal& crystal, const MasterSettings& settings, Task& task) const {
  if (folder_.empty()) return master_pattern(crystal, settings, task);
  const std::string key = key_of(crystal, settings);
  MasterPattern master = empty_master(crystal, settings);
  if (read(key, master)) return master;
  master = master_pattern(crystal, settings, task);
  keep(master, key);
  return master;
}

bool MasterCache::read(const std::string& key, MasterPattern& master) const {
  const std::string path = path_of(key);
  const std::string head = head_of(key);
  const auto side = static_cast<std::size_t>(master.size);
  const std::size_t half_bytes = side * side * sizeof(float);
  const std::size_t expected = head.size() + 2 * half_bytes * master.kilovolts.size() + sizeof(std::uint64_t);
  std::error_code error;
  if (fs::file_size(path, error) != expected || error) return false;
  try {
    const std::string bytes = read_file(path, expected);
    if (bytes.size() != expected || !bytes.starts_with(head)) return false;
    std::uint64_t checksum = 0;
    const std::size_t checked = expected - sizeof checksum;
    std::memcpy(&checksum, &bytes[checked], sizeof checksum);
    if (checksum != hash_of(std::string_view(bytes).substr(0, checked))) return false;
    const char* next = &bytes[head.size()];
    for (std::size_t i = 0; i < master.kilovolts.size(); ++i) {
      auto& halves = master.patterns.emplace_back();
      for (auto* half : {&halves.north, &halves.south}) {
        half->resize(side * side);
        std::memcpy(half->data(), next, half_bytes);
        next += half_bytes;
      }
    }
  } catch (const RunFailure&) {  // it is made anew
    return false;
  }
  fs::last_write_time(path, fs::file_time_type::clock::now(), error);  // it was used
  return true;
}

void MasterCache::keep(const MasterPattern& master, const std::string& key) const {
  std::string bytes = head_of(key);
  for (const auto& halves : master.patterns) {
    for (const auto* half : {&halves.north, &halves.south}) {
      append(bytes, half->data(), half->size() * sizeof(float));
    }
  }
  const std::uint64_t checksum = hash_of(bytes);
  append(bytes, &checksum, sizeof checksum);
  std::error_code error;
  fs::create_directories(folder_, error);
  try {
    AtomicFile file(path_of(key));
    file.contain(std::move(bytes));
    file.commit();
  } catch (const RunFailure&) {  // a full or write-protected disk: it is made again the next time
    return;
  }
  trim(path_of(key));
}

void MasterCache::trim(const std::string& newest) const {
  struct Kept {
    fs::file_time_type used;
    std::uint64_t bytes;
    fs::path path;
  };
  std::vector<Kept> all;
  std::uint64_t sum = 0;
  std::error_code error;
  for (fs::directory_iterator entry(folder_, error), end; !error && entry != end; entry.increment(error)) {
    if (!is_master(entry->path())) continue;
    std::error_code gone;
    const Kept kept{entry->last_write_time(gone), entry->file_size(gone), entry->path()};
    if (gone) continue;
    sum += kept.bytes;
    if (kept.path != newest) all.push_back(kept);
  }
  std::sort(all.begin(), all.end(), [](const Kept& a, const Kept& b) { return a.used < b.used; });
  for (const auto& kept : all) {
    if (sum <= most_bytes_) return;
    if (fs::remove(kept.path, error)) sum -= kept.bytes;
  }
}

}  // namespace zol
