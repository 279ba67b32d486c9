// Texts between the program and Qt.
#pragma once

#include <algorithm>
#include <string>

#include <QCoreApplication>
#include <QString>

#include "shell/services/latin1.h"

namespace zol {

/// A text of the program in the language of the user.
[[nodiscard]] inline QString tr(const char* text) { return QCoreApplication::translate("zol", text); }

/// A caption, a message or the name of a file.
[[nodiscard]] inline QString to_qt(const std::string& text) { return QString::fromStdString(readable_utf8(text)); }

/// The text of a box, list, table or picture.
[[nodiscard]] inline QString latin1_to_qt(const std::string& text) {
  return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

[[nodiscard]] inline bool is_latin1(const QString& text) {
  return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() <= 0xFF; });
}

/// @param text  that is Latin-1
[[nodiscard]] inline std::string latin1_from_qt(const QString& text) { return text.toLatin1().toStdString(); }

}  // namespace zol
