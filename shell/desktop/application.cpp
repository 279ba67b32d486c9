#include "shell/desktop/application.h"

#include <exception>
#include <optional>

#include <QFile>
#include <QIcon>
#include <QMessageBox>
#include <QStandardPaths>
#include <QTimer>

#include "shell/desktop/desktop_services.h"
#include "shell/desktop/guarded_application.h"
#include "shell/desktop/language/language.h"
#include "shell/desktop/look/look.h"
#include "shell/desktop/picture_choices.h"
#include "shell/desktop/qt_text.h"
#include "shell/desktop/recovery.h"
#include "shell/program/data_folders.h"
#include "shell/program/program.h"

namespace zol {
namespace {

/// @param kept  whether the next start offers the work
void show_failure(const std::string& message, bool kept) {
  QMessageBox box(QMessageBox::Critical, QStringLiteral("ZOL"), to_qt(message), QMessageBox::Ok,
                  QApplication::activeWindow());
  QString text =
      QCoreApplication::translate("zol",
                                  "The program ends here. Files are as they were saved last. Correct this and start it "
                                  "again; see \"Known behaviour\" in the user guide.");
  if (kept) {
    text += QStringLiteral("\n\n") +
            QCoreApplication::translate("zol", "Your work as it was before is kept: the next start offers it.");
  }
  box.setInformativeText(text);
  box.exec();
}

/// Where work is kept.
std::string recovery_folder() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
  return QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::StateLocation)).toStdString();
#else
  return state_folder();
#endif
}

/// Where places of windows and names of recent files are kept; without a screen nothing is.
QString settings_file() {
  const std::string folder = recovery_folder();
  if (folder.empty() || QGuiApplication::platformName() == QLatin1String("offscreen")) return {};
  return QFile::decodeName(folder.c_str()) + QStringLiteral("/desk.ini");
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
  QApplication::setApplicationVersion(QString::fromLatin1(program_version));
  use_desktop_resources();
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/images/zol.svg")));
  use_look(kept_look());
  follow_desktop();
  use_language(kept_language());
  QApplication::setQuitOnLastWindowClosed(false);
  PictureChoices::of_program().keep_in(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
                                       QStringLiteral("/pictures.ini"));
}

}  // namespace

int run_application(int argc, char** argv, const std::function<void(Desktop&)>& begun, KeepWork keep_work,
                    const std::vector<std::string>& files) {
  const GuardedApplication application(argc, argv);
  name_application();
  DataRoot data;
  try {
    data = find_data_root(data_places());
  } catch (const RunFailure& failure) {
    show_failure(failure.message(), false);
    return 1;
  }
  if (!data.read_only.empty()) show_read_only(data);
  DesktopServices services;
  Program program(data, services);
  std::optional<Recovery> recovery;
  Desktop desktop(program.windows(), [&recovery](const std::string& message) {
    show_failure(message, recovery && recovery->keep_behind_failure(message));
  });
  services.set_desktop(desktop);
  program.watch(desktop.gate());
  desktop.offer_undo(program);
  desktop.offer_advice(program);
  desktop.offer_desk(program, settings_file());
  if (keep_work == KeepWork::Yes) {
    try {
      recovery.emplace(program, desktop, recovery_folder());
    } catch (const std::exception&) {  // no thread or no memory to be had: the program runs without
    }
  }
  QTimer::singleShot(0, &desktop, [&] {
    desktop.enter("the program started", [&program] { program.start(); });
    desktop.open_files(files);
    if (begun) begun(desktop);
  });
  const int status = QApplication::exec();
  if (recovery && status == 0) recovery->end();
  return status;
}

}  // namespace zol
