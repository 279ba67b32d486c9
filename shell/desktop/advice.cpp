#include "shell/desktop/advice.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QPointer>
#include <QStatusBar>
#include <QToolBar>

#include "shell/desktop/canvas_view.h"
#include "shell/desktop/language/language.h"
#include "shell/desktop/note_line.h"
#include "shell/desktop/qt_text.h"
#include "shell/program/program.h"

namespace zol {
namespace {

constexpr auto reason_property = "warning";

/// The sign at one control: a widget or a menu item.
class Sign {
 public:
  Sign(const Control& control, QObject& shown)
      : control_(control), shown_(shown), tool_tip_(shown.property("toolTip").toString()) {}

  void update(QStatusBar* status) {
    const QString reason = control_.warn_when ? to_qt(control_.warn_when()) : QString();
    if (reason == reason_) return;
    if (status != nullptr && !reason_.isEmpty() && status->currentMessage() == shown(reason_))
      status->showMessage(reason);
    reason_ = reason;
    shown_.setProperty(reason_property, reason);
    shown_.setProperty("statusTip", reason);
    shown_.setProperty("accessibleDescription", reason);
    shown_.setProperty("toolTip", reason.isEmpty() ? tool_tip_ : tool_tip_ + QLatin1Char('\n') + reason);
    if (auto* action = qobject_cast<QAction*>(&shown_)) return sign_item(*action);
    delete sign_;
  }

  [[nodiscard]] const Control& control() const { return control_; }
  /// Empty where there is none, and for menu items, which have signs of their own.
  [[nodiscard]] QString reason_beside() const { return shown_.isWidgetType() ? reason_ : QString(); }
  void show_sign(bool wanted) {
    if (wanted == (sign_ != nullptr)) return;
    if (!wanted) {
      delete sign_;
    } else if (auto* widget = qobject_cast<QWidget*>(&shown_)) {
      sign_ = new WarningSign(*widget);
    }
  }

 private:
  /// An icon in a menu; in the menu bar that would stand in the place of the text.
  void sign_item(QAction& item) const {
    const auto places = item.associatedObjects();
    const bool in_bar = std::any_of(places.begin(), places.end(), [](const QObject* place) {
      return qobject_cast<const QMenuBar*>(place) != nullptr;
    });
    if (in_bar) {
      const QString mark = QStringLiteral(" (!)");
      QString text = item.text().remove(mark);
      item.setText(reason_.isEmpty() ? text : text + mark);
    } else {
      item.setIcon(reason_.isEmpty() ? QIcon() : warning_icon());
    }
  }

  const Control& control_;
  QObject& shown_;
  QString tool_tip_;
  QString reason_;
  QPointer<WarningSign> sign_;
};

}  // namespace

class Advice::OfWindow : public QObject {
 public:
  OfWindow(Advice& advice, Window& window, QWidget& top) : QObject(&top), advice_(advice), window_(window), top_(top) {
    for (Control* control : window.controls()) {
      auto* shown = top.findChild<QObject*>(QString::fromStdString(control->name()));
      if (shown == nullptr) continue;
      if (control->warn_when) signs_.emplace_back(*control, *shown);
      if (control->made_from || control->remarks) add_line(*control, *shown);
      if (control->made_from) makers_.insert(control->made_from->again.begin(), control->made_from->again.end());
    }
    if (!window.reads.empty()) add_foot();
  }

  void update() {
    if (!top_.isVisible()) return;
    auto* top = qobject_cast<QMainWindow*>(&top_);
    for (Sign& sign : signs_) sign.update(top == nullptr ? nullptr : top->statusBar());
    show_signs();
    for (const auto& [control, line] : lines_) {
      const auto note = advice_.notes_.note_of(*control);
      line->set_note(to_qt(note.line()), !note.again.empty());
    }
    if (foot_ == nullptr) return;
    QString text;
    for (const SharedPart part : window_.reads) {
      const QString& words = advice_.said_of(part);
      if (!words.isEmpty()) text += (text.isEmpty() ? QString() : QStringLiteral("   ")) + words;
    }
    foot_->set_words(text);
  }

 private:
  /// Where one reason stands against many controls, as in an empty window, one sign is enough: at what would make the
  /// result, else at the first.
  void show_signs() {
    constexpr int few = 4;
    std::map<QString, std::vector<Sign*>> by_reason;
    for (Sign& sign : signs_) by_reason[sign.reason_beside()].push_back(&sign);
    for (const auto& [reason, signs] : by_reason) {
      const auto makes = std::find_if(signs.begin(), signs.end(),
                                      [this](const Sign* sign) { return makers_.count(&sign->control()) > 0; });
      const Sign* chosen = makes == signs.end() ? signs.front() : *makes;
      const bool all = static_cast<int>(signs.size()) <= few;
      for (Sign* sign : signs) sign->show_sign(!reason.isEmpty() && (all || sign == chosen));
    }
  }

  void add_line(const Control& control, QObject& shown) {
    const auto again = [this, &control] {
      for (const CommandButton* button : advice_.notes_.note_of(control).again) {
        advice_.events_.act(window_, operation({"click", button->path()}, [button] { button->click(); }),
                            {button->warn_when});
      }
    };
    if (auto* list = dynamic_cast<NotedList*>(&shown)) {
      lines_.emplace_back(&control, new NoteLine(
                                        *list, [list](int room) { list->set_note_room(room); }, again));
    }
    if (auto* view = qobject_cast<CanvasView*>(&shown)) {
      lines_.emplace_back(&control, new NoteLine(
                                        *view, [view](int room) { view->set_note_room(room); }, again));
      view->set_caption([this, &control] { return caption_of(control); },
                        [this] { return advice_.program_.crystal_name(); });
    }
  }

  /// For a picture that leaves the program: what it was made for, what the foot tells, and by which program.
  [[nodiscard]] QString caption_of(const Control& control) const {
    QStringList parts{to_qt(advice_.notes_.note_of(control).caption())};
    for (const SharedPart part : window_.reads) parts << to_qt(part(advice_.program_.state()));
    parts << QStringLiteral("ZOL ") + QLatin1String(program_version);
    parts.removeAll(QString());
    return parts.join(QStringLiteral("; "));
  }

  void add_foot() {
    auto* top = qobject_cast<QMainWindow*>(&top_);
    if (top == nullptr) return;
    auto* bar = new QToolBar(tr("Shared with other windows"), top);
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->toggleViewAction()->setVisible(false);
    foot_ = new WordLine(bar);
    bar->addWidget(foot_);
    top->addToolBar(Qt::BottomToolBarArea, bar);
  }

  Advice& advice_;
  Window& window_;
  QWidget& top_;
  std::vector<Sign> signs_;
  std::set<const Control*> makers_;                          ///< buttons that make the results
  std::vector<std::pair<const Control*, NoteLine*>> lines_;  ///< children of their views
  WordLine* foot_ = nullptr;                                 ///< a child of the top level
};

Advice::Advice(Program& program, UserEvents& events) : program_(program), events_(events), notes_(program) {
  connect(qApp, &QApplication::focusChanged, this, [](const QWidget* from, const QWidget* to) {
    const auto show = [](const QWidget* widget, bool here) {
      const QString reason = widget == nullptr ? QString() : widget->property(reason_property).toString();
      auto* top = reason.isEmpty() ? nullptr : qobject_cast<QMainWindow*>(widget->window());
      if (top == nullptr) return;
      here ? top->statusBar()->showMessage(reason) : top->statusBar()->clearMessage();
    };
    show(from, false);
    show(to, true);
  });
}

void Advice::add(Window& window, QWidget& top) { windows_[window.name()] = new OfWindow(*this, window, top); }

void Advice::remove(const Window& window) { windows_.erase(window.name()); }

const QString& Advice::said_of(SharedPart part) {
  const auto known = said_.find(part);
  if (known != said_.end()) return known->second;
  return said_[part] = to_qt(part(program_.state()));
}

void Advice::update() {
  said_.clear();
  notes_.update();
  for (const auto& [name, window] : windows_) window->update();
}

}  // namespace zol
