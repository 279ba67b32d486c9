#include "shell/desktop/application.h"

#include <QIcon>
#include <QMessageBox>
#include <QTimer>

#include "shell/desktop/desktop_services.h"
#include "shell/desktop/guarded_application.h"
#include "shell/desktop/qt_text.h"
#include "shell/desktop/screen_fit.h"
#include "shell/program/data_folders.h"
#include "shell/program/program.h"

namespace zol {
namespace {

void show_failure(const std::string& message) {
  QMessageBox box(QMessageBox::Critical, QStringLiteral("ZOL"), to_qt(message), QMessageBox::Ok,
                  QApplication::activeWindow());
  box.setInformativeText(
      QCoreApplication::translate("zol",
                                  "The program ends here. Files are as they were saved last. Start it again with "
                                  "this mended; \"Known behaviour\" in the user guide tells more."));
  box.exec();
}

void show_read_only(const DataRoot& data) {
  QMessageBox box(QMessageBox::Warning, QStringLiteral("ZOL"),
                  QCoreApplication::translate("zol", "Nothing can be saved in the folder of the data files."),
                  QMessageBox::Ok);
  box.setInformativeText(
      QCoreApplication::translate("zol",
                                  "%1\n\nThe program works with the files in %2 as they are. Choose another "
                                  "folder when you save.")
          .arg(to_qt(data.read_only), to_qt(data.root)));
  box.exec();
}

void name_application() {
  QApplication::setApplicationName(QStringLiteral("zol"));
  QApplication::setApplicationDisplayName(QStringLiteral("ZOL"));
  QApplication::setApplicationVersion(QString::fromLatin1(program_version));
  use_desktop_resources();
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/images/zol.svg")));
  use_fitting_style();
  QApplication::setQuitOnLastWindowClosed(false);
}

}  // namespace

int run_application(int argc, char** argv, const std::function<void(Desktop&)>& begun) {
  const GuardedApplication application(argc, argv);
  name_application();
  DataRoot data;
  try {
    data = find_data_root(data_places());
  } catch (const RunFailure& failure) {
    show_failure(failure.message());
    return 1;
  }
  if (!data.read_only.empty()) show_read_only(data);
  DesktopServices services;
  Program program(data, services);
  Desktop desktop(program.windows(), show_failure);
  services.set_desktop(desktop);
  program.watch(desktop.gate());
  desktop.offer_undo(program);
  desktop.offer_advice(program);
  QTimer::singleShot(0, &desktop, [&] {
    desktop.enter("the program started", [&program] { program.start(); });
    if (begun) begun(desktop);
  });
  return QApplication::exec();
}

}  // namespace zol
