#include "shell/desktop/crystal_title.h"

#include <QCoreApplication>

#include "shell/desktop/qt_text.h"
#include "shell/program/program.h"

namespace zol {

QString crystal_title_end(Program& program) {
  if (!program.holds_crystal()) return {};
  const auto say = [](const char* text) { return QCoreApplication::translate("zol", text); };
  QString name = to_qt(program.crystal_name());
  if (name.isEmpty()) name = say("new crystal");
  QString radiation = to_qt(program.radiation());
  if (!radiation.isEmpty()) radiation.prepend(QStringLiteral(", "));
  return QStringLiteral(" - ") + name.replace(QLatin1String("[*]"), QLatin1String("[*][*]")) + radiation +
         QStringLiteral("[*]");
}

}  // namespace zol
