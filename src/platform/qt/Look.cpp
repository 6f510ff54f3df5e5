#include "platform/qt/Look.h"

#include "platform/Fonts.h"
#include "platform/qt/LineList.h"
#include "platform/qt/Style.h"

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
#include <QPushButton>
#include <QStyleOption>
#include <QToolTip>
#include <QTranslator>

#include <algorithm>
#include <cmath>

namespace {

constexpr qreal SmallestFont = 10.5;
constexpr qreal ControlHeight = 1.6; // of edits, buttons and combos, in lines
constexpr qreal HighContrast = 20;   // of at most 21
constexpr qreal Visible = 3;
constexpr const char *Warned = "gewarnt";

/// The colours of one theme.
struct Theme {
  QRgb window, base, button, text, quiet, disabled, frame, highlight, highlightedText, warning;
};

constexpr Theme Light{0xF4F5F7, 0xFFFFFF, 0xFBFBFC, 0x1C222B, 0x5C6673,
                      0x646C79, 0x848C98, 0x1F5FA8, 0xFFFFFF, 0xB85C00};
constexpr Theme Dark{0x1E2227, 0x272C33, 0x313740, 0xE8EBEF, 0xAEB7C2,
                     0x9AA4B0, 0x808B98, 0x7DB8F5, 0x10151B, 0xFFA53D};
constexpr Theme BlackOnWhite{0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0x000000, 0x000000,
                             0x404040, 0x000000, 0x003C9E, 0xFFFFFF, 0xA04800};
constexpr Theme WhiteOnBlack{0x000000, 0x000000, 0x000000, 0xFFFFFF, 0xFFFFFF,
                             0xC0C0C0, 0xFFFFFF, 0xFFE000, 0x000000, 0xFF9A2E};

// A desktop with letters of the purest black and white wants the highest contrast.
const Theme &themeFor(const QPalette &desktop) {
  const QColor ground = desktop.color(QPalette::Active, QPalette::Window);
  const QColor letters = desktop.color(QPalette::Active, QPalette::WindowText);
  const bool dark = ground.lightness() < letters.lightness();
  if (Look::contrast(ground, letters) >= HighContrast)
    return dark ? WhiteOnBlack : BlackOnWhite;
  return dark ? Dark : Light;
}

QColor lettersOn(QColor ground) {
  return Look::contrast(ground, Qt::white) > Look::contrast(ground, Qt::black) ? Qt::white : Qt::black;
}

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
  QApplication::setPalette(paletteFor(QApplication::palette()));
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

QPalette Look::paletteFor(const QPalette &desktop) {
  const Theme &theme = themeFor(desktop);
  QPalette palette{QColor(theme.button), QColor(theme.window)};
  palette.setColor(QPalette::Base, QColor(theme.base));
  palette.setColor(QPalette::AlternateBase, QColor(theme.window));
  palette.setColor(QPalette::ToolTipBase, QColor(theme.base));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
    palette.setColor(role, QColor(theme.text));
  palette.setColor(QPalette::PlaceholderText, QColor(theme.quiet));
  palette.setColor(QPalette::Mid, QColor(theme.frame));
  palette.setColor(QPalette::Highlight, QColor(theme.highlight));
  palette.setColor(QPalette::HighlightedText, QColor(theme.highlightedText));
  palette.setColor(QPalette::Link, QColor(theme.highlight));
  palette.setColor(QPalette::BrightText, QColor(theme.warning));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, QColor(theme.disabled));
  return palette;
}

qreal Look::contrast(QColor one, QColor other) {
  const auto linear = [](qreal part) { return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
  const auto brightness = [linear](QColor c) {
    return 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF());
  };
  const qreal first = brightness(one), second = brightness(other);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

// Filled areas cover at least one pixel at every scale; a drawn line may fall between the pixels.
void Look::drawFrame(QPainter &painter, const QRect &area, QColor color, int width) {
  const QRectF r = area;
  painter.fillRect(QRectF(r.left(), r.top(), r.width(), width), color);
  painter.fillRect(QRectF(r.left(), r.bottom() - width, r.width(), width), color);
  painter.fillRect(QRectF(r.left(), r.top(), width, r.height()), color);
  painter.fillRect(QRectF(r.right() - width, r.top(), width, r.height()), color);
}

void Look::drawFrame(QPainter &painter, const QStyleOption &control) {
  const bool focus = control.state & QStyle::State_HasFocus;
  const QColor color = control.palette.color(focus ? QPalette::Highlight : QPalette::Mid);
  drawFrame(painter, control.rect, color, focus ? FocusWidth : 1);
}

// Escaped, as a name may hold what looks like markup; a tool tip with markup breaks its lines.
void Look::showWhole(const QHelpEvent &event, const QString &text, QWidget *widget) {
  const QString markup = text.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("</p><p>"));
  QToolTip::showText(event.globalPos(), QStringLiteral("<p>%1</p>").arg(markup), widget);
}

bool Look::isWarned(const QWidget *control) {
  return control->property(Warned).toBool();
}

void Look::setWarned(QWidget *control, bool warned) {
  if (isWarned(control) == warned)
    return;
  control->setProperty(Warned, warned);
  control->update();
}

// What the theme shows focus, selection and warnings in may be too pale on this ground.
void Look::setGround(QWidget *field, QColor ground) {
  const QColor letters = lettersOn(ground);
  QPalette palette = QApplication::palette();
  for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
    palette.setColor(role, ground);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(role, letters);
  for (const auto role : {QPalette::Highlight, QPalette::BrightText})
    if (contrast(palette.color(role), ground) < Visible)
      palette.setColor(role, letters);
  palette.setColor(QPalette::HighlightedText, lettersOn(palette.color(QPalette::Highlight)));
  field->setPalette(palette);
  field->setAutoFillBackground(true);
}

void Look::resetGround(QWidget *field) {
  field->setPalette({});
}
