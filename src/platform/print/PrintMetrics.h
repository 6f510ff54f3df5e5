#pragma once

#include "platform/print/Recording.h"

#include <QFont>

// Measures of printed text that hang neither on the screen nor on a printer, so that pages break alike everywhere.
// Needs a QGuiApplication.

namespace PrintMetrics {

/// All printing is reckoned in dots of 1/1440 inch: 20 to the point, so that each font size is a whole number of them.
constexpr double DotsAPoint = 20, DotsAMillimetre = 1440 / 25.4;

/// The font with its size in dots.
QFont fontInDots(const PrintFont &font);
/// Millimetres.
double textWidth(const PrintFont &font, const QString &text);
/// From one line to the next, leading included; millimetres.
double lineHeight(const PrintFont &font);
/// From the top of the line to the base line; dots.
double ascentInDots(const PrintFont &font);
/// Width of a print zone, 14 average characters; millimetres.
double printZone(const PrintFont &font);

} // namespace PrintMetrics
