#include "shell/desktop/windows_menu.h"

#include <algorithm>

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>

#include "shell/desktop/desk_layout.h"
#include "shell/desktop/language/language.h"
#include "shell/desktop/mnemonics.h"
#include "shell/desktop/qt_text.h"
#include "shell/desktop/screen_fit.h"
#include "shell/services/window.h"

namespace zol {
namespace {

constexpr std::size_t with_keys = 9;  // Ctrl+1 to Ctrl+9

}  // namespace

QString listed_title(const QString& kind, const QString& title) {
  QString shown = title;
  shown.remove(QStringLiteral("[*]"));
  if (shown.startsWith(kind)) return shown;
  const qsizetype dash = shown.indexOf(QStringLiteral(" - "));
  const QString name = shown.left(shown.lastIndexOf(u'.', dash));  // a file's
  if (dash >= 0 && shown.mid(dash + 3).startsWith(name)) shown = shown.mid(dash + 3);
  return shown.isEmpty() ? kind : kind + QStringLiteral(" - ") + shown;
}

WindowsMenu::~WindowsMenu() = default;

void WindowsMenu::add(const Window& window, QMainWindow& top) {
  auto* menu = top.menuBar()->addMenu(with_free_mnemonic(top, tr("Windows")));
  menu->addActions(QList<QAction*>(actions_.begin(), actions_.end()));
  menu->addSeparator();
  QAction* side_by_side = menu->addAction(tr("&Arrange"), this, [this, &top] { arrange(top); });
  side_by_side->setToolTip(tr("Puts the open windows side by side, as far as the screen allows"));
  menu->setToolTipsVisible(true);
  connect(menu, &QMenu::aboutToShow, this, [this, &top] { check(top); });
  entries_[window.name()] = {&window, &top, to_qt(window.caption()).trimmed(), menu};
}

void WindowsMenu::remove(const Window& window) {
  entries_.erase(window.name());
  update();
}

std::vector<const WindowsMenu::Entry*> WindowsMenu::open() const {
  std::vector<const Entry*> open;
  for (const auto& [name, entry] : entries_) {
    if (entry.opened > 0) open.push_back(&entry);
  }
  std::sort(open.begin(), open.end(), [](const Entry* a, const Entry* b) { return a->opened < b->opened; });
  return open;
}

void WindowsMenu::add_action() {
  auto* action = new QAction(this);
  action->setCheckable(true);
  const std::size_t number = actions_.size();
  if (number < with_keys) action->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + number)));
  connect(action, &QAction::triggered, this, [this, number] {
    if (number >= listed_.size()) return;
    QMainWindow& top = *listed_[number];
    if (top.isMinimized()) top.showNormal();
    top.raise();
    top.activateWindow();
  });
  for (const auto& [name, entry] : entries_) {
    const auto known = entry.menu->actions();
    entry.menu->insertAction(known[static_cast<qsizetype>(number)], action);
  }
  actions_.push_back(action);
}

void WindowsMenu::update() {
  for (auto& [name, entry] : entries_) {
    if (!entry.window->visible()) entry.opened = 0;
    if (entry.window->visible() && entry.opened == 0) entry.opened = ++last_opened_;
  }
  const auto windows = open();
  while (actions_.size() < windows.size()) add_action();
  listed_.clear();
  for (std::size_t i = 0; i < actions_.size(); ++i) {
    actions_[i]->setVisible(i < windows.size());
    if (i >= windows.size()) continue;
    const Entry& entry = *windows[i];
    listed_.push_back(entry.top);
    QString text = listed_title(shown(entry.kind), entry.top->windowTitle()).replace(u'&', QStringLiteral("&&"));
    if (entry.top->isWindowModified()) text += u'*';
    actions_[i]->setText(i < with_keys ? QStringLiteral("&%1 %2").arg(i + 1).arg(text) : text);
  }
}

void WindowsMenu::check(const QMainWindow& current) {
  for (std::size_t i = 0; i < listed_.size(); ++i) actions_[i]->setChecked(listed_[i] == &current);
}

/// The current one and those that were opened last, which it is likely to need; what gives way stands at the end.
std::vector<QMainWindow*> WindowsMenu::in_order_of_use(QMainWindow& current) const {
  std::vector<QMainWindow*> tops{&current};
  auto others = open();
  std::reverse(others.begin(), others.end());
  for (const Entry* entry : others) {
    if (entry->top != &current && entry->top->isVisible() && !entry->top->isMinimized()) tops.push_back(entry->top);
  }
  std::stable_partition(tops.begin(), tops.end(), [](const QMainWindow* top) { return !gives_way(*top); });
  return tops;
}

void WindowsMenu::arrange(QMainWindow& current) {
  const auto tops = in_order_of_use(current);
  for (QMainWindow* top : tops) {
    if (top->isMaximized()) top->showNormal();
  }
  std::vector<QSize> least;
  least.reserve(tops.size());
  int title = 0;
  for (const QMainWindow* top : tops) {
    least.push_back(top->minimumSizeHint().expandedTo(top->minimumSize()) + frame_of(*top));
    title = std::max(title, top->geometry().top() - top->frameGeometry().top());
  }
  if (title == 0) title = page_strip;  // the frames are not known
  const QRect room = current.screen()->availableGeometry();
  const QMainWindow& last = *tops.back();
  if (gives_way(last)) least.pop_back();
  const auto tiles =
      gives_way(last) ? arranged_before(last.frameGeometry().size(), least, room, title) : arranged(least, room, title);
  for (std::size_t i = tops.size(); i-- > 0;) {  // the first page comes to the front
    QMainWindow& top = *tops[i];
    top.resize(tiles[i].place.size() - frame_of(top));
    top.move(tiles[i].place.topLeft());
    top.raise();
  }
  tops.front()->activateWindow();
}

}  // namespace zol
