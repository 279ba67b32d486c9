#include "shell/desktop/language/shown_widgets.h"

#include <algorithm>
#include <optional>
#include <vector>

#include <QAbstractButton>
#include <QAction>
#include <QActionEvent>
#include <QApplication>
#include <QDockWidget>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QToolBar>
#include <QVariant>

#include "shell/desktop/language/language.h"
#include "shell/desktop/language/phrases.h"
#include "shell/desktop/mnemonics.h"

namespace zol {
namespace {

int held = 0;

/// What was done to a property: its English text, what is shown for it, and in which language.
struct Done {
  QString source;
  QString shown;
  QString code;
};

QByteArray mark_of(const char* property) { return QByteArray("english-") + property; }

std::optional<Done> done_to(const QObject& object, const char* property) {
  const QStringList kept = object.property(mark_of(property)).toStringList();
  if (kept.size() != 3) return std::nullopt;
  return Done{kept[0], kept[1], kept[2]};
}

/// Code that reads a text may put something behind it, or take that off again.
QString source_of(const QString& now, const std::optional<Done>& done) {
  if (!done || done->shown.isEmpty()) return now;
  if (now.startsWith(done->shown)) return done->source + now.mid(done->shown.size());
  const QString rest = done->shown.mid(now.size());
  if (!now.isEmpty() && done->shown.startsWith(now) && done->source.endsWith(rest)) {
    return done->source.chopped(rest.size());
  }
  return now;
}

bool has_own_title(const QWidget& widget) {
  return widget.isWindow() || qobject_cast<const QDockWidget*>(&widget) != nullptr ||
         qobject_cast<const QToolBar*>(&widget) != nullptr;
}

/// The tool tip of an action is its text unless it is given one.
bool has_own_tip(const QAction& action) {
  QString text = without_mnemonic(action.text());
  if (text.endsWith(QStringLiteral("..."))) text.chop(3);
  return !action.toolTip().isEmpty() && action.toolTip() != text;
}

std::vector<const char*> texts_of(const QObject& object) {
  if (const auto* action = qobject_cast<const QAction*>(&object)) {
    std::vector<const char*> texts{"statusTip", "text"};
    if (has_own_tip(*action)) texts.insert(texts.begin(), "toolTip");
    return texts;
  }
  const auto* widget = qobject_cast<const QWidget*>(&object);
  if (widget == nullptr) return {};
  std::vector<const char*> texts{"toolTip", "statusTip", "accessibleName", "accessibleDescription"};
  if (has_own_title(*widget)) texts.push_back("windowTitle");
  if (qobject_cast<const QLineEdit*>(widget) != nullptr) texts.push_back("placeholderText");
  if (qobject_cast<const QGroupBox*>(widget) != nullptr) texts.push_back("title");
  const bool says =
      qobject_cast<const QLabel*>(widget) != nullptr || qobject_cast<const QAbstractButton*>(widget) != nullptr;
  if (says) texts.push_back("text");
  return texts;
}

/// A text that is to be set, with a mnemonic where the English one has one.
struct Change {
  QObject* object;
  const char* property;
  Done done;
  QChar mnemonic;
};

/// A widget without a name of its own is called by what its tool tip says first.
QString shown_name(const QObject& object, const QString& name) {
  const QString tip = source_text(object, "toolTip");
  if (is_translated(name) || !tip.startsWith(name)) return shown(name);
  return shown(tip).section(u';', 0, 0).section(u'\n', 0, 0);
}

bool takes_mnemonic(const QObject& object, const char* property) {
  const QLatin1String name(property);
  if (name != QLatin1String("text") && name != QLatin1String("title")) return false;
  const auto* label = qobject_cast<const QLabel*>(&object);
  return label == nullptr || label->buddy() != nullptr;
}

bool in_menu_bar(const QObject& object) {
  const auto* action = qobject_cast<const QAction*>(&object);
  if (action == nullptr) return false;
  const auto places = action->associatedObjects();
  return std::any_of(places.begin(), places.end(),
                     [](const QObject* place) { return qobject_cast<const QMenuBar*>(place) != nullptr; });
}

std::optional<Change> change_of(QObject& object, const char* property) {
  const QString now = object.property(property).toString();
  if (now.isEmpty()) return std::nullopt;
  const auto done = done_to(object, property);
  const QString code = language_in_use();
  if (done && done->shown == now && done->code == code) return std::nullopt;
  Change change{&object, property, {source_of(now, done), {}, code}, {}};
  const bool name = qstrcmp(property, "accessibleName") == 0;
  change.done.shown = name ? shown_name(object, change.done.source) : shown(change.done.source);
  if (change.done.shown == now && (!done || change.done.source == change.done.shown)) {
    if (done) object.setProperty(mark_of(property), {});
    return std::nullopt;
  }
  if (change.done.shown == change.done.source || !takes_mnemonic(object, property)) return change;
  const qsizetype at = mnemonic_at(change.done.source);
  if (at >= 0) change.mnemonic = change.done.source[at];
  if (at < 0 && in_menu_bar(object)) change.mnemonic = change.done.shown.front();  // in English all letters were used
  return change;
}

void make(const Change& change) {
  const Done& done = change.done;
  const bool english = done.source == done.shown;
  const QByteArray mark = mark_of(change.property);
  change.object->setProperty(mark, english ? QVariant() : QVariant(QStringList{done.source, done.shown, done.code}));
  change.object->setProperty(change.property, done.shown);
}

/// All changes of a kind are known before any is made: the letters are shared among them, and menus choose first.
void make_all(std::vector<Change>& changes) {
  std::vector<const QObject*> changed;
  for (const Change& change : changes) {
    if (takes_mnemonic(*change.object, change.property)) changed.push_back(change.object);
  }
  MnemonicsInUse used(changed);
  for (const Change& change : changes) {
    if (takes_mnemonic(*change.object, change.property) && change.mnemonic.isNull()) {
      used.take(*change.object, change.done.shown);
    }
  }
  std::stable_partition(changes.begin(), changes.end(),
                        [](const Change& change) { return in_menu_bar(*change.object); });
  for (Change& change : changes) {
    if (!change.mnemonic.isNull()) change.done.shown = used.add(*change.object, change.done.shown, change.mnemonic);
    make(change);
  }
}

void collect(QObject& object, std::vector<Change>& changes) {
  for (const char* property : texts_of(object)) {
    if (auto change = change_of(object, property)) changes.push_back(std::move(*change));
  }
}

/// @returns whether any was changed
bool show_texts(const QObjectList& objects) {
  std::vector<Change> changes;
  for (QObject* object : objects) collect(*object, changes);
  make_all(changes);
  return !changes.empty();
}

/// The status line shows what it is told in the language, too.
void follow_status(QMainWindow& top) {
  constexpr auto mark = "follows-language";
  auto* line = top.findChild<QStatusBar*>();
  if (line == nullptr || line->property(mark).toBool()) return;
  line->setProperty(mark, true);
  QObject::connect(line, &QStatusBar::messageChanged, line, [line](const QString& message) {
    const QSignalBlocker once(line);
    if (const QString text = shown(message); text != message) line->showMessage(text);
  });
}

class Follower : public QObject {
 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (held > 0) return false;
    switch (event->type()) {
      case QEvent::Polish:
      case QEvent::Show:
      case QEvent::WindowTitleChange:
      case QEvent::ToolTipChange:
        show_texts({watched});
        break;
      case QEvent::LayoutRequest:
        show_texts(children_of(*watched));
        break;
      case QEvent::ActionAdded:
      case QEvent::ActionChanged:
        if (const auto* change = dynamic_cast<QActionEvent*>(event)) show_texts({change->action()});
        break;
      default:
        break;
    }
    return false;
  }

 private:
  static QObjectList children_of(const QObject& object) {
    QObjectList widgets;
    for (QObject* child : object.children()) {
      if (child->isWidgetType()) widgets += child;
    }
    return widgets;
  }
};

}  // namespace

TextsHeld::TextsHeld() { ++held; }
TextsHeld::~TextsHeld() { --held; }

void show_widget_texts(QWidget& top) {
  QObjectList objects{&top};
  for (auto* widget : top.findChildren<QWidget*>()) objects += widget;
  for (auto* action : top.findChildren<QAction*>()) objects += action;
  const bool changed = show_texts(objects);
  if (auto* window = qobject_cast<QMainWindow*>(&top)) follow_status(*window);
  if (!changed) return;
  QEvent event(QEvent::LanguageChange);
  QCoreApplication::sendEvent(&top, &event);
}

void show_all_widgets() {
  const TextsHeld held_here;
  for (auto* top : QApplication::topLevelWidgets()) show_widget_texts(*top);
}

void follow_widgets(bool follow) {
  static Follower follower;
  qApp->removeEventFilter(&follower);
  if (follow) qApp->installEventFilter(&follower);
}

QString source_text(const QObject& object, const char* property) {
  return source_of(object.property(property).toString(), done_to(object, property));
}

}  // namespace zol
