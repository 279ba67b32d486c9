#include "shell/desktop/look/folding.h"

#include <algorithm>

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMouseEvent>
#include <QSettings>
#include <QVBoxLayout>

#include "shell/desktop/look/look.h"

namespace zol {
namespace {

constexpr auto body_mark = "foldBody";

/// The first of a group's controls that Tab reaches.
QWidget* first_stop(const QWidget& group) {
  for (QWidget* next = group.nextInFocusChain(); next != &group; next = next->nextInFocusChain()) {
    if (group.isAncestorOf(next) && (next->focusPolicy() & Qt::TabFocus)) return next;
  }
  return nullptr;
}

/// Tab comes to the title, then to what the group holds.
void put_before_its_controls(QGroupBox& group) {
  group.setFocusPolicy(Qt::TabFocus);
  QWidget* first = first_stop(group);
  if (first == nullptr) return;
  QWidget* before = first->previousInFocusChain();
  if (before == &group) return;
  QWidget::setTabOrder(before, &group);
  QWidget::setTabOrder(&group, first);
}

/// The layout that holds a widget itself, and where.
std::pair<QBoxLayout*, int> place_of(const QWidget& host, QWidget& widget) {
  for (auto* layout : host.findChildren<QBoxLayout*>()) {
    if (const int index = layout->indexOf(&widget); index >= 0) return {layout, index};
  }
  return {nullptr, -1};
}

}  // namespace

Fold::Fold(QGroupBox& group, QString key) : QObject(&group), group_(group), body_(new QWidget), key_(std::move(key)) {
  body_->setProperty(body_mark, true);
  body_->setLayout(group.layout());
  auto* around = new QVBoxLayout(&group);
  around->setContentsMargins(0, 0, 0, 0);
  around->addWidget(body_);
  put_before_its_controls(group);
  group.installEventFilter(this);
  const QVariant kept = look_settings().value(key_);
  if (kept.isValid()) chosen_ = kept.toBool();
  connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* /*from*/, const QWidget* to) {
    if (!revealed_ || to == nullptr || to == &group_ || group_.isAncestorOf(to)) return;
    revealed_ = false;
    show(chosen_.value_or(by_itself_));
  });
  show(chosen_.value_or(false));
}

QString Fold::summary() const {
  QStringList words;
  for (const QObject* child : body_->findChildren<QObject*>()) {
    const auto* edit = qobject_cast<const QLineEdit*>(child);
    const auto* label = qobject_cast<const QLabel*>(child);
    const auto* choice = qobject_cast<const QAbstractButton*>(child);
    QString text;
    if (edit != nullptr) text = edit->text();
    if (label != nullptr && !label->objectName().isEmpty()) text = label->text();
    if (choice != nullptr && choice->isChecked()) text = choice->text().remove(u'&');
    if (!text.trimmed().isEmpty()) words += text.trimmed();
  }
  return words.join(QStringLiteral("   "));
}

void Fold::fold_by_itself(bool folded) {
  by_itself_ = folded;
  if (!chosen_) show(folded);
}

void Fold::reveal() {
  if (!folded_) return;
  revealed_ = true;
  show(false);
}

void Fold::toggle() {
  chosen_ = !folded_;
  revealed_ = false;
  look_settings().setValue(key_, *chosen_);
  show(*chosen_);
}

void Fold::show(bool folded) {
  folded_ = folded;
  body_->setVisible(!folded);
  group_.setSizePolicy(group_.sizePolicy().horizontalPolicy(), folded ? QSizePolicy::Fixed : QSizePolicy::Preferred);
  if (const auto [layout, index] = place_of(*group_.parentWidget(), group_); layout != nullptr) {
    layout->setAlignment(&group_, folded ? Qt::AlignTop : Qt::Alignment());
    if (layout->stretch(index) > 0) stretch_ = layout->stretch(index);
    layout->setStretch(index, folded ? 0 : stretch_);
  }
  group_.setAccessibleDescription(folded ? QObject::tr("folded; Space opens it") : QString());
  group_.update();
}

bool Fold::eventFilter(QObject* watched, QEvent* event) {
  const int title = group_.contentsMargins().top();
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      if (const auto* press = dynamic_cast<QMouseEvent*>(event);
          press != nullptr && press->button() == Qt::LeftButton && press->position().y() < title) {
        toggle();
        return true;
      }
      break;
    case QEvent::KeyPress:
      if (const auto* key = dynamic_cast<QKeyEvent*>(event); key != nullptr && key->key() == Qt::Key_Space) {
        toggle();
        return true;
      }
      break;
    case QEvent::FocusIn:
      reveal();
      [[fallthrough]];
    case QEvent::FocusOut:
      group_.update();
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

Fold* fold_of(const QWidget* group) {
  if (group == nullptr) return nullptr;
  return dynamic_cast<Fold*>(group->findChild<QObject*>(QStringLiteral("fold"), Qt::FindDirectChildrenOnly));
}

bool is_fold_body(const QWidget* widget) { return widget != nullptr && widget->property(body_mark).toBool(); }

void reveal(QWidget& widget) {
  for (QWidget* above = widget.parentWidget(); above != nullptr; above = above->parentWidget()) {
    if (Fold* fold = fold_of(above)) fold->reveal();
  }
}

Breakpoint::Breakpoint(QWidget& host, int width) : QObject(&host), host_(host), asked_(width) {
  for (auto* group : host.findChildren<QGroupBox*>()) {
    auto* narrow = host.findChild<QBoxLayout*>(group->property("narrowInto").toString());
    const auto [wide, index] = place_of(host, *group);
    if (narrow != nullptr && wide != nullptr && !narrow->objectName().isEmpty()) {
      movers_.push_back({group, wide, index, narrow});
    }
  }
  measure();
  host.installEventFilter(this);
}

/// Both forms are tried, the wide one last.
void Breakpoint::measure() {
  turn(true);
  narrow_width_ = host_.layout()->totalMinimumSize().width();
  turn(false);
  width_ = std::max(asked_, host_.layout()->totalMinimumSize().width());
  take_minimum();
}

void Breakpoint::turn(bool narrow) {
  turning_ = true;
  narrow_ = narrow;
  for (auto* layout : host_.findChildren<QBoxLayout*>()) {
    const QString way = layout->property("whenNarrow").toString();
    if (way.isEmpty()) continue;
    const bool row = (way == QLatin1String("row")) == narrow;
    layout->setDirection(row ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  }
  move_groups(narrow);
  for (auto* group : host_.findChildren<QGroupBox*>()) {
    const bool folds = group->property("folds").toString() == QLatin1String("narrow");
    if (Fold* fold = fold_of(group); fold != nullptr && folds) fold->fold_by_itself(narrow);
  }
  // From the innermost to the outermost: each keeps what it knows of those inside.
  auto layouts = host_.findChildren<QLayout*>();
  for (auto* layout : layouts) layout->invalidate();
  std::reverse(layouts.begin(), layouts.end());
  for (auto* layout : layouts) layout->activate();
  turning_ = false;
}

/// The order of Tab stays.
void Breakpoint::move_groups(bool narrow) {
  for (const Mover& mover : movers_) {
    QBoxLayout& from = narrow ? *mover.wide : *mover.narrow;
    if (from.indexOf(mover.group) < 0) continue;
    from.removeWidget(mover.group);
    narrow ? mover.narrow->addWidget(mover.group) : mover.wide->insertWidget(mover.index, mover.group);
  }
}

void Breakpoint::take_minimum() {
  const QSize least = host_.layout()->totalMinimumSize();
  const QSize wanted(std::min(narrow_width_, least.width()), least.height());
  if (host_.minimumSize() != wanted) host_.setMinimumSize(wanted);
}

bool Breakpoint::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && !turning_) {
    const bool narrow = host_.width() < width_;
    if (narrow != narrow_) {
      turn(narrow);
      take_minimum();
    }
  } else if (event->type() == QEvent::LayoutRequest && !turning_) {
    host_.layout()->activate();  // nested rows know of what has changed in them only by this
    take_minimum();
  } else if (event->type() == QEvent::LanguageChange) {
    measure();
    if (host_.width() < width_) turn(true);
    take_minimum();
  }
  return QObject::eventFilter(watched, event);
}

void offer_folding(QMainWindow& window) {
  for (auto* group : window.findChildren<QGroupBox*>()) {
    if (!group->property("folds").isValid() || group->layout() == nullptr) continue;
    auto* fold = new Fold(*group, QStringLiteral("folded/%1/%2").arg(window.objectName(), group->title()));
    fold->setObjectName(QStringLiteral("fold"));
  }
  QWidget* host = window.centralWidget();
  const QVariant width = host == nullptr ? QVariant() : host->property("breakpoint");
  if (width.isValid()) new Breakpoint(*host, width.toInt());
}

}  // namespace zol
