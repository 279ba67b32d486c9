// One target under libFuzzer.
#include <cstddef>
#include <cstdint>
#include <string>

#include "core/run_failure.h"
#include "fuzz/fuzz_targets.h"

// NOLINTNEXTLINE(readability-identifier-naming): the name that libFuzzer calls
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  static const zol::fuzz::Target& target = zol::fuzz::target(ZOL_FUZZ_TARGET);
  try {
    target.run(std::string(bytes, bytes + count));
  } catch (const zol::RunFailure&) {
    return 0;
  }
  return 0;
}
