// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

#include "shell/toolkit/drawing/scale.h"

namespace toolkit {

/// The host's style of the period, with the sizes of its parts by the zoom.
class ZoomedStyle : public QProxyStyle {
 public:
  ZoomedStyle() : QProxyStyle(QStringLiteral("Windows")) {}

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    const int pixels = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
      case PM_ScrollBarExtent:
      case PM_ScrollBarSliderMin:
      case PM_ExclusiveIndicatorWidth:
      case PM_ExclusiveIndicatorHeight:
      case PM_RadioButtonLabelSpacing:
      case PM_SmallIconSize:
      case PM_ListViewIconSize:
      case PM_ButtonIconSize:
      case PM_ButtonMargin:
        return Zoomed(pixels);
      default:
        return pixels;
    }
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* more) const override {
    // The light shadow under a disabled text would be a second text where edges are black.
    if (hint == SH_EtchDisabledText && QApplication::palette().color(QPalette::Light) == Qt::black)
      return 0;
    return QProxyStyle::styleHint(hint, option, widget, more);
  }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    if (element != PE_IndicatorRadioButton || Zoom() == 1)
      return QProxyStyle::drawPrimitive(element, option, painter, widget);
    // The host draws its ring of one size.
    painter->save();
    painter->translate(option->rect.topLeft());
    painter->scale(Zoom(), Zoom());
    QStyleOption plain = *option;
    plain.rect = QRect(QPoint(), (QSizeF(option->rect.size()) / Zoom()).toSize());
    QProxyStyle::drawPrimitive(element, &plain, painter, widget);
    painter->restore();
  }
};

}  // namespace toolkit
