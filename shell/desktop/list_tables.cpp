#include "shell/desktop/list_tables.h"

#include <QAction>
#include <QListView>
#include <QMainWindow>

namespace zol {

void ListTables::add(Window& window, QMainWindow& top) {
  for (Control* control : window.controls()) {
    auto* list = dynamic_cast<ListBox*>(control);
    auto* view = top.findChild<QListView*>(QString::fromStdString(control->name()));
    if (list != nullptr && list->table && view != nullptr) offer(*list, *view, top);
  }
}

/// The table is made when it is first wanted.
void ListTables::offer(ListBox& list, QListView& view, QMainWindow& top) {
  auto* action = new QAction(tr("Show as &table"), &view);
  action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_T));
  action->setShortcutContext(Qt::WidgetShortcut);
  view.addAction(action);
  connect(action, &QAction::triggered, this, [this, &list, &top, shown = QPointer<TableWindow>()]() mutable {
    if (shown == nullptr) {
      shown = new TableWindow(list, top, services_, events_, settings_, crystal_);
      tables_.emplace_back(shown);
    }
    shown->open();
  });
}

void ListTables::update() {
  std::erase(tables_, nullptr);
  for (const auto& table : tables_) table->update_rows();
}

}  // namespace zol
