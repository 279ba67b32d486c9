#include "analysis/window/corrector.h"

#include "core/record_reader.h"

namespace zol {
namespace {

constexpr int row_length = 512;
constexpr Colour grey = RGB(128, 128, 128);

struct NewPixel {
  int x, y;
  Colour colour;
};

void shift_row(const Surface& image, int y, int shift, std::vector<NewPixel>& pixels) {
  const int last = row_length - 1 - shift;
  for (int x = 0; x < last; ++x) {
    if (const auto colour = image.pixel(x + shift, y)) pixels.push_back({x, y, *colour});
  }
  for (int x = last; x < row_length; ++x) pixels.push_back({x, y, grey});
}

}  // namespace

std::vector<int> read_corrector(const std::string& path) {
  RecordReader file(path);
  std::vector<int> shifts;
  for (int row = 0; row < corrector_rows; ++row) {
    (void)file.next_integer("the number of a row");
    const int shift = file.next_integer("the shift of a row").value();
    if (shift < 0 || shift >= row_length) file.fail("the shift " + std::to_string(shift) + " must be 0 to 511");
    shifts.push_back(shift);
  }
  return shifts;
}

void shift_rows(Surface& image, const std::vector<int>& shifts, Task& task) {
  std::vector<NewPixel> pixels;
  int y = 0;
  for (const int shift : shifts) {
    task.report(y, corrector_rows - 1);
    task.check();
    if (shift != 0) shift_row(image, y, shift, pixels);
    ++y;
  }
  for (const NewPixel& pixel : pixels) image.set_pixel(pixel.x, pixel.y, pixel.colour);
}

}  // namespace zol
