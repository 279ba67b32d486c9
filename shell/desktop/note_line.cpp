#include "shell/desktop/note_line.h"

#include <algorithm>

#include <QAbstractScrollArea>
#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QPainter>
#include <QPixmap>

#include "shell/desktop/language/language.h"

namespace zol {
namespace {

constexpr int sign_size = 11;  // pixels

void draw_sign(QPainter& painter, const QRectF& place) {
  const QColor ground(255, 204, 0);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Qt::black, 1));
  painter.setBrush(ground);
  const QRectF inside = place.adjusted(0.5, 0.5, -0.5, -0.5);
  painter.drawPolygon(
      QPolygonF({QPointF(inside.center().x(), inside.top()), inside.bottomRight(), inside.bottomLeft()}));
  const double middle = inside.center().x();
  painter.drawLine(QPointF(middle, inside.top() + 3.5), QPointF(middle, inside.bottom() - 3));
  painter.drawPoint(QPointF(middle, inside.bottom() - 1.2));
}

}  // namespace

WordLine::WordLine(QWidget* parent) : QWidget(parent) { setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); }

void WordLine::set_words(const QString& words) {
  if (words == words_) return;
  words_ = words;
  setToolTip(words);
  setAccessibleName(words);
  update();
}

QSize WordLine::sizeHint() const { return {0, fontMetrics().height()}; }

QSize WordLine::minimumSizeHint() const { return sizeHint(); }

void WordLine::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.drawText(rect(), Qt::AlignVCenter, fontMetrics().elidedText(shown(words_), Qt::ElideRight, width()));
}

void NotedList::light(int row) {
  if (std::exchange(lit_, row) == row) return;
  const QModelIndex index = model()->index(row, 0);
  if (index.isValid() && !underMouse()) scrollTo(index);
  viewport()->update();
}

void NotedList::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  const QModelIndex index = model() == nullptr ? QModelIndex() : model()->index(lit_, 0);
  if (!index.isValid()) return;
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::Highlight));
  painter.drawRect(visualRect(index).adjusted(0, 0, -1, -1));
}

NoteLine::NoteLine(QWidget& view, std::function<void(int)> make_room, std::function<void()> clicked)
    : QWidget(&view), view_(view), make_room_(std::move(make_room)) {
  auto* row = new QHBoxLayout(this);
  constexpr int margin = 4;
  row->setContentsMargins(margin, 0, 0, 0);
  row->setSpacing(margin);
  row->addWidget(&line_, 1);
  row->addWidget(&button_);
  button_.setText(tr("Draw again"));
  button_.setToolTip(tr("Makes it again for the present crystal and settings"));
  button_.setAutoRaise(false);
  setCursor(Qt::ArrowCursor);
  connect(&button_, &QToolButton::clicked, this, std::move(clicked));
  view.installEventFilter(this);
  if (auto* list = qobject_cast<QAbstractScrollArea*>(&view)) list->viewport()->installEventFilter(this);
  hide();
}

void NoteLine::set_note(const QString& words, bool with_button) {
  line_.set_words(words);
  button_.setVisible(with_button);
  setVisible(!words.isEmpty());
  make_room_(words.isEmpty() ? 0 : sizeHint().height());
  place();
}

void NoteLine::place() {
  const auto* list = qobject_cast<QAbstractScrollArea*>(&view_);
  const int border = list == nullptr ? 0 : list->frameWidth();
  setGeometry(border, border, list == nullptr ? view_.width() : list->viewport()->width(), sizeHint().height());
  raise();
}

bool NoteLine::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) place();
  return QWidget::eventFilter(watched, event);
}

void NoteLine::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Window));
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawLine(rect().bottomLeft(), rect().bottomRight());
}

WarningSign::WarningSign(QWidget& at) : QWidget(at.parentWidget()), at_(at) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  resize(sign_size, sign_size);
  at.installEventFilter(this);
  place();
}

/// On the corner, so that it hides no text.
void WarningSign::place() {
  constexpr int inside = 5;
  const QPoint corner = at_.geometry().topRight() + QPoint(1 - inside, inside - sign_size);
  move(std::min(corner.x(), parentWidget()->width() - sign_size), std::max(corner.y(), 0));
  setVisible(!at_.isHidden());
  raise();
}

bool WarningSign::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::Resize:
    case QEvent::Move:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
      place();
      break;
    default:
      break;
  }
  return QWidget::eventFilter(watched, event);
}

void WarningSign::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  draw_sign(painter, rect());
}

QIcon warning_icon() {
  QPixmap picture(sign_size, sign_size);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  draw_sign(painter, picture.rect());
  return {picture};
}

}  // namespace zol
