#include "core/bounded_array.h"

#include "core/available_memory.h"
#include "core/run_failure.h"

namespace zol::detail {

void fail_index(std::string_view array, long long index, long long upper) {
  const std::string name(array);
  if (upper < 0) {
    throw RunFailure("index " + std::to_string(index) + " of " + name + ", which has not been allocated yet");
  }
  throw RunFailure("index " + std::to_string(index) + " of " + name + " is outside 0 to " + std::to_string(upper));
}

void fail_bound(std::string_view array, long long upper) {
  throw RunFailure("the last index of " + std::string(array) + " would be " + std::to_string(upper) +
                   ", it must be 0 or more");
}

void fail_memory(std::string_view array, long long upper) {
  throw RunFailure("not enough memory for " + std::string(array) + "(0 to " + std::to_string(upper) + ")");
}

void check_memory(std::string_view array, long long upper, std::size_t elements, std::size_t element_size) {
  require_memory(std::string(array) + "(0 to " + std::to_string(upper) + ")", std::uint64_t{elements} * element_size);
}

}  // namespace zol::detail
