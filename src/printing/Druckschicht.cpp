#include "printing/Druckschicht.h"

#include "platform/Numbers.h"
#include "platform/print/PictureFile.h"
#include "platform/print/PrintMetrics.h"
#include "platform/print/Recording.h"

#include <algorithm>
#include <cmath>
#include <utility>

PrintItem::PrintItem(const QString &text) : m_text(shownText(text)) {}
PrintItem::PrintItem(int number) : m_text(spacedText(number) + QLatin1Char(' ')) {}

void Druckschicht::DocName(const QString &name, int race, const QString &title) {
  m_recording.name = name;
  m_recording.race = race;
  m_recording.title = title;
}

void Druckschicht::Print(std::initializer_list<PrintItem> items, End end) {
  const PrintFont present = font();
  bool first = true;
  for (const PrintItem &item : items) {
    if (!std::exchange(first, false)) {
      const double zone = PrintMetrics::printZone(present);
      CurrentX = float((std::floor(double(CurrentX) / zone) + 1) * zone);
    }
    PrintPage &onPage = page();
    if (!item.text().isEmpty())
      onPage.append(TextOperation{double(CurrentX), double(CurrentY), present, item.text()});
    CurrentX += TextWidth(item.text());
  }
  if (end == End::Line) {
    CurrentX = 0;
    CurrentY += float(PrintMetrics::lineHeight(present));
  }
}

float Druckschicht::TextWidth(const QString &text) const {
  return float(PrintMetrics::textWidth(font(), shownText(text)));
}

float Druckschicht::ScaleWidth() const {
  return float((Orientation == Landscape ? Blatt::Hoehe : Blatt::Breite) - 2 * Blatt::Rand);
}

void Druckschicht::Line(double x1, double y1, double x2, double y2, unsigned color) {
  page().append(LineOperation{x1, y1, x2, y2, DrawWidth, color});
}

void Druckschicht::Box(double x1, double y1, double x2, double y2, unsigned color) {
  page().append(BoxOperation{x1, y1, x2, y2, DrawWidth, color});
}

void Druckschicht::FilledBox(double x1, double y1, double x2, double y2, unsigned color) {
  page().append(FillOperation{x1, y1, x2, y2, color});
}

void Druckschicht::PaintPicture(const PrintPicture &picture, double x, double y, double width, double height) {
  page().append(PictureOperation{x, y, width, height, picture.path, heldToPrint(picture.path, width, height)});
}

// A picture far finer than paper shows would only swell the PDF and slow the preview. It is read once for each size, so
// that all pages share it.
QImage Druckschicht::heldToPrint(const QString &path, double width, double height) {
  constexpr double dotsAMillimetre = 400 / 25.4;
  const QSize enough(std::max(1, int(width * dotsAMillimetre)), std::max(1, int(height * dotsAMillimetre)));
  const QString key = QStringLiteral("%1 %2x%3").arg(path).arg(enough.width()).arg(enough.height());
  const auto known = m_pictures.constFind(key);
  return known != m_pictures.constEnd() ? *known : *m_pictures.insert(key, readPicture(path, enough));
}

PrintPicture Druckschicht::LoadPicture(const QString &path) {
  return {path, pictureSize(path).expandedTo(QSize(0, 0))};
}

// A page comes into being with its first operation, so that a document without any has none.
PrintPage &Druckschicht::page() {
  if (m_recording.pages.isEmpty())
    m_recording.landscape = Orientation == Landscape;
  if (!std::exchange(m_pageOpen, true))
    m_recording.pages.append(PrintPage());
  return m_recording.pages.last();
}

void Druckschicht::toTopLeft() {
  m_pageOpen = false;
  CurrentX = CurrentY = 0;
}

void Druckschicht::NewPage() {
  page();
  toTopLeft();
}

void Druckschicht::EndDoc() {
  toTopLeft();
  const Recording finished = std::exchange(m_recording, {});
  if (!finished.pages.isEmpty())
    m_sink(finished);
}
