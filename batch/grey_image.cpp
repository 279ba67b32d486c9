#include "batch/grey_image.h"

#include <QImage>
#include <QImageReader>

#include "core/run_failure.h"

namespace zol {

GreyImage read_grey_image(const std::string& path) {
  QImageReader reader(QString::fromStdString(path));
  reader.setAutoTransform(false);
  const QImage image = reader.read();
  if (image.isNull()) throw RunFailure("cannot read the picture " + path + ": " + reader.errorString().toStdString());
  GreyImage grey;
  const bool deep = image.depth() > 8 && (image.format() == QImage::Format_Grayscale16);
  const QImage plain = image.convertToFormat(deep ? QImage::Format_Grayscale16 : QImage::Format_Grayscale8);
  grey.width = plain.width();
  grey.height = plain.height();
  grey.bits = deep ? 16 : 8;
  grey.values.reserve(static_cast<std::size_t>(grey.width) * static_cast<std::size_t>(grey.height));
  for (int y = 0; y < grey.height; ++y) {
    const uchar* line = plain.constScanLine(y);
    for (int x = 0; x < grey.width; ++x) {
      grey.values.push_back(deep ? static_cast<float>(reinterpret_cast<const quint16*>(line)[x])
                                 : static_cast<float>(line[x]));
    }
  }
  return grey;
}

}  // namespace zol
