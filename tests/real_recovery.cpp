#include "tests/real_recovery.h"

#include <csignal>

#include <QFile>
#include <QLabel>
#include <QMessageBox>

namespace zol {
namespace {

/// Texts of the bar for kept work.
QStringList offers(const User& user) {
  QStringList texts;
  const auto* bar = user.window("MAIN_MENU").findChild<QWidget*>(QStringLiteral("keptWork"));
  if (bar == nullptr) return texts;
  for (const auto* label : bar->findChildren<QLabel*>()) texts << label->text();
  return texts.mid(1);
}

void restore(const User& user, const char* window, const char* box, const char* text) {
  expect(offers(user).size() == 1, "the work is not offered");
  std::cout << offers(user).first().toStdString() << std::endl;
  user.click("MAIN_MENU", "Restore");
  const auto restored = [&] { return user.widget<QLineEdit>(window, box).text(); };
  expect(restored() == QString::fromLatin1(text), "restored was: " + restored().toStdString());
  expect(user.lines("Main1", "List2") > 100, "the list of quartz is too short");
  QTest::keyClick(&user.window(window), Qt::Key_Z, Qt::ControlModifier);
  QTest::keyClick(&user.window("MAIN_MENU"), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  expect(restored() == QString::fromLatin1(text), "redo brings nothing back");
  user.click("MAIN_MENU", "Command5");
}

/// Changes a crystal and ends the program in one way or another.
void change(const User& user, std::string_view end) {
  expect(offers(user).isEmpty(), "the file of another run is offered");
  user.click("MAIN_MENU", "Command1");
  user.load_crystal("Quartz.cry");
  user.fill("Main1", {{"Text1", "4.95"}});
  if (end == "unsaved") return user.choose("Main1", "OWARI");
  if (end == "saved") {
    user.save("kept.cry", "kept.cry", [&user] { user.choose("Main1", "DATA_SAVE"); });
    return user.choose("Main1", "OWARI");
  }
  constexpr int more_than_a_second = 1500;
  QTest::qWait(more_than_a_second);
  QFile(user.file("written")).open(QIODevice::WriteOnly);
  const bool waits = end == "held";
  expect(!waits || QTest::qWaitFor([&user] { return QFileInfo::exists(user.file("go")); }, 60000), "nobody lets go");
  std::raise(end == "terminated" ? SIGTERM : SIGKILL);
}

}  // namespace

void fail(const User& user, std::string_view kind) {
  user.click("MAIN_MENU", "Command1");
  user.load_crystal("Quartz.cry");
  when_asked<QMessageBox>([](QMessageBox& question) {
    when_asked<QMessageBox>([](QMessageBox& box) {
      std::cout << box.text().toStdString() << '\n' << box.informativeText().toStdString() << std::endl;
      QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
    });
    QTest::mouseClick(question.button(QMessageBox::Yes), Qt::LeftButton);
  });
  if (kind == "missing") return user.fill("Main1", {{"Text7", "260"}});
  expect(kind == "dialog", "there is no such kind of failure");
  user.click("Main1", "Command13");
  user.fill("PATTERN3", {{"Text2", "-1"}});
  user.choose("PATTERN3", "ImageLoad");  // the box is left on the way to the dialog
}

void recover(const User& user, int argc, char** argv) {
  const std::string_view step = argv[3];
  if (step == "restore") {
    expect(argc == 7, "which box?");
    return restore(user, argv[4], argv[5], argv[6]);
  }
  if (step != "nothing") return change(user, step);
  expect(offers(user).isEmpty(), "there is something to be restored");
  user.click("MAIN_MENU", "Command5");
}

}  // namespace zol
