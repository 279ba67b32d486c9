#include "shell/services/bitmap_check.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>

#include "core/run_failure.h"

namespace zol {
namespace {

constexpr std::size_t file_header = 14;  // bytes, before the one that tells its own size
constexpr std::uint32_t oldest_header = 12;
constexpr std::array<std::uint32_t, 5> known_headers{oldest_header, 40, 64, 108, 124};
constexpr std::uint32_t first_with_masks = 108;

enum Compression : std::uint32_t { plain = 0, run_length_8 = 1, run_length_4 = 2, bit_fields = 3 };

struct Header {
  std::uint32_t size = 0;
  std::int64_t width = 0;
  std::int64_t height = 0;  // below 0: the first row is on top
  std::uint32_t planes = 0;
  std::uint32_t bits = 0;  // of a pixel
  std::uint32_t compression = plain;
  std::uint32_t colours = 0;  // of the palette; 0: as many as the bits allow
};

class BitmapCheck {
 public:
  BitmapCheck(const std::string& path, std::string_view bytes) : path_(path), bytes_(bytes) {}

  void run() {
    read_header();
    check_header();
    const std::size_t start = std::max(std::size_t{u32(pixels_at)}, end_of_palette());
    if (header_.compression == run_length_4 || header_.compression == run_length_8) {
      check_runs(start);
    } else {
      check_rows(start);
    }
  }

 private:
  static constexpr std::size_t pixels_at = 10;  // where the file header tells the place of the pixels

  [[noreturn]] void fail(const std::string& what) const {
    throw RunFailure("cannot read " + path_ + " as a bitmap: " + what);
  }
  [[nodiscard]] std::uint32_t number(std::size_t at, std::size_t size) const {
    std::uint32_t value = 0;
    for (std::size_t i = size; i-- > 0;) value = value << 8U | static_cast<unsigned char>(bytes_[at + i]);
    return value;
  }
  [[nodiscard]] std::uint32_t u16(std::size_t at) const { return number(at, 2); }
  [[nodiscard]] std::uint32_t u32(std::size_t at) const { return number(at, 4); }

  void need(std::size_t end, const char* part) const {
    if (bytes_.size() >= end) return;
    fail("it is cut short: " + std::string(part) + " goes to byte " + std::to_string(end) + ", there are " +
         std::to_string(bytes_.size()));
  }

  void read_header() {
    if (!bytes_.starts_with("BM")) fail("a bitmap (BMP) begins with the letters BM");
    need(file_header + oldest_header, "its header");
    header_.size = u32(file_header);
    if (std::find(known_headers.begin(), known_headers.end(), header_.size) == known_headers.end()) {
      fail("its header is said to have " + std::to_string(header_.size) + " bytes; known are 12, 40, 64, 108 and 124");
    }
    need(file_header + header_.size, "its header");
    const bool oldest = header_.size == oldest_header;
    const std::size_t number_size = oldest ? 2 : 4;
    std::size_t at = file_header + 4;
    header_.width = signed_number(at, number_size);
    header_.height = signed_number(at += number_size, number_size);
    header_.planes = u16(at += number_size);
    header_.bits = u16(at + 2);
    if (oldest) return;
    header_.compression = u32(at + 4);
    constexpr std::size_t colours_at = file_header + 32;
    header_.colours = u32(colours_at);
  }

  [[nodiscard]] std::int64_t signed_number(std::size_t at, std::size_t size) const {
    return size == 2 ? std::int64_t{static_cast<std::int16_t>(u16(at))}
                     : std::int64_t{static_cast<std::int32_t>(u32(at))};
  }

  void check_header() const {
    const std::int64_t rows = std::abs(header_.height);
    if (header_.width < 1 || rows < 1 || std::max(header_.width, rows) > most_picture_side ||
        header_.width * rows > std::int64_t{most_picture_pixels}) {
      fail("its header says " + std::to_string(header_.width) + " x " + std::to_string(header_.height) + " pixels; " +
           possible_picture_sizes);
    }
    const auto bits = header_.bits;
    const auto compression = header_.compression;
    const bool deep = bits == 16 || bits == 24 || bits == 32;
    const bool known = compression == plain          ? deep || bits == 1 || bits == 4 || bits == 8
                       : compression == run_length_8 ? bits == 8
                       : compression == run_length_4 ? bits == 4
                                                     : compression == bit_fields && (bits == 16 || bits == 32);
    if (!known || header_.planes != 1) {
      fail("its header says " + std::to_string(bits) + " bits per pixel in " + std::to_string(header_.planes) +
           " planes with compression " + std::to_string(compression) +
           "; 1, 4, 8, 16, 24 or 32 bits in 1 plane are possible, plain, run-length encoded or with bit fields");
    }
    constexpr std::uint32_t most_colours = 256;
    if (!deep && header_.colours > most_colours) {
      fail("its palette is said to have " + std::to_string(header_.colours) + " colours; at most 256 are possible");
    }
  }

  [[nodiscard]] std::size_t end_of_palette() const {
    constexpr std::uint32_t most_with_palette = 8;
    constexpr std::size_t masks = 12;
    std::size_t end = file_header + header_.size;
    if (header_.compression == bit_fields && header_.size < first_with_masks) end += masks;
    if (header_.bits > most_with_palette) return end;
    const std::size_t colours = header_.colours != 0 ? header_.colours : std::size_t{1} << header_.bits;
    end += colours * (header_.size == oldest_header ? 3 : 4);
    need(end, "its palette");
    return end;
  }

  void check_rows(std::size_t start) const {
    const auto rows = static_cast<std::size_t>(std::abs(header_.height));
    const std::size_t row = (static_cast<std::size_t>(header_.width) * header_.bits + 31) / 32 * 4;
    const std::size_t there = bytes_.size() - std::min(bytes_.size(), start);
    if (there >= rows * row) return;
    fail("it is cut short: " + std::to_string(rows) + " rows of " + std::to_string(row) + " bytes need " +
         std::to_string(rows * row) + ", there are " + std::to_string(there) + ", for " + std::to_string(there / row) +
         " rows");
  }

  /// Walks through the runs: pairs of a count and a colour, and escapes that begin with 0.
  void check_runs(std::size_t at) const {
    enum Escape : unsigned char { end_of_row = 0, end_of_bitmap = 1, jump = 2 };
    const std::int64_t rows = std::abs(header_.height);
    const std::int64_t room = (header_.width + 3) / 4 * 4;  // some programs encode the filling of a row as well
    std::int64_t row = 0;
    std::int64_t pixel = 0;
    const auto stop = [&](const char* why) {
      fail(std::string(why) + " after pixel " + std::to_string(pixel) + " of " + std::to_string(header_.width) +
           " in row " + std::to_string(row + 1) + " of " + std::to_string(rows));
    };
    while (row < rows - 1 || pixel < header_.width) {
      if (at + 2 > bytes_.size()) stop("it is cut short: it ends");
      const auto count = static_cast<unsigned char>(bytes_[at]);
      const auto second = static_cast<unsigned char>(bytes_[at + 1]);
      at += 2;
      if (count == 0 && second <= jump) {
        if (second == jump) stop("its run-length code leaves pixels out");
        if (second == end_of_bitmap || pixel < header_.width) stop("its run-length code ends");
        ++row;
        pixel = 0;
        continue;
      }
      const std::int64_t pixels = count == 0 ? second : count;
      // Behind an escape come the pixels themselves, to a full 16 bits.
      if (count == 0) at += static_cast<std::size_t>((pixels * header_.bits + 15) / 16 * 2);
      if (at > bytes_.size()) stop("it is cut short: it ends");
      if (pixel + pixels > room) stop("its run-length code goes beyond the row");
      pixel += pixels;
    }
  }

  const std::string& path_;
  std::string_view bytes_;
  Header header_;
};

}  // namespace

void check_bitmap(const std::string& path, std::string_view bytes) { BitmapCheck(path, bytes).run(); }

}  // namespace zol
