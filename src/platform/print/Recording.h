#pragma once

#include <QImage>
#include <QStringList>

#include <variant>

// A document as it was recorded: pages of operations, in millimetres from the top left corner of the printable page.
// Paper, PDF file, preview and tests all play the same recording.

/// A4 with a margin of 4 mm on all sides, whatever a device reports.
namespace Blatt {
constexpr double Rand = 4, Breite = 210, Hoehe = 297;
} // namespace Blatt

struct PrintFont {
  QString name;
  /// Points, also fractions.
  double size = 10;
  bool bold = false, italic = false;
  bool operator==(const PrintFont &) const = default;
};

/// A picture as its file states it.
struct PrintPicture {
  QString path;
  /// 0 × 0 if the file is no picture.
  QSize pixels;
  /// Natural size in millimetres at 96 pixels to the inch, whatever density the file states.
  double width() const { return pixels.width() * 25.4 / 96; }
  double height() const { return pixels.height() * 25.4 / 96; }
};

/// `x` and `y` are the top left corner of the text.
struct TextOperation {
  double x, y;
  PrintFont font;
  QString text;
};
/// `lineWidth` is in units of 1/300 inch, colours are 0xRRGGBB.
struct LineOperation {
  double x1, y1, x2, y2;
  int lineWidth;
  unsigned color;
};
/// The outline of a rectangle.
struct BoxOperation {
  double x1, y1, x2, y2;
  int lineWidth;
  unsigned color;
};
struct FillOperation {
  double x1, y1, x2, y2;
  unsigned color;
};
/// The picture stretched to the rectangle; a file that cannot be read has a null image and prints nothing.
struct PictureOperation {
  double x, y, width, height;
  QString path;
  QImage image;
};

using PrintOperation = std::variant<TextOperation, LineOperation, BoxOperation, FillOperation, PictureOperation>;
using PrintPage = QList<PrintOperation>;

/// A column of a list, for other media than paper.
struct RecordedColumn {
  QString head;
  /// Stands to the right, as numbers and times do.
  bool right = false;
  bool operator==(const RecordedColumn &) const = default;
};
/// Rows under one heading, as of a class or a team; the names say what the values of the heading are.
struct RecordedSection {
  QStringList names, values;
  QList<QStringList> rows;
};
/// What a list says, free of pages: noted while it is printed, so that all media tell the same.
struct RecordedList {
  QList<RecordedColumn> columns;
  QList<RecordedSection> sections;

  /// Rows go under this heading from now on; one that comes again, as on a new page, is the same.
  void begin(const QStringList &names, const QStringList &values);
  void add(const QStringList &row);
};

struct Recording {
  /// What the document is called in file names.
  QString name;
  /// What it is called where there is room: race, document and, on a certificate, person.
  QString title;
  /// Number of the race that it belongs to, 0 = none.
  int race = 0;
  /// A document has one orientation for all its pages.
  bool landscape = false;
  QList<PrintPage> pages;
  /// Empty for a document that is no list.
  RecordedList list;
};

/// One line an operation, positions with two decimals: for comparing whole pages.
QStringList asText(const Recording &recording);
