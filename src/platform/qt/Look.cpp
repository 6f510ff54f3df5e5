#include "platform/qt/Look.h"

#include "platform/Fonts.h"
#include "platform/qt/LineList.h"

#include <QApplication>
#include <QComboBox>
#include <QFontInfo>
#include <QFontMetrics>
#include <QFrame>
#include <QHelpEvent>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleOption>
#include <QToolTip>
#include <QTranslator>

#include <algorithm>
#include <cmath>

namespace {

constexpr qreal SmallestFont = 10.5;
constexpr qreal ControlHeight = 1.6; // of edits, buttons and combos, in lines

void setColors(QPalette &palette) {
  palette.setColor(QPalette::Window, QColor(0xF4F5F7));
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::AlternateBase, QColor(0xF4F5F7));
  palette.setColor(QPalette::Button, QColor(0xFBFBFC));
  palette.setColor(QPalette::ToolTipBase, QColor(0xFFFFF0));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
    palette.setColor(role, QColor(0x1C222B));
  palette.setColor(QPalette::PlaceholderText, QColor(0x5C6673));
  palette.setColor(QPalette::Highlight, QColor(0x1F5FA8));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, QColor(0x8A919C));
}

constexpr const char *Warned = "gewarnt";

/// Fusion, but for the frames of cards and lists: at 125 % it loses some of their lines; the chosen line of a combo
/// ends with "…" where it does not fit, and its popup scrolls; and a control may have a warning edge.
class Style : public QProxyStyle {
public:
  Style() : QProxyStyle(QStringLiteral("Fusion")) {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override {
    if (element == PE_Frame)
      Look::drawFrame(*painter, option->rect, QColor(0xBCC2CA));
    else
      QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_Frame || element == PE_PanelLineEdit)
      drawWarning(*painter, option->rect, widget);
  }
  int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                QStyleHintReturn *data) const override {
    return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
  }
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                          const QWidget *widget) const override {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox)
      drawWarning(*painter, option->rect, widget);
  }
  void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                   const QWidget *widget) const override {
    const auto *combo = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    if (element != CE_ComboBoxLabel || !combo) {
      QProxyStyle::drawControl(element, option, painter, widget);
      if (element == CE_PushButtonBevel || element == CE_CheckBox || element == CE_RadioButton)
        drawWarning(*painter, option->rect, widget);
      return;
    }
    QStyleOptionComboBox elided = *combo;
    const int room = subControlRect(CC_ComboBox, combo, SC_ComboBoxEditField, widget).width() - 2;
    elided.currentText = combo->fontMetrics.elidedText(combo->currentText, Qt::ElideRight, room);
    QProxyStyle::drawControl(element, &elided, painter, widget);
  }

private:
  static void drawWarning(QPainter &painter, const QRect &area, const QWidget *widget) {
    if (!widget || !widget->property(Warned).toBool())
      return;
    for (const int inset : {0, 1})
      Look::drawFrame(painter, area.adjusted(inset, inset, -inset, -inset), QColor(Look::WarningColor));
  }
};

// Where the desktop names no font of its own, "sans-serif" may well be a typewriter's.
QFont textFont() {
  QFont font = QApplication::font();
  if (QFontInfo(font).fixedPitch())
    font.setFamily(QStringLiteral("Liberation Sans"));
  font.setPointSizeF(std::max(font.pointSizeF(), SmallestFont));
  return font;
}

void scaleFont(QWidget *widget) {
  const int percent = widget->property("schriftProzent").toInt();
  if (percent == 0)
    return;
  QFont font = widget->font();
  font.setPointSizeF(QApplication::font().pointSizeF() * percent / 100);
  widget->setFont(font);
}

void setWidth(QWidget *widget) {
  const int digits = widget->property("zeichen").toInt();
  if (digits == 0)
    return;
  const QFontMetricsF metrics(widget->font());
  int width = int(std::ceil(metrics.horizontalAdvance(QLatin1Char('0')) * digits + metrics.height()));
  if (auto *list = qobject_cast<LineList *>(widget))
    return list->setGoodWidth(width);
  widget->setMinimumWidth(width);
  if (qobject_cast<QLineEdit *>(widget))
    widget->setMaximumWidth(width);
}

void setHeight(QWidget *widget) {
  if (qobject_cast<QLineEdit *>(widget) || qobject_cast<QPushButton *>(widget) || qobject_cast<QComboBox *>(widget))
    widget->setMinimumHeight(int(QFontMetrics(widget->font()).height() * ControlHeight));
}

void setQuiet(QWidget *widget) {
  if (!widget->property("leise").toBool())
    return;
  QPalette palette = widget->palette();
  palette.setColor(QPalette::WindowText, palette.color(QPalette::PlaceholderText));
  widget->setPalette(palette);
}

// A plain frame is a white card on the pale ground of the screen. The colour goes into the palette: a background role
// of Base would make the labels inside take their letters from another role than the one they are coloured by.
void setCard(QWidget *widget) {
  const auto *frame = qobject_cast<QFrame *>(widget);
  if (!frame || frame->metaObject() != &QFrame::staticMetaObject || frame->frameShape() != QFrame::StyledPanel)
    return;
  QPalette palette = widget->palette();
  palette.setColor(QPalette::Window, palette.color(QPalette::Base));
  widget->setPalette(palette);
  widget->setAutoFillBackground(true);
}

} // namespace

// The pictures lie in a static library; only a call makes the linker keep them. It must stand outside every namespace.
static void keepPictures() {
  Q_INIT_RESOURCE(assets);
}

void Look::apply(QApplication &application) {
  keepPictures();
  QApplication::setStyle(new Style);
  QPalette palette = QApplication::palette();
  setColors(palette);
  QApplication::setPalette(palette);
  substituteFonts();
  QApplication::setFont(textFont());
  auto *german = new QTranslator(&application);
  if (german->load(QStringLiteral("qtbase_de"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(german);
}

void Look::applyProperties(QWidget *screen) {
  for (auto *widget : screen->findChildren<QWidget *>()) {
    scaleFont(widget);
    setWidth(widget);
    setHeight(widget);
    setQuiet(widget);
    if (auto *label = qobject_cast<QLabel *>(widget))
      label->setTextFormat(Qt::PlainText); // a name may hold what looks like markup
    setCard(widget);
  }
}

// Filled areas cover at least one pixel at every scale; a drawn line may fall between the pixels.
void Look::drawFrame(QPainter &painter, const QRect &area, QColor color) {
  const QRectF r = area;
  painter.fillRect(QRectF(r.left(), r.top(), r.width(), 1), color);
  painter.fillRect(QRectF(r.left(), r.bottom() - 1, r.width(), 1), color);
  painter.fillRect(QRectF(r.left(), r.top(), 1, r.height()), color);
  painter.fillRect(QRectF(r.right() - 1, r.top(), 1, r.height()), color);
}

// Escaped, as a name may hold what looks like markup; a tool tip with markup breaks its lines.
void Look::showWhole(const QHelpEvent &event, const QString &text, QWidget *widget) {
  const QString markup = text.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("</p><p>"));
  QToolTip::showText(event.globalPos(), QStringLiteral("<p>%1</p>").arg(markup), widget);
}

void Look::setWarned(QWidget *control, bool warned) {
  if (control->property(Warned).toBool() == warned)
    return;
  control->setProperty(Warned, warned);
  control->update();
}

void Look::setGround(QWidget *field, QColor ground) {
  QPalette palette = field->palette();
  for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
    palette.setColor(role, ground);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(role, Qt::black);
  field->setPalette(palette);
  field->setAutoFillBackground(true);
}

void Look::resetGround(QWidget *field) {
  field->setPalette({});
}
