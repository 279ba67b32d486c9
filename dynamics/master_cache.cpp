#include "dynamics/master_cache.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <optional>
#include <system_error>

#include "core/number_text.h"
#include "core/run_failure.h"
#include "dynamics/master_file.h"

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
std::uint64_t hash_of(const std::string& text) {
  std::uint64_t hash = 14695981039346656037U;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  return hash;
}

}  // namespace

std::string MasterCache::path_of(const std::string& key) const {
  std::array<char, 16> digits{};
  constexpr int hexadecimal = 16;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), hash_of(key), hexadecimal).ptr;
  return folder_ + '/' + std::string(digits.data(), end) + ".h5";
}

MasterPattern MasterCache::get(const DynamicCrystal& crystal, const MasterSettings& settings, Task& task) const {
  if (folder_.empty() || settings.kilovolts.size() != 1) return master_pattern(crystal, settings, task);
  const std::string key = key_of(crystal, settings);
  const std::string path = path_of(key);
  std::error_code error;
  if (fs::is_regular_file(path, error)) {
    try {
      MasterPattern master = read_master(path);
      if (master.key == key && master.size == settings.size) {
        fs::last_write_time(path, fs::file_time_type::clock::now(), error);  // it was used
        return master;
      }
    } catch (const RunFailure&) {  // damaged: it is made anew
    }
  }
  MasterPattern master = master_pattern(crystal, settings, task);
  keep(master, key);
  return master;
}

void MasterCache::keep(const MasterPattern& master, const std::string& key) const {
  std::error_code error;
  fs::create_directories(folder_, error);
  try {
    MasterPattern keyed = master;
    keyed.key = key;
    write_master(keyed, path_of(key));
    trim(path_of(key));
  } catch (const RunFailure&) {  // a full or write-protected disk: it is made again the next time
  }
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
  for (const auto& entry : fs::directory_iterator(folder_, error)) {
    if (entry.path().extension() != ".h5") continue;
    const Kept kept{entry.last_write_time(error), entry.file_size(error), entry.path()};
    if (error) continue;
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
