// Finding one's way among the windows: the menu of windows, kept places, recent files, the command line, ways in.
#include "shell/desktop/windows_menu.h"

#include <filesystem>
#include <stdexcept>

#include <QFile>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include "analysis/window/pattern3_form.h"
#include "indexing/window/auto_index_form.h"
#include "shell/desktop/command_line.h"
#include "shell/program/recent_files.h"
#include "tests/offscreen_desktop.h"
#include "tests/test_files.h"

namespace zol {
namespace {

constexpr auto crystals = ZOL_SOURCE_DIR "/data/ZOLDATA/";

struct KeptFolder {
  ScratchFolder folder;
  [[nodiscard]] QString settings() const { return QString::fromStdString(folder.path("desk.ini")); }
};

class Desks : protected KeptFolder, public DesktopTest {
 protected:
  Desks() : DesktopTest(settings()) {
    program.watch(desktop.gate());
    desktop.offer_undo(program);
  }
  QMenu& menu(const char* window, const char* title) {
    for (auto* menu : widget(window).findChildren<QMenu*>()) {
      if (menu->title().remove(u'&') == QLatin1String(title)) return *menu;
    }
    throw std::runtime_error(std::string(window) + " has no menu " + title);
  }
  /// What a menu shows when it opens.
  std::vector<std::string> entries(const char* window, const char* title) {
    QMenu& shown = menu(window, title);
    emit shown.aboutToShow();
    std::vector<std::string> texts;
    for (const auto* action : shown.actions()) {
      if (action->isVisible() && !action->isSeparator())
        texts.push_back((action->isChecked() ? "> " : "") + action->text().toStdString());
    }
    return texts;
  }
  void choose(const char* window, const char* title, int entry) {
    emit menu(window, title).aboutToShow();
    menu(window, title).actions().at(entry)->trigger();
  }
  [[nodiscard]] bool offers_ways_in() { return child<QWidget>("MAIN_MENU", "waysIn").isVisible(); }
};
using Names = std::vector<std::string>;

TEST_F(Desks, EachWindowListsAllOpenOnesAndGoesToThem) {
  show_main1();
  load("NaCl.cry");
  click("Main1", "Command10");
  const Names open{"&1 MAIN MENU", "&2 ZOL - NaCl, 20 kV", "&3 KIKUCHI PATTERN - NaCl, 20 kV", "&Arrange"};
  for (const auto& [window, place] : {std::pair{"MAIN_MENU", 0}, {"Main1", 1}, {"Pattern2", 2}}) {
    Names checked = open;
    checked[static_cast<std::size_t>(place)].insert(0, "> ");
    EXPECT_EQ(entries(window, "Windows"), checked);
  }
  for (const auto& [key, window] : {std::pair{Qt::Key_1, "MAIN_MENU"}, {Qt::Key_3, "Pattern2"}, {Qt::Key_2, "Main1"}}) {
    QTest::keyClick(QApplication::activeWindow(), key, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&widget(window), 1000)) << window;
  }
  box("Text1").setText(QStringLiteral("4"));
  desktop.enter("a test", [this] { main1().Text1.set_text("4"); });
  widget("MAIN_MENU").close();
  EXPECT_EQ(entries("Pattern2", "Windows").front(), "&1 ZOL - NaCl, 20 kV*") << "changed, and the first one now";
}

TEST_F(Desks, AddedMenusStandBehindTheGivenOnes) {
  for (const auto& [window, titles] :
       {std::pair{"Main1", Names{"Crystal_Data", "OPTION", "Utility", "Edit", "View", "Recent", "Windows"}},
        {"Utility", {"Edit", "View", "Windows"}}}) {
    Names found;
    for (const auto* action : dynamic_cast<QMainWindow&>(widget(window)).menuBar()->actions()) {
      found.push_back(action->text().remove(u'&').toStdString());
    }
    EXPECT_EQ(found, titles);
  }
}

TEST(WindowsMenu, TellsWhichWindowAFileIsShownBy) {
  for (const auto& [kind, title, listed] : {
           std::array{"ZOL", "ZOL - Quartz, 20 kV[*]", "ZOL - Quartz, 20 kV"},
           {"ED PATTERN", "Quartz.cry - Quartz, 20 kV[*]", "ED PATTERN - Quartz, 20 kV"},
           {"KIKUCHI PATTERN ANALYSIS", "si-1.bmp - Quartz, 20 kV[*]",
            "KIKUCHI PATTERN ANALYSIS - si-1.bmp - Quartz, 20 kV"},
           {"ED PATTERN", "Quartz.cry", "ED PATTERN - Quartz.cry"},
           {"KIKUCHI PATTERN ANALYSIS", "", "KIKUCHI PATTERN ANALYSIS"},
       }) {
    EXPECT_EQ(listed_title(QString::fromLatin1(kind), QString::fromLatin1(title)).toStdString(), listed);
  }
}

TEST_F(Desks, ArrangedWindowsDoNotOverlap) {
  constexpr auto other = "CameraParameters";
  const QRect screen = widget(other).screen()->availableGeometry();
  desktop.enter("a test", [this] { program.windows().use(other).show(); });
  for (const char* window : {"MAIN_MENU", other}) widget(window).move(screen.topLeft());
  menu(other, "Windows").actions().constLast()->trigger();
  EXPECT_FALSE(widget("MAIN_MENU").frameGeometry().intersects(widget(other).frameGeometry()));
  for (const char* window : {"MAIN_MENU", other})
    EXPECT_TRUE(screen.contains(widget(window).frameGeometry())) << window;
  EXPECT_TRUE(QTest::qWaitForWindowActive(&widget(other), 1000));
}

/// A run of the program that keeps what there is to keep.
struct OneRun {
  explicit OneRun(const QString& settings) {
    desktop.offer_desk(program, settings);
    desktop.enter("start", [this] { program.start(); });
  }
  QWidget& show(const char* window) {
    desktop.enter("a test", [&] { program.windows().use(window).show(); });
    return desktop.binder(window)->widget();
  }
  PixelServices services;
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
  Desktop desktop{program.windows(), [](const std::string& message) { ADD_FAILURE() << message; }};
};

class KeptPlaces : protected KeptFolder, public testing::Test {};

TEST_F(KeptPlaces, WindowsComeUpWhereTheyStood) {
  QRect least;
  {
    OneRun first(settings());
    QWidget& menu = first.show("MAIN_MENU");
    menu.setGeometry(QRect(QPoint(30, 40), menu.size() + QSize(11, 13)));
    QApplication::processEvents();
    least = menu.geometry();
    QWidget& utility = first.show("Utility");
    EXPECT_FALSE(utility.frameGeometry().topLeft() == menu.frameGeometry().topLeft()) << "not over its opener";
    utility.move(5000, 20);  // to a screen that is gone at the next start
    QApplication::processEvents();
  }
  OneRun second(settings());
  EXPECT_EQ(second.show("MAIN_MENU").geometry(), least);
  const QWidget& utility = second.show("Utility");
  EXPECT_TRUE(utility.screen()->availableGeometry().contains(utility.frameGeometry()));
  OneRun without{QString()};
  EXPECT_NE(without.show("MAIN_MENU").geometry(), least);
}

TEST(RecentFiles, AreTheLatestTenOfAKindEachOnce) {
  RecentFiles files;
  for (const char* name : {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "c", "/x/../y"}) {
    files.note(FileKind::Crystal, *name == '/' ? name : std::string("/") + name);
  }
  files.note(FileKind::Picture, "here.bmp");
  EXPECT_EQ(files.of(FileKind::Crystal), (Names{"/y", "/c", "/k", "/j", "/i", "/h", "/g", "/f", "/e", "/d"}));
  files.drop(FileKind::Crystal, "/k");
  EXPECT_EQ(files.of(FileKind::Crystal).at(2), "/j");
  EXPECT_EQ(files.of(FileKind::Picture), Names{(std::filesystem::current_path() / "here.bmp").string()});
  EXPECT_TRUE(files.of(FileKind::Structure).empty());
}

TEST_F(Desks, RecentFilesAreOpenedAsByTheirDialogAndCanBeUndone) {
  EXPECT_EQ(entries("MAIN_MENU", "Crystals"), Names{"none yet"});
  show_main1();
  const std::string kept = folder.path("\xe9 50%.cry");  // bytes that are no UTF-8
  std::filesystem::copy_file(std::string(crystals) + "Quartz.cry", kept);
  for (const std::string& file : {kept, std::string(crystals) + "NaCl.cry", std::string(ZOL_SOURCE_DIR "/README.md")}) {
    services.answers = {file};
    child<QAction>("Main1", file.ends_with("md") ? "ImportStructure" : "DATA_LOAD").trigger();
  }
  EXPECT_EQ(entries("Main1", "Crystals").front(), "&1 NaCl.cry");
  choose("Main1", "Crystals", 1);
  EXPECT_EQ(main1().Text17.text(), kept);
  EXPECT_EQ(program.history().undo_name().substr(0, 5), "open ");
  program.put_back(*program.history().undo());
  EXPECT_EQ(main1().Text17.text(), std::string(crystals) + "NaCl.cry");
  OneRun later(settings());
  later.services.answers = {};
  QMenu* recent = nullptr;
  for (auto* menu : later.show("MAIN_MENU").findChildren<QMenu*>()) {
    if (menu->title() == QLatin1String("&Crystals")) recent = menu;
  }
  emit recent->aboutToShow();
  recent->actions().at(0)->trigger();
  EXPECT_EQ(later.program.windows().use<Main1Form>().Text17.text(), kept) << "the latest, by way of the main window";
  EXPECT_TRUE(later.program.windows().use("Main1").visible());
}

TEST_F(Desks, AMissingRecentFileIsToldAndDropped) {
  show_main1();
  const std::string file = folder.path("gone.cry");
  std::filesystem::copy_file(std::string(crystals) + "Quartz.cry", file);
  services.answers = {file};
  child<QAction>("Main1", "DATA_LOAD").trigger();
  std::filesystem::remove(file);
  EXPECT_EQ(entries("Main1", "Crystals"), Names{"&1 gone.cry (missing)"});
  choose("Main1", "Crystals", 0);
  ASSERT_EQ(services.messages.size(), 1U);
  EXPECT_EQ(services.messages[0].find("there is no file " + file), 0U) << services.messages[0];
  EXPECT_EQ(entries("Main1", "Crystals"), Names{"none yet"});
}

TEST_F(Desks, FilesOfTheCommandLineOpenByTheirEndings) {
  const std::string broken = folder.write("broken.cry", "no crystal");
  const std::string examples = ZOL_SOURCE_DIR "/examples/";
  desktop.open_files({crystals + std::string("NaCl.cry"), folder.path("none.cry"), broken, folder.path("."),
                      examples + "silicon-pattern.bmp", examples + "cif/none.cif"});
  EXPECT_EQ(main1().Text17.text(), std::string(crystals) + "NaCl.cry") << "what fails changes nothing";
  EXPECT_TRUE(main1().visible());
  EXPECT_TRUE(program.windows().use<Pattern3Form>().Picture1.has_picture());
  ASSERT_EQ(services.messages.size(), 4U);
  EXPECT_NE(services.messages[0].find("there is no file " + folder.path("none.cry")), std::string::npos);
  EXPECT_NE(services.messages[1].find(broken), std::string::npos) << services.messages[1];
  EXPECT_NE(services.messages[2].find("is not a file"), std::string::npos);
  EXPECT_TRUE(failures.empty());
  EXPECT_EQ(entries("MAIN_MENU", "Crystals"), Names{"&1 NaCl.cry"}) << "what fails is none of them";
}

TEST(CommandLineOfTheDesktop, NamesFilesOrAsksOrIsWrong) {
  struct Case {
    std::vector<std::string> arguments;
    Names files;
    const char* answer;
    int status;
  };
  for (const auto& [arguments, files, answer, status] : {
           Case{{"zol"}, {}, "", 0},
           {{"zol", "-style", "fusion", "/a/../b \xe9.cry", "--", "/-c"}, {"/b \xe9.cry", "/-c"}, "", 0},
           {{"zol", "here.cif"}, {(std::filesystem::current_path() / "here.cif").string()}, "", 0},
           {{"zol", "a.cry", "--help"}, {}, "usage: zol [FILE...]", 0},
           {{"zol", "-v"}, {}, program_version, 0},
           {{"zol", "--colour", "a.cry"}, {}, "zol: Unknown option 'colour'.", 2},
       }) {
    const CommandLine line = read_command_line(arguments);
    EXPECT_EQ(line.files, files);
    EXPECT_EQ(line.answer.substr(0, std::string(answer).size()), answer);
    EXPECT_EQ(line.answer.empty(), *answer == '\0');
    EXPECT_EQ(line.status, status);
  }
}

TEST_F(Desks, WaysInDoTheRealThingAndGoWithThem) {
  EXPECT_TRUE(offers_ways_in());
  const auto buttons = child<QWidget>("MAIN_MENU", "waysIn").findChildren<QPushButton*>();
  ASSERT_EQ(buttons.size(), 3);
  services.answers = {""};
  buttons[0]->click();
  EXPECT_TRUE(main1().visible() && services.answers.empty()) << "it asks for the file";
  EXPECT_TRUE(offers_ways_in());
  buttons[1]->click();
  EXPECT_EQ(main1().Text17.text(), std::string(crystals) + "Quartz.cry");
  EXPECT_FALSE(offers_ways_in());
  program.put_back(*program.history().undo());
  desktop.enter("a test", [] {});
  EXPECT_TRUE(offers_ways_in());
  buttons[2]->click();
  const auto& found = program.windows().use<AutoIndexForm>();
  ASSERT_FALSE(found.result.solutions.empty());
  constexpr double good = 0.5;
  EXPECT_GT(found.result.solution()->found.correlation, good);
  EXPECT_TRUE(services.messages.empty() && failures.empty());
}

}  // namespace
}  // namespace zol
