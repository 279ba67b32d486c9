#include "core/bounded_array.h"

#include "core/run_failure.h"

namespace zol::detail {

void fail_index(std::string_view array, long long index, long long upper) {
  const std::string name(array);
  if (upper < 0) {
    throw RunFailure("index " + std::to_string(index) + " of " + name + ", which has not been allocated yet");
  }
  throw RunFailure("index " + std::to_string(index) + " of " + name + " is outside 0 to " + std::to_string(upper));
}

void fail_memory(std::string_view array, long long upper) {
  throw RunFailure("not enough memory for " + std::string(array) + "(0 to " + std::to_string(upper) + ")");
}

}  // namespace zol::detail
