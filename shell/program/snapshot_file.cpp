#include "shell/program/snapshot_file.h"

#include <utility>

#include "core/run_failure.h"
#include "shell/program/program.h"

namespace zol {
namespace {

constexpr std::string_view magic = "ZOLWORK\x1a";
/// To be raised when the bytes mean something else.
constexpr std::uint32_t format = 1;

/// A part of the file: its bytes behind their count, and the checksum over them.
void add_part(std::string& file, const std::string& part) {
  StoreWriter head;
  head.number(std::uint64_t{part.size()});
  StoreWriter foot;
  foot.number(checksum(part));
  file += head.bytes();
  file += part;
  file += foot.bytes();
}

std::string_view next_part(StoreReader& file) {
  const auto size = file.number<std::uint64_t>();
  const std::string_view part = file.raw(size);
  if (file.number<std::uint64_t>() != checksum(part)) StoreReader::fail("its checksum is another one");
  return part;
}

StoreReader behind_format(std::string_view bytes) {
  StoreReader file(bytes);
  if (!bytes.starts_with(magic)) throw RunFailure("it is not a file of kept work");
  (void)file.raw(magic.size());
  if (const auto found = file.number<std::uint32_t>(); found != format) {
    throw RunFailure("it is of format " + std::to_string(found) + ", this program reads format " +
                     std::to_string(format));
  }
  return file;
}

/// Of a text no more than there is room for, so that the note stays short.
std::string shortened(const std::string& text) {
  constexpr std::size_t most = 3000;
  return text.size() <= most ? text : text.substr(0, most) + "...";
}

WorkNote note_of(std::string_view part) {
  StoreReader in(part);
  auto note = load<WorkNote>(in);
  if (!in.at_end() || note.end > RunEnd::Unsaved) StoreReader::fail("its note is none");
  return note;
}

}  // namespace

std::string bytes_of(const KeptWork& work) {
  WorkNote note = work.note;
  for (std::string* text : {&note.crystal, &note.windows, &note.failure}) *text = shortened(*text);
  StoreWriter note_part;
  store(note_part, note);
  StoreWriter body;
  body.text(work.saved_crystal);
  NamedValues::store(body, work.snapshot->state);
  Windows::store(body, work.snapshot->windows);

  std::string file(magic);
  StoreWriter format_part;
  format_part.number(format);
  file += format_part.bytes();
  add_part(file, note_part.bytes());
  add_part(file, body.bytes());
  return file;
}

WorkNote read_note(std::string_view beginning) {
  StoreReader file = behind_format(beginning);
  return note_of(next_part(file));
}

KeptWork read_work(std::string_view bytes, const NamedValues& state, const Windows& windows, Services& services) {
  StoreReader file = behind_format(bytes);
  KeptWork work;
  work.note = note_of(next_part(file));
  if (work.note.version != program_version) {
    throw RunFailure("it was kept by version " + work.note.version + " of the program, this is " + program_version);
  }
  StoreReader body(next_part(file), &services);
  if (!file.at_end()) StoreReader::fail("there is something after its end");
  work.saved_crystal = body.text();
  auto fields = state.load(body);
  work.snapshot = std::make_shared<const Snapshot>(Snapshot{std::move(fields), windows.load(body)});
  if (!body.at_end()) StoreReader::fail("it is longer than what it holds");
  return work;
}

}  // namespace zol
