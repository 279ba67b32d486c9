// The desktop program used as a person would, by mouse and keys in real windows: one way through all of them.
//
//     zol-real-use FILES [PICTURES]
//     zol-real-use FILES failure KIND
//     zol-real-use FILES recovery STEP [WINDOW BOX TEXT]
//     zol-real-use FILES day [PICTURES]
//
// FILES is a folder for what is saved on the way. With PICTURES a PNG of each window goes to that folder. The program
// ends by "Exit" with status 0; a step that does not do what it should ends it with status 3 and a line that says
// which. With "failure" one kind of failure of the run is brought about and the text of its message printed: status 1.
// With "recovery" a crystal is changed and the program ended, in the way of the step, or what such a run left is looked
// for and restored: the box then holds the text. With "day" a day's work is done, as the guide tells it.
#include <QFile>
#include <QLabel>
#include <QTextBrowser>

#include "shell/desktop/application.h"
#include "tests/real_day.h"
#include "tests/real_recovery.h"
#include "tests/real_steps.h"

namespace zol {
namespace {

void index_pattern(const User& user) {
  // Left changed by the steps of undoing: what follows would be marked as made with other settings.
  for (const auto* check : {"Check1", "Check2", "Check3"}) user.click("Main1", check);
  user.click("MAIN_MENU", "Command3");
  user.fill("PATTERN3", {{"Text3", "33"}});
  const auto picture_file = QStringLiteral(ZOL_SOURCE_DIR "/examples/silicon-pattern.bmp");
  user.drop_file("PATTERN3", picture_file);
  expect(user.window("PATTERN3").windowTitle().startsWith(QStringLiteral("silicon-pattern")),
         "a dropped picture is not loaded");
  user.choose("PATTERN3", "Imageclear");
  choose_file(picture_file);
  for (const auto* item : {"ImageLoad", "ImageFlip"}) user.choose("PATTERN3", item);
  auto& picture = user.widget<CanvasView>("PATTERN3", "Picture1");
  for (const auto& [from, to] :
       {std::pair{QPointF(20, 75), QPointF(490, 293)}, {{60, 490}, {480, 245}}, {{24, 20}, {259, 490}}}) {
    constexpr double side = 511;
    QTest::mousePress(&picture, Qt::LeftButton, {}, User::place(picture, from / side));
    QTest::mouseMove(&picture, User::place(picture, to / side));
    QTest::mouseRelease(&picture, Qt::LeftButton, {}, User::place(picture, to / side));
  }
  for (const auto* button : {"Check1", "Command1"}) user.click("PATTERN3", button);
  expect(user.lines("PATTERN3", "List1") > 1, "the pattern of silicon has no solution");
  user.take_picture("PATTERN3", "analysis");
  user.take_numbered_picture("PATTERN3", "analysis-numbered",
                             {"menubar", "Picture1", "Text3", "Text5", "Text2", "Check1", "Command1", "List1"});
  for (const auto* mode : {"CPS_Si001", "CP_Setting_Show"}) user.choose("PATTERN3", mode);
  user.take_picture("PATTERN3", "analysis-calibration");
  for (const auto* mode : {"CPS_Si001", "CP_Setting_Show"}) user.choose("PATTERN3", mode);
  user.pick_line("PATTERN3", "List1", 0);
  user.choose("Pattern2", "ImageLoad");
  user.pick_line("PATTERN3", "List1", 0);
  user.take_picture("Pattern2", "analysis-superposed");
  user.save("indexed.bmp", "indexed.bmp", [&user] { user.choose("PATTERN3", "ImageSAve"); });
}

void index_automatically(const User& user) {
  user.choose("PATTERN3", "AutomaticIndexing");
  user.click("AutoIndex", "Index");
  expect(user.lines("AutoIndex", "Bands") == 9 && user.lines("AutoIndex", "Solutions") > 0,
         "the pattern of silicon is not indexed");
  user.take_picture("AutoIndex", "automatic-indexing");
  user.take_numbered_picture("AutoIndex", "automatic-indexing-numbered",
                             {"BandCount", "CircleMask", "Index", "RefineCentre", "Show", "Status", "Solutions",
                              "Bands", "Families", "Crystals"});
  user.take_picture("PATTERN3", "automatic-indexing-bands");
  user.click("AutoIndex", "Over");
  user.save("simulated", "simulated.bmp", [&user] { user.choose("AutoIndex", "SaveSimulated"); });
  for (const auto* button : {"Dynamical", "Index", "Show"}) user.click("AutoIndex", button);
  expect(user.widget<QLabel>("AutoIndex", "Status").text().contains("dynamical"), "there is no dynamical fit");
  user.choose("Pattern2", "DynamicalBands");
  user.window("AutoIndex").close();
}

void read_guide(const User& user) {
  QTest::keyClick(&user.window("PATTERN3"), Qt::Key_F1);
  for (auto* top : QApplication::topLevelWidgets()) {
    auto* pages = top->findChild<QTextBrowser*>();
    if (pages == nullptr || !top->isVisible()) continue;
    expect(pages->source().fileName() == QStringLiteral("kikuchi-analysis.md"), "F1 opens another page");
    top->close();
    return;
  }
  give_up("F1 opens no guide");
}

void walk(const User& user) {
  for (auto* step : {use_main_window, find_windows, search_library, copy_lines, save_table, use_powder_windows,
                     use_spot_windows, use_kikuchi_windows, use_calculators, use_files, undo_and_redo, index_pattern,
                     index_automatically, read_guide}) {
    step(user);
  }
  user.click("MAIN_MENU", "Command5");
}

}  // namespace
}  // namespace zol

int main(int argc, char** argv) {
  if (argc < 2) zol::give_up("usage: zol-real-use FILES [PICTURES | failure KIND | recovery STEP]");
  const QString files = QFile::decodeName(argv[1]);
  const bool is_day = argc > 2 && std::string_view(argv[2]) == "day";
  const int pictures_at = is_day ? 3 : 2;
  const std::optional<QString> pictures =
      argc == pictures_at + 1 ? std::optional(QFile::decodeName(argv[pictures_at])) : std::nullopt;
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);  // those of a desktop cannot be filled in from here
  return zol::run_application(argc, argv, [&](zol::Desktop& desktop) {
    const zol::User user(desktop, files, pictures);
    const std::string_view mode = argc > 3 ? argv[2] : "";
    if (is_day) {
      zol::work_a_day(user);
    } else if (mode == "failure") {
      zol::fail(user, argv[3]);
    } else if (mode == "recovery") {
      desktop.set_question([](const std::string& /*reason*/) { return true; });  // all the same
      zol::recover(user, argc, argv);
    } else {
      zol::walk(user);
    }
  });
}
