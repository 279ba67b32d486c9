// zol: the desktop program.
#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <QStyleFactory>
#include <QTimer>

#include "shell/data_folders.h"
#include "shell/desktop/desktop.h"
#include "shell/desktop/desktop_services.h"
#include "shell/desktop/qt_text.h"
#include "shell/program.h"

namespace {

void show_failure(const std::string& message) {
  QMessageBox::critical(QApplication::activeWindow(), QStringLiteral("ZOL"), zol::to_qt(message));
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("zol"));
  QApplication::setApplicationDisplayName(QStringLiteral("ZOL"));
  QApplication::setApplicationVersion(QString::fromLatin1(zol::program_version));
  zol::use_desktop_resources();
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/images/zol.svg")));
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setQuitOnLastWindowClosed(false);

  zol::DataRoot data;
  try {
    data = zol::find_data_root(zol::data_places());
  } catch (const zol::RunFailure& failure) {
    show_failure(failure.message());
    return 1;
  }
  zol::DesktopServices services;
  zol::Program program(data, services);
  zol::Desktop desktop(program.windows(), show_failure);
  services.set_desktop(desktop);
  QTimer::singleShot(0, &desktop, [&] { desktop.enter([&program] { program.start(); }); });
  return QApplication::exec();
}
