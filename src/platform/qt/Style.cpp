#include "platform/qt/Style.h"

#include "platform/qt/Look.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>

namespace {

constexpr int PressedPercent = 115; // darker than the button at rest
constexpr int WarningWidth = 2;     // pixels

void drawButton(QPainter &painter, const QStyleOption &option) {
  const QColor ground = option.palette.color(QPalette::Button);
  const bool pressed = option.state & (QStyle::State_Sunken | QStyle::State_On);
  painter.fillRect(option.rect, pressed ? ground.darker(PressedPercent) : ground);
  Look::drawFrame(painter, option);
}

// Fusion's circle has a line of its own that is too pale; this one lies upon it.
void drawCircle(QPainter &painter, const QStyleOption &option) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(option.palette.color(QPalette::Mid));
  painter.drawEllipse(QRectF(option.rect).adjusted(1, 1, -1, -1));
  painter.restore();
}

// Inside the frame of the focus, which stays to be seen.
void drawWarning(QPainter &painter, const QStyleOption &option, const QWidget *widget) {
  if (!widget || !Look::isWarned(widget))
    return;
  const int inset = option.state & QStyle::State_HasFocus ? Look::FocusWidth : 0;
  Look::drawFrame(painter, option.rect.adjusted(inset, inset, -inset, -inset),
                  option.palette.color(QPalette::BrightText), WarningWidth);
}

} // namespace

Style::Style() : QProxyStyle(QStringLiteral("Fusion")) {}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                          const QWidget *widget) const {
  switch (element) {
  case PE_Frame:
  case PE_FrameLineEdit:
    Look::drawFrame(*painter, *option);
    return drawWarning(*painter, *option, widget);
  case PE_PanelButtonCommand:
    return drawButton(*painter, *option);
  case PE_FrameFocusRect:
    if (!qobject_cast<const QPushButton *>(widget)) // has it in its frame
      Look::drawFrame(*painter, option->rect, option->palette.color(QPalette::Highlight), Look::FocusWidth);
    return;
  default:
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
  if (element == PE_IndicatorCheckBox)
    Look::drawFrame(*painter, option->rect, option->palette.color(QPalette::Mid));
  if (element == PE_IndicatorRadioButton)
    drawCircle(*painter, *option);
}

void Style::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                        const QWidget *widget) const {
  const auto *combo = qstyleoption_cast<const QStyleOptionComboBox *>(option);
  if (element != CE_ComboBoxLabel || !combo) {
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_PushButtonBevel || element == CE_CheckBox)
      drawWarning(*painter, *option, widget);
    return;
  }
  QStyleOptionComboBox elided = *combo;
  const int room = subControlRect(CC_ComboBox, combo, SC_ComboBoxEditField, widget).width() - 2;
  elided.currentText = combo->fontMetrics.elidedText(combo->currentText, Qt::ElideRight, room);
  QProxyStyle::drawControl(element, &elided, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                               const QWidget *widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (control != CC_ComboBox)
    return;
  Look::drawFrame(*painter, *option);
  drawWarning(*painter, *option, widget);
}

int Style::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget, QStyleHintReturn *data) const {
  return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
}

// A list shows its focus in its frame.
int Style::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const {
  if (metric == PM_DefaultFrameWidth && qobject_cast<const QAbstractItemView *>(widget))
    return Look::FocusWidth;
  return QProxyStyle::pixelMetric(metric, option, widget);
}
