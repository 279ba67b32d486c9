// The file form of a snapshot: the work of one run, kept for a later one. First is a note of what it is, which can
// be read by itself; then all of it. Each has a checksum.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "shell/program/snapshot.h"

namespace zol {

/// Kinds of ends of a run, as far as its file knows.
enum class RunEnd : std::uint8_t {
  Unknown,  ///< killed, or the machine went down
  Failure,
  Unsaved,  ///< the user's end, with a crystal that was not saved
};

/// What is said of kept work.
struct WorkNote {
  std::string version;       ///< of the program
  std::int64_t time_ms = 0;  ///< since the beginning of 1970, UTC
  std::string crystal;       ///< its name, a part of a file name; empty where there is no crystal
  std::string windows;       ///< that were open, "Main1, Pattern2"
  RunEnd end = RunEnd::Unknown;
  std::string failure;  ///< the message of a failure
};

struct KeptWork {
  WorkNote note;
  std::shared_ptr<const Snapshot> snapshot;
  std::string saved_crystal;  ///< text of the crystal file that was last loaded or saved
};

/// The bytes of a file. May run in a thread of its own.
[[nodiscard]] std::string bytes_of(const KeptWork& work);

/// A note is within so many bytes from the beginning of its file.
inline constexpr std::size_t most_note_bytes = 16384;

/// @param beginning  of the file, as much as a note may take
/// @throws RunFailure  it is no such file, of another format or damaged
[[nodiscard]] WorkNote read_note(std::string_view beginning);

/// @param state     the names and types of the crystal state's fields
/// @param windows   those of the windows
/// @param services  make pictures
/// @throws RunFailure  it is no such file, cut short, damaged, or of another version of the program
[[nodiscard]] KeptWork read_work(std::string_view bytes, const NamedValues& state, const Windows& windows,
                                 Services& services);

}  // namespace zol
