// What a layout declares by properties: widths by digits, icons, names for who does not see a button.
#include <algorithm>

#include <QAbstractButton>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QStatusBar>

#include "shell/desktop/canvas_view.h"
#include "shell/desktop/look/ink_icon.h"
#include "shell/desktop/look/look.h"

namespace zol {
namespace {

/// A box shows so many digits in whatever font it has; one that the layout lets not grow is as wide as that.
class DigitWidth : public QObject {
 public:
  DigitWidth(QLineEdit& edit, int digits) : QObject(&edit), edit_(edit), digits_(digits) {
    edit.installEventFilter(this);
    take();
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::FontChange) take();
    return QObject::eventFilter(watched, event);
  }

 private:
  void take() {
    constexpr int border = 16;  // with the blank that a number begins with
    const int width = digits_ * edit_.fontMetrics().horizontalAdvance(u'0') + border;
    edit_.setMinimumWidth(width);
    if (edit_.maximumWidth() < QWIDGETSIZE_MAX) edit_.setMaximumWidth(width);
  }

  QLineEdit& edit_;
  int digits_;
};

/// The words of a label without its mnemonic and its sign of equality.
QString words_of(const QLabel& label) {
  QString words = label.text().remove(u'&').simplified();
  while (words.endsWith(u'=') || words.endsWith(u' ') || words.endsWith(u':')) words.chop(1);
  return words;
}

/// By its label, else by what its tool tip says first.
QString name_for(const QMainWindow& window, const QWidget& widget) {
  for (const auto* label : window.findChildren<QLabel*>()) {
    if (label->buddy() == &widget && !words_of(*label).isEmpty()) return words_of(*label);
  }
  return widget.toolTip().section(u';', 0, 0).section(u'\n', 0, 0);
}

bool says_its_name(const QWidget& widget) {
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  if (button == nullptr) return false;
  const QString text = button->text();  // each call of text() is a string of its own
  return std::any_of(text.begin(), text.end(), [](QChar letter) { return letter.isLetter(); });
}

}  // namespace

void dress(QMainWindow& window) {
  window.statusBar()->setSizeGripEnabled(false);
  for (auto* widget : window.findChildren<QWidget*>()) {
    const QVariant digits = widget->property("digits");
    auto* edit = qobject_cast<QLineEdit*>(widget);
    if (edit != nullptr && digits.isValid()) new DigitWidth(*edit, digits.toInt());
    const QString ink = widget->property("ink").toString();
    auto* button = qobject_cast<QAbstractButton*>(widget);
    if (button != nullptr && !ink.isEmpty()) button->setIcon(ink_icon(ink));
    if (widget->property("look") == QLatin1String("step"))
      widget->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    const bool picture = qobject_cast<CanvasView*>(widget) != nullptr;
    if ((widget->focusPolicy() == Qt::NoFocus && !picture) || widget->objectName().startsWith(u"qt_")) continue;
    if (widget->accessibleName().isEmpty() && !says_its_name(*widget)) {
      widget->setAccessibleName(name_for(window, *widget));
    }
  }
}

}  // namespace zol
