#include "shell/desktop/ways_in_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/desktop/mnemonics.h"
#include "shell/desktop/qt_text.h"

namespace zol {

WaysInBar::WaysInBar(const std::vector<WayIn>& ways, const std::function<void(const WayIn&)>& go) {
  setObjectName(QStringLiteral("waysIn"));
  setFrameShape(QFrame::StyledPanel);
  auto* rows = new QVBoxLayout(this);
  auto* heading = new QLabel(tr("Or begin here:"));
  QFont bold = heading->font();
  bold.setBold(true);
  heading->setFont(bold);
  rows->addWidget(heading);
  auto* buttons = new QHBoxLayout;
  rows->addLayout(buttons);
  for (const WayIn& way : ways) {
    auto* button = new QPushButton(to_qt(way.text));
    button->setToolTip(to_qt(way.tip));
    connect(button, &QPushButton::clicked, this, [way, go] { go(way); });
    buttons->addWidget(button, 1);
  }
}

void WaysInBar::add_to(QMainWindow& window, WaysInBar* bar) {
  auto* both = new QWidget;
  auto* layout = new QVBoxLayout(both);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(window.takeCentralWidget(), 1);
  layout->addWidget(bar);
  window.setCentralWidget(both);
  for (auto* button : bar->findChildren<QPushButton*>()) button->setText(with_free_mnemonic(window, button->text()));
}

}  // namespace zol
