// Where a name of a file leads.
#pragma once

#include <string>

namespace zol {

/// The file behind symbolic links, whether it is there or not. Links of the system itself, to the files that a process
/// has open, are left: what they say is no path.
[[nodiscard]] std::string behind_links(std::string path);

}  // namespace zol
