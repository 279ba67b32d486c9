#include "shell/desktop/file_drops.h"

#include <algorithm>

#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include "shell/desktop/qt_text.h"

namespace zol {
namespace {

class DropFilter : public QObject {
 public:
  DropFilter(Window& window, QWidget& widget, UserEvents& events) : QObject(&widget), window_(window), events_(events) {
    widget.setAcceptDrops(true);
    for (auto* edit : widget.findChildren<QLineEdit*>())
      edit->setAcceptDrops(false);  // they would take the path as text
    widget.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    const bool dropped = event->type() == QEvent::Drop;
    if (!dropped && event->type() != QEvent::DragEnter) return false;
    auto& drag = dynamic_cast<QDropEvent&>(*event);
    const std::string path = file_of(drag);
    const auto taken = std::find_if(window_.file_drops.begin(), window_.file_drops.end(), [&path](const auto& drop) {
      return to_qt(path).endsWith(QString::fromStdString(drop.ending), Qt::CaseInsensitive);
    });
    if (taken == window_.file_drops.end()) return false;
    drag.setDropAction(Qt::CopyAction);
    drag.accept();
    if (dropped) take(*taken, path);
    return true;
  }

 private:
  void take(const FileDrop& drop, const std::string& name) {
    UserEvent event{name + " was dropped on " + window_.name(),
                    script_line({"answer", name}) + '\n' + script_line({"click", drop.item->path()}),
                    [&drop, name] { drop.dialog->answering(name, [&drop] { drop.item->click(); }); }};
    events_.act(window_, std::move(event));
  }

  /// The path of a single file; empty for anything else. Its bytes as they are: they need not be UTF-8, which the texts
  /// of Qt would make of them.
  static std::string file_of(const QDropEvent& drag) {
    const auto urls = drag.mimeData()->urls();
    if (urls.size() != 1 || !urls.front().isLocalFile()) return "";
    return QByteArray::fromPercentEncoding(urls.front().path(QUrl::FullyEncoded).toLatin1()).toStdString();
  }

  Window& window_;
  UserEvents& events_;
};

}  // namespace

void accept_file_drops(Window& window, QWidget& widget, UserEvents& events) {
  if (!window.file_drops.empty()) new DropFilter(window, widget, events);  // the widget owns it
}

}  // namespace zol
