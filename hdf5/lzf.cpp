#include "hdf5/lzf.h"

#include <hdf5.h>

#include <algorithm>
#include <cstdlib>
#include <mutex>

namespace zol {

std::optional<std::size_t> unpack_lzf(std::span<const std::byte> packed, std::span<std::byte> unpacked) {
  std::size_t at = 0;
  std::size_t out = 0;
  const auto next = [&]() { return static_cast<std::size_t>(packed[at++]); };
  while (at < packed.size()) {
    const std::size_t control = next();
    if (control < 32) {
      const std::size_t length = control + 1;
      if (length > packed.size() - at || length > unpacked.size() - out) return std::nullopt;
      std::copy_n(packed.begin() + static_cast<std::ptrdiff_t>(at), length,
                  unpacked.begin() + static_cast<std::ptrdiff_t>(out));
      at += length;
      out += length;
      continue;
    }
    std::size_t length = control >> 5U;
    if (length == 7) {
      if (at >= packed.size()) return std::nullopt;
      length += next();
    }
    length += 2;
    if (at >= packed.size()) return std::nullopt;
    const std::size_t back = ((control & 31U) << 8U) + next() + 1;
    if (back > out || length > unpacked.size() - out) return std::nullopt;
    for (std::size_t i = 0; i < length; ++i, ++out) unpacked[out] = unpacked[out - back];  // it may overlap itself
  }
  return out;
}

namespace {

constexpr H5Z_filter_t lzf_number = 32000;

std::size_t filter_lzf(unsigned flags, std::size_t parameters, const unsigned* values, std::size_t bytes,
                       std::size_t* room, void** block) {
  constexpr std::size_t of_chunk = 2;  // the parameter that tells how long a chunk is unpacked
  constexpr std::size_t most = std::size_t{1} << 31U;
  if ((flags & H5Z_FLAG_REVERSE) == 0 || parameters <= of_chunk) return 0;
  const std::size_t size = values[of_chunk];
  if (size == 0 || size > most) return 0;
  void* unpacked = std::malloc(size);  // HDF5 frees it
  if (unpacked == nullptr) return 0;
  const auto written =
      unpack_lzf({static_cast<const std::byte*>(*block), bytes}, {static_cast<std::byte*>(unpacked), size});
  if (!written) {
    std::free(unpacked);
    return 0;
  }
  std::free(*block);
  *block = unpacked;
  *room = size;
  return *written;
}

}  // namespace

void register_lzf_filter() {
  static std::once_flag once;
  std::call_once(once, [] {
    static const H5Z_class2_t filter{H5Z_CLASS_T_VERS, lzf_number, 0, 1, "lzf", nullptr, nullptr, filter_lzf};
    (void)H5Zregister(&filter);
  });
}

}  // namespace zol
