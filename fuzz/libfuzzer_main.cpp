// One target under libFuzzer. The name of the program says which: fuzz_cif runs the target "cif".
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

#include "core/run_failure.h"
#include "fuzz/fuzz_targets.h"

namespace {
const zol::fuzz::Target* chosen = nullptr;
}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** arguments) {
  const std::string program = std::filesystem::path((*arguments)[0]).filename().string();
  chosen = &zol::fuzz::target(program.substr(program.find('_') + 1));
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  try {
    chosen->run(std::string(bytes, bytes + count));
  } catch (const zol::RunFailure&) {
    return 0;  // one of the two ends that are allowed
  }
  return 0;
}
