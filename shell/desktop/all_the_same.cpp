#include "shell/desktop/all_the_same.h"

#include <QApplication>
#include <QMessageBox>

#include "shell/desktop/qt_text.h"

namespace zol {

bool ask_all_the_same(const std::string& reason) {
  QString sentence = to_qt(reason);
  sentence[0] = sentence[0].toUpper();
  const QString text = QCoreApplication::translate("zol", "%1. Do it all the same?").arg(sentence);
  return QMessageBox::question(QApplication::activeWindow(), QStringLiteral("ZOL"), text,
                               QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

}  // namespace zol
