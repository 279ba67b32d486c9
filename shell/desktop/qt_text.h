// Texts between the program and Qt. The program's texts are bytes: Latin-1 in data files, UTF-8 in the names of files.
#pragma once

#include <string>

#include <QString>
#include <QStringDecoder>

namespace zol {

/// UTF-8 where the bytes are valid UTF-8, else Latin-1.
[[nodiscard]] inline QString to_qt(const std::string& text) {
  QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString decoded = utf8(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
  return utf8.hasError() ? QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())) : decoded;
}

/// Latin-1 where the text has such bytes, else UTF-8.
[[nodiscard]] inline std::string from_qt(const QString& text) {
  for (const QChar c : text) {
    if (c.unicode() > 255) return text.toStdString();
  }
  return text.toLatin1().toStdString();
}

}  // namespace zol
