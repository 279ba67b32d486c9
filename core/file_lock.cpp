#include "core/file_lock.h"

#include <sys/file.h>

#include <cerrno>

namespace zol {

bool lock_file(int descriptor, int how) {
  int result = 0;
  do {
    result = flock(descriptor, how);
  } while (result != 0 && errno == EINTR);
  return result == 0;
}

}  // namespace zol
