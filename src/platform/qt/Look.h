#pragma once

#include <QColor>

class QApplication;
class QHelpEvent;
class QPainter;
class QRect;
class QString;
class QWidget;

/// How VEXT looks, in one place: its own light palette on every desktop, fonts, and sizes that follow the font.
namespace Look {

/// Of the sign in the hint line and the edge of the control that a hint is about (0xRRGGBB).
constexpr unsigned WarningColor = 0xB85C00;

/// Style, palette, fonts and the German texts of Qt's own dialogs; once, before the first screen.
void apply(QApplication &application);
/// Sizes and captions by the dynamic properties of the controls; once for each screen.
void applyProperties(QWidget *screen);
/// A line of one pixel along the inner edge of an area.
void drawFrame(QPainter &painter, const QRect &area, QColor color);
/// The tool tip of a text that is drawn with "…", which holds the whole; also one of several lines.
void showWhole(const QHelpEvent &event, const QString &text, QWidget *widget);
/// Gives a control a coloured edge that takes no room, or takes it away.
void setWarned(QWidget *control, bool warned);
/// Colours the ground of a field, with dark letters whatever the desktop's theme.
void setGround(QWidget *field, QColor ground);
/// The ground of a field as the palette has it.
void resetGround(QWidget *field);

} // namespace Look
