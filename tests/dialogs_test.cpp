// Dialogs and printing of the desktop program, and the view of a picture.
#include <filesystem>
#include <functional>
#include <sstream>

#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QTimer>

#include "shell/desktop/canvas_view.h"
#include "shell/desktop/desktop_services.h"
#include "tests/offscreen_desktop.h"
#include "tests/test_files.h"

namespace zol {
namespace {

class PictureView : public testing::Test {
 protected:
  PictureView() { view.attach(picture, events); }

  PixelServices services;
  Window window{"Sample", "a sample"};
  EventGate gate{[] {}, [](const std::exception_ptr&) { FAIL(); }};
  UserEvents events{gate};
  Canvas picture{window, services, "Picture1", 1500, 1500};
  CanvasView view;
};

// The square picture stands in the middle of the view: 150 pixels from x = 25, and the margins beside it take nothing.
TEST_F(PictureView, MouseEventsArriveInUserCoordinates) {
  view.resize(200, 150);
  picture.scale(-1, 1, 1, -1);
  using Places = std::vector<std::pair<Single, Single>>;
  Places down;
  Places up;
  int doubled = 0;
  picture.on_mouse_down = [&down](Single x, Single y) { down.emplace_back(x, y); };
  picture.on_mouse_up = [&up](Single x, Single y) { up.emplace_back(x, y); };
  picture.on_double_click = [&doubled] { ++doubled; };
  QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(25, 75));
  for (const int x : {1, 24, 100, 176, 199}) QTest::mousePress(&view, Qt::LeftButton, {}, QPoint(x, 0));
  EXPECT_EQ(down, (Places{{-1, 0}, {0, 1}}));
  EXPECT_EQ(up, (Places{{-1, 0}}));
  for (const int x : {24, 100, 176}) QTest::mouseDClick(&view, Qt::LeftButton, {}, QPoint(x, 75));
  EXPECT_EQ(doubled, 1);
  up.clear();
  for (const int x : {24, 176}) QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(x, 75));
  EXPECT_EQ(up, Places{}) << "a release belongs to its press";
}

TEST_F(PictureView, PictureOfItsOwnSizeShowsPixelByPixel) {
  view.resize(100, 100);
  picture.scale(0, 0, 100, 100);
  picture.set_back_colour(RGB(0, 0, 200));
  picture.line(10, 20, 60, 20, RGB(255, 0, 0));
  picture.set_persistent(false);
  picture.set_point(5, 6, RGB(0, 255, 0));
  view.refresh();
  const QImage shown = view.grab().toImage();
  for (const int x : {10, 60}) EXPECT_EQ(shown.pixelColor(x, 20), QColor(255, 0, 0));
  EXPECT_EQ(shown.pixelColor(61, 20), QColor(0, 0, 200));
  EXPECT_EQ(shown.pixelColor(10, 21), QColor(0, 0, 200)) << "no anti-aliasing";
  EXPECT_EQ(shown.pixelColor(5, 6), QColor(0, 255, 0)) << "the overlay";
}

class Dialogs : public testing::Test {
 protected:
  Dialogs() {  // a program that has ended in another test leaves no loop running, not even of a dialog
    QTimer::singleShot(0, &QApplication::quit);
    QApplication::exec();
  }
  /// Answers the next dialog of a kind.
  template <class Dialog>
  static void when_asked(const std::function<void(Dialog&)>& answer) {
    QTimer::singleShot(0, [answer] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      answer(*dialog);
    });
  }

  const ScratchFolder folder;
  DesktopServices services;
};

TEST_F(Dialogs, ProposeByTheKindOfFile) {
  for (const auto* name : {"crystals/a.cry", "imports/b.cif"}) folder.write(name, "x");
  for (const auto& [kind, name] : {std::pair{FileKind::Crystal, "crystals/a.cry"}, {FileKind::Cif, "imports/b.cif"}}) {
    const std::string path = folder.path(name);
    when_asked<QFileDialog>([path](QFileDialog& dialog) {
      dialog.selectFile(QString::fromStdString(path));
      static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_EQ(services.ask_file({.kind = kind}), path);
  }
  QString place;
  when_asked<QFileDialog>([&place](QFileDialog& dialog) {
    place = dialog.directory().filePath(dialog.findChild<QLineEdit*>()->text());
    dialog.reject();
  });
  EXPECT_EQ(services.ask_file({.kind = FileKind::Crystal, .save = true, .file_name = "/elsewhere/c.dat"}), "");
  EXPECT_EQ(place.toStdString(), folder.path("crystals/c.dat"));
}

bool is_landscape(const std::string& pdf) {
  double width = 0;
  double height = 0;
  const std::size_t box = pdf.find("/MediaBox [0 0 ");
  return box != std::string::npos && std::istringstream(pdf.substr(box + 15)) >> width >> height && width > height;
}

// The file and the form of the page that the set-up dialog was told hold for the next window. Without a printer
// anything else goes to a file, which is proposed to bear the name of what is printed.
TEST_F(Dialogs, PrintToTheFileThatIsNamed) {
  Program program({ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services);
  Desktop desktop(program.windows(), [](const std::string& message) { ADD_FAILURE() << message; });
  services.set_desktop(desktop);
  Window& window = program.windows().use("Xd");
  window.set_caption("NaCl.cry");
  for (const auto* file : {"a.pdf", "protected.pdf"}) {
    when_asked<QPrintDialog>([path = folder.path(file)](QPrintDialog& dialog) {
      dialog.printer()->setPageOrientation(QPageLayout::Landscape);
      dialog.findChild<QLineEdit*>(QStringLiteral("filename"))->setText(QString::fromStdString(path));
      dialog.accept();
    });
    services.set_up_printer();
    if (std::string_view(file) == "a.pdf") services.print_window(window);
  }
  std::filesystem::permissions(folder.write("protected.pdf", "old"), std::filesystem::perms::owner_read);
  EXPECT_NE(failure_of([&] { services.print_window(window); }).find("write-protected"), std::string::npos);
  EXPECT_EQ(folder.read("protected.pdf"), "old");
  EXPECT_TRUE(is_landscape(folder.read("a.pdf")));
  if (!QPrinterInfo::availablePrinterNames().isEmpty()) return;
  QStringList proposed;
  const auto cancel = [&proposed](QFileDialog& dialog) {
    proposed << dialog.findChild<QLineEdit*>()->text();
    dialog.reject();
  };
  when_asked<QFileDialog>(cancel);
  services.print_window(window);
  when_asked<QFileDialog>(cancel);
  services.end_document("Quartz.cry");
  EXPECT_EQ(proposed, (QStringList{QStringLiteral("NaCl.pdf"), QStringLiteral("Quartz.pdf")}));
}

}  // namespace
}  // namespace zol
