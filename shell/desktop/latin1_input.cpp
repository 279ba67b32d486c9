#include "shell/desktop/latin1_input.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolTip>
#include <QValidator>

#include "shell/desktop/language/language.h"
#include "shell/desktop/qt_text.h"
#include "shell/services/controls.h"

namespace zol {
namespace {

class Latin1Validator : public QValidator {
 public:
  using QValidator::QValidator;
  State validate(QString& input, int& /*cursor*/) const override { return is_latin1(input) ? Acceptable : Invalid; }
};

}  // namespace

int key_code(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) return key_enter;
  if (event.key() == Qt::Key_Backspace) return key_backspace;
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return 0;
  const QString text = event.text();
  if (text.size() != 1) return 0;
  const int code = text.front().unicode();
  return code >= ' ' && code != 127 && code <= 0xFF ? code : 0;
}

void say_beside(QWidget& widget, const QString& text) {
  QToolTip::showText(widget.mapToGlobal(QPoint(0, widget.height())), shown(text), &widget);
}

void say_refused(QWidget& widget) {
  say_beside(widget,
             QCoreApplication::translate("zol",
                                         "Not taken: here and in the files only characters of Latin-1 are possible "
                                         "(Western European letters and signs)"));
}

void take_latin1_only(QLineEdit& edit) {
  edit.setValidator(new Latin1Validator(&edit));
  QObject::connect(&edit, &QLineEdit::inputRejected, &edit, [&edit] { say_refused(edit); });
}

}  // namespace zol
