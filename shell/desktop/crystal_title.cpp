#include "shell/desktop/crystal_title.h"

#include <QCoreApplication>

#include "core/number_text.h"
#include "shell/desktop/qt_text.h"
#include "shell/program/program.h"

namespace zol {

QString crystal_title_end(Program& program) {
  if (!program.holds_crystal()) return {};
  const auto say = [](const char* text) { return QCoreApplication::translate("zol", text); };
  QString name = to_qt(program.crystal_name());
  if (name.isEmpty()) name = say("new crystal");
  const CrystalState& state = program.state();
  QString radiation;
  if (state.AccVoltage > 0) {
    radiation = say(", %1 kV").arg(to_qt(plain_text(state.AccVoltage)));
  } else if (state.WaveLength > 0) {
    radiation = say(", %1 Å").arg(to_qt(plain_text(state.WaveLength)));
  }
  return QStringLiteral(" - ") + name.replace(QLatin1String("[*]"), QLatin1String("[*][*]")) + radiation +
         QStringLiteral("[*]");
}

}  // namespace zol
