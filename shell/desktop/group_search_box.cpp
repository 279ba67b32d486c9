#include "shell/desktop/group_search_box.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QMainWindow>

#include "core/number_text.h"
#include "shell/desktop/language/language.h"
#include "shell/desktop/note_line.h"
#include "structures/group_search.h"
#include "structures/library_entry.h"

namespace zol {
namespace {

QString row_text(const QListView& list, int row) { return list.model()->index(row, 0).data().toString(); }

int rows_of(const QListView& list) { return list.model() == nullptr ? 0 : list.model()->rowCount(); }

/// A crystal system in the language that is shown, as "kubi", in English; all else as it was typed.
std::string english(const QString& typed) {
  constexpr int letters_of_system = 4;
  constexpr int last_group = 230;
  for (int group = 1; typed.size() >= letters_of_system && group <= last_group; ++group) {
    std::string system(crystal_system(group));
    if (shown(QString::fromStdString(system)).startsWith(typed, Qt::CaseInsensitive)) return system;
  }
  return typed.toStdString();
}

}  // namespace

GroupSearchBox::GroupSearchBox(QListView& list) : list_(list) {
  setObjectName(list.objectName() + QStringLiteral("Search"));
  setAccessibleName(tr("search for a space group"));
  setPlaceholderText(tr("Fm-3m, 225, cubic"));
  setToolTip(tr("number, symbol or crystal system of a space group; Enter takes the first one found"));
  connect(this, &QLineEdit::textChanged, this, &GroupSearchBox::filter);
  nothing_ = new QLabel(list.viewport());
  nothing_->setObjectName(objectName() + QStringLiteral("Nothing"));
  nothing_->setProperty("look", QStringLiteral("muted"));
  nothing_->setAttribute(Qt::WA_TransparentForMouseEvents);
  nothing_->move(4, 4);
  nothing_->hide();
}

void GroupSearchBox::filter() {
  const std::string typed = english(text().trimmed());
  const GroupSearch search(typed);
  for (int row = 0; row < rows_of(list_); ++row) {
    list_.setRowHidden(row, !finds_row(typed, search, row_text(list_, row).toStdString()));
  }
  const bool nothing = rows_of(list_) > 0 && first_shown() < 0;
  nothing_->setText(nothing ? shown(tr("nothing found")) : QString());  // a folded group tells what labels say
  nothing_->setVisible(nothing);
  nothing_->adjustSize();
}

int GroupSearchBox::first_shown() const {
  for (int row = 0; row < rows_of(list_); ++row) {
    if (!list_.isRowHidden(row)) return row;
  }
  return -1;
}

/// As a click on the row.
void GroupSearchBox::pick() {
  const int row = first_shown();
  if (row < 0 || text().trimmed().isEmpty()) return;
  const QModelIndex index = list_.model()->index(row, 0);
  if (list_.currentIndex() == index) {
    emit list_.clicked(index);
  } else {
    list_.setCurrentIndex(index);
  }
  clear();
}

void GroupSearchBox::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return pick();
    case Qt::Key_Escape:
      return clear();
    case Qt::Key_Down:
      return list_.setFocus(Qt::OtherFocusReason);
    default:
      QLineEdit::keyPressEvent(event);
  }
}

void GroupSearchBox::follow(const QLineEdit& number) {
  connect(&number, &QLineEdit::textChanged, this, &GroupSearchBox::light);
  light(number.text());
}

void GroupSearchBox::light(const QString& number) {
  auto* list = dynamic_cast<NotedList*>(&list_);
  if (list == nullptr) return;
  const double wanted = Val(number.toStdString());
  int found = -1;
  for (int row = 0; row < rows_of(list_) && found < 0; ++row) {
    if (wanted > 0 && Val(row_text(list_, row).section(u' ', 1, 1).toStdString()) == wanted) found = row;
  }
  list->light(found);
}

void offer_group_search(QMainWindow& window) {
  for (auto* list : window.findChildren<QListView*>()) {
    if (list->property("searches") != QLatin1String("groups")) continue;
    auto* layout = qobject_cast<QBoxLayout*>(list->parentWidget()->layout());
    if (layout == nullptr) continue;
    auto* search = new GroupSearchBox(*list);
    layout->insertWidget(layout->indexOf(list), search);
    QWidget::setTabOrder(list->previousInFocusChain(), search);
    QWidget::setTabOrder(search, list);
    const auto* number = window.findChild<QLineEdit*>(list->property("follows").toString());
    if (number != nullptr) search->follow(*number);
  }
}

}  // namespace zol
