#pragma once

#include <QColor>
#include <QPalette>

class QApplication;
class QHelpEvent;
class QPainter;
class QRect;
class QString;
class QStyleOption;
class QWidget;

/// How VEXT looks, in one place: its own colours, fonts, and sizes that follow the font.
namespace Look {

constexpr int FocusWidth = 2; // pixels, to be seen from a metre

/// Style, palette, fonts and the German texts of Qt's own dialogs; once, before the first screen.
void apply(QApplication &application);
/// Sizes and captions by the dynamic properties of the controls; once for each screen.
void applyProperties(QWidget *screen);
/// One of four themes, the one that is like the desktop's palette: light, dark, or of high contrast.
/// Mid is the colour of all frames, BrightText that of warnings.
QPalette paletteFor(const QPalette &desktop);
/// How well one colour is seen on the other, 1 to 21.
qreal contrast(QColor one, QColor other);
/// A line of `width` pixels along the inner edge of an area.
void drawFrame(QPainter &painter, const QRect &area, QColor color, int width = 1);
/// The frame of a control, which tells whether it has the focus.
void drawFrame(QPainter &painter, const QStyleOption &control);
/// The tool tip of a text that is drawn with "…", which holds the whole; also one of several lines.
void showWhole(const QHelpEvent &event, const QString &text, QWidget *widget);
/// Gives a control a coloured edge that takes no room, or takes it away.
void setWarned(QWidget *control, bool warned);
bool isWarned(const QWidget *control);
/// Colours the ground of a field, with letters to be read on it whatever the theme.
void setGround(QWidget *field, QColor ground);
/// The ground of a field as the palette has it.
void resetGround(QWidget *field);

} // namespace Look
