#include "shell/desktop/guarded_application.h"

#include <QEvent>
#include <QLabel>

namespace zol {

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
  if (swallow_ && swallow_(receiver, event)) return true;
  if (event->type() == QEvent::Polish) {
    if (auto* label = qobject_cast<QLabel*>(receiver)) label->setTextFormat(Qt::PlainText);
  }
  try {
    return QApplication::notify(receiver, event);
  } catch (...) {
    if (!failed_) throw;
    failed_(std::current_exception());
    return false;
  }
}

}  // namespace zol
