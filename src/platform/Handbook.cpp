#include "platform/Handbook.h"

#include "platform/Files.h"
#include "platform/System.h"

#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

Handbook::Handbook(const QString &markdown) {
  for (const auto &line : markdown.split(QLatin1Char('\n')))
    read(line);
}

Handbook Handbook::installed() {
  const QString path = folder() + QStringLiteral("handbuch.md");
  const auto bytes = readIfThere(path);
  return Handbook(bytes ? QString::fromUtf8(*bytes)
                        : QStringLiteral("# Handbuch\n\nDas Handbuch fehlt: %1\n").arg(QDir::cleanPath(path)));
}

QString Handbook::folder() {
  return System::sharedPath(QStringLiteral("handbuch/"));
}

void Handbook::read(const QString &line) {
  static const QRegularExpression screen(QStringLiteral("^<!-- (\\w+) -->$"));
  if (const auto match = screen.match(line); match.hasMatch()) {
    m_screens[match.captured(1)] = m_last;
    return;
  }
  if (line.startsWith(QStringLiteral("## "))) {
    m_pages.append({line.mid(3), {}, {}});
    m_last = {int(m_pages.size()) - 1, {}};
  } else if (line.startsWith(QStringLiteral("### "))) {
    m_last.section = line.mid(4);
    m_pages.last().sections.append(m_last.section);
  } else if (line.startsWith(QStringLiteral("# "))) {
    m_pages.last().title = line.mid(2);
  }
  m_pages.last().markdown += line + QLatin1Char('\n');
}

QString Handbook::wholeText() const {
  QString text;
  for (const auto &page : m_pages)
    text += page.markdown;
  return text;
}

std::optional<Handbook::Place> Handbook::placeOf(const QString &link) const {
  for (int page = 0; page < m_pages.size(); ++page) {
    if (anchorOf(m_pages[page].title) == link)
      return Place{page, {}};
    for (const auto &section : m_pages[page].sections)
      if (anchorOf(section) == link)
        return Place{page, section};
  }
  return {};
}

int Handbook::pageWith(const QString &text, int page) const {
  for (int step = 1; step <= m_pages.size(); ++step) {
    const int next = int((page + step) % m_pages.size());
    if (m_pages[next].markdown.contains(text, Qt::CaseInsensitive))
      return next;
  }
  return -1;
}

QString anchorOf(const QString &heading) {
  static const QRegularExpression dropped(QStringLiteral("[^\\w\\s-]"), QRegularExpression::UseUnicodePropertiesOption);
  return heading.toLower().remove(dropped).replace(QLatin1Char(' '), QLatin1Char('-'));
}

namespace {

constexpr qreal HeadingSizes[] = {1.7, 1.45, 1.2}; // of the text's

void dressHeading(QTextCursor &block, int level) {
  QTextCharFormat letters;
  letters.setAnchorNames({anchorOf(block.block().text())});
  letters.setFontPointSize(block.document()->defaultFont().pointSizeF() * HeadingSizes[std::min(level, 3) - 1]);
  block.select(QTextCursor::BlockUnderCursor);
  block.mergeCharFormat(letters);
  QTextBlockFormat room;
  room.setTopMargin(level > 1 ? 18 : 4);
  room.setBottomMargin(6);
  block.mergeBlockFormat(room);
}

void fitPicture(QTextCursor &cursor, const QTextFragment &fragment, int pictureWidth) {
  QTextImageFormat picture = fragment.charFormat().toImageFormat();
  const auto image = cursor.document()->resource(QTextDocument::ImageResource, QUrl(picture.name())).value<QImage>();
  if (image.deviceIndependentSize().width() <= pictureWidth)
    return;
  picture.setWidth(pictureWidth);
  cursor.setPosition(fragment.position());
  cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
  cursor.setCharFormat(picture);
}

void dressTable(QTextTable &table) {
  QTextTableFormat format = table.format();
  format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  format.setBorder(1);
  format.setBorderCollapse(true);
  format.setCellPadding(5);
  table.setFormat(format);
}

} // namespace

void setHandbookText(QTextDocument &document, const QString &markdown, int pictureWidth) {
  document.setMarkdown(markdown);
  QTextCursor cursor(&document);
  for (auto block = document.begin(); block.isValid(); block = block.next()) {
    cursor.setPosition(block.position());
    if (const int level = block.blockFormat().headingLevel(); level > 0)
      dressHeading(cursor, level);
    for (auto part = block.begin(); !part.atEnd(); ++part)
      if (part.fragment().charFormat().isImageFormat())
        fitPicture(cursor, part.fragment(), pictureWidth);
  }
  for (auto *frame : document.rootFrame()->childFrames())
    if (auto *table = qobject_cast<QTextTable *>(frame))
      dressTable(*table);
}
