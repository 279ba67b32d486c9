#include "shell/desktop/kept_work_bar.h"

#include <algorithm>
#include <utility>

#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMainWindow>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/desktop/qt_text.h"

namespace zol {
namespace {

constexpr std::size_t most_rows = 3;  // the others come up as these go

QString shortened(const QString& text) {
  constexpr qsizetype most = 160;
  return text.size() <= most ? text : text.left(most) + QStringLiteral("...");
}

QLabel* label(const QString& text) {
  auto* made = new QLabel(shortened(text));
  made->setTextFormat(Qt::PlainText);
  made->setWordWrap(true);
  made->setToolTip(QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped()));
  return made;
}

void clear(QLayout& layout) {
  while (QLayoutItem* item = layout.takeAt(0)) {
    if (QWidget* widget = item->widget()) {
      widget->hide();
      widget->deleteLater();  // its own click may be under way
    }
    delete item;
  }
}

}  // namespace

QString told_of(const WorkNote& note) {
  const auto say = [](const char* text) { return KeptWorkBar::tr(text); };
  QStringList parts;
  parts << (note.crystal.empty() ? say("no crystal") : to_qt(note.crystal));
  if (!note.windows.empty()) parts << to_qt(note.windows);
  parts << QLocale(QLocale::English)
               .toString(QDateTime::fromMSecsSinceEpoch(note.time_ms), QStringLiteral("d MMM yyyy, HH:mm"));
  switch (note.end) {
    case RunEnd::Failure:
      parts << say("ended by a failure: ") + to_qt(note.failure);
      break;
    case RunEnd::Unsaved:
      parts << say("ended with the crystal not saved");
      break;
    case RunEnd::Unknown:
      parts << say("the program was cut off");
      break;
  }
  return parts.join(QStringLiteral("; "));
}

KeptWorkBar::KeptWorkBar(std::vector<LeftOver> left, Actions actions)
    : left_(std::move(left)), actions_(std::move(actions)), rows_(new QVBoxLayout(this)) {
  setObjectName(QStringLiteral("keptWork"));
  setFrameShape(QFrame::StyledPanel);
  show_rows();
}

void KeptWorkBar::add_to(QMainWindow& window, KeptWorkBar* bar) {
  auto* both = new QWidget;
  auto* layout = new QVBoxLayout(both);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(bar);
  layout->addWidget(window.takeCentralWidget(), 1);
  window.setCentralWidget(both);
}

void KeptWorkBar::show_rows() {
  clear(*rows_);
  if (left_.empty()) return hide();
  auto* heading = label(tr("Work that was not finished:"));
  QFont bold = heading->font();
  bold.setBold(true);
  heading->setFont(bold);
  rows_->addWidget(heading);
  for (std::size_t i = 0; i < std::min(left_.size(), most_rows); ++i) add_row(left_[i]);
  if (left_.size() > most_rows) rows_->addWidget(label(tr("and %1 older").arg(left_.size() - most_rows)));
}

void KeptWorkBar::add_row(const LeftOver& left) {
  auto* row = new QWidget;
  auto* columns = new QHBoxLayout(row);
  columns->setContentsMargins(0, 0, 0, 0);
  const QString told = left.fault.empty() ? told_of(left.note)
                                          : tr("%1: cannot be restored, %2").arg(told_of(left.note), to_qt(left.fault));
  columns->addWidget(label(told), 1);
  const auto add_button = [&](const char* name, const QString& text, const QString& tip, auto action) {
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(tip);
    connect(button, &QPushButton::clicked, this, action);
    columns->addWidget(button);
  };
  if (left.fault.empty()) {
    add_button("Restore", tr("Restore"), tr("Restores crystal and windows; undo reverses this"),
               [this, left] { act(left, actions_.restore); });
  }
  add_button("NotNow", tr("Not now"), tr("The next start offers it again"), [this, left] { take_off(left.path); });
  add_button("Discard", tr("Discard"), tr("Throws this work away"), [this, left] { act(left, actions_.discard); });
  rows_->addWidget(row);
}

void KeptWorkBar::act(const LeftOver& left, const std::function<std::string(const LeftOver&)>& action) {
  std::string fault = action(left);
  if (fault.empty()) return take_off(left.path);
  for (LeftOver& other : left_) {
    if (other.path == left.path) other.fault = fault;
  }
  show_rows();
}

void KeptWorkBar::take_off(const std::string& path) {
  std::erase_if(left_, [&path](const LeftOver& left) { return left.path == path; });
  show_rows();
}

}  // namespace zol
