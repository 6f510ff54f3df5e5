#include "exchange/EntryColumns.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace {

constexpr int LinesToJudge = 50;

/// Spellings of headings, in lower case and of letters and digits only.
struct Kind {
  const char *name, *spellings;
};
constexpr std::array<Kind, ColumnKindCount> Kinds{{
    {"–", ""},
    {"Name",
     "name|teilnehmer|läufer|läuferin|sportler|starter|nameundvorname|namevorname|familiennamevorname|nachnamevorname|"
     "nachundvorname|zunamevorname|familiennameundvorname"},
    {"Vor- und Familienname", "vorundnachname|vorundfamilienname|vorundzuname|vornamenachname|vornamefamilienname|"
                              "vornameundnachname|vornameundfamilienname|vornamezuname|vornamename|fullname"},
    {"Familienname", "familienname|nachname|zuname|famname|lastname|surname|name1"},
    {"Vorname", "vorname|firstname|rufname|name2"},
    {"Geburtsdatum",
     "geburtsdatum|gebdatum|geboren|geborenam|geb|gebdat|datum|geburtstag|dateofbirth|dob|jahrgang|jahrg|jg|"
     "geburtsjahr|gebjahr|jahr|yearofbirth|yob|birthyear"},
    {"Geschlecht", "geschlecht|sex|mw|wm|mwd|gender|g|dh|hd|geschl"},
    {"Verein", "verein|club|klub|vereinsname|verein1|skiclub|schiclub|team|vereinmannschaft"},
    {"Verein 2", "verein2|zweitverein|2verein|zweiterverein"},
    {"Verein 3", "verein3|drittverein|3verein|dritterverein"},
    {"ÖSV-Nummer",
     "ösvnummer|ösvnr|oesvnr|oesvnummer|ösv|lizenz|lizenznr|lizenznummer|ösvcode|oesvcode|code|mitgliedsnummer"},
    {"Punkte", "punkte|ösvpunkte|oesvpunkte|points|fispunkte|pkt"},
}};

// What stands in brackets explains.
QString letters(const QString &heading) {
  static const QRegularExpression explanation(QStringLiteral("(?<=.)[(\\[].*\\z"));
  QString text;
  for (const QChar c : QString(heading).remove(explanation).toLower())
    if (c.isLetterOrNumber())
      text += c;
  return text;
}

ColumnKind byHeading(const QString &heading) {
  const QString wanted = letters(heading);
  for (size_t kind = 1; kind < Kinds.size(); ++kind)
    if (QString::fromUtf8(Kinds[kind].spellings).split(QLatin1Char('|')).contains(wanted))
      return ColumnKind(kind);
  return ColumnKind::None;
}

/// Whether most of what stands in a column fits a form, and anything does.
bool mostly(const Table &table, qsizetype column, const QRegularExpression &form) {
  int fits = 0, filled = 0;
  for (const QStringList &line : table.lines.first(std::min<qsizetype>(LinesToJudge, table.lines.size()))) {
    filled += !line[column].isEmpty();
    fits += form.match(line[column]).hasMatch();
  }
  return fits > 0 && fits * 10 >= filled * 8;
}

ColumnKind byContent(const Table &table, qsizetype column) {
  static const std::pair<ColumnKind, QRegularExpression> forms[] = {
      {ColumnKind::Birth,
       QRegularExpression(QStringLiteral("\\A(\\d{1,2}\\.\\d{1,2}\\.(\\d\\d|\\d{4})|\\d{4}-\\d\\d-\\d\\d|"
                                         "(19|20)\\d\\d)\\z"))},
      {ColumnKind::Sex, QRegularExpression(QStringLiteral("\\A([mwfhd]|männlich|weiblich|herr(en)?|damen?)\\z"),
                                           QRegularExpression::CaseInsensitiveOption)},
      {ColumnKind::Points, QRegularExpression(QStringLiteral("\\A\\d+[,.]\\d+\\z"))},
      {ColumnKind::OesvNr, QRegularExpression(QStringLiteral("\\A\\d{4,9}\\z"))},
      {ColumnKind::Name, QRegularExpression(QStringLiteral("\\A\\D*\\p{L}{2}"))}};
  for (const auto &[kind, form] : forms)
    if (mostly(table, column, form))
      return kind;
  return ColumnKind::None;
}

// Columns of words are one name and a club, or two names and a club.
void shareOutNames(QList<ColumnKind> &kinds) {
  const auto words = kinds.count(ColumnKind::Name);
  const auto shares = words < 3
                          ? std::array{ColumnKind::Name, ColumnKind::Club, ColumnKind::None, ColumnKind::None}
                          : std::array{ColumnKind::Family, ColumnKind::First, ColumnKind::Club, ColumnKind::Club2};
  size_t next = 0;
  for (ColumnKind &kind : kinds)
    if (kind == ColumnKind::Name)
      kind = next < shares.size() ? shares[next++] : ColumnKind::None;
}

void keepFirstOfEach(QList<ColumnKind> &kinds) {
  for (qsizetype i = 0; i < kinds.size(); ++i)
    if (std::find(kinds.begin(), kinds.begin() + i, kinds[i]) != kinds.begin() + i)
      kinds[i] = ColumnKind::None;
}

// "Name" beside a column of first names is the family's.
void pairNames(QList<ColumnKind> &kinds) {
  if (!kinds.contains(ColumnKind::First) || kinds.contains(ColumnKind::Family))
    return;
  std::replace(kinds.begin(), kinds.end(), ColumnKind::Name, ColumnKind::Family);
}

} // namespace

QString nameOf(ColumnKind kind) {
  return QString::fromUtf8(Kinds[size_t(kind)].name);
}

Columns recognisedColumns(const Table &table) {
  Columns columns;
  for (const QString &heading : table.lines.first())
    columns.kinds << byHeading(heading);
  const bool named = std::any_of(columns.kinds.begin(), columns.kinds.end(), [](ColumnKind kind) {
    return kind == ColumnKind::Name || kind == ColumnKind::FirstFamily || kind == ColumnKind::Family ||
           kind == ColumnKind::First;
  });
  columns.heading = named;
  if (!named) {
    for (qsizetype i = 0; i < columns.kinds.size(); ++i)
      columns.kinds[i] = byContent(table, i);
    shareOutNames(columns.kinds);
  }
  keepFirstOfEach(columns.kinds);
  pairNames(columns.kinds);
  return columns;
}
