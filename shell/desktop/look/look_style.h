// How controls are drawn: a style of our own on Qt's Fusion. Sizes in pixels at scale 1, on a grid of 4.
//
// What a control is for is in its layout as the property `look`: a button is "primary" (computes; one a window),
// "quiet" (a link), "go" (opens a window, its text at the left) or "step" (narrow); a group is "plain" without a title.
#pragma once

#include <QProxyStyle>

#include "shell/desktop/look/colours.h"

namespace zol {

[[nodiscard]] inline QColor to_colour(std::string_view name, Shade shade) { return {QRgb(colour(name, shade))}; }

[[nodiscard]] QPalette palette_of(Shade shade);

[[nodiscard]] bool is_inner_group(const QWidget* widget);  ///< inside another group

class LookStyle : public QProxyStyle {
 public:
  /// @param compact  less room between controls, for screens of few lines
  LookStyle(Shade shade, bool compact);

  void polish(QWidget* widget) override;
  void unpolish(QWidget* widget) override;
  using QProxyStyle::polish;
  using QProxyStyle::unpolish;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;

 private:
  [[nodiscard]] QColor of(std::string_view name) const { return to_colour(name, shade_); }
  void draw_box(QPainter& painter, const QRectF& place, const QColor& ground, const QColor& edge) const;
  void draw_focus(QPainter& painter, const QRectF& place, const QColor& ink) const;
  void draw_field(const QStyleOption& option, QPainter& painter) const;
  void draw_button(const QStyleOption& option, QPainter& painter, const QWidget* widget) const;
  void draw_button_text(const QStyleOption& option, QPainter& painter, const QWidget* widget) const;
  void draw_check(const QStyleOption& option, QPainter& painter, bool round) const;
  void draw_group(const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const;
  void draw_choice(const QStyleOptionComplex& option, QPainter& painter) const;
  void draw_progress(const QStyleOption& option, QPainter& painter) const;

  Shade shade_;
  int gap_;  ///< around a window and inside a group
};

}  // namespace zol
