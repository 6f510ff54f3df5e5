#pragma once

#include <QProxyStyle>

/// Fusion, but for what must be seen well: the frames of cards, lists, fields and buttons, which keep all their lines
/// at every scale, and the focus, a frame of two pixels in the colour of the selection. The chosen line of a combo ends
/// with "…" where it does not fit, and its popup scrolls. A control may have a warning edge.
class Style : public QProxyStyle {
public:
  Style();

  void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
  void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                   const QWidget *widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                          const QWidget *widget) const override;
  int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                QStyleHintReturn *data) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;
};
