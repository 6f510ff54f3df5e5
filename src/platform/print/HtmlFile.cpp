#include "platform/print/HtmlFile.h"

#include "platform/print/HtmlPages.h"

#include <QUrl>

#include <variant>

namespace {

// The table becomes a card a person where there is no room for columns.
constexpr char Style[] = R"(
:root{color-scheme:light dark;--text:#1c2330;--pale:#5d6676;--ground:#fff;--band:#e3e8ef;--line:#ccd3dd;--accent:#14508c}
@media(prefers-color-scheme:dark){:root{--text:#e6e9ee;--pale:#9da7b6;--ground:#14171c;--band:#27303b;--line:#3a4450;
--accent:#8fc2f5}}
body{margin:0 auto;max-width:70rem;padding:1rem;background:var(--ground);color:var(--text);
font:1rem/1.45 system-ui,"Segoe UI","Liberation Sans",Arial,sans-serif}
header{display:flex;flex-wrap:wrap;gap:1rem;align-items:center;border-bottom:3px solid var(--accent);margin-bottom:1rem}
header img{max-height:5rem;max-width:40%}
h1{font-size:1.5rem;margin:0 0 .2rem}
header p,footer{color:var(--pale);margin:0 0 .6rem}
a{color:var(--accent)}
table{border-collapse:collapse;width:100%;font-variant-numeric:tabular-nums}
th,td{padding:.25rem .5rem;text-align:left;vertical-align:top}
thead th{border-bottom:2px solid var(--line);color:var(--pale);font-weight:600}
tbody tr{border-bottom:1px solid var(--line)}
tr.h th{background:var(--band);font-size:1.05rem;padding-top:.4rem}
.r{text-align:right}
svg{display:block;box-sizing:border-box;width:100%;height:auto;background:#fff;margin:0 0 1rem;border:1px solid var(--line)}
svg text{white-space:pre}
@media(max-width:40rem){
thead{position:absolute;width:1px;height:1px;overflow:hidden;clip-path:inset(50%)}
table,tbody,tr.h,tr.h th{display:block}
tbody tr{display:flex;flex-wrap:wrap;gap:0 .9rem;padding:.4rem .2rem}
tr.h{padding:0}
td{padding:0;text-align:left}
td:empty{display:none}
td[data-k]::before{content:attr(data-k) " ";color:var(--pale);font-size:.8em}
td.n{font-weight:600}}
@media print{body{max-width:none;padding:0;font-size:9pt}tr,svg{break-inside:avoid}thead{display:table-header-group}}
)";

QString deviceName() {
  return QStringLiteral("Webseite (HTML)");
}

QString extension() {
  return QStringLiteral("html");
}

QString escaped(const QString &text) {
  return text.toHtmlEscaped();
}

QByteArray page(const QString &title, const QString &header, const QString &body) {
  return QStringLiteral("<!DOCTYPE html>\n<html lang=\"de\">\n<head>\n<meta charset=\"utf-8\">\n<meta "
                        "name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>%1</title>\n"
                        "<style>%2</style>\n</head>\n<body>\n<header>%3</header>\n<main>\n%4</main>\n</body>\n"
                        "</html>\n")
      .arg(escaped(title), QLatin1String(Style), header, body)
      .toUtf8();
}

QString headerOf(const QString &title, const QDateTime &when, const QString &pictures = {}) {
  return QStringLiteral("%1<div><h1>%2</h1><p>Stand: %3 Uhr</p></div>")
      .arg(pictures, escaped(title), when.toString(QStringLiteral("dd.MM.yyyy, HH:mm")));
}

// What belongs to the program's own paper has no place on the web.
QString picturesOf(const Recording &recording) {
  QString pictures;
  const PrintPage first = recording.pages.value(0);
  for (const PrintOperation &operation : first)
    if (const auto *picture = std::get_if<PictureOperation>(&operation);
        picture && !picture->image.isNull() && !picture->path.startsWith(QLatin1Char(':')))
      pictures += QStringLiteral("<img alt=\"\" src=\"%1\">").arg(pictureAsText(picture->image));
  return pictures;
}

QString headRow(const RecordedList &list) {
  QString row;
  for (const RecordedColumn &column : list.columns)
    row += QStringLiteral("<th scope=\"col\"%1>%2</th>")
               .arg(column.right ? QStringLiteral(" class=\"r\"") : QString(), escaped(column.head));
  return QStringLiteral("<thead><tr>%1</tr></thead>\n").arg(row);
}

QString cell(const RecordedColumn &column, const QString &text, bool name) {
  QString attributes;
  if (name)
    attributes = QStringLiteral(" class=\"n\"");
  else if (column.right)
    attributes = QStringLiteral(" class=\"r\"");
  if (!name && !column.head.isEmpty())
    attributes += QStringLiteral(" data-k=\"%1\"").arg(escaped(column.head));
  return QStringLiteral("<td%1>%2</td>").arg(attributes, escaped(text));
}

bool isName(const RecordedColumn &column) {
  return column.head.startsWith(QStringLiteral("Name")) || column.head == QStringLiteral("Läufer");
}

QString sectionOf(const RecordedList &list, const RecordedSection &section) {
  QString rows;
  const QString heading = section.values.join(QStringLiteral(" · "));
  if (!heading.isEmpty())
    rows = QStringLiteral("<tr class=\"h\"><th scope=\"rowgroup\" colspan=\"%1\">%2</th></tr>\n")
               .arg(list.columns.size())
               .arg(escaped(heading));
  for (const QStringList &row : section.rows) {
    QString cells;
    for (qsizetype i = 0; i < list.columns.size(); ++i)
      cells += cell(list.columns[i], row.value(i), isName(list.columns[i]));
    rows += QStringLiteral("<tr>%1</tr>\n").arg(cells);
  }
  return QStringLiteral("<tbody>\n%1</tbody>\n").arg(rows);
}

QString tableOf(const RecordedList &list) {
  QString sections;
  for (const RecordedSection &section : list.sections)
    sections += sectionOf(list, section);
  return QStringLiteral("<table>\n%1%2</table>\n").arg(headRow(list), sections);
}

} // namespace

QByteArray htmlOf(const Recording &recording, const QDateTime &when) {
  if (!recording.list.columns.isEmpty())
    return page(recording.title, headerOf(recording.title, when, picturesOf(recording)), tableOf(recording.list));
  return page(recording.title, headerOf(recording.title, when), pagesAsDrawings(recording));
}

QByteArray htmlIndex(const QString &title, const QList<std::pair<QString, QString>> &pages, const QDateTime &when) {
  QString items;
  for (const auto &[name, file] : pages)
    items += QStringLiteral("<li><a href=\"%1\">%2</a></li>\n")
                 .arg(QString::fromLatin1(QUrl::toPercentEncoding(file)), escaped(name));
  return page(title, headerOf(title, when), QStringLiteral("<ul>\n%1</ul>\n").arg(items));
}

Printer htmlIndexPrinter(const QString &folder, const std::function<QDateTime()> &now,
                         const QList<std::pair<QString, QString>> &pages) {
  return filePrinter(deviceName(), folder, extension(), now,
                     [=](const Recording &recording) { return htmlIndex(recording.title, pages, now()); });
}

Printer htmlPrinter(const QString &folder, const std::function<QDateTime()> &now) {
  return filePrinter(deviceName(), folder, extension(), now,
                     [now](const Recording &recording) { return htmlOf(recording, now()); });
}
