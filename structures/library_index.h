// The index of a folder of crystals: what its files hold, kept in a file, so that only what has changed is read again.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "structures/library_entry.h"

namespace zol {

using LibraryEntries = std::vector<LibraryEntry>;

/// The text of an index: a line with its version, one for each entry that is read, one with count and checksum.
[[nodiscard]] std::string index_text(const LibraryEntries& entries);
/// @returns none where the text is damaged or of another version
[[nodiscard]] std::optional<LibraryEntries> entries_of(std::string_view text);

/// All files below a folder that may hold a crystal, by path; none of them is read. Hidden ones are left out, and
/// folders behind links are not entered.
/// @throws RunFailure  the folder cannot be read
/// @throws Cancelled   the task stops
[[nodiscard]] LibraryEntries files_of_library(const std::string& folder, Task& task);

/// Told what is known so far.
using ShowLibrary = std::function<void(LibraryEntries)>;

/// Brings the entries of a folder up to date: of files with the time and the size of the index the entry holds, the
/// others are read, and the index is written where anything has changed. An index that cannot be read or written is as
/// good as none. Stopped, it keeps what it has read.
/// @param index_file  empty: none is kept
/// @param show        at the start, about twice a second, and at the end
/// @param known       of an earlier pass, in the place of the index
/// @param task        told of the files that had to be read
/// @throws RunFailure  the folder cannot be read
/// @throws Cancelled   the task stops
void update_library(const std::string& folder, const std::string& index_file, const SpaceGroupLibrary& groups,
                    const ShowLibrary& show, Task& task, const LibraryEntries& known = {});

}  // namespace zol
