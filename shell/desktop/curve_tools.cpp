#include "shell/desktop/curve_tools.h"

#include <functional>

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QToolBar>

#include "shell/desktop/curve_view.h"
#include "shell/desktop/desktop.h"
#include "shell/desktop/qt_text.h"

namespace zol {
namespace {

/// What is changed by a check mark.
void add_choice(QMenu& menu, CurveView& view, const QString& text, bool CurveLook::*wanted) {
  auto* action = menu.addAction(text);
  action->setCheckable(true);
  action->setChecked(view.look().*wanted);
  QObject::connect(action, &QAction::toggled, &view, [&view, wanted](bool on) {
    CurveLook look = view.look();
    look.*wanted = on;
    view.set_look(look);
  });
}

void add_heights(QMenu& menu, CurveView& view) {
  auto* group = new QActionGroup(&menu);
  const std::pair<QString, CurveHeights> choices[] = {{tr("Linear &intensity"), CurveHeights::Linear},
                                                      {tr("S&quare root of the intensity"), CurveHeights::SquareRoot},
                                                      {tr("Lo&garithm of the intensity"), CurveHeights::Logarithm}};
  for (const auto& [text, heights] : choices) {
    auto* action = group->addAction(menu.addAction(text));
    action->setCheckable(true);
    action->setChecked(view.look().heights == heights);
    QObject::connect(action, &QAction::triggered, &view, [&view, wanted = heights] {
      CurveLook look = view.look();
      look.heights = wanted;
      view.set_look(look);
    });
  }
}

/// Keys work in the whole window, whatever menu is open.
void add_moves(QMenu& menu, QWidget& top, CurveView& view) {
  const auto add = [&](const QString& text, const QKeySequence& keys, const std::function<void()>& run) {
    auto* action = menu.addAction(text);
    action->setShortcut(keys);
    top.addAction(action);
    QObject::connect(action, &QAction::triggered, &view, run);
  };
  constexpr double factor = 2;
  add(tr("Show &all"), QKeySequence(Qt::CTRL | Qt::Key_0), [&view] { view.show_all(); });
  add(tr("Zoom i&n"), QKeySequence(Qt::CTRL | Qt::Key_Plus), [&view] { view.zoom(factor); });
  add(tr("Zoom &out"), QKeySequence(Qt::CTRL | Qt::Key_Minus), [&view] { view.zoom(1 / factor); });
}

/// Actions under the names of the controls, to which they are tied later.
void add_commands(QMenu& menu, const CurveOffer& offer) {
  for (const auto& command : offer.commands) {
    auto* action = menu.addAction(to_qt(command.item->caption()));
    action->setObjectName(QString::fromStdString(command.item->name()));
    action->setToolTip(to_qt(command.hint));
    action->setStatusTip(to_qt(command.hint));
    if (!command.checked) continue;
    action->setCheckable(true);
    const auto show = [action, checked = command.checked] { action->setChecked(checked()); };
    QObject::connect(&menu, &QMenu::aboutToShow, action, show);
    QObject::connect(action, &QAction::triggered, action, show, Qt::QueuedConnection);
  }
}

QWidget* tool_widget(const CurveTool& tool, QWidget& parent, QHBoxLayout& row) {
  const QString caption = to_qt(tool.control->caption());
  if (tool.control->kind() == ControlKind::CommandButton) return new QPushButton(caption, &parent);
  if (tool.control->kind() == ControlKind::Label) return new QLabel(caption, &parent);
  constexpr int width = 110;
  auto* box = new QLineEdit(&parent);
  box->setMaximumWidth(width);
  auto* beside = new QLabel(caption, &parent);
  beside->setBuddy(box);
  row.addWidget(beside);
  return box;
}

/// Shown while the first of the tools is.
void add_tools(const CurveOffer& offer, QMainWindow& top, CurveView& view) {
  if (offer.tools.empty()) return;
  auto* bar = new QToolBar(tr("Measured pattern"), &top);
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->toggleViewAction()->setVisible(false);
  auto* holder = new QWidget(bar);
  auto* row = new QHBoxLayout(holder);
  constexpr int margin = 8;
  row->setContentsMargins(margin, 0, margin, 0);
  for (const auto& tool : offer.tools) {
    auto* widget = tool_widget(tool, *holder, *row);
    widget->setObjectName(QString::fromStdString(tool.control->name()));
    widget->setToolTip(to_qt(tool.hint));
    row->addWidget(widget);
    if (!tool.unit.empty()) row->addWidget(new QLabel(to_qt(tool.unit), holder));
  }
  row->addStretch();
  bar->addWidget(holder);
  top.addToolBar(Qt::BottomToolBarArea, bar);
  top.addToolBarBreak(Qt::BottomToolBarArea);
  const auto show = [bar, control = offer.tools.front().control] { bar->setVisible(control->visible()); };
  show();
  QObject::connect(&view, &CurveView::looked_again, bar, show);
}

void follow_peaks(const CurveOffer& offer, QWidget& top, CurveView& view) {
  if (offer.peaks == nullptr || !offer.place_of_peak) return;
  const auto* list = top.findChild<QListView*>(QString::fromStdString(offer.peaks->name()));
  if (list == nullptr) return;
  const auto go = [&view, place = offer.place_of_peak](const QModelIndex& line) {
    if (const auto x = place(line.row())) view.go_to(*x);
  };
  QObject::connect(list, &QListView::clicked, &view, go);
  QObject::connect(list, &QListView::activated, &view, go);
}

void offer_curve(Canvas& canvas, CanvasView& shown, QMainWindow& top, Desktop& desktop, UserEvents& events) {
  const CurveOffer& offer = *canvas.curve;
  auto* view = new CurveView(shown, canvas, events);
  auto* menu = top.menuBar()->addMenu(tr("Cu&rve"));
  menu->setToolTipsVisible(true);
  add_moves(*menu, top, *view);
  add_choice(*menu, *view, tr("&Height follows the part that is shown"), &CurveLook::follows_height);
  menu->addSeparator();
  add_choice(*menu, *view, tr("h k l at the &peaks"), &CurveLook::indices);
  add_choice(*menu, *view, tr("&Ticks of all reflections"), &CurveLook::ticks);
  add_choice(*menu, *view, tr("&d as second axis"), &CurveLook::second_axis);
  add_choice(*menu, *view, tr("&Radiation in the picture"), &CurveLook::radiation);
  menu->addSeparator();
  add_heights(*menu, *view);
  menu->addSeparator();
  add_commands(*menu, offer);
  shown.set_menu(*menu);
  add_tools(offer, top, *view);
  follow_peaks(offer, top, *view);
  QObject::connect(&desktop, &Desktop::settled, view, [view, changed = offer.changed] {
    if (changed && changed()) view->look_again();
  });
}

}  // namespace

void offer_curves(Window& window, QWidget& top, Desktop& desktop, UserEvents& events) {
  auto* main_window = qobject_cast<QMainWindow*>(&top);
  if (main_window == nullptr) return;
  for (Control* control : window.controls()) {
    auto* canvas = dynamic_cast<Canvas*>(control);
    auto* shown = top.findChild<CanvasView*>(QString::fromStdString(control->name()));
    if (canvas != nullptr && canvas->curve && shown != nullptr) {
      offer_curve(*canvas, *shown, *main_window, desktop, events);
    }
  }
}

}  // namespace zol
