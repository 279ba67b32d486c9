// The parts of LookStyle that draw.
#include <algorithm>

#include <QAbstractButton>
#include <QGroupBox>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

#include "shell/desktop/look/folding.h"
#include "shell/desktop/look/look_style.h"

namespace zol {
namespace {

constexpr double control_corner = 4;
constexpr double panel_corner = 6;
constexpr double focus_width = 2;

/// The picture is drawn with smooth edges, and leaves the painter as it was.
class Smoothly {
 public:
  explicit Smoothly(QPainter& painter) : painter_(painter) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
  }
  Smoothly(const Smoothly&) = delete;
  Smoothly& operator=(const Smoothly&) = delete;
  ~Smoothly() { painter_.restore(); }

 private:
  QPainter& painter_;
};

QRectF on_pixels(const QRectF& place) { return place.adjusted(0.5, 0.5, -0.5, -0.5); }

void draw_chevron(QPainter& painter, const QPointF& middle, double turned, const QColor& ink) {
  const Smoothly smooth(painter);
  painter.translate(middle);
  painter.rotate(turned);
  painter.setPen(QPen(ink, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(QPolygonF({QPointF(-4, -2), QPointF(0, 2), QPointF(4, -2)}));
}

QString rank_of(const QWidget* widget) { return widget == nullptr ? QString() : widget->property("look").toString(); }

}  // namespace

void LookStyle::draw_box(QPainter& painter, const QRectF& place, const QColor& ground, const QColor& edge) const {
  const Smoothly smooth(painter);
  painter.setPen(edge.alpha() == 0 ? QPen(Qt::NoPen) : QPen(edge, 1));
  painter.setBrush(ground);
  painter.drawRoundedRect(on_pixels(place), control_corner, control_corner);
}

void LookStyle::draw_focus(QPainter& painter, const QRectF& place, const QColor& ink) const {
  const Smoothly smooth(painter);
  painter.setPen(QPen(ink, focus_width));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(place.adjusted(1, 1, -1, -1), control_corner, control_corner);
}

/// What can only be read is text over a line.
void LookStyle::draw_field(const QStyleOption& option, QPainter& painter) const {
  const bool focus = option.state & State_HasFocus;
  if (option.state & State_ReadOnly) {
    const int thick = focus ? 2 : 1;
    painter.fillRect(QRect(option.rect.left(), option.rect.bottom() + 1 - thick, option.rect.width(), thick),
                     focus ? of("link") : of("hair"));
    return;
  }
  draw_box(painter, option.rect, of("field"), of("edge"));
  if (focus) draw_focus(painter, option.rect, of("link"));
}

void LookStyle::draw_button(const QStyleOption& option, QPainter& painter, const QWidget* widget) const {
  const QString rank = rank_of(widget);
  const bool pressed = option.state & (State_Sunken | State_On);
  const bool hovered = (option.state & State_MouseOver) && (option.state & State_Enabled);
  const bool focus = option.state & State_HasFocus;
  const bool bare = rank == QLatin1String("quiet") || (option.state & State_AutoRaise);
  if (rank == QLatin1String("primary")) {
    const QColor ground = of(pressed ? "accent_press" : hovered ? "accent_hover" : "accent");
    draw_box(painter, option.rect, ground, ground);
    if (focus) draw_focus(painter, option.rect, of("text"));
    return;
  }
  if (!bare || pressed || hovered) {
    draw_box(painter, option.rect,
             of(pressed   ? "button_press"
                : hovered ? "button_hover"
                          : "button"),
             of("button_edge"));
  }
  if (focus) draw_focus(painter, option.rect, of("link"));
}

void LookStyle::draw_button_text(const QStyleOption& option, QPainter& painter, const QWidget* widget) const {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  if (button == nullptr) return;
  const QString rank = rank_of(widget);
  QStyleOptionButton inked = *button;
  const auto group = option.state & State_Enabled ? QPalette::Active : QPalette::Disabled;
  QColor ink = option.palette.color(group, QPalette::ButtonText);
  if (rank == QLatin1String("primary")) ink = of("on_accent");
  if (rank == QLatin1String("quiet")) ink = of("link");
  if (option.state & State_Enabled) inked.palette.setColor(QPalette::ButtonText, ink);
  if (rank != QLatin1String("go")) return QProxyStyle::drawControl(CE_PushButtonLabel, &inked, &painter, widget);
  proxy()->drawItemText(&painter, option.rect.adjusted(8, 0, -8, 0),
                        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, inked.palette,
                        option.state & State_Enabled, button->text, QPalette::ButtonText);
  draw_chevron(painter, {option.rect.right() - 9.0, option.rect.center().y() + 0.5}, -90, of("muted"));
}

void LookStyle::draw_check(const QStyleOption& option, QPainter& painter, bool round) const {
  const Smoothly smooth(painter);
  const bool enabled = option.state & State_Enabled;
  const bool on = option.state & State_On;
  const bool hovered = option.state & State_MouseOver;
  const QRectF place = on_pixels(option.rect);
  const double corner = round ? place.width() / 2 : control_corner;
  const QColor accent = enabled ? of(hovered ? "accent_hover" : "accent") : of("disabled");
  painter.setPen(QPen(on ? accent : of(hovered ? "link" : "edge"), 1));
  painter.setBrush(on && !round ? accent : of("field"));
  painter.drawRoundedRect(place, corner, corner);
  if (!on) return;
  if (round) {
    painter.setPen(QPen(accent, 4.5));
    constexpr double ring = 2.25;
    painter.drawEllipse(place.adjusted(ring, ring, -ring, -ring));
    return;
  }
  painter.setPen(QPen(of("on_accent"), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPointF corner_at = place.topLeft();
  painter.drawPolyline(
      QPolygonF({corner_at + QPointF(3.5, 7.8), corner_at + QPointF(6.4, 10.6), corner_at + QPointF(11.5, 4.6)}));
}

/// A panel with its title inside; inside another one a line above and a muted title. One that folds has a chevron, and
/// tells what it holds while it is folded.
void LookStyle::draw_group(const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const {
  const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(&option);
  if (group == nullptr) return;
  const bool plain = rank_of(widget) == QLatin1String("plain");
  const bool inner = is_inner_group(widget);
  const Smoothly smooth(painter);
  if (inner && !plain) {
    painter.fillRect(QRect(option.rect.left(), option.rect.top(), option.rect.width(), 1), of("line"));
  } else if (!plain) {
    painter.setPen(QPen(of("line"), 1));
    painter.setBrush(of("panel"));
    painter.drawRoundedRect(on_pixels(option.rect), panel_corner, panel_corner);
  }
  if (group->text.isEmpty()) return;
  QRect place = proxy()->subControlRect(CC_GroupBox, &option, SC_GroupBoxLabel, widget);
  if (inner) place.setLeft(option.rect.left());
  const Fold* fold = fold_of(widget);
  if (fold != nullptr) {
    draw_chevron(painter, {place.left() + 4.0, place.center().y() + 0.5}, fold->folded() ? -90 : 0, of("muted"));
    place.setLeft(place.left() + 14);
    if (option.state & State_HasFocus) draw_focus(painter, option.rect, of("link"));
  }
  QFont font = painter.font();
  if (!inner) font.setWeight(QFont::DemiBold);
  painter.setFont(font);
  painter.setPen(of(inner ? "muted" : "text"));
  constexpr auto flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic;
  painter.drawText(place, int(flags), group->text);
  if (fold == nullptr || !fold->folded()) return;
  place.setLeft(place.left() + QFontMetrics(font).size(Qt::TextShowMnemonic, group->text).width() + 12);
  font.setWeight(QFont::Normal);
  painter.setFont(font);
  painter.setPen(of("muted"));
  painter.drawText(place, int(flags), QFontMetrics(font).elidedText(fold->summary(), Qt::ElideRight, place.width()));
}

/// Filled as a button, since nothing can be typed into it.
void LookStyle::draw_choice(const QStyleOptionComplex& option, QPainter& painter) const {
  const bool hovered = (option.state & State_MouseOver) && (option.state & State_Enabled);
  draw_box(painter, option.rect, of(hovered ? "button_hover" : "button"), of("edge"));
  if (option.state & State_HasFocus) draw_focus(painter, option.rect, of("link"));
  draw_chevron(painter, {option.rect.right() - 10.0, option.rect.center().y() + 0.5}, 0,
               of(option.state & State_Enabled ? "text" : "disabled"));
}

/// A thin bar, seen only while something runs; its room stays.
void LookStyle::draw_progress(const QStyleOption& option, QPainter& painter) const {
  const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(&option);
  if (bar == nullptr || bar->maximum <= bar->minimum || bar->progress <= bar->minimum) return;
  constexpr double thick = 6;
  const Smoothly smooth(painter);
  QRectF groove(bar->rect.left(), bar->rect.center().y() - thick / 2 + 0.5, bar->rect.width(), thick);
  painter.setPen(Qt::NoPen);
  painter.setBrush(of("button_press"));
  painter.drawRoundedRect(groove, thick / 2, thick / 2);
  groove.setWidth(groove.width() * (bar->progress - bar->minimum) / (double{1} * bar->maximum - bar->minimum));
  painter.setBrush(of("accent"));
  painter.drawRoundedRect(groove, thick / 2, thick / 2);
}

}  // namespace zol
