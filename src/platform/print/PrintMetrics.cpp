#include "platform/print/PrintMetrics.h"

#include "platform/Fonts.h"

#include <QFontMetricsF>

#include <cmath>

namespace PrintMetrics {

QFont fontInDots(const PrintFont &font) {
  static const bool substituted = (substituteFonts(), true);
  Q_UNUSED(substituted);
  QFont result(font.name);
  result.setPixelSize(int(std::lround(font.size * DotsAPoint)));
  result.setBold(font.bold);
  result.setItalic(font.italic);
  result.setHintingPreference(QFont::PreferNoHinting);
  return result;
}

double textWidth(const PrintFont &font, const QString &text) {
  return QFontMetricsF(fontInDots(font)).horizontalAdvance(text) / DotsAMillimetre;
}

double lineHeight(const PrintFont &font) {
  return QFontMetricsF(fontInDots(font)).lineSpacing() / DotsAMillimetre;
}

double ascentInDots(const PrintFont &font) {
  return QFontMetricsF(fontInDots(font)).ascent();
}

// The average width comes from Arial itself: its substitute tells another one.
double printZone(const PrintFont &font) {
  constexpr double averageCharacter = 0.441, pointsAMillimetre = 72 / 25.4;
  return 14 * averageCharacter * font.size / pointsAMillimetre;
}

} // namespace PrintMetrics
