#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class QTextDocument;

/// The operator's handbook, one Markdown text. A heading of the second level begins a page, one of the third a section
/// in it. A line `<!-- Form7 -->` behind a heading says that this is the place for that screen; a link to `#words-of-a-
/// heading` goes to that heading.
class Handbook {
public:
  struct Page {
    QString title;
    QStringList sections;
    QString markdown;
  };
  struct Place {
    int page = 0;
    /// Title of the section; empty = the beginning of the page.
    QString section;
    bool operator==(const Place &) const = default;
  };

  explicit Handbook(const QString &markdown);
  /// The one that is installed beside the program; if it is not there, a page that says so.
  static Handbook installed();
  /// Its folder, which holds the pictures too; ends with "/".
  static QString folder();

  /// What stands before the first page is page 0.
  const QList<Page> &pages() const { return m_pages; }
  QString wholeText() const;
  /// The place for a screen, by its object name; the first page for one that has none.
  Place placeFor(const QString &screen) const { return m_screens.value(screen); }
  QStringList screens() const { return m_screens.keys(); }
  /// The place that a link goes to, by what stands behind its "#"; nothing if there is no such heading.
  std::optional<Place> placeOf(const QString &link) const;
  /// The first page behind `page` that holds the text, in whatever case, going round; -1 if none does.
  int pageWith(const QString &text, int page) const;

private:
  void read(const QString &line);

  QList<Page> m_pages{1};
  QHash<QString, Place> m_screens;
  Place m_last;
};

/// Sets a text of the handbook into a document: headings get their names as anchors, pictures are at most
/// `pictureWidth` wide.
void setHandbookText(QTextDocument &document, const QString &markdown, int pictureWidth);
/// The anchor of a heading, as links name it.
QString anchorOf(const QString &heading);
