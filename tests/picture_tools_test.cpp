// What the pointer does over pictures: marks and rows, measuring, dragging, lines of PATTERN3.
#include <cmath>
#include <type_traits>

#include <QContextMenuEvent>
#include <QFile>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QStatusBar>
#include <QTemporaryDir>

#include "analysis/window/pattern3_form.h"
#include "dynamics/window/master_pattern_form.h"
#include "kikuchi/window/pattern2_form.h"
#include "powder/window/dring_form.h"
#include "shell/desktop/canvas_view.h"
#include "shell/desktop/lit_reflection.h"
#include "shell/desktop/note_line.h"
#include "shell/desktop/picture_choices.h"
#include "spots/window/pattern_form.h"
#include "tests/offscreen_desktop.h"

namespace zol {
namespace {

class PictureToolsTest : public DesktopTest {
 protected:
  PictureToolsTest() {
    desktop.offer_undo(program);
    program.watch(desktop.gate());
  }
  ~PictureToolsTest() override {
    for (const auto choice : {PictureChoices::Scale, PictureChoices::Labels, PictureChoices::Caption}) {
      PictureChoices::of_program().set(choice, false);
    }
  }
  template <class Form>
  Form& draw() {
    show_main1();
    load("NaCl.cry");
    click("Main1", "Command10");
    auto& form = program.windows().use<Form>();
    desktop.enter("a test", [&form] {
      form.show();
      if constexpr (std::is_same_v<Form, PatternForm>) form.Text1.set_text("2");
      form.Text5.set_text("1");
      form.Command8.click();
    });
    return form;
  }
  CanvasView& view(const char* window) { return child<CanvasView>(window, "Picture1"); }
  QPoint at(CanvasView& picture, double x, double y) {
    return PicturePlace{picture.canvas(), picture.picture_rect()}.to_view(x, y).toPoint();
  }
  static void drag(CanvasView& view, QPoint from, QPoint to, Qt::KeyboardModifiers keys = {}) {
    QTest::mousePress(&view, Qt::LeftButton, keys, from);
    for (int i = 1; i <= 4; ++i) {
      const QPointF position = from + (to - from) * i / 4.0;
      QMouseEvent move(QEvent::MouseMove, position, view.mapToGlobal(position), Qt::NoButton, Qt::LeftButton, keys);
      QApplication::sendEvent(&view, &move);
    }
    QTest::mouseRelease(&view, Qt::LeftButton, keys, to);
  }
  static void move_to(CanvasView& view, QPointF position) {
    QMouseEvent move(QEvent::MouseMove, position, view.mapToGlobal(position), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&view, &move);
  }
  QString status(const char* window) {
    return dynamic_cast<QMainWindow&>(widget(window)).statusBar()->currentMessage();
  }
  void choose(CanvasView& picture, const QString& entry) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, picture.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&picture, &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (QAction* action : menu->actions()) {
      if (action->text().remove(u'&') == entry) action->trigger();
    }
    menu->close();
  }
};

TEST_F(PictureToolsTest, ADragDrawsWhatTheButtonsDraw) {
  auto& form = draw<Pattern2Form>();
  const auto before = form.Picture1.contents().drawing;
  const double step = std::tan(form.ShiftPitch * degree);
  auto& picture = view("Pattern2");
  drag(picture, at(picture, 0, 0), at(picture, 2.3 * step, 0.8 * step));
  const auto dragged = form.Picture1.contents().drawing;
  EXPECT_EQ(program.history().undo_name(), "tilt by dragging");
  QTest::keyClick(&widget("Pattern2"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(form.Picture1.contents().drawing, before) << "one step";
  desktop.enter("the same by hand", [&form] {
    for (const int button : {0, 0, 1}) form.Command1(button).click();
  });
  EXPECT_EQ(form.Picture1.contents().drawing, dragged) << "to the bit";
  EXPECT_NE(dragged, before);
  EXPECT_TRUE(failures.empty());
}

// By 30 degrees to the right: tan 30 = 0.577. The pole goes to the right and with it what points upward at a turn of 0.
TEST_F(PictureToolsTest, ADragTurnsTheSphereOfAMasterPattern) {
  load("Silicon.cry");
  auto& form = program.windows().use<MasterPatternForm>();
  desktop.enter("a test", [&form] {
    form.show();
    form.Points.set_text("21");
    form.Make.click();
    form.Globe.click();
  });
  const auto texts = [&form] {
    return std::vector{form.MiddleU.text(), form.MiddleV.text(), form.MiddleW.text(), form.TurnAngle.text()};
  };
  const auto before = texts();
  auto& picture = child<CanvasView>("MasterPattern", "Picture");
  drag(picture, at(picture, 0, 0), at(picture, .5, 0));
  for (const auto& [text, wanted] : {std::pair{0, -.577}, {1, 0.}, {2, 1.}, {3, -90.}}) {
    EXPECT_NEAR(Val(texts()[static_cast<std::size_t>(text)]), wanted, text == 3 ? .6 : .01) << text;
  }
  QTest::keyClick(&widget("MasterPattern"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(texts(), before) << "one step";
  EXPECT_EQ(form.drawn.middle, (std::array{0., 0., 1.}));
  drag(picture, at(picture, .5, 0), at(picture, 0, .5), Qt::ControlModifier);
  EXPECT_NEAR(Val(form.TurnAngle.text()), 90, .6);
  EXPECT_EQ(form.MiddleW.text(), "1.000");
  EXPECT_TRUE(failures.empty());
}

TEST_F(PictureToolsTest, CtrlTurnsSoThatTheMarkFollowsThePointer) {
  auto& form = draw<PatternForm>();
  auto& picture = view("Pattern");
  const auto find = [&form](int h, int k, int l) {
    for (const PictureMark& mark : form.Picture1.marks()) {
      if (mark.h == h && mark.k == k && mark.l == l) return QPointF(mark.x, mark.y);
    }
    return QPointF();
  };
  const QPointF spot = find(2, 2, 0);
  ASSERT_FALSE(spot.isNull());
  const QPointF turned(-spot.y(), spot.x());  // a quarter, anticlockwise
  drag(picture, at(picture, spot.x(), spot.y()), at(picture, turned.x(), turned.y()), Qt::ControlModifier);
  const double half_step = form.RotationPitch / 5 / 2 * degree * std::hypot(spot.x(), spot.y());
  EXPECT_LT(std::hypot(find(2, 2, 0).x() - turned.x(), find(2, 2, 0).y() - turned.y()), 2 * half_step);
  EXPECT_EQ(program.history().undo_name(), "turn by dragging");
  // From [0 0 1] by 54.7 degrees to [1 1 1], a drag to the left along x; first back to the start.
  QTest::keyClick(&widget("Pattern"), Qt::Key_Z, Qt::ControlModifier);
  const double half_width = program.state().CamAcquisition;
  drag(picture, at(picture, 0.6 * half_width, 0), at(picture, (0.6 - 54.74 / 45) * half_width, 0));
  EXPECT_EQ(form.Text3.text() + form.Text4.text() + form.Text5.text(), "111");
  EXPECT_TRUE(failures.empty());
}

TEST_F(PictureToolsTest, MarksAndRowsLightEachOtherUp) {
  auto& form = draw<Pattern2Form>();
  auto& picture = view("Pattern2");
  auto& list = child<NotedList>("Pattern2", "List1");
  const auto& marks = form.Picture1.marks();
  const PictureMark mark = *std::find_if(marks.begin(), marks.end(),
                                         [](const PictureMark& band) { return std::hypot(band.x, band.y) < 0.5; });
  const QPointF pointer = at(picture, mark.x, mark.y);
  QMouseEvent move(QEvent::MouseMove, pointer, picture.mapToGlobal(pointer), Qt::NoButton, Qt::NoButton, {});
  QApplication::sendEvent(&picture, &move);
  ASSERT_GE(list.lit(), 0);
  const auto& lit = form.Picture1.marks()[static_cast<std::size_t>(list.lit())];
  EXPECT_NEAR(distance_from(lit, mark.x, mark.y), 0, 0.01);
  EXPECT_TRUE(status("Pattern2").contains(QString::fromStdString(mark_text(lit)))) << status("Pattern2").toStdString();
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&picture, &leave);
  EXPECT_EQ(list.lit(), -1);
  const QImage before = picture.grab().toImage();
  emit list.entered(list.model()->index(mark.row, 0));
  EXPECT_NE(picture.grab().toImage(), before) << "the band of the row";
  EXPECT_EQ(list.lit(), mark.row);
}

TEST_F(PictureToolsTest, RingsAndTheirPeaksLightEachOtherUp) {
  show_main1();
  load("NaCl.cry");
  click("Main1", "Command8");
  auto& form = program.windows().use<DringForm>();
  auto& picture = child<CanvasView>("Dring", "Picture2");
  auto& list = child<NotedList>("Dring", "List1");
  const auto& marks = form.Picture2.marks();
  // Rings of rock salt: d of h k l is a / sqrt(h2 + k2 + l2), a = 5.64; the samples lie 0.001 / angstrom apart.
  const auto ring = std::find_if(marks.begin(), marks.end(), [](const PictureMark& mark) {
    return std::abs(mark.h) == 2 && std::abs(mark.k) == 2 && mark.l == 0;
  });
  ASSERT_NE(ring, marks.end());
  EXPECT_NEAR(ring->radius, std::sqrt(8.0) / 5.64, 0.002);
  EXPECT_NEAR(Val(form.List1.items()[static_cast<std::size_t>(ring->row)]), ring->d, 0.02);
  move_to(picture, at(picture, ring->radius * 0.6, ring->radius * 0.8));
  EXPECT_EQ(list.lit(), ring->row);
  const QImage before = picture.grab().toImage();
  emit list.entered(list.model()->index(ring->row + 1, 0));
  EXPECT_NE(picture.grab().toImage(), before);
  EXPECT_TRUE(failures.empty());
}

TEST_F(PictureToolsTest, TheListOfReflectionsAndOpenPicturesLightEachOtherUp) {
  auto& form = draw<PatternForm>();
  auto& picture = view("Pattern");
  auto& list = child<NotedList>("Main1", "List2");
  const auto& marks = form.Picture1.marks();
  const PictureMark spot = *std::find_if(marks.begin(), marks.end(), [](const auto& mark) { return mark.d > 1.2; });
  move_to(picture, at(picture, spot.x, spot.y));
  ASSERT_GE(list.lit(), 0);
  const QString row = list.model()->index(list.lit(), 0).data().toString();
  EXPECT_EQ(indices_at_head(row), (std::array{spot.h, spot.k, spot.l})) << row.toStdString();
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&picture, &leave);
  EXPECT_EQ(list.lit(), -1);
  const QImage before = picture.grab().toImage();
  emit list.entered(
      list.model()->index(list.model()->match(list.model()->index(0, 0), Qt::DisplayRole, row)[0].row(), 0));
  EXPECT_NE(picture.grab().toImage(), before);
  QApplication::sendEvent(list.viewport(), &leave);
  EXPECT_EQ(picture.grab().toImage(), before);
}

TEST(Colours, OfFamiliesAreToldApartByTheColourBlind) {
  // Machado, Oliveira & Fernandes, IEEE Trans. Vis. Comput. Graph. 15 (2009) 1291: protanopia, deuteranopia.
  constexpr double views[3][3][3] = {
      {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
      {{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}},
      {{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}};
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  const auto lab = [&](const QColor& colour, const auto& seen_as) {
    const double given[3] = {linear(colour.redF()), linear(colour.greenF()), linear(colour.blueF())};
    double rgb[3] = {};
    for (int i = 0; i < 3; ++i) {
      for (int j = 0; j < 3; ++j) rgb[i] += seen_as[i][j] * given[j];
      rgb[i] = std::clamp(rgb[i], 0.0, 1.0);
    }
    const auto root = [](double t) { return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116; };
    const double x = root((0.4124564 * rgb[0] + 0.3575761 * rgb[1] + 0.1804375 * rgb[2]) / 0.95047);
    const double y = root(0.2126729 * rgb[0] + 0.7151522 * rgb[1] + 0.0721750 * rgb[2]);
    const double z = root((0.0193339 * rgb[0] + 0.1191920 * rgb[1] + 0.9503041 * rgb[2]) / 1.08883);
    return std::array{116 * y - 16, 500 * (x - y), 200 * (y - z)};
  };
  EXPECT_NEAR(lab(Qt::red, views[0])[0], 53.24, 0.01);  // CIE L* of the red of sRGB
  for (const auto& seen_as : views) {
    for (int one = 0; one < family_colours; ++one) {
      const auto a = lab(family_colour(one), seen_as);
      for (int other = 0; other < one; ++other) {
        const auto b = lab(family_colour(other), seen_as);
        EXPECT_GE(std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]), 20) << one << " and " << other;
      }
    }
  }
}

TEST(PictureChoicesTest, AreKeptInTheirFile) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("pictures.ini"));
  const auto kept = [&file](PictureChoices::Choice choice) {
    PictureChoices choices;
    choices.keep_in(file);
    return choices.on(choice);
  };
  EXPECT_FALSE(kept(PictureChoices::Scale));
  EXPECT_TRUE(kept(PictureChoices::Families));
  {
    PictureChoices choices;
    choices.keep_in(file);
    choices.set(PictureChoices::Scale, true);
    choices.set(PictureChoices::Families, false);
  }
  EXPECT_TRUE(kept(PictureChoices::Scale));
  EXPECT_FALSE(kept(PictureChoices::Families));
  EXPECT_FALSE(kept(PictureChoices::Labels));
}

TEST_F(PictureToolsTest, MeasuresUntilEsc) {
  auto& form = draw<PatternForm>();
  auto& picture = view("Pattern");
  choose(picture, QStringLiteral("Measure"));
  const auto spot = form.Picture1.marks()[0];
  QTest::mouseClick(&picture, Qt::LeftButton, {}, at(picture, 0, 0));
  QTest::mouseClick(&picture, Qt::LeftButton, {}, at(picture, spot.x, spot.y));
  const double d = status("Pattern").section(QStringLiteral(" d "), 1).section(u' ', 0, 0).toDouble();
  EXPECT_NEAR(d, spot.d, 0.05 * spot.d) << status("Pattern").toStdString();
  QTest::keyClick(&picture, Qt::Key_Escape);
  const auto drawing = form.Picture1.contents().drawing;
  drag(picture, at(picture, 0.1, 0), at(picture, 0.1, 0.5));
  EXPECT_NE(form.Picture1.contents().drawing, drawing) << "a drag tilts again";
}

TEST_F(PictureToolsTest, LayersAreOnTheScreenAndInExportsThatAskForThem) {
  auto& form = draw<PatternForm>();
  auto& picture = view("Pattern");
  const QImage plain = picture.grab().toImage();
  const auto drawing = form.Picture1.contents().drawing;
  choose(picture, QStringLiteral("Scale bar"));
  const QImage with_scale = picture.grab().toImage();
  QRect drawn;
  for (int place = 0; place < plain.width() * plain.height(); ++place) {
    const QPoint point(place % plain.width(), place / plain.width());
    if (plain.pixel(point) != with_scale.pixel(point)) drawn |= QRect(point, point);
  }
  EXPECT_FALSE(drawn.isEmpty());
  EXPECT_TRUE(picture.picture_rect().adjusted(2, 2, -2, -2).contains(drawn)) << "the bar stands within the picture";
  choose(picture, QStringLiteral("Labels h k l"));
  EXPECT_NE(picture.grab().toImage(), with_scale);
  EXPECT_EQ(form.Picture1.contents().drawing, drawing);
  const QTemporaryDir folder;
  services.answers = {(folder.path() + "/a").toStdString(), (folder.path() + "/b").toStdString()};
  choose(picture, QStringLiteral("Export SVG..."));
  choose(picture, QStringLiteral("With caption"));
  choose(picture, QStringLiteral("Export SVG..."));
  EXPECT_EQ(services.messages, std::vector<std::string>());
  EXPECT_EQ(services.answers.size(), 0U);
  const auto text_of = [&folder](const char* name) {
    QFile file(folder.path() + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
  };
  EXPECT_FALSE(text_of("/a.svg").contains(QStringLiteral("ZOL")));
  EXPECT_TRUE(text_of("/b.svg").contains(QStringLiteral("ZOL"))) << "as text";
  EXPECT_TRUE(text_of("/b.svg").contains(QStringLiteral("NaCl")));
}

TEST_F(PictureToolsTest, TheCircleOfAnAngleIsDrawnInItsColour) {
  draw<Pattern2Form>();
  const auto coloured = [this] {
    const QImage seen = view("Pattern2").grab().toImage();
    int count = 0;
    for (int place = 0; place < seen.width() * seen.height(); ++place) {
      const QColor colour = seen.pixelColor(place % seen.width(), place / seen.width());
      count += colour.red() > 180 && colour.green() < 120 && colour.blue() < 90 ? 1 : 0;
    }
    return count;
  };
  EXPECT_EQ(coloured(), 0);
  choose(view("Pattern2"), QStringLiteral("Angle circle"));
  EXPECT_GT(coloured(), 300) << "dashes along a circle of 0.4 of the picture";
}

TEST_F(PictureToolsTest, ALoupeShowsWhileALineIsDrawnAndSolutionsAreWalkedByKeys) {
  show_main1();
  load("Silicon.cry");
  auto& form = program.windows().use<Pattern3Form>();
  desktop.enter("a test", [&form] { form.show(); });
  services.answers = {ZOL_SOURCE_DIR "/examples/silicon-pattern.bmp"};
  child<QAction>("PATTERN3", "ImageLoad").trigger();
  auto& picture = view("PATTERN3");
  QTest::mousePress(&picture, Qt::LeftButton, {}, at(picture, 100, 100));
  // Above the pointer and to the right of it, where the line is not
  const QRect place(at(picture, 150, 400) + QPoint(50, -90), QSize(40, 40));
  move_to(picture, at(picture, 150, 400));
  const QImage with_loupe = picture.grab().toImage().copy(place);
  QTest::mouseRelease(&picture, Qt::LeftButton, {}, at(picture, 150, 400));
  EXPECT_NE(picture.grab().toImage().copy(place), with_loupe);
  desktop.enter("a test", [&form] {
    (*form.operation("TakeBackLine"))();
    form.Text3.set_text("33");
  });
  for (const auto& [from, to] :
       {std::pair{QPointF(20, 75), QPointF(490, 293)}, {{60, 490}, {480, 245}}, {{24, 20}, {259, 490}}}) {
    drag(picture, at(picture, from.x(), from.y()), at(picture, to.x(), to.y()));
  }
  for (const auto* button : {"Check1", "Command1"}) click("PATTERN3", button);
  ASSERT_GT(form.List1.list_count(), 1);
  EXPECT_FALSE(form.Picture1.row_marks(0).empty()) << form.List1.items()[0];
  auto& list = child<NotedList>("PATTERN3", "List1");
  const QImage unlit = picture.grab().toImage();
  for (const auto& [key, row] : {std::pair{Qt::Key_Down, 0}, {Qt::Key_Down, 0}, {Qt::Key_Up, 0}}) {
    QTest::keyClick(&picture, key);
    EXPECT_EQ(list.lit(), row);
    EXPECT_NE(picture.grab().toImage(), unlit) << "the bands of the solution";
  }
  EXPECT_EQ(status("PATTERN3").simplified(), QString::fromStdString(form.List1.items()[0]).simplified());
  QTest::keyClick(&picture, Qt::Key_Escape);
  EXPECT_EQ(list.lit(), -1);
  EXPECT_TRUE(failures.empty());
}

TEST_F(PictureToolsTest, HalosAreDarkBesideColouredLines) {
  auto& form = program.windows().use<Pattern3Form>();
  services.answers = {ZOL_SOURCE_DIR "/examples/silicon-pattern.bmp"};
  child<QAction>("PATTERN3", "ImageLoad").trigger();
  desktop.enter("a line", [&form] { form.Picture1.line(100, 255, 400, 255, RGB(255, 0, 0)); });
  auto& picture = view("PATTERN3");
  widget("PATTERN3").show();
  const auto beside = [&] {
    const QPoint place = at(picture, 250, 255);
    const QImage shown = picture.grab().toImage();
    int darkest = 255;
    for (int dy = -2; dy <= 2; ++dy) {
      const QColor colour = shown.pixelColor(place + QPoint(0, dy));
      if (colour.saturation() < 100) darkest = std::min(darkest, colour.lightness());
    }
    return darkest;
  };
  const int before = beside();
  PictureChoices::of_program().set(PictureChoices::Halos, true);
  EXPECT_LT(beside(), before / 2);
  PictureChoices::of_program().set(PictureChoices::Halos, false);
  EXPECT_EQ(beside(), before) << "the picture itself stays";
}

TEST_F(PictureToolsTest, ALineOfPattern3IsTakenBack) {
  auto& form = program.windows().use<Pattern3Form>();
  desktop.enter("a test", [&form] { form.show(); });
  auto& picture = view("PATTERN3");
  const QImage with_hint = picture.grab().toImage();
  form.Picture1.hint.clear();
  EXPECT_NE(picture.grab().toImage(), with_hint) << "an empty picture tells what to do, also in its scale";
  for (const int y : {100, 200}) drag(picture, at(picture, 100, y), at(picture, 300, y));
  EXPECT_EQ(form.lines.LineDone(1), 1);
  EXPECT_NE(picture.grab().toImage(), with_hint);
  choose(picture, QStringLiteral("Take back the last line"));
  EXPECT_EQ(form.lines.LineDone(1), 0);
  EXPECT_EQ(form.lines.LineDone(0), 1);
  EXPECT_FALSE(form.Picture1.drawing().empty()) << "the other line stays";
  auto& mode = child<QAction>("PATTERN3", "CenterPosition");
  mode.trigger();
  mode.setChecked(false);
  emit qobject_cast<QMenu*>(mode.associatedObjects().constFirst())->aboutToShow();
  EXPECT_TRUE(mode.isChecked());
  EXPECT_TRUE(failures.empty());
}

}  // namespace
}  // namespace zol
