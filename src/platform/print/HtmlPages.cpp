#include "platform/print/HtmlPages.h"

#include "platform/print/PrintMetrics.h"

#include <QBuffer>

#include <cmath>
#include <variant>

namespace {

constexpr double MillimetresAPoint = 25.4 / 72, LineUnit = 25.4 / 300;
constexpr int JpegQuality = 85;

QString number(double value) {
  return QString::number(std::round(value * 100) / 100);
}

QString color(unsigned rgb) {
  return QStringLiteral("#%1").arg(rgb, 6, 16, QLatin1Char('0'));
}

// Readers have other fonts than the printing one; the nearest ones of all systems follow it.
QString familyOf(const QString &name) {
  if (name.startsWith(QStringLiteral("Times")))
    return QStringLiteral("Times,'Liberation Serif','Times New Roman',serif");
  if (name.startsWith(QStringLiteral("Fraktur")))
    return QStringLiteral("'%1',UnifrakturMaguntia,Blankenburg_UNZ1A,serif").arg(name);
  if (name.startsWith(QStringLiteral("Mono")))
    return QStringLiteral("'Liberation Mono',monospace");
  return QStringLiteral("Arial,'Liberation Sans',Helvetica,sans-serif");
}

QString lineStyle(int lineWidth, unsigned rgb) {
  return QStringLiteral("fill=\"none\" stroke=\"%1\" stroke-width=\"%2\"")
      .arg(color(rgb), number(lineWidth * LineUnit));
}

QString rectangle(double x1, double y1, double x2, double y2, const QString &style) {
  return QStringLiteral("<rect x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" %5/>\n")
      .arg(number(std::min(x1, x2)), number(std::min(y1, y2)), number(std::fabs(x2 - x1)), number(std::fabs(y2 - y1)),
           style);
}

/// The elements of one operation.
struct Element {
  // The width is told too, so that another font takes no more room.
  QString operator()(const TextOperation &o) const {
    const QString text = o.text.trimmed();
    if (text.isEmpty())
      return {};
    const QString leading = o.text.left(o.text.indexOf(text));
    return QStringLiteral("<text x=\"%1\" y=\"%2\" font-family=\"%3\" font-size=\"%4\"%5%6 textLength=\"%7\" "
                          "lengthAdjust=\"spacingAndGlyphs\">%8</text>\n")
        .arg(number(o.x + PrintMetrics::textWidth(o.font, leading)),
             number(o.y + PrintMetrics::ascentInDots(o.font) / PrintMetrics::DotsAMillimetre), familyOf(o.font.name),
             number(o.font.size * MillimetresAPoint), o.font.bold ? QStringLiteral(" font-weight=\"bold\"") : QString(),
             o.font.italic ? QStringLiteral(" font-style=\"italic\"") : QString(),
             number(PrintMetrics::textWidth(o.font, text)), text.toHtmlEscaped());
  }
  QString operator()(const LineOperation &o) const {
    return QStringLiteral("<line x1=\"%1\" y1=\"%2\" x2=\"%3\" y2=\"%4\" %5/>\n")
        .arg(number(o.x1), number(o.y1), number(o.x2), number(o.y2), lineStyle(o.lineWidth, o.color));
  }
  QString operator()(const BoxOperation &o) const {
    return rectangle(o.x1, o.y1, o.x2, o.y2, lineStyle(o.lineWidth, o.color));
  }
  QString operator()(const FillOperation &o) const {
    return rectangle(o.x1, o.y1, o.x2, o.y2, QStringLiteral("fill=\"%1\"").arg(color(o.color)));
  }
  QString operator()(const PictureOperation &o) const {
    if (o.image.isNull())
      return {};
    return QStringLiteral("<image x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" preserveAspectRatio=\"none\" "
                          "href=\"%5\"/>\n")
        .arg(number(o.x), number(o.y), number(o.width), number(o.height), pictureAsText(o.image));
  }
};

} // namespace

QString pictureAsText(const QImage &picture) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  const char *format = picture.hasAlphaChannel() ? "PNG" : "JPEG";
  picture.save(&bytes, format, picture.hasAlphaChannel() ? -1 : JpegQuality);
  return QStringLiteral("data:image/%1;base64,%2")
      .arg(QString::fromLatin1(format).toLower(), QString::fromLatin1(bytes.data().toBase64()));
}

QString pagesAsDrawings(const Recording &recording) {
  const QSizeF paper(recording.landscape ? Blatt::Hoehe : Blatt::Breite,
                     recording.landscape ? Blatt::Breite : Blatt::Hoehe);
  QString drawings;
  for (const PrintPage &page : recording.pages) {
    QString elements;
    for (const PrintOperation &operation : page)
      elements += std::visit(Element(), operation);
    drawings += QStringLiteral("<svg viewBox=\"%1 %1 %2 %3\" role=\"img\" aria-label=\"%4\">\n%5</svg>\n")
                    .arg(number(-Blatt::Rand), number(paper.width()), number(paper.height()),
                         recording.title.toHtmlEscaped(), elements);
  }
  return drawings;
}
