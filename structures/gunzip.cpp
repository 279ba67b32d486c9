#include "structures/gunzip.h"

#include <zlib.h>

#include <array>
#include <limits>

#include "core/run_failure.h"

namespace zol {
namespace {

/// Ends the stream whatever happens.
struct Inflation {
  z_stream stream{};
  Inflation() {
    constexpr int gzip_window = 15 + 16;
    if (inflateInit2(&stream, gzip_window) != Z_OK) throw RunFailure("it cannot be unpacked");
  }
  Inflation(const Inflation&) = delete;
  Inflation& operator=(const Inflation&) = delete;
  ~Inflation() { inflateEnd(&stream); }
};

}  // namespace

bool is_gzip(std::string_view bytes) { return bytes.starts_with("\x1F\x8B"); }

std::string gunzip(std::string_view bytes, std::size_t most_bytes) {
  if (bytes.size() > std::numeric_limits<uInt>::max()) throw RunFailure("the compressed file is too large");
  std::string input(bytes);
  Inflation inflation;
  auto& stream = inflation.stream;
  stream.next_in = reinterpret_cast<Bytef*>(input.data());
  stream.avail_in = static_cast<uInt>(input.size());
  std::string text;
  std::array<char, 1 << 16> part{};
  while (true) {
    stream.next_out = reinterpret_cast<Bytef*>(part.data());
    stream.avail_out = static_cast<uInt>(part.size());
    const int state = inflate(&stream, Z_NO_FLUSH);
    text.append(part.data(), part.size() - stream.avail_out);
    if (text.size() > most_bytes)
      throw RunFailure("it unpacks to more than " + std::to_string(most_bytes >> 20U) + " MB");
    if (state == Z_STREAM_END) {
      if (stream.avail_in == 0 || inflateReset(&stream) != Z_OK) return text;  // several parts may follow each other
      if (!is_gzip({reinterpret_cast<const char*>(stream.next_in), stream.avail_in})) return text;
    } else if (state != Z_OK || (stream.avail_in == 0 && stream.avail_out > 0)) {
      throw RunFailure("the compressed file is broken or cut short");
    }
  }
}

}  // namespace zol
