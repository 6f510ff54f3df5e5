// Makes the handbook that is installed beside this program into one HTML page, pictures included, and one PDF file.

#include "platform/Faults.h"
#include "platform/Files.h"
#include "platform/Fonts.h"
#include "platform/Handbook.h"

#include <QGuiApplication>
#include <QPageSize>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTextDocument>
#include <QUrl>

#include <cstdio>

namespace {

constexpr int PictureWidth = 640;

void fill(QTextDocument &document, const Handbook &handbook) {
  document.setDefaultFont(QFont(QStringLiteral("Arial"), 10));
  document.setMetaInformation(QTextDocument::DocumentUrl, QUrl::fromLocalFile(Handbook::folder()).toString());
  document.setMetaInformation(QTextDocument::DocumentTitle, handbook.pages().first().title);
  setHandbookText(document, handbook.wholeText(), PictureWidth);
}

// Pictures travel with the page.
QString withPictures(QString html) {
  static const QRegularExpression picture(QStringLiteral("src=\"(bilder/[^\"]+)\""));
  for (auto match = picture.match(html); match.hasMatch(); match = picture.match(html, match.capturedStart() + 4)) {
    const QByteArray bytes = readFile(Handbook::folder() + match.captured(1)).toBase64();
    html.replace(match.capturedStart(), match.capturedLength(),
                 QStringLiteral("src=\"data:image/png;base64,%1\"").arg(QString::fromLatin1(bytes)));
  }
  return html;
}

void make(const QString &html, const QString &pdf) {
  const Handbook handbook = Handbook::installed();
  QTextDocument document;
  fill(document, handbook);
  writeFile(html, withPictures(document.toHtml()).toUtf8());
  QPdfWriter paper(pdf);
  paper.setPageSize(QPageSize(QPageSize::A4));
  paper.setTitle(handbook.pages().first().title);
  document.print(&paper);
}

} // namespace

int main(int argc, char **argv) {
  QGuiApplication application(argc, argv);
  substituteFonts();
  if (argc != 3) {
    std::fputs("Aufruf: vext_handbuch <HTML-Datei> <PDF-Datei>\n", stderr);
    return 2;
  }
  try {
    make(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]));
  } catch (const Fault &fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    return 1;
  }
  return 0;
}
