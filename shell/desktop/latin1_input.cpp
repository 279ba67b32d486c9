#include "shell/desktop/latin1_input.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QToolTip>
#include <QValidator>

#include "shell/desktop/qt_text.h"

namespace zol {
namespace {

class Latin1Validator : public QValidator {
 public:
  using QValidator::QValidator;
  State validate(QString& input, int& /*cursor*/) const override { return is_latin1(input) ? Acceptable : Invalid; }
};

}  // namespace

void say_refused(QWidget& widget) {
  QToolTip::showText(widget.mapToGlobal(QPoint(0, widget.height())),
                     QCoreApplication::translate("zol",
                                                 "Not taken: characters here and in the files are of Latin-1 "
                                                 "(Western European letters and signs)"),
                     &widget);
}

void take_latin1_only(QLineEdit& edit) {
  edit.setValidator(new Latin1Validator(&edit));
  QObject::connect(&edit, &QLineEdit::inputRejected, &edit, [&edit] { say_refused(edit); });
}

}  // namespace zol
