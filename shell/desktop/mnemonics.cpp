#include "shell/desktop/mnemonics.h"

#include <algorithm>

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>

#include "shell/desktop/language/phrases.h"

namespace zol {
namespace {

/// The letter behind a single "&", if any.
QString mnemonic(const QString& text) {
  const qsizetype at = mnemonic_at(text);
  return at < 0 ? QString() : text.mid(at, 1).toLower();
}

/// Of a window, without those of the objects that are left out.
QString letters_in(const QWidget& window, const std::vector<const QObject*>& without) {
  QString used;
  const auto use = [&](const QObject* owner, const QString& text) {
    if (std::find(without.begin(), without.end(), owner) == without.end()) used += mnemonic(text);
  };
  for (const auto* button : window.findChildren<QAbstractButton*>()) use(button, button->text());
  for (const auto* group : window.findChildren<QGroupBox*>()) use(group, group->title());
  for (const auto* label : window.findChildren<QLabel*>()) {
    if (label->buddy() != nullptr) use(label, label->text());
  }
  if (const auto* bar = window.findChild<QMenuBar*>()) {
    for (const auto* action : bar->actions()) use(action, action->text());
  }
  return used;
}

/// The window; for an action in a menu, that menu.
const QWidget* scope_of(const QObject& owner) {
  if (const auto* action = qobject_cast<const QAction*>(&owner)) {
    const auto places = action->associatedObjects();
    // What has no room in a menu bar stands in a menu behind it, too.
    for (const QObject* place : places) {
      if (const auto* bar = qobject_cast<const QMenuBar*>(place)) return bar->window();
    }
    for (const QObject* place : places) {
      const auto* menu = qobject_cast<const QMenu*>(place);
      if (menu != nullptr && menu != action->menu()) return menu;
    }
    for (const QObject* place : places) {
      if (const auto* widget = qobject_cast<const QWidget*>(place)) return widget->window();
    }
    return nullptr;
  }
  const auto* widget = qobject_cast<const QWidget*>(&owner);
  return widget == nullptr ? nullptr : widget->window();
}

bool begins_word(const QString& text, qsizetype at) { return at == 0 || !text[at - 1].isLetterOrNumber(); }

}  // namespace

QString with_free_mnemonic(const QMainWindow& window, const QString& title) {
  const QString used = letters_in(window, {});
  const auto free = std::find_if(title.begin(), title.end(), [&used](QChar letter) {
    return letter.isLetter() && !used.contains(letter.toLower());
  });
  return free == title.end() ? title : QString(title).insert(free - title.begin(), u'&');
}

QString& MnemonicsInUse::used_beside(const QObject& owner) {
  const QWidget* scope = scope_of(owner);
  const auto known = used_.find(scope);
  if (known != used_.end()) return *known;
  QString& used = used_[scope];
  if (const auto* menu = qobject_cast<const QMenu*>(scope)) {
    for (const auto* action : menu->actions()) {
      if (std::find(changed_.begin(), changed_.end(), action) == changed_.end()) used += mnemonic(action->text());
    }
  } else if (scope != nullptr) {
    used = letters_in(*scope, changed_);
  }
  return used;
}

void MnemonicsInUse::take(const QObject& owner, const QString& text) { used_beside(owner) += mnemonic(text); }

QString MnemonicsInUse::add(const QObject& owner, const QString& text, QChar wanted) {
  QString& used = used_beside(owner);
  const auto is_free = [&](qsizetype at) { return text[at].isLetterOrNumber() && !used.contains(text[at].toLower()); };
  qsizetype chosen = -1;
  const auto choose = [&](auto fits) {
    for (qsizetype at = 0; chosen < 0 && at < text.size(); ++at) {
      if (is_free(at) && fits(at)) chosen = at;
    }
  };
  choose([&](qsizetype at) { return text[at].toLower() == wanted.toLower(); });
  choose([&](qsizetype at) { return begins_word(text, at); });
  choose([](qsizetype /*at*/) { return true; });
  if (chosen < 0) return text;
  used += text[chosen].toLower();
  return QString(text).insert(chosen, u'&');
}

}  // namespace zol
