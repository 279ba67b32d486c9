// Locks of files by which programs know of each other: a lock ends with its process, however that ends.
#pragma once

namespace zol {

/// @param how  as flock takes it: LOCK_EX or LOCK_SH, with LOCK_NB not to wait
/// @returns false when another program holds it, or where there are no locks
[[nodiscard]] bool lock_file(int descriptor, int how);

}  // namespace zol
