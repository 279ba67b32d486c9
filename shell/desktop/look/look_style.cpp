#include "shell/desktop/look/look_style.h"

#include <algorithm>

#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>
#include <QToolButton>

#include "shell/desktop/look/folding.h"

namespace zol {
namespace {

constexpr int row = 24;  // a box, a button, a title
constexpr int step_width = 28;
constexpr int indicator = 16;
constexpr int arrow_room = 12;  // of a button that opens a window
constexpr int beside_text = 8;  // of a button, each side

QString rank_of(const QWidget* widget) { return widget == nullptr ? QString() : widget->property("look").toString(); }

/// A group in a group, or what it folds.
bool is_inner(const QWidget* widget) {
  if (is_fold_body(widget)) return is_inner_group(widget->parentWidget());
  return qobject_cast<const QGroupBox*>(widget) != nullptr && is_inner_group(widget);
}

bool has_title(const QWidget* widget) {
  const auto* group = qobject_cast<const QGroupBox*>(widget);
  return group != nullptr && !group->title().isEmpty();
}

}  // namespace

bool is_inner_group(const QWidget* widget) {
  for (const QWidget* above = widget == nullptr ? nullptr : widget->parentWidget(); above != nullptr;
       above = above->parentWidget()) {
    if (qobject_cast<const QGroupBox*>(above) != nullptr) return true;
  }
  return false;
}

LookStyle::LookStyle(Shade shade, bool compact)
    : QProxyStyle(QStringLiteral("Fusion")), shade_(shade), gap_(compact ? 4 : 8) {}

void LookStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (qobject_cast<QAbstractButton*>(widget) != nullptr) widget->setAttribute(Qt::WA_Hover);
  if (rank_of(widget) != QLatin1String("primary")) return;
  QFont font = widget->font();
  font.setWeight(QFont::DemiBold);
  widget->setFont(font);
}

void LookStyle::unpolish(QWidget* widget) {
  if (rank_of(widget) == QLatin1String("primary")) widget->setFont(QFont());
  QProxyStyle::unpolish(widget);
}

int LookStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  switch (metric) {
    case PM_LayoutTopMargin:
      return has_title(widget) || is_fold_body(widget) ? 0 : gap_;
    case PM_LayoutLeftMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
      return is_inner(widget) ? 0 : gap_;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
      return 4;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
      return indicator;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
      return 0;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

int LookStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* result) const {
  constexpr int tip_delay_ms = 500;
  switch (hint) {
    case SH_ToolTip_WakeUpDelay:
      return tip_delay_ms;
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
      return 0;
    default:
      return QProxyStyle::styleHint(hint, option, widget, result);
  }
}

QSize LookStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                  const QWidget* widget) const {
  QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  switch (type) {
    case CT_PushButton:
      size = QSize(contents.width() + 2 * beside_text, std::max(row, contents.height() + 4));
      if (rank_of(widget) == QLatin1String("go")) size.rwidth() += arrow_room;
      if (rank_of(widget) == QLatin1String("step")) size.setWidth(std::max(step_width, contents.width() + 8));
      break;
    case CT_ToolButton:
    case CT_LineEdit:
    case CT_ComboBox:
    case CT_CheckBox:
    case CT_RadioButton:
      size.setHeight(std::max(row, size.height()));
      break;
    case CT_GroupBox:
      if (const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option); group != nullptr) {
        QFont bold = widget == nullptr ? QFont() : widget->font();
        bold.setWeight(QFont::DemiBold);
        const int title = QFontMetrics(bold).size(Qt::TextShowMnemonic, group->text).width();
        size.setWidth(std::max(size.width(), title + 4 * gap_));
      }
      break;
    default:
      break;
  }
  return size;
}

QRect LookStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                const QWidget* widget) const {
  const QRect whole = option->rect;
  if (control == CC_GroupBox) {
    const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    const int title = group == nullptr || group->text.isEmpty() ? 0 : std::max(row, option->fontMetrics.height() + 6);
    const int edge = rank_of(widget) == QLatin1String("plain") ? -gap_ : 0;
    if (part == SC_GroupBoxContents) return whole.adjusted(edge, title + edge, -edge, -edge);
    if (part == SC_GroupBoxFrame) return whole;
    if (part == SC_GroupBoxLabel) return {whole.left() + gap_, whole.top(), whole.width() - 2 * gap_, title};
  }
  if (control == CC_ComboBox) {
    constexpr int arrow = 20;
    if (part == SC_ComboBoxEditField) return whole.adjusted(4, 2, -arrow, -2);
    if (part == SC_ComboBoxArrow) return {whole.right() - arrow, whole.top(), arrow, whole.height()};
  }
  return QProxyStyle::subControlRect(control, option, part, widget);
}

void LookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
  switch (element) {
    case PE_PanelLineEdit:
      if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
          frame != nullptr && frame->lineWidth > 0) {
        return draw_field(*option, *painter);
      }
      return;
    case PE_FrameLineEdit:
      return;
    case PE_PanelButtonCommand:
    case PE_PanelButtonTool:
      return draw_button(*option, *painter, widget);
    case PE_FrameFocusRect:
      if (qobject_cast<const QAbstractButton*>(widget) != nullptr &&
          qobject_cast<const QPushButton*>(widget) == nullptr) {
        draw_focus(*painter, option->rect, of("link"));
      }
      return;
    case PE_IndicatorCheckBox:
      return draw_check(*option, *painter, false);
    case PE_IndicatorRadioButton:
      return draw_check(*option, *painter, true);
    case PE_Frame:
      if (qobject_cast<const QLabel*>(widget) != nullptr) {  // a result: as a box that can only be read
        painter->fillRect(option->rect.left(), option->rect.bottom(), option->rect.width(), 1, of("hair"));
        return;
      }
      draw_box(*painter, option->rect, Qt::transparent, of("hair"));
      if (option->state & State_HasFocus) draw_focus(*painter, option->rect, of("link"));
      return;
    default:
      return QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void LookStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
  if (element == CE_PushButtonLabel) return draw_button_text(*option, *painter, widget);
  if (element == CE_ProgressBarGroove || element == CE_ProgressBarLabel) return;
  if (element == CE_ProgressBarContents) return draw_progress(*option, *painter);
  QProxyStyle::drawControl(element, option, painter, widget);
}

void LookStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                   const QWidget* widget) const {
  if (control == CC_GroupBox) return draw_group(*option, *painter, widget);
  if (control == CC_ComboBox) return draw_choice(*option, *painter);
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

}  // namespace zol
