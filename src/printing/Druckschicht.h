#pragma once

#include "platform/print/Printers.h"

#include <QHash>

#include <functional>

/// An item of a Print: a text, or a number, which is set with one blank in front and one behind.
class PrintItem {
public:
  PrintItem(const QString &text);
  PrintItem(int number);
  PrintItem(double) = delete; // every number on paper is whole
  const QString &text() const { return m_text; }

private:
  QString m_text;
};

/// The operations that all printouts are written in. They are recorded, and EndDoc hands the recording over; nothing
/// touches a printer before. Positions and lengths are millimetres from the top left corner of the printable page.
///
/// The public values are read and set freely; they hold for what is printed next and stay over pages and documents.
class Druckschicht {
public:
  enum class Scale { Millimetres };
  enum Page { Portrait = 1, Landscape = 2 };
  enum class End { Line, Continued };
  /// What takes a finished document, as the current printer does.
  using Sink = std::function<void(const Recording &)>;

  explicit Druckschicht(Sink sink) : m_sink(std::move(sink)) {}
  /// Prints on the current printer.
  explicit Druckschicht(Printers &printers) : m_sink([&printers](const Recording &done) { printers.print(done); }) {}

  /// The only scale there is; each document states it.
  Scale ScaleMode = Scale::Millimetres;
  /// Of the whole document: it is taken with the first operation.
  int Orientation = Portrait;
  QString FontName = QStringLiteral("Arial");
  double FontSize = 10; ///< Points.
  bool FontBold = false, FontItalic = false;
  /// Where the next text starts, its top left corner. Moved by Print, NewPage and EndDoc alone.
  float CurrentX = 0, CurrentY = 0;
  /// Width of lines in 1/300 inch: 1, 2, 3 and 5 are used.
  int DrawWidth = 1;

  /// What the next document is called in file names, the race it belongs to (0 = none), and its whole title.
  void DocName(const QString &name, int race, const QString &title);

  /// Prints at the current position; then the line ends (X 0, Y one line height down) or X stands behind the text.
  void Print(const PrintItem &item, End end = End::Line) { Print({item}, end); }
  /// Items joined by a comma: each starts at the next print zone.
  void Print(std::initializer_list<PrintItem> items, End end = End::Line);
  float TextWidth(const QString &text) const;
  /// Width of the printable page.
  float ScaleWidth() const;

  /// Colours are 0xRRGGBB. None of these moves the current position.
  void Line(double x1, double y1, double x2, double y2, unsigned color = 0);
  void Box(double x1, double y1, double x2, double y2, unsigned color = 0);
  void FilledBox(double x1, double y1, double x2, double y2, unsigned color);
  void PaintPicture(const PrintPicture &picture, double x, double y, double width, double height);
  /// Looks at a picture; it is read when it is painted.
  PrintPicture LoadPicture(const QString &path);

  /// What the document says to media that know no pages; handed over with it.
  RecordedList &list() { return m_recording.list; }

  void NewPage();
  /// Hands the document over, if anything was printed. What the sink throws goes on; the document is ended all the
  /// same.
  void EndDoc();

private:
  PrintFont font() const { return {FontName, FontSize, FontBold, FontItalic}; }
  PrintPage &page();
  QImage heldToPrint(const QString &path, double width, double height);
  void toTopLeft();

  Sink m_sink;
  Recording m_recording;
  bool m_pageOpen = false;
  QHash<QString, QImage> m_pictures;
};
