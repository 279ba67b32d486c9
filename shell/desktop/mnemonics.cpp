#include "shell/desktop/mnemonics.h"

#include <algorithm>

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>

namespace zol {
namespace {

/// The letter behind a single "&"; none: 0.
QChar mnemonic(const QString& text) {
  for (qsizetype i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != u'&') continue;
    if (text[i + 1] != u'&') return text[i + 1].toLower();
    ++i;
  }
  return {};
}

}  // namespace

QString with_free_mnemonic(const QMainWindow& window, const QString& title) {
  QString used;
  for (const auto* button : window.findChildren<QAbstractButton*>()) used += mnemonic(button->text());
  for (const auto* group : window.findChildren<QGroupBox*>()) used += mnemonic(group->title());
  for (const auto* label : window.findChildren<QLabel*>()) {
    if (label->buddy() != nullptr) used += mnemonic(label->text());
  }
  if (const auto* bar = window.findChild<QMenuBar*>()) {
    for (const auto* action : bar->actions()) used += mnemonic(action->text());
  }
  const auto free = std::find_if(title.begin(), title.end(), [&used](QChar letter) {
    return letter.isLetter() && !used.contains(letter.toLower());
  });
  return free == title.end() ? title : QString(title).insert(free - title.begin(), u'&');
}

}  // namespace zol
