// Work that outlives the run: what is kept behind which end, what the next start offers of it, and what comes back.
#include "shell/desktop/recovery.h"

#include <filesystem>
#include <optional>

#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QStatusBar>

#include "core/read_file.h"
#include "tests/offscreen_desktop.h"
#include "tests/test_files.h"

namespace zol {
namespace {

/// The program from its start on; gone without a word it is as killed.
struct Session {
  explicit Session(const std::string& folder) {
    program.watch(desktop.gate());
    desktop.offer_undo(program);
    recovery.emplace(program, desktop, folder);
    desktop.enter("start", [this] { program.start(); });
  }
  void end_by_user() { recovery->end(); }
  Main1Form& main1() { return program.windows().use<Main1Form>(); }
  /// Runs something as the user's event.
  void run(const std::function<void()>& action) { desktop.enter("a test", action); }
  void load(const std::string& path) {
    services.answers = {path};
    run([this] {
      main1().show();
      main1().DATA_LOAD.click();
    });
  }
  void save(const std::string& path) {
    services.answers = {path};
    run([this] { main1().DATA_SAVE.click(); });
  }
  QWidget& widget(const char* window) { return desktop.binder(window)->widget(); }
  QStringList offers() {
    QStringList texts;
    const auto* bar = widget("MAIN_MENU").findChild<QWidget*>(QStringLiteral("keptWork"));
    if (bar == nullptr) return texts;
    for (const auto* label : bar->findChildren<QLabel*>()) {
      if (label->isVisibleTo(bar->window())) texts << label->text();
    }
    return texts.mid(1);  // behind the heading
  }
  void press(const char* button) {
    for (auto* found : widget("MAIN_MENU").findChildren<QPushButton*>(QLatin1String(button))) {
      if (!found->isVisibleTo(found->window())) continue;
      QTest::mouseClick(found, Qt::LeftButton);
      return QApplication::processEvents();
    }
    FAIL() << "there is no button " << button;
  }

  PixelServices services;
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
  std::optional<Recovery> recovery;
  std::vector<bool> failures;  ///< whether the work was kept
  Desktop desktop{program.windows(),
                  [this](const std::string& message) { failures.push_back(recovery->keep_behind_failure(message)); }};
};

struct RecoveryTest : testing::Test {
  /// The files of kept work.
  [[nodiscard]] std::vector<std::string> files() const {
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(state)) {
      if (entry.path().extension() == ".zolwork") found.push_back(entry.path().string());
    }
    return found;
  }
  /// Until the thread of the file has written it.
  [[nodiscard]] bool written() const {
    return QTest::qWaitFor([this] {
      return std::filesystem::exists(state) && !files().empty() && std::filesystem::file_size(files().front()) > 0;
    });
  }
  ScratchFolder folder;
  const std::string state = folder.path("state");
  const std::string nacl = ZOL_SOURCE_DIR "/data/ZOLDATA/NaCl.cry";
};

TEST_F(RecoveryTest, AFailureKeepsTheWorkBeforeItAndUndoGoesBehindTheRestore) {
  {
    Session run(state);
    run.load(nacl);
    run.run([&] { run.main1().Text7.set_text("26"); });
    run.run([&] {
      run.main1().Text1.set_text("9");
      run.main1().Text7.set_text("260");
    });
    EXPECT_EQ(run.failures, std::vector<bool>{true});
  }
  Session next(state);
  ASSERT_EQ(next.offers().size(), 1);
  EXPECT_TRUE(next.offers()[0].startsWith(QStringLiteral("NaCl; Main1; ")));
  EXPECT_TRUE(next.offers()[0].contains(QStringLiteral("; ended by a failure: "))) << next.offers()[0].toStdString();
  next.press("Restore");
  EXPECT_EQ(next.main1().Text1.text(), " 5.6402");
  EXPECT_EQ(next.main1().Text7.text(), "26");
  EXPECT_TRUE(next.widget("Main1").isVisible());
  EXPECT_EQ(next.offers().size(), 0);
  EXPECT_EQ(files().size(), 1U) << "it is the file of this run now";
  EXPECT_EQ(next.program.history().undo_name(), "restore NaCl");
  QTest::keyClick(&next.widget("Main1"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(next.program.windows().find("Main1"), nullptr);
  EXPECT_FALSE(next.program.holds_crystal());
}

TEST_F(RecoveryTest, ARunThatIsCutOffKeepsItsWorkAndARunningOneItsFile) {
  {
    Session run(state);
    run.load(nacl);
    ASSERT_TRUE(written());
    Session other(state);
    EXPECT_EQ(other.offers().size(), 0) << "its program runs";
    other.load(ZOL_SOURCE_DIR "/data/ZOLDATA/Quartz.cry");
    other.run([&] { other.main1().Text1.set_text("4.9"); });
    other.end_by_user();
  }
  Session next(state);
  ASSERT_EQ(next.offers().size(), 2);
  EXPECT_TRUE(next.offers()[0].startsWith(QStringLiteral("Quartz; "))) << "the latest first";
  EXPECT_TRUE(next.offers()[0].endsWith(QStringLiteral("the crystal not saved")));
  EXPECT_TRUE(next.offers()[1].endsWith(QStringLiteral("the program was cut off")));
  next.press("NotNow");
  EXPECT_EQ(next.offers().size(), 1);
  next.press("Discard");
  EXPECT_EQ(next.offers().size(), 0);
  EXPECT_EQ(Session(state).offers().size(), 1) << "what was put off comes again";
}

// Windows that were only opened are no work; what was saved or loaded last is no unsaved crystal.
TEST_F(RecoveryTest, TheUsersEndKeepsACrystalThatIsNotSavedAndNothingElse) {
  using Do = std::function<void(Session&)>;
  const std::string saved = folder.path("saved.cry");
  const Do open = [](Session& run) { run.run([&run] { run.main1().show(); }); };
  const Do load = [this](Session& run) { run.load(nacl); };
  const Do type = [](Session& run) { run.run([&run] { run.main1().Text1.set_text("4"); }); };
  const Do save = [&saved](Session& run) { run.save(saved); };
  const Do undo = [](Session& run) { QTest::keyClick(&run.widget("Main1"), Qt::Key_Z, Qt::ControlModifier); };
  const Do close = [](Session& run) {
    for (const auto* window : {"Main1", "MAIN_MENU"}) run.widget(window).close();
    EXPECT_TRUE(run.desktop.ended());
  };
  struct Row {
    std::vector<Do> steps;
    std::size_t kept;
  };
  int number = 0;
  for (const auto& [steps, kept] : {Row{{open}, 0},
                                    {{load}, 0},
                                    {{open, type}, 1},
                                    {{load, type}, 1},
                                    {{load, type, undo}, 0},
                                    {{load, type, save}, 0},
                                    {{load, type, save, undo, undo}, 1},
                                    {{load, type, close}, 1}}) {
    SCOPED_TRACE(++number);
    std::filesystem::remove_all(state);
    {
      Session run(state);
      for (const auto& step : steps) step(run);
      run.end_by_user();
    }
    EXPECT_EQ(left_overs(state).size(), kept);
  }
  Session next(state);  // behind the last window that was closed
  EXPECT_TRUE(next.offers().value(0).startsWith(QStringLiteral("NaCl; ")));
  next.press("Restore");
  EXPECT_EQ(next.main1().Text1.text(), "4");
  EXPECT_TRUE(next.program.crystal_unsaved());
  EXPECT_TRUE(next.widget("MAIN_MENU").isVisible());
}

TEST_F(RecoveryTest, AFolderThatTakesNothingIsToldOnceAndEndsNothing) {
  Session run("/proc/none/zol");
  const auto& line = *dynamic_cast<QMainWindow&>(run.widget("MAIN_MENU")).statusBar();
  run.load(nacl);
  EXPECT_TRUE(QTest::qWaitFor([&] {
    run.run([&] { run.main1().Text1.set_text(run.main1().Text1.text() + "1"); });
    return line.currentMessage().startsWith(QStringLiteral("Your work cannot be kept"));
  }));
  EXPECT_TRUE(run.failures.empty());
  dynamic_cast<QMainWindow&>(run.widget("MAIN_MENU")).statusBar()->clearMessage();
  run.run([&] { run.main1().Text7.set_text("260"); });
  EXPECT_EQ(run.failures, std::vector<bool>{false}) << "the message does not say that it is kept";
  EXPECT_EQ(line.currentMessage(), QString());
}

TEST_F(RecoveryTest, TheTenLatestStayAndWhatCantBeReadSaysWhy) {
  Session run(state);
  KeptWork work = run.program.kept_work(run.program.snapshot());
  for (int i = 1; i <= 12; ++i) {
    work.note.time_ms = i;
    folder.write("state/work-" + std::to_string(100000 + i) + ".zolwork", bytes_of(work));
  }
  std::string damaged = bytes_of(work);
  damaged[damaged.size() / 2] ^= 1;
  folder.write("state/work-100012.zolwork", damaged);
  folder.write("state/work-foreig.zolwork", "a foreign file");
  folder.write("state/work-empty1.zolwork", "");
  folder.write("state/work-nobody.lock", "");
  const auto left = left_overs(state);
  ASSERT_EQ(left.size(), 10U);
  EXPECT_EQ(left.front().fault, "it is not a file of kept work");
  EXPECT_EQ(left.back().note.time_ms, 4);
  EXPECT_EQ(folder.entries(), 1U);
  EXPECT_EQ(files().size(), 10U);
  EXPECT_FALSE(std::filesystem::exists(folder.path("state/work-nobody.lock")));

  Session next(state);
  ASSERT_EQ(next.offers().size(), 4) << "three of them and the count of the others";
  EXPECT_TRUE(next.offers()[0].contains(QStringLiteral(": cannot be restored, it is not a file of kept work")));
  next.press("Restore");
  EXPECT_TRUE(next.offers().value(1).endsWith(QStringLiteral("damaged: its checksum is another one")));
  EXPECT_TRUE(next.failures.empty());
}

TEST_F(RecoveryTest, TitlesTellTheCrystalAndWhetherItIsSaved) {
  Session run(state);
  const auto title = [&run](const char* window) {
    return run.widget(window).windowTitle().toStdString() + (run.widget(window).isWindowModified() ? " changed" : "");
  };
  run.load(nacl);
  run.run([&] { run.program.windows().use("Xd").show(); });
  EXPECT_EQ(title("MAIN_MENU"), "MAIN MENU");
  EXPECT_EQ(title("Main1"), "ZOL - NaCl, 20 kV[*]");
  EXPECT_EQ(title("Xd"), "NaCl.cry - NaCl, 20 kV[*]");
  EXPECT_EQ(run.main1().caption(), "ZOL ") << "which scripts see";
  run.run([&] {
    run.main1().Text2.set_text("6");
    run.main1().Combo1.pick(0);
  });
  EXPECT_EQ(title("Xd"), "NaCl.cry - NaCl, 1.542 Å[*] changed");
  run.save(folder.path("a[*]b.cry"));
  EXPECT_EQ(title("Main1"), "ZOL - a[*][*]b, 1.542 Å[*]");
}

}  // namespace
}  // namespace zol
