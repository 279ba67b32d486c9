#include "structures/library_index.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <map>
#include <new>
#include <system_error>

#include "core/atomic_file.h"
#include "core/number_text.h"
#include "core/read_file.h"
#include "core/run_failure.h"

namespace zol {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view heading = "crystal library 1\n";
constexpr std::string_view last_line = "end ";
constexpr std::size_t fields_of_entry = 16;

/// FNV-1a, 64 bits.
std::uint64_t sum_of(std::string_view text) {
  std::uint64_t sum = 0xcbf29ce484222325U;
  for (const char c : text) sum = (sum ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
  return sum;
}

/// Tabs part the fields, line breaks the entries; both may stand in the name of a file.
void add_field(std::string& line, std::string_view text) {
  if (!line.empty() && line.back() != '\n') line += '\t';
  for (const char c : text) {
    if (c == '\\') {
      line += R"(\\)";
    } else if (c == '\t') {
      line += R"(\t)";
    } else if (c == '\n') {
      line += R"(\n)";
    } else {
      line += c;
    }
  }
}

std::string field_text(std::string_view kept) {
  std::string text;
  for (std::size_t i = 0; i < kept.size(); ++i) {
    if (kept[i] != '\\' || i + 1 == kept.size()) {
      text += kept[i];
      continue;
    }
    const char meant = kept[++i];
    text += meant == 't' ? '\t' : meant == 'n' ? '\n' : meant;
  }
  return text;
}

std::vector<std::string_view> parted(std::string_view text, char mark) {
  std::vector<std::string_view> parts;
  for (std::size_t at = 0; at <= text.size();) {
    const std::size_t end = std::min(text.find(mark, at), text.size());
    parts.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return parts;
}

void add_entry(std::string& text, const LibraryEntry& entry) {
  text += '\n';
  add_field(text, entry.path);
  for (const std::int64_t number : {entry.changed_ns, entry.bytes}) add_field(text, std::to_string(number));
  add_field(text, entry.fault);
  add_field(text, entry.title);
  std::string counts;
  for (const auto& [element, count] : entry.formula) counts += element + ' ' + plain_text(count) + ' ';
  add_field(text, counts);
  const CellConstants& cell = entry.cell;
  for (const double number : {cell.a, cell.b, cell.c, cell.alpha, cell.beta, cell.gamma, entry.volume, entry.density}) {
    add_field(text, plain_text(number));
  }
  add_field(text, std::to_string(entry.group));
  add_field(text, entry.symbol);
}

/// @throws std::exception  a number is none
LibraryEntry entry_of(const std::vector<std::string_view>& fields) {
  std::size_t at = 0;
  const auto next = [&fields, &at] { return field_text(fields[at++]); };
  const auto number = [&next] { return strict_number(next()).value(); };
  LibraryEntry entry;
  entry.read = true;
  entry.path = next();
  entry.changed_ns = std::stoll(next());
  entry.bytes = std::stoll(next());
  entry.fault = next();
  entry.title = next();
  const std::string counts = next();
  const auto words = parted(counts, ' ');
  for (std::size_t i = 0; i + 1 < words.size(); i += 2) {
    entry.formula[std::string(words[i])] = strict_number(words[i + 1]).value();
  }
  CellConstants& cell = entry.cell;
  for (double* value :
       {&cell.a, &cell.b, &cell.c, &cell.alpha, &cell.beta, &cell.gamma, &entry.volume, &entry.density}) {
    *value = number();
  }
  entry.group = std::stoi(next());
  entry.symbol = next();
  return entry;
}

/// Whether it may hold something of the library. A folder that cannot be looked into is none.
void note_file(LibraryEntries& entries, const fs::directory_entry& file, const fs::path& folder) {
  std::error_code error;
  if (!is_crystal_name(file.path().filename().native()) || !file.is_regular_file(error)) return;
  const auto changed = file.last_write_time(error);
  if (error) return;
  LibraryEntry entry;
  entry.path = file.path().lexically_relative(folder).generic_string();
  entry.changed_ns = std::chrono::duration_cast<std::chrono::nanoseconds>(changed.time_since_epoch()).count();
  entry.bytes = static_cast<std::int64_t>(file.file_size(error));
  if (!error) entries.push_back(std::move(entry));
}

LibraryEntries kept_entries(const std::string& index_file) {
  if (index_file.empty()) return {};
  try {
    return entries_of(read_file(index_file)).value_or(LibraryEntries());
  } catch (const RunFailure&) {
    return {};
  }
}

void keep(const std::string& index_file, const LibraryEntries& entries) {
  if (index_file.empty()) return;
  try {
    std::error_code error;
    fs::create_directories(fs::path(index_file).parent_path(), error);
    AtomicFile file(index_file);
    file.contain(index_text(entries));
    file.commit();
  } catch (const RunFailure&) {  // the next start reads the files again
  }
}

/// Takes over what the index knows. @returns whether it knew all and nothing else
bool take_kept(LibraryEntries& entries, LibraryEntries kept) {
  std::map<std::string_view, LibraryEntry*> by_path;
  for (auto& entry : kept) by_path[entry.path] = &entry;
  std::size_t taken = 0;
  for (auto& entry : entries) {
    const auto found = by_path.find(entry.path);
    if (found == by_path.end()) continue;
    const LibraryEntry& known = *found->second;
    if (known.changed_ns != entry.changed_ns || known.bytes != entry.bytes) continue;
    entry = known;
    ++taken;
  }
  return taken == entries.size() && taken == kept.size();
}

void read_file_of(LibraryEntry& entry, const std::string& folder, EntryReader& reader, Task& task) {
  try {
    reader.read(entry, read_file(folder + '/' + entry.path, task), task);
  } catch (const RunFailure& failure) {
    entry.fault = failure.message();
  } catch (const std::bad_alloc&) {
    entry.fault = "there is not enough memory to read it";
  }
  entry.read = true;
}

/// Reads what is unread; shows what there is every now and then.
void read_entries(LibraryEntries& entries, const std::string& folder, const SpaceGroupLibrary& groups,
                  const ShowLibrary& show, Task& task) {
  using Clock = std::chrono::steady_clock;
  constexpr std::chrono::milliseconds pause(500);
  const auto total = std::count_if(entries.begin(), entries.end(), [](const auto& entry) { return !entry.read; });
  EntryReader reader(groups);
  auto shown = Clock::now();
  int done = 0;
  for (auto& entry : entries) {
    if (entry.read) continue;
    task.check();
    read_file_of(entry, folder, reader, task);
    task.report(++done, static_cast<int>(total));
    if (Clock::now() - shown < pause) continue;
    show(entries);
    shown = Clock::now();
  }
}

}  // namespace

std::string index_text(const LibraryEntries& entries) {
  std::string text(heading);
  std::size_t count = 0;
  for (const auto& entry : entries) {
    if (!entry.read) continue;
    add_entry(text, entry);
    ++count;
  }
  text += '\n';
  const std::uint64_t sum = sum_of(text);
  return text + std::string(last_line) + std::to_string(count) + ' ' + std::to_string(sum) + '\n';
}

std::optional<LibraryEntries> entries_of(std::string_view text) {
  const std::size_t end = text.rfind("\nend ");
  if (!text.starts_with(heading) || end == std::string_view::npos) return std::nullopt;
  const std::string_view body = text.substr(0, end + 1);
  const auto lines = parted(body.substr(heading.size()), '\n');
  LibraryEntries entries;
  try {
    for (const auto line : lines) {
      if (line.empty()) continue;
      const auto fields = parted(line, '\t');
      if (fields.size() != fields_of_entry) return std::nullopt;
      entries.push_back(entry_of(fields));
    }
  } catch (const std::exception&) {
    return std::nullopt;
  }
  const std::string last =
      std::string(last_line) + std::to_string(entries.size()) + ' ' + std::to_string(sum_of(body)) + '\n';
  return text.substr(end + 1) == last ? std::optional(std::move(entries)) : std::nullopt;
}

LibraryEntries files_of_library(const std::string& folder, Task& task) {
  std::error_code error;
  fs::recursive_directory_iterator files(folder, fs::directory_options::skip_permission_denied, error);
  if (error) throw RunFailure("cannot read the folder " + folder + ": " + error.message());
  LibraryEntries entries;
  while (files != fs::recursive_directory_iterator()) {
    task.check();
    const bool hidden = files->path().filename().native().starts_with('.');
    if (hidden) {
      files.disable_recursion_pending();
    } else {
      note_file(entries, *files, folder);
    }
    files.increment(error);
    if (error) break;  // it goes while it is read: what there is counts
  }
  std::sort(entries.begin(), entries.end(),
            [](const LibraryEntry& one, const LibraryEntry& other) { return one.path < other.path; });
  return entries;
}

void update_library(const std::string& folder, const std::string& index_file, const SpaceGroupLibrary& groups,
                    const ShowLibrary& show, Task& task, const LibraryEntries& known) {
  LibraryEntries entries = files_of_library(folder, task);
  const bool all_known = take_kept(entries, known.empty() ? kept_entries(index_file) : known);
  show(entries);
  if (all_known) return;
  try {
    read_entries(entries, folder, groups, show, task);
  } catch (const Cancelled&) {
    keep(index_file, entries);
    throw;
  }
  keep(index_file, entries);
  show(std::move(entries));
}

}  // namespace zol
