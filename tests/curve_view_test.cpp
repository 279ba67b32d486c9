// What users do in the curve of a powder pattern, and what lies beside it.
#include "shell/desktop/curve_view.h"

#include <cmath>
#include <numbers>
#include <numeric>

#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QWheelEvent>

#include "powder/window/dring_form.h"
#include "powder/window/xd_form.h"
#include "shell/desktop/qt_text.h"
#include "tests/offscreen_desktop.h"
#include "tests/test_files.h"

namespace zol {
namespace {

class Curves : public DesktopTest {
 protected:
  Curves() {
    show_main1();
    load("NaCl.cry");
    desktop.enter("a test", [this] {
      main1().Combo1.set_text("CuKa");
      main1().Combo1.on_click.fire("a test");
      main1().Text15.set_text("1");
    });
    for (const auto* button : {"Command6", "Command7"}) click("Main1", button);
    view().resize(700, 500);
    QApplication::processEvents();
  }
  XdForm& xd() { return program.windows().use<XdForm>(); }
  CanvasView& view() { return child<CanvasView>("Xd", "Picture1"); }
  CurveView& curve() { return *view().findChild<CurveView*>(); }
  QAction& entry(const QString& text) {
    for (auto* menu : widget("Xd").findChildren<QMenu*>()) {
      for (auto* action : menu->actions()) {
        if (action->text().remove(u'&') == text) return *action;
      }
    }
    throw std::out_of_range(text.toStdString());
  }
  QPointF pixel(double x, double y) {
    const QRectF place = view().picture_rect();
    const auto& scale = xd().Picture1.user_scale();
    return {place.left() + (x - scale.left) / (scale.right - scale.left) * place.width(),
            place.top() + (y - scale.top) / (scale.bottom - scale.top) * place.height()};
  }
  void turn_wheel(const QPointF& at, int delta) {
    QWheelEvent event(at, view().mapToGlobal(at), {}, {0, delta}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&view(), &event);
  }
  [[nodiscard]] std::string svg() {
    const std::string path = folder.path("curve");
    services.answers = {path};
    for (auto* action : context_menu().actions()) {
      if (action->text().contains(u"SVG")) action->trigger();
    }
    return folder.read("curve.svg");
  }
  QMenu& context_menu() {
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, view().mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&view(), &event);
    return *view().findChildren<QMenu*>().back();
  }
  ScratchFolder folder;
};

TEST_F(Curves, AreThePictureAloneUntilSomethingIsWanted) {
  EXPECT_FALSE(curve().in_use());
  const QImage before = view().grab().toImage();
  for (const auto* text :
       {"Ticks of all reflections", "d as second axis", "Radiation in the picture", "h k l at the peaks"}) {
    entry(QString::fromLatin1(text)).trigger();
    EXPECT_TRUE(curve().in_use()) << text;
    EXPECT_NE(view().grab().toImage(), before) << text;
    entry(QString::fromLatin1(text)).trigger();
  }
  EXPECT_EQ(view().grab().toImage(), before);
}

TEST_F(Curves, AreZoomedByWheelDragKeysAndPeakAndReadOutWhereThePointerIs) {
  const double end = xd().TwoThetaMax;
  turn_wheel(pixel(30, 0.5), 360);
  EXPECT_NEAR(curve().look().x.width(), end / std::pow(1.25, 3), 1e-3);
  EXPECT_NEAR(curve().user_place(pixel(30, 0.5)).x, 30, 1e-6) << "the place under the pointer stays";
  QTest::mouseClick(&view(), Qt::LeftButton, {}, pixel(30, 0.5).toPoint());
  EXPECT_NEAR(Val(xd().Label5.caption().substr(8)), curve().user_place(pixel(30, 0.5).toPoint()).x, 0.0051);
  QTest::mouseDClick(&view(), Qt::LeftButton, {}, pixel(30, 0.5).toPoint());
  EXPECT_EQ(curve().look().x, (CurveRange{0, end}));
  const QPoint from = pixel(25, 0.5).toPoint();
  const QPoint to = pixel(35, 0.4).toPoint();
  const double low = curve().user_place(from).x;
  const double high = curve().user_place(to).x;
  QTest::mousePress(&view(), Qt::LeftButton, {}, from);
  QMouseEvent move(QEvent::MouseMove, to, view().mapToGlobal(to), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&view(), &move);
  QTest::mouseRelease(&view(), Qt::LeftButton, {}, to);
  EXPECT_NEAR(curve().look().x.from, low, 1e-9);
  EXPECT_NEAR(curve().look().x.to, high, 1e-9);
  entry(QStringLiteral("Show all")).trigger();
  entry(QStringLiteral("Zoom in")).trigger();
  EXPECT_NEAR(curve().look().x.width(), end / 2, 1e-6);
  auto& list = child<QListView>("Xd", "List1");
  emit list.clicked(list.model()->index(2, 0));
  EXPECT_NEAR((curve().look().x.from + curve().look().x.to) / 2, Val(xd().List1.items()[2].substr(0, 5)), 1e-6);
  EXPECT_TRUE(failures.empty());
}

// Counts made of the calculated samples themselves: 2.5 for a per cent, 30 below, 0.08 degrees off.
TEST_F(Curves, HaveAMeasuredPatternFittedBelow) {
  std::string text = "# counts\n2theta counts\n";
  const auto calculated = *xd().Curves.sampled();
  for (double x = 20; x < 60; x += 0.02) {
    text += short_text(x, 4) + ' ' + short_text(2.5 * calculated.at(x - 0.08).value_or(0) + 30, 4) + '\n';
  }
  auto& bar = *child<QWidget>("Xd", "MeasuredScale").parentWidget()->parentWidget();
  EXPECT_FALSE(bar.isVisible());
  const auto before = program.windows().copies();
  services.answers = {folder.write("a.xy", text)};
  child<QAction>("Xd", "AddMeasured").trigger();
  EXPECT_TRUE(bar.isVisible());
  EXPECT_TRUE(curve().in_use());
  click("Xd", "FitBoxes");
  EXPECT_NEAR(Val(xd().Curves.MeasuredScale.text()), 2.5, 0.001);
  EXPECT_NEAR(Val(xd().Curves.MeasuredOffset.text()), 30, 0.01);
  EXPECT_NEAR(Val(xd().Curves.MeasuredZero.text()), 0.08, 1e-4);
  EXPECT_EQ(xd().Curves.MeasuredResidual.caption(), "R-wp 0.0 %");
  services.answers = {folder.write("bad.xy", "10 1\n11 x\n")};
  child<QAction>("Xd", "AddMeasured").trigger();
  ASSERT_FALSE(services.messages.empty());
  EXPECT_EQ(services.messages.back(),
            "bad.xy, line 2: \"11 x\", expected are two numbers, the place and the intensity");
  EXPECT_TRUE(curve().in_use());
  desktop.enter("undone", [&] { program.windows().put_back(before); });
  EXPECT_FALSE(bar.isVisible());
  EXPECT_FALSE(curve().in_use());
  EXPECT_TRUE(failures.empty());
}

// Halite's 200 and 220 of K-alpha 2 by Bragg's law; a list of lines as sticks of its spacings.
TEST_F(Curves, HaveListsOfLinesAndTheSecondLineOfTheTube) {
  services.answers = {folder.write("halite.txt", "2.821 100\n1.994 55\n")};
  child<QAction>("Xd", "AddLines").trigger();
  child<QAction>("Xd", "Doublet").trigger();
  const auto layers = xd().Picture1.curve->layers();
  ASSERT_EQ(layers.size(), 3U);
  EXPECT_EQ(layers[0].stroke, CurveStroke::Sticks);
  EXPECT_NEAR(layers[0].points[0].x, 2 * std::asin(1.542 / 2 / 2.821) * 180 / std::numbers::pi, 1e-5);
  EXPECT_DOUBLE_EQ(layers[0].points[1].y, 0.55);
  const auto& second = layers[2].points;
  const auto top = std::max_element(second.begin(), second.end(), [](auto a, auto b) { return a.y < b.y; });
  EXPECT_NEAR(top->x, 2 * std::asin(1.544427 / 5.6402) * 180 / std::numbers::pi, 0.1);
  const auto area = [](const CurveLayer& layer) {
    return std::accumulate(layer.points.begin(), layer.points.end(), 0.0, [](double sum, auto p) { return sum + p.y; });
  };
  EXPECT_NEAR(area(layers[2]) / area(layers[1]), 1.0 / 3, 1e-3);
  for (const auto* name : {"Doublet", "RemoveLines"}) child<QAction>("Xd", name).trigger();
  EXPECT_FALSE(curve().in_use());
}

TEST_F(Curves, AreExportedWithAxesAndAsOneLine) {
  const std::string plain = svg();
  EXPECT_NE(plain.find("2θ (°)"), std::string::npos);
  std::size_t longest = 0;
  for (std::size_t at = plain.find("<polyline"); at != std::string::npos; at = plain.find("<polyline", at + 1)) {
    longest = std::max(longest, static_cast<std::size_t>(std::count(&plain[at], &plain[plain.find('>', at)], ',')));
  }
  EXPECT_EQ(longest, 1001U);
  for (const auto* text : {"d as second axis", "h k l at the peaks", "Radiation in the picture"}) {
    entry(QString::fromLatin1(text)).trigger();
  }
  const std::string all = svg();
  for (const auto* text : {"d (Å)", "2 0 0", "α, λ = 1.542"}) EXPECT_NE(all.find(text), std::string::npos) << text;
}

TEST_F(Curves, OfRingsHaveTheirAxisOfSpacings) {
  click("Main1", "Command8");
  const auto& offer = *program.windows().use<DringForm>().Picture1.curve;
  EXPECT_NEAR(*offer.second_at(0.4), 2.5, 1e-12);
  EXPECT_FALSE(offer.second_at(0));
  EXPECT_FALSE(offer.reflections().empty());
  EXPECT_TRUE(failures.empty());
}

}  // namespace
}  // namespace zol
