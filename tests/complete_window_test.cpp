// Every window of the program: its layout shows all that the window declares, and can be used as it stands.
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QRegularExpression>
#include <QToolButton>

#include "core/read_file.h"
#include "shell/desktop/qt_text.h"
#include "tests/offscreen_desktop.h"

namespace zol {
namespace {

std::string plain(const QString& text) { return QString(text).remove(u'&').trimmed().toStdString(); }

/// The text of the label that stands beside a widget.
std::string label_of(const QWidget& top, const QObject* widget) {
  for (const auto* label : top.findChildren<QLabel*>()) {
    if (label->buddy() == widget) return plain(label->text());
  }
  return "";
}

std::string menu_of(const QWidget& top, QAction* item) {
  for (const auto* menu : top.findChildren<QMenu*>()) {
    if (menu->actions().contains(item)) return plain(menu->title());
  }
  return "";
}

/// Of every window of the program.
std::vector<std::string> window_names() {
  FakeServices services;
  return Program({"", ""}, services).windows().names();
}

class CompleteWindow : public DesktopTest, public testing::WithParamInterface<std::string> {};
INSTANTIATE_TEST_SUITE_P(Windows, CompleteWindow, testing::ValuesIn(window_names()),
                         [](const auto& name) { return name.param; });

TEST_P(CompleteWindow, HasAWidgetForEachControlAndNoOther) {
  QWidget& top = widget(GetParam());
  const Window& window = desktop.binder(GetParam())->window();
  const QRegularExpression given(
      QStringLiteral("^(Text|Command|Label|List|Combo|Check|Option|Frame|Picture|ProgressBar)[0-9]+(\\([0-9]+\\))?$"));
  for (const auto* object : top.findChildren<QObject*>()) {
    const auto* action = qobject_cast<const QAction*>(object);
    const QString name = object->objectName();
    const bool menu_item = action != nullptr && action->menu() == nullptr && !name.isEmpty();
    if (!menu_item && !given.match(name).hasMatch()) continue;
    EXPECT_NE(window.find(name.toStdString()), nullptr) << name.toStdString();
  }
}

TEST_P(CompleteWindow, BearsTheGivenCaptions) {
  QWidget& top = widget(GetParam());
  for (const Control* control : desktop.binder(GetParam())->window().controls()) {
    SCOPED_TRACE(control->name());
    auto* shown = top.findChild<QObject*>(QString::fromStdString(control->name()));
    const std::string wanted = plain(QString::fromStdString(control->caption()));
    const std::string beside = label_of(top, shown);
    const std::string own = plain(shown->property(shown->inherits("QGroupBox") ? "title" : "text").toString());
    if (const auto* label = dynamic_cast<const Label*>(control)) {
      EXPECT_EQ(own, wanted);
      EXPECT_EQ(beside, label->beside());
      continue;
    }
    EXPECT_FALSE(shown->property("toolTip").toString().isEmpty());
    if (const auto* item = dynamic_cast<const MenuItem*>(control)) {
      EXPECT_EQ(menu_of(top, qobject_cast<QAction*>(shown)), item->menu());
      EXPECT_EQ(own, wanted);
    } else if (const auto* button = qobject_cast<QAbstractButton*>(shown)) {
      EXPECT_TRUE(own == wanted || wanted.empty()) << own;
      const auto* tool = qobject_cast<QToolButton*>(shown);
      const bool has_symbol = !button->icon().isNull() || (tool != nullptr && tool->arrowType() != Qt::NoArrow);
      EXPECT_TRUE(!own.empty() || has_symbol);
    } else if (control->kind() == ControlKind::Frame) {
      EXPECT_EQ(own, wanted);
    } else {
      EXPECT_TRUE(beside == wanted || wanted.empty()) << beside;
    }
  }
}

TEST_P(CompleteWindow, UsesEachMnemonicOnce) {
  QWidget& top = widget(GetParam());
  QString used;
  const auto use = [&used](const QString& text) { used += text.section(u'&', 1).left(1).toUpper(); };
  for (const auto* button : top.findChildren<QAbstractButton*>()) use(button->text());
  for (const auto* action : dynamic_cast<QMainWindow&>(top).menuBar()->actions()) use(action->text());
  for (const QChar mnemonic : used) EXPECT_EQ(used.count(mnemonic), 1) << QString(mnemonic).toStdString();
}

// At their smallest size, where the layouts give the least.
TEST_P(CompleteWindow, ClipsNoText) {
  QWidget& top = widget(GetParam());
  top.resize(1, 1);
  top.show();
  QApplication::processEvents();
  QApplication::processEvents();  // a row that has become a column asks for its height
  for (auto* shown : top.findChildren<QWidget*>()) {
    const QString text = shown->property("text").toString();
    const bool adapts = shown->property("wordWrap").toBool() || qobject_cast<QProgressBar*>(shown) != nullptr;
    if (!shown->isVisible() || text.isEmpty() || adapts) continue;
    EXPECT_GE(shown->width(), shown->fontMetrics().size(Qt::TextShowMnemonic, text).width()) << text.toStdString();
    EXPECT_GE(shown->height(), shown->fontMetrics().height()) << text.toStdString();
  }
}

TEST_P(CompleteWindow, WalksByTabAsOneReads) {
  QWidget& top = widget(GetParam());
  top.show();
  QApplication::processEvents();
  const QWidget* last = nullptr;
  for (auto* next = top.nextInFocusChain(); next != &top; next = next->nextInFocusChain()) {
    if (!(next->focusPolicy() & Qt::TabFocus) || !next->isVisible() || next->objectName().startsWith(u"qt_")) continue;
    if (last != nullptr && last->parentWidget() == next->parentWidget()) {
      const bool below = next->y() > last->y() + next->fontMetrics().height() / 2;
      const bool on_the_right = next->x() > last->x();  // the next in the line, or at the head of the next column
      EXPECT_TRUE(below || on_the_right) << plain(last->objectName()) << " before " << plain(next->objectName());
    }
    last = next;
  }
}

TEST_P(CompleteWindow, HasItsChapterInTheGuide) {
  const QString page = widget(GetParam()).property("guidePage").toString();
  const QString guide = to_qt(read_file(ZOL_SOURCE_DIR "/docs/user-guide/" + page.section(u'#', 0, 0).toStdString()));
  const QString heading = page.section(u'#', 1).replace(u'-', u' ');
  EXPECT_TRUE(guide.toLower().contains(QStringLiteral("# %1\n").arg(heading))) << page.toStdString();
}

}  // namespace
}  // namespace zol
