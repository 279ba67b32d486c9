#include "shell/desktop/item_copies.h"

#include <algorithm>
#include <map>

#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QStringList>

namespace zol {
namespace {

QString selected_text(const QAbstractItemView& view) {
  QModelIndexList selected = view.selectionModel()->selectedIndexes();
  std::sort(selected.begin(), selected.end());
  std::map<int, QStringList> lines;
  for (const QModelIndex& index : selected) lines[index.row()] << index.data().toString();
  QStringList text;
  for (const auto& [row, cells] : lines) text << cells.join(u'\t');
  return text.join(u'\n');
}

}  // namespace

void add_copy_commands(QAbstractItemView& view) {
  const auto add = [&view](const char* title, QKeySequence::StandardKey key, const auto& command) {
    auto* action = new QAction(QCoreApplication::translate("zol", title), &view);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(action, &QAction::triggered, &view, command);
    view.addAction(action);
  };
  add("&Copy", QKeySequence::Copy, [&view] { QGuiApplication::clipboard()->setText(selected_text(view)); });
  add("Select &All", QKeySequence::SelectAll, [&view] { view.selectAll(); });
  view.setContextMenuPolicy(Qt::ActionsContextMenu);
  view.setSelectionMode(QAbstractItemView::ExtendedSelection);
}

}  // namespace zol
